#include <gtest/gtest.h>

#include <tuple>

#include "list_view/list_fixture.h"
#include "support/calendar_bounds.h"
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

TEST_F(MonthNavigator, BuildsTheFortyTwoCellsOfTheSelectedMonth) {
    // Saturday 21 November 2026, week starting on Sunday: 25 October to 5 December, the
    // other months grey, today selected (white on black, bold) and framed.
    EXPECT_EQ(ui.calendar.LabelMonth->caption, "November 2026");
    const struct {
        int cell;
        const char* caption;
        Color fore;
    } cells[] = {{0, "25", 0xA9A9A9}, {7, "1", 0x000000}, {27, "21", 0xFFFFFF}, {41, "5", 0xA9A9A9}};
    for (const auto& cell : cells) {
        const Control& label = ui.calendar.LabelCalDate[cell.cell];
        EXPECT_EQ(std::tie(label.caption, label.foreColor, label.bold),
                  std::make_tuple(cell.caption, cell.fore, cell.cell == 27));
    }
    const Control& today = ui.calendar.LabelCalDate[27];
    EXPECT_EQ(today.backColor, 0x000000u);
    const Control& frame = *ui.calendar.LabelCalTileBorder;
    EXPECT_EQ(std::tie(frame.visible, frame.left, frame.top), std::make_tuple(true, today.left - 15, today.top - 15));

    // A grey day moves the calendar to its month. December 2026 shows 29 and 30 November
    // in its first row: today stands there grey, unframed.
    window.click(ui.calendar.LabelCalDate.key(0));
    EXPECT_EQ(clicked(), (Ymd{2026, 10, 25}));
    EXPECT_EQ(ui.calendar.LabelMonth->caption, "October 2026");
    show({2026, 12, 5});
    EXPECT_EQ(ui.calendar.LabelCalDate[0].caption, "29");
    EXPECT_FALSE(frame.visible);
    window.click(ui.calendar.LabelToday.key());
    EXPECT_TRUE(frame.visible);
}

// An arrow steps once when pressed and once more at each tick while held; the month
// arrows step from the date just shown (31 January, 28 February, 28 March), and the
// date stays within 1600 to 3100.
TEST_F(MonthNavigator, ArrowsStepWhileHeldAndKeepTheDateWithinItsBounds) {
    const struct {
        Ymd from;
        const ControlRef& arrow;
        Ymd pressed, held;
    } cases[] = {
        {{2027, 1, 31}, ui.calendar.picCalMonthUp, {2027, 2, 28}, {2027, 3, 28}},
        {{2026, 11, 21}, ui.picCalDayDown, {2026, 11, 20}, {2026, 11, 19}},
        {{1600, 1, 3}, ui.calendar.picCalMonthDown, {1600, 1, 1}, {1600, 1, 1}},
        {{3100, 12, 30}, ui.picCalDayUp, {3100, 12, 31}, {3100, 12, 31}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.arrow.key());
        show(c.from);
        window.press(c.arrow.key());
        EXPECT_EQ(clicked(), c.pressed);
        EXPECT_TRUE(c.arrow->picture.ends_with("Down"));
        EXPECT_TRUE(ui.TimerButton->enabled);
        EXPECT_EQ(ui.TimerButton->interval, 300);
        window.tick(ui.TimerButton.key());
        EXPECT_EQ(clicked(), c.held);
        window.release(c.arrow.key());
        EXPECT_FALSE(ui.TimerButton->enabled);
        EXPECT_TRUE(c.arrow->picture.ends_with("Up"));
        window.tick(ui.TimerButton.key());  // released: nothing
        EXPECT_EQ(clicked(), c.held);
    }
}

// A month step beyond 1600 or 3100 shows the month asked for, caption and grid alike,
// while the date stays at the bound, pressed and held.
TEST_F(MonthNavigator, AStepBeyondTheBoundsShowsTheMonthAskedForWithTheDateAtTheBound) {
    for (const test::CalendarBoundCase& c : test::kCalendarBoundCases) {
        SCOPED_TRACE(std::string(c.startDay) + " " + c.caption);
        const std::string day = c.startDay;
        window.click((day == "Monday" ? ui.MenuStartMon : day == "Saturday" ? ui.MenuStartSat : ui.MenuStartSun).key());
        show(c.from);
        const std::string& arrow = (c.forward ? ui.calendar.picCalMonthUp : ui.calendar.picCalMonthDown).key();
        window.press(arrow);
        EXPECT_EQ(clicked(), c.held);
        test::expectCalendarBeyondBound(window, c);
        window.tick(ui.TimerButton.key());
        window.release(arrow);
        EXPECT_EQ(clicked(), c.held);
        test::expectCalendarBeyondBound(window, c);
    }
}

TEST_F(MonthNavigator, RemindersModeHoldsTheCalendarOnToday) {
    window.click(ui.calendar.LabelTomorrow.key());
    EXPECT_EQ(ui.calendar.picTomorrow->picture + ui.calendar.picToday->picture, "TomorrowDownTodayUp");
    window.click(ui.MenuReminders.key());
    EXPECT_EQ(clicked(), (Ymd{2026, 11, 21}));
    EXPECT_EQ(ui.calendar.picTomorrow->picture + ui.calendar.picToday->picture, "TomorrowUpTodayDown");
    EXPECT_EQ(ui.calendar.LabelTomorrow->foreColor, 0xA9A9A9u);  // DarkGray
    // Cells, Tomorrow and the arrows do nothing.
    window.click(ui.calendar.LabelCalDate.key(3));
    window.click(ui.calendar.LabelTomorrow.key());
    window.press(ui.calendar.picCalMonthUp.key());
    EXPECT_FALSE(ui.TimerButton->enabled);
    EXPECT_EQ(clicked(), (Ymd{2026, 11, 21}));
}

TEST_F(MonthNavigator, DayHeadersOfferTheOtherTwoStartDays) {
    auto headers = [this] {
        std::string letters, offers;
        for (int i = 0; i < 7; ++i) {
            letters += ui.calendar.LabelCalDay[i].caption;
            if (ui.calendar.LabelCalDay[i].underline) offers += std::to_string(i);
        }
        return letters + "/" + offers;
    };
    EXPECT_EQ(headers(), "SMTWTFS/16");
    window.click(ui.calendar.LabelCalDay.key(2));  // Tuesday: nothing
    window.click(ui.calendar.LabelCalDay.key(0));  // the current start day: nothing
    EXPECT_EQ(window.lastRefreshReason(), RefreshReason::ModeChange);  // still the load's
    window.click(ui.calendar.LabelCalDay.key(1));
    EXPECT_EQ(headers(), "MTWTFSS/56");
    EXPECT_EQ(window.lastRefreshReason(), RefreshReason::StartDayOfWeek);
    window.click(ui.MenuStartSat.key());
    EXPECT_EQ(headers(), "SSMTWTF/12");

    // The first cell starts the week of the 1st; a month whose 1st is the first day of
    // the week shows the whole week before it.
    const struct {
        const ControlRef* start;
        Ymd month;
        const char* firstCell;
    } cases[] = {{&ui.MenuStartSun, {2026, 11, 1}, "25"}, {&ui.MenuStartSun, {2026, 12, 1}, "29"},
                 {&ui.MenuStartMon, {2026, 11, 1}, "26"}, {&ui.MenuStartMon, {2026, 6, 1}, "25"},
                 {&ui.MenuStartSat, {2026, 11, 1}, "31"}, {&ui.MenuStartSat, {2026, 8, 1}, "25"}};
    for (const auto& c : cases) {
        window.click(c.start->key());
        show(c.month);
        EXPECT_EQ(ui.calendar.LabelCalDate[0].caption, c.firstCell) << c.start->key() << " " << c.month.month;
    }
}

TEST_F(MonthNavigator, KeysAndTheWheelMoveTheDateExceptInRemindersModeAndCellsSayTheirDay) {
    window.SetFocus(ui.calendar.picCalendar.key());
    window.pressKey(kKeyRight);
    EXPECT_EQ(clicked(), (Ymd{2026, 11, 22}));
    // A turn over a date cell reaches the calendar it lies in: up a notch is a month back.
    window.wheel(ui.calendar.LabelCalDate.key(30), 1);
    EXPECT_EQ(clicked(), (Ymd{2026, 10, 22}));
    window.wheel(ui.calendar.LabelCalDate.key(30), -2);
    EXPECT_EQ(clicked(), (Ymd{2026, 12, 22}));
    window.pressKey(kKeyHome);
    EXPECT_EQ(clicked(), (Ymd{2026, 11, 21}));

    // Each cell says its whole date; today's, the selected one's and marked ones say so.
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

    window.click(ui.MenuReminders.key());
    window.pressKey(kKeyRight);
    window.wheel(ui.calendar.picCalendar.key(), 1);
    EXPECT_EQ(clicked(), (Ymd{2026, 11, 21}));
}

}  // namespace
}  // namespace qh
