// Tasks.txt and Events.txt: all live records in memory, one record written at a time.
#include "record_store/record_files.h"
#include "record_store/record_io.h"

namespace qh {
namespace {

// Where the Description stands among the values of a record.
constexpr std::size_t kTaskDescription = 2, kEventDescription = 3;

}  // namespace

bool RecordFiles::LoadTasks() {
    if (!enterDataDirectory()) return false;
    RecordStore& s = store_;
    TextColumn* const columns[] = {&s.TaskRecordNos, &s.TaskIDs,      &s.TaskDescriptions, &s.TaskDateExists,
                                   &s.TaskDates,     &s.TaskTypes,    &s.TaskPriorities,   &s.TaskDones,
                                   &s.TaskNotes,     &s.TaskReminders};
    const bool read = runFileStep([&] {
        readRecords(kTasksLayout, s.NextTaskRecord, columns, [&](const RecordView& r) {
            if (!r.valueIs(kTaskDescription, kDeletedRecord)) r.appendTo(columns);
        });
    });
    if (!read) reportFileError("Tasks.txt", "reading");
    return read;
}

bool RecordFiles::SaveTask(Int16 RecordNumber) {
    return saveOne(kTasksLayout, store_.NextTaskRecord, store_.TasksChanged, RecordNumber, [&] {
        const TaskBuffer& t = store_.TaskRecord;
        return Values{t.RecordNo, t.ID,       t.Description, t.DateExists, t.Date,
                      t.Type,     t.Priority, t.Done,        t.Notes,      t.Reminder};
    });
}

bool RecordFiles::LoadEvents() {
    if (!enterDataDirectory()) return false;
    RecordStore& s = store_;
    TextColumn* const columns[] = {
        &s.EventRecordNos,     &s.EventIDs,         &s.EventDates,     &s.EventDescriptions,  &s.EventTypes,
        &s.EventTimes,         &s.EventRecurrences, &s.EventSameDates, &s.EventRepeatNumbers, &s.EventRepeatDays,
        &s.EventRepeatDailies, &s.EventEnds,        &s.EventEndDates,  &s.EventNotes,         &s.EventReminders};
    const bool read = runFileStep([&] {
        readRecords(kEventsLayout, s.NextEventRecord, columns, [&](const RecordView& r) {
            if (!r.valueIs(kEventDescription, kDeletedRecord)) r.appendTo(columns);
        });
    });
    if (!read) reportFileError("Events.txt", "reading");
    return read;
}

bool RecordFiles::SaveEvent(Int16 RecordNumber) {
    return saveOne(kEventsLayout, store_.NextEventRecord, store_.EventsChanged, RecordNumber, [&] {
        const EventBuffer& e = store_.EventRecord;
        return Values{e.RecordNo,    e.ID,         e.Date,     e.Description,  e.Type,
                      e.Time,        e.Recurrence, e.SameDate, e.RepeatNumber, e.RepeatDay,
                      e.RepeatDaily, e.End,        e.EndDate,  e.Notes,        e.Reminder};
    });
}

}  // namespace qh
