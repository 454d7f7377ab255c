#include "calendar/month_cells.h"

#include <gtest/gtest.h>

namespace qh {
namespace {

// Cell for date and date for cell are inverse over every start day, from the first month
// the calendar shows to the last, for every date the six rows hold.
TEST(MonthCells, CellForDateInvertsTheCellsDatesAcrossTheBounds) {
    const std::array<bool, 42> noMarks{};
    const CalendarColors colors;
    const Date today = dateFromYmd(2026, 11, 25);
    for (const char* start : {"Sunday", "Monday", "Saturday"}) {
        for (const Date date : {dateFromYmd(1600, 1, 1), dateFromYmd(1600, 3, 1), dateFromYmd(2024, 2, 29),
                                dateFromYmd(2026, 11, 25), dateFromYmd(3100, 12, 31), dateFromYmd(2026, 6, 1)}) {
            SCOPED_TRACE(std::string(start) + " " + std::to_string(date));
            const MonthCells cells = BuildMonthCells(date, today, start, noMarks, colors);
            for (int i = 0; i < 42; ++i) EXPECT_EQ(CellForDate(cells.firstCell, cells.CalendarDates[std::size_t(i)]), i);
            EXPECT_EQ(CellForDate(cells.firstCell, cells.firstCell - 1), -1);
            EXPECT_EQ(CellForDate(cells.firstCell, cells.firstCell + 42), -1);
            // The first of the month lies in the first row, never in its first column.
            const int first = CellForDate(cells.firstCell, dateFromYmd(cells.year, cells.month, 1));
            EXPECT_GE(first, 1);
            EXPECT_LE(first, 7);
            const int selected = CellForDate(cells.firstCell, date);
            EXPECT_TRUE(cells.CellBold[std::size_t(selected)]);
            EXPECT_EQ(cells.CellBackColors[std::size_t(selected)], colors.SelectedBack);
        }
    }
}

// Dates beyond the bounds are brought to them for the selection and the buttons, while the
// month shown is the one asked for; the button targets step from the date within bounds.
TEST(MonthCells, BoundsAndButtonTargets) {
    const std::array<bool, 42> noMarks{};
    const Date today = dateFromYmd(2026, 11, 25);
    const MonthCells late = BuildMonthCells(dateFromYmd(3101, 2, 3), today, "Monday", noMarks, {});
    EXPECT_EQ(late.selected, dateFromYmd(3100, 12, 31));
    EXPECT_EQ(late.month, 2);
    EXPECT_EQ(late.CalendarDates[kElementMonthBack], dateFromYmd(3100, 11, 30));
    EXPECT_EQ(late.CalendarDates[kElementDayOn], dateFromYmd(3101, 1, 1));
    const MonthCells jan = BuildMonthCells(dateFromYmd(2027, 1, 31), today, "Sunday", noMarks, {});
    EXPECT_EQ(jan.CalendarDates[kElementMonthOn], dateFromYmd(2027, 2, 28));
    EXPECT_EQ(jan.CalendarDates[kElementToday], today);
    EXPECT_EQ(jan.CalendarDates[kElementTomorrow], today + 1);
    // Today's frame only in today's month, not on a grey day of it elsewhere.
    const MonthCells dec = BuildMonthCells(dateFromYmd(2026, 12, 10), today, "Monday", noMarks, {});
    for (bool isToday : dec.CellIsToday) EXPECT_FALSE(isToday);
    const MonthCells nov = BuildMonthCells(dateFromYmd(2026, 11, 2), today, "Monday", noMarks, {});
    EXPECT_TRUE(nov.CellIsToday[std::size_t(CellForDate(nov.firstCell, today))]);
}

}  // namespace
}  // namespace qh
