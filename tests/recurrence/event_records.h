#pragma once
// Builds Event, Task, Assignment and Class rows in a record store the way the editors
// leave them, so a test names only what it is about.
#include <string>

#include "record_store/columns.h"

namespace qh::test {

struct EventFields {
    std::string date = "2026/01/01";
    std::string recurrence = "None";
    std::string sameDate = "True";
    std::string repeatNumber = "First";
    std::string repeatDay = "Day";
    std::string repeatDaily = "FFFFFFF";  // Monday first
    std::string ends = "False";
    std::string endDate = "2026/01/01";
    std::string type = "None";
    std::string reminder = "None";
    std::string description = "Event";
};

// Appends one event; returns its row.
inline int addEvent(RecordStore& store, const EventFields& f) {
    const int row = store.EventRecordNos.count() + 1;
    store.EventRecordNos.append(std::to_string(row));
    store.EventIDs.append(std::to_string(row));
    store.EventDates.append(f.date);
    store.EventDescriptions.append(f.description);
    store.EventTypes.append(f.type);
    store.EventTimes.append("None");
    store.EventRecurrences.append(f.recurrence);
    store.EventSameDates.append(f.sameDate);
    store.EventRepeatNumbers.append(f.repeatNumber);
    store.EventRepeatDays.append(f.repeatDay);
    store.EventRepeatDailies.append(f.repeatDaily);
    store.EventEnds.append(f.ends);
    store.EventEndDates.append(f.endDate);
    store.EventNotes.append("");
    store.EventReminders.append(f.reminder);
    return row;
}

struct TaskFields {
    std::string date = "2026/01/01";
    std::string dateExists = "True";
    std::string done = "False";
    std::string type = "None";
    std::string reminder = "None";
    std::string description = "Task";
};

inline int addTask(RecordStore& store, const TaskFields& f) {
    const int row = store.TaskRecordNos.count() + 1;
    store.TaskRecordNos.append(std::to_string(row));
    store.TaskIDs.append(std::to_string(row));
    store.TaskDescriptions.append(f.description);
    store.TaskDateExists.append(f.dateExists);
    store.TaskDates.append(f.date);
    store.TaskTypes.append(f.type);
    store.TaskPriorities.append("None");
    store.TaskDones.append(f.done);
    store.TaskNotes.append("");
    store.TaskReminders.append(f.reminder);
    return row;
}

struct AssignmentFields {
    std::string date = "2026/01/01";
    std::string classLink = "1";
    std::string done = "False";
    std::string type = "Homework";
    std::string reminder = "1 Day";
    std::string description = "Assignment";
};

inline int addAssignment(RecordStore& store, const AssignmentFields& f) {
    const int row = store.AssignmentRecordNos.count() + 1;
    store.AssignmentRecordNos.append(std::to_string(row));
    store.AssignmentIDs.append(std::to_string(row));
    store.AssignmentClassLinks.append(f.classLink);
    store.AssignmentDates.append(f.date);
    store.AssignmentTypes.append(f.type);
    store.AssignmentDifficulties.append("Normal");
    store.AssignmentEstTimes.append("00 : 30");
    store.AssignmentDescriptions.append(f.description);
    store.AssignmentDones.append(f.done);
    store.AssignmentGrades.append(" ");
    store.AssignmentWeights.append("1");
    store.AssignmentReminders.append(f.reminder);
    return row;
}

inline void addClass(RecordStore& store, const std::string& id, const std::string& name, const std::string& fore,
                     const std::string& back) {
    store.ClassIDs.append(id);
    store.ClassTermLinks.append("1");
    store.ClassNames.append(name);
    store.ClassForeColors.append(fore);
    store.ClassBackColors.append(back);
    store.ClassNotes.append("");
}

}  // namespace qh::test
