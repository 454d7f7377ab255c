#pragma once
// Every member of a plain struct, reached without listing them: for the row columns of a
// list, which must all move together, so that a column added to the struct cannot be left
// out of a sort. The struct must be an aggregate of at most kMostMembers members, none of
// them an array, with no base class.
#include <cstddef>
#include <type_traits>

namespace qh {
namespace aggregate_detail {

// Converts to any member type: T{AnyMember{}, ...} compiles for as many as T has members.
struct AnyMember {
    template <class T>
    operator T() const;  // never called: only asked about at compile time
};

template <class T, class... Members>
constexpr std::size_t memberCount() {
    if constexpr (requires { T{Members{}..., AnyMember{}}; })
        return memberCount<T, Members..., AnyMember>();
    else
        return sizeof...(Members);
}

}  // namespace aggregate_detail

inline constexpr std::size_t kMostMembers = 10;

template <class T>
inline constexpr std::size_t kMemberCount = aggregate_detail::memberCount<T>();

// Calls `each` on every member of `value`, in declaration order.
template <class T, class Each>
void forEachMember(T& value, Each&& each) {
    constexpr std::size_t n = kMemberCount<std::remove_const_t<T>>;
    static_assert(n >= 1 && n <= kMostMembers, "forEachMember takes aggregates of 1 to 10 members");
    if constexpr (n == 1) {
        auto& [a] = value;
        each(a);
    } else if constexpr (n == 2) {
        auto& [a, b] = value;
        each(a), each(b);
    } else if constexpr (n == 3) {
        auto& [a, b, c] = value;
        each(a), each(b), each(c);
    } else if constexpr (n == 4) {
        auto& [a, b, c, d] = value;
        each(a), each(b), each(c), each(d);
    } else if constexpr (n == 5) {
        auto& [a, b, c, d, e] = value;
        each(a), each(b), each(c), each(d), each(e);
    } else if constexpr (n == 6) {
        auto& [a, b, c, d, e, f] = value;
        each(a), each(b), each(c), each(d), each(e), each(f);
    } else if constexpr (n == 7) {
        auto& [a, b, c, d, e, f, g] = value;
        each(a), each(b), each(c), each(d), each(e), each(f), each(g);
    } else if constexpr (n == 8) {
        auto& [a, b, c, d, e, f, g, h] = value;
        each(a), each(b), each(c), each(d), each(e), each(f), each(g), each(h);
    } else if constexpr (n == 9) {
        auto& [a, b, c, d, e, f, g, h, i] = value;
        each(a), each(b), each(c), each(d), each(e), each(f), each(g), each(h), each(i);
    } else {
        auto& [a, b, c, d, e, f, g, h, i, j] = value;
        each(a), each(b), each(c), each(d), each(e), each(f), each(g), each(h), each(i), each(j);
    }
}

}  // namespace qh
