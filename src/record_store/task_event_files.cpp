// Tasks.txt and Events.txt: all live records in memory, one record written at a time.
#include "record_store/record_bindings.h"
#include "record_store/record_files.h"
#include "record_store/record_io.h"

namespace qh {

bool RecordFiles::LoadTasks() {
    if (!enterDataDirectory()) return false;
    RecordStore& s = store_;
    const std::vector<TextColumn*> columns = kTaskBinding.columns(s);
    const std::size_t descriptionAt = kTaskBinding.position("Description");
    const bool read = runFileStep([&] {
        readRecords(kTaskBinding.layout, s.NextTaskRecord, columns, [&](const RecordView& r) {
            if (!r.valueIs(descriptionAt, kDeletedRecord)) r.appendTo(columns);
        });
    });
    if (!read) reportFileError("Tasks.txt", "reading");
    return read;
}

bool RecordFiles::SaveTask(Int16 RecordNumber) {
    return saveOne(kTaskBinding.layout, store_.NextTaskRecord, store_.TasksChanged, RecordNumber,
                   [&] { return kTaskBinding.valuesOf(store_.TaskRecord); });
}

bool RecordFiles::LoadEvents() {
    if (!enterDataDirectory()) return false;
    RecordStore& s = store_;
    const std::vector<TextColumn*> columns = kEventBinding.columns(s);
    const std::size_t descriptionAt = kEventBinding.position("Description");
    const bool read = runFileStep([&] {
        readRecords(kEventBinding.layout, s.NextEventRecord, columns, [&](const RecordView& r) {
            if (!r.valueIs(descriptionAt, kDeletedRecord)) r.appendTo(columns);
        });
    });
    if (!read) reportFileError("Events.txt", "reading");
    return read;
}

bool RecordFiles::SaveEvent(Int16 RecordNumber) {
    return saveOne(kEventBinding.layout, store_.NextEventRecord, store_.EventsChanged, RecordNumber,
                   [&] { return kEventBinding.valuesOf(store_.EventRecord); });
}

}  // namespace qh
