#include "calendar/date_picker.h"

#include "calendar/calendar_binder.h"
#include "calendar/calendar_keys.h"

namespace qh {
namespace {

constexpr int kCloseGuardMs = 100;
constexpr int kRepeatMs = 300;

}  // namespace

DatePicker::DatePicker(Form& form, Platform& platform, DatePickerOwner& owner,
                       std::function<std::string()> startDayOfWeek, DateField first, std::optional<DateField> second)
    : form_(form),
      calendar_(&form),
      LabelCalMonthDown(&form, "LabelCalMonthDown"),
      LabelCalMonthUp(&form, "LabelCalMonthUp"),
      TimerCalendar(&form, "TimerCalendar"),
      TimerButton(&form, "TimerButton"),
      platform_(platform),
      owner_(owner),
      startDayOfWeek_(std::move(startDayOfWeek)),
      first_(std::move(first)),
      second_(std::move(second)) {
    Control& calendar = AddMonthCalendarControls(calendar_, "", first_.left, first_.top);
    // The month arrows are pressed through labels lying over their pictures.
    form.add(ControlKind::Label, LabelCalMonthDown.key(), calendar_.picCalMonthDown.key(), 0, 0, 180, 270).opaque =
        false;
    form.add(ControlKind::Label, LabelCalMonthUp.key(), calendar_.picCalMonthUp.key(), 0, 0, 330, 270).opaque = false;
    calendar.visible = calendar.enabled = false;
    form.bringToFront(calendar_.picCalendar.key());
    form.add(ControlKind::Timer, TimerCalendar.key(), "", 0, 0, 0, 0).interval = kCloseGuardMs;
    form.add(ControlKind::Timer, TimerButton.key(), "", 0, 0, 0, 0).interval = kRepeatMs;

    auto onClick = [&form](const std::string& key, std::function<void()> action) {
        form.on(key, FormEvent::Click, [action](const EventArgs&) { action(); });
    };
    for (bool isFirst : {true, false}) {
        if (!isFirst && !second_) continue;
        const DateField& f = field(isFirst);
        onClick(f.textBox, [this, isFirst] { fieldPressed(isFirst); });
        if (!f.button.empty()) onClick(f.button, [this, isFirst] { fieldPressed(isFirst); });
    }
    for (int i = 0; i < 42; ++i)
        onClick(calendar_.LabelCalDate.key(i), [this, i] { pick(cells_.CalendarDates[std::size_t(i)]); });
    onClick(calendar_.LabelToday.key(), [this] { pick(cells_.CalendarDates[kElementToday]); });
    onClick(calendar_.LabelTomorrow.key(), [this] { pick(cells_.CalendarDates[kElementTomorrow]); });
    for (bool forward : {true, false}) {
        const std::string& label = (forward ? LabelCalMonthUp : LabelCalMonthDown).key();
        form.on(label, FormEvent::MouseDown, [this, forward](const EventArgs&) { arrowPressed(forward); });
        form.on(label, FormEvent::MouseUp, [this, forward](const EventArgs&) { arrowReleased(forward); });
    }
    form.on(TimerButton.key(), FormEvent::Timer, [this](const EventArgs&) { tickRepeat(); });
    form.on(TimerCalendar.key(), FormEvent::Timer, [this](const EventArgs&) {
        TimerCalendar->enabled = false;
        CalendarOpen = false;
    });
    form.on(calendar_.picCalendar.key(), FormEvent::LostFocus, [this](const EventArgs&) {
        if (visible()) CloseCalendar();
    });
    calendar.focusable = true;
    form.on(calendar_.picCalendar.key(), FormEvent::KeyDown,
            [this](const EventArgs& args) { keyPressed(args.keyCode); });
}

void DatePicker::keyPressed(int keyCode) {
    if (!visible()) return;
    if (keyCode == kKeyReturn || keyCode == kKeyEscape || keyCode == ' ') {
        if (keyCode == kKeyEscape) {
            CloseCalendar();
            returnFocus();
        } else {
            pick(PickerDate);
        }
        // No click closed it, so none needs keeping from opening it again.
        TimerCalendar->enabled = false;
        CalendarOpen = false;
    } else if (const auto date = CalendarKeyTarget(cells_.CalendarDates, PickerDate, keyCode)) {
        PickerDate = *date;
        build();
    }
}

void DatePicker::returnFocus() {
    const DateField& f = field(PickFirstField);
    form_.SetFocus(f.button.empty() ? f.textBox : f.button);
}

bool DatePicker::visible() const { return calendar_.picCalendar->visible; }

void DatePicker::fieldPressed(bool firstField) {
    if (CalendarOpen) return;
    PickFirstField = firstField;
    OpenCalendar();
}

void DatePicker::OpenCalendar() {
    const DateField& f = field(PickFirstField);
    Control& calendar = *calendar_.picCalendar;
    calendar.left = f.left;
    calendar.top = f.top;
    PickerDate = owner_.pickerFieldDate(PickFirstField);
    build();
    calendar.visible = calendar.enabled = true;
    // Over everything, also over a frame the window brought to the front since.
    form_.bringToFront(calendar_.picCalendar.key());
    form_.SetFocus(calendar_.picCalendar.key());
    CalendarOpen = true;
}

void DatePicker::CloseCalendar() {
    Control& calendar = *calendar_.picCalendar;
    calendar.visible = calendar.enabled = false;
    TimerCalendar->enabled = true;
}

void DatePicker::reset() {
    CloseCalendar();
    ApplyDayHeaders(calendar_, startDayOfWeek_());
}

void DatePicker::windowPressed(const std::string& controlKey) {
    if (visible() && !form_.isInside(controlKey, calendar_.picCalendar.key())) CloseCalendar();
}

void DatePicker::build() {
    static const std::array<bool, 42> noMarks{};
    static const CalendarColors colors{};
    const Date today = platform_.clock.today();
    cells_ = BuildMonthCells(PickerDate, today, startDayOfWeek_(), noMarks, colors);
    PickerDate = cells_.selected;
    UpdateQuickDateButtons(calendar_, PickerDate, today);
    PaintMonthCells(calendar_, cells_, platform_.locale.monthName(cells_.month) + " " + std::to_string(cells_.year));
}

void DatePicker::pick(Date date) {
    PickerDate = date;
    build();
    const bool isFirst = PickFirstField;
    form_.c(field(isFirst).textBox).text = platform_.locale.longDate(PickerDate);
    owner_.pickerWroteDate(isFirst, PickerDate);
    CloseCalendar();
    returnFocus();
}

void DatePicker::arrowPressed(bool forward) {
    const CalendarArrow& arrow = forward ? kMonthOnArrow : kMonthBackArrow;
    (forward ? calendar_.picCalMonthUp : calendar_.picCalMonthDown)->picture = arrow.pressedPicture;
    CalButtonUp = false;
    CalButtonForward = forward;
    CalButtonMonth = true;
    PickerDate = cells_.CalendarDates[std::size_t(arrow.element)];
    build();
    Control& timer = *TimerButton;
    timer.interval = kRepeatMs;
    timer.enabled = true;
}

void DatePicker::tickRepeat() {
    if (CalButtonUp) return;
    PickerDate = cells_.CalendarDates[std::size_t(RepeatElement(CalButtonForward, CalButtonMonth))];
    build();
}

void DatePicker::arrowReleased(bool forward) {
    CalButtonUp = true;
    TimerButton->enabled = false;
    (forward ? calendar_.picCalMonthUp : calendar_.picCalMonthDown)->picture =
        (forward ? kMonthOnArrow : kMonthBackArrow).raisedPicture;
}

}  // namespace qh
