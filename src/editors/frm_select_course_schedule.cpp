#include "editors/frm_select_course_schedule.h"

namespace qh {

FrmSelectCourseSchedule::FrmSelectCourseSchedule(Platform&) : Form("frmSelectCourseSchedule") {
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

    const auto leaveWith = [this](Int16 FrmSelectCourseSchedule::*flag, Int16 value) {
        return [this, flag, value](const EventArgs&) {
            this->*flag = value;
            hide();
        };
    };
    on(ButtonActive.key(), FormEvent::Click, leaveWith(&FrmSelectCourseSchedule::MakeActive, kTrue));
    on(ButtonEdit.key(), FormEvent::Click, leaveWith(&FrmSelectCourseSchedule::NewCourse, kFalse));
    on(ButtonNew.key(), FormEvent::Click, leaveWith(&FrmSelectCourseSchedule::NewCourse, kTrue));
    on(ButtonCancel.key(), FormEvent::Click, leaveWith(&FrmSelectCourseSchedule::Cancelled, kTrue));
}

void FrmSelectCourseSchedule::Form_Load() {
    int number = 401;
    for (const ControlRef* control :
         {&Label1, &ComboTermList, &ButtonEdit, &ButtonActive, &ButtonNew, &CheckBoxBasedOnTerm, &ButtonCancel})
        (*control)->helpContextId = number++;
}

void FrmSelectCourseSchedule::Form_Activate() {
    Cancelled = NewCourse = MakeActive = kFalse;
}

bool FrmSelectCourseSchedule::Form_QueryUnload(UnloadMode mode) {
    if (mode == UnloadMode::ProgramEnd) return true;
    // The close box is Cancel; the window stays loaded for the next time.
    Cancelled = kTrue;
    hide();
    return false;
}

}  // namespace qh
