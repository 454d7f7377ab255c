#include <gtest/gtest.h>

#include "support/main_window_fixture.h"

namespace qh {
namespace {

struct RefreshRow {
    const char* reason;
    std::array<const char*, 5> steps;  // Homework, Study Sessions, Tasks, Events, Reminders
};

// The steps each reason runs per mode, with the letters R M Y C P L G T.
const RefreshRow kTable[] = {
    {"Mode Change", {"PRCLG", "PRCLG", "PRCL", "PRCL", "PMYLCT"}},
    {"ViewChange", {"RCPL", "RCPL", "RCPL", "RCPL", "RPLCT"}},
    {"Calendar", {"CPL", "CPL", "CPL", "CPL", "MPLCT"}},
    {"StartDayofWeek", {"RC", "RC", "RC", "RC", "RC"}},
    {"NewRecord", {"RCPLG", "RCPLG", "RCPL", "RCPL", "RPLCT"}},
    {"NewTerm", {"RCPLG", "RCPLG", "", "", ""}},
    {"Resize", {"PL", "PL", "PL", "PL", "PL"}},
    {"StartDayOfWeek", {"", "", "", "", ""}},  // another case is no reason
    {"Anything", {"", "", "", "", ""}},
};

void enterMode(MainWindow& window, int mode) {
    const char* menus[] = {"MenuHomework", "MenuStudySessions", "MenuTasks", "MenuEvents", "MenuReminders"};
    window.click(menus[mode]);
}

TEST(RefreshDisplay, RunsEachReasonsStepsInTheModesOrder) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    for (int mode = 4; mode >= 0; --mode) {
        enterMode(window, mode);
        for (const RefreshRow& row : kTable) {
            window.Refresh(row.reason);
            EXPECT_EQ(window.lastRefreshSteps(), row.steps[std::size_t(mode)]) << row.reason << " in mode " << mode;
            EXPECT_EQ(window.state.RefreshReason, "None");
        }
    }
}

TEST(RefreshDisplay, WithNoModeTickedOnlyResetsTheReason) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    window.c("MenuHomework").checked = false;
    window.Refresh("Mode Change");
    EXPECT_EQ(window.lastRefreshSteps(), "");
    EXPECT_EQ(window.state.RefreshReason, "None");
}

TEST(RefreshDisplay, ARangeChangeKeepsTheSelectedDateAndMonth) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    window.click("LabelCalDate(20)");
    const Date selected = window.state.ClickedDate;
    window.select("ComboDateRange", "Day");
    EXPECT_EQ(window.lastRefreshSteps(), "RCPL");
    EXPECT_EQ(window.state.ClickedDate, selected);
    EXPECT_EQ(window.state.DisplayedDate, selected);
}

TEST(RefreshDisplay, CombosRefillingInsideAModeRoutineRaiseNothing) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    window.state.SuppressComboEvents = kTrue;
    window.select("ComboList", "Done");
    EXPECT_EQ(window.lastRefreshSteps(), "PRCLG");  // still the mode change of the load
    window.state.SuppressComboEvents = kFalse;
    window.state.RefreshReason = "Calendar";  // a refresh under way
    window.select("ComboDateRange", "Day");
    EXPECT_EQ(window.state.RefreshReason, "Calendar");
}

TEST(TintViewPanel, FollowsTheListChoice) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    window.select("ComboList", "Not Done");
    EXPECT_EQ(window.c("PictureBoxViewMenus").backColor, 0xE5E5FFu);
    window.select("ComboList", "Done");
    EXPECT_EQ(window.c("PictureBoxViewMenus").backColor, 0xE2F7E1u);
    window.click("MenuEvents");
    window.select("ComboList", "Classes");
    EXPECT_EQ(window.c("PictureBoxViewMenus").backColor, 0xD7EBFAu);
}

TEST(GridScroll, HandsTheFocusItGetsToTheGrid) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    window.focusedControl = "VSGridScroll";
    window.fire("VSGridScroll", FormEvent::GotFocus);
    EXPECT_EQ(window.focusedControl, "picGrid");
}

TEST(MainWindowResize, AMinimisedWindowRaisesNoRefresh) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    window.windowState = WindowState::Minimized;
    window.Refresh("Calendar");
    window.Form_Resize();
    EXPECT_EQ(window.lastRefreshSteps(), "CPL");
    window.windowState = WindowState::Normal;
    window.Form_Resize();
    EXPECT_EQ(window.lastRefreshSteps(), "PL");
}

}  // namespace
}  // namespace qh
