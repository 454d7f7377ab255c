// What a screen reader hears of a window: every control's name and role. Standard widgets
// take their name from the model; the painted boxes (labels, pictures, the calendar, the
// list grid) get an accessible interface of their own, with one child per line of a list
// the model draws.
#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QPointer>
#include <vector>

#include "platform/qt/control_widgets.h"
#include "platform/qt/form_view.h"
#include "platform/qt/qt_text.h"

namespace qh {
namespace {

QString withoutMnemonic(const std::string& caption) {
    QString text = qs(caption);
    text.replace(QStringLiteral("&&"), QStringLiteral("\x01"));
    text.remove(QLatin1Char('&'));
    text.replace(QLatin1Char('\x01'), QLatin1Char('&'));
    return text.simplified();
}

// A line of a drawn list (a row of the grid): a child of its box with the line's text.
class DrawnLine : public QAccessibleInterface {
public:
    DrawnLine(PaintedBox* box, int line) : box_(box), line_(line) {}
    bool isValid() const override { return box_ && line_ < int(box_->control().items.size()); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return box_->window()->windowHandle(); }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(box_); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QString text(QAccessible::Text t) const override {
        if (t != QAccessible::Name || !isValid()) return QString();
        return qs(box_->control().items[std::size_t(line_)]);
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override { return QRect(); }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.selectable = true;
        return state;
    }

private:
    QPointer<PaintedBox> box_;
    int line_;
};

// A label or picture box. Its role follows what it does: a box the user clicks is a
// button, a box that takes the keyboard with lines of its own is a list, one holding other
// controls a group, a picture a graphic, a caption static text. A box that neither shows a
// text nor does anything is decoration, which screen readers pass over.
class PaintedBoxInterface : public QAccessibleWidget {
public:
    explicit PaintedBoxInterface(PaintedBox* box) : QAccessibleWidget(box, QAccessible::Client) {}

    PaintedBox* box() const { return static_cast<PaintedBox*>(widget()); }
    const Control& control() const { return box()->control(); }
    int lines() const { return control().focusable ? int(control().items.size()) : 0; }
    bool holdsControls() const {
        for (QObject* child : widget()->children())
            if (child->isWidgetType()) return true;
        return false;
    }

    QAccessible::Role role() const override {
        const Control& c = control();
        if (c.focusable) return lines() > 0 || c.drawable ? QAccessible::List : QAccessible::Grouping;
        if (box()->clickable()) return QAccessible::Button;
        if (holdsControls()) return QAccessible::Grouping;
        if (!c.caption.empty() || c.drawable) return QAccessible::StaticText;
        if (!c.picture.empty()) return QAccessible::Graphic;
        return QAccessible::Client;
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        if (role() == QAccessible::Client && text(QAccessible::Name).isEmpty()) state.invisible = true;
        return state;
    }
    QString text(QAccessible::Text t) const override {
        if (t == QAccessible::Name) return widget()->accessibleName();
        if (t == QAccessible::Description) return widget()->toolTip();
        return QAccessibleWidget::text(t);
    }
    int childCount() const override { return QAccessibleWidget::childCount() + lines(); }
    QAccessibleInterface* child(int index) const override {
        const int widgets = QAccessibleWidget::childCount();
        if (index < widgets) return QAccessibleWidget::child(index);
        const int line = index - widgets;
        if (line >= lines()) return nullptr;
        // One interface a line, made when first asked for and kept while the box lives.
        while (int(lineIds_.size()) <= line)
            lineIds_.push_back(QAccessible::registerAccessibleInterface(new DrawnLine(box(), int(lineIds_.size()))));
        return QAccessible::accessibleInterface(lineIds_[std::size_t(line)]);
    }
    ~PaintedBoxInterface() override {
        for (QAccessible::Id id : lineIds_) QAccessible::deleteAccessibleInterface(id);
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        for (std::size_t i = 0; i < lineIds_.size(); ++i)
            if (QAccessible::accessibleInterface(lineIds_[i]) == child) return QAccessibleWidget::childCount() + int(i);
        return QAccessibleWidget::indexOfChild(child);
    }

private:
    mutable std::vector<QAccessible::Id> lineIds_;
};

// A drop-down list. Qt on this desktop calls a combo box by its value and leaves the name
// to a label widget beside it; the planner's labels are painted, so the combo box says
// its own name, and its value as the value.
class ComboBoxInterface : public QAccessibleWidget {
public:
    explicit ComboBoxInterface(QComboBox* combo) : QAccessibleWidget(combo, QAccessible::ComboBox) {}
    QString text(QAccessible::Text t) const override {
        auto* combo = static_cast<QComboBox*>(widget());
        if (t == QAccessible::Name) return combo->accessibleName();
        if (t == QAccessible::Value) return combo->currentText();
        return QAccessibleWidget::text(t);
    }
};

QAccessibleInterface* plannerInterfaces(const QString& className, QObject* object) {
    if (className == QLatin1String("QComboBox"))
        if (auto* combo = qobject_cast<QComboBox*>(object)) return new ComboBoxInterface(combo);
    // The box has no meta-object of its own: it is asked for as a plain widget.
    if (className == QLatin1String("QWidget"))
        if (auto* box = dynamic_cast<PaintedBox*>(object)) return new PaintedBoxInterface(box);
    return nullptr;
}

}  // namespace

void installAccessibility() {
    static bool installed = false;
    if (installed) return;
    installed = true;
    QAccessible::installFactory(plannerInterfaces);
}

// The name a control is called by: its own, else its caption, else its tooltip.
QString accessibleNameOf(const Control& control) {
    if (!control.accessibleName.empty()) return qs(control.accessibleName);
    if (!control.caption.empty() && control.caption != "-") return withoutMnemonic(control.caption);
    return qs(control.toolTip);
}

void FormWindow::applyAccessibility(QWidget* widget, const Control& now, const Control* before) {
    if (!before || before->toolTip != now.toolTip) widget->setToolTip(qs(now.toolTip));
    QString name = accessibleNameOf(now);
    // A field is called by the label a person reads beside it, without its colon.
    const bool field = now.kind == ControlKind::TextBox || now.kind == ControlKind::ComboBox ||
                       now.kind == ControlKind::ListBox || now.kind == ControlKind::ColorGrid ||
                       (now.kind == ControlKind::PictureBox && now.drawable);
    if (name.isEmpty() && field) {
        name = withoutMnemonic(form_.labelOf(now.key()));
        if (name.endsWith(QLatin1Char(':'))) name.chop(1);
    }
    if (widget->accessibleName() != name) widget->setAccessibleName(name);
    if (auto* box = dynamic_cast<PaintedBox*>(widget))
        box->setClickable(form_.handles(now.key(), FormEvent::Click) || form_.handles(now.key(), FormEvent::MouseDown));
}

}  // namespace qh
