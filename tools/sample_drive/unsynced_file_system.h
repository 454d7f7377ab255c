#pragma once
// The file layer of the sample drive maker: the planner's own POSIX file layer, except
// that a record written is not synced on its own. The planner syncs every record it
// writes, as a student's drive may be pulled out at any moment; a maker that writes tens
// of thousands of records in a row would wait for the disk once for each. Here each
// record file is synced once, at the end (syncWritten). The bytes are the same.
#include <set>
#include <string>

#include "platform/posix_file_system.h"

namespace qh::sample {

class UnsyncedFileSystem : public PosixFileSystem {
public:
    std::unique_ptr<RecordFile> openRecords(const std::string& path, int recordLength) override;
    // Syncs every record file opened so far and the folders they lie in. Throws
    // FileFailure when one cannot be synced.
    void syncWritten();

private:
    std::set<std::string> opened_;
};

}  // namespace qh::sample
