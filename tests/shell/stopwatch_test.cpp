#include <gtest/gtest.h>

#include "support/main_window_fixture.h"

namespace qh {
namespace {

class Stopwatch : public ::testing::Test {
protected:
    LoadedMainWindow main;
    MainWindow* window = nullptr;
    void SetUp() override {
        window = &main.load();
        window->click("MenuStudySessions");
    }
    void run(long long seconds) {
        main.fake.clock.advanceSeconds(seconds);
        window->tick("Timer1");
    }
    std::string shown() const { return window->c("LabelTime").caption; }
};

TEST_F(Stopwatch, RunsFromTheClockAndAddsUpItsRuns) {
    EXPECT_EQ(shown(), "00:00");
    window->click("ButtonStart");
    EXPECT_EQ(window->c("ButtonStart").caption, "Pause");
    EXPECT_FALSE(window->c("ButtonReset").enabled);
    EXPECT_EQ(window->c("LabelTime").foreColor, 0x000000u);
    run(61 * 60 + 4);  // a late tick loses nothing
    EXPECT_EQ(shown(), "01:01");
    window->click("ButtonStart");
    EXPECT_EQ(window->c("ButtonStart").caption, "Start");
    EXPECT_TRUE(window->c("ButtonReset").enabled);
    EXPECT_EQ(window->c("LabelTime").foreColor, rgb(160, 160, 160));
    main.fake.clock.advanceSeconds(3600);  // paused: not counted
    window->click("ButtonStart");
    run(60);
    EXPECT_EQ(window->state.StopwatchMinutes, 2);
    EXPECT_EQ(window->state.StopwatchSeconds, 4);
    EXPECT_EQ(shown(), "01:02");
}

TEST_F(Stopwatch, TheShortFormsColonBlinksAndTheLabelSwitchesForms) {
    window->click("ButtonStart");
    run(5);
    EXPECT_EQ(shown(), "00 00");
    run(1);
    EXPECT_EQ(shown(), "00:00");
    window->click("LabelTime");
    EXPECT_EQ(shown(), "00:00:06");
    window->click("LabelTime");
    EXPECT_EQ(shown(), "00:00");
}

TEST_F(Stopwatch, HoursWrapAfterNinetyNineAndResetReturnsToZero) {
    window->click("ButtonStart");
    run(100 * 3600 + 2 * 60);
    EXPECT_EQ(shown(), "00:02");
    window->click("ButtonStart");
    window->click("ButtonReset");
    EXPECT_EQ(shown(), "00:00");
    EXPECT_EQ(window->state.StopwatchTotal, 0);
}

TEST_F(Stopwatch, AClockMovedDuringARunMovesTheMeasuredTime) {
    window->click("ButtonStart");
    main.fake.clock.advanceSeconds(-30);
    main.fake.clock.advanceSeconds(30 + 7200);
    window->tick("Timer1");
    EXPECT_EQ(window->state.StopwatchHours, 2);
}

TEST_F(Stopwatch, KeepsRunningWhenTheModeChanges) {
    window->click("ButtonStart");
    window->click("MenuTasks");
    EXPECT_TRUE(window->c("Timer1").enabled);
    EXPECT_FALSE(window->c("PictureBoxStudySessions").visible);
}

}  // namespace
}  // namespace qh
