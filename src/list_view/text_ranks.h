#pragma once
// The order of the texts a list was last sorted by, kept from one rebuild to the next.
//
// Every scroll step gathers and sorts the whole list anew, and a text sort asks the
// platform to compare texts, which is the costly part. The ranks found for the distinct
// texts of the last sort are kept here; a later sort by the same rule whose texts all have
// a rank reuses them without comparing: ranks found among a set of texts order any part of
// that set the same way. A text without a rank makes the sort compare again and replace
// the ranks. So the order is always the one the comparison gives.
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace qh {

class Locale;

struct TextRanks {
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
    };
    const Locale* locale = nullptr;
    bool binary = false;  // ranks by character code rather than by the platform's comparison
    std::unordered_map<std::string, long long, Hash, std::equal_to<>> rank;
};

}  // namespace qh
