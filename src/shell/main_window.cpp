#include "shell/main_window.h"

#include "calendar_days/day_marks.h"
#include "editors/editor_windows.h"
#include "editors/record_actions.h"
#include "interchange/frm_export_icalendar.h"
#include "interchange/frm_import_preview.h"
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

Color MainWindow::colorValue(const std::string& nameOrHexText) const {
    if (nameOrHexText.size() > 1 && nameOrHexText[0] == '&') return colorFromText(nameOrHexText);
    return colors->ColorValues(nameOrHexText);
}

DayMarks MainWindow::MarkEventDaysFor(Date firstCell) {
    EventDayMarks events = MarkEventDays(store, firstCell, c("ComboList").text);
    return DayMarks{events.CellMarked, events.ColorMarkedBack};
}

void MainWindow::MarkDays(Date firstCell) {
    const std::string& list = c("ComboList").text;
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

    onClick("MenuExit", [this] { platform.windowing.close(*this, UnloadMode::Code); });

    // Mode switches: a click on the current mode does nothing.
    const std::pair<const char*, const char*> switches[] = {
        {"MenuHomework", "PictureBarHomework"}, {"MenuStudySessions", "PictureBarStudySessions"},
        {"MenuTasks", "PictureBarTasks"},       {"MenuEvents", "PictureBarEvents"},
        {"MenuReminders", "PictureBarReminders"}};
    const std::function<void()> routines[] = {[this] { SetHomeworkMode(); }, [this] { SetStudySessionMode(); },
                                              [this] { SetTaskMode(); },     [this] { SetEventMode(); },
                                              [this] { SetReminderMode(); }};
    for (int i = 0; i < 5; ++i) {
        const std::string menu = switches[i].first;
        auto action = [this, menu, routine = routines[i]] {
            if (!c(menu).checked) routine();
        };
        onClick(menu, action);
        onClick(switches[i].second, action);
    }

    onClick("ComboDateRange", [this] {
        if (!state.SuppressComboEvents && state.RefreshReason == "None") Refresh("ViewChange");
    });
    onClick("ComboList", [this] {
        if (state.SuppressComboEvents) return;
        TintViewPanel();
        if (state.RefreshReason == "None") Refresh("ViewChange");
    });

    for (int i = 0; i < 42; ++i) onClick("LabelCalDate(" + std::to_string(i) + ")", [this, i] { dateCellClicked(i); });
    for (int i = 0; i < 7; ++i) onClick("LabelCalDay(" + std::to_string(i) + ")", [this, i] { dayHeaderClicked(i); });
    onClick("LabelToday", [this] { quickDateClicked(42); });
    onClick("LabelTomorrow", [this] { quickDateClicked(45); });
    for (const char* button : {"picCalMonthUp", "picCalMonthDown", "picCalDayUp", "picCalDayDown"}) {
        const std::string name = button;
        on(name, FormEvent::MouseDown, [this, name](const EventArgs&) { calendarButtonPressed(name); });
        on(name, FormEvent::MouseUp, [this, name](const EventArgs&) { calendarButtonReleased(name); });
    }
    on("TimerButton", FormEvent::Timer, [this](const EventArgs&) { TimerButton_Timer(); });
    onClick("MenuStartMon", [this] { changeStartDay("Monday"); });
    onClick("MenuStartSat", [this] { changeStartDay("Saturday"); });
    onClick("MenuStartSun", [this] { changeStartDay("Sunday"); });

    onClick("ButtonStart", [this] { ButtonStart_Click(); });
    onClick("ButtonReset", [this] { ButtonReset_Click(); });
    on("Timer1", FormEvent::Timer, [this](const EventArgs&) { Timer1_Timer(); });
    onClick("LabelTime", [this] {
        state.StopwatchShowSeconds = !state.StopwatchShowSeconds;
        UpdateStopwatchLabel();
    });

    on("TimerStatusBar", FormEvent::Timer, [this](const EventArgs&) {
        PaintStatusBar();
        CheckDesktopReminderDay();
    });
    // One shot, once the window has been painted.
    on("TimerDesktopReminders", FormEvent::Timer, [this](const EventArgs&) { TimerDesktopReminders_Timer(); });
    onClick("MenuDesktopReminders", [this] { MenuDesktopReminders_Click(); });
    onClick("MenuSubscriptions", [this] { subscriptions_->showWindow(); });
    // The first tick once the window has been painted, then every 6 hours.
    on("TimerSubscriptions", FormEvent::Timer, [this](const EventArgs&) { subscriptions_->timerTick(); });
    on("TimerSubscriptionAnswers", FormEvent::Timer, [this](const EventArgs&) { subscriptions_->applyWaitingAnswers(); });
    // One shot: the Tip of the Day opens from its first tick, once the window is up.
    on("TimerTip", FormEvent::Timer, [this](const EventArgs&) {
        c("TimerTip").enabled = false;
        StartTipsIfWanted();
    });

    on("picGrid", FormEvent::MouseDown, [this](const EventArgs& args) { picGridMouseDown(args); });
    on("picGrid", FormEvent::MouseUp, [this](const EventArgs& args) { picGridMouseUp(args); });
    for (int i = 0; i < 9; ++i) onClick("picColHeader(" + std::to_string(i) + ")", [this, i] { headerClicked(i); });
    on("VSGridScroll", FormEvent::Change, [this](const EventArgs&) { RefillGrid(); });
    on("VSGridScroll", FormEvent::Scroll, [this](const EventArgs&) { RefillGrid(); });
    // The keyboard belongs to the grid: the scroll bar hands on the focus it gets.
    on("VSGridScroll", FormEvent::GotFocus, [this](const EventArgs&) { SetFocus("picGrid"); });

    onClick("ButtonNewAssignment", [this] { NewAssignment(); });
    onClick("MenuNewAssignment", [this] { NewAssignment(); });
    onClick("ButtonNewTask", [this] { NewTask(); });
    onClick("MenuNewTask", [this] { NewTask(); });
    onClick("ButtonNewEvent", [this] { NewEvent(); });
    onClick("MenuNewEvent", [this] { NewEvent(); });
    onClick("ButtonSelectTerm", [this] { EditClassSchedule(); });
    onClick("MenuClassSchedule", [this] { EditClassSchedule(); });
    onClick("picHelp", [this] { platform.windowing.enterWhatsThisMode(); });
    bindHelpHandlers();
    bindFileMenu();
    bindKeyboardAndWheel();
}

}  // namespace qh
