#include "record_checks.h"

#include "common/day_number.h"
#include "common/failure.h"
#include "memory_drive.h"

namespace qh::fuzz {

std::vector<std::vector<std::string>> checkRecords(const RecordLayout& layout, std::string_view bytes) {
    std::vector<std::vector<std::string>> records;
    RecordView view(layout);
    const std::size_t length = std::size_t(layout.length);
    for (std::size_t at = 0; at + length <= bytes.size(); at += length) {
        const std::string_view raw = bytes.substr(at, length);
        std::vector<std::string> values = parseRecord(layout, raw);
        require(int(values.size()) == layout.valueCount(), "a record gives one value for each field");
        view.reset(raw);

        bool datesRead = true;
        std::size_t n = 0;
        for (const FieldSpec& field : layout.fields) {
            if (field.kind == FieldKind::Reserved) continue;
            require(view.value(n) == values[n], "a value read alone is the value of the whole record");
            if (field.kind == FieldKind::Text)
                require(view.valueIs(n, "DELETED RECORD") == (values[n] == "DELETED RECORD"),
                        "the tombstone test agrees with the value");
            if (field.kind == FieldKind::Date && !parseDateText(values[n])) datesRead = false;
            ++n;
        }

        if (!datesRead) {
            bool refused = false;
            try {
                buildRecord(layout, values);
            } catch (const UntrappedFailure&) {
                refused = true;
            }
            require(refused, "a date field that holds no date is refused when written");
        } else {
            const std::string rebuilt = buildRecord(layout, values);
            require(int(rebuilt.size()) == layout.length, "a record is written at its length");
            const std::vector<std::string> again = parseRecord(layout, rebuilt);
            std::size_t offset = 0;
            n = 0;
            for (const FieldSpec& field : layout.fields) {
                const std::size_t width = std::size_t(field.width);
                if (field.kind == FieldKind::Text) {
                    require(rebuilt.compare(offset, width, raw.substr(offset, width)) == 0,
                            "a text field survives a load and a save byte for byte");
                    require(again[n] == values[n], "a text field reads back the same");
                } else if (field.kind == FieldKind::Date) {
                    require(again[n] == dateText(*parseDateText(values[n])), "a date is written as yyyy/MM/dd");
                }
                if (field.kind != FieldKind::Reserved) ++n;
                offset += width;
            }
        }
        records.push_back(std::move(values));
    }
    return records;
}

std::string recordOf(const RecordLayout& layout, std::vector<std::string> values) {
    return buildRecord(layout, values);
}

void requireRows(std::initializer_list<const TextColumn*> columns,
                 const std::vector<std::vector<std::string>>& expected, const char* rowsWhat) {
    std::size_t c = 0;
    for (const TextColumn* column : columns) {
        require(column->count() == int(expected.size()), rowsWhat);
        for (std::size_t i = 0; i < expected.size(); ++i)
            require((*column)(int(i) + 1) == expected[i][c], "a row holds its record's values");
        ++c;
    }
}

void requireOverwriteAlone(const RecordLayout& layout, const std::string& before, const std::string& after,
                           std::size_t index, bool saved, const std::vector<std::string>& values) {
    const std::size_t length = std::size_t(layout.length), at = index * length;
    require(after.size() == before.size() && after.compare(0, at, before, 0, at) == 0 &&
                after.compare(at + length, std::string::npos, before, at + length, std::string::npos) == 0,
            "an overwrite changes its own record alone");
    if (saved) require(after.compare(at, length, recordOf(layout, values)) == 0, "the record holds what was written");
}

}  // namespace qh::fuzz
