#pragma once
// The seven record files of the planner and the routines that read and write them.
//
// Every routine has the same shape: enter the data directory (a failure shows the
// directory message and the routine ends), then open the file, do its work and close it
// (any failure, including a 16-bit counter passing 32767, shows the file message with
// "reading" or "writing", clears the file's change flag and ends the routine at once,
// leaving the columns and counters as far as they got). The routines return true when
// they ran to their end, false after a message; callers may ignore the result.
//
// Loads check the file first (record_check.h). A damaged file is told once a run, naming
// it and how many of its records could be read; the damaged original is copied aside
// under the data directory ("Assignments.damaged-2026-11-25.txt") before anything is
// written, and a file whose records stood out of place is then written anew, whole, from
// the records found, so that no save lands on the wrong record. When the copy or the new
// file cannot be written the file is left as it is and its saves are refused. A record in
// its place with a field that does not convert stays in the file untouched but is left
// out of the columns. A save that would pass the most records a file holds is refused
// with "<File> is full: 32,766 <records>." before anything is written. Saves of one record (assignments, notes,
// sessions, tasks, events) write at the Next counter: RecordNumber 0 appends and advances it; any other RecordNumber
// overwrites that record and puts the counter back afterwards. After a failed overwrite
// the counter stays on the overwritten number until the next load, so the next append
// lands there: that is the planner's long-standing behaviour and is kept.
//
// Terms.txt and Classes.txt are always replaced whole, atomically: a failed save leaves
// the file as it was before the save.
#include <functional>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "record_store/columns.h"
#include "record_store/record_check.h"
#include "record_store/record_layout.h"

namespace qh {

class RecordFiles {
public:
    RecordFiles(RecordStore& store, Platform& platform) : store_(store), platform_(platform) {}

    // Appends every record of Terms.txt, then of Classes.txt, to the term and class
    // columns (tombstones too); NextTermRecord and NextClassRecord end as the number of
    // whole records plus 1. Missing files are created empty.
    bool LoadTermsAndClasses();

    // Replaces Terms.txt and Classes.txt with the rows of the columns in order; term
    // dates may be any text that reads as a date (see record_layout.h) and are written
    // afresh as "yyyy/MM/dd". Sets TermsChanged and ClassesChanged. A Terms.txt that has
    // gone missing since the load fails the save with an empty file name in the message,
    // which clears no change flag.
    [[nodiscard]] bool SaveTermsAndClasses();

    // Fills the assignment, note and study session columns for CurrentTermID (the caller
    // empties them first): live assignments of live classes of the active term, every
    // note with a link above 0, and the sessions linked to a loaded assignment. All three
    // Next counters end past the end of their files.
    bool LoadAssignments();

    // Writes AssignmentRecord; sets AssignmentsChanged.
    [[nodiscard]] bool SaveAssignment(Int16 RecordNumber);
    // Writes NoteRecord; sets NotesChanged.
    [[nodiscard]] bool SaveNote(Int16 RecordNumber);
    // Writes row `Row` of the four EditStudySession columns; sets StudySessionsChanged.
    [[nodiscard]] bool SaveStudySession(Int16 RecordNumber, int Row);
    // Reads record RecordNumber of Notes.txt into NoteRecord (all fields empty when the
    // record lies past the end of the file).
    [[nodiscard]] bool ReadNote(Int16 RecordNumber);

    // All live tasks, in file order; TaskRecordNos leads back to the file.
    bool LoadTasks();
    // Writes TaskRecord (its Date a date text); sets TasksChanged.
    [[nodiscard]] bool SaveTask(Int16 RecordNumber);

    // All live events, in file order.
    bool LoadEvents();
    // Writes EventRecord (Date and EndDate date texts); sets EventsChanged.
    [[nodiscard]] bool SaveEvent(Int16 RecordNumber);

private:
    RecordStore& store_;
    Platform& platform_;

    using Values = std::vector<std::string>;

    // Files already told damaged this run, and those left damaged on the drive whose
    // saves are refused.
    std::set<std::string> toldDamaged_;
    std::set<std::string> unsaveable_;
    // The term and class records kept out of the columns for a field that does not
    // convert: they are written back as they stand whenever the two files are replaced.
    std::string keptTerms_, keptClasses_;

    [[nodiscard]] bool enterDataDirectory();
    void reportFileError(const std::string& fileName, const char* action, FileProblem why = FileProblem::Other);
    // Reads and checks the file (a missing one is created empty); a damaged one is told,
    // copied aside and repaired as the header says.
    CheckedRecords checkedFile(const RecordLayout& layout);
    void keepDamaged(const RecordLayout& layout, const CheckedRecords& checked);
    // Whether a save of the file may go ahead; shows the refusal when it may not.
    [[nodiscard]] bool mayWrite(const RecordLayout& layout, int recordsAfter);
    // Checks the file, resets `next` to 1 and hands each readable record to `take`,
    // advancing `next` past every record. Throws on any failure; the caller reports it.
    // Returns the bytes of the records left out. `rowsFor` are columns that take about
    // one row for each record: they are given room for all of them before the first is
    // read, so that a file of thousands of records doesn't regrow them again and again.
    std::string readRecords(const RecordLayout& layout, Int16& next, std::span<TextColumn* const> rowsFor,
                            const std::function<void(const RecordView&)>& take);
    // The whole of a one-record save: directory step, counter rules, write, flag.
    [[nodiscard]] bool saveOne(const RecordLayout& layout, Int16& next, Int16& changed, Int16 RecordNumber,
                               const std::function<Values()>& values);
};

// The saves of one run over many records (an import, a feed's refresh). A refused save has
// named its file to the student; the run stops there rather than meet the refusal again.
struct SaveRun {
    bool refused = false;
    void note(bool saved) { refused = refused || !saved; }
};

}  // namespace qh
