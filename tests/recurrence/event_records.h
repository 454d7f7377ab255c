#pragma once
// Builds Event rows in a record store the way the event editor leaves them, so a test
// names only what it is about.
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

}  // namespace qh::test
