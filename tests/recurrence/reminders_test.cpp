#include "recurrence/reminders.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "list_view/list_fixture.h"
#include "recurrence/event_records.h"

namespace qh {
namespace {

using test::addEvent;
using testing::addAssignment;
using testing::addClass;
using testing::addTask;

Date ymd(int y, int m, int d) { return dateFromYmd(y, m, d); }

// One line per row: kind, record, days and date, so a failure reads as a list.
std::vector<std::string> rowLines(const ReminderRows& rows) {
    std::vector<std::string> lines;
    for (int i = 1; i <= rows.ReminderRecords.count(); ++i)
        lines.push_back(rows.ReminderKinds(i) + " " + std::to_string(rows.ReminderRecords(i)) + " " +
                        std::to_string(rows.ReminderDays(i)) + " " + dateText(rows.ReminderDates(i)));
    return lines;
}

using Lines = std::vector<std::string>;

TEST(ReminderOffset, IsTheNegatedNumberOfTheFirstTwoCharacters) {
    const std::pair<const char*, int> cases[] = {
        {"1 Day", -1}, {"30 Days", -30}, {"123 Days", -12}, {"None", 0}, {"", 0}};
    for (const auto& [text, offset] : cases) EXPECT_EQ(ReminderOffset(text), offset) << text;
}

TEST(TaskReminders, StayFromTheReminderDateUntilDone) {
    RecordStore store;
    addTask(store, {.date = "2026/05/10", .type = "None"});
    addTask(store, {.date = "2026/05/12", .type = "Project", .reminder = "2 Days"});
    addTask(store, {.dated = false, .date = "2026/05/10"});
    addTask(store, {.date = "2026/05/10", .done = true});
    addTask(store, {.description = "DELETED RECORD", .date = "2026/05/10"});
    EXPECT_TRUE(GatherReminders(store, ymd(2026, 5, 9), "All").ReminderRecords.empty());
    EXPECT_EQ(rowLines(GatherReminders(store, ymd(2026, 5, 10), "All")),
              (Lines{"Task 1 0 2026/05/10", "Task 2 2 2026/05/12"}));
    const ReminderRows later = GatherReminders(store, ymd(2026, 6, 1), "All");
    EXPECT_EQ(rowLines(later), (Lines{"Task 1 -22 2026/05/10", "Task 2 -20 2026/05/12"}));
    EXPECT_EQ(later.ReminderTypes, (TextColumn{"None", "Project"}));
    EXPECT_EQ(later.ReminderBackColors, (TextColumn{"White", "Gold"}));
    EXPECT_EQ(later.TaskReminderCount, 2);
}

TEST(HomeworkReminders, FromTheAdvanceNoticeOnWithTheClassColours) {
    RecordStore store;
    addClass(store, 3, "History", "Black", "MistyRose");
    addClass(store, 7, "Chemistry", "Navy", "Honeydew");
    store.ClassIDs(2) = "07";  // IDs and links compare as numbers
    addAssignment(store, {.classLink = 7, .date = "2026/05/15", .description = "Lab report", .reminder = "7 Days"});
    addAssignment(store, {.classLink = 3, .date = "2026/05/18", .reminder = "7 Days"});
    addAssignment(store, {.classLink = 3, .date = "2026/05/12", .done = true, .reminder = "1 Day"});
    addAssignment(store, {.classLink = 3, .date = "2026/05/12", .description = "DELETED RECORD", .reminder = "1 Day"});
    const ReminderRows rows = GatherReminders(store, ymd(2026, 5, 10), "All");
    EXPECT_EQ(rowLines(rows), (Lines{"Homework 1 5 2026/05/15"}));
    EXPECT_EQ(rows.ReminderClasses, (TextColumn{"Chemistry"}));
    EXPECT_EQ(rows.ReminderForeColors, (TextColumn{"Navy"}));
    EXPECT_EQ(rows.ReminderBackColors, (TextColumn{"Honeydew"}));
    EXPECT_EQ(rows.ReminderDescriptions, (TextColumn{"Lab report"}));
    EXPECT_EQ(rows.HomeworkReminderCount, 1);
    EXPECT_EQ(GatherReminders(store, ymd(2026, 5, 11), "All").HomeworkReminderCount, 2);
}

TEST(GatherReminders, TasksThenHomeworkThenEventsAndCountsBeforeTheFilter) {
    RecordStore store;
    addClass(store, 1, "Math");
    addEvent(store, {.date = "2026/05/10", .type = "Birthday"});
    addAssignment(store, {.date = "2026/05/10", .reminder = "1 Day"});
    addTask(store, {.date = "2026/05/10", .type = "Work"});
    const Date day = ymd(2026, 5, 10);
    const ReminderRows all = GatherReminders(store, day, "All");
    EXPECT_EQ(rowLines(all), (Lines{"Task 1 0 2026/05/10", "Homework 1 0 2026/05/10", "Event 1 0 2026/05/10"}));
    EXPECT_EQ(all.ReminderBackColors, (TextColumn{"PaleTurquoise", "White", "Gold"}));

    const struct {
        const char* filter;
        Lines lines;
    } filters[] = {{"Tasks", {"Task 1 0 2026/05/10"}},
                   {"Homework", {"Homework 1 0 2026/05/10"}},
                   {"Events", {"Event 1 0 2026/05/10"}},
                   {"Everything", {}}};
    for (const auto& f : filters) {
        const ReminderRows rows = GatherReminders(store, day, f.filter);
        EXPECT_EQ(rowLines(rows), f.lines) << f.filter;
        EXPECT_EQ(rows.ReminderClasses.count(), rows.ReminderRecords.count()) << f.filter;
        EXPECT_EQ(rows.ReminderBackColors.count(), rows.ReminderRecords.count()) << f.filter;
        EXPECT_EQ(rows.TaskReminderCount, 1) << f.filter;
        EXPECT_EQ(rows.HomeworkReminderCount, 1) << f.filter;
        EXPECT_EQ(rows.EventReminderCount, 1) << f.filter;
    }
}

}  // namespace
}  // namespace qh
