#include "qt_test_support.h"

#include <cstdlib>

#include "platform/qt/pictures.h"

namespace qh {

Application& testApplication() {
    static int argc = 1;
    static char name[] = "test_platform_qt";
    static char* argv[] = {name, nullptr};
    static Application* app = [] {
        setenv("QT_QPA_PLATFORM", "offscreen", 0);
        auto* made = new Application(argc, argv);
        installFontSubstitutes();
        return made;
    }();
    return *app;
}

Platform withCanvases(FakePlatform& fake, CanvasFactory& canvases) {
    return {fake.environment, fake.clock,   fake.locale,    fake.messages, fake.files,
            fake.processes,   fake.dialogs, fake.windowing, canvases,      fake.calendars};
}

}  // namespace qh

// Read by LeakSanitizer in the sanitizer build. Fontconfig keeps its parsed configuration
// for the life of the process and never frees it; that is the library's design, not a
// leak of the planner.
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig.so\n"; }
