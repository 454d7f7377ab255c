// The main window's grade list: the averages of the active term's classes, worked out in
// grades/, shown in ComboGPA.
#include "grades/gpa.h"
#include "shell/main_window.h"

namespace qh {

void MainWindow::UpdateGradeList() {
    Control& combo = *ui.ComboGPA;
    combo.items = ComputeGradeList(store).Entries;
    // The closed list always reads "GPA".
    combo.listIndex = 0;
    combo.text = combo.items.front();
}

}  // namespace qh
