#include <gtest/gtest.h>

#include "shell/desktop_reminder_notice.h"
#include "shell/desktop_reminder_settings.h"
#include "support/main_window_fixture.h"
#include "support/record_fields.h"

namespace qh {
namespace {

// A term with one class and two assignments (one done), a dated task, an event with three
// days' notice and a yearly one with a day's notice.
void putReminderDrive(LoadedMainWindow& planner) {
    planner.putDataFile("Terms.txt", termRecord(1, "Fall 2026", "2026/08/20", "2026/12/18"));
    planner.putDataFile("Classes.txt", classRecord(1, 1, "Algebra"));
    planner.putDataFile("Assignments.txt",
                        assignmentRecord(AssignmentFields{.recordNo = 1, .date = "2026/11/24",
                                                          .description = "Problem set 7", .reminder = "1 Day"}) +
                            assignmentRecord(AssignmentFields{.recordNo = 2, .date = "2026/11/25",
                                                              .description = "Quiz review", .done = "True",
                                                              .reminder = "1 Day"}));
    planner.putDataFile("Tasks.txt", taskRecord({.recordNo = 1, .description = "Buy binder", .dateExists = "True",
                                                 .date = "2026/11/21"}));
    planner.putDataFile("Events.txt",
                        eventRecord({.recordNo = 1, .date = "2026/11/26", .description = "Soccer game",
                                     .reminder = "3 Days"}) +
                            eventRecord({.recordNo = 2, .date = "2025/11/23", .description = "Mom's birthday",
                                         .recurrence = "Year", .reminder = "1 Day"}));
}

TEST(DesktopReminderNotice, SumsTheKindsInOneSentence) {
    const struct {
        int assignments, tasks, events;
        const char* sentence;
    } cases[] = {
        {0, 0, 0, ""},
        {1, 0, 0, "1 assignment needs you soon"},
        {2, 0, 0, "2 assignments need you soon"},
        {0, 0, 1, "1 event needs you soon"},
        {0, 1, 1, "1 task and 1 event need you soon"},
        {3, 1, 2, "3 assignments, 1 task and 2 events need you soon"},
        {1, 2, 0, "1 assignment and 2 tasks need you soon"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ReminderCountSentence(c.assignments, c.tasks, c.events), c.sentence)
            << c.assignments << " " << c.tasks << " " << c.events;
}

// The notice names what Today's Reminders lists for the day, first by date, with the
// list's When words; what is done, not yet within its notice or past is left out.
TEST(DesktopReminderNotice, NamesTheDaysRemindersByDate) {
    LoadedMainWindow planner;
    putReminderDrive(planner);
    planner.load();
    const struct {
        const char* day;
        std::size_t shown;
        const char* text;
    } cases[] = {
        {"2026/11/20", 5, ""},
        {"2026/11/21", 5, "1 task needs you soon\nToday: Buy binder"},
        {"2026/11/22", 5, "1 task and 1 event need you soon\nYesterday: Buy binder\nTomorrow: Mom's birthday"},
        {"2026/11/23", 5,
         "1 assignment, 1 task and 2 events need you soon\n2 Days Ago: Buy binder\nToday: Mom's birthday\n"
         "Tomorrow: Problem set 7 (Algebra)\n3 Days: Soccer game"},
        {"2026/11/23", 2,
         "1 assignment, 1 task and 2 events need you soon\n2 Days Ago: Buy binder\nToday: Mom's birthday\n"
         "and 2 more"},
        // The event has passed and the assignment is overdue; the task waits still.
        {"2026/11/27", 5, "1 assignment and 1 task need you soon\n6 Days Ago: Buy binder\n3 Days Ago: Problem set 7 (Algebra)"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.day) + " " + std::to_string(c.shown));
        const ReminderNotice notice =
            DesktopReminderNotice(planner.store, dateFromText(c.day), planner.fake.locale, c.shown);
        EXPECT_EQ(notice.title, "Today's Reminders");
        EXPECT_EQ(notice.text, c.text);
        EXPECT_EQ(notice.fingerprint.size(), *c.text ? 16u : 0u);
    }
    // The same items give the same fingerprint, whatever is shown of them; others another.
    const Date day = dateFromText("2026/11/23");
    EXPECT_EQ(DesktopReminderNotice(planner.store, day, planner.fake.locale, 5).fingerprint,
              DesktopReminderNotice(planner.store, day, planner.fake.locale, 1).fingerprint);
    EXPECT_NE(DesktopReminderNotice(planner.store, day, planner.fake.locale).fingerprint,
              DesktopReminderNotice(planner.store, day + 1, planner.fake.locale).fingerprint);
}

TEST(DesktopReminderSettings, ReadsWhatItWritesAndKeepsDefaultsForTheRest) {
    DesktopReminderSettings off;
    off.enabled = false;
    off.lastDay = dateFromText("2026/11/23");
    off.lastItems = "0123456789abcdef";
    const std::string written = DesktopReminderSettingsText(off);
    EXPECT_EQ(written, "[Desktop Reminders]\r\nEnabled=False\r\nLastDay=2026/11/23\r\nLastItems=0123456789abcdef\r\n");
    const struct {
        std::string text;
        bool enabled;
        Date lastDay;
        const char* lastItems;
    } cases[] = {
        {written, false, off.lastDay, "0123456789abcdef"},
        {"", true, 0, ""},
        {"[Desktop Reminders]\r\nEnabled=True\r\n", true, 0, ""},
        {"Enabled=maybe\nLastDay=yesterday\nSomethingNew=1\n", true, 0, ""},
        {"Enabled = False\nLastDay=2026/11/21", false, dateFromText("2026/11/21"), ""},
    };
    for (const auto& c : cases) {
        const DesktopReminderSettings settings = ReadDesktopReminderSettingsText(c.text);
        EXPECT_EQ(settings.enabled, c.enabled) << c.text;
        EXPECT_EQ(settings.lastDay, c.lastDay) << c.text;
        EXPECT_EQ(settings.lastItems, c.lastItems) << c.text;
    }
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
