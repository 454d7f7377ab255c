#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QSysInfo>
#include <QTemporaryDir>

#include "common/failure.h"
#include "platform/qt/qt_platform.h"
#include "qt_test_support.h"

namespace qh {
namespace {

TEST(QtLocale, NamedFormatsFollowTheHostLocale) {
    testApplication();
    const QtLocale us(QLocale(QLocale::English, QLocale::UnitedStates));
    const Date date = dateFromYmd(2026, 11, 21);
    EXPECT_EQ(us.longDate(date), "Saturday, November 21, 2026");
    EXPECT_EQ(us.mediumDate(date), "21-Nov-26");
    EXPECT_EQ(us.mediumDate(dateFromYmd(2027, 1, 5)), "05-Jan-27");
    EXPECT_EQ(us.shortDate(date), "11/21/2026");
    EXPECT_EQ(us.mediumTime(21 * 3600 + 5 * 60 + 59), "09:05 PM");  // no seconds
    EXPECT_EQ(us.mediumTime(0), "12:00 AM");
    EXPECT_EQ(us.monthName(1), "January");
    EXPECT_EQ(us.dayName(1), "Sunday");
    EXPECT_EQ(us.dayName(7), "Saturday");

    const QtLocale german(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(german.dayName(2), "Montag");
    EXPECT_EQ(german.shortDate(date), "21.11.2026");
}

TEST(QtLocale, ComparisonIgnoresCase) {
    testApplication();
    const QtLocale us(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(us.compareText("Algebra", "ALGEBRA"), 0);
    EXPECT_LT(us.compareText("algebra", "Biology"), 0);
    EXPECT_GT(us.compareText("Chemistry", "biology"), 0);
    EXPECT_LT(us.compareText("", "a"), 0);
}

TEST(QtProcesses, OneCopyAtATimeAndACrashedRunDoesNotCount) {
    testApplication();
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    const std::string lock = QDir(folder.path()).filePath("quillhollow.lock").toStdString();
    {
        QtProcesses first(lock);
        EXPECT_FALSE(first.anotherInstanceRunning());
        QtProcesses second(lock);
        EXPECT_TRUE(second.anotherInstanceRunning());
        // The answer holds for the whole run.
        EXPECT_FALSE(first.anotherInstanceRunning());
    }
    // The first copy ended: its claim went with it.
    {
        QtProcesses later(lock);
        EXPECT_FALSE(later.anotherInstanceRunning());
    }
    // A claim left by a process that no longer runs.
    QFile stale(QString::fromStdString(lock));
    ASSERT_TRUE(stale.open(QIODevice::WriteOnly));
    stale.write("2147480000\ntest_platform_qt\n" + QSysInfo::machineHostName().toUtf8() + "\n");
    stale.close();
    QtProcesses afterCrash(lock);
    EXPECT_FALSE(afterCrash.anotherInstanceRunning());
}

TEST(QtProcesses, StartsCommandsAndReportsOnesThatCannotStart) {
    testApplication();
    QtProcesses processes(QDir(QDir::tempPath()).filePath("quillhollow-test-start.lock").toStdString());
    EXPECT_GT(processes.ownProcessId(), 0);
    EXPECT_GT(processes.startCommand("true"), 0);
    EXPECT_THROW(processes.startCommand("/nonexistent/HH.exe help.chm"), FileFailure);
    EXPECT_THROW(processes.startCommand(""), FileFailure);
}

TEST(QtPlatform, GivesEveryPartOfThePlatform) {
    testApplication();
    QtPlatform qt;
    Platform& platform = qt.platform();
    setenv("QH_TEST_VARIABLE", "drive", 1);
    EXPECT_EQ(platform.environment.get("QH_TEST_VARIABLE"), "drive");
    EXPECT_EQ(platform.environment.get("QH_TEST_UNSET_VARIABLE"), "");
    const Moment now = platform.clock.now();
    EXPECT_GT(now.date, dateFromYmd(2020, 1, 1));
    EXPECT_GE(now.seconds, 0);
    EXPECT_LT(now.seconds, 86400);
    EXPECT_GT(platform.windowing.screenWidthTwips(), 0);
    EXPECT_EQ(platform.windowing.screenWidthTwips() % 15, 0);
    auto canvas = platform.canvases.create();
    canvas->resize(1500, 750);
    EXPECT_EQ(canvas->scaleWidth(), 1500);
}

}  // namespace
}  // namespace qh
