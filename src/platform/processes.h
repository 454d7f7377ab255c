#pragma once
#include <cstdint>
#include <string>

namespace qh {

class Processes {
public:
    virtual ~Processes() = default;
    // True when another copy of the planner runs for this user. The check survives a
    // crashed earlier run (a stale claim is not a running copy).
    virtual bool anotherInstanceRunning() = 0;
    virtual std::int32_t ownProcessId() = 0;
    // Starts a command line; returns the new process's identifier. Throws FileFailure
    // when it cannot be started.
    virtual std::int32_t startCommand(const std::string& commandLine) = 0;
    // Opens a file or web address with the default handler. Throws FileFailure when the
    // desktop has none that would open it.
    virtual void openWithDefaultHandler(const std::string& pathOrAddress) = 0;
};

}  // namespace qh
