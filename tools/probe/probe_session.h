#pragma once
// A scripted session with the real main window model on a real drive folder: the clock
// comes from the script, message boxes and dialogs are answered from it, and what the
// window shows is printed on request.
#include <istream>
#include <memory>
#include <ostream>
#include <string>

#include "platform/posix_file_system.h"
#include "record_store/columns.h"
#include "shell/main_window.h"
#include "support/fake_platform.h"

namespace qh {

class ProbeSession {
public:
    // `drive` is the drive folder (with exec/ and Documents/ in it); `host` the host folder
    // for the .PID file.
    ProbeSession(const std::string& drive, const std::string& host, std::ostream& out);
    ~ProbeSession();

    // Runs every line of the script; returns false after a line it could not understand.
    bool run(std::istream& script);
    // Runs one action line.
    bool action(const std::string& line);

    MainWindow* window() { return window_.get(); }

private:
    bool started() const { return window_ != nullptr; }
    void start();
    void reportMessages();

    std::ostream& out_;
    FakeEnvironment environment_;
    FakeClock clock_;
    FakeLocale locale_;
    FakeMessageBoxes messages_;
    PosixFileSystem files_;
    FakeProcesses processes_;
    FakeDialogs dialogs_;
    FakeWindowing windowing_;
    RecordingCanvasFactory canvases_;
    Platform platform_;
    RecordStore store_;
    std::unique_ptr<MainWindow> window_;
    std::size_t messagesReported_ = 0;
};

}  // namespace qh
