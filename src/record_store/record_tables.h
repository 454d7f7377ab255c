#pragma once
// Each record kind's fields, named once. One table per kind lists every field of its file
// in file order with its width, how it converts (text, date, reserved), the member of the
// kind's record buffer that holds it and the column of the record store a load appends it
// to. The file layouts (record_layout.h) are made from these tables, and the loads, the
// saves, the editors' hand-over and the shared record files read them; a field is found
// by its name when the code is compiled, so a misspelt one does not build.
//
// Adding a field to a kind: its member in the kind's buffer and its column in RecordStore
// (columns.h), and its line in the kind's table below.
#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "record_store/columns.h"
#include "record_store/record_layout.h"

namespace qh {

// Where a field lies in a record's bytes.
struct FieldPlace {
    std::size_t offset = 0, width = 0;
};

template <class Buffer>
struct RecordField {
    std::string_view name;
    int width = 0;
    FieldKind kind = FieldKind::Reserved;
    std::string Buffer::*text = nullptr;        // the buffer's text of the field, or
    Date Buffer::*day = nullptr;                // its day, which the file holds as a date
    TextColumn RecordStore::*column = nullptr;  // where a load appends it; none: it stays on disk

    constexpr bool holdsValue() const { return kind != FieldKind::Reserved; }
};

// The lines of a kind's table.
template <class Buffer>
struct FieldsOf {
    using Field = RecordField<Buffer>;
    using Column = TextColumn RecordStore::*;
    static constexpr Field text(std::string_view name, int width, std::string Buffer::*member, Column column) {
        return {name, width, FieldKind::Text, member, nullptr, column};
    }
    // A text of the note's kind that no column holds.
    static constexpr Field textOnDisk(std::string_view name, int width, std::string Buffer::*member) {
        return {name, width, FieldKind::Text, member, nullptr, nullptr};
    }
    static constexpr Field date(std::string_view name, int width, std::string Buffer::*member, Column column) {
        return {name, width, FieldKind::Date, member, nullptr, column};
    }
    static constexpr Field day(std::string_view name, int width, Date Buffer::*member, Column column) {
        return {name, width, FieldKind::Date, nullptr, member, column};
    }
    static constexpr Field reserved(int width) { return {"reserved", width, FieldKind::Reserved}; }
};

// A kind's table with the layout made from it.
template <class Buffer>
struct RecordTable {
    const RecordLayout& layout;
    std::span<const RecordField<Buffer>> fields;

    // The place of a value field among a record's values (reserved fields not counted) and
    // its width; an unknown name does not compile.
    consteval std::size_t position(std::string_view name) const {
        std::size_t n = 0;
        for (const RecordField<Buffer>& f : fields) {
            if (!f.holdsValue()) continue;
            if (f.name == name) return n;
            ++n;
        }
        throw "no such field";
    }
    consteval int width(std::string_view name) const { return int(place(name).width); }
    consteval FieldPlace place(std::string_view name) const {
        std::size_t offset = 0;
        for (const RecordField<Buffer>& f : fields) {
            if (f.holdsValue() && f.name == name) return {offset, std::size_t(f.width)};
            offset += std::size_t(f.width);
        }
        throw "no such field";
    }

    // The store's columns of the leading fields that have one, in file order, as a load
    // appends a record's values to them.
    std::vector<TextColumn*> columns(RecordStore& store) const;
    // The values of one record, in file order: a day as its date's text.
    std::vector<std::string> valuesOf(const Buffer& buffer) const;
    // The buffer of one record's values, as parseRecord gives them.
    Buffer bufferOf(std::vector<std::string> values) const;
    // Row `row` of the store's columns as a buffer (fields without a column left empty; a
    // day that is no date is 0).
    Buffer rowOf(const RecordStore& store, int row) const;
    // The buffer as a new last row of the store's columns, or over row `row`; fields
    // without a column are left out.
    void appendRow(RecordStore& store, const Buffer& buffer) const;
    void storeRow(RecordStore& store, int row, const Buffer& buffer) const;
    // The buffer with every text as its field of the file holds it (storedText).
    Buffer asStored(Buffer buffer) const;
};

// The record buffers of the kinds that are saved from their columns.
struct TermBuffer {
    std::string ID, Name, Start, End;
};
struct ClassBuffer {
    std::string ID, TermLink, Name, ForeColor, BackColor, Notes;
};
struct StudySessionBuffer {
    std::string RecordNo, LinkID, Length, Date;
};

namespace record_fields {

template <class Buffer, std::size_t N>
constexpr std::array<FieldSpec, N> specsOf(const RecordField<Buffer> (&fields)[N]) {
    std::array<FieldSpec, N> specs{};
    for (std::size_t i = 0; i < N; ++i) specs[i] = {fields[i].name, fields[i].width, fields[i].kind};
    return specs;
}

template <std::size_t N>
constexpr int lengthOf(const std::array<FieldSpec, N>& specs) {
    int length = 0;
    for (const FieldSpec& spec : specs) length += spec.width;
    return length;
}

// The same fields bound to other columns of the store, given in the order of the value
// fields: one for each of them.
template <class Buffer, std::size_t N, std::size_t M>
constexpr std::array<RecordField<Buffer>, N> withColumns(const RecordField<Buffer> (&fields)[N],
                                                         const std::array<TextColumn RecordStore::*, M>& columns) {
    std::array<RecordField<Buffer>, N> bound{};
    std::size_t next = 0;
    for (std::size_t i = 0; i < N; ++i) {
        bound[i] = fields[i];
        if (fields[i].holdsValue()) bound[i].column = columns.at(next++);
    }
    if (next != M) throw "one column for each value field";
    return bound;
}

using S = RecordStore;

using Te = FieldsOf<TermBuffer>;
using Tb = TermBuffer;
inline constexpr RecordField<Tb> kTerm[] = {
    Te::text("ID", 5, &Tb::ID, &S::TermIDs),          Te::text("Name", 35, &Tb::Name, &S::TermNames),
    Te::date("Start", 15, &Tb::Start, &S::TermStarts), Te::date("End", 15, &Tb::End, &S::TermEnds),
    Te::reserved(15),                                  Te::reserved(15),
};

using Cl = FieldsOf<ClassBuffer>;
using Cb = ClassBuffer;
inline constexpr RecordField<Cb> kClass[] = {
    Cl::text("ID", 5, &Cb::ID, &S::ClassIDs),
    Cl::text("TermLink", 5, &Cb::TermLink, &S::ClassTermLinks),
    Cl::text("Name", 25, &Cb::Name, &S::ClassNames),
    Cl::text("ForeColor", 20, &Cb::ForeColor, &S::ClassForeColors),
    Cl::text("BackColor", 20, &Cb::BackColor, &S::ClassBackColors),
    Cl::text("Notes", 500, &Cb::Notes, &S::ClassNotes),
    Cl::reserved(20),
    Cl::reserved(20),
};

using As = FieldsOf<AssignmentBuffer>;
using Ab = AssignmentBuffer;
inline constexpr RecordField<Ab> kAssignment[] = {
    As::text("RecordNo", 5, &Ab::RecordNo, &S::AssignmentRecordNos),
    As::text("ID", 5, &Ab::ID, &S::AssignmentIDs),
    As::text("ClassLink", 5, &Ab::ClassLink, &S::AssignmentClassLinks),
    // The editor hands the due date over as a day.
    As::day("Date", 15, &Ab::DateValue, &S::AssignmentDates),
    As::text("Type", 10, &Ab::Type, &S::AssignmentTypes),
    As::text("Difficulty", 10, &Ab::Difficulty, &S::AssignmentDifficulties),
    As::text("EstTime", 7, &Ab::EstTime, &S::AssignmentEstTimes),
    As::text("Description", 50, &Ab::Description, &S::AssignmentDescriptions),
    As::text("Done", 5, &Ab::Done, &S::AssignmentDones),
    As::text("Grade", 5, &Ab::Grade, &S::AssignmentGrades),
    As::text("Weight", 3, &Ab::Weight, &S::AssignmentWeights),
    As::text("Reminder", 20, &Ab::Reminder, &S::AssignmentReminders),
    As::reserved(20),
};

// A note's text stays on disk until the note is opened.
using No = FieldsOf<NoteBuffer>;
using Nb = NoteBuffer;
inline constexpr RecordField<Nb> kNote[] = {
    No::text("RecordNo", 5, &Nb::RecordNo, &S::NoteRecordNos),
    No::text("LinkID", 5, &Nb::LinkID, &S::NoteLinkIDs),
    No::reserved(20),
    No::reserved(20),
    No::textOnDisk("Text", 1450, &Nb::Text),
};

using Ss = FieldsOf<StudySessionBuffer>;
using Sb = StudySessionBuffer;
inline constexpr RecordField<Sb> kStudySession[] = {
    Ss::text("RecordNo", 5, &Sb::RecordNo, &S::StudySessionRecordNos),
    Ss::text("LinkID", 5, &Sb::LinkID, &S::StudySessionLinkIDs),
    Ss::text("Length", 10, &Sb::Length, &S::StudySessionLengths),
    Ss::date("Date", 15, &Sb::Date, &S::StudySessionDates),
    Ss::reserved(10),
    Ss::reserved(10),
};
// The assignment editor saves a session from its own session columns.
inline constexpr auto kEditStudySession =
    withColumns(kStudySession, std::array{&S::EditStudySessionRecordNos, &S::EditStudySessionLinkIDs,
                                          &S::EditStudySessionLengths, &S::EditStudySessionDates});

using Ta = FieldsOf<TaskBuffer>;
using Tk = TaskBuffer;
inline constexpr RecordField<Tk> kTask[] = {
    Ta::text("RecordNo", 5, &Tk::RecordNo, &S::TaskRecordNos),
    Ta::text("ID", 5, &Tk::ID, &S::TaskIDs),
    Ta::text("Description", 60, &Tk::Description, &S::TaskDescriptions),
    Ta::text("DateExists", 5, &Tk::DateExists, &S::TaskDateExists),
    Ta::date("Date", 15, &Tk::Date, &S::TaskDates),
    Ta::text("Type", 10, &Tk::Type, &S::TaskTypes),
    Ta::text("Priority", 10, &Tk::Priority, &S::TaskPriorities),
    Ta::text("Done", 5, &Tk::Done, &S::TaskDones),
    Ta::text("Notes", 845, &Tk::Notes, &S::TaskNotes),
    Ta::text("Reminder", 20, &Tk::Reminder, &S::TaskReminders),
    Ta::reserved(20),
};

using Ev = FieldsOf<EventBuffer>;
using Eb = EventBuffer;
inline constexpr RecordField<Eb> kEvent[] = {
    Ev::text("RecordNo", 5, &Eb::RecordNo, &S::EventRecordNos),
    Ev::text("ID", 5, &Eb::ID, &S::EventIDs),
    Ev::date("Date", 15, &Eb::Date, &S::EventDates),
    Ev::text("Description", 60, &Eb::Description, &S::EventDescriptions),
    Ev::text("Type", 10, &Eb::Type, &S::EventTypes),
    Ev::text("Time", 10, &Eb::Time, &S::EventTimes),
    Ev::text("Recurrence", 5, &Eb::Recurrence, &S::EventRecurrences),
    Ev::text("SameDate", 5, &Eb::SameDate, &S::EventSameDates),
    Ev::text("RepeatNumber", 10, &Eb::RepeatNumber, &S::EventRepeatNumbers),
    Ev::text("RepeatDay", 10, &Eb::RepeatDay, &S::EventRepeatDays),
    Ev::text("RepeatDaily", 10, &Eb::RepeatDaily, &S::EventRepeatDailies),
    Ev::text("End", 5, &Eb::End, &S::EventEnds),
    Ev::date("EndDate", 15, &Eb::EndDate, &S::EventEndDates),
    Ev::text("Notes", 795, &Eb::Notes, &S::EventNotes),
    Ev::text("Reminder", 20, &Eb::Reminder, &S::EventReminders),
    Ev::reserved(20),
};

inline constexpr auto kTermSpecs = specsOf(kTerm);
inline constexpr auto kClassSpecs = specsOf(kClass);
inline constexpr auto kAssignmentSpecs = specsOf(kAssignment);
inline constexpr auto kNoteSpecs = specsOf(kNote);
inline constexpr auto kStudySessionSpecs = specsOf(kStudySession);
inline constexpr auto kTaskSpecs = specsOf(kTask);
inline constexpr auto kEventSpecs = specsOf(kEvent);

}  // namespace record_fields

// The seven file layouts; the lengths are those of every other copy of the planner.
inline constexpr RecordLayout kTermsLayout{"Terms.txt", 100, ' ', record_fields::kTermSpecs};
inline constexpr RecordLayout kClassesLayout{"Classes.txt", 615, ' ', record_fields::kClassSpecs};
inline constexpr RecordLayout kAssignmentsLayout{"Assignments.txt", 160, '\0', record_fields::kAssignmentSpecs};
inline constexpr RecordLayout kNotesLayout{"Notes.txt", 1500, '\0', record_fields::kNoteSpecs};
inline constexpr RecordLayout kStudySessionsLayout{"StudySessions.txt", 55, '\0', record_fields::kStudySessionSpecs};
inline constexpr RecordLayout kTasksLayout{"Tasks.txt", 1000, '\0', record_fields::kTaskSpecs};
inline constexpr RecordLayout kEventsLayout{"Events.txt", 1000, '\0', record_fields::kEventSpecs};

static_assert(record_fields::lengthOf(record_fields::kTermSpecs) == kTermsLayout.length);
static_assert(record_fields::lengthOf(record_fields::kClassSpecs) == kClassesLayout.length);
static_assert(record_fields::lengthOf(record_fields::kAssignmentSpecs) == kAssignmentsLayout.length);
static_assert(record_fields::lengthOf(record_fields::kNoteSpecs) == kNotesLayout.length);
static_assert(record_fields::lengthOf(record_fields::kStudySessionSpecs) == kStudySessionsLayout.length);
static_assert(record_fields::lengthOf(record_fields::kTaskSpecs) == kTasksLayout.length);
static_assert(record_fields::lengthOf(record_fields::kEventSpecs) == kEventsLayout.length);

inline constexpr RecordTable<TermBuffer> kTermTable{kTermsLayout, record_fields::kTerm};
inline constexpr RecordTable<ClassBuffer> kClassTable{kClassesLayout, record_fields::kClass};
inline constexpr RecordTable<AssignmentBuffer> kAssignmentTable{kAssignmentsLayout, record_fields::kAssignment};
inline constexpr RecordTable<NoteBuffer> kNoteTable{kNotesLayout, record_fields::kNote};
inline constexpr RecordTable<StudySessionBuffer> kStudySessionTable{kStudySessionsLayout,
                                                                    record_fields::kStudySession};
inline constexpr RecordTable<StudySessionBuffer> kEditStudySessionTable{kStudySessionsLayout,
                                                                        record_fields::kEditStudySession};
inline constexpr RecordTable<TaskBuffer> kTaskTable{kTasksLayout, record_fields::kTask};
inline constexpr RecordTable<EventBuffer> kEventTable{kEventsLayout, record_fields::kEvent};

extern template struct RecordTable<TermBuffer>;
extern template struct RecordTable<ClassBuffer>;
extern template struct RecordTable<AssignmentBuffer>;
extern template struct RecordTable<NoteBuffer>;
extern template struct RecordTable<StudySessionBuffer>;
extern template struct RecordTable<TaskBuffer>;
extern template struct RecordTable<EventBuffer>;

}  // namespace qh
