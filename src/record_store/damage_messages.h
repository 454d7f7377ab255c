#pragma once
// What the student is told about a damaged or full record file.
#include <string>

#include "common/day_number.h"
#include "common/failure.h"
#include "record_store/record_check.h"

namespace qh {

extern const char* const kDamagedFileTitle;  // "Quillhollow - Damaged File"

// Where a damaged file found on `day` is kept: "Assignments.damaged-2026-11-25.txt".
std::string DamagedCopyName(const std::string& fileName, Date day);

// "Assignments.txt is damaged: 412 of 607 records could be read. A copy of it was kept as
// Assignments.damaged-2026-11-25.txt." `copyName` is empty when no copy could be made;
// `repaired` is false when the file had to be written anew and could not be. `why` is the
// reason the last failing write gave.
std::string DamagedFileText(const std::string& fileName, const CheckedRecords& checked, const std::string& copyName,
                            bool repaired, FileProblem why);

// A save refused because the damaged file could not be kept aside or written anew.
std::string DamagedRefusalText(const std::string& fileName);

// "Tasks.txt is full: 32,766 tasks."
std::string FullFileText(const std::string& fileName);

// 32766 as "32,766".
std::string withThousands(long long number);

}  // namespace qh
