#include "recurrence/type_colors.h"

namespace qh {
namespace {

// Tasks and events share the colours of their common types; only the first two types of
// each list differ.
const char* commonTypeBackColor(std::string_view type) {
    if (type == "Class") return "LightYellow";
    if (type == "School") return "NavajoWhite";
    if (type == "Home") return "MistyRose";
    if (type == "Personal") return "Lavender";
    if (type == "Friends") return "PaleGoldenrod";
    if (type == "Family") return "Honeydew";
    if (type == "Recreation") return "PaleGreen";
    if (type == "Work") return "PaleTurquoise";
    return "White";
}

}  // namespace

const char* EventTypeBackColor(std::string_view type) {
    if (type == "Birthday") return "Gold";
    if (type == "Holiday") return "LightPink";
    return commonTypeBackColor(type);
}

const char* TaskTypeBackColor(std::string_view type) {
    if (type == "Project") return "Gold";
    if (type == "Idea") return "LightPink";
    return commonTypeBackColor(type);
}

}  // namespace qh
