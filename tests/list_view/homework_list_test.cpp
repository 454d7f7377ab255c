#include <gtest/gtest.h>

#include <random>

#include "common/text.h"
#include "list_view/list_fixture.h"
#include "list_view/time_text.h"

namespace qh {
namespace {

using namespace qh::testing;

const Date kDay = dateFromYmd(2026, 11, 21);

// --- Gathering ------------------------------------------------------------------------------

TEST(GatherHomework, DoneFilterListsDoneRowsButCountsAndTimesTheUnfinishedOnes) {
    RecordStore s;
    addClass(s, 1, "Biology", "Black", "MistyRose");
    addAssignment(s, {.done = true});
    addAssignment(s, {.estimate = "02 : 00"});
    addAssignment(s, {.date = "2026/11/22", .estimate = "05 : 00"});  // another day
    addSession(s, 2, "00 : 45");

    const HomeworkRows rows = GatherHomework(s, kDay, "Done");
    EXPECT_EQ(rows.ListAssignmentRows, (Column<int>{1}));
    EXPECT_EQ(rows.ListTimes, (TextColumn{"00:00"}));
    EXPECT_EQ(rows.ListClassNames, (TextColumn{"Biology"}));
    EXPECT_EQ(rows.HomeworkTotal, 2);
    EXPECT_EQ(rows.HomeworkUnfinished, 1);
    EXPECT_FALSE(rows.HomeworkAllDone);
    EXPECT_EQ(rows.HomeworkTimeEstimated, "02:00");
    EXPECT_EQ(rows.HomeworkTimeLeft, "01:15");
}

TEST(GatherHomework, OverStudiedWorkShowsNoTimeLeftButLowersTheListTotal) {
    RecordStore s;
    addClass(s, 1, "Art");
    addAssignment(s, {.estimate = "01 : 00"});
    addAssignment(s, {.estimate = "02 : 00"});
    addSession(s, 1, "01 : 30");
    addSession(s, 1, "00 : 45");  // 2:15 against an estimate of 1:00
    const HomeworkRows rows = GatherHomework(s, kAllDatesSentinel, "All");
    EXPECT_EQ(rows.ListTimes, (TextColumn{"00:00", "02:00"}));
    EXPECT_EQ(rows.HomeworkTimeLeft, "00:45");  // 3:00 estimated less 2:15 studied
}

TEST(GatherHomework, DayRangeDeletedRecordsAndTheTermSentinel) {
    RecordStore s;
    addClass(s, 1, "Art");
    addAssignment(s, {.date = "2026/11/20"});
    addAssignment(s, {.description = "DELETED RECORD"});
    addAssignment(s, {});
    addAssignment(s, {.date = "not a date"});
    EXPECT_EQ(GatherHomework(s, kDay, "All").ListAssignmentRows, (Column<int>{3}));
    EXPECT_EQ(GatherHomework(s, kAllDatesSentinel, "All").ListAssignmentRows, (Column<int>{1, 3, 4}));
    EXPECT_EQ(GatherHomework(s, kDay - 1, "All").HomeworkTotal, 1);
}

TEST(GatherHomework, TimesPastNinetyNineHoursKeepTheirLastTwoDigits) {
    EXPECT_EQ(TimeForm(125 * 60 + 5), "25:05");
    RecordStore s;
    addClass(s, 1, "Art");
    for (int i = 0; i < 3; ++i) addAssignment(s, {.estimate = "50 : 00"});
    EXPECT_EQ(GatherHomework(s, kAllDatesSentinel, "All").HomeworkTimeLeft, "50:00");  // 150 hours
}

// --- The look-ups give what a walk over all records gives -------------------------------------

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
        for (int k = 1; k <= s.ClassIDs.count(); ++k) {
            if (int16OrZero(s.ClassIDs(k)) != int16OrZero(s.AssignmentClassLinks(i))) continue;
            rows.ListClassNames.append(s.ClassNames(k));
            rows.ListForeColors.append(s.ClassForeColors(k));
            rows.ListBackColors.append(s.ClassBackColors(k));
        }
    }
    rows.HomeworkTimeEstimated = TimeForm(estimated);
    rows.HomeworkTimeLeft = TimeForm(std::max(0LL, estimated - studied));
    return rows;
}

TEST(GatherHomework, LookUpsGiveWhatAWalkOverAllRecordsGivesRowForRow) {
    std::mt19937 engine(7);
    auto number = [&](int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine); };
    for (int round = 0; round < 20; ++round) {
        RecordStore s;
        // Class IDs repeat and some links find no class.
        for (int k = 1; k <= 6; ++k)
            addClass(s, number(1, 5), "Class" + std::to_string(k), "Black", "C" + std::to_string(k));
        for (int i = 1; i <= 60; ++i) {
            AssignmentFields f;
            f.id = number(1, 40);
            f.classLink = number(0, 7);
            f.date = dateText(kDay + number(-1, 1));
            f.done = number(0, 2) == 0;
            f.estimate = twoDigits(number(0, 3)) + " : " + twoDigits(number(0, 59));
            if (number(0, 9) == 0) f.description = "DELETED RECORD";
            addAssignment(s, f);
        }
        for (int n = 1; n <= 80; ++n)
            addSession(s, number(-1, 45), twoDigits(number(0, 2)) + " : " + twoDigits(number(0, 59)));
        for (const char* list : {"All", "Done", "Not Done"}) {
            for (Date date : {kAllDatesSentinel, kDay}) {
                const HomeworkRows fast = GatherHomework(s, date, list);
                const HomeworkRows slow = walkAllRecords(s, date, list);
                SCOPED_TRACE(std::string(list) + " round " + std::to_string(round));
                EXPECT_EQ(fast.ListAssignmentRows, slow.ListAssignmentRows);
                EXPECT_EQ(fast.ListTimes, slow.ListTimes);
                EXPECT_EQ(fast.ListClassNames, slow.ListClassNames);
                EXPECT_EQ(fast.ListForeColors, slow.ListForeColors);
                EXPECT_EQ(fast.ListBackColors, slow.ListBackColors);
                EXPECT_EQ(fast.HomeworkTotal, slow.HomeworkTotal);
                EXPECT_EQ(fast.HomeworkUnfinished, slow.HomeworkUnfinished);
                EXPECT_EQ(fast.HomeworkAllDone, slow.HomeworkAllDone);
                EXPECT_EQ(fast.HomeworkTimeEstimated, slow.HomeworkTimeEstimated);
                EXPECT_EQ(fast.HomeworkTimeLeft, slow.HomeworkTimeLeft);
            }
        }
    }
}

// --- The list in the window -----------------------------------------------------------------------

class HomeworkListTest : public ::testing::Test {
protected:
    HomeworkListTest() : list(Mode::Homework) { list.filters("All", "Term"); }
    ListWindow list;
    RecordStore& s = list.store;
};

TEST_F(HomeworkListTest, RowsShowTheirCellsInTheClassColoursSortedUnfinishedFirst) {
    addClass(s, 1, "Introduction to Chemistry", "Navy", "MistyRose");
    addAssignment(s, {.description = "Lab report", .done = true, .grade = " B+ "});
    addAssignment(s, {.date = "2026/11/23", .description = "Read chapter 4", .estimate = "01 : 30"});
    addSession(s, 2, "00 : 20");
    list.build();

    EXPECT_EQ(list.cell(1, 0), "1");
    EXPECT_EQ(list.cell(1, 1), " Introduction ");  // 0.35 of the rest: 1140 twips hold 14 characters
    EXPECT_EQ(list.cell(1, 2), "Homework");
    EXPECT_EQ(list.cell(1, 3), " Read chapter 4");
    EXPECT_EQ(list.cell(1, 5), "01:10");
    EXPECT_EQ(list.cell(1, 6), "23-Nov-26");
    EXPECT_EQ(list.picture(1, 7), "Unchecked");
    EXPECT_EQ(list.cell(2, 3), " Lab report");
    EXPECT_EQ(list.cell(2, 8), "B+");
    EXPECT_EQ(list.picture(2, 7), "Checked");
    EXPECT_EQ(list.cellBack(1, 8), list.window.colors->ColorValues("MistyRose"));
    for (const CanvasCall& call : list.grid().calls()) {
        if (call.kind == CanvasCall::Text) {  // the numbers in black, the rest in the class's colour
            EXPECT_EQ(call.color, call.x1 > 405 ? list.window.colors->ColorValues("Navy") : kBlack) << call.text;
        }
    }
    EXPECT_EQ(list.window.state.RowCount, 2);
}

TEST_F(HomeworkListTest, HeadersCarryTitlesAndTheSortedOneItsArrow) {
    list.build();
    EXPECT_EQ(list.header(3).texts(), std::vector<std::string>{"Description"});
    EXPECT_EQ(list.header(0).texts(), std::vector<std::string>{"#"});
    EXPECT_EQ(list.header(3).calls().back().font.name, "Verdana");
    EXPECT_EQ(list.window.c("picColHeader", 7).picture, "GridTitleUp");
    EXPECT_EQ(list.window.c("picColHeader", 3).picture, "GridTitle");
    list.window.click("picColHeader(7)");
    EXPECT_EQ(list.window.c("picColHeader", 7).picture, "GridTitleDown");
    list.window.click("picColHeader(0)");  // "#": not even the pictures change
    EXPECT_EQ(list.window.c("picColHeader", 7).picture, "GridTitleDown");
    EXPECT_EQ(list.window.c("picColHeader", 0).picture, "GridTitle");
}

TEST_F(HomeworkListTest, SummaryBoxesAreWhiteWhenEmptyGreenWhenAllDoneAndPinkWithOpenWork) {
    addClass(s, 1, "Art");
    list.build();
    EXPECT_EQ(list.text("TextBoxTotalAssignments"), "0");
    EXPECT_EQ(list.text("TextBoxTimeRemaining"), "00:00");
    EXPECT_EQ(list.back("TextBoxFinishedAssignments"), kWhite);
    EXPECT_EQ(list.back("TextBoxTimeRemaining"), kWhite);
    EXPECT_TRUE(list.numbers().empty());

    addAssignment(s, {.done = true});
    list.filters("Not Done", "Term");
    list.build();
    EXPECT_EQ(list.text("TextBoxTotalAssignments"), "1");
    EXPECT_EQ(list.text("TextBoxFinishedAssignments"), "0");
    EXPECT_EQ(list.back("TextBoxFinishedAssignments"), kAllDoneGreen);
    EXPECT_EQ(list.back("TextBoxTimeRemaining"), kAllDoneGreen);
    EXPECT_EQ(list.back("TextBoxTotalAssignments"), kWhite);
    EXPECT_TRUE(list.numbers().empty());

    addAssignment(s, {.estimate = "00 : 40"});
    list.filters("Done", "Term");
    list.build();
    EXPECT_EQ(list.numbers(), std::vector<std::string>{"1"});
    EXPECT_EQ(list.text("TextBoxFinishedAssignments"), "1");
    EXPECT_EQ(list.text("TextBoxTimeRemaining"), "00:40");
    EXPECT_EQ(list.back("TextBoxFinishedAssignments"), kOpenWorkPink);
}

TEST_F(HomeworkListTest, AMissingClassLeavesTheLastRowWithoutClassAndDoesNotFail) {
    addClass(s, 1, "Art", "Black", "Gold");
    addAssignment(s, {.classLink = 7, .description = "Orphan"});
    addAssignment(s, {.description = "Second"});
    list.window.state.SortColumn = 0;  // gathering order
    list.build();
    EXPECT_EQ(list.cell(1, 1), " Art");  // the class entries moved up by one
    EXPECT_EQ(list.cell(2, 1), " ");
    EXPECT_EQ(list.cellBack(2, 1), kWhite);
    EXPECT_EQ(list.cell(2, 3), " Second");
}

TEST_F(HomeworkListTest, ScrollingRegathersAndAHeaderClickReturnsToTheTop) {
    addClass(s, 1, "Art");
    for (int i = 1; i <= 20; ++i) addAssignment(s, {.description = "Item " + std::to_string(i)});
    list.window.state.SortColumn = 0;
    list.build();
    Control& scroll = list.window.c("VSGridScroll");
    EXPECT_TRUE(scroll.enabled);
    EXPECT_EQ(scroll.maximum, 12);
    EXPECT_EQ(list.numbers().front(), "1");
    EXPECT_EQ(list.numbers().size(), 9u);

    s.AssignmentDescriptions(6) = "Changed";  // a scroll step gathers anew
    list.window.scrollTo("VSGridScroll", 5);
    EXPECT_EQ(list.window.state.TopRow, 5);
    EXPECT_EQ(list.numbers().front(), "5");
    EXPECT_EQ(list.cell(2, 3), " Changed");

    list.window.click("picColHeader(3)");
    EXPECT_EQ(scroll.value, 1);
    EXPECT_EQ(list.window.state.TopRow, 1);
    EXPECT_EQ(list.cell(1, 3), " Changed");  // "Changed" sorts before "Item ..."
}

}  // namespace
}  // namespace qh
