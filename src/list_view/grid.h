#pragma once
// The list grid of the main window: a canvas (`picGrid`) on which the list view draws its
// own rules, cells and texts, nine header pictures (`picColHeader(0..8)`) lying along its
// top and a vertical scroll bar (`VSGridScroll`) at its right edge.
//
// Units: twips (15 to the pixel) unless a name says pixels. The view state keeps
// HeaderHeight, GridBottom and RowPitch in pixels.
//
// Rows are counted two ways: a list position p (1..RowCount, shown in the "#" column) and
// a visible row k (1 at the top of the grid). p = TopRow - 1 + k.
//
// The geometry is kept as pure functions with their inverses (where a row is painted, and
// which row a mouse position hits) so that both can be tested without a window; the main
// window's members that use them (shell/list_grid.cpp) only read and write the controls.
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "common/color.h"
#include "common/day_number.h"
#include "common/twips.h"
#include "list_view/main_window_state.h"

namespace qh {

class Canvas;
struct ListHost;

inline constexpr int kScrollBarWidth = 255;  // twips; the strip at the grid's right edge
inline constexpr int kGridTop = 2650;        // twips from the top of the window's client area
inline constexpr int kStatusBarHeight = 300;
inline constexpr int kNoRowPressed = 999;  // PressedRow of a press that hit no row

// Rule colours: the light rules of the cells and the dark rules of the number column.
inline constexpr Color kLightRule = rgb(224, 224, 224);
inline constexpr Color kDarkRule = rgb(128, 128, 128);

// The width table of a mode, by column index from 0: an entry of 1 or more is a fixed
// width in pixels, one below 1 a share of what the fixed columns leave. Empty for
// Mode::None. The shares are single precision on purpose; that the task and event shares
// stop at 0.995 is part of the look.
std::span<const float> GridWidthTable(Mode mode);

struct ColumnSpan {
    int left = 0;
    int width = 0;
    bool operator==(const ColumnSpan&) const = default;
};

// Places the columns of a width table on a grid `gridWidth` twips wide whose scroll bar is
// `scrollWidth` twips wide. Column 0 starts at 0, each later one a pixel before its
// predecessor ends, so neighbours share a rule. A share column takes
// (gridWidth - scrollWidth - fixed total + 45) x share; headers are windows and lie on
// whole pixels, so that width is rounded to the nearest pixel.
std::vector<ColumnSpan> PlaceGridColumns(std::span<const float> widths, int gridWidth, int scrollWidth);

// The vertical measures of a grid: where the header strip ends and rows stand.
struct GridRows {
    int headerTwips = 0;  // height of header 0
    int pitchTwips = 0;   // row pitch
    int bottomTwips = 0;  // B: the lower edge of the last whole row under the header strip
    int rowsVisible = 0;  // whole rows between the header strip and the lower edge

    int headerHeight() const { return headerTwips / kTwipsPerPixel; }  // pixels
    int gridBottom() const { return bottomTwips / kTwipsPerPixel; }    // pixels
};
GridRows MeasureGridRows(int canvasHeight, int headerTwips, int rowPitchPixels);

// The visible row a press at (x, y) hits: a press on or above the header strip's lower
// edge counts as row 1, a press on the scroll bar strip (x >= canvasWidth - 255) or below
// the last whole row hits none (kNoRowPressed).
int RowPressedAt(const GridRows& rows, int canvasWidth, int x, int y);
// The visible row under a release at height y: 0 on the header strip and below the last
// whole row; the scroll bar strip is not tested.
int RowReleasedAt(const GridRows& rows, int y);

// ---------------------------------------------------------------------------------------
// Painting.

enum class CellKind {
    Plain,    // printed as it is
    Trimmed,  // outer blanks removed
    Clipped,  // a blank, then the value, cut at the pixel to the cell's width
    Check,    // the picture "Checked" or "Unchecked", no text
};

struct GridCell {
    CellKind kind = CellKind::Plain;
    std::string text;
    bool checked = false;
};

// One row of a list, columns 1..n-1 (the number column is painted by the painter).
struct GridRow {
    Color fore = kBlack;
    Color back = kWhite;
    std::vector<GridCell> cells;
};

// Where columns and rows lie, as a painter needs them.
struct GridFrame {
    std::vector<ColumnSpan> columns;  // 0..n-1
    int headerHeight = 0;             // pixels
    int gridBottom = 0;               // pixels
    int rowPitch = 22;                // pixels
};

// The value with a leading blank, from which the last character is taken off as long as
// the text is wider than `cellWidth` - 105 in the canvas's current font. No ellipsis.
// Characters are whole UTF-8 sequences.
std::string ClipToCell(const Canvas& canvas, const std::string& value, int cellWidth);

// The number cell of visible row v (1-based) showing list position p; false, without
// printing, when the row would start below the paint limit.
bool PaintNumberCell(Canvas& canvas, const GridFrame& frame, int v, int p);

// Paints the rows from list position `topRow` on into the visible rows, as far as the
// paint limit and the end of the list allow. `rowAt(p)` gives the cells of position p; it
// is asked only for rows that are painted. Sets the canvas font to Arial 9 first. Returns
// what a screen reader says of each painted row: its position and its cells' texts.
std::vector<std::string> PaintGridRows(Canvas& canvas, const GridFrame& frame, int topRow, int rowCount,
                   const std::function<GridRow(int position)>& rowAt);

// A row as a screen reader says it: the list position, then the cells that show a text,
// a check box as "checked" or "not checked", separated by commas.
std::string RowSpokenText(int position, const GridRow& row);
// The frame round the visible row the keyboard stands on, inside the row's rules and left
// of the scroll bar strip of a grid `gridWidth` twips wide; nothing for row 0.
void PaintKeyboardRow(Canvas& canvas, const GridFrame& frame, int row, int gridWidth);
inline constexpr Color kKeyboardRowFrame = rgb(28, 95, 200);

// The header picture of column c under the sort state.
std::string HeaderPicture(int column, int sortColumn, SortDirection sortDirection);

// ---------------------------------------------------------------------------------------
// Window glue, used by the list builders; the window is seen through a ListHost.

// The grid's header pictures, one per column of the widest list; the key of header c
// ("picColHeader(c)").
inline constexpr int kGridHeaderCount = 9;
std::string GridHeaderKey(int index);
// The vertical measures of the grid as the window stands.
GridRows CurrentGridRows(const ListHost& window);
// The frame of the grid as the last layout left it, for a list of `columnCount` columns.
GridFrame CurrentGridFrame(const ListHost& window, int columnCount);
// Sets the header pictures and prints the titles, "Verdana" 8 bold, black.
void PaintGridHeaders(const ListHost& window, std::span<const char* const> titles);
// The value of a colour name of the vocabulary; an empty name (a row column that ran
// short) gives `fallback`.
Color RowColor(const ListHost& window, const std::string& name, Color fallback);
// Runs the layout of a mode (no-op for Mode::None).
void LayoutModeGrid(const ListHost& window, Mode mode);
// Paints the headers and the visible rows of the current list, after UpdateGridScroll.
void PaintList(const ListHost& window, std::span<const char* const> titles,
               const std::function<GridRow(int position)>& rowAt);

// The date text of a record field in the "Medium Date" format; a field that holds no date
// is shown as it stands.
std::string MediumDateOf(const ListHost& window, const std::string& field);

}  // namespace qh
