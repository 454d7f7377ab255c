// Assignments.txt of any bytes: the load takes exactly the live records of the active
// term's live classes, once for each class row of that ID, and the sessions linked to
// what it took.
#include "common/int16.h"
#include "memory_drive.h"
#include "record_checks.h"

using namespace qh;
using namespace qh::fuzz;

namespace {

// Term 1 is active. Class 2 has two rows, class 4 is deleted and class 3 is another term's.
const std::vector<std::vector<std::string>> kClasses = {{"1", "1", "Biology", "Black", "White", ""},
                                                        {"2", "1", "Chemistry", "Black", "White", ""},
                                                        {"3", "2", "History", "Black", "White", ""},
                                                        {"4", "1", "DELETED RECORD", "Black", "White", ""},
                                                        {"2", "1", "Chemistry again", "Black", "White", ""}};
const std::vector<std::vector<std::string>> kSessions = {
    {"1", "1", "00 : 30", "2026/11/01"}, {"2", "2", "01 : 00", "2026/11/02"}, {"3", "-1", "", "2026/11/03"},
    {"4", "0", "00 : 15", "2026/11/04"}, {"5", "3", "00 : 45", "2026/11/05"}, {"6", "02", "00 : 20", "2026/11/06"}};

int classRowsOf(Int16 id) {
    int rows = 0;
    for (const auto& c : kClasses)
        if (int16OrZero(c[0]) == id && int16OrZero(c[1]) == 1 && c[2] != "DELETED RECORD") ++rows;
    return rows;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const auto records = checkRecords(kAssignmentsLayout, bytes);

    MemoryDrive drive;
    drive.put("Terms.txt", recordOf(kTermsLayout, {"1", "Fall 2026", "2026/08/24", "2026/12/18"}) +
                               recordOf(kTermsLayout, {"2", "Spring 2027", "2027/01/11", "2027/05/07"}));
    std::string classes, sessions;
    for (const auto& c : kClasses) classes += recordOf(kClassesLayout, c);
    for (const auto& v : kSessions) sessions += recordOf(kStudySessionsLayout, v);
    drive.put("Classes.txt", classes);
    drive.put("Assignments.txt", bytes);
    drive.put("StudySessions.txt", sessions);
    if (!loadedClean(drive.loadAll(1), drive, "Assignments.txt")) return 0;
    const RecordStore& s = drive.store;
    require(s.NextAssignmentRecord == int(records.size()) + 1, "the counter ends one past the whole records");

    // What the rules take, worked out row by row.
    std::vector<std::vector<std::string>> taken;
    for (const auto& record : records) {
        if (record[7] == "DELETED RECORD") continue;
        for (int n = classRowsOf(int16OrZero(record[2])); n > 0; --n) taken.push_back(record);
    }
    requireRows({&s.AssignmentRecordNos, &s.AssignmentIDs, &s.AssignmentClassLinks, &s.AssignmentDates,
                 &s.AssignmentTypes, &s.AssignmentDifficulties, &s.AssignmentEstTimes, &s.AssignmentDescriptions,
                 &s.AssignmentDones, &s.AssignmentGrades, &s.AssignmentWeights, &s.AssignmentReminders},
                taken, "a row for each record taken");

    int expectedSessions = 0;
    for (const auto& v : kSessions) {
        if (v[1] == "0") continue;
        for (const std::string& id : s.AssignmentIDs)
            if (int16OrZero(id) == int16OrZero(v[1])) ++expectedSessions;
    }
    require(s.StudySessionRecordNos.count() == expectedSessions && s.StudySessionDates.count() == expectedSessions,
            "the sessions of the assignments taken, once for each row of their link");
    require(s.NextStudySessionRecord == int(kSessions.size()) + 1, "every session is counted");
    return 0;
}
