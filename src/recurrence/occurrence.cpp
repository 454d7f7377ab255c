#include "recurrence/occurrence.h"

#include <algorithm>
#include <array>

#include "recurrence/date_primitives.h"

namespace qh {

namespace {

constexpr int kCalendarCells = 42;
constexpr const char* kColorTintBlue = "&HF0E8E2";
constexpr const char* kColorTintGreen = "&HE2F7E1";
constexpr const char* kColorTintTan = "&HD7EBFA";

}  // namespace

CalendarDay calendarDay(Date date) {
    CalendarDay day;
    day.date = date;
    day.ymd = ymdOf(date);
    day.weekday = weekdayOf(date);
    day.lastDay = daysInMonth(day.ymd.year, day.ymd.month);
    return day;
}

namespace {

// Day number d fits the ordinal when the rule names a day of the month ("Day"):
// the first four days, or the month's last day.
bool dayNumberFits(Ordinal ordinal, const CalendarDay& day) {
    const int d = day.ymd.day;
    switch (ordinal) {
        case Ordinal::First: return d == 1;
        case Ordinal::Second: return d == 2;
        case Ordinal::Third: return d == 3;
        case Ordinal::Fourth: return d == 4;
        case Ordinal::Last: return d == day.lastDay;
        case Ordinal::Other: return false;
    }
    return false;
}

// The runs of seven days in which the n-th weekday of a month falls; "Last" is the last
// seven days, so in a 28-day February it names the same days as "Fourth".
bool weekdayRunFits(Ordinal ordinal, const CalendarDay& day) {
    const int d = day.ymd.day;
    switch (ordinal) {
        case Ordinal::First: return d >= 1 && d <= 7;
        case Ordinal::Second: return d >= 8 && d <= 14;
        case Ordinal::Third: return d >= 15 && d <= 21;
        case Ordinal::Fourth: return d >= 22 && d <= 28;
        case Ordinal::Last: return d >= day.lastDay - 6;
        case Ordinal::Other: return false;
    }
    return false;
}

}  // namespace

bool occursOn(const EventRule& rule, const CalendarDay& day) {
    if (rule.deleted) return false;
    // The first date is a hit before anything else is asked, so an event always shows on
    // the day it was entered for, whatever its rule or end date says.
    if (day.date == rule.first) return true;
    if (rule.recurrence == Recurrence::None) return false;
    if (day.date < rule.first) return false;
    if (rule.ends && day.date > rule.endDate()) return false;

    if (rule.recurrence == Recurrence::Day) return rule.dailyLetter(day.weekday) == 'T';

    // "Month" and "Year"; any other recurrence text reads as "Month".
    if (rule.sameDate == SameDate::True) {
        const int firstDay = rule.firstYmd.day;
        const int d = day.ymd.day;
        // A day past the 28th moves to the month's last day where the month is shorter:
        // the 31st falls on 30 April, 29 February on the 28th in a common year.
        const bool moved = d == day.lastDay && firstDay > 28 && d < firstDay;
        if (d != firstDay && !moved) return false;
    }
    if (rule.sameDate == SameDate::False) {
        if (rule.repeatDayIsDay) {
            if (!dayNumberFits(rule.ordinal, day)) return false;
        } else {
            // The weekday is the first date's: the editor makes it the one named.
            if (day.weekday != rule.firstWeekday) return false;
            if (!weekdayRunFits(rule.ordinal, day)) return false;
        }
    }
    // The month is tested last, after the day tests.
    if (rule.recurrence == Recurrence::Year && day.ymd.month != rule.firstYmd.month) return false;
    return true;
}

bool EventOccursOn(const RecordStore& store, Date date, Int16 index) {
    if (store.EventDescriptions(index) == kDeletedRecord) return false;
    return occursOn(readEventRule(store, index), calendarDay(date));
}

EventDayMarks MarkEventDays(const RecordStore& store, Date firstCell, std::string_view filter) {
    EventDayMarks marks;
    marks.ColorMarkedBack = filter == "All" ? kColorTintBlue : filter == "Classes" ? kColorTintTan : kColorTintGreen;
    const int count = store.EventRecordNos.count();

    // Pass one: one-off events mark their own day.
    for (int i = 1; i <= count; ++i) {
        if (store.EventRecurrences(i) != "None") continue;
        const int k = DaysBetween(firstCell, dateFromText(store.EventDates(i)));
        if (k >= 0 && k < kCalendarCells && store.EventDescriptions(i) != kDeletedRecord &&
            eventFilterPasses(filter, store.EventTypes(i) == "Class"))
            marks.CellMarked[std::size_t(k)] = true;
    }

    // Pass two: every recurring event against every cell not marked yet.
    std::array<CalendarDay, kCalendarCells> cells;
    for (int c = 0; c < kCalendarCells; ++c) cells[std::size_t(c)] = calendarDay(firstCell + c);
    const Date lastCell = firstCell + kCalendarCells - 1;
    int unmarked = 0;
    for (bool marked : marks.CellMarked) unmarked += marked ? 0 : 1;
    for (int i = 1; i <= count && unmarked > 0; ++i) {
        if (store.EventRecurrences(i) == "None" || store.EventDescriptions(i) == kDeletedRecord) continue;
        // No hit lies before the first date, nor after a readable end date unless it is
        // the first date itself: the cells outside those bounds need no test.
        const Date first = dateFromText(store.EventDates(i));
        if (first > lastCell) continue;
        const EventRule rule = readEventRule(store, i, first);
        const bool passes = eventFilterPasses(filter, rule.isClass);
        const Date from = std::max(firstCell, rule.first);
        Date to = lastCell;
        if (rule.ends && rule.readableEnd) to = std::min(lastCell, std::max(*rule.readableEnd, rule.first));
        for (Date date = from; date <= to; ++date) {
            const std::size_t c = std::size_t(date - firstCell);
            if (marks.CellMarked[c]) continue;
            if (occursOn(rule, cells[c]) && passes) {
                marks.CellMarked[c] = true;
                --unmarked;
            }
        }
    }
    return marks;
}

}  // namespace qh
