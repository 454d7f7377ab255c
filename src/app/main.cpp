// Quillhollow: wires the Qt platform to the planner and runs it. Takes no options.
#include <exception>

#include <QTimer>

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
        // The start-up benchmark (bench/startup.sh) times a run that ends as soon as the
        // main window has been painted once.
        if (qEnvironmentVariableIsSet("QUILLHOLLOW_QUIT_AFTER_FIRST_PAINT"))
            QTimer::singleShot(0, &app, &QCoreApplication::quit);
        return app.exec();
    } catch (const std::exception& failure) {
        // The start of the run, before the event loop: reported the same way.
        app.fail(failure.what());
    } catch (...) {
        app.fail(std::string());
    }
    return 1;
}
