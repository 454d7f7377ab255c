#include "list_view/text_rank_table.h"

#include <algorithm>
#include <functional>

#include "common/failure.h"

namespace qh {

void TextRankTable::reset(std::size_t texts, std::size_t bytes) {
    std::size_t capacity = 16;
    while (capacity < 2 * texts) capacity *= 2;
    slots_.assign(capacity, Slot{});
    bytes_.clear();
    bytes_.reserve(bytes);
    size_ = 0;
}

std::uint32_t TextRankTable::hashOf(std::string_view text) {
    const auto hash = std::uint32_t(std::hash<std::string_view>{}(text));
    return hash == 0 ? 1 : hash;
}

std::size_t TextRankTable::slotOf(std::string_view text, std::uint32_t hash) const {
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t i = std::size_t(hash) & mask;; i = (i + 1) & mask) {
        const Slot& slot = slots_[i];
        if (slot.hash == 0) return i;
        if (slot.hash == hash && std::string_view(bytes_.data() + slot.offset, slot.length) == text) return i;
    }
}

std::pair<std::int32_t*, bool> TextRankTable::insert(std::string_view text, std::int32_t rank) {
    if (slots_.empty() || 2 * (size_ + 1) > slots_.size())
        throw UntrappedFailure("A text rank table holds more texts than it was made for.");
    const std::uint32_t hash = hashOf(text);
    Slot& slot = slots_[slotOf(text, hash)];
    if (slot.hash != 0) return {&slot.rank, false};
    slot.hash = hash;
    slot.offset = std::uint32_t(bytes_.size());
    slot.length = std::uint32_t(text.size());
    slot.rank = rank;
    bytes_.insert(bytes_.end(), text.begin(), text.end());
    ++size_;
    return {&slot.rank, true};
}

const std::int32_t* TextRankTable::find(std::string_view text) const {
    if (slots_.empty()) return nullptr;
    const Slot& slot = slots_[slotOf(text, hashOf(text))];
    return slot.hash == 0 ? nullptr : &slot.rank;
}

}  // namespace qh
