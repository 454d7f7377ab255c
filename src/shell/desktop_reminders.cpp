// The day's reminders as a notice on the desktop: once the window is up, and again when
// the day changes while the planner runs. What the notice says is desktop_reminder_notice;
// whether to give it, and which was given last, is desktop_reminder_settings.
#include "editors/editor_windows.h"
#include "shell/about_window.h"
#include "shell/desktop_reminder_notice.h"
#include "shell/desktop_reminder_settings.h"
#include "shell/main_window.h"
#include "shell/tip_window.h"

namespace qh {

void MainWindow::LoadDesktopReminderSettings() {
    desktopReminders_ = ReadDesktopReminderSettings(platform, store);
    ui.MenuDesktopReminders->checked = desktopReminders_.enabled;
    // The first notice waits for the window to be painted.
    ui.TimerDesktopReminders->enabled = true;
}

void MainWindow::toggleDesktopReminders() {
    desktopReminders_.enabled = !desktopReminders_.enabled;
    ui.MenuDesktopReminders->checked = desktopReminders_.enabled;
    WriteDesktopReminderSettings(platform, store, desktopReminders_);
}

void MainWindow::desktopReminderTimerTicked() {
    ui.TimerDesktopReminders->enabled = false;
    NotifyDesktopReminders();
}

void MainWindow::CheckDesktopReminderDay() {
    // Before the first notice the day is not yet checked; after it, a later day (midnight
    // passed, or the computer woke up on another day) gives the new day's notice.
    if (desktopReminderDay_ != 0 && platform.clock.today() != desktopReminderDay_) NotifyDesktopReminders();
}

void MainWindow::NotifyDesktopReminders() {
    const Date today = platform.clock.today();
    desktopReminderDay_ = today;
    if (!desktopReminders_.enabled) return;
    const ReminderNotice notice = DesktopReminderNotice(store, today, platform.locale);
    if (notice.empty()) return;
    // Told already today, on this computer or another, for the same items.
    if (desktopReminders_.lastDay == today && desktopReminders_.lastItems == notice.fingerprint) return;

    Notifications::Handlers handlers;
    handlers.delivered = [this, today, fingerprint = notice.fingerprint] {
        desktopReminders_.lastDay = today;
        desktopReminders_.lastItems = fingerprint;
        WriteDesktopReminderSettings(platform, store, desktopReminders_);
    };
    handlers.activated = [this] { ShowRemindersFromDesktop(); };
    handlers.failed = [this](const std::string& why) {
        // A desktop without a session has no one to tell; a missing service is said once,
        // in the status bar, and the planner goes on.
        if (why.empty() || desktopReminderFailureShown_) return;
        desktopReminderFailureShown_ = true;
        state.StatusBarText = "No desktop reminders: " + why;
        PaintStatusBar();
    };
    platform.notifications.notify(notice.title, notice.text, std::move(handlers));
}

bool MainWindow::windowOpenOverMain() const {
    if (tip_ && tip_->visible) return true;
    if (about_ && about_->visible) return true;
    for (const Form* window : editors->windows())
        if (window->visible) return true;
    return false;
}

void MainWindow::ShowRemindersFromDesktop() {
    if (!visible) return;  // closing
    if (windowState == WindowState::Minimized) windowState = WindowState::Normal;
    // A window open over the main window keeps its work: the planner only comes forward.
    if (!windowOpenOverMain()) {
        if (CurrentMode() != Mode::Reminders) SetReminderMode();
        if (state.ClickedDate != platform.clock.today()) quickDateClicked(42);
    }
    platform.windowing.raise(*this);
}

}  // namespace qh
