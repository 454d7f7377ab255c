// The calendar and the list grid from the keyboard and the mouse wheel. The calendar
// moves its date as its arrows and cells do; the grid scrolls as its scroll bar does and
// opens the row the keyboard stands on as a click on it would.
#include "calendar/calendar_keys.h"
#include "list_view/grid.h"
#include "list_view/grid_keys.h"
#include "shell/main_window.h"

namespace qh {

void MainWindow::bindKeyboardAndWheel() {
    on(ui.calendar.picCalendar.key(), FormEvent::KeyDown, [this](const EventArgs& args) {
        if (CurrentMode() == Mode::Reminders) return;  // the date stays today
        if (const auto date = CalendarKeyTarget(state.CalendarDates, state.ClickedDate, args.keyCode)) {
            state.ClickedDate = *date;
            Refresh(RefreshReason::Calendar);
        }
    });
    on(ui.calendar.picCalendar.key(), FormEvent::MouseWheel, [this](const EventArgs& args) {
        if (CurrentMode() == Mode::Reminders || args.notches == 0) return;
        state.ClickedDate = CalendarWheelTarget(state.CalendarDates, state.ClickedDate, args.notches);
        Refresh(RefreshReason::Calendar);
    });

    on(ui.picGrid.key(), FormEvent::KeyDown, [this](const EventArgs& args) {
        if (args.keyCode == kKeyReturn) {
            if (state.KeyboardRow > 0) GridRowClicked(state.KeyboardRow);
            return;
        }
        showGridView(GridKeyStep({state.TopRow, state.KeyboardRow}, args.keyCode, state.RowCount, state.RowsVisible));
    });
    on(ui.picGrid.key(), FormEvent::MouseWheel, [this](const EventArgs& args) {
        showGridView(GridWheelStep({state.TopRow, state.KeyboardRow}, args.notches, state.RowCount, state.RowsVisible));
    });
    // The keyboard's row shows only while the grid has the keys.
    for (FormEvent event : {FormEvent::GotFocus, FormEvent::LostFocus})
        on(ui.picGrid.key(), event, [this](const EventArgs&) {
            if (state.KeyboardRow > 0) RefillGrid();
        });
}

void MainWindow::showSavedRow(SavedRecordKind kind, int row) {
    const Mode mode = CurrentMode();
    const Column<int>* rows = kind == SavedRecordKind::Assignment && mode == Mode::Homework ? &state.ListAssignmentRows
                              : kind == SavedRecordKind::Task && mode == Mode::Tasks     ? &state.ListTaskRows
                              : kind == SavedRecordKind::Event && mode == Mode::Events   ? &state.ListEventRows
                                                                                         : nullptr;
    if (!rows) return;
    for (int p = 1; p <= rows->count(); ++p) {
        if ((*rows)(p) != row) continue;
        // In sight as it is, or in the middle of the grid; the keyboard stands on it and the
        // grid takes the focus, so that it shows framed and Enter opens it again.
        const bool inSight = p >= state.TopRow && p < state.TopRow + state.RowsVisible;
        const int top = inSight ? state.TopRow : p - state.RowsVisible / 2;
        const GridView view = ClampGridView({top, p - top + 1}, state.RowCount, state.RowsVisible);
        SetFocus(ui.picGrid.key());
        showGridView({view.topRow, p - view.topRow + 1});
        RefillGrid();
        return;
    }
}

void MainWindow::showGridView(const GridView& view) {
    const GridView before{state.TopRow, state.KeyboardRow};
    if (view == before) return;
    state.KeyboardRow = toInt16(view.keyboardRow);
    Control& scroll = *ui.VSGridScroll;
    if (scroll.enabled) scroll.value = view.topRow;
    RefillGrid();
}

}  // namespace qh
