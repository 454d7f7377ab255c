#pragma once
// What the editors need of the main window, and no more: the owner of their modal
// showing, the date the calendar shows, the first day of the week for their pickers,
// the one refresh, the active term, the highlight of a list row and the saved row. The main window
// implements it; the editors never include the shell.
#include <string>

#include "common/day_number.h"
#include "list_view/refresh_reason.h"

namespace qh {

class Form;

// The kinds of record an editor saves, for the list to find the saved one.
enum class SavedRecordKind { Assignment, Task, Event };

class EditorHost {
public:
    virtual ~EditorHost() = default;
    // The window the editors are shown over.
    virtual Form& ownerWindow() = 0;
    // ClickedDate of the month calendar: the date a new record starts on.
    virtual Date clickedDate() const = 0;
    // "Sunday", "Monday" or "Saturday": the pickers' headers follow it at every showing.
    virtual std::string startDayOfWeek() const = 0;
    // Runs the display refresh of the reason.
    virtual void refresh(RefreshReason reason) = 0;
    // Makes a term the active one (SelectTerm).
    virtual void selectTerm(const std::string& termName) = 0;
    // Shows or clears the pressed look of row `row` of the list (1-based).
    virtual void highlightRow(int row, bool on) = 0;
    // After a save and its refresh: the list frames the saved record's row, scrolled into
    // sight, when the list shows that record. `row` is the record's row in its columns.
    virtual void showSavedRow(SavedRecordKind, int) {}
    // After the editor's Delete was written: a record that came from a calendar feed may be
    // hidden from the feed's later refreshes, which the main window asks about.
    virtual void recordDeleted(SavedRecordKind, const std::string&) {}
    // The name of the calendar feed a record came from; empty for the student's own.
    virtual std::string feedOf(SavedRecordKind, const std::string&) { return {}; }
};

}  // namespace qh
