// The click on a row of each list: a row with a record opens it (its number cell is
// marked while the editor is open), an empty line opens a new record where the mode makes
// records, and nothing elsewhere.
#include <gtest/gtest.h>

#include "list_view/list_fixture.h"
#include "recurrence/event_records.h"

namespace qh {
namespace {

using namespace qh::testing;

// Clicks visible row k (press and release on it) and answers what its number cell showed
// afterwards: the painted number, then the marked and the unmarked one after an edit.
std::string clickRow(ListWindow& list, int k) {
    const int y = 300 + (k - 1) * 330 + 100;
    list.window.press("picGrid", {1, 0, 500, y});
    list.window.release("picGrid", {1, 0, 500, y});
    return list.cell(k, 0);
}

int markedCells(ListWindow& list) {
    int marked = 0;
    for (const CanvasCall& call : list.grid().calls())
        if (call.kind == CanvasCall::FilledBox && call.x1 == 15 && call.color == kBlack) ++marked;
    return marked;
}

TEST(ListClick, ARowOpensItsRecordAndAnEmptyLineMarksNothingInEveryList) {
    // One session, three occurrences of a weekly event, and a task and an assignment due today.
    const struct {
        Mode mode;
        const char* range;
        int rows;
    } lists[] = {{Mode::StudySessions, "Term", 1}, {Mode::Events, "Week", 3}, {Mode::Reminders, "Today", 2}};
    for (const auto& l : lists) {
        ListWindow list(l.mode);
        list.filters("All", l.range);
        addClass(list.store, 1, "Art");
        addAssignment(list.store, {});
        addSession(list.store, 1, "00 : 30");
        addTask(list.store, {});
        test::addEvent(list.store, {.date = "2026/11/23", .recurrence = "Day", .repeatDaily = "TFTFTFF"});
        list.build();
        SCOPED_TRACE(l.range);
        ASSERT_EQ(list.window.state.RowCount, l.rows);
        const std::string last = std::to_string(l.rows);
        EXPECT_EQ(clickRow(list, l.rows), last + "|" + last + "|" + last);
        EXPECT_EQ(clickRow(list, l.rows + 1), "");  // a new record where the mode makes them
        EXPECT_EQ(markedCells(list), 1);
    }
}

TEST(ListClick, TheNumberCellReturnsToItsPlainLookAfterTheEditor) {
    ListWindow list(Mode::Homework);
    list.filters("All", "Term");
    addClass(list.store, 1, "Art");
    for (int i = 0; i < 12; ++i) addAssignment(list.store, {});
    list.build();
    list.window.scrollTo("VSGridScroll", 4);
    clickRow(list, 2);
    std::vector<CanvasCall> numberCell;
    for (const CanvasCall& call : list.grid().calls()) {
        const bool drawn = call.kind == CanvasCall::Text || call.kind == CanvasCall::FilledBox;
        if (drawn && call.y1 >= (22 + 20) * 15 && call.y1 <= (22 + 20 + 21) * 15 && call.x1 < 345)
            numberCell.push_back(call);
    }
    // Painted with the row, then marked (white on black), then plain (black on white), all
    // showing the list position TopRow - 1 + k = 5.
    ASSERT_EQ(numberCell.size(), 5u);
    EXPECT_EQ(numberCell[0].text, "5");
    EXPECT_EQ(numberCell[1].color, kBlack);
    EXPECT_EQ(numberCell[2].color, kWhite);
    EXPECT_EQ(numberCell[2].text, "5");
    EXPECT_EQ(numberCell[3].color, kWhite);
    EXPECT_EQ(numberCell[4].color, kBlack);
    EXPECT_EQ(numberCell[4].text, "5");
}

}  // namespace
}  // namespace qh
