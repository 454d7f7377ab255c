// The grid's steps for the keyboard and the wheel, and what a screen reader has of a
// scrolled grid at the window height where its last row once stayed blank.
#include "list_view/grid_keys.h"

#include <gtest/gtest.h>

#include "list_view/list_fixture.h"

namespace qh {
namespace {

using namespace qh::testing;

TEST(GridKeys, EachKeyMovesTheRowAndTheTopWithinTheList) {
    // A list of 60 rows unless given, in a grid of 10: the scroll bar reaches top 51.
    const struct {
        const char* name;
        GridView from;
        int key;
        GridView to;
        int rows = 60;
    } steps[] = {
        {"the first Down shows the row on top", {1, 0}, kKeyDown, {1, 1}},
        {"Down moves the row", {1, 4}, kKeyDown, {1, 5}},
        {"Down at the last visible row scrolls by one", {1, 10}, kKeyDown, {2, 10}},
        {"Down at the end of the list stays", {51, 10}, kKeyDown, {51, 10}},
        {"Up at the top row scrolls back", {7, 1}, kKeyUp, {6, 1}},
        {"Up at the first position stays", {1, 1}, kKeyUp, {1, 1}},
        {"Page Down scrolls a page less a row", {1, 3}, kKeyPageDown, {10, 3}},
        {"Page Down near the end lands on the last row", {48, 3}, kKeyPageDown, {51, 10}},
        {"Page Up near the top lands on the first row", {4, 6}, kKeyPageUp, {1, 1}},
        {"Home", {30, 7}, kKeyHome, {1, 1}},
        {"End", {3, 2}, kKeyEnd, {51, 10}},
        {"a key the grid doesn't take", {3, 2}, 'A', {3, 2}},
        {"End on a list shorter than the grid stands on its last row, the top stays", {1, 1}, kKeyEnd, {1, 4}, 4},
        {"Down at the end of a short list stays", {1, 4}, kKeyDown, {1, 4}, 4},
        {"an empty list has no row to stand on", {1, 0}, kKeyDown, {1, 0}, 0},
    };
    for (const auto& step : steps) EXPECT_EQ(GridKeyStep(step.from, step.key, step.rows, 10), step.to) << step.name;
    // A list that shrank under the row: the row comes back onto the list.
    EXPECT_EQ(ClampGridView({40, 9}, 45, 10), (GridView{36, 9}));
    EXPECT_EQ(ClampGridView({1, 9}, 3, 10), (GridView{1, 3}));
}

TEST(GridKeys, TheWheelScrollsThreeRowsANotchAsFarAsTheScrollBarReaches) {
    EXPECT_EQ(GridWheelStep({1, 2}, -1, 60, 10), (GridView{4, 2}));
    EXPECT_EQ(GridWheelStep({10, 0}, 2, 60, 10), (GridView{4, 0}));
    EXPECT_EQ(GridWheelStep({50, 0}, -1, 60, 10), (GridView{51, 0}));
    EXPECT_EQ(GridWheelStep({2, 0}, 1, 60, 10), (GridView{1, 0}));
    EXPECT_EQ(GridWheelStep({1, 0}, -5, 8, 10), (GridView{1, 0}));  // all of it shows
}

// Sixty tasks in a window 7470 twips high, scrolled to the end: the last task is the
// tenth row, and a screen reader has each painted row by its position and texts. The keys,
// the frame, the wheel and Enter on that grid are the probe script
// task_grid_from_the_keyboard.
TEST(GridKeys, AScreenReaderHasTheLastRowOfAScrolledGrid) {
    ListWindow list(Mode::Tasks);
    list.filters("All", "All");
    for (int i = 1; i <= 60; ++i) addTask(list.store, {.description = "Task " + std::to_string(i)});
    list.window.setOuterSize(9600, 7470);
    list.build();
    list.window.UpdateGridScroll();
    list.build();
    ASSERT_EQ(list.window.state.RowsVisible, 10);
    list.window.scrollTo(list.window.ui.VSGridScroll.key(), list.window.ui.VSGridScroll->maximum);
    const std::vector<std::string>& rows = list.window.ui.picGrid->items;
    ASSERT_EQ(rows.size(), 10u);
    EXPECT_EQ(rows.back().substr(0, 12), "60, Task 60,");
}

}  // namespace
}  // namespace qh
