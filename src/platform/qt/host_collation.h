#pragma once
// The host's collation of texts without regard to case, as byte keys. ICU, which Qt itself
// collates with, makes the keys: a list of thousands of texts is sorted by comparing bytes
// instead of asking the collation once per pair of texts.
#include <string>
#include <string_view>

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

private:
    UCollator* collator_ = nullptr;
    mutable std::u16string utf16_;  // kept between calls: the texts of one sort share it
};

}  // namespace qh
