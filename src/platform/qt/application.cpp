#include "platform/qt/application.h"

#include <QMessageBox>
#include <QTimer>
#include <cstdlib>
#include <exception>

namespace qh {

Application::Application(int& argc, char** argv) : QApplication(argc, argv), report_(&Application::showAndEnd) {
    setApplicationName(QStringLiteral("Quillhollow"));
}

std::string Application::reportText(const std::string& what) {
    return "Quillhollow has stopped: " + (what.empty() ? std::string("an unknown failure") : what);
}

void Application::showAndEnd(const std::string& what) {
    QMessageBox box(QMessageBox::Critical, QStringLiteral("Quillhollow"), QString::fromStdString(reportText(what)),
                    QMessageBox::Ok);
    box.exec();
    // No destructor, no unload handler, no buffered write: the run ends here.
    std::_Exit(EXIT_FAILURE);
}

void Application::fail(const std::string& what) {
    failing_ = true;
    report_(what);
    failing_ = false;
}

bool Application::notify(QObject* receiver, QEvent* event) {
    // While the report is up, the planner's timers stay silent: nothing of the failed run
    // may go on behind the report.
    if (failing_ && event->type() == QEvent::Timer && qobject_cast<QTimer*>(receiver)) return true;
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& failure) {
        fail(failure.what());
    } catch (...) {
        fail(std::string());
    }
    return false;
}

}  // namespace qh
