#pragma once
// Makes the month calendar's controls on a window and applies its cells to them. The main
// window and every editor's picker carry the same controls (month_calendar_controls.h).
#include <array>
#include <functional>
#include <optional>
#include <string>

#include "calendar/month_calendar_controls.h"
#include "calendar/month_cells.h"

namespace qh {

// Adds the calendar's controls inside a new picture box picCalendar at left, top of
// `container` ("" for the window): 2640 x 2520 twips, the month bar, the day headers in
// Monday-first order, 42 date cells, the frame round today, Today and Tomorrow. Returns
// picCalendar, for the window to finish before its references are bound.
Control& AddMonthCalendarControls(const MonthCalendarControls& ui, const std::string& container, int left, int top,
                                  int cellWidth = 300, int cellHeight = 225);

// Copies the cells to the 42 labels, puts the frame round today's cell (hidden when the
// month shown has no today) and sets LabelMonth to `monthCaption`.
void PaintMonthCells(const MonthCalendarControls& ui, const MonthCells& cells, const std::string& monthCaption);

// Names the 42 cells for screen readers by their whole date ("Tuesday, November 24,
// 2026"), then ", today", ", selected" and ", " `markName` for a marked cell, as they apply.
void NameMonthCells(const MonthCalendarControls& ui, const MonthCells& cells, const std::array<bool, 42>& marked,
                    const std::function<std::string(Date)>& longDate, const std::string& markName);

// Lays out the seven headers for a first day of the week: the first letter as caption,
// the whole name as tag, the two other possible start days underlined.
void ApplyDayHeaders(const MonthCalendarControls& ui, const std::string& startDayOfWeek);

// Today and Tomorrow pressed or raised for the selected date. `tomorrowGreyOnToday`, when
// given, greys LabelTomorrow while today is selected (the main window in Reminders mode).
void UpdateQuickDateButtons(const MonthCalendarControls& ui, Date selected, Date today,
                            std::optional<Color> tomorrowGreyOnToday = {});

}  // namespace qh
