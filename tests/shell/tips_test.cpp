#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "shell/about_window.h"
#include "shell/main_window.h"
#include "shell/tip_window.h"
#include "support/main_window_fixture.h"

namespace qh {
namespace {

const char* kFirstTip = "Create a new Term and Class Schedule before adding assignments.";
const char* kLastTip = "Do you know everything now? Uncheck the box below to turn off the Tip of the Day feature.";

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

TEST_F(TipOfTheDay, NextTipGoesOnAndAfterTheLastComesTheFirst) {
    const std::vector<std::string> seen = walk(tip, 29, 3);
    ASSERT_EQ(seen.size(), 4u);
    EXPECT_EQ(seen[1], std::string(kLastTip) + ">0");
    EXPECT_EQ(seen[2], std::string(kFirstTip) + ">1");
    EXPECT_EQ(seen[3], FrmTip::TipText(1, fake.environment) + ">2");
    // Once around: 31 clicks from any tip bring it back, every text different.
    std::vector<std::string> round = walk(tip, 7, 31);
    EXPECT_EQ(round.front(), round.back());
    round.pop_back();
    std::sort(round.begin(), round.end());
    EXPECT_EQ(std::unique(round.begin(), round.end()), round.end());
}

TEST_F(TipOfTheDay, ANumberOutsideTheTipsAsksForQuestionsAtTheContactPage) {
    const std::string note =
        "Have any questions? Please ask! Just go to file://" + fake.exec + "/help/contactus.html";
    const struct {
        Int16 stored;
        Int16 next;
    } cases[] = {{31, 0}, {500, 0}, {32767, 0}, {-1, 0}, {-7, -6}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.stored);
        EXPECT_EQ(walk(tip, c.stored, 0), std::vector<std::string>{note + ">" + std::to_string(c.next)});
    }
}

TEST_F(TipOfTheDay, EveryShowingTicksTheBoxAfreshAndCloseOnlyHides) {
    EXPECT_EQ(tip.caption, "Quillhollow Tip of the Day");
    EXPECT_FALSE(tip.c("ImageLite").visible);
    EXPECT_GT(tip.c("ImageFull").z, tip.c("ImageLite").z);
    for (int showing = 0; showing < 2; ++showing) {
        tip.tempShowTipsAtStartup = "No";
        tip.visible = true;
        tip.Form_Activate();
        EXPECT_TRUE(tip.c("CheckBoxShowTips").checked);
        EXPECT_EQ(tip.tempShowTipsAtStartup, "Yes");
        EXPECT_EQ(tip.focusedControl, "ButtonClose");
        EXPECT_EQ(tip.c("LabelVideo").caption, "Don't miss the Video Tutorials in the Help Menu!");
        tip.setChecked("CheckBoxShowTips", false);
        EXPECT_EQ(tip.tempShowTipsAtStartup, "No");
        if (showing == 0) {
            tip.click("ButtonClose");
        } else {
            EXPECT_FALSE(tip.requestClose(UnloadMode::CloseBox));
        }
        EXPECT_FALSE(tip.visible);
    }
    tip.setChecked("CheckBoxShowTips", true);
    EXPECT_EQ(tip.tempShowTipsAtStartup, "Yes");
}

// The main window's side: the first tick of TimerTip shows the tip modally; what the
// student chose is stored at exit and read at the next start.
TEST_F(TipOfTheDay, TheChoiceAndThePlaceGoOnAcrossARestart) {
    auto run = [this](const std::function<void(MainWindow&)>& during) {
        RecordStore store;
        MainWindow window(store, fake.platform);
        window.Form_Load();
        during(window);
        window.Form_Unload();
    };
    auto shownTips = [this] {
        return std::count(fake.windowing.log.begin(), fake.windowing.log.end(), "modal frmTip");
    };
    std::string lastShown;
    auto student = [&lastShown](bool keepTips, int nextClicks) {
        return [&lastShown, keepTips, nextClicks](Form& form) {
            for (int i = 0; i < nextClicks; ++i) form.click("ButtonNextTip");
            lastShown = form.c("LabelTip").caption;
            if (!keepTips) form.setChecked("CheckBoxShowTips", false);
            form.click("ButtonClose");
        };
    };

    // First run: tips 0, 1, 2 seen, then turned off.
    fake.windowing.modalUsers["frmTip"].push_back(student(false, 2));
    run([](MainWindow& window) {
        window.tick(window.ui.TimerTip.key());
        window.tick(window.ui.TimerTip.key());  // one shot
        EXPECT_EQ(window.state.CurrentTip, 3);
        EXPECT_EQ(window.state.ShowTipsAtStartup, "No");
    });
    EXPECT_EQ(shownTips(), 1);
    EXPECT_EQ(lastShown, FrmTip::TipText(2, fake.environment));
    const std::string preferences = fake.bytesOf(fake.dataDirectory() + "/Preferences.ini");
    EXPECT_NE(preferences.find("ShowTipsAtStartup=No\r\nCurrentTip=3\r\n"), std::string::npos);

    // Second run: no tip at the start; the menu entry turns them on and goes on at tip 3.
    fake.windowing.modalUsers["frmTip"].push_back(student(true, 0));
    run([&](MainWindow& window) {
        window.tick(window.ui.TimerTip.key());
        EXPECT_EQ(shownTips(), 1);
        window.click(window.ui.MenuShowTips.key());
        EXPECT_EQ(shownTips(), 2);
        EXPECT_EQ(lastShown, FrmTip::TipText(3, fake.environment));
    });

    // Third run: on again, from tip 4.
    fake.windowing.modalUsers["frmTip"].push_back(student(true, 0));
    run([](MainWindow& window) { window.tick(window.ui.TimerTip.key()); });
    EXPECT_EQ(shownTips(), 3);
    EXPECT_EQ(lastShown, FrmTip::TipText(4, fake.environment));
}

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
