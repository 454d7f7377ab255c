#pragma once
// What the month calendar is told about its 42 day cells: which are marked, and the tint
// of a marked cell for the mode and filter shown. Cell 0 is the first cell, cell d the
// cell d days later.
#include <array>
#include <string>

namespace qh {

inline constexpr int kCalendarCells = 42;

inline constexpr const char* kColorTintBlue = "&HF0E8E2";
inline constexpr const char* kColorTintGreen = "&HE2F7E1";
inline constexpr const char* kColorTintPink = "&HE5E5FF";
inline constexpr const char* kColorTintTan = "&HD7EBFA";

struct DayMarks {
    std::array<bool, kCalendarCells> CellMarked{};
    std::string ColorMarkedBack;
};

}  // namespace qh
