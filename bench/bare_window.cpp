// The least a Qt Widgets program does before its first paint: one plain window of the
// planner's size, shown, painted once, and the program ends. bench/startup.sh times it
// beside the planner on the same display, so the planner's first paint reads as a
// multiple of the toolkit's own start rather than as milliseconds of a shared machine.
// It ends the way the planner's measured runs end: at the first paint, once that paint
// has been handled.
#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Bare window"));
    window.resize(640, 481);
    struct QuitAfterFirstPaint : QObject {
        bool eventFilter(QObject* watched, QEvent* event) override {
            if (event->type() == QEvent::Paint) {
                QTimer::singleShot(0, qApp, &QCoreApplication::quit);
                watched->removeEventFilter(this);
            }
            return false;
        }
    } quitter;
    window.installEventFilter(&quitter);
    window.show();
    return app.exec();
}
