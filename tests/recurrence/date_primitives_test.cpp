#include "recurrence/date_primitives.h"

#include <gtest/gtest.h>

#include "common/failure.h"

namespace qh {
namespace {

Date ymd(int y, int m, int d) { return dateFromYmd(y, m, d); }

TEST(DatePrimitives, LastDayOfMonthFollowsLeapYearsAndCarriesTheMonth) {
    EXPECT_EQ(LastDayOfMonth(2024, 2), 29);
    EXPECT_EQ(LastDayOfMonth(2023, 2), 28);
    EXPECT_EQ(LastDayOfMonth(1900, 2), 28);  // a century, not a leap year
    EXPECT_EQ(LastDayOfMonth(2000, 2), 29);
    EXPECT_EQ(LastDayOfMonth(9999, 12), 31);
    EXPECT_EQ(LastDayOfMonth(2023, 14), 29);   // February 2024
    EXPECT_EQ(LastDayOfMonth(2024, 0), 31);    // December 2023
    EXPECT_EQ(LastDayOfMonth(2024, -10), 28);  // February 2023
    EXPECT_THROW(LastDayOfMonth(9999, 13), UntrappedFailure);
}

TEST(DatePrimitives, ShiftDateAddsYearsThenMonthsThenDays) {
    EXPECT_EQ(ShiftDate(ymd(2024, 2, 29), 1, 0, 0), ymd(2025, 2, 28));
    EXPECT_EQ(ShiftDate(ymd(2024, 2, 29), 1, 0, -1), ymd(2025, 2, 27));
    // Months before days: 31 January plus a month is 29 February 2024, plus a day 1 March.
    EXPECT_EQ(ShiftDate(ymd(2024, 1, 31), 0, 1, 1), ymd(2024, 3, 1));
    // Years before months: 29 February 2024 less a year lands on the 28th and stays there.
    EXPECT_EQ(ShiftDate(ymd(2024, 2, 29), -1, 1, 0), ymd(2023, 3, 28));
    EXPECT_EQ(ShiftDate(ymd(2026, 1, 1), 0, -1, -1), ymd(2025, 11, 30));
    EXPECT_THROW(ShiftDate(ymd(9999, 12, 31), 0, 0, 1), UntrappedFailure);
}

}  // namespace
}  // namespace qh
