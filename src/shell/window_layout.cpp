// The main window can't be made smaller than its load size (its minWidth and minHeight,
// which the platform holds it to); only the grid and the status bar follow its size.
#include "shell/main_window.h"

namespace qh {

void MainWindow::Form_Resize() {
    if (windowState != WindowState::Minimized) Refresh(RefreshReason::Resize);
}

}  // namespace qh
