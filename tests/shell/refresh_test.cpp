#include <gtest/gtest.h>

#include "support/main_window_fixture.h"

namespace qh {
namespace {

const char* const kModeMenus[] = {"MenuHomework", "MenuStudySessions", "MenuTasks", "MenuEvents", "MenuReminders"};

// Steps by letter: R back to the shown date, M new month, Y today, C calendar, P grid
// layout, L list, G grade list, T study time. A few reasons whose steps differ by mode,
// and names that are no reason (the case counts).
TEST(RefreshDisplay, RunsEachReasonsStepsForTheTickedMode) {
    const struct {
        const char* reason;
        std::array<const char*, 5> steps;  // in the order of kModeMenus
    } rows[] = {
        {"Mode Change", {"PRCLG", "PRCLG", "PRCL", "PRCL", "PMYLCT"}},
        {"ViewChange", {"RCPL", "RCPL", "RCPL", "RCPL", "RPLCT"}},
        {"Calendar", {"CPL", "CPL", "CPL", "CPL", "MPLCT"}},
        {"NewRecord", {"RCPLG", "RCPLG", "RCPL", "RCPL", "RPLCT"}},
        {"NewTerm", {"RCPLG", "RCPLG", "", "", ""}},
        {"StartDayOfWeek", {"", "", "", "", ""}},
        {"Anything", {"", "", "", "", ""}},
    };
    LoadedMainWindow main;
    MainWindow& window = main.load();
    for (int mode = 4; mode >= 0; --mode) {
        window.click(kModeMenus[mode]);
        for (const auto& row : rows) {
            window.Refresh(row.reason);
            EXPECT_EQ(window.lastRefreshSteps(), row.steps[std::size_t(mode)]) << row.reason << " in " << kModeMenus[mode];
            EXPECT_EQ(window.state.RefreshReason, "None");
        }
    }
    // With no mode ticked nothing runs, and the reason is still reset.
    window.c("MenuHomework").checked = false;
    window.Refresh("Mode Change");
    EXPECT_EQ(window.lastRefreshSteps(), "");
    EXPECT_EQ(window.state.RefreshReason, "None");
}

TEST(RefreshDisplay, TheCombosRefreshTheViewUnlessAModeRoutineOrARefreshIsUnderWay) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    window.click("LabelCalDate(20)");
    const Date selected = window.state.ClickedDate;
    window.select("ComboDateRange", "Day");  // keeps the selected date and month
    EXPECT_EQ(window.lastRefreshSteps(), "RCPL");
    EXPECT_EQ(window.state.ClickedDate, selected);
    EXPECT_EQ(window.state.DisplayedDate, selected);
    // The list choice tints the view panel.
    for (const auto& [list, tint] : {std::pair{"Not Done", 0xE5E5FFu}, std::pair{"Done", 0xE2F7E1u}}) {
        window.select("ComboList", list);
        EXPECT_EQ(window.c("PictureBoxViewMenus").backColor, tint) << list;
    }
    window.Refresh("Resize");
    window.state.SuppressComboEvents = kTrue;
    window.select("ComboList", "Not Done");
    EXPECT_EQ(window.lastRefreshSteps(), "PL");  // still the resize
    EXPECT_EQ(window.c("PictureBoxViewMenus").backColor, 0xE2F7E1u);
    window.state.SuppressComboEvents = kFalse;
    window.state.RefreshReason = "Calendar";  // a refresh under way
    window.select("ComboDateRange", "Term");
    EXPECT_EQ(window.state.RefreshReason, "Calendar");
}

TEST(MainWindow, AMinimisedWindowRaisesNoRefreshAndTheScrollBarHandsOnItsFocus) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    window.windowState = WindowState::Minimized;
    window.Refresh("Calendar");
    window.Form_Resize();
    EXPECT_EQ(window.lastRefreshSteps(), "CPL");
    window.windowState = WindowState::Normal;
    window.Form_Resize();
    EXPECT_EQ(window.lastRefreshSteps(), "PL");

    window.focusedControl = "VSGridScroll";
    window.fire("VSGridScroll", FormEvent::GotFocus);
    EXPECT_EQ(window.focusedControl, "picGrid");
}

}  // namespace
}  // namespace qh
