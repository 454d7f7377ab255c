// The five modes of the main window. Each mode routine sets everything of its mode, from
// the menu ticks to the summary fields, then refreshes with "Mode Change".
#include <vector>

#include "shell/main_window.h"

namespace qh {
namespace {

struct SummaryField {
    const char* label;
    int labelTop;
    const char* caption;
    const char* box;
    int boxTop;
};

struct ModeSettings {
    Mode mode;
    const char* menu;
    bool classSchedule, newAssignment, newTask, newEvent;
    const char* exportCalendar;
    const char* exportList;
    const char* bar;
    const char* frontItem;
    bool buttonNewAssignment, buttonNewTask, buttonNewEvent, boxStudySessions, boxReminders, boxStudyTime, boxTerm;
    std::vector<std::string> listEntries, rangeEntries;
    std::vector<SummaryField> summary;
    const char* statusText;
    Int16 sortColumn;
};

const std::vector<ModeSettings>& modeTable() {
    static const std::vector<ModeSettings> table{
        {Mode::Homework, "MenuHomework", true, true, false, false, "Homework Calendar...",
         "This Assignment List...", "PictureBarHomework", "ButtonNewAssignment", true, false, false, false, false,
         false, true, {"All", "Done", "Not Done"}, {"Day", "Term"},
         {{"LabelTotalAssignments", 990, "Total Assignments:", "TextBoxTotalAssignments", 930},
          {"LabelFinishedAssignments", 1380, "Unfinished Assignments:", "TextBoxFinishedAssignments", 1320},
          {"LabelTimeRemaining", 1770, "Time Left:", "TextBoxTimeRemaining", 1710}},
         "Homework Mode", 7},
        {Mode::StudySessions, "MenuStudySessions", false, false, false, false, "Homework Calendar...",
         "This Study List...", "PictureBarStudySessions", "PictureBoxStudySessions", true, false, false, true, false,
         false, true, {"All"}, {"Day", "Term"},
         {{"LabelTotalAssignments", 1230, "Study Sessions:", "TextBoxStudySessions", 1170},
          {"LabelTimeRemaining", 1650, "Study Time:", "TextBoxStudyTime", 1590}},
         "Study Session Mode", 6},
        {Mode::Tasks, "MenuTasks", false, false, true, false, "Task Calendar...", "This Task List...",
         "PictureBarTasks", "ButtonNewTask", false, true, false, false, false, false, false,
         {"All", "Done", "Not Done"}, {"Day", "All", "With Date", "Without Date"},
         {{"LabelTotalAssignments", 1230, "Total Tasks:", "TextBoxTotalTasks", 1170},
          {"LabelTimeRemaining", 1650, "Unfinished Tasks:", "TextBoxFinishedTasks", 1590}},
         "Task Mode", 5},
        {Mode::Events, "MenuEvents", false, false, false, true, "Event Calendar...", "This Event List...",
         "PictureBarEvents", "ButtonNewEvent", false, false, true, false, false, false, false,
         {"All", "Classes", "Other Events"}, {"Day", "Week", "Month", "Year"},
         {{"LabelTotalAssignments", 1230, "Classes:", "TextBoxClasses", 1170},
          {"LabelTimeRemaining", 1650, "Other Events:", "TextBoxOtherEvents", 1590}},
         "Event Mode", 3},
        {Mode::Reminders, "MenuReminders", false, false, false, false, "Homework Calendar...",
         "This Reminder List...", "PictureBarReminders", "PictureBoxReminders", false, false, false, false, true, true,
         false, {"All", "Homework", "Tasks", "Events"}, {"Today"},
         {{"LabelTotalAssignments", 990, "Assignments:", "TextBoxAssignments", 930},
          {"LabelFinishedAssignments", 1380, "Tasks:", "TextBoxTasks", 1320},
          {"LabelTimeRemaining", 1770, "Events:", "TextBoxEvents", 1710}},
         "Today's Reminders", 5},
    };
    return table;
}

// Pictures of the mode bar: each mode's pressed and raised image.
struct BarImages {
    const char* bar;
    const char* down;
    const char* up;
};
constexpr BarImages kBarImages[] = {{"PictureBarHomework", "HomeworkDown", "HomeworkUp"},
                                    {"PictureBarStudySessions", "SessionsDown", "SessionsUp"},
                                    {"PictureBarTasks", "TasksDown", "TasksUp"},
                                    {"PictureBarEvents", "EventsDown", "EventsUp"},
                                    {"PictureBarReminders", "RemindersDown", "RemindersUp"}};

constexpr const char* kSummaryLabels[] = {"LabelTotalAssignments", "LabelFinishedAssignments", "LabelTimeRemaining"};
constexpr const char* kSummaryBoxes[] = {"TextBoxTotalAssignments", "TextBoxFinishedAssignments",
                                         "TextBoxTimeRemaining",    "TextBoxStudySessions",
                                         "TextBoxStudyTime",        "TextBoxTotalTasks",
                                         "TextBoxFinishedTasks",    "TextBoxClasses",
                                         "TextBoxOtherEvents",      "TextBoxAssignments",
                                         "TextBoxTasks",            "TextBoxEvents"};

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
        state.FirstModeSetup = kFalse;
        return;
    }
    const Mode mode = CurrentMode();
    if (mode == Mode::None) return;
    savedChoice(state, mode) = {c("ComboList").text, c("ComboDateRange").text};
}

void MainWindow::RestoreViewChoices() {
    const Mode mode = CurrentMode();
    if (mode == Mode::None) return;
    const ViewChoice& choice = savedChoice(state, mode);
    for (auto [combo, text] : {std::pair{"ComboList", &choice.List}, std::pair{"ComboDateRange", &choice.Range}}) {
        Control& control = c(combo);
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

    state.SuppressComboEvents = kTrue;
    SaveViewChoices();

    for (const ModeSettings& other : modeTable()) c(other.menu).checked = other.mode == mode;

    c("MenuClassSchedule").enabled = m.classSchedule;
    c("MenuNewAssignment").enabled = m.newAssignment;
    c("MenuNewTask").enabled = m.newTask;
    c("MenuNewEvent").enabled = m.newEvent;

    c("MenuExportCalendar").caption = m.exportCalendar;
    c("MenuExportList").caption = m.exportList;

    for (const BarImages& images : kBarImages)
        c(images.bar).picture = std::string(images.bar) == m.bar ? images.down : images.up;

    bringToFront(m.frontItem);
    c(m.frontItem).visible = true;
    c("ButtonNewAssignment").visible = m.buttonNewAssignment;
    // Under the study panel the button shows at no point, so Tab passes it by.
    c("ButtonNewAssignment").tabStop = std::string(m.frontItem) == "ButtonNewAssignment";
    c("ButtonNewTask").visible = m.buttonNewTask;
    c("ButtonNewEvent").visible = m.buttonNewEvent;
    c("PictureBoxStudySessions").visible = m.boxStudySessions;
    c("PictureBoxReminders").visible = m.boxReminders;
    c("PictureBoxStudyTime").visible = m.boxStudyTime;
    c("PictureBoxTerm").visible = m.boxTerm;
    c("PictureBoxTerm").left = 4530;
    c("PictureBoxTerm").top = 930;
    c("PictureBoxViewMenus").visible = true;

    for (auto [combo, entries] : {std::pair{"ComboList", &m.listEntries}, std::pair{"ComboDateRange", &m.rangeEntries}}) {
        Control& control = c(combo);
        control.items = *entries;
        control.listIndex = -1;
        control.text.clear();
    }
    RestoreViewChoices();

    for (const char* name : kSummaryLabels) c(name).visible = false;
    for (const char* name : kSummaryBoxes) c(name).visible = false;
    for (const SummaryField& field : m.summary) {
        Control& label = c(field.label);
        label.top = field.labelTop;
        label.caption = field.caption;
        label.visible = true;
        Control& box = c(field.box);
        box.top = field.boxTop;
        // A screen reader calls the figure by its label, without the colon.
        box.accessibleName = std::string(field.caption).substr(0, std::string(field.caption).find(':'));
        box.visible = true;
    }

    state.StatusBarText = m.statusText;
    PaintStatusBar();

    state.SortColumn = m.sortColumn;
    state.SortDirection = 1;
    state.SuppressComboEvents = kFalse;

    Refresh("Mode Change");
    c("picLock").visible = mode == Mode::Reminders;
}

void MainWindow::SetHomeworkMode() { applyModeTable(Mode::Homework); }
void MainWindow::SetStudySessionMode() { applyModeTable(Mode::StudySessions); }
void MainWindow::SetTaskMode() { applyModeTable(Mode::Tasks); }
void MainWindow::SetEventMode() { applyModeTable(Mode::Events); }
void MainWindow::SetReminderMode() { applyModeTable(Mode::Reminders); }

}  // namespace qh
