#pragma once
// Which way the list runs under its sorted column's header: a second click on the same
// header turns it round.
namespace qh {

enum class SortDirection { Ascending, Descending };

constexpr SortDirection reversed(SortDirection direction) {
    return direction == SortDirection::Ascending ? SortDirection::Descending : SortDirection::Ascending;
}

}  // namespace qh
