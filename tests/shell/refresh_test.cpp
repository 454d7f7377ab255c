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
    // The days of the month calendar that carry a mark.
    std::vector<int> markedDays() const {
        std::vector<int> days;
        for (std::size_t i = 0; i < 42; ++i)
            if (main.window->state.CellMarked[i]) days.push_back(ymdOf(main.window->state.CalendarDates[i]).day);
        return days;
    }
    static bool ran(const MainWindow& window, RefreshStep step) {
        const auto& steps = window.lastRefreshSteps();
        return std::find(steps.begin(), steps.end(), step) != steps.end();
    }
};

// A change of view builds the month anew before it is painted, so the marks are those of
// the list now chosen and none of the last choice stays behind.
TEST_F(RefreshDisplay, TheMarkedDaysFollowEachChoiceOfList) {
    MainWindow& window = load();
    EXPECT_EQ(markedDays(), (std::vector<int>{10, 12}));
    window.select(window.ui.ComboList.key(), "Done");
    EXPECT_EQ(markedDays(), (std::vector<int>{10}));
    window.select(window.ui.ComboList.key(), "Not Done");
    EXPECT_EQ(markedDays(), (std::vector<int>{12}));
}

// Today's Reminders always stands on today, and its calendar marks the days of the
// reminders the list has just gathered; the other modes keep the selected date.
TEST_F(RefreshDisplay, RemindersGoToTodayAndTheOtherModesKeepTheSelectedDate) {
    MainWindow& window = load();
    window.click(window.ui.calendar.LabelCalDate.key(14));
    const Date selected = window.state.ClickedDate;
    ASSERT_NE(selected, main.fake.clock.today());
    window.click(window.ui.MenuTasks.key());
    EXPECT_EQ(window.state.ClickedDate, selected);
    window.click(window.ui.MenuReminders.key());
    EXPECT_EQ(window.state.ClickedDate, main.fake.clock.today());
    EXPECT_EQ(window.ui.LabelTop->caption, "Reminders for Saturday, November 21, 2026");
    window.click(window.ui.MenuHomework.key());
    EXPECT_EQ(window.state.ClickedDate, main.fake.clock.today());
    EXPECT_EQ(markedDays(), (std::vector<int>{10, 12}));
}

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

TEST_F(RefreshDisplay, TheCombosRefreshTheViewUnlessAModeRoutineOrARefreshIsUnderWay) {
    MainWindow& window = load();
    window.click(window.ui.calendar.LabelCalDate.key(20));
    const Date selected = window.state.ClickedDate;
    window.select(window.ui.ComboDateRange.key(), "Day");  // keeps the selected date and month
    EXPECT_EQ(window.lastRefreshReason(), RefreshReason::ViewChange);
    EXPECT_EQ(window.state.ClickedDate, selected);
    EXPECT_EQ(window.state.DisplayedDate, selected);
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
