// Quillhollow: wires the Qt platform to the planner and runs it. Takes no options.
#include <exception>

#include <QApplication>
#include <QEvent>
#include <QThread>
#include <QTimer>
#include <cstdio>
#include <cstdlib>

#include "platform/qt/application.h"
#include "platform/qt/pictures.h"
#include "platform/qt/qt_platform.h"
#include "platform/qt/termination_signals.h"
#include "shell/desktop_open.h"
#include "shell/help_topics.h"
#include "shell/main_window.h"
#include "shell/planner_run.h"

int main() {
    // Whatever the command line holds is not the planner's business.
    int argc = 1;
    char name[] = "quillhollow";
    char* argv[] = {name, nullptr};
    qh::Application app(argc, argv);
    qh::installFontSubstitutes();
    qh::QtPlatform qt;
    // What's This: the bubble tells what the control does and links its help page.
    qt.renderer().helpText = [&qt](int number) { return qh::WhatsThisText(number, qt.platform().environment); };
    qt.renderer().openHelpLink = [&qt](const std::string& address) {
        qh::OpenWithDesktop(qt.platform().processes, qt.platform().messages, address);
    };
    // From here on a termination signal ends the run in every state. One that comes while
    // the entry checks or the load show a message (a loop of its own) ends the run at once:
    // nothing is stored yet, and the .PID file, if made, goes with it. One that comes
    // during a load that shows nothing waits in the pipe and closes the main window as
    // soon as the load is done.
    qh::TerminationSignals terminations;
    // A failure the planner cannot go on from ends the run too: its .PID file goes first.
    app.setLastStep([&qt] { qh::RemoveProcessFile(qt.platform()); });
    try {
        qh::PlannerRun run(qt.platform());
        bool running = false, pending = false;
        const auto closeMainWindow = [&] {
            qh::MainWindow& main = *run.mainWindow();
            if (!main.visible) return;  // already closing
            qt.platform().windowing.close(main, qh::UnloadMode::ProgramEnd);
            // Closed from inside a modal window's loop: the routine that opened it must
            // not go on as if the window had been answered. The unload has run; the run
            // ends here.
            if (QThread::currentThread()->loopLevel() > 1) {
                std::fflush(nullptr);
                std::_Exit(EXIT_SUCCESS);
            }
        };
        terminations.listen([&] {
            if (running) return closeMainWindow();
            // A message of the entry checks or of the load waits in a loop of its own, and
            // nothing is stored yet: the run ends at once. Without one (the splash lets
            // events through while the files load), the window closes once it is up.
            if (QApplication::activeModalWidget()) {
                qh::RemoveProcessFile(qt.platform());
                std::fflush(nullptr);
                std::_Exit(EXIT_SUCCESS);
            }
            pending = true;
        });
        if (!run.start()) return 0;
        running = true;
        if (pending) QTimer::singleShot(0, &app, closeMainWindow);
        // The start-up benchmark (bench/startup.sh) times a run that ends as soon as the
        // main window has been painted once: at its first paint (the splash is gone by
        // now), once that paint has been handled, as the bare window it is compared with.
        struct QuitAfterFirstPaint : QObject {
            bool eventFilter(QObject*, QEvent* event) override {
                if (event->type() == QEvent::Paint) {
                    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
                    qApp->removeEventFilter(this);
                }
                return false;
            }
        } quitter;
        if (qEnvironmentVariableIsSet("QUILLHOLLOW_QUIT_AFTER_FIRST_PAINT")) app.installEventFilter(&quitter);
        return app.exec();
    } catch (const std::exception& failure) {
        // The start of the run, before the event loop: reported the same way.
        app.fail(failure.what());
    } catch (...) {
        app.fail(std::string());
    }
    return 1;
}
