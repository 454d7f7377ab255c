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

// One renderer per picture, made on first use; the program has one thread.
QSvgRenderer* rendererFor(const QString& name) {
    static QHash<QString, std::shared_ptr<QSvgRenderer>> cache;
    auto it = cache.find(name);
    if (it == cache.end()) {
        std::shared_ptr<QSvgRenderer> renderer;
        const QString path = resourcePath(name);
        if (QFile::exists(path)) {
            renderer = std::make_shared<QSvgRenderer>(path);
            if (!renderer->isValid()) renderer.reset();
        }
        it = cache.insert(name, renderer);
    }
    return it.value().get();
}

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
    if (target.width() <= own.width() + 0.5 || own.width() <= 0) {
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
