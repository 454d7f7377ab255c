#include "editors/shared_record_file.h"

#include <algorithm>

#include "common/failure.h"
#include "common/flag_text.h"
#include "common/text.h"
#include "editors/recurrence_panel_defaults.h"
#include "platform/locale.h"
#include "record_store/codepage.h"
#include "record_store/record_tables.h"

namespace qh {
namespace {

constexpr SharedKindTexts kKindTexts[] = {
    {"ASSIGNMENT", 1580, "Save an Assignment File", "Open an Assignment File", "This is not an Assignment file."},
    {"TASK", 949, "Save a Task File", "Open a Task File", "This is not a Task file."},
    {"EVENT", 955, "Save an Event File", "Open an Event File", "This is not an Event file."},
};
constexpr const SharedKindTexts& textsOf(SharedKind kind) { return kKindTexts[static_cast<int>(kind)]; }

// A field of the line: its first position (counted from 1) and its width in bytes. The
// fields lie end to end after the kind's marker, each as wide as the record field it
// carries, so each is declared by that field alone and the last must end where the
// kind's line does.
struct Field {
    int start;
    int width;
};
constexpr Field firstField(SharedKind kind, int width) {
    return {int(std::string_view(textsOf(kind).marker).size()) + 1, width};
}
constexpr Field after(Field previous, int width) { return {previous.start + previous.width, width}; }
constexpr bool endsLine(Field last, SharedKind kind) { return last.start + last.width - 1 == textsOf(kind).lineLength; }

// A text field that goes between the line and a member as it stands (through the code
// page); the dates, flags and rule fields are converted where the line is built and read.
template <class Record>
struct TextField {
    Field field;
    std::string Record::*member;
};

namespace assignment {
constexpr const auto& A = kAssignmentTable;
constexpr Field kClassName = firstField(SharedKind::Assignment, kClassTable.width("Name")),
                kDescription = after(kClassName, A.width("Description")), kDueDate = after(kDescription, A.width("Date")),
                kType = after(kDueDate, A.width("Type")), kDifficulty = after(kType, A.width("Difficulty")),
                kEstimatedTime = after(kDifficulty, A.width("EstTime")),
                kWeight = after(kEstimatedTime, A.width("Weight")), kNotes = after(kWeight, kNoteTable.width("Text"));
static_assert(endsLine(kNotes, SharedKind::Assignment));
using S = SharedAssignment;
constexpr TextField<S> kTexts[] = {
    {kClassName, &S::className},   {kDescription, &S::description},     {kType, &S::type},
    {kDifficulty, &S::difficulty}, {kEstimatedTime, &S::estimatedTime}, {kWeight, &S::weight},
    {kNotes, &S::notes},
};
}  // namespace assignment

namespace task {
constexpr const auto& T = kTaskTable;
constexpr Field kDescription = firstField(SharedKind::Task, T.width("Description")),
                kDeadline = after(kDescription, T.width("DateExists")), kDate = after(kDeadline, T.width("Date")),
                kType = after(kDate, T.width("Type")), kPriority = after(kType, T.width("Priority")),
                kNotes = after(kPriority, T.width("Notes"));
static_assert(endsLine(kNotes, SharedKind::Task));
using S = SharedTask;
constexpr TextField<S> kTexts[] = {
    {kDescription, &S::description},
    {kType, &S::type},
    {kPriority, &S::priority},
    {kNotes, &S::notes},
};
}  // namespace task

namespace event {
// The rule fields hold either the monthly or the yearly controls, by the recurrence.
constexpr const auto& E = kEventTable;
constexpr Field kName = firstField(SharedKind::Event, E.width("Description")),
                kFirstDate = after(kName, E.width("Date")), kType = after(kFirstDate, E.width("Type")),
                kTime = after(kType, E.width("Time")), kRecurrence = after(kTime, E.width("Recurrence")),
                kThisDate = after(kRecurrence, E.width("SameDate")),
                kRepeatNumber = after(kThisDate, E.width("RepeatNumber")),
                kRepeatDay = after(kRepeatNumber, E.width("RepeatDay")),
                kWeekdays = after(kRepeatDay, E.width("RepeatDaily")), kEndOn = after(kWeekdays, E.width("End")),
                kEndDate = after(kEndOn, E.width("EndDate")), kNotes = after(kEndDate, E.width("Notes"));
static_assert(endsLine(kNotes, SharedKind::Event));
using S = SharedEvent;
constexpr TextField<S> kTexts[] = {
    {kName, &S::name}, {kType, &S::type}, {kTime, &S::time}, {kRecurrence, &S::recurrence}, {kNotes, &S::notes},
};
}  // namespace event

constexpr char kCarriageReturn = '\r';
// Stands for a carriage return inside the line, so that notes with line breaks keep the
// record on one line.
constexpr char kLineBreakMark = '\v';

// The line as it is built: blanks of the kind's length, fields laid over them.
class LineWriter {
public:
    explicit LineWriter(SharedKind kind) : line_(std::size_t(textsOf(kind).lineLength), ' ') {
        const std::string_view marker = textsOf(kind).marker;
        line_.replace(0, marker.size(), marker);
    }

    // The text in code-page bytes, cut at the field's width (a byte is a character there,
    // so no character is cut in half). Any carriage return becomes the mark: the notes
    // hold them, and in no field may one end the line early.
    void put(Field field, std::string_view utf8) {
        std::string bytes = toCodePage(utf8);
        std::replace(bytes.begin(), bytes.end(), kCarriageReturn, kLineBreakMark);
        bytes.resize(std::min(bytes.size(), std::size_t(field.width)));
        line_.replace(std::size_t(field.start - 1), bytes.size(), bytes);
    }
    void putDate(Field field, Date date) { put(field, dateText(date)); }
    void putFlag(Field field, bool value) { put(field, flagText(value)); }
    template <class Record, std::size_t N>
    void putTexts(const TextField<Record> (&fields)[N], const Record& record) {
        for (const TextField<Record>& f : fields) put(f.field, record.*f.member);
    }

    std::string file() && { return std::move(line_) + "\r\n"; }

private:
    std::string line_;
};

// A first line that passed the kind's checks of length, marker and bytes, with the mark
// already turned back into carriage returns.
class LineReader {
public:
    static std::optional<LineReader> open(std::string_view fileBytes, SharedKind kind) {
        const SharedKindTexts& texts = textsOf(kind);
        const std::string_view line = fileBytes.substr(0, fileBytes.find(kCarriageReturn));
        if (line.size() != std::size_t(texts.lineLength)) return std::nullopt;
        if (!line.starts_with(texts.marker)) return std::nullopt;
        // No text the editors hold has a NUL: a line with one is a binary file.
        if (line.find('\0') != std::string_view::npos) return std::nullopt;
        std::string bytes(line);
        std::replace(bytes.begin(), bytes.end(), kLineBreakMark, kCarriageReturn);
        return LineReader(std::move(bytes));
    }

    // The field's bytes with trailing blanks stripped, as UTF-8.
    std::string text(Field field) const { return fromCodePage(trimRight(raw(field))); }
    std::optional<Date> date(Field field) const { return parseDateText(trimRight(raw(field))); }
    bool isTrue(Field field) const { return isTrueFlag(trimRight(raw(field))); }
    template <class Record, std::size_t N>
    void readTexts(const TextField<Record> (&fields)[N], Record& record) const {
        for (const TextField<Record>& f : fields) record.*f.member = text(f.field);
    }
    std::string_view raw(Field field) const {
        return std::string_view(bytes_).substr(std::size_t(field.start - 1), std::size_t(field.width));
    }

private:
    explicit LineReader(std::string bytes) : bytes_(std::move(bytes)) {}
    std::string bytes_;
};

std::string lowerAscii(std::string_view text) {
    std::string out(text);
    for (char& c : out)
        if (c >= 'A' && c <= 'Z') c = char(c - 'A' + 'a');
    return out;
}

// The first n characters of a UTF-8 text.
std::string leftChars(std::string_view utf8, std::size_t n) {
    std::size_t at = 0;
    for (std::size_t count = 0; at < utf8.size(); ++at) {
        const bool startsCharacter = (static_cast<unsigned char>(utf8[at]) & 0xC0) != 0x80;
        if (startsCharacter && count++ == n) break;
    }
    return std::string(utf8.substr(0, at));
}

// Characters a file name may not hold on the other student's machine.
std::string safeFileName(std::string name) {
    for (char& c : name) {
        if (std::string_view("*|\\:<>?/").find(c) != std::string_view::npos) c = ' ';
        if (c == '"') c = '\'';
    }
    return name;
}

constexpr std::size_t kNameCharacters = 40;

// Whether the end date the editor proposes for the rule (ShowRecurrencePanel on the
// recurrence radio, the grey proposal when the end is off) is a date: a first date late
// in 9999 would carry it past the last date there is.
bool proposalInCalendar(std::string_view recurrence, Date first) {
    try {
        ProposedEndDate(recurrenceOf(recurrence), first);
        return true;
    } catch (const UntrappedFailure&) {
        return false;
    }
}

}  // namespace

const SharedKindTexts& sharedKindTexts(SharedKind kind) { return textsOf(kind); }

std::string sharedFileBytes(const SharedAssignment& a) {
    using namespace assignment;
    LineWriter line(SharedKind::Assignment);
    line.putTexts(kTexts, a);
    line.putDate(kDueDate, a.dueDate);
    return std::move(line).file();
}

std::string sharedFileBytes(const SharedTask& t, Date today) {
    using namespace task;
    LineWriter line(SharedKind::Task);
    line.putTexts(kTexts, t);
    line.putFlag(kDeadline, t.deadline);
    line.putDate(kDate, t.deadline ? t.date : today);
    return std::move(line).file();
}

std::string sharedFileBytes(const SharedEvent& e) {
    using namespace event;
    LineWriter line(SharedKind::Event);
    line.putTexts(kTexts, e);
    line.putDate(kFirstDate, e.firstDate);
    const bool monthly = e.recurrence == "Month";
    line.putFlag(kThisDate, monthly ? e.monthlyThisDate : e.yearlyThisDate);
    line.put(kRepeatNumber, monthly ? e.monthlyNumber : e.yearlyNumber);
    line.put(kRepeatDay, monthly ? e.monthlyDay : e.yearlyDay);
    std::string letters;
    for (bool on : e.weekdays) letters += on ? 'T' : 'F';
    line.put(kWeekdays, letters);
    line.putFlag(kEndOn, e.endOn);
    line.putDate(kEndDate, e.endDate);
    return std::move(line).file();
}

std::optional<SharedAssignment> readSharedAssignment(std::string_view fileBytes) {
    using namespace assignment;
    const auto line = LineReader::open(fileBytes, SharedKind::Assignment);
    if (!line) return std::nullopt;
    const auto due = line->date(kDueDate);
    if (!due) return std::nullopt;
    SharedAssignment a;
    line->readTexts(kTexts, a);
    a.dueDate = *due;
    return a;
}

std::optional<SharedTask> readSharedTask(std::string_view fileBytes) {
    using namespace task;
    const auto line = LineReader::open(fileBytes, SharedKind::Task);
    if (!line) return std::nullopt;
    const auto date = line->date(kDate);
    // The deadline box takes the field as a truth value: True or False in any case.
    const std::string deadline = lowerAscii(trimRight(line->raw(kDeadline)));
    if (!date || (deadline != "true" && deadline != "false")) return std::nullopt;
    SharedTask t;
    line->readTexts(kTexts, t);
    t.deadline = deadline == "true";
    t.date = *date;
    return t;
}

std::optional<SharedEvent> readSharedEvent(std::string_view fileBytes) {
    using namespace event;
    const auto line = LineReader::open(fileBytes, SharedKind::Event);
    if (!line) return std::nullopt;
    const auto first = line->date(kFirstDate);
    const auto end = line->date(kEndDate);
    const std::string recurrence = line->text(kRecurrence);
    const bool known = recurrence == "None" || recurrence == "Day" || recurrence == "Month" || recurrence == "Year";
    if (!first || !end || !known || !proposalInCalendar(recurrence, *first)) return std::nullopt;

    SharedEvent e;
    line->readTexts(kTexts, e);
    e.firstDate = *first;
    if (recurrence == "Month") e.monthlyThisDate = line->isTrue(kThisDate);
    if (recurrence == "Year") e.yearlyThisDate = line->isTrue(kThisDate);
    if (recurrence == "Month" || recurrence == "Year") {
        e.monthlyNumber = e.yearlyNumber = line->text(kRepeatNumber);
        e.monthlyDay = e.yearlyDay = line->text(kRepeatDay);
    }
    if (recurrence == "Day") {
        const std::string_view letters = line->raw(kWeekdays);
        for (std::size_t d = 0; d < e.weekdays.size(); ++d) e.weekdays[d] = letters[d] == 'T';
    }
    e.endOn = line->isTrue(kEndOn);
    e.endDate = *end;
    return e;
}

std::string sharedAssignmentFileName(std::string_view description, Date dueDate, const Locale& locale) {
    return safeFileName(leftChars(trim(description), kNameCharacters) + ", " + locale.shortMonthName(monthOf(dueDate)) +
                        " " + std::to_string(dayOf(dueDate)) + ".txt");
}

std::string sharedFileName(std::string_view name) {
    return safeFileName(leftChars(trim(name), kNameCharacters) + ".txt");
}

}  // namespace qh
