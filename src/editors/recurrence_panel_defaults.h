#pragma once
// What the event editor's recurrence panel proposes for a date: the ordinal and day of the
// monthly and yearly panels, the weekday box of the weekly panel, and the end date that
// each kind of repetition starts with. Pure functions of the date, so `ShowRecurrencePanel`
// only copies their answers into its controls.
#include <array>
#include <string>
#include <string_view>

#include "common/day_number.h"
#include "recurrence/event_rule.h"

namespace qh {

// The texts of `ComboMonthlyDay` and `ComboYearlyDay`, in list order.
inline constexpr std::array<std::string_view, 8> kRepeatDayChoices = {
    "Day", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"};

// The texts of `ComboMonthlyNumber` and `ComboYearlyNumber`, in list order.
inline constexpr std::array<std::string_view, 5> kRepeatNumberChoices = {"First", "Second", "Third", "Fourth",
                                                                         "Last"};

// The day combo's text for weekday number `weekday` (1 = Sunday .. 7 = Saturday). These
// texts are the stored rule, not words of the host's language, so they never come from
// the locale.
std::string_view RepeatDayName(int weekday);

// The pair the number and day combos take for `date`:
//   - the number by the day of the month: 1..7 "First", 8..14 "Second", 15..21 "Third",
//     22..28 "Fourth", 29..31 "Last";
//   - the day is the date's weekday;
//   - on the last day of its month the pair is "Last" and "Day" instead, whatever the day
//     number (28 or 29 February, 30 April, 31 December).
// Every pair returned passes RuleFitsStartDate for the same date.
struct RepeatOrdinal {
    std::string_view number;
    std::string_view day;
    bool operator==(const RepeatOrdinal&) const = default;
};
RepeatOrdinal RepeatOrdinalFor(Date date);

// The weekday boxes of the weekly panel, Monday first (the order of `EventRepeatDailies`),
// with only the box of the date's own weekday on: what a new date resets them to.
std::array<bool, 7> WeekdayBoxesFor(Date date);

// The end date the editor proposes for a rule first on `first`, by its recurrence: Day
// the first date plus 14 days, Month plus 6 months, Year plus 5 years, each on ShiftDate,
// so a month or year step clamps to a shorter month (31 August + 6 months is 28 or 29
// February; 29 February + 5 years is 28 February of a common year). None, and a kind the
// editor doesn't write, proposes the first date itself.
Date ProposedEndDate(Recurrence recurrence, Date first);

// Whether the visible end-date line (`CheckboxEndDate`, `RadioEndOn`) starts on when
// `ShowRecurrencePanel` sets up a recurrence: on for Day and Month, off for Year (a
// yearly event defaults to no end, though its proposed date is still shown) and for
// None.
bool EndDateStartsOn(Recurrence recurrence);

}  // namespace qh
