#include <gtest/gtest.h>

#include "list_view/list_fixture.h"
#include "recurrence/event_records.h"
#include "shell/month_navigator.h"
#include "support/main_window_fixture.h"

namespace qh {
namespace {

using namespace qh::testing;
using test::addEvent;
using test::EventFields;

const Date kDay = dateFromYmd(2026, 11, 21);  // a Saturday; the fake clock's today

// Weekday letters run Monday to Sunday.
constexpr const char* kSaturdays = "FFFFFTF";
constexpr const char* kMondaysAndWednesdays = "TFTFFFF";

int addTimedEvent(RecordStore& s, const EventFields& f, const std::string& time) {
    const int row = addEvent(s, f);
    s.EventTimes(row) = time;
    return row;
}

// --- One day ---------------------------------------------------------------------------------

TEST(GatherEvents, ListsTheDaysOccurrencesInTheColoursOfTheirTypes) {
    RecordStore s;
    addEvent(s, {.date = "2026/11/07", .recurrence = "Day", .repeatDaily = kSaturdays, .type = "Class"});
    addEvent(s, {.date = "2026/11/21", .type = "Birthday"});
    addEvent(s, {.date = "2026/11/22", .type = "Work"});  // the next day
    addEvent(s, {.date = "2026/11/21", .type = "Work", .description = "DELETED RECORD"});
    addEvent(s, {.date = "2025/11/21", .recurrence = "Year", .type = "None"});  // a year on

    const EventRows all = GatherEvents(s, kDay, "All");
    EXPECT_EQ(all.ListEventRows, (Column<Int16>{1, 2, 5}));
    EXPECT_EQ(all.ListEventDates, (Column<Date>{kDay, kDay, kDay}));
    EXPECT_EQ(all.ListEventForeColors, (TextColumn{"Black", "Black", "Black"}));
    EXPECT_EQ(all.ListEventBackColors, (TextColumn{"LightYellow", "Gold", "White"}));
    EXPECT_EQ(all.EventTotal, 3);
}

// --- The list in the window ------------------------------------------------------------------

class EventListTest : public ::testing::Test {
protected:
    EventListTest() : list(Mode::Events) { list.filters("All", "Day"); }
    ListWindow list;
    RecordStore& s = list.store;
};

TEST_F(EventListTest, RowsShowTheOccurrenceWithItsTimeAndEmptyCellsForNone) {
    addTimedEvent(s, {.date = "2001/11/23", .recurrence = "Year", .type = "Birthday", .description = "Grandma"},
                  "9:05 PM");
    addTimedEvent(s, {.date = "2026/11/21", .type = "None", .description = "Dentist"}, "None");
    addTimedEvent(s, {.date = "2026/11/22", .type = "Work", .description = "Shift"}, "7:30");
    addTimedEvent(s, {.date = "2026/11/23", .description = "Lunch"}, "after lunch");
    list.filters("All", "Year");
    list.build();

    ASSERT_EQ(list.window.state.RowCount, 4);  // sorted by date; ties in gathering order
    EXPECT_EQ(list.cell(1, 1), " Dentist");
    EXPECT_EQ(list.cell(1, 2), "");  // type "None"
    EXPECT_EQ(list.cell(1, 3), "21-Nov-26");
    EXPECT_EQ(list.cell(1, 4), "");  // time "None"
    EXPECT_EQ(list.cell(1, 5), "");  // recurrence "None"
    EXPECT_EQ(list.cellBack(1, 2), kWhite);
    EXPECT_EQ(list.cell(2, 4), "07:30 AM");
    // A yearly event shows the date of its occurrence in the range, not its first date.
    EXPECT_EQ(list.cell(3, 1), " Grandma");
    EXPECT_EQ(list.cell(3, 2), "Birthday");
    EXPECT_EQ(list.cell(3, 3), "23-Nov-26");
    EXPECT_EQ(list.cell(3, 4), "09:05 PM");
    EXPECT_EQ(list.cell(3, 5), "Year");
    EXPECT_EQ(list.cellBack(3, 5), list.window.colors->ColorValues("Gold"));
    EXPECT_EQ(list.window.state.ListEventDates(3), dateFromYmd(2026, 11, 23));
    EXPECT_EQ(list.window.state.ListEventRows(3), 1);
    EXPECT_EQ(list.cell(4, 4), "after lunch");  // a time that reads as none shows as it stands
    for (const CanvasCall& call : list.grid().calls()) {
        if (call.kind == CanvasCall::Text) {
            EXPECT_EQ(call.color, kBlack) << call.text;
        }
    }
}

TEST_F(EventListTest, SummaryCountsBothKindsOnWhiteWhateverTheFilterShows) {
    addEvent(s, {.date = "2026/11/07", .recurrence = "Day", .repeatDaily = kSaturdays, .type = "Class"});
    addEvent(s, {.date = "2026/11/21", .type = "Family"});
    addEvent(s, {.date = "2026/11/23", .type = "Family"});
    list.window.c("TextBoxClasses").backColor = kOpenWorkPink;
    list.window.c("TextBoxOtherEvents").backColor = kOpenWorkPink;
    list.filters("Classes", "Week");
    list.build();
    EXPECT_EQ(list.text("TextBoxClasses"), "2");  // the 21st and the 28th
    EXPECT_EQ(list.text("TextBoxOtherEvents"), "2");
    EXPECT_EQ(list.back("TextBoxClasses"), kWhite);
    EXPECT_EQ(list.back("TextBoxOtherEvents"), kWhite);
    EXPECT_EQ(list.numbers(), (std::vector<std::string>{"1", "2"}));
    EXPECT_EQ(asInts(list.window.state.ListEventRows), (std::vector<int>{1, 1}));

    list.filters("Classes", "Day");
    list.build();
    EXPECT_EQ(list.text("TextBoxClasses"), "1");
    EXPECT_EQ(list.text("TextBoxOtherEvents"), "1");
}

// --- The calendar in Events mode ----------------------------------------------------------------

TEST(EventMode, TheCalendarAndTheListFollowTheFilter) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    addEvent(main.store, {.date = "2026/11/02",
                          .recurrence = "Day",
                          .repeatDaily = kMondaysAndWednesdays,
                          .type = "Class",
                          .description = "Lab"});
    addEvent(main.store, {.date = "2026/11/21", .type = "Holiday", .description = "Fair"});
    window.click("MenuEvents");
    window.select("ComboDateRange", "Day");

    const Date first = FirstCellDate(2026, 11, window.state.StartDayOfWeek);
    const auto cell = [&](int month, int day) { return std::size_t(dateFromYmd(2026, month, day) - first); };
    EXPECT_TRUE(window.state.CellMarked[cell(11, 21)]);
    EXPECT_TRUE(window.state.CellMarked[cell(11, 25)]);
    EXPECT_FALSE(window.state.CellMarked[cell(11, 24)]);
    EXPECT_EQ(window.state.CellBackColors[cell(11, 25)], window.state.Colors.TintBlue);
    EXPECT_EQ(window.c("LabelTop").caption, "Events for Saturday, November 21, 2026");
    EXPECT_EQ(asInts(window.state.ListEventRows), (std::vector<int>{2}));

    window.select("ComboList", "Classes");
    EXPECT_FALSE(window.state.CellMarked[cell(11, 21)]);
    EXPECT_TRUE(window.state.CellMarked[cell(11, 25)]);
    EXPECT_EQ(window.state.CellBackColors[cell(11, 25)], window.state.Colors.TintTan);
    EXPECT_TRUE(window.state.ListEventRows.empty());
    EXPECT_EQ(window.c("TextBoxOtherEvents").text, "1");

    window.click("LabelCalDate(" + std::to_string(cell(11, 25)) + ")");
    EXPECT_EQ(window.c("LabelTop").caption, "Events for Wednesday, November 25, 2026");
    EXPECT_EQ(asInts(window.state.ListEventRows), (std::vector<int>{1}));
}

}  // namespace
}  // namespace qh
