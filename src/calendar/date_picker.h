#pragma once
// The pop-up date picker of an editor window: the month calendar in a smaller role, over
// the window, opened from a date field (a read-only text box, or its small button). One
// click on a day writes the date to the field and closes it. Each editor owns one, made
// with the places of its one or two fields.
//
// The owner forwards its Form_MouseDown to windowPressed() and calls reset() from its
// Form_Activate. The picker closes on a pick, when it loses the focus, and on a press
// elsewhere in the window. While open it has the keys: the arrows move the day, Page Up
// and Page Down the month, Home goes to today, Enter or Space picks and Escape closes
// it alone, the focus going back to its field. TimerCalendar (100 ms) keeps the click
// that closed it from opening it again.
#include <functional>
#include <optional>
#include <string>

#include "calendar/month_calendar_controls.h"
#include "calendar/month_cells.h"
#include "platform/platform.h"

namespace qh {

// What the picker needs of its window.
class DatePickerOwner {
public:
    virtual ~DatePickerOwner() = default;
    // The date in the field's variable, to open on.
    virtual Date pickerFieldDate(bool firstField) = 0;
    // A date was picked: count it as a change and set the field's variable (the picker has written
    // the text box in the long date form), and whatever else the window does then.
    virtual void pickerWroteDate(bool firstField, Date date) = 0;
};

// A date field: its text box, its button (empty for none) and where picCalendar opens.
struct DateField {
    std::string textBox;
    std::string button;
    int left = 0, top = 0;
};

class DatePicker {
public:
    // Adds picCalendar (hidden) with its controls, TimerCalendar and TimerButton to the
    // window and hangs the handlers on them and on the fields. Call before bindControls.
    DatePicker(Form& form, Platform& platform, DatePickerOwner& owner, std::function<std::string()> startDayOfWeek,
               DateField first, std::optional<DateField> second = {});

    // A date field or its button was pressed.
    void fieldPressed(bool firstField);
    void OpenCalendar();
    void CloseCalendar();
    // Closed, and the headers laid out for the current first day of the week.
    void reset();
    // Form_MouseDown of the window: a press outside the open calendar closes it.
    void windowPressed(const std::string& controlKey);

    bool visible() const;
    Date PickerDate = 0;
    bool CalendarOpen = false;
    bool PickFirstField = true;
    bool CalButtonUp = false, CalButtonForward = false, CalButtonMonth = false;
    const MonthCells& cells() const { return cells_; }

private:
    void build();
    void pick(Date date);
    void keyPressed(int keyCode);
    void returnFocus();
    void arrowPressed(bool forward);
    void arrowReleased(bool forward);
    void tickRepeat();
    const DateField& field(bool firstField) const { return firstField || !second_ ? first_ : *second_; }

    Form& form_;
    MonthCalendarControls calendar_;
    // The labels that take the presses on the month arrows, and the two timers.
    ControlRef LabelCalMonthDown, LabelCalMonthUp, TimerCalendar, TimerButton;
    Platform& platform_;
    DatePickerOwner& owner_;
    std::function<std::string()> startDayOfWeek_;
    DateField first_;
    std::optional<DateField> second_;
    MonthCells cells_;
};

// A window that owns a picker; the probe steps it to a date.
class HasDatePicker {
public:
    virtual ~HasDatePicker() = default;
    virtual DatePicker& datePicker() = 0;
};

}  // namespace qh
