#include "interchange/ical_import.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>

#include "common/flag_text.h"
#include "common/int16.h"
#include "common/text.h"
#include "interchange/event_repetition.h"
#include "record_store/clock_text.h"
#include "record_store/record_files.h"
#include "record_store/record_layout.h"
#include "record_store/record_tables.h"

namespace qh {
namespace {

constexpr const char* kEventTypes[] = {"Class", "School", "Home", "Birthday", "Holiday", "Personal",
                                       "Friends", "Family", "Recreation", "Work"};
constexpr const char* kTaskTypes[] = {"Class", "School", "Home", "Personal", "Friends",
                                      "Family", "Recreation", "Work", "Project", "Idea"};
constexpr const char* kAssignmentTypes[] = {"Assignment", "Test", "Quiz", "Reading", "Study", "Report", "Project"};
constexpr int kLongestNotice = 30;
constexpr Int16 kLastRecordNumber = 32767;

bool isDeadline(const CalendarItem& item) {
    return item.kind == CalendarItemKind::Event && item.instant && item.uid.rfind("event-assignment-", 0) == 0;
}

// The first category that names one of the kind's types, else `fallback`.
template <std::size_t N>
std::string typeOf(const CalendarItem& item, const char* const (&types)[N], const char* fallback) {
    for (const std::string& category : item.categories)
        for (const char* type : types)
            if (category == type) return type;
    return fallback;
}

// A hash of everything the planner takes from an item, so that an item changed at its
// source is told from one that is not.
std::string itemHash(const CalendarItem& item) {
    std::string text = item.summary + '\x1f' + item.description + '\x1f' + std::to_string(item.start) + '\x1f' +
                       std::to_string(item.startMinutes.value_or(-1)) + '\x1f' + (item.done ? "1" : "0") + '\x1f' +
                       std::to_string(item.priority) + '\x1f' + std::to_string(item.alarmDaysBefore.value_or(-1)) +
                       '\x1f' + std::to_string(int(item.rule.frequency)) + '\x1f' +
                       std::to_string(item.rule.until.value_or(0)) + '\x1f' + item.ruleProblem;
    for (const std::string& category : item.categories) text += '\x1e' + category;
    for (int day : item.rule.weekdays) text += 'w' + std::to_string(day);
    for (int day : item.rule.monthDays) text += 'm' + std::to_string(day);
    for (Date date : item.extraDates) text += 'x' + std::to_string(date);
    text += 'o' + std::to_string(item.rule.ordinal) + '/' + std::to_string(item.rule.ordinalWeekday) + 's' +
            std::to_string(item.rule.setPosition) + 'M' + std::to_string(item.rule.month);
    std::uint64_t hash = 14695981039346656037ull;
    for (unsigned char c : text) hash = (hash ^ c) * 1099511628211ull;
    char hex[17];
    std::snprintf(hex, sizeof hex, "%016llx", static_cast<unsigned long long>(hash));
    return hex;
}

// A file's line breaks as the planner's boxes hold them.
std::string boxText(const std::string& text) {
    std::string out;
    for (char c : text) {
        if (c == '\r') continue;
        if (c == '\n') out += '\r';
        out += c;
    }
    return out;
}

// Fits one text into its field, noting when it had to be cut.
std::string fitted(int width, const std::string& text, const char* what, std::vector<std::string>* changes) {
    std::string stored = storedText(width, text);
    if (changes && stored != trimRight(text)) changes->push_back(std::string(what) + " cut to fit");
    return stored;
}

std::string noticeText(int days) { return days == 1 ? "1 Day" : std::to_string(days) + " Days"; }

// The planner's advance notice of an alarm; an assignment always has one.
std::string reminderOf(const CalendarItem& item, bool noneAllowed, std::vector<std::string>* changes) {
    if (!item.alarmDaysBefore || *item.alarmDaysBefore < 1) return noneAllowed ? "None" : "1 Day";
    if (*item.alarmDaysBefore > kLongestNotice && changes) changes->push_back("advance notice shortened to 30 days");
    return noticeText(std::min(*item.alarmDaysBefore, kLongestNotice));
}

std::string priorityOf(int priority) {
    if (priority >= 1 && priority <= 4) return "High";
    if (priority == 5) return "Medium";
    if (priority >= 6) return "Low";
    return "None";
}

std::string summaryOf(const CalendarItem& item) {
    // A name the planner reads as a deleted record, or none at all, is given one of its own.
    if (trimRight(item.summary).empty()) return "(untitled)";
    if (item.summary == kDeletedRecord) return "Deleted record";
    return item.summary;
}

EventBuffer eventRecordOf(const CalendarItem& item, bool firstOnly, std::vector<std::string>* changes) {
    std::optional<PlannerRule> rule = firstOnly ? std::nullopt : PlannerRuleOf(item);
    if (!rule) {
        rule = PlannerRule{};
        rule->first = rule->endDate = item.start;
    }
    EventBuffer record;
    PutRule(*rule, record);
    record.Description = fitted(kEventTable.width("Description"), summaryOf(item), "name", changes);
    record.Type = typeOf(item, kEventTypes, "None");
    record.Time = "None";
    if (item.startMinutes) {
        // The planner's times go in steps of five minutes.
        const int rounded = (*item.startMinutes + 2) / 5 * 5 % (24 * 60);
        record.Time = ClockText(rounded);
        if (rounded != *item.startMinutes && changes) changes->push_back("time rounded to " + record.Time);
    }
    record.Notes = fitted(kEventTable.width("Notes"), boxText(item.description), "notes", changes);
    record.Reminder = reminderOf(item, true, changes);
    return record;
}

TaskBuffer taskRecordOf(const CalendarItem& item, Date today, std::vector<std::string>* changes) {
    TaskBuffer record;
    record.Description = fitted(kTaskTable.width("Description"), summaryOf(item), "name", changes);
    record.DateExists = flagText(item.start != 0);
    record.Date = dateText(item.start != 0 ? item.start : today);
    record.Type = typeOf(item, kTaskTypes, "None");
    record.Priority = priorityOf(item.priority);
    record.Done = flagText(item.done);
    record.Notes = fitted(kTaskTable.width("Notes"), boxText(item.description), "notes", changes);
    record.Reminder = item.start != 0 ? reminderOf(item, true, changes) : "None";
    return record;
}

AssignmentBuffer assignmentRecordOf(const CalendarItem& item, const std::string& classLink,
                                    std::vector<std::string>* changes) {
    AssignmentBuffer record;
    record.ClassLink = classLink;
    record.DateValue = item.start;
    record.Type = typeOf(item, kAssignmentTypes, "Assignment");
    record.Difficulty = "Average";
    record.EstTime = "00 : 30";
    record.Description = fitted(kAssignmentTable.width("Description"), summaryOf(item), "name", changes);
    record.Done = flagText(item.done);
    record.Grade = "";
    record.Weight = "5";
    record.Reminder = reminderOf(item, false, changes);
    return record;
}

int rowOfId(const TextColumn& ids, std::int32_t id) {
    for (int row = 1; row <= ids.count(); ++row)
        if (int16OrZero(ids(row)) == id) return row;
    return 0;
}

const TextColumn& idsOf(const RecordStore& store, LinkedKind kind) {
    switch (kind) {
        case LinkedKind::Assignment: return store.AssignmentIDs;
        case LinkedKind::Task: return store.TaskIDs;
        case LinkedKind::Event: return store.EventIDs;
    }
    return store.EventIDs;
}

// Appends or rewrites one record of a kind as the editors do: the row, then its record.
class RecordWriter {
public:
    RecordWriter(RecordStore& store, RecordFiles& files) : store_(store), files_(files) {}

    // The ID of the record written; 0 when the file is full.
    std::int32_t event(const CalendarItem& item, bool firstOnly, int row) {
        return put(eventRecordOf(item, firstOnly, nullptr), row, store_.NextEventRecord, &RecordStore::EventRecord,
                   kEventTable, store_.EventRecordNos, store_.EventIDs, &RecordFiles::SaveEvent);
    }

    std::int32_t task(const CalendarItem& item, Date today, int row) {
        TaskBuffer record = taskRecordOf(item, today, nullptr);
        // The student's own tick stays.
        if (row != 0 && isTrueFlag(store_.TaskDones(row))) record.Done = flagText(true);
        return put(record, row, store_.NextTaskRecord, &RecordStore::TaskRecord, kTaskTable, store_.TaskRecordNos,
                   store_.TaskIDs, &RecordFiles::SaveTask);
    }

    std::int32_t assignment(const CalendarItem& item, const std::string& classLink, int row) {
        if (row == 0) {
            if (store_.NextAssignmentRecord >= kLastRecordNumber) return 0;
            AssignmentBuffer record = assignmentRecordOf(item, classLink, nullptr);
            record.RecordNo = record.ID = std::to_string(store_.NextAssignmentRecord);
            store_.AssignmentRecord = record;
            kAssignmentTable.appendRow(store_, record);
            const std::string note = storedText(kNoteTable.width("Text"), boxText(item.description));
            if (!note.empty() && store_.NextNoteRecord < kLastRecordNumber) {
                store_.NoteRecordNos.append(std::to_string(store_.NextNoteRecord));
                store_.NoteLinkIDs.append(record.ID);
                store_.NoteRecord = {std::to_string(store_.NextNoteRecord), record.ID, note};
                saves.note(files_.SaveNote(0));
            }
            saves.note(files_.SaveAssignment(0));
            return int16OrZero(record.ID);
        }
        // An update takes the name and the due day from the source; the class, Done, the
        // grade, the estimate and everything else the student set stay.
        AssignmentBuffer record = kAssignmentTable.rowOf(store_, row);
        record.DateValue = item.start;
        record.Description = fitted(kAssignmentTable.width("Description"), summaryOf(item), "name", nullptr);
        store_.AssignmentRecord = record;
        kAssignmentTable.storeRow(store_, row, record);
        saves.note(files_.SaveAssignment(int16OrZero(record.RecordNo)));
        return int16OrZero(record.ID);
    }

    // A refused write's row stays for this run, as an editor's does.
    SaveRun saves;

private:

    // A new record at the kind's next number, or the record of row `row` written over.
    template <class Buffer>
    std::int32_t put(Buffer record, int row, Int16 next, Buffer RecordStore::*buffer,
                     const RecordTable<Buffer>& table, const TextColumn& recordNos, const TextColumn& ids,
                     bool (RecordFiles::*save)(Int16)) {
        if (row == 0 && next >= kLastRecordNumber) return 0;
        record.RecordNo = row == 0 ? std::to_string(next) : recordNos(row);
        record.ID = row == 0 ? record.RecordNo : ids(row);
        store_.*buffer = record;
        if (row == 0)
            table.appendRow(store_, record);
        else
            table.storeRow(store_, row, record);
        saves.note((files_.*save)(row == 0 ? Int16{0} : int16OrZero(record.RecordNo)));
        return int16OrZero(record.ID);
    }

    RecordStore& store_;
    RecordFiles& files_;
};

}  // namespace

ImportPlan PlanImport(std::vector<CalendarItem> items, const RecordStore& store, const CalendarLinks& links,
                      const std::string& source) {
    ImportPlan plan;
    plan.items = std::move(items);
    const std::map<std::string, CalendarLinks::Linked> uids = links.byUid();
    for (std::size_t i = 0; i < plan.items.size(); ++i) {
        const CalendarItem& item = plan.items[i];
        ImportLine line;
        line.item = i;
        const bool deadline = isDeadline(item);
        line.byCourse = item.kind == CalendarItemKind::Todo || deadline;
        if (line.byCourse) {
            line.course = item.categories.empty() ? kNoCourse : item.categories.front();
            if (std::find(plan.courses.begin(), plan.courses.end(), line.course) == plan.courses.end())
                plan.courses.push_back(line.course);
            ++(deadline ? plan.deadlines : plan.todos);
            if (!item.ruleProblem.empty() || item.rule.frequency != RepeatFrequency::None)
                line.problem = "repeats, which a task or an assignment cannot";
            // The record is made here only for what fitting it would change.
            taskRecordOf(item, 0, &line.changes);
        } else {
            ++plan.events;
            if (item.start == 0)
                line.problem = "has no date";
            else if (!item.ruleProblem.empty())
                line.problem = item.ruleProblem;
            else if (!PlannerRuleOf(item))
                line.problem = "repeats in a way the planner's events cannot";
            if (item.start != 0) eventRecordOf(item, true, &line.changes);
        }
        if (!line.problem.empty()) ++plan.repeatProblems;
        if (const auto linked = uids.find(item.uid); !item.uid.empty() && linked != uids.end()) {
            line.linkedKind = linked->second.kind;
            line.linkedRow = rowOfId(idsOf(store, linked->second.kind), linked->second.id);
            const CalendarLink* link = links.find(linked->second.kind, linked->second.id);
            line.unchanged = line.linkedRow != 0 && link && link->source == source && link->hash == itemHash(item);
        }
        plan.lines.push_back(std::move(line));
    }
    return plan;
}

ImportResult ApplyImport(RecordStore& store, RecordFiles& files, const ImportPlan& plan, const ImportChoices& choices,
                         CalendarLinks& links, const std::string& source, Date today) {
    ImportResult result;
    RecordWriter writer(store, files);
    for (const ImportLine& line : plan.lines) {
        const CalendarItem& item = plan.items[line.item];
        const bool dateless = !line.byCourse && item.start == 0;
        if (dateless || (!line.problem.empty() && !choices.firstOccurrenceOnly)) {
            ++result.skipped;
            continue;
        }
        LinkedKind kind = LinkedKind::Event;
        std::string classLink;
        if (line.byCourse) {
            const auto chosen = choices.courses.find(line.course);
            const std::string choice = chosen == choices.courses.end() ? kAsTasks : chosen->second;
            if (choice == kSkip) {
                ++result.skipped;
                continue;
            }
            // A deadline or to-do without a due day cannot be an assignment.
            kind = choice == kAsTasks || item.start == 0 ? LinkedKind::Task : LinkedKind::Assignment;
            classLink = choice;
        }
        const int row = line.linkedRow != 0 && line.linkedKind == kind ? line.linkedRow : 0;
        if (row != 0 && line.unchanged) {
            ++result.unchanged;
            continue;
        }
        std::int32_t id = 0;
        switch (kind) {
            case LinkedKind::Event: id = writer.event(item, !line.problem.empty(), row); break;
            case LinkedKind::Task: id = writer.task(item, today, row); break;
            case LinkedKind::Assignment: id = writer.assignment(item, classLink, row); break;
        }
        if (writer.saves.refused) {
            // The drive refused it and would refuse the rest, each with its own message.
            result.writeFailed = true;
            break;
        }
        if (id == 0) {
            ++result.skipped;
            result.full = true;
            continue;
        }
        ++(row == 0 ? result.added : result.updated);
        if (!item.uid.empty()) links.set(kind, id, CalendarLink{item.uid, source, itemHash(item)});
    }
    return result;
}

std::string ImportCountsText(const ImportPlan& plan) {
    const auto count = [](int n, const char* one, const char* many) {
        return std::to_string(n) + " " + (n == 1 ? one : many);
    };
    return count(plan.events, "event", "events") + ", " + count(plan.todos, "to-do", "to-dos") + " and " +
           count(plan.deadlines, "deadline", "deadlines");
}

}  // namespace qh
