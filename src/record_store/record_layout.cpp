#include "record_store/record_layout.h"

#include <cstdint>
#include <cstring>
#include <stdexcept>

#include "common/day_number.h"
#include "common/failure.h"
#include "common/text.h"
#include "record_store/codepage.h"

namespace qh {
namespace {

// The date as it is written: through its year, month and day parts.
std::string dateFieldText(const std::string& value) {
    const std::optional<Date> date = parseDateText(repairDateSeparators(value));
    if (!date) throw TypeMismatch();
    return dateText(*date);
}

// The field without its trailing spaces (trimRight without the copy). The long note
// fields are mostly padding, so the padding is passed over 32 bytes at a time, then 8.
std::string_view withoutTrailingSpaces(std::string_view field) {
    constexpr std::uint64_t kSpaces = 0x2020202020202020;
    const char* const data = field.data();
    auto notSpaces = [data](std::size_t from) {
        std::uint64_t eight;
        std::memcpy(&eight, data + from, 8);
        return eight ^ kSpaces;
    };
    std::size_t end = field.size();
    while (end >= 32 && (notSpaces(end - 32) | notSpaces(end - 24) | notSpaces(end - 16) | notSpaces(end - 8)) == 0)
        end -= 32;
    while (end >= 8 && notSpaces(end - 8) == 0) end -= 8;
    while (end > 0 && data[end - 1] == ' ') --end;
    return field.substr(0, end);
}

}  // namespace

int RecordLayout::valueCount() const {
    int n = 0;
    for (const FieldSpec& field : fields)
        if (field.kind != FieldKind::Reserved) ++n;
    return n;
}

std::string buildRecord(const RecordLayout& layout, std::span<const std::string> values) {
    if (int(values.size()) != layout.valueCount())
        throw std::logic_error("wrong number of values for " + std::string(layout.fileName));
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
    RecordView record(layout);
    record.reset(bytes);
    std::vector<std::string> values;
    const std::size_t count = std::size_t(layout.valueCount());
    values.reserve(count);
    for (std::size_t n = 0; n < count; ++n) values.push_back(record.value(n));
    return values;
}

RecordView::RecordView(const RecordLayout& layout) : layout_(layout) {
    std::size_t offset = 0;
    for (const FieldSpec& field : layout.fields) {
        if (field.kind != FieldKind::Reserved)
            places_.push_back({offset, std::size_t(field.width), field.kind == FieldKind::Date});
        offset += std::size_t(field.width);
    }
}

void RecordView::reset(std::string_view bytes) {
    if (int(bytes.size()) != layout_.length)
        throw std::logic_error("wrong record length for " + std::string(layout_.fileName));
    bytes_ = bytes;
}

std::string RecordView::value(std::size_t n) const {
    const Place& place = places_.at(n);
    std::string value = fromCodePage(withoutTrailingSpaces(bytes_.substr(place.offset, place.width)));
    if (place.date) value = repairDateSeparators(std::move(value));
    return value;
}

bool RecordView::valueIs(std::size_t n, std::string_view ascii) const {
    const Place& place = places_.at(n);
    return withoutTrailingSpaces(bytes_.substr(place.offset, place.width)) == ascii;
}

void RecordView::appendTo(std::span<TextColumn* const> columns) const {
    for (std::size_t n = 0; n < columns.size(); ++n) columns[n]->append(value(n));
}

std::string storedText(int width, const std::string& text) {
    return trimRight(fromCodePage(fieldBytes(text, width)));
}

}  // namespace qh
