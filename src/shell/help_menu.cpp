// The Help menu of the main window: the Tip of the Day, the help book, the tutorials, the
// web entries and About.
#include "common/failure.h"
#include "shell/about_window.h"
#include "shell/desktop_open.h"
#include "shell/main_window.h"
#include "shell/tip_window.h"
#include "shell/web_addresses.h"

namespace qh {
namespace {

// The desktop's opener stands in for the help viewer: it starts the browser the student
// has chosen, so the planner names none of its own.
constexpr const char* kDesktopOpener = "xdg-open";

std::string quoted(const std::string& path) { return "\"" + path + "\""; }

}  // namespace

void MainWindow::bindHelpHandlers() {
    auto onClick = [this](const std::string& key, std::function<void()> action) {
        on(key, FormEvent::Click, [action](const EventArgs&) { action(); });
    };
    onClick(ui.MenuShowTips.key(), [this] {
        state.ShowTipsAtStartup = "Yes";
        StartTipsIfWanted();
    });
    onClick(ui.MenuHelpDB.key(), [this] { ShowHelpFile(); });
    // The tutorials are pages of the help book, with pictures of each step, not videos.
    for (int n = 1; n <= 3; ++n)
        onClick("MenuVideo" + std::to_string(n), [this, n] {
            OpenWithDesktop(platform.processes, platform.messages,
                            HelpBookAddress(platform.environment, kTutorialPages[n - 1]));
        });
    auto openHomeworkHelp = [this] {
        OpenWithDesktop(platform.processes, platform.messages,
                        HelpBookAddress(platform.environment, kHomeworkHelpPage));
    };
    onClick(ui.MenuHomeworkHelp.key(), openHomeworkHelp);
    onClick(ui.PictureBarWeb.key(), openHomeworkHelp);
    onClick(ui.MenuAbout.key(), [this] { ShowAbout(*this); });
}

FrmTip& MainWindow::tipWindow() {
    if (!tip_) {
        tip_ = std::make_unique<FrmTip>(platform.environment);
        tip_->Form_Load();
        // The video line leads to the tutorials of the help book.
        tip_->on("LabelVideo", FormEvent::Click, [this](const EventArgs&) {
            OpenWithDesktop(platform.processes, platform.messages,
                            HelpBookAddress(platform.environment, kTutorialsPage));
        });
    }
    return *tip_;
}

void MainWindow::StartTipsIfWanted() {
    if (state.ShowTipsAtStartup != "Yes") return;
    FrmTip& tip = tipWindow();
    tip.tempShowTipsAtStartup = state.ShowTipsAtStartup;
    tip.tempCurrentTip = state.CurrentTip;
    platform.windowing.showModal(tip, this);
    state.ShowTipsAtStartup = tip.tempShowTipsAtStartup;
    state.CurrentTip = tip.tempCurrentTip;
}

void MainWindow::recordStartedProcess(std::int32_t processId) {
    // The mark only lets the drive's platform end the process when the drive goes; the
    // page is open already, so a host folder that takes no file is no reason
    // to stop the planner or to trouble the student.
    try {
        platform.files.createEmpty(
            joinPath(platform.environment.get("U3_HOST_EXEC_PATH"), std::to_string(processId) + ".PID"));
    } catch (const FileFailure&) {
    }
}

void MainWindow::ShowHelpFile() {
    const std::string index = joinPath(HelpBookFolder(platform.environment), kHelpIndexPage);
    std::int32_t processId = 0;
    try {
        processId = platform.processes.startCommand(std::string(kDesktopOpener) + " " + quoted(index));
    } catch (const FileFailure&) {
        TellCannotOpen(platform.messages, index);
        return;
    }
    recordStartedProcess(processId);
}

void MainWindow::ShowAbout(Form& owner) {
    if (!about_) {
        about_ = std::make_unique<FrmAbout>(platform);
        about_->Form_Load();
    }
    platform.windowing.showModal(*about_, &owner);
}

}  // namespace qh
