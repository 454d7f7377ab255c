#include "platform/qt/form_view.h"

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QApplication>
#include <QCoreApplication>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTimer>
#include <QWhatsThis>
#include <QWindow>
#include <algorithm>

#include "platform/qt/control_widgets.h"
#include "platform/qt/qt_canvas.h"

namespace qh {
namespace {

QString qs(const std::string& text) { return QString::fromUtf8(text.data(), qsizetype(text.size())); }
std::string str(const QString& text) { return text.toStdString(); }

// Multi-line boxes hold their lines as the planner's files do, ended by CR LF; the widget
// knows only LF.
QString forDisplay(const std::string& text) { return qs(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")); }
std::string fromDisplay(const QString& text) {
    QString copy = text;
    return str(copy.replace(QStringLiteral("\n"), QStringLiteral("\r\n")));
}

QStringList qsList(const std::vector<std::string>& items) {
    QStringList list;
    list.reserve(qsizetype(items.size()));
    for (const std::string& item : items) list.append(qs(item));
    return list;
}

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
QString wrappedCaption(const Control& control, const QFontMetrics& metrics) {
    const QString caption = qs(control.caption);
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
    palette.setColor(back, qtColor(control.backColor));
    palette.setColor(fore, qtColor(control.foreColor));
    widget->setPalette(palette);
}

}  // namespace

// ---------------------------------------------------------------------------------------
// FormWindow

FormWindow::FormWindow(FormRenderer& renderer, Form& form)
    : QWidget(nullptr, Qt::Window), renderer_(renderer), form_(form) {
    setObjectName(qs(form.name()));
    menuBar_ = new QMenuBar(this);
    menuBar_->setObjectName(QStringLiteral("_menuBar"));
    menuBar_->setNativeMenuBar(false);
    menuBar_->hide();
    client_ = new QWidget(this);
    client_->setObjectName(QStringLiteral("_client"));
    client_->setAutoFillBackground(true);
    QPalette palette = client_->palette();
    palette.setColor(QPalette::Window, qtColor(kButtonFace));
    client_->setPalette(palette);
    client_->installEventFilter(this);
}

FormWindow::~FormWindow() {
    // Nothing the widgets say while they go may reach the model.
    retired_ = true;
    for (auto& [key, view] : views_) {
        if (view.widget) QObject::disconnect(view.widget, nullptr, nullptr, nullptr);
        if (view.timer) {
            view.timer->stop();
            QObject::disconnect(view.timer, nullptr, nullptr, nullptr);
        }
        if (view.action) QObject::disconnect(view.action, nullptr, nullptr, nullptr);
    }
    delete client_;
    client_ = nullptr;
}

QWidget* FormWindow::widget(const std::string& key) const {
    auto it = views_.find(key);
    return it == views_.end() ? nullptr : it->second.widget;
}

QTimer* FormWindow::timer(const std::string& key) const {
    auto it = views_.find(key);
    return it == views_.end() ? nullptr : it->second.timer;
}

QAction* FormWindow::action(const std::string& key) const {
    auto it = views_.find(key);
    return it == views_.end() ? nullptr : it->second.action;
}

void FormWindow::retire() {
    retired_ = true;
    for (auto& [key, view] : views_)
        if (view.timer) view.timer->stop();
}

int FormWindow::menuBarPixels() const { return menuBar_->isHidden() ? 0 : menuBar_->sizeHint().height(); }

void FormWindow::layoutClient() {
    const int bar = menuBarPixels();
    if (bar > 0) menuBar_->setGeometry(0, 0, width(), bar);
    client_->setGeometry(0, bar, width(), std::max(0, height() - bar));
}

QWidget* FormWindow::containerWidget(const std::string& containerKey) {
    if (containerKey.empty() || !form_.has(containerKey)) return client_;
    if (!views_.count(containerKey)) createView(containerKey);
    QWidget* widget = views_[containerKey].widget;
    return widget ? widget : client_;
}

void FormWindow::createView(const std::string& key) {
    if (views_.count(key)) return;
    View& view = views_[key];
    const Control& control = form_.c(key);
    if (control.kind == ControlKind::Menu) return;  // built with the menu bar
    if (control.kind == ControlKind::Timer) {
        view.timer = new QTimer(this);
        view.timer->setObjectName(qs(key));
        QObject::connect(view.timer, &QTimer::timeout, this, [this, key] { forward([this, key] { form_.tick(key); }); });
        return;
    }
    createWidget(view, control, key);
}

void FormWindow::createWidget(View& view, const Control& control, const std::string& key) {
    QWidget* parent = containerWidget(control.container);
    QWidget* widget = nullptr;
    switch (control.kind) {
        case ControlKind::Label:
        case ControlKind::PictureBox: {
            auto* box = new PaintedBox(parent);
            MouseHandlers handlers;
            handlers.press = [this, key](const EventArgs& args) { forward([this, key, args] { form_.press(key, args); }); };
            handlers.release = [this, key](const EventArgs& args) {
                forward([this, key, args] { form_.release(key, args); });
            };
            handlers.click = [this, key](const EventArgs&) { forward([this, key] { form_.click(key); }); };
            handlers.doubleClick = [this, key](const EventArgs& args) {
                forward([this, key, args] { form_.fire(key, FormEvent::DblClick, args); });
            };
            box->setHandlers(std::move(handlers));
            widget = box;
            break;
        }
        case ControlKind::TextBox:
            if (control.multiLine) {
                auto* edit = new QPlainTextEdit(parent);
                QObject::connect(edit, &QPlainTextEdit::textChanged, this, [this, key, edit] {
                    forward([this, key, edit] { form_.type(key, fromDisplay(edit->toPlainText())); });
                });
                widget = edit;
            } else {
                auto* edit = new QLineEdit(parent);
                QObject::connect(edit, &QLineEdit::textEdited, this, [this, key](const QString& text) {
                    forward([this, key, text] { form_.type(key, str(text)); });
                });
                widget = edit;
            }
            break;
        case ControlKind::ComboBox: {
            auto* combo = new QComboBox(parent);
            combo->setEditable(false);
            QObject::connect(combo, &QComboBox::activated, this,
                             [this, key](int index) { forward([this, key, index] { form_.select(key, index); }); });
            widget = combo;
            break;
        }
        case ControlKind::ListBox: {
            auto* list = new QListWidget(parent);
            QObject::connect(list, &QListWidget::currentRowChanged, this, [this, key](int row) {
                if (row >= 0) forward([this, key, row] { form_.select(key, row); });
            });
            QObject::connect(list, &QListWidget::itemDoubleClicked, this,
                             [this, key] { forward([this, key] { form_.fire(key, FormEvent::DblClick); }); });
            widget = list;
            break;
        }
        case ControlKind::CheckBox: {
            auto* box = new AreaCheckBox(parent);
            QObject::connect(box, &QCheckBox::clicked, this, [this, key](bool checked) {
                forward([this, key, checked] { form_.setChecked(key, checked); });
            });
            widget = box;
            break;
        }
        case ControlKind::RadioButton: {
            auto* radio = new AreaRadioButton(parent);
            // The model decides which of a container's radio buttons is set.
            radio->setAutoExclusive(false);
            QObject::connect(radio, &QRadioButton::clicked, this,
                             [this, key] { forward([this, key] { form_.click(key); }); });
            widget = radio;
            break;
        }
        case ControlKind::CommandButton: {
            auto* button = new QPushButton(parent);
            button->setAutoDefault(false);
            QObject::connect(button, &QPushButton::clicked, this,
                             [this, key] { forward([this, key] { form_.click(key); }); });
            widget = button;
            break;
        }
        case ControlKind::Frame: widget = new QGroupBox(parent); break;
        case ControlKind::ScrollBar: {
            auto* bar = new QScrollBar(Qt::Vertical, parent);
            QObject::connect(bar, &QScrollBar::valueChanged, this, [this, key, bar](int value) {
                if (bar->isSliderDown()) {
                    forward([this, key, value] {
                        form_.c(key).value = value;
                        form_.fire(key, FormEvent::Scroll);
                    });
                } else {
                    forward([this, key, value] { form_.scrollTo(key, value); });
                }
            });
            QObject::connect(bar, &QScrollBar::sliderReleased, this,
                             [this, key] { forward([this, key] { form_.fire(key, FormEvent::Change); }); });
            widget = bar;
            break;
        }
        case ControlKind::ColorGrid: {
            auto* grid = new ColorGridWidget(parent);
            grid->onChoose = [this, key](int cell, const EventArgs& args) {
                forward([this, key, cell, args] {
                    Control& control = form_.c(key);
                    if (!control.enabled) return;
                    control.value = cell;
                    form_.fire(key, FormEvent::Click, args);
                });
            };
            widget = grid;
            break;
        }
        case ControlKind::Timer:
        case ControlKind::Menu: return;
    }
    widget->setObjectName(qs(key));
    widget->installEventFilter(this);
    view.widget = widget;
}

// The key codes of the windowing layer the models speak: letters as capitals, digits,
// Enter 13, Escape 27, Tab 9, the arrows 37 to 40, F1 to F12 from 112.
static int keyCodeOf(const QKeyEvent& event) {
    const int key = event.key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) return kKeyReturn;
    if (key == Qt::Key_Escape) return kKeyEscape;
    if (key == Qt::Key_Tab || key == Qt::Key_Backtab) return kKeyTab;
    if (key == Qt::Key_Backspace) return 8;
    if (key == Qt::Key_Delete) return 46;
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
    const bool enter = code == kKeyReturn && !form_.defaultButton.empty() && !multiLine;
    const bool escape = code == kKeyEscape && !form_.cancelButton.empty();
    if (!enter && !escape && !form_.handles(key, FormEvent::KeyDown) && !form_.handles(key, FormEvent::KeyPress))
        return false;
    forward([this, key, code, character, shift] {
        form_.focusTo(key);
        form_.pressKey(code, character, shift);
    });
    return enter || escape;
}

void FormWindow::applyTabOrder() {
    const std::vector<std::string> order = form_.tabOrder();
    const std::set<std::string> stops(order.begin(), order.end());
    for (auto& [key, view] : views_) {
        if (!view.widget || !form_.has(key) || !form_.c(key).canTakeFocus()) continue;
        view.widget->setFocusPolicy(stops.count(key) ? Qt::StrongFocus : Qt::ClickFocus);
    }
    QWidget* previous = nullptr;
    for (const std::string& key : order) {
        QWidget* next = widget(key);
        if (!next) continue;
        if (previous) QWidget::setTabOrder(previous, next);
        previous = next;
    }
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
        case QEvent::KeyPress:
            if (form_.has(key) && keyPressed(key, static_cast<QKeyEvent*>(event))) return true;
            break;
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

void FormWindow::applyCommon(QWidget* widget, const Control& now, const Control* before) {
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
}

void FormWindow::applyControl(View& view, const Control& now, const std::string&) {
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
    applyCommon(widget, now, before);
    auto changed = [&](auto member) { return !before || before->*member != now.*member; };

    switch (now.kind) {
        case ControlKind::Label:
        case ControlKind::PictureBox:
            static_cast<PaintedBox*>(widget)->setControl(now);
            break;
        case ControlKind::TextBox:
            if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
                if (edit->text() != qs(now.text)) edit->setText(qs(now.text));
                if (changed(&Control::maxLength)) edit->setMaxLength(now.maxLength > 0 ? now.maxLength : 32767);
                if (changed(&Control::locked)) edit->setReadOnly(now.locked);
                if (changed(&Control::alignment)) edit->setAlignment(horizontal(now.alignment) | Qt::AlignVCenter);
                if (changed(&Control::border)) edit->setFrame(now.border);
            } else if (auto* text = qobject_cast<QPlainTextEdit*>(widget)) {
                if (text->toPlainText() != forDisplay(now.text)) text->setPlainText(forDisplay(now.text));
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
            if (combo->currentIndex() != now.listIndex) combo->setCurrentIndex(now.listIndex);
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
            if (list->currentRow() != now.listIndex) list->setCurrentRow(now.listIndex);
            if (changed(&Control::backColor) || changed(&Control::foreColor))
                setColors(widget, now, QPalette::Base, QPalette::Text);
            break;
        }
        case ControlKind::CheckBox:
        case ControlKind::RadioButton: {
            auto* button = static_cast<QAbstractButton*>(widget);
            if (changed(&Control::caption)) button->setText(qs(now.caption));
            if (button->isChecked() != now.checked) button->setChecked(now.checked);
            if (changed(&Control::foreColor)) setColors(widget, now, QPalette::Base, QPalette::WindowText);
            break;
        }
        case ControlKind::CommandButton: {
            auto* button = static_cast<QPushButton*>(widget);
            if (!before || before->caption != now.caption || before->width != now.width || fontDiffers(*before, now))
                button->setText(wrappedCaption(now, button->fontMetrics()));
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
            if (bar->value() != now.value && !bar->isSliderDown()) bar->setValue(now.value);
            break;
        }
        case ControlKind::ColorGrid: static_cast<ColorGridWidget*>(widget)->setControl(now); break;
        case ControlKind::Timer:
        case ControlKind::Menu: break;
    }
}

void FormWindow::restack(const std::string& containerKey) {
    std::vector<std::pair<int, QWidget*>> children;
    for (auto& [key, view] : views_)
        if (view.widget && view.last.container == containerKey) children.emplace_back(view.last.z, view.widget);
    std::stable_sort(children.begin(), children.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    for (auto& [z, widget] : children) widget->raise();
}

void FormWindow::sync() {
    if (retired_) return;
    FormRenderer::ApplyingScope scope(renderer_);
    const std::vector<std::string>& order = form_.order();
    if (order.size() != known_) {
        bool newMenu = false;
        for (const std::string& key : order) {
            if (views_.count(key)) continue;
            newMenu = newMenu || form_.c(key).kind == ControlKind::Menu;
            createView(key);
        }
        known_ = order.size();
        if (newMenu) rebuildMenus();
        applyTabOrder();
    }
    std::set<std::string> restackIn;
    for (const std::string& key : order) {
        View& view = views_[key];
        const Control& control = form_.c(key);
        if (view.fresh || !(control == view.last)) {
            if (view.fresh || control.z != view.last.z || control.container != view.last.container)
                restackIn.insert(control.container);
            applyControl(view, control, key);
            view.last = control;
            view.fresh = false;
        }
        if (control.drawable && view.widget) {
            if (auto* canvas = dynamic_cast<QtCanvas*>(control.canvas.get())) {
                if (canvas->generation() != view.canvasGeneration) {
                    view.canvasGeneration = canvas->generation();
                    view.widget->update();
                }
            }
        }
    }
    for (const std::string& container : restackIn) restack(container);
    applyWindow();
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
    if (applied_.fixedFrame != form_.fixedSize) {
        // A window that can't be resized offers no maximise or minimise either.
        applied_.fixedFrame = form_.fixedSize;
        const bool wasVisible = isVisible();
        setWindowFlags(form_.fixedSize ? Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
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
    }
    applied_.visible = form_.visible;
    if (applied_.focused != form_.focusedControl || applied_.focusRequests != form_.focusRequests()) {
        applied_.focused = form_.focusedControl;
        applied_.focusRequests = form_.focusRequests();
        if (QWidget* target = widget(form_.focusedControl)) target->setFocus(Qt::OtherFocusReason);
    }
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
