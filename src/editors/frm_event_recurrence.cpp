// The recurrence panel of frmEvent: its controls, the radios that choose a frame, the
// defaults a date gives the rule, and the end-date line.
#include "editors/editor_controls.h"
#include "editors/frm_event.h"
#include "editors/recurrence_panel_defaults.h"

namespace qh {
namespace {

// The panel starts below the small window's client area (4305 - 510 twips), so no edge of
// it shows until the window grows.
constexpr int kPanelLeft = 1560, kPanelTop = 3840, kPanelWidth = 4530, kPanelHeight = 1560;

struct RecurrenceChoice {
    const char* radio;
    const char* frame;
    Recurrence recurrence;
    const char* caption;
};
constexpr RecurrenceChoice kChoices[] = {{"RadioRepeatNone", "FrameNone", Recurrence::None, "None"},
                                         {"RadioRepeatDaily", "FrameDaily", Recurrence::Day, "Daily"},
                                         {"RadioRepeatMonthly", "FrameMonthly", Recurrence::Month, "Monthly"},
                                         {"RadioRepeatYearly", "FrameYearly", Recurrence::Year, "Yearly"}};

const RecurrenceChoice& choiceFor(Recurrence recurrence) {
    for (const RecurrenceChoice& choice : kChoices)
        if (recurrence == choice.recurrence) return choice;
    return kChoices[0];
}

}  // namespace

const std::array<const char*, 7> FrmEvent::kWeekdayBoxes = {"CheckBoxMonday",   "CheckBoxTuesday", "CheckBoxWednesday",
                                                            "CheckBoxThursday", "CheckBoxFriday",  "CheckBoxSaturday",
                                                            "CheckBoxSunday"};

std::string FrmEvent::RecurrenceRadio(Recurrence recurrence) { return choiceFor(recurrence).radio; }

void FrmEvent::buildRecurrencePanel() {
    const auto onFace = [](Control& control) -> Control& {
        control.backColor = kButtonFace;
        return control;
    };
    onFace(add(ControlKind::Label, "LabelRecurrence", "", 240, 3900, 1200, 255)).caption = "Recurrence:";
    int top = 4200;
    for (const RecurrenceChoice& choice : kChoices) {
        onFace(add(ControlKind::RadioButton, choice.radio, "", 240, top, 1200, 255)).caption = choice.caption;
        onFace(add(ControlKind::Frame, choice.frame, "", kPanelLeft, kPanelTop, kPanelWidth, kPanelHeight));
        top += 300;
    }
    static constexpr const char* kWeekdayCaptions[] = {"Monday", "Tuesday",  "Wednesday", "Thursday",
                                                       "Friday", "Saturday", "Sunday"};
    for (int i = 0; i < 7; ++i)
        onFace(add(ControlKind::CheckBox, kWeekdayBoxes[std::size_t(i)], "FrameDaily", 120 + 1440 * (i % 3),
                   300 + 360 * (i / 3), 1400, 255))
            .caption = kWeekdayCaptions[i];
    for (const auto& [frame, period, label, text] :
         {std::tuple{"FrameMonthly", "Monthly", "LabelRepeat", "of Every Month"},
          {"FrameYearly", "Yearly", "LabelRepeatMonth", "of Every January"}}) {
        const std::string name = period;
        onFace(add(ControlKind::RadioButton, "Radio" + name + "ThisDate", frame, 120, 300, 3600, 255)).caption =
            "This Date Every " + std::string(name == "Monthly" ? "Month" : "Year");
        // The rule's line reads as one sentence on screen; a screen reader gets each part's role.
        onFace(add(ControlKind::RadioButton, "Radio" + name + "User", frame, 120, 810, 270, 255)).accessibleName =
            "By rule";
        Control& number = add(ControlKind::ComboBox, "Combo" + name + "Number", frame, 420, 780, 1020, 315);
        number.accessibleName = "Which";
        for (const std::string_view entry : kRepeatNumberChoices) number.addItem(std::string(entry));
        Control& day = add(ControlKind::ComboBox, "Combo" + name + "Day", frame, 1500, 780, 1260, 315);
        day.accessibleName = "Day";
        for (const std::string_view entry : kRepeatDayChoices) day.addItem(std::string(entry));
        Control& tail = add(ControlKind::Label, label, frame, 2820, 810, 1620, 255);
        tail.caption = text;
        tail.opaque = false;
    }

    Control& endFrame = onFace(add(ControlKind::Frame, "FrameEndDate", "", 3840, 5520, 2250, 600));
    endFrame.visible = false;
    onFace(add(ControlKind::RadioButton, "RadioEndNone", "FrameEndDate", 60, 60, 1800, 255)).caption = "No End";
    onFace(add(ControlKind::RadioButton, "RadioEndOn", "FrameEndDate", 60, 330, 1800, 255)).caption = "Set End Date";
    onFace(add(ControlKind::Label, "LabelEndDate", "", 600, 5520, 2700, 255)).caption = "No End Date";
    onFace(add(ControlKind::CheckBox, "CheckboxEndDate", "", 240, 5805, 285, 285)).accessibleName = "Set End Date";
    Control& end = add(ControlKind::TextBox, "TextboxEndDate", "", 600, 5790, 2700, 315);
    end.locked = true;
    end.border = true;
    Control& pick = add(ControlKind::CommandButton, "picButtonEndDate", "", 3300, 5790, 300, 315);
    pick.caption = "...";
}

void FrmEvent::bindRecurrenceHandlers() {
    for (const RecurrenceChoice& choice : kChoices) {
        const std::string radio = choice.radio;
        const Recurrence chosen = choice.recurrence;
        on(radio, FormEvent::Click, [this, radio, chosen](const EventArgs&) {
            if (quiet_ || !c(radio).checked) return;
            showRecurrence(chosen);
            if (chosen == Recurrence::None)
                showEndLine(false);
            else
                ShowRecurrencePanel();
            markChanged();
        });
    }
    on(CheckboxEndDate.key(), FormEvent::Click, [this](const EventArgs&) {
        if (quiet_) return;
        // Switched on, the date the line shows is the end date, the proposal included.
        if (CheckboxEndDate->checked) StoreEndDate = shownEndDate_;
        showEndLine(CheckboxEndDate->checked);
        markChanged();
    });
}

void FrmEvent::showRecurrence(Recurrence shown) {
    const RecurrenceChoice& choice = choiceFor(shown);
    recurrence = choice.recurrence;
    setQuietly(choice.radio, true);
    bringToFront(choice.frame);
    LabelDate->caption = recurrence == Recurrence::None ? "Date" : "Start Date";
}

void FrmEvent::showEndLine(bool on) {
    LabelEndDate->caption = on ? "End Date" : "No End Date";
    setQuietly(CheckboxEndDate.key(), on);
    TextboxEndDate->foreColor = on ? kBlack : kInactiveDateColor;
    setQuietly(on ? RadioEndOn.key() : RadioEndNone.key(), true);
}

void FrmEvent::showEndDate(Date date) {
    shownEndDate_ = date;
    TextboxEndDate->text = platform_.locale.longDate(date);
}

void FrmEvent::ShowRecurrencePanel() {
    if (recurrence == Recurrence::None) {
        showEndLine(false);
        return;
    }
    if (recurrence == Recurrence::Day && ResetDays) {
        const std::array<bool, 7> boxes = WeekdayBoxesFor(StoreEventDate);
        for (std::size_t i = 0; i < boxes.size(); ++i) setQuietly(kWeekdayBoxes[i], boxes[i]);
        ResetDays = false;
    }
    if (recurrence == Recurrence::Month || recurrence == Recurrence::Year) {
        const bool monthly = recurrence == Recurrence::Month;
        const RepeatOrdinal ordinal = RepeatOrdinalFor(StoreEventDate);
        ShowEntry(monthly ? *ComboMonthlyNumber : *ComboYearlyNumber, std::string(ordinal.number));
        ShowEntry(monthly ? *ComboMonthlyDay : *ComboYearlyDay, std::string(ordinal.day));
        setQuietly(monthly ? RadioMonthlyThisDate.key() : RadioYearlyThisDate.key(), true);
        if (!monthly) LabelRepeatMonth->caption = "of Every " + platform_.locale.monthName(monthOf(StoreEventDate));
    }
    StoreEndDate = ProposedEndDate(recurrence, StoreEventDate);
    showEndDate(StoreEndDate);
    showEndLine(EndDateStartsOn(recurrence));
}

std::string FrmEvent::weekdayLetters() const {
    std::string letters;
    for (const char* box : kWeekdayBoxes) letters += c(box).checked ? 'T' : 'F';
    return letters;
}

}  // namespace qh
