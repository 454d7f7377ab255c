#include "record_store/codepage.h"

#include <cstdint>
#include <cstring>

namespace qh {
namespace {

// Characters of the bytes 0x80..0x9F; the unassigned five stand for themselves.
constexpr char32_t kHighControls[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 80..87
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  // 88..8F
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90..97
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,  // 98..9F
};

char32_t charOfByte(unsigned char byte) {
    if (byte >= 0x80 && byte <= 0x9F) return kHighControls[byte - 0x80];
    return byte;
}

// The byte of a character, or '?' when the code page lacks it.
char byteOfChar(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<char>(c);
    for (int i = 0; i < 32; ++i)
        if (kHighControls[i] == c) return static_cast<char>(0x80 + i);
    return '?';
}

void appendUtf8(std::string& out, char32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

// Decodes one UTF-8 character at `i`, advancing it. A malformed sequence (stray
// continuation byte, truncated or overlong form, surrogate, beyond U+10FFFF) gives
// nothing and advances by one byte, so each bad byte becomes one "?".
bool decodeUtf8(std::string_view text, std::size_t& i, char32_t& c) {
    const auto lead = static_cast<unsigned char>(text[i]);
    int extra = 0;
    char32_t value = 0;
    char32_t minimum = 0;
    if (lead < 0x80) {
        c = lead;
        ++i;
        return true;
    } else if ((lead & 0xE0) == 0xC0) {
        extra = 1, value = lead & 0x1F, minimum = 0x80;
    } else if ((lead & 0xF0) == 0xE0) {
        extra = 2, value = lead & 0x0F, minimum = 0x800;
    } else if ((lead & 0xF8) == 0xF0) {
        extra = 3, value = lead & 0x07, minimum = 0x10000;
    } else {
        ++i;
        return false;
    }
    if (i + std::size_t(extra) >= text.size()) {  // truncated at the end
        ++i;
        return false;
    }
    for (int k = 1; k <= extra; ++k) {
        const auto next = static_cast<unsigned char>(text[i + std::size_t(k)]);
        if ((next & 0xC0) != 0x80) {
            ++i;
            return false;
        }
        value = (value << 6) | (next & 0x3F);
    }
    if (value < minimum || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF)) {
        ++i;
        return false;
    }
    i += std::size_t(extra) + 1;
    c = value;
    return true;
}

}  // namespace

std::string toCodePage(std::string_view utf8) {
    std::string out;
    out.reserve(utf8.size());
    std::size_t i = 0;
    while (i < utf8.size()) {
        char32_t c = 0;
        out += decodeUtf8(utf8, i, c) ? byteOfChar(c) : '?';
    }
    return out;
}

std::string fromCodePage(std::string_view bytes) {
    // Most of what the files hold is plain ASCII, which reads as itself: it is copied
    // whole, and only from the first byte above 0x7F on is each byte converted.
    constexpr std::uint64_t kHighBits = 0x8080808080808080;
    std::size_t plain = 0;
    for (std::uint64_t eight; plain + 8 <= bytes.size(); plain += 8) {
        std::memcpy(&eight, bytes.data() + plain, 8);
        if (eight & kHighBits) break;
    }
    while (plain < bytes.size() && static_cast<unsigned char>(bytes[plain]) < 0x80) ++plain;
    std::string out(bytes.substr(0, plain));
    if (plain == bytes.size()) return out;
    out.reserve(plain + 3 * (bytes.size() - plain));
    for (char b : bytes.substr(plain)) appendUtf8(out, charOfByte(static_cast<unsigned char>(b)));
    return out;
}

std::string fieldBytes(std::string_view utf8, int width) {
    std::string bytes = toCodePage(utf8);
    bytes.resize(std::size_t(width), ' ');
    return bytes;
}

}  // namespace qh
