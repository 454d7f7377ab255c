#include "shell/planner_run.h"

#include "shell/main_window.h"
#include "shell/splash.h"

namespace qh {

PlannerRun::PlannerRun(Platform& platform) : platform_(platform) {}
PlannerRun::~PlannerRun() = default;

bool PlannerRun::start() {
    if (platform_.processes.anotherInstanceRunning()) {
        platform_.messages.show("Quillhollow is already running.", "Quillhollow", MessageButtons::OK,
                                MessageIcon::Information);
        return false;
    }
    if (platform_.environment.get("U3_HOST_EXEC_PATH").empty()) {
        platform_.messages.show("Launch Quillhollow from your u3 Smart Drive.", "Quillhollow", MessageButtons::OK,
                                MessageIcon::Information);
        return false;
    }
    FrmSplash splash(platform_.windowing.availableArea());
    platform_.windowing.show(splash);
    platform_.windowing.processEvents();

    main_ = std::make_unique<MainWindow>(store_, platform_);
    main_->Form_Load();
    platform_.windowing.close(splash, UnloadMode::Code);
    if (main_->loadEndedRun()) return false;
    platform_.windowing.show(*main_);
    return true;
}

}  // namespace qh
