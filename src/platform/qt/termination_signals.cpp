#include "platform/qt/termination_signals.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <cerrno>
#include <csignal>
#include <stdexcept>

namespace qh {
namespace {

constexpr int kSignals[] = {SIGTERM, SIGINT, SIGHUP};

// Written by the handler, read by the event loop: only what a handler may touch.
int pipeEnds[2] = {-1, -1};
volatile std::sig_atomic_t signalled = 0;

extern "C" void onTerminationSignal(int signal) {
    if (signalled) {
        // The close of the first signal is still running: this one ends the run now.
        std::signal(signal, SIG_DFL);
        std::raise(signal);
        return;
    }
    signalled = 1;
    const int saved = errno;
    const char byte = char(signal);
    [[maybe_unused]] const ssize_t written = ::write(pipeEnds[1], &byte, 1);
    errno = saved;
}

}  // namespace

TerminationSignals::TerminationSignals() {
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, pipeEnds) != 0)
        throw std::runtime_error("no pipe for the termination signals");
    ::fcntl(pipeEnds[1], F_SETFL, O_NONBLOCK);
    struct sigaction action {};
    action.sa_handler = onTerminationSignal;
    // No handler interrupts another: the second of two signals sent together finds the
    // first one noted.
    sigemptyset(&action.sa_mask);
    for (int signal : kSignals) sigaddset(&action.sa_mask, signal);
    action.sa_flags = SA_RESTART;
    for (int signal : kSignals) ::sigaction(signal, &action, nullptr);
}

TerminationSignals::~TerminationSignals() {
    struct sigaction action {};
    action.sa_handler = SIG_DFL;
    sigemptyset(&action.sa_mask);
    for (int signal : kSignals) ::sigaction(signal, &action, nullptr);
    delete notifier_;
    for (int& end : pipeEnds) {
        ::close(end);
        end = -1;
    }
    signalled = 0;
}

void TerminationSignals::listen(std::function<void()> close) {
    close_ = std::move(close);
    notifier_ = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read);
    connect(notifier_, &QSocketNotifier::activated, this, &TerminationSignals::received);
}

void TerminationSignals::received() {
    char byte = 0;
    if (::read(pipeEnds[0], &byte, 1) != 1) return;
    notifier_->setEnabled(false);
    if (close_) close_();
}

}  // namespace qh
