#include "recurrence/occurrence.h"

#include <gtest/gtest.h>

#include <string>

#include "common/failure.h"
#include "recurrence/event_records.h"

namespace qh {
namespace {

using test::addEvent;
using test::EventFields;

Date ymd(int y, int m, int d) { return dateFromYmd(y, m, d); }

struct OccurrenceCase {
    const char* name;
    EventFields event;
    Date date;
    bool hit;
};

std::ostream& operator<<(std::ostream& out, const OccurrenceCase& c) { return out << c.name; }

class OccurrenceTable : public ::testing::TestWithParam<OccurrenceCase> {};

TEST_P(OccurrenceTable, HitsExactlyTheRulesDates) {
    RecordStore store;
    const int row = addEvent(store, GetParam().event);
    EXPECT_EQ(EventOccursOn(store, GetParam().date, Int16(row)), GetParam().hit);
}

const EventFields kMonthly31{.date = "2026/01/31", .recurrence = "Month"};
const EventFields kMonthly29{.date = "2026/01/29", .recurrence = "Month"};
const EventFields kMonthly28{.date = "2026/01/28", .recurrence = "Month"};
const EventFields kYearlyLeapDay{.date = "2024/02/29", .recurrence = "Year"};
const EventFields kYearlyLeapDayLast{
    .date = "2024/02/29", .recurrence = "Year", .sameDate = "False", .repeatNumber = "Last", .repeatDay = "Day"};
const EventFields kYearly31January{.date = "2026/01/31", .recurrence = "Year"};
// First on Friday 2 January 2026, only Monday ticked.
const EventFields kWeeklyMondayFromFriday{.date = "2026/01/02", .recurrence = "Day", .repeatDaily = "TFFFFFF"};
const EventFields kMonthlyThirdDay{
    .date = "2026/01/03", .recurrence = "Month", .sameDate = "False", .repeatNumber = "Third", .repeatDay = "Day"};
const EventFields kMonthlyLastDay{
    .date = "2026/01/31", .recurrence = "Month", .sameDate = "False", .repeatNumber = "Last", .repeatDay = "Day"};
// Fourth and last Monday, first on Monday 26 January 2026.
const EventFields kFourthMonday{.date = "2026/01/26",
                                .recurrence = "Month",
                                .sameDate = "False",
                                .repeatNumber = "Fourth",
                                .repeatDay = "Monday"};
const EventFields kLastMonday{
    .date = "2026/01/26", .recurrence = "Month", .sameDate = "False", .repeatNumber = "Last", .repeatDay = "Monday"};
// Fourth Thursday, first on 22 January 2026.
const EventFields kFourthThursday{.date = "2026/01/22",
                                  .recurrence = "Month",
                                  .sameDate = "False",
                                  .repeatNumber = "Fourth",
                                  .repeatDay = "Thursday"};
// Second Thursday of March, first on 12 March 2026.
const EventFields kYearlySecondThursday{.date = "2026/03/12",
                                        .recurrence = "Year",
                                        .sameDate = "False",
                                        .repeatNumber = "Second",
                                        .repeatDay = "Thursday"};
const EventFields kMonthly15thEnding{
    .date = "2026/01/15", .recurrence = "Month", .ends = "True", .endDate = "2026/03/15"};
// Every day of the week, until Tuesday 10 March 2026.
const EventFields kDailyEnding{
    .date = "2026/03/02", .recurrence = "Day", .repeatDaily = "TTTTTTT", .ends = "True", .endDate = "2026/03/10"};
const EventFields kEndBeforeFirst{
    .date = "2026/05/05", .recurrence = "Month", .ends = "True", .endDate = "2026/01/01"};
const EventFields kDeletedOneOff{.date = "2026/05/05", .description = "DELETED RECORD"};
const EventFields kDeletedWeekly{
    .date = "2026/05/04", .recurrence = "Day", .repeatDaily = "TTTTTTT", .description = "DELETED RECORD"};
const EventFields kOneOff{.date = "2026/05/05"};

INSTANTIATE_TEST_SUITE_P(
    Rules, OccurrenceTable,
    ::testing::Values(
        OccurrenceCase{"Jan31MonthlyFeb28CommonYear", kMonthly31, ymd(2026, 2, 28), true},
        OccurrenceCase{"Jan31MonthlyNotFeb27", kMonthly31, ymd(2026, 2, 27), false},
        OccurrenceCase{"Jan31MonthlyBackToMar31", kMonthly31, ymd(2026, 3, 31), true},
        OccurrenceCase{"Jan31MonthlyApr30", kMonthly31, ymd(2026, 4, 30), true},
        OccurrenceCase{"Jan31MonthlyFeb29LeapYear", kMonthly31, ymd(2028, 2, 29), true},
        OccurrenceCase{"Jan31MonthlyNotFeb28LeapYear", kMonthly31, ymd(2028, 2, 28), false},
        OccurrenceCase{"The29thMonthlyFeb28CommonYear", kMonthly29, ymd(2026, 2, 28), true},
        OccurrenceCase{"The29thMonthlyFeb29LeapYear", kMonthly29, ymd(2028, 2, 29), true},
        OccurrenceCase{"The29thMonthlyNotFeb28LeapYear", kMonthly29, ymd(2028, 2, 28), false},
        OccurrenceCase{"The29thMonthlyNotApr30", kMonthly29, ymd(2026, 4, 30), false},
        OccurrenceCase{"The28thMonthlyFeb28", kMonthly28, ymd(2026, 2, 28), true},
        OccurrenceCase{"The28thMonthlyNeverMovedToMonthsEnd", kMonthly28, ymd(2026, 4, 30), false},
        OccurrenceCase{"Feb29YearlyFeb28CommonYear", kYearlyLeapDay, ymd(2025, 2, 28), true},
        OccurrenceCase{"Feb29YearlyNotMar1CommonYear", kYearlyLeapDay, ymd(2025, 3, 1), false},
        OccurrenceCase{"Feb29YearlyFeb29LeapYear", kYearlyLeapDay, ymd(2028, 2, 29), true},
        OccurrenceCase{"Feb29YearlyNotFeb28LeapYear", kYearlyLeapDay, ymd(2028, 2, 28), false},
        OccurrenceCase{"Feb29YearlyLastDayFeb28CommonYear", kYearlyLeapDayLast, ymd(2025, 2, 28), true},
        OccurrenceCase{"Feb29YearlyLastDayNotFeb27", kYearlyLeapDayLast, ymd(2025, 2, 27), false},
        OccurrenceCase{"Jan31YearlyNotFeb28", kYearly31January, ymd(2026, 2, 28), false},
        OccurrenceCase{"WeeklyUntickedFirstDateHits", kWeeklyMondayFromFriday, ymd(2026, 1, 2), true},
        OccurrenceCase{"WeeklyTickedMondayAfterFirst", kWeeklyMondayFromFriday, ymd(2026, 1, 5), true},
        OccurrenceCase{"WeeklyUntickedFridayLater", kWeeklyMondayFromFriday, ymd(2026, 1, 9), false},
        OccurrenceCase{"WeeklyMondayBeforeFirst", kWeeklyMondayFromFriday, ymd(2025, 12, 29), false},
        OccurrenceCase{"ThirdDayOfMonth", kMonthlyThirdDay, ymd(2026, 6, 3), true},
        OccurrenceCase{"LastDayOfFebruary", kMonthlyLastDay, ymd(2026, 2, 28), true},
        OccurrenceCase{"FourthMondayOf28DayFebruary", kFourthMonday, ymd(2026, 2, 23), true},
        OccurrenceCase{"LastMondayOf28DayFebruary", kLastMonday, ymd(2026, 2, 23), true},
        OccurrenceCase{"FourthMondayOfMarch", kFourthMonday, ymd(2026, 3, 23), true},
        OccurrenceCase{"FourthMondayNotMarch30", kFourthMonday, ymd(2026, 3, 30), false},
        OccurrenceCase{"LastMondayOfMarchIsThe30th", kLastMonday, ymd(2026, 3, 30), true},
        OccurrenceCase{"LastMondayNotMarch23", kLastMonday, ymd(2026, 3, 23), false},
        OccurrenceCase{"FourthThursdayNeverThe29th", kFourthThursday, ymd(2026, 1, 29), false},
        OccurrenceCase{"YearlySecondThursdayOfMarch", kYearlySecondThursday, ymd(2027, 3, 11), true},
        OccurrenceCase{"YearlySecondThursdayNotInApril", kYearlySecondThursday, ymd(2027, 4, 8), false},
        OccurrenceCase{"EndDateItselfHits", kMonthly15thEnding, ymd(2026, 3, 15), true},
        OccurrenceCase{"NothingAfterTheEndDate", kMonthly15thEnding, ymd(2026, 4, 15), false},
        OccurrenceCase{"DailyOnItsEndDate", kDailyEnding, ymd(2026, 3, 10), true},
        OccurrenceCase{"DailyDayAfterItsEndDate", kDailyEnding, ymd(2026, 3, 11), false},
        OccurrenceCase{"FirstDateAfterEndDateStillHits", kEndBeforeFirst, ymd(2026, 5, 5), true},
        OccurrenceCase{"EndBeforeFirstHitsNothingElse", kEndBeforeFirst, ymd(2026, 6, 5), false},
        OccurrenceCase{"DeletedOneOffNotOnItsDate", kDeletedOneOff, ymd(2026, 5, 5), false},
        OccurrenceCase{"DeletedWeeklyNotOnItsDate", kDeletedWeekly, ymd(2026, 5, 4), false},
        OccurrenceCase{"OneOffOnItsDate", kOneOff, ymd(2026, 5, 5), true},
        OccurrenceCase{"OneOffNextDay", kOneOff, ymd(2026, 5, 6), false}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(EventOccursOn, UnreadableDatesFailOnlyWhenTheyAreRead) {
    RecordStore store;
    const int badFirst = addEvent(store, {.date = "someday"});
    const int deletedBadFirst = addEvent(store, {.date = "someday", .description = "DELETED RECORD"});
    const int badEnd = addEvent(store, {.date = "2026/01/10", .recurrence = "Month", .ends = "True", .endDate = "soon"});
    EXPECT_THROW(EventOccursOn(store, ymd(2026, 1, 10), Int16(badFirst)), UntrappedFailure);
    EXPECT_FALSE(EventOccursOn(store, ymd(2026, 1, 10), Int16(deletedBadFirst)));
    // The first date and dates before it never reach the end date.
    EXPECT_TRUE(EventOccursOn(store, ymd(2026, 1, 10), Int16(badEnd)));
    EXPECT_FALSE(EventOccursOn(store, ymd(2026, 1, 9), Int16(badEnd)));
    EXPECT_THROW(EventOccursOn(store, ymd(2026, 2, 10), Int16(badEnd)), UntrappedFailure);
    EXPECT_THROW(EventOccursOn(store, ymd(2026, 1, 10), Int16(4)), UntrappedFailure);
}

// Cell k of a calendar whose first cell is 26 April 2026.
Date cell(int k) { return ymd(2026, 4, 26) + k; }

TEST(MarkEventDays, TheFilterChoosesTheTintAndTheEvents) {
    RecordStore store;
    addEvent(store, {.date = dateText(cell(3)), .type = "Class"});
    addEvent(store, {.date = dateText(cell(4)), .type = "Birthday"});
    addEvent(store, {.date = dateText(cell(5)), .recurrence = "Month", .type = "Class",
                     .description = "DELETED RECORD"});
    const struct {
        const char *filter, *tint, *cells;
    } filters[] = {{"All", "&HF0E8E2", "3 4 "},
                   {"Classes", "&HD7EBFA", "3 "},
                   {"Other Events", "&HE2F7E1", "4 "},
                   {"Birthdays", "&HE2F7E1", ""}};
    for (const auto& f : filters) {
        const EventDayMarks marks = MarkEventDays(store, cell(0), f.filter);
        std::string cells;
        for (int k = 0; k < 42; ++k)
            if (marks.CellMarked[std::size_t(k)]) cells += std::to_string(k) + " ";
        EXPECT_EQ(cells, f.cells) << f.filter;
        EXPECT_EQ(marks.ColorMarkedBack, f.tint) << f.filter;
    }
}

}  // namespace
}  // namespace qh
