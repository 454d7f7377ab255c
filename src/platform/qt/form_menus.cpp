// The menu bar of a window, built from the model's Menu controls: a control with entries
// under it is a QMenu, any other an action; caption "-" is a separator.
#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <set>

#include "platform/qt/form_view.h"
#include "platform/qt/qt_text.h"

namespace qh {

void FormWindow::rebuildMenus() {
    menuKeys_.clear();
    for (auto& [key, view] : views_) {
        if (form_.c(key).kind != ControlKind::Menu) continue;
        if (view.menu) {
            delete view.menu;  // owns its menu action
        } else {
            delete view.action;
        }
        view.menu = nullptr;
        view.action = nullptr;
        view.fresh = true;
    }
    menuBar_->clear();
    std::set<std::string> parents;
    for (const std::string& key : form_.order()) {
        const Control& control = form_.c(key);
        if (control.kind == ControlKind::Menu && !control.container.empty()) parents.insert(control.container);
    }
    bool anyTopLevel = false;
    for (const std::string& key : form_.order()) {
        const Control& control = form_.c(key);
        if (control.kind != ControlKind::Menu) continue;
        menuKeys_.push_back(key);
        View& view = views_[key];
        QMenu* parentMenu = nullptr;
        if (!control.container.empty()) {
            auto it = views_.find(control.container);
            if (it == views_.end() || !it->second.menu) continue;  // parent unknown: not shown
            parentMenu = it->second.menu;
        } else {
            anyTopLevel = true;
        }
        if (parents.count(key)) {
            view.menu = new QMenu(qs(control.caption), this);
            view.menu->setObjectName(qs(key));
            view.action = view.menu->menuAction();
            view.action->setObjectName(qs(key));
            if (parentMenu)
                parentMenu->addMenu(view.menu);
            else
                menuBar_->addMenu(view.menu);
        } else {
            view.action = new QAction(this);
            view.action->setObjectName(qs(key));
            if (control.caption == "-") view.action->setSeparator(true);
            QObject::connect(view.action, &QAction::triggered, this,
                             [this, key] { forward([this, key] { form_.click(key); }); });
            if (parentMenu)
                parentMenu->addAction(view.action);
            else
                menuBar_->addAction(view.action);
        }
    }
    menuBar_->setVisible(anyTopLevel);
}

void FormWindow::applyMenu(View& view, const Control& control) {
    QAction* action = view.action;
    if (!action) return;
    if (!action->isSeparator()) {
        action->setText(qs(control.caption));
        if (view.menu) view.menu->setTitle(qs(control.caption));
        // A tick shows only where one is set; an unticked entry carries no empty box.
        if (!view.menu) {
            action->setCheckable(control.checked);
            action->setChecked(control.checked);
        }
    }
    action->setEnabled(control.enabled);
    action->setVisible(control.visible);
}

}  // namespace qh
