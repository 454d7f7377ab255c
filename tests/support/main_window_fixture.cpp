#include "support/main_window_fixture.h"

#include "support/record_fields.h"

namespace qh {

std::string termRecord(int id, const std::string& name, const std::string& start, const std::string& end) {
    return padField(std::to_string(id), 5) + padField(name, 35) + padField(start, 15) + padField(end, 15) +
           std::string(30, ' ');
}

std::string classRecord(int id, int termLink, const std::string& name, const std::string& fore,
                        const std::string& back) {
    return padField(std::to_string(id), 5) + padField(std::to_string(termLink), 5) + padField(name, 25) +
           padField(fore, 20) + padField(back, 20) + padField("", 500) + std::string(40, ' ');
}

std::string assignmentRecord(int recordNo, int classLink, const std::string& date, const std::string& description,
                             bool done, const std::string& estTime) {
    return assignmentRecord(AssignmentFields{.recordNo = recordNo,
                                             .classLink = classLink,
                                             .date = date,
                                             .type = "Homework",
                                             .difficulty = "Medium",
                                             .estTime = estTime,
                                             .description = description,
                                             .done = done ? "True" : "False",
                                             .weight = "100",
                                             .reminder = "None"});
}

}  // namespace qh
