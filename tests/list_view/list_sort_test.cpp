#include "list_view/list_sort.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>

#include "common/text.h"
#include "list_view/time_text.h"
#include "support/fake_platform.h"

namespace qh {
namespace {

// --- The exchange sort the order must equal ---------------------------------------------
//
// Neighbours are compared left to right and exchanged when strictly out of order, pass
// after pass until a pass exchanges nothing. `compare(i, j)` reads the keys of list rows
// i and j afresh from the columns, as they stand at that moment.
void exchangeSort(int n, int direction, const std::function<int(int, int)>& compare,
                  const std::function<void(int)>& exchange) {
    if (n < 2) return;
    bool changed = true;
    while (changed) {
        changed = false;
        for (int i = 1; i <= n - 1; ++i) {
            const int c = compare(i, i + 1);
            if ((direction == 1 && c > 0) || (direction == 2 && c < 0)) {
                exchange(i);
                changed = true;
            }
        }
    }
}

template <class T>
void exchangeIn(Column<T>& column, int i) {
    if (column.has(i) && column.has(i + 1)) column.swapRows(i, i + 1);
}

int sign(long long v) { return v < 0 ? -1 : v > 0 ? 1 : 0; }

FakeLocale locale;

int textRule(const std::string& a, const std::string& b) { return sign(locale.compareText(a, b)); }
int binaryRule(const std::string& a, const std::string& b) { return sign(a.compare(b)); }
long long daysOf(const std::string& text) { return parseDateText(text).value_or(0); }
long long minutesOf(const std::string& text) {
    return LeadingNumber(text.substr(0, 2)) * 60 + LeadingNumber(text.substr(text.size() - 2));
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

const std::vector<std::string> kTexts{"Lab", "lab", "Essay", "essay ", "Quiz", "None", "", "Zed", "a"};
const std::vector<std::string> kGrades{"A", "A-", "B+", "B", "", " ", "E", "a"};
const std::vector<std::string> kDones{"True", "False"};
const std::vector<std::string> kTimes{"12:00 am", "9:05 pm", "9:05 PM", "None", "11:59 pm", "junk", "12:05 pm"};

RecordStore randomStore(Random& random, int n) {
    RecordStore s;
    for (int i = 1; i <= n; ++i) {
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

constexpr int kRows = 120;

TEST(ListSortEquivalence, HomeworkOrderEqualsTheExchangeSortForEveryColumnAndDirection) {
    Random random;
    const RecordStore s = randomStore(random, kRows);
    HomeworkRows original;
    for (int i = 1; i <= kRows; ++i) {
        original.ListAssignmentRows.append(random.number(1, kRows));
        original.ListTimes.append(TimeForm(random.number(0, 4) * 30));
        original.ListClassNames.append(random.pick(kTexts));
        original.ListForeColors.append("Black" + std::to_string(i));
        original.ListBackColors.append("White" + std::to_string(i));
    }
    for (int column = 0; column <= 9; ++column) {
        for (int direction : {1, 2}) {
            HomeworkRows fast = original, slow = original;
            SortHomeworkList(fast, s, column, direction, locale);
            auto compare = [&](int i, int j) {
                const int a = slow.ListAssignmentRows(i), b = slow.ListAssignmentRows(j);
                switch (column) {
                    case 1:
                        return textRule(slow.ListClassNames(i), slow.ListClassNames(j));
                    case 2:
                        return textRule(s.AssignmentTypes(a), s.AssignmentTypes(b));
                    case 3:
                        return textRule(s.AssignmentDescriptions(a), s.AssignmentDescriptions(b));
                    case 4:
                        return textRule(s.AssignmentDifficulties(a), s.AssignmentDifficulties(b));
                    case 5:
                        return sign(minutesOf(slow.ListTimes(i)) - minutesOf(slow.ListTimes(j)));
                    case 6:
                        return sign(daysOf(s.AssignmentDates(a)) - daysOf(s.AssignmentDates(b)));
                    case 7:
                        return binaryRule(s.AssignmentDones(a), s.AssignmentDones(b));
                    case 8:
                        return binaryRule(s.AssignmentGrades(a), s.AssignmentGrades(b));
                    default:
                        return 0;
                }
            };
            exchangeSort(kRows, direction, compare, [&](int i) {
                exchangeIn(slow.ListAssignmentRows, i);
                exchangeIn(slow.ListTimes, i);
                exchangeIn(slow.ListForeColors, i);
                exchangeIn(slow.ListBackColors, i);
                exchangeIn(slow.ListClassNames, i);
            });
            SCOPED_TRACE("column " + std::to_string(column) + " direction " + std::to_string(direction));
            EXPECT_EQ(fast.ListAssignmentRows, slow.ListAssignmentRows);
            EXPECT_EQ(fast.ListTimes, slow.ListTimes);
            EXPECT_EQ(fast.ListClassNames, slow.ListClassNames);
            EXPECT_EQ(fast.ListForeColors, slow.ListForeColors);
            EXPECT_EQ(fast.ListBackColors, slow.ListBackColors);
        }
    }
}

TEST(ListSortEquivalence, StudySessionOrderEqualsTheExchangeSort) {
    Random random;
    const RecordStore s = randomStore(random, kRows);
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
    for (int column = 1; column <= 7; ++column) {
        for (int direction : {1, 2}) {
            StudySessionRows fast = original, slow = original;
            SortStudySessionList(fast, s, column, direction, locale);
            auto compare = [&](int i, int j) {
                const int a = slow.ListAssignmentRows(i), b = slow.ListAssignmentRows(j);
                switch (column) {
                    case 1:
                        return textRule(slow.ListClassNames(i), slow.ListClassNames(j));
                    case 2:
                        return textRule(s.AssignmentTypes(a), s.AssignmentTypes(b));
                    case 3:
                        return textRule(s.AssignmentDescriptions(a), s.AssignmentDescriptions(b));
                    case 4:
                        return textRule(s.AssignmentDifficulties(a), s.AssignmentDifficulties(b));
                    case 5:
                        return sign(minutesOf(s.StudySessionLengths(slow.ListSessionLengthRows(i))) -
                                    minutesOf(s.StudySessionLengths(slow.ListSessionLengthRows(j))));
                    case 6:
                        return sign(daysOf(s.StudySessionDates(slow.ListSessionDateRows(i))) -
                                    daysOf(s.StudySessionDates(slow.ListSessionDateRows(j))));
                    default:
                        return sign(daysOf(s.AssignmentDates(a)) - daysOf(s.AssignmentDates(b)));
                }
            };
            exchangeSort(kRows, direction, compare, [&](int i) {
                exchangeIn(slow.ListAssignmentRows, i);
                exchangeIn(slow.ListSessionLengthRows, i);
                exchangeIn(slow.ListSessionDateRows, i);
                exchangeIn(slow.ListForeColors, i);
                exchangeIn(slow.ListBackColors, i);
                exchangeIn(slow.ListClassNames, i);
            });
            SCOPED_TRACE("column " + std::to_string(column) + " direction " + std::to_string(direction));
            EXPECT_EQ(fast.ListAssignmentRows, slow.ListAssignmentRows);
            EXPECT_EQ(fast.ListSessionLengthRows, slow.ListSessionLengthRows);
            EXPECT_EQ(fast.ListSessionDateRows, slow.ListSessionDateRows);
            EXPECT_EQ(fast.ListClassNames, slow.ListClassNames);
            EXPECT_EQ(fast.ListBackColors, slow.ListBackColors);
            // The session rows only count the rows; they keep the gathering order.
            EXPECT_EQ(fast.ListSessionRows, original.ListSessionRows);
        }
    }
}

TEST(ListSortEquivalence, TaskOrderEqualsTheExchangeSortWithItsSubstitutes) {
    Random random;
    const RecordStore s = randomStore(random, kRows);
    TaskRows original;
    for (int i = 1; i <= kRows; ++i) {
        original.ListTaskRows.append(random.number(1, kRows));
        original.ListTaskForeColors.append("Black");
        original.ListTaskBackColors.append("C" + std::to_string(i));
    }
    for (int column = 1; column <= 5; ++column) {
        for (int direction : {1, 2}) {
            TaskRows fast = original, slow = original;
            SortTaskList(fast, s, column, direction, locale);
            const std::string none = direction == 1 ? "z" : "a";
            auto orNone = [&](const std::string& v) { return v == "None" ? none : v; };
            auto taskDay = [&](int r) -> long long {
                if (s.TaskDateExists(r) != "True") return direction == 1 ? 438657 : -109571;
                return daysOf(s.TaskDates(r));
            };
            auto compare = [&](int i, int j) {
                const int a = slow.ListTaskRows(i), b = slow.ListTaskRows(j);
                switch (column) {
                    case 1:
                        return textRule(s.TaskDescriptions(a), s.TaskDescriptions(b));
                    case 2:
                        return textRule(orNone(s.TaskTypes(a)), orNone(s.TaskTypes(b)));
                    case 3:
                        return textRule(orNone(s.TaskPriorities(a)), orNone(s.TaskPriorities(b)));
                    case 4:
                        return sign(taskDay(a) - taskDay(b));
                    default:
                        return binaryRule(s.TaskDones(a), s.TaskDones(b));
                }
            };
            exchangeSort(kRows, direction, compare, [&](int i) {
                exchangeIn(slow.ListTaskRows, i);
                exchangeIn(slow.ListTaskForeColors, i);
                exchangeIn(slow.ListTaskBackColors, i);
            });
            SCOPED_TRACE("column " + std::to_string(column) + " direction " + std::to_string(direction));
            EXPECT_EQ(fast.ListTaskRows, slow.ListTaskRows);
            EXPECT_EQ(fast.ListTaskBackColors, slow.ListTaskBackColors);
        }
    }
}

TEST(ListSortEquivalence, EventOrderEqualsTheExchangeSortWithItsSubstitutes) {
    Random random;
    const RecordStore s = randomStore(random, kRows);
    EventRows original;
    for (int i = 1; i <= kRows; ++i) {
        original.ListEventRows.append(Int16(random.number(1, kRows)));
        original.ListEventDates.append(dateFromYmd(2026, 11, random.number(1, 5)));
        original.ListEventForeColors.append("Black");
        original.ListEventBackColors.append("C" + std::to_string(i));
    }
    for (int column = 1; column <= 5; ++column) {
        for (int direction : {1, 2}) {
            EventRows fast = original, slow = original;
            SortEventList(fast, s, column, direction, locale);
            const std::string none = direction == 1 ? "z" : "a";
            auto orNone = [&](const std::string& v) { return v == "None" ? none : v; };
            // Minutes of the time as an "h:mm am" text, or the substitute.
            auto minutes = [&](const std::string& t) -> long long {
                if (t.size() < 7 || t[t.size() - 3] != ' ' || t.find(':') == std::string::npos)
                    return direction == 1 ? 1439 : 0;
                const long long h = LeadingNumber(t.substr(0, t.find(':')));
                const long long m = LeadingNumber(t.substr(t.find(':') + 1, 2));
                const bool pm = t[t.size() - 2] == 'p' || t[t.size() - 2] == 'P';
                return (h % 12 + (pm ? 12 : 0)) * 60 + m;
            };
            auto compare = [&](int i, int j) {
                const int a = slow.ListEventRows(i), b = slow.ListEventRows(j);
                switch (column) {
                    case 1:
                        return textRule(s.EventDescriptions(a), s.EventDescriptions(b));
                    case 2:
                        return textRule(orNone(s.EventTypes(a)), orNone(s.EventTypes(b)));
                    case 3:
                        return sign(slow.ListEventDates(i) - slow.ListEventDates(j));
                    case 4:
                        return sign(minutes(s.EventTimes(a)) - minutes(s.EventTimes(b)));
                    default:
                        return textRule(orNone(s.EventRecurrences(a)), orNone(s.EventRecurrences(b)));
                }
            };
            exchangeSort(kRows, direction, compare, [&](int i) {
                exchangeIn(slow.ListEventRows, i);
                exchangeIn(slow.ListEventDates, i);
                exchangeIn(slow.ListEventForeColors, i);
                exchangeIn(slow.ListEventBackColors, i);
            });
            SCOPED_TRACE("column " + std::to_string(column) + " direction " + std::to_string(direction));
            EXPECT_EQ(fast.ListEventRows, slow.ListEventRows);
            EXPECT_EQ(fast.ListEventDates, slow.ListEventDates);
            EXPECT_EQ(fast.ListEventBackColors, slow.ListEventBackColors);
        }
    }
}

TEST(ListSortEquivalence, ReminderOrderEqualsTheExchangeSortWithItsSubstitutes) {
    Random random;
    ReminderRows original;
    const std::vector<std::string> kinds{"Homework", "Task", "Event", "task"};
    const std::vector<std::string> classes{"", "Biology", "biology", "Art"};
    for (int i = 1; i <= kRows; ++i) {
        original.ReminderRecords.append(Int16(i));
        original.ReminderKinds.append(random.pick(kinds));
        original.ReminderClasses.append(random.pick(classes));
        original.ReminderTypes.append(random.pick(kTexts));
        original.ReminderDescriptions.append(random.pick(kTexts));
        original.ReminderDays.append(random.number(-3, 3));
        original.ReminderDates.append(dateFromYmd(2026, 11, random.number(18, 24)));
        original.ReminderForeColors.append("Black");
        original.ReminderBackColors.append("C" + std::to_string(i));
    }
    for (int column = 1; column <= 6; ++column) {
        for (int direction : {1, 2}) {
            ReminderRows fast = original, slow = original;
            SortReminderList(fast, column, direction, locale);
            auto cls = [&](const std::string& v) {
                return v.empty() ? (direction == 1 ? std::string(10, 'z') : std::string(10, ' ')) : v;
            };
            auto compare = [&](int i, int j) {
                switch (column) {
                    case 1:
                        return textRule(slow.ReminderKinds(i), slow.ReminderKinds(j));
                    case 2:
                        return textRule(cls(slow.ReminderClasses(i)), cls(slow.ReminderClasses(j)));
                    case 3:
                        return textRule(slow.ReminderTypes(i), slow.ReminderTypes(j));
                    case 4:
                        return textRule(slow.ReminderDescriptions(i), slow.ReminderDescriptions(j));
                    case 5:
                        return sign(slow.ReminderDays(i) - slow.ReminderDays(j));
                    default:
                        return sign(slow.ReminderDates(i) - slow.ReminderDates(j));
                }
            };
            exchangeSort(kRows, direction, compare, [&](int i) {
                exchangeIn(slow.ReminderRecords, i);
                exchangeIn(slow.ReminderKinds, i);
                exchangeIn(slow.ReminderForeColors, i);
                exchangeIn(slow.ReminderBackColors, i);
                exchangeIn(slow.ReminderClasses, i);
                exchangeIn(slow.ReminderTypes, i);
                exchangeIn(slow.ReminderDescriptions, i);
                exchangeIn(slow.ReminderDays, i);
                exchangeIn(slow.ReminderDates, i);
            });
            SCOPED_TRACE("column " + std::to_string(column) + " direction " + std::to_string(direction));
            EXPECT_EQ(fast.ReminderRecords, slow.ReminderRecords);
            EXPECT_EQ(fast.ReminderClasses, slow.ReminderClasses);
            EXPECT_EQ(fast.ReminderDates, slow.ReminderDates);
        }
    }
}

// The ranks kept between sorts give the order a fresh comparison gives, whatever came in
// between: other texts, fewer texts, the other rule, the other direction.
class CountingLocale : public FakeLocale {
public:
    int compareText(const std::string& a, const std::string& b) const override {
        ++comparisons;
        return FakeLocale::compareText(a, b);
    }
    mutable int comparisons = 0;
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
    // A second sort of the same texts compares nothing.
    SortKeys keys;
    keys.rule = SortRule::Text;
    for (const std::string& text : kTexts) keys.texts.push_back(&text);
    SortedOrder(keys, 1, counting, &ranks);
    const int before = counting.comparisons;
    SortedOrder(keys, 2, counting, &ranks);
    EXPECT_EQ(counting.comparisons, before);
}

// --- Named cases ----------------------------------------------------------------------------

RecordStore homeworkStore(std::initializer_list<std::pair<const char*, const char*>> doneAndGrade) {
    RecordStore s;
    for (const auto& [done, grade] : doneAndGrade) {
        s.AssignmentDones.append(done);
        s.AssignmentGrades.append(grade);
        s.AssignmentTypes.append("Lab");
        s.AssignmentDates.append("2026/11/21");
    }
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

TEST(ListSort, DoneSortsUnfinishedFirstAndTiesKeepGatheringOrderInBothDirections) {
    const RecordStore s = homeworkStore({{"True", ""}, {"False", ""}, {"True", ""}, {"False", ""}, {"False", ""}});
    HomeworkRows rows = rowsFor(5);
    SortHomeworkList(rows, s, 7, 1, locale);
    EXPECT_EQ(rows.ListAssignmentRows, (Column<int>{2, 4, 5, 1, 3}));
    EXPECT_EQ(rows.ListClassNames(1), "Class2");  // the row's other columns move with it
    SortHomeworkList(rows, s, 7, 2, locale);
    EXPECT_EQ(rows.ListAssignmentRows, (Column<int>{1, 3, 2, 4, 5}));  // ties not reversed
}

TEST(ListSort, GradesSortByCharacterCodeNotByValue) {
    const RecordStore s = homeworkStore({{"False", "B+"}, {"False", "A-"}, {"False", "A"}, {"False", "a"}});
    HomeworkRows rows = rowsFor(4);
    SortHomeworkList(rows, s, 8, 1, locale);
    EXPECT_EQ(rows.ListAssignmentRows, (Column<int>{3, 2, 1, 4}));
}

TEST(ListSort, TimesSortAsMinutesAndDoneRowsAsZero) {
    const RecordStore s = homeworkStore({{"False", ""}, {"True", ""}, {"False", ""}});
    HomeworkRows rows = rowsFor(3);
    rows.ListTimes = {"02:05", "00:00", "00:45"};
    SortHomeworkList(rows, s, 5, 2, locale);
    EXPECT_EQ(rows.ListAssignmentRows, (Column<int>{1, 3, 2}));
}

TEST(ListSort, NumberColumnUnknownColumnAndShortListsLeaveTheOrder) {
    const RecordStore s = homeworkStore({{"True", ""}, {"False", ""}});
    for (int column : {0, 9, -1}) {
        HomeworkRows rows = rowsFor(2);
        SortHomeworkList(rows, s, column, 1, locale);
        EXPECT_EQ(rows.ListAssignmentRows, (Column<int>{1, 2}));
    }
    HomeworkRows one = rowsFor(1);
    one.ListClassNames.clear();
    SortHomeworkList(one, s, 1, 1, locale);
    EXPECT_TRUE(one.ListClassNames.empty());  // one row: nothing moves, nothing is filled up
}

TEST(ListSort, ARowColumnThatRunsShortIsFilledUpSoEveryRowKeepsWhatItShowed) {
    // Three rows, but the class of the first assignment is gone: the class entries of the
    // later rows moved up, and the last row has none.
    const RecordStore s = homeworkStore({{"True", ""}, {"True", ""}, {"False", ""}});
    HomeworkRows rows = rowsFor(3);
    rows.ListClassNames = {"Second", "Third"};
    rows.ListForeColors = {"Black", "Black"};
    rows.ListBackColors = {"Gold", "Gold"};
    SortHomeworkList(rows, s, 7, 1, locale);
    EXPECT_EQ(rows.ListAssignmentRows, (Column<int>{3, 1, 2}));
    EXPECT_EQ(rows.ListClassNames, (TextColumn{"", "Second", "Third"}));
    EXPECT_EQ(rows.ListBackColors, (TextColumn{"", "Gold", "Gold"}));
}

TEST(ListSort, UndatedTasksAndNoneTypesSinkInBothDirections) {
    RecordStore s;
    const struct {
        const char *exists, *date, *type;
    } tasks[] = {{"False", "2000/01/01", "None"}, {"True", "2026/11/22", "Work"}, {"True", "2026/11/20", "Home"}};
    for (const auto& t : tasks) {
        s.TaskDateExists.append(t.exists);
        s.TaskDates.append(t.date);
        s.TaskTypes.append(t.type);
    }
    for (int direction : {1, 2}) {
        TaskRows rows;
        rows.ListTaskRows = {1, 2, 3};
        SortTaskList(rows, s, 4, direction, locale);
        EXPECT_EQ(rows.ListTaskRows(3), 1) << "date, direction " << direction;
        rows.ListTaskRows = {1, 2, 3};
        SortTaskList(rows, s, 2, direction, locale);
        EXPECT_EQ(rows.ListTaskRows(3), 1) << "type, direction " << direction;
    }
}

TEST(ListSort, EventsWithoutATimeSinkAndRemindersWithoutAClassSink) {
    RecordStore s;
    s.EventTimes = {"None", "9:05 pm", "12:05 am"};
    for (int direction : {1, 2}) {
        EventRows rows;
        rows.ListEventRows = {1, 2, 3};
        rows.ListEventDates = {1, 1, 1};
        SortEventList(rows, s, 4, direction, locale);
        EXPECT_EQ(rows.ListEventRows(3), 1) << direction;
        EXPECT_EQ(rows.ListEventRows(1), direction == 1 ? 3 : 2);

        ReminderRows reminders;
        reminders.ReminderRecords = {1, 2, 3};
        reminders.ReminderClasses = {"", "Biology", "Art"};
        SortReminderList(reminders, 2, direction, locale);
        EXPECT_EQ(reminders.ReminderRecords(3), 1) << direction;
        EXPECT_EQ(reminders.ReminderClasses(3), "");
    }
}

}  // namespace
}  // namespace qh
