// The grid's geometry, its painter, scrolling, header clicks and the turning of mouse
// presses into visible rows.
#include "list_view/grid.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "common/text.h"
#include "list_view/grid_keys.h"
#include "list_view/list_host.h"
#include "list_view/list_rows.h"
#include "record_store/color_vocabulary.h"

namespace qh {
namespace {

constexpr std::array<float, 9> kHomeworkWidths{28, 0.35f, 80, 0.65f, 70, 45, 70, 45, 50};
constexpr std::array<float, 8> kStudySessionWidths{28, 0.35f, 85, 0.65f, 75, 50, 70, 75};
constexpr std::array<float, 6> kTaskWidths{28, 0.995f, 75, 70, 70, 45};
constexpr std::array<float, 6> kEventWidths{28, 0.995f, 75, 75, 70, 90};
constexpr std::array<float, 7> kReminderWidths{28, 75, 0.3f, 80, 0.695f, 90, 70};

// Where a row's parts sit, in twips from the cell's left edge and the row's top.
constexpr int kNumberRightEdge = 345;  // the row numbers end here, right-aligned
constexpr int kNumberDrop = 60;
constexpr int kCellTextIndent = 45;
constexpr int kClippedTextRoom = 105;  // what a clipped text leaves free at the cell's right
constexpr int kCheckIndent = 225;
constexpr int kCheckDrop = 75;
constexpr int kFillInsetLeft = 15, kFillInsetRight = 30;  // the coloured fill keeps off the grid lines
// And in pixels from the row's top: the fill's top and bottom, the text's top.
constexpr int kFillTopPixel = 1, kFillBottomPixel = 21, kTextTopPixel = 4;

}  // namespace

std::string GridHeaderKey(int index) { return "picColHeader(" + std::to_string(index) + ")"; }

GridRows CurrentGridRows(const ListHost& window) {
    return MeasureGridRows(window.ui.picGrid->canvas->scaleHeight(), window.form.c(GridHeaderKey(0)).height,
                           window.state.RowPitch);
}

std::span<const float> GridWidthTable(Mode mode) {
    switch (mode) {
        case Mode::Homework:
            return kHomeworkWidths;
        case Mode::StudySessions:
            return kStudySessionWidths;
        case Mode::Tasks:
            return kTaskWidths;
        case Mode::Events:
            return kEventWidths;
        case Mode::Reminders:
            return kReminderWidths;
        case Mode::None:
            break;
    }
    return {};
}

std::vector<ColumnSpan> PlaceGridColumns(std::span<const float> widths, int gridWidth, int scrollWidth) {
    std::vector<ColumnSpan> spans(widths.size());
    int fixedTotal = 0;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        if (widths[i] >= 1) {
            spans[i].width = int(widths[i]) * kTwipsPerPixel;
            fixedTotal += spans[i].width;
        }
    }
    const float rest = float(gridWidth - scrollWidth - fixedTotal + 45);
    for (std::size_t i = 0; i < widths.size(); ++i) {
        if (widths[i] < 1) {
            const float twips = rest * widths[i];
            spans[i].width = int(std::lround(twips / float(kTwipsPerPixel))) * kTwipsPerPixel;
        }
    }
    for (std::size_t i = 1; i < spans.size(); ++i)
        spans[i].left = spans[i - 1].left + spans[i - 1].width - kTwipsPerPixel;
    return spans;
}

GridRows MeasureGridRows(int canvasHeight, int headerTwips, int rowPitchPixels) {
    GridRows rows;
    rows.headerTwips = headerTwips;
    rows.pitchTwips = rowPitchPixels * kTwipsPerPixel;
    if (rows.pitchTwips <= 0) return rows;
    const int below = canvasHeight - headerTwips;
    // A remainder takes the sign of the height, so a canvas lower than its header strip
    // has no rows rather than a negative count.
    rows.rowsVisible = (below - below % rows.pitchTwips) / rows.pitchTwips;
    if (rows.rowsVisible < 0) rows.rowsVisible = 0;
    // The rules and the paint limit end under the last whole row, counted from the header
    // strip: every row the scroll bar counts as visible is ruled and painted.
    rows.bottomTwips = headerTwips + rows.rowsVisible * rows.pitchTwips;
    return rows;
}

int RowPressedAt(const GridRows& rows, int canvasWidth, int x, int y) {
    if (rows.pitchTwips <= 0) return kNoRowPressed;
    for (int k = 0, t = rows.headerTwips; t <= rows.bottomTwips; ++k, t += rows.pitchTwips)
        if (y <= t && x < canvasWidth - kScrollBarWidth) return k == 0 ? 1 : k;
    return kNoRowPressed;
}

int RowReleasedAt(const GridRows& rows, int y) {
    if (rows.pitchTwips <= 0) return 0;
    for (int k = 0, t = rows.headerTwips; t <= rows.bottomTwips; ++k, t += rows.pitchTwips)
        if (y <= t) return k;
    return 0;
}

std::string ClipToCell(const Canvas& canvas, const std::string& value, int cellWidth) {
    return FitToWidth(canvas, " " + value, cellWidth - kClippedTextRoom);
}

bool PaintNumberCell(Canvas& canvas, const GridFrame& frame, int v, int p) {
    const int r = (v - 1) * frame.rowPitch;
    const std::string number = std::to_string(p);
    canvas.setForeColor(kBlack);
    const int x = kNumberRightEdge - canvas.textWidth(number);
    const int y = r * kTwipsPerPixel + frame.headerHeight * kTwipsPerPixel + kNumberDrop;
    if (y > frame.gridBottom * kTwipsPerPixel) return false;
    canvas.printText(x, y, number);
    return true;
}

std::string RowSpokenText(int position, const GridRow& row) {
    std::string text = std::to_string(position);
    for (const GridCell& cell : row.cells) {
        const std::string value = cell.kind == CellKind::Check ? (cell.checked ? "checked" : "not checked")
                                                              : trim(cell.text);
        if (!value.empty()) text += ", " + value;
    }
    return text;
}

std::vector<std::string> PaintGridRows(Canvas& canvas, const GridFrame& frame, int topRow, int rowCount,
                                       const std::function<GridRow(int position)>& rowAt) {
    std::vector<std::string> spoken;
    CanvasFont font;
    font.name = "Arial";
    font.size = 9;
    canvas.setFont(font);
    canvas.setForeColor(kBlack);
    for (int v = 1; v <= rowCount; ++v) {
        const int p = topRow + v - 1;
        // A list that shrank under a scrolled grid ends where it ends.
        if (p < 1 || p > rowCount) break;
        if (!PaintNumberCell(canvas, frame, v, p)) break;
        const GridRow row = rowAt(p);
        spoken.push_back(RowSpokenText(p, row));
        const int r = (v - 1) * frame.rowPitch;
        const int top = (r + frame.headerHeight + kFillTopPixel) * kTwipsPerPixel;
        const int bottom = (r + frame.headerHeight + kFillBottomPixel) * kTwipsPerPixel;
        const int textY = (r + frame.headerHeight + kTextTopPixel) * kTwipsPerPixel;
        for (std::size_t c = 1; c < frame.columns.size(); ++c) {
            const ColumnSpan& span = frame.columns[c];
            canvas.filledBox(span.left + kFillInsetLeft, top, span.left + span.width - kFillInsetRight, bottom, row.back);
            canvas.setForeColor(row.fore);
            const GridCell cell = c - 1 < row.cells.size() ? row.cells[c - 1] : GridCell{};
            const int x = span.left + kCellTextIndent;
            std::string text;
            switch (cell.kind) {
                case CellKind::Plain:
                    text = cell.text;
                    break;
                case CellKind::Trimmed:
                    text = trim(cell.text);
                    break;
                case CellKind::Clipped:
                    text = ClipToCell(canvas, cell.text, span.width);
                    break;
                case CellKind::Check:
                    canvas.paintPicture(cell.checked ? "Checked" : "Unchecked", span.left + kCheckIndent,
                                        r * kTwipsPerPixel + frame.headerHeight * kTwipsPerPixel + kCheckDrop);
                    break;
            }
            if (!text.empty()) canvas.printText(x, textY, text);
        }
    }
    return spoken;
}

void PaintKeyboardRow(Canvas& canvas, const GridFrame& frame, int row, int gridWidth) {
    if (row < 1) return;
    const int r = (row - 1) * frame.rowPitch;
    const int top = (r + frame.headerHeight + 1) * kTwipsPerPixel;
    const int bottom = (r + frame.headerHeight + frame.rowPitch - 1) * kTwipsPerPixel;
    const int left = kTwipsPerPixel, right = gridWidth - kScrollBarWidth - 2 * kTwipsPerPixel;
    for (int inset : {0, kTwipsPerPixel}) {
        canvas.line(left + inset, top + inset, right - inset, top + inset, kKeyboardRowFrame);
        canvas.line(left + inset, bottom - inset, right - inset, bottom - inset, kKeyboardRowFrame);
        canvas.line(left + inset, top + inset, left + inset, bottom - inset, kKeyboardRowFrame);
        canvas.line(right - inset, top + inset, right - inset, bottom - inset, kKeyboardRowFrame);
    }
}

std::string HeaderPicture(int column, int sortColumn, SortDirection sortDirection) {
    if (column != sortColumn) return "GridTitle";
    return sortDirection == SortDirection::Ascending ? "GridTitleUp" : "GridTitleDown";
}

GridFrame CurrentGridFrame(const ListHost& window, int columnCount) {
    GridFrame frame;
    for (int i = 0; i < columnCount && i < kGridHeaderCount; ++i) {
        const Control& header = window.form.c(GridHeaderKey(i));
        frame.columns.push_back({header.left, header.width});
    }
    frame.headerHeight = window.state.HeaderHeight;
    frame.gridBottom = window.state.GridBottom;
    frame.rowPitch = window.state.RowPitch;
    return frame;
}

void PaintGridHeaders(const ListHost& window, std::span<const char* const> titles) {
    CanvasFont font;
    font.name = "Verdana";
    font.size = 8;
    font.bold = true;
    for (std::size_t c = 0; c < titles.size() && c < std::size_t(kGridHeaderCount); ++c) {
        Control& header = window.form.c(GridHeaderKey(int(c)));
        header.picture = HeaderPicture(int(c), window.state.SortColumn, window.state.SortDirection);
        Canvas& canvas = *header.canvas;
        canvas.clear(header.backColor);
        canvas.setFont(font);
        canvas.setForeColor(kBlack);
        canvas.printText(45, 45, trim(titles[c]));
        header.accessibleName = c == 0 ? "Row number" : trim(titles[c]);
        header.toolTip = c == 0 ? "" : "Sort by " + trim(titles[c]);
    }
}

Color RowColor(const ListHost& window, const std::string& name, Color fallback) {
    if (name.empty()) return fallback;
    return window.colors.ColorValues(name);
}

std::string MediumDateOf(const ListHost& window, const std::string& field) {
    const auto date = parseDateText(field);
    return date ? window.locale.mediumDate(*date) : field;
}

void LayoutModeGrid(const ListHost& window, Mode mode) {
    const std::span<const float> table = GridWidthTable(mode);
    if (table.empty()) return;
    const int n = int(table.size());
    for (int i = 0; i < kGridHeaderCount; ++i) {
        Control& header = window.form.c(GridHeaderKey(i));
        header.visible = header.enabled = i < n;
    }

    window.state.GridMargin = 100;
    const Control& statusBar = *window.ui.picStatusBar;
    const int gridWidth = std::max(0, window.form.scaleWidth - 200);
    const int gridHeight = std::max(0, window.form.scaleHeight - kGridTop - statusBar.height - 100);
    window.form.move(window.ui.picGrid.key(), 100, kGridTop, gridWidth, gridHeight);
    window.form.bringToFront(window.ui.picGrid.key());
    Canvas& canvas = *window.ui.picGrid->canvas;

    Control& scroll = *window.ui.VSGridScroll;
    window.form.move(window.ui.VSGridScroll.key(), canvas.scaleWidth() - kScrollBarWidth, 0, scroll.width,
                     canvas.scaleHeight());

    const std::vector<ColumnSpan> spans = PlaceGridColumns(table, window.ui.picGrid->width, scroll.width);
    for (int i = 0; i < n; ++i) {
        Control& header = window.form.c(GridHeaderKey(i));
        window.form.move(header.key(), spans[std::size_t(i)].left, header.top, spans[std::size_t(i)].width,
                         header.height);
        header.picture = "GridTitle";
    }

    canvas.clear(kWhite);
    const GridRows rows = CurrentGridRows(window);
    const int b = rows.bottomTwips, w = canvas.scaleWidth();
    const int numberRule = n > 1 ? spans[1].left : 0;
    for (int i = 1; i < n; ++i) canvas.line(spans[std::size_t(i)].left, 0, spans[std::size_t(i)].left, b, kLightRule);
    if (rows.pitchTwips > 0) {
        for (int y = rows.headerTwips; y <= b; y += rows.pitchTwips) canvas.line(0, y, w, y, kLightRule);
        for (int y = rows.headerTwips; y <= b; y += rows.pitchTwips) canvas.line(0, y, numberRule, y, kDarkRule);
    }
    canvas.line(numberRule, 0, numberRule, b, kDarkRule);

    window.state.HeaderHeight = toInt16(rows.headerHeight());
    window.state.GridBottom = toInt16(rows.gridBottom());
    window.state.RowsVisible = toInt16(rows.rowsVisible);

    window.form.bringToFront(window.ui.picGrid.key());
    window.form.move(window.ui.picStatusBar.key(), 0, window.form.scaleHeight - kStatusBarHeight,
                     window.form.scaleWidth, kStatusBarHeight);
    window.form.bringToFront(window.ui.picStatusBar.key());
    window.paintStatusBar();
}

void PaintList(const ListHost& window, std::span<const char* const> titles,
               const std::function<GridRow(int position)>& rowAt) {
    PaintGridHeaders(window, titles);
    const GridFrame frame = CurrentGridFrame(window, int(titles.size()));
    Control& grid = *window.ui.picGrid;
    grid.items = PaintGridRows(*grid.canvas, frame, window.state.TopRow, window.state.RowCount, rowAt);
    const GridView view = ClampGridView({window.state.TopRow, window.state.KeyboardRow}, window.state.RowCount,
                                        window.state.RowsVisible);
    window.state.KeyboardRow = toInt16(view.keyboardRow);
    if (window.form.focusedControl == window.ui.picGrid.key())
        PaintKeyboardRow(*grid.canvas, frame, view.keyboardRow, grid.width);
}

}  // namespace qh
