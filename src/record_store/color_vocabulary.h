#pragma once
// The 140 named colours of the planner. Colours travel through the program as names
// ("MistyRose"); this table turns a name into its &HBBGGRR value, and its fixed order is
// the palette of the class schedule's colour grid (14 colours to a line).
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "common/color.h"

namespace qh {

// The values, answered by row (1..140) or by name. Names are compared without regard
// to letter case. An unknown name or a row outside 1..count() is an untrapped failure:
// nobody traps it, so a hand-edited Classes.txt with an unknown colour name stops the
// display of that class.
class ColorValueList {
public:
    Color operator()(int row) const;
    Color operator()(std::string_view name) const;
    [[nodiscard]] bool contains(std::string_view name) const;
    int count() const { return static_cast<int>(values_.size()); }
    void add(std::string_view name, Color value);  // a duplicate key is an untrapped failure

private:
    std::vector<Color> values_;
    std::unordered_map<std::string, int> rowsByKey_;  // lower-case name -> row
};

// The names in table spelling, by row (1..140).
class ColorNameList {
public:
    const std::string& operator()(int row) const;
    int count() const { return static_cast<int>(names_.size()); }
    void add(std::string_view name) { names_.emplace_back(name); }

private:
    std::vector<std::string> names_;
};

struct ColorVocabulary {
    ColorValueList ColorValues;
    ColorNameList ColorNames;
    // Each fills its list once, in table order; the main window's load calls them in
    // this order before any record is read.
    void BuildColorValues();
    void BuildColorNames();
};

// A vocabulary with both lists built, made once and never changed: for code that needs a
// colour's value and has no vocabulary of its own at hand.
const ColorVocabulary& standardColors();

}  // namespace qh
