#include "recurrence/date_primitives.h"

namespace qh {

Int16 LastDayOfMonth(Int16 year, Int16 month) {
    // Carry the month into range the way dateSerial does, then ask the calendar; building
    // (year, month + 1, 0) literally would pass through 1 January 10000 for December 9999.
    int y = year;
    int m0 = month - 1;
    y += (m0 >= 0) ? m0 / 12 : -((-m0 + 11) / 12);
    m0 -= ((m0 >= 0) ? m0 / 12 : -((-m0 + 11) / 12)) * 12;
    if (y < 100 || y > 9999) throw Overflow();
    return static_cast<Int16>(daysInMonth(y, m0 + 1));
}

Date ShiftDate(Date date, Int16 years, Int16 months, Int16 days) {
    const Date shifted = addMonths(addYears(date, years), months);
    const Ymd ymd = ymdOf(shifted);
    return dateSerial(ymd.year, ymd.month, ymd.day + days);
}

}  // namespace qh
