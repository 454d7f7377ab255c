#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLocale>
#include <QMessageBox>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>

#include "common/failure.h"
#include "platform/qt/loaded_feed_fetcher.h"
#include "platform/qt/qt_platform.h"
#include "qt_test_support.h"

namespace qh {
namespace {

TEST(QtLocale, NamedFormatsFollowTheHostLocale) {
    testApplication();
    const QtLocale us(QLocale(QLocale::English, QLocale::UnitedStates));
    const Date date = dateFromYmd(2026, 11, 21);
    EXPECT_EQ(us.longDate(date), "Saturday, November 21, 2026");
    EXPECT_EQ(us.mediumDate(dateFromYmd(2027, 1, 5)), "05-Jan-27");
    EXPECT_EQ(us.shortDate(date), "11/21/2026");
    EXPECT_EQ(us.mediumTime(21 * 3600 + 5 * 60 + 59), "09:05 PM");  // no seconds
    EXPECT_EQ(us.mediumTime(0), "12:00 AM");
    EXPECT_EQ(us.monthName(1) + us.dayName(1) + us.dayName(7), "JanuarySundaySaturday");
    EXPECT_EQ(us.shortMonthName(11) + us.shortMonthName(5), "NovMay");
    const QtLocale german(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(german.dayName(2), "Montag");
    EXPECT_EQ(german.shortDate(date), "21.11.2026");
}

TEST(QtLocale, CollationIgnoresCaseButNotAccents) {
    testApplication();
    const QtLocale us(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(us.compareText("Algebra", "ALGEBRA"), 0);
    EXPECT_LT(us.compareText("algebra", "Biology"), 0);
    EXPECT_GT(us.compareText("Chemistry", "biology"), 0);
    EXPECT_LT(us.compareText("", "a"), 0);
    // Letters before accents: an accent decides only between otherwise equal texts.
    EXPECT_LT(us.compareText("Äpfel", "Birne"), 0);
    EXPECT_LT(us.compareText("resume", "Résumé"), 0);
    EXPECT_LT(us.compareText("Résumé", "resumes"), 0);
    // Malformed bytes still get a key, after the letters.
    EXPECT_GT(us.compareText("\xff\xfe", "zzz"), 0);
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

    // Commands start, and one that cannot is reported.
    EXPECT_GT(afterCrash.ownProcessId(), 0);
    EXPECT_GT(afterCrash.startCommand("true"), 0);
    EXPECT_THROW(afterCrash.startCommand("/nonexistent/HH.exe help.chm"), FileFailure);
    EXPECT_THROW(afterCrash.startCommand(""), FileFailure);
}

TEST(QtPlatform, GivesTheEnvironmentTheClockAndCanvases) {
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
    auto canvas = platform.canvases.create();
    canvas->resize(1500, 750);
    EXPECT_EQ(canvas->scaleWidth(), 1500);
}

// Runs `user` on the modal dialog once it is up.
template <typename Dialog>
void whenShown(std::function<void(Dialog*)> user) {
    QTimer::singleShot(0, [user] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        user(dialog);
    });
}

// A question with its answer, and a notice whose exclamation shows as Qt's warning.
// The test program has no network part beside it, as a drive that lost the file would not.
TEST(LoadedFeedFetcher, WithoutItsNetworkPartEveryFetchIsRefusedLaterWithTheReason) {
    testApplication();
    int handedOver = 0;
    LoadedFeedFetcher feeds([&](const std::function<void()>& answer) {
        ++handedOver;
        answer();
    });
    FeedRequest request;
    request.address = "https://school.example/feed.ics";
    std::vector<FeedAnswer> answers;
    for (int i = 0; i < 2; ++i) feeds.fetch(request, [&](const FeedAnswer& a) { answers.push_back(a); });
    EXPECT_TRUE(answers.empty());  // never from inside the call
    for (int wait = 0; wait < 100 && answers.size() < 2; ++wait) QTest::qWait(10);
    ASSERT_EQ(answers.size(), 2u);
    EXPECT_EQ(handedOver, 2);
    for (const FeedAnswer& answer : answers) {
        EXPECT_EQ(answer.outcome, FeedAnswer::Outcome::Refused);
        EXPECT_EQ(answer.why, "the planner's network part (quillhollow-network.so) is not beside the program");
    }
}

TEST(QtMessageBoxes, ShowTitleTextIconAndButtonsAndReturnTheAnswer) {
    testApplication();
    QtMessageBoxes messages;
    for (const bool question : {true, false}) {
        QStringList seen;
        whenShown<QMessageBox>([&](QMessageBox* box) {
            seen = {box->windowTitle(), box->text(), QString::number(box->buttons().size())};
            EXPECT_EQ(box->icon(), question ? QMessageBox::Information : QMessageBox::Warning);
            box->button(question ? QMessageBox::No : QMessageBox::Ok)->click();
        });
        EXPECT_EQ(messages.show("Delete this assignment?", "Quillhollow",
                                question ? MessageButtons::YesNo : MessageButtons::OK,
                                question ? MessageIcon::Information : MessageIcon::Exclamation),
                  question ? MessageAnswer::No : MessageAnswer::OK);
        EXPECT_EQ(seen, QStringList({"Quillhollow", "Delete this assignment?", question ? "2" : "1"}));
    }
}

TEST(QtDialogs, TheSaveDialogTakesFiltersExtensionAndTheReplaceQuestion) {
    testApplication();
    QTemporaryDir folder;
    PrinterChoice choice;
    QtDialogs dialogs(choice);
    FileDialogRequest request;
    request.title = "Export Assignment List to HTML File";
    request.startDirectory = folder.path().toStdString();
    request.startPath = "Homework.html";
    request.filters = {{"HTML Files (*.html)", "*.html"}, {"All Files (*.*)", "*.*"}};
    request.defaultExtension = "html";
    request.askBeforeReplace = true;

    QStringList filters;
    bool confirms = false;
    QString suffix, title;
    whenShown<QFileDialog>([&](QFileDialog* dialog) {
        filters = dialog->nameFilters();
        confirms = !dialog->testOption(QFileDialog::DontConfirmOverwrite);
        suffix = dialog->defaultSuffix();
        title = dialog->windowTitle();
        dialog->selectFile("Fall list");
        static_cast<QDialog*>(dialog)->accept();  // as the Save button does
    });
    const FileDialogAnswer answer = dialogs.fileDialog(request);
    EXPECT_EQ(filters, QStringList({"HTML Files (*.html)", "All Files (*)"}));
    EXPECT_TRUE(confirms);
    EXPECT_EQ(suffix, "html");
    EXPECT_EQ(title, "Export Assignment List to HTML File");
    ASSERT_TRUE(answer.chosen);
    EXPECT_EQ(answer.errorCode, 0);
    EXPECT_EQ(answer.fullPath, QDir(folder.path()).filePath("Fall list.html").toStdString());
    EXPECT_EQ(answer.fileTitle, "Fall list.html");

    whenShown<QFileDialog>([](QFileDialog* dialog) { dialog->reject(); });
    EXPECT_FALSE(dialogs.fileDialog(request).chosen);
}

}  // namespace
}  // namespace qh
