#include "support/record_fields.h"

namespace qh {
namespace {

std::string field(const std::string& value, std::size_t width) {
    std::string text = value.substr(0, width);
    text.resize(width, ' ');
    return text;
}

}  // namespace

std::string assignmentRecord(const AssignmentFields& a) {
    const std::string number = std::to_string(a.recordNo);
    return field(number, 5) + field(number, 5) + field(std::to_string(a.classLink), 5) + field(a.date, 15) +
           field(a.type, 10) + field(a.difficulty, 10) + field(a.estTime, 7) + field(a.description, 50) +
           field(a.done, 5) + field(a.grade, 5) + field(a.weight, 3) + field(a.reminder, 20) + std::string(20, '\0');
}

std::string noteRecord(int recordNo, int link, const std::string& text) {
    return field(std::to_string(recordNo), 5) + field(std::to_string(link), 5) + std::string(40, '\0') +
           field(text, 1450);
}

std::string sessionRecord(int recordNo, const std::string& link, const std::string& length, const std::string& date) {
    return field(std::to_string(recordNo), 5) + field(link, 5) + field(length, 10) + field(date, 15) +
           std::string(20, '\0');
}

std::string taskRecord(const TaskFields& t) {
    const std::string number = std::to_string(t.recordNo);
    return field(number, 5) + field(number, 5) + field(t.description, 60) + field(t.dateExists, 5) + field(t.date, 15) +
           field(t.type, 10) + field(t.priority, 10) + field(t.done, 5) + field(t.notes, 845) + field(t.reminder, 20) +
           std::string(20, '\0');
}

std::string eventRecord(const EventFields& e) {
    const std::string number = std::to_string(e.recordNo);
    return field(number, 5) + field(number, 5) + field(e.date, 15) + field(e.description, 60) + field(e.type, 10) +
           field(e.time, 10) + field(e.recurrence, 5) + field(e.sameDate, 5) + field(e.repeatNumber, 10) +
           field(e.repeatDay, 10) + field(e.repeatDaily, 10) + field(e.end, 5) + field(e.endDate, 15) +
           field(e.notes, 795) + field(e.reminder, 20) + std::string(20, '\0');
}

}  // namespace qh
