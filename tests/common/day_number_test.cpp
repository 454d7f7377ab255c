#include "common/day_number.h"

#include <gtest/gtest.h>

#include "common/failure.h"

namespace qh {
namespace {

TEST(DayNumber, CountsFromTheLastDaysOf1899WithSundayAsDayOne) {
    EXPECT_EQ(dateFromYmd(1899, 12, 30), 0);
    EXPECT_EQ(dateFromYmd(1953, 8, 12), 19583);
    for (Date d : {-600000, -1, 0, 1, 19583, 46347, 2000000})
        EXPECT_EQ(dateFromYmd(ymdOf(d).year, ymdOf(d).month, ymdOf(d).day), d) << d;
    EXPECT_EQ(weekdayOf(dateFromYmd(2026, 11, 22)), 1);  // Sunday
    EXPECT_EQ(weekdayOf(dateFromYmd(2026, 11, 21)), 7);  // Saturday
    EXPECT_THROW(dateFromYmd(99, 12, 31), UntrappedFailure);
}

TEST(DayNumber, DateSerialCarriesBothWaysAndAddingMonthsClampsToTheMonthsEnd) {
    EXPECT_EQ(ymdOf(dateSerial(2022, 13, 1)), (Ymd{2023, 1, 1}));
    EXPECT_EQ(ymdOf(dateSerial(2022, 2, 30)), (Ymd{2022, 3, 2}));
    EXPECT_EQ(ymdOf(dateSerial(2024, 3, 0)), (Ymd{2024, 2, 29}));
    EXPECT_EQ(ymdOf(dateSerial(2022, 0, 1)), (Ymd{2021, 12, 1}));
    EXPECT_THROW(dateSerial(9999, 12, 32), UntrappedFailure);
    EXPECT_EQ(ymdOf(addMonths(dateFromYmd(2026, 1, 31), 1)), (Ymd{2026, 2, 28}));
    EXPECT_EQ(ymdOf(addMonths(dateFromYmd(2024, 1, 31), 1)), (Ymd{2024, 2, 29}));
    EXPECT_EQ(ymdOf(addMonths(dateFromYmd(2026, 5, 31), -1)), (Ymd{2026, 4, 30}));
    EXPECT_EQ(ymdOf(addMonths(dateFromYmd(2026, 12, 15), 1)), (Ymd{2027, 1, 15}));
    EXPECT_EQ(ymdOf(addYears(dateFromYmd(2024, 2, 29), 1)), (Ymd{2025, 2, 28}));
}

TEST(DayNumber, DateTextsAreYearFirstWithSlashes) {
    EXPECT_EQ(dateText(dateFromYmd(2026, 1, 5)), "2026/01/05");
    EXPECT_EQ(parseDateText("2026/1/5 "), dateFromYmd(2026, 1, 5));
    for (const char* notADate : {"2026/02/30", "2026-01-05", "hello", ""}) EXPECT_FALSE(parseDateText(notADate));
    EXPECT_THROW(dateFromText("31/12/2026"), UntrappedFailure);
    EXPECT_EQ(repairDateSeparators("2026.01-05"), "2026/01/05");
}

}  // namespace
}  // namespace qh
