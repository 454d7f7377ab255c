#include "editors/frm_course_schedule.h"

#include <algorithm>
#include <cctype>

#include "common/text.h"
#include "editors/editor_host.h"
#include "record_store/color_vocabulary.h"
#include "record_store/columns.h"

namespace qh {
namespace {

std::string lowerTrimmed(const std::string& text) {
    std::string folded = trim(text);
    for (char& ch : folded) ch = char(std::tolower(static_cast<unsigned char>(ch)));
    return folded;
}

// The season a new term is proposed for, by the month it starts in.
const char* seasonOf(int month) {
    if (month >= 2 && month <= 4) return "Spring";
    if (month >= 5 && month <= 7) return "Summer";
    if (month >= 8 && month <= 10) return "Fall";
    return "Winter";
}

constexpr int kNewTermDays = 70;

}  // namespace

FrmCourseSchedule::FrmCourseSchedule(Platform& platform, EditorHost& host)
    : EditorForm("frmCourseSchedule", platform.messages), platform_(platform), host_(host) {
    setCanvasFactory(&platform.canvases);
    buildControls();
    picker_ = std::make_unique<DatePicker>(*this, platform, *this, [&host] { return host.startDayOfWeek(); },
                                           DateField{"TextboxTermStart", "ButtonTermStart", 240, 1275},
                                           DateField{"TextboxTermEnd", "ButtonTermEnd", 3720, 1275});
    bindControls();
    bindHandlers();
}

FrmCourseSchedule::~FrmCourseSchedule() = default;

void FrmCourseSchedule::buildControls() {
    caption = "Quillhollow - New Term";
    fixedSize = true;
    setOuterSize(6720, 6660);
    const auto label = [this](const std::string& name, int left, int top, int width, const std::string& text) {
        Control& control = add(ControlKind::Label, name, "", left, top, width, 255);
        control.caption = text;
        control.backColor = kButtonFace;
    };
    const auto button = [this](const std::string& name, int left, int top, int width, const std::string& text) {
        add(ControlKind::CommandButton, name, "", left, top, width, 375).caption = text;
    };
    label("LabelTermName", 240, 120, 3000, "Term Name");
    add(ControlKind::TextBox, "TextBoxTermName", "", 240, 360, 6120, 315).border = true;
    label("LabelStartDate", 240, 720, 3000, "Start Date");
    label("LabelEndDate", 3720, 720, 2640, "End Date");
    for (const auto& [box, pick, left, width] :
         {std::tuple{"TextboxTermStart", "ButtonTermStart", 240, 2940}, {"TextboxTermEnd", "ButtonTermEnd", 3720, 2340}}) {
        Control& field = add(ControlKind::TextBox, box, "", left, 960, width, 315);
        field.locked = true;
        field.border = true;
        Control& small = add(ControlKind::CommandButton, pick, "", left + width, 960, 300, 315);
        small.caption = "...";
    }
    label("LabelClassSchedule", 240, 1560, 3000, "Class Schedule");
    add(ControlKind::ComboBox, "ComboBoxClassList", "", 240, 1800, 3240, 315);
    button("ButtonAddClass", 3600, 1770, 1320, "Add Class");
    button("ButtonEditClass", 5040, 1770, 1320, "Edit Class");

    Control& panel = add(ControlKind::Frame, "FrameClass", "", 120, 2280, 6360, 3000);
    panel.backColor = kButtonFace;
    label("LabelClassName", 240, 2520, 3000, "Class Name");
    add(ControlKind::TextBox, "TextBoxClassName", "", 240, 2760, 2760, 315).border = true;
    Control& accent = add(ControlKind::CommandButton, "ButtonAccentColor", "", 3000, 2760, 360, 315);
    accent.caption = std::string("B");  // moved in: the optimiser gives a false overlap alarm on a literal
    label("LabelClassColor", 240, 3180, 3000, "Class Color");
    Control& grid = addDrawable("picColorGrid", "", 240, 3420, kColorGridColumns * kColorGridCell,
                                kColorGridRows * kColorGridCell);
    grid.accessibleName = "Class Color";
    add(ControlKind::RadioButton, "OptionBackColor", "", 2460, 3420, 1200, 285).caption = "Background";
    add(ControlKind::RadioButton, "OptionForeColor", "", 2460, 3720, 1200, 285).caption = "Text";
    label("LabelNotes", 3720, 2520, 2640, "Notes");
    Control& notes = add(ControlKind::TextBox, "TextBoxClassNotes", "", 3720, 2760, 2640, 2040);
    notes.multiLine = true;
    notes.border = true;
    for (const char* radio : {"OptionBackColor", "OptionForeColor"}) c(radio).backColor = kButtonFace;
    button("ButtonOKClass", 3720, 4920, 840, "OK");
    button("ButtonCancelClass", 4620, 4920, 840, "Cancel");
    button("ButtonDeleteClass", 5520, 4920, 840, "Delete");

    button("ButtonOK", 2160, 5520, 1320, "OK");
    button("ButtonCancel", 3600, 5520, 1320, "Cancel");
    button("ButtonDelete", 5040, 5520, 1320, "Delete");
}

void FrmCourseSchedule::bindHandlers() {
    const auto onClick = [this](const ControlRef& control, void (FrmCourseSchedule::*handler)()) {
        on(control.key(), FormEvent::Click, [this, handler](const EventArgs&) { (this->*handler)(); });
    };
    onClick(ButtonAddClass, &FrmCourseSchedule::ButtonAddClass_Click);
    onClick(ButtonEditClass, &FrmCourseSchedule::ButtonEditClass_Click);
    onClick(ButtonOKClass, &FrmCourseSchedule::ButtonOKClass_Click);
    onClick(ButtonCancelClass, &FrmCourseSchedule::ResetClassPanel);
    onClick(ButtonDeleteClass, &FrmCourseSchedule::ButtonDeleteClass_Click);
    onClick(ButtonOK, &FrmCourseSchedule::ButtonOK_Click);
    onClick(ButtonCancel, &FrmCourseSchedule::cancel);
    onClick(ButtonDelete, &FrmCourseSchedule::ButtonDelete_Click);
    on(ButtonAccentColor.key(), FormEvent::Click, [this](const EventArgs&) {
        const bool white = ButtonAccentColor->caption != "W";
        ButtonAccentColor->caption.assign(1, white ? 'W' : 'B');
        TextBoxClassName->foreColor = white ? kWhite : kBlack;
    });
    bindColorGrid();
    on(TextBoxTermName.key(), FormEvent::Change, [this](const EventArgs&) {
        tempTermName = TextBoxTermName->text;
        markChanged();
    });
    defaultButton = ButtonOK.key();
    cancelButton = ButtonCancel.key();
}

void FrmCourseSchedule::Form_Load() {
    PaintColorGrid();
    setChecked(OptionBackColor.key(), true);
}

void FrmCourseSchedule::setTermStart(Date date) {
    tempTermStartDate = date;
    tempTermStart = platform_.locale.shortDate(date);
    TextboxTermStart->text = platform_.locale.longDate(date);
}

void FrmCourseSchedule::setTermEnd(Date date) {
    tempTermEndDate = date;
    tempTermEnd = platform_.locale.shortDate(date);
    TextboxTermEnd->text = platform_.locale.longDate(date);
}

void FrmCourseSchedule::showRecord() {
    if (editMode == EditMode::New) {
        caption = "Quillhollow - New Term";
        const Date today = platform_.clock.today();
        const Ymd now = ymdOf(today);
        tempTermName = seasonOf(now.month);
        tempTermName.append(" ").append(std::to_string(now.year));
        TextBoxTermName->text = tempTermName;
        setTermStart(today);
        setTermEnd(today + kNewTermDays);
    } else {
        caption = editMode == EditMode::Edit ? "Quillhollow - Edit Term" : "Quillhollow - New Term";
        TextBoxTermName->text = tempTermName;
        setTermStart(tempTermStartDate);
        setTermEnd(tempTermEndDate);
    }
    classPanelMode = ClassPanelMode::Closed;
    // The window lives on between terms: the class panel starts empty, never with the
    // class last edited in another term.
    TextBoxClassName->text.clear();
    TextBoxClassNotes->text.clear();
    ResetClassPanel();
    picker_->reset();
}

void FrmCourseSchedule::Form_MouseDown(const std::string& controlKey) { picker_->windowPressed(controlKey); }

Date FrmCourseSchedule::pickerFieldDate(bool firstField) { return firstField ? tempTermStartDate : tempTermEndDate; }

void FrmCourseSchedule::pickerWroteDate(bool firstField, Date date) {
    markChanged();
    if (firstField)
        setTermStart(date);
    else
        setTermEnd(date);
}

void FrmCourseSchedule::enableClassPanel(bool panel) {
    for (const ControlRef* control : {&TextBoxClassName, &TextBoxClassNotes, &OptionBackColor, &OptionForeColor,
                                      &ButtonOKClass, &ButtonCancelClass, &picColorGrid, &ButtonAccentColor})
        (*control)->enabled = panel;
    ButtonDeleteClass->enabled = false;
    for (const ControlRef* control : {&TextBoxTermName, &TextboxTermStart, &TextboxTermEnd, &ComboBoxClassList,
                                      &ButtonAddClass, &ButtonEditClass, &ButtonOK, &ButtonCancel, &ButtonDelete})
        (*control)->enabled = !panel;
    c("ButtonTermStart").enabled = c("ButtonTermEnd").enabled = !panel;
    // While a class is open, Enter and Escape are its own OK and Cancel.
    defaultButton = panel ? ButtonOKClass.key() : ButtonOK.key();
    cancelButton = panel ? ButtonCancelClass.key() : ButtonCancel.key();
}

void FrmCourseSchedule::ResetClassPanel() {
    ForeColorName = "Black";
    BackColorName = "White";
    TextBoxClassName->foreColor = kBlack;
    TextBoxClassName->backColor = kWhite;
    OriginalClassName.clear();
    enableClassPanel(false);
    ButtonDelete->enabled = editMode == EditMode::Edit;
    FillClassList();
    ButtonEditClass->enabled = !ComboBoxClassList->items.empty();
}

void FrmCourseSchedule::FillClassList() {
    Control& list = *ComboBoxClassList;
    const int remembered = list.listIndex;
    list.clearItems();
    IndexClassIDArray.clear();
    for (std::size_t row = 0; row < tempClassNameArray.size(); ++row) {
        if (tempClassNameArray[row] == kDeletedRecord) continue;
        list.addItem(tempClassNameArray[row]);
        IndexClassIDArray.push_back(int(row));
    }
    const int count = int(list.items.size());
    int selected = count > 0 ? 0 : -1;
    if (classPanelMode == ClassPanelMode::Add) selected = count - 1;
    if (classPanelMode == ClassPanelMode::Edit) selected = remembered < count ? remembered : count - 1;
    list.listIndex = selected;
    list.text = list.selectedText();
}

void FrmCourseSchedule::ButtonAddClass_Click() {
    enableClassPanel(true);
    TextBoxClassName->text.clear();
    TextBoxClassNotes->text.clear();
    ForeColorName = "Black";
    BackColorName = "White";
    TextBoxClassName->foreColor = kBlack;
    TextBoxClassName->backColor = kWhite;
    SelectedClassID = NextClassID;
    SelectedClassIndex = Int16(tempClassNameArray.size());
    OriginalClassName.clear();
    classPanelMode = ClassPanelMode::Add;
    SetFocus(TextBoxClassName.key());
}

void FrmCourseSchedule::ButtonEditClass_Click() {
    enableClassPanel(true);
    ButtonDeleteClass->enabled = true;
    classPanelMode = ClassPanelMode::Edit;
    const int line = ComboBoxClassList->listIndex;
    if (line < 0 || line >= int(IndexClassIDArray.size())) throw SubscriptOutOfRange();
    const std::size_t row = std::size_t(IndexClassIDArray[std::size_t(line)]);
    SelectedClassIndex = Int16(row);
    SelectedClassID = int16OrZero(tempClassIDArray[row]);
    OriginalClassName = tempClassNameArray[row];
    TextBoxClassName->text = tempClassNameArray[row];
    TextBoxClassNotes->text = tempClassNotesArray[row];
    ForeColorName = tempClassForeColorArray[row];
    BackColorName = tempClassBackColorArray[row];
    TextBoxClassName->foreColor = standardColors().ColorValues(ForeColorName);
    TextBoxClassName->backColor = standardColors().ColorValues(BackColorName);
    SetFocus(TextBoxClassName.key());
}

void FrmCourseSchedule::ButtonOKClass_Click() {
    if (!CheckClass()) return;
    StoreClass();
    ResetClassPanel();
    markChanged();
}

bool FrmCourseSchedule::CheckClass() {
    const std::string name = TextBoxClassName->text;
    const bool renamed = editMode == EditMode::Edit && name != OriginalClassName && !OriginalClassName.empty();
    bool duplicate = false;
    for (std::size_t row = 0; row < tempClassNameArray.size(); ++row)
        if (int16OrZero(tempClassIDArray[row]) != SelectedClassID &&
            lowerTrimmed(tempClassNameArray[row]) == lowerTrimmed(name))
            duplicate = true;
    if (trim(name).empty()) {
        tell("Enter a name for this class.");
        return false;
    }
    if (duplicate) {
        tell("There is already a class with this name.");
        TextBoxClassName->text = OriginalClassName;
        return false;
    }
    if (renamed &&
        !ask("You have changed the name of this class. If you have created assignments for '" + OriginalClassName +
             "', they will now be for '" + name + "'.\r\nClick 'Yes' to rename this class.")) {
        TextBoxClassName->text = OriginalClassName;
        return false;
    }
    return true;
}

void FrmCourseSchedule::StoreClass() {
    const std::size_t row = std::size_t(SelectedClassIndex);
    if (classPanelMode == ClassPanelMode::Add) {
        // The term link is left out: storing the term's rows supplies it.
        tempClassIDArray.push_back(std::to_string(SelectedClassID));
        tempClassNameArray.push_back(TextBoxClassName->text);
        tempClassNotesArray.push_back(TextBoxClassNotes->text);
        tempClassBackColorArray.push_back(BackColorName);
        tempClassForeColorArray.push_back(ForeColorName);
        NextClassID = Int16(NextClassID + 1);
    } else if (classPanelMode == ClassPanelMode::Edit) {
        tempClassNameArray.at(row) = TextBoxClassName->text;
        tempClassNotesArray.at(row) = TextBoxClassNotes->text;
        tempClassBackColorArray.at(row) = BackColorName;
        tempClassForeColorArray.at(row) = ForeColorName;
    }
}

void FrmCourseSchedule::MarkClassDeleted() {
    if (OriginalClassName.empty()) return;
    tempClassNameArray.at(std::size_t(SelectedClassIndex)) = kDeletedRecord;
}

void FrmCourseSchedule::ButtonDeleteClass_Click() {
    if (!ask("Delete this class?")) return;
    // The change flag is left as it was: a later Cancel drops this delete with the rest
    // without asking.
    if (editMode == EditMode::Edit &&
        !ask("Are you sure you want to Delete '" + OriginalClassName + "'? If you have assignments for '" +
             OriginalClassName + "', they will also be Deleted."))
        return;
    MarkClassDeleted();
    ResetClassPanel();
}

void FrmCourseSchedule::ButtonOK_Click() {
    const std::string name = TextBoxTermName->text;
    bool taken = false;
    for (const std::string& previous : tempPreviousTermNamesArray)
        if (previous == name && (editMode != EditMode::Edit || previous != ThisTermsPreviousName)) taken = true;
    if (static_cast<long long>(tempTermEndDate) - static_cast<long long>(tempTermStartDate) < 1) {
        tell("The Term End Date must be later then the Term Start Date.");
    } else if (trim(name).empty()) {
        tell("Enter a name for the Term.");
    } else if (taken) {
        tell("There is already a Term with this name.");
    } else {
        finish(EditorOutcome::Saved);
    }
}

void FrmCourseSchedule::cancel() { confirmCancel("Cancel changes to this Term's Class Schedule?"); }

void FrmCourseSchedule::ButtonDelete_Click() {
    if (!ask("Delete this Term? All assignments for classes in this Class Schedule will also be deleted.")) return;
    if (!ask("Are you sure? This action cannot be undone!")) return;
    finish(EditorOutcome::Deleted);
}

}  // namespace qh
