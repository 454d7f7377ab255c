#pragma once
// A record store on a fresh fake drive with its storage locations set, and record bytes
// made from the record tables.
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "record_store/columns.h"
#include "record_store/record_files.h"
#include "record_store/record_tables.h"
#include "record_store/storage_locations.h"
#include "support/fake_platform.h"

namespace qh {

struct StoreOnDrive {
    FakePlatform fake;
    RecordStore store;
    RecordFiles files{store, fake.platform};

    StoreOnDrive() {
        if (!SetStorageLocations(store, fake.platform)) throw std::runtime_error("the fake drive has no data folder");
    }

    std::string path(const std::string& name) const { return fake.dataDirectory() + "/" + name; }
    std::string bytesOf(const std::string& name) const { return fake.bytesOf(path(name)); }
    void writeFile(const std::string& name, const std::string& bytes) const { fake.writeBytes(path(name), bytes); }
};

// A record as an older or hand-edited file holds it: each value padded to its field as it
// stands, dates unrepaired, reserved fields filled. The golden byte tests pin the widths.
inline std::string rawRecord(const RecordLayout& layout, const std::vector<std::string>& values) {
    std::string bytes;
    std::size_t next = 0;
    for (const FieldSpec& field : layout.fields) {
        std::string value = field.kind == FieldKind::Reserved
                                ? std::string(std::size_t(field.width), layout.reservedFill)
                                : values.at(next++);
        value.resize(std::size_t(field.width), ' ');
        bytes += value;
    }
    return bytes;
}

// A file written one record at a time: its columns and counter, and how a test saves a
// record of it from its values in file order.
struct OneRecordFile {
    using S = RecordStore;
    using Row = std::vector<std::string>;
    const RecordLayout& layout;
    Int16 S::*next;
    std::vector<TextColumn S::*> columns;  // that its load fills, record number first
    // Puts a record's values into the store's buffer and saves it.
    std::function<bool(RecordFiles&, S&, const Row&, Int16 RecordNumber)> save;
    std::size_t edited;     // a value a change writes anew...
    std::string goneValue;  // ...or this, for a delete
};

// clang-format off
inline const OneRecordFile kOneRecordFiles[] = {
    {kAssignmentsLayout, &RecordStore::NextAssignmentRecord,
     {&RecordStore::AssignmentRecordNos, &RecordStore::AssignmentIDs, &RecordStore::AssignmentClassLinks,
      &RecordStore::AssignmentDates, &RecordStore::AssignmentTypes, &RecordStore::AssignmentDifficulties,
      &RecordStore::AssignmentEstTimes, &RecordStore::AssignmentDescriptions, &RecordStore::AssignmentDones,
      &RecordStore::AssignmentGrades, &RecordStore::AssignmentWeights, &RecordStore::AssignmentReminders},
     [](RecordFiles& files, RecordStore& s, const OneRecordFile::Row& v, Int16 number) {
         s.AssignmentRecord = {v[0], v[1], v[2], dateFromText(v[3]), v[4], v[5], v[6], v[7], v[8], v[9], v[10], v[11]};
         return files.SaveAssignment(number);
     },
     7, kDeletedRecord},
    {kNotesLayout, &RecordStore::NextNoteRecord, {&RecordStore::NoteRecordNos, &RecordStore::NoteLinkIDs},
     [](RecordFiles& files, RecordStore& s, const OneRecordFile::Row& v, Int16 number) {
         s.NoteRecord = {v[0], v[1], v[2]};
         return files.SaveNote(number);
     },
     1, "0"},
    {kStudySessionsLayout, &RecordStore::NextStudySessionRecord,
     {&RecordStore::StudySessionRecordNos, &RecordStore::StudySessionLinkIDs, &RecordStore::StudySessionLengths,
      &RecordStore::StudySessionDates},
     [](RecordFiles& files, RecordStore& s, const OneRecordFile::Row& v, Int16 number) {
         s.EditStudySessionRecordNos = {v[0]};
         s.EditStudySessionLinkIDs = {v[1]};
         s.EditStudySessionLengths = {v[2]};
         s.EditStudySessionDates = {v[3]};
         return files.SaveStudySession(number, 1);
     },
     1, "-1"},
    {kTasksLayout, &RecordStore::NextTaskRecord,
     {&RecordStore::TaskRecordNos, &RecordStore::TaskIDs, &RecordStore::TaskDescriptions, &RecordStore::TaskDateExists,
      &RecordStore::TaskDates, &RecordStore::TaskTypes, &RecordStore::TaskPriorities, &RecordStore::TaskDones,
      &RecordStore::TaskNotes, &RecordStore::TaskReminders},
     [](RecordFiles& files, RecordStore& s, const OneRecordFile::Row& v, Int16 number) {
         s.TaskRecord = {v[0], v[1], v[4], v[2], v[3], v[5], v[6], v[7], v[8], v[9]};
         return files.SaveTask(number);
     },
     2, kDeletedRecord},
    {kEventsLayout, &RecordStore::NextEventRecord,
     {&RecordStore::EventRecordNos, &RecordStore::EventIDs, &RecordStore::EventDates, &RecordStore::EventDescriptions,
      &RecordStore::EventTypes, &RecordStore::EventTimes, &RecordStore::EventRecurrences, &RecordStore::EventSameDates,
      &RecordStore::EventRepeatNumbers, &RecordStore::EventRepeatDays, &RecordStore::EventRepeatDailies,
      &RecordStore::EventEnds, &RecordStore::EventEndDates, &RecordStore::EventNotes, &RecordStore::EventReminders},
     [](RecordFiles& files, RecordStore& s, const OneRecordFile::Row& v, Int16 number) {
         s.EventRecord = {v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], v[8], v[9], v[10], v[11], v[12], v[13], v[14]};
         return files.SaveEvent(number);
     },
     3, kDeletedRecord},
};
// clang-format on
inline const OneRecordFile& kAssignmentFile = kOneRecordFiles[0];
inline const OneRecordFile& kStudySessionFile = kOneRecordFiles[2];
inline const OneRecordFile& kTaskFile = kOneRecordFiles[3];
inline const OneRecordFile& kEventFile = kOneRecordFiles[4];

}  // namespace qh
