#pragma once
// FrmTask: one task made, changed or deleted. The window holds no record logic: the task
// procedures fill its public fields, show it modal and, after it hides, read its outcome
// and its controls into the task columns.
#include <memory>
#include <string>

#include "calendar/date_picker.h"
#include "editors/editor_form.h"
#include "platform/control_ref.h"
#include "platform/platform.h"
#include "record_store/columns.h"

namespace qh {

class EditorHost;

class FrmTask : public EditorForm, public DatePickerOwner, public HasDatePicker {
public:
    FrmTask(Platform& platform, EditorHost& host);
    ~FrmTask() override;

    // In: the task of an edit as its columns hold it, its date apart: tempTaskDate is also
    // the picker's field, kept as a date; it is written back when a date is picked.
    TaskBuffer tempTask;
    Date tempTaskDate = 0;
    // Where the share dialogs start.
    std::string DocumentDirectory;

    void Form_Load() override;
    void Form_MouseDown(const std::string& controlKey) override;

    void cancel() override;

    Date pickerFieldDate(bool firstField) override;
    void pickerWroteDate(bool firstField, Date date) override;
    DatePicker& datePicker() override { return *picker_; }

    ControlRef TextBoxDescription{this, "TextBoxDescription"};
    ControlRef TextBoxNotes{this, "TextBoxNotes"};
    ControlRef TextboxTaskDate{this, "TextboxTaskDate"};
    ControlRef LabelDeadline{this, "LabelDeadline"};
    ControlRef CheckBoxDeadline{this, "CheckBoxDeadline"};
    ControlRef CheckBoxDone{this, "CheckBoxDone"};
    ControlRef LabelDoneBG{this, "LabelDoneBG"};
    ControlRef ComboType{this, "ComboType"};
    ControlRef ComboPriority{this, "ComboPriority"};
    ControlRef ComboRemindMe{this, "ComboRemindMe"};
    ControlRef ButtonOK{this, "ButtonOK"};
    ControlRef ButtonCancel{this, "ButtonCancel"};
    ControlRef ButtonDelete{this, "ButtonDelete"};
    ControlRef ButtonShare{this, "ButtonShare"};

private:
    void buildControls();
    void bindHandlers();
    void showRecord() override;
    void showDeadline(bool on);
    void showDone();
    void ButtonOK_Click();
    void ButtonDelete_Click();
    void ButtonShare_Click();

    Platform& platform_;
    EditorHost& host_;
    std::unique_ptr<DatePicker> picker_;
};

}  // namespace qh
