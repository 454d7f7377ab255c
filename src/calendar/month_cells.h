#pragma once
// The month calendar as data: the 42 cells of six rows and the dates its buttons go to,
// worked out from a date and the first day of the week. One component serves the main
// window's calendar and every editor's pop-up date picker; the windows differ only in
// what they pass (marks or none) and in the controls the binder paints.
#include <array>
#include <string>

#include "common/day_number.h"

namespace qh {

// The fixed colours of the calendar, as texts "&HBBGGRR". MarkedBack is rewritten by
// each marking of the month.
struct MainWindowColors {
    std::string CurrentMonthFore = "&H000000";
    std::string OtherMonthFore = "&HA9A9A9";
    std::string SelectedFore = "&HFFFFFF";
    std::string MarkedBack = "&HF0E8E2";
    std::string PlainBack = "&HFFFFFF";
    std::string SelectedBack = "&H000000";
    std::string TintBlue = "&HF0E8E2";
    std::string TintGreen = "&HE2F7E1";
    std::string TintPink = "&HE5E5FF";
    std::string TintTan = "&HD7EBFA";
    std::string SelectedBlue = "&HA88A76";
    std::string SelectedGreen = "&H00A600";
    std::string SelectedPink = "&H374EC1";
    std::string SelectedTan = "&H20A5DA";
};
using CalendarColors = MainWindowColors;

// The lowest and highest date the calendar shows; a date beyond is brought to the bound.
Date CalendarLowestDate();
Date CalendarHighestDate();

// The date of the first of the 42 cells for a month and a first day of the week ("Sunday",
// "Monday", anything else counts as "Saturday"). A month that begins on the first column
// gets a whole row of the month before above it.
Date FirstCellDate(int year, int month, const std::string& startDayOfWeek);

// Index into CalendarDates of the button targets.
enum CalendarElement { kElementToday = 42, kElementMonthBack = 43, kElementMonthOn = 44, kElementTomorrow = 45,
                       kElementDayOn = 46, kElementDayBack = 47 };

struct MonthCells {
    int year = 0, month = 0;  // of the month shown (taken before the date was brought to bounds)
    Date selected = 0;        // the date, within bounds
    Date firstCell = 0;
    std::array<std::string, 42> CellCaptions{};
    std::array<std::string, 42> CellForeColors{};
    std::array<std::string, 42> CellBackColors{};
    std::array<bool, 42> CellBold{};
    std::array<bool, 42> CellIsToday{};
    // 0..41 the cells row by row; 42 today, 43 a month back, 44 a month on, 45 tomorrow,
    // 46 a day on, 47 a day back (from the date within bounds); 48, 49 unused.
    std::array<Date, 50> CalendarDates{};
};

// The cells for `date` (brought within 1600-01-01..3100-12-31; the month shown is the
// one of the date as given). `marked` says which cells carry colors.MarkedBack (all false
// for a picker). The selected cell takes the darker partner of its background.
MonthCells BuildMonthCells(Date date, Date today, const std::string& startDayOfWeek,
                           const std::array<bool, 42>& marked, const CalendarColors& colors);

// The inverse: the cell (0..41) that shows `date` in a calendar whose first cell is
// `firstCell`, or -1 when the date lies outside the six rows.
int CellForDate(Date firstCell, Date date);

// An arrow button of the calendar: the element of CalendarDates it steps to and its images.
struct CalendarArrow {
    int element;
    bool forward;
    bool month;
    const char* pressedPicture;
    const char* raisedPicture;
};
inline constexpr CalendarArrow kMonthOnArrow{kElementMonthOn, true, true, "CalMonthRightDown", "CalMonthRightUp"};
inline constexpr CalendarArrow kMonthBackArrow{kElementMonthBack, false, true, "CalMonthLeftDown", "CalMonthLeftUp"};
inline constexpr CalendarArrow kDayOnArrow{kElementDayOn, true, false, "CalDayRightDown", "CalDayRightUp"};
inline constexpr CalendarArrow kDayBackArrow{kElementDayBack, false, false, "CalDayLeftDown", "CalDayLeftUp"};
// The element a held button repeats by its direction flags.
int RepeatElement(bool forward, bool month);

}  // namespace qh
