#include "recurrence/expansion.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "recurrence/event_records.h"
#include "recurrence/occurrence.h"
#include "recurrence/reminders.h"

namespace qh {
namespace {

using test::addEvent;

Date ymd(int y, int m, int d) { return dateFromYmd(y, m, d); }

// The dates of the rows, as texts, in row order: a failure reads as a list.
std::vector<std::string> rowDates(const EventRows& rows) {
    std::vector<std::string> texts;
    for (Date d : rows.ListEventDates) texts.push_back(dateText(d));
    return texts;
}

using Texts = std::vector<std::string>;

TEST(EventRangeEnd, BothEndsCountSoAWeekIsEightDates) {
    const struct {
        Date start;
        const char* range;
        Date end;
    } cases[] = {{ymd(2026, 11, 22), "Week", ymd(2026, 11, 29)},
                 {ymd(2026, 1, 31), "Month", ymd(2026, 2, 28)},
                 {ymd(2026, 12, 31), "Year", ymd(2027, 12, 30)},
                 {ymd(2026, 3, 3), "Decade", ymd(2027, 3, 2)}};
    for (const auto& c : cases) EXPECT_EQ(dateText(EventRangeEnd(c.start, c.range)), dateText(c.end)) << c.range;
}

TEST(ExpandEvents, WeeklyRowsComeWeekdayByWeekday) {
    RecordStore store;
    // Monday and Wednesday ticked, first on Tuesday 17 November 2026.
    addEvent(store, {.date = "2026/11/17", .recurrence = "Day", .repeatDaily = "TFTFFFF"});
    const EventRows rows = ExpandEvents(store, ymd(2026, 11, 16), "Month", "All");
    // The walk starts on the first date, a Tuesday, so Wednesdays come before Mondays.
    EXPECT_EQ(rowDates(rows), (Texts{"2026/11/17", "2026/11/18", "2026/11/25", "2026/12/02", "2026/12/09", "2026/12/16",
                                     "2026/11/23", "2026/11/30", "2026/12/07", "2026/12/14"}));
}

TEST(ExpandEvents, CountersCountBeforeTheFilter) {
    RecordStore store;
    addEvent(store, {.date = "2026/01/05", .recurrence = "Day", .repeatDaily = "TFFFFFF", .type = "Class"});
    addEvent(store, {.date = "2026/01/10", .type = "Birthday"});
    addEvent(store, {.date = "2026/01/11", .type = "Work"});
    const EventRows classes = ExpandEvents(store, ymd(2026, 1, 1), "Month", "Classes");
    // Mondays 5, 12, 19 and 26 January; 2 February lies past the month's range.
    EXPECT_EQ(classes.ListEventRows, (Column<Int16>{1, 1, 1, 1}));
    EXPECT_EQ(classes.EventClassCount, 4);
    EXPECT_EQ(classes.EventOtherCount, 2);
    EXPECT_EQ(classes.EventTotal, 6);

    const EventRows others = ExpandEvents(store, ymd(2026, 1, 1), "Month", "Other Events");
    EXPECT_EQ(others.ListEventRows, (Column<Int16>{2, 3}));
    EXPECT_EQ(others.ListEventForeColors, (TextColumn{"Black", "Black"}));
    EXPECT_EQ(others.ListEventBackColors, (TextColumn{"Gold", "PaleTurquoise"}));
    EXPECT_EQ(others.EventClassCount, 4);
    EXPECT_EQ(others.EventOtherCount, 2);

    const EventRows none = ExpandEvents(store, ymd(2026, 1, 1), "Month", "Everything");
    EXPECT_TRUE(none.ListEventRows.empty());
    EXPECT_EQ(none.EventTotal, 6);
}

}  // namespace
}  // namespace qh
