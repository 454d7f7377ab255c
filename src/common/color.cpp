#include "common/color.h"

#include <charconv>
#include <cstdio>

#include "common/failure.h"

namespace qh {

Color colorFromText(std::string_view text) {
    if (text.size() < 3 || text[0] != '&' || (text[1] != 'H' && text[1] != 'h')) throw TypeMismatch();
    unsigned long value = 0;
    const char* first = text.data() + 2;
    const char* last = text.data() + text.size();
    auto [end, error] = std::from_chars(first, last, value, 16);
    if (error != std::errc() || end != last || value > 0xFFFFFFul) throw TypeMismatch();
    return static_cast<Color>(value);
}

std::string colorText(Color color) {
    char buffer[12];
    std::snprintf(buffer, sizeof buffer, "&H%06X", unsigned(color & 0xFFFFFF));
    return buffer;
}

}  // namespace qh
