#pragma once
// The end of a session or a terminal (SIGTERM, SIGHUP, SIGINT) closes the planner as
// File > Exit does, so the preferences are stored, the backups rotated and the .PID file
// removed. The signal handler itself only writes one byte into a pipe; the event loop
// reads it and runs the close there, where any work is safe. A second signal while the
// first is being handled ends the run at once, as the signal would have without us.
#include <QObject>
#include <functional>

class QSocketNotifier;

namespace qh {

class TerminationSignals : public QObject {
public:
    // Installs the handlers for the process. The signals that arrive before
    // listen() wait in the pipe and are handled once it is called.
    TerminationSignals();
    ~TerminationSignals() override;
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

    // From now on the event loop runs `close` for the first signal.
    void listen(std::function<void()> close);

private:
    void received();
    QSocketNotifier* notifier_ = nullptr;
    std::function<void()> close_;
};

}  // namespace qh
