#include <gtest/gtest.h>

#include <random>

#include "common/text.h"
#include "list_view/list_fixture.h"
#include "list_view/time_text.h"

namespace qh {
namespace {

using namespace qh::testing;

const Date kDay = dateFromYmd(2026, 11, 21);

TEST(GatherStudySessions, AHundredHoursOrMoreKeepTheLastTwoDigits) {
    RecordStore s;
    addAssignment(s, {});
    for (int i = 0; i < 3; ++i) addSession(s, 1, "40 : 30");
    EXPECT_EQ(GatherStudySessions(s, kAllDatesSentinel).StudyTimeTotal, "21:30");  // 121:30
}

StudySessionRows walkAllRecords(const RecordStore& s, Date date) {
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
            for (int k = 1; k <= s.ClassIDs.count(); ++k) {
                if (int16OrZero(s.ClassIDs(k)) != int16OrZero(s.AssignmentClassLinks(a))) continue;
                rows.ListClassNames.append(s.ClassNames(k));
                rows.ListForeColors.append(s.ClassForeColors(k));
                rows.ListBackColors.append(s.ClassBackColors(k));
            }
        }
    }
    rows.StudyTimeTotal = TimeForm(h * 60 + m);
    return rows;
}

TEST(GatherStudySessions, LookUpsGiveWhatAWalkOverAllRecordsGivesRowForRow) {
    std::mt19937 engine(3);
    auto number = [&](int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine); };
    for (int round = 0; round < 20; ++round) {
        RecordStore s;
        for (int k = 1; k <= 5; ++k)
            addClass(s, number(1, 4), "C" + std::to_string(k), "Black", "B" + std::to_string(k));
        for (int i = 1; i <= 40; ++i) addAssignment(s, {.id = number(1, 30), .classLink = number(0, 5)});
        for (int n = 1; n <= 70; ++n)
            addSession(s, number(-1, 35), twoDigits(number(0, 3)) + " : " + twoDigits(number(0, 59)),
                       dateText(kDay + number(-1, 1)));
        for (Date date : {kAllDatesSentinel, kDay}) {
            const StudySessionRows fast = GatherStudySessions(s, date), slow = walkAllRecords(s, date);
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

class StudySessionListTest : public ::testing::Test {
protected:
    StudySessionListTest() : list(Mode::StudySessions) {
        list.filters("All", "Term");
        addClass(s, 1, "Biology", "Black", "Lavender");
    }
    ListWindow list;
    RecordStore& s = list.store;
};

TEST_F(StudySessionListTest, RowsShowTheSessionBesideItsAssignmentNewestLastByDoneOn) {
    addAssignment(s, {.date = "2026/11/25", .description = "Essay"});
    addSession(s, 1, "01 : 30", "2026/11/20");
    addSession(s, 1, "00 : 15", "2026/11/18");
    list.build();
    EXPECT_EQ(list.text("TextBoxStudySessions"), "2");
    EXPECT_EQ(list.text("TextBoxStudyTime"), "01:45");
    EXPECT_EQ(list.back("TextBoxStudyTime"), kWhite);
    // Sorted by "Done On", the first direction.
    EXPECT_EQ(list.cell(1, 5), "00:15");
    EXPECT_EQ(list.cell(1, 6), "18-Nov-26");
    EXPECT_EQ(list.cell(2, 5), "01:30");
    EXPECT_EQ(list.cell(2, 1), " Biology");
    EXPECT_EQ(list.cell(2, 3), " Essay");
    EXPECT_EQ(list.cell(2, 7), "25-Nov-26");
    EXPECT_EQ(list.cellBack(2, 7), list.window.colors->ColorValues("Lavender"));
    // The session rows keep their gathering order; the shown ones moved.
    EXPECT_EQ(list.window.state.ListSessionRows, (Column<int>{1, 2}));
    EXPECT_EQ(list.window.state.ListSessionLengthRows, (Column<int>{2, 1}));
}

TEST_F(StudySessionListTest, ASessionWithoutItsAssignmentShowsEmptyCellsAndOpensNothing) {
    addAssignment(s, {.id = 4, .description = "Kept"});
    addSession(s, 4, "00 : 10");
    addSession(s, 9, "00 : 20");  // its assignment is gone
    list.window.state.SortColumn = 0;
    list.build();
    EXPECT_EQ(list.cell(1, 3), " Kept");
    EXPECT_EQ(list.cell(2, 3), " ");
    EXPECT_EQ(list.cell(2, 5), "00:20");
    EXPECT_EQ(list.cell(2, 7), "");
    // A click on the second row finds no assignment to open: the number cell stays plain.
    list.window.press("picGrid", {1, 0, 500, 700});
    list.window.release("picGrid", {1, 0, 500, 700});
    for (const CanvasCall& call : list.grid().calls()) {
        if (call.kind == CanvasCall::FilledBox) {
            EXPECT_NE(call.x1, 15);
        }
    }
}

}  // namespace
}  // namespace qh
