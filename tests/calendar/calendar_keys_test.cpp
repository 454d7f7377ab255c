#include "calendar/calendar_keys.h"

#include <gtest/gtest.h>

#include "calendar/month_cells.h"
#include "platform/form.h"

namespace qh {
namespace {

TEST(CalendarKeys, KeysAndTheWheelStepAsTheCellsAndTheMonthArrowsDo) {
    // 31 January 2027 selected, today 21 November 2026.
    const Date selected = dateFromYmd(2027, 1, 31), today = dateFromYmd(2026, 11, 21);
    const MonthCells cells = BuildMonthCells(selected, today, "Sunday", {}, CalendarColors{});
    const struct {
        int key;
        std::optional<Date> target;
    } keys[] = {{kKeyLeft, selected - 1},
                {kKeyRight, selected + 1},
                {kKeyUp, selected - 7},
                {kKeyDown, selected + 7},
                {kKeyPageUp, dateFromYmd(2026, 12, 31)},
                {kKeyPageDown, dateFromYmd(2027, 2, 28)},  // the month's last day, as the arrow gives
                {kKeyHome, today},
                {kKeyEnd, std::nullopt},
                {'A', std::nullopt}};
    for (const auto& k : keys) EXPECT_EQ(CalendarKeyTarget(cells.CalendarDates, selected, k.key), k.target) << k.key;

    EXPECT_EQ(CalendarWheelTarget(cells.CalendarDates, selected, 1), dateFromYmd(2026, 12, 31));
    EXPECT_EQ(CalendarWheelTarget(cells.CalendarDates, selected, -1), dateFromYmd(2027, 2, 28));
    // Several notches of one turn go on a month each, from the date each step gives.
    EXPECT_EQ(CalendarWheelTarget(cells.CalendarDates, selected, -2), dateFromYmd(2027, 3, 28));
    EXPECT_EQ(CalendarWheelTarget(cells.CalendarDates, selected, 3), dateFromYmd(2026, 10, 30));  // by 30 November
    EXPECT_EQ(CalendarWheelTarget(cells.CalendarDates, selected, 0), selected);
}

}  // namespace
}  // namespace qh
