#include <gtest/gtest.h>

#include "support/main_window_fixture.h"

namespace qh {
namespace {

class RefreshDisplay : public ::testing::Test {
protected:
    LoadedMainWindow main;
    // Fall 2026 with one finished assignment due on 10 November and one unfinished on the 12th;
    // today is 21 November.
    MainWindow& load() {
        main.putDataFile("Terms.txt", termRecord(1, "Fall 2026", "2026/08/20", "2026/12/20"));
        main.putDataFile("Classes.txt", classRecord(1, 1, "Algebra"));
        main.putDataFile("Assignments.txt", assignmentRecord(1, 1, "2026/11/10", "Finished", true) +
                                                assignmentRecord(2, 1, "2026/11/12", "Unfinished", false));
        return main.load();
    }
    static bool ran(const MainWindow& window, RefreshStep step) {
        const auto& steps = window.lastRefreshSteps();
        return std::find(steps.begin(), steps.end(), step) != steps.end();
    }
};

// A resize lays the list out again without touching the calendar; a new term is nothing
// to the task and event lists; with no mode ticked nothing runs, and no refresh stays
// under way after any of them.
TEST_F(RefreshDisplay, EachReasonDoesOnlyTheWorkItNeeds) {
    MainWindow& window = load();
    window.Refresh(RefreshReason::Resize);
    EXPECT_TRUE(ran(window, RefreshStep::BuildList));
    EXPECT_FALSE(ran(window, RefreshStep::BuildCalendar));
    window.Refresh(RefreshReason::NewTerm);
    EXPECT_TRUE(ran(window, RefreshStep::FillGradeList));
    window.click(window.ui.MenuTasks.key());
    window.Refresh(RefreshReason::NewTerm);
    EXPECT_TRUE(window.lastRefreshSteps().empty());
    window.Refresh(RefreshReason::StartDayOfWeek);
    EXPECT_TRUE(ran(window, RefreshStep::BuildCalendar));
    EXPECT_FALSE(ran(window, RefreshStep::BuildList));
    window.state.CurrentMode = Mode::None;
    window.Refresh(RefreshReason::ModeChange);
    EXPECT_TRUE(window.lastRefreshSteps().empty());
    EXPECT_EQ(window.state.Refreshing, RefreshReason::None);
}

// What the student sees of a refresh (the marks of each list, the date each mode and the
// Day range keep, Reminders on today) is the probe script selected_date_across_modes_and_lists's;
// here the view panel's tint and the combos held back while a mode routine or a refresh runs.
TEST_F(RefreshDisplay, TheCombosRefreshTheViewUnlessAModeRoutineOrARefreshIsUnderWay) {
    MainWindow& window = load();
    // The list choice tints the view panel.
    for (const auto& [list, tint] : {std::pair{"Not Done", 0xE5E5FFu}, std::pair{"Done", 0xE2F7E1u}}) {
        window.select(window.ui.ComboList.key(), list);
        EXPECT_EQ(window.ui.PictureBoxViewMenus->backColor, tint) << list;
    }
    window.Refresh(RefreshReason::Resize);
    window.state.SuppressComboEvents = true;
    window.select(window.ui.ComboList.key(), "Not Done");
    EXPECT_EQ(window.lastRefreshReason(), RefreshReason::Resize);
    EXPECT_EQ(window.ui.PictureBoxViewMenus->backColor, 0xE2F7E1u);
    window.state.SuppressComboEvents = false;
    window.state.Refreshing = RefreshReason::Calendar;  // a refresh under way
    window.select(window.ui.ComboDateRange.key(), "Term");
    EXPECT_EQ(window.state.Refreshing, RefreshReason::Calendar);
}

TEST(MainWindow, AMinimisedWindowRaisesNoRefreshAndTheScrollBarHandsOnItsFocus) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    window.windowState = WindowState::Minimized;
    window.Refresh(RefreshReason::Calendar);
    window.Form_Resize();
    EXPECT_EQ(window.lastRefreshReason(), RefreshReason::Calendar);
    window.windowState = WindowState::Normal;
    window.Form_Resize();
    EXPECT_EQ(window.lastRefreshReason(), RefreshReason::Resize);

    window.focusedControl = window.ui.VSGridScroll.key();
    window.fire(window.ui.VSGridScroll.key(), FormEvent::GotFocus);
    EXPECT_EQ(window.focusedControl, window.ui.picGrid.key());
}

}  // namespace
}  // namespace qh
