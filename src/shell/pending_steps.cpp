// Routines of the main window whose subsystems have not landed yet. Each moves to its own
// file as it lands; nothing here is finished work.
#include "shell/main_window.h"

namespace qh {

void MainWindow::NewAssignment() {}
void MainWindow::EditAssignment(int) {}
void MainWindow::NewTask() {}
void MainWindow::EditTask(int) {}
void MainWindow::NewEvent() {}
void MainWindow::EditEvent(int) {}

}  // namespace qh
