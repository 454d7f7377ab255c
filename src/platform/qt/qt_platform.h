#pragma once
// The real platform of the program: Qt for the screen, the dialogs, processes and the
// host's formats; POSIX for files. One object owns every part and hands out qh::Platform.
#include <QLockFile>
#include <QPrinter>
#include <memory>

#include "platform/ical/ical_codec.h"
#include "platform/platform.h"
#include "platform/posix_file_system.h"
#include "platform/qt/form_view.h"
#include "platform/qt/host_collation.h"
#include "platform/qt/loaded_feed_fetcher.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_notifications.h"

namespace qh {

class QtEnvironment : public Environment {
public:
    std::string get(const std::string& name) const override;
};

class QtClock : public Clock {
public:
    Moment now() const override;
};

// The host's formats from the system locale.
class QtLocale : public Locale {
public:
    QtLocale();
    explicit QtLocale(const QLocale& locale);
    std::string longDate(Date date) const override;
    std::string mediumDate(Date date) const override;  // "dd-MMM-yy": "21-Nov-26"
    std::string shortDate(Date date) const override;   // the host's short form, year in full
    std::string mediumTime(int secondsOfDay) const override;  // "hh:mm AP": "09:05 PM"
    std::string monthName(int month) const override;
    std::string shortMonthName(int month) const override;
    std::string dayName(int weekday) const override;
    void appendSortKey(std::string_view text, std::string& key) const override;
    void appendSortKeys(const std::vector<std::string_view>& texts, std::string& keys,
                        std::vector<std::size_t>& ends) const override;

private:
    std::unique_ptr<QLocale> locale_;
    HostCollation collation_;
};

class QtMessageBoxes : public MessageBoxes {
public:
    MessageAnswer show(const std::string& text, const std::string& title, MessageButtons buttons,
                       MessageIcon icon) override;
};

// Keeps the printer the user chose last, so that printing goes where the dialog said,
// also to a file.
struct PrinterChoice {
    std::unique_ptr<QPrinter> printer;
};

class QtDialogs : public Dialogs {
public:
    explicit QtDialogs(PrinterChoice& choice) : choice_(choice) {}
    FileDialogAnswer fileDialog(const FileDialogRequest& request) override;
    PrinterAnswer printerDialog() override;

private:
    PrinterChoice& choice_;
};

// One copy per user: a lock file in the user's runtime folder (or the temporary folder).
// A lock left by a crashed run names a process that is gone and is taken over.
class QtProcesses : public Processes {
public:
    // lockPath: empty for the usual place.
    explicit QtProcesses(const std::string& lockPath = {});
    bool anotherInstanceRunning() override;
    std::int32_t ownProcessId() override;
    std::int32_t startCommand(const std::string& commandLine) override;
    void openWithDefaultHandler(const std::string& pathOrAddress) override;
    static std::string defaultLockPath();

private:
    QLockFile lock_;
    bool checked_ = false, another_ = false;
};

class QtWindowing : public Windowing {
public:
    QtWindowing(FormRenderer& renderer, PrinterChoice& choice) : renderer_(renderer), choice_(choice) {}
    void show(Form& form) override { renderer_.show(form); }
    void showModal(Form& form, Form* owner) override;
    void close(Form& form, UnloadMode mode) override { renderer_.close(form, mode); }
    void processEvents() override;
    void paintPending() override;
    int screenWidthTwips() const override;
    int screenHeightTwips() const override;
    Area availableArea() const override;
    void enterWhatsThisMode() override;
    void raise(Form& form) override;
    void printWindowImage(Form& form, const std::string& printerName, int copies) override;

private:
    FormRenderer& renderer_;
    PrinterChoice& choice_;
};

class QtPlatform {
public:
    QtPlatform();
    ~QtPlatform();
    QtPlatform(const QtPlatform&) = delete;
    QtPlatform& operator=(const QtPlatform&) = delete;

    Platform& platform() { return platform_; }
    FormRenderer& renderer() { return renderer_; }

private:
    PrinterChoice printerChoice_;
    FormRenderer renderer_;
    QtEnvironment environment_;
    QtClock clock_;
    QtLocale locale_;
    QtMessageBoxes messages_;
    PosixFileSystem files_;
    QtProcesses processes_;
    QtDialogs dialogs_;
    QtWindowing windowing_;
    QtCanvasFactory canvases_;
    IcalCodec calendars_;
    QtNotifications notifications_;
    LoadedFeedFetcher feeds_;
    Platform platform_;
};

}  // namespace qh
