#include "platform/qt/pictures.h"

#include <QFile>
#include <QFont>
#include <QHash>
#include <QSvgRenderer>
#include <algorithm>
#include <cmath>
#include <memory>

// Outside any namespace: the resource initialiser has a global name.
static void initPictureResources() { Q_INIT_RESOURCE(pictures); }

namespace qh {
namespace {

QString resourcePath(const QString& name) { return QStringLiteral(":/pictures/%1.svg").arg(name); }

struct Picture {
    std::shared_ptr<QSvgRenderer> renderer;
    // Drawn to fill its box (backgrounds of buttons and column headers, the splash);
    // such pictures say so with preserveAspectRatio="none" on their root.
    bool fills = false;
};

// One renderer per picture, made on first use; the program has one thread.
const Picture& pictureFor(const QString& name) {
    static QHash<QString, Picture> cache;
    auto it = cache.find(name);
    if (it == cache.end()) {
        Picture picture;
        QFile file(resourcePath(name));
        if (file.open(QIODevice::ReadOnly)) {
            const QByteArray text = file.readAll();
            picture.renderer = std::make_shared<QSvgRenderer>(text);
            if (!picture.renderer->isValid()) picture.renderer.reset();
            picture.fills = text.contains("preserveAspectRatio=\"none\"");
        }
        it = cache.insert(name, picture);
    }
    return it.value();
}

QSvgRenderer* rendererFor(const QString& name) { return pictureFor(name).renderer.get(); }

}  // namespace

void initPictures() {
    static bool done = false;
    if (done) return;
    done = true;
    initPictureResources();
}

bool hasPicture(const QString& name) {
    initPictures();
    return rendererFor(name) != nullptr;
}

QSize pictureSize(const QString& name) {
    initPictures();
    QSvgRenderer* renderer = rendererFor(name);
    return renderer ? renderer->defaultSize() : QSize();
}

void drawPicture(QPainter& painter, const QString& name, const QRectF& target) {
    initPictures();
    QSvgRenderer* renderer = rendererFor(name);
    if (!renderer || target.isEmpty()) return;
    const QSizeF own = renderer->defaultSize();
    if (own.isEmpty()) return;
    if (!pictureFor(name).fills) {
        // At its own size from the top left, as a picture box shows a picture; made
        // smaller, keeping its shape, only where the box is smaller.
        const double shrink = std::min({1.0, target.width() / own.width(), target.height() / own.height()});
        renderer->render(&painter, QRectF(target.topLeft(), own * shrink));
        return;
    }
    const double wider = target.width() / target.height() - own.width() / own.height();
    if (std::abs(wider) < 0.25 * own.width() / own.height()) {
        renderer->render(&painter, target);
        return;
    }
    // Three slices across: the ends keep their own shape (just under half the picture at
    // most, and no wider than it is high), the middle stretches. The picture is rendered once at
    // the target's height in device pixels, then cut.
    const double scale = target.height() / own.height();
    const double ratio = painter.device() ? painter.device()->devicePixelRatioF() : 1.0;
    QImage whole(QSize(int(std::ceil(own.width() * scale * ratio)), int(std::ceil(target.height() * ratio))),
                 QImage::Format_ARGB32_Premultiplied);
    whole.fill(Qt::transparent);
    {
        QPainter inner(&whole);
        inner.setRenderHint(QPainter::Antialiasing);
        renderer->render(&inner, QRectF(QPointF(0, 0), QSizeF(whole.size())));
    }
    // One pixel of the middle is always left to stretch: an empty source would be read as
    // the whole picture.
    const double cap = std::max(0.0, std::min(own.width() / 2.0 - 1.0, double(own.height()))) * scale;
    const double capSource = cap * ratio;
    const double wholeWidth = whole.width(), wholeHeight = whole.height();
    painter.drawImage(QRectF(target.left(), target.top(), cap, target.height()), whole,
                      QRectF(0, 0, capSource, wholeHeight));
    painter.drawImage(QRectF(target.left() + cap, target.top(), target.width() - 2 * cap, target.height()), whole,
                      QRectF(capSource, 0, wholeWidth - 2 * capSource, wholeHeight));
    painter.drawImage(QRectF(target.right() - cap, target.top(), cap, target.height()), whole,
                      QRectF(wholeWidth - capSource, 0, capSource, wholeHeight));
}

void installFontSubstitutes() {
    // Metric-compatible faces, so that captions and columns measured for the old fonts
    // still fit: DejaVu Sans shares Verdana's wide build, Liberation Sans and Mono share
    // the widths of Arial and Courier New.
    QFont::insertSubstitution(QStringLiteral("Verdana"), QStringLiteral("DejaVu Sans"));
    QFont::insertSubstitution(QStringLiteral("Tahoma"), QStringLiteral("DejaVu Sans"));
    QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
    QFont::insertSubstitution(QStringLiteral("MS Sans Serif"), QStringLiteral("Liberation Sans"));
    QFont::insertSubstitution(QStringLiteral("Microsoft Sans Serif"), QStringLiteral("Liberation Sans"));
    QFont::insertSubstitution(QStringLiteral("Times New Roman"), QStringLiteral("Liberation Serif"));
    QFont::insertSubstitution(QStringLiteral("Courier"), QStringLiteral("Liberation Mono"));
    QFont::insertSubstitution(QStringLiteral("Courier New"), QStringLiteral("Liberation Mono"));
}

}  // namespace qh
