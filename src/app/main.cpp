// Quillhollow: wires the Qt platform to the planner and runs it. Takes no options.
#include <exception>

#include "platform/qt/application.h"
#include "platform/qt/pictures.h"
#include "platform/qt/qt_platform.h"
#include "shell/module1.h"

int main() {
    // Whatever the command line holds is not the planner's business.
    int argc = 1;
    char name[] = "quillhollow";
    char* argv[] = {name, nullptr};
    qh::Application app(argc, argv);
    qh::installFontSubstitutes();
    qh::QtPlatform qt;
    try {
        qh::Module1 module(qt.platform());
        if (!module.Main()) return 0;
        return app.exec();
    } catch (const std::exception& failure) {
        // The start of the run, before the event loop: reported the same way.
        app.fail(failure.what());
    } catch (...) {
        app.fail(std::string());
    }
    return 1;
}
