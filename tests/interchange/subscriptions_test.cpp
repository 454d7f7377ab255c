// Data/Subscriptions.txt read back as written, a damaged line passed over, a removed
// feed's number never given again; and a feed's state in words.
#include <gtest/gtest.h>

#include "interchange/feed_status.h"
#include "interchange/subscriptions.h"
#include "platform/fake/fake_platform.h"

namespace qh {
namespace {

TEST(Subscriptions, TheFileReadsBackWhatWasWrittenAndNeverReusesANumber) {
    Subscriptions written;
    Subscription& school = written.add("School\tcalendar", "webcal://school.example/s3cr3t.ics");
    school.etag = "\"v7\"";
    school.lastModified = "Thu, 26 Nov 2026 01:36:02 GMT";
    school.lastRefreshed = Moment{dateFromYmd(2026, 11, 21), 9 * 3600 + 5 * 60};
    school.lastAttempt = Moment{dateFromYmd(2026, 11, 22), 15 * 3600 + 59};
    school.items = 12;
    school.problem = "the server could not be reached";
    school.unreachable = true;
    school.courses = {{"Algebra", "3"}, {"Art", "skip"}};
    school.firstOccurrenceOnly = false;
    school.hidden = {"event-assignment-42", "hw7@school"};
    const Subscription kept = school;  // the next add may move the first
    written.add("Club", "https://club.example/c.ics");

    Subscriptions read = Subscriptions::parse(written.text() + "Feed\tx\tbroken\r\nCourse\t9\tNo such feed\ttasks\r\n");
    ASSERT_EQ(read.feeds.size(), 2u);
    const Subscription& back = read.feeds[0];
    EXPECT_EQ(back.name, "School calendar");  // a tab would break the line
    EXPECT_EQ(back.address, kept.address);
    EXPECT_EQ(back.etag, kept.etag);
    EXPECT_EQ(back.lastModified, kept.lastModified);
    EXPECT_EQ(back.lastRefreshed->date, kept.lastRefreshed->date);
    EXPECT_EQ(back.lastRefreshed->seconds, kept.lastRefreshed->seconds);
    EXPECT_EQ(back.lastAttempt->seconds, kept.lastAttempt->seconds);
    EXPECT_EQ(back.items, 12);
    EXPECT_EQ(back.problem, kept.problem);
    EXPECT_TRUE(back.unreachable);
    EXPECT_EQ(back.courses, kept.courses);
    EXPECT_FALSE(back.firstOccurrenceOnly);
    EXPECT_EQ(back.hidden, kept.hidden);
    EXPECT_FALSE(read.feeds[1].lastRefreshed);
    EXPECT_EQ(read.text(), Subscriptions::parse(read.text()).text());

    // The last feed removed, the file read again: its number stays taken, so that the
    // records it left are never mistaken for a new feed's.
    read.remove(2);
    Subscriptions again = Subscriptions::parse(read.text());
    EXPECT_EQ(again.add("Band", "https://band.example/b.ics").id, 3);
    EXPECT_EQ(again.bySource("subscription 1")->name, "School calendar");
    EXPECT_EQ(again.bySource("subscription 2"), nullptr);
}

TEST(Subscriptions, TheStateInWordsIsCalmAboutBeingOffline) {
    FakeLocale locale;
    const Moment now{dateFromYmd(2026, 11, 22), 15 * 3600};
    Subscription feed;
    EXPECT_EQ(FeedStatusText(feed, now, locale), "not read yet");
    EXPECT_EQ(FeedRefreshedText(feed, now, locale), "never");
    feed.lastAttempt = feed.lastRefreshed = Moment{dateFromYmd(2026, 11, 21), 9 * 3600 + 5 * 60};
    EXPECT_EQ(FeedStatusText(feed, now, locale), "up to date");
    feed.lastAttempt = now;
    feed.problem = "the server could not be reached";
    feed.unreachable = true;
    EXPECT_EQ(FeedStatusText(feed, now, locale), "not reached since yesterday at 09:05 AM");
    feed.lastRefreshed = Moment{dateFromYmd(2026, 11, 16), 0};
    EXPECT_EQ(FeedStatusText(feed, now, locale), "not reached since Monday, November 16, 2026 at 12:00 AM");
    feed.unreachable = false;
    feed.problem = "the server's certificate is not trusted";
    EXPECT_EQ(FeedStatusText(feed, now, locale), "refused: the server's certificate is not trusted");
}

}  // namespace
}  // namespace qh
