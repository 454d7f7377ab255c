#include "state_printer.h"

#include <algorithm>
#include <cstdio>
#include <iomanip>

#include "list_view/grid.h"
#include "platform/fake/recording_canvas.h"
#include "record_store/color_vocabulary.h"

namespace qh {
namespace {

const char* modeName(Mode mode) {
    switch (mode) {
        case Mode::Homework: return "Homework";
        case Mode::StudySessions: return "Study Sessions";
        case Mode::Tasks: return "Tasks";
        case Mode::Events: return "Events";
        case Mode::Reminders: return "Reminders";
        case Mode::None: break;
    }
    return "None";
}

std::string quoted(const std::string& text) { return "\"" + text + "\""; }

void printCombo(const ControlRef& ref, std::ostream& out) {
    const Control& combo = *ref;
    out << ref.key() << ": " << quoted(combo.text) << " of [";
    for (std::size_t i = 0; i < combo.items.size(); ++i) out << (i ? ", " : "") << combo.items[i];
    out << "]\n";
}

const RecordingCanvas* recording(const Control& control) {
    return dynamic_cast<const RecordingCanvas*>(control.canvas.get());
}

// The texts of a canvas inside a box, and the colour of the filled box that starts there.
std::string cellText(const RecordingCanvas& canvas, int x1, int y1, int x2, int y2) {
    return canvas.textsIn(x1, y1, x2, y2);
}

std::string cellFill(const RecordingCanvas& canvas, int x1, int y1, int x2, int y2) {
    std::string fill;
    for (const CanvasCall& call : canvas.calls())
        if (call.kind == CanvasCall::FilledBox && call.x1 >= x1 && call.x1 <= x2 && call.y1 >= y1 && call.y1 <= y2)
            fill = colorText(call.color);
    return fill;
}

std::string cellPicture(const RecordingCanvas& canvas, int x1, int y1, int x2, int y2) {
    std::string picture;
    for (const CanvasCall& call : canvas.calls())
        if (call.kind == CanvasCall::Picture && call.x1 >= x1 && call.x1 <= x2 && call.y1 >= y1 && call.y1 <= y2)
            picture = call.text;
    return picture;
}

void printGrid(const MainWindow& window, std::ostream& out) {
    std::vector<const Control*> headers;
    for (int i = 0; i < 9; ++i)
        if (window.c("picColHeader", i).visible) headers.push_back(&window.c("picColHeader", i));
    out << "Grid headers:";
    for (const Control* header : headers) {
        const RecordingCanvas* canvas = recording(*header);
        out << " [" << (canvas ? canvas->textsIn(0, 0, 1 << 20, 1 << 20) : "") << " " << header->picture << "]";
    }
    out << "\n";
    const RecordingCanvas* grid = recording(*window.ui.picGrid);
    if (!grid) return;
    const MainWindowState& s = window.state;
    const int pitch = s.RowPitch * 15;
    const int visible = std::min<int>(s.RowsVisible, std::max<int>(0, s.RowCount - s.TopRow + 1));
    out << "Rows: " << s.RowCount << " from " << s.TopRow << "\n";
    for (int v = 1; v <= visible; ++v) {
        const int top = (v - 1) * pitch + s.HeaderHeight * 15;
        out << "Row " << v << ":";
        for (const Control* header : headers) {
            const int x1 = header->left, x2 = header->left + header->width - 1;
            out << " | " << cellText(*grid, x1, top, x2, top + pitch - 1);
            const std::string fill = cellFill(*grid, x1, top, x2, top + pitch - 1);
            if (!fill.empty()) out << " {" << fill << "}";
            const std::string picture = cellPicture(*grid, x1, top, x2, top + pitch - 1);
            if (!picture.empty()) out << " <" << picture << ">";
        }
        out << "\n";
    }
}

// The last call of a kind inside a box, as the cell shows it now: what a later paint
// covered (a row's number marked, then plain again) no longer counts.
const CanvasCall* lastCallIn(const RecordingCanvas& canvas, CanvasCall::Kind kind, int x1, int y1, int x2, int y2) {
    const CanvasCall* last = nullptr;
    for (const CanvasCall& call : canvas.calls())
        if (call.kind == kind && call.x1 >= x1 && call.x1 <= x2 && call.y1 >= y1 && call.y1 <= y2) last = &call;
    return last;
}

}  // namespace

void PrintWindowState(const MainWindow& window, std::ostream& out) {
    out << "== " << modeName(window.CurrentMode()) << "\n";
    out << "LabelTop: " << quoted(window.ui.LabelTop->caption) << "\n";
    for (const ControlRef* label : {&window.ui.LabelTotalAssignments, &window.ui.LabelFinishedAssignments,
                                    &window.ui.LabelTimeRemaining}) {
        const Control& control = **label;
        if (control.visible) out << label->key() << ": " << quoted(control.caption) << "\n";
    }
    for (const std::string& key : window.order()) {
        const Control& box = window.c(key);
        if (box.kind == ControlKind::TextBox && box.visible && box.container.empty())
            out << key << ": " << quoted(box.text) << " on " << colorText(box.backColor) << "\n";
    }
    if (window.ui.PictureBoxTerm->visible) {
        out << "Term: " << quoted(window.ui.LabelTerm->caption) << " " << quoted(window.ui.LabelDaysLeft->caption)
            << "\n";
        printCombo(window.ui.ComboGPA, out);
    }
    if (window.ui.PictureBoxStudyTime->visible) {
        for (const ControlRef* box : {&window.ui.TextBoxMinimum, &window.ui.TextBoxSuggested})
            out << box->key() << ": " << quoted((*box)->text) << " on " << colorText((*box)->backColor) << "\n";
    }
    if (window.ui.PictureBoxStudySessions->visible)
        out << "Stopwatch: " << quoted(window.ui.LabelTime->caption) << " " << window.ui.ButtonStart->caption << "\n";
    printCombo(window.ui.ComboList, out);
    printCombo(window.ui.ComboDateRange, out);
    out << "Status: " << quoted(window.state.StatusBarText) << "\n";
    if (const RecordingCanvas* bar = recording(*window.ui.picStatusBar)) {
        const auto texts = bar->texts();
        if (texts.size() > 1) out << "Clock: " << quoted(texts.back()) << "\n";
    }

    out << "Calendar: " << window.ui.calendar.LabelMonth->caption << "\n";
    out << "Days:";
    for (int i = 0; i < 7; ++i) {
        const Control& day = window.ui.calendar.LabelCalDay[i];
        out << " " << day.caption << (day.underline ? "_" : "");
    }
    out << "\n";
    for (int row = 0; row < 6; ++row) {
        for (int col = 0; col < 7; ++col) {
            const int i = row * 7 + col;
            const Control& cell = window.ui.calendar.LabelCalDate[i];
            out << (col ? "  " : "") << std::setw(2) << cell.caption << (cell.bold ? "*" : " ")
                << (window.state.CellIsToday[std::size_t(i)] ? "[" : " ") << colorText(cell.foreColor).substr(2)
                << "/" << colorText(cell.backColor).substr(2);
        }
        out << "\n";
    }
    printGrid(window, out);
}

namespace {

std::string colorWord(Color color) {
    const ColorVocabulary& colors = standardColors();
    for (int row = 1; row <= colors.ColorNames.count(); ++row)
        if (colors.ColorValues(row) == color) return colors.ColorNames(row);
    char hex[8];
    std::snprintf(hex, sizeof hex, "#%02X%02X%02X", redOf(color), greenOf(color), blueOf(color));
    return hex;
}

}  // namespace

void PrintWindowHeader(const Form& window, std::ostream& out) {
    out << "Window " << window.name() << " " << quotedText(window.caption) << " " << window.width << " x "
        << window.height << "\n";
}

void PrintFormControls(const Form& window, std::ostream& out) {
    PrintWindowHeader(window, out);
    std::vector<const Control*> controls;
    for (const std::string& key : window.order()) {
        const Control& control = window.c(key);
        if (control.kind != ControlKind::Timer && control.kind != ControlKind::Menu) controls.push_back(&control);
    }
    std::sort(controls.begin(), controls.end(), [](const Control* a, const Control* b) {
        return a->name != b->name ? a->name < b->name : a->index < b->index;
    });
    for (const Control* control : controls) PrintControlLine(*control, out);
}

void PrintControlLine(const Control& control, std::ostream& out) {
    const bool textual = control.kind == ControlKind::TextBox || control.kind == ControlKind::ComboBox ||
                         control.kind == ControlKind::ListBox;
    out << "  " << control.key() << " " << quotedText(textual ? control.text : control.caption);
    if (control.checked) out << " checked";
    if (!control.enabled) out << " disabled";
    if (!control.visible) out << " hidden";
    if (control.kind == ControlKind::ComboBox || control.kind == ControlKind::ListBox)
        out << " entries=" << control.items.size();
    const bool plain = control.foreColor == kBlack && (control.backColor == kWhite || control.backColor == kButtonFace);
    if (!plain) out << " fore=" << colorWord(control.foreColor) << " back=" << colorWord(control.backColor);
    out << "\n";
}

void PrintGridRowCells(const MainWindow& window, int v, std::ostream& out) {
    const RecordingCanvas* grid = recording(*window.ui.picGrid);
    const MainWindowState& s = window.state;
    const int pitch = s.RowPitch * 15, top = (v - 1) * pitch + s.HeaderHeight * 15, bottom = top + pitch - 1;
    out << "Cells " << v << ":";
    for (int i = 0; grid && i < 9 && window.c("picColHeader", i).visible; ++i) {
        const Control& header = window.c("picColHeader", i);
        const int x1 = header.left, x2 = header.left + header.width - 1;
        out << (i ? " |" : "");
        if (const CanvasCall* text = lastCallIn(*grid, CanvasCall::Text, x1, top, x2, bottom))
            out << " " << quotedText(text->text) << " " << colorWord(text->color);
        if (const CanvasCall* fill = lastCallIn(*grid, CanvasCall::FilledBox, x1, top, x2, bottom))
            out << " on " << colorWord(fill->color);
    }
    bool framed = false;
    if (grid)
        for (const CanvasCall& call : grid->calls())
            if (call.kind == CanvasCall::Line && call.color == kKeyboardRowFrame && call.y1 > top && call.y1 < bottom)
                framed = true;
    out << (framed ? " framed" : "") << "\n";
}

}  // namespace qh
