#pragma once
// The check every record file passes as it loads. A file pulled out mid-write, copied
// badly or edited by hand may hold stray bytes (so that every record after them stands
// out of its place), a part record, or fields that read as nothing the planner knows. The
// check finds each record it can, keeps it byte for byte, and says which ones the lists
// may show.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "record_store/record_layout.h"

namespace qh {

// The most records a file may hold: its Next counter, one past the last record, must
// still fit in 16 bits.
inline constexpr int kMostRecords = 32766;

// The dates a record may hold: those the calendar can show.
inline constexpr int kEarliestRecordYear = 1600;
inline constexpr int kLatestRecordYear = 3100;

struct CheckedRecords {
    // The records as the file must stand: whole records one after another, each (in the
    // files that number their records) carrying its place as its RecordNo.
    std::string records;
    // For each record of `records`: whether every field the planner reads converts.
    // A record that does not is kept in the file but left out of the lists.
    std::vector<bool> readable;
    // Records the file holds as far as its length tells, a part record counted (at least
    // the records found).
    std::int64_t recordsInFile = 0;
    // `records` differs from the file: records were out of place, stray bytes or a part
    // record lay between them, or the file held more than kMostRecords.
    bool rewrite = false;

    int count() const { return int(readable.size()); }
    int readableCount() const;
    // Anything at all wrong: a record not found, out of place or not readable.
    bool damaged() const { return rewrite || readableCount() != count() || recordsInFile != count(); }
};

// Checks the bytes of a file (`bytes` is its head: all of it, or at least enough for
// kMostRecords + 1 records; `fileSize` its whole length). A file whose records all stand
// in their places hands its bytes on as `records` without a copy.
CheckedRecords CheckRecords(const RecordLayout& layout, std::string bytes, std::int64_t fileSize);

// Whether every field of one record that the planner reads converts: dates are dates of
// the calendar's years where the record says it has one, colours are named colours,
// numbers are 16-bit numbers. Deleted records only need to be in place.
[[nodiscard]] bool RecordReadable(const RecordLayout& layout, std::string_view record);

}  // namespace qh
