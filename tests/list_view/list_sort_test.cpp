#include "list_view/list_sort.h"

#include <gtest/gtest.h>

#include <functional>
#include <numeric>
#include <random>

#include "common/text.h"
#include "list_view/time_text.h"
#include "support/fake_platform.h"

namespace qh {
namespace {

FakeLocale locale;

int sign(long long v) { return v < 0 ? -1 : v > 0 ? 1 : 0; }
int textRule(const std::string& a, const std::string& b) { return sign(locale.compareText(a, b)); }
int binaryRule(const std::string& a, const std::string& b) { return sign(a.compare(b)); }
long long daysOf(const std::string& text) { return parseDateText(text).value_or(0); }
long long minutesOf(const std::string& text) {
    return LeadingNumber(text.substr(0, 2)) * 60 + LeadingNumber(text.substr(text.size() - 2));
}

constexpr int kRows = 120;

// A colour name told apart by its row: "F7". Built by appending, since GCC 12 at -O3 warns
// falsely (-Wrestrict) about the insert that "F" + std::to_string(i) makes.
std::string numbered(const char* prefix, int i) {
    std::string text = prefix;
    text += std::to_string(i);
    return text;
}

// One row of a list as text: everything it shows, column by column.
std::string textOf(const std::string& text) { return text; }
std::string textOf(long long number) { return std::to_string(number); }
template <class... Columns>
std::string rowOf(int i, const Columns&... columns) {
    return ((textOf(columns(i)) + "|") + ...);
}

// The order every sort must equal: an exchange sort that swaps neighbours, left to right,
// when strictly out of order, pass after pass until a pass swaps nothing. It orders the
// row numbers of `original` by `compare(column, direction, a, b)`, which compares rows a
// and b of `original`; `sort` must then show the rows in that order, each whole
// (`row(rows, i)`). Column 0 and the column after `lastColumn` leave the order as it is.
template <class Rows>
void checkAgainstExchangeSort(const Rows& original, int lastColumn, const std::function<void(Rows&, int, SortDirection)>& sort,
                              const std::function<int(int, SortDirection, int, int)>& compare,
                              const std::function<std::string(const Rows&, int)>& row) {
    for (int column = 0; column <= lastColumn + 1; ++column) {
        for (SortDirection direction : {SortDirection::Ascending, SortDirection::Descending}) {
            std::vector<int> slow(kRows);
            std::iota(slow.begin(), slow.end(), 1);
            const bool sorts = column >= 1 && column <= lastColumn;
            for (bool changed = sorts; changed;) {
                changed = false;
                for (std::size_t i = 0; i + 1 < slow.size(); ++i) {
                    const int c = compare(column, direction, slow[i], slow[i + 1]);
                    if (direction == SortDirection::Ascending ? c > 0 : c < 0) {
                        std::swap(slow[i], slow[i + 1]);
                        changed = true;
                    }
                }
            }
            Rows fast = original;
            sort(fast, column, direction);
            std::vector<std::string> shown, expected;
            for (int i = 1; i <= kRows; ++i) {
                shown.push_back(row(fast, i));
                expected.push_back(row(original, slow[std::size_t(i - 1)]));
            }
            EXPECT_EQ(shown, expected) << "column " << column << " direction " << int(direction);
        }
    }
}

// --- Random data with many ties -----------------------------------------------------------

struct Random {
    std::mt19937 engine{20261121};
    int number(int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine); }
    template <class T>
    const T& pick(const std::vector<T>& values) {
        return values[std::size_t(number(0, int(values.size()) - 1))];
    }
    std::string date() { return dateText(dateFromYmd(2026, number(9, 10), number(1, 4))); }
};

// Long shared beginnings and a zero byte try the sort's look at the first bytes after the
// beginning the texts share.
const std::vector<std::string> kTexts{"Lab", "lab", "Essay", "essay ", "Quiz", "None", "", "Zed", "a",
                                      "Chapter 12 review questions", "chapter 12 review question",
                                      "Chapter 12 review questionsA",
                                      std::string("Chapter 12 review question\0s", 28)};
const std::vector<std::string> kGrades{"A", "A-", "B+", "B", "", " ", "E", "a"};
const std::vector<std::string> kDones{"True", "False"};
const std::vector<std::string> kTimes{"12:00 am", "9:05 pm", "9:05 PM", "None", "11:59 pm", "junk", "12:05 pm"};

RecordStore randomStore(Random& random) {
    RecordStore s;
    for (int i = 1; i <= kRows; ++i) {
        for (TextColumn* texts : {&s.AssignmentTypes, &s.AssignmentDescriptions, &s.AssignmentDifficulties,
                                  &s.TaskDescriptions, &s.TaskTypes, &s.TaskPriorities, &s.EventDescriptions,
                                  &s.EventTypes, &s.EventRecurrences})
            texts->append(random.pick(kTexts));
        for (TextColumn* dates : {&s.AssignmentDates, &s.StudySessionDates, &s.TaskDates}) dates->append(random.date());
        for (TextColumn* flags : {&s.AssignmentDones, &s.TaskDateExists, &s.TaskDones}) flags->append(random.pick(kDones));
        s.AssignmentGrades.append(random.pick(kGrades));
        s.StudySessionLengths.append(twoDigits(random.number(0, 3)) + " : " + twoDigits(random.number(0, 2) * 15));
        s.EventTimes.append(random.pick(kTimes));
    }
    return s;
}

// "None" is "z" ascending and "a" descending.
std::string orNone(const std::string& v, SortDirection direction) {
    return v != "None" ? v : direction == SortDirection::Ascending ? "z" : "a";
}

// The assignment columns shared by the homework and the study session lists.
int assignmentRule(const RecordStore& s, int column, int a, int b) {
    switch (column) {
        case 2: return textRule(s.AssignmentTypes(a), s.AssignmentTypes(b));
        case 3: return textRule(s.AssignmentDescriptions(a), s.AssignmentDescriptions(b));
        case 4: return textRule(s.AssignmentDifficulties(a), s.AssignmentDifficulties(b));
        default: return sign(daysOf(s.AssignmentDates(a)) - daysOf(s.AssignmentDates(b)));
    }
}

TEST(ListSortEquivalence, HomeworkOrderEqualsTheExchangeSort) {
    Random random;
    const RecordStore s = randomStore(random);
    HomeworkRows r;
    for (int i = 1; i <= kRows; ++i) {
        r.ListAssignmentRows.append(random.number(1, kRows));
        r.ListTimes.append(TimeForm(random.number(0, 4) * 30));
        r.ListClassNames.append(random.pick(kTexts));
        r.ListForeColors.append(numbered("Black", i));
        r.ListBackColors.append(numbered("White", i));
    }
    checkAgainstExchangeSort<HomeworkRows>(
        r, 8, [&](HomeworkRows& rows, int c, SortDirection d) { SortHomeworkList(rows, s, c, d, locale); },
        [&](int column, SortDirection, int i, int j) {
            const int a = r.ListAssignmentRows(i), b = r.ListAssignmentRows(j);
            switch (column) {
                case 1: return textRule(r.ListClassNames(i), r.ListClassNames(j));
                case 5: return sign(minutesOf(r.ListTimes(i)) - minutesOf(r.ListTimes(j)));
                case 7: return binaryRule(s.AssignmentDones(a), s.AssignmentDones(b));
                case 8: return binaryRule(s.AssignmentGrades(a), s.AssignmentGrades(b));
                default: return assignmentRule(s, column, a, b);
            }
        },
        [](const HomeworkRows& rows, int i) {
            return rowOf(i, rows.ListAssignmentRows, rows.ListTimes, rows.ListClassNames, rows.ListForeColors,
                         rows.ListBackColors);
        });
}

TEST(ListSortEquivalence, StudySessionOrderEqualsTheExchangeSort) {
    Random random;
    const RecordStore s = randomStore(random);
    StudySessionRows r;
    for (int i = 1; i <= kRows; ++i) {
        const int session = random.number(1, kRows);
        r.ListSessionRows.append(session);
        r.ListSessionLengthRows.append(session);
        r.ListSessionDateRows.append(session);
        r.ListAssignmentRows.append(random.number(1, kRows));
        r.ListClassNames.append(random.pick(kTexts));
        r.ListForeColors.append(numbered("F", i));
        r.ListBackColors.append(numbered("B", i));
    }
    checkAgainstExchangeSort<StudySessionRows>(
        r, 7,
        [&](StudySessionRows& rows, int c, SortDirection d) {
            SortStudySessionList(rows, s, c, d, locale);
            // The session rows only count the rows; they keep the gathering order.
            EXPECT_EQ(rows.ListSessionRows, r.ListSessionRows);
        },
        [&](int column, SortDirection, int i, int j) {
            switch (column) {
                case 1: return textRule(r.ListClassNames(i), r.ListClassNames(j));
                case 5: return sign(minutesOf(s.StudySessionLengths(r.ListSessionLengthRows(i))) -
                                    minutesOf(s.StudySessionLengths(r.ListSessionLengthRows(j))));
                case 6: return sign(daysOf(s.StudySessionDates(r.ListSessionDateRows(i))) -
                                    daysOf(s.StudySessionDates(r.ListSessionDateRows(j))));
                default: return assignmentRule(s, column, r.ListAssignmentRows(i), r.ListAssignmentRows(j));
            }
        },
        [](const StudySessionRows& rows, int i) {
            return rowOf(i, rows.ListAssignmentRows, rows.ListSessionLengthRows, rows.ListSessionDateRows,
                         rows.ListClassNames, rows.ListForeColors, rows.ListBackColors);
        });
}

TEST(ListSortEquivalence, TaskOrderEqualsTheExchangeSortWithItsSubstitutes) {
    Random random;
    const RecordStore s = randomStore(random);
    TaskRows r;
    for (int i = 1; i <= kRows; ++i) {
        r.ListTaskRows.append(random.number(1, kRows));
        r.ListTaskForeColors.append(numbered("F", i));
        r.ListTaskBackColors.append(numbered("B", i));
    }
    checkAgainstExchangeSort<TaskRows>(
        r, 5, [&](TaskRows& rows, int c, SortDirection d) { SortTaskList(rows, s, c, d, locale); },
        [&](int column, SortDirection direction, int i, int j) {
            const int a = r.ListTaskRows(i), b = r.ListTaskRows(j);
            auto day = [&](int t) -> long long {
                return s.TaskDateExists(t) == "True" ? daysOf(s.TaskDates(t)) : direction == SortDirection::Ascending ? 438657 : -109571;
            };
            switch (column) {
                case 1: return textRule(s.TaskDescriptions(a), s.TaskDescriptions(b));
                case 2: return textRule(orNone(s.TaskTypes(a), direction), orNone(s.TaskTypes(b), direction));
                case 3:
                    return textRule(orNone(s.TaskPriorities(a), direction), orNone(s.TaskPriorities(b), direction));
                case 4: return sign(day(a) - day(b));
                default: return binaryRule(s.TaskDones(a), s.TaskDones(b));
            }
        },
        [](const TaskRows& rows, int i) {
            return rowOf(i, rows.ListTaskRows, rows.ListTaskForeColors, rows.ListTaskBackColors);
        });
}

TEST(ListSortEquivalence, EventOrderEqualsTheExchangeSortWithItsSubstitutes) {
    Random random;
    const RecordStore s = randomStore(random);
    EventRows r;
    for (int i = 1; i <= kRows; ++i) {
        r.ListEventRows.append(Int16(random.number(1, kRows)));
        r.ListEventDates.append(dateFromYmd(2026, 11, random.number(1, 5)));
        r.ListEventForeColors.append(numbered("F", i));
        r.ListEventBackColors.append(numbered("B", i));
    }
    checkAgainstExchangeSort<EventRows>(
        r, 5, [&](EventRows& rows, int c, SortDirection d) { SortEventList(rows, s, c, d, locale); },
        [&](int column, SortDirection direction, int i, int j) {
            const int a = r.ListEventRows(i), b = r.ListEventRows(j);
            // Minutes of the time as an "h:mm am" text, or the substitute.
            auto minutes = [&](const std::string& t) -> long long {
                if (t.size() < 7 || t[t.size() - 3] != ' ' || t.find(':') == std::string::npos)
                    return direction == SortDirection::Ascending ? 1439 : 0;
                const bool pm = t[t.size() - 2] == 'p' || t[t.size() - 2] == 'P';
                return (LeadingNumber(t.substr(0, t.find(':'))) % 12 + (pm ? 12 : 0)) * 60 +
                       LeadingNumber(t.substr(t.find(':') + 1, 2));
            };
            switch (column) {
                case 1: return textRule(s.EventDescriptions(a), s.EventDescriptions(b));
                case 2: return textRule(orNone(s.EventTypes(a), direction), orNone(s.EventTypes(b), direction));
                case 3: return sign(r.ListEventDates(i) - r.ListEventDates(j));
                case 4: return sign(minutes(s.EventTimes(a)) - minutes(s.EventTimes(b)));
                default:
                    return textRule(orNone(s.EventRecurrences(a), direction),
                                    orNone(s.EventRecurrences(b), direction));
            }
        },
        [](const EventRows& rows, int i) {
            return rowOf(i, rows.ListEventRows, rows.ListEventDates, rows.ListEventForeColors,
                         rows.ListEventBackColors);
        });
}

TEST(ListSortEquivalence, ReminderOrderEqualsTheExchangeSortWithItsSubstitutes) {
    Random random;
    ReminderRows r;
    for (int i = 1; i <= kRows; ++i) {
        r.ReminderRecords.append(Int16(i));
        r.ReminderKinds.append(random.pick<std::string>({"Homework", "Task", "Event", "task"}));
        r.ReminderClasses.append(random.pick<std::string>({"", "Biology", "biology", "Art"}));
        r.ReminderTypes.append(random.pick(kTexts));
        r.ReminderDescriptions.append(random.pick(kTexts));
        r.ReminderDays.append(random.number(-3, 3));
        r.ReminderDates.append(dateFromYmd(2026, 11, random.number(18, 24)));
        r.ReminderForeColors.append(numbered("F", i));
        r.ReminderBackColors.append(numbered("B", i));
    }
    checkAgainstExchangeSort<ReminderRows>(
        r, 6, [&](ReminderRows& rows, int c, SortDirection d) { SortReminderList(rows, c, d, locale); },
        [&](int column, SortDirection direction, int i, int j) {
            auto cls = [&](const std::string& v) {
                return !v.empty() ? v : std::string(10, direction == SortDirection::Ascending ? 'z' : ' ');
            };
            switch (column) {
                case 1: return textRule(r.ReminderKinds(i), r.ReminderKinds(j));
                case 2: return textRule(cls(r.ReminderClasses(i)), cls(r.ReminderClasses(j)));
                case 3: return textRule(r.ReminderTypes(i), r.ReminderTypes(j));
                case 4: return textRule(r.ReminderDescriptions(i), r.ReminderDescriptions(j));
                case 5: return sign(r.ReminderDays(i) - r.ReminderDays(j));
                default: return sign(r.ReminderDates(i) - r.ReminderDates(j));
            }
        },
        [](const ReminderRows& rows, int i) {
            return rowOf(i, rows.ReminderRecords, rows.ReminderKinds, rows.ReminderClasses, rows.ReminderTypes,
                         rows.ReminderDescriptions, rows.ReminderDays, rows.ReminderDates, rows.ReminderForeColors,
                         rows.ReminderBackColors);
        });
}

// The ranks kept between sorts give the order a fresh comparison gives, whatever came in
// between: other texts, fewer texts, the other rule, the other direction.
class CountingLocale : public FakeLocale {
public:
    void appendSortKey(std::string_view text, std::string& key) const override {
        ++keysMade;
        FakeLocale::appendSortKey(text, key);
    }
    mutable int keysMade = 0;
};

TEST(ListSortEquivalence, KeptTextRanksGiveTheOrderOfAFreshComparison) {
    Random random;
    std::vector<std::string> pool = kTexts;
    TextRanks ranks;
    CountingLocale counting;
    for (int round = 0; round < 300; ++round) {
        if (random.number(0, 9) == 0) pool.push_back("New " + std::to_string(round));
        std::vector<std::string> texts;
        const int n = random.number(0, 40);
        const int reach = random.number(1, int(pool.size()));
        for (int i = 0; i < n; ++i) texts.push_back(pool[std::size_t(random.number(0, reach - 1))]);
        SortKeys keys;
        keys.rule = random.number(0, 3) == 0 ? SortRule::BinaryText : SortRule::Text;
        for (const std::string& text : texts) keys.texts.push_back(&text);
        const SortDirection direction = random.number(1, 2) == 1 ? SortDirection::Ascending : SortDirection::Descending;
        EXPECT_EQ(SortedOrder(keys, direction, counting, &ranks), SortedOrder(keys, direction, locale)) << round;
    }
    // A second sort of the same texts makes no key.
    SortKeys keys;
    keys.rule = SortRule::Text;
    for (const std::string& text : kTexts) keys.texts.push_back(&text);
    SortedOrder(keys, SortDirection::Ascending, counting, &ranks);
    const int before = counting.keysMade;
    SortedOrder(keys, SortDirection::Descending, counting, &ranks);
    EXPECT_EQ(counting.keysMade, before);
}

}  // namespace
}  // namespace qh
