#pragma once
// Widgets the toolkit has no ready match for: the painted box that shows labels and
// picture boxes (colour, picture, canvas, caption, border, mouse), and the colour grid.
#include <QCheckBox>
#include <QRadioButton>
#include <QWidget>
#include <functional>

#include "common/twips.h"
#include "platform/control.h"
#include "platform/form.h"

namespace qh {

// Mouse gestures of a painted control, in twips inside it.
struct MouseHandlers {
    std::function<void(const EventArgs&)> press, release, click, doubleClick;
    // Whole notches of the wheel, positive up; false when the control doesn't take them,
    // so that its container may. Asked with 0 notches, only tells whether it takes them.
    std::function<bool(int notches)> wheel;
};

// A label or picture box. Paints, in this order: the back colour (when opaque), the
// picture stretched to the box, the canvas image of a drawable box, the caption (labels:
// wrapped, aligned as the control says; picture boxes: centred), the border.
class PaintedBox : public QWidget {
public:
    explicit PaintedBox(QWidget* parent);
    void setControl(const Control& control);  // what to paint; repaints
    void setHandlers(MouseHandlers handlers) { handlers_ = std::move(handlers); }
    const Control& control() const { return control_; }
    // Whether the model acts on a click or press on it (screen readers call it a button).
    bool clickable() const { return clickable_; }
    void setClickable(bool clickable) { clickable_ = clickable; }
    // The font the caption is drawn in: the control's own, made smaller where a word of a
    // label's caption would not fit its width, so no text is ever cut off at any scale.
    QFont captionFont() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    Control control_;
    MouseHandlers handlers_;
    bool pressed_ = false;
    bool clickable_ = false;
    int wheelEighths_ = 0;  // a touchpad's part turns, until they make a notch
};

// Colour swatches in square cells of 150 twips, row by row, as many to a row as the width
// holds. `items` are the colours as "&HBBGGRR" texts; `value` the 1-based number of the
// chosen one (0 for none), which is framed. A click chooses a cell.
class ColorGridWidget : public QWidget {
public:
    explicit ColorGridWidget(QWidget* parent);
    void setControl(const Control& control);
    // Number of the cell at a point in pixels, 1-based; 0 outside all cells.
    int cellAt(QPoint point) const;
    std::function<void(int cell, const EventArgs&)> onChoose;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    int columns() const;
    Control control_;
};

// A check box and a radio button that take a click anywhere on their area, caption
// included, as the planner's windows expect.
class AreaCheckBox : public QCheckBox {
public:
    using QCheckBox::QCheckBox;

protected:
    bool hitButton(const QPoint& point) const override { return rect().contains(point); }
};

class AreaRadioButton : public QRadioButton {
public:
    using QRadioButton::QRadioButton;

protected:
    bool hitButton(const QPoint& point) const override { return rect().contains(point); }
};

// Screen readers' view of the painted boxes; installed once, before the first window.
void installAccessibility();
// The name a screen reader gives a control: its own, else its caption, else its tooltip.
QString accessibleNameOf(const Control& control);

// Pixels for a position in twips, and the arguments of a mouse event in twips.
int toPixels(int twips);
EventArgs mouseArgs(const QMouseEvent* event);

}  // namespace qh
