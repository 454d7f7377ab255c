// The list builders and the grid layout reach the window's routines only through the
// callbacks of the ListHost they are given: each runs once, when what it shows is known.
#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <vector>

#include "list_view/list_fixture.h"
#include "list_view/list_host.h"
#include "recurrence/event_records.h"

namespace qh {
namespace {

using namespace qh::testing;

// A record of every kind, on the fake clock's today, so each list has a row.
void addOneOfEach(RecordStore& s) {
    addClass(s, 1, "Biology");
    addAssignment(s, {.description = "Essay", .reminder = "1 Day"});
    addSession(s, 1, "00 : 30", "2026/11/21");
    addTask(s, {.description = "Return books", .reminder = "1 Day"});
    test::addEvent(s, {.date = "2026/11/21", .reminder = "1 Day", .description = "Fair"});
}

struct BuilderCase {
    const char* name;
    Mode mode;
    const char* list;
    const char* range;
    void (*build)(const ListHost&);
};
void PrintTo(const BuilderCase& c, std::ostream* os) { *os << c.name; }

class ListBuilderTest : public ::testing::TestWithParam<BuilderCase> {};

// The scroll bar is set once, to the length of the list the builder keeps, and before the
// rows are painted (painting reads the top row the scroll bar settles).
TEST_P(ListBuilderTest, SetsTheScrollBarOnceForItsListBeforePainting) {
    const BuilderCase& c = GetParam();
    ListWindow l(c.mode);
    addOneOfEach(l.store);
    l.filters(c.list, c.range);
    l.window.LayoutGrid(c.mode);
    struct Seen {
        int rowCount;
        std::size_t paintedRows;
    };
    std::vector<Seen> seen;
    ListHost host = l.window.listHost();
    host.updateGridScroll = [&] {
        seen.push_back({l.window.state.RowCount, l.window.ui.picGrid->items.size()});
        l.window.UpdateGridScroll();
    };

    c.build(host);

    ASSERT_EQ(seen.size(), 1u);
    EXPECT_GT(l.window.state.RowCount, 0);
    EXPECT_EQ(seen[0].rowCount, l.window.state.RowCount);
    EXPECT_EQ(seen[0].paintedRows, 0u);
    EXPECT_EQ(l.window.ui.picGrid->items.size(), std::size_t(l.window.state.RowCount));
}

INSTANTIATE_TEST_SUITE_P(
    EachMode, ListBuilderTest,
    ::testing::Values(BuilderCase{"Homework", Mode::Homework, "All", "Term", BuildHomeworkList},
                      BuilderCase{"StudySessions", Mode::StudySessions, "All", "Term", BuildStudySessionList},
                      BuilderCase{"Tasks", Mode::Tasks, "All", "All", BuildTaskList},
                      BuilderCase{"Events", Mode::Events, "All", "Day", BuildEventList},
                      BuilderCase{"Reminders", Mode::Reminders, "All", "Today", BuildReminderList}),
    [](const auto& info) { return std::string(info.param.name); });

// The status bar is repainted once a layout has put it at the window's foot, and not at
// all when there is no mode to lay out.
TEST(ListHost, LayoutRepaintsTheStatusBarOnceItStandsAtTheFoot) {
    for (Mode mode : {Mode::None, Mode::Homework, Mode::StudySessions, Mode::Tasks, Mode::Events, Mode::Reminders}) {
        SCOPED_TRACE(int(mode));
        ListWindow l(mode == Mode::None ? Mode::Tasks : mode);
        std::vector<int> statusBarTops;
        l.window.ui.picStatusBar->top = 0;  // wherever it stood, the layout moves it
        ListHost host = l.window.listHost();
        host.paintStatusBar = [&] { statusBarTops.push_back(l.window.ui.picStatusBar->top); };

        LayoutModeGrid(host, mode);

        const std::vector<int> expected =
            mode == Mode::None ? std::vector<int>{} : std::vector<int>{l.window.scaleHeight - kStatusBarHeight};
        EXPECT_EQ(statusBarTops, expected);
    }
}

}  // namespace
}  // namespace qh
