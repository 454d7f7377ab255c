#pragma once
// frmCourseSchedule: one term with its whole class schedule. It works on copies: the
// schedule procedure fills the public fields, shows the window modal and, after it hides,
// reads CancelledFlag, DeleteFlag and the fields into the term and class columns.
//
// The dates are kept twice: as texts in the short date form (tempTermStart, tempTermEnd),
// as the window's callers know them, and as day numbers (tempTermStartDate,
// tempTermEndDate), which the checks and the columns use; the picker writes both.
#include <memory>
#include <string>
#include <vector>

#include "calendar/date_picker.h"
#include "common/int16.h"
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

class FrmCourseSchedule : public Form, public DatePickerOwner, public HasDatePicker {
public:
    FrmCourseSchedule(Platform& platform, EditorHost& host);
    ~FrmCourseSchedule() override;

    // In-out fields.
    std::string tempTermID, tempTermName, tempTermStart, tempTermEnd;
    Date tempTermStartDate = 0, tempTermEndDate = 0;
    std::vector<std::string> tempClassIDArray, tempClassTermLinkArray, tempClassNameArray, tempClassForeColorArray,
        tempClassBackColorArray, tempClassNotesArray;
    std::vector<int> IndexClassIDArray;  // for each line of ComboBoxClassList, its row (0-based) of the class lists
    std::vector<std::string> tempPreviousTermIDsArray, tempPreviousTermNamesArray, tempPreviousTermStartArray,
        tempPreviousTermEndArray;
    std::string ThisTermsPreviousID, ThisTermsPreviousName;
    std::string AccentColor;
    Int16 SelectedClassIndex = 0, SelectedClassID = 0;
    std::string ClassEditMode;
    std::string OriginalClassName;
    Int16 NextClassID = 1;
    Int16 ClassError = kFalse;
    Int16 ChangeFlag = kFalse, CancelledFlag = kTrue, CloseOK = kFalse, DeleteFlag = kFalse;
    std::string EditMode = "New";
    std::string ForeColorName = "Black", BackColorName = "White";
    int KeyboardColorCell = 1;  // the grid's cell the arrows stand on

    // Sets both forms of a date field.
    void setTermStart(Date date);
    void setTermEnd(Date date);

    void Form_Load() override;
    void Form_Activate() override;
    bool Form_QueryUnload(UnloadMode mode) override;
    void Form_MouseDown(const std::string& controlKey) override;

    void ResetClassPanel();
    void FillClassList();
    void CheckClass();
    void StoreClass();
    void MarkClassDeleted();
    void ConfirmCancelSchedule();
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
    void enableClassPanel(bool panel);
    void ButtonAddClass_Click();
    void ButtonEditClass_Click();
    void ButtonOKClass_Click();
    void ButtonDeleteClass_Click();
    void ButtonOK_Click();
    void ButtonDelete_Click();
    void bindColorGrid();
    void chooseColor(int n);
    bool ask(const std::string& text);
    void tell(const std::string& text);

    Platform& platform_;
    EditorHost& host_;
    std::unique_ptr<DatePicker> picker_;
};

}  // namespace qh
