#pragma once
// Dates of the planner: a whole day number counted from 1899-12-30 (so 1953-08-12 is
// 19583), built on std::chrono civil dates. Dates are valid from 0100-01-01 to
// 9999-12-31; building one outside that range is the untrapped overflow.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qh {

using Date = std::int32_t;

struct Ymd {
    int year;
    int month;  // 1..12
    int day;    // 1..31
    bool operator==(const Ymd&) const = default;
};

// A point in time as the clock gives it: a day and the seconds since its midnight.
struct Moment {
    Date date = 0;
    int seconds = 0;  // 0..86399
    // Seconds from `earlier` to this moment (the stopwatch's "s" difference).
    long long secondsSince(const Moment& earlier) const;
};

inline constexpr Date kDateZero = 0;  // 1899-12-30

// Day number of a valid calendar date; throws UntrappedFailure("Overflow") outside
// years 100..9999. Callers pass valid months and days.
Date dateFromYmd(int year, int month, int day);

// The date of year, month and day with overflow carried: month 13 is January of the next
// year, day 0 is the last day of the month before, day 32 runs into the next month.
Date dateSerial(int year, int month, int day);

Ymd ymdOf(Date date);
int yearOf(Date date);
int monthOf(Date date);
int dayOf(Date date);

// 1 = Sunday .. 7 = Saturday, whatever the first day of the calendar's week is.
int weekdayOf(Date date);

int daysInMonth(int year, int month);

// Adds months (or years) to the date as it stands, keeping the day and clamping it to the
// last day of the target month: 31 January plus one month is the last day of February.
Date addMonths(Date date, int months);
Date addYears(Date date, int years);

// "yyyy/MM/dd", the form of every date field of the record files.
std::string dateText(Date date);

// Reads a date written year first with "/" between the parts ("2026/11/21", "2026/1/5").
// Nothing for any other text or an impossible date.
[[nodiscard]] std::optional<Date> parseDateText(std::string_view text);

// Like parseDateText, but a text that is no date is the untrapped "Type mismatch".
Date dateFromText(std::string_view text);

// The repair the loads apply to date fields: every "." and then every "-" becomes "/".
std::string repairDateSeparators(std::string text);

}  // namespace qh
