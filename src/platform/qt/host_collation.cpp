#include "platform/qt/host_collation.h"

#include <unicode/ucol.h>
#include <unicode/ustring.h>

#include <climits>

#include "common/failure.h"

namespace qh {

HostCollation::HostCollation(const std::string& localeName) {
    UErrorCode status = U_ZERO_ERROR;
    collator_ = ucol_open(localeName == "C" ? "" : localeName.c_str(), &status);
    if (U_FAILURE(status)) throw UntrappedFailure("The collation of \"" + localeName + "\" is not available.");
    // Secondary strength: accents count, case does not.
    ucol_setStrength(collator_, UCOL_SECONDARY);
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
