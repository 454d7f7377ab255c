#pragma once
// The month calendar one step beyond its bounds, for every first day of the week: the
// caption and the grid are of the month asked for, the selection stays on the bound. The
// main window's calendar and the editors' pickers run the same cases through their own
// arrows.
#include <gtest/gtest.h>

#include <string>

#include "common/day_number.h"
#include "platform/form.h"

namespace qh::test {

struct CalendarBoundCase {
    const char* startDay;
    bool forward;        // the month arrow up (on) or down (back)
    Ymd from;            // the date shown before the step
    const char* caption; // of the month asked for
    const char* firstCell;
    int firstOfMonth;    // the cell of the month's 1st
    int selected;        // the cell of the bound, which stays selected
    Ymd held;            // the date after the step
};

// 1 December 1599 is a Wednesday, 1 January 3101 a Tuesday.
inline constexpr CalendarBoundCase kCalendarBoundCases[] = {
    {"Sunday", false, {1600, 1, 15}, "December 1599", "28", 3, 3 + 31, {1600, 1, 1}},
    {"Monday", false, {1600, 1, 15}, "December 1599", "29", 2, 2 + 31, {1600, 1, 1}},
    {"Saturday", false, {1600, 1, 15}, "December 1599", "27", 4, 4 + 31, {1600, 1, 1}},
    {"Sunday", true, {3100, 12, 15}, "January 3101", "30", 2, 1, {3100, 12, 31}},
    {"Monday", true, {3100, 12, 15}, "January 3101", "31", 1, 0, {3100, 12, 31}},
    {"Saturday", true, {3100, 12, 15}, "January 3101", "29", 3, 2, {3100, 12, 31}},
};

// The calendar of `form` shows the case's month, caption and grid, with the bound selected.
inline void expectCalendarBeyondBound(const Form& form, const CalendarBoundCase& c) {
    EXPECT_EQ(form.c("LabelMonth").caption, c.caption);
    EXPECT_EQ(form.c("LabelCalDate", 0).caption, c.firstCell);
    EXPECT_EQ(form.c("LabelCalDate", c.firstOfMonth).caption, "1");
    EXPECT_EQ(form.c("LabelCalDate", c.firstOfMonth).foreColor, 0x000000u);  // of the month shown
    EXPECT_EQ(form.c("LabelCalDate", 41).foreColor, 0xA9A9A9u);  // of the month after
    for (int i = 0; i < 42; ++i) EXPECT_EQ(form.c("LabelCalDate", i).bold, i == c.selected) << "cell " << i;
}

}  // namespace qh::test
