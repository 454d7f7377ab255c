#pragma once
// Times as the lists read and show them.
//
// A span in a record ("01 : 30", an estimate or a study session's length) is read by its
// left two characters (hours) and its right two characters (minutes), each the number it
// begins with, so "1 " reads 1 and "ab" reads 0: a damaged field counts as no time rather
// than stopping the list.
//
// Every time a list shows is in the time form: two digits, ":", two digits, each the last
// two digits of the number, so 125 hours 5 minutes reads "25:05".
#include <optional>
#include <string>
#include <string_view>

namespace qh {

struct Span {
    long long hours = 0;
    long long minutes = 0;
    long long totalMinutes() const { return hours * 60 + minutes; }
};

// The number a text begins with: leading blanks, an optional sign, digits; 0 when there is
// none.
long long LeadingNumber(std::string_view text);

// Hours from the left two characters, minutes from the right two.
Span ReadSpan(std::string_view text);

// The time form of a number of minutes (not negative): "HH:MM" with the last two digits
// of each part.
std::string TimeForm(long long minutes);

// Minutes of the "HH:MM" text of a list's time column: left two characters times 60 plus
// the right two.
long long MinutesOfTimeForm(std::string_view text);

// The time of day of an event's time text, in seconds after midnight: "9:05 pm",
// "12:00 am", "21:05" or "9:05:30 PM" (blanks around the parts and the letters' case do
// not matter). Nothing for any other text, such as "None".
std::optional<int> ParseTimeOfDay(std::string_view text);

}  // namespace qh
