#pragma once
// A record store on a fresh fake drive with its storage locations set, and helpers that
// spell out record bytes field by field.
#include <ostream>
#include <string>

#include "record_store/columns.h"
#include "record_store/record_files.h"
#include "record_store/storage_locations.h"
#include "support/fake_platform.h"

namespace qh {

struct StoreOnDrive {
    FakePlatform fake;
    RecordStore store;
    RecordFiles files{store, fake.platform};

    StoreOnDrive() { SetStorageLocations(store, fake.platform); }

    std::string path(const std::string& name) const { return fake.dataDirectory() + "/" + name; }
    std::string bytesOf(const std::string& name) const { return fake.bytesOf(path(name)); }
    void writeFile(const std::string& name, const std::string& bytes) const { fake.writeBytes(path(name), bytes); }
};

// A text field as the files hold it: the (code page) bytes, padded with spaces.
inline std::string field(const std::string& bytes, std::size_t width) {
    std::string out = bytes.substr(0, width);
    out.resize(width, ' ');
    return out;
}
inline std::string nuls(std::size_t width) { return std::string(width, '\0'); }
// Columns print as their rows when a comparison fails.
inline void PrintTo(const TextColumn& column, std::ostream* out) {
    *out << "{";
    for (const std::string& value : column) *out << " \"" << value << "\"";
    *out << " }";
}

inline std::string spaces(std::size_t width) { return std::string(width, ' '); }

}  // namespace qh
