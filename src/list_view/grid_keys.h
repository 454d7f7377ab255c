#pragma once
// The list grid from the keyboard and the mouse wheel: which list position shows at the
// top and which visible row the keyboard stands on after a key or a turn of the wheel.
namespace qh {

struct GridView {
    int topRow = 1;       // list position in the first visible row
    int keyboardRow = 0;  // visible row the keyboard stands on; 0 for none
    bool operator==(const GridView&) const = default;
};

// Up and Down move the row (scrolling by one at the edges), Page Up and Page Down scroll
// by a page as the scroll bar does (one row less than the grid shows) and keep the row,
// Home and End go to the first and the last row of the list. Other keys change nothing.
// The view that results always lies within the list: the top as far as the scroll bar
// reaches, the row on a row that shows a list position.
GridView GridKeyStep(GridView view, int keyCode, int rowCount, int rowsVisible);

// A turn of the wheel: three rows a notch, up for a positive count, as far as the scroll
// bar reaches. The keyboard row stays where it is on the screen.
GridView GridWheelStep(GridView view, int notches, int rowCount, int rowsVisible);

// The view brought within the list: the top between 1 and the scroll bar's maximum, the
// keyboard row within the rows that show a list position (0 stays 0).
GridView ClampGridView(GridView view, int rowCount, int rowsVisible);

}  // namespace qh
