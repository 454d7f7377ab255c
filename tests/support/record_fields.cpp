#include "support/record_fields.h"

namespace qh {

std::string padField(const std::string& value, std::size_t width) {
    std::string text = value.substr(0, width);
    text.resize(width, ' ');
    return text;
}

std::string assignmentRecord(const AssignmentFields& a) {
    const std::string number = std::to_string(a.recordNo);
    return padField(number, 5) + padField(number, 5) + padField(std::to_string(a.classLink), 5) + padField(a.date, 15) +
           padField(a.type, 10) + padField(a.difficulty, 10) + padField(a.estTime, 7) + padField(a.description, 50) +
           padField(a.done, 5) + padField(a.grade, 5) + padField(a.weight, 3) + padField(a.reminder, 20) +
           std::string(20, '\0');
}

std::string noteRecord(int recordNo, int link, const std::string& text) {
    return padField(std::to_string(recordNo), 5) + padField(std::to_string(link), 5) + std::string(40, '\0') +
           padField(text, 1450);
}

std::string sessionRecord(int recordNo, const std::string& link, const std::string& length, const std::string& date) {
    return padField(std::to_string(recordNo), 5) + padField(link, 5) + padField(length, 10) + padField(date, 15) +
           std::string(20, '\0');
}

std::string taskRecord(const TaskFields& t) {
    const std::string number = std::to_string(t.recordNo);
    return padField(number, 5) + padField(number, 5) + padField(t.description, 60) + padField(t.dateExists, 5) +
           padField(t.date, 15) + padField(t.type, 10) + padField(t.priority, 10) + padField(t.done, 5) +
           padField(t.notes, 845) + padField(t.reminder, 20) + std::string(20, '\0');
}

std::string eventRecord(const EventFields& e) {
    const std::string number = std::to_string(e.recordNo);
    return padField(number, 5) + padField(number, 5) + padField(e.date, 15) + padField(e.description, 60) +
           padField(e.type, 10) + padField(e.time, 10) + padField(e.recurrence, 5) + padField(e.sameDate, 5) +
           padField(e.repeatNumber, 10) + padField(e.repeatDay, 10) + padField(e.repeatDaily, 10) + padField(e.end, 5) +
           padField(e.endDate, 15) + padField(e.notes, 795) + padField(e.reminder, 20) + std::string(20, '\0');
}

}  // namespace qh
