#include "list_view/list_sort.h"

#include <gtest/gtest.h>

#include <functional>
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

// Exchanges rows i and i + 1 of every column that has both.
template <class... Columns>
void exchangeIn(int i, Columns&... columns) {
    ((columns.has(i) && columns.has(i + 1) ? columns.swapRows(i, i + 1) : void()), ...);
}

constexpr int kRows = 120;

// The order every sort must equal: an exchange sort that swaps neighbours, left to right,
// when strictly out of order, pass after pass until a pass swaps nothing, reading the keys
// afresh from the rows as they stand. For each column in [first, last] and both directions,
// `sort` orders one copy of `original`, the exchange sort over `compare(rows, column,
// direction, i, j)` another, and `check` compares the two.
template <class Rows>
void checkAgainstExchangeSort(const Rows& original, int first, int last,
                              const std::function<void(Rows&, int, int)>& sort,
                              const std::function<int(const Rows&, int, int, int, int)>& compare,
                              const std::function<void(Rows&, int)>& exchange,
                              const std::function<void(const Rows&, const Rows&)>& check) {
    for (int column = first; column <= last; ++column) {
        for (int direction : {1, 2}) {
            Rows fast = original, slow = original;
            sort(fast, column, direction);
            for (bool changed = true; changed;) {
                changed = false;
                for (int i = 1; i < kRows; ++i) {
                    const int c = compare(slow, column, direction, i, i + 1);
                    if ((direction == 1 && c > 0) || (direction == 2 && c < 0)) exchange(slow, i), changed = true;
                }
            }
            SCOPED_TRACE("column " + std::to_string(column) + " direction " + std::to_string(direction));
            check(fast, slow);
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
const std::vector<std::string> kTexts{"Lab",
                                      "lab",
                                      "Essay",
                                      "essay ",
                                      "Quiz",
                                      "None",
                                      "",
                                      "Zed",
                                      "a",
                                      "Chapter 12 review questions",
                                      "chapter 12 review question",
                                      "Chapter 12 review questionsA",
                                      std::string("Chapter 12 review question\0s", 28)};
const std::vector<std::string> kGrades{"A", "A-", "B+", "B", "", " ", "E", "a"};
const std::vector<std::string> kDones{"True", "False"};
const std::vector<std::string> kTimes{"12:00 am", "9:05 pm", "9:05 PM", "None", "11:59 pm", "junk", "12:05 pm"};

RecordStore randomStore(Random& random) {
    RecordStore s;
    for (int i = 1; i <= kRows; ++i) {
        s.AssignmentTypes.append(random.pick(kTexts));
        s.AssignmentDescriptions.append(random.pick(kTexts));
        s.AssignmentDifficulties.append(random.pick(kTexts));
        s.AssignmentDates.append(random.date());
        s.AssignmentDones.append(random.pick(kDones));
        s.AssignmentGrades.append(random.pick(kGrades));
        s.StudySessionLengths.append(twoDigits(random.number(0, 3)) + " : " + twoDigits(random.number(0, 2) * 15));
        s.StudySessionDates.append(random.date());
        s.TaskDescriptions.append(random.pick(kTexts));
        s.TaskTypes.append(random.pick(kTexts));
        s.TaskPriorities.append(random.pick(kTexts));
        s.TaskDateExists.append(random.pick(kDones));
        s.TaskDates.append(random.date());
        s.TaskDones.append(random.pick(kDones));
        s.EventDescriptions.append(random.pick(kTexts));
        s.EventTypes.append(random.pick(kTexts));
        s.EventTimes.append(random.pick(kTimes));
        s.EventRecurrences.append(random.pick(kTexts));
    }
    return s;
}

// "None" is "z" ascending and "a" descending.
std::string orNone(const std::string& v, int direction) { return v != "None" ? v : direction == 1 ? "z" : "a"; }

// The assignment columns shared by the homework and the study session lists.
int assignmentRule(const RecordStore& s, int column, int a, int b) {
    switch (column) {
        case 2: return textRule(s.AssignmentTypes(a), s.AssignmentTypes(b));
        case 3: return textRule(s.AssignmentDescriptions(a), s.AssignmentDescriptions(b));
        case 4: return textRule(s.AssignmentDifficulties(a), s.AssignmentDifficulties(b));
        default: return sign(daysOf(s.AssignmentDates(a)) - daysOf(s.AssignmentDates(b)));
    }
}

TEST(ListSortEquivalence, HomeworkOrderEqualsTheExchangeSortForEveryColumnAndDirection) {
    Random random;
    const RecordStore s = randomStore(random);
    HomeworkRows original;
    for (int i = 1; i <= kRows; ++i) {
        original.ListAssignmentRows.append(random.number(1, kRows));
        original.ListTimes.append(TimeForm(random.number(0, 4) * 30));
        original.ListClassNames.append(random.pick(kTexts));
        original.ListForeColors.append("Black" + std::to_string(i));
        original.ListBackColors.append("White" + std::to_string(i));
    }
    checkAgainstExchangeSort<HomeworkRows>(
        original, 0, 9, [&](HomeworkRows& r, int c, int d) { SortHomeworkList(r, s, c, d, locale); },
        [&](const HomeworkRows& r, int column, int, int i, int j) {
            const int a = r.ListAssignmentRows(i), b = r.ListAssignmentRows(j);
            switch (column) {
                case 1: return textRule(r.ListClassNames(i), r.ListClassNames(j));
                case 5: return sign(minutesOf(r.ListTimes(i)) - minutesOf(r.ListTimes(j)));
                case 7: return binaryRule(s.AssignmentDones(a), s.AssignmentDones(b));
                case 8: return binaryRule(s.AssignmentGrades(a), s.AssignmentGrades(b));
                case 2: case 3: case 4: case 6: return assignmentRule(s, column, a, b);
                default: return 0;
            }
        },
        [](HomeworkRows& r, int i) {
            exchangeIn(i, r.ListAssignmentRows, r.ListTimes, r.ListForeColors, r.ListBackColors, r.ListClassNames);
        },
        [](const HomeworkRows& fast, const HomeworkRows& slow) {
            EXPECT_EQ(fast.ListAssignmentRows, slow.ListAssignmentRows);
            EXPECT_EQ(fast.ListTimes, slow.ListTimes);
            EXPECT_EQ(fast.ListClassNames, slow.ListClassNames);
            EXPECT_EQ(fast.ListForeColors, slow.ListForeColors);
            EXPECT_EQ(fast.ListBackColors, slow.ListBackColors);
        });
}

TEST(ListSortEquivalence, StudySessionOrderEqualsTheExchangeSort) {
    Random random;
    const RecordStore s = randomStore(random);
    StudySessionRows original;
    for (int i = 1; i <= kRows; ++i) {
        const int session = random.number(1, kRows);
        original.ListSessionRows.append(session);
        original.ListSessionLengthRows.append(session);
        original.ListSessionDateRows.append(session);
        original.ListAssignmentRows.append(random.number(1, kRows));
        original.ListClassNames.append(random.pick(kTexts));
        original.ListForeColors.append("F" + std::to_string(i));
        original.ListBackColors.append("B" + std::to_string(i));
    }
    checkAgainstExchangeSort<StudySessionRows>(
        original, 1, 7, [&](StudySessionRows& r, int c, int d) { SortStudySessionList(r, s, c, d, locale); },
        [&](const StudySessionRows& r, int column, int, int i, int j) {
            switch (column) {
                case 1: return textRule(r.ListClassNames(i), r.ListClassNames(j));
                case 5: return sign(minutesOf(s.StudySessionLengths(r.ListSessionLengthRows(i))) -
                                    minutesOf(s.StudySessionLengths(r.ListSessionLengthRows(j))));
                case 6: return sign(daysOf(s.StudySessionDates(r.ListSessionDateRows(i))) -
                                    daysOf(s.StudySessionDates(r.ListSessionDateRows(j))));
                default: return assignmentRule(s, column, r.ListAssignmentRows(i), r.ListAssignmentRows(j));
            }
        },
        [](StudySessionRows& r, int i) {
            exchangeIn(i, r.ListAssignmentRows, r.ListSessionLengthRows, r.ListSessionDateRows, r.ListForeColors,
                       r.ListBackColors, r.ListClassNames);
        },
        [&](const StudySessionRows& fast, const StudySessionRows& slow) {
            EXPECT_EQ(fast.ListAssignmentRows, slow.ListAssignmentRows);
            EXPECT_EQ(fast.ListSessionLengthRows, slow.ListSessionLengthRows);
            EXPECT_EQ(fast.ListSessionDateRows, slow.ListSessionDateRows);
            EXPECT_EQ(fast.ListClassNames, slow.ListClassNames);
            EXPECT_EQ(fast.ListBackColors, slow.ListBackColors);
            // The session rows only count the rows; they keep the gathering order.
            EXPECT_EQ(fast.ListSessionRows, original.ListSessionRows);
        });
}

TEST(ListSortEquivalence, TaskOrderEqualsTheExchangeSortWithItsSubstitutes) {
    Random random;
    const RecordStore s = randomStore(random);
    TaskRows original;
    for (int i = 1; i <= kRows; ++i) {
        original.ListTaskRows.append(random.number(1, kRows));
        original.ListTaskForeColors.append("Black");
        original.ListTaskBackColors.append("C" + std::to_string(i));
    }
    checkAgainstExchangeSort<TaskRows>(
        original, 1, 5, [&](TaskRows& r, int c, int d) { SortTaskList(r, s, c, d, locale); },
        [&](const TaskRows& r, int column, int direction, int i, int j) {
            const int a = r.ListTaskRows(i), b = r.ListTaskRows(j);
            auto day = [&](int t) -> long long {
                return s.TaskDateExists(t) == "True" ? daysOf(s.TaskDates(t)) : direction == 1 ? 438657 : -109571;
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
        [](TaskRows& r, int i) { exchangeIn(i, r.ListTaskRows, r.ListTaskForeColors, r.ListTaskBackColors); },
        [](const TaskRows& fast, const TaskRows& slow) {
            EXPECT_EQ(fast.ListTaskRows, slow.ListTaskRows);
            EXPECT_EQ(fast.ListTaskBackColors, slow.ListTaskBackColors);
        });
}

TEST(ListSortEquivalence, EventOrderEqualsTheExchangeSortWithItsSubstitutes) {
    Random random;
    const RecordStore s = randomStore(random);
    EventRows original;
    for (int i = 1; i <= kRows; ++i) {
        original.ListEventRows.append(Int16(random.number(1, kRows)));
        original.ListEventDates.append(dateFromYmd(2026, 11, random.number(1, 5)));
        original.ListEventForeColors.append("Black");
        original.ListEventBackColors.append("C" + std::to_string(i));
    }
    checkAgainstExchangeSort<EventRows>(
        original, 1, 5, [&](EventRows& r, int c, int d) { SortEventList(r, s, c, d, locale); },
        [&](const EventRows& r, int column, int direction, int i, int j) {
            const int a = r.ListEventRows(i), b = r.ListEventRows(j);
            // Minutes of the time as an "h:mm am" text, or the substitute.
            auto minutes = [&](const std::string& t) -> long long {
                if (t.size() < 7 || t[t.size() - 3] != ' ' || t.find(':') == std::string::npos)
                    return direction == 1 ? 1439 : 0;
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
        [](EventRows& r, int i) {
            exchangeIn(i, r.ListEventRows, r.ListEventDates, r.ListEventForeColors, r.ListEventBackColors);
        },
        [](const EventRows& fast, const EventRows& slow) {
            EXPECT_EQ(fast.ListEventRows, slow.ListEventRows);
            EXPECT_EQ(fast.ListEventDates, slow.ListEventDates);
            EXPECT_EQ(fast.ListEventBackColors, slow.ListEventBackColors);
        });
}

TEST(ListSortEquivalence, ReminderOrderEqualsTheExchangeSortWithItsSubstitutes) {
    Random random;
    ReminderRows original;
    for (int i = 1; i <= kRows; ++i) {
        original.ReminderRecords.append(Int16(i));
        original.ReminderKinds.append(random.pick<std::string>({"Homework", "Task", "Event", "task"}));
        original.ReminderClasses.append(random.pick<std::string>({"", "Biology", "biology", "Art"}));
        original.ReminderTypes.append(random.pick(kTexts));
        original.ReminderDescriptions.append(random.pick(kTexts));
        original.ReminderDays.append(random.number(-3, 3));
        original.ReminderDates.append(dateFromYmd(2026, 11, random.number(18, 24)));
        original.ReminderForeColors.append("Black");
        original.ReminderBackColors.append("C" + std::to_string(i));
    }
    checkAgainstExchangeSort<ReminderRows>(
        original, 1, 6, [&](ReminderRows& r, int c, int d) { SortReminderList(r, c, d, locale); },
        [&](const ReminderRows& r, int column, int direction, int i, int j) {
            auto cls = [&](const std::string& v) {
                return !v.empty() ? v : std::string(10, direction == 1 ? 'z' : ' ');
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
        [](ReminderRows& r, int i) {
            exchangeIn(i, r.ReminderRecords, r.ReminderKinds, r.ReminderForeColors, r.ReminderBackColors,
                       r.ReminderClasses, r.ReminderTypes, r.ReminderDescriptions, r.ReminderDays, r.ReminderDates);
        },
        [](const ReminderRows& fast, const ReminderRows& slow) {
            EXPECT_EQ(fast.ReminderRecords, slow.ReminderRecords);
            EXPECT_EQ(fast.ReminderClasses, slow.ReminderClasses);
            EXPECT_EQ(fast.ReminderDates, slow.ReminderDates);
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
        const int direction = random.number(1, 2);
        EXPECT_EQ(SortedOrder(keys, direction, counting, &ranks), SortedOrder(keys, direction, locale)) << round;
    }
    // A second sort of the same texts makes no key.
    SortKeys keys;
    keys.rule = SortRule::Text;
    for (const std::string& text : kTexts) keys.texts.push_back(&text);
    SortedOrder(keys, 1, counting, &ranks);
    const int before = counting.keysMade;
    SortedOrder(keys, 2, counting, &ranks);
    EXPECT_EQ(counting.keysMade, before);
}

// --- Named cases ----------------------------------------------------------------------------

RecordStore doneStore(std::initializer_list<const char*> dones) {
    RecordStore s;
    for (const char* done : dones) s.AssignmentDones.append(done);
    return s;
}

HomeworkRows rowsFor(int n) {
    HomeworkRows rows;
    for (int i = 1; i <= n; ++i) {
        rows.ListAssignmentRows.append(i);
        rows.ListTimes.append("00:00");
        rows.ListClassNames.append("Class" + std::to_string(i));
        rows.ListForeColors.append("Black");
        rows.ListBackColors.append("White");
    }
    return rows;
}

TEST(ListSort, AnUnknownColumnOrDirectionAndAOneRowListLeaveTheOrder) {
    const RecordStore s = doneStore({"True", "False"});
    for (const auto& [column, direction] : {std::pair{-1, 1}, {10, 2}, {7, 0}, {7, 3}}) {
        HomeworkRows rows = rowsFor(2);
        SortHomeworkList(rows, s, column, direction, locale);
        EXPECT_EQ(rows.ListAssignmentRows, (Column<int>{1, 2})) << column << " " << direction;
    }
    HomeworkRows one = rowsFor(1);
    one.ListClassNames.clear();
    SortHomeworkList(one, s, 1, 1, locale);
    EXPECT_TRUE(one.ListClassNames.empty());  // one row: nothing moves, nothing is filled up
}

TEST(ListSort, ARowColumnThatRunsShortIsFilledUpSoEveryRowKeepsWhatItShowed) {
    // Three rows, but the class of the first assignment is gone: the class entries of the
    // later rows moved up, and the last row has none.
    const RecordStore s = doneStore({"True", "True", "False"});
    HomeworkRows rows = rowsFor(3);
    rows.ListClassNames = {"Second", "Third"};
    rows.ListForeColors = {"Black", "Black"};
    rows.ListBackColors = {"Gold", "Gold"};
    SortHomeworkList(rows, s, 7, 1, locale);
    EXPECT_EQ(rows.ListAssignmentRows, (Column<int>{3, 1, 2}));
    EXPECT_EQ(rows.ListClassNames, (TextColumn{"", "Second", "Third"}));
    EXPECT_EQ(rows.ListBackColors, (TextColumn{"", "Gold", "Gold"}));
}

}  // namespace
}  // namespace qh
