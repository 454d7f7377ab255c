// The month calendar at the top right: 42 date cells, the arrows that repeat while held,
// Today and Tomorrow, and the day headers that switch the first day of the week.
#include "shell/month_navigator.h"

#include <algorithm>

#include "record_store/color_vocabulary.h"
#include "shell/main_window.h"

namespace qh {

Date FirstCellDate(int year, int month, const std::string& startDayOfWeek) {
    const Date first = dateFromYmd(year, month, 1);
    int d = weekdayOf(first);
    if (startDayOfWeek == "Sunday") {
        if (d == 1) d = 8;
        return first - (d - 1);
    }
    if (startDayOfWeek == "Monday") {
        if (d == 1) d = 8;
        if (d == 2) d = 9;
        return first - (d - 2);
    }
    return first - d;
}

const CalendarButton* FindCalendarButton(const std::string& name) {
    static const CalendarButton buttons[] = {
        {"picCalMonthUp", 44, true, true, "CalMonthRightDown", "CalMonthRightUp"},
        {"picCalMonthDown", 43, false, true, "CalMonthLeftDown", "CalMonthLeftUp"},
        {"picCalDayUp", 46, true, false, "CalDayRightDown", "CalDayRightUp"},
        {"picCalDayDown", 47, false, false, "CalDayLeftDown", "CalDayLeftUp"},
    };
    for (const CalendarButton& button : buttons)
        if (name == button.name) return &button;
    return nullptr;
}

void MainWindow::BuildCalendar() {
    const Date today = platform.clock.today();
    const Ymd now = ymdOf(today);
    const Ymd clicked = ymdOf(state.ClickedDate);

    static const Date lowest = dateFromYmd(1600, 1, 1);
    static const Date highest = dateFromYmd(3100, 12, 31);
    state.ClickedDate = std::clamp(state.ClickedDate, lowest, highest);

    c("LabelMonth").caption = platform.locale.monthName(clicked.month) + " " + std::to_string(clicked.year);

    Date d = FirstCellDate(clicked.year, clicked.month, state.StartDayOfWeek);

    if (clicked.month != state.DisplayedMonth) {
        state.DisplayedMonth = clicked.month;
        MarkDays(d);
    }

    const MainWindowColors& colors = state.Colors;
    const Ymd selected = ymdOf(state.ClickedDate);
    for (int i = 0; i < 42; ++i, ++d) {
        const Ymd cell = ymdOf(d);
        state.CellCaptions[i] = std::to_string(cell.day);
        state.CellForeColors[i] = cell.month == clicked.month ? colors.CurrentMonthFore : colors.OtherMonthFore;
        state.CellBold[i] = false;
        state.CellBackColors[i] = state.CellMarked[i] ? colors.MarkedBack : colors.PlainBack;
        if (cell.day == selected.day && cell.month == selected.month) {
            const std::string& back = state.CellBackColors[i];
            state.CellBackColors[i] = back == colors.TintBlue    ? colors.SelectedBlue
                                      : back == colors.TintGreen ? colors.SelectedGreen
                                      : back == colors.TintPink  ? colors.SelectedPink
                                      : back == colors.TintTan   ? colors.SelectedTan
                                                                 : colors.SelectedBack;
            state.CellBold[i] = true;
            state.CellForeColors[i] = colors.SelectedFore;
        }
        state.CellIsToday[i] = cell == now && now.month == clicked.month;
        state.CalendarDates[std::size_t(i)] = d;
    }

    state.DisplayedDate = state.ClickedDate;
    state.CalendarDates[42] = today;
    state.CalendarDates[43] = addMonths(state.ClickedDate, -1);
    state.CalendarDates[44] = addMonths(state.ClickedDate, 1);
    state.CalendarDates[45] = today + 1;
    state.CalendarDates[46] = state.ClickedDate + 1;
    state.CalendarDates[47] = state.ClickedDate - 1;

    UpdateQuickDateButtons();
    PaintCalendarCells();
    platform.windowing.processEvents();
}

void MainWindow::PaintCalendarCells() {
    Control& frame = c("LabelCalTileBorder");
    frame.visible = false;
    for (int i = 0; i < 42; ++i) {
        Control& cell = c("LabelCalDate", i);
        cell.foreColor = colorFromText(state.CellForeColors[i]);
        cell.bold = state.CellBold[i];
        cell.backColor = colorFromText(state.CellBackColors[i]);
        cell.caption = state.CellCaptions[i];
        if (state.CellIsToday[i]) {
            frame.left = cell.left - 15;
            frame.top = cell.top - 15;
            frame.visible = true;
            sendToBack("LabelCalTileBorder");
        }
    }
}

void MainWindow::UpdateQuickDateButtons() {
    const Date today = platform.clock.today();
    Control& labelToday = c("LabelToday");
    Control& labelTomorrow = c("LabelTomorrow");
    labelToday.foreColor = labelTomorrow.foreColor = 0x000000;
    labelToday.bold = labelTomorrow.bold = false;
    c("picToday").picture = "TodayUp";
    c("picTomorrow").picture = "TomorrowUp";
    if (state.ClickedDate == today) {
        labelToday.foreColor = 0x0000C0;
        labelToday.bold = true;
        c("picToday").picture = "TodayDown";
        if (CurrentMode() == Mode::Reminders) labelTomorrow.foreColor = colors->ColorValues("DarkGray");
    } else if (state.ClickedDate == today + 1) {
        labelTomorrow.foreColor = 0x0000C0;
        labelTomorrow.bold = true;
        c("picTomorrow").picture = "TomorrowDown";
    }
}

void MainWindow::ApplyStartDayOfWeek() {
    static const char* const order[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
    int first = 0;  // index into order of the first header
    std::pair<int, int> offers{1, 6};
    const char* menu = "MenuStartSun";
    if (state.StartDayOfWeek == "Monday") {
        first = 1;
        offers = {5, 6};
        menu = "MenuStartMon";
    } else if (state.StartDayOfWeek == "Saturday") {
        first = 6;
        offers = {1, 2};
        menu = "MenuStartSat";
    }
    for (int i = 0; i < 7; ++i) {
        Control& header = c("LabelCalDay", i);
        const std::string day = order[(first + i) % 7];
        header.caption = day.substr(0, 1);
        header.tag = day;
        header.underline = i == offers.first || i == offers.second;
    }
    for (const char* item : {"MenuStartSun", "MenuStartMon", "MenuStartSat"}) c(item).checked = std::string(item) == menu;
    state.ClickedDate = state.DisplayedDate;
    Refresh("StartDayofWeek");
}

void MainWindow::changeStartDay(const std::string& day) {
    if (day == state.StartDayOfWeek) return;
    state.StartDayOfWeek = day;
    ApplyStartDayOfWeek();
}

void MainWindow::dayHeaderClicked(int index) {
    const std::string day = c("LabelCalDay", index).tag;
    if (day == "Monday" || day == "Saturday" || day == "Sunday") changeStartDay(day);
}

void MainWindow::dateCellClicked(int index) {
    if (CurrentMode() == Mode::Reminders) return;
    state.ClickedDate = state.CalendarDates[std::size_t(index)];
    Refresh("Calendar");
}

void MainWindow::quickDateClicked(int element) {
    if (CurrentMode() == Mode::Reminders) return;
    state.ClickedDate = state.CalendarDates[std::size_t(element)];
    Refresh("Calendar");
}

void MainWindow::calendarButtonPressed(const std::string& name) {
    if (CurrentMode() == Mode::Reminders) return;
    const CalendarButton& button = *FindCalendarButton(name);
    c(name).picture = button.pressedPicture;
    state.CalButtonUp = kFalse;
    state.CalButtonForward = button.forward ? kTrue : kFalse;
    state.CalButtonMonth = button.month ? kTrue : kFalse;
    state.ClickedDate = state.CalendarDates[std::size_t(button.element)];
    Refresh("Calendar");
    Control& timer = c("TimerButton");
    timer.interval = state.ButtonRepeatInterval;
    timer.enabled = true;
}

void MainWindow::TimerButton_Timer() {
    if (state.CalButtonUp) return;
    const int element = state.CalButtonMonth ? (state.CalButtonForward ? 44 : 43) : (state.CalButtonForward ? 46 : 47);
    state.ClickedDate = state.CalendarDates[std::size_t(element)];
    Refresh("Calendar");
}

void MainWindow::calendarButtonReleased(const std::string& name) {
    state.CalButtonUp = kTrue;
    c("TimerButton").enabled = false;
    c(name).picture = FindCalendarButton(name)->raisedPicture;
}

}  // namespace qh
