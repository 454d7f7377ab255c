// The gatherers of the homework, study session and task lists: which records make rows,
// what the rows and the counters hold.
#include <gtest/gtest.h>

#include "list_view/list_fixture.h"

namespace qh {
namespace {

using namespace qh::testing;

const Date kDay = dateFromYmd(2026, 11, 21);

std::string summary(const HomeworkRows& r) {
    return std::to_string(r.HomeworkTotal) + " " + std::to_string(r.HomeworkUnfinished) + " " +
           (r.HomeworkAllDone ? "done " : "open ") + r.HomeworkTimeEstimated + " " + r.HomeworkTimeLeft;
}

// Class IDs 1 (twice) and 2; on the day: work of both class 1 entries, work of a class
// that is gone, done work, over-studied work and a tombstone; an undated one beside them.
// Sessions: two on assignment 1, one on 3, one let go (-1) and one of no assignment.
RecordStore linkedRecords() {
    RecordStore s;
    addClass(s, 1, "Art", "Black", "Gold");
    addClass(s, 1, "Bio", "Navy", "Lavender");
    addClass(s, 2, "Chem", "Black", "White");
    addAssignment(s, {.classLink = 1, .estimate = "02 : 00"});
    addAssignment(s, {.classLink = 9, .done = true, .estimate = "01 : 00"});
    addAssignment(s, {.classLink = 2, .estimate = "00 : 30"});
    addAssignment(s, {.classLink = 2, .description = "DELETED RECORD"});
    addAssignment(s, {.classLink = 2, .date = "not a date", .estimate = "01 : 00"});
    addSession(s, 1, "00 : 30", "2026/11/21");
    addSession(s, 1, "00 : 20", "2026/11/20");
    addSession(s, 3, "01 : 00", "2026/11/21");
    addSession(s, -1, "05 : 00", "2026/11/21");
    addSession(s, 7, "99 : 00", "2026/11/21");
    return s;
}

// Every class row of a link gives the row a class entry, a lost class none; study time
// counts against unfinished work only, and all of it before the clamp at zero, so the
// over-studied assignment lowers the time left of the others. The counters stand before
// the Done filter.
TEST(GatherHomework, RowsTakeEveryClassOfTheirLinkAndStudyTimeCountsBeforeTheClamp) {
    const RecordStore s = linkedRecords();
    const struct {
        Date date;
        const char* list;
        std::vector<int> rows;
        TextColumn times, classes, backs;
        const char* summary;
    } cases[] = {
        {kDay, "All", {1, 2, 3}, {"01:10", "00:00", "00:00"}, {"Art", "Bio", "Chem"}, {"Gold", "Lavender", "White"},
         "3 2 open 02:30 00:40"},
        {kDay, "Done", {2}, {"00:00"}, {}, {}, "3 2 open 02:30 00:40"},
        {kDay, "Not Done", {1, 3}, {"01:10", "00:00"}, {"Art", "Bio", "Chem"}, {"Gold", "Lavender", "White"},
         "3 2 open 02:30 00:40"},
        {kAllDatesSentinel, "All", {1, 2, 3, 5}, {"01:10", "00:00", "00:00", "01:00"}, {"Art", "Bio", "Chem", "Chem"},
         {"Gold", "Lavender", "White", "White"}, "4 3 open 03:30 01:40"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.list) + (c.date == kDay ? " on the day" : " on all dates"));
        const HomeworkRows rows = GatherHomework(s, c.date, c.list);
        EXPECT_EQ(asInts(rows.ListAssignmentRows), c.rows);
        EXPECT_EQ(rows.ListTimes, c.times);
        EXPECT_EQ(rows.ListClassNames, c.classes);
        EXPECT_EQ(rows.ListBackColors, c.backs);
        EXPECT_EQ(summary(rows), c.summary);
    }
    const RecordStore none;
    EXPECT_EQ(summary(GatherHomework(none, kDay, "All")), "0 0 done 00:00 00:00");
}

// A session let go is no row; one whose assignment is gone is a row without one; the
// total keeps the last two digits of the hours.
TEST(GatherStudySessions, EverySessionButTheLetGoIsARowWithItsAssignmentsClasses) {
    const RecordStore s = linkedRecords();
    const StudySessionRows day = GatherStudySessions(s, kDay);
    EXPECT_EQ(asInts(day.ListSessionRows), (std::vector<int>{1, 3, 5}));
    EXPECT_EQ(asInts(day.ListAssignmentRows), (std::vector<int>{1, 3}));
    EXPECT_EQ(day.ListClassNames, (TextColumn{"Art", "Bio", "Chem"}));
    EXPECT_EQ(day.StudyTimeTotal, "00:30");  // 100:30
    const StudySessionRows all = GatherStudySessions(s, kAllDatesSentinel);
    EXPECT_EQ(asInts(all.ListSessionRows), (std::vector<int>{1, 2, 3, 5}));
    EXPECT_EQ(all.StudyTimeTotal, "00:50");
}

TEST(GatherTasks, UndatedTasksAreOnlyInAllAndWithoutDateAndCountsComeBeforeTheDoneFilter) {
    RecordStore s;
    addTask(s, {.dated = false, .type = "Home"});
    addTask(s, {.type = "Project", .done = true});
    addTask(s, {.type = "None"});
    addTask(s, {.date = "2026/11/22"});
    addTask(s, {.description = "DELETED RECORD"});
    const struct {
        const char *range, *list;
        std::vector<int> rows;
        TextColumn backs;
        const char* counts;  // total, done, unfinished
    } cases[] = {
        {"Day", "All", {2, 3}, {"Gold", "White"}, "2 1 1"},
        {"Day", "Not Done", {3}, {"White"}, "2 1 1"},
        {"Day", "Done", {2}, {"Gold"}, "2 1 1"},
        {"All", "All", {1, 2, 3, 4}, {"MistyRose", "Gold", "White", "Lavender"}, "4 1 3"},
        {"With Date", "All", {2, 3, 4}, {"Gold", "White", "Lavender"}, "3 1 2"},
        {"Without Date", "All", {1}, {"MistyRose"}, "1 0 1"},
    };
    for (const auto& c : cases) {
        const TaskRows rows = GatherTasks(s, kDay, c.range, c.list);
        const std::string counts = std::to_string(rows.TaskTotal) + " " + std::to_string(rows.TaskDone) + " " +
                                   std::to_string(rows.TaskUnfinished);
        EXPECT_EQ(asInts(rows.ListTaskRows), c.rows) << c.range << " " << c.list;
        EXPECT_EQ(rows.ListTaskBackColors, c.backs) << c.range << " " << c.list;
        EXPECT_EQ(counts, c.counts) << c.range << " " << c.list;
    }
}

}  // namespace
}  // namespace qh
