#include "platform/qt/pictures.h"

#include <QFile>
#include <QFont>
#include <QHash>
#include <QSvgRenderer>
#include <algorithm>
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
    const QRectF box = renderer->viewBoxF();
    const QSizeF own = renderer->defaultSize();
    if (target.width() <= own.width() + 0.5 || own.width() <= 0) {
        renderer->render(&painter, target);
        return;
    }
    // Three slices across: the ends keep their own width (at most half the picture, and
    // no wider than it is high), the middle stretches.
    const double capPixels = std::min(own.width() / 2.0, own.height());
    const double capBox = capPixels * box.width() / own.width();
    renderer->setViewBox(QRectF(box.left(), box.top(), capBox, box.height()));
    renderer->render(&painter, QRectF(target.left(), target.top(), capPixels, target.height()));
    renderer->setViewBox(QRectF(box.left() + capBox, box.top(), box.width() - 2 * capBox, box.height()));
    renderer->render(&painter, QRectF(target.left() + capPixels, target.top(), target.width() - 2 * capPixels,
                                      target.height()));
    renderer->setViewBox(QRectF(box.right() - capBox, box.top(), capBox, box.height()));
    renderer->render(&painter, QRectF(target.right() - capPixels, target.top(), capPixels, target.height()));
    renderer->setViewBox(box);
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
