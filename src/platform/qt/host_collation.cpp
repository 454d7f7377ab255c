#include "platform/qt/host_collation.h"

#include <unicode/ucol.h>
#include <unicode/uset.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <climits>

#include "common/failure.h"

namespace qh {
namespace {

constexpr char kFirstPrintable = ' ', kLastPrintable = '~';
constexpr char kLevelSeparator = '\x01';  // between the levels of an ICU key

}  // namespace

HostCollation::HostCollation(const std::string& localeName) {
    UErrorCode status = U_ZERO_ERROR;
    collator_ = ucol_open(localeName == "C" ? "" : localeName.c_str(), &status);
    if (U_FAILURE(status)) throw UntrappedFailure("The collation of \"" + localeName + "\" is not available.");
    // Secondary strength: accents count, case does not.
    ucol_setStrength(collator_, UCOL_SECONDARY);
}

void HostCollation::rankPrintableAscii() const {
    if (rankingTried_) return;
    rankingTried_ = true;
    UErrorCode status = U_ZERO_ERROR;
    // Numbers collated by value span characters. (Punctuation that is ignored, as where
    // the collation shifts it aside, shows as a key without letter weight below.)
    if (ucol_getAttribute(collator_, UCOL_NUMERIC_COLLATION, &status) == UCOL_ON || U_FAILURE(status)) return;

    USet* contractions = uset_openEmpty();
    USet* expansions = uset_openEmpty();
    ucol_getContractionsAndExpansions(collator_, contractions, expansions, true, &status);
    bool plain = U_SUCCESS(status);
    for (UChar32 c = kFirstPrintable; plain && c <= kLastPrintable; ++c) plain = !uset_contains(expansions, c);
    for (int32_t i = uset_getRangeCount(contractions); plain && i < uset_getItemCount(contractions); ++i) {
        UChar unit[64];
        UChar32 start = 0, end = 0;
        UErrorCode itemStatus = U_ZERO_ERROR;
        const int32_t length = uset_getItem(contractions, i, &start, &end, unit, 64, &itemStatus);
        bool ascii = U_SUCCESS(itemStatus);
        for (int32_t k = 0; ascii && k < length; ++k) ascii = unit[k] >= kFirstPrintable && unit[k] <= kLastPrintable;
        plain = !ascii;
    }
    uset_close(contractions);
    uset_close(expansions);
    if (!plain) return;

    struct Keyed {
        std::string key;
        char c;
    };
    std::vector<Keyed> keyed;
    for (char c = kFirstPrintable; c <= kLastPrintable; ++c) {
        Keyed k{{}, c};
        appendSortKey(std::string_view(&c, 1), k.key);
        // A key that begins with the level separator has no letter weight: ignored.
        if (k.key.empty() || k.key[0] == kLevelSeparator) return;
        keyed.push_back(std::move(k));
    }
    std::sort(keyed.begin(), keyed.end(), [](const Keyed& a, const Keyed& b) { return a.key < b.key; });
    const auto letters = [](const std::string& key) { return key.substr(0, key.find(kLevelSeparator)); };
    unsigned char rank = 0;
    for (std::size_t j = 0; j < keyed.size(); ++j) {
        if (j == 0 || keyed[j].key != keyed[j - 1].key) {
            if (j > 0 && letters(keyed[j].key) == letters(keyed[j - 1].key)) return;
            ++rank;
        }
        asciiRank_[std::size_t(keyed[j].c)] = rank;
    }
    asciiRanked_ = true;
}

void HostCollation::appendSortKeys(const std::vector<std::string_view>& texts, std::string& keys,
                                   std::vector<std::size_t>& ends) const {
    rankPrintableAscii();
    bool ascii = asciiRanked_;
    for (std::size_t i = 0; ascii && i < texts.size(); ++i)
        for (const char c : texts[i])
            if (c < kFirstPrintable || c > kLastPrintable) {
                ascii = false;
                break;
            }
    for (const std::string_view text : texts) {
        if (ascii) {
            const std::size_t at = keys.size();
            keys.resize(at + text.size());
            for (std::size_t i = 0; i < text.size(); ++i) keys[at + i] = char(asciiRank_[std::size_t(text[i])]);
        } else {
            appendSortKey(text, keys);
        }
        ends.push_back(keys.size());
    }
}

HostCollation::~HostCollation() { ucol_close(collator_); }

void HostCollation::appendSortKey(std::string_view text, std::string& key) const {
    if (text.size() > std::size_t(INT_MAX / 2)) text = text.substr(0, INT_MAX / 2);
    // A text holds at most as many UTF-16 units as bytes; malformed bytes become U+FFFD.
    utf16_.resize(text.size());
    int32_t units = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF8WithSub(utf16_.data(), int32_t(utf16_.size()), &units, text.data(), int32_t(text.size()), 0xFFFD,
                         nullptr, &status);
    if (U_FAILURE(status)) units = 0;
    const std::size_t start = key.size();
    // A first guess that fits most keys; the call says how long the key is when it does not.
    key.resize(start + 2 * std::size_t(units) + 16);
    int32_t length = ucol_getSortKey(collator_, utf16_.data(), units, reinterpret_cast<uint8_t*>(key.data() + start),
                                     int32_t(key.size() - start));
    if (std::size_t(length) > key.size() - start) {
        key.resize(start + std::size_t(length));
        length =
            ucol_getSortKey(collator_, utf16_.data(), units, reinterpret_cast<uint8_t*>(key.data() + start), length);
    }
    // Without the closing zero byte: keys compare as byte strings.
    key.resize(start + std::size_t(length > 0 ? length - 1 : 0));
}

}  // namespace qh
