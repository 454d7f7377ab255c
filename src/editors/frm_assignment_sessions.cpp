// The lower half of frmAssignment: the study sessions of the assignment, edited in memory
// only, their sums, and the Done box that closes them.
#include "common/day_number.h"
#include "editors/editor_checks.h"
#include "editors/frm_assignment.h"
#include "editors/study_session_math.h"
#include "record_store/color_vocabulary.h"

namespace qh {

void FrmAssignment::buildSessionControls() {
    const auto label = [this](const std::string& name, int left, int top, int width, const std::string& text) {
        Control& control = add(ControlKind::Label, name, "", left, top, width, 255);
        control.caption = text;
        control.backColor = kButtonFace;
    };
    const auto box = [this](const std::string& name, int left, int top, int width) -> Control& {
        Control& control = add(ControlKind::TextBox, name, "", left, top, width, 315);
        control.locked = control.border = true;
        return control;
    };
    label("LabelStudySessions", 120, 4200, 2400, "Study Sessions: 00");
    c("LabelStudySessions").bold = true;
    label("Label11", 120, 4500, 1200, "Study Time");
    add(ControlKind::ComboBox, "ComboSessionLength", "", 120, 4740, 1200, 315);
    label("Label12", 1440, 4500, 2400, "Study Date");
    box("TextboxSessionDate", 1440, 4740, 2880);
    Control& dateButton = add(ControlKind::CommandButton, "picButtonSessionDate", "", 4320, 4740, 300, 315);
    dateButton.caption = "...";
    add(ControlKind::CommandButton, "ButtonSessionAdd", "", 4740, 4710, 660, 375).caption = "Add";
    add(ControlKind::CommandButton, "ButtonSessionDelete", "", 5460, 4710, 660, 375).caption = "Delete";
    label("Label13", 120, 5160, 2400, "Study Sessions");
    Control& list = add(ControlKind::ListBox, "ListBoxStudySessions", "", 120, 5400, 3960, 1380);
    list.border = true;
    label("Label6", 4260, 5400, 1860, "Total Study Time:");
    box("TextBoxTotalTime", 4260, 5640, 1200);
    label("Label7", 4260, 6000, 1860, "Time Left:");
    box("TextBoxTimeLeft", 4260, 6240, 1200);

    const struct {
        const char* key;
        int id;
    } helpNumbers[] = {{"ButtonSessionAdd", 204},     {"ButtonSessionDelete", 205},  {"ComboSessionLength", 213},
                       {"TextboxSessionDate", 217},   {"picButtonSessionDate", 217}, {"ListBoxStudySessions", 230},
                       {"TextBoxTimeLeft", 233},      {"TextBoxTotalTime", 234}};
    for (const auto& [key, id] : helpNumbers) c(key).helpContextId = id;
}

void FrmAssignment::bindSessionHandlers() {
    on("ButtonSessionAdd", FormEvent::Click, [this](const EventArgs&) { ButtonSessionAdd_Click(); });
    on("ButtonSessionDelete", FormEvent::Click, [this](const EventArgs&) { ButtonSessionDelete_Click(); });
    on("CheckBoxDone", FormEvent::Click, [this](const EventArgs&) { CheckBoxDone_Click(); });
    on("ListBoxStudySessions", FormEvent::Click,
       [this](const EventArgs&) { ButtonSessionDelete->enabled = ListBoxStudySessions->listIndex >= 0; });
    for (const char* span : {"ComboEstTime", "ComboSessionLength"}) {
        on(span, FormEvent::Click, [this](const EventArgs&) { RecalculateSessions(); });
        on(span, FormEvent::Change, [this](const EventArgs&) { RecalculateSessions(); });
    }
}

void FrmAssignment::AddStudySession() {
    if (const auto refusal = AddStudySessionRefusal(false, tempStudySessionRecordNoArray.count())) {
        tell(refusal->message);
        return;
    }
    // Row 1 is the newest: a session goes in before all the others.
    const auto atTop = [](TextColumn& list, std::string value) {
        list.values().insert(list.values().begin(), std::move(value));
    };
    atTop(tempStudySessionRecordNoArray, "0");
    atTop(tempStudySessionLinkIDArray, "0");
    atTop(tempStudySessionLengthArray, ComboSessionLength->text);
    atTop(tempStudySessionDateArray, dateText(SessionDate));
    ListBoxStudySessions->addItem(
        StudySessionLine(ComboSessionLength->text, dateText(SessionDate), platform_.locale), 0);
}

void FrmAssignment::ButtonSessionAdd_Click() {
    if (const auto refusal = DeleteStudySessionRefusal(CheckBoxDone->checked)) {
        tell(refusal->message);
        return;
    }
    AddStudySession();
    RecalculateSessions();
}

void FrmAssignment::ButtonSessionDelete_Click() {
    if (const auto refusal = DeleteStudySessionRefusal(CheckBoxDone->checked)) {
        tell(refusal->message);
        return;
    }
    const int line = ListBoxStudySessions->listIndex;
    if (ListBoxStudySessions->items.empty() || line < 0) return;
    if (!ask("Are you sure you want to Delete this Study Session?")) return;
    for (TextColumn* list : {&tempStudySessionRecordNoArray, &tempStudySessionLinkIDArray,
                             &tempStudySessionLengthArray, &tempStudySessionDateArray})
        list->removeAt(line + 1);
    ListBoxStudySessions->removeItem(line);
    ButtonSessionDelete->enabled = false;
    SetFocus(ButtonSessionAdd.key());
    RecalculateSessions();
}

void FrmAssignment::CheckBoxDone_Click() {
    const bool done = CheckBoxDone->checked;
    if (const auto refusal = DoneCheckRefusal(done, tempStudySessionRecordNoArray.count())) {
        CheckBoxDone->checked = false;
        tell(refusal->message);
        return;
    }
    showDone(done);
    RecalculateSessions();
}

void FrmAssignment::RecalculateSessions() {
    markChanged();
    const StudySessionSummary summary =
        qh::RecalculateSessions(tempStudySessionLengthArray, ComboEstTime->text, CheckBoxDone->checked);
    LabelStudySessions->caption = summary.caption;
    TextBoxTotalTime->text = summary.totalTime;
    TextBoxTimeLeft->text = summary.timeLeft;
    TextBoxTimeLeft->backColor = standardColors().ColorValues(std::string(summary.timeLeftBack));
    estimateUsedUp = summary.estimateUsedUp;
}

}  // namespace qh
