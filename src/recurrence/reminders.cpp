#include "recurrence/reminders.h"

#include <unordered_map>
#include <vector>

#include "common/flag_text.h"
#include "common/text.h"
#include "recurrence/date_primitives.h"
#include "recurrence/event_rule.h"
#include "recurrence/rule_walk.h"
#include "recurrence/type_colors.h"

namespace qh {

namespace {

void countOne(Int16& counter) { counter = toInt16(counter + 1); }

void appendRow(ReminderRows& rows, int index, const char* kind, const std::string& type,
               const std::string& description, int days, Date date) {
    rows.ReminderRecords.append(toInt16(index));
    rows.ReminderKinds.append(kind);
    rows.ReminderTypes.append(type);
    rows.ReminderDescriptions.append(description);
    rows.ReminderDays.append(days);
    rows.ReminderDates.append(date);
}

}  // namespace

Int16 ReminderOffset(std::string_view reminderText) {
    const auto number = parseInt16(trim(reminderText.substr(0, 2)));
    return number ? toInt16(-*number) : Int16{0};
}

ReminderRows GatherReminders(const RecordStore& store, Date date, std::string_view filter) {
    ReminderRows rows;
    GatherTaskReminders(store, date, filter, rows);
    GatherHomeworkReminders(store, date, filter, rows);
    GatherEventReminders(store, date, filter, rows);
    return rows;
}

void GatherTaskReminders(const RecordStore& store, Date date, std::string_view filter, ReminderRows& rows) {
    const int count = store.TaskRecordNos.count();
    for (int i = 1; i <= count; ++i) {
        if (!isTrueFlag(store.TaskDateExists(i)) || store.TaskDescriptions(i) == kDeletedRecord ||
            !isFalseFlag(store.TaskDones(i)))
            continue;
        const Date taskDate = dateFromText(store.TaskDates(i));
        // No upper bound: an undone task stays, with negative days, until it is done.
        if (date < taskDate + ReminderOffset(store.TaskReminders(i))) continue;
        countOne(rows.TaskReminderCount);
        if (filter != "Tasks" && filter != "All") continue;
        appendRow(rows, i, "Task", store.TaskTypes(i), store.TaskDescriptions(i), DaysBetween(date, taskDate), taskDate);
        rows.ReminderClasses.append("");
        rows.ReminderForeColors.append(kTypeRowForeColor);
        rows.ReminderBackColors.append(TaskTypeBackColor(store.TaskTypes(i)));
    }
}

void GatherHomeworkReminders(const RecordStore& store, Date date, std::string_view filter, ReminderRows& rows) {
    // The class rows of each class ID, in row order: a reminder takes the name and colours
    // of every class row with its link, as a walk over all classes would, without the walk.
    std::unordered_map<Int16, std::vector<int>> classRowsById;
    for (int c = 1; c <= store.ClassIDs.count(); ++c) classRowsById[int16OrZero(store.ClassIDs(c))].push_back(c);
    const std::vector<int> noClass;
    const int count = store.AssignmentRecordNos.count();
    for (int i = 1; i <= count; ++i) {
        if (store.AssignmentDescriptions(i) == kDeletedRecord || !isFalseFlag(store.AssignmentDones(i))) continue;
        const Date dueDate = dateFromText(store.AssignmentDates(i));
        if (date < dueDate + ReminderOffset(store.AssignmentReminders(i))) continue;
        countOne(rows.HomeworkReminderCount);
        if (filter != "Homework" && filter != "All") continue;
        appendRow(rows, i, "Homework", store.AssignmentTypes(i), store.AssignmentDescriptions(i),
                  DaysBetween(date, dueDate), dueDate);
        const auto found = classRowsById.find(int16OrZero(store.AssignmentClassLinks(i)));
        for (int c : found == classRowsById.end() ? noClass : found->second) {
            rows.ReminderClasses.append(store.ClassNames(c));
            rows.ReminderForeColors.append(store.ClassForeColors(c));
            rows.ReminderBackColors.append(store.ClassBackColors(c));
        }
    }
}

void AddEventReminder(ReminderRows& rows, const RecordStore& store, Int16 index, Date date, Date occurrence,
                      std::string_view filter) {
    countOne(rows.EventReminderCount);
    if (filter != "Events" && filter != "All") return;
    appendRow(rows, index, "Event", store.EventTypes(index), store.EventDescriptions(index),
              DaysBetween(date, occurrence), occurrence);
    rows.ReminderClasses.append("");
    rows.ReminderForeColors.append(kTypeRowForeColor);
    rows.ReminderBackColors.append(EventTypeBackColor(store.EventTypes(index)));
}

void GatherEventReminders(const RecordStore& store, Date date, std::string_view filter, ReminderRows& rows) {
    const int count = store.EventRecordNos.count();
    for (int i = 1; i <= count; ++i) {
        if (store.EventDescriptions(i) == kDeletedRecord) continue;
        const Date first = dateFromText(store.EventDates(i));
        const int offset = ReminderOffset(store.EventReminders(i));  // 0 or negative
        const Int16 index = toInt16(i);
        auto add = [&](Date occurrence) { AddEventReminder(rows, store, index, date, occurrence, filter); };
        // Unlike tasks and homework, an event is only reminded of ahead of time: from its
        // reminder date up to its own date, and not the day after.
        const bool firstIsDue = first >= date && first + offset <= date;

        if (store.EventRecurrences(i) == "None") {
            if (firstIsDue) add(first);
            continue;
        }
        if (date < first + offset) continue;
        const EventRule rule = readEventRule(store, i, first);
        if (rule.ends && rule.endDate() < date) continue;
        const Date windowStart = date < rule.first ? rule.first : date;
        const Date windowEnd = (rule.ends && rule.endDate() + offset <= date) ? rule.endDate() + offset : date;
        // A candidate is past when its own reminder date is after the window's end.
        auto isPast = [windowEnd, offset](Date candidate) { return DaysBetween(candidate, windowEnd) < offset; };

        if (rule.recurrence == Recurrence::Day) {
            if (firstIsDue && rule.dailyLetter(rule.firstWeekday) == 'F') add(rule.first);
            walkTickedWeekdays(rule, windowStart, isPast, add);
        } else {
            walkSteppedRule(rule, windowStart, isPast, add);
        }
    }
}

}  // namespace qh
