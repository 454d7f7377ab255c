// What the probe cannot print of a mode switch: the pressed picture of the mode's bar and
// where the status bar's clock stands. The controls, combos, boxes and status text of
// each mode, the filters each mode remembers and the clock going on are the probe script
// modes_show_their_own_controls.
#include <gtest/gtest.h>

#include "support/main_window_fixture.h"

namespace qh {
namespace {

using Ui = MainWindowControls;

TEST(Modes, EachModePressesItsBarAloneAndTheClockStaysRightAligned) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    const Ui& ui = window.ui;
    const auto& statusBar = static_cast<const RecordingCanvas&>(*ui.picStatusBar->canvas);
    const struct {
        ControlRef Ui::*menu;
        ControlRef Ui::*bar;
    } modes[] = {{&Ui::MenuHomework, &Ui::PictureBarHomework},
                 {&Ui::MenuStudySessions, &Ui::PictureBarStudySessions},
                 {&Ui::MenuTasks, &Ui::PictureBarTasks},
                 {&Ui::MenuEvents, &Ui::PictureBarEvents},
                 {&Ui::MenuReminders, &Ui::PictureBarReminders}};
    for (const auto& mode : modes) {
        window.click((ui.*mode.menu).key());
        SCOPED_TRACE((ui.*mode.menu).key());
        for (const auto& other : modes) {
            const std::string& picture = (ui.*other.bar)->picture;
            EXPECT_EQ(picture.ends_with("Down"), &other == &mode) << picture;
        }
        EXPECT_EQ(statusBar.calls().back().x2, statusBar.scaleWidth() - 150);
    }
}

}  // namespace
}  // namespace qh
