#include "record_store/record_bindings.h"

#include <stdexcept>

namespace qh {
namespace {

using S = RecordStore;

constexpr FieldBinding<NoBuffer> kTermFields[] = {
    {"ID", &S::TermIDs, nullptr},
    {"Name", &S::TermNames, nullptr},
    {"Start", &S::TermStarts, nullptr},
    {"End", &S::TermEnds, nullptr},
};

constexpr FieldBinding<NoBuffer> kClassFields[] = {
    {"ID", &S::ClassIDs, nullptr},
    {"TermLink", &S::ClassTermLinks, nullptr},
    {"Name", &S::ClassNames, nullptr},
    {"ForeColor", &S::ClassForeColors, nullptr},
    {"BackColor", &S::ClassBackColors, nullptr},
    {"Notes", &S::ClassNotes, nullptr},
};

using A = AssignmentBuffer;
constexpr FieldBinding<A> kAssignmentFields[] = {
    {"RecordNo", &S::AssignmentRecordNos, [](const A& b) { return b.RecordNo; }},
    {"ID", &S::AssignmentIDs, [](const A& b) { return b.ID; }},
    {"ClassLink", &S::AssignmentClassLinks, [](const A& b) { return b.ClassLink; }},
    // The editor hands the due date over as a day; the file holds its text.
    {"Date", &S::AssignmentDates, [](const A& b) { return dateText(b.DateValue); }},
    {"Type", &S::AssignmentTypes, [](const A& b) { return b.Type; }},
    {"Difficulty", &S::AssignmentDifficulties, [](const A& b) { return b.Difficulty; }},
    {"EstTime", &S::AssignmentEstTimes, [](const A& b) { return b.EstTime; }},
    {"Description", &S::AssignmentDescriptions, [](const A& b) { return b.Description; }},
    {"Done", &S::AssignmentDones, [](const A& b) { return b.Done; }},
    {"Grade", &S::AssignmentGrades, [](const A& b) { return b.Grade; }},
    {"Weight", &S::AssignmentWeights, [](const A& b) { return b.Weight; }},
    {"Reminder", &S::AssignmentReminders, [](const A& b) { return b.Reminder; }},
};

// A note's text stays on disk until the note is opened.
using N = NoteBuffer;
constexpr FieldBinding<N> kNoteFields[] = {
    {"RecordNo", &S::NoteRecordNos, [](const N& b) { return b.RecordNo; }},
    {"LinkID", &S::NoteLinkIDs, [](const N& b) { return b.LinkID; }},
    {"Text", nullptr, [](const N& b) { return b.Text; }},
};

constexpr FieldBinding<NoBuffer> kStudySessionFields[] = {
    {"RecordNo", &S::StudySessionRecordNos, nullptr},
    {"LinkID", &S::StudySessionLinkIDs, nullptr},
    {"Length", &S::StudySessionLengths, nullptr},
    {"Date", &S::StudySessionDates, nullptr},
};

constexpr FieldBinding<NoBuffer> kEditStudySessionFields[] = {
    {"RecordNo", &S::EditStudySessionRecordNos, nullptr},
    {"LinkID", &S::EditStudySessionLinkIDs, nullptr},
    {"Length", &S::EditStudySessionLengths, nullptr},
    {"Date", &S::EditStudySessionDates, nullptr},
};

using T = TaskBuffer;
constexpr FieldBinding<T> kTaskFields[] = {
    {"RecordNo", &S::TaskRecordNos, [](const T& b) { return b.RecordNo; }},
    {"ID", &S::TaskIDs, [](const T& b) { return b.ID; }},
    {"Description", &S::TaskDescriptions, [](const T& b) { return b.Description; }},
    {"DateExists", &S::TaskDateExists, [](const T& b) { return b.DateExists; }},
    {"Date", &S::TaskDates, [](const T& b) { return b.Date; }},
    {"Type", &S::TaskTypes, [](const T& b) { return b.Type; }},
    {"Priority", &S::TaskPriorities, [](const T& b) { return b.Priority; }},
    {"Done", &S::TaskDones, [](const T& b) { return b.Done; }},
    {"Notes", &S::TaskNotes, [](const T& b) { return b.Notes; }},
    {"Reminder", &S::TaskReminders, [](const T& b) { return b.Reminder; }},
};

using E = EventBuffer;
constexpr FieldBinding<E> kEventFields[] = {
    {"RecordNo", &S::EventRecordNos, [](const E& b) { return b.RecordNo; }},
    {"ID", &S::EventIDs, [](const E& b) { return b.ID; }},
    {"Date", &S::EventDates, [](const E& b) { return b.Date; }},
    {"Description", &S::EventDescriptions, [](const E& b) { return b.Description; }},
    {"Type", &S::EventTypes, [](const E& b) { return b.Type; }},
    {"Time", &S::EventTimes, [](const E& b) { return b.Time; }},
    {"Recurrence", &S::EventRecurrences, [](const E& b) { return b.Recurrence; }},
    {"SameDate", &S::EventSameDates, [](const E& b) { return b.SameDate; }},
    {"RepeatNumber", &S::EventRepeatNumbers, [](const E& b) { return b.RepeatNumber; }},
    {"RepeatDay", &S::EventRepeatDays, [](const E& b) { return b.RepeatDay; }},
    {"RepeatDaily", &S::EventRepeatDailies, [](const E& b) { return b.RepeatDaily; }},
    {"End", &S::EventEnds, [](const E& b) { return b.End; }},
    {"EndDate", &S::EventEndDates, [](const E& b) { return b.EndDate; }},
    {"Notes", &S::EventNotes, [](const E& b) { return b.Notes; }},
    {"Reminder", &S::EventReminders, [](const E& b) { return b.Reminder; }},
};

}  // namespace

template <class Buffer>
std::vector<TextColumn*> RecordBinding<Buffer>::columns(RecordStore& store) const {
    std::vector<TextColumn*> found;
    for (const FieldBinding<Buffer>& f : fields) {
        if (!f.column) break;
        found.push_back(&(store.*f.column));
    }
    return found;
}

template <class Buffer>
std::vector<std::string> RecordBinding<Buffer>::valuesOf(const Buffer& buffer) const {
    std::vector<std::string> values;
    values.reserve(fields.size());
    for (const FieldBinding<Buffer>& f : fields) values.push_back(f.fromBuffer(buffer));
    return values;
}

template <class Buffer>
void RecordBinding<Buffer>::appendRow(RecordStore& store, const Buffer& buffer) const {
    for (const FieldBinding<Buffer>& f : fields)
        if (f.column) (store.*f.column).append(f.fromBuffer(buffer));
}

template <class Buffer>
void RecordBinding<Buffer>::storeRow(RecordStore& store, int row, const Buffer& buffer) const {
    for (const FieldBinding<Buffer>& f : fields)
        if (f.column) (store.*f.column)(row) = f.fromBuffer(buffer);
}

template <class Buffer>
std::vector<std::string> RecordBinding<Buffer>::valuesOfRow(const RecordStore& store, int row) const {
    std::vector<std::string> values;
    values.reserve(fields.size());
    for (const FieldBinding<Buffer>& f : fields) values.push_back((store.*f.column)(row));
    return values;
}

template <class Buffer>
std::size_t RecordBinding<Buffer>::position(std::string_view field) const {
    for (std::size_t n = 0; n < fields.size(); ++n)
        if (fields[n].field == field) return n;
    throw std::invalid_argument("no field " + std::string(field) + " in " + std::string(layout.fileName));
}

template struct RecordBinding<NoBuffer>;
template struct RecordBinding<AssignmentBuffer>;
template struct RecordBinding<NoteBuffer>;
template struct RecordBinding<TaskBuffer>;
template struct RecordBinding<EventBuffer>;

const RecordBinding<NoBuffer> kTermBinding{kTermsLayout, kTermFields};
const RecordBinding<NoBuffer> kClassBinding{kClassesLayout, kClassFields};
const RecordBinding<AssignmentBuffer> kAssignmentBinding{kAssignmentsLayout, kAssignmentFields};
const RecordBinding<NoteBuffer> kNoteBinding{kNotesLayout, kNoteFields};
const RecordBinding<NoBuffer> kStudySessionBinding{kStudySessionsLayout, kStudySessionFields};
const RecordBinding<NoBuffer> kEditStudySessionBinding{kStudySessionsLayout, kEditStudySessionFields};
const RecordBinding<TaskBuffer> kTaskBinding{kTasksLayout, kTaskFields};
const RecordBinding<EventBuffer> kEventBinding{kEventsLayout, kEventFields};

}  // namespace qh
