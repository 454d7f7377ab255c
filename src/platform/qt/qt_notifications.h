#pragma once
// Desktop notices through the freedesktop notification service (org.freedesktop.Notifications
// on the session bus). Every call is asynchronous: a service that answers slowly, or not at
// all, never holds the window. The answers and the user's choice of a notice reach the
// planner through `run`, which hands them to the models as a gesture.
#include <QObject>
#include <QString>
#include <functional>
#include <map>

#include "platform/notifications.h"

namespace qh {

class QtNotifications : public QObject, public Notifications {
    Q_OBJECT
public:
    using Runner = std::function<void(const std::function<void()>&)>;
    explicit QtNotifications(Runner run);
    void notify(const std::string& title, const std::string& text, Handlers handlers) override;

    // Words for a failed call to the service, by its D-Bus error name.
    static std::string failureText(const QString& errorName, const QString& message);

private slots:
    void actionInvoked(uint id, const QString& actionKey);
    void notificationClosed(uint id, uint reason);

private:
    bool listen();
    Runner run_;
    bool listening_ = false;
    // The notices on the desktop now, by the service's id; a new one replaces the last
    // while it is still there.
    std::map<uint, Handlers> shown_;
    uint lastId_ = 0;
};

}  // namespace qh
