#include "list_view/record_index.h"

#include <algorithm>

namespace qh {

RowsById::RowsById(const TextColumn& ids) : head_(65536, 0), next_(std::size_t(ids.count()) + 1, 0) {
    // Walked backwards, each row goes in front of the later ones of its ID.
    for (int row = ids.count(); row >= 1; --row) {
        const std::size_t s = slot(IdNumber(ids(row)));
        next_[std::size_t(row)] = head_[s];
        head_[s] = row;
    }
}

StudyTimeByLink::StudyTimeByLink(const RecordStore& store) : sums_(65536) {
    const int n = std::min(store.StudySessionLinkIDs.count(), store.StudySessionLengths.count());
    for (int s = 1; s <= n; ++s) {
        const Span length = ReadSpan(store.StudySessionLengths(s));
        Span& sum = sums_[std::size_t(int(IdNumber(store.StudySessionLinkIDs(s))) + 32768)];
        sum.hours += length.hours;
        sum.minutes += length.minutes;
    }
}

}  // namespace qh
