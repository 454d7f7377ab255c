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

}  // namespace qh
