#pragma once
// Applies the month calendar's cells to a window's controls. The main window and every
// editor's picker carry the same controls under the same names (picCalendar, LabelMonth,
// LabelCalDay(0..6), LabelCalDate(0..41), LabelCalTileBorder, picToday/LabelToday,
// picTomorrow/LabelTomorrow, picCalMonthUp/Down with their labels).
#include <array>
#include <functional>
#include <optional>
#include <string>

#include "calendar/month_cells.h"
#include "platform/form.h"

namespace qh {

// Adds the calendar's controls inside a new picture box picCalendar at left, top of
// `container` ("" for the window): 2640 x 2520 twips, the month bar, the day headers in
// Monday-first order, 42 date cells, the frame round today, Today and Tomorrow.
void AddMonthCalendarControls(Form& form, const std::string& container, int left, int top, int cellWidth = 300,
                              int cellHeight = 225);

// Copies the cells to the 42 labels, puts the frame round today's cell (hidden when the
// month shown has no today) and sets LabelMonth to `monthCaption`.
void PaintMonthCells(Form& form, const MonthCells& cells, const std::string& monthCaption);

// Names the 42 cells for screen readers by their whole date ("Tuesday, November 24,
// 2026"), then ", today", ", selected" and ", " `markName` for a marked cell, as they apply.
void NameMonthCells(Form& form, const MonthCells& cells, const std::array<bool, 42>& marked,
                    const std::function<std::string(Date)>& longDate, const std::string& markName);

// Lays out the seven headers for a first day of the week: the first letter as caption,
// the whole name as tag, the two other possible start days underlined. Returns the menu
// entry that carries the tick for that start day (MenuStartSun, MenuStartMon, MenuStartSat).
const char* ApplyDayHeaders(Form& form, const std::string& startDayOfWeek);

// Today and Tomorrow pressed or raised for the selected date. `tomorrowGreyOnToday`, when
// given, greys LabelTomorrow while today is selected (the main window in Reminders mode).
void UpdateQuickDateButtons(Form& form, Date selected, Date today, std::optional<Color> tomorrowGreyOnToday = {});

}  // namespace qh
