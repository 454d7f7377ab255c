#include "list_view/list_sort.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>
#include <string_view>

#include "common/aggregate_members.h"
#include "common/flag_text.h"
#include "list_view/time_text.h"
#include "platform/locale.h"

namespace qh {
namespace {

const std::string kEmpty;
const std::string kNoneUp = "z";
const std::string kNoneDown = "a";
const std::string kNoClassUp = "zzzzzzzzzz";
const std::string kNoClassDown = "          ";

bool isIdentity(const std::vector<int>& order) {
    for (std::size_t i = 0; i < order.size(); ++i)
        if (order[i] != int(i)) return false;
    return true;
}

// Moves the first order.size() entries of a column into the given order, after filling a
// short column up with empty entries; entries beyond the list's rows stay at the end.
template <class T>
void reorder(Column<T>& column, const std::vector<int>& order) {
    std::vector<T>& values = column.values();
    if (values.size() < order.size()) values.resize(order.size());
    std::vector<T> moved;
    moved.reserve(values.size());
    for (int i : order) moved.push_back(std::move(values[std::size_t(i)]));
    for (std::size_t i = order.size(); i < values.size(); ++i) moved.push_back(std::move(values[i]));
    values.swap(moved);
}

// Puts every column of the rows into the order, unless the order leaves them as they are.
// The columns are the members of the list's columns struct, so none can be left out.
template <class Columns>
void reorderRows(const std::vector<int>& order, Columns& rows) {
    if (isIdentity(order)) return;
    forEachMember(rows, [&](auto& column) { reorder(column, order); });
}

// A text of a record column through a row index that may be missing.
const std::string& field(const TextColumn& column, int row) { return column.has(row) ? column(row) : kEmpty; }

template <class T>
int rowAt(const Column<T>& rows, int i) {
    return rows.has(i) ? int(rows(i)) : 0;
}

long long dayOf(const std::string& text) {
    const auto date = parseDateText(text);
    return date ? *date : 0;
}

const std::string& noneReplaced(const std::string& value, SortDirection direction) {
    if (value != "None") return value;
    return direction == SortDirection::Ascending ? kNoneUp : kNoneDown;
}

SortKeys textKeys(SortRule rule, int n, auto&& textOf) {
    SortKeys keys;
    keys.rule = rule;
    keys.texts.reserve(std::size_t(n));
    for (int i = 1; i <= n; ++i) keys.texts.push_back(&textOf(i));
    return keys;
}

SortKeys numberKeys(SortRule rule, int n, auto&& numberOf) {
    SortKeys keys;
    keys.rule = rule;
    keys.numbers.reserve(std::size_t(n));
    for (int i = 1; i <= n; ++i) keys.numbers.push_back(numberOf(i));
    return keys;
}

// The order of byte strings, comparing whole strings only where their first eight bytes
// after the prefix they all share are the same: the keys of a list's texts often share a
// long beginning ("assignment description number ...").
std::vector<int> orderOfKeys(const std::vector<std::string_view>& keys) {
    std::size_t shared = keys.empty() ? 0 : keys[0].size();
    for (const std::string_view key : keys) {
        const auto end = std::min(shared, key.size());
        shared = std::size_t(std::mismatch(key.begin(), key.begin() + long(end), keys[0].begin()).first - key.begin());
    }
    struct Entry {
        std::uint64_t head;  // the eight bytes after the shared prefix, big-endian, zero-filled
        int id;
    };
    std::vector<Entry> entries(keys.size());
    for (std::size_t i = 0; i < keys.size(); ++i) {
        std::uint64_t head = 0;
        for (std::size_t b = 0; b < 8; ++b) {
            const std::size_t at = shared + b;
            head = head << 8 | (at < keys[i].size() ? static_cast<unsigned char>(keys[i][at]) : 0u);
        }
        entries[i] = {head, int(i)};
    }
    // A zero-filled head never orders before a shorter string's head, so heads order as the
    // strings do: a radix sort by head, a byte at a time from the last, then the strings
    // decide within each run of equal heads.
    std::vector<Entry> spare(entries.size());
    for (int shift = 0; shift < 64; shift += 8) {
        std::array<std::size_t, 257> start{};
        for (const Entry& e : entries) ++start[(e.head >> shift & 0xFF) + 1];
        if (std::find(start.begin(), start.end(), entries.size()) != start.end()) continue;  // one value only
        for (std::size_t b = 1; b < start.size(); ++b) start[b] += start[b - 1];
        for (const Entry& e : entries) spare[start[e.head >> shift & 0xFF]++] = e;
        entries.swap(spare);
    }
    for (auto run = entries.begin(); run != entries.end();) {
        const auto end = std::find_if(run, entries.end(), [&](const Entry& e) { return e.head != run->head; });
        if (end - run > 1)
            std::sort(run, end, [&](const Entry& a, const Entry& b) {
                return keys[std::size_t(a.id)].substr(shared) < keys[std::size_t(b.id)].substr(shared);
            });
        run = end;
    }
    std::vector<int> order(keys.size());
    for (std::size_t i = 0; i < keys.size(); ++i) order[i] = entries[i].id;
    return order;
}

// The rank of each text among the distinct texts, by the rule; texts whose keys are equal
// ("Lab" and "lab") share a rank. Keys are made once per distinct text rather than once
// per row: lists repeat their class names, types and flags many times. Keeps the texts
// and their ranks in `ranks`.
std::vector<long long> rankTexts(const std::vector<const std::string*>& texts, bool binary, const Locale& locale,
                                 TextRanks& ranks) {
    const std::size_t n = texts.size();
    std::size_t bytes = 0;
    for (const std::string* text : texts) bytes += text->size();
    ranks.locale = &locale;
    ranks.binary = binary;
    ranks.rank.reset(n, bytes);

    // Each distinct text once, with the distinct number of each row.
    std::vector<std::string_view> distinct;
    std::vector<std::int32_t*> rankOf;
    std::vector<int> ids(n);
    for (std::size_t i = 0; i < n; ++i) {
        const auto [entry, added] = ranks.rank.insert(*texts[i], std::int32_t(distinct.size()));
        if (added) {
            distinct.push_back(*texts[i]);
            rankOf.push_back(entry);
        }
        ids[i] = int(*entry);
    }

    std::vector<std::string_view> keys;
    std::string keyBytes;
    if (binary) {
        keys = distinct;
    } else {
        std::vector<std::size_t> ends;
        ends.reserve(distinct.size());
        locale.appendSortKeys(distinct, keyBytes, ends);
        std::size_t start = 0;
        for (const std::size_t end : ends) {
            keys.emplace_back(keyBytes.data() + start, end - start);
            start = end;
        }
    }
    const std::vector<int> byKey = orderOfKeys(keys);
    std::vector<long long> rank(distinct.size());
    for (std::size_t j = 1; j < byKey.size(); ++j) {
        const auto previous = std::size_t(byKey[j - 1]), current = std::size_t(byKey[j]);
        rank[current] = rank[previous] + (keys[previous] == keys[current] ? 0 : 1);
    }
    for (std::size_t j = 0; j < distinct.size(); ++j) *rankOf[j] = std::int32_t(rank[j]);
    std::vector<long long> numbers(n);
    for (std::size_t i = 0; i < n; ++i) numbers[i] = rank[std::size_t(ids[i])];
    return numbers;
}

}  // namespace

std::vector<int> SortedOrder(const SortKeys& keys, SortDirection direction, const Locale& locale, TextRanks* ranks) {
    const std::size_t n = std::size_t(keys.count());
    std::vector<int> order(n);
    std::iota(order.begin(), order.end(), 0);

    // Every key becomes a number that orders as the key does; texts by their rank, taken
    // from the last sort when it ranked them all.
    std::vector<long long> numbers;
    if (keys.rule == SortRule::Text || keys.rule == SortRule::BinaryText) {
        const bool binary = keys.rule == SortRule::BinaryText;
        numbers.resize(n);
        bool known = ranks && ranks->locale == &locale && ranks->binary == binary;
        for (std::size_t i = 0; known && i < n; ++i) {
            const std::int32_t* found = ranks->rank.find(*keys.texts[i]);
            if (found)
                numbers[i] = *found;
            else
                known = false;
        }
        if (!known) {
            TextRanks fresh;
            numbers = rankTexts(keys.texts, binary, locale, ranks ? *ranks : fresh);
        }
    } else {
        numbers = keys.numbers;
    }
    if (direction == SortDirection::Descending)
        for (long long& v : numbers) v = -v;
    if (n == 0) return order;

    // A stable sort by number; a counting sort when the numbers lie close together.
    const auto [low, high] = std::minmax_element(numbers.begin(), numbers.end());
    const long long span = *high - *low;
    if (span <= 4 * (long long)(n)) {
        std::vector<int> start(std::size_t(span) + 2, 0);
        for (long long v : numbers) ++start[std::size_t(v - *low) + 1];
        for (std::size_t j = 1; j < start.size(); ++j) start[j] += start[j - 1];
        for (std::size_t i = 0; i < n; ++i) order[std::size_t(start[std::size_t(numbers[i] - *low)]++)] = int(i);
    } else {
        std::stable_sort(order.begin(), order.end(),
                         [&](int a, int b) { return numbers[std::size_t(a)] < numbers[std::size_t(b)]; });
    }
    return order;
}

void SortHomeworkList(HomeworkRows& rows, const RecordStore& store, int column, SortDirection direction,
                      const Locale& locale, TextRanks* ranks) {
    const int n = rows.ListAssignmentRows.count();
    if (n < 2 || column < 1 || column > 8) return;
    const auto r = [&](int i) { return rowAt(rows.ListAssignmentRows, i); };
    const auto record = [&](SortRule rule, const TextColumn& c) {
        return textKeys(rule, n, [&](int i) -> const std::string& { return field(c, r(i)); });
    };
    const auto className = [&](int i) -> const std::string& { return field(rows.ListClassNames, i); };
    const auto timeLeft = [&](int i) { return MinutesOfTimeForm(field(rows.ListTimes, i)); };
    const auto due = [&](int i) { return dayOf(field(store.AssignmentDates, r(i))); };
    const SortKeys keys = [&] {
        switch (column) {
            case 1:
                return textKeys(SortRule::Text, n, className);
            case 2:
                return record(SortRule::Text, store.AssignmentTypes);
            case 3:
                return record(SortRule::Text, store.AssignmentDescriptions);
            case 4:
                return record(SortRule::Text, store.AssignmentDifficulties);
            case 5:
                return numberKeys(SortRule::Minutes, n, timeLeft);
            case 6:
                return numberKeys(SortRule::Date, n, due);
            case 7:
                return record(SortRule::BinaryText, store.AssignmentDones);
            default:
                return record(SortRule::BinaryText, store.AssignmentGrades);
        }
    }();
    reorderRows(SortedOrder(keys, direction, locale, ranks), static_cast<HomeworkColumns&>(rows));
}

void SortStudySessionList(StudySessionRows& rows, const RecordStore& store, int column, SortDirection direction,
                          const Locale& locale, TextRanks* ranks) {
    const int n = rows.ListSessionRows.count();
    if (n < 2 || column < 1 || column > 7) return;
    const auto r = [&](int i) { return rowAt(rows.ListAssignmentRows, i); };
    const auto record = [&](const TextColumn& c) {
        return textKeys(SortRule::Text, n, [&](int i) -> const std::string& { return field(c, r(i)); });
    };
    const auto length = [&](int i) {
        return ReadSpan(field(store.StudySessionLengths, rowAt(rows.ListSessionLengthRows, i))).totalMinutes();
    };
    const auto doneOn = [&](int i) {
        return dayOf(field(store.StudySessionDates, rowAt(rows.ListSessionDateRows, i)));
    };
    const auto className = [&](int i) -> const std::string& { return field(rows.ListClassNames, i); };
    const auto due = [&](int i) { return dayOf(field(store.AssignmentDates, r(i))); };
    const SortKeys keys = [&] {
        switch (column) {
            case 1:
                return textKeys(SortRule::Text, n, className);
            case 2:
                return record(store.AssignmentTypes);
            case 3:
                return record(store.AssignmentDescriptions);
            case 4:
                return record(store.AssignmentDifficulties);
            case 5:
                return numberKeys(SortRule::Minutes, n, length);
            case 6:
                return numberKeys(SortRule::Date, n, doneOn);
            default:
                return numberKeys(SortRule::Date, n, due);
        }
    }();
    reorderRows(SortedOrder(keys, direction, locale, ranks), static_cast<StudySessionColumns&>(rows));
}

void SortTaskList(TaskRows& rows, const RecordStore& store, int column, SortDirection direction, const Locale& locale,
                  TextRanks* ranks) {
    const int n = rows.ListTaskRows.count();
    if (n < 2 || column < 1 || column > 5) return;
    const auto r = [&](int i) { return rowAt(rows.ListTaskRows, i); };
    const auto record = [&](SortRule rule, const TextColumn& c) {
        return textKeys(rule, n, [&](int i) -> const std::string& { return field(c, r(i)); });
    };
    const auto recordOrSubstitute = [&](const TextColumn& c) {
        return textKeys(SortRule::Text, n,
                        [&](int i) -> const std::string& { return noneReplaced(field(c, r(i)), direction); });
    };
    const auto day = [&](int i) -> long long {
        const bool dated = isTrueFlag(field(store.TaskDateExists, r(i)));
        const auto date = dated ? parseDateText(field(store.TaskDates, r(i))) : std::nullopt;
        return date ? *date : (direction == SortDirection::Ascending ? kUndatedLast : kUndatedFirst);
    };
    const SortKeys keys = [&] {
        switch (column) {
            case 1:
                return record(SortRule::Text, store.TaskDescriptions);
            case 2:
                return recordOrSubstitute(store.TaskTypes);
            case 3:
                return recordOrSubstitute(store.TaskPriorities);
            case 4:
                return numberKeys(SortRule::Date, n, day);
            default:
                return record(SortRule::BinaryText, store.TaskDones);
        }
    }();
    reorderRows(SortedOrder(keys, direction, locale, ranks), static_cast<TaskColumns&>(rows));
}

void SortEventList(EventRows& rows, const RecordStore& store, int column, SortDirection direction, const Locale& locale,
                   TextRanks* ranks) {
    const int n = rows.ListEventRows.count();
    if (n < 2 || column < 1 || column > 5) return;
    const auto r = [&](int i) { return rowAt(rows.ListEventRows, i); };
    const auto recordOrSubstitute = [&](const TextColumn& c) {
        return textKeys(SortRule::Text, n,
                        [&](int i) -> const std::string& { return noneReplaced(field(c, r(i)), direction); });
    };
    const auto minuteOfDay = [&](int i) -> long long {
        const auto seconds = ParseTimeOfDay(field(store.EventTimes, r(i)));
        return seconds ? *seconds / 60 : (direction == SortDirection::Ascending ? 23 * 60 + 59 : 0);
    };
    const auto name = [&](int i) -> const std::string& { return field(store.EventDescriptions, r(i)); };
    const auto date = [&](int i) -> long long { return rows.ListEventDates.valueOr(i, 0); };
    const SortKeys keys = [&] {
        switch (column) {
            case 1:
                return textKeys(SortRule::Text, n, name);
            case 2:
                return recordOrSubstitute(store.EventTypes);
            case 3:
                return numberKeys(SortRule::Date, n, date);
            case 4:
                return numberKeys(SortRule::Date, n, minuteOfDay);
            default:
                return recordOrSubstitute(store.EventRecurrences);
        }
    }();
    reorderRows(SortedOrder(keys, direction, locale, ranks), static_cast<EventColumns&>(rows));
}

void SortReminderList(ReminderRows& rows, int column, SortDirection direction, const Locale& locale, TextRanks* ranks) {
    const int n = rows.ReminderRecords.count();
    if (n < 2 || column < 1 || column > 6) return;
    const auto own = [&](const TextColumn& c) {
        return textKeys(SortRule::Text, n, [&](int i) -> const std::string& { return field(c, i); });
    };
    const auto classOrSubstitute = [&](int i) -> const std::string& {
        const std::string& value = field(rows.ReminderClasses, i);
        if (!value.empty()) return value;
        return direction == SortDirection::Ascending ? kNoClassUp : kNoClassDown;
    };
    const auto days = [&](int i) -> long long { return rows.ReminderDays.valueOr(i, 0); };
    const auto date = [&](int i) -> long long { return rows.ReminderDates.valueOr(i, 0); };
    const SortKeys keys = [&] {
        switch (column) {
            case 1:
                return own(rows.ReminderKinds);
            case 2:
                return textKeys(SortRule::Text, n, classOrSubstitute);
            case 3:
                return own(rows.ReminderTypes);
            case 4:
                return own(rows.ReminderDescriptions);
            case 5:
                return numberKeys(SortRule::Number, n, days);
            default:
                return numberKeys(SortRule::Date, n, date);
        }
    }();
    reorderRows(SortedOrder(keys, direction, locale, ranks), static_cast<ReminderColumns&>(rows));
}

}  // namespace qh
