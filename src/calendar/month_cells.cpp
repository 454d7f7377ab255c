#include "calendar/month_cells.h"

#include <algorithm>

#include "common/day_number.h"

namespace qh {

Date CalendarLowestDate() { return dateFromYmd(1600, 1, 1); }
Date CalendarHighestDate() { return dateFromYmd(3100, 12, 31); }

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

MonthCells BuildMonthCells(Date date, Date today, const std::string& startDayOfWeek,
                           const std::array<bool, 42>& marked, const CalendarColors& colors) {
    MonthCells cells;
    const Ymd now = ymdOf(today);
    const Ymd shown = ymdOf(date);
    cells.year = shown.year;
    cells.month = shown.month;
    cells.selected = std::clamp(date, CalendarLowestDate(), CalendarHighestDate());
    const Ymd selected = ymdOf(cells.selected);
    cells.firstCell = FirstCellDate(shown.year, shown.month, startDayOfWeek);

    Date d = cells.firstCell;
    for (std::size_t i = 0; i < 42; ++i, ++d) {
        const Ymd cell = ymdOf(d);
        cells.CellCaptions[i] = std::to_string(cell.day);
        cells.CellForeColors[i] = cell.month == shown.month ? colors.CurrentMonthFore : colors.OtherMonthFore;
        cells.CellBold[i] = false;
        cells.CellBackColors[i] = marked[i] ? colors.MarkedBack : colors.PlainBack;
        if (cell.day == selected.day && cell.month == selected.month) {
            const std::string& back = cells.CellBackColors[i];
            cells.CellBackColors[i] = back == colors.TintBlue    ? colors.SelectedBlue
                                      : back == colors.TintGreen ? colors.SelectedGreen
                                      : back == colors.TintPink  ? colors.SelectedPink
                                      : back == colors.TintTan   ? colors.SelectedTan
                                                                 : colors.SelectedBack;
            cells.CellBold[i] = true;
            cells.CellForeColors[i] = colors.SelectedFore;
        }
        cells.CellIsToday[i] = cell == now && now.month == shown.month;
        cells.CalendarDates[i] = d;
    }
    cells.CalendarDates[kElementToday] = today;
    cells.CalendarDates[kElementMonthBack] = addMonths(cells.selected, -1);
    cells.CalendarDates[kElementMonthOn] = addMonths(cells.selected, 1);
    cells.CalendarDates[kElementTomorrow] = today + 1;
    cells.CalendarDates[kElementDayOn] = cells.selected + 1;
    cells.CalendarDates[kElementDayBack] = cells.selected - 1;
    return cells;
}

int CellForDate(Date firstCell, Date date) {
    const long long offset = static_cast<long long>(date) - static_cast<long long>(firstCell);
    return offset >= 0 && offset < 42 ? int(offset) : -1;
}

int RepeatElement(bool forward, bool month) {
    return month ? (forward ? kElementMonthOn : kElementMonthBack) : (forward ? kElementDayOn : kElementDayBack);
}

}  // namespace qh
