#pragma once
// Colours of the planner are 24-bit values in the order blue, green, red (&HBBGGRR):
// red in the low byte. Fixed colours of the main window are kept as texts "&H" plus six
// hexadecimal digits and turned into numbers where they are used.
#include <cstdint>
#include <string>
#include <string_view>

namespace qh {

using Color = std::uint32_t;

constexpr Color rgb(int r, int g, int b) { return Color(r) | (Color(g) << 8) | (Color(b) << 16); }
constexpr int redOf(Color c) { return int(c & 0xFF); }
constexpr int greenOf(Color c) { return int((c >> 8) & 0xFF); }
constexpr int blueOf(Color c) { return int((c >> 16) & 0xFF); }

// "&HE5E5FF" (any number of hex digits after "&H") to its value; anything else is the
// untrapped "Type mismatch".
[[nodiscard]] Color colorFromText(std::string_view text);
// The value as "&H" and six upper-case hex digits.
std::string colorText(Color color);

inline constexpr Color kWhite = 0xFFFFFF;
inline constexpr Color kBlack = 0x000000;
// The system's button-face colour, which status bars and panels take.
inline constexpr Color kButtonFace = 0xF0F0F0;

}  // namespace qh
