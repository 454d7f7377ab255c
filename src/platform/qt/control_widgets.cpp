#include "platform/qt/control_widgets.h"

#include <QMouseEvent>
#include <QWheelEvent>
#include <QPainter>
#include <cmath>

#include "platform/qt/pictures.h"
#include "platform/qt/qt_canvas.h"

namespace qh {
namespace {

QString qs(const std::string& text) { return QString::fromUtf8(text.data(), qsizetype(text.size())); }

constexpr int kCellTwips = 150;

}  // namespace

int toPixels(int twips) { return int(std::floor(double(twips) / kTwipsPerPixel)); }

EventArgs mouseArgs(const QMouseEvent* event) {
    EventArgs args;
    args.button = event->button() == Qt::RightButton ? 2 : event->button() == Qt::MiddleButton ? 4 : 1;
    const Qt::KeyboardModifiers mods = event->modifiers();
    args.shift = (mods & Qt::ShiftModifier ? 1 : 0) | (mods & Qt::ControlModifier ? 2 : 0) |
                 (mods & Qt::AltModifier ? 4 : 0);
    const QPointF at = event->position();
    args.x = int(std::lround(at.x() * kTwipsPerPixel));
    args.y = int(std::lround(at.y() * kTwipsPerPixel));
    return args;
}

PaintedBox::PaintedBox(QWidget* parent) : QWidget(parent) {}

void PaintedBox::setControl(const Control& control) {
    control_ = control;
    // Without its own background the container shows through (transparent labels).
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    update();
}

void PaintedBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect area = rect();
    if (control_.opaque) painter.fillRect(area, qtColor(control_.backColor));
    auto* canvas = control_.drawable ? dynamic_cast<QtCanvas*>(control_.canvas.get()) : nullptr;
    if (canvas) {
        canvas->paintLayers(painter, control_.picture);
    } else if (!control_.picture.empty()) {
        painter.setRenderHint(QPainter::Antialiasing);
        drawPicture(painter, qs(control_.picture), QRectF(area));
    }
    if (!control_.caption.empty()) {
        painter.setFont(captionFont());
        painter.setPen(isEnabled() ? qtColor(control_.foreColor) : palette().color(QPalette::Disabled, QPalette::Text));
        int flags = Qt::TextHideMnemonic;
        if (control_.kind == ControlKind::PictureBox) {
            flags |= Qt::AlignCenter;
        } else {
            flags |= Qt::TextWordWrap | Qt::AlignTop;
            flags |= control_.alignment == Alignment::Center  ? Qt::AlignHCenter
                     : control_.alignment == Alignment::Right ? Qt::AlignRight
                                                              : Qt::AlignLeft;
        }
        const int inset = control_.border ? 2 : 0;
        painter.drawText(area.adjusted(inset, inset, -inset, -inset), flags, qs(control_.caption));
    }
    if (control_.border) {
        // A light inset: darker above and left, lighter below and right.
        const QRect r = area.adjusted(0, 0, -1, -1);
        painter.setPen(QColor(0x8a, 0x8f, 0x96));
        painter.drawLine(r.topLeft(), r.topRight());
        painter.drawLine(r.topLeft(), r.bottomLeft());
        painter.setPen(QColor(0xc8, 0xcc, 0xd1));
        painter.drawLine(r.bottomLeft(), r.bottomRight());
        painter.drawLine(r.topRight(), r.bottomRight());
    }
    if (hasFocus()) {
        // The keyboard is here: a clear frame along the box's edge.
        painter.setPen(QPen(QColor(0x1c, 0x5f, 0xc8), 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(area).adjusted(1, 1, -1, -1));
    }
}

QFont PaintedBox::captionFont() const {
    QFont font = qtFont(control_.fontName, control_.fontSize, control_.bold, control_.italic, control_.underline);
    if (control_.kind != ControlKind::Label || control_.caption.empty()) return font;
    const int room = width() - (control_.border ? 4 : 0);
    if (room <= 0) return font;
    const QStringList words = qs(control_.caption).remove(QLatin1Char('&')).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (double size = font.pointSizeF(); size > 4.0; size -= 0.5) {
        font.setPointSizeF(size);
        const QFontMetricsF metrics(font, this);
        bool fits = true;
        for (const QString& word : words) fits = fits && metrics.horizontalAdvance(word) <= room;
        if (fits) break;
    }
    return font;
}

void PaintedBox::mousePressEvent(QMouseEvent* event) {
    pressed_ = true;
    if (handlers_.press) handlers_.press(mouseArgs(event));
}

void PaintedBox::mouseReleaseEvent(QMouseEvent* event) {
    const bool wasPressed = pressed_;
    pressed_ = false;
    const bool inside = rect().contains(event->position().toPoint());
    if (handlers_.release) handlers_.release(mouseArgs(event));
    if (wasPressed && inside && event->button() == Qt::LeftButton && handlers_.click) handlers_.click(mouseArgs(event));
}

void PaintedBox::mouseDoubleClickEvent(QMouseEvent* event) {
    // The press of a double click still counts as a press, as the old windows had it.
    pressed_ = true;
    if (handlers_.press) handlers_.press(mouseArgs(event));
    if (handlers_.doubleClick) handlers_.doubleClick(mouseArgs(event));
}

void PaintedBox::wheelEvent(QWheelEvent* event) {
    // Turns of a control that doesn't take them go on to its container.
    if (!handlers_.wheel || !handlers_.wheel(0)) {
        event->ignore();
        return;
    }
    event->accept();
    wheelEighths_ += event->angleDelta().y();
    const int notches = wheelEighths_ / 120;
    if (notches == 0) return;
    wheelEighths_ -= notches * 120;
    handlers_.wheel(notches);
}

void PaintedBox::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

void PaintedBox::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

ColorGridWidget::ColorGridWidget(QWidget* parent) : QWidget(parent) {}

void ColorGridWidget::setControl(const Control& control) {
    control_ = control;
    update();
}

int ColorGridWidget::columns() const { return std::max(1, control_.width / kCellTwips); }

int ColorGridWidget::cellAt(QPoint point) const {
    if (point.x() < 0 || point.y() < 0) return 0;
    const int cellPixels = kCellTwips / kTwipsPerPixel;
    const int column = point.x() / cellPixels, row = point.y() / cellPixels;
    if (column >= columns()) return 0;
    const int cell = row * columns() + column + 1;
    return cell <= int(control_.items.size()) ? cell : 0;
}

void ColorGridWidget::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), qtColor(control_.backColor));
    const int cellPixels = kCellTwips / kTwipsPerPixel;
    for (int i = 0; i < int(control_.items.size()); ++i) {
        const QRect cell((i % columns()) * cellPixels, (i / columns()) * cellPixels, cellPixels, cellPixels);
        Color color = kWhite;
        try {
            color = colorFromText(control_.items[std::size_t(i)]);
        } catch (const std::exception&) {
            // A text that is no colour shows as an empty (white) cell.
        }
        // A black outline, the colour filling it but for a one-pixel edge.
        painter.fillRect(cell, Qt::black);
        painter.fillRect(cell.adjusted(1, 1, -1, -1), qtColor(color));
        if (i + 1 == control_.value) {
            painter.setPen(QPen(Qt::white, 1));
            painter.drawRect(cell.adjusted(1, 1, -2, -2));
        }
    }
}

void ColorGridWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const int cell = cellAt(event->position().toPoint());
    if (cell > 0 && onChoose) onChoose(cell, mouseArgs(event));
}

}  // namespace qh
