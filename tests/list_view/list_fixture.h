#pragma once
// Records put straight into the record store's columns (events: recurrence/event_records.h),
// and a main window in one mode on the fake platform, for the tests of the lists.
#include <algorithm>
#include <string>
#include <vector>

#include "list_view/grid.h"
#include "list_view/list_rows.h"
#include "record_store/color_vocabulary.h"
#include "shell/main_window.h"
#include "support/fake_platform.h"

namespace qh::testing {

inline void addClass(RecordStore& s, int id, const std::string& name, const std::string& fore = "Black",
                     const std::string& back = "White", int term = 1) {
    s.ClassIDs.append(std::to_string(id));
    s.ClassTermLinks.append(std::to_string(term));
    s.ClassNames.append(name);
    s.ClassForeColors.append(fore);
    s.ClassBackColors.append(back);
    s.ClassNotes.append("");
}

struct AssignmentFields {
    int id = 0;
    int classLink = 1;
    std::string date = "2026/11/21";
    std::string description = "Read chapter";
    bool done = false;
    std::string estimate = "01 : 00";
    std::string grade = "";
    std::string weight = "5";
    std::string type = "Homework";
    std::string difficulty = "Medium";
    std::string reminder = "None";
};

// Appends an assignment; its ID and record number are its row unless given.
inline int addAssignment(RecordStore& s, AssignmentFields f) {
    const int row = s.AssignmentRecordNos.count() + 1;
    const int id = f.id ? f.id : row;
    s.AssignmentRecordNos.append(std::to_string(row));
    s.AssignmentIDs.append(std::to_string(id));
    s.AssignmentClassLinks.append(std::to_string(f.classLink));
    s.AssignmentDates.append(f.date);
    s.AssignmentTypes.append(f.type);
    s.AssignmentDifficulties.append(f.difficulty);
    s.AssignmentEstTimes.append(f.estimate);
    s.AssignmentDescriptions.append(f.description);
    s.AssignmentDones.append(f.done ? "True" : "False");
    s.AssignmentGrades.append(f.grade);
    s.AssignmentWeights.append(f.weight);
    s.AssignmentReminders.append(f.reminder);
    return row;
}

inline void addSession(RecordStore& s, int link, const std::string& length, const std::string& date = "2026/11/20") {
    s.StudySessionRecordNos.append(std::to_string(s.StudySessionRecordNos.count() + 1));
    s.StudySessionLinkIDs.append(std::to_string(link));
    s.StudySessionLengths.append(length);
    s.StudySessionDates.append(date);
}

struct TaskFields {
    std::string description = "Buy paper";
    bool dated = true;
    std::string date = "2026/11/21";
    std::string type = "Personal";
    std::string priority = "Normal";
    bool done = false;
    std::string reminder = "None";
};

inline int addTask(RecordStore& s, TaskFields f) {
    const int row = s.TaskRecordNos.count() + 1;
    s.TaskRecordNos.append(std::to_string(row));
    s.TaskIDs.append(std::to_string(row));
    s.TaskDescriptions.append(f.description);
    s.TaskDateExists.append(f.dated ? "True" : "False");
    s.TaskDates.append(f.date);
    s.TaskTypes.append(f.type);
    s.TaskPriorities.append(f.priority);
    s.TaskDones.append(f.done ? "True" : "False");
    s.TaskNotes.append("");
    s.TaskReminders.append(f.reminder);
    return row;
}

// The values of a row column, whatever width of integer it keeps them in.
template <class T>
std::vector<int> asInts(const Column<T>& column) {
    return {column.begin(), column.end()};
}

// A main window, not loaded, with its colours built and one mode ticked, sorted by the
// mode's first sort column.
class ListWindow {
public:
    explicit ListWindow(Mode m) : window(store, fake.platform), mode(m) {
        window.colors->BuildColorValues();
        window.colors->BuildColorNames();
        window.state.ClickedDate = window.state.DisplayedDate = fake.clock.today();
        window.state.CurrentMode = mode;
        const Int16 sortColumns[] = {7, 6, 5, 3, 5};
        window.state.SortColumn = sortColumns[int(mode) - 1];
        window.state.SortDirection = SortDirection::Ascending;
    }
    void filters(const std::string& list, const std::string& range) {
        window.ui.ComboList->text = list;
        window.ui.ComboDateRange->text = range;
    }
    // Lays out the grid and builds the list, as a refresh does.
    void build() {
        window.LayoutGrid(mode);
        window.BuildList(mode);
    }
    RecordingCanvas& grid() { return dynamic_cast<RecordingCanvas&>(*window.ui.picGrid->canvas); }
    // What stands in column c of visible row v: the texts printed at the cell's text
    // position, or the check box picture painted in it.
    std::string cell(int v, int c) {
        const int left = window.c("picColHeader", c).left, top = rowTop(v);
        if (c == 0) return grid().textsIn(0, top + 60, 345, top + 60);  // the number stands on the same line
        std::string found = grid().textsIn(left + 45, top + 60, left + 45, top + 60);
        for (const CanvasCall& call : grid().calls())
            if (call.kind == CanvasCall::Picture && call.x1 == left + 225 && call.y1 == top + 75) found += call.text;
        return found;
    }
    // Visible row v as its cells joined by "|" over the columns the mode shows, then the
    // names of its text and background colours: "1| Art|...|Checked Navy/MistyRose".
    std::string row(int v) {
        std::string row = cell(v, 0);
        for (int c = 1; c < 9 && window.c("picColHeader", c).visible; ++c) row += "|" + cell(v, c);
        return row + " " + colourName(cellFore(v, 1)) + "/" + colourName(cellBack(v, 1));
    }
    // The colour of the texts and of the background of column c of visible row v.
    Color cellFore(int v, int c) { return cellCall(v, c, CanvasCall::Text, 45, 60); }
    Color cellBack(int v, int c) { return cellCall(v, c, CanvasCall::FilledBox, 15, 15); }
    std::string text(const std::string& control) { return window.c(control).text; }
    Color back(const std::string& control) { return window.c(control).backColor; }

    FakePlatform fake;
    RecordStore store;
    MainWindow window;
    Mode mode;

private:
    std::string colourName(Color color) {
        for (int i = 1; i <= window.colors->ColorNames.count(); ++i)
            if (window.colors->ColorValues(i) == color) return window.colors->ColorNames(i);
        return "?";
    }
    int rowTop(int v) { return ((v - 1) * 22 + 20) * 15; }
    Color cellCall(int v, int c, CanvasCall::Kind kind, int dx, int dy) {
        const int left = window.c("picColHeader", c).left;
        Color found = 0x123456;
        for (const CanvasCall& call : grid().calls()) {
            const bool inCell = c == 0 ? call.x1 <= 345 : call.x1 == left + dx;
            if (call.kind == kind && inCell && call.y1 == rowTop(v) + dy) found = call.color;
        }
        return found;
    }
};

}  // namespace qh::testing
