#include <gtest/gtest.h>

#include "list_view/list_fixture.h"

namespace qh {
namespace {

using namespace qh::testing;

const Date kDay = dateFromYmd(2026, 11, 21);

struct RangeCase {
    const char* range;
    bool undatedListed, todayListed, tomorrowListed;
};

class TaskRanges : public ::testing::TestWithParam<RangeCase> {};

TEST_P(TaskRanges, UndatedTasksAreOnlyInAllAndWithoutDate) {
    RecordStore s;
    addTask(s, {.description = "Undated", .dated = false, .date = "2026/11/21"});
    addTask(s, {.description = "Today"});
    addTask(s, {.description = "Tomorrow", .date = "2026/11/22"});
    addTask(s, {.description = "DELETED RECORD"});
    const RangeCase& c = GetParam();
    const TaskRows rows = GatherTasks(s, kDay, c.range, "All");
    Column<int> expected;
    if (c.undatedListed) expected.append(1);
    if (c.todayListed) expected.append(2);
    if (c.tomorrowListed) expected.append(3);
    EXPECT_EQ(rows.ListTaskRows, expected);
    EXPECT_EQ(rows.TaskTotal, expected.count());
}

INSTANTIATE_TEST_SUITE_P(Ranges, TaskRanges,
                         ::testing::Values(RangeCase{"Day", false, true, false}, RangeCase{"All", true, true, true},
                                           RangeCase{"With Date", false, true, true},
                                           RangeCase{"Without Date", true, false, false}),
                         [](const auto& info) {
                             std::string name = info.param.range;
                             std::erase(name, ' ');
                             return name;
                         });

TEST(GatherTasks, CountsBeforeTheDoneFilterAndColoursByType) {
    RecordStore s;
    addTask(s, {.type = "Project", .done = true});
    addTask(s, {.type = "None"});
    addTask(s, {.type = "Chores"});
    const TaskRows notDone = GatherTasks(s, kDay, "Day", "Not Done");
    EXPECT_EQ(notDone.ListTaskRows, (Column<int>{2, 3}));
    EXPECT_EQ(notDone.ListTaskBackColors, (TextColumn{"White", "White"}));
    EXPECT_EQ(notDone.ListTaskForeColors, (TextColumn{"Black", "Black"}));
    EXPECT_EQ(notDone.TaskTotal, 3);
    EXPECT_EQ(notDone.TaskDone, 1);
    EXPECT_EQ(notDone.TaskUnfinished, 2);
    const TaskRows done = GatherTasks(s, kDay, "Day", "Done");  // a done task of the day shows
    EXPECT_EQ(done.ListTaskRows, (Column<int>{1}));
    EXPECT_EQ(done.ListTaskBackColors, (TextColumn{"Gold"}));
}

class TaskListTest : public ::testing::Test {
protected:
    TaskListTest() : list(Mode::Tasks) { list.filters("All", "All"); }
    ListWindow list;
    RecordStore& s = list.store;
};

TEST_F(TaskListTest, RowsShowNameTypePriorityDateAndDoneWithNoneLeftEmpty) {
    addTask(s, {.description = "Finished", .type = "Work", .priority = "High", .done = true});
    addTask(s, {.description = "Someday", .dated = false, .type = "None", .priority = "None"});
    list.build();
    // Sorted by "Done": the open task first.
    EXPECT_EQ(list.cell(1, 1), " Someday");
    EXPECT_EQ(list.cell(1, 2), "");
    EXPECT_EQ(list.cell(1, 3), "");
    EXPECT_EQ(list.cell(1, 4), "");
    EXPECT_EQ(list.picture(1, 5), "Unchecked");
    EXPECT_EQ(list.cellBack(1, 2), kWhite);
    EXPECT_EQ(list.cell(2, 2), "Work");
    EXPECT_EQ(list.cell(2, 3), "High");
    EXPECT_EQ(list.cell(2, 4), "21-Nov-26");
    EXPECT_EQ(list.picture(2, 5), "Checked");
    EXPECT_EQ(list.cellBack(2, 4), list.window.colors->ColorValues("PaleTurquoise"));
}

TEST_F(TaskListTest, SummaryIsPinkWhileTasksAreOpenEvenWhenOnlyDoneOnesAreListed) {
    list.build();
    EXPECT_EQ(list.text("TextBoxTotalTasks"), "0");
    EXPECT_EQ(list.back("TextBoxFinishedTasks"), kWhite);

    addTask(s, {});
    list.filters("Done", "All");
    list.build();
    EXPECT_TRUE(list.numbers().empty());
    EXPECT_EQ(list.text("TextBoxTotalTasks"), "1");
    EXPECT_EQ(list.text("TextBoxFinishedTasks"), "1");
    EXPECT_EQ(list.back("TextBoxFinishedTasks"), kOpenWorkPink);

    s.TaskDones(1) = "True";
    list.build();
    EXPECT_EQ(list.text("TextBoxFinishedTasks"), "0");
    EXPECT_EQ(list.back("TextBoxFinishedTasks"), kAllDoneGreen);
    EXPECT_EQ(list.back("TextBoxTotalTasks"), kWhite);
}

}  // namespace
}  // namespace qh
