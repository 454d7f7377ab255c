#pragma once
// The host's collation of texts without regard to case, as byte keys. ICU, which Qt itself
// collates with, makes the keys: a list of thousands of texts is sorted by comparing bytes
// instead of asking the collation once per pair of texts.
#include <array>
#include <string>
#include <string_view>
#include <vector>

struct UCollator;

namespace qh {

class HostCollation {
public:
    // `localeName` as Qt names locales ("en_US", "de_DE"); "C" collates by the root order.
    explicit HostCollation(const std::string& localeName);
    ~HostCollation();
    HostCollation(const HostCollation&) = delete;
    HostCollation& operator=(const HostCollation&) = delete;

    void appendSortKey(std::string_view text, std::string& key) const;
    // Texts of printable ASCII alone get one byte per character, when the collation
    // allows it; any other text makes the whole set take ICU's keys.
    void appendSortKeys(const std::vector<std::string_view>& texts, std::string& keys,
                        std::vector<std::size_t>& ends) const;

private:
    // Ranks the printable ASCII characters, when the collation orders texts of them
    // character by character: no contraction or expansion among them, none ignored, and
    // characters equal but for case have equal keys while all others differ in their
    // letters, not only in accents (as v and w do in traditional Finnish). Done at the
    // first sort, not at the start: asking ICU for its contractions is a good part of
    // the program's start-up otherwise, and the first window sorts no text.
    void rankPrintableAscii() const;

    UCollator* collator_ = nullptr;
    mutable std::array<unsigned char, 128> asciiRank_{};  // 0 for a character without a rank
    mutable bool asciiRanked_ = false;
    mutable bool rankingTried_ = false;
    mutable std::u16string utf16_;  // kept between calls: the texts of one sort share it
};

}  // namespace qh
