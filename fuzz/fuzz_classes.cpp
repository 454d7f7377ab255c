// Classes.txt of any bytes: every whole record becomes a row, and the classes written
// back whole read again as the same rows.
#include "memory_drive.h"
#include "record_checks.h"

using namespace qh;
using namespace qh::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const auto records = checkRecords(kClassesLayout, bytes);

    MemoryDrive drive;
    drive.put("Terms.txt", recordOf(kTermsLayout, {"1", "Fall 2026", "2026/08/24", "2026/12/18"}));
    drive.put("Classes.txt", bytes);
    if (!loadedClean(drive.records.LoadTermsAndClasses(), drive, "Classes.txt")) return 0;
    const RecordStore& s = drive.store;
    require(s.NextClassRecord == int(records.size()) + 1, "the counter ends one past the whole records");
    requireRows({&s.ClassIDs, &s.ClassTermLinks, &s.ClassNames, &s.ClassForeColors, &s.ClassBackColors, &s.ClassNotes},
                records, "one row for each whole record");

    require(drive.records.SaveTermsAndClasses(), "classes of any text are written back");
    MemoryDrive again;
    again.put("Terms.txt", drive.bytesOf("Terms.txt"));
    again.put("Classes.txt", drive.bytesOf("Classes.txt"));
    require(again.records.LoadTermsAndClasses(), "a written Classes.txt loads");
    const RecordStore& t = again.store;
    require(t.ClassIDs == s.ClassIDs && t.ClassTermLinks == s.ClassTermLinks && t.ClassNames == s.ClassNames &&
                t.ClassForeColors == s.ClassForeColors && t.ClassBackColors == s.ClassBackColors &&
                t.ClassNotes == s.ClassNotes,
            "the classes read back as they were written");
    return 0;
}
