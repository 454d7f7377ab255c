#include <gtest/gtest.h>

#include "support/main_window_fixture.h"

namespace qh {
namespace {

// The time comes from the clock, not from counting ticks, so a late tick loses nothing.
TEST(Stopwatch, RunsFromTheClockAddsUpItsRunsAndShowsTheTimeInTwoForms) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    window.click("MenuStudySessions");
    auto run = [&](long long seconds) {
        main.fake.clock.advanceSeconds(seconds);
        window.tick("Timer1");
        return window.c("LabelTime").caption;
    };
    EXPECT_EQ(window.c("LabelTime").caption, "00:00");
    window.click("ButtonStart");
    EXPECT_EQ(window.c("ButtonStart").caption, "Pause");
    EXPECT_FALSE(window.c("ButtonReset").enabled);
    EXPECT_EQ(window.c("LabelTime").foreColor, 0x000000u);
    EXPECT_EQ(run(61 * 60 + 4), "01:01");
    EXPECT_EQ(run(1), "01 01");  // the colon blinks with the seconds
    window.click("ButtonStart");
    EXPECT_EQ(window.c("ButtonStart").caption, "Start");
    EXPECT_TRUE(window.c("ButtonReset").enabled);
    EXPECT_EQ(window.c("LabelTime").foreColor, rgb(160, 160, 160));
    main.fake.clock.advanceSeconds(3600);  // paused: not counted
    window.click("ButtonStart");
    window.click("MenuTasks");  // it keeps running in another mode
    EXPECT_EQ(run(61), "01:02");
    window.click("LabelTime");
    EXPECT_EQ(window.c("LabelTime").caption, "01:02:06");
    EXPECT_EQ(run(100 * 3600), "01:02:06");  // after 99 hours the count starts again
    window.click("ButtonStart");
    window.click("ButtonReset");
    EXPECT_EQ(window.c("LabelTime").caption, "00:00:00");
    window.click("LabelTime");
    EXPECT_EQ(window.c("LabelTime").caption, "00:00");
}

}  // namespace
}  // namespace qh
