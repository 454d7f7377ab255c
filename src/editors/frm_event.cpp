#include "editors/frm_event.h"

#include "common/flag_text.h"
#include "editors/editor_checks.h"
#include "editors/editor_controls.h"
#include "editors/editor_host.h"
#include "editors/feed_origin.h"
#include "editors/recurrence_panel_defaults.h"
#include "editors/shared_file_transfer.h"
#include "record_store/clock_text.h"
#include "record_store/columns.h"

namespace qh {

FrmEvent::FrmEvent(Platform& platform, EditorHost& host)
    : EditorForm("frmEvent", platform.messages), platform_(platform), host_(host) {
    setCanvasFactory(&platform.canvases);
    buildControls();
    buildRecurrencePanel();
    picker_ = std::make_unique<DatePicker>(*this, platform, *this, [&host] { return host.startDayOfWeek(); },
                                           DateField{"TextboxEventDate", "picButtonEventDate", 240, 675},
                                           DateField{"TextboxEndDate", "picButtonEndDate", 600, 3150});
    bindControls();
    bindHandlers();
    bindRecurrenceHandlers();
}

FrmEvent::~FrmEvent() = default;

void FrmEvent::buildControls() {
    caption = "Quillhollow - New Event";
    fixedSize = true;
    setOuterSize(kOuterWidth, kSmallHeight);
    const auto label = [this](const std::string& name, int left, int top, int width, const std::string& text) {
        Control& control = add(ControlKind::Label, name, "", left, top, width, 255);
        control.caption = text;
        control.backColor = kButtonFace;
        return &control;
    };
    label("LabelDate", 240, 120, 2700, "Date");
    Control& date = add(ControlKind::TextBox, "TextboxEventDate", "", 240, 360, 2700, 315);
    date.locked = true;
    date.border = true;
    Control& pick = add(ControlKind::CommandButton, "picButtonEventDate", "", 2940, 360, 300, 315);
    pick.caption = "...";
    label("LabelTime", 3420, 120, 1260, "Time");
    add(ControlKind::ComboBox, "ComboTime", "", 3420, 360, 1260, 315);
    label("LabelType", 4800, 120, 1290, "Type");
    add(ControlKind::ComboBox, "ComboType", "", 4800, 360, 1290, 315);

    label("LabelDescription", 240, 780, 3000, "Description");
    add(ControlKind::TextBox, "TextBoxEvent", "", 240, 1020, 4200, 315).border = true;
    label("LabelRemind", 4560, 780, 1530, "Advance Notice");
    add(ControlKind::ComboBox, "ComboRemindMe", "", 4560, 1020, 1530, 315);

    label("LabelNotes", 240, 1440, 3000, "Notes");
    AddFeedOriginLabel(*this, 3240, 1440, 2850);
    Control& notes = add(ControlKind::TextBox, "TextBoxNotes", "", 240, 1680, 5850, 1320);
    notes.multiLine = true;
    notes.border = true;

    Control* link = label("LabelViewRecurring", 240, 3240, 2160, "Show Recurring Events");
    link->foreColor = rgb(0, 0, 255);
    link->underline = true;
    link->focusable = true;
    int left = 2460;
    for (const auto& [name, text] : {std::pair{"ButtonShare", "Share"}, {"ButtonDelete", "Delete"},
                                     {"ButtonOK", "OK"}, {"ButtonCancel", "Cancel"}}) {
        add(ControlKind::CommandButton, name, "", left, 3180, 840, 375).caption = text;
        left += 930;
    }
}

void FrmEvent::bindHandlers() {
    const auto onClick = [this](const ControlRef& control, void (FrmEvent::*handler)()) {
        on(control.key(), FormEvent::Click, [this, handler](const EventArgs&) { (this->*handler)(); });
    };
    onClick(ButtonOK, &FrmEvent::ButtonOK_Click);
    onClick(ButtonCancel, &FrmEvent::cancel);
    onClick(ButtonDelete, &FrmEvent::ButtonDelete_Click);
    onClick(ButtonShare, &FrmEvent::ButtonShare_Click);
    on(LabelViewRecurring.key(), FormEvent::Click, [this](const EventArgs&) { showSize(!FormSmall); });
    const auto changes = [this](const std::string& key, FormEvent event) {
        on(key, event, [this](const EventArgs&) {
            if (!quiet_) markChanged();
        });
    };
    for (const ControlRef* box : {&TextBoxEvent, &TextBoxNotes}) changes(box->key(), FormEvent::Change);
    for (const ControlRef* control :
         {&ComboType, &ComboTime, &ComboRemindMe, &RadioMonthlyThisDate, &RadioMonthlyUser, &ComboMonthlyNumber,
          &ComboMonthlyDay, &RadioYearlyThisDate, &RadioYearlyUser, &ComboYearlyNumber, &ComboYearlyDay})
        changes(control->key(), FormEvent::Click);
    for (const char* box : kWeekdayBoxes) changes(box, FormEvent::Click);
    defaultButton = ButtonOK.key();
    cancelButton = ButtonCancel.key();
}

void FrmEvent::Form_Load() {
    ComboTime->addItem("None");
    for (int minutes = 0; minutes < 24 * 60; minutes += 5) ComboTime->addItem(ClockText(minutes));
    for (const char* type : {"None", "Class", "School", "Home", "Birthday", "Holiday", "Personal", "Friends", "Family",
                             "Recreation", "Work"})
        ComboType->addItem(type);
    FillReminderChoices(*ComboRemindMe);
}

void FrmEvent::showSize(bool small) {
    FormSmall = small;
    setOuterSize(kOuterWidth, small ? kSmallHeight : kLargeHeight);
    LabelViewRecurring->caption = small ? "Show Recurring Events" : "Hide Recurring Events";
}

void FrmEvent::setQuietly(const std::string& key, bool checked) {
    const bool was = quiet_;
    quiet_ = true;
    setChecked(key, checked);
    quiet_ = was;
}

void FrmEvent::showRecord() {
    showSize(FormSmall);
    if (editMode == EditMode::New)
        fillForNew();
    else
        fillForEdit();
    // The student comes to name the event: the description takes the keys at once, as in
    // the task editor, rather than the date's "..." button that stands first.
    SetFocus(TextBoxEvent.key());
    picker_->reset();
}

void FrmEvent::fillForNew() {
    caption = "Quillhollow - New Event";
    showRecurrence(Recurrence::None);
    for (const char* box : kWeekdayBoxes) setQuietly(box, false);
    setQuietly(RadioMonthlyThisDate.key(), true);
    setQuietly(RadioYearlyThisDate.key(), true);
    TextBoxEvent->text.clear();
    TextBoxNotes->text.clear();
    ShowEntry(*ComboTime, "None");
    ShowEntry(*ComboType, "None");
    ShowEntryAt(*ComboRemindMe, 0);
    StoreEventDate = StoreEndDate = host_.clickedDate();
    TextboxEventDate->text = platform_.locale.longDate(StoreEventDate);
    showEndDate(StoreEndDate);
    showEndLine(false);
    ResetDays = true;
    ButtonDelete->enabled = false;
}

void FrmEvent::fillForEdit() {
    caption = "Quillhollow - Edit Event";
    TextBoxEvent->text = tempEvent.Description;
    TextBoxNotes->text = tempEvent.Notes;
    ShowEntry(*ComboType, tempEvent.Type);
    ShowEntry(*ComboTime, tempEvent.Time);
    ShowListedEntry(*ComboRemindMe, tempEvent.Reminder, 0);
    StoreEventDate = parseDateText(tempEvent.Date).value_or(host_.clickedDate());
    TextboxEventDate->text = platform_.locale.longDate(StoreEventDate);
    setQuietly(RadioMonthlyThisDate.key(), true);
    setQuietly(RadioYearlyThisDate.key(), true);
    showRecurrence(recurrenceOf(tempEvent.Recurrence));
    if (recurrence == Recurrence::Month || recurrence == Recurrence::Year) {
        const bool monthly = recurrence == Recurrence::Month;
        if (!isTrueFlag(tempEvent.SameDate)) setQuietly(monthly ? RadioMonthlyUser.key() : RadioYearlyUser.key(), true);
        ShowEntry(monthly ? *ComboMonthlyNumber : *ComboYearlyNumber, tempEvent.RepeatNumber);
        ShowEntry(monthly ? *ComboMonthlyDay : *ComboYearlyDay, tempEvent.RepeatDay);
        if (!monthly) LabelRepeatMonth->caption = "of Every " + platform_.locale.monthName(monthOf(StoreEventDate));
    } else if (recurrence == Recurrence::Day) {
        for (std::size_t i = 0; i < kWeekdayBoxes.size(); ++i)
            setQuietly(kWeekdayBoxes[i], i < tempEvent.RepeatDaily.size() && tempEvent.RepeatDaily[i] == 'T');
    }
    // An event without an end keeps the stored date as its end date, and shows the end
    // its repetition would propose; switching the end on takes the proposal.
    const std::optional<Date> end = parseDateText(tempEvent.EndDate);
    StoreEndDate = end.value_or(StoreEventDate);
    const bool endOn = isTrueFlag(tempEvent.End);
    showEndDate(endOn ? StoreEndDate : ProposedEndDate(recurrence, StoreEventDate));
    showEndLine(endOn);
    ResetDays = false;
    ButtonDelete->enabled = true;
}

void FrmEvent::ButtonOK_Click() {
    const bool monthly = recurrence == Recurrence::Month;
    const bool anyDay = weekdayLetters().find('T') != std::string::npos;
    const auto refusal = EventOkRefusal({
        .name = TextBoxEvent->text,
        .recurrence = recurrence,
        .anyWeekdayTicked = anyDay,
        .endOn = RadioEndOn->checked,
        .eventDate = StoreEventDate,
        .endDate = StoreEndDate,
        .userRule = monthly ? RadioMonthlyUser->checked : recurrence == Recurrence::Year && RadioYearlyUser->checked,
        .repeatNumber = (monthly ? ComboMonthlyNumber : ComboYearlyNumber)->text,
        .repeatDay = (monthly ? ComboMonthlyDay : ComboYearlyDay)->text,
    });
    if (refusal) {
        tell(refusal->message);
        return;
    }
    finish(EditorOutcome::Saved);
}

void FrmEvent::cancel() {
    confirmCancel(editMode == EditMode::New ? "Cancel this Event?" : "Cancel all changes to this Event?");
}

void FrmEvent::ButtonDelete_Click() {
    if (!ask("Are you sure you want to Delete this Event?")) return;
    TextBoxEvent->text = kDeletedRecord;
    finish(EditorOutcome::Deleted);
}

void FrmEvent::ButtonShare_Click() {
    if (editMode == EditMode::Edit)
        shareOut();
    else
        shareIn();
}

void FrmEvent::shareOut() {
    SharedEvent event{.name = TextBoxEvent->text,
                      .firstDate = StoreEventDate,
                      .type = ComboType->text,
                      .time = ComboTime->text,
                      .recurrence = recurrenceText(recurrence),
                      .monthlyThisDate = RadioMonthlyThisDate->checked,
                      .monthlyNumber = ComboMonthlyNumber->text,
                      .monthlyDay = ComboMonthlyDay->text,
                      .yearlyThisDate = RadioYearlyThisDate->checked,
                      .yearlyNumber = ComboYearlyNumber->text,
                      .yearlyDay = ComboYearlyDay->text,
                      .endOn = RadioEndOn->checked,
                      .endDate = StoreEndDate,
                      .notes = TextBoxNotes->text};
    for (std::size_t i = 0; i < kWeekdayBoxes.size(); ++i) event.weekdays[i] = c(kWeekdayBoxes[i]).checked;
    ShareOut(platform_, DocumentDirectory, SharedKind::Event, sharedFileName(event.name), sharedFileBytes(event));
}

void FrmEvent::shareIn() {
    const std::optional<SharedEvent> event = ShareInEvent(platform_, DocumentDirectory);
    if (!event) return;
    type(TextBoxEvent.key(), event->name);
    StoreEventDate = event->firstDate;
    TextboxEventDate->text = platform_.locale.longDate(StoreEventDate);
    markChanged();
    ChooseEntry(*this, ComboType.key(), event->type);
    ChooseEntry(*this, ComboTime.key(), event->time);
    // The radio runs the panel's defaults for the date; the rule read then overwrites them.
    ResetDays = true;
    const Recurrence shared = recurrenceOf(event->recurrence);
    setChecked(RecurrenceRadio(shared), true);
    if (shared == Recurrence::Month || shared == Recurrence::Year) {
        const bool monthly = shared == Recurrence::Month;
        const bool sameDate = monthly ? event->monthlyThisDate : event->yearlyThisDate;
        if (monthly)
            setChecked(sameDate ? RadioMonthlyThisDate.key() : RadioMonthlyUser.key(), true);
        else
            setChecked(sameDate ? RadioYearlyThisDate.key() : RadioYearlyUser.key(), true);
        ChooseEntry(*this, ComboMonthlyNumber.key(), event->monthlyNumber);
        ChooseEntry(*this, ComboMonthlyDay.key(), event->monthlyDay);
        ChooseEntry(*this, ComboYearlyNumber.key(), event->yearlyNumber);
        ChooseEntry(*this, ComboYearlyDay.key(), event->yearlyDay);
    } else if (shared == Recurrence::Day) {
        for (std::size_t i = 0; i < kWeekdayBoxes.size(); ++i) setChecked(kWeekdayBoxes[i], event->weekdays[i]);
    }
    StoreEndDate = event->endDate;
    showEndDate(event->endOn ? StoreEndDate : ProposedEndDate(recurrence, StoreEventDate));
    showEndLine(event->endOn);
    type(TextBoxNotes.key(), event->notes);
}

void FrmEvent::Form_MouseDown(const std::string& controlKey) { picker_->windowPressed(controlKey); }

Date FrmEvent::pickerFieldDate(bool firstField) { return firstField ? StoreEventDate : shownEndDate_; }

void FrmEvent::pickerWroteDate(bool firstField, Date date) {
    markChanged();
    if (firstField) {
        StoreEventDate = date;
        ResetDays = true;
        ShowRecurrencePanel();
        return;
    }
    StoreEndDate = date;
    shownEndDate_ = date;
    showEndLine(true);
}

}  // namespace qh
