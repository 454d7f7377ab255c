#include "platform/qt/qt_canvas.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "common/twips.h"
#include "platform/qt/pictures.h"

namespace qh {
namespace {

// Twips to the pixel that holds them (rounding down, as the old screen did).
int px(int twips) { return int(std::floor(double(twips) / kTwipsPerPixel)); }

QString qs(const std::string& text) { return QString::fromUtf8(text.data(), qsizetype(text.size())); }

}  // namespace

QColor qtColor(Color color) { return QColor(redOf(color), greenOf(color), blueOf(color)); }

QFont qtFont(const std::string& name, double pointSize, bool bold, bool italic, bool underline,
             bool strikethrough) {
    QFont font(qs(name));
    font.setPointSizeF(pointSize > 0 ? pointSize : 8.25);
    font.setBold(bold);
    font.setItalic(italic);
    font.setUnderline(underline);
    font.setStrikeOut(strikethrough);
    // Hinting follows the platform; kerning off keeps widths additive as the old screen's.
    font.setKerning(false);
    return font;
}

QtCanvas::QtCanvas(double devicePixelRatio) : ratio_(devicePixelRatio > 0 ? devicePixelRatio : 1.0) {
    setFont(CanvasFont{});
    remake(nullptr);
}

void QtCanvas::remake(const QImage* keep) {
    const int w = std::max(1, int(std::ceil(std::max(0, widthTwips_) / double(kTwipsPerPixel) * ratio_)));
    const int h = std::max(1, int(std::ceil(std::max(0, heightTwips_) / double(kTwipsPerPixel) * ratio_)));
    QImage fresh(w, h, QImage::Format_ARGB32_Premultiplied);
    fresh.setDevicePixelRatio(ratio_);
    fresh.fill(Qt::transparent);
    if (keep && !keep->isNull()) {
        QPainter painter(&fresh);
        painter.drawImage(QPointF(0, 0), *keep);
    }
    image_ = std::move(fresh);
    ++generation_;
}

void QtCanvas::resize(int widthTwips, int heightTwips) {
    if (widthTwips == widthTwips_ && heightTwips == heightTwips_) return;
    widthTwips_ = widthTwips;
    heightTwips_ = heightTwips;
    const QImage old = image_;
    remake(&old);
}

void QtCanvas::setDevicePixelRatio(double ratio) {
    if (ratio <= 0 || ratio == ratio_) return;
    ratio_ = ratio;
    const QImage old = image_;
    remake(&old);
}

void QtCanvas::clear(Color background) {
    image_.fill(Qt::transparent);
    background_ = background;
    ++generation_;
}

void QtCanvas::paintLayers(QPainter& painter, const std::string& picture) const {
    const QRectF area(0, 0, image_.width() / ratio_, image_.height() / ratio_);
    painter.fillRect(area, qtColor(background_));
    if (!picture.empty()) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        drawPicture(painter, qs(picture), area);
        painter.restore();
    }
    painter.drawImage(QPointF(0, 0), image_);
}

QImage QtCanvas::flattened(const std::string& picture) const {
    QImage flat(image_.size(), QImage::Format_ARGB32_Premultiplied);
    flat.setDevicePixelRatio(ratio_);
    QPainter painter(&flat);
    paintLayers(painter, picture);
    painter.end();
    return flat;
}

void QtCanvas::line(int x1, int y1, int x2, int y2, Color color) {
    QPainter painter(&image_);
    painter.setPen(QPen(qtColor(color), 1, Qt::SolidLine, Qt::SquareCap));
    // Through the centres of the end pixels, both ends included: a one-pixel line covers
    // exactly its pixels at any density.
    const QPointF a(px(x1) + 0.5, px(y1) + 0.5), b(px(x2) + 0.5, px(y2) + 0.5);
    if (a == b)
        painter.fillRect(QRectF(px(x1), px(y1), 1, 1), qtColor(color));
    else
        painter.drawLine(a, b);
    ++generation_;
}

void QtCanvas::filledBox(int x1, int y1, int x2, int y2, Color color) {
    QPainter painter(&image_);
    const int left = px(std::min(x1, x2)), right = px(std::max(x1, x2));
    const int top = px(std::min(y1, y2)), bottom = px(std::max(y1, y2));
    painter.fillRect(QRect(left, top, right - left + 1, bottom - top + 1), qtColor(color));
    ++generation_;
}

void QtCanvas::setFont(const CanvasFont& font) {
    font_ = font;
    qfont_ = qtFont(font.name, font.size, font.bold, font.italic, font.underline, font.strikethrough);
}

void QtCanvas::printText(int x, int y, const std::string& text) {
    QPainter painter(&image_);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setFont(qfont_);
    painter.setPen(qtColor(foreColor_));
    const QFontMetricsF metrics(qfont_, &image_);
    painter.drawText(QPointF(px(x), px(y) + metrics.ascent()), qs(text));
    ++generation_;
}

int QtCanvas::textWidth(const std::string& text) const {
    const QFontMetricsF metrics(qfont_, &image_);
    return int(std::lround(metrics.horizontalAdvance(qs(text)) * kTwipsPerPixel));
}

int QtCanvas::textHeight() const {
    const QFontMetricsF metrics(qfont_, &image_);
    return int(std::lround(std::ceil(metrics.ascent() + metrics.descent()) * kTwipsPerPixel));
}

void QtCanvas::paintPicture(const std::string& picture, int x, int y) {
    const QString name = qs(picture);
    const QSize size = pictureSize(name);
    if (size.isEmpty()) return;
    QPainter painter(&image_);
    painter.setRenderHint(QPainter::Antialiasing);
    drawPicture(painter, name, QRectF(QPointF(px(x), px(y)), QSizeF(size)));
    ++generation_;
}

std::shared_ptr<Canvas> QtCanvasFactory::create() {
    double ratio = 1.0;
    if (QGuiApplication::instance())
        if (QScreen* screen = QGuiApplication::primaryScreen()) ratio = screen->devicePixelRatio();
    return std::make_shared<QtCanvas>(ratio);
}

}  // namespace qh
