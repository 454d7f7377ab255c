// The user's gestures on a window's widgets, handed to the model: presses, keys, focus,
// What's This, and the window's own resize, move, state change and close.
#include <QApplication>
#include <QCloseEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QWhatsThis>

#include "common/twips.h"
#include "platform/qt/form_view.h"
#include "platform/qt/qt_text.h"

namespace qh {

// The key codes of the windowing layer the models speak: letters as capitals, digits,
// Enter 13, Escape 27, Tab 9, Page Up and Down 33 and 34, End 35, Home 36, the arrows 37
// to 40, F1 to F12 from 112.
static int keyCodeOf(const QKeyEvent& event) {
    const int key = event.key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) return kKeyReturn;
    if (key == Qt::Key_Escape) return kKeyEscape;
    if (key == Qt::Key_Tab || key == Qt::Key_Backtab) return kKeyTab;
    if (key == Qt::Key_Backspace) return 8;
    if (key == Qt::Key_Delete) return 46;
    if (key == Qt::Key_PageUp) return kKeyPageUp;
    if (key == Qt::Key_PageDown) return kKeyPageDown;
    if (key == Qt::Key_End) return kKeyEnd;
    if (key == Qt::Key_Home) return kKeyHome;
    if (key >= Qt::Key_Left && key <= Qt::Key_Down) return 37 + (key - Qt::Key_Left);
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return 112 + (key - Qt::Key_F1);
    if ((key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z) || key == Qt::Key_Space)
        return key;
    return 0;
}

bool FormWindow::keyPressed(const std::string& key, QKeyEvent* event) {
    const int code = keyCodeOf(*event);
    if (code == 0 || code == kKeyTab) return false;  // Qt walks the tab order set from the model
    const QString text = event->text();
    const int character = text.size() == 1 && text[0].unicode() < 256 ? text[0].unicode() : 0;
    int shift = 0;
    if (event->modifiers() & Qt::ShiftModifier) shift |= 1;
    if (event->modifiers() & Qt::ControlModifier) shift |= 2;
    if (event->modifiers() & Qt::AltModifier) shift |= 4;
    const bool multiLine = form_.has(key) && form_.c(key).kind == ControlKind::TextBox && form_.c(key).multiLine;
    const bool button = form_.has(key) && form_.c(key).kind == ControlKind::CommandButton;
    const bool link = form_.has(key) && form_.c(key).kind == ControlKind::Label && form_.c(key).focusable;
    const bool enter = (code == kKeyReturn && (button || link || (!form_.defaultButton.empty() && !multiLine))) ||
                       (code == ' ' && link);
    const bool escape = code == kKeyEscape && !form_.cancelButton.empty();
    // The model moves the choice of a radio group by the arrows; the widget must not too.
    const bool radioArrow = form_.has(key) && form_.c(key).kind == ControlKind::RadioButton && code >= kKeyLeft &&
                            code <= kKeyDown;
    if (!enter && !escape && !radioArrow && !form_.handles(key, FormEvent::KeyDown) &&
        !form_.handles(key, FormEvent::KeyPress))
        return false;
    forward([this, key, code, character, shift] {
        form_.focusTo(key);
        form_.pressKey(code, character, shift);
    });
    // A box that takes keys (the calendar, the grid) has them all; no widget moves behind it.
    const bool keyBox = form_.has(key) && form_.c(key).kind == ControlKind::PictureBox && form_.handles(key, FormEvent::KeyDown);
    return enter || escape || keyBox || radioArrow;
}


bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget || retired_) return QWidget::eventFilter(watched, event);
    if (widget == client_) {
        // A press on the window itself, beside every control.
        if (event->type() == QEvent::MouseButtonPress && !renderer_.applying())
            forward([this] { form_.Form_MouseDown(""); });
        return QWidget::eventFilter(watched, event);
    }
    const std::string key = str(widget->objectName());
    switch (event->type()) {
        case QEvent::FocusIn:
            if (form_.has(key) && !renderer_.applying() && form_.focusedControl != key) {
                applied_.focused = key;
                forward([this, key] { form_.focusTo(key); });
            }
            break;
        case QEvent::FocusOut: {
            // Focus that leaves for a widget of no control of this window (or for nothing)
            // leaves the model's control too; moving to another control is its FocusIn.
            const auto reason = static_cast<QFocusEvent*>(event)->reason();
            if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason) break;
            QWidget* now = QApplication::focusWidget();
            const bool toControl = now && now->window() == this && form_.has(str(now->objectName()));
            if (form_.has(key) && !toControl && !renderer_.applying() && form_.focusedControl == key) {
                applied_.focused.clear();
                forward([this] { form_.focusTo(""); });
            }
            break;
        }
        case QEvent::MouseButtonPress:
            // Presses on boxes reach the model as MouseDown through PaintedBox. A press on a
            // text box is its Click (a date field opens its calendar on it); a press on any
            // other control tells the window before the control acts.
            if (form_.has(key) && !renderer_.applying()) {
                const ControlKind kind = form_.c(key).kind;
                if (kind == ControlKind::TextBox)
                    forward([this, key] { form_.click(key); });
                else if (kind != ControlKind::Label && kind != ControlKind::PictureBox)
                    forward([this, key] { form_.Form_MouseDown(key); });
            }
            break;
        case QEvent::KeyPress: {
            auto* press = static_cast<QKeyEvent*>(event);
            if (auto* text = qobject_cast<QPlainTextEdit*>(widget);
                text && press->key() == Qt::Key_Tab && press->modifiers() == Qt::ControlModifier) {
                if (!text->isReadOnly()) text->insertPlainText(QStringLiteral("\t"));
                return true;
            }
            if (form_.has(key) && keyPressed(key, press)) return true;
            break;
        }
        case QEvent::QueryWhatsThis:
            event->setAccepted(form_.has(key) && form_.c(key).helpContextId != 0);
            return true;
        case QEvent::WhatsThis:
            if (form_.has(key) && form_.c(key).helpContextId != 0) {
                const int number = form_.c(key).helpContextId;
                const QString text =
                    renderer_.helpText ? qs(renderer_.helpText(number)) : QStringLiteral("Help topic %1").arg(number);
                QWhatsThis::showText(static_cast<QHelpEvent*>(event)->globalPos(), text, widget);
                return true;
            }
            break;
        case QEvent::WhatsThisClicked:
            if (renderer_.openHelpLink) {
                renderer_.openHelpLink(str(static_cast<QWhatsThisClickedEvent*>(event)->href()));
                return true;
            }
            break;
        default: break;
    }
    return QWidget::eventFilter(watched, event);
}


void FormWindow::clientResizedByUser() {
    const int bar = menuBarPixels();
    const int clientWidth = width(), clientHeight = std::max(0, height() - bar);
    if (clientWidth == applied_.clientWidth && clientHeight == applied_.clientHeight) return;
    applied_.clientWidth = clientWidth;
    applied_.clientHeight = clientHeight;
    forward([this, clientWidth, clientHeight] {
        form_.scaleWidth = clientWidth * kTwipsPerPixel;
        form_.scaleHeight = clientHeight * kTwipsPerPixel;
        form_.width = form_.scaleWidth + Form::kFrameWidth;
        form_.height = form_.scaleHeight + Form::kFrameHeight + (form_.hasMenuBar() ? Form::kMenuBarHeight : 0);
        form_.Form_Resize();
    });
}

void FormWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    layoutClient();
    applyFocusReach();
    if (!renderer_.applying() && isVisible()) clientResizedByUser();
}

void FormWindow::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    if (renderer_.applying()) return;
    form_.left = x() * kTwipsPerPixel;
    form_.top = y() * kTwipsPerPixel;
    applied_.left = form_.left;
    applied_.top = form_.top;
}

void FormWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || renderer_.applying() || retired_) return;
    const Qt::WindowStates states = windowState();
    const WindowState now = states & Qt::WindowMinimized   ? WindowState::Minimized
                            : states & Qt::WindowMaximized ? WindowState::Maximized
                                                           : WindowState::Normal;
    const WindowState before = form_.windowState;
    if (now == before) return;
    form_.windowState = now;
    applied_.state = now;
    // Minimising and coming back from it change no size, yet the window is told.
    if (now == WindowState::Minimized || before == WindowState::Minimized)
        forward([this] { form_.Form_Resize(); });
}

void FormWindow::closeEvent(QCloseEvent* event) {
    // The model decides; the window goes only through FormRenderer::close.
    event->ignore();
    if (retired_) return;
    forward([this] { renderer_.close(form_, UnloadMode::CloseBox); });
}

}  // namespace qh
