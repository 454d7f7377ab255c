// The event procedures: frmEvent shown for a new event or a row of the event columns,
// then the row's thirteen values and its one record written, and the refresh. An edit
// from any occurrence of a recurring event arrives here with the one row of its record.
#include "common/text.h"
#include "editors/editor_host.h"
#include "editors/editor_windows.h"
#include "editors/frm_event.h"
#include "editors/record_actions.h"
#include "record_store/record_files.h"

namespace qh {
namespace {

const char* trueFalse(bool value) { return value ? "True" : "False"; }

// The thirteen value columns of an event as the window left them. The rule columns come
// from the monthly controls for "Month" and from the yearly ones for every other kind.
struct EventValues {
    std::string date, description, type, time, reminder, recurrence, sameDate, repeatNumber, repeatDay, repeatDaily,
        end, endDate, notes;
};

EventValues valuesOf(const FrmEvent& form) {
    const bool monthly = form.Recurrence == "Month";
    return {dateText(form.StoreEventDate),
            trimRight(form.TextBoxEvent->text),
            trimRight(form.ComboType->text),
            trimRight(form.ComboTime->text),
            trimRight(form.ComboRemindMe->text),
            form.Recurrence,
            trueFalse(monthly ? form.RadioMonthlyThisDate->checked : form.RadioYearlyThisDate->checked),
            trimRight((monthly ? form.ComboMonthlyNumber : form.ComboYearlyNumber)->text),
            trimRight((monthly ? form.ComboMonthlyDay : form.ComboYearlyDay)->text),
            form.weekdayLetters(),
            trueFalse(form.RadioEndOn->checked),
            dateText(form.StoreEndDate),
            trimRight(form.TextBoxNotes->text)};
}

// The columns of an event in the order of their values above.
std::array<TextColumn*, 13> valueColumns(RecordStore& s) {
    return {&s.EventDates,         &s.EventDescriptions,  &s.EventTypes,   &s.EventTimes,    &s.EventReminders,
            &s.EventRecurrences,   &s.EventSameDates,     &s.EventRepeatNumbers, &s.EventRepeatDays,
            &s.EventRepeatDailies, &s.EventEnds,          &s.EventEndDates, &s.EventNotes};
}

std::array<const std::string*, 13> valueTexts(const EventValues& v) {
    return {&v.date,       &v.description, &v.type,      &v.time,        &v.reminder, &v.recurrence, &v.sameDate,
            &v.repeatNumber, &v.repeatDay, &v.repeatDaily, &v.end,       &v.endDate,  &v.notes};
}

void fillEventRecord(EventBuffer& record, const std::string& recordNo, const std::string& id, const EventValues& v) {
    record = {recordNo,    id,           v.date,         v.description, v.type,        v.time,    v.recurrence,
              v.sameDate,  v.repeatNumber, v.repeatDay,  v.repeatDaily, v.end,         v.endDate, v.notes,
              v.reminder};
}

}  // namespace

void RecordActions::NewEvent() {
    // The editor windows load with the main window; before that no record opens.
    if (!windows_.loaded()) return;
    FrmEvent& form = windows_.event();
    form.FormSmall = true;
    form.EditMode = "New";
    form.DocumentDirectory = store_.DocumentDirectory;
    platform_.windowing.showModal(form, &host_.ownerWindow());
    if (form.CancelledFlag) return;

    const EventValues v = valuesOf(form);
    const std::string number = std::to_string(store_.NextEventRecord);
    store_.EventRecordNos.append(number);
    store_.EventIDs.append(number);
    const auto columns = valueColumns(store_);
    const auto texts = valueTexts(v);
    for (std::size_t i = 0; i < columns.size(); ++i) columns[i]->append(*texts[i]);
    fillEventRecord(store_.EventRecord, number, number, v);
    // A failed write has named its file to the user; the row stays for this run.
    static_cast<void>(files_.SaveEvent(0));
    host_.refresh("NewRecord");
}

void RecordActions::EditEvent(int row) {
    // The editor windows load with the main window; before that no record opens.
    if (!windows_.loaded()) return;
    FrmEvent& form = windows_.event();
    RecordStore& s = store_;
    form.FormSmall = s.EventRecurrences(row) == "None";
    form.EditMode = "Edit";
    form.DocumentDirectory = s.DocumentDirectory;
    form.tempEventDate = s.EventDates(row);
    form.tempEventDescription = s.EventDescriptions(row);
    form.tempEventType = s.EventTypes(row);
    form.tempEventTime = s.EventTimes(row);
    form.tempEventReminder = s.EventReminders(row);
    form.tempEventRecurrence = s.EventRecurrences(row);
    form.tempEventSameDate = s.EventSameDates(row);
    form.tempEventRepeatNumber = s.EventRepeatNumbers(row);
    form.tempEventRepeatDay = s.EventRepeatDays(row);
    form.tempEventRepeatDaily = s.EventRepeatDailies(row);
    form.tempEventEnd = s.EventEnds(row);
    form.tempEventEndDate = s.EventEndDates(row);
    form.tempEventNotes = s.EventNotes(row);
    platform_.windowing.showModal(form, &host_.ownerWindow());
    if (form.CancelledFlag) return;

    const EventValues v = valuesOf(form);
    const auto columns = valueColumns(s);
    const auto texts = valueTexts(v);
    for (std::size_t i = 0; i < columns.size(); ++i) (*columns[i])(row) = *texts[i];
    fillEventRecord(s.EventRecord, s.EventRecordNos(row), s.EventIDs(row), v);
    static_cast<void>(files_.SaveEvent(int16OrZero(s.EventRecordNos(row))));
    host_.refresh("NewRecord");
}

}  // namespace qh
