#pragma once
// The row columns of the lists and the routines that gather, sort and paint them.
//
// Each gatherer is a pure function of the record store and the filter texts: it walks the
// records in their order and returns the row columns of one list with its counters. The
// first column of a set maps a list position to a row of the record store; the others
// hold what the row shows. The builders (Build...List) run a gatherer for the filters the
// window shows, fill the summary boxes, sort (list_sort.h), keep the rows in the window's
// view state, and paint them (grid.h).
//
// Short columns. A class column gets an entry for every class whose ID equals the
// record's class link: none when the class is gone, so the class entries of the later
// rows move up by one and the last rows have none. Readers take a missing entry as empty
// (Column::valueOr), never as an error.
//
// Links and IDs are compared as numbers (the record readers' reading of a numeric field,
// int16OrZero), so "7" and " 7" are one ID.
#include <string>
#include <string_view>

#include "common/color.h"
#include "common/column.h"
#include "common/day_number.h"
#include "common/int16.h"
#include "record_store/columns.h"
#include "recurrence/expansion.h"
#include "recurrence/reminders.h"

namespace qh {

struct ListHost;

// 1953-08-12: given as the filter date, a gatherer applies no date filter. A real filter
// date of that day can't be told from it.
inline constexpr Date kAllDatesSentinel = 19583;

// Backgrounds of the summary boxes: pink while work is open, green when all is done.
inline constexpr Color kOpenWorkPink = 0xE5E5FF;
inline constexpr Color kAllDoneGreen = 0xE2F7E1;

// --- Homework -------------------------------------------------------------------------

// The columns of a list's rows, apart from its counters: a sort moves every one of them
// (list_sort.h), so a column added here moves with its row.
struct HomeworkColumns {
    Column<int> ListAssignmentRows;                             // row of the Assignment columns
    TextColumn ListTimes;                                       // time left, "HH:MM"; "00:00" for a done assignment
    TextColumn ListClassNames, ListForeColors, ListBackColors;  // of the class; may run short
};

struct HomeworkRows : HomeworkColumns {
    Int16 HomeworkTotal = 0;                                    // in the date range, whatever the done filter says
    Int16 HomeworkUnfinished = 0;                               // of those, not done
    bool HomeworkAllDone = true;                                // no unfinished one in range
    std::string HomeworkTimeEstimated;                          // estimates of the unfinished ones, "HH:MM"
    std::string HomeworkTimeLeft;                               // that less the study time against them, not below 0
};

// The assignments due on `date` (or all of the term with kAllDatesSentinel), without
// deleted ones, kept by `listChoice`: "All", "Done" or "Not Done". The counters and times
// count every assignment in the date range whatever `listChoice` keeps. An assignment's
// time left is its estimate less its study sessions, never below 0; the list's time left
// subtracts all study time before it clamps, so an over-studied assignment lowers it.
HomeworkRows GatherHomework(const RecordStore& store, Date date, std::string_view listChoice);

// Gathers for the filters of the window, shows the summary, sorts, keeps and paints.
void BuildHomeworkList(const ListHost& window);

// --- Study sessions -------------------------------------------------------------------

struct StudySessionColumns {
    Column<int> ListSessionLengthRows;  // row of the StudySession columns, read for the "Time" column
    Column<int> ListSessionDateRows;    // the same rows, read for the "Done On" column
    Column<int> ListAssignmentRows;     // the session's assignment; may run short
    TextColumn ListClassNames, ListForeColors, ListBackColors;
};

struct StudySessionRows : StudySessionColumns {
    // The same rows again, gathered; its count is the row count. A sort leaves it in the
    // gathering order: it only counts the rows.
    Column<int> ListSessionRows;
    std::string StudyTimeTotal;  // sum of the listed sessions, "HH:MM"
};

// The sessions done on `date` (or all, with kAllDatesSentinel) whose link is not -1.
// Deleted assignments are not looked at: only the link -1 takes a session out.
StudySessionRows GatherStudySessions(const RecordStore& store, Date date);
void BuildStudySessionList(const ListHost& window);

// --- Tasks ----------------------------------------------------------------------------

struct TaskColumns {
    Column<int> ListTaskRows;
    TextColumn ListTaskForeColors, ListTaskBackColors;
};

struct TaskRows : TaskColumns {
    Int16 TaskTotal = 0, TaskDone = 0, TaskUnfinished = 0;
};

// `dateRange`: "Day" (dated tasks of `date`), "All", "With Date", "Without Date";
// `listChoice`: "All", "Done", "Not Done". Deleted tasks are never counted.
TaskRows GatherTasks(const RecordStore& store, Date date, std::string_view dateRange, std::string_view listChoice);
void BuildTaskList(const ListHost& window);

// --- Events and reminders -------------------------------------------------------------

// The occurrences of one day, counted before `filter` ("All", "Classes", "Other Events").
EventRows GatherEvents(const RecordStore& store, Date date, std::string_view filter);
void BuildEventList(const ListHost& window);
void BuildReminderList(const ListHost& window);

// "Tomorrow", "Today", "Yesterday", "n Days", "n Days Ago".
std::string DateWord(int days);

}  // namespace qh
