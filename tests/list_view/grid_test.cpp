#include "list_view/grid.h"

#include <gtest/gtest.h>

#include "record_store/color_vocabulary.h"
#include "shell/main_window.h"
#include "support/fake_platform.h"

namespace qh {
namespace {

RecordingCanvas& recording(Canvas& canvas) { return dynamic_cast<RecordingCanvas&>(canvas); }

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
    EXPECT_EQ(rows.pitchTwips, 330);
    EXPECT_EQ(rows.bottomTwips, 3300);
    EXPECT_EQ(rows.gridBottom(), 220);
    EXPECT_EQ(rows.headerHeight(), 20);
    EXPECT_EQ(rows.rowsVisible, 9);
    // One twip less and the last row no longer fits whole under the header strip.
    EXPECT_EQ(MeasureGridRows(3269, 300, 22).rowsVisible, 8);
    EXPECT_EQ(MeasureGridRows(200, 300, 22).rowsVisible, 0);
}

struct HitCase {
    const char* name;
    int x, y;
    int pressed, released;
};

class GridHitTest : public ::testing::TestWithParam<HitCase> {};

TEST_P(GridHitTest, PressAndReleaseFindTheirRows) {
    const GridRows rows = MeasureGridRows(3355, 300, 22);
    const HitCase& c = GetParam();
    EXPECT_EQ(RowPressedAt(rows, 9280, c.x, c.y), c.pressed);
    EXPECT_EQ(RowReleasedAt(rows, c.y), c.released);
}

INSTANTIATE_TEST_SUITE_P(
    Borders, GridHitTest,
    ::testing::Values(HitCase{"TopOfHeaderStrip", 500, 0, 1, 0}, HitCase{"HeaderStripEdge", 500, 300, 1, 0},
                      HitCase{"FirstRowTop", 500, 301, 1, 1}, HitCase{"FirstRowBorder", 500, 630, 1, 1},
                      HitCase{"SecondRowTop", 500, 631, 2, 2}, HitCase{"LastWholeRowBorder", 500, 3270, 9, 9},
                      HitCase{"BelowLastWholeRow", 500, 3271, 999, 0}, HitCase{"BelowCanvas", 500, 4000, 999, 0},
                      HitCase{"ScrollStripEdge", 9280 - 255, 700, 999, 2},
                      HitCase{"JustLeftOfScrollStrip", 9280 - 256, 700, 2, 2}),
    [](const auto& info) { return std::string(info.param.name); });

// --- Painter ---------------------------------------------------------------------------

GridFrame frameOf(std::initializer_list<ColumnSpan> columns) {
    GridFrame frame;
    frame.columns = columns;
    frame.headerHeight = 20;
    frame.gridBottom = 220;
    frame.rowPitch = 22;
    return frame;
}

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

TEST(GridPainter, RowsStopAtTheLastWholeRowAndAtTheEndOfTheList) {
    const GridFrame frame = frameOf({{0, 420}, {405, 1140}});
    int asked = 0;
    auto rowAt = [&](int p) {
        ++asked;
        GridRow row;
        row.cells.push_back({CellKind::Trimmed, "  item " + std::to_string(p) + "  "});
        return row;
    };
    RecordingCanvas canvas;
    PaintGridRows(canvas, frame, 1, 30, rowAt);
    EXPECT_EQ(asked, 9);  // 9 whole rows fit under the header strip
    asked = 0;
    PaintGridRows(canvas, frame, 4, 5, rowAt);  // positions 4 and 5 of a list of 5
    EXPECT_EQ(asked, 2);
}

// --- The window ------------------------------------------------------------------------

class GridWindowTest : public ::testing::Test {
protected:
    GridWindowTest() : window(store, fake.platform) {
        window.colors->BuildColorValues();
        window.c("MenuHomework").checked = true;
    }
    RecordingCanvas& grid() { return recording(*window.c("picGrid").canvas); }

    FakePlatform fake;
    RecordStore store;
    MainWindow window;
};

TEST_F(GridWindowTest, LayoutPlacesGridHeadersAndScrollBarByTheWindowSize) {
    window.LayoutGrid(Mode::Tasks);
    const Control& picGrid = window.c("picGrid");
    EXPECT_EQ(picGrid.left, 100);
    EXPECT_EQ(picGrid.top, 2650);
    EXPECT_EQ(picGrid.width, window.scaleWidth - 200);
    EXPECT_EQ(picGrid.height, window.scaleHeight - 2650 - 300 - 100);
    const Control& scroll = window.c("VSGridScroll");
    EXPECT_EQ(scroll.left, picGrid.width - 255);
    EXPECT_EQ(scroll.height, picGrid.height);
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(window.c("picColHeader", i).visible, i < 6) << i;
        EXPECT_EQ(window.c("picColHeader", i).enabled, i < 6) << i;
    }
    EXPECT_EQ(window.c("picColHeader", 1).left, 405);
    EXPECT_EQ(window.c("picColHeader", 2).left, 405 + window.c("picColHeader", 1).width - 15);
    EXPECT_EQ(window.state.HeaderHeight, 20);
    EXPECT_EQ(window.state.GridBottom, 220);
    EXPECT_EQ(window.state.RowsVisible, 9);
    EXPECT_EQ(window.c("picStatusBar").top, window.scaleHeight - 300);

    // A taller window has more rows; the homework layout shows all nine headers again.
    window.setOuterSize(9600, 9000);
    window.LayoutGrid(Mode::Homework);
    EXPECT_EQ(window.state.RowsVisible, (9000 - 510 - 300 - 3050 - 300) / 330);
    EXPECT_TRUE(window.c("picColHeader", 8).visible);
}

TEST_F(GridWindowTest, LayoutRulesTheEmptyLinesLightAndTheNumberColumnDark) {
    window.LayoutGrid(Mode::Homework);
    int lightHorizontal = 0, darkHorizontal = 0, lightVertical = 0, darkVertical = 0;
    for (const CanvasCall& call : grid().calls()) {
        if (call.kind != CanvasCall::Line) continue;
        const bool horizontal = call.y1 == call.y2;
        if (call.color == kLightRule) ++(horizontal ? lightHorizontal : lightVertical);
        if (call.color == kDarkRule) {
            ++(horizontal ? darkHorizontal : darkVertical);
            if (horizontal) {
                EXPECT_EQ(call.x2, 405);
            }
        }
        if (!horizontal) {
            EXPECT_EQ(call.y2, 3300);
        }
    }
    EXPECT_EQ(lightVertical, 8);
    EXPECT_EQ(darkVertical, 1);
    EXPECT_EQ(lightHorizontal, 10);  // the header strip's edge and nine row borders
    EXPECT_EQ(darkHorizontal, 10);
}

TEST_F(GridWindowTest, ScrollBarIsOffWhileTheListFitsAndSpansTheRestOtherwise) {
    window.LayoutGrid(Mode::Homework);
    Control& scroll = window.c("VSGridScroll");
    window.state.RowCount = 9;
    window.state.TopRow = 3;
    window.UpdateGridScroll();
    EXPECT_FALSE(scroll.enabled);
    EXPECT_EQ(scroll.value, 1);
    EXPECT_EQ(window.state.TopRow, 1);

    window.state.RowCount = 20;
    window.UpdateGridScroll();
    EXPECT_TRUE(scroll.enabled);
    EXPECT_EQ(scroll.minimum, 1);
    EXPECT_EQ(scroll.maximum, 12);
    EXPECT_EQ(scroll.largeChange, 8);

    // The list shrinks while scrolled to its end: the bar and the top row follow.
    scroll.value = 12;
    window.state.TopRow = 12;
    window.state.RowCount = 15;
    window.UpdateGridScroll();
    EXPECT_EQ(scroll.value, 7);
    EXPECT_EQ(window.state.TopRow, 7);
}

TEST_F(GridWindowTest, HeaderClicksSortAndSwapTheDirectionButTheNumberColumnDoesNothing) {
    window.LayoutGrid(Mode::Homework);
    window.state.SortColumn = 7;
    window.state.SortDirection = 1;
    window.click("picColHeader(0)");
    EXPECT_EQ(window.state.SortColumn, 7);
    EXPECT_EQ(window.state.SortDirection, 1);

    window.click("picColHeader(7)");
    EXPECT_EQ(window.state.SortDirection, 2);
    window.click("picColHeader(3)");  // a new column keeps the direction last used
    EXPECT_EQ(window.state.SortColumn, 3);
    EXPECT_EQ(window.state.SortDirection, 2);
    window.click("picColHeader(3)");
    EXPECT_EQ(window.state.SortDirection, 1);
}

// The boxes painted on number cells: a click that opens a record marks its number cell.
std::vector<CanvasCall> numberBoxes(const RecordingCanvas& canvas) {
    std::vector<CanvasCall> boxes;
    for (const CanvasCall& call : canvas.calls())
        if (call.kind == CanvasCall::FilledBox && call.x1 == 15) boxes.push_back(call);
    return boxes;
}

TEST_F(GridWindowTest, AClickOpensARowOnlyWhenPressAndReleaseMeetOnIt) {
    window.LayoutGrid(Mode::Homework);
    window.state.ListAssignmentRows = {1, 2, 3};
    window.state.RowCount = 3;
    window.press("picGrid", {1, 0, 500, 700});
    window.release("picGrid", {1, 0, 500, 1000});  // row 3
    window.press("picGrid", {1, 0, 500, 100});     // header strip: row 1 on press...
    EXPECT_EQ(window.state.PressedRow, 1);
    window.release("picGrid", {1, 0, 500, 100});  // ...but 0 on release
    window.press("picGrid", {1, 0, 9200, 500});   // scroll strip
    EXPECT_EQ(window.state.PressedRow, 999);
    window.release("picGrid", {1, 0, 9200, 500});
    EXPECT_TRUE(numberBoxes(grid()).empty());
    // Press and release anywhere on one row open it: its number cell is marked, then plain.
    window.press("picGrid", {1, 0, 500, 700});
    window.release("picGrid", {1, 0, 800, 900});
    const auto boxes = numberBoxes(grid());
    ASSERT_EQ(boxes.size(), 2u);
    EXPECT_EQ(boxes[0].y1, (22 + 20 + 1) * 15);
}

}  // namespace
}  // namespace qh
