#include "record_store/record_check.h"

#include <algorithm>
#include <optional>
#include <span>

#include "common/day_number.h"
#include "common/flag_text.h"
#include "common/int16.h"
#include "common/text.h"
#include "record_store/color_vocabulary.h"
#include "record_store/record_tables.h"

namespace qh {
namespace {

enum class Check { Number, Date, Colour };

// A field the planner converts when it shows the record; `when` is the flag that says
// whether the record has the value at all ("True" in it), none (width 0) when it always has.
struct FieldRule {
    FieldPlace field;
    Check check;
    FieldPlace when = {};
};

struct FileRules {
    const RecordLayout& layout;
    // The field whose value marks a deleted record, and that value.
    FieldPlace deletedField;
    std::string_view deletedValue;
    std::span<const FieldRule> fields;
};

constexpr const auto& Te = kTermTable;
constexpr const auto& Cl = kClassTable;
constexpr const auto& As = kAssignmentTable;
constexpr const auto& No = kNoteTable;
constexpr const auto& Ss = kStudySessionTable;
constexpr const auto& Ta = kTaskTable;
constexpr const auto& Ev = kEventTable;

constexpr FieldRule kTermRules[] = {
    {Te.place("ID"), Check::Number}, {Te.place("Start"), Check::Date}, {Te.place("End"), Check::Date}};
constexpr FieldRule kClassRules[] = {{Cl.place("ID"), Check::Number},
                                     {Cl.place("TermLink"), Check::Number},
                                     {Cl.place("ForeColor"), Check::Colour},
                                     {Cl.place("BackColor"), Check::Colour}};
constexpr FieldRule kAssignmentRules[] = {{As.place("RecordNo"), Check::Number},
                                          {As.place("ID"), Check::Number},
                                          {As.place("ClassLink"), Check::Number},
                                          {As.place("Date"), Check::Date}};
constexpr FieldRule kNoteRules[] = {{No.place("RecordNo"), Check::Number}, {No.place("LinkID"), Check::Number}};
constexpr FieldRule kStudySessionRules[] = {
    {Ss.place("RecordNo"), Check::Number}, {Ss.place("LinkID"), Check::Number}, {Ss.place("Date"), Check::Date}};
constexpr FieldRule kTaskRules[] = {{Ta.place("RecordNo"), Check::Number},
                                    {Ta.place("ID"), Check::Number},
                                    {Ta.place("Date"), Check::Date, Ta.place("DateExists")}};
constexpr FieldRule kEventRules[] = {{Ev.place("RecordNo"), Check::Number},
                                     {Ev.place("ID"), Check::Number},
                                     {Ev.place("Date"), Check::Date},
                                     {Ev.place("EndDate"), Check::Date, Ev.place("End")}};

const FileRules kRules[] = {
    {kTermsLayout, Te.place("Name"), kDeletedRecord, kTermRules},
    {kClassesLayout, Cl.place("Name"), kDeletedRecord, kClassRules},
    {kAssignmentsLayout, As.place("Description"), kDeletedRecord, kAssignmentRules},
    {kNotesLayout, No.place("LinkID"), "0", kNoteRules},
    {kStudySessionsLayout, Ss.place("LinkID"), "0", kStudySessionRules},
    {kTasksLayout, Ta.place("Description"), kDeletedRecord, kTaskRules},
    {kEventsLayout, Ev.place("Description"), kDeletedRecord, kEventRules},
};

const FileRules& rulesOf(const RecordLayout& layout) {
    for (const FileRules& rules : kRules)
        if (&rules.layout == &layout) return rules;
    return kRules[0];  // not reached: every layout has its rules
}

// The bytes of a field, trailing spaces removed.
std::string_view fieldOf(std::string_view record, FieldPlace place) {
    std::string_view bytes = record.substr(place.offset, place.width);
    while (!bytes.empty() && bytes.back() == ' ') bytes.remove_suffix(1);
    return bytes;
}

bool isRecordDate(std::string_view text) {
    const std::optional<Date> date = parseDateText(repairDateSeparators(std::string(text)));
    if (!date) return false;
    const int year = yearOf(*date);
    return year >= kEarliestRecordYear && year <= kLatestRecordYear;
}

bool converts(Check check, std::string_view text) {
    switch (check) {
        case Check::Number:
            return parseInt16(text).has_value();
        case Check::Date:
            return isRecordDate(text);
        case Check::Colour:
            return standardColors().ColorValues.contains(text);
    }
    return false;
}

// A number as the planner writes one at the start of its field: a sign or digit first,
// digits, then nothing but the field's padding. Stricter than a load's reading, so that
// text in the middle of a record is not taken for the start of one.
std::optional<int> writtenNumber(std::string_view field) {
    while (!field.empty() && field.back() == ' ') field.remove_suffix(1);
    if (field.empty()) return std::nullopt;
    if (field.front() != '-' && (field.front() < '0' || field.front() > '9')) return std::nullopt;
    return parseInt16(field);
}

bool numbered(const RecordLayout& layout) { return layout.fields.front().name == "RecordNo"; }

// Whether the bytes read as the start of a record: its first two fields are numbers as
// the planner writes them (a term's second test is one of its dates, its name being text).
bool startsRecord(const RecordLayout& layout, std::string_view record) {
    const FieldSpec& first = layout.fields[0];
    const FieldSpec& second = layout.fields[1];
    const std::optional<int> lead = writtenNumber(record.substr(0, std::size_t(first.width)));
    if (!lead || (numbered(layout) && *lead < 1)) return false;
    if (&layout == &kTermsLayout)
        return isRecordDate(fieldOf(record, Te.place("Start"))) || isRecordDate(fieldOf(record, Te.place("End")));
    return writtenNumber(record.substr(std::size_t(first.width), std::size_t(second.width))).has_value();
}

// Writes a record's place as its RecordNo, over the field at `at`.
void setRecordNo(std::string& records, std::size_t at, int number, int width) {
    std::string text = std::to_string(number);
    text.resize(std::size_t(width), ' ');
    records.replace(at, std::size_t(width), text);
}

}  // namespace

int CheckedRecords::readableCount() const { return int(std::count(readable.begin(), readable.end(), true)); }

bool RecordReadable(const RecordLayout& layout, std::string_view record) {
    const FileRules& rules = rulesOf(layout);
    // A numbered record's number leads it.
    const FieldPlace recordNo{0, std::size_t(layout.fields.front().width)};
    if (numbered(layout) && !writtenNumber(fieldOf(record, recordNo))) return false;
    if (fieldOf(record, rules.deletedField) == rules.deletedValue) return true;
    for (const FieldRule& rule : rules.fields) {
        if (rule.when.width != 0 && !isTrueFlag(fieldOf(record, rule.when))) continue;
        if (!converts(rule.check, fieldOf(record, rule.field))) return false;
    }
    return true;
}

CheckedRecords CheckRecords(const RecordLayout& layout, std::string bytes, std::int64_t fileSize) {
    CheckedRecords out;
    const std::size_t length = std::size_t(layout.length);
    const int numberWidth = layout.fields.front().width;
    const bool hasRecordNo = numbered(layout);
    int lastNumber = 0;
    std::size_t offset = 0;
    // While every record stands in its place the records are the file's own head and are
    // kept without a copy; the first record found elsewhere or renumbered starts one.
    bool copying = false;
    const auto startCopy = [&] {
        if (copying) return;
        out.records.reserve(bytes.size());
        out.records.assign(bytes, 0, std::size_t(out.count()) * length);
        copying = true;
    };
    while (offset + length <= bytes.size() && out.count() < kMostRecords) {
        const std::string_view here = std::string_view(bytes).substr(offset, length);
        // A record numbered by its own place is in place, whatever its other fields hold.
        const std::optional<int> lead = writtenNumber(here.substr(0, std::size_t(numberWidth)));
        const bool inPlace = hasRecordNo && offset == std::size_t(out.count()) * length && lead == out.count() + 1;
        if (!inPlace && !startsRecord(layout, here)) {
            // Stray bytes: the records go on at the first place that reads as the start of
            // one (numbered past the last one found, where records are numbered).
            startCopy();
            out.rewrite = true;
            std::size_t next = offset + 1;
            // The record must read whole: numbers where numbers belong and dates where
            // dates do, so that a record shifted by a field is not taken for one.
            for (; next + length <= bytes.size(); ++next) {
                const std::string_view candidate = std::string_view(bytes).substr(next, length);
                if (!startsRecord(layout, candidate)) continue;
                if (hasRecordNo && *writtenNumber(candidate.substr(0, std::size_t(numberWidth))) <= lastNumber)
                    continue;
                if (!RecordReadable(layout, candidate)) continue;
                break;
            }
            offset = next;
            continue;
        }
        const int place = out.count() + 1;
        const int number = hasRecordNo ? *writtenNumber(here.substr(0, std::size_t(numberWidth))) : place;
        if (number != place) {
            startCopy();
            out.rewrite = true;
        }
        // Its number is a number either way, so the record reads as it will be kept.
        out.readable.push_back(RecordReadable(layout, here));
        if (copying) {
            out.records.append(here);
            if (number != place) setRecordNo(out.records, out.records.size() - length, place, numberWidth);
        }
        lastNumber = number;
        offset += length;
    }
    if (!copying) {
        bytes.resize(std::size_t(out.count()) * length);
        out.records = std::move(bytes);
    }
    // What is left over is a part record, stray bytes or records past the most a file holds.
    if (std::int64_t(offset) != fileSize) out.rewrite = true;
    // A part record counts: it is a record cut short.
    const std::int64_t whole = std::int64_t(length);
    out.recordsInFile = std::max<std::int64_t>((fileSize + whole - 1) / whole, out.count());
    return out;
}

}  // namespace qh
