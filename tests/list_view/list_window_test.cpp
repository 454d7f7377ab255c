// The lists over records whose class or assignment is gone, whose row columns run short
// (list_rows.h), set up straight in the store, and a scroll step over a record changed
// without a refresh. Each list's rows in their colours, its title and summary boxes, and
// the record a click on a row opens are the probe scripts
// lists_paint_sum_and_open_their_records and scrolled_list_marks_and_sorts; the calendar's
// tint for each list is calendar_tint_of_each_list.
#include <gtest/gtest.h>

#include <functional>

#include "list_view/list_fixture.h"
#include "support/main_window_fixture.h"

namespace qh {
namespace {

using namespace qh::testing;

// The rows of the list as the fixture shows them, each with the record row it opens.
std::vector<std::string> rows(ListWindow& list) {
    const MainWindowState& s = list.window.state;
    const std::vector<int> records = asInts(s.ListAssignmentRows);
    std::vector<std::string> shown;
    for (int v = 1; v <= std::min(s.RowCount, s.RowsVisible); ++v)
        shown.push_back(list.row(v) + " #" + std::to_string(v <= int(records.size()) ? records[v - 1] : 0));
    return shown;
}

// Clicks visible row k (press and release on it) and answers what its number cell showed
// afterwards: the painted number, then the marked and the plain one around the editor.
std::string clickRow(ListWindow& list, int k) {
    const int y = 300 + (k - 1) * 330 + 100;
    list.window.press(list.window.ui.picGrid.key(), {1, 0, 500, y});
    list.window.release(list.window.ui.picGrid.key(), {1, 0, 500, y});
    return list.cell(k, 0);
}

TEST(Lists, RowsWhoseClassOrAssignmentIsGone) {
    const struct {
        const char* name;
        Mode mode;
        std::function<void(ListWindow&)> setup;
        std::vector<std::string> rows;  // cells, colours and record of each row, as rows() gives them
    } cases[] = {
        // The class entries move up by one where a class is missing (list_rows.h); sorted,
        // each row keeps what it showed.
        {"HomeworkOfAMissingClass",
         Mode::Homework,
         [](ListWindow& l) {
             addClass(l.store, 1, "Art", "Black", "Gold");
             addAssignment(l.store, {.classLink = 7, .description = "Orphan", .done = true});
             addAssignment(l.store, {.description = "Second"});
         },
         {"1| |Homework| Second|Medium|01:00|21-Nov-26|Unchecked| Black/White #2",
          "2| Art|Homework| Orphan|Medium|00:00|21-Nov-26|Checked| Black/Gold #1"}},
        // The session of a missing assignment shows none of it and opens none.
        {"StudySessionOfAMissingAssignment",
         Mode::StudySessions,
         [](ListWindow& l) {
             addClass(l.store, 1, "Biology", "Black", "Lavender");
             addAssignment(l.store, {.date = "2026/11/25", .description = "Essay"});
             addSession(l.store, 1, "01 : 30", "2026/11/20");
             addSession(l.store, 9, "00 : 20", "2026/11/19");
         },
         {"1| || ||00:20|19-Nov-26| Black/White #0",
          "2| Biology|Homework| Essay|Medium|01:30|20-Nov-26|25-Nov-26 Black/Lavender #1"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        ListWindow list(c.mode);
        list.filters("All", "Term");
        list.store.CurrentTermName = "Fall 2026";
        c.setup(list);
        list.build();
        EXPECT_EQ(rows(list), c.rows);
        // A row without a record marks nothing and opens nothing.
        for (int v = 1; v <= int(c.rows.size()); ++v) {
            const std::string n = std::to_string(v);
            const bool opens = !c.rows[std::size_t(v - 1)].ends_with(" #0");
            EXPECT_EQ(clickRow(list, v), opens ? n + "|" + n + "|" + n : n) << "a click on row " << v;
        }
    }
}

// A scroll step gathers its rows from the records again, so a record changed without a
// refresh of its own shows at the next step.
TEST(Lists, AScrollStepGathersTheRowsAnew) {
    ListWindow list(Mode::Homework);
    list.filters("All", "Term");
    for (int i = 1; i <= 20; ++i) addAssignment(list.store, {.description = "Item " + std::to_string(i)});
    list.build();
    list.store.AssignmentDescriptions(6) = "Changed";
    list.window.scrollTo(list.window.ui.VSGridScroll.key(), 5);
    EXPECT_EQ(list.cell(2, 3), " Changed");
}

}  // namespace
}  // namespace qh
