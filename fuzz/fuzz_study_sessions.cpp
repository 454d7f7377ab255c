// StudySessions.txt of any bytes: the load takes each session linked to a loaded
// assignment, once for each assignment row of that ID, and none linked "0".
#include "common/int16.h"
#include "memory_drive.h"
#include "record_checks.h"

using namespace qh;
using namespace qh::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const auto records = checkRecords(kStudySessionsLayout, bytes);

    MemoryDrive drive;
    drive.put("Terms.txt", recordOf(kTermsLayout, {"1", "Fall 2026", "2026/08/24", "2026/12/18"}));
    drive.put("Classes.txt", recordOf(kClassesLayout, {"1", "1", "Biology", "Black", "White", ""}));
    // Assignment 2 has two records (each at its own place), so its sessions come twice; 4
    // is deleted.
    std::string assignments;
    int place = 0;
    for (const char* id : {"1", "2", "3", "2", "4"})
        assignments += recordOf(kAssignmentsLayout, {std::to_string(++place), id, "1", "2026/11/20", "Quiz", "Easy",
                                                     "00 : 30", id[0] == '4' ? "DELETED RECORD" : "Chapter 4", "False",
                                                     " ", "5", "1 Day"});
    drive.put("Assignments.txt", assignments);
    drive.put("StudySessions.txt", bytes);
    if (!loadedClean(drive.loadAll(1), drive, "StudySessions.txt")) return 0;
    const RecordStore& s = drive.store;
    require(s.AssignmentIDs.count() == 4, "the live assignments are loaded");
    require(s.NextStudySessionRecord == int(records.size()) + 1, "the counter ends one past the whole records");

    std::vector<std::vector<std::string>> taken;
    for (const auto& record : records) {
        if (record[1] == "0") continue;
        const Int16 link = int16OrZero(record[1]);
        for (const char* id : {"1", "2", "3", "2"})
            if (int16OrZero(id) == link) taken.push_back(record);
    }
    requireRows({&s.StudySessionRecordNos, &s.StudySessionLinkIDs, &s.StudySessionLengths, &s.StudySessionDates}, taken,
                "a row for each session taken");
    return 0;
}
