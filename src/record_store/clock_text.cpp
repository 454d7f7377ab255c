#include "record_store/clock_text.h"

#include "common/int16.h"

namespace qh {

std::string ClockText(int minutes) {
    const int hour = minutes / 60, minute = minutes % 60;
    const int shown = hour % 12 == 0 ? 12 : hour % 12;
    std::string text = std::to_string(shown) + ":" + (minute < 10 ? "0" : "") + std::to_string(minute);
    return text + (hour < 12 ? " am" : " pm");
}

std::optional<int> MinutesOfClockText(std::string_view text) {
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos || colon == 0 || colon > 2 || text.size() != colon + 6) return std::nullopt;
    const std::optional<Int16> hour = parseInt16(text.substr(0, colon));
    const std::optional<Int16> minute = parseInt16(text.substr(colon + 1, 2));
    const std::string_view half = text.substr(colon + 3);
    if (!hour || !minute || *hour < 1 || *hour > 12 || *minute < 0 || *minute > 59) return std::nullopt;
    if (half != " am" && half != " pm") return std::nullopt;
    return (*hour % 12 + (half == " pm" ? 12 : 0)) * 60 + *minute;
}

}  // namespace qh
