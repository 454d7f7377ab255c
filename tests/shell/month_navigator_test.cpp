#include <gtest/gtest.h>

#include "shell/month_navigator.h"
#include "support/main_window_fixture.h"

namespace qh {
namespace {

TEST(FirstCellDate, AMonthStartingOnTheFirstColumnGetsAWholeRowBefore) {
    // November 2026 begins on a Sunday, June 2026 on a Monday, August 2026 on a Saturday.
    EXPECT_EQ(FirstCellDate(2026, 11, "Sunday"), dateFromYmd(2026, 10, 25));
    EXPECT_EQ(FirstCellDate(2026, 6, "Monday"), dateFromYmd(2026, 5, 25));
    EXPECT_EQ(FirstCellDate(2026, 8, "Saturday"), dateFromYmd(2026, 7, 25));
    // Otherwise the week of the first.
    EXPECT_EQ(FirstCellDate(2026, 11, "Monday"), dateFromYmd(2026, 10, 26));
    EXPECT_EQ(FirstCellDate(2026, 11, "Saturday"), dateFromYmd(2026, 10, 31));
    EXPECT_EQ(FirstCellDate(2026, 12, "Sunday"), dateFromYmd(2026, 11, 29));
}

class MonthNavigator : public ::testing::Test {
protected:
    LoadedMainWindow main;
    MainWindow* window = nullptr;
    void SetUp() override { window = &main.load(); }
    Ymd clicked() const { return ymdOf(window->state.ClickedDate); }
};

TEST_F(MonthNavigator, BuildsTheFortyTwoCellsOfTheSelectedMonth) {
    // Saturday 21 November 2026, week starting on Sunday (no preferences).
    EXPECT_EQ(window->c("LabelMonth").caption, "November 2026");
    EXPECT_EQ(window->c("LabelCalDate(0)").caption, "25");  // October 25th, grey
    EXPECT_EQ(window->c("LabelCalDate(0)").foreColor, 0xA9A9A9u);
    EXPECT_EQ(window->c("LabelCalDate(7)").caption, "1");
    EXPECT_EQ(window->c("LabelCalDate(7)").foreColor, 0x000000u);
    EXPECT_EQ(window->c("LabelCalDate(41)").caption, "5");  // December 5th
    // Today is selected: bold, white on black, framed.
    const Control& today = window->c("LabelCalDate(27)");
    EXPECT_EQ(today.caption, "21");
    EXPECT_TRUE(today.bold);
    EXPECT_EQ(today.foreColor, 0xFFFFFFu);
    EXPECT_EQ(today.backColor, 0x000000u);
    EXPECT_TRUE(window->c("LabelCalTileBorder").visible);
    EXPECT_EQ(window->c("LabelCalTileBorder").left, today.left - 15);
    EXPECT_EQ(window->c("LabelCalTileBorder").top, today.top - 15);
    EXPECT_EQ(window->state.CalendarDates[42], main.fake.clock.today());
    EXPECT_EQ(window->state.CalendarDates[45], main.fake.clock.today() + 1);
    EXPECT_EQ(window->c("picToday").picture, "TodayDown");
    EXPECT_TRUE(window->c("LabelToday").bold);
}

TEST_F(MonthNavigator, MonthOnFrom31JanuaryStepsFromTheDateJustShown) {
    window->state.ClickedDate = window->state.DisplayedDate = dateFromYmd(2027, 1, 31);
    window->Refresh("Calendar");
    window->press("picCalMonthUp");
    EXPECT_EQ(clicked(), (Ymd{2027, 2, 28}));
    EXPECT_EQ(window->c("picCalMonthUp").picture, "CalMonthRightDown");
    EXPECT_TRUE(window->c("TimerButton").enabled);
    EXPECT_EQ(window->c("TimerButton").interval, 300);
    window->tick("TimerButton");
    EXPECT_EQ(clicked(), (Ymd{2027, 3, 28}));
    window->release("picCalMonthUp");
    EXPECT_FALSE(window->c("TimerButton").enabled);
    EXPECT_EQ(window->c("picCalMonthUp").picture, "CalMonthRightUp");
    window->tick("TimerButton");  // off: nothing
    EXPECT_EQ(clicked(), (Ymd{2027, 3, 28}));
}

TEST_F(MonthNavigator, DayArrowsAndTheirRepeat) {
    window->press("picCalDayDown");
    window->tick("TimerButton");
    window->release("picCalDayDown");
    EXPECT_EQ(clicked(), (Ymd{2026, 11, 19}));
    window->press("picCalDayUp");
    window->release("picCalDayUp");
    EXPECT_EQ(clicked(), (Ymd{2026, 11, 20}));
}

TEST_F(MonthNavigator, TheFrameLeavesWithTheMonthEvenWhenTodayStandsGrey) {
    // December 2026 (Sunday start) shows 29 and 30 November in its first row.
    window->click("LabelCalDate(41)");  // December 5th
    EXPECT_EQ(window->c("LabelMonth").caption, "December 2026");
    EXPECT_EQ(window->c("LabelCalDate(0)").caption, "29");
    EXPECT_FALSE(window->c("LabelCalTileBorder").visible);
    window->click("LabelToday");
    EXPECT_TRUE(window->c("LabelCalTileBorder").visible);
}

TEST_F(MonthNavigator, TheDateIsKeptWithinItsBounds) {
    window->state.ClickedDate = window->state.DisplayedDate = dateFromYmd(1600, 1, 3);
    window->Refresh("Calendar");
    window->press("picCalMonthDown");
    window->release("picCalMonthDown");
    window->press("picCalMonthDown");
    window->release("picCalMonthDown");
    EXPECT_EQ(clicked(), (Ymd{1600, 1, 1}));
    window->state.ClickedDate = dateFromYmd(3100, 12, 30);
    window->Refresh("Calendar");
    window->press("picCalDayUp");
    window->tick("TimerButton");
    window->release("picCalDayUp");
    EXPECT_EQ(clicked(), (Ymd{3100, 12, 31}));
}

TEST_F(MonthNavigator, TomorrowButtonAndTheGreyTomorrowOfRemindersMode) {
    window->click("LabelTomorrow");
    EXPECT_EQ(clicked(), (Ymd{2026, 11, 22}));
    EXPECT_EQ(window->c("picTomorrow").picture, "TomorrowDown");
    EXPECT_EQ(window->c("picToday").picture, "TodayUp");
    EXPECT_EQ(window->c("LabelTomorrow").foreColor, 0x0000C0u);
    window->click("MenuReminders");
    EXPECT_EQ(window->c("LabelTomorrow").foreColor, 0xA9A9A9u);  // DarkGray
    // An arrow press does nothing in this mode; the release still raises the picture.
    window->c("picCalMonthUp").picture = "CalMonthRightDown";
    window->press("picCalMonthUp");
    EXPECT_FALSE(window->c("TimerButton").enabled);
    EXPECT_EQ(clicked(), (Ymd{2026, 11, 21}));
    window->release("picCalMonthUp");
    EXPECT_EQ(window->c("picCalMonthUp").picture, "CalMonthRightUp");
}

TEST_F(MonthNavigator, DayHeadersOfferTheOtherTwoStartDays) {
    auto headers = [this] {
        std::string letters, offers;
        for (int i = 0; i < 7; ++i) {
            letters += window->c("LabelCalDay", i).caption;
            if (window->c("LabelCalDay", i).underline) offers += std::to_string(i);
        }
        return letters + "/" + offers;
    };
    EXPECT_EQ(headers(), "SMTWTFS/16");
    window->click("LabelCalDay(2)");  // Tuesday: nothing
    window->click("LabelCalDay(0)");  // the current start day: nothing
    EXPECT_EQ(window->state.StartDayOfWeek, "Sunday");
    window->click("LabelCalDay(1)");
    EXPECT_EQ(window->state.StartDayOfWeek, "Monday");
    EXPECT_EQ(headers(), "MTWTFSS/56");
    EXPECT_EQ(window->lastRefreshSteps(), "RC");
    EXPECT_TRUE(window->c("MenuStartMon").checked);
    EXPECT_EQ(window->c("LabelCalDate(0)").caption, "26");
    window->click("MenuStartSat");
    EXPECT_EQ(headers(), "SSMTWTF/12");
    EXPECT_FALSE(window->c("MenuStartMon").checked);
}

TEST_F(MonthNavigator, AGreyDayMovesTheCalendarToItsMonth) {
    window->click("LabelCalDate(0)");
    EXPECT_EQ(clicked(), (Ymd{2026, 10, 25}));
    EXPECT_EQ(window->c("LabelMonth").caption, "October 2026");
}

}  // namespace
}  // namespace qh
