#pragma once
// The fixed-width record format and the one builder and parser that every record file
// uses. The seven layouts are made from the kinds' tables (record_tables.h).
//
// A record is a run of text fields, each left-justified and padded with spaces to its
// width, in the Windows-1252 code page (codepage.h). Reserved fields are never assigned:
// Terms.txt and Classes.txt fill them with spaces, the five other files with NUL bytes.
// Date fields hold "yyyy/MM/dd" in a width of 15.
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "common/column.h"

namespace qh {

enum class FieldKind {
    Text,      // stored as given, cut to the width
    Date,      // written through year, month and day as "yyyy/MM/dd"; separators repaired on read
    Reserved,  // not assigned, not read
};

struct FieldSpec {
    std::string_view name;
    int width;
    FieldKind kind;
};

struct RecordLayout {
    std::string_view fileName;  // bare name, as the file routines report it
    int length;                 // bytes of one record: the sum of the widths
    char reservedFill;          // ' ' or '\0'
    std::span<const FieldSpec> fields;

    // Number of fields that carry a value (all but the reserved ones).
    int valueCount() const;
};

// A text as a field of that width will hold it: cut to the width in code-page bytes, with
// the characters the code page lacks replaced, as a load reads it back.
std::string storedText(int width, const std::string& text);

// Builds one record from the values of the non-reserved fields in table order (UTF-8).
// A date field's value must read as a date once its "." and "-" are taken for "/"
// ("2026/11/21", "2026-1-5"); anything else is the untrapped "Type mismatch", which the
// file routines report as an error writing the file. Fewer or more values than the
// layout has is a fault of the code (std::logic_error).
std::string buildRecord(const RecordLayout& layout, std::span<const std::string> values);

// Reads the non-reserved fields of one record (exactly layout.length bytes) in table
// order: UTF-8, trailing spaces removed, every "." and then every "-" of a date field
// replaced by "/" (a date field that holds no date is otherwise kept as it stands).
[[nodiscard]] std::vector<std::string> parseRecord(const RecordLayout& layout, std::string_view bytes);

// One record of a file, its values parsed only when they are asked for: a load reads the
// one or two fields that decide whether it takes the record, and the others only for the
// records it takes, straight into its columns. Each value is exactly what parseRecord
// gives in that place.
class RecordView {
public:
    explicit RecordView(const RecordLayout& layout);
    // The record to read: exactly layout.length bytes, which must outlive the reading.
    void reset(std::string_view bytes);
    // The n-th value (0-based, reserved fields not counted).
    std::string value(std::size_t n) const;
    // Whether the n-th value, which is no date, is `ascii` (a text of ASCII characters
    // only), without building the value: the code page reads ASCII bytes as themselves
    // and every other byte as characters outside ASCII, so the bytes alone decide.
    [[nodiscard]] bool valueIs(std::size_t n, std::string_view ascii) const;
    // Appends values 0, 1, ... to the columns, one to each, as many as there are columns.
    void appendTo(std::span<TextColumn* const> columns) const;

private:
    struct Place {
        std::size_t offset, width;
        bool date;
    };
    const RecordLayout& layout_;
    std::vector<Place> places_;  // of the value fields, in table order
    std::string_view bytes_;
};

}  // namespace qh
