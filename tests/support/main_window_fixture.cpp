#include "support/main_window_fixture.h"

#include "support/record_fields.h"

namespace qh {
namespace {

// Pads a field with blanks (or cuts it) to its width.
std::string field(const std::string& value, std::size_t width) {
    std::string text = value.substr(0, width);
    text.resize(width, ' ');
    return text;
}

}  // namespace

std::string termRecord(int id, const std::string& name, const std::string& start, const std::string& end) {
    return field(std::to_string(id), 5) + field(name, 35) + field(start, 15) + field(end, 15) + std::string(30, ' ');
}

std::string classRecord(int id, int termLink, const std::string& name, const std::string& fore,
                        const std::string& back) {
    return field(std::to_string(id), 5) + field(std::to_string(termLink), 5) + field(name, 25) + field(fore, 20) +
           field(back, 20) + field("", 500) + std::string(40, ' ');
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
