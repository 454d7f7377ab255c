#pragma once
// The four calendar operations every recurrence rule is built from, on top of the day
// numbers of common/day_number.h:
//
//   - DaysBetween(a, b): b minus a in whole days.
//   - addMonths / addYears (common/day_number.h): the day is kept and clamped to the
//     target month's last day; always shift from the unshifted date, never from a date
//     that was itself shifted, or a shortened day (31 -> 28) would stick.
//   - dateSerial (common/day_number.h): year, month, day with overflow carried.
//   - weekdayOf (common/day_number.h): 1 = Sunday .. 7 = Saturday, whatever day the
//     calendar's week starts on.
//
// Dates outside the years 100..9999 are the untrapped "Overflow".
#include "common/day_number.h"
#include "common/int16.h"

namespace qh {

// b minus a, in whole days: negative when b lies before a.
constexpr int DaysBetween(Date a, Date b) { return b - a; }

// The day number of the month's last day: the day of the date built from
// (year, month + 1, 0). A month outside 1..12 carries into the neighbouring years as
// dateSerial does, so month 13 of 2026 answers for January 2027.
Int16 LastDayOfMonth(Int16 year, Int16 month);

// Adds the years, then the months, then the days, in that order; any amount may be
// negative. ShiftDate(d, 1, 0, -1) is one day short of a year on: from 29 February 2024
// that is 27 February 2025, since the year step lands on the 28th first.
Date ShiftDate(Date date, Int16 years, Int16 months, Int16 days);

}  // namespace qh
