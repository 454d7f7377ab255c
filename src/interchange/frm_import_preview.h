#pragma once
// frmImportPreview: what an iCalendar file holds and what each part of it will become,
// shown before anything changes. The main window hands it the plan and the active term's
// classes, shows it modally and, after OK, reads the student's choices.
#include <string>
#include <vector>

#include "interchange/ical_import.h"
#include "platform/control_ref.h"
#include "platform/form.h"

namespace qh {

struct ClassChoice {
    std::string id, name;
};

// The classes of the active term, which imported to-dos and deadlines may become
// assignments of.
std::vector<ClassChoice> ActiveTermClasses(const RecordStore& store);

class FrmImportPreview : public Form {
public:
    static constexpr int kCourseRows = 6;

    FrmImportPreview();

    // Set by the caller before each showing.
    const ImportPlan* plan = nullptr;
    std::vector<ClassChoice> classes;
    std::string fileName;

    // Set on OK; any other way the window hides leaves it clear.
    bool accepted = false;
    ImportChoices choices() const;

    void Form_Activate() override;
    bool Form_QueryUnload(UnloadMode mode) override;

private:
    void fillList();
    void fillCourses();

    ControlRef LabelSummary{this, "LabelSummary"};
    ControlRef ListImport{this, "ListImport"};
    ControlArrayRef LabelCourse{this, "LabelCourse", kCourseRows};
    ControlArrayRef ComboCourse{this, "ComboCourse", kCourseRows};
    ControlRef LabelRepeats{this, "LabelRepeats"};
    ControlRef ComboRepeats{this, "ComboRepeats"};
    ControlRef ButtonOK{this, "ButtonOK"};
    ControlRef ButtonCancel{this, "ButtonCancel"};
};

}  // namespace qh
