#pragma once
// Underlined letters of menu captions, so that every menu entry can be chosen from the
// keyboard (Alt+F, then X...). The planner's captions carry none of their own.
#include <string>
#include <vector>

namespace qh {

// The captions of one menu level, each with an '&' before the letter that chooses it.
// A caption that marks its own letter ("&File") keeps it, and "&&" stays a plain
// ampersand. The other letters are unique within the level, taken first from the starts
// of words, then from anywhere in the caption; a caption left without a free letter, and
// a separator ("-"), stay as they are.
std::vector<std::string> WithMnemonics(const std::vector<std::string>& captions);

}  // namespace qh
