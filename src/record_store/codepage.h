#pragma once
// The record files and Preferences.ini are in the Windows ANSI code page (Windows-1252);
// text in memory is UTF-8. Converting happens only here, at the file boundary.
//
// Every byte of the code page has a character, so reading never fails: the five bytes
// the code page leaves unassigned (0x81, 0x8D, 0x8F, 0x90, 0x9D) read as the control
// characters U+0081... of the same number and write back as the same byte, so any file
// survives a load and a save byte for byte. A character the code page lacks (and any
// byte that is not valid UTF-8) is written as "?".
#include <string>
#include <string_view>

namespace qh {

// UTF-8 to Windows-1252, one byte per character.
std::string toCodePage(std::string_view utf8);

// Windows-1252 to UTF-8.
std::string fromCodePage(std::string_view bytes);

// The bytes of a fixed-width field: the text converted, cut to `width` bytes (after
// conversion, so never inside a character) and padded with spaces to exactly `width`.
std::string fieldBytes(std::string_view utf8, int width);

}  // namespace qh
