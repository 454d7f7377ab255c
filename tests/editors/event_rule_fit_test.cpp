#include "editors/event_rule_fit.h"

#include <gtest/gtest.h>

#include "editors/recurrence_panel_defaults.h"

namespace qh {
namespace {

const char* const kNumbers[] = {"First", "Second", "Third", "Fourth", "Last"};

// The weekday rules where two number words fit (the fourth run, when the month has a later
// same weekday) and on a month's last day, each date with its own weekday; the proposal
// test below pins every other date. `fits` has one letter per number word, First to Last:
// 'y' the rule fits, '-' it is refused.
TEST(RuleFitsStartDate, WeekdayRulesOnTheBoundariesOfTheSevenDayRuns) {
    const struct {
        const char* name;
        Ymd date;
        const char* weekday;
        const char* fits;
    } rows[] = {
        {"day 22, fourth run, a later Sunday follows", {2026, 3, 22}, "Sunday", "---yy"},
        {"day 28, fourth run", {2026, 3, 28}, "Saturday", "---yy"},
        {"day 31", {2026, 3, 31}, "Tuesday", "----y"},
        {"29 February, a leap year's last day", {2024, 2, 29}, "Thursday", "----y"},
        {"28 February of a common year", {2026, 2, 28}, "Saturday", "---yy"},
    };
    for (const auto& row : rows) {
        const Date date = dateFromYmd(row.date.year, row.date.month, row.date.day);
        for (int n = 0; n < 5; ++n) {
            SCOPED_TRACE(std::string(row.name) + ": " + kNumbers[n] + " " + row.weekday);
            EXPECT_EQ(RuleFitsStartDate(kNumbers[n], row.weekday, date), row.fits[n] == 'y');
        }
    }
}

// "Day" rules name days 1 to 4 and the month's last day, looked up in the date's own month
// and year; a weekday rule must name the start date's own weekday.
TEST(RuleFitsStartDate, DayRulesNameTheFirstFourDaysOrTheLastAndWeekdayRulesTheDatesWeekday) {
    const struct {
        const char* name;
        const char* number;
        const char* day;
        Ymd date;
        bool fits;
    } rows[] = {
        {"First on the 1st", "First", "Day", {2026, 3, 1}, true},
        {"First on the 8th", "First", "Day", {2026, 3, 8}, false},
        {"Second on the 2nd", "Second", "Day", {2026, 3, 2}, true},
        {"Second on the 1st", "Second", "Day", {2026, 3, 1}, false},
        {"Third on the 3rd", "Third", "Day", {2026, 3, 3}, true},
        {"Fourth on the 4th", "Fourth", "Day", {2026, 6, 4}, true},
        {"Fourth on the 22nd", "Fourth", "Day", {2026, 3, 22}, false},
        {"Fourth on the 28th", "Fourth", "Day", {2026, 2, 28}, false},
        {"Last on 28 February, common year", "Last", "Day", {2026, 2, 28}, true},
        {"Last on 28 February, leap year", "Last", "Day", {2024, 2, 28}, false},
        {"Last on 29 February, leap year", "Last", "Day", {2024, 2, 29}, true},
        {"Last on 28 April", "Last", "Day", {2026, 4, 28}, false},
        {"Last on 29 April", "Last", "Day", {2026, 4, 29}, false},
        {"Last on 30 April", "Last", "Day", {2026, 4, 30}, true},
        {"Last on 1 May", "Last", "Day", {2026, 5, 1}, false},
        {"Last on 28 December", "Last", "Day", {2026, 12, 28}, false},
        {"Last on 29 December", "Last", "Day", {2026, 12, 29}, false},
        {"Last on 30 December", "Last", "Day", {2026, 12, 30}, false},
        {"Last on 31 December", "Last", "Day", {2026, 12, 31}, true},
        {"Last on 31 December 9999", "Last", "Day", {9999, 12, 31}, true},
        {"a number the combo doesn't hold, Day", "Fifth", "Day", {2026, 3, 17}, true},
        {"Monday the 8th as First Monday", "First", "Monday", {2027, 3, 8}, false},
        {"Monday the 8th as Second Monday", "Second", "Monday", {2027, 3, 8}, true},
        {"Monday the 8th as Second Tuesday", "Second", "Tuesday", {2027, 3, 8}, false},
        {"Monday the 22nd as Last Monday, the 29th follows", "Last", "Monday", {2022, 8, 22}, true},
        {"Sunday as Sunday, the last of the combo's days", "Third", "Sunday", {2026, 3, 15}, true},
        {"a day name the combo doesn't hold", "Third", "sunday", {2026, 3, 15}, false},
        {"a number the combo doesn't hold, Sunday", "Fifth", "Sunday", {2026, 3, 29}, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(RuleFitsStartDate(row.number, row.day, dateFromYmd(row.date.year, row.date.month, row.date.day)),
                  row.fits);
    }
}

// What the panel proposes for a date always passes the editor's own check, on every day of
// four years (a leap year among them), and any other number word with that day is refused
// except "Fourth"/"Last" on the 22nd to the 28th.
TEST(RuleFitsStartDate, ThePanelsProposalForEveryDateFitsIt) {
    for (Date date = dateFromYmd(2024, 1, 1); date <= dateFromYmd(2027, 12, 31); ++date) {
        const RepeatOrdinal proposal = RepeatOrdinalFor(date);
        ASSERT_TRUE(RuleFitsStartDate(proposal.number, proposal.day, date)) << dateText(date);
        if (proposal.day == "Day") continue;
        int fitting = 0;
        for (const char* number : kNumbers) fitting += RuleFitsStartDate(number, proposal.day, date) ? 1 : 0;
        const int day = dayOf(date);
        ASSERT_EQ(fitting, day >= 22 && day <= 28 ? 2 : 1) << dateText(date);
    }
}

}  // namespace
}  // namespace qh
