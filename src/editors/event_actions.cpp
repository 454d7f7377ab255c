// The event procedures: frmEvent shown for a new event or a row of the event columns,
// then the row and its one record written, and the refresh. An edit
// from any occurrence of a recurring event arrives here with the one row of its record.
#include "common/flag_text.h"
#include "common/text.h"
#include "editors/editor_host.h"
#include "editors/editor_windows.h"
#include "editors/feed_origin.h"
#include "editors/frm_event.h"
#include "editors/record_actions.h"
#include "record_store/record_files.h"
#include "record_store/record_tables.h"

namespace qh {
namespace {

// The event record as the window left it. The rule fields come from the monthly
// controls for Month and from the yearly ones for every other kind.
EventBuffer recordOf(const FrmEvent& form, const std::string& recordNo, const std::string& id) {
    const bool monthly = form.recurrence == Recurrence::Month;
    EventBuffer record;
    record.RecordNo = recordNo;
    record.ID = id;
    record.Date = dateText(form.StoreEventDate);
    record.Description = trimRight(form.TextBoxEvent->text);
    record.Type = trimRight(form.ComboType->text);
    record.Time = trimRight(form.ComboTime->text);
    record.Recurrence = recurrenceText(form.recurrence);
    record.SameDate = flagText(monthly ? form.RadioMonthlyThisDate->checked : form.RadioYearlyThisDate->checked);
    record.RepeatNumber = trimRight((monthly ? form.ComboMonthlyNumber : form.ComboYearlyNumber)->text);
    record.RepeatDay = trimRight((monthly ? form.ComboMonthlyDay : form.ComboYearlyDay)->text);
    record.RepeatDaily = form.weekdayLetters();
    record.End = flagText(form.RadioEndOn->checked);
    record.EndDate = dateText(form.StoreEndDate);
    record.Notes = trimRight(form.TextBoxNotes->text);
    record.Reminder = trimRight(form.ComboRemindMe->text);
    return record;
}

}  // namespace

bool RecordActions::NewEvent() {
    // The editor windows load with the main window; before that no record opens.
    if (!windows_.loaded()) return true;
    FrmEvent& form = windows_.event();
    form.FormSmall = true;
    form.editMode = EditMode::New;
    form.DocumentDirectory = store_.DocumentDirectory;
    platform_.windowing.showModal(form, &host_.ownerWindow());
    if (form.outcome() == EditorOutcome::Cancelled) return true;

    const std::string number = std::to_string(store_.NextEventRecord);
    store_.EventRecord = recordOf(form, number, number);
    kEventTable.appendRow(store_, store_.EventRecord);
    const bool written = files_.SaveEvent(0);
    host_.refresh(RefreshReason::NewRecord);
    host_.showSavedRow(SavedRecordKind::Event, store_.EventRecordNos.count());
    return written;
}

bool RecordActions::EditEvent(int row) {
    // The editor windows load with the main window; before that no record opens.
    if (!windows_.loaded()) return true;
    FrmEvent& form = windows_.event();
    RecordStore& s = store_;
    form.FormSmall = recurrenceOf(s.EventRecurrences(row)) == Recurrence::None;
    form.editMode = EditMode::Edit;
    form.DocumentDirectory = s.DocumentDirectory;
    form.tempEvent = kEventTable.rowOf(s, row);
    ShowFeedOrigin(form, host_.feedOf(SavedRecordKind::Event, s.EventIDs(row)));
    platform_.windowing.showModal(form, &host_.ownerWindow());
    ShowFeedOrigin(form, "");
    if (form.outcome() == EditorOutcome::Cancelled) return true;

    s.EventRecord = recordOf(form, s.EventRecordNos(row), s.EventIDs(row));
    kEventTable.storeRow(s, row, s.EventRecord);
    const bool written = files_.SaveEvent(int16OrZero(s.EventRecordNos(row)));
    host_.refresh(RefreshReason::NewRecord);
    host_.showSavedRow(SavedRecordKind::Event, row);
    if (form.outcome() == EditorOutcome::Deleted) host_.recordDeleted(SavedRecordKind::Event, s.EventIDs(row));
    return written;
}

}  // namespace qh
