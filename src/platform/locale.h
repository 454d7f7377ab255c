#pragma once
#include <string>

#include "common/day_number.h"

namespace qh {

// The host's formats. Names follow the planner: "Long Date" ("Saturday, November 21,
// 2026"), "Medium Date" ("21-Nov-26"), "Short Date" ("11/21/2026"), "Medium Time"
// ("09:05 PM", no seconds).
class Locale {
public:
    virtual ~Locale() = default;
    virtual std::string longDate(Date date) const = 0;
    virtual std::string mediumDate(Date date) const = 0;
    virtual std::string shortDate(Date date) const = 0;
    virtual std::string mediumTime(int secondsOfDay) const = 0;
    // month 1..12, the full name ("January").
    virtual std::string monthName(int month) const = 0;
    // weekday 1 = Sunday .. 7 = Saturday, the full name.
    virtual std::string dayName(int weekday) const = 0;
    // Text comparison without regard to case, by the host's collation: <0, 0 or >0.
    virtual int compareText(const std::string& a, const std::string& b) const = 0;
};

}  // namespace qh
