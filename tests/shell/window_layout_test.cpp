#include "shell/window_layout.h"

#include <gtest/gtest.h>

namespace qh {
namespace {

// Proposed rectangles 100 x 80 pixels (below the 640 x 481 minimum) from (500, 400).
struct ClampCase {
    const char* name;
    int edge;
    SizingRect expected;
};

class ClampSizing : public ::testing::TestWithParam<ClampCase> {};

TEST_P(ClampSizing, MovesOnlyTheDraggedEdges) {
    const SizingRect proposed{500, 400, 600, 480};
    EXPECT_EQ(ClampSizingRect(proposed, GetParam().edge, 640, 481), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Edges, ClampSizing,
    ::testing::Values(ClampCase{"Left", 1, {-40, 400, 600, 480}}, ClampCase{"Right", 2, {500, 400, 1140, 480}},
                      ClampCase{"Top", 3, {500, -1, 600, 480}}, ClampCase{"TopLeft", 4, {-40, -1, 600, 480}},
                      ClampCase{"TopRight", 5, {500, -1, 1140, 480}}, ClampCase{"Bottom", 6, {500, 400, 600, 881}},
                      ClampCase{"BottomLeft", 7, {-40, 400, 600, 881}},
                      ClampCase{"BottomRight", 8, {500, 400, 1140, 881}}, ClampCase{"Other", 9, {500, 400, 600, 480}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(ClampSizingRect, AWideEnoughDragIsLeftAloneInThatDirection) {
    // Wide enough, too low: only the height is clamped.
    EXPECT_EQ(ClampSizingRect({0, 0, 800, 100}, 8, 640, 481), (SizingRect{0, 0, 800, 481}));
    // Exactly the minimum counts as too small and is put back to it.
    EXPECT_EQ(ClampSizingRect({0, 0, 640, 600}, 2, 640, 481), (SizingRect{0, 0, 640, 600}));
}

}  // namespace
}  // namespace qh
