#include "unsynced_file_system.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "common/failure.h"

namespace qh::sample {
namespace {

[[noreturn]] void fail(const std::string& what, const std::string& path) {
    throw FileFailure(what + " " + path + ": " + std::strerror(errno));
}

// Records by number, as the planner's record files read and write them, without the
// sync after each write.
class UnsyncedRecordFile : public RecordFile {
public:
    UnsyncedRecordFile(int fd, int length, std::string path) : fd_(fd), length_(length), path_(std::move(path)) {}
    ~UnsyncedRecordFile() override { ::close(fd_); }
    UnsyncedRecordFile(const UnsyncedRecordFile&) = delete;
    UnsyncedRecordFile& operator=(const UnsyncedRecordFile&) = delete;

    bool read(std::int32_t recordNumber, std::string& bytes) override {
        if (recordNumber < 1) throw FileFailure("Bad record number");
        bytes.resize(std::size_t(length_));
        const off_t offset = off_t(recordNumber - 1) * length_;
        std::size_t got = 0;
        while (got < bytes.size()) {
            const ssize_t n = ::pread(fd_, bytes.data() + got, bytes.size() - got, offset + off_t(got));
            if (n < 0) {
                if (errno == EINTR) continue;
                fail("Cannot read", path_);
            }
            if (n == 0) return false;
            got += std::size_t(n);
        }
        return true;
    }

    void write(std::int32_t recordNumber, const std::string& bytes) override {
        if (recordNumber < 1 || int(bytes.size()) != length_) throw FileFailure("Bad record for " + path_);
        const off_t offset = off_t(recordNumber - 1) * length_;
        std::size_t done = 0;
        while (done < bytes.size()) {
            const ssize_t n = ::pwrite(fd_, bytes.data() + done, bytes.size() - done, offset + off_t(done));
            if (n < 0) {
                if (errno == EINTR) continue;
                fail("Cannot write", path_);
            }
            done += std::size_t(n);
        }
    }

    std::int32_t recordCount() override {
        struct stat info {};
        if (::fstat(fd_, &info) != 0) fail("Cannot stat", path_);
        return std::int32_t(info.st_size / length_);
    }

private:
    int fd_;
    int length_;
    std::string path_;
};

void syncPath(const std::string& path, int flags) {
    const int fd = ::open(path.c_str(), flags | O_CLOEXEC);
    if (fd < 0) fail("Cannot open", path);
    const bool synced = ::fsync(fd) == 0;
    ::close(fd);
    if (!synced) fail("Cannot sync", path);
}

}  // namespace

std::unique_ptr<RecordFile> UnsyncedFileSystem::openRecords(const std::string& path, int recordLength) {
    const int fd = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (fd < 0) fail("Cannot open", path);
    opened_.insert(path);
    return std::make_unique<UnsyncedRecordFile>(fd, recordLength, path);
}

void UnsyncedFileSystem::syncWritten() {
    std::set<std::string> folders;
    for (const std::string& path : opened_) {
        syncPath(path, O_RDONLY);
        const auto slash = path.find_last_of('/');
        if (slash != std::string::npos && slash > 0) folders.insert(path.substr(0, slash));
    }
    for (const std::string& folder : folders) syncPath(folder, O_RDONLY | O_DIRECTORY);
}

}  // namespace qh::sample
