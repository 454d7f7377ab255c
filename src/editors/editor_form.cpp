#include "editors/editor_form.h"

namespace qh {

EditorForm::EditorForm(std::string name, MessageBoxes& messages) : Form(std::move(name)), messages_(messages) {}

void EditorForm::Form_Activate() {
    outcome_ = EditorOutcome::Cancelled;
    showRecord();
    // Filling the controls fires their handlers; that is no change of the user's.
    changed_ = editMode == EditMode::NewBasedOn;
}

bool EditorForm::Form_QueryUnload(UnloadMode mode) {
    if (mode == UnloadMode::ProgramEnd) return true;
    cancel();
    return false;
}

void EditorForm::finish(EditorOutcome outcome) {
    outcome_ = outcome;
    beforeHide();
    hide();
}

void EditorForm::confirmCancel(const std::string& question, MessageIcon icon) {
    if (changed_ && !ask(question, icon)) return;
    finish(EditorOutcome::Cancelled);
}

bool EditorForm::ask(const std::string& question, MessageIcon icon) {
    return messages_.show(question, "Quillhollow", MessageButtons::YesNo, icon) == MessageAnswer::Yes;
}

void EditorForm::tell(const std::string& text) {
    messages_.show(text, "Quillhollow", MessageButtons::OK, MessageIcon::Information);
}

}  // namespace qh
