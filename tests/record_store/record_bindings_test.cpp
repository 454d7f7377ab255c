// Each record kind's binding against its file layout: a field left out or out of its
// place shows here by name. The bytes of loads and saves are checked by the file tests.
#include "record_store/record_bindings.h"

#include <gtest/gtest.h>

namespace qh {
namespace {

// The names of a layout's value fields, in order.
std::vector<std::string_view> valueFieldsOf(const RecordLayout& layout) {
    std::vector<std::string_view> names;
    for (const FieldSpec& field : layout.fields)
        if (field.kind != FieldKind::Reserved) names.push_back(field.name);
    return names;
}

template <class Buffer>
std::vector<std::string_view> boundFieldsOf(const RecordBinding<Buffer>& binding) {
    std::vector<std::string_view> names;
    for (const auto& field : binding.fields) names.push_back(field.field);
    return names;
}

TEST(RecordBindings, EveryKindBindsEachValueFieldOfItsFileInOrder) {
    EXPECT_EQ(boundFieldsOf(kTermBinding), valueFieldsOf(kTermsLayout));
    EXPECT_EQ(boundFieldsOf(kClassBinding), valueFieldsOf(kClassesLayout));
    EXPECT_EQ(boundFieldsOf(kAssignmentBinding), valueFieldsOf(kAssignmentsLayout));
    EXPECT_EQ(boundFieldsOf(kNoteBinding), valueFieldsOf(kNotesLayout));
    EXPECT_EQ(boundFieldsOf(kStudySessionBinding), valueFieldsOf(kStudySessionsLayout));
    EXPECT_EQ(boundFieldsOf(kEditStudySessionBinding), valueFieldsOf(kStudySessionsLayout));
    EXPECT_EQ(boundFieldsOf(kTaskBinding), valueFieldsOf(kTasksLayout));
    EXPECT_EQ(boundFieldsOf(kEventBinding), valueFieldsOf(kEventsLayout));
    EXPECT_EQ(kEventBinding.position("Description"), 3u);
    EXPECT_THROW((void)kTaskBinding.position("Grade"), std::invalid_argument);
    EXPECT_EQ(kNotesLayout.width("Text"), 1450);
    EXPECT_THROW((void)kAssignmentsLayout.width("Notes"), std::invalid_argument);
}

// An editor's record goes into the columns through the binding: appended as a new last
// row of every bound column, or over one row and no other.
TEST(RecordBindings, ARecordGoesIntoItsRowOfEveryBoundColumn) {
    const auto event = [](const std::string& tag) {
        return EventBuffer{tag + "no",    tag + "id",  tag + "date", tag + "desc",  tag + "type",
                           tag + "time",  tag + "rec", tag + "same", tag + "num",   tag + "day",
                           tag + "daily", tag + "end", tag + "endd", tag + "notes", tag + "rem"};
    };
    RecordStore store;
    kEventBinding.appendRow(store, event("a"));
    kEventBinding.appendRow(store, event("b"));
    kEventBinding.storeRow(store, 1, event("c"));
    for (TextColumn* column : kEventBinding.columns(store)) EXPECT_EQ(column->count(), 2);
    EXPECT_EQ(kEventBinding.valuesOfRow(store, 1), kEventBinding.valuesOf(event("c")));
    EXPECT_EQ(kEventBinding.valuesOfRow(store, 2), kEventBinding.valuesOf(event("b")));

    // A note's text has no column: only its number and link are appended.
    kNoteBinding.appendRow(store, NoteBuffer{"7", "3", "kept on disk"});
    EXPECT_EQ(store.NoteRecordNos.count(), 1);
    EXPECT_EQ(store.NoteLinkIDs(1), "3");
}

}  // namespace
}  // namespace qh
