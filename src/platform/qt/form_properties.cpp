// Applying a control's properties to its widget, and the window's own properties, after
// every handler: what changed since the last pass, and every widget's user-changeable state
// against the model.
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTimer>
#include <algorithm>
#include <set>

#include "platform/qt/control_widgets.h"
#include "platform/qt/form_view.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_text.h"

namespace qh {
namespace {

bool fontDiffers(const Control& a, const Control& b) {
    return a.fontName != b.fontName || a.fontSize != b.fontSize || a.bold != b.bold || a.italic != b.italic ||
           a.underline != b.underline;
}

Qt::Alignment horizontal(Alignment alignment) {
    switch (alignment) {
        case Alignment::Center: return Qt::AlignHCenter;
        case Alignment::Right: return Qt::AlignRight;
        default: return Qt::AlignLeft;
    }
}

// A button's caption broken at spaces into the lines that fit its width, as the planner's
// buttons show a long caption ("New Assignment") on two lines.
QString wrappedCaption(const std::string& marked, const Control& control, const QFontMetrics& metrics) {
    const QString caption = qs(marked);
    const int room = toPixels(control.width) - 8;
    const QString shown = QString(caption).remove(QLatin1Char('&'));
    if (room <= 0 || metrics.horizontalAdvance(shown) <= room) return caption;
    QStringList lines;
    QString line;
    for (const QString& word : caption.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const QString longer = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
        if (!line.isEmpty() && metrics.horizontalAdvance(QString(longer).remove(QLatin1Char('&'))) > room) {
            lines.append(line);
            line = word;
        } else {
            line = longer;
        }
    }
    if (!line.isEmpty()) lines.append(line);
    return lines.join(QLatin1Char('\n'));
}

void setColors(QWidget* widget, const Control& control, QPalette::ColorRole back, QPalette::ColorRole fore) {
    QPalette palette = widget->palette();
    const QColor backColor = qtColor(control.backColor), foreColor = qtColor(control.foreColor);
    palette.setColor(back, backColor);
    palette.setColor(fore, foreColor);
    // A control that takes no input shows its text faded halfway into its background, so
    // a disabled box holding text never looks like one to type in.
    palette.setColor(QPalette::Disabled, fore,
                     QColor((foreColor.red() + backColor.red()) / 2, (foreColor.green() + backColor.green()) / 2,
                            (foreColor.blue() + backColor.blue()) / 2));
    widget->setPalette(palette);
}

}  // namespace

// Tab visits the model's stops; a control that is no stop still takes the focus by a
// click, and a box that takes no focus never has it.
// What the student can't reach (beyond the window's edge, under the panel in front, or
// a radio button other than the one its group's Tab stops at) takes no Tab either, so
// that no key acts on what no one can see; the arrows move inside a radio group.
void FormWindow::applyFocusPolicy(QWidget* widget, const std::string& key, const Control& control) {
    if (!control.canTakeFocus()) {
        if (control.kind == ControlKind::PictureBox || control.kind == ControlKind::Label)
            widget->setFocusPolicy(Qt::NoFocus);
        return;
    }
    const bool stop = control.tabStop && !(control.kind == ControlKind::TextBox && control.locked) &&
                      (control.kind != ControlKind::RadioButton || form_.leadsRadioGroup(key));
    const Qt::FocusPolicy policy = !form_.withinReach(key) ? Qt::NoFocus : stop ? Qt::StrongFocus : Qt::ClickFocus;
    if (widget->focusPolicy() != policy) widget->setFocusPolicy(policy);
}

void FormWindow::applyTabOrder() {
    QWidget* previous = nullptr;
    for (const std::string& key : form_.tabPlaces()) {
        QWidget* next = widget(key);
        if (!next) continue;
        if (previous) QWidget::setTabOrder(previous, next);
        previous = next;
    }
}


void FormWindow::applyCommon(QWidget* widget, const std::string& key, const Control& now, const Control* before) {
    if (before && before->container != now.container) {
        widget->setParent(containerWidget(now.container));
        widget->setVisible(now.visible);
    }
    if (!before || before->left != now.left || before->top != now.top || before->width != now.width ||
        before->height != now.height)
        widget->setGeometry(toPixels(now.left), toPixels(now.top), toPixels(now.width), toPixels(now.height));
    if (!before || before->visible != now.visible) widget->setVisible(now.visible);
    if (!before || before->enabled != now.enabled) widget->setEnabled(now.enabled);
    if (!before || fontDiffers(*before, now))
        widget->setFont(qtFont(now.fontName, now.fontSize, now.bold, now.italic, now.underline));
    if (!before || before->helpContextId != now.helpContextId)
        widget->setWhatsThis(now.helpContextId ? QStringLiteral("Help topic %1").arg(now.helpContextId) : QString());
    if (!before || before->tabStop != now.tabStop || before->locked != now.locked || before->focusable != now.focusable)
        applyFocusPolicy(widget, key, now);
    applyAccessibility(widget, now, before);
}

void FormWindow::applyControl(View& view, const Control& now, const std::string& key) {
    if (now.kind == ControlKind::Menu) {
        applyMenu(view, now);
        return;
    }
    const Control* before = view.fresh ? nullptr : &view.last;
    if (view.timer) {
        const bool run = now.enabled && now.interval > 0 && !retired_;
        if (!run) {
            view.timer->stop();
        } else if (!before || !before->enabled || before->interval != now.interval || !view.timer->isActive()) {
            view.timer->start(now.interval);
        }
        return;
    }
    QWidget* widget = view.widget;
    if (!widget) return;
    applyCommon(widget, key, now, before);
    auto changed = [&](auto member) { return !before || before->*member != now.*member; };
    const std::string caption = shownCaption(key, now);
    const bool captionChanged = caption != view.caption;
    view.caption = caption;

    switch (now.kind) {
        case ControlKind::Label:
        case ControlKind::PictureBox:
            static_cast<PaintedBox*>(widget)->setControl(now);
            break;
        case ControlKind::TextBox:
            if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
                if (changed(&Control::maxLength)) edit->setMaxLength(now.maxLength > 0 ? now.maxLength : 32767);
                if (changed(&Control::locked)) edit->setReadOnly(now.locked);
                if (changed(&Control::alignment)) edit->setAlignment(horizontal(now.alignment) | Qt::AlignVCenter);
                if (changed(&Control::border)) edit->setFrame(now.border);
            } else if (auto* text = qobject_cast<QPlainTextEdit*>(widget)) {
                if (changed(&Control::locked)) text->setReadOnly(now.locked);
                if (changed(&Control::border)) text->setFrameShape(now.border ? QFrame::StyledPanel : QFrame::NoFrame);
            }
            if (changed(&Control::backColor) || changed(&Control::foreColor))
                setColors(widget, now, QPalette::Base, QPalette::Text);
            break;
        case ControlKind::ComboBox: {
            auto* combo = static_cast<QComboBox*>(widget);
            if (changed(&Control::items)) {
                combo->clear();
                combo->addItems(qsList(now.items));
            }
            if (changed(&Control::backColor) || changed(&Control::foreColor))
                setColors(widget, now, QPalette::Base, QPalette::Text);
            break;
        }
        case ControlKind::ListBox: {
            auto* list = static_cast<QListWidget*>(widget);
            if (changed(&Control::items)) {
                list->clear();
                list->addItems(qsList(now.items));
            }
            if (changed(&Control::backColor) || changed(&Control::foreColor))
                setColors(widget, now, QPalette::Base, QPalette::Text);
            break;
        }
        case ControlKind::CheckBox:
        case ControlKind::RadioButton: {
            auto* button = static_cast<QAbstractButton*>(widget);
            if (captionChanged) button->setText(qs(caption));
            if (changed(&Control::foreColor)) setColors(widget, now, QPalette::Base, QPalette::WindowText);
            break;
        }
        case ControlKind::CommandButton: {
            auto* button = static_cast<QPushButton*>(widget);
            if (!before || captionChanged || before->width != now.width || fontDiffers(*before, now))
                button->setText(wrappedCaption(caption, now, button->fontMetrics()));
            if (changed(&Control::picture))
                button->setIcon(now.picture.empty() ? QIcon()
                                                    : QIcon(QStringLiteral(":/pictures/%1.svg").arg(qs(now.picture))));
            break;
        }
        case ControlKind::Frame: {
            auto* frame = static_cast<QGroupBox*>(widget);
            if (changed(&Control::caption)) frame->setTitle(qs(now.caption));
            // A frame covers what lies behind it, so that of frames stacked in one place
            // only the one brought to the front shows, with its controls.
            if (changed(&Control::foreColor) || changed(&Control::backColor)) {
                setColors(widget, now, QPalette::Window, QPalette::WindowText);
                frame->setAutoFillBackground(true);
            }
            break;
        }
        case ControlKind::ScrollBar: {
            auto* bar = static_cast<QScrollBar*>(widget);
            if (changed(&Control::minimum) || changed(&Control::maximum))
                bar->setRange(now.minimum, std::max(now.minimum, now.maximum));
            if (changed(&Control::smallChange)) bar->setSingleStep(now.smallChange);
            if (changed(&Control::largeChange)) bar->setPageStep(now.largeChange);
            break;
        }
        case ControlKind::ColorGrid: static_cast<ColorGridWidget*>(widget)->setControl(now); break;
        case ControlKind::Timer:
        case ControlKind::Menu: break;
    }
}

// What the user changes on a widget by hand is compared with the model itself, not with
// the model's last state: a handler that refuses a gesture (a Done box that clears itself)
// leaves the model as it was, yet the widget moved and must be put back.
void FormWindow::reconcile(QWidget* widget, const Control& now) {
    switch (now.kind) {
        case ControlKind::TextBox:
            if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
                if (edit->text() != qs(now.text)) edit->setText(qs(now.text));
            } else if (auto* text = qobject_cast<QPlainTextEdit*>(widget)) {
                if (text->toPlainText() != forDisplay(now.text)) text->setPlainText(forDisplay(now.text));
            }
            break;
        case ControlKind::ComboBox: {
            auto* combo = static_cast<QComboBox*>(widget);
            if (combo->currentIndex() != now.listIndex) combo->setCurrentIndex(now.listIndex);
            break;
        }
        case ControlKind::ListBox: {
            auto* list = static_cast<QListWidget*>(widget);
            if (list->currentRow() != now.listIndex) list->setCurrentRow(now.listIndex);
            // A row the user marked stays marked only while it is the model's own.
            const QList<QListWidgetItem*> marked = list->selectedItems();
            if (now.listIndex < 0 ? !marked.isEmpty()
                                  : marked.size() != 1 || list->row(marked.front()) != now.listIndex) {
                list->clearSelection();
                if (QListWidgetItem* item = list->item(now.listIndex)) item->setSelected(true);
            }
            break;
        }
        case ControlKind::CheckBox:
        case ControlKind::RadioButton: {
            auto* button = static_cast<QAbstractButton*>(widget);
            if (button->isChecked() != now.checked) button->setChecked(now.checked);
            break;
        }
        case ControlKind::ScrollBar: {
            auto* bar = static_cast<QScrollBar*>(widget);
            if (bar->value() != now.value && !bar->isSliderDown()) bar->setValue(now.value);
            break;
        }
        default: break;
    }
}

void FormWindow::applyWindow() {
    const int menuTwips = form_.hasMenuBar() ? Form::kMenuBarHeight : 0;
    const int clientWidthTwips = form_.scaleWidth > 0 ? form_.scaleWidth : std::max(0, form_.width - Form::kFrameWidth);
    const int clientHeightTwips =
        form_.scaleHeight > 0 ? form_.scaleHeight : std::max(0, form_.height - Form::kFrameHeight - menuTwips);
    const int bar = menuBarPixels();

    if (applied_.caption != form_.caption || windowTitle().isEmpty()) {
        setWindowTitle(form_.caption.empty() ? QStringLiteral(" ") : qs(form_.caption));
        applied_.caption = form_.caption;
    }
    if (applied_.minWidth != form_.minWidth || applied_.minHeight != form_.minHeight) {
        applied_.minWidth = form_.minWidth;
        applied_.minHeight = form_.minHeight;
        const int w = form_.minWidth > 0 ? toPixels(std::max(0, form_.minWidth - Form::kFrameWidth)) : 0;
        const int h = form_.minHeight > 0 ? toPixels(std::max(0, form_.minHeight - Form::kFrameHeight - menuTwips)) : 0;
        setMinimumSize(w, h > 0 ? h + bar : 0);
    }
    if (applied_.fixedFrame != form_.fixedSize || applied_.titleBar != form_.titleBar) {
        // A window that can't be resized offers no maximise or minimise either; one without
        // a title bar is a splash, with no frame at all.
        applied_.fixedFrame = form_.fixedSize;
        applied_.titleBar = form_.titleBar;
        const bool wasVisible = isVisible();
        setWindowFlags(!form_.titleBar     ? Qt::SplashScreen | Qt::FramelessWindowHint
                       : form_.fixedSize ? Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                             Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint
                                         : Qt::Window);
        if (wasVisible) show();
    }
    const int clientWidth = toPixels(clientWidthTwips), clientHeight = toPixels(clientHeightTwips);
    if (clientWidth > 0 && clientHeight > 0 &&
        (applied_.clientWidth != clientWidth || applied_.clientHeight != clientHeight ||
         applied_.fixedSize != form_.fixedSize || client_->height() != clientHeight)) {
        applied_.clientWidth = clientWidth;
        applied_.clientHeight = clientHeight;
        applied_.fixedSize = form_.fixedSize;
        if (form_.fixedSize)
            setFixedSize(clientWidth, clientHeight + bar);
        else {
            setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
            resize(clientWidth, clientHeight + bar);
        }
    }
    layoutClient();
    if (applied_.left != form_.left || applied_.top != form_.top) {
        applied_.left = form_.left;
        applied_.top = form_.top;
        move(toPixels(form_.left), toPixels(form_.top));
    }
    if (applied_.state != form_.windowState) {
        applied_.state = form_.windowState;
        setWindowState(form_.windowState == WindowState::Maximized   ? Qt::WindowMaximized
                       : form_.windowState == WindowState::Minimized ? Qt::WindowMinimized
                                                                     : Qt::WindowNoState);
    }
    if (form_.visible && !isVisible()) {
        show();
        // Off-screen runs (tests, the probe) have no stacking of windows to ask for.
        if (QGuiApplication::platformName() != QStringLiteral("offscreen")) {
            raise();
            activateWindow();
        }
    } else if (!form_.visible && isVisible()) {
        hide();
        focusRequestsAtHide_ = form_.focusRequests();
    }
    applied_.visible = form_.visible;
    if (applied_.defaultButton != form_.defaultButton) {
        // The button Enter presses shows it by its frame.
        if (auto* before = qobject_cast<QPushButton*>(widget(applied_.defaultButton))) before->setDefault(false);
        if (auto* now = qobject_cast<QPushButton*>(widget(form_.defaultButton))) now->setDefault(true);
        applied_.defaultButton = form_.defaultButton;
    }
    if (applied_.focused != form_.focusedControl || applied_.focusRequests != form_.focusRequests()) {
        applied_.focused = form_.focusedControl;
        applied_.focusRequests = form_.focusRequests();
        if (QWidget* target = widget(form_.focusedControl)) target->setFocus(Qt::OtherFocusReason);
    }
}

}  // namespace qh
