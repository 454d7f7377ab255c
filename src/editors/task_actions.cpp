// The task procedures: FrmTask shown for a new task or a row of the task columns, then
// the row and its one record written, and the refresh.
#include "common/text.h"
#include "editors/editor_host.h"
#include "editors/editor_windows.h"
#include "editors/frm_task.h"
#include "editors/record_actions.h"
#include "record_store/record_files.h"

namespace qh {
namespace {

const char* trueFalse(bool value) { return value ? "True" : "False"; }

// The eight value columns of a task as the window left them. An undated task keeps a
// date all the same: today's, so that every record has one in the file.
struct TaskValues {
    std::string description, dateExists, date, type, priority, done, notes, reminder;
};

TaskValues valuesOf(const FrmTask& form, Date today) {
    const bool deadline = form.CheckBoxDeadline->checked;
    return {trimRight(form.TextBoxDescription->text), trueFalse(deadline),
            dateText(deadline ? form.tempTaskDate : today), trimRight(form.ComboType->text),
            trimRight(form.ComboPriority->text),           trueFalse(form.CheckBoxDone->checked),
            trimRight(form.TextBoxNotes->text),            trimRight(form.ComboRemindMe->text)};
}

void fillTaskRecord(TaskBuffer& record, const std::string& recordNo, const std::string& id, const TaskValues& v) {
    record = {recordNo, id, v.date, v.description, v.dateExists, v.type, v.priority, v.done, v.notes, v.reminder};
}

}  // namespace

void RecordActions::NewTask() {
    // The editor windows load with the main window; before that no record opens.
    if (!windows_.loaded()) return;
    FrmTask& form = windows_.task();
    form.EditMode = "New";
    form.DocumentDirectory = store_.DocumentDirectory;
    platform_.windowing.showModal(form, &host_.ownerWindow());
    if (form.CancelledFlag) return;

    const TaskValues v = valuesOf(form, platform_.clock.today());
    const std::string number = std::to_string(store_.NextTaskRecord);
    RecordStore& s = store_;
    s.TaskRecordNos.append(number);
    s.TaskIDs.append(number);
    s.TaskDates.append(v.date);
    s.TaskDescriptions.append(v.description);
    s.TaskDateExists.append(v.dateExists);
    s.TaskTypes.append(v.type);
    s.TaskPriorities.append(v.priority);
    s.TaskDones.append(v.done);
    s.TaskReminders.append(v.reminder);
    s.TaskNotes.append(v.notes);
    fillTaskRecord(s.TaskRecord, number, number, v);
    // A failed write has named its file to the user; the row stays for this run.
    static_cast<void>(files_.SaveTask(0));
    host_.refresh("NewRecord");
}

void RecordActions::EditTask(int row) {
    // The editor windows load with the main window; before that no record opens.
    if (!windows_.loaded()) return;
    FrmTask& form = windows_.task();
    RecordStore& s = store_;
    form.EditMode = "Edit";
    form.DocumentDirectory = s.DocumentDirectory;
    form.tempTaskDescription = s.TaskDescriptions(row);
    form.tempTaskDateExists = s.TaskDateExists(row);
    form.tempTaskDate = parseDateText(s.TaskDates(row)).value_or(platform_.clock.today());
    form.tempTaskType = s.TaskTypes(row);
    form.tempTaskPriority = s.TaskPriorities(row);
    form.tempTaskDone = s.TaskDones(row);
    form.tempTaskNotes = s.TaskNotes(row);
    form.tempTaskReminder = s.TaskReminders(row);
    form.SelectedTaskIndex = row;
    platform_.windowing.showModal(form, &host_.ownerWindow());
    if (form.CancelledFlag) return;

    const TaskValues v = valuesOf(form, platform_.clock.today());
    s.TaskDates(row) = v.date;
    s.TaskDescriptions(row) = v.description;
    s.TaskDateExists(row) = v.dateExists;
    s.TaskTypes(row) = v.type;
    s.TaskPriorities(row) = v.priority;
    s.TaskDones(row) = v.done;
    s.TaskReminders(row) = v.reminder;
    s.TaskNotes(row) = v.notes;
    fillTaskRecord(s.TaskRecord, s.TaskRecordNos(row), s.TaskIDs(row), v);
    static_cast<void>(files_.SaveTask(int16OrZero(s.TaskRecordNos(row))));
    host_.refresh("NewRecord");
}

}  // namespace qh
