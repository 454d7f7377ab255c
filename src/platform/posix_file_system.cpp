#include "platform/posix_file_system.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "common/failure.h"

namespace qh {
namespace {

FileProblem problemOf(int error) {
    switch (error) {
        case ENOSPC:
        case EDQUOT:
        case EFBIG: return FileProblem::NoSpace;
        case EROFS:
        case EBADF:  // a record file opened for reading only, on a read-only drive
        case EACCES:
        case EPERM: return FileProblem::ReadOnly;
        case EBUSY:
        case ETXTBSY:
        case EAGAIN: return FileProblem::InUse;
        default: return FileProblem::Other;
    }
}

[[noreturn]] void fail(const std::string& what, const std::string& path) {
    const int error = errno;
    throw FileFailure(what + " " + path + ": " + std::strerror(error), problemOf(error));
}

class Descriptor {
public:
    explicit Descriptor(int fd) : fd_(fd) {}
    ~Descriptor() {
        if (fd_ >= 0) ::close(fd_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int get() const { return fd_; }
    void reset(int fd) {
        if (fd_ >= 0) ::close(fd_);
        fd_ = fd;
    }
    int release() {
        int fd = fd_;
        fd_ = -1;
        return fd;
    }

private:
    int fd_;
};

void writeAll(int fd, const char* data, std::size_t size, const std::string& path) {
    while (size > 0) {
        const ssize_t written = ::write(fd, data, size);
        if (written < 0) {
            if (errno == EINTR) continue;
            fail("Cannot write", path);
        }
        data += written;
        size -= std::size_t(written);
    }
}

// Reads from the descriptor until its end or until `limit` bytes are in; room for
// `expected` bytes is made first, so a large file is not copied as its string grows.
std::string readUpTo(int fd, std::size_t limit, const std::string& path, std::size_t expected = 0) {
    std::string bytes;
    bytes.reserve(std::min(limit, expected));
    char buffer[65536];
    while (bytes.size() < limit) {
        const ssize_t n = ::read(fd, buffer, std::min(sizeof buffer, limit - bytes.size()));
        if (n < 0) {
            if (errno == EINTR) continue;
            fail("Cannot read", path);
        }
        if (n == 0) break;
        bytes.append(buffer, std::size_t(n));
    }
    return bytes;
}

std::string folderOf(const std::string& path) {
    const auto slash = path.find_last_of('/');
    if (slash == std::string::npos) return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

void syncFolder(const std::string& folder) {
    Descriptor fd(::open(folder.c_str(), O_RDONLY | O_DIRECTORY));
    if (fd.get() >= 0) ::fsync(fd.get());
}

class PosixRecordFile : public RecordFile {
public:
    PosixRecordFile(int fd, int recordLength, std::string path, bool synced)
        : fd_(fd), length_(recordLength), synced_(synced), path_(std::move(path)) {}

    // Loads read every record in turn, so records come from a read-ahead window of whole
    // records rather than one system call each; a write drops the window.
    bool read(std::int32_t recordNumber, std::string& bytes) override {
        if (recordNumber < 1) throw FileFailure("Bad record number");
        const off_t offset = off_t(recordNumber - 1) * length_;
        if (offset < windowStart_ || offset + length_ > windowStart_ + off_t(window_.size())) fillWindow(offset);
        if (offset + length_ > windowStart_ + off_t(window_.size())) return false;
        bytes.assign(window_, std::size_t(offset - windowStart_), std::size_t(length_));
        return true;
    }

    void write(std::int32_t recordNumber, const std::string& bytes) override {
        if (recordNumber < 1 || int(bytes.size()) != length_) throw FileFailure("Bad record for " + path_);
        window_.clear();
        const off_t offset = off_t(recordNumber - 1) * length_;
        std::size_t done = 0;
        while (done < bytes.size()) {
            const ssize_t n = ::pwrite(fd_.get(), bytes.data() + done, bytes.size() - done, offset + off_t(done));
            if (n < 0) {
                if (errno == EINTR) continue;
                fail("Cannot write", path_);
            }
            done += std::size_t(n);
        }
        if (synced_ && ::fsync(fd_.get()) != 0) fail("Cannot sync", path_);
    }

    std::int32_t recordCount() override {
        struct stat info {};
        if (::fstat(fd_.get(), &info) != 0) fail("Cannot stat", path_);
        return std::int32_t(info.st_size / length_);
    }

private:
    // Reads whole records from `offset` into the window, as many as fit in about 256 KiB
    // and no more than the file holds (a small file costs no large buffer); fewer bytes
    // than a record at the end of the file leave the window short of it.
    void fillWindow(off_t offset) {
        struct stat info {};
        if (::fstat(fd_.get(), &info) != 0) fail("Cannot stat", path_);
        const std::size_t inFile = info.st_size > offset ? std::size_t(info.st_size - offset) / std::size_t(length_) : 0;
        const std::size_t records =
            std::max<std::size_t>(1, std::min(inFile, (256 * 1024) / std::size_t(length_)));
        window_.resize(records * std::size_t(length_));
        windowStart_ = offset;
        std::size_t got = 0;
        while (got < window_.size()) {
            const ssize_t n = ::pread(fd_.get(), window_.data() + got, window_.size() - got, offset + off_t(got));
            if (n < 0) {
                if (errno == EINTR) continue;
                window_.clear();
                fail("Cannot read", path_);
            }
            if (n == 0) break;
            got += std::size_t(n);
        }
        window_.resize(got);
    }

    Descriptor fd_;
    int length_;
    bool synced_;
    std::string path_;
    std::string window_;
    off_t windowStart_ = 0;
};

}  // namespace

std::unique_ptr<RecordFile> PosixFileSystem::openRecords(const std::string& path, int recordLength) {
    Descriptor fd(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644));
    // A read-only drive still lets its records be read; a write then fails as read-only.
    if (fd.get() < 0 && (errno == EROFS || errno == EACCES)) fd.reset(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (fd.get() < 0) fail("Cannot open", path);
    return std::make_unique<PosixRecordFile>(fd.release(), recordLength, path, synced_);
}

std::string PosixFileSystem::readAll(const std::string& path) {
    Descriptor fd(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (fd.get() < 0) fail("Cannot open", path);
    struct stat info {};
    const bool sized = ::fstat(fd.get(), &info) == 0 && S_ISREG(info.st_mode);
    return readUpTo(fd.get(), std::string::npos, path, sized ? std::size_t(info.st_size) : 0);
}

std::string PosixFileSystem::readHead(const std::string& path, std::size_t maxBytes) {
    // Not blocking: opening a pipe with no writer would otherwise wait for one.
    Descriptor fd(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (fd.get() < 0) fail("Cannot open", path);
    struct stat info {};
    if (::fstat(fd.get(), &info) != 0) fail("Cannot stat", path);
    if (!S_ISREG(info.st_mode)) throw FileFailure("Not a plain file: " + path);
    return readUpTo(fd.get(), maxBytes, path, std::size_t(info.st_size));
}

void PosixFileSystem::writeWhole(const std::string& path, const std::string& bytes) {
    replaceWhole(path, bytes, synced_);
}

void PosixFileSystem::writeWholeUnsynced(const std::string& path, const std::string& bytes) {
    replaceWhole(path, bytes, false);
}

void PosixFileSystem::writeWholePrivate(const std::string& path, const std::string& bytes) {
    replaceWhole(path, bytes, synced_, true);
}

void PosixFileSystem::replaceWhole(const std::string& path, const std::string& bytes, bool synced, bool ownerOnly) {
    const std::string temporary = path + ".tmp-" + std::to_string(::getpid());
    {
        Descriptor fd(::open(temporary.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, ownerOnly ? 0600 : 0644));
        if (fd.get() < 0) fail("Cannot create", temporary);
        // A temporary file left by an earlier run keeps its own mode through O_TRUNC.
        if (ownerOnly && ::fchmod(fd.get(), 0600) != 0) {
            ::unlink(temporary.c_str());
            fail("Cannot protect", temporary);
        }
        try {
            writeAll(fd.get(), bytes.data(), bytes.size(), temporary);
            if (synced && ::fsync(fd.get()) != 0) fail("Cannot sync", temporary);
        } catch (...) {
            ::unlink(temporary.c_str());
            throw;
        }
    }
    if (::rename(temporary.c_str(), path.c_str()) != 0) {
        const int saved = errno;
        ::unlink(temporary.c_str());
        errno = saved;
        fail("Cannot replace", path);
    }
    if (synced) syncFolder(folderOf(path));
}

std::int64_t PosixFileSystem::sizeOf(const std::string& path) {
    struct stat info {};
    if (::stat(path.c_str(), &info) != 0) fail("Cannot stat", path);
    return std::int64_t(info.st_size);
}

bool PosixFileSystem::isWritable(const std::string& folder) {
    // A read-only mount answers EROFS here even for root, whom permissions don't stop.
    return ::access(folder.c_str(), W_OK) == 0;
}

bool PosixFileSystem::exists(const std::string& path) {
    struct stat info {};
    return ::stat(path.c_str(), &info) == 0;
}

bool PosixFileSystem::isDirectory(const std::string& path) {
    struct stat info {};
    if (::stat(path.c_str(), &info) != 0) fail("No such path", path);
    return S_ISDIR(info.st_mode);
}

void PosixFileSystem::makeDirectory(const std::string& path) {
    if (::mkdir(path.c_str(), 0755) != 0) fail("Cannot make directory", path);
}

void PosixFileSystem::createEmpty(const std::string& path) {
    Descriptor fd(::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644));
    if (fd.get() < 0) fail("Cannot create", path);
}

void PosixFileSystem::remove(const std::string& path) {
    if (::unlink(path.c_str()) != 0) fail("Cannot delete", path);
}

void PosixFileSystem::copy(const std::string& from, const std::string& to) {
    const std::string bytes = readAll(from);
    writeWhole(to, bytes);
}

void PosixFileSystem::rename(const std::string& from, const std::string& to) {
    if (::rename(from.c_str(), to.c_str()) != 0) fail("Cannot rename", from);
}

std::vector<std::string> PosixFileSystem::listDirectory(const std::string& path) {
    DIR* dir = ::opendir(path.c_str());
    if (!dir) fail("Cannot list", path);
    std::vector<std::string> names;
    while (dirent* entry = ::readdir(dir)) {
        const std::string name = entry->d_name;
        if (name != "." && name != "..") names.push_back(name);
    }
    ::closedir(dir);
    return names;
}

}  // namespace qh
