#include "calendar_days/day_marks.h"

#include <gtest/gtest.h>

namespace qh {
namespace {

const Date kFirstCell = dateFromYmd(2026, 10, 25);

void addAssignment(RecordStore& store, Date date, bool done, const std::string& description = "Essay") {
    store.AssignmentRecordNos.append(std::to_string(store.AssignmentRecordNos.count() + 1));
    store.AssignmentDates.append(dateText(date));
    store.AssignmentDones.append(done ? "True" : "False");
    store.AssignmentDescriptions.append(description);
}

std::string markedCells(const DayMarks& marks) {
    std::string cells;
    for (int i = 0; i < 42; ++i)
        if (marks.marked[std::size_t(i)]) cells += std::to_string(i) + " ";
    return cells;
}

TEST(DayMarks, HomeworkMarksTheFortyTwoCellsByTheDoneFilterWithoutTombstones) {
    RecordStore store;
    const MainWindowColors colors;
    for (Date d : {kFirstCell - 1, kFirstCell, kFirstCell + 41, kFirstCell + 42}) addAssignment(store, d, false);
    addAssignment(store, kFirstCell + 3, true);
    addAssignment(store, kFirstCell + 3, false);
    addAssignment(store, kFirstCell + 5, true);
    addAssignment(store, kFirstCell + 7, true, "DELETED RECORD");
    const struct {
        const char* filter;
        const char* cells;
        std::string MainWindowColors::*tint;
    } filters[] = {{"All", "0 3 5 41 ", &MainWindowColors::TintBlue},
                   {"Done", "3 5 ", &MainWindowColors::TintGreen},
                   {"Not Done", "0 3 41 ", &MainWindowColors::TintPink},
                   {"Someday", "", &MainWindowColors::TintPink}};
    for (const auto& f : filters) {
        const DayMarks marks = MarkHomeworkDays(store, kFirstCell, f.filter, colors);
        EXPECT_EQ(markedCells(marks), f.cells) << f.filter;
        EXPECT_EQ(marks.markedBack, colors.*f.tint) << f.filter;
    }
}

TEST(DayMarks, DeletedSessionsAndUndatedTasksMarkNothing) {
    RecordStore store;
    const MainWindowColors colors;
    store.StudySessionRecordNos = {"1", "2"};
    store.StudySessionLinkIDs = {"-1", "4"};
    store.StudySessionDates = {dateText(kFirstCell + 1), dateText(kFirstCell + 2)};
    EXPECT_EQ(markedCells(MarkStudySessionDays(store, kFirstCell, colors)), "2 ");

    store.TaskRecordNos = {"1", "2", "3"};
    store.TaskDateExists = {"False", "True", "True"};
    store.TaskDates = {dateText(kFirstCell + 4), dateText(kFirstCell + 6), dateText(kFirstCell + 8)};
    store.TaskDescriptions = {"Undated", "Dated", "DELETED RECORD"};
    store.TaskDones = {"False", "False", "False"};
    EXPECT_EQ(markedCells(MarkTaskDays(store, kFirstCell, "All", colors)), "6 ");
}

TEST(DayMarks, RemindersMarkByKindInTheKindsTint) {
    const MainWindowColors colors;
    const Column<Date> dates{kFirstCell + 1, kFirstCell + 2, kFirstCell + 3};
    const TextColumn kinds{"Homework", "Task", "Event"};
    EXPECT_EQ(markedCells(MarkReminderDays(dates, kinds, kFirstCell, "All", colors)), "1 2 3 ");
    const DayMarks tasks = MarkReminderDays(dates, kinds, kFirstCell, "Tasks", colors);
    EXPECT_EQ(markedCells(tasks), "2 ");
    EXPECT_EQ(tasks.markedBack, colors.TintTan);
    EXPECT_EQ(MarkReminderDays(dates, kinds, kFirstCell, "Events", colors).markedBack, colors.TintGreen);
}

}  // namespace
}  // namespace qh
