#pragma once
#include <string>
#include <string_view>
#include <vector>

#include "common/day_number.h"

namespace qh {

// The host's formats. Names follow the planner: "Long Date" ("Saturday, November 21,
// 2026"), "Medium Date" ("21-Nov-26"), "Short Date" ("11/21/2026"), "Medium Time"
// ("09:05 PM", no seconds).
class Locale {
public:
    virtual ~Locale() = default;
    virtual std::string longDate(Date date) const = 0;
    virtual std::string mediumDate(Date date) const = 0;
    virtual std::string shortDate(Date date) const = 0;
    virtual std::string mediumTime(int secondsOfDay) const = 0;
    // month 1..12, the full name ("January").
    virtual std::string monthName(int month) const = 0;
    // month 1..12, the abbreviated name of the "MMM" date forms ("Nov"). A host without its
    // own abbreviations takes the first three characters of the full name.
    virtual std::string shortMonthName(int month) const { return monthName(month).substr(0, 3); }
    // weekday 1 = Sunday .. 7 = Saturday, the full name.
    virtual std::string dayName(int weekday) const = 0;
    // Appends the text's collation key to `key`. Keys compare byte by byte as their texts do
    // by the host's collation without regard to case; texts that compare equal ("Lab" and
    // "lab") have equal keys. A list sorts thousands of texts by keys made once each.
    virtual void appendSortKey(std::string_view text, std::string& key) const = 0;

    // The keys of many texts, one after another in `keys`, with where each ends in `ends`.
    // They compare with each other as the keys of appendSortKey do, but not necessarily
    // with keys made by another call: a host may take a quicker form of key for a set of
    // plain texts.
    virtual void appendSortKeys(const std::vector<std::string_view>& texts, std::string& keys,
                                std::vector<std::size_t>& ends) const {
        for (const std::string_view text : texts) {
            appendSortKey(text, keys);
            ends.push_back(keys.size());
        }
    }

    // <0, 0 or >0: the texts by their keys.
    int compareText(std::string_view a, std::string_view b) const {
        std::string keyA, keyB;
        appendSortKey(a, keyA);
        appendSortKey(b, keyB);
        const int order = keyA.compare(keyB);
        return order < 0 ? -1 : order > 0 ? 1 : 0;
    }
};

}  // namespace qh
