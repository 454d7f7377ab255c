#include "interchange/frm_export_icalendar.h"

namespace qh {

FrmExportICalendar::FrmExportICalendar() : Form("frmExportICalendar") {
    fixedSize = true;
    setOuterSize(5400, 3660);
    caption = "Quillhollow - Export iCalendar";
    Control& what = add(ControlKind::Label, "LabelWhat", "", 240, 180, 4800, 285);
    what.caption = "Write these to an iCalendar file for phone and web calendars:";
    what.backColor = kButtonFace;
    add(ControlKind::CheckBox, "CheckBoxEvents", "", 360, 540, 4560, 315).caption = "Events, with their repeats";
    add(ControlKind::CheckBox, "CheckBoxTasks", "", 360, 900, 4560, 315).caption = "Tasks";
    add(ControlKind::CheckBox, "CheckBoxAssignments", "", 360, 1260, 4560, 315).caption =
        "Assignments of the active term";
    add(ControlKind::RadioButton, "RadioAssignmentsAsTodos", "", 720, 1620, 4320, 315).caption = "as to-dos";
    add(ControlKind::RadioButton, "RadioAssignmentsAsEvents", "", 720, 1980, 4320, 315).caption =
        "as all-day events, for calendars that show no to-dos";
    add(ControlKind::CommandButton, "ButtonOK", "", 2400, 2640, 1260, 375).caption = "OK";
    add(ControlKind::CommandButton, "ButtonCancel", "", 3840, 2640, 1260, 375).caption = "Cancel";
    defaultButton = "ButtonOK";
    cancelButton = "ButtonCancel";
    bindControls();

    for (const ControlRef* box : {&CheckBoxEvents, &CheckBoxTasks, &CheckBoxAssignments})
        on(box->key(), FormEvent::Click, [this](const EventArgs&) { followChoice(); });
    on(ButtonOK.key(), FormEvent::Click, [this](const EventArgs&) {
        accepted = true;
        hide();
    });
    on(ButtonCancel.key(), FormEvent::Click, [this](const EventArgs&) { hide(); });
}

ICalendarChoice FrmExportICalendar::choice() const {
    ICalendarChoice out;
    out.events = CheckBoxEvents->checked;
    out.tasks = CheckBoxTasks->checked;
    out.assignments = CheckBoxAssignments->checked;
    out.assignmentsAsEvents = RadioAssignmentsAsEvents->checked;
    return out;
}

void FrmExportICalendar::Form_Activate() {
    accepted = false;
    for (const ControlRef* box : {&CheckBoxEvents, &CheckBoxTasks, &CheckBoxAssignments}) (*box)->checked = true;
    RadioAssignmentsAsTodos->checked = true;
    RadioAssignmentsAsEvents->checked = false;
    followChoice();
    focusedControl = ButtonOK.key();
}

bool FrmExportICalendar::Form_QueryUnload(UnloadMode mode) {
    if (mode != UnloadMode::CloseBox) return true;
    hide();
    return false;
}

void FrmExportICalendar::followChoice() {
    const bool assignments = CheckBoxAssignments->checked;
    RadioAssignmentsAsTodos->enabled = assignments;
    RadioAssignmentsAsEvents->enabled = assignments;
    ButtonOK->enabled = assignments || CheckBoxEvents->checked || CheckBoxTasks->checked;
}

}  // namespace qh
