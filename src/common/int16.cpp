#include "common/int16.h"

#include <charconv>

namespace qh {

Int16 toInt16(long long value) {
    if (value < INT16_MIN || value > INT16_MAX) throw Overflow();
    return static_cast<Int16>(value);
}

std::optional<Int16> parseInt16(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t' || text.back() == '\0'))
        text.remove_suffix(1);
    if (!text.empty() && text.front() == '+') text.remove_prefix(1);
    if (text.empty()) return std::nullopt;
    long long value = 0;
    auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    if (value < INT16_MIN || value > INT16_MAX) return std::nullopt;
    return static_cast<Int16>(value);
}

Int16 int16OrZero(std::string_view text) { return parseInt16(text).value_or(0); }

}  // namespace qh
