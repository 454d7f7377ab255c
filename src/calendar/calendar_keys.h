#pragma once
// The month calendar from the keyboard: the arrows move the selected day by a day or a
// week, Page Up and Page Down by a month (as the month arrows do), Home goes to today.
#include <array>
#include <optional>

#include "common/day_number.h"

namespace qh {

// The date a key selects, from the cells' date table of the month shown (element 42
// today, 43 a month back, 44 a month on); nothing for a key the calendar doesn't take.
std::optional<Date> CalendarKeyTarget(const std::array<Date, 50>& calendarDates, Date selected, int keyCode);

// The date a turn of the mouse wheel selects: a month back for each notch up, a month on
// for each notch down, stepping from the month shown.
Date CalendarWheelTarget(const std::array<Date, 50>& calendarDates, Date selected, int notches);

}  // namespace qh
