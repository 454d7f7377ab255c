#include <gtest/gtest.h>

#include <algorithm>

#include "support/main_window_fixture.h"

namespace qh {
namespace {

// The controls a mode switch shows or hides (the menus: enables or disables).
const char* const kSwitched[] = {"ButtonNewAssignment",     "ButtonNewTask",       "ButtonNewEvent",
                                 "PictureBoxStudySessions", "PictureBoxReminders", "PictureBoxStudyTime",
                                 "PictureBoxTerm",          "picLock",             "LabelFinishedAssignments",
                                 "MenuNewAssignment",       "MenuNewTask",         "MenuNewEvent"};

struct ModeCase {
    const char* menu;
    const char* bar;
    const char* status;
    std::vector<std::string> listEntries, rangeEntries;
    std::vector<std::string> on;     // of kSwitched; all others off
    std::vector<std::string> boxes;  // the summary boxes shown
};

const ModeCase kModes[] = {
    {"MenuHomework", "PictureBarHomework", "Homework Mode", {"All", "Done", "Not Done"}, {"Day", "Term"},
     {"ButtonNewAssignment", "PictureBoxTerm", "LabelFinishedAssignments", "MenuNewAssignment"},
     {"TextBoxTotalAssignments", "TextBoxFinishedAssignments", "TextBoxTimeRemaining"}},
    {"MenuStudySessions", "PictureBarStudySessions", "Study Session Mode", {"All"}, {"Day", "Term"},
     {"ButtonNewAssignment", "PictureBoxStudySessions", "PictureBoxTerm"}, {"TextBoxStudySessions", "TextBoxStudyTime"}},
    {"MenuTasks", "PictureBarTasks", "Task Mode", {"All", "Done", "Not Done"}, {"Day", "All", "With Date", "Without Date"},
     {"ButtonNewTask", "MenuNewTask"}, {"TextBoxTotalTasks", "TextBoxFinishedTasks"}},
    {"MenuEvents", "PictureBarEvents", "Event Mode", {"All", "Classes", "Other Events"}, {"Day", "Week", "Month", "Year"},
     {"ButtonNewEvent", "MenuNewEvent"}, {"TextBoxClasses", "TextBoxOtherEvents"}},
    {"MenuReminders", "PictureBarReminders", "Today's Reminders", {"All", "Homework", "Tasks", "Events"}, {"Today"},
     {"PictureBoxReminders", "PictureBoxStudyTime", "picLock", "LabelFinishedAssignments"},
     {"TextBoxAssignments", "TextBoxTasks", "TextBoxEvents"}},
};

// Twice round, so that each mode is also entered from every other and must undo what it left.
TEST(Modes, EachModeSetsItsWholeTableAndItsStatusBar) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    const auto& statusBar = static_cast<const RecordingCanvas&>(*window.c("picStatusBar").canvas);
    for (int pass = 0; pass < 2; ++pass) {
        for (const ModeCase& mode : kModes) {
            window.click(mode.menu);
            SCOPED_TRACE(mode.menu);
            for (const ModeCase& other : kModes) {
                EXPECT_EQ(window.c(other.menu).checked, &other == &mode) << other.menu;
                const std::string& picture = window.c(other.bar).picture;
                EXPECT_EQ(picture.ends_with("Down"), &other == &mode) << picture;
            }
            EXPECT_EQ(statusBar.texts(),
                      (std::vector<std::string>{mode.status, "Saturday, November 21, 2026      09:05 PM"}));
            EXPECT_EQ(statusBar.calls().back().x2, statusBar.scaleWidth() - 150);  // right-aligned
            EXPECT_EQ(window.c("ComboList").items, mode.listEntries);
            EXPECT_EQ(window.c("ComboDateRange").items, mode.rangeEntries);
            for (const std::string name : kSwitched) {
                const Control& control = window.c(name);
                const bool expected = std::ranges::count(mode.on, name) == 1;
                EXPECT_EQ(name.starts_with("Menu") ? control.enabled : control.visible, expected) << name;
            }
            std::vector<std::string> boxes;
            for (const std::string& key : window.order())
                if (key.starts_with("TextBox") && window.c(key).container.empty() && window.c(key).visible)
                    boxes.push_back(key);
            std::vector<std::string> expected = mode.boxes;
            std::ranges::sort(boxes);
            std::ranges::sort(expected);
            EXPECT_EQ(boxes, expected);
            EXPECT_FALSE(window.state.SuppressComboEvents);
        }
    }
    main.fake.clock.advanceSeconds(60);  // the status bar's clock goes on
    window.tick("TimerStatusBar");
    EXPECT_EQ(statusBar.texts().at(1), "Saturday, November 21, 2026      09:06 PM");
}

TEST(Modes, FilterChoicesAreRememberedPerModeButTheSortIsNot) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    window.select("ComboList", "Done");
    window.select("ComboDateRange", "Day");
    window.state.SortColumn = 3;
    window.state.SortDirection = SortDirection::Descending;
    window.click("MenuTasks");
    EXPECT_EQ(window.c("ComboList").text, "All");
    EXPECT_EQ(window.c("ComboDateRange").text, "All");
    window.select("ComboDateRange", "Without Date");
    window.click("MenuHomework");
    EXPECT_EQ(window.c("ComboList").text, "Done");
    EXPECT_EQ(window.c("ComboDateRange").text, "Day");
    EXPECT_EQ(window.state.SortColumn, 7);
    EXPECT_EQ(window.state.SortDirection, SortDirection::Ascending);
    window.click("MenuTasks");
    EXPECT_EQ(window.c("ComboDateRange").text, "Without Date");

    // A click on the current mode, menu or bar, runs no mode routine: the sort stands.
    window.state.SortColumn = 2;
    window.click("PictureBarTasks");
    window.click("MenuTasks");
    EXPECT_EQ(window.state.SortColumn, 2);
}

}  // namespace
}  // namespace qh
