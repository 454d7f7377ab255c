#include "common/text.h"

namespace qh {

std::string trimRight(std::string_view text) {
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return std::string(text);
}

std::string trim(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    return trimRight(text);
}

std::string rightChars(std::string_view text, std::size_t n) {
    return std::string(text.size() <= n ? text : text.substr(text.size() - n));
}

std::string twoDigits(long long number) {
    std::string text = "0";
    text += std::to_string(number);
    return rightChars(text, 2);
}

std::size_t lastCharacterStart(std::string_view text) {
    std::size_t pos = text.size() - 1;
    while (pos > 0 && (static_cast<unsigned char>(text[pos]) & 0xC0) == 0x80) --pos;
    return pos;
}

}  // namespace qh
