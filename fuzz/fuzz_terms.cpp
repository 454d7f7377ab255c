// Terms.txt of any bytes: the load keeps every whole record as a row, and writing the
// terms back whole and reading them again gives the same rows.
#include "memory_drive.h"
#include "record_checks.h"

using namespace qh;
using namespace qh::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const auto records = checkRecords(kTermsLayout, bytes);

    MemoryDrive drive;
    drive.put("Terms.txt", bytes);
    drive.put("Classes.txt", recordOf(kClassesLayout, {"1", "1", "Biology", "Black", "MistyRose", "Room 4"}));
    if (!loadedClean(drive.records.LoadTermsAndClasses(), drive, "Terms.txt")) return 0;
    const RecordStore& s = drive.store;
    require(s.NextTermRecord == int(records.size()) + 1, "the counter ends one past the whole records");
    require(s.TermIDs.count() == int(records.size()) && s.TermNames.count() == int(records.size()) &&
                s.TermStarts.count() == int(records.size()) && s.TermEnds.count() == int(records.size()),
            "one row for each whole record, tombstones too");
    bool datesRead = true;
    for (std::size_t i = 0; i < records.size(); ++i) {
        const int row = int(i) + 1;
        require(s.TermIDs(row) == records[i][0] && s.TermNames(row) == records[i][1] &&
                    s.TermStarts(row) == records[i][2] && s.TermEnds(row) == records[i][3],
                "a row holds its record's values");
        datesRead = datesRead && parseDateText(records[i][2]) && parseDateText(records[i][3]);
    }
    require(s.ClassIDs.count() == 1, "the classes are read after the terms");

    const std::string before = drive.bytesOf("Terms.txt");
    const bool saved = drive.records.SaveTermsAndClasses();
    require(saved == datesRead, "the terms are written back exactly when their dates read as dates");
    if (!saved) {
        require(drive.machine.shown.size() == 1 && drive.bytesOf("Terms.txt") == before,
                "a refused save shows one message and leaves the old file");
        return 0;
    }
    MemoryDrive again;
    again.put("Terms.txt", drive.bytesOf("Terms.txt"));
    again.put("Classes.txt", drive.bytesOf("Classes.txt"));
    require(again.records.LoadTermsAndClasses(), "a written Terms.txt loads");
    const RecordStore& t = again.store;
    require(t.TermIDs == s.TermIDs && t.TermNames == s.TermNames && t.ClassNames == s.ClassNames,
            "the terms read back as they were written");
    for (int row = 1; row <= t.TermStarts.count(); ++row)
        require(t.TermStarts(row) == dateText(*parseDateText(s.TermStarts(row))) &&
                    t.TermEnds(row) == dateText(*parseDateText(s.TermEnds(row))),
                "a term date reads back in its written form");
    return 0;
}
