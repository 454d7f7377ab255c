// The gatherers of the homework, study session and task lists: which records make rows,
// what the rows and the counters hold.
#include <gtest/gtest.h>

#include <random>

#include "common/text.h"
#include "list_view/list_fixture.h"
#include "list_view/time_text.h"

namespace qh {
namespace {

using namespace qh::testing;

const Date kDay = dateFromYmd(2026, 11, 21);

std::string summary(const HomeworkRows& r) {
    return std::to_string(r.HomeworkTotal) + " " + std::to_string(r.HomeworkUnfinished) + " " +
           (r.HomeworkAllDone ? "done " : "open ") + r.HomeworkTimeEstimated + " " + r.HomeworkTimeLeft;
}

// The gatherers look records up by ID; a walk over all linked records for every row, in
// record order, must give the same rows and counters.

template <class Rows>
void appendClassesOf(const RecordStore& s, int assignment, Rows& rows) {
    for (int k = 1; k <= s.ClassIDs.count(); ++k) {
        if (int16OrZero(s.ClassIDs(k)) != int16OrZero(s.AssignmentClassLinks(assignment))) continue;
        rows.ListClassNames.append(s.ClassNames(k));
        rows.ListForeColors.append(s.ClassForeColors(k));
        rows.ListBackColors.append(s.ClassBackColors(k));
    }
}

HomeworkRows walkAllRecords(const RecordStore& s, Date date, const std::string& list) {
    HomeworkRows rows;
    long long estimated = 0, studied = 0;
    auto minutes = [](const std::string& t) {
        return LeadingNumber(t.substr(0, 2)) * 60 + LeadingNumber(rightChars(t, 2));
    };
    for (int i = 1; i <= s.AssignmentRecordNos.count(); ++i) {
        const bool pass = date == kAllDatesSentinel || parseDateText(s.AssignmentDates(i)) == date;
        if (!pass || s.AssignmentDescriptions(i) == "DELETED RECORD") continue;
        ++rows.HomeworkTotal;
        const bool done = s.AssignmentDones(i) == "True";
        long long left = 0;
        if (!done) {
            rows.HomeworkAllDone = false;
            ++rows.HomeworkUnfinished;
            long long spent = 0;
            for (int n = 1; n <= s.StudySessionLinkIDs.count(); ++n)
                if (int16OrZero(s.StudySessionLinkIDs(n)) == int16OrZero(s.AssignmentIDs(i)))
                    spent += minutes(s.StudySessionLengths(n));
            estimated += minutes(s.AssignmentEstTimes(i));
            studied += spent;
            left = std::max(0LL, minutes(s.AssignmentEstTimes(i)) - spent);
        }
        if (list != "All" && (list == "Done") != done) continue;
        rows.ListAssignmentRows.append(i);
        rows.ListTimes.append(TimeForm(left));
        appendClassesOf(s, i, rows);
    }
    rows.HomeworkTimeEstimated = TimeForm(estimated);
    rows.HomeworkTimeLeft = TimeForm(std::max(0LL, estimated - studied));
    return rows;
}

StudySessionRows walkAllSessions(const RecordStore& s, Date date) {
    StudySessionRows rows;
    long long h = 0, m = 0;
    for (int n = 1; n <= s.StudySessionDates.count(); ++n) {
        const bool pass = date == kAllDatesSentinel || parseDateText(s.StudySessionDates(n)) == date;
        if (!pass || int16OrZero(s.StudySessionLinkIDs(n)) == -1) continue;
        rows.ListSessionLengthRows.append(n);
        rows.ListSessionDateRows.append(n);
        m += LeadingNumber(rightChars(s.StudySessionLengths(n), 2));
        h += LeadingNumber(s.StudySessionLengths(n).substr(0, 2));
        rows.ListSessionRows.append(n);
        for (int a = 1; a <= s.AssignmentIDs.count(); ++a) {
            if (int16OrZero(s.AssignmentIDs(a)) != int16OrZero(s.StudySessionLinkIDs(n))) continue;
            rows.ListAssignmentRows.append(a);
            appendClassesOf(s, a, rows);
        }
    }
    rows.StudyTimeTotal = TimeForm(h * 60 + m);
    return rows;
}

TEST(GatherHomeworkAndStudySessions, LookUpsGiveWhatAWalkOverAllRecordsGivesRowForRow) {
    EXPECT_EQ(TimeForm(125 * 60 + 5), "25:05");  // a hundred hours and more keep their last two digits
    std::mt19937 engine(7);
    auto number = [&](int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine); };
    for (int round = 0; round < 20; ++round) {
        RecordStore s;
        // Class IDs repeat; some links find no class, some sessions no assignment.
        for (int k = 1; k <= 6; ++k)
            addClass(s, number(1, 5), "Class" + std::to_string(k), "Black", "C" + std::to_string(k));
        for (int i = 1; i <= 60; ++i) {
            AssignmentFields f;
            f.id = number(1, 40);
            f.classLink = number(0, 7);
            f.date = number(0, 9) == 0 ? "not a date" : dateText(kDay + number(-1, 1));
            f.done = number(0, 2) == 0;
            f.estimate = twoDigits(number(0, 3)) + " : " + twoDigits(number(0, 59));
            if (number(0, 9) == 0) f.description = "DELETED RECORD";
            addAssignment(s, f);
        }
        for (int n = 1; n <= 80; ++n)
            addSession(s, number(-1, 45), twoDigits(number(0, 2)) + " : " + twoDigits(number(0, 59)),
                       dateText(kDay + number(-1, 1)));
        for (Date date : {kAllDatesSentinel, kDay}) {
            SCOPED_TRACE("round " + std::to_string(round) + ", date " + std::to_string(date));
            for (const char* list : {"All", "Done", "Not Done"}) {
                const HomeworkRows fast = GatherHomework(s, date, list), slow = walkAllRecords(s, date, list);
                EXPECT_EQ(fast.ListAssignmentRows, slow.ListAssignmentRows) << list;
                EXPECT_EQ(fast.ListTimes, slow.ListTimes) << list;
                EXPECT_EQ(fast.ListClassNames, slow.ListClassNames) << list;
                EXPECT_EQ(fast.ListForeColors, slow.ListForeColors) << list;
                EXPECT_EQ(fast.ListBackColors, slow.ListBackColors) << list;
                EXPECT_EQ(summary(fast), summary(slow)) << list;
            }
            const StudySessionRows fast = GatherStudySessions(s, date), slow = walkAllSessions(s, date);
            EXPECT_EQ(fast.ListSessionRows, slow.ListSessionRows);
            EXPECT_EQ(fast.ListSessionLengthRows, slow.ListSessionLengthRows);
            EXPECT_EQ(fast.ListSessionDateRows, slow.ListSessionDateRows);
            EXPECT_EQ(fast.ListAssignmentRows, slow.ListAssignmentRows);
            EXPECT_EQ(fast.ListClassNames, slow.ListClassNames);
            EXPECT_EQ(fast.ListBackColors, slow.ListBackColors);
            EXPECT_EQ(fast.StudyTimeTotal, slow.StudyTimeTotal);
        }
    }
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
