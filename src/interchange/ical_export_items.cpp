#include "interchange/ical_export_items.h"

#include <unordered_map>

#include "common/flag_text.h"
#include "common/int16.h"
#include "interchange/event_repetition.h"
#include "record_store/clock_text.h"
#include "recurrence/event_rule.h"
#include "recurrence/reminders.h"
#include "recurrence/type_colors.h"

namespace qh {
namespace {

// The advance notice of a reminder text, in days before the date; nothing for "None".
std::optional<int> alarmOf(std::string_view reminder) {
    const int offset = ReminderOffset(reminder);
    if (offset == 0) return std::nullopt;
    return -offset;
}

// A type is a category unless it is the "None" the editors start with.
std::vector<std::string> categoriesOf(std::initializer_list<std::string_view> names) {
    std::vector<std::string> out;
    for (std::string_view name : names)
        if (!name.empty() && name != "None") out.emplace_back(name);
    return out;
}

// A type's row colour as the item's colour; the plain white of an unlisted type is none.
std::string colorOf(const char* typeColor) {
    return std::string_view(typeColor) == "White" ? std::string() : std::string(typeColor);
}

void addEvents(const RecordStore& store, CalendarLinks& links, const std::function<std::string()>& makeUid,
               ICalendarItems& out) {
    for (int i = 1; i <= store.EventRecordNos.count(); ++i) {
        if (store.EventDescriptions(i) == kDeletedRecord) continue;
        const std::optional<Date> first = parseDateText(store.EventDates(i));
        if (!first) continue;
        const EventRule rule = readEventRule(store, i, *first);
        const EventRepetition repetition = RepetitionOf(rule);
        CalendarItem item;
        item.kind = CalendarItemKind::Event;
        item.uid = links.uidOf(LinkedKind::Event, int16OrZero(store.EventIDs(i)), makeUid);
        item.summary = store.EventDescriptions(i);
        item.description = store.EventNotes(i);
        item.categories = categoriesOf({store.EventTypes(i)});
        item.color = colorOf(EventTypeBackColor(store.EventTypes(i)));
        item.start = repetition.start;
        item.startMinutes = MinutesOfClockText(store.EventTimes(i));
        item.rule = repetition.rule;
        item.extraDates = repetition.extraDates;
        item.alarmDaysBefore = alarmOf(store.EventReminders(i));
        out.items.push_back(std::move(item));
        ++out.events;
    }
}

void addTasks(const RecordStore& store, CalendarLinks& links, const std::function<std::string()>& makeUid,
              ICalendarItems& out) {
    for (int i = 1; i <= store.TaskRecordNos.count(); ++i) {
        if (store.TaskDescriptions(i) == kDeletedRecord) continue;
        // A task without a date is a to-do without a due day; one whose date cannot be
        // read is left out rather than given a day it does not have.
        const bool dated = isTrueFlag(store.TaskDateExists(i));
        const std::optional<Date> due = dated ? parseDateText(store.TaskDates(i)) : std::nullopt;
        if (dated && !due) continue;
        CalendarItem item;
        item.kind = CalendarItemKind::Todo;
        item.uid = links.uidOf(LinkedKind::Task, int16OrZero(store.TaskIDs(i)), makeUid);
        item.summary = store.TaskDescriptions(i);
        item.description = store.TaskNotes(i);
        item.categories = categoriesOf({store.TaskTypes(i)});
        item.color = colorOf(TaskTypeBackColor(store.TaskTypes(i)));
        item.start = due.value_or(0);
        item.done = isTrueFlag(store.TaskDones(i));
        item.priority = CalendarPriorityOf(store.TaskPriorities(i));
        if (due) item.alarmDaysBefore = alarmOf(store.TaskReminders(i));
        out.items.push_back(std::move(item));
        ++out.tasks;
    }
}

void addAssignments(const RecordStore& store, bool asEvents, CalendarLinks& links,
                    const std::function<std::string()>& makeUid, ICalendarItems& out) {
    // The first class of each ID, looked up once rather than once per assignment.
    std::unordered_map<Int16, int> classRows;
    for (int c = store.ClassIDs.count(); c >= 1; --c) classRows[int16OrZero(store.ClassIDs(c))] = c;
    for (int i = 1; i <= store.AssignmentRecordNos.count(); ++i) {
        if (store.AssignmentDescriptions(i) == kDeletedRecord) continue;
        const std::optional<Date> due = parseDateText(store.AssignmentDates(i));
        if (!due) continue;
        std::string className, classColor;
        if (const auto found = classRows.find(int16OrZero(store.AssignmentClassLinks(i))); found != classRows.end()) {
            className = store.ClassNames(found->second);
            classColor = store.ClassBackColors(found->second);
        }
        CalendarItem item;
        item.kind = asEvents ? CalendarItemKind::Event : CalendarItemKind::Todo;
        item.uid = links.uidOf(LinkedKind::Assignment, int16OrZero(store.AssignmentIDs(i)), makeUid);
        item.summary = store.AssignmentDescriptions(i);
        item.categories = categoriesOf({className, store.AssignmentTypes(i)});
        item.color = classColor == "White" ? std::string() : classColor;
        item.start = *due;
        item.done = isTrueFlag(store.AssignmentDones(i));
        item.alarmDaysBefore = alarmOf(store.AssignmentReminders(i));
        out.items.push_back(std::move(item));
        ++out.assignments;
    }
}

}  // namespace

int CalendarPriorityOf(std::string_view priority) {
    if (priority == "High") return 1;
    if (priority == "Medium") return 5;
    if (priority == "Low") return 9;
    return 0;
}

ICalendarItems CalendarItemsOf(const RecordStore& store, const ICalendarChoice& choice, CalendarLinks& links,
                               const std::function<std::string()>& makeUid) {
    ICalendarItems out;
    if (choice.events) addEvents(store, links, makeUid, out);
    if (choice.tasks) addTasks(store, links, makeUid, out);
    if (choice.assignments) addAssignments(store, choice.assignmentsAsEvents, links, makeUid, out);
    return out;
}

}  // namespace qh
