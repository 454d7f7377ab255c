#pragma once
// Whether an Event falls on a date, and the event marks of the month calendar.
//
// An Event is stored once, with its first date and its rule; no occurrence is stored.
// The single-date test here, the range walk of expansion.h and the reminder walk of
// reminders.h must agree on the dates of every rule the event editor can make. The first
// date is an occurrence in all of them, also where the rule alone would not give it (a
// "Last" weekday rule first on day 22..28 of a month that holds a later such weekday).
#include <array>
#include <string>
#include <string_view>

#include "common/int16.h"
#include "recurrence/event_rule.h"
#include "record_store/columns.h"

namespace qh {

// A date with the parts the test compares, worked out once per date.
struct CalendarDay {
    Date date = 0;
    Ymd ymd{};
    int weekday = 1;  // 1 = Sunday
    int lastDay = 31; // last day of the date's month
};
CalendarDay calendarDay(Date date);

// The occurrence test on a rule already read. Its steps, in an order that matters:
// a deleted record is never a hit; the first date always is (also on an unticked weekday
// or after the end date); "None" hits nothing else; nothing before the first date or
// after an end date (the end date itself may hit); "Day" hits the ticked weekdays;
// "Month" and "Year" (and any other text, taken as "Month") test the day of the month
// and then, for "Year", that the month is the first date's month.
bool occursOn(const EventRule& rule, const CalendarDay& day);

// EventHit of the Event at row `index` (1-based) for `date`.
bool EventOccursOn(const RecordStore& store, Date date, Int16 index);

// The 42 cells of the month calendar in Events mode: cell 0 is the first cell, cell d the
// cell d days later; `ColorMarkedBack` is the tint of a marked cell (a colour text).
struct EventDayMarks {
    std::array<bool, 42> CellMarked{};
    std::string ColorMarkedBack;
};

// The calendar marks in Events mode. `firstCell` is the date of cell 0, `filter` the text
// of `ComboList` ("All", "Classes", "Other Events"). The tint is blue for "All", tan for
// "Classes" and green for anything else. One-off events mark their own day; then every
// recurring event is tested against each cell not yet marked, in record order.
EventDayMarks MarkEventDays(const RecordStore& store, Date firstCell, std::string_view filter);

}  // namespace qh
