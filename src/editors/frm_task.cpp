#include "editors/frm_task.h"

#include "common/flag_text.h"
#include "editors/editor_checks.h"
#include "editors/editor_controls.h"
#include "editors/editor_host.h"
#include "editors/feed_origin.h"
#include "editors/shared_file_transfer.h"
#include "record_store/color_vocabulary.h"
#include "record_store/columns.h"

namespace qh {

FrmTask::FrmTask(Platform& platform, EditorHost& host)
    : EditorForm("FrmTask", platform.messages), platform_(platform), host_(host) {
    setCanvasFactory(&platform.canvases);
    buildControls();
    picker_ = std::make_unique<DatePicker>(*this, platform, *this, [&host] { return host.startDayOfWeek(); },
                                           DateField{"TextboxTaskDate", "picButtonTaskDate", 600, 675});
    bindControls();
    bindHandlers();
}

FrmTask::~FrmTask() = default;

void FrmTask::buildControls() {
    caption = "Quillhollow - New Task";
    fixedSize = true;
    setOuterSize(6480, 4740);
    const auto label = [this](const std::string& name, int left, int top, int width, const std::string& text) {
        Control& control = add(ControlKind::Label, name, "", left, top, width, 255);
        control.caption = text;
        control.backColor = kButtonFace;
    };
    const auto button = [this](const std::string& name, int left, const std::string& text) {
        add(ControlKind::CommandButton, name, "", left, 3720, 1080, 375).caption = text;
    };
    label("LabelDeadline", 600, 120, 2940, "No Date Set");
    Control& deadline = add(ControlKind::CheckBox, "CheckBoxDeadline", "", 240, 375, 285, 285);
    deadline.accessibleName = "Deadline";
    deadline.backColor = kButtonFace;
    Control& date = add(ControlKind::TextBox, "TextboxTaskDate", "", 600, 360, 2940, 315);
    date.locked = true;
    date.border = true;
    Control& pick = add(ControlKind::CommandButton, "picButtonTaskDate", "", 3540, 360, 300, 315);
    pick.caption = "...";
    label("LabelType", 3960, 120, 2160, "Type");
    add(ControlKind::ComboBox, "ComboType", "", 3960, 360, 2160, 315);

    label("LabelDescription", 240, 780, 3000, "Description");
    AddFeedOriginLabel(*this, 3240, 780, 2880);
    add(ControlKind::TextBox, "TextBoxDescription", "", 240, 1020, 5880, 315).border = true;

    label("LabelDifficulty", 240, 1440, 1800, "Priority");
    add(ControlKind::ComboBox, "ComboPriority", "", 240, 1680, 1800, 315);
    label("LabelRemind", 2160, 1440, 1800, "Advance Notice");
    add(ControlKind::ComboBox, "ComboRemindMe", "", 2160, 1680, 1800, 315);
    add(ControlKind::Label, "LabelDoneBG", "", 4080, 1605, 2040, 465);
    add(ControlKind::CheckBox, "CheckBoxDone", "", 4200, 1680, 1800, 315).caption = "Done";

    label("LabelNotes", 240, 2100, 3000, "Notes");
    Control& notes = add(ControlKind::TextBox, "TextBoxNotes", "", 240, 2340, 5880, 1200);
    notes.multiLine = true;
    notes.border = true;

    Control& help = add(ControlKind::PictureBox, "picHelp", "", 240, 3780, 315, 240);
    help.picture = "Help";
    help.tabStop = false;
    help.accessibleName = "What's This?";
    button("ButtonShare", 1080, "Share");
    button("ButtonDelete", 2280, "Delete");
    button("ButtonOK", 3840, "OK");
    button("ButtonCancel", 5040, "Cancel");
}

void FrmTask::bindHandlers() {
    const auto onClick = [this](const ControlRef& control, void (FrmTask::*handler)()) {
        on(control.key(), FormEvent::Click, [this, handler](const EventArgs&) { (this->*handler)(); });
    };
    onClick(ButtonOK, &FrmTask::ButtonOK_Click);
    onClick(ButtonDelete, &FrmTask::ButtonDelete_Click);
    onClick(ButtonShare, &FrmTask::ButtonShare_Click);
    onClick(ButtonCancel, &FrmTask::cancel);
    const auto changes = [this](const ControlRef& control, FormEvent event) {
        on(control.key(), event, [this](const EventArgs&) { markChanged(); });
    };
    changes(TextBoxDescription, FormEvent::Change);
    changes(TextBoxNotes, FormEvent::Change);
    for (const ControlRef* combo : {&ComboRemindMe, &ComboType, &ComboPriority}) changes(*combo, FormEvent::Click);
    on(CheckBoxDone.key(), FormEvent::Click, [this](const EventArgs&) {
        markChanged();
        showDone();
    });
    on(CheckBoxDeadline.key(), FormEvent::Click, [this](const EventArgs&) {
        markChanged();
        showDeadline(CheckBoxDeadline->checked);
    });
    on("picHelp", FormEvent::Click, [this](const EventArgs&) { platform_.windowing.enterWhatsThisMode(); });
    defaultButton = ButtonOK.key();
    cancelButton = ButtonCancel.key();
}

void FrmTask::Form_Load() {
    FillReminderChoices(*ComboRemindMe);
    for (const char* priority : {"None", "Low", "Medium", "High"}) ComboPriority->addItem(priority);
    for (const char* type : {"None", "Class", "School", "Home", "Personal", "Friends", "Family", "Recreation", "Work",
                             "Project", "Idea"})
        ComboType->addItem(type);
    const struct {
        const char* key;
        int number;
    } help[] = {{"ButtonCancel", 601},   {"ButtonDelete", 602},     {"ButtonOK", 603},
                {"CheckBoxDone", 606},   {"ComboPriority", 607},    {"ComboRemindMe", 608},
                {"TextboxTaskDate", 610}, {"picButtonTaskDate", 610}, {"ComboType", 611},
                {"picHelp", 612},        {"TextBoxDescription", 620}, {"TextBoxNotes", 621}};
    for (const auto& [key, number] : help) c(key).helpContextId = number;
    showDone();
    showDeadline(false);
}

void FrmTask::showDeadline(bool on) {
    LabelDeadline->caption = on ? "Date" : "No Date Set";
    TextboxTaskDate->foreColor = on ? kBlack : kInactiveDateColor;
}

void FrmTask::showDone() {
    const Color back = standardColors().ColorValues(CheckBoxDone->checked ? "Green" : "Sienna");
    CheckBoxDone->backColor = LabelDoneBG->backColor = back;
}

void FrmTask::showRecord() {
    if (editMode == EditMode::New) {
        caption = "Quillhollow - New Task";
        TextBoxDescription->text.clear();
        TextBoxNotes->text.clear();
        setChecked(CheckBoxDone.key(), false);
        ButtonDelete->visible = false;
        ShowEntry(*ComboPriority, "None");
        ShowEntry(*ComboType, "None");
        ShowEntryAt(*ComboRemindMe, 0);
        tempTaskDate = host_.clickedDate();
        setChecked(CheckBoxDeadline.key(), false);
    } else {
        caption = "Quillhollow - Edit Task";
        TextBoxDescription->text = tempTask.Description;
        TextBoxNotes->text = tempTask.Notes;
        setChecked(CheckBoxDone.key(), isTrueFlag(tempTask.Done));
        ButtonDelete->visible = true;
        ShowEntry(*ComboPriority, tempTask.Priority);
        ShowEntry(*ComboType, tempTask.Type);
        ShowListedEntry(*ComboRemindMe, tempTask.Reminder, 0);
        setChecked(CheckBoxDeadline.key(), isTrueFlag(tempTask.DateExists));
    }
    TextboxTaskDate->text = platform_.locale.longDate(tempTaskDate);
    showDeadline(CheckBoxDeadline->checked);
    showDone();
    ButtonShare->caption = "Share";
    SetFocus(TextBoxDescription.key());
    picker_->reset();
}

void FrmTask::ButtonOK_Click() {
    const auto refusal = TaskOkRefusal(
        {.description = TextBoxDescription->text, .reminder = ComboRemindMe->text, .deadline = CheckBoxDeadline->checked});
    if (refusal) {
        tell(refusal->message);
        return;
    }
    finish(EditorOutcome::Saved);
}

void FrmTask::cancel() {
    confirmCancel(editMode == EditMode::New ? "Cancel this Task?" : "Cancel all changes to this Task?",
                  MessageIcon::Question);
}

void FrmTask::ButtonDelete_Click() {
    if (!ask("Are you sure you want to Delete this Task?", MessageIcon::Question)) return;
    TextBoxDescription->text = kDeletedRecord;
    setChecked(CheckBoxDone.key(), true);
    finish(EditorOutcome::Deleted);
}

void FrmTask::ButtonShare_Click() {
    if (editMode == EditMode::Edit) {
        const SharedTask task{.description = TextBoxDescription->text,
                              .deadline = CheckBoxDeadline->checked,
                              .date = tempTaskDate,
                              .type = ComboType->text,
                              .priority = ComboPriority->text,
                              .notes = TextBoxNotes->text};
        ShareOut(platform_, DocumentDirectory, SharedKind::Task, sharedFileName(task.description),
                 sharedFileBytes(task, platform_.clock.today()));
        return;
    }
    const std::optional<SharedTask> task = ShareInTask(platform_, DocumentDirectory);
    if (!task) return;
    type(TextBoxDescription.key(), task->description);
    setChecked(CheckBoxDeadline.key(), task->deadline);
    tempTaskDate = task->date;
    TextboxTaskDate->text = platform_.locale.longDate(task->date);
    ChooseEntry(*this, ComboType.key(), task->type);
    ChooseEntry(*this, ComboPriority.key(), task->priority);
    type(TextBoxNotes.key(), task->notes);
}

void FrmTask::Form_MouseDown(const std::string& controlKey) { picker_->windowPressed(controlKey); }

Date FrmTask::pickerFieldDate(bool) { return tempTaskDate; }

void FrmTask::pickerWroteDate(bool, Date date) {
    markChanged();
    tempTaskDate = date;
    // A picked date is a deadline.
    if (!CheckBoxDeadline->checked) setChecked(CheckBoxDeadline.key(), true);
    showDeadline(true);
}

}  // namespace qh
