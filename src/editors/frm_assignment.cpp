#include "editors/frm_assignment.h"

#include "common/flag_text.h"
#include "common/text.h"
#include "editors/editor_checks.h"
#include "editors/editor_controls.h"
#include "editors/editor_host.h"
#include "editors/feed_origin.h"
#include "editors/shared_file_transfer.h"
#include "editors/study_session_math.h"
#include "record_store/color_vocabulary.h"
#include "record_store/columns.h"

namespace qh {
namespace {

const char* const kTypes[] = {"Assignment", "Test", "Quiz", "Reading", "Study", "Report", "Project"};
const char* const kDifficulties[] = {"Easy", "Average", "Hard"};
const char* const kGrades[] = {" ", "A", "A-", "B+", "B", "B-", "C+", "C", "C-", "D+", "D", "D-", "E+", "E"};
constexpr const char* kDefaultWeight = "5";
constexpr const char* kDefaultSpan = "00 : 30";

// Spans "hh : mm" from "00 : 05" to `lastHour` : 55 in steps of five minutes, then
// `lastHour` + 1 : 00; "00 : 00" is no span to choose.
void addSpans(Control& combo, int lastHour) {
    for (int hour = 0; hour <= lastHour; ++hour)
        for (int minute = 0; minute < 60; minute += 5)
            if (hour > 0 || minute > 0) combo.addItem(twoDigits(hour) + " : " + twoDigits(minute));
    combo.addItem(twoDigits(lastHour + 1) + " : 00");
}

// A stored weight shows as its number when it is a whole number from 1 to 100.
std::string weightShown(const std::string& stored) {
    const auto weight = parseInt16(stored);
    return weight && *weight >= 1 && *weight <= 100 ? std::to_string(*weight) : kDefaultWeight;
}

}  // namespace

FrmAssignment::FrmAssignment(Platform& platform, EditorHost& host)
    : EditorForm("frmAssignment", platform.messages), platform_(platform), host_(host) {
    setCanvasFactory(&platform.canvases);
    buildControls();
    buildSessionControls();
    picker_ = std::make_unique<DatePicker>(*this, platform, *this, [&host] { return host.startDayOfWeek(); },
                                           DateField{"TextboxDateDue", "picButtonDateDue", 3120, 675},
                                           DateField{"TextboxSessionDate", "picButtonSessionDate", 1440, 2220});
    bindControls();
    bindHandlers();
    bindSessionHandlers();
}

FrmAssignment::~FrmAssignment() = default;

void FrmAssignment::buildControls() {
    caption = "Quillhollow - New Assignment";
    fixedSize = true;
    setOuterSize(kAssignmentWidth, kAssignmentSmallHeight);
    const auto label = [this](const std::string& name, int left, int top, int width, const std::string& text) {
        Control& control = add(ControlKind::Label, name, "", left, top, width, 255);
        control.caption = text;
        control.backColor = kButtonFace;
    };
    const auto combo = [this](const std::string& name, int left, int top, int width) {
        add(ControlKind::ComboBox, name, "", left, top, width, 315);
    };
    const auto button = [this](const std::string& name, int left, int top, int width, const std::string& text) {
        add(ControlKind::CommandButton, name, "", left, top, width, 375).caption = text;
    };
    label("LabelClass", 120, 120, 2880, "Classes");
    combo("ComboClassNameList", 120, 360, 2880);
    label("LabelDue", 3120, 120, 2400, "Due Date");
    Control& due = add(ControlKind::TextBox, "TextboxDateDue", "", 3120, 360, 2700, 315);
    due.locked = due.border = true;
    Control& dueButton = add(ControlKind::CommandButton, "picButtonDateDue", "", 5820, 360, 300, 315);
    dueButton.caption = "...";
    Control& help = add(ControlKind::PictureBox, "picHelp", "", 5805, 60, 315, 240);
    help.picture = "Help";
    help.tabStop = false;
    help.accessibleName = "What's This?";

    label("LabelType", 120, 780, 1440, "Type");
    combo("ComboTypeList", 120, 1020, 1440);
    label("LabelDifficulty", 1680, 780, 1320, "Difficulty");
    combo("ComboDifficulty", 1680, 1020, 1320);
    label("LabelET", 3120, 780, 1320, "Estimated Time");
    combo("ComboEstTime", 3120, 1020, 1320);
    label("LabelRemind", 4560, 780, 1560, "Advance Notice");
    combo("ComboRemindMe", 4560, 1020, 1560);

    label("LabelDescription", 120, 1440, 3000, "Description");
    AddFeedOriginLabel(*this, 3120, 1440, 3000);
    add(ControlKind::TextBox, "TextBoxDescription", "", 120, 1680, 6000, 315).border = true;
    label("LabelNotes", 120, 2100, 3000, "Notes");
    Control& notes = add(ControlKind::TextBox, "TextBoxNotes", "", 120, 2340, 4200, 1140);
    notes.multiLine = notes.border = true;
    label("Label8", 4440, 2100, 780, "Grade");
    combo("ComboGrade", 4440, 2340, 780);
    label("Label9", 5340, 2100, 780, "Percent");
    combo("ComboWeight", 5340, 2340, 780);
    add(ControlKind::Label, "LabelDoneBG", "", 4440, 2820, 1680, 420);
    Control& done = add(ControlKind::CheckBox, "CheckBoxDone", "", 4560, 2895, 1440, 270);
    done.caption = "Done";
    done.foreColor = kWhite;

    button("ButtonShare", 120, 3600, 960, "Share");
    Control& view = add(ControlKind::Label, "LabelViewSessions", "", 1200, 3660, 1920, 255);
    view.caption = "Show Study Sessions";
    view.backColor = kButtonFace;
    view.foreColor = standardColors().ColorValues("Blue");
    view.underline = true;
    view.focusable = true;
    button("ButtonOK", 3240, 3600, 900, "OK");
    button("ButtonCancel", 4200, 3600, 900, "Cancel");
    button("ButtonDelete", 5160, 3600, 960, "Delete");
    defaultButton = "ButtonOK";
    cancelButton = "ButtonCancel";

    const struct {
        const char* key;
        int id;
    } helpNumbers[] = {{"ButtonCancel", 201},       {"ButtonDelete", 202},       {"ButtonOK", 203},
                       {"ButtonShare", 206},        {"CheckBoxDone", 207},       {"ComboClassNameList", 208},
                       {"ComboDifficulty", 209},    {"ComboEstTime", 210},       {"ComboGrade", 211},
                       {"ComboRemindMe", 212},      {"ComboTypeList", 214},      {"ComboWeight", 215},
                       {"TextboxDateDue", 216},     {"picButtonDateDue", 216},   {"picHelp", 218},
                       {"TextBoxDescription", 231}, {"TextBoxNotes", 232}};
    for (const auto& [key, id] : helpNumbers) c(key).helpContextId = id;
}

void FrmAssignment::Form_Load() { fillLists(); }

void FrmAssignment::fillLists() {
    for (const char* type : kTypes) ComboTypeList->addItem(type);
    for (const char* difficulty : kDifficulties) ComboDifficulty->addItem(difficulty);
    for (const char* grade : kGrades) ComboGrade->addItem(grade);
    for (int weight = 1; weight <= 100; ++weight) ComboWeight->addItem(std::to_string(weight));
    addSpans(*ComboEstTime, 49);
    addSpans(*ComboSessionLength, 9);
    ComboRemindMe->addItem("1 Day");
    for (int days = 2; days <= 30; ++days) ComboRemindMe->addItem(std::to_string(days) + " Days");
}

void FrmAssignment::bindHandlers() {
    const auto onClick = [this](const std::string& key, void (FrmAssignment::*handler)()) {
        on(key, FormEvent::Click, [this, handler](const EventArgs&) { (this->*handler)(); });
    };
    onClick("ButtonOK", &FrmAssignment::ButtonOK_Click);
    onClick("ButtonCancel", &FrmAssignment::cancel);
    onClick("ButtonDelete", &FrmAssignment::ButtonDelete_Click);
    onClick("ButtonShare", &FrmAssignment::ButtonShare_Click);
    on("picHelp", FormEvent::Click, [this](const EventArgs&) { platform_.windowing.enterWhatsThisMode(); });
    on("LabelViewSessions", FormEvent::Click, [this](const EventArgs&) { applyFormSmall(); });
    const auto changes = [this](const EventArgs&) { markChanged(); };
    for (const char* key : {"TextBoxDescription", "TextBoxNotes"}) on(key, FormEvent::Change, changes);
    for (const char* key : {"ComboRemindMe", "ComboTypeList", "ComboDifficulty", "ComboClassNameList", "ComboGrade",
                            "ComboWeight"}) {
        on(key, FormEvent::Click, changes);
        on(key, FormEvent::Change, changes);
    }
}

void FrmAssignment::setSmall(bool small) {
    setOuterSize(kAssignmentWidth, small ? kAssignmentSmallHeight : kAssignmentLargeHeight);
    LabelViewSessions->caption = small ? "Show Study Sessions" : "Hide Study Sessions";
}

void FrmAssignment::applyFormSmall() {
    setSmall(FormSmall);
    FormSmall = !FormSmall;
}

void FrmAssignment::setDueDate(Date date) {
    DueDate = date;
    tempAssignmentDate = platform_.locale.shortDate(date);
    TextboxDateDue->text = platform_.locale.longDate(date);
}

void FrmAssignment::setSessionDate(Date date) {
    SessionDate = date;
    TextboxSessionDate->text = platform_.locale.longDate(date);
}

void FrmAssignment::showDone(bool done) {
    CheckBoxDone->checked = done;
    const Color color = standardColors().ColorValues(done ? "Green" : "Sienna");
    CheckBoxDone->backColor = LabelDoneBG->backColor = color;
}

void FrmAssignment::showRecord() {
    applyFormSmall();
    // Flush with the labels below it: no space before the word.
    LabelClass->caption = "Classes " + CurrentTermName;
    ComboClassNameList->clearItems();
    for (const std::string& name : tempClassNameArray) ComboClassNameList->addItem(name);
    if (editMode == EditMode::New)
        showNew();
    else
        showEdit();
    setSessionDate(platform_.clock.today());
    ButtonShare->caption = "Share";
    // Each showing starts at the class, the first thing a student picks, as the window on
    // the screen does, not at the control that ended the last showing.
    SetFocus(ComboClassNameList.key());
    picker_->reset();
}

void FrmAssignment::showNew() {
    caption = "Quillhollow - New Assignment";
    for (TextColumn* list : {&tempStudySessionRecordNoArray, &tempStudySessionLinkIDArray,
                             &tempStudySessionLengthArray, &tempStudySessionDateArray})
        list->clear();
    LabelStudySessions->caption = "Study Sessions: 00";
    TextBoxDescription->text.clear();
    TextBoxNotes->text.clear();
    showDone(false);
    ButtonDelete->enabled = false;
    ShowEntryAt(*ComboTypeList, 0);
    ShowEntryAt(*ComboDifficulty, 1);
    ShowEntryAt(*ComboGrade, 0);
    ShowEntry(*ComboWeight, kDefaultWeight);
    ShowEntry(*ComboEstTime, kDefaultSpan);
    ShowEntry(*ComboSessionLength, kDefaultSpan);
    ShowEntryAt(*ComboRemindMe, 0);
    TextBoxTotalTime->text = "00 : 00";
    TextBoxTimeLeft->text = ComboEstTime->text;
    TextBoxTimeLeft->backColor = standardColors().ColorValues("MistyRose");
    ButtonSessionDelete->enabled = false;
    ListBoxStudySessions->clearItems();
    estimateUsedUp = false;
    ShowEntryAt(*ComboClassNameList, -1);
    setDueDate(host_.clickedDate());
}

void FrmAssignment::showEdit() {
    caption = "Quillhollow - Edit Assignment";
    ShowEntry(*ComboEstTime, tempAssignment.EstTime);
    ShowEntry(*ComboSessionLength, kDefaultSpan);
    ListBoxStudySessions->clearItems();
    for (int row = 1; row <= tempStudySessionLengthArray.count(); ++row)
        ListBoxStudySessions->addItem(StudySessionLine(tempStudySessionLengthArray(row),
                                                       tempStudySessionDateArray(row), platform_.locale));
    ButtonSessionDelete->enabled = false;
    showDone(isTrueFlag(tempAssignment.Done));
    RecalculateSessions();
    TextBoxDescription->text = tempAssignment.Description;
    TextBoxNotes->text = tempAssignmentNotes;
    ButtonDelete->enabled = true;
    ShowEntry(*ComboTypeList, tempAssignment.Type);
    ShowEntry(*ComboDifficulty, tempAssignment.Difficulty);
    ShowListedEntry(*ComboGrade, tempAssignment.Grade, 0);
    ShowEntry(*ComboWeight, weightShown(tempAssignment.Weight));
    ShowListedEntry(*ComboRemindMe, tempAssignment.Reminder, 0);
    ShowEntryAt(*ComboClassNameList, -1);
    if (!tempAssignmentClassName.empty()) ShowEntry(*ComboClassNameList, tempAssignmentClassName);
    setDueDate(tempAssignment.DateValue);
}

void FrmAssignment::Form_MouseDown(const std::string& controlKey) { picker_->windowPressed(controlKey); }

Date FrmAssignment::pickerFieldDate(bool firstField) { return firstField ? DueDate : SessionDate; }

void FrmAssignment::pickerWroteDate(bool firstField, Date date) {
    if (firstField) {
        markChanged();
        setDueDate(date);
    } else {
        setSessionDate(date);
    }
}

void FrmAssignment::ButtonOK_Click() {
    const auto refusal = AssignmentOkRefusal({ComboTypeList->text, ComboClassNameList->listIndex >= 0,
                                              CheckBoxDone->checked, estimateUsedUp, TextBoxDescription->text});
    if (refusal) {
        tell(refusal->message);
        if (!refusal->focus.empty()) SetFocus(refusal->focus);
        return;
    }
    finish(EditorOutcome::Saved);
}

void FrmAssignment::cancel() {
    confirmCancel(editMode == EditMode::New ? "Cancel this " + ComboTypeList->text + "?"
                                            : "Cancel all changes to this " + ComboTypeList->text + "?");
}

void FrmAssignment::ButtonDelete_Click() {
    const std::string& type = ComboTypeList->text;
    if (!ask("Are you sure you want to Delete this " + type + "?")) return;
    if (!tempStudySessionRecordNoArray.empty() &&
        !ask("Are you really sure? Your Study Sessions for this " + type + " will also be deleted."))
        return;
    TextBoxDescription->text = kDeletedRecord;
    CheckBoxDone->checked = false;
    for (TextColumn* list : {&tempStudySessionRecordNoArray, &tempStudySessionLinkIDArray,
                             &tempStudySessionLengthArray, &tempStudySessionDateArray})
        list->clear();
    ListBoxStudySessions->clearItems();
    TextBoxNotes->text.clear();
    finish(EditorOutcome::Deleted);
}

void FrmAssignment::ButtonShare_Click() {
    if (editMode != EditMode::Edit) {
        shareIn();
        return;
    }
    const SharedAssignment shared{ComboClassNameList->text, TextBoxDescription->text, DueDate,
                                  ComboTypeList->text,      ComboDifficulty->text,    ComboEstTime->text,
                                  ComboWeight->text,        TextBoxNotes->text};
    ShareOut(platform_, DocumentDirectory, SharedKind::Assignment,
             sharedAssignmentFileName(shared.description, shared.dueDate, platform_.locale), sharedFileBytes(shared));
}

void FrmAssignment::shareIn() {
    const auto shared = ShareInAssignment(platform_, DocumentDirectory);
    if (!shared) return;
    // The combos bind Click and Change alike, so a text off their lists counts as a change too.
    ChooseEntry(*this, ComboClassNameList.key(), shared->className);
    type(TextBoxDescription.key(), shared->description);
    pickerWroteDate(true, shared->dueDate);
    ChooseEntry(*this, ComboTypeList.key(), shared->type);
    ChooseEntry(*this, ComboDifficulty.key(), shared->difficulty);
    ChooseEntry(*this, ComboEstTime.key(), shared->estimatedTime);
    ChooseEntry(*this, ComboWeight.key(), shared->weight);
    type(TextBoxNotes.key(), shared->notes);
}

}  // namespace qh
