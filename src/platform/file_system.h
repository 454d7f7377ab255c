#pragma once
// File access as the record store needs it. Every operation reports a failure by throwing
// FileFailure (common/failure.h); the file routines catch it and show their messages.
// Paths are full paths: the record store resolves bare names against DataDirectory
// itself and never relies on a process-wide current directory.
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace qh {

// A file of fixed-length records by number, the first record numbered 1 at offset 0.
class RecordFile {
public:
    virtual ~RecordFile() = default;
    // Reads record n into `bytes` (exactly the record length). Returns false, leaving
    // `bytes` unspecified, when the record lies past the end: a trailing part record
    // counts as the end.
    [[nodiscard]] virtual bool read(std::int32_t recordNumber, std::string& bytes) = 0;
    // Writes record n (bytes of exactly the record length) with one write, then syncs it.
    virtual void write(std::int32_t recordNumber, const std::string& bytes) = 0;
    // Number of whole records in the file.
    [[nodiscard]] virtual std::int32_t recordCount() = 0;
};

class FileSystem {
public:
    virtual ~FileSystem() = default;

    // Opens a record file, creating it empty when it is missing.
    [[nodiscard]] virtual std::unique_ptr<RecordFile> openRecords(const std::string& path, int recordLength) = 0;

    // Whole files. readAll fails when the file cannot be opened. writeWhole replaces the
    // file atomically: a temporary file in the same folder, synced, renamed over the old
    // one, the folder synced; a failure anywhere leaves the old file whole.
    [[nodiscard]] virtual std::string readAll(const std::string& path) = 0;
    virtual void writeWhole(const std::string& path, const std::string& bytes) = 0;
    // A whole file the planner can make again (an exported page): replaced the same way,
    // a temporary file renamed over the old one, so the name never holds a half-written
    // file; but nothing is synced, since waiting for the disk is most of the time such a
    // write takes, and a page lost to a power cut is made again by the next export.
    virtual void writeWholeUnsynced(const std::string& path, const std::string& bytes) { writeWhole(path, bytes); }
    // A whole file that holds something private (a feed address with its token): replaced
    // as writeWhole does, and readable and writable by its owner alone.
    virtual void writeWholePrivate(const std::string& path, const std::string& bytes) { writeWhole(path, bytes); }
    // The first `maxBytes` bytes of a file (fewer when it is shorter), for files of which
    // only a head matters however large they are. Fails, like readAll, when the file cannot
    // be opened or read, and also when it is not a plain file (a folder, a device, a pipe).
    virtual std::string readHead(const std::string& path, std::size_t maxBytes) = 0;

    // The length of a file in bytes; fails when it cannot be asked.
    [[nodiscard]] virtual std::int64_t sizeOf(const std::string& path) = 0;
    [[nodiscard]] virtual bool exists(const std::string& path) = 0;
    // Whether files may be made and written in the folder (false on a read-only drive).
    [[nodiscard]] virtual bool isWritable(const std::string& folder) = 0;
    [[nodiscard]] virtual bool isDirectory(const std::string& path) = 0;
    virtual void makeDirectory(const std::string& path) = 0;  // one level, no parents
    virtual void createEmpty(const std::string& path) = 0;    // an empty file, replacing one
    virtual void remove(const std::string& path) = 0;
    virtual void copy(const std::string& from, const std::string& to) = 0;
    virtual void rename(const std::string& from, const std::string& to) = 0;
    [[nodiscard]] virtual std::vector<std::string> listDirectory(const std::string& path) = 0;
};

// Joins a folder and a name with the separator of this platform.
std::string joinPath(const std::string& folder, const std::string& name);

}  // namespace qh
