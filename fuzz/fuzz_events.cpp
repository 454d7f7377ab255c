// Events.txt of any bytes: the load keeps every record but the tombstones, in file order,
// and a record written over in place changes that record alone.
#include "common/day_number.h"
#include "memory_drive.h"
#include "record_checks.h"

using namespace qh;
using namespace qh::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const auto records = checkRecords(kEventsLayout, bytes);

    MemoryDrive drive;
    drive.put("Events.txt", bytes);
    if (!loadedClean(drive.loadAll(0), drive, "Events.txt")) return 0;
    const RecordStore& s = drive.store;
    require(s.NextEventRecord == int(records.size()) + 1, "the counter ends one past the whole records");
    std::vector<std::vector<std::string>> live;
    for (const auto& record : records)
        if (record[3] != "DELETED RECORD") live.push_back(record);
    requireRows({&s.EventRecordNos, &s.EventIDs, &s.EventDates, &s.EventDescriptions, &s.EventTypes, &s.EventTimes,
                 &s.EventRecurrences, &s.EventSameDates, &s.EventRepeatNumbers, &s.EventRepeatDays,
                 &s.EventRepeatDailies, &s.EventEnds, &s.EventEndDates, &s.EventNotes, &s.EventReminders},
                live, "a row for each live record");

    // The last whole record written back over itself from its row's values.
    if (records.empty()) return 0;
    const auto& v = records.back();
    bool datesRead = true;
    for (std::size_t d : {2, 12}) datesRead = datesRead && parseDateText(v[d]).has_value();
    drive.store.EventRecord = {v[0], v[1], v[2],  v[3],  v[4],  v[5],  v[6], v[7],
                               v[8], v[9], v[10], v[11], v[12], v[13], v[14]};
    const Int16 last = Int16(records.size());
    const bool saved = drive.records.SaveEvent(last);
    require(saved == datesRead, "a record is written exactly when its dates read as dates");
    require(drive.store.NextEventRecord == (saved ? last + 1 : last),
            "an overwrite puts the counter back, a failed one leaves it on the record");
    requireOverwriteAlone(kEventsLayout, bytes, drive.bytesOf("Events.txt"), records.size() - 1, saved, v);
    return 0;
}
