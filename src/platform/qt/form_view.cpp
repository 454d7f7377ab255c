// The window of a model: its widgets by control key, the container widgets, stacking,
// and the one pass that applies the model after every forwarded gesture.
#include "platform/qt/form_view.h"

#include <QMenuBar>
#include <QTimer>
#include <algorithm>

#include "platform/mnemonics.h"
#include "platform/qt/control_widgets.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_text.h"

namespace qh {

FormWindow::FormWindow(FormRenderer& renderer, Form& form)
    : QWidget(nullptr, Qt::Window), renderer_(renderer), form_(form) {
    installAccessibility();
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
    // Nothing the widgets say while they go may reach the model. Only the window's own
    // connections go: others (the accessibility cache's watch on each widget's end) must
    // still hear of it, or a later widget at the same address inherits a dead interface.
    retired_ = true;
    for (auto& [key, view] : views_) {
        if (view.widget) QObject::disconnect(view.widget, nullptr, this, nullptr);
        if (view.timer) {
            view.timer->stop();
            QObject::disconnect(view.timer, nullptr, this, nullptr);
        }
        if (view.action) QObject::disconnect(view.action, nullptr, this, nullptr);
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

void FormWindow::focusFirstField() {
    if (retired_ || !form_.visible) return;
    const auto usable = [this](const std::string& key) {
        QWidget* target = widget(key);
        return target && target->isVisibleTo(this) && target->isEnabled() && target->focusPolicy() != Qt::NoFocus;
    };
    // The model's focus counts only when it asked for it since the window was last hidden;
    // otherwise it is where the student left the window the time before.
    const bool asked = form_.focusRequests() != focusRequestsAtHide_;
    std::string key = asked && usable(form_.focusedControl) ? form_.focusedControl : std::string();
    for (const std::string& stop : form_.tabOrder()) {
        if (!key.empty()) break;
        if (usable(stop)) key = stop;
    }
    if (key.empty()) return;
    // Shown as the keyboard's focus (a frame) even before the window is active, when the
    // toolkit would otherwise take it for a click's.
    setAttribute(Qt::WA_KeyboardFocusChange);
    widget(key)->setFocus(Qt::TabFocusReason);
    applied_.focused = key;
    if (form_.focusedControl != key) forward([this, key] { form_.focusTo(key); });
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

void FormWindow::restack(const std::string& containerKey) {
    std::vector<std::pair<int, QWidget*>> children;
    for (auto& [key, view] : views_)
        if (view.widget && view.last.container == containerKey) children.emplace_back(view.last.z, view.widget);
    std::stable_sort(children.begin(), children.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    for (auto& [z, widget] : children) widget->raise();
}

// A window without a menu bar (a dialog, an editor) underlines a letter of each button's
// and box's caption, unique in the window, so that Alt and the letter presses it. Only the
// widget shows the mark: the model, and so the probe and the help, keep the plain caption.
void FormWindow::markMnemonics() {
    std::vector<std::string> keys, captions;
    if (!form_.hasMenuBar()) {
        for (const std::string& key : form_.tabPlaces()) {
            const Control& control = form_.c(key);
            if (control.kind != ControlKind::CommandButton && control.kind != ControlKind::CheckBox &&
                control.kind != ControlKind::RadioButton)
                continue;
            keys.push_back(key);
            captions.push_back(control.caption);
        }
    }
    std::vector<std::string> source = keys;
    source.insert(source.end(), captions.begin(), captions.end());
    if (source == mnemonicSource_) return;
    mnemonicSource_ = std::move(source);
    mnemonics_.clear();
    const std::vector<std::string> marked = WithMnemonics(captions);
    for (std::size_t i = 0; i < keys.size(); ++i) mnemonics_[keys[i]] = marked[i];
}

std::string FormWindow::shownCaption(const std::string& key, const Control& control) const {
    auto it = mnemonics_.find(key);
    return it == mnemonics_.end() ? control.caption : it->second;
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
    markMnemonics();
    std::set<std::string> restackIn;
    for (const std::string& key : order) {
        View& view = views_[key];
        const Control& control = form_.c(key);
        if (view.fresh || !(control == view.last) || (view.widget && shownCaption(key, control) != view.caption)) {
            if (view.fresh || control.z != view.last.z || control.container != view.last.container)
                restackIn.insert(control.container);
            applyControl(view, control, key);
            view.last = control;
            view.fresh = false;
        }
        if (view.widget) reconcile(view.widget, control);
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
    applyFocusReach();
}

void FormWindow::applyFocusReach() {
    // After the window took its size: what lies beyond its edge now takes no focus.
    for (auto& [key, view] : views_)
        if (view.widget && form_.has(key)) applyFocusPolicy(view.widget, key, form_.c(key));
}


}  // namespace qh
