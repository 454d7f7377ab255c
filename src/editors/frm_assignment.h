#pragma once
// frmAssignment: one assignment with its note and its study sessions. It works on copies:
// the record actions fill the public fields, show the window modal and, after it hides,
// read its outcome, the controls and the session lists into the columns and files. The
// window itself never touches a record file.
//
// The due date and the study date are kept as day numbers (DueDate, SessionDate), which
// the callers and the sessions use, and shown in the long date form; tempAssignmentDate
// holds the due date in the short date form once the window has shown it.
#include <memory>
#include <string>
#include <vector>

#include "calendar/date_picker.h"
#include "common/column.h"
#include "editors/editor_form.h"
#include "platform/control_ref.h"
#include "platform/platform.h"
#include "record_store/columns.h"

namespace qh {

class EditorHost;

// The two heights of the window (outer, twips): study sessions hidden and shown.
inline constexpr int kAssignmentWidth = 6360, kAssignmentSmallHeight = 4650, kAssignmentLargeHeight = 7425;

class FrmAssignment : public EditorForm, public DatePickerOwner, public HasDatePicker {
public:
    FrmAssignment(Platform& platform, EditorHost& host);
    ~FrmAssignment() override;

    // In-out fields, set by the caller before a showing.
    std::vector<std::string> tempClassNameArray, tempAssignmentClassLinkArray;
    // The sessions, row 1 the newest; an added one has record number and link "0".
    TextColumn tempStudySessionRecordNoArray, tempStudySessionLinkIDArray, tempStudySessionLengthArray,
        tempStudySessionDateArray;
    // For an edit: the record as its columns hold it, its class's name and its note.
    AssignmentBuffer tempAssignment;
    std::string tempAssignmentClassName, tempAssignmentNotes;
    // The due date in the short date form, once the window has shown it.
    std::string tempAssignmentDate;
    // The active term's name, for the caption of LabelClass; where the Share dialogs start.
    std::string CurrentTermName, DocumentDirectory;
    // A toggle request, applied at the showing and at a click on LabelViewSessions: true
    // makes the window small and clears itself, false makes it large and sets itself.
    bool FormSmall = true;
    // Less than a minute of the estimate is left; OK refuses it unless the assignment is done.
    bool estimateUsedUp = false;
    Date DueDate = 0, SessionDate = 0;

    void Form_Load() override;
    void Form_MouseDown(const std::string& controlKey) override;

    // The study sessions (frm_assignment_sessions.cpp).
    void AddStudySession();
    void RecalculateSessions();

    void cancel() override;

    Date pickerFieldDate(bool firstField) override;
    void pickerWroteDate(bool firstField, Date date) override;
    DatePicker& datePicker() override { return *picker_; }

    ControlRef LabelClass{this, "LabelClass"};
    ControlRef ComboClassNameList{this, "ComboClassNameList"};
    ControlRef TextboxDateDue{this, "TextboxDateDue"};
    ControlRef ComboTypeList{this, "ComboTypeList"};
    ControlRef ComboDifficulty{this, "ComboDifficulty"};
    ControlRef ComboEstTime{this, "ComboEstTime"};
    ControlRef ComboRemindMe{this, "ComboRemindMe"};
    ControlRef TextBoxDescription{this, "TextBoxDescription"};
    ControlRef TextBoxNotes{this, "TextBoxNotes"};
    ControlRef ComboGrade{this, "ComboGrade"};
    ControlRef ComboWeight{this, "ComboWeight"};
    ControlRef CheckBoxDone{this, "CheckBoxDone"};
    ControlRef LabelDoneBG{this, "LabelDoneBG"};
    ControlRef ButtonOK{this, "ButtonOK"};
    ControlRef ButtonCancel{this, "ButtonCancel"};
    ControlRef ButtonDelete{this, "ButtonDelete"};
    ControlRef ButtonShare{this, "ButtonShare"};
    ControlRef LabelViewSessions{this, "LabelViewSessions"};
    ControlRef LabelStudySessions{this, "LabelStudySessions"};
    ControlRef ComboSessionLength{this, "ComboSessionLength"};
    ControlRef TextboxSessionDate{this, "TextboxSessionDate"};
    ControlRef ButtonSessionAdd{this, "ButtonSessionAdd"};
    ControlRef ButtonSessionDelete{this, "ButtonSessionDelete"};
    ControlRef ListBoxStudySessions{this, "ListBoxStudySessions"};
    ControlRef TextBoxTotalTime{this, "TextBoxTotalTime"};
    ControlRef TextBoxTimeLeft{this, "TextBoxTimeLeft"};

private:
    void buildControls();
    void buildSessionControls();
    void fillLists();
    void bindHandlers();
    void bindSessionHandlers();
    void showRecord() override;
    void beforeHide() override { setSmall(true); }
    void applyFormSmall();
    void setSmall(bool small);
    void showNew();
    void showEdit();
    void showDone(bool done);
    void setDueDate(Date date);
    void setSessionDate(Date date);
    void ButtonOK_Click();
    void ButtonDelete_Click();
    void ButtonShare_Click();
    void shareIn();
    void ButtonSessionAdd_Click();
    void ButtonSessionDelete_Click();
    void CheckBoxDone_Click();

    Platform& platform_;
    EditorHost& host_;
    std::unique_ptr<DatePicker> picker_;
};

}  // namespace qh
