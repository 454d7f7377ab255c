#include "editors/shared_record_file.h"

#include <algorithm>

#include "common/failure.h"
#include "common/text.h"
#include "editors/recurrence_panel_defaults.h"
#include "platform/locale.h"
#include "record_store/codepage.h"

namespace qh {
namespace {

// A field of the line: its first position (counted from 1) and its width in bytes.
struct Field {
    int start;
    int width;
};

namespace assignment {
constexpr Field kClassName{11, 25}, kDescription{36, 50}, kDueDate{86, 15}, kType{101, 10}, kDifficulty{111, 10},
    kEstimatedTime{121, 7}, kWeight{128, 3}, kNotes{131, 1450};
}
namespace task {
constexpr Field kDescription{5, 60}, kDeadline{65, 5}, kDate{70, 15}, kType{85, 10}, kPriority{95, 10},
    kNotes{105, 845};
}
namespace event {
constexpr Field kName{6, 60}, kFirstDate{66, 15}, kType{81, 10}, kTime{91, 10}, kRecurrence{101, 5}, kThisDate{106, 5},
    kRepeatNumber{111, 10}, kRepeatDay{121, 10}, kWeekdays{131, 10}, kEndOn{141, 5}, kEndDate{146, 15},
    kNotes{161, 795};
}

constexpr char kCarriageReturn = '\r';
// Stands for a carriage return inside the line, so that notes with line breaks keep the
// record on one line.
constexpr char kLineBreakMark = '\v';

// The line as it is built: blanks of the kind's length, fields laid over them.
class LineWriter {
public:
    explicit LineWriter(SharedKind kind) : line_(std::size_t(sharedKindTexts(kind).lineLength), ' ') {
        const std::string_view marker = sharedKindTexts(kind).marker;
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
    void putFlag(Field field, bool value) { put(field, value ? "True" : "False"); }

    std::string file() && { return std::move(line_) + "\r\n"; }

private:
    std::string line_;
};

// A first line that passed the kind's checks of length, marker and bytes, with the mark
// already turned back into carriage returns.
class LineReader {
public:
    static std::optional<LineReader> open(std::string_view fileBytes, SharedKind kind) {
        const SharedKindTexts& texts = sharedKindTexts(kind);
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
    bool isTrue(Field field) const { return trimRight(raw(field)) == "True"; }
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
        ProposedEndDate(recurrence, first);
        return true;
    } catch (const UntrappedFailure&) {
        return false;
    }
}

}  // namespace

const SharedKindTexts& sharedKindTexts(SharedKind kind) {
    static const SharedKindTexts kTexts[] = {
        {"ASSIGNMENT", 1580, "Save an Assignment File", "Open an Assignment File", "This is not an Assignment file."},
        {"TASK", 949, "Save a Task File", "Open a Task File", "This is not a Task file."},
        {"EVENT", 955, "Save an Event File", "Open an Event File", "This is not an Event file."},
    };
    return kTexts[static_cast<int>(kind)];
}

std::string sharedFileBytes(const SharedAssignment& a) {
    using namespace assignment;
    LineWriter line(SharedKind::Assignment);
    line.put(kClassName, a.className);
    line.put(kDescription, a.description);
    line.putDate(kDueDate, a.dueDate);
    line.put(kType, a.type);
    line.put(kDifficulty, a.difficulty);
    line.put(kEstimatedTime, a.estimatedTime);
    line.put(kWeight, a.weight);
    line.put(kNotes, a.notes);
    return std::move(line).file();
}

std::string sharedFileBytes(const SharedTask& t, Date today) {
    using namespace task;
    LineWriter line(SharedKind::Task);
    line.put(kDescription, t.description);
    line.putFlag(kDeadline, t.deadline);
    line.putDate(kDate, t.deadline ? t.date : today);
    line.put(kType, t.type);
    line.put(kPriority, t.priority);
    line.put(kNotes, t.notes);
    return std::move(line).file();
}

std::string sharedFileBytes(const SharedEvent& e) {
    using namespace event;
    LineWriter line(SharedKind::Event);
    line.put(kName, e.name);
    line.putDate(kFirstDate, e.firstDate);
    line.put(kType, e.type);
    line.put(kTime, e.time);
    line.put(kRecurrence, e.recurrence);
    const bool monthly = e.recurrence == "Month";
    line.putFlag(kThisDate, monthly ? e.monthlyThisDate : e.yearlyThisDate);
    line.put(kRepeatNumber, monthly ? e.monthlyNumber : e.yearlyNumber);
    line.put(kRepeatDay, monthly ? e.monthlyDay : e.yearlyDay);
    std::string letters;
    for (bool on : e.weekdays) letters += on ? 'T' : 'F';
    line.put(kWeekdays, letters);
    line.putFlag(kEndOn, e.endOn);
    line.putDate(kEndDate, e.endDate);
    line.put(kNotes, e.notes);
    return std::move(line).file();
}

std::optional<SharedAssignment> readSharedAssignment(std::string_view fileBytes) {
    using namespace assignment;
    const auto line = LineReader::open(fileBytes, SharedKind::Assignment);
    if (!line) return std::nullopt;
    const auto due = line->date(kDueDate);
    if (!due) return std::nullopt;
    return SharedAssignment{line->text(kClassName), line->text(kDescription), *due,
                            line->text(kType),      line->text(kDifficulty),  line->text(kEstimatedTime),
                            line->text(kWeight),    line->text(kNotes)};
}

std::optional<SharedTask> readSharedTask(std::string_view fileBytes) {
    using namespace task;
    const auto line = LineReader::open(fileBytes, SharedKind::Task);
    if (!line) return std::nullopt;
    const auto date = line->date(kDate);
    // The deadline box takes the field as a truth value: True or False in any case.
    const std::string deadline = lowerAscii(trimRight(line->raw(kDeadline)));
    if (!date || (deadline != "true" && deadline != "false")) return std::nullopt;
    return SharedTask{line->text(kDescription), deadline == "true",    *date,
                      line->text(kType),        line->text(kPriority), line->text(kNotes)};
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
    e.name = line->text(kName);
    e.firstDate = *first;
    e.type = line->text(kType);
    e.time = line->text(kTime);
    e.recurrence = recurrence;
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
    e.notes = line->text(kNotes);
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
