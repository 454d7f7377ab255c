#pragma once
// Records put straight into the record store's columns (events: recurrence/event_records.h),
// and a main window in one mode on the fake platform, for the tests of the lists.
#include <string>

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

// A main window, not loaded, with its colours built and one mode ticked; the grid laid
// out for that mode.
class ListWindow {
public:
    explicit ListWindow(Mode mode) : window(store, fake.platform) {
        window.colors->BuildColorValues();
        window.colors->BuildColorNames();
        window.state.ClickedDate = window.state.DisplayedDate = fake.clock.today();
        setMode(mode);
    }
    void setMode(Mode mode) {
        const char* menus[] = {"MenuHomework", "MenuStudySessions", "MenuTasks", "MenuEvents", "MenuReminders"};
        for (int i = 0; i < 5; ++i) window.c(menus[i]).checked = int(mode) == i + 1;
        const Int16 sortColumns[] = {7, 6, 5, 3, 5};
        window.state.SortColumn = sortColumns[int(mode) - 1];
        window.state.SortDirection = 1;
        this->mode = mode;
    }
    void filters(const std::string& list, const std::string& range) {
        window.c("ComboList").text = list;
        window.c("ComboDateRange").text = range;
    }
    // Lays out the grid and builds the list, as a refresh does.
    void build() {
        window.LayoutGrid(mode);
        window.BuildList(mode);
    }
    RecordingCanvas& grid() { return dynamic_cast<RecordingCanvas&>(*window.c("picGrid").canvas); }
    RecordingCanvas& header(int i) { return dynamic_cast<RecordingCanvas&>(*window.c("picColHeader", i).canvas); }
    // What stands in column c of visible row v (texts printed at the cell's text position).
    std::string cell(int v, int c) {
        const Control& h = window.c("picColHeader", c);
        const int y = ((v - 1) * 22 + 20 + 4) * 15;
        if (c == 0) return grid().textsIn(0, y, 345, y);  // the number cell stands on the same line
        return grid().textsIn(h.left + 45, y, h.left + 45, y);
    }
    // The background of column c of visible row v.
    Color cellBack(int v, int c) {
        const Control& h = window.c("picColHeader", c);
        const int y = ((v - 1) * 22 + 20 + 1) * 15;
        Color found = 0x123456;
        for (const CanvasCall& call : grid().calls())
            if (call.kind == CanvasCall::FilledBox && call.x1 == h.left + 15 && call.y1 == y) found = call.color;
        return found;
    }
    // The check box picture of column c of visible row v, empty if none.
    std::string picture(int v, int c) {
        const Control& h = window.c("picColHeader", c);
        std::string found;
        for (const CanvasCall& call : grid().calls())
            if (call.kind == CanvasCall::Picture && call.x1 == h.left + 225 && call.y1 == (v - 1) * 330 + 300 + 75)
                found = call.text;
        return found;
    }
    // Numbers of the rows painted, in order.
    std::vector<std::string> numbers() {
        std::vector<std::string> found;
        for (const CanvasCall& call : grid().calls())
            if (call.kind == CanvasCall::Text && call.x2 == 345) found.push_back(call.text);
        return found;
    }
    std::string text(const std::string& control) { return window.c(control).text; }
    Color back(const std::string& control) { return window.c(control).backColor; }

    FakePlatform fake;
    RecordStore store;
    MainWindow window;
    Mode mode = Mode::Homework;
};

}  // namespace qh::testing
