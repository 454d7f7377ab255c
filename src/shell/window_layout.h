#pragma once
// The rule that keeps a window at or above its design size while the user drags an edge.

namespace qh {

struct SizingRect {
    int left, top, right, bottom;  // pixels
    bool operator==(const SizingRect&) const = default;
};

// Adjusts the proposed rectangle of a drag. `edge` is the edge or corner dragged: 1 left,
// 2 right, 3 top, 4 top left, 5 top right, 6 bottom, 7 bottom left, 8 bottom right; any
// other value changes nothing. A width (height) at or below the minimum puts the moving
// edge at the minimum distance from the edge that stays.
SizingRect ClampSizingRect(SizingRect rect, int edge, int minWidth, int minHeight);

}  // namespace qh
