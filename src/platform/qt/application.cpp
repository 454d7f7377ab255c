#include "platform/qt/application.h"

#include <QMessageBox>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>
#include <QTimer>
#include <cstdlib>
#include <exception>

namespace qh {

Application::Application(int& argc, char** argv) : QApplication(argc, argv), report_(&Application::showAndEnd) {
    setApplicationName(QStringLiteral("Quillhollow"));
    applyPlannerLook(*this);
}

void applyPlannerLook(QApplication& app) {
    if (QStyle* fusion = QStyleFactory::create(QStringLiteral("Fusion"))) app.setStyle(fusion);
    // Fusion's own light palette, with the button face of the planner's panels.
    QPalette light = app.style()->standardPalette();
    const QColor face(0xF0, 0xF0, 0xF0);
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        light.setColor(group, QPalette::Window, face);
        light.setColor(group, QPalette::Button, face);
        light.setColor(group, QPalette::Base, Qt::white);
        light.setColor(group, QPalette::Text, Qt::black);
        light.setColor(group, QPalette::WindowText, Qt::black);
        light.setColor(group, QPalette::ButtonText, Qt::black);
        light.setColor(group, QPalette::ToolTipBase, QColor(0xFF, 0xFF, 0xE1));
        light.setColor(group, QPalette::ToolTipText, Qt::black);
    }
    app.setPalette(light);
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
    if (lastStep_) {
        try {
            lastStep_();
        } catch (...) {
        }
    }
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
