#pragma once
// A scripted session with the real main window model on a real drive folder: the clock
// comes from the script, message boxes and dialogs are answered from it, and what the
// window shows is printed on request.
#include <istream>
#include <memory>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "platform/fake/fake_platform.h"
#include "platform/posix_file_system.h"
#include "record_store/columns.h"
#include "scripted_feeds.h"
#include "shell/main_window.h"

namespace qh {

// The real file layer, unsynced, noting each write ("write Notes.txt record 1", "write
// Preferences.ini whole") so that a script can show the order in which records are written.
class WriteNotingFileSystem : public PosixFileSystem {
public:
    WriteNotingFileSystem() : PosixFileSystem(Durability::Unsynced) {}
    std::unique_ptr<RecordFile> openRecords(const std::string& path, int recordLength) override;
    void writeWhole(const std::string& path, const std::string& bytes) override;
    void writeWholeUnsynced(const std::string& path, const std::string& bytes) override;
    void writeWholePrivate(const std::string& path, const std::string& bytes) override;

    std::vector<std::string> writes;  // since the last `writes` action
};

class ProbeSession {
public:
    // `drive` is the drive folder (with exec/ and Documents/ in it); `host` the host folder
    // for the .PID file. `feeds` fetches calendar feeds: the real network in the probe
    // program, none at all by default.
    ProbeSession(const std::string& drive, const std::string& host, std::ostream& out,
                 FeedFetcher& feeds = FeedFetcher::none());
    ~ProbeSession();

    // Runs every line of the script; returns false after a line it could not understand
    // (failedLine() then says which). While a modal window is open the lines act on it:
    // the script goes on inside the window's modal showing, as the toolkit's event loop
    // would, and the code that opened the window goes on when it hides.
    bool run(std::istream& script);
    // Runs one action line.
    bool action(const std::string& line);
    // The number and text of the line that failed.
    int failedLineNumber() const { return failedNumber_; }
    const std::string& failedLine() const { return failedLine_; }

    MainWindow* window() { return window_.get(); }
    // The window the actions go to: the modal window on top, else the main window.
    Form& frontWindow();

private:
    bool started() const { return window_ != nullptr; }
    void start();
    bool nextLine(std::string& line);
    void runInsideModal(Form& form);
    bool windowAction(const std::string& verb, std::istringstream& words);
    bool pickDate(Form& form, const std::string& field, const std::string& date);

    std::ostream& out_;
    FakeEnvironment environment_;
    FakeClock clock_;
    FakeLocale locale_;
    FakeMessageBoxes messages_;
    WriteNotingFileSystem files_;
    FakeProcesses processes_;
    FakeDialogs dialogs_;
    FakeWindowing windowing_;
    RecordingCanvasFactory canvases_;
    IcalCodec calendars_{kFakeTimeZone};
    FakeNotifications notifications_;
    ScriptedFeeds feeds_;
    Platform platform_;
    RecordStore store_;
    std::unique_ptr<MainWindow> window_;
    std::istream* script_ = nullptr;
    int lineNumber_ = 0;
    int failedNumber_ = 0;
    std::string failedLine_;
};

}  // namespace qh
