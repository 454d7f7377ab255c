#include <gtest/gtest.h>

#include "list_view/list_fixture.h"
#include "recurrence/event_records.h"
#include "shell/month_navigator.h"
#include "support/main_window_fixture.h"

namespace qh {
namespace {

using namespace qh::testing;

TEST(DateWord, NamesTheNearDaysAndCountsTheOthers) {
    const std::pair<int, const char*> words[] = {
        {30, "30 Days"},   {2, "2 Days"},      {1, "Tomorrow"},        {0, "Today"},
        {-1, "Yesterday"}, {-2, "2 Days Ago"}, {-400, "400 Days Ago"},
    };
    for (const auto& [days, word] : words) EXPECT_EQ(DateWord(days), word) << days;
}

// On Saturday, November 21, 2026 (the fake clock's today) this planner has, in record
// order: three tasks to be reminded of (tomorrow, two days ago, yesterday) and two that
// are not (undated, done); homework due today and in five days; an event in three days
// and one that is past.
class ReminderListTest : public ::testing::Test {
protected:
    ReminderListTest() : list(Mode::Reminders) {
        addClass(s, 1, "Biology", "Navy", "MistyRose");
        addClass(s, 2, "Art", "Black", "Lavender");
        addTask(s, {.description = "Return books", .date = "2026/11/22", .type = "Work", .reminder = "1 Day"});
        addTask(s, {.description = "Pay fee", .date = "2026/11/19", .type = "None"});
        addTask(s, {.description = "Call home", .date = "2026/11/20", .type = "Home"});
        addTask(s, {.description = "Undated", .dated = false});
        addTask(s, {.description = "Done already", .done = true});
        addAssignment(s, {.classLink = 1, .description = "Cell diagram", .reminder = "1 Day"});
        addAssignment(s, {.classLink = 2, .date = "2026/11/26", .description = "Sketch", .reminder = "7 Days"});
        test::addEvent(s, {.date = "2026/11/24", .type = "Birthday", .reminder = "5 Days", .description = "Ana"});
        test::addEvent(s, {.date = "2026/11/20", .reminder = "3 Days", .description = "Gone"});
        list.filters("All", "Today");
    }
    std::vector<std::string> column(int c) {
        std::vector<std::string> found;
        for (int v = 1; v <= list.window.state.RowCount; ++v) found.push_back(list.cell(v, c));
        return found;
    }
    Color color(const char* name) { return list.window.colors->ColorValues(name); }

    ListWindow list;
    RecordStore& s = list.store;
};

TEST_F(ReminderListTest, RowsShowKindClassTypeDescriptionDateWordAndDateSoonestFirst) {
    list.build();
    ASSERT_EQ(list.window.state.RowCount, 6);
    EXPECT_EQ(column(1), (std::vector<std::string>{"Task", "Task", "Homework", "Task", "Event", "Homework"}));
    EXPECT_EQ(column(5),
              (std::vector<std::string>{"2 Days Ago", "Yesterday", "Today", "Tomorrow", "3 Days", "5 Days"}));
    EXPECT_EQ(column(6),
              (std::vector<std::string>{"19-Nov-26", "20-Nov-26", "21-Nov-26", "22-Nov-26", "24-Nov-26", "26-Nov-26"}));
    EXPECT_EQ(column(4), (std::vector<std::string>{" Pay fee", " Call home", " Cell diagram", " Return books", " Ana",
                                                   " Sketch"}));
    EXPECT_EQ(column(3), (std::vector<std::string>{"None", "Home", "Homework", "Work", "Birthday", "Homework"}));

    // Homework in its class's colours.
    EXPECT_EQ(list.cell(3, 2), " Biology");
    EXPECT_EQ(list.cellBack(3, 6), color("MistyRose"));
    for (const CanvasCall& call : list.grid().calls()) {
        if (call.kind == CanvasCall::Text && call.text == " Cell diagram") {
            EXPECT_EQ(call.color, color("Navy"));
        }
    }
    // Tasks and events have no class: a lone blank on the row's background.
    EXPECT_EQ(list.cell(4, 2), " ");
    EXPECT_EQ(list.cellBack(4, 2), color("PaleTurquoise"));
    EXPECT_EQ(list.cellBack(5, 2), color("Gold"));
    EXPECT_EQ(list.cellBack(1, 2), kWhite);

    // The row columns are kept in list order for the record actions and the calendar.
    EXPECT_EQ(asInts(list.window.state.ReminderRecords), (std::vector<int>{2, 3, 1, 1, 1, 2}));
    EXPECT_EQ(asInts(list.window.state.ReminderDays), (std::vector<int>{-2, -1, 0, 1, 3, 5}));
}

TEST_F(ReminderListTest, BoxesCountEveryKindWhateverTheFilterAndOnlyOpenWorkIsPink) {
    list.filters("Tasks", "Today");
    list.build();
    EXPECT_EQ(list.window.c("LabelTop").caption, "Reminders for Saturday, November 21, 2026");
    EXPECT_EQ(column(1), (std::vector<std::string>{"Task", "Task", "Task"}));
    EXPECT_EQ(list.text("TextBoxAssignments"), "2");
    EXPECT_EQ(list.text("TextBoxTasks"), "3");
    EXPECT_EQ(list.text("TextBoxEvents"), "1");
    EXPECT_EQ(list.back("TextBoxAssignments"), kOpenWorkPink);
    EXPECT_EQ(list.back("TextBoxTasks"), kOpenWorkPink);
    EXPECT_EQ(list.back("TextBoxEvents"), kWhite);  // an event is never open work

    // A day before anything is due: empty, and all three boxes white again.
    list.window.state.ClickedDate = dateFromYmd(2026, 11, 1);
    list.build();
    EXPECT_TRUE(list.numbers().empty());
    EXPECT_EQ(list.text("TextBoxTasks"), "0");
    EXPECT_EQ(list.back("TextBoxAssignments"), kWhite);
    EXPECT_EQ(list.back("TextBoxTasks"), kWhite);
    EXPECT_EQ(list.back("TextBoxEvents"), kWhite);
    EXPECT_EQ(list.window.c("LabelTop").caption, "Reminders for Sunday, November 1, 2026");
}

// --- The calendar in Reminders mode ---------------------------------------------------------------

TEST(ReminderMode, TheCalendarMarksTheDaysOfTheRowsOfTheKindShown) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    RecordStore& s = main.store;
    addClass(s, 1, "Biology");
    addTask(s, {.description = "Forms", .date = "2026/11/23", .reminder = "3 Days"});
    test::addEvent(s, {.date = "2026/11/25", .reminder = "7 Days", .description = "Fair"});
    addAssignment(s, {.date = "2026/11/27", .description = "Essay", .reminder = "7 Days"});
    addAssignment(s, {.date = "2026/11/30", .description = "Not yet", .reminder = "1 Day"});
    window.click("MenuReminders");

    const Date first = FirstCellDate(2026, 11, window.state.StartDayOfWeek);
    const auto marked = [&] {
        std::vector<int> days;
        for (int k = 0; k < 42; ++k)
            if (window.state.CellMarked[std::size_t(k)]) days.push_back(ymdOf(first + k).day);
        return days;
    };
    const auto backOf = [&](int day) {
        return window.state.CellBackColors[std::size_t(dateFromYmd(2026, 11, day) - first)];
    };

    EXPECT_EQ(window.c("LabelTop").caption, "Reminders for Saturday, November 21, 2026");
    EXPECT_EQ(marked(), (std::vector<int>{23, 25, 27}));
    EXPECT_EQ(backOf(25), window.state.Colors.TintBlue);

    // One kind: its days only, in its tint; the boxes still count every kind.
    window.select("ComboList", "Homework");
    EXPECT_EQ(marked(), std::vector<int>{27});
    EXPECT_EQ(backOf(27), window.state.Colors.TintPink);
    EXPECT_EQ(window.state.RowCount, 1);
    EXPECT_EQ(window.c("TextBoxTasks").text, "1");
}

}  // namespace
}  // namespace qh
