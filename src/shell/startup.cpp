// The load and the unload of the main window.
#include <array>
#include <vector>

#include "common/failure.h"
#include "editors/editor_windows.h"
#include "record_store/backups.h"
#include "record_store/color_vocabulary.h"
#include "record_store/record_files.h"
#include "record_store/storage_locations.h"
#include "shell/feed_subscriptions.h"
#include "shell/main_window.h"
#include "shell/preferences.h"

namespace qh {
namespace {

// Context-help numbers of the main window's controls, given in runs from a first number.
struct HelpRun {
    int first;
    std::vector<const ControlRef*> controls;
};

std::array<HelpRun, 3> helpRuns(const MainWindowControls& ui) {
    const MonthCalendarControls& calendar = ui.calendar;
    return {{
        {101,
         {&ui.ButtonNewAssignment, &ui.ButtonNewEvent, &ui.ButtonNewTask, &ui.ButtonSelectTerm, &ui.ComboDateRange,
          &ui.ComboGPA, &ui.ComboList, &ui.picGrid, &ui.picHelp, &ui.picCalDayDown, &ui.picCalDayUp,
          &calendar.picCalMonthDown, &calendar.picCalMonthUp}},
        {115,
         {&calendar.LabelCalDayBG, &ui.LabelDaysLeft, &calendar.LabelMonth, &ui.LabelTerm, &calendar.LabelToday,
          &calendar.LabelTomorrow, &ui.LabelTop, &calendar.picCalendar, &ui.PictureBarEvents, &ui.PictureBarHomework,
          &ui.PictureBarReminders, &ui.PictureBarStudySessions, &ui.PictureBarTasks, &ui.PictureBoxReminders,
          &ui.PictureBoxStudySessions}},
        {133,
         {&ui.picStatusBar, &ui.TextBoxAssignments, &ui.TextBoxClasses, &ui.TextBoxEvents,
          &ui.TextBoxFinishedAssignments, &ui.TextBoxFinishedTasks, &ui.TextBoxMinimum, &ui.TextBoxOtherEvents,
          &ui.TextBoxStudySessions, &ui.TextBoxStudyTime, &ui.TextBoxSuggested, &ui.TextBoxTasks,
          &ui.TextBoxTimeRemaining, &ui.TextBoxTotalAssignments, &ui.TextBoxTotalTasks, &ui.picLock,
          &ui.PictureBarWeb}},
    }};
}

}  // namespace

std::string MainWindow::pidFilePath() const {
    return joinPath(platform.environment.get("U3_HOST_EXEC_PATH"), std::to_string(state.ProcessID) + ".PID");
}

void MainWindow::Form_Load() {
    for (const HelpRun& run : helpRuns(ui)) {
        int number = run.first;
        for (const ControlRef* control : run.controls) (*control)->helpContextId = number++;
    }

    ui.TimerButton->enabled = false;
    ui.Timer1->enabled = false;
    state.StopwatchRun = state.StopwatchTotal = 0;
    state.StopwatchStart = Moment{};
    store.TermsChanged = store.ClassesChanged = store.AssignmentsChanged = store.NotesChanged =
        store.StudySessionsChanged = store.TasksChanged = store.EventsChanged = kFalse;

    state.RowPitch = 22;

    setOuterSize(9600, 7215);
    caption = "Quillhollow Homework System";
    left = (platform.windowing.screenWidthTwips() - width) / 2;
    top = (platform.windowing.screenHeightTwips() - height) / 2;

    minWidth = width;
    minHeight = height;

    state.CalendarCellHeight = 225;
    state.CalendarCellWidth = 300;
    state.Colors = MainWindowColors{};

    colors->BuildColorValues();
    colors->BuildColorNames();

    state.ButtonRepeatInterval = 300;
    state.ClickedDate = state.DisplayedDate = platform.clock.today();
    state.StartDayOfWeek = "Monday";
    state.GridMargin = 100;
    state.TopRow = 1;

    bringToFront("picStatusBar");

    // Without its .PID file the run may not go on: a failure here ends it.
    state.ProcessID = platform.processes.ownProcessId();
    try {
        platform.files.createEmpty(pidFilePath());
    } catch (const FileFailure& failure) {
        throw UntrappedFailure(std::string("Cannot create the process file: ") + failure.what());
    }

    if (!SetStorageLocations(store, platform)) {
        loadEndedRun_ = true;
        return;
    }
    if (store.DriveReadOnly) caption += std::string(" - ") + kReadOnlyText;
    files->LoadTermsAndClasses();
    files->LoadAssignments();
    files->LoadTasks();
    files->LoadEvents();

    state.SortDirection = SortDirection::Ascending;
    state.SortColumn = 7;
    state.PressedRow = 0;

    editors->LoadAll();

    state.FirstModeSetup = true;
    SetDefaultViewChoices();

    WindowPlacement placement{int(windowState), left, top, width, height};
    PreferenceValues preferences{store.CurrentTermName, state.StartDayOfWeek, state.ShowTipsAtStartup,
                                 state.CurrentTip};
    ReadPreferences(platform, store, platform.windowing.screenWidthTwips() / 15,
                    platform.windowing.screenHeightTwips() / 15, placement, preferences);
    placement = ClampToArea(placement, platform.windowing.availableArea());
    windowState = placement.state == 2 ? WindowState::Maximized : WindowState::Normal;
    left = placement.left;
    top = placement.top;
    if (placement.width != width || placement.height != height) setOuterSize(placement.width, placement.height);
    state.StartDayOfWeek = preferences.StartDayOfWeek;
    state.ShowTipsAtStartup = preferences.ShowTipsAtStartup;
    state.CurrentTip = preferences.CurrentTip;

    ApplyStartDayOfWeek();
    SelectTerm(preferences.ActiveTerm);
    SetHomeworkMode();
    ui.TimerTip->enabled = true;
    LoadDesktopReminderSettings();
    subscriptions_->load();
}

void RemoveProcessFile(Platform& platform) {
    try {
        const std::string pidFile = joinPath(platform.environment.get("U3_HOST_EXEC_PATH"),
                                             std::to_string(platform.processes.ownProcessId()) + ".PID");
        if (platform.files.exists(pidFile)) platform.files.remove(pidFile);
    } catch (const FileFailure&) {
    }
}

void MainWindow::Form_Unload() {
    ui.Timer1->enabled = false;
    ui.TimerButton->enabled = false;
    // Closing never stops: a failure of any of these steps passes over the rest of them.
    try {
        const std::string pidFile = pidFilePath();
        if (platform.files.exists(pidFile)) platform.files.remove(pidFile);
        // A read-only drive is not written at all: not the preferences, not the backups.
        const bool written =
            !store.DriveReadOnly &&
            WritePreferences(platform, store, WindowPlacement{int(windowState), left, top, width, height},
                             PreferenceValues{store.CurrentTermName, state.StartDayOfWeek, state.ShowTipsAtStartup,
                                              state.CurrentTip});
        if (written) RotateBackups(store, platform);
    } catch (const std::exception&) {
    }
    editors->CloseAll();
}

}  // namespace qh
