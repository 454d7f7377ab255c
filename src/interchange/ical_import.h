#pragma once
// File > Import iCalendar...: what each item of a read file becomes, shown in the preview
// before anything changes, then written as the editors write a record.
//
// Events become events. To-dos, and the deadlines learning systems write as events (a UID
// "event-assignment-..." with its end at its start), go by their course (their first
// category): as assignments of a class of the active term, as tasks, or skipped, as the
// student chooses per course. An item already imported (its UID in CalendarLinks.txt)
// updates its record when it changed at the source and keeps what the student added: an
// assignment's Done, grade, study sessions and notes, a task's Done.
#include <map>
#include <string>
#include <vector>

#include "interchange/calendar_links.h"
#include "platform/calendar_items.h"
#include "record_store/columns.h"

namespace qh {

class RecordFiles;

// The course of an item that has none.
inline constexpr const char* kNoCourse = "(no course)";

struct ImportLine {
    std::size_t item = 0;           // index into ImportPlan::items
    bool byCourse = false;          // a to-do or a deadline: the course's choice decides
    std::string course;
    std::string problem;            // why its repetition cannot be held; empty when it can
    std::vector<std::string> changes;  // what is cut or rounded to fit the record
    LinkedKind linkedKind = LinkedKind::Event;
    int linkedRow = 0;              // the row of the record it was imported into before, 0 for none
    bool unchanged = false;         // linked, and the same as when it was imported
};

struct ImportPlan {
    std::vector<CalendarItem> items;
    std::vector<ImportLine> lines;
    std::vector<std::string> courses;  // in the order the file names them
    int events = 0, todos = 0, deadlines = 0, repeatProblems = 0;
};

// The plan of importing the items of a read file into the planner as it stands.
ImportPlan PlanImport(std::vector<CalendarItem> items, const RecordStore& store, const CalendarLinks& links,
                      const std::string& source);

// What the student chose in the preview: per course the class ID its items become
// assignments of, kAsTasks or kSkip; and for a repetition the planner cannot hold, the
// first occurrence alone or nothing.
inline constexpr const char* kAsTasks = "tasks";
inline constexpr const char* kSkip = "skip";
struct ImportChoices {
    std::map<std::string, std::string> courses;
    bool firstOccurrenceOnly = true;
};

struct ImportResult {
    int added = 0, updated = 0, unchanged = 0, skipped = 0;
    bool full = false;  // some item was skipped because its record file holds all it can
    // A write was refused: the file was named to the student and the import stopped there,
    // its item neither counted nor linked.
    bool writeFailed = false;
};

// Writes the plan: each new record appended and each changed one rewritten, one record at a
// time as the editors do, and the links kept for the next import. `today` dates a task
// without a due day, as the task editor dates it.
ImportResult ApplyImport(RecordStore& store, RecordFiles& files, const ImportPlan& plan, const ImportChoices& choices,
                         CalendarLinks& links, const std::string& source, Date today);

// The counts of a plan in words, for the preview: "3 events, 12 to-dos and 4 deadlines".
std::string ImportCountsText(const ImportPlan& plan);

}  // namespace qh
