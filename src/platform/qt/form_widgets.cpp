// One widget for each kind of control, wired so that a user's gesture reaches the model.
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

#include "platform/qt/control_widgets.h"
#include "platform/qt/form_view.h"
#include "platform/qt/qt_text.h"

namespace qh {

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
            handlers.wheel = [this, key](int notches) {
                if (form_.wheelTarget(key).empty()) return false;
                if (notches != 0) forward([this, key, notches] { form_.wheel(key, notches); });
                return true;
            };
            box->setHandlers(std::move(handlers));
            widget = box;
            break;
        }
        case ControlKind::TextBox:
            if (control.multiLine) {
                auto* edit = new QPlainTextEdit(parent);
                // Tab moves on, as everywhere; Ctrl+Tab types a tab (the event filter).
                edit->setTabChangesFocus(true);
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
            // A long list (the times of day) opens at 20 lines and scrolls.
            combo->setMaxVisibleItems(20);
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

}  // namespace qh
