#pragma once
// A drive held in memory for the fuzzers: the record store and the preferences reader
// run on it as on a real drive, with nobody at the screen. Every message box shown is
// kept; nothing waits for an answer.
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "record_store/columns.h"
#include "record_store/record_files.h"

namespace qh::fuzz {

// Files and folders as a map of paths; record files work on the bytes in place.
class MemoryFileSystem : public FileSystem {
public:
    std::unique_ptr<RecordFile> openRecords(const std::string& path, int recordLength) override;
    std::string readAll(const std::string& path) override;
    void writeWhole(const std::string& path, const std::string& bytes) override;
    std::string readHead(const std::string& path, std::size_t maxBytes) override;
    std::int64_t sizeOf(const std::string& path) override;
    bool exists(const std::string& path) override;
    bool isWritable(const std::string&) override { return true; }
    bool isDirectory(const std::string& path) override;
    void makeDirectory(const std::string& path) override;
    void createEmpty(const std::string& path) override;
    void remove(const std::string& path) override;
    void copy(const std::string& from, const std::string& to) override;
    void rename(const std::string& from, const std::string& to) override;
    std::vector<std::string> listDirectory(const std::string& path) override;

    std::map<std::string, std::string> files;
    std::set<std::string> folders{"/drive", "/drive/Documents"};
};

struct ShownMessage {
    std::string text, title;
};

// What the record store may ask of the rest of the machine, answered by nobody.
class QuietMachine : public Environment,
                     public CalendarCodec,
                     public Clock,
                     public Locale,
                     public MessageBoxes,
                     public Processes,
                     public Dialogs,
                     public Windowing,
                     public CanvasFactory {
public:
    std::string get(const std::string& name) const override;
    Moment now() const override { return {dateFromYmd(2026, 11, 21), 12 * 3600}; }
    std::string longDate(Date date) const override { return dateText(date); }
    std::string mediumDate(Date date) const override { return dateText(date); }
    std::string shortDate(Date date) const override { return dateText(date); }
    std::string mediumTime(int secondsOfDay) const override { return std::to_string(secondsOfDay); }
    std::string monthName(int month) const override { return std::to_string(month); }
    std::string dayName(int weekday) const override { return std::to_string(weekday); }
    void appendSortKey(std::string_view text, std::string& key) const override { key.append(text); }
    MessageAnswer show(const std::string& text, const std::string& title, MessageButtons, MessageIcon) override {
        shown.push_back({text, title});
        return MessageAnswer::OK;
    }
    bool anotherInstanceRunning() override { return false; }
    std::int32_t ownProcessId() override { return 1; }
    std::int32_t startCommand(const std::string&) override { return 2; }
    void openWithDefaultHandler(const std::string&) override {}
    FileDialogAnswer fileDialog(const FileDialogRequest&) override { return {}; }
    PrinterAnswer printerDialog() override { return {}; }
    void show(Form&) override {}
    void showModal(Form&, Form*) override {}
    void raise(Form&) override {}
    void close(Form&, UnloadMode) override {}
    void processEvents() override {}
    void paintPending() override {}
    int screenWidthTwips() const override { return 1280 * 15; }
    int screenHeightTwips() const override { return 1024 * 15; }
    void enterWhatsThisMode() override {}
    void printWindowImage(Form&, const std::string&, int) override {}
    std::shared_ptr<Canvas> create() override { return nullptr; }
    std::string write(const std::vector<CalendarItem>&) override { return {}; }
    CalendarRead read(const std::string&) override { return {}; }

    std::vector<ShownMessage> shown;
};

// The record store on a memory drive with its storage locations set.
struct MemoryDrive {
    MemoryDrive();

    // A file of the data directory, by bare name.
    void put(const std::string& name, const std::string& bytes);
    std::string bytesOf(const std::string& name) const;
    // Loads what the program loads at start, with `term` as the active term.
    bool loadAll(Int16 term);

    QuietMachine machine;
    MemoryFileSystem files;
    Platform platform{machine, machine, machine, machine, files, machine, machine, machine, machine, machine};
    RecordStore store;
    RecordFiles records{store, platform};
};

// Ends the run with a report when a property of the planner does not hold: the fuzzer
// counts it as a crash and keeps the input.
[[noreturn]] void fail(const std::string& what);
inline void require(bool holds, const char* what) {
    if (!holds) fail(what);
}

// Whether the load of a fuzzed file went by without a word. Any bytes load. A file the
// load finds damaged (a record out of its place, a part record, a field that does not
// read) is told once, by name, and kept aside and written anew from what could be read:
// the properties of a whole file then no longer apply to it.
inline bool loadedClean(bool loaded, const MemoryDrive& drive, const std::string& fileName) {
    require(loaded, "a file of any bytes loads");
    if (drive.machine.shown.empty()) return true;
    require(drive.machine.shown.size() == 1 && drive.machine.shown.front().text.rfind(fileName + " is damaged: ", 0) == 0,
            "a damaged file is told once, by name");
    return false;
}

}  // namespace qh::fuzz
