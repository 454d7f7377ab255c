#include "editors/frm_select_course_schedule.h"

namespace qh {

FrmSelectCourseSchedule::FrmSelectCourseSchedule(Platform& platform)
    : EditorForm("frmSelectCourseSchedule", platform.messages) {
    caption = "Quillhollow - Select a Term";
    fixedSize = true;
    setOuterSize(4770, 3300);
    add(ControlKind::Label, "Label1", "", 240, 180, 4170, 255).caption = "Term Name";
    add(ControlKind::ComboBox, "ComboTermList", "", 240, 450, 4170, 315);
    add(ControlKind::CheckBox, "CheckBoxBasedOnTerm", "", 240, 900, 4170, 285).caption =
        "Start with This Term's Classes";
    add(ControlKind::CommandButton, "ButtonEdit", "", 240, 1380, 4170, 375).caption =
        "Edit This Term's Class Schedule";
    add(ControlKind::CommandButton, "ButtonActive", "", 240, 1860, 4170, 375).caption = "Make This Term Active";
    add(ControlKind::CommandButton, "ButtonNew", "", 240, 2340, 2010, 375).caption = "New Term";
    add(ControlKind::CommandButton, "ButtonCancel", "", 2400, 2340, 2010, 375).caption = "Cancel";
    for (const char* name : {"Label1", "CheckBoxBasedOnTerm"}) c(name).backColor = kButtonFace;
    bindControls();
    cancelButton = ButtonCancel.key();

    const auto choose = [this](TermChoice chosen) {
        return [this, chosen](const EventArgs&) {
            choice = chosen;
            finish(EditorOutcome::Saved);
        };
    };
    on(ButtonActive.key(), FormEvent::Click, choose(TermChoice::MakeActive));
    on(ButtonEdit.key(), FormEvent::Click, choose(TermChoice::EditSchedule));
    on(ButtonNew.key(), FormEvent::Click, choose(TermChoice::NewSchedule));
    on(ButtonCancel.key(), FormEvent::Click, [this](const EventArgs&) { cancel(); });
}

void FrmSelectCourseSchedule::Form_Load() {
    int number = 401;
    for (const ControlRef* control :
         {&Label1, &ComboTermList, &ButtonEdit, &ButtonActive, &ButtonNew, &CheckBoxBasedOnTerm, &ButtonCancel})
        (*control)->helpContextId = number++;
}

}  // namespace qh
