#pragma once
// What every record file promises whatever its bytes: the fuzzers check these for each
// whole record of an input before running the load it feeds.
#include <string>
#include <string_view>
#include <vector>

#include "common/column.h"
#include "record_store/record_tables.h"

namespace qh::fuzz {

// For each whole record of `bytes` (a trailing part record is no record):
// - the values read one at a time (RecordView) are those parseRecord gives, and asking
//   whether a value is "DELETED RECORD" agrees with reading it;
// - a record whose date fields hold dates is written back (buildRecord) with every text
//   field byte for byte as it was read and its dates as "yyyy/MM/dd", and reads back the
//   same; one whose date fields don't is refused as the untrapped "Type mismatch".
// Returns the values of the records, in order.
std::vector<std::vector<std::string>> checkRecords(const RecordLayout& layout, std::string_view bytes);

// The record bytes of `values` (as buildRecord takes them), for the fixed companion files
// of a fuzzed one.
std::string recordOf(const RecordLayout& layout, std::vector<std::string> values);

// Each column holds one row for each expected record, in order, with that record's value
// of the column's field; `rowsWhat` names the failure of the count.
void requireRows(std::initializer_list<const TextColumn*> columns,
                 const std::vector<std::vector<std::string>>& expected, const char* rowsWhat);

// After record `index` (0-based) of a file was written over in place: the file keeps its
// size and every byte of the other records, and, when the save went through, holds the
// record of `values` there.
void requireOverwriteAlone(const RecordLayout& layout, const std::string& before, const std::string& after,
                           std::size_t index, bool saved, const std::vector<std::string>& values);

}  // namespace qh::fuzz
