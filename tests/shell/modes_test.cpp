#include <gtest/gtest.h>

#include "support/main_window_fixture.h"

namespace qh {
namespace {

struct ModeExpectation {
    const char* menu;
    const char* status;
    int sortColumn;
    std::vector<std::string> listEntries, rangeEntries;
    const char* exportList;
    std::vector<std::string> shown;   // panels and buttons visible
    std::vector<std::string> hidden;  // panels and buttons hidden
    std::vector<std::pair<std::string, std::string>> labels;  // caption by label, in order
    std::vector<std::string> boxes;   // summary boxes shown
};

const std::vector<ModeExpectation>& expectations() {
    static const std::vector<ModeExpectation> table{
        {"MenuHomework", "Homework Mode", 7, {"All", "Done", "Not Done"}, {"Day", "Term"}, "This Assignment List...",
         {"ButtonNewAssignment", "PictureBoxTerm"},
         {"ButtonNewTask", "ButtonNewEvent", "PictureBoxStudySessions", "PictureBoxReminders", "PictureBoxStudyTime"},
         {{"LabelTotalAssignments", "Total Assignments:"}, {"LabelFinishedAssignments", "Unfinished Assignments:"},
          {"LabelTimeRemaining", "Time Left:"}},
         {"TextBoxTotalAssignments", "TextBoxFinishedAssignments", "TextBoxTimeRemaining"}},
        {"MenuStudySessions", "Study Session Mode", 6, {"All"}, {"Day", "Term"}, "This Study List...",
         {"ButtonNewAssignment", "PictureBoxStudySessions", "PictureBoxTerm"},
         {"ButtonNewTask", "ButtonNewEvent", "PictureBoxReminders", "PictureBoxStudyTime", "LabelFinishedAssignments"},
         {{"LabelTotalAssignments", "Study Sessions:"}, {"LabelTimeRemaining", "Study Time:"}},
         {"TextBoxStudySessions", "TextBoxStudyTime"}},
        {"MenuTasks", "Task Mode", 5, {"All", "Done", "Not Done"}, {"Day", "All", "With Date", "Without Date"},
         "This Task List...", {"ButtonNewTask"},
         {"ButtonNewAssignment", "ButtonNewEvent", "PictureBoxTerm", "PictureBoxStudyTime", "LabelFinishedAssignments"},
         {{"LabelTotalAssignments", "Total Tasks:"}, {"LabelTimeRemaining", "Unfinished Tasks:"}},
         {"TextBoxTotalTasks", "TextBoxFinishedTasks"}},
        {"MenuEvents", "Event Mode", 3, {"All", "Classes", "Other Events"}, {"Day", "Week", "Month", "Year"},
         "This Event List...", {"ButtonNewEvent"}, {"ButtonNewAssignment", "ButtonNewTask", "PictureBoxTerm"},
         {{"LabelTotalAssignments", "Classes:"}, {"LabelTimeRemaining", "Other Events:"}},
         {"TextBoxClasses", "TextBoxOtherEvents"}},
        {"MenuReminders", "Today's Reminders", 5, {"All", "Homework", "Tasks", "Events"}, {"Today"},
         "This Reminder List...", {"PictureBoxReminders", "PictureBoxStudyTime", "picLock"},
         {"ButtonNewAssignment", "ButtonNewTask", "ButtonNewEvent", "PictureBoxTerm"},
         {{"LabelTotalAssignments", "Assignments:"}, {"LabelFinishedAssignments", "Tasks:"},
          {"LabelTimeRemaining", "Events:"}},
         {"TextBoxAssignments", "TextBoxTasks", "TextBoxEvents"}},
    };
    return table;
}

TEST(Modes, EachModeSetsItsWholeTable) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    for (int pass = 0; pass < 2; ++pass) {
        for (const ModeExpectation& mode : expectations()) {
            window.click(mode.menu);
            SCOPED_TRACE(mode.menu);
            int ticks = 0;
            for (const char* menu : {"MenuHomework", "MenuStudySessions", "MenuTasks", "MenuEvents", "MenuReminders"})
                ticks += window.c(menu).checked;
            EXPECT_EQ(ticks, 1);
            EXPECT_TRUE(window.c(mode.menu).checked);
            EXPECT_EQ(window.state.StatusBarText, mode.status);
            EXPECT_EQ(window.state.SortColumn, mode.sortColumn);
            EXPECT_EQ(window.state.SortDirection, 1);
            EXPECT_EQ(window.c("ComboList").items, mode.listEntries);
            EXPECT_EQ(window.c("ComboDateRange").items, mode.rangeEntries);
            EXPECT_EQ(window.c("MenuExportList").caption, mode.exportList);
            for (const std::string& name : mode.shown) EXPECT_TRUE(window.c(name).visible) << name;
            for (const std::string& name : mode.hidden) EXPECT_FALSE(window.c(name).visible) << name;
            for (const auto& [label, caption] : mode.labels) {
                EXPECT_TRUE(window.c(label).visible) << label;
                EXPECT_EQ(window.c(label).caption, caption);
            }
            int boxesShown = 0;
            for (const std::string& key : window.order())
                if (key.rfind("TextBox", 0) == 0 && window.c(key).container.empty() && window.c(key).visible) ++boxesShown;
            EXPECT_EQ(boxesShown, int(mode.boxes.size()));
            for (const std::string& box : mode.boxes) EXPECT_TRUE(window.c(box).visible) << box;
            EXPECT_TRUE(window.c("PictureBoxViewMenus").visible);
            EXPECT_EQ(window.state.SuppressComboEvents, kFalse);
        }
    }
}

TEST(Modes, OnlyTheCurrentModesBarPictureIsPressed) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    window.click("PictureBarTasks");
    EXPECT_EQ(window.c("PictureBarTasks").picture, "TasksDown");
    EXPECT_EQ(window.c("PictureBarHomework").picture, "HomeworkUp");
    EXPECT_EQ(window.c("PictureBarReminders").picture, "RemindersUp");
    EXPECT_TRUE(window.c("MenuNewTask").enabled);
    EXPECT_FALSE(window.c("MenuNewAssignment").enabled);
    EXPECT_EQ(window.c("MenuExportCalendar").caption, "Task Calendar...");
}

TEST(Modes, FilterChoicesAreRememberedPerModeButTheSortIsNot) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    window.select("ComboList", "Done");
    window.select("ComboDateRange", "Day");
    window.state.SortColumn = 3;
    window.click("MenuTasks");
    EXPECT_EQ(window.c("ComboList").text, "All");
    EXPECT_EQ(window.c("ComboDateRange").text, "All");
    window.select("ComboDateRange", "Without Date");
    window.click("MenuHomework");
    EXPECT_EQ(window.c("ComboList").text, "Done");
    EXPECT_EQ(window.c("ComboDateRange").text, "Day");
    EXPECT_EQ(window.state.SortColumn, 7);
    window.click("MenuTasks");
    EXPECT_EQ(window.c("ComboDateRange").text, "Without Date");
}

TEST(Modes, AClickOnTheCurrentModeDoesNothing) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    window.state.SortColumn = 2;
    window.state.RefreshReason = "None";
    window.click("PictureBarHomework");
    window.click("MenuHomework");
    EXPECT_EQ(window.state.SortColumn, 2);
}

TEST(Modes, RemindersModeSelectsTodayAndLocksTheCalendar) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    window.click("LabelCalDate(3)");
    ASSERT_NE(window.state.ClickedDate, main.fake.clock.today());
    window.click("MenuReminders");
    EXPECT_EQ(window.state.ClickedDate, main.fake.clock.today());
    EXPECT_TRUE(window.c("picLock").visible);
    const Date before = window.state.ClickedDate;
    window.click("LabelCalDate(3)");
    window.click("LabelTomorrow");
    EXPECT_EQ(window.state.ClickedDate, before);
    window.click("MenuTasks");
    EXPECT_FALSE(window.c("picLock").visible);
}

}  // namespace
}  // namespace qh
