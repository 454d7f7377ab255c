#pragma once
// One run of the planner from its start: refuses a second copy and a start without the drive
// platform, shows the splash while the main window loads, then shows the main window.
#include <memory>

#include "platform/platform.h"
#include "record_store/columns.h"

namespace qh {

class MainWindow;

class PlannerRun {
public:
    explicit PlannerRun(Platform& platform);
    ~PlannerRun();
    // Returns true when the main window is on the screen and the event loop should run;
    // false when the run ends here (a message was shown).
    bool start();
    MainWindow* mainWindow() { return main_.get(); }
    RecordStore& store() { return store_; }

private:
    Platform& platform_;
    RecordStore store_;
    std::unique_ptr<MainWindow> main_;
};

}  // namespace qh
