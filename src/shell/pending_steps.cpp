// Routines of the main window whose subsystems have not landed yet. Each moves to its own
// file as it lands; nothing here is finished work.
#include "shell/main_window.h"

namespace qh {

void MainWindow::LayoutGrid(Mode) {}
void MainWindow::BuildList(Mode) {}
void MainWindow::UpdateGridScroll() {}
void MainWindow::RefillGrid() {}
void MainWindow::ResetGridScroll() {}
void MainWindow::HighlightGridRow(int, bool) {}
void MainWindow::UpdateGradeList() {}
void MainWindow::UpdateStudyTimeToday(Date) {}
void MainWindow::GridRowClicked(int) {}
void MainWindow::picGridMouseDown(const EventArgs&) {}
void MainWindow::picGridMouseUp(const EventArgs&) {}
void MainWindow::headerClicked(int) {}
void MainWindow::NewAssignment() {}
void MainWindow::EditAssignment(int) {}
void MainWindow::NewTask() {}
void MainWindow::EditTask(int) {}
void MainWindow::NewEvent() {}
void MainWindow::EditEvent(int) {}
DayMarks MainWindow::MarkEventDaysFor(Date) { return {}; }

}  // namespace qh
