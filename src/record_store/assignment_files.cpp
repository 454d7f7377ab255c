// Assignments.txt, Notes.txt and StudySessions.txt.
#include <unordered_map>

#include "common/day_number.h"
#include "common/failure.h"
#include "record_store/record_tables.h"
#include "record_store/record_files.h"
#include "record_store/record_io.h"
#include "record_store/storage_locations.h"

namespace qh {
namespace {

// How many times each key occurs in a column, keys read as 16-bit numbers the way links
// are compared. Taking a record once per matching row of a column scanned row by row is
// the same as taking it as many times as its link occurs here, without the scan.
using RowCounts = std::unordered_map<Int16, int>;

}  // namespace

bool RecordFiles::LoadAssignments() {
    if (!enterDataDirectory()) return false;
    RecordStore& s = store_;
    std::string current = "Assignments.txt";
    // The places of the values the load decides by.
    constexpr std::size_t classLinkAt = kAssignmentTable.position("ClassLink");
    constexpr std::size_t descriptionAt = kAssignmentTable.position("Description");
    constexpr std::size_t noteLinkAt = kNoteTable.position("LinkID");
    constexpr std::size_t sessionLinkAt = kStudySessionTable.position("LinkID");
    const bool read = runFileStep([&] {
        // Live classes of the active term, by ID.
        RowCounts classRows;
        for (int i = 1; i <= s.ClassIDs.count(); ++i)
            if (int16OrZero(s.ClassTermLinks(i)) == s.CurrentTermID && s.ClassNames(i) != kDeletedRecord)
                ++classRows[int16OrZero(s.ClassIDs(i))];

        const std::vector<TextColumn*> assignments = kAssignmentTable.columns(s);
        // Only the active term's records are taken: no room is made ahead for them.
        readRecords(kAssignmentTable.layout, s.NextAssignmentRecord, {}, [&](const RecordView& r) {
            if (r.valueIs(descriptionAt, kDeletedRecord)) return;
            const auto found = classRows.find(int16OrZero(r.value(classLinkAt)));
            if (found == classRows.end()) return;
            for (int n = 0; n < found->second; ++n) r.appendTo(assignments);
        });

        current = "Notes.txt";
        // The text stays on disk until a note is opened: only RecordNo and LinkID are read.
        const std::vector<TextColumn*> notes = kNoteTable.columns(s);
        readRecords(kNoteTable.layout, s.NextNoteRecord, notes, [&](const RecordView& r) {
            if (int16OrZero(r.value(noteLinkAt)) > 0) r.appendTo(notes);
        });

        current = "StudySessions.txt";
        RowCounts assignmentRows;
        for (const std::string& id : s.AssignmentIDs) ++assignmentRows[int16OrZero(id)];
        const std::vector<TextColumn*> sessions = kStudySessionTable.columns(s);
        readRecords(kStudySessionTable.layout, s.NextStudySessionRecord, {}, [&](const RecordView& r) {
            const std::string link = r.value(sessionLinkAt);
            if (link == "0") return;
            const auto found = assignmentRows.find(int16OrZero(link));
            if (found == assignmentRows.end()) return;
            for (int n = 0; n < found->second; ++n) r.appendTo(sessions);
        });
    });
    if (!read) reportFileError(current, "reading");
    return read;
}

bool RecordFiles::SaveAssignment(Int16 RecordNumber) {
    return saveOne(kAssignmentTable.layout, store_.NextAssignmentRecord, store_.AssignmentsChanged, RecordNumber,
                   [&] { return kAssignmentTable.valuesOf(store_.AssignmentRecord); });
}

bool RecordFiles::SaveNote(Int16 RecordNumber) {
    return saveOne(kNoteTable.layout, store_.NextNoteRecord, store_.NotesChanged, RecordNumber,
                   [&] { return kNoteTable.valuesOf(store_.NoteRecord); });
}

bool RecordFiles::SaveStudySession(Int16 RecordNumber, int Row) {
    return saveOne(kEditStudySessionTable.layout, store_.NextStudySessionRecord, store_.StudySessionsChanged,
                   RecordNumber, [&] { return kEditStudySessionTable.valuesOf(kEditStudySessionTable.rowOf(store_, Row)); });
}

bool RecordFiles::ReadNote(Int16 RecordNumber) {
    if (!enterDataDirectory()) return false;
    const bool read = runFileStep([&] {
        const auto file = platform_.files.openRecords(dataFilePath(store_, "Notes.txt"), kNotesLayout.length);
        std::string bytes;
        store_.NoteRecord = file->read(RecordNumber, bytes) ? kNoteTable.bufferOf(parseRecord(kNotesLayout, bytes))
                                                            : NoteBuffer{};
    });
    if (!read) reportFileError("Notes.txt", "reading");
    return read;
}

}  // namespace qh
