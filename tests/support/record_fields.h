#pragma once
// Records of the homework, task and event files written out field by field, for tests to
// put on a drive and to compare a drive's files with.
#include <string>

namespace qh {

// Pads a field with blanks (or cuts it) to its width.
std::string padField(const std::string& value, std::size_t width);

// An Assignments.txt record; the defaults are those of a new assignment saved as it opens.
struct AssignmentFields {
    int recordNo = 1, classLink = 1;
    std::string date = "", type = "Assignment", difficulty = "Average", estTime = "00 : 30", description = "",
                done = "False", grade = " ", weight = "5", reminder = "1 Day";
};
std::string assignmentRecord(const AssignmentFields& assignment);
// A Notes.txt record: its number, the assignment it belongs to, the text.
std::string noteRecord(int recordNo, int link, const std::string& text);
// A StudySessions.txt record: its number, the assignment it belongs to ("-1" once
// deleted), its length and date.
std::string sessionRecord(int recordNo, const std::string& link, const std::string& length, const std::string& date);

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
