// Calendar feeds over the real network: a student subscribes through the probe to a
// collection on a real Radicale server, sees the deadlines, and refreshes as the teacher
// adds, changes and removes them; then the server stops and the planner carries on. The
// answers a calendar server does not give on demand come from a scripted server.
#include <gtest/gtest.h>

#include <QFile>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QTemporaryDir>
#include <sstream>

#include "platform/qt/network/qt_feed_fetcher.h"
#include "probe_session.h"
#include "radicale_server.h"
#include "scripted_http_server.h"
#include "shell/feed_subscriptions.h"
#include "support/fake_platform.h"
#include "support/main_window_fixture.h"

namespace qh {
namespace {

using test::RadicaleServer;
using test::ScriptedHttpServer;

// A drive with a term and its class, driven by the probe with the real network.
struct FeedDrive {
    FakePlatform fake;
    QtFeedFetcher fetcher{[](const std::function<void()>& answer) { answer(); }};
    std::ostringstream out;
    std::unique_ptr<ProbeSession> session;

    FeedDrive() {
        fake.writeBytes(fake.dataDirectory() + "/Terms.txt", termRecord(1, "Fall 2026", "2026/08/20", "2026/12/18"));
        fake.writeBytes(fake.dataDirectory() + "/Classes.txt", classRecord(1, 1, "Algebra", "Black", "MistyRose"));
        session = std::make_unique<ProbeSession>(fake.drive, fake.host, out, fetcher);
        run("clock 2026-11-21 09:05\nstart\n");
    }
    // What the script printed.
    std::string run(const std::string& script) {
        out.str("");
        std::istringstream in(script);
        EXPECT_TRUE(session->run(in)) << session->failedLine() << "\n" << out.str();
        return out.str();
    }
    // A script ends with no window open: `then` finishes what the preview or the
    // subscription window left open.
    std::string subscribe(const std::string& address, const std::string& then) {
        return run("click MenuSubscriptions\nclick ButtonAdd\nset TextBoxName School\nset TextBoxAddress " + address +
                   "\nclick ButtonOK\nwait 15\nprint\n" + then + "click ButtonClose\n");
    }
    std::string refreshNow() { return run("click MenuSubscriptions\nclick ButtonRefresh\nwait 15\nprint\nclick ButtonClose\n"); }
    RecordStore& store() { return session->window()->store; }
    std::string assignmentsFile() { return fake.bytesOf(fake.dataDirectory() + "/Assignments.txt"); }
};

int rowOf(const TextColumn& descriptions, const std::string& text) {
    for (int row = 1; row <= descriptions.count(); ++row)
        if (descriptions(row) == text) return row;
    return 0;
}

TEST(FeedsOnRadicale, SubscribeThenRefreshAsTheTeacherChangesTheCalendarThenGoOffline) {
    RadicaleServer server;
    if (!server.running()) GTEST_SKIP() << server.why();
    ASSERT_EQ(server.makeCalendar(), 201);
    for (const auto& [uid, summary, due] : {std::tuple{"hw1", "Problem set 5", "20261124"},
                                            std::tuple{"hw2", "Quiz review", "20261125"},
                                            std::tuple{"hw3", "Chapter 6 reading", "20261126"}})
        ASSERT_EQ(server.put(uid, test::TodoCalendar(uid, summary, due)), 201);

    FeedDrive drive;
    const std::string preview = drive.subscribe(server.collection(), "click ButtonOK\n");
    EXPECT_NE(preview.find("Window frmImportPreview"), std::string::npos) << preview;
    EXPECT_NE(preview.find("School holds 0 events, 3 to-dos and 0 deadlines."), std::string::npos) << preview;
    RecordStore& s = drive.store();
    ASSERT_EQ(s.AssignmentIDs.count(), 3);
    EXPECT_EQ(s.AssignmentDates(rowOf(s.AssignmentDescriptions, "Quiz review")), "2026/11/25");

    // Read again with nothing changed: not a record is written.
    const std::string before = drive.assignmentsFile();
    std::string shown = drive.refreshNow();
    EXPECT_NE(shown.find("3 items    up to date"), std::string::npos) << shown;
    EXPECT_EQ(drive.assignmentsFile(), before);

    // The teacher adds a deadline, moves one and takes one away.
    ASSERT_EQ(server.put("hw4", test::TodoCalendar("hw4", "Test on chapter 6", "20261201")), 201);
    ASSERT_EQ(server.put("hw1", test::TodoCalendar("hw1", "Problem set 5 (extended)", "20261127")), 201);
    ASSERT_EQ(server.remove("hw3"), 200);
    drive.refreshNow();
    EXPECT_NE(rowOf(s.AssignmentDescriptions, "Test on chapter 6"), 0);
    EXPECT_EQ(s.AssignmentDates(rowOf(s.AssignmentDescriptions, "Problem set 5 (extended)")), "2026/11/27");
    EXPECT_EQ(rowOf(s.AssignmentDescriptions, "Chapter 6 reading"), 0);

    // The server stops: the items stay, the status line says so calmly, no message.
    server.stop();
    drive.run("clock 2026-11-21 15:30\n");
    shown = drive.refreshNow();
    EXPECT_NE(shown.find("not reached since today at 09:05 AM"), std::string::npos) << shown;
    EXPECT_EQ(shown.find("Message:"), std::string::npos) << shown;
    EXPECT_EQ(drive.session->window()->state.StatusBarText, "School: not reached since today at 09:05 AM");
    EXPECT_NE(rowOf(s.AssignmentDescriptions, "Test on chapter 6"), 0);
}

TEST(FeedsOnRadicale, ASelfSignedCertificateIsRefusedWithAClearStatus) {
    RadicaleServer server(RadicaleServer::Transport::SelfSignedTls);
    if (!server.running()) GTEST_SKIP() << server.why();
    FeedDrive drive;
    const std::string shown = drive.subscribe(server.collection(), "click ButtonCancel\n");
    EXPECT_NE(shown.find("The calendar could not be read: the server's certificate is not trusted"),
              std::string::npos)
        << shown;
    EXPECT_EQ(shown.find("frmImportPreview"), std::string::npos);
    EXPECT_EQ(drive.store().AssignmentIDs.count(), 0);
}

// The answers of the fetcher itself, for servers that misbehave.
FeedAnswer fetchOnce(const std::string& address, const std::string& etag = {}) {
    QtFeedFetcher fetcher([](const std::function<void()>& answer) { answer(); });
    FeedRequest request;
    request.address = address;
    request.etag = etag;
    request.timeoutMs = 1500;
    std::optional<FeedAnswer> answer;
    fetcher.fetch(request, [&](const FeedAnswer& given) { answer = given; });
    fetcher.settle(10000);
    EXPECT_TRUE(answer);
    return answer.value_or(FeedAnswer{});
}

TEST(FeedFetcher, ServersThatMisbehaveAreToldApart) {
    using O = FeedAnswer::Outcome;
    const struct {
        ScriptedHttpServer::Answer answer;
        O outcome;
        std::string why;
    } cases[] = {
        {ScriptedHttpServer::Answer::Silent, O::Unreachable, "the server did not answer within 1 second"},
        {ScriptedHttpServer::Answer::Huge, O::Refused, "the feed is larger than 20 MB"},
        {ScriptedHttpServer::Answer::RedirectForever, O::Refused, "the feed was sent on more than 5 times"},
    };
    for (const auto& c : cases) {
        ScriptedHttpServer server(c.answer);
        const FeedAnswer answer = fetchOnce(server.address());
        EXPECT_EQ(answer.outcome, c.outcome) << c.why;
        EXPECT_EQ(answer.why, c.why);
        EXPECT_TRUE(answer.body.empty());
    }
    // Nothing listens on a port just freed.
    EXPECT_EQ(fetchOnce("http://127.0.0.1:" + std::to_string(test::FreeLoopbackPort()) + "/x.ics").outcome,
              O::Unreachable);
    EXPECT_EQ(fetchOnce("ftp://example.invalid/x.ics").why, "the address is not a web address");
}

// A secure server trusted as a school's would be (its certificate added to the trusted
// ones for the test) that sends the feed on to a plain http address: refused, never read.
TEST(FeedFetcher, ASecureFeedIsNeverSentOnToPlainHttp) {
    QTemporaryDir folder;
    const auto made = test::MakeSelfSignedCertificate(folder.path());
    if (!made) GTEST_SKIP() << "openssl could not make a certificate";
    QFile certificateFile(made->first), keyFile(made->second);
    ASSERT_TRUE(certificateFile.open(QIODevice::ReadOnly) && keyFile.open(QIODevice::ReadOnly));
    const QSslCertificate certificate(&certificateFile, QSsl::Pem);
    QSslConfiguration served = QSslConfiguration::defaultConfiguration();
    served.setLocalCertificate(certificate);
    served.setPrivateKey(QSslKey(&keyFile, QSsl::Rsa, QSsl::Pem));

    const QSslConfiguration systemTrust = QSslConfiguration::defaultConfiguration();
    QSslConfiguration trusting = systemTrust;
    trusting.addCaCertificate(certificate);
    QSslConfiguration::setDefaultConfiguration(trusting);

    const QByteArray calendar = QByteArray::fromStdString(test::TodoCalendar("hw1", "Problem set 5", "20261124"));
    ScriptedHttpServer plain(ScriptedHttpServer::Answer::NotModifiedWhenAsked, calendar);
    ScriptedHttpServer direct(ScriptedHttpServer::Answer::NotModifiedWhenAsked, calendar, served);
    ScriptedHttpServer secure(ScriptedHttpServer::Answer::RedirectTo, QByteArray::fromStdString(plain.address()),
                              served);
    // The trusted server itself is read: the refusal below is the redirect's alone.
    EXPECT_EQ(fetchOnce(direct.address()).outcome, FeedAnswer::Outcome::Fetched);
    const FeedAnswer answer = fetchOnce(secure.address());
    QSslConfiguration::setDefaultConfiguration(systemTrust);

    EXPECT_EQ(secure.requests, 1);
    EXPECT_EQ(plain.requests, 0);
    EXPECT_EQ(answer.outcome, FeedAnswer::Outcome::Refused);
    EXPECT_EQ(answer.why, "the feed was sent on to an address that is not secure");
}

TEST(FeedFetcher, AskingWithTheLastVersionGetsUnchanged) {
    const QByteArray calendar = QByteArray::fromStdString(test::TodoCalendar("hw1", "Problem set 5", "20261124"));
    ScriptedHttpServer server(ScriptedHttpServer::Answer::NotModifiedWhenAsked, calendar);
    const FeedAnswer first = fetchOnce(server.address());
    ASSERT_EQ(first.outcome, FeedAnswer::Outcome::Fetched);
    EXPECT_EQ(first.body, calendar.toStdString());
    EXPECT_EQ(first.etag, "\"v1\"");
    const FeedAnswer second = fetchOnce(server.address(), first.etag);
    EXPECT_EQ(second.outcome, FeedAnswer::Outcome::Unchanged);
    EXPECT_TRUE(server.lastRequest.contains("If-None-Match: \"v1\""));
}

}  // namespace
}  // namespace qh
