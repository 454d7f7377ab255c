#include <gtest/gtest.h>

#include <algorithm>

#include "shell/about_window.h"
#include "shell/tip_window.h"
#include "support/main_window_fixture.h"

namespace qh {
namespace {

// Shows the window as the main window does and returns the tip numbers it names as
// "shown>next" after the showing and after each Next Tip.
std::vector<std::string> walk(FrmTip& tip, Int16 start, int nextClicks) {
    tip.tempCurrentTip = start;
    tip.Form_Activate();
    std::vector<std::string> seen;
    for (int i = 0;; ++i) {
        seen.push_back(tip.c("LabelTip").caption + ">" + std::to_string(tip.tempCurrentTip));
        if (i == nextClicks) break;
        tip.click("ButtonNextTip");
    }
    return seen;
}

// The tip window loaded as the main window loads it.
struct TipOfTheDay : ::testing::Test {
    FakePlatform fake;
    FrmTip tip{fake.environment};
    TipOfTheDay() { tip.Form_Load(); }
};

// The tips in turn, the numbers past either end and the choice across restarts are shown
// by the tip_of_the_day_* probe scripts; a whole round, every text different, is told here.
TEST_F(TipOfTheDay, ThirtyOneNextTipsComeRoundAgainEachTipDifferent) {
    std::vector<std::string> round = walk(tip, 7, 31);
    EXPECT_EQ(round.front(), round.back());
    round.pop_back();
    std::sort(round.begin(), round.end());
    EXPECT_EQ(std::unique(round.begin(), round.end()), round.end());
}

// What the probe does not print: the focus and the pictures' order, and that the close
// box only hides the window (the menu would show the tip again even if it unloaded it).
TEST_F(TipOfTheDay, EveryShowingFocusesCloseAndTheCloseBoxOnlyHides) {
    EXPECT_GT(tip.c("ImageFull").z, tip.c("ImageLite").z);
    tip.visible = true;
    tip.Form_Activate();
    EXPECT_EQ(tip.focusedControl, "ButtonClose");
    EXPECT_FALSE(tip.requestClose(UnloadMode::CloseBox));
    EXPECT_FALSE(tip.visible);
}

// With nothing focused (the probe's keys go to a control); About has no control but its
// one button to focus.
TEST_F(TipOfTheDay, EscapeAndEnterCloseTheTipAndAbout) {
    FrmAbout about(fake.platform);
    for (Form* window : std::initializer_list<Form*>{&tip, &about}) {
        for (int key : {kKeyEscape, kKeyReturn}) {
            window->Form_Load();
            window->visible = true;
            window->focusedControl.clear();
            window->pressKey(key);
            EXPECT_FALSE(window->visible) << window->name() << " key " << key;
        }
    }
}

}  // namespace
}  // namespace qh
