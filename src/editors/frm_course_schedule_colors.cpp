// The class colour grid of the term window: painted from the colour vocabulary, chosen by
// a press on a cell, or from the keyboard, where the arrows move a ringed cell and Enter
// or Space choose it, as a press would.
#include "editors/frm_course_schedule.h"
#include "record_store/color_vocabulary.h"

namespace qh {

int ColorGridCellAt(int x, int y) {
    if (x < 0 || y < 0) return 0;
    const int column = x / kColorGridCell + 1, row = y / kColorGridCell + 1;
    if (column > kColorGridColumns || row > kColorGridRows) return 0;
    return (row - 1) * kColorGridColumns + column;
}

std::pair<int, int> ColorGridCellOrigin(int n) {
    return {((n - 1) % kColorGridColumns) * kColorGridCell, ((n - 1) / kColorGridColumns) * kColorGridCell};
}

int ColorGridKeyStep(int cell, int keyCode) {
    const int last = kColorGridColumns * kColorGridRows;
    int next = cell;
    switch (keyCode) {
        case kKeyLeft: next = cell - 1; break;
        case kKeyRight: next = cell + 1; break;
        case kKeyUp: next = cell - kColorGridColumns; break;
        case kKeyDown: next = cell + kColorGridColumns; break;
        case kKeyHome: next = 1; break;
        case kKeyEnd: next = last; break;
        default: break;
    }
    return next >= 1 && next <= last ? next : cell;
}

void FrmCourseSchedule::PaintColorGrid() {
    Canvas& canvas = *picColorGrid->canvas;
    const ColorVocabulary& colors = standardColors();
    canvas.clear(kButtonFace);
    const bool ringed = focusedControl == picColorGrid.key();
    for (int n = 1; n <= colors.ColorValues.count(); ++n) {
        const auto [x, y] = ColorGridCellOrigin(n);
        canvas.filledBox(x, y, x + kColorGridCell, y + kColorGridCell, kBlack);
        // The keyboard's cell, while the grid has the keys: a white ring inside the black one.
        const int inset = ringed && n == KeyboardColorCell ? 45 : 15;
        if (inset > 15) canvas.filledBox(x + 15, y + 15, x + kColorGridCell - 15, y + kColorGridCell - 15, kWhite);
        canvas.filledBox(x + inset, y + inset, x + kColorGridCell - inset, y + kColorGridCell - inset,
                         colors.ColorValues(n));
    }
}

void FrmCourseSchedule::bindColorGrid() {
    Control& grid = *picColorGrid;
    grid.focusable = true;
    on(picColorGrid.key(), FormEvent::MouseDown, [this](const EventArgs& args) {
        chooseColor(ColorGridCellAt(args.x, args.y));
    });
    on(picColorGrid.key(), FormEvent::KeyDown, [this](const EventArgs& args) {
        if (args.keyCode == kKeyReturn || args.keyCode == ' ') {
            chooseColor(KeyboardColorCell);
            return;
        }
        KeyboardColorCell = ColorGridKeyStep(KeyboardColorCell, args.keyCode);
        PaintColorGrid();
    });
    on(picColorGrid.key(), FormEvent::GotFocus, [this](const EventArgs&) {
        // The ring starts on the colour the choice below the grid holds now.
        const ColorVocabulary& colors = standardColors();
        const std::string& now = OptionForeColor->checked ? ForeColorName : BackColorName;
        KeyboardColorCell = 1;
        for (int n = 1; n <= colors.ColorNames.count(); ++n)
            if (colors.ColorNames(n) == now) KeyboardColorCell = n;
        PaintColorGrid();
    });
    on(picColorGrid.key(), FormEvent::LostFocus, [this](const EventArgs&) { PaintColorGrid(); });
}

void FrmCourseSchedule::chooseColor(int n) {
    if (!picColorGrid->enabled || n == 0) return;
    const ColorVocabulary& colors = standardColors();
    if (OptionForeColor->checked) {
        TextBoxClassName->foreColor = colors.ColorValues(n);
        ForeColorName = colors.ColorNames(n);
    } else {
        TextBoxClassName->backColor = colors.ColorValues(n);
        BackColorName = colors.ColorNames(n);
    }
}

}  // namespace qh
