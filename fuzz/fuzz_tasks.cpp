// Tasks.txt of any bytes: the load keeps every record but the tombstones, in file order,
// and a record written over in place changes that record alone.
#include "common/day_number.h"
#include "memory_drive.h"
#include "record_checks.h"

using namespace qh;
using namespace qh::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const auto records = checkRecords(kTasksLayout, bytes);

    MemoryDrive drive;
    drive.put("Tasks.txt", bytes);
    if (!loadedClean(drive.loadAll(0), drive, "Tasks.txt")) return 0;
    const RecordStore& s = drive.store;
    require(s.NextTaskRecord == int(records.size()) + 1, "the counter ends one past the whole records");
    std::vector<std::vector<std::string>> live;
    for (const auto& record : records)
        if (record[2] != "DELETED RECORD") live.push_back(record);
    requireRows({&s.TaskRecordNos, &s.TaskIDs, &s.TaskDescriptions, &s.TaskDateExists, &s.TaskDates, &s.TaskTypes,
                 &s.TaskPriorities, &s.TaskDones, &s.TaskNotes, &s.TaskReminders},
                live, "a row for each live record");

    // The last whole record written back over itself from its row's values.
    if (records.empty()) return 0;
    const auto& v = records.back();
    bool datesRead = true;
    for (std::size_t d : {4}) datesRead = datesRead && parseDateText(v[d]).has_value();
    drive.store.TaskRecord = {v[0], v[1], v[4], v[2], v[3], v[5], v[6], v[7], v[8], v[9]};
    const Int16 last = Int16(records.size());
    const bool saved = drive.records.SaveTask(last);
    require(saved == datesRead, "a record is written exactly when its dates read as dates");
    require(drive.store.NextTaskRecord == (saved ? last + 1 : last),
            "an overwrite puts the counter back, a failed one leaves it on the record");
    requireOverwriteAlone(kTasksLayout, bytes, drive.bytesOf("Tasks.txt"), records.size() - 1, saved, v);
    return 0;
}
