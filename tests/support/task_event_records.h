#pragma once
// Records of Tasks.txt and Events.txt written out field by field, for tests to put on a
// drive and to compare a drive's files with.
#include <string>

namespace qh {

struct TaskFields {
    int recordNo = 1;
    std::string description = "", dateExists = "False", date = "", type = "None", priority = "None", done = "False",
                notes = "", reminder = "None";
};
std::string taskRecord(const TaskFields& task);

struct EventFields {
    int recordNo = 1;
    std::string date = "", description = "", type = "None", time = "None", recurrence = "None", sameDate = "True",
                repeatNumber = "", repeatDay = "", repeatDaily = "FFFFFFF", end = "False", endDate = "", notes = "",
                reminder = "None";
};
std::string eventRecord(const EventFields& event);

}  // namespace qh
