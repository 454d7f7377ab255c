#include "editors/event_rule_fit.h"

#include "editors/recurrence_panel_defaults.h"
#include "recurrence/date_primitives.h"

namespace qh {

namespace {

// "Day": each number names one day, and only a number so named can fail.
bool dayNumberFits(std::string_view number, int day, int lastDay) {
    if (number == "First") return day == 1;
    if (number == "Second") return day == 2;
    if (number == "Third") return day == 3;
    if (number == "Fourth") return day == 4;
    if (number == "Last") return day == lastDay;
    return true;
}

// A weekday: the run of seven days that holds the day admits its own number, and the
// fourth run "Last" as well.
bool weekdayRunFits(std::string_view number, int day) {
    if (day <= 7) return number == "First";
    if (day <= 14) return number == "Second";
    if (day <= 21) return number == "Third";
    if (day <= 28) return number == "Fourth" || number == "Last";
    return number == "Last";
}

}  // namespace

bool RuleFitsStartDate(std::string_view repeatNumber, std::string_view repeatDay, Date start) {
    const Ymd ymd = ymdOf(start);
    if (repeatDay == "Day") return dayNumberFits(repeatNumber, ymd.day, LastDayOfMonth(Int16(ymd.year), Int16(ymd.month)));
    return repeatDay == RepeatDayName(weekdayOf(start)) && weekdayRunFits(repeatNumber, ymd.day);
}

}  // namespace qh
