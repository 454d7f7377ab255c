#pragma once
// Sorting the lists by the header the student clicked.
//
// The order is that of an exchange sort that swaps neighbours only when their keys are
// strictly out of order: rows with equal keys keep the order they had (the record order
// of the file), in both directions, and no second key is used. A stable sort with the
// same strict comparison gives exactly that order, in n log n instead of n squared.
//
// Column 0 ("#") and a column the list doesn't have leave the list in gathering order;
// so does a direction other than 1 (ascending) or 2 (descending).
//
// Keys and their rules, per list:
//   text         the platform's comparison without regard to case, of the value as stored
//   binary text  by character code ("A" < "A-" < "B+"; "False" < "True")
//   minutes      "HH:MM" read as HH x 60 + MM
//   date         whole days (an event's time of day: whole minutes)
//   number       the value
// A key that holds "None" (task type and priority, event type and recurrence) is "z"
// ascending and "a" descending; an undated task's date is 3100-12-31 ascending and
// 1600-01-01 descending; an event without a valid time is 23:59 ascending and 00:00
// descending; a reminder without a class is "zzzzzzzzzz" ascending and ten blanks
// descending. So rows without a value sink to the bottom whichever way the list runs.
//
// A record field that should hold a date but doesn't sorts as day 0. A row whose linked
// row is missing (a row column that ran short) sorts with empty keys.
//
// Rows move as a unit across the columns of their list: every member of the list's
// columns struct (list_rows.h), found without a list to keep in step. A column that runs
// short is filled up with empty entries (0 for a row index) before the rows move, so that
// every row keeps what it showed. A study session list's ListSessionRows lies outside its
// columns struct: it only counts the rows and keeps the gathering order.
#include <string>
#include <vector>

#include "list_view/list_rows.h"
#include "list_view/sort_direction.h"
#include "list_view/text_ranks.h"

namespace qh {

class Locale;

enum class SortRule { Text, BinaryText, Minutes, Date, Number };

// One key per row, in list order: texts for the text rules, numbers for the others.
struct SortKeys {
    SortRule rule = SortRule::Number;
    std::vector<const std::string*> texts;
    std::vector<long long> numbers;
    int count() const {
        return int(rule == SortRule::Text || rule == SortRule::BinaryText ? texts.size() : numbers.size());
    }
};

// The stable order of the rows (0-based indexes into the list as it stands). `ranks`, when
// given, keeps the order of the texts for the next sort (text_ranks.h).
std::vector<int> SortedOrder(const SortKeys& keys, SortDirection direction, const Locale& locale,
                             TextRanks* ranks = nullptr);

void SortHomeworkList(HomeworkRows& rows, const RecordStore& store, int column, SortDirection direction,
                      const Locale& locale, TextRanks* ranks = nullptr);
void SortStudySessionList(StudySessionRows& rows, const RecordStore& store, int column, SortDirection direction,
                          const Locale& locale, TextRanks* ranks = nullptr);
void SortTaskList(TaskRows& rows, const RecordStore& store, int column, SortDirection direction, const Locale& locale,
                  TextRanks* ranks = nullptr);
void SortEventList(EventRows& rows, const RecordStore& store, int column, SortDirection direction, const Locale& locale,
                   TextRanks* ranks = nullptr);
void SortReminderList(ReminderRows& rows, int column, SortDirection direction, const Locale& locale,
                      TextRanks* ranks = nullptr);

// Substitute keys of values that are missing.
inline constexpr Date kUndatedLast = 438657;    // 3100-12-31
inline constexpr Date kUndatedFirst = -109571;  // 1600-01-01

}  // namespace qh
