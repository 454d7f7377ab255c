#include "shell/main_window.h"

#include <tuple>

#include "calendar_days/day_marks.h"
#include "editors/editor_windows.h"
#include "editors/record_actions.h"
#include "interchange/frm_export_icalendar.h"
#include "interchange/frm_import_preview.h"
#include "list_view/grid.h"
#include "record_store/color_vocabulary.h"
#include "record_store/record_files.h"
#include "recurrence/occurrence.h"
#include "shell/about_window.h"
#include "shell/feed_subscriptions.h"
#include "shell/tip_window.h"

namespace qh {

MainWindow::MainWindow(RecordStore& recordStore, Platform& thePlatform)
    : Form("frmMain"),
      store(recordStore),
      platform(thePlatform),
      files(std::make_unique<RecordFiles>(recordStore, thePlatform)),
      colors(std::make_unique<ColorVocabulary>()),
      editors(std::make_unique<EditorWindows>(thePlatform, *this)),
      actions(std::make_unique<RecordActions>(recordStore, *files, thePlatform, *this, *editors)),
      subscriptions_(std::make_unique<FeedSubscriptions>(*this)) {
    setCanvasFactory(&platform.canvases);
    buildMenus();
    buildControls();
    setOuterSize(9600, 7215);
    bindControls();
    bindHandlers();
}

MainWindow::~MainWindow() = default;

void MainWindow::NewAssignment() { actions->NewAssignment(); }
void MainWindow::EditAssignment(int row) { actions->EditAssignment(row); }
void MainWindow::NewTask() { actions->NewTask(); }
void MainWindow::EditTask(int row) { actions->EditTask(row); }
void MainWindow::NewEvent() { actions->NewEvent(); }
void MainWindow::EditEvent(int row) { actions->EditEvent(row); }
void MainWindow::EditClassSchedule() { actions->EditClassSchedule(); }
void MainWindow::recordDeleted(SavedRecordKind kind, const std::string& id) { subscriptions_->recordDeleted(kind, id); }
std::string MainWindow::feedOf(SavedRecordKind kind, const std::string& id) { return subscriptions_->feedOf(kind, id); }

DayMarks MainWindow::MarkEventDaysFor(Date firstCell) {
    EventDayMarks events = MarkEventDays(store, firstCell, ui.ComboList->text);
    return DayMarks{events.CellMarked, events.ColorMarkedBack};
}

void MainWindow::MarkDays(Date firstCell) {
    const std::string& list = ui.ComboList->text;
    DayMarks marks;
    switch (CurrentMode()) {
        case Mode::StudySessions: marks = MarkStudySessionDays(store, firstCell, state.Colors); break;
        case Mode::Tasks: marks = MarkTaskDays(store, firstCell, list, state.Colors); break;
        case Mode::Events: marks = MarkEventDaysFor(firstCell); break;
        case Mode::Homework: marks = MarkHomeworkDays(store, firstCell, list, state.Colors); break;
        case Mode::Reminders:
            marks = MarkReminderDays(state.ReminderDates, state.ReminderKinds, firstCell, list, state.Colors);
            break;
        case Mode::None: return;
    }
    state.CellMarked = marks.marked;
    state.Colors.MarkedBack = marks.markedBack;
}

void MainWindow::bindHandlers() {
    auto onClick = [this](const std::string& key, std::function<void()> action) {
        on(key, FormEvent::Click, [action](const EventArgs&) { action(); });
    };

    onClick(ui.MenuExit.key(), [this] { platform.windowing.close(*this, UnloadMode::Code); });

    // Mode switches: a click on the current mode does nothing.
    const std::tuple<Mode, const ControlRef*, const ControlRef*> switches[] = {
        {Mode::Homework, &ui.MenuHomework, &ui.PictureBarHomework},
        {Mode::StudySessions, &ui.MenuStudySessions, &ui.PictureBarStudySessions},
        {Mode::Tasks, &ui.MenuTasks, &ui.PictureBarTasks},
        {Mode::Events, &ui.MenuEvents, &ui.PictureBarEvents},
        {Mode::Reminders, &ui.MenuReminders, &ui.PictureBarReminders}};
    for (const auto& [mode, menu, bar] : switches) {
        // Copied by name: a structured binding cannot be captured by every compiler yet.
        auto action = [this, mode = mode] {
            if (CurrentMode() != mode) applyModeTable(mode);
        };
        onClick(menu->key(), action);
        onClick(bar->key(), action);
    }

    onClick(ui.ComboDateRange.key(), [this] {
        if (!state.SuppressComboEvents && state.Refreshing == RefreshReason::None) Refresh(RefreshReason::ViewChange);
    });
    onClick(ui.ComboList.key(), [this] {
        if (state.SuppressComboEvents) return;
        TintViewPanel();
        if (state.Refreshing == RefreshReason::None) Refresh(RefreshReason::ViewChange);
    });

    for (int i = 0; i < 42; ++i) onClick(ui.calendar.LabelCalDate.key(i), [this, i] { dateCellClicked(i); });
    for (int i = 0; i < 7; ++i) onClick(ui.calendar.LabelCalDay.key(i), [this, i] { dayHeaderClicked(i); });
    onClick(ui.calendar.LabelToday.key(), [this] { quickDateClicked(kElementToday); });
    onClick(ui.calendar.LabelTomorrow.key(), [this] { quickDateClicked(kElementTomorrow); });
    const std::pair<const ControlRef*, const CalendarArrow*> arrows[] = {
        {&ui.calendar.picCalMonthUp, &kMonthOnArrow},
        {&ui.calendar.picCalMonthDown, &kMonthBackArrow},
        {&ui.picCalDayUp, &kDayOnArrow},
        {&ui.picCalDayDown, &kDayBackArrow}};
    for (const auto& [button, arrow] : arrows) {
        on(button->key(), FormEvent::MouseDown,
           [this, button = button, arrow = arrow](const EventArgs&) { calendarButtonPressed(**button, *arrow); });
        on(button->key(), FormEvent::MouseUp,
           [this, button = button, arrow = arrow](const EventArgs&) { calendarButtonReleased(**button, *arrow); });
    }
    on(ui.TimerButton.key(), FormEvent::Timer, [this](const EventArgs&) { repeatCalendarArrow(); });
    onClick(ui.MenuStartMon.key(), [this] { changeStartDay("Monday"); });
    onClick(ui.MenuStartSat.key(), [this] { changeStartDay("Saturday"); });
    onClick(ui.MenuStartSun.key(), [this] { changeStartDay("Sunday"); });

    onClick(ui.ButtonStart.key(), [this] { startOrPauseStopwatch(); });
    onClick(ui.ButtonReset.key(), [this] { resetStopwatch(); });
    on(ui.Timer1.key(), FormEvent::Timer, [this](const EventArgs&) { tickStopwatch(); });
    onClick(ui.LabelTime.key(), [this] {
        state.StopwatchShowSeconds = !state.StopwatchShowSeconds;
        UpdateStopwatchLabel();
    });

    on(ui.TimerStatusBar.key(), FormEvent::Timer, [this](const EventArgs&) {
        PaintStatusBar();
        CheckDesktopReminderDay();
    });
    // One shot, once the window has been painted.
    on(ui.TimerDesktopReminders.key(), FormEvent::Timer, [this](const EventArgs&) { desktopReminderTimerTicked(); });
    onClick(ui.MenuDesktopReminders.key(), [this] { toggleDesktopReminders(); });
    onClick(ui.MenuSubscriptions.key(), [this] { subscriptions_->showWindow(); });
    // The first tick once the window has been painted, then every 6 hours.
    on(ui.TimerSubscriptions.key(), FormEvent::Timer, [this](const EventArgs&) { subscriptions_->timerTick(); });
    on(ui.TimerSubscriptionAnswers.key(), FormEvent::Timer,
       [this](const EventArgs&) { subscriptions_->applyWaitingAnswers(); });
    // One shot: the Tip of the Day opens from its first tick, once the window is up.
    on(ui.TimerTip.key(), FormEvent::Timer, [this](const EventArgs&) {
        ui.TimerTip->enabled = false;
        StartTipsIfWanted();
    });

    on(ui.picGrid.key(), FormEvent::MouseDown, [this](const EventArgs& args) { picGridMouseDown(args); });
    on(ui.picGrid.key(), FormEvent::MouseUp, [this](const EventArgs& args) { picGridMouseUp(args); });
    for (int i = 0; i < kGridHeaderCount; ++i) onClick(GridHeaderKey(i), [this, i] { headerClicked(i); });
    on(ui.VSGridScroll.key(), FormEvent::Change, [this](const EventArgs&) { RefillGrid(); });
    on(ui.VSGridScroll.key(), FormEvent::Scroll, [this](const EventArgs&) { RefillGrid(); });
    // The keyboard belongs to the grid: the scroll bar hands on the focus it gets.
    on(ui.VSGridScroll.key(), FormEvent::GotFocus, [this](const EventArgs&) { SetFocus(ui.picGrid.key()); });

    onClick(ui.ButtonNewAssignment.key(), [this] { NewAssignment(); });
    onClick(ui.MenuNewAssignment.key(), [this] { NewAssignment(); });
    onClick(ui.ButtonNewTask.key(), [this] { NewTask(); });
    onClick(ui.MenuNewTask.key(), [this] { NewTask(); });
    onClick(ui.ButtonNewEvent.key(), [this] { NewEvent(); });
    onClick(ui.MenuNewEvent.key(), [this] { NewEvent(); });
    onClick(ui.ButtonSelectTerm.key(), [this] { EditClassSchedule(); });
    onClick(ui.MenuClassSchedule.key(), [this] { EditClassSchedule(); });
    onClick(ui.picHelp.key(), [this] { platform.windowing.enterWhatsThisMode(); });
    bindHelpHandlers();
    bindFileMenu();
    bindKeyboardAndWheel();
}

}  // namespace qh
