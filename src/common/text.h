#pragma once
// Small text helpers with the planner's meaning of trimming and padding.
#include <string>
#include <string_view>

namespace qh {

// Removes trailing blanks (the record readers' "trailing spaces removed").
std::string trimRight(std::string_view text);
// Removes leading and trailing blanks.
std::string trim(std::string_view text);
// The last n characters of text (all of it when shorter).
std::string rightChars(std::string_view text, std::size_t n);
// Two digits: the last two characters of "0" followed by the number, as the planner
// shows hours and minutes; 123 gives "23", 7 gives "07".
std::string twoDigits(long long number);
// Where the last whole UTF-8 character of a non-empty text starts: a text cut there keeps
// no half of a character.
std::size_t lastCharacterStart(std::string_view text);

}  // namespace qh
