#include "editors/recurrence_panel_defaults.h"

#include <gtest/gtest.h>

namespace qh {
namespace {

Date ymd(int y, int m, int d) { return dateFromYmd(y, m, d); }

// A date in each week of March 2026 and the month ends around it: the number follows the
// run of seven days, the day the date's weekday, and a month's last day gives "Last" "Day".
TEST(RepeatOrdinalFor, ByTheDayOfTheMonthAndOnMonthEnds) {
    const struct {
        const char* name;
        Date date;
        RepeatOrdinal expected;
    } rows[] = {
        {"1st, first week", ymd(2026, 3, 1), {"First", "Sunday"}},
        {"7th, end of the first week", ymd(2026, 3, 7), {"First", "Saturday"}},
        {"8th, second week", ymd(2026, 3, 8), {"Second", "Sunday"}},
        {"12th, second week", ymd(2026, 3, 12), {"Second", "Thursday"}},
        {"15th, third week", ymd(2026, 3, 15), {"Third", "Sunday"}},
        {"21st, end of the third week", ymd(2026, 3, 21), {"Third", "Saturday"}},
        {"22nd, fourth week", ymd(2026, 3, 22), {"Fourth", "Sunday"}},
        {"28th, end of the fourth week", ymd(2026, 3, 28), {"Fourth", "Saturday"}},
        {"29th of a 31-day month", ymd(2026, 3, 29), {"Last", "Sunday"}},
        {"30th of a 31-day month", ymd(2026, 3, 30), {"Last", "Monday"}},
        {"31st, the month's end", ymd(2026, 3, 31), {"Last", "Day"}},
        {"29 April, not the end", ymd(2026, 4, 29), {"Last", "Wednesday"}},
        {"30 April, the end", ymd(2026, 4, 30), {"Last", "Day"}},
        {"28 February of a common year, the end", ymd(2026, 2, 28), {"Last", "Day"}},
        {"28 February of a leap year", ymd(2024, 2, 28), {"Fourth", "Wednesday"}},
        {"29 February, the end", ymd(2024, 2, 29), {"Last", "Day"}},
        {"31 December", ymd(2026, 12, 31), {"Last", "Day"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(RepeatOrdinalFor(row.date), row.expected);
    }
}

TEST(WeekdayBoxesFor, OnlyTheDatesOwnWeekdayIsTickedMondayFirst) {
    const struct {
        const char* name;
        Date date;
        std::array<bool, 7> boxes;  // Monday .. Sunday
    } rows[] = {
        {"Monday", ymd(2026, 3, 30), {true, false, false, false, false, false, false}},
        {"Thursday", ymd(2026, 3, 12), {false, false, false, true, false, false, false}},
        {"Saturday", ymd(2026, 3, 7), {false, false, false, false, false, true, false}},
        {"Sunday", ymd(2026, 3, 1), {false, false, false, false, false, false, true}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(WeekdayBoxesFor(row.date), row.boxes);
    }
}

// The month and year steps clamp to a shorter month and start from the first date itself.
TEST(ProposedEndDate, FourteenDaysSixMonthsFiveYearsOrTheDateItself) {
    const struct {
        const char* name;
        const char* recurrence;
        Date first;
        Date proposed;
    } rows[] = {
        {"daily from 31 January", "Day", ymd(2026, 1, 31), ymd(2026, 2, 14)},
        {"daily from 29 February", "Day", ymd(2024, 2, 29), ymd(2024, 3, 14)},
        {"daily across a year end", "Day", ymd(2026, 12, 25), ymd(2027, 1, 8)},
        {"monthly from 31 January", "Month", ymd(2026, 1, 31), ymd(2026, 7, 31)},
        {"monthly from 31 August into a common February", "Month", ymd(2026, 8, 31), ymd(2027, 2, 28)},
        {"monthly from 31 August into a leap February", "Month", ymd(2023, 8, 31), ymd(2024, 2, 29)},
        {"monthly from 31 December into a 30-day June", "Month", ymd(2026, 12, 31), ymd(2027, 6, 30)},
        {"monthly from 29 February", "Month", ymd(2024, 2, 29), ymd(2024, 8, 29)},
        {"yearly from 31 January", "Year", ymd(2026, 1, 31), ymd(2031, 1, 31)},
        {"yearly from 29 February into a common year", "Year", ymd(2024, 2, 29), ymd(2029, 2, 28)},
        {"yearly from 28 February into a leap year stays on the 28th", "Year", ymd(2023, 2, 28), ymd(2028, 2, 28)},
        {"none from 31 January", "None", ymd(2026, 1, 31), ymd(2026, 1, 31)},
        {"none from 29 February", "None", ymd(2024, 2, 29), ymd(2024, 2, 29)},
        {"a recurrence the editor doesn't write", "Week", ymd(2026, 1, 31), ymd(2026, 1, 31)},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(dateText(ProposedEndDate(recurrenceOf(row.recurrence), row.first)), dateText(row.proposed));
    }
}

}  // namespace
}  // namespace qh
