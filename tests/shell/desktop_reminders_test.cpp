#include <gtest/gtest.h>

#include "shell/desktop_reminder_settings.h"
#include "support/main_window_fixture.h"
#include "support/record_fields.h"

namespace qh {
namespace {

// A task dated two days before the 23rd: a notice that day.
void putReminderDrive(LoadedMainWindow& planner) {
    planner.putDataFile(
        "Tasks.txt",
        taskRecord({.recordNo = 1, .description = "Buy binder", .dateExists = "True", .date = "2026/11/21"}));
}

// What the notice says day by day, and the settings file as the planner writes it and with
// values it does not know, are the desktop_notice_* probe scripts. A hand edit with blanks
// around "=" and bare line feeds is read too.
TEST(DesktopReminderSettings, ReadsAHandEditedFile) {
    const DesktopReminderSettings settings = ReadDesktopReminderSettingsText("Enabled = False\nLastDay=2026/11/21");
    EXPECT_FALSE(settings.enabled);
    EXPECT_EQ(settings.lastDay, dateFromText("2026/11/21"));
    EXPECT_EQ(settings.lastItems, "");
}

// The window's part: a notice once the window is up, the choice of it, a desktop without
// the service and a drive that cannot keep the switch. Once a day, across restarts and
// midnight, is told by the probe's notification runs.
struct DesktopRemindersWindow : ::testing::Test {
    LoadedMainWindow planner;
    MainWindow& start() {
        planner.fake.clock.set(2026, 11, 23, 8, 0);
        putReminderDrive(planner);
        MainWindow& window = planner.load();
        planner.fake.windowing.show(window);
        window.tick(window.ui.TimerDesktopReminders.key());
        return window;
    }
};

TEST_F(DesktopRemindersWindow, ChoosingTheNoticeShowsTodaysRemindersInFront) {
    MainWindow& window = start();
    ASSERT_EQ(planner.fake.notifications.sent.size(), 1u);
    EXPECT_FALSE(window.ui.TimerDesktopReminders->enabled);  // once
    EXPECT_TRUE(window.ui.MenuDesktopReminders->checked);
    window.click(window.ui.calendar.LabelCalDate.key(3));
    window.windowState = WindowState::Minimized;
    planner.fake.notifications.activateLast();
    EXPECT_EQ(window.CurrentMode(), Mode::Reminders);
    EXPECT_EQ(window.state.ClickedDate, planner.fake.clock.today());
    EXPECT_EQ(window.windowState, WindowState::Normal);
    EXPECT_EQ(window.ui.LabelTop->caption, "Reminders for Monday, November 23, 2026");
    EXPECT_EQ(planner.fake.windowing.log.back(), "raise frmMain");
}

TEST_F(DesktopRemindersWindow, WithoutTheServiceOneStatusLineAndNothingRemembered) {
    planner.fake.notifications.available = false;
    MainWindow& window = start();
    EXPECT_EQ(window.state.StatusBarText, "No desktop reminders: no notification service");
    EXPECT_TRUE(planner.dataFile("DesktopReminders.ini").empty());
    EXPECT_TRUE(planner.fake.messages.shown.empty());
}

TEST_F(DesktopRemindersWindow, TheMenuEntrySwitchesThemEvenOnADriveThatCannotBeWritten) {
    MainWindow& window = start();
    window.click(window.ui.MenuDesktopReminders.key());
    EXPECT_FALSE(window.ui.MenuDesktopReminders->checked);
    planner.fake.files.failPath("DesktopReminders.ini");
    window.click(window.ui.MenuDesktopReminders.key());
    EXPECT_TRUE(window.ui.MenuDesktopReminders->checked);
    EXPECT_TRUE(planner.fake.messages.shown.empty());
}

}  // namespace
}  // namespace qh
