#include <gtest/gtest.h>

#include "support/main_window_fixture.h"

namespace qh {
namespace {

// The time comes from the clock, not from counting ticks, so a late tick loses nothing.
TEST(Stopwatch, RunsFromTheClockAddsUpItsRunsAndShowsTheTimeInTwoForms) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    const MainWindowControls& ui = window.ui;
    window.click(ui.MenuStudySessions.key());
    auto run = [&](long long seconds) {
        main.fake.clock.advanceSeconds(seconds);
        window.tick(ui.Timer1.key());
        return ui.LabelTime->caption;
    };
    EXPECT_EQ(ui.LabelTime->caption, "00:00");
    window.click(ui.ButtonStart.key());
    EXPECT_EQ(ui.ButtonStart->caption, "Pause");
    EXPECT_FALSE(ui.ButtonReset->enabled);
    EXPECT_EQ(ui.LabelTime->foreColor, 0x000000u);
    EXPECT_EQ(run(61 * 60 + 4), "01:01");
    EXPECT_EQ(run(1), "01 01");  // the colon blinks with the seconds
    window.click(ui.ButtonStart.key());
    EXPECT_EQ(ui.ButtonStart->caption, "Start");
    EXPECT_TRUE(ui.ButtonReset->enabled);
    EXPECT_EQ(ui.LabelTime->foreColor, rgb(160, 160, 160));
    main.fake.clock.advanceSeconds(3600);  // paused: not counted
    window.click(ui.ButtonStart.key());
    window.click(ui.MenuTasks.key());  // it keeps running in another mode
    EXPECT_EQ(run(61), "01:02");
    window.click(ui.LabelTime.key());
    EXPECT_EQ(ui.LabelTime->caption, "01:02:06");
    EXPECT_EQ(run(100 * 3600), "01:02:06");  // after 99 hours the count starts again
    window.click(ui.ButtonStart.key());
    window.click(ui.ButtonReset.key());
    EXPECT_EQ(ui.LabelTime->caption, "00:00:00");
    window.click(ui.LabelTime.key());
    EXPECT_EQ(ui.LabelTime->caption, "00:00");
}

}  // namespace
}  // namespace qh
