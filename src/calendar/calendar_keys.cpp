#include "calendar/calendar_keys.h"

#include "platform/form.h"

namespace qh {

std::optional<Date> CalendarKeyTarget(const std::array<Date, 50>& calendarDates, Date selected, int keyCode) {
    switch (keyCode) {
        case kKeyLeft: return selected - 1;
        case kKeyRight: return selected + 1;
        case kKeyUp: return selected - 7;
        case kKeyDown: return selected + 7;
        case kKeyPageUp: return calendarDates[43];
        case kKeyPageDown: return calendarDates[44];
        case kKeyHome: return calendarDates[42];
        default: return std::nullopt;
    }
}

Date CalendarWheelTarget(const std::array<Date, 50>& calendarDates, Date selected, int notches) {
    // The first notch uses the table; further ones of the same turn step on by months.
    if (notches == 0) return selected;
    Date date = notches > 0 ? calendarDates[43] : calendarDates[44];
    for (int more = (notches > 0 ? notches : -notches) - 1; more > 0; --more)
        date = addMonths(date, notches > 0 ? -1 : 1);
    return date;
}

}  // namespace qh
