#include "shell/window_layout.h"

#include <gtest/gtest.h>

namespace qh {
namespace {

// Edges 1 to 8: left, right, top, top left, top right, bottom, bottom left, bottom right.
TEST(ClampSizingRect, MovesOnlyTheDraggedEdgesOfASizeBelowTheMinimum) {
    const SizingRect small{500, 400, 600, 480};  // 100 x 80, below 640 x 481
    const struct {
        SizingRect proposed;
        int edge;
        SizingRect expected;
    } cases[] = {
        {small, 1, {-40, 400, 600, 480}}, {small, 2, {500, 400, 1140, 480}}, {small, 3, {500, -1, 600, 480}},
        {small, 4, {-40, -1, 600, 480}},  {small, 5, {500, -1, 1140, 480}},  {small, 6, {500, 400, 600, 881}},
        {small, 7, {-40, 400, 600, 881}}, {small, 8, {500, 400, 1140, 881}}, {small, 9, small},
        // Wide enough, too low: only the height is clamped.
        {{0, 0, 800, 100}, 8, {0, 0, 800, 481}},
    };
    for (const auto& c : cases) {
        const SizingRect r = ClampSizingRect(c.proposed, c.edge, 640, 481);
        EXPECT_EQ(r, c.expected) << "edge " << c.edge << ": " << r.left << "," << r.top << "," << r.right << ","
                                 << r.bottom;
    }
}

}  // namespace
}  // namespace qh
