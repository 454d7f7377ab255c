#include "list_view/grid.h"

#include <gtest/gtest.h>

#include <map>

#include "list_view/list_fixture.h"

namespace qh {
namespace {

// --- Geometry --------------------------------------------------------------------------

TEST(GridColumns, FixedColumnsTakePixelsAndSharesSplitTheRestOnWholePixels) {
    // The load size: a grid 9280 twips wide with a 255-twip scroll bar. The fixed homework
    // columns take 388 pixels; the shares split 9280 - 255 - 5820 + 45 = 3250 twips.
    const auto spans = PlaceGridColumns(GridWidthTable(Mode::Homework), 9280, 255);
    ASSERT_EQ(spans.size(), 9u);
    const int widths[] = {420, 1140, 1200, 2115, 1050, 675, 1050, 675, 750};
    for (std::size_t i = 0; i < 9; ++i) EXPECT_EQ(spans[i].width, widths[i]) << "column " << i;
    // Neighbours overlap by one pixel so that they share a rule.
    EXPECT_EQ(spans[0].left, 0);
    for (std::size_t i = 1; i < 9; ++i) EXPECT_EQ(spans[i].left, spans[i - 1].left + spans[i - 1].width - 15);
}

TEST(GridRows, TheBottomIsTheLastWholeRowAndTheHeaderStripIsNotARow) {
    const GridRows rows = MeasureGridRows(3355, 300, 22);
    EXPECT_EQ(rows.bottomTwips, 300 + 9 * 330);
    EXPECT_EQ(rows.rowsVisible, 9);
    // A height whose rows end off the pitch from the top: the limit still closes the
    // tenth row, all of which fits (the grid of a window 7470 twips high).
    EXPECT_EQ(MeasureGridRows(3610, 300, 22).rowsVisible, 10);
    EXPECT_EQ(MeasureGridRows(3610, 300, 22).bottomTwips, 3600);
    // One twip less and the last row no longer fits whole under the header strip.
    EXPECT_EQ(MeasureGridRows(3269, 300, 22).rowsVisible, 8);
    EXPECT_EQ(MeasureGridRows(200, 300, 22).rowsVisible, 0);
}

TEST(GridRows, PressAndReleaseFindTheirRows) {
    const GridRows rows = MeasureGridRows(3355, 300, 22);
    const struct {
        int x, y, pressed, released;
    } hits[] = {
        {500, 0, 1, 0},
        {500, 300, 1, 0},  // the header strip: row 1 on a press only
        {500, 301, 1, 1},
        {500, 630, 1, 1},  // the first row, to its lower border
        {500, 631, 2, 2},
        {500, 3270, 9, 9},  // the last whole row
        {500, 3271, 999, 0},
        {500, 4000, 999, 0},  // below it
        {9280 - 255, 700, 999, 2},
        {9280 - 256, 700, 2, 2},  // the scroll strip and just left of it
    };
    for (const auto& h : hits) {
        EXPECT_EQ(RowPressedAt(rows, 9280, h.x, h.y), h.pressed) << h.x << "," << h.y;
        EXPECT_EQ(RowReleasedAt(rows, h.y), h.released) << h.x << "," << h.y;
    }
}

// --- Painter ---------------------------------------------------------------------------

TEST(GridPainter, ClipsByPixelWidthWithoutEllipsis) {
    RecordingCanvas canvas;
    CanvasFont font;
    font.name = "Arial";
    font.size = 9;  // 72 twips a character on the recording canvas
    canvas.setFont(font);
    // A cell 1140 twips wide holds 1035 twips of text: 14 characters.
    EXPECT_EQ(ClipToCell(canvas, "Introduction to Chemistry", 1140), " Introduction ");
    EXPECT_EQ(ClipToCell(canvas, "Short", 1140), " Short");
    // A wider font holds fewer characters in the same cell: the cut is by width.
    font.size = 12;
    canvas.setFont(font);
    EXPECT_EQ(ClipToCell(canvas, "Introduction to Chemistry", 1140), " Introduct");
    // A character of several bytes goes as a whole.
    EXPECT_EQ(ClipToCell(canvas, "abcdefgh\xC3\xA9", 1140), " abcdefgh");
    EXPECT_EQ(ClipToCell(canvas, "anything", 50), "");
}

TEST(GridPainter, AsksOnlyForRowsThatArePaintedAndInTheList) {
    GridFrame frame;
    frame.columns = {{0, 420}, {405, 1140}};
    frame.headerHeight = 20;
    frame.gridBottom = 220;
    std::vector<int> asked;
    const auto rowAt = [&](int p) {
        asked.push_back(p);
        return GridRow{};
    };
    RecordingCanvas canvas;
    PaintGridRows(canvas, frame, 1, 30, rowAt);  // nine whole rows fit under the header strip
    PaintGridRows(canvas, frame, 4, 5, rowAt);   // a scrolled grid over a list that shrank to five
    EXPECT_EQ(asked, (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 4, 5}));
}

// --- The window ------------------------------------------------------------------------

class GridWindowTest : public ::testing::Test {
protected:
    testing::ListWindow list{Mode::Homework};
    MainWindow& window = list.window;
    RecordingCanvas& grid() { return list.grid(); }
};

TEST_F(GridWindowTest, LayoutFitsTheGridHeadersAndScrollBarToTheWindow) {
    window.LayoutGrid(Mode::Tasks);
    const Control& picGrid = *window.ui.picGrid;
    EXPECT_EQ(picGrid.width, window.scaleWidth - 200);
    EXPECT_EQ(picGrid.height, window.scaleHeight - 2650 - 300 - 100);
    EXPECT_EQ(window.ui.VSGridScroll->left, picGrid.width - 255);
    EXPECT_EQ(window.ui.VSGridScroll->height, picGrid.height);
    for (int i = 0; i < 9; ++i) EXPECT_EQ(window.c("picColHeader", i).visible, i < 6) << i;
    EXPECT_EQ(window.state.RowsVisible, 9);
    EXPECT_EQ(window.ui.picStatusBar->top, window.scaleHeight - 300);

    // A taller window has more rows; the homework layout shows all nine headers again.
    window.setOuterSize(9600, 9000);
    window.LayoutGrid(Mode::Homework);
    EXPECT_EQ(window.state.RowsVisible, (9000 - 510 - 300 - 3050 - 300) / 330);
    EXPECT_TRUE(window.c("picColHeader", 8).visible);
}

TEST_F(GridWindowTest, LayoutRulesTheEmptyLinesLightAndTheNumberColumnDark) {
    window.LayoutGrid(Mode::Homework);
    std::map<std::string, int> rules;  // how many rules of each kind, by where they end
    for (const CanvasCall& call : grid().calls()) {
        if (call.kind != CanvasCall::Line) continue;
        const bool across = call.y1 == call.y2;
        const char* colour = call.color == kLightRule ? " light" : call.color == kDarkRule ? " dark" : " other";
        ++rules[(across ? "across" : "down") + std::string(colour) + " to " +
                std::to_string(across ? call.x2 : call.y2)];
    }
    const std::string width = std::to_string(grid().scaleWidth());
    // The header strip's edge and nine row borders across, one rule down per column.
    EXPECT_EQ(rules, (std::map<std::string, int>{{"across light to " + width, 10},
                                                 {"across dark to 405", 10},
                                                 {"down light to 3270", 8},
                                                 {"down dark to 3270", 1}}));
}

TEST_F(GridWindowTest, ScrollBarIsOffWhileTheListFitsAndSpansTheRestOtherwise) {
    window.LayoutGrid(Mode::Homework);  // nine rows
    Control& scroll = *window.ui.VSGridScroll;
    const auto bar = [&](int rowCount, int value) {
        window.state.RowCount = Int16(rowCount);
        window.state.TopRow = Int16(value);
        scroll.value = value;
        window.UpdateGridScroll();
        return (scroll.enabled ? "on " + std::to_string(scroll.minimum) + ".." + std::to_string(scroll.maximum) +
                                     " page " + std::to_string(scroll.largeChange)
                               : std::string("off")) +
               " at " + std::to_string(scroll.value) + " top " + std::to_string(window.state.TopRow);
    };
    EXPECT_EQ(bar(9, 3), "off at 1 top 1");
    EXPECT_EQ(bar(20, 1), "on 1..12 page 8 at 1 top 1");
    EXPECT_EQ(bar(15, 12), "on 1..7 page 8 at 7 top 7");  // the list shrank while scrolled to its end
}

TEST_F(GridWindowTest, HeaderClicksSortAndSwapTheDirectionButTheNumberColumnDoesNothing) {
    window.LayoutGrid(Mode::Homework);
    window.state.SortColumn = 7;
    window.state.SortDirection = SortDirection::Ascending;
    const auto clicked = [&](int header) {
        window.click("picColHeader(" + std::to_string(header) + ")");
        const bool ascending = window.state.SortDirection == SortDirection::Ascending;
        return std::to_string(window.state.SortColumn) + (ascending ? " up " : " down ") +
               window.c("picColHeader", 7).picture + " " + window.c("picColHeader", 3).picture;
    };
    EXPECT_EQ(clicked(0), "7 up GridTitle GridTitle");  // no list is built: nothing repaints
    EXPECT_EQ(clicked(7), "7 down GridTitleDown GridTitle");
    EXPECT_EQ(clicked(0), "7 down GridTitleDown GridTitle");
    EXPECT_EQ(clicked(3), "3 down GridTitle GridTitleDown");  // a new column keeps the direction last used
    EXPECT_EQ(clicked(3), "3 up GridTitle GridTitleUp");
}

TEST_F(GridWindowTest, AClickOpensARowOnlyWhenPressAndReleaseMeetOnIt) {
    window.LayoutGrid(Mode::Homework);
    window.state.ListAssignmentRows = {1, 2, 3};
    window.state.RowCount = 3;
    // The boxes painted so far on number cells: an opened record marks its number, then
    // unmarks it.
    const auto boxesAfter = [&](int pressX, int pressY, int releaseX, int releaseY) {
        window.press(window.ui.picGrid.key(), {1, 0, pressX, pressY});
        window.release(window.ui.picGrid.key(), {1, 0, releaseX, releaseY});
        int boxes = 0;
        for (const CanvasCall& call : grid().calls()) boxes += call.kind == CanvasCall::FilledBox && call.x1 == 15;
        return boxes;
    };
    EXPECT_EQ(boxesAfter(500, 700, 500, 1000), 0);   // pressed on row 2, released on row 3
    EXPECT_EQ(boxesAfter(500, 100, 500, 100), 0);    // the header strip: row 1 pressed, none released
    EXPECT_EQ(boxesAfter(9200, 500, 9200, 500), 0);  // the scroll strip
    EXPECT_EQ(boxesAfter(500, 700, 800, 900), 2);    // anywhere on row 2
}

}  // namespace
}  // namespace qh
