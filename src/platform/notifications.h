#pragma once
// Notices on the desktop, outside the planner's windows: the desktop's own notification
// service shows them. Sending never waits for the service; what it answers comes later,
// through the handlers, on the planner's own thread between gestures.
#include <functional>
#include <string>

namespace qh {

class Notifications {
public:
    struct Handlers {
        // The service took the notice and shows it.
        std::function<void()> delivered;
        // The user chose the notice (its default action).
        std::function<void()> activated;
        // The notice could not be shown: no service, a refusal, or no desktop session at
        // all. Says why in a few words; empty for the last, where no one is there to be
        // told. Called at most once a notice, instead of delivered.
        std::function<void(const std::string& why)> failed;
    };

    virtual ~Notifications() = default;
    // Sends one notice, title and text (lines separated by "\n"), with the planner's icon
    // and a default action, and returns at once.
    virtual void notify(const std::string& title, const std::string& text, Handlers handlers) = 0;

    // No desktop session: every notice fails at once, silently. The platform of a tool
    // that never shows notices uses it.
    static Notifications& none();
};

}  // namespace qh
