// Calendar subscriptions on the fake network: subscribing through the two windows and the
// import preview, then refreshes that add, change and delete the feed's items while the
// student's own work survives, and a feed out of reach told calmly.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <functional>

#include "interchange/frm_import_preview.h"
#include "interchange/frm_subscription.h"
#include "interchange/frm_subscriptions.h"
#include "shell/feed_subscriptions.h"
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

    // Options > Calendar Subscriptions..., Add, the name and address, OK and the answer;
    // then `answered` has the subscription window, unless the answer closed it.
    void addFeed(const std::function<void(FrmSubscription&)>& answered = [](FrmSubscription&) {}) {
        drive<FrmSubscriptions>("frmSubscriptions", [](FrmSubscriptions& list) { list.click("ButtonAdd"); });
        drive<FrmSubscription>("frmSubscription", [this, answered](FrmSubscription& form) {
            form.type("TextBoxName", "School");
            form.type("TextBoxAddress", kAddress);
            form.click("ButtonOK");
            EXPECT_TRUE(form.visible);  // the answer has not come yet
            fake.feeds.settle();
            answered(form);
        });
        window->click(window->ui.MenuSubscriptions.key());
    }

    // The feed added and its preview answered.
    void subscribe(bool acceptPreview = true) {
        drive<FrmImportPreview>("frmImportPreview", [acceptPreview](FrmImportPreview& preview) {
            EXPECT_EQ(preview.c("ComboCourse(0)").text, "as assignments of Algebra");
            preview.click(acceptPreview ? "ButtonOK" : "ButtonCancel");
        });
        addFeed();
    }

    void refresh() {
        window->tick(window->ui.TimerSubscriptions.key());
        fake.feeds.settle();
    }
};

TEST(FeedSubscriptions, SubscribingReadsTheFeedOnceAndKeepsTheAddressPrivate) {
    SubscribedPlanner planner;
    planner.subscribe();
    const RecordStore& s = planner.store;
    ASSERT_EQ(s.AssignmentIDs.count(), 3);
    EXPECT_EQ(s.AssignmentClassLinks(rowOf(s.AssignmentDescriptions, "Quiz review")), "1");
    EXPECT_EQ(s.EventDescriptions(rowOf(s.EventDescriptions, "Maths club")), "Maths club");
    ASSERT_EQ(planner.fake.feeds.requests.size(), 1u);

    const std::string path = planner.fake.dataDirectory() + "/Subscriptions.txt";
    struct stat info {};
    ASSERT_EQ(::stat(path.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0600u);
    const std::string kept = planner.dataFile("Subscriptions.txt");
    EXPECT_NE(kept.find(kAddress), std::string::npos);
    EXPECT_NE(kept.find("Course\t1\tAlgebra\t1"), std::string::npos) << kept;
    // The feed's items are tied to it by number: its address stays in its own file.
    const std::string links = planner.dataFile("CalendarLinks.txt");
    EXPECT_NE(links.find("subscription 1"), std::string::npos);
    EXPECT_EQ(links.find("s3cr3t"), std::string::npos);
    EXPECT_TRUE(planner.fake.messages.shown.empty());
}

TEST(FeedSubscriptions, ACancelledPreviewOrAnUnreadableFeedSubscribesNothing) {
    SubscribedPlanner planner;
    planner.subscribe(false);
    EXPECT_EQ(planner.store.AssignmentIDs.count(), 0);
    EXPECT_TRUE(planner.window->subscriptions().subscriptions().feeds.empty());

    FeedAnswer notCalendar;
    notCalendar.outcome = FeedAnswer::Outcome::Fetched;
    notCalendar.body = "<html>Sign in</html>";
    planner.fake.feeds.answers[kAddress] = notCalendar;
    std::string said;
    planner.addFeed([&](FrmSubscription& form) {
        said = form.c("LabelStatus").caption;
        EXPECT_TRUE(form.visible);
        EXPECT_TRUE(form.c("ButtonOK").enabled);
        form.click("ButtonCancel");
    });
    EXPECT_EQ(said, "The calendar could not be read: it is not a calendar.");
    EXPECT_TRUE(planner.window->subscriptions().subscriptions().feeds.empty());
}

TEST(FeedSubscriptions, ARefreshAddsChangesAndDeletesButKeepsTheStudentsWork) {
    SubscribedPlanner planner;
    planner.subscribe();
    RecordStore& s = planner.store;
    // The student graded one deadline that the teacher later takes off the feed.
    const int graded = rowOf(s.AssignmentDescriptions, "Quiz review");
    s.AssignmentGrades(graded) = "A";
    const int studied = rowOf(s.AssignmentDescriptions, "Problem set 5");
    s.AssignmentDones(studied) = "True";

    std::vector<CalendarItem> next = planner.feed;
    next[0].summary = "Problem set 5 (extended)";
    next[0].start += 2;
    next.erase(next.begin() + 1, next.begin() + 3);  // the quiz review and the reading go
    next.push_back(deadline("a4", "Test on chapter 6", planner.monday + 8));
    planner.fake.feeds.answers[kAddress] = fetched(planner, next, "\"v2\"");
    planner.refresh();

    ASSERT_EQ(planner.fake.feeds.requests.size(), 2u);
    EXPECT_EQ(planner.fake.feeds.requests[1].etag, "\"v1\"");
    EXPECT_EQ(s.AssignmentDescriptions(studied), "Problem set 5 (extended)");
    EXPECT_EQ(s.AssignmentDones(studied), "True");
    EXPECT_EQ(s.AssignmentDates(studied), dateText(planner.monday + 3));
    EXPECT_EQ(s.AssignmentDescriptions(graded), "Quiz review");
    EXPECT_EQ(s.AssignmentGrades(graded), "A");
    EXPECT_EQ(rowOf(s.AssignmentDescriptions, "Chapter 6 reading"), 0);
    EXPECT_NE(rowOf(s.AssignmentDescriptions, "Test on chapter 6"), 0);

    // Read again from the disk, as the next start reads it.
    LoadedMainWindow again;
    again.fake.clock.set(2026, 11, 21, 9, 5);
    for (const char* name : {"Terms.txt", "Classes.txt", "Assignments.txt", "Events.txt", "CalendarLinks.txt"})
        again.putDataFile(name, planner.dataFile(name));
    again.load();
    EXPECT_EQ(again.store.AssignmentIDs.count(), 3);
    EXPECT_EQ(rowOf(again.store.AssignmentDescriptions, "Chapter 6 reading"), 0);

    const Subscription& kept = planner.window->subscriptions().subscriptions().feeds.front();
    EXPECT_EQ(kept.etag, "\"v2\"");
    EXPECT_EQ(kept.items, 3);
}

TEST(FeedSubscriptions, AFeedOutOfReachKeepsItsItemsAndSaysSoWithoutAMessage) {
    SubscribedPlanner planner;
    planner.subscribe();
    planner.fake.clock.set(2026, 11, 22, 15, 0);
    FeedAnswer offline;
    offline.why = "the server could not be reached";
    planner.fake.feeds.answers[kAddress] = offline;
    planner.refresh();

    EXPECT_EQ(planner.store.AssignmentIDs.count(), 3);
    EXPECT_TRUE(planner.fake.messages.shown.empty());
    EXPECT_EQ(planner.window->state.StatusBarText, "School: not reached since yesterday at 09:05 AM");

    FeedAnswer unchanged;
    unchanged.outcome = FeedAnswer::Outcome::Unchanged;
    planner.fake.feeds.answers[kAddress] = unchanged;
    planner.refresh();
    EXPECT_EQ(planner.window->state.StatusBarText, "School: up to date");
    std::string listed;
    planner.drive<FrmSubscriptions>("frmSubscriptions",
                                    [&](FrmSubscriptions& list) { listed = list.c("ListSubscriptions").text; });
    planner.window->click(planner.window->ui.MenuSubscriptions.key());
    EXPECT_EQ(listed, "School    " + kAddress + "    refreshed today at 03:00 PM    4 items    up to date");
    EXPECT_EQ(planner.store.AssignmentIDs.count(), 3);
}

TEST(FeedSubscriptions, AnAnswerThatComesWhileAnEditorIsOpenWaitsForIt) {
    SubscribedPlanner planner;
    planner.subscribe();
    RecordStore& s = planner.store;
    std::vector<CalendarItem> next = planner.feed;
    next.push_back(deadline("a9", "Late addition", planner.monday + 9));
    planner.fake.feeds.answers[kAddress] = fetched(planner, next, "\"v2\"");
    const int club = rowOf(s.EventDescriptions, "Maths club");
    int whileOpen = -1;
    planner.drive<Form>("frmEvent", [&](Form& editor) {
        planner.refresh();  // the timer fires and the answer arrives over the editor
        whileOpen = rowOf(s.AssignmentDescriptions, "Late addition");
        editor.click("ButtonCancel");
    });
    planner.window->EditEvent(club);
    EXPECT_EQ(whileOpen, 0);
    EXPECT_TRUE(planner.window->ui.TimerSubscriptionAnswers->enabled);
    planner.window->tick(planner.window->ui.TimerSubscriptionAnswers.key());
    EXPECT_NE(rowOf(s.AssignmentDescriptions, "Late addition"), 0);
    EXPECT_FALSE(planner.window->ui.TimerSubscriptionAnswers->enabled);
}

// The editor's "From School", the questions of a delete and the hidden item kept in
// Subscriptions.txt are the probe script's; a later refresh needs a changed feed.
TEST(FeedSubscriptions, AnItemDeletedAndHiddenStaysAwayFromLaterRefreshes) {
    SubscribedPlanner planner;
    planner.subscribe();
    RecordStore& s = planner.store;
    const int club = rowOf(s.EventDescriptions, "Maths club");
    ASSERT_NE(club, 0);
    // Delete, both questions answered Yes.
    planner.drive<Form>("frmEvent", [](Form& editor) { editor.click("ButtonDelete"); });
    planner.window->EditEvent(club);
    ASSERT_EQ(s.EventDescriptions(club), kDeletedRecord);

    // The teacher changes it: it is not brought back.
    std::vector<CalendarItem> next = planner.feed;
    next[3].summary = "Maths club (moved)";
    planner.fake.feeds.answers[kAddress] = fetched(planner, next, "\"v2\"");
    planner.refresh();
    EXPECT_EQ(rowOf(s.EventDescriptions, "Maths club (moved)"), 0);
    EXPECT_EQ(s.EventDescriptions(club), kDeletedRecord);
    EXPECT_EQ(planner.window->subscriptions().subscriptions().feeds.front().items, 3);
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
