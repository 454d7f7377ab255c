#pragma once
// The main window on a fresh drive with one term and one class, shown by the real
// renderer; each editor it opens is shown by the renderer too, with the focus where a
// window that opens puts it, and driven while it is open.
#include <functional>
#include <string>
#include <vector>

#include "platform/qt/form_view.h"
#include "support/main_window_fixture.h"

namespace qh {

struct RenderedPlanner : LoadedMainWindow {
    RenderedPlanner();
    // The next showing of window `name` appears on screen, active, and is driven by `user`.
    void onScreen(const std::string& name, const std::function<void(FormWindow&)>& user);
    // The main window and the editors, whether shown or not.
    std::vector<Form*> forms();
    FormWindow& mainFrame() { return *renderer.windowOf(*window); }

    FormRenderer renderer;
};

// Makes the window the active one, as a click on its title would.
void activate(FormWindow& frame);

}  // namespace qh
