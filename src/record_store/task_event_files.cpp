// Tasks.txt and Events.txt: all live records in memory, one record written at a time.
#include "record_store/record_tables.h"
#include "record_store/record_files.h"
#include "record_store/record_io.h"

namespace qh {

bool RecordFiles::LoadTasks() {
    if (!enterDataDirectory()) return false;
    RecordStore& s = store_;
    const std::vector<TextColumn*> columns = kTaskTable.columns(s);
    constexpr std::size_t descriptionAt = kTaskTable.position("Description");
    const bool read = runFileStep([&] {
        readRecords(kTaskTable.layout, s.NextTaskRecord, columns, [&](const RecordView& r) {
            if (!r.valueIs(descriptionAt, kDeletedRecord)) r.appendTo(columns);
        });
    });
    if (!read) reportFileError("Tasks.txt", "reading");
    return read;
}

bool RecordFiles::SaveTask(Int16 RecordNumber) {
    return saveOne(kTaskTable.layout, store_.NextTaskRecord, store_.TasksChanged, RecordNumber,
                   [&] { return kTaskTable.valuesOf(store_.TaskRecord); });
}

bool RecordFiles::LoadEvents() {
    if (!enterDataDirectory()) return false;
    RecordStore& s = store_;
    const std::vector<TextColumn*> columns = kEventTable.columns(s);
    constexpr std::size_t descriptionAt = kEventTable.position("Description");
    const bool read = runFileStep([&] {
        readRecords(kEventTable.layout, s.NextEventRecord, columns, [&](const RecordView& r) {
            if (!r.valueIs(descriptionAt, kDeletedRecord)) r.appendTo(columns);
        });
    });
    if (!read) reportFileError("Events.txt", "reading");
    return read;
}

bool RecordFiles::SaveEvent(Int16 RecordNumber) {
    return saveOne(kEventTable.layout, store_.NextEventRecord, store_.EventsChanged, RecordNumber,
                   [&] { return kEventTable.valuesOf(store_.EventRecord); });
}

}  // namespace qh
