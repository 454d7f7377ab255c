#pragma once
// The month calendar's date arithmetic, apart from the window that shows it.
#include <string>

#include "common/day_number.h"

namespace qh {

// The date of the first of the 42 cells for a month and a first day of the week ("Sunday",
// "Monday", anything else counts as "Saturday"). A month that begins on the first column
// gets a whole row of the month before above it.
Date FirstCellDate(int year, int month, const std::string& startDayOfWeek);

// An arrow button of the calendar: the element of CalendarDates it steps to and its images.
struct CalendarButton {
    const char* name;
    int element;
    bool forward;
    bool month;
    const char* pressedPicture;
    const char* raisedPicture;
};

// The arrow button of that control name, or nullptr.
const CalendarButton* FindCalendarButton(const std::string& name);

}  // namespace qh
