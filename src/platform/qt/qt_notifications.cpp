#include "platform/qt/qt_notifications.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QImage>
#include <QPainter>
#include <QVariantMap>

#include "platform/qt/pictures.h"

namespace qh {
namespace {

const QString kService = QStringLiteral("org.freedesktop.Notifications");
const QString kPath = QStringLiteral("/org/freedesktop/Notifications");
const QString kInterface = QStringLiteral("org.freedesktop.Notifications");
const QString kDefaultAction = QStringLiteral("default");

// The planner's icon as the service's raw image: width, height, row stride, alpha, bits
// per sample, channels, RGBA bytes.
QVariant iconImage() {
    initPictures();
    QImage image(64, 64, QImage::Format_RGBA8888);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        drawPicture(painter, QStringLiteral("PlannerIcon"), QRectF(0, 0, 64, 64));
    }
    QDBusArgument argument;
    argument.beginStructure();
    argument << image.width() << image.height() << int(image.bytesPerLine()) << true << 8 << 4
             << QByteArray(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
    argument.endStructure();
    return QVariant::fromValue(argument);
}

// Services that show markup read the body as markup; one that doesn't shows it as it is.
QString bodyText(const std::string& text) {
    QString body = QString::fromStdString(text);
    body.replace('&', QStringLiteral("&amp;")).replace('<', QStringLiteral("&lt;")).replace('>', QStringLiteral("&gt;"));
    return body;
}

}  // namespace

QtNotifications::QtNotifications(Runner run) : run_(std::move(run)) {}

std::string QtNotifications::failureText(const QString& errorName, const QString& message) {
    if (errorName == QStringLiteral("org.freedesktop.DBus.Error.ServiceUnknown") ||
        errorName == QStringLiteral("org.freedesktop.DBus.Error.NameHasNoOwner"))
        return "no notification service";
    if (errorName == QStringLiteral("org.freedesktop.DBus.Error.NoReply") ||
        errorName == QStringLiteral("org.freedesktop.DBus.Error.Timeout"))
        return "the notification service did not answer";
    return "the notification service refused (" + (message.isEmpty() ? errorName : message).toStdString() + ")";
}

bool QtNotifications::listen() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return false;
    if (!listening_) {
        listening_ = bus.connect(kService, kPath, kInterface, QStringLiteral("ActionInvoked"), this,
                                 SLOT(actionInvoked(uint, QString)));
        bus.connect(kService, kPath, kInterface, QStringLiteral("NotificationClosed"), this,
                    SLOT(notificationClosed(uint, uint)));
    }
    return true;
}

void QtNotifications::notify(const std::string& title, const std::string& text, Handlers handlers) {
    if (!listen()) {
        // No session bus: no desktop to tell, and nothing to tell the user.
        if (handlers.failed) handlers.failed(std::string());
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Notify"));
    QVariantMap hints;
    hints.insert(QStringLiteral("image-data"), iconImage());
    hints.insert(QStringLiteral("category"), QStringLiteral("reminder"));
    call << QStringLiteral("Quillhollow") << lastId_ << QString() << QString::fromStdString(title) << bodyText(text)
         << QStringList{kDefaultAction, QStringLiteral("Show Today's Reminders")} << hints << int(-1);
    auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, handlers = std::move(handlers)](QDBusPendingCallWatcher* done) {
                done->deleteLater();
                const QDBusPendingReply<uint> reply = *done;
                if (reply.isError()) {
                    const std::string why = failureText(reply.error().name(), reply.error().message());
                    if (handlers.failed) run_([&] { handlers.failed(why); });
                    return;
                }
                shown_.erase(lastId_);
                lastId_ = reply.value();
                shown_[lastId_] = handlers;
                if (handlers.delivered) run_(handlers.delivered);
            });
}

void QtNotifications::actionInvoked(uint id, const QString& actionKey) {
    const auto notice = shown_.find(id);
    if (notice == shown_.end() || actionKey != kDefaultAction || !notice->second.activated) return;
    const std::function<void()> activated = notice->second.activated;
    run_(activated);
}

void QtNotifications::notificationClosed(uint id, uint) {
    shown_.erase(id);
    // A notice gone from the desktop is not replaced: the next one comes anew.
    if (id == lastId_) lastId_ = 0;
}

}  // namespace qh
