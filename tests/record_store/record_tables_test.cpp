// The kinds' tables as the loads, saves and editors use them: a record goes from its
// buffer into the file's bytes, the store's columns and back unchanged, field by field.
// Which column holds which field of a real file is checked by the file tests.
#include "record_store/record_tables.h"

#include <gtest/gtest.h>

namespace qh {
namespace {

// A buffer whose every field holds a value of its own that fits its width: the field's
// name cut to the width, or for a date a day told apart by the field's place.
template <class Buffer>
Buffer distinctBuffer(const RecordTable<Buffer>& table) {
    Buffer buffer;
    int place = 0;
    for (const RecordField<Buffer>& f : table.fields) {
        ++place;
        const Date day = dateFromYmd(2026, 11, place);
        if (f.day)
            buffer.*f.day = day;
        else if (f.text && f.kind == FieldKind::Date)
            buffer.*f.text = dateText(day);
        else if (f.text)
            buffer.*f.text = std::string(f.name.substr(0, std::size_t(f.width)));
    }
    return buffer;
}

// A record through its file bytes and through a row of the store comes back as it went in:
// no field is lost, moved to another's member or column, or cut. Buffers are compared as
// their values, in file order, so that a mismatch names the field.
template <class Buffer>
void checkRoundTrips(const RecordTable<Buffer>& table) {
    SCOPED_TRACE(std::string(table.layout.fileName));
    const auto values = [&](const Buffer& buffer) { return table.valuesOf(buffer); };
    const Buffer record = distinctBuffer(table);
    const std::string bytes = buildRecord(table.layout, values(record));
    ASSERT_EQ(int(bytes.size()), table.layout.length);
    EXPECT_EQ(values(table.bufferOf(parseRecord(table.layout, bytes))), values(record));

    // Fields that no column holds stay on disk: a row gives them empty.
    Buffer held = record;
    for (const RecordField<Buffer>& f : table.fields)
        if (f.text && !f.column) (held.*f.text).clear();
    RecordStore store;
    table.appendRow(store, Buffer{});
    table.appendRow(store, Buffer{});
    table.storeRow(store, 1, record);
    table.appendRow(store, record);
    EXPECT_EQ(values(table.rowOf(store, 1)), values(held));
    EXPECT_EQ(values(table.rowOf(store, 2)), values(Buffer{}));
    EXPECT_EQ(values(table.rowOf(store, 3)), values(held));
    for (TextColumn* column : table.columns(store)) EXPECT_EQ(column->count(), 3);
}

TEST(RecordTables, EveryKindsRecordRoundTripsThroughItsBytesAndItsRow) {
    checkRoundTrips(kTermTable);
    checkRoundTrips(kClassTable);
    checkRoundTrips(kAssignmentTable);
    checkRoundTrips(kNoteTable);
    checkRoundTrips(kStudySessionTable);
    checkRoundTrips(kEditStudySessionTable);
    checkRoundTrips(kTaskTable);
    checkRoundTrips(kEventTable);
}

// An editor's texts are kept as the file will hold them: cut to the field's width in
// code-page bytes (one byte for "é"), trailing blanks gone; the due day is left alone.
TEST(RecordTables, AStoredBufferHoldsEachTextAsItsFieldWill) {
    AssignmentBuffer typed;
    typed.Description = std::string(48, 'x') + "éé€";
    typed.Weight = "10  ";
    typed.Grade = "A+";
    typed.DateValue = dateFromYmd(2026, 11, 30);
    const AssignmentBuffer stored = kAssignmentTable.asStored(typed);
    EXPECT_EQ(stored.Description, std::string(48, 'x') + "éé");
    EXPECT_EQ(stored.Weight, "10");
    EXPECT_EQ(stored.Grade, "A+");
    EXPECT_EQ(stored.DateValue, typed.DateValue);
    const auto values = [](const AssignmentBuffer& buffer) { return kAssignmentTable.valuesOf(buffer); };
    EXPECT_EQ(parseRecord(kAssignmentsLayout, buildRecord(kAssignmentsLayout, values(typed))), values(stored));
}

}  // namespace
}  // namespace qh
