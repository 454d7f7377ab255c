#include "platform/fake/fake_platform.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "common/failure.h"
#include "platform/form.h"

namespace qh {
namespace {

const char* const kMonths[] = {"January", "February", "March",     "April",   "May",      "June",
                               "July",    "August",   "September", "October", "November", "December"};
const char* const kDays[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};

bool endsWith(const std::string& text, const std::string& suffix) {
    return !suffix.empty() && text.size() >= suffix.size() &&
           text.compare(text.size() - suffix.size(), suffix.size(), suffix) == 0;
}

// Wraps a real record file so the fake can count, fail and tear its reads and writes.
class FaultyRecordFile : public RecordFile {
public:
    FaultyRecordFile(std::unique_ptr<RecordFile> real, FakeFileSystem& files, std::string path, int length)
        : real_(std::move(real)), files_(files), path_(std::move(path)), length_(length) {}
    bool read(std::int32_t n, std::string& bytes) override {
        files_.countRead(path_);
        return real_->read(n, bytes);
    }
    void write(std::int32_t n, const std::string& bytes) override {
        const long long cut = files_.countWrite(path_, "record " + std::to_string(n));
        if (cut >= 0) {
            // The torn prefix reaches the disk, written over what was there.
            std::string torn;
            if (!real_->read(n, torn)) torn.assign(std::size_t(length_), '\0');
            torn.replace(0, std::size_t(cut), bytes.substr(0, std::size_t(cut)));
            std::FILE* f = std::fopen(path_.c_str(), "r+b");
            if (f) {
                std::fseek(f, long(n - 1) * length_, SEEK_SET);
                std::fwrite(torn.data(), 1, std::size_t(cut), f);
                std::fclose(f);
            }
            throw FileFailure("Write torn: " + path_);
        }
        real_->write(n, bytes);
    }
    std::int32_t recordCount() override { return real_->recordCount(); }

private:
    std::unique_ptr<RecordFile> real_;
    FakeFileSystem& files_;
    std::string path_;
    int length_;
};

}  // namespace

std::string FakeEnvironment::get(const std::string& name) const {
    auto it = values.find(name);
    return it == values.end() ? std::string() : it->second;
}

void FakeClock::set(int year, int month, int day, int hour, int minute, int second) {
    moment = {dateFromYmd(year, month, day), hour * 3600 + minute * 60 + second};
}

void FakeClock::advanceSeconds(long long seconds) {
    long long total = moment.seconds + seconds;
    long long days = total / 86400;
    total %= 86400;
    if (total < 0) {
        total += 86400;
        --days;
    }
    moment.date += Date(days);
    moment.seconds = int(total);
}

std::string FakeLocale::longDate(Date date) const {
    const Ymd ymd = ymdOf(date);
    return std::string(kDays[weekdayOf(date) - 1]) + ", " + kMonths[ymd.month - 1] + " " +
           std::to_string(ymd.day) + ", " + std::to_string(ymd.year);
}

std::string FakeLocale::mediumDate(Date date) const {
    const Ymd ymd = ymdOf(date);
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%02d-%.3s-%02d", ymd.day, kMonths[ymd.month - 1], ymd.year % 100);
    return buffer;
}

std::string FakeLocale::shortDate(Date date) const {
    const Ymd ymd = ymdOf(date);
    return std::to_string(ymd.month) + "/" + std::to_string(ymd.day) + "/" + std::to_string(ymd.year);
}

std::string FakeLocale::mediumTime(int secondsOfDay) const {
    const int hour = secondsOfDay / 3600, minute = secondsOfDay / 60 % 60;
    const int twelve = hour % 12 == 0 ? 12 : hour % 12;
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "%02d:%02d %s", twelve, minute, hour < 12 ? "AM" : "PM");
    return buffer;
}

std::string FakeLocale::monthName(int month) const { return kMonths[month - 1]; }
std::string FakeLocale::dayName(int weekday) const { return kDays[weekday - 1]; }

void FakeLocale::appendSortKey(std::string_view text, std::string& key) const {
    const std::size_t start = key.size();
    key.append(text);
    for (std::size_t i = start; i < key.size(); ++i)
        if (key[i] >= 'A' && key[i] <= 'Z') key[i] = char(key[i] - 'A' + 'a');
}

void FakeNotifications::notify(const std::string& title, const std::string& text, Handlers handlers) {
    if (!available) {
        if (handlers.failed) handlers.failed("no notification service");
        return;
    }
    std::string oneLine;
    for (char ch : text) oneLine += ch == '\n' ? std::string("\\n") : std::string(1, ch);
    if (onOutsideAction) onOutsideAction("Notification " + quotedText(title) + " " + quotedText(oneLine));
    if (handlers.delivered) handlers.delivered();
    sent.push_back({title, text, std::move(handlers)});
}

void FakeFeeds::fetch(const FeedRequest& request, Answered answered) {
    requests.push_back(request);
    waiting_.emplace_back(request, std::move(answered));
}

void FakeFeeds::settle(int) {
    std::vector<std::pair<FeedRequest, Answered>> due;
    due.swap(waiting_);
    for (const auto& [request, answered] : due) {
        const auto found = answers.find(request.address);
        answered(found != answers.end() ? found->second : FeedAnswer{});
    }
}

void FakeNotifications::activateLast() {
    if (!sent.empty() && sent.back().handlers.activated) sent.back().handlers.activated();
}

MessageAnswer FakeMessageBoxes::show(const std::string& text, const std::string& title, MessageButtons buttons,
                                     MessageIcon icon) {
    shown.push_back({text, title, buttons, icon});
    if (onOutsideAction) onOutsideAction("Message: " + quotedText(title) + " " + quotedText(text));
    if (!answers.empty()) {
        const MessageAnswer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    return (buttons == MessageButtons::YesNo || buttons == MessageButtons::YesNoCancel) ? MessageAnswer::Yes
                                                                                          : MessageAnswer::OK;
}

void FakeFileSystem::checkPath(const std::string& path) {
    if (endsWith(path, failingSuffix_)) throw FileFailure("Failing path: " + path);
}

void FakeFileSystem::countRead(const std::string& path) {
    checkPath(path);
    if (++reads_ == failReadAt_) throw FileFailure("Read fault: " + path);
}

long long FakeFileSystem::countWrite(const std::string& path, const std::string& what) {
    checkPath(path);
    log.push_back("write " + path + " " + what);
    ++writes_;
    if (refuses(path)) throw FileFailure("Write refused: " + path, refusal_);
    if (writes_ == failWriteAt_) throw FileFailure("Write fault: " + path);
    if (writes_ == tearWriteAt_) return tearBytes_;
    return -1;
}

std::unique_ptr<RecordFile> FakeFileSystem::openRecords(const std::string& path, int recordLength) {
    checkPath(path);
    log.push_back("open " + path);
    return std::make_unique<FaultyRecordFile>(PosixFileSystem::openRecords(path, recordLength), *this, path,
                                              recordLength);
}

std::string FakeFileSystem::readAll(const std::string& path) {
    countRead(path);
    return PosixFileSystem::readAll(path);
}

std::string FakeFileSystem::readHead(const std::string& path, std::size_t maxBytes) {
    countRead(path);
    return PosixFileSystem::readHead(path, maxBytes);
}

void FakeFileSystem::countWholeWrite(const std::string& path, const std::string& bytes) {
    const long long cut = countWrite(path, "whole");
    if (cut >= 0) {
        // The temporary file is torn; the old file stands.
        std::ofstream(path + ".tmp-torn", std::ios::binary).write(bytes.data(), std::streamsize(cut));
        std::filesystem::remove(path + ".tmp-torn");
        throw FileFailure("Write torn: " + path);
    }
}

void FakeFileSystem::writeWhole(const std::string& path, const std::string& bytes) {
    countWholeWrite(path, bytes);
    PosixFileSystem::writeWhole(path, bytes);
}

void FakeFileSystem::writeWholeUnsynced(const std::string& path, const std::string& bytes) {
    countWholeWrite(path, bytes);
    PosixFileSystem::writeWholeUnsynced(path, bytes);
}

void FakeFileSystem::writeWholePrivate(const std::string& path, const std::string& bytes) {
    countWholeWrite(path, bytes);
    PosixFileSystem::writeWholePrivate(path, bytes);
}

void FakeFileSystem::makeDirectory(const std::string& path) {
    countWrite(path, "mkdir");
    PosixFileSystem::makeDirectory(path);
}

void FakeFileSystem::createEmpty(const std::string& path) {
    countWrite(path, "create");
    PosixFileSystem::createEmpty(path);
}

void FakeFileSystem::remove(const std::string& path) {
    countWrite(path, "delete");
    PosixFileSystem::remove(path);
}

void FakeFileSystem::copy(const std::string& from, const std::string& to) {
    countWrite(to, "copy from " + from);
    PosixFileSystem::copy(from, to);
}

void FakeFileSystem::rename(const std::string& from, const std::string& to) {
    countWrite(from, "rename to " + to);
    PosixFileSystem::rename(from, to);
}

std::int32_t FakeProcesses::startCommand(const std::string& commandLine) {
    started.push_back(commandLine);
    if (onOutsideAction) onOutsideAction("Start " + quotedText(commandLine));
    if (startFails) throw FileFailure("Cannot start " + commandLine);
    return 5000 + std::int32_t(started.size());
}

void FakeProcesses::openWithDefaultHandler(const std::string& pathOrAddress) {
    opened.push_back(pathOrAddress);
    if (onOutsideAction) onOutsideAction("Open " + quotedText(pathOrAddress));
    if (openFails) throw FileFailure("Cannot open " + pathOrAddress);
}

FileDialogAnswer FakeDialogs::fileDialog(const FileDialogRequest& request) {
    fileRequests.push_back(request);
    if (onOutsideAction) {
        std::string filter;
        for (const FileFilter& entry : request.filters) filter += entry.name + "|" + entry.pattern + "|";
        if (!filter.empty()) filter.pop_back();
        // A dialog that suggests no file still starts in a folder, which the line shows then.
        const std::string& place = request.startPath.empty() ? request.startDirectory : request.startPath;
        onOutsideAction(std::string("Dialog ") + (request.open ? "open " : "save ") + quotedText(request.title) + " " +
                        quotedText(place) + " " + quotedText(filter));
    }
    if (fileAnswers.empty()) return {};
    FileDialogAnswer answer = fileAnswers.front();
    fileAnswers.pop_front();
    return answer;
}

PrinterAnswer FakeDialogs::printerDialog() {
    ++printerRequests;
    if (onOutsideAction) onOutsideAction("Printer dialog");
    if (printerAnswers.empty()) return {};
    PrinterAnswer answer = printerAnswers.front();
    printerAnswers.pop_front();
    return answer;
}

void FakeWindowing::show(Form& form) {
    log.push_back("show " + form.name());
    form.showing();
}

void FakeWindowing::showModal(Form& form, Form*) {
    log.push_back("modal " + form.name());
    modalStack.push_back(&form);
    struct Pop {
        std::vector<Form*>& stack;
        ~Pop() { stack.pop_back(); }
    } pop{modalStack};
    form.showing();
    auto& users = modalUsers[form.name()];
    if (!users.empty()) {
        auto user = std::move(users.front());
        users.pop_front();
        user(form);
    } else if (modalLoop && form.visible) {
        modalLoop(form);
    }
    if (form.visible) form.hide();
}

void FakeWindowing::close(Form& form, UnloadMode mode) {
    if (!form.requestClose(mode)) {
        log.push_back("close refused " + form.name());
        return;
    }
    log.push_back("close " + form.name());
}

void FakeWindowing::printWindowImage(Form& form, const std::string& printerName, int copies) {
    printed.push_back(form.name() + " on " + printerName + " x" + std::to_string(copies));
    if (onOutsideAction) onOutsideAction("Printed window image");
}

std::string quotedText(const std::string& text) {
    std::string quoted = "\"";
    for (char c : text) {
        if (c == '"') quoted += '"';
        quoted += c;
    }
    return quoted + "\"";
}

FakePlatform::FakePlatform()
    : platform{environment, clock,    locale,   messages,  files,         processes,
               dialogs,     windowing, canvases, calendars, notifications, feeds} {
    namespace fs = std::filesystem;
    std::string pattern = (fs::temp_directory_path() / "quillhollow-test-XXXXXX").string();
    if (!::mkdtemp(pattern.data())) throw std::runtime_error("mkdtemp failed");
    root = pattern;
    drive = root + "/drive";
    exec = drive + "/exec";
    documents = drive + "/Documents";
    host = root + "/host";
    for (const std::string& dir : {drive, exec, documents, host}) fs::create_directories(dir);
    environment.values = {{"U3_DEVICE_PATH", drive},
                          {"U3_DEVICE_EXEC_PATH", exec},
                          {"U3_DEVICE_DOCUMENT_PATH", documents},
                          {"U3_HOST_EXEC_PATH", host}};
}

FakePlatform::~FakePlatform() {
    std::error_code ignored;
    std::filesystem::remove_all(root, ignored);
}

std::string FakePlatform::dataDirectory() const { return documents + "/Quillhollow/Data"; }

std::string FakePlatform::bytesOf(const std::string& path) const {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream out;
    out << in.rdbuf();
    return out.str();
}

void FakePlatform::writeBytes(const std::string& path, const std::string& bytes) const {
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path, std::ios::binary).write(bytes.data(), std::streamsize(bytes.size()));
}

}  // namespace qh
