#include "memory_drive.h"

#include <cstdio>
#include <cstdlib>

#include "common/failure.h"
#include "record_store/storage_locations.h"

namespace qh::fuzz {
namespace {

// Records by number on the bytes of one file of the map.
class MemoryRecordFile : public RecordFile {
public:
    MemoryRecordFile(std::string& bytes, int length) : bytes_(bytes), length_(std::size_t(length)) {}
    bool read(std::int32_t n, std::string& bytes) override {
        if (n < 1) throw FileFailure("Bad record number");
        const std::size_t at = std::size_t(n - 1) * length_;
        if (at + length_ > bytes_.size()) return false;
        bytes.assign(bytes_, at, length_);
        return true;
    }
    void write(std::int32_t n, const std::string& bytes) override {
        if (n < 1 || bytes.size() != length_) throw FileFailure("Bad record");
        const std::size_t at = std::size_t(n - 1) * length_;
        if (bytes_.size() < at + length_) bytes_.resize(at + length_, '\0');
        bytes_.replace(at, length_, bytes);
    }
    std::int32_t recordCount() override { return std::int32_t(bytes_.size() / length_); }

private:
    std::string& bytes_;
    std::size_t length_;
};

std::string folderOf(const std::string& path) { return path.substr(0, path.find_last_of('/')); }

}  // namespace

std::unique_ptr<RecordFile> MemoryFileSystem::openRecords(const std::string& path, int recordLength) {
    if (!folders.count(folderOf(path))) throw FileFailure("No folder for " + path);
    return std::make_unique<MemoryRecordFile>(files[path], recordLength);
}

std::string MemoryFileSystem::readAll(const std::string& path) {
    const auto found = files.find(path);
    if (found == files.end()) throw FileFailure("No file " + path);
    return found->second;
}

std::string MemoryFileSystem::readHead(const std::string& path, std::size_t maxBytes) {
    return readAll(path).substr(0, maxBytes);
}

void MemoryFileSystem::writeWhole(const std::string& path, const std::string& bytes) {
    if (!folders.count(folderOf(path))) throw FileFailure("No folder for " + path);
    files[path] = bytes;
}

std::int64_t MemoryFileSystem::sizeOf(const std::string& path) { return std::int64_t(readAll(path).size()); }

bool MemoryFileSystem::exists(const std::string& path) { return files.count(path) || folders.count(path); }

bool MemoryFileSystem::isDirectory(const std::string& path) {
    if (!exists(path)) throw FileFailure("No such path " + path);
    return folders.count(path) > 0;
}

void MemoryFileSystem::makeDirectory(const std::string& path) {
    if (exists(path) || !folders.count(folderOf(path))) throw FileFailure("Cannot make " + path);
    folders.insert(path);
}

void MemoryFileSystem::createEmpty(const std::string& path) { writeWhole(path, ""); }

void MemoryFileSystem::remove(const std::string& path) {
    if (!files.erase(path)) throw FileFailure("Cannot delete " + path);
}

void MemoryFileSystem::copy(const std::string& from, const std::string& to) { writeWhole(to, readAll(from)); }

void MemoryFileSystem::rename(const std::string& from, const std::string& to) {
    std::string bytes = readAll(from);
    files.erase(from);
    files[to] = std::move(bytes);
}

std::vector<std::string> MemoryFileSystem::listDirectory(const std::string& path) {
    std::vector<std::string> names;
    for (const auto& [name, bytes] : files)
        if (folderOf(name) == path) names.push_back(name.substr(path.size() + 1));
    return names;
}

std::string QuietMachine::get(const std::string& name) const {
    if (name == "U3_DEVICE_PATH") return "/drive";
    if (name == "U3_DEVICE_EXEC_PATH") return "/drive/exec";
    if (name == "U3_DEVICE_DOCUMENT_PATH") return "/drive/Documents";
    return "";
}

MemoryDrive::MemoryDrive() {
    if (!SetStorageLocations(store, platform)) fail("the memory drive has no data directory");
}

void MemoryDrive::put(const std::string& name, const std::string& bytes) {
    files.files[dataFilePath(store, name)] = bytes;
}

std::string MemoryDrive::bytesOf(const std::string& name) const {
    const auto found = files.files.find(dataFilePath(store, name));
    return found == files.files.end() ? std::string() : found->second;
}

bool MemoryDrive::loadAll(Int16 term) {
    const bool termsAndClasses = records.LoadTermsAndClasses();
    store.CurrentTermID = term;
    return termsAndClasses && records.LoadAssignments() && records.LoadTasks() && records.LoadEvents();
}

void fail(const std::string& what) {
    std::fprintf(stderr, "planner property broken: %s\n", what.c_str());
    std::abort();
}

}  // namespace qh::fuzz
