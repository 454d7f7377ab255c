#pragma once
// frmExportICalendar: what File > Export iCalendar... writes. The main window shows it
// modally and, after OK, reads the choice and asks where to save the file.
#include "interchange/ical_export_items.h"
#include "platform/control_ref.h"
#include "platform/form.h"

namespace qh {

class FrmExportICalendar : public Form {
public:
    FrmExportICalendar();

    // Set on OK; any other way the window hides leaves it clear.
    bool accepted = false;
    ICalendarChoice choice() const;

    // Every showing: all three kinds ticked, assignments as to-dos, the focus on OK.
    void Form_Activate() override;
    bool Form_QueryUnload(UnloadMode mode) override;

private:
    // The radios matter only with assignments ticked; OK only with something to write.
    void followChoice();

    ControlRef CheckBoxEvents{this, "CheckBoxEvents"};
    ControlRef CheckBoxTasks{this, "CheckBoxTasks"};
    ControlRef CheckBoxAssignments{this, "CheckBoxAssignments"};
    ControlRef RadioAssignmentsAsTodos{this, "RadioAssignmentsAsTodos"};
    ControlRef RadioAssignmentsAsEvents{this, "RadioAssignmentsAsEvents"};
    ControlRef ButtonOK{this, "ButtonOK"};
    ControlRef ButtonCancel{this, "ButtonCancel"};
};

}  // namespace qh
