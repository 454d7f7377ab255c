#pragma once
// What every record file promises whatever its bytes: the fuzzers check these for each
// whole record of an input before running the load it feeds.
#include <string>
#include <string_view>
#include <vector>

#include "record_store/record_layout.h"

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

}  // namespace qh::fuzz
