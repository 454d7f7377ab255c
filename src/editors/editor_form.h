#pragma once
// How every editor window ends a showing. The caller sets the window's fields and its
// edit mode, shows it modal and, once it hides, reads one outcome: Saved after OK,
// Deleted after Delete, and Cancelled whatever else hid it (Cancel, the close box, or
// any path the window itself didn't choose). A window hidden by accident therefore never
// writes a record.
#include <string>

#include "platform/form.h"
#include "platform/message_box.h"

namespace qh {

// What the caller asks of an editor: a new record, a change to one, or (the class
// schedule) a new term that starts as a copy of another one's classes.
enum class EditMode { New, Edit, NewBasedOn };

enum class EditorOutcome { Saved, Deleted, Cancelled };

class EditorForm : public Form {
public:
    // Set by the caller before each showing.
    EditMode editMode = EditMode::New;

    // How the last showing ended; Cancelled while it is still open.
    EditorOutcome outcome() const { return outcome_; }
    // Whether the user changed anything since the showing began; Cancel asks only then.
    bool hasChanges() const { return changed_; }

    // Every showing starts as a cancel with nothing changed, once the window has shown
    // its record. A term based on another starts changed: its copy is not stored yet.
    void Form_Activate() final;
    // The one close policy: the program's end closes the window; any other request to
    // close it is the window's Cancel, which hides it or, refused, keeps it open.
    bool Form_QueryUnload(UnloadMode mode) final;

    // The window's Cancel button.
    virtual void cancel() = 0;

protected:
    EditorForm(std::string name, MessageBoxes& messages);

    // Fills the controls from the fields the caller set, for editMode.
    virtual void showRecord() = 0;
    // Runs before every hide: a window with two heights returns to its small one.
    virtual void beforeHide() {}

    void markChanged() { changed_ = true; }
    // Ends the showing with `outcome` and hides the window.
    void finish(EditorOutcome outcome);
    // Cancel: with changes, asks `question` first, and any answer but Yes keeps the window
    // open as it is.
    void confirmCancel(const std::string& question, MessageIcon icon = MessageIcon::Information);

    bool ask(const std::string& question, MessageIcon icon = MessageIcon::Information);
    void tell(const std::string& text);

private:
    MessageBoxes& messages_;
    EditorOutcome outcome_ = EditorOutcome::Cancelled;
    bool changed_ = false;
};

}  // namespace qh
