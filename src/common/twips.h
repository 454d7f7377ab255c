#pragma once
// Positions and sizes of windows, controls and drawings are in twips, 15 to the pixel.

namespace qh {

inline constexpr int kTwipsPerPixel = 15;

}  // namespace qh
