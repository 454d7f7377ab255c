#include "record_store/record_layout.h"

#include <stdexcept>

#include "common/day_number.h"
#include "common/failure.h"
#include "common/text.h"
#include "record_store/codepage.h"

namespace qh {
namespace {

using K = FieldKind;

constexpr FieldSpec kTermFields[] = {
    {"ID", 5, K::Text},   {"Name", 35, K::Text},         {"Start", 15, K::Date},
    {"End", 15, K::Date}, {"reserved", 15, K::Reserved}, {"reserved", 15, K::Reserved},
};

constexpr FieldSpec kClassFields[] = {
    {"ID", 5, K::Text},         {"TermLink", 5, K::Text}, {"Name", 25, K::Text},         {"ForeColor", 20, K::Text},
    {"BackColor", 20, K::Text}, {"Notes", 500, K::Text},  {"reserved", 20, K::Reserved}, {"reserved", 20, K::Reserved},
};

constexpr FieldSpec kAssignmentFields[] = {
    {"RecordNo", 5, K::Text},      {"ID", 5, K::Text},          {"ClassLink", 5, K::Text}, {"Date", 15, K::Date},
    {"Type", 10, K::Text},         {"Difficulty", 10, K::Text}, {"EstTime", 7, K::Text},   {"Description", 50, K::Text},
    {"Done", 5, K::Text},          {"Grade", 5, K::Text},       {"Weight", 3, K::Text},    {"Reminder", 20, K::Text},
    {"reserved", 20, K::Reserved},
};

constexpr FieldSpec kNoteFields[] = {
    {"RecordNo", 5, K::Text},      {"LinkID", 5, K::Text},  {"reserved", 20, K::Reserved},
    {"reserved", 20, K::Reserved}, {"Text", 1450, K::Text},
};

constexpr FieldSpec kStudySessionFields[] = {
    {"RecordNo", 5, K::Text}, {"LinkID", 5, K::Text},        {"Length", 10, K::Text},
    {"Date", 15, K::Date},    {"reserved", 10, K::Reserved}, {"reserved", 10, K::Reserved},
};

constexpr FieldSpec kTaskFields[] = {
    {"RecordNo", 5, K::Text}, {"ID", 5, K::Text},        {"Description", 60, K::Text},  {"DateExists", 5, K::Text},
    {"Date", 15, K::Date},    {"Type", 10, K::Text},     {"Priority", 10, K::Text},     {"Done", 5, K::Text},
    {"Notes", 845, K::Text},  {"Reminder", 20, K::Text}, {"reserved", 20, K::Reserved},
};

constexpr FieldSpec kEventFields[] = {
    {"RecordNo", 5, K::Text},      {"ID", 5, K::Text},           {"Date", 15, K::Date},
    {"Description", 60, K::Text},  {"Type", 10, K::Text},        {"Time", 10, K::Text},
    {"Recurrence", 5, K::Text},    {"SameDate", 5, K::Text},     {"RepeatNumber", 10, K::Text},
    {"RepeatDay", 10, K::Text},    {"RepeatDaily", 10, K::Text}, {"End", 5, K::Text},
    {"EndDate", 15, K::Date},      {"Notes", 795, K::Text},      {"Reminder", 20, K::Text},
    {"reserved", 20, K::Reserved},
};

template <std::size_t N>
constexpr int widthOf(const FieldSpec (&fields)[N]) {
    int width = 0;
    for (const FieldSpec& field : fields) width += field.width;
    return width;
}
static_assert(widthOf(kTermFields) == 100 && widthOf(kClassFields) == 615 && widthOf(kAssignmentFields) == 160 &&
              widthOf(kNoteFields) == 1500 && widthOf(kStudySessionFields) == 55 && widthOf(kTaskFields) == 1000 &&
              widthOf(kEventFields) == 1000);

// The date as it is written: through its year, month and day parts.
std::string dateFieldText(const std::string& value) {
    const std::optional<Date> date = parseDateText(repairDateSeparators(value));
    if (!date) throw UntrappedFailure("Type mismatch");
    return dateText(*date);
}

}  // namespace

const RecordLayout kTermsLayout{"Terms.txt", 100, ' ', kTermFields};
const RecordLayout kClassesLayout{"Classes.txt", 615, ' ', kClassFields};
const RecordLayout kAssignmentsLayout{"Assignments.txt", 160, '\0', kAssignmentFields};
const RecordLayout kNotesLayout{"Notes.txt", 1500, '\0', kNoteFields};
const RecordLayout kStudySessionsLayout{"StudySessions.txt", 55, '\0', kStudySessionFields};
const RecordLayout kTasksLayout{"Tasks.txt", 1000, '\0', kTaskFields};
const RecordLayout kEventsLayout{"Events.txt", 1000, '\0', kEventFields};

int RecordLayout::valueCount() const {
    int n = 0;
    for (const FieldSpec& field : fields)
        if (field.kind != FieldKind::Reserved) ++n;
    return n;
}

int RecordLayout::offsetOf(int fieldIndex) const {
    int offset = 0;
    for (int i = 0; i < fieldIndex; ++i) offset += fields[std::size_t(i)].width;
    return offset;
}

std::string buildRecord(const RecordLayout& layout, std::span<const std::string> values) {
    if (int(values.size()) != layout.valueCount())
        throw std::invalid_argument("wrong number of values for " + std::string(layout.fileName));
    std::string record;
    record.reserve(std::size_t(layout.length));
    std::size_t next = 0;
    for (const FieldSpec& field : layout.fields) {
        switch (field.kind) {
            case FieldKind::Reserved:
                record.append(std::size_t(field.width), layout.reservedFill);
                break;
            case FieldKind::Date:
                record += fieldBytes(dateFieldText(values[next++]), field.width);
                break;
            case FieldKind::Text:
                record += fieldBytes(values[next++], field.width);
                break;
        }
    }
    return record;
}

std::vector<std::string> parseRecord(const RecordLayout& layout, std::string_view bytes) {
    if (int(bytes.size()) != layout.length)
        throw std::invalid_argument("wrong record length for " + std::string(layout.fileName));
    std::vector<std::string> values;
    values.reserve(layout.fields.size());
    std::size_t offset = 0;
    for (const FieldSpec& field : layout.fields) {
        const std::string_view raw = bytes.substr(offset, std::size_t(field.width));
        offset += std::size_t(field.width);
        if (field.kind == FieldKind::Reserved) continue;
        std::string value = fromCodePage(trimRight(raw));
        if (field.kind == FieldKind::Date) value = repairDateSeparators(std::move(value));
        values.push_back(std::move(value));
    }
    return values;
}

}  // namespace qh
