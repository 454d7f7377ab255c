// The task procedures: FrmTask shown for a new task or a row of the task columns, then
// the row and its one record written, and the refresh.
#include "common/flag_text.h"
#include "common/text.h"
#include "editors/editor_host.h"
#include "editors/editor_windows.h"
#include "editors/feed_origin.h"
#include "editors/frm_task.h"
#include "editors/record_actions.h"
#include "record_store/record_files.h"
#include "record_store/record_tables.h"

namespace qh {
namespace {

// The task record as the window left it. An undated task keeps a date all the same:
// today's, so that every record has one in the file.
TaskBuffer recordOf(const FrmTask& form, Date today, const std::string& recordNo, const std::string& id) {
    const bool deadline = form.CheckBoxDeadline->checked;
    TaskBuffer record;
    record.RecordNo = recordNo;
    record.ID = id;
    record.Date = dateText(deadline ? form.tempTaskDate : today);
    record.Description = trimRight(form.TextBoxDescription->text);
    record.DateExists = flagText(deadline);
    record.Type = trimRight(form.ComboType->text);
    record.Priority = trimRight(form.ComboPriority->text);
    record.Done = flagText(form.CheckBoxDone->checked);
    record.Notes = trimRight(form.TextBoxNotes->text);
    record.Reminder = trimRight(form.ComboRemindMe->text);
    return record;
}

}  // namespace

bool RecordActions::NewTask() {
    // The editor windows load with the main window; before that no record opens.
    if (!windows_.loaded()) return true;
    FrmTask& form = windows_.task();
    form.editMode = EditMode::New;
    form.DocumentDirectory = store_.DocumentDirectory;
    platform_.windowing.showModal(form, &host_.ownerWindow());
    if (form.outcome() == EditorOutcome::Cancelled) return true;

    const std::string number = std::to_string(store_.NextTaskRecord);
    store_.TaskRecord = recordOf(form, platform_.clock.today(), number, number);
    kTaskTable.appendRow(store_, store_.TaskRecord);
    const bool written = files_.SaveTask(0);
    host_.refresh(RefreshReason::NewRecord);
    host_.showSavedRow(SavedRecordKind::Task, store_.TaskRecordNos.count());
    return written;
}

bool RecordActions::EditTask(int row) {
    // The editor windows load with the main window; before that no record opens.
    if (!windows_.loaded()) return true;
    FrmTask& form = windows_.task();
    RecordStore& s = store_;
    form.editMode = EditMode::Edit;
    form.DocumentDirectory = s.DocumentDirectory;
    form.tempTask = kTaskTable.rowOf(s, row);
    form.tempTaskDate = parseDateText(form.tempTask.Date).value_or(platform_.clock.today());
    ShowFeedOrigin(form, host_.feedOf(SavedRecordKind::Task, s.TaskIDs(row)));
    platform_.windowing.showModal(form, &host_.ownerWindow());
    ShowFeedOrigin(form, "");
    if (form.outcome() == EditorOutcome::Cancelled) return true;

    s.TaskRecord = recordOf(form, platform_.clock.today(), s.TaskRecordNos(row), s.TaskIDs(row));
    kTaskTable.storeRow(s, row, s.TaskRecord);
    const bool written = files_.SaveTask(int16OrZero(s.TaskRecordNos(row)));
    host_.refresh(RefreshReason::NewRecord);
    host_.showSavedRow(SavedRecordKind::Task, row);
    if (form.outcome() == EditorOutcome::Deleted) host_.recordDeleted(SavedRecordKind::Task, s.TaskIDs(row));
    return written;
}

}  // namespace qh
