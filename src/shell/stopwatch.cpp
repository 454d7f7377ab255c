// The study stopwatch of Study Sessions mode: its time comes from the clock, not from
// counting ticks, so a late tick loses nothing.
#include "common/text.h"
#include "shell/main_window.h"

namespace qh {

void MainWindow::startOrPauseStopwatch() {
    Control& start = *ui.ButtonStart;
    if (start.caption == "Start") {
        start.caption = "Pause";
        ui.ButtonReset->enabled = false;
        ui.LabelTime->foreColor = kBlack;
        ui.Timer1->enabled = true;
        state.StopwatchStart = platform.clock.now();
    } else {
        start.caption = "Start";
        ui.ButtonReset->enabled = true;
        ui.LabelTime->foreColor = rgb(160, 160, 160);
        ui.Timer1->enabled = false;
        state.StopwatchTotal += double(platform.clock.now().secondsSince(state.StopwatchStart));
    }
    focusedControl = ui.picGrid.key();
    UpdateStopwatchLabel();
}

void MainWindow::resetStopwatch() {
    state.StopwatchSeconds = state.StopwatchMinutes = state.StopwatchHours = 0;
    state.StopwatchTotal = 0;
    focusedControl = ui.picGrid.key();
    UpdateStopwatchLabel();
}

void MainWindow::tickStopwatch() {
    state.StopwatchRun = double(platform.clock.now().secondsSince(state.StopwatchStart));
    const long long total = static_cast<long long>(state.StopwatchTotal + state.StopwatchRun);
    state.StopwatchHours = total / 3600;
    const long long rest = total - state.StopwatchHours * 3600;
    state.StopwatchMinutes = rest / 60;
    state.StopwatchSeconds = rest - state.StopwatchMinutes * 60;
    UpdateStopwatchLabel();
}

void MainWindow::UpdateStopwatchLabel() {
    const std::string hours = twoDigits(state.StopwatchHours), minutes = twoDigits(state.StopwatchMinutes);
    std::string shown;
    if (state.StopwatchShowSeconds)
        shown = hours + ":" + minutes + ":" + twoDigits(state.StopwatchSeconds);
    else
        shown = hours + (state.StopwatchSeconds % 2 == 0 ? ":" : " ") + minutes;
    ui.LabelTime->caption = shown;
}

}  // namespace qh
