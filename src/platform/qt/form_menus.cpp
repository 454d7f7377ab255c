// The menu bar of a window, built from the model's Menu controls: a control with entries
// under it is a QMenu, any other an action; caption "-" is a separator.
#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QKeySequence>
#include <set>

#include "platform/mnemonics.h"
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

// The caption of a menu control with its underlined letter among those of its level.
QString FormWindow::menuText(const Control& control) const {
    std::vector<std::string> captions;
    std::size_t mine = 0;
    for (const std::string& key : menuKeys_) {
        const Control& other = form_.c(key);
        if (other.container != control.container) continue;
        if (&other == &control || other.key() == control.key()) mine = captions.size();
        captions.push_back(other.caption);
    }
    const std::vector<std::string> marked = WithMnemonics(captions);
    return mine < marked.size() ? qs(marked[mine]) : qs(control.caption);
}

void FormWindow::applyMenu(View& view, const Control& control) {
    QAction* action = view.action;
    if (!action) return;
    if (!action->isSeparator()) {
        const QString text = menuText(control);
        action->setText(text);
        if (view.menu) view.menu->setTitle(text);
        if (!view.menu) action->setShortcut(QKeySequence(qs(control.shortcut)));
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
