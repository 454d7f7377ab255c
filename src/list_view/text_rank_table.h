#pragma once
// Texts with a number each, in one open-addressed table: a list's refresh looks up the
// text of every row, so the table keeps its texts side by side and needs no allocation
// per text.
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace qh {

class TextRankTable {
public:
    // Empties the table and makes room for `texts` texts of `bytes` bytes in all (under
    // 4 GiB); the table holds no more than that until the next reset.
    void reset(std::size_t texts, std::size_t bytes);

    // The number of `text`, which is set to `rank` when the text is new (second is true
    // then). The pointer stays valid until the next reset.
    std::pair<std::int32_t*, bool> insert(std::string_view text, std::int32_t rank);

    const std::int32_t* find(std::string_view text) const;

    std::size_t size() const { return size_; }

private:
    // Sixteen bytes, so that the table of a full list stays in the processor's cache.
    struct Slot {
        std::uint32_t hash = 0;    // never 0 for a text, so 0 marks a free slot
        std::uint32_t offset = 0;  // where the text starts in `bytes_`
        std::uint32_t length = 0;
        std::int32_t rank = 0;
    };
    static std::uint32_t hashOf(std::string_view text);
    // The slot holding `text`, or the free slot where it belongs.
    std::size_t slotOf(std::string_view text, std::uint32_t hash) const;

    std::vector<Slot> slots_;  // a power of two, at least twice the texts
    std::vector<char> bytes_;
    std::size_t size_ = 0;
};

}  // namespace qh
