#include "record_store/record_tables.h"

#include "common/text.h"

namespace qh {

template <class Buffer>
std::vector<TextColumn*> RecordTable<Buffer>::columns(RecordStore& store) const {
    std::vector<TextColumn*> found;
    for (const RecordField<Buffer>& f : fields) {
        if (!f.holdsValue()) continue;
        if (!f.column) break;
        found.push_back(&(store.*f.column));
    }
    return found;
}

template <class Buffer>
std::vector<std::string> RecordTable<Buffer>::valuesOf(const Buffer& buffer) const {
    std::vector<std::string> values;
    values.reserve(fields.size());
    for (const RecordField<Buffer>& f : fields) {
        if (f.text)
            values.push_back(buffer.*f.text);
        else if (f.day)
            values.push_back(dateText(buffer.*f.day));
    }
    return values;
}

template <class Buffer>
Buffer RecordTable<Buffer>::bufferOf(std::vector<std::string> values) const {
    Buffer buffer;
    std::size_t next = 0;
    for (const RecordField<Buffer>& f : fields) {
        if (!f.holdsValue()) continue;
        std::string& value = values.at(next++);
        if (f.text)
            buffer.*f.text = std::move(value);
        else
            buffer.*f.day = parseDateText(value).value_or(0);
    }
    return buffer;
}

template <class Buffer>
Buffer RecordTable<Buffer>::rowOf(const RecordStore& store, int row) const {
    Buffer buffer;
    for (const RecordField<Buffer>& f : fields) {
        if (!f.column) continue;
        const std::string& value = (store.*f.column)(row);
        if (f.text)
            buffer.*f.text = value;
        else
            buffer.*f.day = parseDateText(repairDateSeparators(value)).value_or(0);
    }
    return buffer;
}

template <class Buffer>
void RecordTable<Buffer>::appendRow(RecordStore& store, const Buffer& buffer) const {
    for (const RecordField<Buffer>& f : fields) {
        if (!f.column) continue;
        (store.*f.column).append(f.text ? buffer.*f.text : dateText(buffer.*f.day));
    }
}

template <class Buffer>
void RecordTable<Buffer>::storeRow(RecordStore& store, int row, const Buffer& buffer) const {
    for (const RecordField<Buffer>& f : fields) {
        if (!f.column) continue;
        (store.*f.column)(row) = f.text ? buffer.*f.text : dateText(buffer.*f.day);
    }
}

template <class Buffer>
Buffer RecordTable<Buffer>::asStored(Buffer buffer) const {
    for (const RecordField<Buffer>& f : fields)
        if (f.text && f.kind == FieldKind::Text) buffer.*f.text = storedText(f.width, buffer.*f.text);
    return buffer;
}

template struct RecordTable<TermBuffer>;
template struct RecordTable<ClassBuffer>;
template struct RecordTable<AssignmentBuffer>;
template struct RecordTable<NoteBuffer>;
template struct RecordTable<StudySessionBuffer>;
template struct RecordTable<TaskBuffer>;
template struct RecordTable<EventBuffer>;

}  // namespace qh
