#pragma once
// The month calendar's controls, which the main window and every editor's date picker
// carry under the same names: each name is spelled here once. The references bind with
// the window's others, so a name the window lacks fails its construction.
#include "platform/control_ref.h"

namespace qh {

struct MonthCalendarControls {
    explicit MonthCalendarControls(Form* window) : form(window) {}
    Form* form;  // first: the references below register with it

    ControlRef picCalendar{form, "picCalendar"};
    // The month bar: its arrows, its blue box and the month's name.
    ControlRef picCalMonthDown{form, "picCalMonthDown"}, picCalMonthName{form, "picCalMonthName"},
        LabelMonth{form, "LabelMonth"}, picCalMonthUp{form, "picCalMonthUp"};
    // The day headers on their strip, the 42 date cells and the frame round today's.
    ControlRef LabelCalDayBG{form, "LabelCalDayBG"}, LabelCalTileBorder{form, "LabelCalTileBorder"};
    ControlArrayRef LabelCalDay{form, "LabelCalDay", 7}, LabelCalDate{form, "LabelCalDate", 42};
    // Today and Tomorrow.
    ControlRef picToday{form, "picToday"}, LabelToday{form, "LabelToday"}, picTomorrow{form, "picTomorrow"},
        LabelTomorrow{form, "LabelTomorrow"};
};

}  // namespace qh
