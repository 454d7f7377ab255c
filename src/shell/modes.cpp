// The five modes of the main window. Each mode routine sets everything of its mode, from
// the menu ticks to the summary fields, then refreshes for the mode change.
#include <vector>

#include "shell/main_window.h"

namespace qh {
namespace {

using Ui = MainWindowControls;
using Ref = ControlRef Ui::*;

struct SummaryField {
    Ref label;
    int labelTop;
    const char* caption;
    Ref box;
    int boxTop;
};

// What a mode shows: the Edit menu's entries it allows, the export captions, its bar
// picture, the item in front of the left panel, the buttons and panels it shows, the
// choices of the two view combos, the summary fields and the column sorted first.
struct ModeSettings {
    Mode mode;
    Ref menu;
    bool classSchedule = false, newAssignment = false, newTask = false, newEvent = false;
    const char* exportCalendar = "Homework Calendar...";
    const char* exportList;
    Ref bar;
    Ref frontItem;
    bool buttonNewAssignment = false, buttonNewTask = false, buttonNewEvent = false;
    bool boxStudySessions = false, boxReminders = false, boxStudyTime = false, boxTerm = false;
    std::vector<std::string> listEntries, rangeEntries;
    std::vector<SummaryField> summary;
    const char* statusText;
    Int16 sortColumn;
};

const std::vector<ModeSettings>& modeTable() {
    static const std::vector<ModeSettings> table{
        {.mode = Mode::Homework,
         .menu = &Ui::MenuHomework,
         .classSchedule = true,
         .newAssignment = true,
         .exportList = "This Assignment List...",
         .bar = &Ui::PictureBarHomework,
         .frontItem = &Ui::ButtonNewAssignment,
         .buttonNewAssignment = true,
         .boxTerm = true,
         .listEntries = {"All", "Done", "Not Done"},
         .rangeEntries = {"Day", "Term"},
         .summary = {{&Ui::LabelTotalAssignments, 990, "Total Assignments:", &Ui::TextBoxTotalAssignments, 930},
                     {&Ui::LabelFinishedAssignments, 1380, "Unfinished Assignments:", &Ui::TextBoxFinishedAssignments, 1320},
                     {&Ui::LabelTimeRemaining, 1770, "Time Left:", &Ui::TextBoxTimeRemaining, 1710}},
         .statusText = "Homework Mode",
         .sortColumn = 7},
        {.mode = Mode::StudySessions,
         .menu = &Ui::MenuStudySessions,
         .exportList = "This Study List...",
         .bar = &Ui::PictureBarStudySessions,
         .frontItem = &Ui::PictureBoxStudySessions,
         .buttonNewAssignment = true,
         .boxStudySessions = true,
         .boxTerm = true,
         .listEntries = {"All"},
         .rangeEntries = {"Day", "Term"},
         .summary = {{&Ui::LabelTotalAssignments, 1230, "Study Sessions:", &Ui::TextBoxStudySessions, 1170},
                     {&Ui::LabelTimeRemaining, 1650, "Study Time:", &Ui::TextBoxStudyTime, 1590}},
         .statusText = "Study Session Mode",
         .sortColumn = 6},
        {.mode = Mode::Tasks,
         .menu = &Ui::MenuTasks,
         .newTask = true,
         .exportCalendar = "Task Calendar...",
         .exportList = "This Task List...",
         .bar = &Ui::PictureBarTasks,
         .frontItem = &Ui::ButtonNewTask,
         .buttonNewTask = true,
         .listEntries = {"All", "Done", "Not Done"},
         .rangeEntries = {"Day", "All", "With Date", "Without Date"},
         .summary = {{&Ui::LabelTotalAssignments, 1230, "Total Tasks:", &Ui::TextBoxTotalTasks, 1170},
                     {&Ui::LabelTimeRemaining, 1650, "Unfinished Tasks:", &Ui::TextBoxFinishedTasks, 1590}},
         .statusText = "Task Mode",
         .sortColumn = 5},
        {.mode = Mode::Events,
         .menu = &Ui::MenuEvents,
         .newEvent = true,
         .exportCalendar = "Event Calendar...",
         .exportList = "This Event List...",
         .bar = &Ui::PictureBarEvents,
         .frontItem = &Ui::ButtonNewEvent,
         .buttonNewEvent = true,
         .listEntries = {"All", "Classes", "Other Events"},
         .rangeEntries = {"Day", "Week", "Month", "Year"},
         .summary = {{&Ui::LabelTotalAssignments, 1230, "Classes:", &Ui::TextBoxClasses, 1170},
                     {&Ui::LabelTimeRemaining, 1650, "Other Events:", &Ui::TextBoxOtherEvents, 1590}},
         .statusText = "Event Mode",
         .sortColumn = 3},
        {.mode = Mode::Reminders,
         .menu = &Ui::MenuReminders,
         .exportList = "This Reminder List...",
         .bar = &Ui::PictureBarReminders,
         .frontItem = &Ui::PictureBoxReminders,
         .boxReminders = true,
         .boxStudyTime = true,
         .listEntries = {"All", "Homework", "Tasks", "Events"},
         .rangeEntries = {"Today"},
         .summary = {{&Ui::LabelTotalAssignments, 990, "Assignments:", &Ui::TextBoxAssignments, 930},
                     {&Ui::LabelFinishedAssignments, 1380, "Tasks:", &Ui::TextBoxTasks, 1320},
                     {&Ui::LabelTimeRemaining, 1770, "Events:", &Ui::TextBoxEvents, 1710}},
         .statusText = "Today's Reminders",
         .sortColumn = 5},
    };
    return table;
}

// Pictures of the mode bar: each mode's pressed and raised image.
struct BarImages {
    Ref bar;
    const char* down;
    const char* up;
};
constexpr BarImages kBarImages[] = {{&Ui::PictureBarHomework, "HomeworkDown", "HomeworkUp"},
                                    {&Ui::PictureBarStudySessions, "SessionsDown", "SessionsUp"},
                                    {&Ui::PictureBarTasks, "TasksDown", "TasksUp"},
                                    {&Ui::PictureBarEvents, "EventsDown", "EventsUp"},
                                    {&Ui::PictureBarReminders, "RemindersDown", "RemindersUp"}};

constexpr Ref kSummaryLabels[] = {&Ui::LabelTotalAssignments, &Ui::LabelFinishedAssignments, &Ui::LabelTimeRemaining};

ViewChoice& savedChoice(MainWindowState& state, Mode mode) {
    switch (mode) {
        case Mode::StudySessions: return state.SavedStudySessions;
        case Mode::Tasks: return state.SavedTasks;
        case Mode::Events: return state.SavedEvents;
        case Mode::Reminders: return state.SavedReminders;
        default: return state.SavedHomework;
    }
}

}  // namespace

void MainWindow::SetDefaultViewChoices() {
    state.SavedHomework = {"All", "Term"};
    state.SavedStudySessions = {"All", "Term"};
    state.SavedTasks = {"All", "All"};
    state.SavedEvents = {"All", "Month"};
    state.SavedReminders = {"All", "Today"};
}

void MainWindow::SaveViewChoices() {
    if (state.FirstModeSetup) {
        state.FirstModeSetup = false;
        return;
    }
    const Mode mode = CurrentMode();
    if (mode == Mode::None) return;
    savedChoice(state, mode) = {ui.ComboList->text, ui.ComboDateRange->text};
}

void MainWindow::RestoreViewChoices() {
    const Mode mode = CurrentMode();
    if (mode == Mode::None) return;
    const ViewChoice& choice = savedChoice(state, mode);
    for (auto [combo, text] : {std::pair{&ui.ComboList, &choice.List}, std::pair{&ui.ComboDateRange, &choice.Range}}) {
        Control& control = **combo;
        control.text = *text;
        control.listIndex = -1;
        for (std::size_t i = 0; i < control.items.size(); ++i)
            if (control.items[i] == *text) control.listIndex = int(i);
    }
    TintViewPanel();
}

void MainWindow::applyModeTable(Mode mode) {
    const ModeSettings* found = nullptr;
    for (const ModeSettings& settings : modeTable())
        if (settings.mode == mode) found = &settings;
    const ModeSettings& m = *found;

    state.SuppressComboEvents = true;
    SaveViewChoices();

    state.CurrentMode = mode;
    for (const ModeSettings& other : modeTable()) (ui.*other.menu)->checked = other.mode == mode;

    ui.MenuClassSchedule->enabled = m.classSchedule;
    ui.MenuNewAssignment->enabled = m.newAssignment;
    ui.MenuNewTask->enabled = m.newTask;
    ui.MenuNewEvent->enabled = m.newEvent;

    ui.MenuExportCalendar->caption = m.exportCalendar;
    ui.MenuExportList->caption = m.exportList;

    for (const BarImages& images : kBarImages)
        (ui.*images.bar)->picture = images.bar == m.bar ? images.down : images.up;

    bringToFront((ui.*m.frontItem).key());
    (ui.*m.frontItem)->visible = true;
    ui.ButtonNewAssignment->visible = m.buttonNewAssignment;
    // Under the study panel the button shows at no point, so Tab passes it by.
    ui.ButtonNewAssignment->tabStop = m.frontItem == &Ui::ButtonNewAssignment;
    ui.ButtonNewTask->visible = m.buttonNewTask;
    ui.ButtonNewEvent->visible = m.buttonNewEvent;
    ui.PictureBoxStudySessions->visible = m.boxStudySessions;
    ui.PictureBoxReminders->visible = m.boxReminders;
    ui.PictureBoxStudyTime->visible = m.boxStudyTime;
    ui.PictureBoxTerm->visible = m.boxTerm;
    ui.PictureBoxTerm->left = 4530;
    ui.PictureBoxTerm->top = 930;
    ui.PictureBoxViewMenus->visible = true;

    for (auto [combo, entries] :
         {std::pair{&ui.ComboList, &m.listEntries}, std::pair{&ui.ComboDateRange, &m.rangeEntries}}) {
        Control& control = **combo;
        control.items = *entries;
        control.listIndex = -1;
        control.text.clear();
    }
    RestoreViewChoices();

    for (Ref label : kSummaryLabels) (ui.*label)->visible = false;
    for (const ControlRef* box : ui.summaryBoxes()) (*box)->visible = false;
    for (const SummaryField& field : m.summary) {
        Control& label = *(ui.*field.label);
        label.top = field.labelTop;
        label.caption = field.caption;
        label.visible = true;
        Control& box = *(ui.*field.box);
        box.top = field.boxTop;
        // A screen reader calls the figure by its label, without the colon.
        box.accessibleName = std::string(field.caption).substr(0, std::string(field.caption).find(':'));
        box.visible = true;
    }

    state.StatusBarText = m.statusText;
    PaintStatusBar();

    state.SortColumn = m.sortColumn;
    state.SortDirection = SortDirection::Ascending;
    state.SuppressComboEvents = false;

    Refresh(RefreshReason::ModeChange);
    ui.picLock->visible = mode == Mode::Reminders;
}

void MainWindow::SetHomeworkMode() { applyModeTable(Mode::Homework); }
void MainWindow::SetStudySessionMode() { applyModeTable(Mode::StudySessions); }
void MainWindow::SetTaskMode() { applyModeTable(Mode::Tasks); }
void MainWindow::SetEventMode() { applyModeTable(Mode::Events); }
void MainWindow::SetReminderMode() { applyModeTable(Mode::Reminders); }

}  // namespace qh
