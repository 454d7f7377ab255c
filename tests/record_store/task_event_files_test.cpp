#include <gtest/gtest.h>

#include "store_fixture.h"

namespace qh {
namespace {

std::string taskRecord(int recordNo, const std::string& description, const std::string& date = "2026.12.01") {
    const std::string n = std::to_string(recordNo);
    return field(n, 5) + field(n, 5) + field(description, 60) + field("True", 5) + field(date, 15) +
           field("Errand", 10) + field("Low", 10) + field("False", 5) + field("notes", 845) + field("None", 20) +
           nuls(20);
}

std::string eventRecord(int recordNo, const std::string& description, const std::string& endDate) {
    const std::string n = std::to_string(recordNo);
    return field(n, 5) + field(n, 5) + field("2026-12-24", 15) + field(description, 60) + field("Social", 10) +
           field("All Day", 10) + field("Year", 5) + field("True", 5) + field("First", 10) + field("Day", 10) +
           field("FFFFFFF", 10) + field("True", 5) + field(endDate, 15) + field("", 795) + field("None", 20) + nuls(20);
}

TEST(Tasks, TombstonesLeaveNoRowButAreCounted) {
    StoreOnDrive d;
    d.writeFile("Tasks.txt", taskRecord(1, "Buy stamps") + taskRecord(2, "DELETED RECORD") +
                                 taskRecord(3, "Call home") + std::string(999, ' '));
    ASSERT_TRUE(d.files.LoadTasks());
    const RecordStore& s = d.store;
    EXPECT_EQ(s.TaskRecordNos, (TextColumn{"1", "3"}));
    EXPECT_EQ(s.TaskDescriptions, (TextColumn{"Buy stamps", "Call home"}));
    EXPECT_EQ(s.TaskDates, (TextColumn{"2026/12/01", "2026/12/01"}));
    EXPECT_EQ(s.TaskNotes, (TextColumn{"notes", "notes"}));
    EXPECT_EQ(s.TaskReminders, (TextColumn{"None", "None"}));
    EXPECT_EQ(s.NextTaskRecord, 4);
}

TEST(Events, EndDatesAreRepairedButOtherwiseKeptAsTheyStand) {
    StoreOnDrive d;
    d.writeFile("Events.txt", eventRecord(1, "Holiday party", "2027.1.31") + eventRecord(2, "DELETED RECORD", "") +
                                  eventRecord(3, "Recital", "never-ever"));
    ASSERT_TRUE(d.files.LoadEvents());
    const RecordStore& s = d.store;
    EXPECT_EQ(s.EventRecordNos, (TextColumn{"1", "3"}));
    EXPECT_EQ(s.EventDates, (TextColumn{"2026/12/24", "2026/12/24"}));
    EXPECT_EQ(s.EventEndDates, (TextColumn{"2027/1/31", "never/ever"}));
    EXPECT_EQ(s.EventRepeatDailies, (TextColumn{"FFFFFFF", "FFFFFFF"}));
    EXPECT_EQ(s.EventNotes, (TextColumn{"", ""}));
    EXPECT_EQ(s.NextEventRecord, 4);
}

TEST(Events, AnUnreadableFileIsReportedOnceAndALaterSaveSetsTheFlagAgain) {
    StoreOnDrive d;
    d.writeFile("Events.txt", eventRecord(1, "Holiday party", "2027/01/31"));
    d.store.EventsChanged = kTrue;
    d.fake.files.failRead(1);
    EXPECT_FALSE(d.files.LoadEvents());
    ASSERT_EQ(d.fake.messages.shown.size(), 1u);
    EXPECT_EQ(d.fake.messages.shown[0].text.substr(0, 34), "Error reading the file: Events.txt");
    EXPECT_EQ(d.store.EventsChanged, kFalse);
    EXPECT_TRUE(d.store.EventIDs.empty());
    EXPECT_EQ(d.store.NextEventRecord, 1);

    d.store.EventRecord = {"1", "1", "2026/12/24", "Party", "Social",     "All Day", "None", "False",
                           "",  "",  "FFFFFFF",    "False", "2026/12/24", "",        "None"};
    ASSERT_TRUE(d.files.SaveEvent(1));
    EXPECT_EQ(d.store.EventsChanged, kTrue);
    EXPECT_EQ(d.fake.messages.shown.size(), 1u);
}

}  // namespace
}  // namespace qh
