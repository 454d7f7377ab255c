#pragma once
// The real file layer: POSIX calls on real files.
#include "platform/file_system.h"

namespace qh {

class PosixFileSystem : public FileSystem {
public:
    // Whether a write waits until the disk holds it. The planner always waits: a drive
    // may be pulled out at any moment. The scripted driver need not, as nothing a script
    // looks at outlives a power cut; the bytes written are the same.
    enum class Durability { Synced, Unsynced };
    explicit PosixFileSystem(Durability durability = Durability::Synced) : synced_(durability == Durability::Synced) {}

    std::unique_ptr<RecordFile> openRecords(const std::string& path, int recordLength) override;
    std::string readAll(const std::string& path) override;
    void writeWhole(const std::string& path, const std::string& bytes) override;
    void writeWholeUnsynced(const std::string& path, const std::string& bytes) override;
    void writeWholePrivate(const std::string& path, const std::string& bytes) override;
    std::string readHead(const std::string& path, std::size_t maxBytes) override;
    std::int64_t sizeOf(const std::string& path) override;
    bool exists(const std::string& path) override;
    bool isWritable(const std::string& folder) override;
    bool isDirectory(const std::string& path) override;
    void makeDirectory(const std::string& path) override;
    void createEmpty(const std::string& path) override;
    void remove(const std::string& path) override;
    void copy(const std::string& from, const std::string& to) override;
    void rename(const std::string& from, const std::string& to) override;
    std::vector<std::string> listDirectory(const std::string& path) override;

private:
    void replaceWhole(const std::string& path, const std::string& bytes, bool synced, bool ownerOnly = false);
    bool synced_;
};

}  // namespace qh
