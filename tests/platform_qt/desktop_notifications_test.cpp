// Desktop notices through the real D-Bus path to a real notification server: dunst on a
// private session bus, started and stopped by the test. tests/platform_qt/
// desktop_notifications.sh sets the bus and the display up; run alone, these tests skip.
// The planner's window model runs on the fake platform except for its notifications.
#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDeadlineTimer>
#include <QProcess>
#include <QThread>

#include "platform/fake/fake_platform.h"
#include "platform/qt/qt_notifications.h"
#include "qt_test_support.h"
#include "record_store/columns.h"
#include "shell/main_window.h"
#include "support/main_window_fixture.h"
#include "support/record_fields.h"

namespace qh {
namespace {

bool underServerScript() { return qEnvironmentVariableIsSet("QH_NOTIFICATION_SERVER_TEST"); }

// Lets the event loop run until `done` holds or five seconds pass.
bool waitFor(const std::function<bool()>& done) {
    const QDeadlineTimer deadline(5000);
    while (!done()) {
        if (deadline.hasExpired()) return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QThread::msleep(10);
    }
    return true;
}

// What dunstctl answers to the words of `arguments`.
std::string dunstctl(const char* arguments) {
    QProcess process;
    process.start(QStringLiteral("dunstctl"), QString::fromLatin1(arguments).split(' '));
    process.waitForFinished(5000);
    return process.readAllStandardOutput().toStdString();
}

int displayedNotices() { return std::atoi(dunstctl("count displayed").c_str()); }

// Closes the notices shown into the history, and reads the history.
std::string historyOnceClosed() {
    dunstctl("close-all");
    EXPECT_TRUE(waitFor([] { return displayedNotices() == 0; }));
    return dunstctl("history");
}

// The planner on a fake drive with one assignment due on the 24th (a day's notice), its
// notices going through the real service.
struct Planner {
    FakePlatform fake;
    QtNotifications notifications{[](const std::function<void()>& answer) { answer(); }};
    Platform platform{fake.environment, fake.clock,     fake.locale, fake.messages, fake.files,
                      fake.processes,   fake.dialogs,   fake.windowing, fake.canvases, fake.calendars,
                      notifications};
    RecordStore store;
    std::unique_ptr<MainWindow> window;

    explicit Planner(int day, const std::string& settings = {}) {
        const std::string data = fake.dataDirectory();
        fake.writeBytes(data + "/Terms.txt", termRecord(1, "Fall 2026", "2026/08/20", "2026/12/18"));
        fake.writeBytes(data + "/Classes.txt", classRecord(1, 1, "Algebra"));
        fake.writeBytes(data + "/Assignments.txt",
                        assignmentRecord(AssignmentFields{.recordNo = 1, .date = "2026/11/24",
                                                          .description = "Problem set 7", .reminder = "1 Day"}));
        if (!settings.empty()) fake.writeBytes(data + "/DesktopReminders.ini", settings);
        fake.clock.set(2026, 11, day, 9, 0);
        window = std::make_unique<MainWindow>(store, platform);
        window->Form_Load();
        fake.windowing.show(*window);
        window->tick(window->ui.TimerDesktopReminders.key());
    }
    std::string remembered() const { return fake.bytesOf(fake.dataDirectory() + "/DesktopReminders.ini"); }
    bool told() const { return remembered().find("LastDay=") != std::string::npos; }
};

TEST(DesktopNotificationsWithoutBus, ThePlannerGoesOnSilently) {
    if (!underServerScript()) GTEST_SKIP() << "runs under tests/platform_qt/desktop_notifications.sh";
    testApplication();
    ASSERT_FALSE(QDBusConnection::sessionBus().isConnected());
    Planner planner(23);
    EXPECT_EQ(planner.window->state.StatusBarText, "Homework Mode");
    EXPECT_FALSE(planner.told());
    EXPECT_TRUE(planner.fake.messages.shown.empty());
}

class DesktopNotificationsOnDunst : public ::testing::Test {
protected:
    void SetUp() override {
        if (!underServerScript()) GTEST_SKIP() << "runs under tests/platform_qt/desktop_notifications.sh";
        testApplication();
        ASSERT_TRUE(QDBusConnection::sessionBus().isConnected());
    }
    void TearDown() override {
        if (dunst_.state() != QProcess::NotRunning) {
            dunst_.terminate();
            dunst_.waitForFinished(5000);
        }
    }
    void startDunst() {
        dunst_.start(QStringLiteral("dunst"), {});
        ASSERT_TRUE(dunst_.waitForStarted(5000));
        ASSERT_TRUE(waitFor([] {
            return QDBusConnection::sessionBus().interface()->isServiceRegistered(
                QStringLiteral("org.freedesktop.Notifications"));
        })) << "dunst did not take the notification service";
    }
    QProcess dunst_;
};

TEST_F(DesktopNotificationsOnDunst, WithoutTheServiceOneStatusLineAndNothingRemembered) {
    Planner planner(23);
    ASSERT_TRUE(waitFor([&] { return planner.window->state.StatusBarText != "Homework Mode"; }));
    EXPECT_EQ(planner.window->state.StatusBarText, "No desktop reminders: no notification service");
    EXPECT_FALSE(planner.told());
}

TEST_F(DesktopNotificationsOnDunst, TellsWhatIsDueAndItsActionShowsTodaysReminders) {
    startDunst();
    Planner planner(23);
    ASSERT_TRUE(waitFor([&] { return planner.told(); })) << "the service never took the notice";
    ASSERT_TRUE(waitFor([] { return displayedNotices() == 1; }));

    // The default action, as a click on the notice; then it is closed into the history.
    dunstctl("action 0");
    ASSERT_TRUE(waitFor([&] { return planner.window->CurrentMode() == Mode::Reminders; }));
    EXPECT_EQ(planner.fake.windowing.log.back(), "raise frmMain");
    std::string history = historyOnceClosed();
    EXPECT_NE(history.find("\"Today's Reminders\""), std::string::npos) << history;
    EXPECT_NE(history.find("\"1 assignment needs you soon\\nTomorrow: Problem set 7 (Algebra)\""),
              std::string::npos)
        << history;

    // The next day comes while the planner runs: a new notice, read back from the history.
    planner.fake.clock.set(2026, 11, 24, 0, 0, 5);
    planner.window->tick(planner.window->ui.TimerStatusBar.key());
    ASSERT_TRUE(waitFor([&] { return planner.remembered().find("2026/11/24") != std::string::npos; }));
    ASSERT_TRUE(waitFor([] { return displayedNotices() == 1; }));
    history = historyOnceClosed();
    EXPECT_NE(history.find("\"1 assignment needs you soon\\nToday: Problem set 7 (Algebra)\""), std::string::npos)
        << history;
}

TEST_F(DesktopNotificationsOnDunst, NothingDueOrSwitchedOffSendsNothing) {
    startDunst();
    const std::string before = dunstctl("count history");
    Planner nothingDue(20);
    Planner switchedOff(23, "[Desktop Reminders]\r\nEnabled=False\r\n");
    EXPECT_FALSE(switchedOff.window->ui.MenuDesktopReminders->checked);
    // Any notice sent would have been taken within this time.
    waitFor([] { return displayedNotices() != 0; });
    EXPECT_EQ(displayedNotices(), 0);
    EXPECT_EQ(dunstctl("count history"), before);
    EXPECT_FALSE(nothingDue.told());
    EXPECT_FALSE(switchedOff.told());
    EXPECT_EQ(nothingDue.window->state.StatusBarText, "Homework Mode");
}

TEST(QtNotificationsFailure, NamesTheUsualErrorsInTheUsersWords) {
    EXPECT_EQ(QtNotifications::failureText(QStringLiteral("org.freedesktop.DBus.Error.ServiceUnknown"), {}),
              "no notification service");
    EXPECT_EQ(QtNotifications::failureText(QStringLiteral("org.freedesktop.DBus.Error.NoReply"), {}),
              "the notification service did not answer");
    EXPECT_EQ(QtNotifications::failureText(QStringLiteral("x.Denied"), QStringLiteral("not now")),
              "the notification service refused (not now)");
}

}  // namespace
}  // namespace qh
