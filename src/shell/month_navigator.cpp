// The month calendar at the top right: 42 date cells, the arrows that repeat while held,
// Today and Tomorrow, and the day headers that switch the first day of the week.
#include "shell/month_navigator.h"

#include "calendar/calendar_binder.h"
#include "record_store/color_vocabulary.h"
#include "shell/main_window.h"

namespace qh {

void MainWindow::BuildCalendar() {
    const Date today = platform.clock.today();
    // A step beyond the bounds shows the month asked for, caption and grid alike, while
    // the date itself is held at the bound: the cells are built from the date as asked.
    const Ymd clicked = ymdOf(state.ClickedDate);
    if (clicked.month != state.DisplayedMonth) {
        state.DisplayedMonth = clicked.month;
        MarkDays(FirstCellDate(clicked.year, clicked.month, state.StartDayOfWeek));
    }
    const MonthCells cells = BuildMonthCells(state.ClickedDate, today, state.StartDayOfWeek, state.CellMarked,
                                             state.Colors);
    state.ClickedDate = cells.selected;
    state.CellCaptions = cells.CellCaptions;
    state.CellForeColors = cells.CellForeColors;
    state.CellBackColors = cells.CellBackColors;
    state.CellBold = cells.CellBold;
    state.CellIsToday = cells.CellIsToday;
    state.CalendarDates = cells.CalendarDates;
    state.DisplayedDate = state.ClickedDate;
    UpdateQuickDateButtons();
    PaintMonthCells(ui.calendar, cells, platform.locale.monthName(clicked.month) + " " + std::to_string(clicked.year));
    NameMonthCells(
        ui.calendar, cells, state.CellMarked, [this](Date date) { return platform.locale.longDate(date); },
        DayMarkName(CurrentMode()));
}

std::string DayMarkName(Mode mode) {
    switch (mode) {
        case Mode::Homework: return "homework due";
        case Mode::StudySessions: return "study session";
        case Mode::Tasks: return "task due";
        case Mode::Events: return "event";
        case Mode::Reminders: return "reminder";
        case Mode::None: break;
    }
    return "";
}

void MainWindow::UpdateQuickDateButtons() {
    std::optional<Color> grey;
    if (CurrentMode() == Mode::Reminders) grey = colors->ColorValues("DarkGray");
    qh::UpdateQuickDateButtons(ui.calendar, state.ClickedDate, platform.clock.today(), grey);
}

void MainWindow::ApplyStartDayOfWeek() {
    ApplyDayHeaders(ui.calendar, state.StartDayOfWeek);
    const std::string& day = state.StartDayOfWeek;
    const ControlRef& ticked = day == "Monday"     ? ui.MenuStartMon
                               : day == "Saturday" ? ui.MenuStartSat
                                                   : ui.MenuStartSun;
    for (const ControlRef* item : {&ui.MenuStartSun, &ui.MenuStartMon, &ui.MenuStartSat})
        (*item)->checked = item == &ticked;
    state.ClickedDate = state.DisplayedDate;
    Refresh(RefreshReason::StartDayOfWeek);
}

void MainWindow::changeStartDay(const std::string& day) {
    if (day == state.StartDayOfWeek) return;
    state.StartDayOfWeek = day;
    ApplyStartDayOfWeek();
}

void MainWindow::dayHeaderClicked(int index) {
    const std::string day = ui.calendar.LabelCalDay[index].tag;
    if (day == "Monday" || day == "Saturday" || day == "Sunday") changeStartDay(day);
}

void MainWindow::dateCellClicked(int index) {
    if (CurrentMode() == Mode::Reminders) return;
    state.ClickedDate = state.CalendarDates[std::size_t(index)];
    Refresh(RefreshReason::Calendar);
}

void MainWindow::quickDateClicked(int element) {
    if (CurrentMode() == Mode::Reminders) return;
    state.ClickedDate = state.CalendarDates[std::size_t(element)];
    Refresh(RefreshReason::Calendar);
}

void MainWindow::calendarButtonPressed(Control& button, const CalendarArrow& arrow) {
    if (CurrentMode() == Mode::Reminders) return;
    button.picture = arrow.pressedPicture;
    state.CalButtonUp = false;
    state.CalButtonForward = arrow.forward;
    state.CalButtonMonth = arrow.month;
    state.ClickedDate = state.CalendarDates[std::size_t(arrow.element)];
    Refresh(RefreshReason::Calendar);
    Control& timer = *ui.TimerButton;
    timer.interval = state.ButtonRepeatInterval;
    timer.enabled = true;
}

void MainWindow::repeatCalendarArrow() {
    if (state.CalButtonUp) return;
    const int element = RepeatElement(state.CalButtonForward, state.CalButtonMonth);
    state.ClickedDate = state.CalendarDates[std::size_t(element)];
    Refresh(RefreshReason::Calendar);
}

void MainWindow::calendarButtonReleased(Control& button, const CalendarArrow& arrow) {
    state.CalButtonUp = true;
    ui.TimerButton->enabled = false;
    button.picture = arrow.raisedPicture;
}

}  // namespace qh
