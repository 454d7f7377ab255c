#include <gtest/gtest.h>

#include <algorithm>

#include "support/main_window_fixture.h"

namespace qh {
namespace {

using Ui = MainWindowControls;

// The controls a mode switch shows or hides (the menus: enables or disables).
ControlRef Ui::*const kSwitched[] = {
    &Ui::ButtonNewAssignment,      &Ui::ButtonNewTask,       &Ui::ButtonNewEvent, &Ui::PictureBoxStudySessions,
    &Ui::PictureBoxReminders,      &Ui::PictureBoxStudyTime, &Ui::PictureBoxTerm, &Ui::picLock,
    &Ui::LabelFinishedAssignments, &Ui::MenuNewAssignment,   &Ui::MenuNewTask,    &Ui::MenuNewEvent};

struct ModeCase {
    ControlRef Ui::*menu;
    ControlRef Ui::*bar;
    const char* status;
    std::vector<std::string> listEntries, rangeEntries;
    std::vector<ControlRef Ui::*> on;     // of kSwitched; all others off
    std::vector<ControlRef Ui::*> boxes;  // the summary boxes shown
};

const ModeCase kModes[] = {
    {&Ui::MenuHomework, &Ui::PictureBarHomework, "Homework Mode", {"All", "Done", "Not Done"}, {"Day", "Term"},
     {&Ui::ButtonNewAssignment, &Ui::PictureBoxTerm, &Ui::LabelFinishedAssignments, &Ui::MenuNewAssignment},
     {&Ui::TextBoxTotalAssignments, &Ui::TextBoxFinishedAssignments, &Ui::TextBoxTimeRemaining}},
    {&Ui::MenuStudySessions, &Ui::PictureBarStudySessions, "Study Session Mode", {"All"}, {"Day", "Term"},
     {&Ui::ButtonNewAssignment, &Ui::PictureBoxStudySessions, &Ui::PictureBoxTerm},
     {&Ui::TextBoxStudySessions, &Ui::TextBoxStudyTime}},
    {&Ui::MenuTasks, &Ui::PictureBarTasks, "Task Mode", {"All", "Done", "Not Done"},
     {"Day", "All", "With Date", "Without Date"}, {&Ui::ButtonNewTask, &Ui::MenuNewTask},
     {&Ui::TextBoxTotalTasks, &Ui::TextBoxFinishedTasks}},
    {&Ui::MenuEvents, &Ui::PictureBarEvents, "Event Mode", {"All", "Classes", "Other Events"},
     {"Day", "Week", "Month", "Year"}, {&Ui::ButtonNewEvent, &Ui::MenuNewEvent},
     {&Ui::TextBoxClasses, &Ui::TextBoxOtherEvents}},
    {&Ui::MenuReminders, &Ui::PictureBarReminders, "Today's Reminders", {"All", "Homework", "Tasks", "Events"},
     {"Today"}, {&Ui::PictureBoxReminders, &Ui::PictureBoxStudyTime, &Ui::picLock, &Ui::LabelFinishedAssignments},
     {&Ui::TextBoxAssignments, &Ui::TextBoxTasks, &Ui::TextBoxEvents}},
};

// Twice round, so that each mode is also entered from every other and must undo what it left.
TEST(Modes, EachModeSetsItsWholeTableAndItsStatusBar) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    const Ui& ui = window.ui;
    const auto& statusBar = static_cast<const RecordingCanvas&>(*ui.picStatusBar->canvas);
    for (int pass = 0; pass < 2; ++pass) {
        for (const ModeCase& mode : kModes) {
            window.click((ui.*mode.menu).key());
            SCOPED_TRACE((ui.*mode.menu).key());
            for (const ModeCase& other : kModes) {
                EXPECT_EQ((ui.*other.menu)->checked, &other == &mode) << (ui.*other.menu).key();
                const std::string& picture = (ui.*other.bar)->picture;
                EXPECT_EQ(picture.ends_with("Down"), &other == &mode) << picture;
            }
            EXPECT_EQ(statusBar.texts(),
                      (std::vector<std::string>{mode.status, "Saturday, November 21, 2026      09:05 PM"}));
            EXPECT_EQ(statusBar.calls().back().x2, statusBar.scaleWidth() - 150);  // right-aligned
            EXPECT_EQ(ui.ComboList->items, mode.listEntries);
            EXPECT_EQ(ui.ComboDateRange->items, mode.rangeEntries);
            for (const auto switched : kSwitched) {
                const ControlRef& control = ui.*switched;
                const bool expected = std::ranges::count(mode.on, switched) == 1;
                EXPECT_EQ(control.key().starts_with("Menu") ? control->enabled : control->visible, expected)
                    << control.key();
            }
            std::vector<std::string> boxes, expected;
            for (const std::string& key : window.order())
                if (key.starts_with("TextBox") && window.c(key).container.empty() && window.c(key).visible)
                    boxes.push_back(key);
            for (const auto box : mode.boxes) expected.push_back((ui.*box).key());
            std::ranges::sort(boxes);
            std::ranges::sort(expected);
            EXPECT_EQ(boxes, expected);
            EXPECT_FALSE(window.state.SuppressComboEvents);
        }
    }
    main.fake.clock.advanceSeconds(60);  // the status bar's clock goes on
    window.tick(ui.TimerStatusBar.key());
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
