#pragma once
// Look-ups the lists make for every row: the classes of a class link, the assignments of a
// session's link, the study time spent on an assignment. Built once per gather in one pass
// over the linked records, so a list costs one pass over its records instead of one pass
// per row; the answers are those of a walk over all linked records in record order.
//
// IDs and links are compared as numbers (int16OrZero), as the record readers read them.
#include <vector>

#include "common/column.h"
#include "common/int16.h"
#include "list_view/time_text.h"
#include "record_store/columns.h"

namespace qh {

// int16OrZero of an ID or link text, with a short way for the usual plain digits: the
// lists read one or two of these for every row.
inline Int16 IdNumber(const std::string& text) {
    if (text.empty() || text.size() > 5) return int16OrZero(text);
    int value = 0;
    for (char c : text) {
        if (c < '0' || c > '9') return int16OrZero(text);
        value = value * 10 + (c - '0');
    }
    return value <= 32767 ? Int16(value) : int16OrZero(text);
}

// The rows whose ID column holds each ID, in record order.
class RowsById {
public:
    explicit RowsById(const TextColumn& ids);
    // Calls visit(row) for every row with this ID, first row first.
    template <class Visit>
    void forEach(Int16 id, Visit&& visit) const {
        for (int row = head_[slot(id)]; row != 0; row = next_[std::size_t(row)]) visit(row);
    }
    bool contains(Int16 id) const { return head_[slot(id)] != 0; }

private:
    static std::size_t slot(Int16 id) { return std::size_t(int(id) + 32768); }
    std::vector<int> head_;  // first row of each ID, 0 for none
    std::vector<int> next_;  // the next row of the same ID, by row
};

// Hours and minutes of the study sessions against each assignment ID, summed separately as
// the lists add them up.
class StudyTimeByLink {
public:
    explicit StudyTimeByLink(const RecordStore& store);
    const Span& of(Int16 assignmentId) const { return sums_[std::size_t(int(assignmentId) + 32768)]; }

private:
    std::vector<Span> sums_;
};

}  // namespace qh
