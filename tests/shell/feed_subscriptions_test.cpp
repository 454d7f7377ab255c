// Calendar subscriptions on the fake network, where the probe scripts (calendar_feed_*)
// cannot look: the private file the address is kept in, the timer of the answers that
// waited for an editor, and a refresh the drive refuses to write.
#include "shell/feed_subscriptions.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "interchange/frm_import_preview.h"
#include "interchange/frm_subscription.h"
#include "interchange/frm_subscriptions.h"
#include "support/main_window_fixture.h"

namespace qh {
namespace {

const std::string kAddress = "webcal://school.example/feed/s3cr3t-token.ics";

CalendarItem deadline(const std::string& uid, const std::string& summary, Date due) {
    CalendarItem item;
    item.kind = CalendarItemKind::Todo;
    item.uid = uid;
    item.summary = summary;
    item.categories = {"Algebra"};
    item.start = due;
    return item;
}

CalendarItem event(const std::string& uid, const std::string& summary, Date day) {
    CalendarItem item;
    item.uid = uid;
    item.summary = summary;
    item.start = day;
    item.startMinutes = 15 * 60;
    return item;
}

FeedAnswer fetched(LoadedMainWindow& planner, const std::vector<CalendarItem>& items, const std::string& etag) {
    FeedAnswer answer;
    answer.outcome = FeedAnswer::Outcome::Fetched;
    answer.body = planner.fake.platform.calendars.write(items);
    answer.etag = etag;
    return answer;
}

int rowOf(const TextColumn& descriptions, const std::string& text) {
    for (int row = 1; row <= descriptions.count(); ++row)
        if (descriptions(row) == text) return row;
    return 0;
}

struct SubscribedPlanner : LoadedMainWindow {
    const Date monday = dateFromYmd(2026, 11, 23);
    std::vector<CalendarItem> feed{deadline("a1", "Problem set 5", monday + 1), deadline("a2", "Quiz review", monday + 2),
                                   deadline("a3", "Chapter 6 reading", monday + 3),
                                   event("e1", "Maths club", monday + 4)};

    SubscribedPlanner() {
        fake.clock.set(2026, 11, 21, 9, 5);
        putDataFile("Terms.txt", termRecord(1, "Fall 2026", "2026/08/20", "2026/12/18"));
        putDataFile("Classes.txt", classRecord(1, 1, "Algebra", "Black", "MistyRose"));
        load();
        fake.feeds.answers[kAddress] = fetched(*this, feed, "\"v1\"");
    }

    // Options > Calendar Subscriptions..., Add, the name and address, OK, the answer and
    // the preview's OK.
    void subscribe() {
        drive<FrmImportPreview>("frmImportPreview", [](FrmImportPreview& preview) { preview.click("ButtonOK"); });
        drive<FrmSubscriptions>("frmSubscriptions", [](FrmSubscriptions& list) { list.click("ButtonAdd"); });
        drive<FrmSubscription>("frmSubscription", [this](FrmSubscription& form) {
            form.type("TextBoxName", "School");
            form.type("TextBoxAddress", kAddress);
            form.click("ButtonOK");
            fake.feeds.settle();
        });
        window->click(window->ui.MenuSubscriptions.key());
    }

    void refresh() {
        window->tick(window->ui.TimerSubscriptions.key());
        fake.feeds.settle();
    }
};

// The address may hold a private token: its file is the student's alone. The feed is
// read once on subscribing.
TEST(FeedSubscriptions, TheAddressIsKeptInAFileOnlyTheStudentCanRead) {
    SubscribedPlanner planner;
    planner.subscribe();
    ASSERT_EQ(planner.store.AssignmentIDs.count(), 3);
    EXPECT_EQ(planner.fake.feeds.requests.size(), 1u);
    const std::string path = planner.fake.dataDirectory() + "/Subscriptions.txt";
    struct stat info {};
    ASSERT_EQ(::stat(path.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0600u);
}

// The answer waits for the open editor (calendar_feed_answer_waits_for_an_open_editor);
// once applied, its timer stops.
TEST(FeedSubscriptions, TheTimerOfAnAnswerThatWaitedForAnEditorStopsOnceItIsApplied) {
    SubscribedPlanner planner;
    planner.subscribe();
    std::vector<CalendarItem> next = planner.feed;
    next.push_back(deadline("a9", "Late addition", planner.monday + 9));
    planner.fake.feeds.answers[kAddress] = fetched(planner, next, "\"v2\"");
    planner.drive<Form>("frmEvent", [&](Form& editor) {
        planner.refresh();
        editor.click("ButtonCancel");
    });
    planner.window->EditEvent(rowOf(planner.store.EventDescriptions, "Maths club"));
    ASSERT_TRUE(planner.window->ui.TimerSubscriptionAnswers->enabled);
    planner.window->tick(planner.window->ui.TimerSubscriptionAnswers.key());
    EXPECT_NE(rowOf(planner.store.AssignmentDescriptions, "Late addition"), 0);
    EXPECT_FALSE(planner.window->ui.TimerSubscriptionAnswers->enabled);
}

TEST(FeedSubscriptions, AWriteTheDriveRefusesStopsTheRefreshAndTheNextAsksForTheWholeFeed) {
    SubscribedPlanner planner;
    planner.subscribe();
    RecordStore& s = planner.store;
    std::vector<CalendarItem> next = planner.feed;
    next.erase(next.begin() + 2);  // the reading goes
    next.push_back(deadline("a4", "Test on chapter 6", planner.monday + 8));
    next.push_back(deadline("a5", "Lab report", planner.monday + 9));
    planner.fake.feeds.answers[kAddress] = fetched(planner, next, "\"v2\"");
    planner.fake.files.failWrite(1);
    planner.refresh();

    // One message names the file; the rest is not tried, nothing is deleted, and the feed
    // keeps the tag of what it last applied whole.
    EXPECT_EQ(planner.fake.messages.shown.size(), 1u);
    EXPECT_EQ(rowOf(s.AssignmentDescriptions, "Lab report"), 0);
    EXPECT_NE(rowOf(s.AssignmentDescriptions, "Chapter 6 reading"), 0);
    EXPECT_EQ(planner.window->state.StatusBarText, "School: refused: its items could not be written to the drive");
    EXPECT_EQ(planner.window->subscriptions().subscriptions().feeds.front().etag, "\"v1\"");

    planner.refresh();
    EXPECT_EQ(planner.fake.feeds.requests.back().etag, "\"v1\"");
    EXPECT_NE(rowOf(s.AssignmentDescriptions, "Lab report"), 0);
    EXPECT_EQ(rowOf(s.AssignmentDescriptions, "Chapter 6 reading"), 0);
    EXPECT_EQ(planner.fake.messages.shown.size(), 1u);
    EXPECT_EQ(planner.window->subscriptions().subscriptions().feeds.front().etag, "\"v2\"");
}

}  // namespace
}  // namespace qh
