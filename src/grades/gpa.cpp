#include "grades/gpa.h"

#include <charconv>
#include <optional>
#include <unordered_map>

#include "common/text.h"
#include "list_view/record_index.h"

namespace qh {
namespace {

struct GradeRow {
    const char* grade;
    float points;
};
constexpr GradeRow kGradePoints[] = {{"A", 4.0f}, {"A-", 3.7f}, {"B+", 3.3f}, {"B", 3.0f}, {"B-", 2.7f}, {"C+", 2.3f},
                                     {"C", 2.0f}, {"C-", 1.7f}, {"D+", 1.3f}, {"D", 1.0f}, {"D-", 0.7f}, {"E+", 0.3f}};

struct LabelRow {
    float threshold;
    const char* label;
};
constexpr LabelRow kLabels[] = {{3.8f, " (A)  "},  {3.5f, " (A-)  "}, {3.2f, " (B+)  "}, {2.8f, " (B)  "},
                                {2.5f, " (B-)  "}, {2.2f, " (C+)  "}, {1.8f, " (C)  "},  {1.5f, " (C-)  "},
                                {1.2f, " (D+)  "}, {0.8f, " (D)  "},  {0.5f, " (D-)  "}, {0.2f, " (E+)  "}};
constexpr const char* kLowestLabel = " (E)  ";

// A text read as a number: blanks around it, a sign, digits with one decimal point, an
// exponent. Independent of the host's locale, as the record files are.
std::optional<double> numberOf(std::string_view text) {
    std::string t = trim(text);
    if (!t.empty() && t[0] == '+') t.erase(0, 1);
    if (t.empty()) return std::nullopt;
    double value = 0;
    const auto [end, error] = std::from_chars(t.data(), t.data() + t.size(), value);
    if (error != std::errc() || end != t.data() + t.size()) return std::nullopt;
    return value;
}

double numberOrZero(const std::string& text) { return numberOf(text).value_or(0.0); }

// The text of a double as a number is written: up to 15 significant digits.
std::string numberText(double value) {
    char buffer[64];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 15);
    return std::string(buffer, result.ptr);
}

// The first `count` characters of a UTF-8 text.
std::string firstCharacters(const std::string& text, int count) {
    std::size_t pos = 0;
    for (int n = 0; n < count && pos < text.size(); ++n) {
        ++pos;
        while (pos < text.size() && (static_cast<unsigned char>(text[pos]) & 0xC0) == 0x80) ++pos;
    }
    return text.substr(0, pos);
}

}  // namespace

float GradePoints(std::string_view grade) {
    for (const GradeRow& row : kGradePoints)
        if (grade == row.grade) return row.points;
    return 0.0f;
}

float GradeWeight(std::string_view weight) {
    const auto value = numberOf(weight);
    if (value && *value >= 1 && *value <= 100) return float(*value);
    return 5.0f;
}

std::string ClassGradeLabel(float average) {
    for (const LabelRow& row : kLabels)
        if (row.threshold <= average) return row.label;
    return kLowestLabel;
}

std::string TermGradeLabel(float average) {
    for (const LabelRow& row : kLabels)
        if (row.threshold < average) return row.label;
    return kLowestLabel;
}

std::string FormatHundredths(double value, int significantDigits) {
    char buffer[64];
    const auto written =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::scientific, significantDigits - 1);
    // [-]d.dddde[+-]xx, or de[+-]xx for a single digit
    std::string text(buffer, written.ptr);
    const bool negative = text[0] == '-';
    if (negative) text.erase(0, 1);
    const std::size_t e = text.find('e');
    std::string digits;
    for (std::size_t i = 0; i < e; ++i)
        if (text[i] != '.') digits += text[i];
    int exponent = 0;
    const char* from = text.c_str() + e + 1;
    if (*from == '+') ++from;
    std::from_chars(from, text.c_str() + text.size(), exponent);
    // The value is 0.d1d2d3... x 10^(exponent + 1); hundredths are the first
    // exponent + 3 digits.
    const int keep = exponent + 3;
    long long hundredths = 0;
    if (keep >= 0 && keep <= 18) {
        for (int i = 0; i < keep; ++i) hundredths = hundredths * 10 + (i < int(digits.size()) ? digits[i] - '0' : 0);
        if (keep < int(digits.size()) && digits[std::size_t(keep)] >= '5') ++hundredths;
    } else if (keep > 18) {
        const auto fixed = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, 2);
        return std::string(buffer, fixed.ptr);
    }
    std::string result = std::to_string(hundredths / 100) + "." + twoDigits(hundredths % 100);
    if (negative && hundredths != 0) result = "-" + result;
    return result;
}

GradeList ComputeGradeList(const RecordStore& store) {
    GradeList list;
    const std::string none;
    for (int k = 1; k <= store.ClassTermLinks.count(); ++k) {
        if (store.ClassNames.valueOr(k, none) == kDeletedRecord) continue;
        if (IdNumber(store.ClassTermLinks(k)) != store.CurrentTermID) continue;
        list.GPAClassNames.append(store.ClassNames.valueOr(k, none));
        list.GPAForeColors.append(store.ClassForeColors.valueOr(k, none));
        list.GPABackColors.append(store.ClassBackColors.valueOr(k, none));
        list.GPAClassIDs.append(IdNumber(store.ClassIDs.valueOr(k, none)));
        list.GPAPoints.append(0.0f);
        list.GPAWeights.append(0.0f);
        list.GPATexts.append("");
    }

    // Each assignment goes to every entry of its class; per entry the sums still run in
    // assignment order, so they are those of a walk over all assignments per class.
    std::unordered_map<Int16, std::vector<int>> entriesOfClass;
    for (int c = 1; c <= list.GPAClassIDs.count(); ++c) entriesOfClass[list.GPAClassIDs(c)].push_back(c);
    for (int j = 1; j <= store.AssignmentRecordNos.count(); ++j) {
        const auto entries = entriesOfClass.find(IdNumber(store.AssignmentClassLinks.valueOr(j, none)));
        if (entries == entriesOfClass.end()) continue;
        if (store.AssignmentDescriptions.valueOr(j, none) == kDeletedRecord) continue;
        const std::string& grade = store.AssignmentGrades.valueOr(j, none);
        if (grade.empty() || grade == " ") continue;
        const float points = GradePoints(grade);
        const float weight = GradeWeight(store.AssignmentWeights.valueOr(j, none));
        for (int c : entries->second) {
            list.GPAPoints(c) += points * weight;
            list.GPAWeights(c) += weight;
        }
    }

    // The running total is kept as text, the way the term's figure is shown.
    list.GPATotalText = "0";
    int graded = 0;
    for (int c = 1; c <= list.GPAClassIDs.count(); ++c) {
        if (list.GPAWeights(c) == 0) continue;
        const float average = list.GPAPoints(c) / list.GPAWeights(c);
        ++graded;
        list.GPATotalText = numberText(numberOrZero(list.GPATotalText) + double(average));
        list.GPATexts(c) = FormatHundredths(average, 7) + ClassGradeLabel(average);
    }
    if (graded == 0) {
        list.GPATotalText.clear();
    } else {
        list.GPATotalText = FormatHundredths(numberOrZero(list.GPATotalText) / graded, 15);
        list.GPATotalText += TermGradeLabel(float(numberOrZero(list.GPATotalText)));
    }

    list.Entries = {"GPA", "Total " + list.GPATotalText};
    for (int c = 1; c <= list.GPAClassIDs.count(); ++c)
        list.Entries.push_back(firstCharacters(list.GPAClassNames(c), 13) + " " + list.GPATexts(c));
    return list;
}

}  // namespace qh
