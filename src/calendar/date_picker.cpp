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
      platform_(platform),
      owner_(owner),
      startDayOfWeek_(std::move(startDayOfWeek)),
      first_(std::move(first)),
      second_(std::move(second)) {
    AddMonthCalendarControls(form, "", first_.left, first_.top);
    // The month arrows are pressed through labels lying over their pictures.
    form.add(ControlKind::Label, "LabelCalMonthDown", "picCalMonthDown", 0, 0, 180, 270).opaque = false;
    form.add(ControlKind::Label, "LabelCalMonthUp", "picCalMonthUp", 0, 0, 330, 270).opaque = false;
    Control& calendar = form.c("picCalendar");
    calendar.visible = calendar.enabled = false;
    form.bringToFront("picCalendar");
    form.add(ControlKind::Timer, "TimerCalendar", "", 0, 0, 0, 0).interval = kCloseGuardMs;
    form.add(ControlKind::Timer, "TimerButton", "", 0, 0, 0, 0).interval = kRepeatMs;

    auto onClick = [&form](const std::string& key, std::function<void()> action) {
        form.on(key, FormEvent::Click, [action](const EventArgs&) { action(); });
    };
    for (bool isFirst : {true, false}) {
        if (!isFirst && !second_) continue;
        const DateField& f = field(isFirst);
        onClick(f.textBox, [this, isFirst] { fieldPressed(isFirst); });
        if (!f.button.empty()) onClick(f.button, [this, isFirst] { fieldPressed(isFirst); });
    }
    for (int i = 0; i < 42; ++i) onClick("LabelCalDate(" + std::to_string(i) + ")", [this, i] {
        pick(cells_.CalendarDates[std::size_t(i)]);
    });
    onClick("LabelToday", [this] { pick(cells_.CalendarDates[kElementToday]); });
    onClick("LabelTomorrow", [this] { pick(cells_.CalendarDates[kElementTomorrow]); });
    for (bool forward : {true, false}) {
        const std::string label = forward ? "LabelCalMonthUp" : "LabelCalMonthDown";
        form.on(label, FormEvent::MouseDown, [this, forward](const EventArgs&) { arrowPressed(forward); });
        form.on(label, FormEvent::MouseUp, [this, forward](const EventArgs&) { arrowReleased(forward); });
    }
    form.on("TimerButton", FormEvent::Timer, [this](const EventArgs&) { tickRepeat(); });
    form.on("TimerCalendar", FormEvent::Timer, [this](const EventArgs&) {
        form_.c("TimerCalendar").enabled = false;
        CalendarOpen = false;
    });
    form.on("picCalendar", FormEvent::LostFocus, [this](const EventArgs&) {
        if (visible()) CloseCalendar();
    });
    form.c("picCalendar").focusable = true;
    form.on("picCalendar", FormEvent::KeyDown, [this](const EventArgs& args) { keyPressed(args.keyCode); });
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
        form_.c("TimerCalendar").enabled = false;
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

bool DatePicker::visible() const { return form_.c("picCalendar").visible; }

void DatePicker::fieldPressed(bool firstField) {
    if (CalendarOpen) return;
    PickFirstField = firstField;
    OpenCalendar();
}

void DatePicker::OpenCalendar() {
    const DateField& f = field(PickFirstField);
    Control& calendar = form_.c("picCalendar");
    calendar.left = f.left;
    calendar.top = f.top;
    PickerDate = owner_.pickerFieldDate(PickFirstField);
    build();
    calendar.visible = calendar.enabled = true;
    // Over everything, also over a frame the window brought to the front since.
    form_.bringToFront("picCalendar");
    form_.SetFocus("picCalendar");
    CalendarOpen = true;
}

void DatePicker::CloseCalendar() {
    Control& calendar = form_.c("picCalendar");
    calendar.visible = calendar.enabled = false;
    form_.c("TimerCalendar").enabled = true;
}

void DatePicker::reset() {
    CloseCalendar();
    ApplyDayHeaders(form_, startDayOfWeek_());
}

void DatePicker::windowPressed(const std::string& controlKey) {
    if (visible() && !form_.isInside(controlKey, "picCalendar")) CloseCalendar();
}

void DatePicker::build() {
    static const std::array<bool, 42> noMarks{};
    static const CalendarColors colors{};
    const Date today = platform_.clock.today();
    cells_ = BuildMonthCells(PickerDate, today, startDayOfWeek_(), noMarks, colors);
    PickerDate = cells_.selected;
    UpdateQuickDateButtons(form_, PickerDate, today);
    PaintMonthCells(form_, cells_,
                    platform_.locale.monthName(cells_.month) + " " + std::to_string(cells_.year));
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
    form_.c(forward ? "picCalMonthUp" : "picCalMonthDown").picture = forward ? "CalMonthRightDown" : "CalMonthLeftDown";
    CalButtonUp = false;
    CalButtonForward = forward;
    CalButtonMonth = true;
    PickerDate = cells_.CalendarDates[forward ? kElementMonthOn : kElementMonthBack];
    build();
    Control& timer = form_.c("TimerButton");
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
    form_.c("TimerButton").enabled = false;
    form_.c(forward ? "picCalMonthUp" : "picCalMonthDown").picture = forward ? "CalMonthRightUp" : "CalMonthLeftUp";
}

}  // namespace qh
