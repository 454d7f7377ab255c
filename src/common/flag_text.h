#pragma once
// A flag as the record files, the shared files and the planner's own settings write it.
// The store keeps each record's flag as its file held it, so a value another copy wrote
// oddly goes back to the drive unchanged until the record itself is edited; the code reads
// and writes flags only through these, the one place their two words are spelled.
#include <string_view>

namespace qh {

constexpr const char* flagText(bool value) { return value ? "True" : "False"; }
// Set.
constexpr bool isTrueFlag(std::string_view text) { return text == "True"; }
// Cleared, as opposed to set or unreadable: the lists' "Not Done" shows only these.
constexpr bool isFalseFlag(std::string_view text) { return text == "False"; }

}  // namespace qh
