// The month calendar's widgets that a probe script does not print: today's frame, the
// arrows' pressed pictures and their repeat timer, the Today and Tomorrow buttons in
// Reminders mode, the name each cell gives a screen reader, and the refresh a header click
// spares. The dates, captions, colours and start days are in the probe scripts
// calendar_month_grid_and_start_days, calendar_arrows_and_bounds and
// calendar_in_reminders_mode.
#include <gtest/gtest.h>

#include <tuple>

#include "list_view/list_fixture.h"
#include "support/main_window_fixture.h"

namespace qh {
namespace {

class MonthNavigator : public ::testing::Test {
protected:
    LoadedMainWindow main;
    MainWindow& window = main.load();
    const MainWindowControls& ui = window.ui;
    Ymd clicked() const { return ymdOf(window.state.ClickedDate); }
    void show(Ymd date) {
        window.state.ClickedDate = window.state.DisplayedDate = dateFromYmd(date.year, date.month, date.day);
        window.Refresh(RefreshReason::Calendar);
    }
};

// Today's cell (27 on Saturday 21 November 2026) is framed; December 2026 does not hold
// it, and Today brings the frame back.
TEST_F(MonthNavigator, TodaysFrameStandsAroundTodaysCell) {
    const Control& today = ui.calendar.LabelCalDate[27];
    const Control& frame = *ui.calendar.LabelCalTileBorder;
    EXPECT_EQ(std::tie(frame.visible, frame.left, frame.top), std::make_tuple(true, today.left - 15, today.top - 15));
    show({2026, 12, 5});
    EXPECT_FALSE(frame.visible);
    window.click(ui.calendar.LabelToday.key());
    EXPECT_TRUE(frame.visible);
}

// A click on a day header that offers no start day, or on the current start day, changes
// nothing, so it refreshes nothing either: the last refresh is still the load's.
TEST_F(MonthNavigator, AHeaderThatChangesNoStartDayRefreshesNothing) {
    window.click(ui.calendar.LabelCalDay.key(2));  // Tuesday
    window.click(ui.calendar.LabelCalDay.key(0));  // Sunday, the start day already
    EXPECT_EQ(window.lastRefreshReason(), RefreshReason::ModeChange);
    window.click(ui.calendar.LabelCalDay.key(1));
    EXPECT_EQ(window.lastRefreshReason(), RefreshReason::StartDayOfWeek);
}

// A pressed arrow shows pressed and runs the repeat timer every 300 ms; released, it
// shows up again and a late tick steps nothing.
TEST_F(MonthNavigator, AHeldArrowShowsPressedAndRepeatsOnItsTimer) {
    for (const ControlRef* arrow : {&ui.calendar.picCalMonthUp, &ui.picCalDayDown}) {
        SCOPED_TRACE(arrow->key());
        window.press(arrow->key());
        EXPECT_TRUE((*arrow)->picture.ends_with("Down"));
        EXPECT_TRUE(ui.TimerButton->enabled);
        EXPECT_EQ(ui.TimerButton->interval, 300);
        window.release(arrow->key());
        EXPECT_FALSE(ui.TimerButton->enabled);
        EXPECT_TRUE((*arrow)->picture.ends_with("Up"));
        const Ymd released = clicked();
        window.tick(ui.TimerButton.key());
        EXPECT_EQ(clicked(), released);
    }
}

// Reminders mode holds the calendar on today: Today shows pressed, Tomorrow greyed, and
// an arrow starts no repeat.
TEST_F(MonthNavigator, RemindersModePressesTodayAndGreysTomorrow) {
    window.click(ui.calendar.LabelTomorrow.key());
    EXPECT_EQ(ui.calendar.picTomorrow->picture + ui.calendar.picToday->picture, "TomorrowDownTodayUp");
    window.click(ui.MenuReminders.key());
    EXPECT_EQ(ui.calendar.picTomorrow->picture + ui.calendar.picToday->picture, "TomorrowUpTodayDown");
    EXPECT_EQ(ui.calendar.LabelTomorrow->foreColor, 0xA9A9A9u);  // DarkGray
    window.press(ui.calendar.picCalMonthUp.key());
    EXPECT_FALSE(ui.TimerButton->enabled);
}

// Each cell says its whole date; today's, the selected one's and marked ones say so.
TEST_F(MonthNavigator, CellsSayTheirDay) {
    testing::addAssignment(main.store, {.date = "2026/11/24"});
    window.state.DisplayedMonth = 13;  // the marks are made again when the month is built anew
    window.Refresh(RefreshReason::Calendar);
    const Date first = FirstCellDate(2026, 11, window.state.StartDayOfWeek);
    const auto nameOf = [&](int day) {
        return ui.calendar.LabelCalDate[int(dateFromYmd(2026, 11, day) - first)].accessibleName;
    };
    EXPECT_EQ(nameOf(21), "Saturday, November 21, 2026, today, selected");
    EXPECT_EQ(nameOf(24), "Tuesday, November 24, 2026, homework due");
    EXPECT_EQ(nameOf(25), "Wednesday, November 25, 2026");
}

}  // namespace
}  // namespace qh
