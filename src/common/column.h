#pragma once
// A column of the record store: a list whose first index is 1, so the rules read as they
// are written ("row i of all columns is one record"). An index outside 1..count() is the
// planner's untrapped "Subscript out of range", never a read out of bounds.
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "common/failure.h"

namespace qh {

template <class T>
class Column {
public:
    Column() = default;
    Column(std::initializer_list<T> values) : values_(values) {}

    int count() const { return static_cast<int>(values_.size()); }
    bool empty() const { return values_.empty(); }
    bool has(int i) const { return i >= 1 && i <= count(); }

    T& operator()(int i) { return values_[checked(i)]; }
    const T& operator()(int i) const { return values_[checked(i)]; }

    void append(T value) { values_.push_back(std::move(value)); }
    void removeAt(int i) { values_.erase(values_.begin() + static_cast<std::ptrdiff_t>(checked(i))); }
    void clear() { values_.clear(); }
    void reserve(int n) { values_.reserve(static_cast<std::size_t>(n)); }

    // The value of row i, or `fallback` when the column runs short: for readers that must
    // show an empty cell rather than fail where a linked row is missing.
    const T& valueOr(int i, const T& fallback) const { return has(i) ? values_[std::size_t(i - 1)] : fallback; }

    auto begin() const { return values_.begin(); }
    auto end() const { return values_.end(); }
    const std::vector<T>& values() const { return values_; }
    std::vector<T>& values() { return values_; }

    bool operator==(const Column&) const = default;

private:
    std::size_t checked(int i) const {
        if (i < 1 || i > count()) throw SubscriptOutOfRange();
        return static_cast<std::size_t>(i - 1);
    }
    std::vector<T> values_;
};

using TextColumn = Column<std::string>;

}  // namespace qh
