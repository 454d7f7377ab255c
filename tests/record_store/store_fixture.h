#pragma once
// A record store on a fresh fake drive with its storage locations set, and record bytes
// made from the record tables.
#include <stdexcept>
#include <string>
#include <vector>

#include "record_store/columns.h"
#include "record_store/record_files.h"
#include "record_store/record_tables.h"
#include "record_store/storage_locations.h"
#include "support/fake_platform.h"

namespace qh {

struct StoreOnDrive {
    FakePlatform fake;
    RecordStore store;
    RecordFiles files{store, fake.platform};

    StoreOnDrive() {
        if (!SetStorageLocations(store, fake.platform)) throw std::runtime_error("the fake drive has no data folder");
    }

    std::string path(const std::string& name) const { return fake.dataDirectory() + "/" + name; }
    std::string bytesOf(const std::string& name) const { return fake.bytesOf(path(name)); }
    void writeFile(const std::string& name, const std::string& bytes) const { fake.writeBytes(path(name), bytes); }
};

// A record as an older or hand-edited file holds it: each value padded to its field as it
// stands, dates unrepaired, reserved fields filled. The golden byte tests pin the widths.
inline std::string rawRecord(const RecordLayout& layout, const std::vector<std::string>& values) {
    std::string bytes;
    std::size_t next = 0;
    for (const FieldSpec& field : layout.fields) {
        std::string value = field.kind == FieldKind::Reserved
                                ? std::string(std::size_t(field.width), layout.reservedFill)
                                : values.at(next++);
        value.resize(std::size_t(field.width), ' ');
        bytes += value;
    }
    return bytes;
}

}  // namespace qh
