#pragma once
// frmSelectCourseSchedule: which term, and what to do with it. The schedule procedure
// (RecordActions::EditClassSchedule) fills the term list, shows the window modal and,
// unless the outcome is Cancelled, acts on the choice.
#include <string>
#include <vector>

#include "editors/editor_form.h"
#include "platform/control_ref.h"
#include "platform/platform.h"

namespace qh {

class FrmSelectCourseSchedule : public EditorForm {
public:
    explicit FrmSelectCourseSchedule(Platform& platform);

    // The button that ended the showing; read only when the outcome is Saved.
    enum class TermChoice { EditSchedule, NewSchedule, MakeActive };
    TermChoice choice = TermChoice::EditSchedule;
    std::vector<std::string> tempTermIDArray;  // term IDs in the order of ComboTermList

    void Form_Load() override;
    // Cancel and the close box leave at once: nothing here is worth a question.
    void cancel() override { finish(EditorOutcome::Cancelled); }

    ControlRef Label1{this, "Label1"};
    ControlRef ComboTermList{this, "ComboTermList"};
    ControlRef ButtonEdit{this, "ButtonEdit"};
    ControlRef ButtonActive{this, "ButtonActive"};
    ControlRef ButtonNew{this, "ButtonNew"};
    ControlRef CheckBoxBasedOnTerm{this, "CheckBoxBasedOnTerm"};
    ControlRef ButtonCancel{this, "ButtonCancel"};

private:
    void showRecord() override {}
};

}  // namespace qh
