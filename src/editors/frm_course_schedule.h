#pragma once
// frmCourseSchedule: one term with its whole class schedule. It works on copies: the
// schedule procedure fills the public fields, shows the window modal and, after it hides,
// reads its outcome and the fields into the term and class columns.
//
// The dates are kept twice: as texts in the short date form (tempTermStart, tempTermEnd),
// as the window's callers know them, and as day numbers (tempTermStartDate,
// tempTermEndDate), which the checks and the columns use; the picker writes both.
#include <memory>
#include <string>
#include <vector>

#include "calendar/date_picker.h"
#include "common/int16.h"
#include "editors/editor_form.h"
#include "platform/control_ref.h"
#include "platform/platform.h"

namespace qh {

class EditorHost;

// The colour grid: 14 columns and 10 rows of 150-twip cells, colour n (1..140) at column
// (n - 1) mod 14, row (n - 1) div 14. ColorGridCellAt gives the colour number for a point
// inside the grid (0 outside it); ColorGridCellOrigin the top left corner of a cell.
constexpr int kColorGridColumns = 14, kColorGridRows = 10, kColorGridCell = 150;
int ColorGridCellAt(int x, int y);
std::pair<int, int> ColorGridCellOrigin(int n);
// The cell a key moves the grid's keyboard ring to: the arrows by a cell or a row, Home
// and End to the first and last; it stays at the grid's edges.
int ColorGridKeyStep(int cell, int keyCode);

class FrmCourseSchedule : public EditorForm, public DatePickerOwner, public HasDatePicker {
public:
    FrmCourseSchedule(Platform& platform, EditorHost& host);
    ~FrmCourseSchedule() override;

    // In-out fields.
    std::string tempTermName, tempTermStart, tempTermEnd;
    Date tempTermStartDate = 0, tempTermEndDate = 0;
    std::vector<std::string> tempClassIDArray, tempClassTermLinkArray, tempClassNameArray, tempClassForeColorArray,
        tempClassBackColorArray, tempClassNotesArray;
    std::vector<int> IndexClassIDArray;  // for each line of ComboBoxClassList, its row (0-based) of the class lists
    // The names of the other live terms, which the term's name must not take, and this
    // term's name before the edit.
    std::vector<std::string> tempPreviousTermNamesArray;
    std::string ThisTermsPreviousName;
    Int16 SelectedClassIndex = 0, SelectedClassID = 0;
    // What the class panel is open for; it stays after the panel closes, so that the class
    // list selects the class just added or edited.
    enum class ClassPanelMode { Closed, Add, Edit };
    ClassPanelMode classPanelMode = ClassPanelMode::Closed;
    std::string OriginalClassName;
    Int16 NextClassID = 1;
    std::string ForeColorName = "Black", BackColorName = "White";
    int KeyboardColorCell = 1;  // the grid's cell the arrows stand on

    // Sets both forms of a date field.
    void setTermStart(Date date);
    void setTermEnd(Date date);

    void Form_Load() override;
    void Form_MouseDown(const std::string& controlKey) override;

    void ResetClassPanel();
    void FillClassList();
    // Whether the class panel's name may be stored: not empty, no other class's, and a
    // rename confirmed; a refusal has told why and put the original name back.
    bool CheckClass();
    void StoreClass();
    void MarkClassDeleted();
    void cancel() override;
    void PaintColorGrid();

    Date pickerFieldDate(bool firstField) override;
    void pickerWroteDate(bool firstField, Date date) override;
    DatePicker& datePicker() override { return *picker_; }

    ControlRef TextBoxTermName{this, "TextBoxTermName"};
    ControlRef TextboxTermStart{this, "TextboxTermStart"};
    ControlRef TextboxTermEnd{this, "TextboxTermEnd"};
    ControlRef ComboBoxClassList{this, "ComboBoxClassList"};
    ControlRef ButtonAddClass{this, "ButtonAddClass"};
    ControlRef ButtonEditClass{this, "ButtonEditClass"};
    ControlRef TextBoxClassName{this, "TextBoxClassName"};
    ControlRef TextBoxClassNotes{this, "TextBoxClassNotes"};
    ControlRef ButtonAccentColor{this, "ButtonAccentColor"};
    ControlRef picColorGrid{this, "picColorGrid"};
    ControlRef OptionBackColor{this, "OptionBackColor"};
    ControlRef OptionForeColor{this, "OptionForeColor"};
    ControlRef ButtonOKClass{this, "ButtonOKClass"};
    ControlRef ButtonCancelClass{this, "ButtonCancelClass"};
    ControlRef ButtonDeleteClass{this, "ButtonDeleteClass"};
    ControlRef ButtonOK{this, "ButtonOK"};
    ControlRef ButtonCancel{this, "ButtonCancel"};
    ControlRef ButtonDelete{this, "ButtonDelete"};

private:
    void buildControls();
    void bindHandlers();
    void showRecord() override;
    void enableClassPanel(bool panel);
    void ButtonAddClass_Click();
    void ButtonEditClass_Click();
    void ButtonOKClass_Click();
    void ButtonDeleteClass_Click();
    void ButtonOK_Click();
    void ButtonDelete_Click();
    void bindColorGrid();
    void chooseColor(int n);

    Platform& platform_;
    EditorHost& host_;
    std::unique_ptr<DatePicker> picker_;
};

}  // namespace qh
