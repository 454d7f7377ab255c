#include "platform/qt/application.h"

#include "platform/form.h"

#include <QMessageBox>
#include <QPalette>
#include <QProxyStyle>
#include <QStyle>
#include <QStyleFactory>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <exception>

namespace qh {

Application::Application(int& argc, char** argv) : QApplication(argc, argv), report_(&Application::showAndEnd) {
    setApplicationName(QStringLiteral("Quillhollow"));
    applyPlannerLook(*this);
}

namespace {

// Fusion opens a drop-down list as a menu laid over its box, as tall as the screen for a
// long list (the 119 times of day); the planner's lists drop below their box instead and
// show at most the box's number of visible lines.
class PlannerStyle : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        if (hint == QStyle::SH_ComboBox_Popup) return 0;
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

}  // namespace

void applyPlannerLook(QApplication& app) {
    if (QStyle* fusion = QStyleFactory::create(QStringLiteral("Fusion"))) app.setStyle(new PlannerStyle(fusion));
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
    // A control that takes no input: grey text on the same faces.
    const QColor grey(0x80, 0x80, 0x80);
    light.setColor(QPalette::Disabled, QPalette::Window, face);
    light.setColor(QPalette::Disabled, QPalette::Button, face);
    light.setColor(QPalette::Disabled, QPalette::Base, face);
    for (QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        light.setColor(QPalette::Disabled, role, grey);
    // Every colour of every state is the planner's own: one left unset would come from the
    // desktop's theme, and a dark theme then paints a disabled button dark on dark.
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            const auto each = static_cast<QPalette::ColorRole>(role);
            if (each == QPalette::NoRole) continue;
            light.setBrush(group, each, light.brush(group, each));
        }
    app.setPalette(light);
}

std::string Application::reportText(const std::string& action) {
    return "Quillhollow has stopped while " + (action.empty() ? std::string("starting") : "answering " + action) +
           ". Every change saved before this is on the drive; start Quillhollow again to go on.";
}

void Application::showAndEnd(const std::string& action) {
    QMessageBox box(QMessageBox::Critical, QStringLiteral("Quillhollow"), QString::fromStdString(reportText(action)),
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
    // The failure's own words are for whoever reads the program's output, not for the
    // student: the box says what the planner was doing.
    std::fprintf(stderr, "quillhollow: %s\n", what.empty() ? "an unknown failure" : what.c_str());
    report_(Form::actionInProgress());
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
