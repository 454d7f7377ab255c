// A click on a grid row opens the editor of that row's record; a click on an empty line
// under the rows opens a new record of the mode, where the mode makes records.
#include "shell/main_window.h"

namespace qh {

void MainWindow::GridRowClicked(int k) {
    // The row count is compared with the visible row k; the record is the one at list
    // position p, which differs from k on a scrolled list.
    const int p = state.TopRow - 1 + k;
    const auto edit = [this, k](void (MainWindow::*editor)(int), int record) {
        // The marked number cell is the only sign of the pressed row while the editor is
        // open; a row whose record is missing (a row column that ran short) opens nothing.
        if (record < 1) return;
        HighlightGridRow(k, true);
        (this->*editor)(record);
        HighlightGridRow(k, false);
    };
    const auto at = [p](const auto& column) { return column.has(p) ? int(column(p)) : 0; };

    switch (CurrentMode()) {
        case Mode::Homework:
            if (k <= state.ListAssignmentRows.count())
                edit(&MainWindow::EditAssignment, at(state.ListAssignmentRows));
            else
                NewAssignment();
            break;
        case Mode::StudySessions:
            // A session opens its assignment; there is no new session from the list.
            if (k <= state.ListSessionRows.count()) edit(&MainWindow::EditAssignment, at(state.ListAssignmentRows));
            break;
        case Mode::Tasks:
            if (k <= state.ListTaskRows.count())
                edit(&MainWindow::EditTask, at(state.ListTaskRows));
            else
                NewTask();
            break;
        case Mode::Events:
            // An occurrence opens the event itself: an edit changes all its occurrences.
            if (k <= state.ListEventRows.count())
                edit(&MainWindow::EditEvent, at(state.ListEventRows));
            else
                NewEvent();
            break;
        case Mode::Reminders: {
            if (k > state.ReminderRecords.count() || !state.ReminderKinds.has(p)) break;
            const std::string& kind = state.ReminderKinds(p);
            const int record = at(state.ReminderRecords);
            if (kind == "Homework")
                edit(&MainWindow::EditAssignment, record);
            else if (kind == "Task")
                edit(&MainWindow::EditTask, record);
            else if (kind == "Event")
                edit(&MainWindow::EditEvent, record);
            break;
        }
        case Mode::None:
            break;
    }
}

}  // namespace qh
