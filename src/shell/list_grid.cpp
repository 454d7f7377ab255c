// The main window's side of the list grid: layout and list building by mode, the scroll
// bar, the pressed row's mark, and the presses and header clicks that reach the grid. The
// geometry and the painting are the list view's (list_view/grid.h).
#include "common/twips.h"
#include "list_view/grid.h"
#include "list_view/list_host.h"
#include "list_view/list_rows.h"
#include "shell/main_window.h"

namespace qh {

ListHost MainWindow::listHost() {
    return {.form = *this,
            .ui = ui,
            .state = state,
            .store = store,
            .locale = platform.locale,
            .colors = *colors,
            .updateGridScroll = [this] { UpdateGridScroll(); },
            .paintStatusBar = [this] { PaintStatusBar(); }};
}

void MainWindow::LayoutGrid(Mode mode) { LayoutModeGrid(listHost(), mode); }

void MainWindow::BuildList(Mode mode) {
    switch (mode) {
        case Mode::Homework:
            BuildHomeworkList(listHost());
            break;
        case Mode::Events:
            BuildEventList(listHost());
            break;
        case Mode::Reminders:
            BuildReminderList(listHost());
            break;
        case Mode::StudySessions:
            BuildStudySessionList(listHost());
            break;
        case Mode::Tasks:
            BuildTaskList(listHost());
            break;
        default:
            break;
    }
}

void MainWindow::UpdateGridScroll() {
    Control& scroll = *ui.VSGridScroll;
    if (state.RowCount > state.RowsVisible) {
        scroll.enabled = true;
        scroll.minimum = 1;
        scroll.maximum = state.RowCount - state.RowsVisible + 1;
        scroll.smallChange = 1;
        // A step of a page keeps one row in sight; a grid of a single row still moves.
        scroll.largeChange = std::max(1, state.RowsVisible - 1);
        // A list that shrank under a scrolled grid: the bar's value falls to its new
        // maximum, and the list shows from there, as the bar's own change would make it.
        if (scroll.value > scroll.maximum) {
            scroll.value = scroll.maximum;
            state.TopRow = toInt16(scroll.value);
        }
        if (scroll.value < 1) scroll.value = 1;
    } else {
        state.TopRow = 1;
        scroll.enabled = false;
        scroll.value = 1;
    }
}

void MainWindow::RefillGrid() {
    state.TopRow = toInt16(ui.VSGridScroll->value);
    const Mode mode = CurrentMode();
    if (mode == Mode::None) return;
    LayoutGrid(mode);
    UpdateGridScroll();
    BuildList(mode);
}

void MainWindow::ResetGridScroll() {
    Control& scroll = *ui.VSGridScroll;
    if (scroll.value != 1) {
        // The bar's change event rebuilds the list.
        scroll.value = 1;
        fire(ui.VSGridScroll.key(), FormEvent::Change);
        return;
    }
    const Mode mode = CurrentMode();
    if (mode == Mode::None) return;
    LayoutGrid(mode);
    BuildList(mode);
}

void MainWindow::HighlightGridRow(int row, bool on) {
    if (row > state.RowCount || row < 1) return;
    Canvas& canvas = *ui.picGrid->canvas;
    CanvasFont font;
    font.name = "Arial";
    font.size = 9;
    canvas.setFont(font);
    canvas.setForeColor(on ? kWhite : kBlack);
    const Control& number = c(GridHeaderKey(0));
    const int r = (row - 1) * state.RowPitch;
    canvas.filledBox(number.left + 15, (r + state.HeaderHeight + 1) * kTwipsPerPixel, number.left + number.width - 30,
                     (r + state.HeaderHeight + 21) * kTwipsPerPixel, on ? kBlack : kWhite);
    const std::string position = std::to_string(state.TopRow - 1 + row);
    canvas.printText(345 - canvas.textWidth(position), r * kTwipsPerPixel + state.HeaderHeight * kTwipsPerPixel + 60,
                     position);
}

void MainWindow::picGridMouseDown(const EventArgs& args) {
    state.PressedRow =
        toInt16(RowPressedAt(CurrentGridRows(listHost()), ui.picGrid->canvas->scaleWidth(), args.x, args.y));
}

void MainWindow::picGridMouseUp(const EventArgs& args) {
    const int k = RowReleasedAt(CurrentGridRows(listHost()), args.y);
    // Dragging off the pressed row, or a press on the header strip, drops the click.
    if (k != state.PressedRow) return;
    GridRowClicked(k);
}

void MainWindow::headerClicked(int index) {
    if (index == 0) return;  // the "#" column doesn't sort
    if (index == state.SortColumn) state.SortDirection = reversed(state.SortDirection);
    state.SortColumn = toInt16(index);
    ResetGridScroll();
}

}  // namespace qh
