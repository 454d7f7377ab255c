#include "interchange/event_repetition.h"

#include <algorithm>

#include "common/flag_text.h"
#include "recurrence/occurrence.h"

namespace qh {
namespace {

// The first date the planner's rule gives after `after`, within eight years (enough for a
// 29 February or a yearly rule); nothing when the rule gives none there.
std::optional<Date> nextOccurrence(const EventRule& rule, Date after) {
    Date last = after + 8 * 366;
    if (rule.readableEnd) last = std::min(last, *rule.readableEnd);
    for (Date date = after + 1; date <= last; ++date)
        if (occursOn(rule, calendarDay(date))) return date;
    return std::nullopt;
}

int ordinalNumber(Ordinal ordinal) {
    switch (ordinal) {
        case Ordinal::First: return 1;
        case Ordinal::Second: return 2;
        case Ordinal::Third: return 3;
        case Ordinal::Fourth: return 4;
        case Ordinal::Last: return -1;
        case Ordinal::Other: return 0;
    }
    return 0;
}

// The calendar rule of a "Month" or "Year" rule; frequency None where the planner's rule
// gives nothing beyond the first date.
CalendarRule steppedRule(const EventRule& rule) {
    CalendarRule out;
    if (rule.sameDate == SameDate::True) {
        const int day = rule.firstYmd.day;
        if (day <= 28) {
            out.monthDays = {day};
        } else if (day == 31) {
            out.monthDays = {-1};
        } else {
            // The 29th or 30th, or the shorter month's last day: the last of the days from
            // the 28th to it that the month has.
            for (int d = 28; d <= day; ++d) out.monthDays.push_back(d);
            out.setPosition = -1;
        }
    } else if (rule.sameDate == SameDate::False) {
        const int n = ordinalNumber(rule.ordinal);
        if (n == 0) return out;
        if (rule.repeatDayIsDay) {
            out.monthDays = {n};
        } else {
            out.ordinal = n;
            out.ordinalWeekday = rule.firstWeekday;
        }
    } else {
        return out;
    }
    out.frequency = rule.recurrence == Recurrence::Year ? RepeatFrequency::Yearly : RepeatFrequency::Monthly;
    if (out.frequency == RepeatFrequency::Yearly) out.month = rule.firstYmd.month;
    return out;
}

CalendarRule calendarRuleOf(const EventRule& rule) {
    switch (rule.recurrence) {
        case Recurrence::Day: {
            CalendarRule out;
            for (int weekday = 1; weekday <= 7; ++weekday)
                if (rule.dailyLetter(weekday) == 'T') out.weekdays.push_back(weekday);
            if (!out.weekdays.empty()) out.frequency = RepeatFrequency::Weekly;
            return out;
        }
        case Recurrence::Month:
        case Recurrence::Year: return steppedRule(rule);
        case Recurrence::None:
        case Recurrence::Other: return {};
    }
    return {};
}

}  // namespace

namespace {

// The days a rule of listed month days picks in a month of `length` days, in order.
std::vector<int> chosenDays(const CalendarRule& rule, int length) {
    std::vector<int> days;
    for (int d : rule.monthDays) {
        const int day = d < 0 ? length + 1 + d : d;
        if (day >= 1 && day <= length) days.push_back(day);
    }
    std::sort(days.begin(), days.end());
    days.erase(std::unique(days.begin(), days.end()), days.end());
    if (rule.setPosition == -1 && !days.empty()) return {days.back()};
    return days;
}

// Whether two rules give the same days, however each is written: the last day of a month
// and its 31st are one day in January, the last of the 28th to the 30th and the 30th one
// day in all but February.
bool sameDays(const CalendarRule& a, const CalendarRule& b) {
    if (a.frequency != b.frequency || a.until != b.until) return false;
    switch (a.frequency) {
        case RepeatFrequency::None: return true;
        case RepeatFrequency::Weekly: return a.weekdays == b.weekdays;
        case RepeatFrequency::Monthly:
        case RepeatFrequency::Yearly: break;
    }
    if (a.month != b.month || a.ordinal != b.ordinal) return false;
    if (a.ordinal != 0) return a.ordinalWeekday == b.ordinalWeekday && a.monthDays.empty() && b.monthDays.empty();
    const bool yearly = a.frequency == RepeatFrequency::Yearly;
    for (int length = 28; length <= 31; ++length) {
        // A yearly rule meets only its own month's lengths.
        if (yearly && !(a.month == 2 ? length <= 29 : length == daysInMonth(2001, a.month))) continue;
        if (chosenDays(a, length) != chosenDays(b, length)) return false;
    }
    return true;
}

}  // namespace

bool RulePatternHolds(const CalendarRule& rule, Date date) {
    const Ymd ymd = ymdOf(date);
    const int weekday = weekdayOf(date);
    switch (rule.frequency) {
        case RepeatFrequency::None: return false;
        case RepeatFrequency::Weekly:
            return std::find(rule.weekdays.begin(), rule.weekdays.end(), weekday) != rule.weekdays.end();
        case RepeatFrequency::Monthly:
        case RepeatFrequency::Yearly: break;
    }
    if (rule.frequency == RepeatFrequency::Yearly && ymd.month != rule.month) return false;
    const int lastDay = daysInMonth(ymd.year, ymd.month);
    if (rule.ordinal != 0) {
        if (weekday != rule.ordinalWeekday) return false;
        if (rule.ordinal == -1) return ymd.day > lastDay - 7;
        return (ymd.day - 1) / 7 + 1 == rule.ordinal;
    }
    const std::vector<int> days = chosenDays(rule, lastDay);
    return std::find(days.begin(), days.end(), ymd.day) != days.end();
}

EventRepetition RepetitionOf(const EventRule& rule) {
    EventRepetition out;
    out.start = rule.first;
    if (rule.ends && !rule.readableEnd) return out;
    CalendarRule calendar = calendarRuleOf(rule);
    if (calendar.frequency == RepeatFrequency::None) return out;
    if (rule.ends) calendar.until = *rule.readableEnd;
    if (RulePatternHolds(calendar, rule.first)) {
        if (!nextOccurrence(rule, rule.first)) return out;
        out.rule = calendar;
        return out;
    }
    const std::optional<Date> next = nextOccurrence(rule, rule.first);
    if (!next) return out;
    out.start = *next;
    out.rule = calendar;
    out.extraDates = {rule.first};
    return out;
}

namespace {

// A rule as the file may leave it, with what it takes from its start made explicit, as
// the writer above always writes it.
CalendarRule explicitRule(CalendarRule rule, Date start) {
    const Ymd ymd = ymdOf(start);
    switch (rule.frequency) {
        case RepeatFrequency::None: return rule;
        case RepeatFrequency::Weekly:
            if (rule.weekdays.empty()) rule.weekdays = {weekdayOf(start)};
            break;
        case RepeatFrequency::Yearly:
            if (rule.month == 0) rule.month = ymd.month;
            [[fallthrough]];
        case RepeatFrequency::Monthly:
            if (rule.ordinal == 0 && rule.monthDays.empty()) rule.monthDays = {ymd.day};
            break;
    }
    std::sort(rule.weekdays.begin(), rule.weekdays.end());
    rule.weekdays.erase(std::unique(rule.weekdays.begin(), rule.weekdays.end()), rule.weekdays.end());
    return rule;
}

constexpr const char* kWeekdayNames[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};

std::vector<PlannerRule> candidatesFor(const CalendarRule& rule, Date first) {
    PlannerRule base;
    base.first = first;
    base.endDate = first;
    if (rule.until) {
        base.end = flagText(true);
        base.endDate = *rule.until;
    }
    std::vector<PlannerRule> out;
    if (rule.frequency == RepeatFrequency::Weekly) {
        PlannerRule weekly = base;
        weekly.recurrence = "Day";
        // The letters run Monday first, Sunday last.
        for (int position = 0; position < 7; ++position) {
            const int weekday = position == 6 ? 1 : position + 2;
            const bool ticked = std::find(rule.weekdays.begin(), rule.weekdays.end(), weekday) != rule.weekdays.end();
            weekly.repeatDaily[std::size_t(position)] = ticked ? 'T' : 'F';
        }
        out.push_back(weekly);
        return out;
    }
    base.recurrence = rule.frequency == RepeatFrequency::Yearly ? "Year" : "Month";
    out.push_back(base);
    for (const char* number : {"First", "Second", "Third", "Fourth", "Last"})
        for (const char* day : {"Day", kWeekdayNames[weekdayOf(first) - 1]}) {
            PlannerRule ordinal = base;
            ordinal.sameDate = flagText(false);
            ordinal.repeatNumber = number;
            ordinal.repeatDay = day;
            out.push_back(ordinal);
        }
    return out;
}

}  // namespace

void PutRule(const PlannerRule& rule, EventBuffer& record) {
    record.Date = dateText(rule.first);
    record.Recurrence = rule.recurrence;
    record.SameDate = rule.sameDate;
    record.RepeatNumber = rule.repeatNumber;
    record.RepeatDay = rule.repeatDay;
    record.RepeatDaily = rule.repeatDaily;
    record.End = rule.end;
    record.EndDate = dateText(rule.endDate);
}

std::optional<PlannerRule> PlannerRuleOf(const CalendarItem& item) {
    const CalendarRule rule = explicitRule(item.rule, item.start);
    if (rule.frequency == RepeatFrequency::None) {
        if (!item.extraDates.empty()) return std::nullopt;
        PlannerRule once;
        once.first = once.endDate = item.start;
        return once;
    }
    // A first date the rule does not give is listed apart, before the rule's start.
    Date first = item.start;
    if (item.extraDates.size() > 1) return std::nullopt;
    if (item.extraDates.size() == 1) {
        if (item.extraDates.front() >= item.start) return std::nullopt;
        first = item.extraDates.front();
    }
    for (const PlannerRule& candidate : candidatesFor(rule, first)) {
        EventBuffer record;
        record.Type = "None";
        PutRule(candidate, record);
        const EventRepetition repetition = RepetitionOf(readEventRule(record, first));
        if (repetition.start == item.start && sameDays(repetition.rule, rule) &&
            repetition.extraDates == item.extraDates)
            return candidate;
    }
    return std::nullopt;
}

}  // namespace qh
