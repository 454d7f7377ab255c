#pragma once
// Whether an ordinal rule of the event editor ("Second" "Tuesday", "Last" "Day") recurs on
// the day it starts on. The editor refuses a rule that doesn't, so that every stored rule
// has its first date among its own days.
#include <string_view>

#include "common/day_number.h"

namespace qh {

// The fit of the number combo's text `repeatNumber` and the day combo's text `repeatDay`
// to the start date `start` (D its day of the month). It applies to a monthly or yearly
// rule whose "User" radio is on; the caller does not ask it of a same-date rule.
//
// With `repeatDay` "Day" the rule names a day of the month: "First" needs D = 1,
// "Second" 2, "Third" 3, "Fourth" 4, "Last" the month's last day (28 or 29 in February).
//
// With a weekday name the start date must fall on that weekday, and D must lie in the
// number's run of days: "First" 1..7, "Second" 8..14, "Third" 15..21, "Fourth" 22..28,
// "Last" 22..31. So "Last" passes on day 22..28 even when a later such weekday follows in
// the month (the first date then counts as an occurrence of its own), and "Fourth" never
// passes on day 29 or later.
//
// A number text the combos don't hold passes a "Day" rule (no test names it) and fails a
// weekday rule (no run admits it); a day text that is neither "Day" nor a weekday name of
// the combo fails the weekday test.
bool RuleFitsStartDate(std::string_view repeatNumber, std::string_view repeatDay, Date start);

}  // namespace qh
