#pragma once
// The time of day as an event's Time field holds it: "12:00 am", "12:05 am" ... "11:55 pm",
// or "None" for an event without one.
#include <optional>
#include <string>
#include <string_view>

namespace qh {

// The text of a time `minutes` after midnight; the hour without a leading zero.
std::string ClockText(int minutes);

// Minutes after midnight of a clock text; nothing for "None" or any other text.
std::optional<int> MinutesOfClockText(std::string_view text);

}  // namespace qh
