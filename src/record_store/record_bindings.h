#pragma once
// Each record kind's values bound once. For every value field of a record file
// (record_layout.h), in the file's order: the column of the record store a load appends it
// to and, for the kinds saved one record at a time, how the kind's record buffer gives
// it. The loads and saves read these tables rather than listing the fields by hand, and a
// field's place among the values is found by its name.
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "record_store/columns.h"
#include "record_store/record_layout.h"

namespace qh {

// The kinds saved from their columns, all rows at once, have no record buffer.
struct NoBuffer {};

template <class Buffer>
struct FieldBinding {
    std::string_view field;                    // the layout's name of the field
    TextColumn RecordStore::*column;           // where a load appends it; nullptr: it stays on disk
    std::string (*fromBuffer)(const Buffer&);  // what a save of one record writes; nullptr without a buffer
};

template <class Buffer>
struct RecordBinding {
    const RecordLayout& layout;
    std::span<const FieldBinding<Buffer>> fields;

    // The store's columns of the leading fields that have one, in file order, as a load
    // appends a record's values to them.
    std::vector<TextColumn*> columns(RecordStore& store) const;
    // The values of one record from the buffer, in file order.
    std::vector<std::string> valuesOf(const Buffer& buffer) const;
    // A record from the buffer as a new last row of the store's columns, or over row `row`
    // (record number and ID included); fields without a column are left out.
    void appendRow(RecordStore& store, const Buffer& buffer) const;
    void storeRow(RecordStore& store, int row, const Buffer& buffer) const;
    // The values of row `row` of the store's columns, in file order.
    std::vector<std::string> valuesOfRow(const RecordStore& store, int row) const;
    // The place of a field among the values (reserved fields not counted); an unknown
    // name is a programming error (std::invalid_argument).
    std::size_t position(std::string_view field) const;
};

extern const RecordBinding<NoBuffer> kTermBinding;
extern const RecordBinding<NoBuffer> kClassBinding;
extern const RecordBinding<AssignmentBuffer> kAssignmentBinding;
extern const RecordBinding<NoteBuffer> kNoteBinding;
extern const RecordBinding<NoBuffer> kStudySessionBinding;
// A study session as the assignment editor saves it: from its own session columns.
extern const RecordBinding<NoBuffer> kEditStudySessionBinding;
extern const RecordBinding<TaskBuffer> kTaskBinding;
extern const RecordBinding<EventBuffer> kEventBinding;

}  // namespace qh
