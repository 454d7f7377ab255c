#include "list_view/grid_keys.h"

#include <algorithm>

#include "platform/form.h"

namespace qh {
namespace {

constexpr int kWheelRows = 3;

int highestTop(int rowCount, int rowsVisible) { return std::max(1, rowCount - rowsVisible + 1); }

}  // namespace

GridView ClampGridView(GridView view, int rowCount, int rowsVisible) {
    view.topRow = std::clamp(view.topRow, 1, highestTop(rowCount, rowsVisible));
    const int shown = std::clamp(rowCount - view.topRow + 1, 0, std::max(0, rowsVisible));
    if (view.keyboardRow != 0) view.keyboardRow = shown == 0 ? 0 : std::clamp(view.keyboardRow, 1, shown);
    return view;
}

GridView GridKeyStep(GridView view, int keyCode, int rowCount, int rowsVisible) {
    view = ClampGridView(view, rowCount, rowsVisible);
    if (rowCount <= 0 || rowsVisible <= 0) return GridView{1, 0};
    const int page = std::max(1, rowsVisible - 1);
    switch (keyCode) {
        case kKeyDown:
            if (view.keyboardRow == 0)
                view.keyboardRow = 1;
            else if (view.keyboardRow < rowsVisible)
                ++view.keyboardRow;
            else
                ++view.topRow;
            break;
        case kKeyUp:
            if (view.keyboardRow == 0)
                view.keyboardRow = 1;
            else if (view.keyboardRow > 1)
                --view.keyboardRow;
            else
                --view.topRow;
            break;
        case kKeyPageDown:
            view.topRow += page;
            view.keyboardRow = std::max(view.keyboardRow, 1);
            break;
        case kKeyPageUp:
            view.topRow -= page;
            view.keyboardRow = std::max(view.keyboardRow, 1);
            break;
        case kKeyHome: view = GridView{1, 1}; break;
        case kKeyEnd:
            view.topRow = highestTop(rowCount, rowsVisible);
            view.keyboardRow = rowCount - view.topRow + 1;
            break;
        default: return view;
    }
    // Page Down at the end of the list, like End, lands on its last row.
    if (keyCode == kKeyPageDown && view.topRow > highestTop(rowCount, rowsVisible))
        view.keyboardRow = rowCount - highestTop(rowCount, rowsVisible) + 1;
    if (keyCode == kKeyPageUp && view.topRow < 1) view.keyboardRow = 1;
    return ClampGridView(view, rowCount, rowsVisible);
}

GridView GridWheelStep(GridView view, int notches, int rowCount, int rowsVisible) {
    view.topRow -= kWheelRows * notches;
    return ClampGridView(view, rowCount, rowsVisible);
}

}  // namespace qh
