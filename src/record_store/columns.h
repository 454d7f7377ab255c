#pragma once
// The record store: every record of the planner as parallel 1-based columns, the Next
// counters, the change flags, the active term and the three directories. One object for
// the whole run, owned by the program and passed by reference.
//
// Values are texts as they stand in the files with trailing blanks removed. Terms and
// classes are all held (tombstones too); assignments and study sessions only for the
// active term; notes by record number and link (their text is read on demand); live
// tasks and events all, plus the rows deleted during this run.
#include <string>

#include "common/column.h"
#include "common/day_number.h"
#include "common/int16.h"

namespace qh {

inline constexpr const char* kDeletedRecord = "DELETED RECORD";

struct AssignmentBuffer {
    std::string RecordNo, ID, ClassLink;
    Date DateValue = 0;
    std::string Type, Difficulty, EstTime, Description, Done, Grade, Weight, Reminder;
};

struct NoteBuffer {
    std::string RecordNo, LinkID, Text;
};

struct TaskBuffer {
    std::string RecordNo, ID, Date, Description, DateExists, Type, Priority, Done, Notes, Reminder;
};

struct EventBuffer {
    std::string RecordNo, ID, Date, Description, Type, Time, Recurrence, SameDate, RepeatNumber, RepeatDay,
        RepeatDaily, End, EndDate, Notes, Reminder;
};

struct RecordStore {
    // Directories (see storage_locations.h).
    std::string DataDirectory, BackupDirectory, DocumentDirectory, HelpFile;
    // The data directory may not be written (a drive with its lock switch on): the records
    // load, and nothing at all is written.
    bool DriveReadOnly = false;

    // Terms and classes.
    TextColumn TermIDs, TermNames, TermStarts, TermEnds;
    TextColumn ClassIDs, ClassTermLinks, ClassNames, ClassForeColors, ClassBackColors, ClassNotes;

    // Assignments, notes and study sessions of the active term.
    TextColumn AssignmentRecordNos, AssignmentIDs, AssignmentClassLinks, AssignmentDates, AssignmentTypes,
        AssignmentDifficulties, AssignmentEstTimes, AssignmentDescriptions, AssignmentDones, AssignmentGrades,
        AssignmentWeights, AssignmentReminders;
    TextColumn StudySessionRecordNos, StudySessionLinkIDs, StudySessionLengths, StudySessionDates;
    TextColumn NoteRecordNos, NoteLinkIDs;
    TextColumn EditStudySessionRecordNos, EditStudySessionLinkIDs, EditStudySessionLengths,
        EditStudySessionDates;

    // Tasks and events.
    TextColumn TaskRecordNos, TaskIDs, TaskDescriptions, TaskDateExists, TaskDates, TaskTypes, TaskPriorities,
        TaskDones, TaskNotes, TaskReminders;
    TextColumn EventRecordNos, EventIDs, EventDates, EventDescriptions, EventTypes, EventTimes,
        EventRecurrences, EventSameDates, EventRepeatNumbers, EventRepeatDays, EventRepeatDailies, EventEnds,
        EventEndDates, EventNotes, EventReminders;

    // Record buffers filled by callers ahead of a save (their fields: record_tables.h).
    AssignmentBuffer AssignmentRecord;
    NoteBuffer NoteRecord;
    TaskBuffer TaskRecord;
    EventBuffer EventRecord;
    Int16 NoteRowIndex = 0;

    // Next counters: the record number the next appended record takes.
    Int16 NextTermRecord = 1, NextClassRecord = 1, NextAssignmentRecord = 1, NextNoteRecord = 1,
          NextStudySessionRecord = 1, NextTaskRecord = 1, NextEventRecord = 1;

    // Change flags, read by the backup rotation at exit.
    Int16 TermsChanged = kFalse, ClassesChanged = kFalse, AssignmentsChanged = kFalse, NotesChanged = kFalse,
          StudySessionsChanged = kFalse, TasksChanged = kFalse, EventsChanged = kFalse;
    // The planner's own CalendarLinks.txt beside the record files, backed up with them.
    Int16 CalendarLinksChanged = kFalse;

    // The active term; 0, empty and 2000-01-01 when none is chosen.
    Int16 CurrentTermID = 0;
    std::string CurrentTermName;
    Date CurrentTermStart = dateFromYmd(2000, 1, 1);
    Date CurrentTermEnd = dateFromYmd(2000, 1, 1);

    // Empties the columns of the active term's records (assignments, sessions, notes).
    void clearTermBoundColumns();
};

}  // namespace qh
