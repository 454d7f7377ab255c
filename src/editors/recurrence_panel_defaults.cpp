#include "editors/recurrence_panel_defaults.h"

#include "recurrence/date_primitives.h"

namespace qh {

std::string_view RepeatDayName(int weekday) {
    // The combo lists Monday first; weekday numbers count from Sunday.
    return kRepeatDayChoices[std::size_t(weekday == 1 ? 7 : weekday - 1)];
}

RepeatOrdinal RepeatOrdinalFor(Date date) {
    const Ymd ymd = ymdOf(date);
    if (ymd.day == LastDayOfMonth(Int16(ymd.year), Int16(ymd.month))) return {"Last", "Day"};
    // Runs of seven days from the 1st; days 29..31 make the fifth run, "Last".
    return {kRepeatNumberChoices[std::size_t((ymd.day - 1) / 7)], RepeatDayName(weekdayOf(date))};
}

std::array<bool, 7> WeekdayBoxesFor(Date date) {
    std::array<bool, 7> boxes{};
    const int weekday = weekdayOf(date);
    boxes[std::size_t(weekday == 1 ? 6 : weekday - 2)] = true;
    return boxes;
}

Date ProposedEndDate(Recurrence recurrence, Date first) {
    switch (recurrence) {
        case Recurrence::Day:
            return ShiftDate(first, 0, 0, 14);
        case Recurrence::Month:
            return ShiftDate(first, 0, 6, 0);
        case Recurrence::Year:
            return ShiftDate(first, 5, 0, 0);
        case Recurrence::None:
        case Recurrence::Other:
            break;
    }
    return first;
}

bool EndDateStartsOn(Recurrence recurrence) { return recurrence == Recurrence::Day || recurrence == Recurrence::Month; }

}  // namespace qh
