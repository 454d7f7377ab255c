// Notes.txt of any bytes: the load lists the record number and link of each note with a
// link above 0, of any term, and a note read by number is that record's values.
#include "common/int16.h"
#include "memory_drive.h"
#include "record_checks.h"

using namespace qh;
using namespace qh::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const auto records = checkRecords(kNotesLayout, bytes);

    MemoryDrive drive;
    drive.put("Notes.txt", bytes);
    if (!loadedClean(drive.loadAll(0), drive, "Notes.txt")) return 0;
    const RecordStore& s = drive.store;
    require(s.NextNoteRecord == int(records.size()) + 1, "the counter ends one past the whole records");
    int row = 0;
    for (const auto& record : records) {
        if (int16OrZero(record[1]) <= 0) continue;
        ++row;
        require(s.NoteRecordNos.has(row) && s.NoteRecordNos(row) == record[0] && s.NoteLinkIDs(row) == record[1],
                "a live note is listed by its record number and link");
    }
    require(s.NoteRecordNos.count() == row && s.NoteLinkIDs.count() == row, "only the live notes are listed");

    for (Int16 number = 1; number <= Int16(records.size()) + 1; ++number) {
        require(drive.records.ReadNote(number), "any note reads");
        const NoteBuffer& note = drive.store.NoteRecord;
        if (number <= Int16(records.size())) {
            const auto& record = records[std::size_t(number - 1)];
            require(note.RecordNo == record[0] && note.LinkID == record[1] && note.Text == record[2],
                    "a note read is its record's values");
        } else {
            require(note.RecordNo.empty() && note.LinkID.empty() && note.Text.empty(),
                    "a note past the end reads empty");
        }
    }
    return 0;
}
