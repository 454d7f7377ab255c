#include "recurrence/occurrence.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "common/failure.h"
#include "recurrence/event_records.h"

namespace qh {
namespace {

using test::addEvent;
using test::EventFields;
using Dates = std::vector<std::string>;

Date ymd(int y, int m, int d) { return dateFromYmd(y, m, d); }

TEST(EventOccursOn, HitsExactlyTheRulesDates) {
    const struct {
        const char* rule;
        EventFields event;
        Dates hits, misses;
    } rules[] = {
        // clang-format off
        // A day past the 28th moves to the last day of a shorter month, and only then.
        {"monthly on the 31st", {.date = "2026/01/31", .recurrence = "Month"},
         {"2026/02/28", "2026/03/31", "2026/04/30", "2028/02/29"}, {"2026/02/27", "2028/02/28"}},
        {"monthly on the 28th", {.date = "2026/01/28", .recurrence = "Month"}, {"2026/02/28"}, {"2026/04/30"}},
        {"yearly on 29 February", {.date = "2024/02/29", .recurrence = "Year"},
         {"2025/02/28", "2028/02/29"}, {"2025/03/01", "2028/02/28", "2025/03/29"}},
        {"yearly on the last day of February",
         {.date = "2024/02/29", .recurrence = "Year", .sameDate = "False", .repeatNumber = "Last"},
         {"2025/02/28"}, {"2025/02/27", "2025/03/31"}},
        // First on a Friday, only Monday ticked: the first date hits all the same.
        {"weekly on Mondays", {.date = "2026/01/02", .recurrence = "Day", .repeatDaily = "TFFFFFF"},
         {"2026/01/02", "2026/01/05"}, {"2026/01/09", "2025/12/29"}},
        {"the third day of each month",
         {.date = "2026/01/03", .recurrence = "Month", .sameDate = "False", .repeatNumber = "Third"},
         {"2026/06/03"}, {"2026/06/04"}},
        {"the last day of each month",
         {.date = "2026/01/31", .recurrence = "Month", .sameDate = "False", .repeatNumber = "Last"},
         {"2026/02/28", "2026/04/30"}, {"2026/04/29"}},
        // In a 28-day February the fourth Monday is the last; the fourth is never the 29th.
        {"the fourth Monday", {.date = "2026/01/26", .recurrence = "Month", .sameDate = "False",
                               .repeatNumber = "Fourth", .repeatDay = "Monday"},
         {"2026/02/23", "2026/03/23"}, {"2026/03/30", "2026/03/24"}},
        {"the last Monday", {.date = "2026/01/26", .recurrence = "Month", .sameDate = "False",
                             .repeatNumber = "Last", .repeatDay = "Monday"},
         {"2026/02/23", "2026/03/30"}, {"2026/03/23"}},
        {"the second Thursday of March", {.date = "2026/03/12", .recurrence = "Year", .sameDate = "False",
                                          .repeatNumber = "Second", .repeatDay = "Thursday"},
         {"2027/03/11"}, {"2027/04/08"}},
        // The end date itself may hit; the first date hits even after the end date.
        {"daily until 10 March", {.date = "2026/03/02", .recurrence = "Day", .repeatDaily = "TTTTTTT",
                                  .ends = "True", .endDate = "2026/03/10"},
         {"2026/03/10"}, {"2026/03/11", "2026/03/01"}},
        {"ending before its first date",
         {.date = "2026/05/05", .recurrence = "Month", .ends = "True", .endDate = "2026/01/01"},
         {"2026/05/05"}, {"2026/06/05"}},
        {"once", {.date = "2026/05/05"}, {"2026/05/05"}, {"2026/05/06", "2026/06/05"}},
        {"deleted", {.date = "2026/05/04", .recurrence = "Day", .repeatDaily = "TTTTTTT",
                     .description = "DELETED RECORD"},
         {}, {"2026/05/04", "2026/05/05"}},
        // clang-format on
    };
    for (const auto& r : rules) {
        RecordStore store;
        const Int16 row = Int16(addEvent(store, r.event));
        for (const std::string& d : r.hits)
            EXPECT_TRUE(EventOccursOn(store, dateFromText(d), row)) << r.rule << " " << d;
        for (const std::string& d : r.misses)
            EXPECT_FALSE(EventOccursOn(store, dateFromText(d), row)) << r.rule << " " << d;
    }
}

TEST(EventOccursOn, UnreadableDatesFailOnlyWhenTheyAreRead) {
    RecordStore store;
    const int badFirst = addEvent(store, {.date = "someday"});
    const int deletedBadFirst = addEvent(store, {.date = "someday", .description = "DELETED RECORD"});
    const int badEnd =
        addEvent(store, {.date = "2026/01/10", .recurrence = "Month", .ends = "True", .endDate = "soon"});
    EXPECT_THROW(EventOccursOn(store, ymd(2026, 1, 10), Int16(badFirst)), UntrappedFailure);
    EXPECT_FALSE(EventOccursOn(store, ymd(2026, 1, 10), Int16(deletedBadFirst)));
    // The first date and dates before it never reach the end date.
    EXPECT_TRUE(EventOccursOn(store, ymd(2026, 1, 10), Int16(badEnd)));
    EXPECT_FALSE(EventOccursOn(store, ymd(2026, 1, 9), Int16(badEnd)));
    EXPECT_THROW(EventOccursOn(store, ymd(2026, 2, 10), Int16(badEnd)), UntrappedFailure);
    EXPECT_THROW(EventOccursOn(store, ymd(2026, 1, 10), Int16(4)), UntrappedFailure);
}

TEST(MarkEventDays, TheFilterChoosesTheTintAndTheEvents) {
    const Date firstCell = ymd(2026, 4, 26);
    RecordStore store;
    addEvent(store, {.date = dateText(firstCell + 3), .type = "Class"});
    addEvent(store, {.date = dateText(firstCell + 4), .type = "Birthday"});
    addEvent(
        store,
        {.date = dateText(firstCell + 5), .recurrence = "Month", .type = "Class", .description = "DELETED RECORD"});
    const struct {
        const char *filter, *tint, *cells;
    } filters[] = {{"All", "&HF0E8E2", "3 4 "},
                   {"Classes", "&HD7EBFA", "3 "},
                   {"Other Events", "&HE2F7E1", "4 "},
                   {"Birthdays", "&HE2F7E1", ""}};
    for (const auto& f : filters) {
        const EventDayMarks marks = MarkEventDays(store, firstCell, f.filter);
        std::string cells;
        for (int k = 0; k < 42; ++k)
            if (marks.CellMarked[std::size_t(k)]) cells += std::to_string(k) + " ";
        EXPECT_EQ(cells, f.cells) << f.filter;
        EXPECT_EQ(marks.ColorMarkedBack, f.tint) << f.filter;
    }
}

}  // namespace
}  // namespace qh
