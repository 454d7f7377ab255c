#pragma once
// frmEvent: one event made, changed or deleted, with the recurrence panel that is the only
// source of its rule. The event procedures fill the public fields, show the window modal
// and, after it hides, read its outcome, the form's dates and its controls into the
// event columns.
//
// The window has two heights: small shows the event alone, large adds the recurrence
// panel below it (the four recurrence radios, the frame of the chosen one in front, and
// the visible end-date line).
#include <array>
#include <memory>
#include <string>

#include "calendar/date_picker.h"
#include "editors/editor_form.h"
#include "platform/control_ref.h"
#include "platform/platform.h"
#include "record_store/columns.h"
#include "recurrence/event_rule.h"

namespace qh {

class EditorHost;

class FrmEvent : public EditorForm, public DatePickerOwner, public HasDatePicker {
public:
    static constexpr int kOuterWidth = 6330, kSmallHeight = 4305, kLargeHeight = 6645;

    FrmEvent(Platform& platform, EditorHost& host);
    ~FrmEvent() override;

    // Set by the caller before the showing; for an edit also the record as its columns
    // hold it (record number and ID unused).
    bool FormSmall = true;
    EventBuffer tempEvent;
    // Where the share dialogs start.
    std::string DocumentDirectory;

    // The form's state; the caller reads the two dates and the recurrence after a save.
    Date StoreEventDate = 0, StoreEndDate = 0;
    Recurrence recurrence = Recurrence::None;
    bool ResetDays = true;

    void Form_Load() override;
    void Form_MouseDown(const std::string& controlKey) override;

    // Sets the panel of the recurrence to the defaults of StoreEventDate and proposes the
    // end date that kind of repetition starts with.
    void ShowRecurrencePanel();
    void cancel() override;
    // Monday first, the weekday boxes as "T" and "F" letters.
    std::string weekdayLetters() const;

    Date pickerFieldDate(bool firstField) override;
    void pickerWroteDate(bool firstField, Date date) override;
    DatePicker& datePicker() override { return *picker_; }

    ControlRef TextBoxEvent{this, "TextBoxEvent"};
    ControlRef ComboType{this, "ComboType"};
    ControlRef TextboxEventDate{this, "TextboxEventDate"};
    ControlRef LabelDate{this, "LabelDate"};
    ControlRef ComboTime{this, "ComboTime"};
    ControlRef ComboRemindMe{this, "ComboRemindMe"};
    ControlRef TextBoxNotes{this, "TextBoxNotes"};
    ControlRef LabelViewRecurring{this, "LabelViewRecurring"};
    ControlRef RadioRepeatNone{this, "RadioRepeatNone"};
    ControlRef RadioRepeatDaily{this, "RadioRepeatDaily"};
    ControlRef RadioRepeatMonthly{this, "RadioRepeatMonthly"};
    ControlRef RadioRepeatYearly{this, "RadioRepeatYearly"};
    ControlRef RadioMonthlyThisDate{this, "RadioMonthlyThisDate"};
    ControlRef RadioMonthlyUser{this, "RadioMonthlyUser"};
    ControlRef ComboMonthlyNumber{this, "ComboMonthlyNumber"};
    ControlRef ComboMonthlyDay{this, "ComboMonthlyDay"};
    ControlRef RadioYearlyThisDate{this, "RadioYearlyThisDate"};
    ControlRef RadioYearlyUser{this, "RadioYearlyUser"};
    ControlRef ComboYearlyNumber{this, "ComboYearlyNumber"};
    ControlRef ComboYearlyDay{this, "ComboYearlyDay"};
    ControlRef LabelRepeatMonth{this, "LabelRepeatMonth"};
    ControlRef RadioEndNone{this, "RadioEndNone"};
    ControlRef RadioEndOn{this, "RadioEndOn"};
    ControlRef CheckboxEndDate{this, "CheckboxEndDate"};
    ControlRef LabelEndDate{this, "LabelEndDate"};
    ControlRef TextboxEndDate{this, "TextboxEndDate"};
    ControlRef ButtonOK{this, "ButtonOK"};
    ControlRef ButtonCancel{this, "ButtonCancel"};
    ControlRef ButtonDelete{this, "ButtonDelete"};
    ControlRef ButtonShare{this, "ButtonShare"};

    // The radio that chooses a recurrence (Day: RadioRepeatDaily); RadioRepeatNone for
    // Other.
    static std::string RecurrenceRadio(Recurrence recurrence);
    // CheckBoxMonday .. CheckBoxSunday.
    static const std::array<const char*, 7> kWeekdayBoxes;

private:
    void buildControls();
    void buildRecurrencePanel();
    void bindHandlers();
    void bindRecurrenceHandlers();
    void showRecord() override;
    void beforeHide() override { showSize(true); }
    void fillForNew();
    void fillForEdit();
    void showSize(bool small);
    // Sets a box or radio from code without its click's consequences.
    void setQuietly(const std::string& key, bool checked);
    // The recurrence radio's frame in front, `recurrence` and the date's label; Other
    // shows as None.
    void showRecurrence(Recurrence shown);
    // The end-date line on (the end date counts) or off, with the date it shows.
    void showEndLine(bool on);
    void showEndDate(Date date);
    void ButtonOK_Click();
    void ButtonDelete_Click();
    void ButtonShare_Click();
    void shareOut();
    void shareIn();

    Platform& platform_;
    EditorHost& host_;
    std::unique_ptr<DatePicker> picker_;
    // The date TextboxEndDate shows. It differs from StoreEndDate only while an edited
    // event without an end shows its proposal; switching the end on adopts it.
    Date shownEndDate_ = 0;
    bool quiet_ = false;
};

}  // namespace qh
