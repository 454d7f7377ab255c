#include "export_fixture.h"

#include "recurrence/event_records.h"
#include "support/reference_files.h"

namespace qh::testing {
namespace {

std::string referencePath(const std::string& name) { return std::string(QH_SOURCE_DIR) + "/tests/export/reference/" + name; }

}  // namespace

void AddFixedPlanner(RecordStore& s) {
    addClass(s, 1, "Biology", "Black", "LightGreen");
    addClass(s, 2, "History & Civics", "White", "Navy");
    // 23 November: a done one first in the records, listed after the open one.
    addAssignment(s, {.classLink = 2, .date = "2026/11/23", .description = "INSERT the map ~ legend", .done = true,
                      .estimate = "00 : 45", .type = "Project"});
    addAssignment(s, {.classLink = 1, .date = "2026/11/23", .description = "Read <Hamlet> & take \"notes\"",
                      .estimate = "12 : 30", .difficulty = "Hard", .reminder = "2 Days"});
    // 25 November: six open ones; three are listed, the last line says "+3 more", all count.
    for (int i = 1; i <= 6; ++i)
        addAssignment(s, {.classLink = i % 2 + 1, .date = "2026/11/25",
                          .description = "Worksheet " + std::to_string(i), .estimate = "01 : 0" + std::to_string(i)});
    addAssignment(s, {.date = "2026/11/25", .description = kDeletedRecord});
    // In December, on a cell outside the month.
    addAssignment(s, {.classLink = 1, .date = "2026/12/02", .description = "Lab report", .estimate = "02 : 00"});
    addSession(s, 2, "01 : 15", "2026/11/20");
    addSession(s, 2, "00 : 30", "2026/11/22");
    addSession(s, -1, "03 : 00", "2026/11/20");  // a session of no assignment

    addTask(s, {.description = "Buy graph paper", .dated = false, .priority = "None"});
    addTask(s, {.description = "Return <library> book", .date = "2026/11/23", .type = "School", .priority = "High",
                .reminder = "2 Days"});
    addTask(s, {.description = "Call grandma", .date = "2026/11/23", .priority = "None", .done = true});
    addTask(s, {.description = "Clean out the garage before winter", .date = "2026/11/24"});

    const int chess = test::addEvent(s, {.date = "2026/11/04", .recurrence = "Day", .repeatDaily = "FFTFFFF",
                                         .type = "Club", .description = "Chess club"});
    s.EventTimes(chess) = "3:30 pm";
    test::addEvent(s, {.date = "2026/11/23", .type = "Family", .reminder = "3 Days",
                       .description = "Mom's birthday <party> & \"cake\""});
    test::addEvent(s, {.date = "2026/11/25", .description = kDeletedRecord});
}

std::string ReferenceBytes(const std::string& name) { return test::ReadBytes(referencePath(name)); }

std::string DiffWithReference(const std::string& name, const std::string& actual) {
    return test::DiffWithFile(referencePath(name), actual);
}

}  // namespace qh::testing
