#include <gtest/gtest.h>

#include "support/main_window_fixture.h"

namespace qh {
namespace {

// Running, the time is black and Reset is off; paused, it is grey and Reset is on. Past
// 99 hours the count starts again. The times it shows, paused, in another mode and in
// both forms are the probe script stopwatch_reads_the_clock's.
TEST(Stopwatch, GreyAndResettableOnlyWhilePausedAndBackToNoughtAfter99Hours) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    const MainWindowControls& ui = window.ui;
    window.click(ui.MenuStudySessions.key());
    window.click(ui.ButtonStart.key());
    EXPECT_FALSE(ui.ButtonReset->enabled);
    EXPECT_EQ(ui.LabelTime->foreColor, 0x000000u);
    main.fake.clock.advanceSeconds(100 * 3600 + 60);
    window.tick(ui.Timer1.key());
    EXPECT_EQ(ui.LabelTime->caption, "00:01");
    window.click(ui.ButtonStart.key());
    EXPECT_TRUE(ui.ButtonReset->enabled);
    EXPECT_EQ(ui.LabelTime->foreColor, rgb(160, 160, 160));
}

}  // namespace
}  // namespace qh
