#pragma once
// frmSelectCourseSchedule: which term, and what to do with it. The schedule procedure
// (RecordActions::EditClassSchedule) fills the term list, shows the window modal and
// reads the three flags after it hides.
#include <string>
#include <vector>

#include "common/int16.h"
#include "platform/control_ref.h"
#include "platform/platform.h"

namespace qh {

class FrmSelectCourseSchedule : public Form {
public:
    explicit FrmSelectCourseSchedule(Platform& platform);

    // Public fields, read by the caller after the window hides.
    Int16 Cancelled = kFalse;
    Int16 NewCourse = kFalse;
    Int16 MakeActive = kFalse;
    std::string SelectedCourse, SelectedTermID;  // kept, not used by the schedule procedure
    std::vector<std::string> tempTermIDArray;    // term IDs in the order of ComboTermList

    void Form_Load() override;
    void Form_Activate() override;
    bool Form_QueryUnload(UnloadMode mode) override;

    ControlRef Label1{this, "Label1"};
    ControlRef ComboTermList{this, "ComboTermList"};
    ControlRef ButtonEdit{this, "ButtonEdit"};
    ControlRef ButtonActive{this, "ButtonActive"};
    ControlRef ButtonNew{this, "ButtonNew"};
    ControlRef CheckBoxBasedOnTerm{this, "CheckBoxBasedOnTerm"};
    ControlRef ButtonCancel{this, "ButtonCancel"};
};

}  // namespace qh
