#pragma once
// Row colours of events and tasks by their type, as colour names of the colour table.
// The text of such a row is always "Black"; a type not listed (also "None") is "White".
// Types are compared exactly.
#include <string_view>

namespace qh {

inline constexpr const char* kTypeRowForeColor = "Black";

// Birthday Gold, Class LightYellow, Holiday LightPink, School NavajoWhite, Home MistyRose,
// Personal Lavender, Friends PaleGoldenrod, Family Honeydew, Recreation PaleGreen,
// Work PaleTurquoise.
const char* EventTypeBackColor(std::string_view type);

// School NavajoWhite, Class LightYellow, Home MistyRose, Personal Lavender, Friends
// PaleGoldenrod, Family Honeydew, Recreation PaleGreen, Work PaleTurquoise, Project Gold,
// Idea LightPink. "Birthday" and "Holiday" are event types only: White here.
const char* TaskTypeBackColor(std::string_view type);

}  // namespace qh
