#include "recurrence/expansion.h"

#include <algorithm>

#include "recurrence/date_primitives.h"
#include "recurrence/event_rule.h"
#include "recurrence/rule_walk.h"
#include "recurrence/type_colors.h"

namespace qh {

namespace {

void fileOccurrence(EventRows& rows, Int16 index, bool isClass, Date date, std::string_view filter) {
    rows.EventTotal = toInt16(rows.EventTotal + 1);
    if (isClass)
        rows.EventClassCount = toInt16(rows.EventClassCount + 1);
    else
        rows.EventOtherCount = toInt16(rows.EventOtherCount + 1);
    if (eventFilterPasses(filter, isClass)) {
        rows.ListEventRows.append(index);
        rows.ListEventDates.append(date);
    }
}

}  // namespace

Date EventRangeEnd(Date start, std::string_view dateRange) {
    if (dateRange == "Week") return ShiftDate(start, 0, 0, 7);
    if (dateRange == "Month") return addMonths(start, 1);
    return ShiftDate(start, 1, 0, -1);
}

void AddEventOccurrence(EventRows& rows, const RecordStore& store, Int16 index, Date date, std::string_view filter) {
    fileOccurrence(rows, index, store.EventTypes(index) == "Class", date, filter);
}

void ColorEventRows(EventRows& rows, const RecordStore& store) {
    for (int row = rows.ListEventForeColors.count() + 1; row <= rows.ListEventRows.count(); ++row) {
        rows.ListEventForeColors.append(kTypeRowForeColor);
        rows.ListEventBackColors.append(EventTypeBackColor(store.EventTypes(rows.ListEventRows(row))));
    }
}

EventRows ExpandEvents(const RecordStore& store, Date start, std::string_view dateRange, std::string_view filter) {
    EventRows rows;
    const Date rangeStart = start;
    const Date rangeEnd = EventRangeEnd(start, dateRange);
    const int count = store.EventRecordNos.count();
    for (int i = 1; i <= count; ++i) {
        if (store.EventDescriptions(i) == kDeletedRecord) continue;
        const Int16 index = toInt16(i);
        const Date first = dateFromText(store.EventDates(i));
        if (store.EventRecurrences(i) == "None") {
            if (first >= rangeStart && first <= rangeEnd)
                fileOccurrence(rows, index, store.EventTypes(i) == "Class", first, filter);
            continue;
        }
        if (first > rangeEnd) continue;
        const EventRule rule = readEventRule(store, i, first);
        auto add = [&](Date date) { fileOccurrence(rows, index, rule.isClass, date, filter); };
        if (rule.ends && rule.endDate() < rangeStart) continue;
        const Date windowStart = std::max(rule.first, rangeStart);
        const Date windowEnd = (rule.ends && rule.endDate() <= rangeEnd) ? rule.endDate() : rangeEnd;
        auto isPast = [windowEnd](Date candidate) { return candidate > windowEnd; };

        if (rule.recurrence == Recurrence::Day) {
            // The first date is a hit of the single-date test whatever its weekday, so an
            // unticked first date is listed here, once, ahead of the ticked weekdays.
            if (rule.first >= windowStart && rule.first <= windowEnd && rule.dailyLetter(rule.firstWeekday) == 'F')
                add(rule.first);
            walkTickedWeekdays(rule, windowStart, isPast, add);
        } else {
            walkSteppedRule(rule, windowStart, isPast, add);
        }
    }
    ColorEventRows(rows, store);
    return rows;
}

}  // namespace qh
