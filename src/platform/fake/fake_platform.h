#pragma once
// The platform as tests see it: a fixed clock, en-US formats, message boxes and dialogs
// answered from a script with a log of all that was shown, a real file layer on a fresh
// temporary drive folder that can be told to fail, and recording canvases.
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "common/failure.h"
#include "platform/platform.h"
#include "platform/posix_file_system.h"
#include "platform/fake/recording_canvas.h"
#include "platform/ical/ical_codec.h"

namespace qh {

// Every action the planner takes outside itself (a message box, a file or print dialog,
// printing, opening a file, starting a program) as one line, when it happens:
//   Message: "title" "text"
//   Dialog open|save "title" "suggested path" "filter"   (with no path suggested, the
//                                                       folder the dialog starts in)
//   Printer dialog
//   Printed window image
//   Open "PATH OR ADDRESS"
//   Start "COMMAND LINE"
//   Notification "title" "text"      (the text's line breaks written \n)
// A double quote inside a text is doubled.
// The time zone of the fake clock's local times, for the files that name one.
inline constexpr const char* kFakeTimeZone = "America/New_York";

using OutsideActionSink = std::function<void(const std::string& line)>;
std::string quotedText(const std::string& text);

class FakeEnvironment : public Environment {
public:
    std::string get(const std::string& name) const override;
    std::map<std::string, std::string> values;
};

class FakeClock : public Clock {
public:
    Moment now() const override { return moment; }
    void set(int year, int month, int day, int hour = 21, int minute = 5, int second = 0);
    void advanceSeconds(long long seconds);
    Moment moment{dateFromYmd(2026, 11, 21), 21 * 3600 + 5 * 60};
};

class FakeLocale : public Locale {
public:
    std::string longDate(Date date) const override;    // "Saturday, November 21, 2026"
    std::string mediumDate(Date date) const override;  // "21-Nov-26"
    std::string shortDate(Date date) const override;   // "11/21/2026"
    std::string mediumTime(int secondsOfDay) const override;  // "09:05 PM"
    std::string monthName(int month) const override;
    std::string dayName(int weekday) const override;
    void appendSortKey(std::string_view text, std::string& key) const override;  // the text in lower case
};

struct ShownMessage {
    std::string text, title;
    MessageButtons buttons;
    MessageIcon icon;
};

class FakeMessageBoxes : public MessageBoxes {
public:
    MessageAnswer show(const std::string& text, const std::string& title, MessageButtons buttons,
                       MessageIcon icon) override;
    std::vector<ShownMessage> shown;
    std::deque<MessageAnswer> answers;  // taken in order; when empty: OK, or Yes for questions
    OutsideActionSink onOutsideAction;
};

// The real file layer with faults on request. Reads and writes are counted over every
// operation (record reads and writes, whole-file reads and writes, deletes, copies,
// renames, directories); a fault set for the n-th one throws FileFailure instead.
class FakeFileSystem : public PosixFileSystem {
public:
    std::unique_ptr<RecordFile> openRecords(const std::string& path, int recordLength) override;
    std::string readAll(const std::string& path) override;
    std::string readHead(const std::string& path, std::size_t maxBytes) override;
    void writeWhole(const std::string& path, const std::string& bytes) override;
    void writeWholeUnsynced(const std::string& path, const std::string& bytes) override;
    void writeWholePrivate(const std::string& path, const std::string& bytes) override;
    void makeDirectory(const std::string& path) override;
    bool isWritable(const std::string& folder) override {
        return !(refuses(folder) && refusal_ == FileProblem::ReadOnly) && PosixFileSystem::isWritable(folder);
    }
    void createEmpty(const std::string& path) override;
    void remove(const std::string& path) override;
    void copy(const std::string& from, const std::string& to) override;
    void rename(const std::string& from, const std::string& to) override;

    // Fail the n-th read (1-based, counted from now) / the n-th write.
    void failRead(int nth) { failReadAt_ = reads_ + nth; }
    void failWrite(int nth) { failWriteAt_ = writes_ + nth; }
    // Fail every write from now on for this reason, as a full or locked drive does
    // (FileProblem::Other lets writes through again); with `under`, only the writes of paths
    // that begin with it (the drive, not the host folder of the .PID files).
    void refuseWrites(FileProblem why, std::string under = {}) {
        refusal_ = why;
        refusedUnder_ = std::move(under);
    }
    // Fail every operation on files whose name ends with `suffix`.
    void failPath(const std::string& suffix) { failingSuffix_ = suffix; }
    // Tear the n-th write: only its first `bytes` bytes reach the disk, then it fails, as
    // when the drive is pulled out. A whole-file write torn this way leaves the old file.
    void tearWrite(int nth, long long bytes) {
        tearWriteAt_ = writes_ + nth;
        tearBytes_ = bytes;
    }

    std::vector<std::string> log;  // "mkdir <path>", "write <path> #n", ... in order

    // Used by the record file wrapper.
    void countRead(const std::string& path);
    // Returns the number of bytes to write before failing, or -1 to write all.
    long long countWrite(const std::string& path, const std::string& what);

private:
    int reads_ = 0, writes_ = 0;
    int failReadAt_ = 0, failWriteAt_ = 0, tearWriteAt_ = 0;
    long long tearBytes_ = 0;
    std::string failingSuffix_;
    FileProblem refusal_ = FileProblem::Other;
    std::string refusedUnder_;
    bool refuses(const std::string& path) const {
        return refusal_ != FileProblem::Other && path.starts_with(refusedUnder_);
    }
    void checkPath(const std::string& path);
    // Counts a whole-file write; a torn one leaves the old file and throws.
    void countWholeWrite(const std::string& path, const std::string& bytes);
};

class FakeProcesses : public Processes {
public:
    bool anotherInstanceRunning() override { return otherInstance; }
    std::int32_t ownProcessId() override { return pid; }
    std::int32_t startCommand(const std::string& commandLine) override;
    void openWithDefaultHandler(const std::string& pathOrAddress) override;
    bool otherInstance = false;
    std::int32_t pid = 4242;
    bool startFails = false;
    bool openFails = false;  // no default handler on this desktop
    std::vector<std::string> started, opened;
    OutsideActionSink onOutsideAction;
};

// The desktop's notification service: notices are kept with their handlers, so a test
// chooses one (activate) as the user would, or the service is missing (available false),
// when every notice fails at once.
class FakeNotifications : public Notifications {
public:
    struct Sent {
        std::string title, text;
        Handlers handlers;
    };
    void notify(const std::string& title, const std::string& text, Handlers handlers) override;
    // Chooses the last notice sent, as a click on it does.
    void activateLast();
    std::vector<Sent> sent;
    bool available = true;
    OutsideActionSink onOutsideAction;
};

// Feeds answered from a table by address (Unreachable for one not in it). A fetch waits
// for the next settle, as a real one waits for the network.
class FakeFeeds : public FeedFetcher {
public:
    void fetch(const FeedRequest& request, Answered answered) override;
    void settle(int ms = 0) override;
    std::map<std::string, FeedAnswer> answers;
    std::vector<FeedRequest> requests;
    std::size_t waiting() const { return waiting_.size(); }

private:
    std::vector<std::pair<FeedRequest, Answered>> waiting_;
};

class FakeDialogs : public Dialogs {
public:
    FileDialogAnswer fileDialog(const FileDialogRequest& request) override;
    PrinterAnswer printerDialog() override;
    std::vector<FileDialogRequest> fileRequests;
    std::deque<FileDialogAnswer> fileAnswers;  // when empty: cancelled
    std::deque<PrinterAnswer> printerAnswers;  // when empty: cancelled
    int printerRequests = 0;
    OutsideActionSink onOutsideAction;
};

class FakeWindowing : public Windowing {
public:
    // Both run the window's showing (visible, Form_Activate).
    void show(Form& form) override;
    // Runs the next scripted user for this window (it should hide the window when done);
    // without one, the modal loop if one is set (the probe reads its script there, as the
    // toolkit runs its event loop); with neither, the user closes the window at once.
    void showModal(Form& form, Form* owner) override;
    void close(Form& form, UnloadMode mode) override;
    void processEvents() override { ++yields; }
    void paintPending() override { ++paints; }
    int screenWidthTwips() const override { return screenWidthPixels * 15; }
    int screenHeightTwips() const override { return screenHeightPixels * 15; }
    void enterWhatsThisMode() override { ++whatsThis; }
    void raise(Form& form) override { log.push_back("raise " + form.name()); }
    void printWindowImage(Form& form, const std::string& printerName, int copies) override;

    std::map<std::string, std::deque<std::function<void(Form&)>>> modalUsers;  // by window name
    std::function<void(Form&)> modalLoop;
    // The modal windows open now, the front one last.
    std::vector<Form*> modalStack;
    OutsideActionSink onOutsideAction;
    std::vector<std::string> log;  // "show frmMain", "modal frmTip", "close frmAssignment", ...
    int screenWidthPixels = 1280, screenHeightPixels = 1024;
    int yields = 0, paints = 0, whatsThis = 0;
    std::vector<std::string> printed;
};

// All fakes together, on a fresh temporary drive folder that is removed afterwards. The
// environment points at it as the drive platform would: <root>/drive is the drive,
// <root>/drive/exec the program's folder, <root>/drive/Documents the documents,
// <root>/host the host folder for the .PID files.
class FakePlatform {
public:
    FakePlatform();
    ~FakePlatform();
    FakePlatform(const FakePlatform&) = delete;
    FakePlatform& operator=(const FakePlatform&) = delete;

    FakeEnvironment environment;
    FakeClock clock;
    FakeLocale locale;
    FakeMessageBoxes messages;
    FakeFileSystem files;
    FakeProcesses processes;
    FakeDialogs dialogs;
    FakeWindowing windowing;
    RecordingCanvasFactory canvases;
    // The real iCalendar writer, in the zone the fake clock is read in.
    IcalCodec calendars{kFakeTimeZone};
    FakeNotifications notifications;
    FakeFeeds feeds;
    Platform platform;

    std::string root, drive, exec, documents, host;
    // <documents>/Quillhollow/Data, where the record files lie once the storage
    // locations are set.
    std::string dataDirectory() const;
    // Reads a file of the drive as bytes; empty when missing.
    std::string bytesOf(const std::string& path) const;
    void writeBytes(const std::string& path, const std::string& bytes) const;
};

}  // namespace qh
