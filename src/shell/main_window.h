#pragma once
// frmMain: the planner's main window as a model. It owns its controls by their names, the
// view state, and the routines of the main window; the record store and the platform
// come from outside. The routines live in the files of their concern:
//   startup.cpp          Form_Load, Form_Unload, the .PID file
//   main_window_layout   the controls and menus at their load places
//   refresh.cpp          RefreshDisplay, the combo handlers, TintViewPanel, timers
//   modes.cpp            the five mode routines and the remembered view choices
//   month_navigator.cpp  BuildCalendar, the arrows, Today/Tomorrow, the start day
//   term_panel.cpp       SelectTerm, PaintStatusBar
//   stopwatch.cpp        the study stopwatch
//   file_menu.cpp        the list and calendar exports, Print Screen
//   window_layout.cpp    the resize handler
//   help_menu.cpp        the Tip of the Day, help, tutorials, web entries and About
//   desktop_reminders    the day's reminders as a notice on the desktop
//   feed_subscriptions   the calendar feeds subscribed to (a class of its own)
//   list_grid.cpp        the grid's layout, scrolling, pressed row and header clicks
//   keyboard_and_wheel.cpp  the calendar's and the grid's keys and mouse wheel
//   list_view/*          the grid layouts, list builders and hit testing
//   calendar_days/*      which days are marked
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "calendar_days/day_marks.h"
#include "editors/editor_host.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "record_store/columns.h"
#include "list_view/main_window_controls.h"
#include "list_view/main_window_state.h"
#include "shell/desktop_reminder_settings.h"

namespace qh {

class RecordFiles;
struct GridView;
struct ListHost;
class FrmTip;
class FrmAbout;
class FrmExportICalendar;
class FrmImportPreview;
class FeedSubscriptions;
class CalendarLinks;
struct ColorVocabulary;
class EditorWindows;
class RecordActions;

// Deletes this process's own .PID file if it is there; a failure is passed over. For a
// run that ends other than by the main window's unload: a signal before the window took
// over, a failure the planner cannot go on from.
void RemoveProcessFile(Platform& platform);

class MainWindow : public Form, public EditorHost {
public:
    MainWindow(RecordStore& store, Platform& platform);
    ~MainWindow() override;

    // The controls the window's routines use, bound when the window is built.
    MainWindowControls ui{this};
    RecordStore& store;
    Platform& platform;
    MainWindowState state;
    std::unique_ptr<RecordFiles> files;
    std::unique_ptr<ColorVocabulary> colors;
    // The five editor windows (loaded hidden during Form_Load) and the actions that open them.
    std::unique_ptr<EditorWindows> editors;
    std::unique_ptr<RecordActions> actions;

    // Window events.
    void Form_Load() override;
    bool Form_QueryUnload(UnloadMode) override { return true; }
    void Form_Unload() override;
    void Form_Resize() override;
    // True when the load ended the run (the data directory could not be entered).
    bool loadEndedRun() const { return loadEndedRun_; }

    // The current mode, the one whose menu item carries the tick.
    Mode CurrentMode() const;

    // Display refresh.
    void RefreshDisplay();
    void Refresh(RefreshReason reason);  // runs the reason's steps for the current mode
    void TintViewPanel();
    // The steps the last RefreshDisplay ran, for tests.
    const std::vector<RefreshStep>& lastRefreshSteps() const { return lastRefreshSteps_; }
    RefreshReason lastRefreshReason() const { return lastRefreshReason_; }

    // Modes.
    void SetDefaultViewChoices();
    void SaveViewChoices();
    void RestoreViewChoices();
    void SetHomeworkMode();
    void SetStudySessionMode();
    void SetTaskMode();
    void SetEventMode();
    void SetReminderMode();

    // Month navigator.
    void BuildCalendar();
    void UpdateQuickDateButtons();
    void ApplyStartDayOfWeek();
    void MarkDays(Date firstCell);
    DayMarks MarkEventDaysFor(Date firstCell);

    // Term panel and status bar.
    void SelectTerm(std::string termName);
    void PaintStatusBar();

    // Stopwatch.
    void UpdateStopwatchLabel();

    // The grid of the list view.
    // What the list builders and the grid routines see of this window.
    ListHost listHost();
    void LayoutGrid(Mode mode);
    void BuildList(Mode mode);
    void UpdateGridScroll();
    void RefillGrid();
    void ResetGridScroll();
    void HighlightGridRow(int row, bool on);
    void UpdateGradeList();
    void UpdateStudyTimeToday(Date date);
    // A click on visible row k of the grid (press and release agreed).
    void GridRowClicked(int k);

    // Record actions, handed on to the editors' record actions.
    void NewAssignment();
    void EditAssignment(int row);
    void NewTask();
    void EditTask(int row);
    void NewEvent();
    void EditEvent(int row);
    void EditClassSchedule();

    // What the editors ask of the main window.
    Form& ownerWindow() override { return *this; }
    Date clickedDate() const override { return state.ClickedDate; }
    std::string startDayOfWeek() const override { return state.StartDayOfWeek; }
    void refresh(RefreshReason reason) override { Refresh(reason); }
    void selectTerm(const std::string& termName) override { SelectTerm(termName); }
    void highlightRow(int row, bool on) override { HighlightGridRow(row, on); }
    void showSavedRow(SavedRecordKind kind, int row) override;
    void recordDeleted(SavedRecordKind kind, const std::string& id) override;
    std::string feedOf(SavedRecordKind kind, const std::string& id) override;

    // Tips, help, tutorials and About.
    void StartTipsIfWanted();
    void ShowHelpFile();
    void ShowAbout(Form& owner);
    // Starts the player on a tutorial video of the host folder, or says it can't.
    // The Tip of the Day window, loaded at its first use and kept.
    FrmTip& tipWindow();
    // The File menu's export and print commands (file_menu.cpp).
    void ExportList();
    void ExportCalendar();
    void PrintScreen();
    // File > Export iCalendar... and Import iCalendar... (icalendar_menu.cpp), and the links
    // that keep each record's calendar UID.
    void ExportICalendar();
    void ImportICalendar();
    CalendarLinks readCalendarLinks();
    void storeCalendarLinks(const CalendarLinks& links, const std::string& title);

    // Desktop reminders (desktop_reminders.cpp): the day's reminders as a desktop notice,
    // once the window is up and at every change of day; Options > Desktop Reminders.
    void LoadDesktopReminderSettings();
    void toggleDesktopReminders();
    void desktopReminderTimerTicked();
    void CheckDesktopReminderDay();
    void NotifyDesktopReminders();
    // The notice was chosen: the main window comes forward in Today's Reminders of today.
    void ShowRemindersFromDesktop();

    // Options > Calendar Subscriptions... and the feeds' refreshes (feed_subscriptions.h).
    FeedSubscriptions& subscriptions() { return *subscriptions_; }

private:
    void buildControls();
    void buildMenus();
    void bindHandlers();
    void bindKeyboardAndWheel();
    void showGridView(const GridView& view);
    void bindFileMenu();
    void applyModeTable(Mode mode);
    void calendarButtonPressed(Control& button, const CalendarArrow& arrow);
    void calendarButtonReleased(Control& button, const CalendarArrow& arrow);
    void dateCellClicked(int index);
    void dayHeaderClicked(int index);
    void changeStartDay(const std::string& day);
    void quickDateClicked(int element);
    void startOrPauseStopwatch();
    void resetStopwatch();
    void tickStopwatch();
    void repeatCalendarArrow();
    void picGridMouseDown(const EventArgs& args);
    void picGridMouseUp(const EventArgs& args);
    void headerClicked(int index);
    std::string pidFilePath() const;
    void bindHelpHandlers();
    // Leaves the .PID file of a process the planner started in the host folder.
    void recordStartedProcess(std::int32_t processId);

    std::unique_ptr<FrmTip> tip_;
    std::unique_ptr<FrmAbout> about_;
    std::unique_ptr<FrmExportICalendar> icalendarExport_;
    std::unique_ptr<FrmImportPreview> icalendarImport_;
    std::unique_ptr<FeedSubscriptions> subscriptions_;

    // A window of the planner (an editor, the tip, About) is open over this one.
    bool windowOpenOverMain() const;
    DesktopReminderSettings desktopReminders_;
    Date desktopReminderDay_ = 0;  // the day the reminders were last looked at; 0 before
    bool desktopReminderFailureShown_ = false;

    std::vector<RefreshStep> lastRefreshSteps_;
    RefreshReason lastRefreshReason_ = RefreshReason::None;
    bool loadEndedRun_ = false;
};

}  // namespace qh
