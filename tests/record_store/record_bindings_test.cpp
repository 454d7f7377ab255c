// Each record kind's binding against its file layout and against the record store: a
// field wired to the wrong column or buffer member shows here by name.
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
}

// A record saved from a buffer whose every member holds its own name, then loaded into
// the store's columns: each column holds its field's member. Dates and flags hold what
// their fields take.
template <class Buffer>
void expectRoundTrip(const RecordBinding<Buffer>& binding, const Buffer& buffer,
                     const std::vector<std::pair<TextColumn RecordStore::*, std::string>>& expected) {
    RecordStore store;
    RecordView record(binding.layout);
    const std::string bytes = buildRecord(binding.layout, binding.valuesOf(buffer));
    record.reset(bytes);
    record.appendTo(binding.columns(store));
    for (const auto& [column, text] : expected) EXPECT_EQ((store.*column)(1), text);
}

TEST(RecordBindings, ABufferSavedAndLoadedLandsInTheColumnsOfItsFields) {
    using S = RecordStore;
    AssignmentBuffer a{"1",       "2",
                       "3",       dateFromYmd(2026, 11, 21),
                       "Type",    "Difficulty level",
                       "EstTime", "Description",
                       "Done",    "Grade",
                       "100",     "Reminder"};
    expectRoundTrip(kAssignmentBinding, a,
                    {{&S::AssignmentRecordNos, "1"},
                     {&S::AssignmentIDs, "2"},
                     {&S::AssignmentClassLinks, "3"},
                     {&S::AssignmentDates, "2026/11/21"},
                     {&S::AssignmentTypes, "Type"},
                     {&S::AssignmentDifficulties, "Difficulty"},  // cut to its width of 10
                     {&S::AssignmentEstTimes, "EstTime"},
                     {&S::AssignmentDescriptions, "Description"},
                     {&S::AssignmentDones, "Done"},
                     {&S::AssignmentGrades, "Grade"},
                     {&S::AssignmentWeights, "100"},
                     {&S::AssignmentReminders, "Reminder"}});
    TaskBuffer t{"1", "2", "2026/11/21", "Description", "True", "Type", "Priority", "False", "Notes", "Reminder"};
    expectRoundTrip(kTaskBinding, t,
                    {{&S::TaskRecordNos, "1"},
                     {&S::TaskIDs, "2"},
                     {&S::TaskDescriptions, "Description"},
                     {&S::TaskDateExists, "True"},
                     {&S::TaskDates, "2026/11/21"},
                     {&S::TaskTypes, "Type"},
                     {&S::TaskPriorities, "Priority"},
                     {&S::TaskDones, "False"},
                     {&S::TaskNotes, "Notes"},
                     {&S::TaskReminders, "Reminder"}});
    EventBuffer e{"1",      "2",       "2026/11/21", "Description", "Type",       "Time",  "Month",   "True",
                  "Second", "Tuesday", "FTFTFTF",    "True",        "2027/01/05", "Notes", "Reminder"};
    expectRoundTrip(kEventBinding, e,
                    {{&S::EventRecordNos, "1"},
                     {&S::EventIDs, "2"},
                     {&S::EventDates, "2026/11/21"},
                     {&S::EventDescriptions, "Description"},
                     {&S::EventTypes, "Type"},
                     {&S::EventTimes, "Time"},
                     {&S::EventRecurrences, "Month"},
                     {&S::EventSameDates, "True"},
                     {&S::EventRepeatNumbers, "Second"},
                     {&S::EventRepeatDays, "Tuesday"},
                     {&S::EventRepeatDailies, "FTFTFTF"},
                     {&S::EventEnds, "True"},
                     {&S::EventEndDates, "2027/01/05"},
                     {&S::EventNotes, "Notes"},
                     {&S::EventReminders, "Reminder"}});
    // A note's text stays on disk: the load keeps its number and link only.
    NoteBuffer n{"7", "8", "Text"};
    EXPECT_EQ(kNoteBinding.columns(*std::make_unique<RecordStore>()).size(), 2u);
    expectRoundTrip(kNoteBinding, n, {{&S::NoteRecordNos, "7"}, {&S::NoteLinkIDs, "8"}});
}

}  // namespace
}  // namespace qh
