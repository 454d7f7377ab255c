// The main window can't be made smaller than its load size; only the grid and the status
// bar follow its size.
#include "shell/window_layout.h"

#include "shell/main_window.h"

namespace qh {

SizingRect ClampSizingRect(SizingRect rect, int edge, int minWidth, int minHeight) {
    const bool movesLeft = edge == 1 || edge == 4 || edge == 7;
    const bool movesRight = edge == 2 || edge == 5 || edge == 8;
    const bool movesTop = edge == 3 || edge == 4 || edge == 5;
    const bool movesBottom = edge == 6 || edge == 7 || edge == 8;
    if (rect.right - rect.left <= minWidth) {
        if (movesLeft) rect.left = rect.right - minWidth;
        if (movesRight) rect.right = rect.left + minWidth;
    }
    if (rect.bottom - rect.top <= minHeight) {
        if (movesTop) rect.top = rect.bottom - minHeight;
        if (movesBottom) rect.bottom = rect.top + minHeight;
    }
    return rect;
}

void MainWindow::Form_Resize() {
    if (windowState != WindowState::Minimized) Refresh("Resize");
}

}  // namespace qh
