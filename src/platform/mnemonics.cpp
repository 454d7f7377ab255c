#include "platform/mnemonics.h"

#include <cctype>
#include <set>

namespace qh {
namespace {

bool isLetterOrDigit(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0; }
char folded(char c) { return char(std::toupper(static_cast<unsigned char>(c))); }

constexpr std::size_t kNone = std::string::npos;

// The first position whose letter is still free: word starts first, then any letter;
// kNone when every letter is taken.
std::size_t freeLetter(const std::string& caption, const std::set<char>& taken) {
    for (int pass = 0; pass < 2; ++pass) {
        for (std::size_t i = 0; i < caption.size(); ++i) {
            if (!isLetterOrDigit(caption[i]) || taken.count(folded(caption[i]))) continue;
            const bool wordStart = i == 0 || !isLetterOrDigit(caption[i - 1]);
            if (pass == 1 || wordStart) return i;
        }
    }
    return kNone;
}

}  // namespace

// Where a caption marks its own letter ("&File"): the position of the '&', or kNone. A
// doubled "&&" is a plain ampersand.
std::size_t ownMarker(const std::string& caption) {
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != '&') continue;
        if (caption[i + 1] != '&') return i;
        ++i;
    }
    return kNone;
}

std::vector<std::string> WithMnemonics(const std::vector<std::string>& captions) {
    std::set<char> taken;
    for (const std::string& caption : captions)
        if (const std::size_t own = ownMarker(caption); own != kNone) taken.insert(folded(caption[own + 1]));
    std::vector<std::string> marked;
    marked.reserve(captions.size());
    for (const std::string& caption : captions) {
        if (caption == "-" || ownMarker(caption) != kNone) {
            marked.push_back(caption);
            continue;
        }
        // A caption without a marker of its own may still hold a doubled "&&": skipped
        // as a letter, kept as it is.
        const std::size_t at = freeLetter(caption, taken);
        if (at != kNone) taken.insert(folded(caption[at]));
        std::string text;
        for (std::size_t i = 0; i < caption.size(); ++i) {
            if (i == at) text.push_back('&');
            text.push_back(caption[i]);
        }
        marked.push_back(std::move(text));
    }
    return marked;
}

}  // namespace qh
