#include "list_view/time_text.h"

#include <cctype>

#include "common/text.h"

namespace qh {
namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Reads one to two digits at `pos`; nothing when there is no digit.
std::optional<int> readNumber(std::string_view text, std::size_t& pos, std::size_t maxDigits) {
    std::size_t start = pos;
    int value = 0;
    while (pos < text.size() && isDigit(text[pos]) && pos - start < maxDigits) value = value * 10 + (text[pos++] - '0');
    if (pos == start) return std::nullopt;
    return value;
}

void skipBlanks(std::string_view text, std::size_t& pos) {
    while (pos < text.size() && text[pos] == ' ') ++pos;
}

}  // namespace

long long LeadingNumber(std::string_view text) {
    std::size_t pos = 0;
    skipBlanks(text, pos);
    bool negative = false;
    if (pos < text.size() && (text[pos] == '-' || text[pos] == '+')) negative = text[pos++] == '-';
    long long value = 0;
    while (pos < text.size() && isDigit(text[pos]) && value < 100000000000LL) value = value * 10 + (text[pos++] - '0');
    return negative ? -value : value;
}

Span ReadSpan(std::string_view text) {
    const std::string_view left = text.substr(0, 2);
    const std::string_view right = text.size() <= 2 ? text : text.substr(text.size() - 2);
    return {LeadingNumber(left), LeadingNumber(right)};
}

std::string TimeForm(long long minutes) { return twoDigits(minutes / 60) + ":" + twoDigits(minutes % 60); }

long long MinutesOfTimeForm(std::string_view text) {
    const Span span = ReadSpan(text);
    return span.totalMinutes();
}

std::optional<int> ParseTimeOfDay(std::string_view text) {
    std::size_t pos = 0;
    skipBlanks(text, pos);
    const auto hour = readNumber(text, pos, 2);
    if (!hour) return std::nullopt;
    skipBlanks(text, pos);
    if (pos >= text.size() || text[pos] != ':') return std::nullopt;
    ++pos;
    skipBlanks(text, pos);
    const auto minute = readNumber(text, pos, 2);
    if (!minute || *minute > 59) return std::nullopt;
    int second = 0;
    skipBlanks(text, pos);
    if (pos < text.size() && text[pos] == ':') {
        ++pos;
        skipBlanks(text, pos);
        const auto s = readNumber(text, pos, 2);
        if (!s || *s > 59) return std::nullopt;
        second = *s;
        skipBlanks(text, pos);
    }
    int h = *hour;
    if (pos < text.size()) {
        const std::string rest = trim(text.substr(pos));
        if (rest.size() != 2 || std::tolower(static_cast<unsigned char>(rest[1])) != 'm') return std::nullopt;
        const char half = char(std::tolower(static_cast<unsigned char>(rest[0])));
        if ((half != 'a' && half != 'p') || h < 1 || h > 12) return std::nullopt;
        h = h % 12 + (half == 'p' ? 12 : 0);
    } else if (h > 23) {
        return std::nullopt;
    }
    return h * 3600 + *minute * 60 + second;
}

}  // namespace qh
