#pragma once
// The walk of a recurring rule's own steps, shared by the range expansion and the event
// reminders. Each walk hands every candidate from `windowStart` on to `visit`, and stops
// at the first candidate for which `isPast` holds; candidates grow with every step, so
// nothing after that one can be wanted.
#include <algorithm>

#include "recurrence/date_primitives.h"
#include "recurrence/event_rule.h"

namespace qh {

// The day of the month on which the rule's weekday falls in the run of seven days the
// ordinal names: days 1-7 upward for "First" ... 22-28 for "Fourth", and for "Last" from
// the month's last day downward. 0 for an ordinal the editor doesn't write.
inline int weekdaySearch(int year, int month, int wantedWeekday, Ordinal ordinal) {
    const int lastDay = daysInMonth(year, month);
    if (ordinal == Ordinal::Last) {
        const int lastWeekday = weekdayOf(dateFromYmd(year, month, lastDay));
        return lastDay - ((lastWeekday - wantedWeekday + 7) % 7);
    }
    int runStart = 0;
    switch (ordinal) {
        case Ordinal::First: runStart = 1; break;
        case Ordinal::Second: runStart = 8; break;
        case Ordinal::Third: runStart = 15; break;
        case Ordinal::Fourth: runStart = 22; break;
        default: return 0;
    }
    const int startWeekday = weekdayOf(dateFromYmd(year, month, runStart));
    return runStart + ((wantedWeekday - startWeekday + 7) % 7);
}

// "Month" and "Year" rules step a counter n, and step n starts from the first date plus
// n months or n years (always from the first date itself, so a day shortened in one month
// does not stick). The candidate of the step is that date, the last day of its month, or
// the weekday found in its month, by the rule's columns. A combination the editor can't
// write walks nothing.
//
// The first date is an occurrence whatever the rule says, as the single-date test has it.
// Step 0 lists it where its candidate is some other day: a "Last" weekday rule first on
// day 22..28 of a month that holds a later such weekday has that later day as candidate,
// and lists the first date too, ahead of it. Nothing before the first date is visited,
// since `windowStart` never lies before it.
//
// Every candidate of step n lies in the n-th month (year) after the first date's, so the
// steps whose month (year) lies before that of `windowStart` are passed over without
// being built: a first date centuries back costs no more than one in the range. The step
// counter is a plain int: starting near the window, it never comes close to running out.
template <class IsPast, class Visit>
void walkSteppedRule(const EventRule& rule, Date windowStart, IsPast isPast, Visit visit) {
    const bool monthly = rule.recurrence == Recurrence::Month;
    if (!monthly && rule.recurrence != Recurrence::Year) return;
    enum class Pick { Base, LastDay, Weekday } pick;
    if (rule.sameDate == SameDate::True)
        pick = Pick::Base;
    else if (rule.sameDate != SameDate::False)
        return;
    else if (rule.repeatDayIsDay)
        pick = rule.ordinal == Ordinal::Last ? Pick::LastDay : Pick::Base;
    else if (rule.ordinal == Ordinal::Other)
        return;
    else
        pick = Pick::Weekday;

    const Ymd from = ymdOf(windowStart);
    const int firstStep = monthly ? (from.year * 12 + from.month) - (rule.firstYmd.year * 12 + rule.firstYmd.month)
                                  : from.year - rule.firstYmd.year;
    for (int n = std::max(0, firstStep);; ++n) {
        const Date base = monthly ? addMonths(rule.first, n) : addYears(rule.first, n);
        Date candidate = base;
        if (pick != Pick::Base) {
            const Ymd ymd = ymdOf(base);
            const int day = pick == Pick::LastDay ? daysInMonth(ymd.year, ymd.month)
                                                  : weekdaySearch(ymd.year, ymd.month, rule.repeatWeekday, rule.ordinal);
            candidate = dateFromYmd(ymd.year, ymd.month, day);
        }
        if (n == 0 && candidate != rule.first && rule.first >= windowStart) {
            if (isPast(rule.first)) return;
            visit(rule.first);
        }
        if (candidate < windowStart) continue;
        if (isPast(candidate)) return;
        visit(candidate);
    }
}

// The ticked weekdays of a "Day" rule: for each of the seven days from `windowStart`
// whose letter is "T", that day and every seventh day after it. Rows therefore come
// weekday by weekday, not in date order. The first date on an unticked weekday is the
// caller's to add.
template <class IsPast, class Visit>
void walkTickedWeekdays(const EventRule& rule, Date windowStart, IsPast isPast, Visit visit) {
    for (int i = 0; i < 7; ++i) {
        const Date day = windowStart + i;
        if (rule.dailyLetter(weekdayOf(day)) != 'T') continue;
        for (Date candidate = day; !isPast(candidate); candidate += 7) visit(candidate);
    }
}

}  // namespace qh
