// The single-date test, the range walk, the calendar marks and the event reminders must
// agree on the dates of every rule the event editor can make. The property draws
// thousands of such events from a fixed seed, so a failure repeats exactly. A "Last"
// weekday rule first on day 22..28 of a month that holds a later such weekday is among
// them, and has its own cases below: its first date is an occurrence everywhere.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "recurrence/date_primitives.h"
#include "recurrence/event_records.h"
#include "recurrence/expansion.h"
#include "recurrence/occurrence.h"
#include "recurrence/reminders.h"

namespace qh {
namespace {

using test::addEvent;
using test::EventFields;

constexpr unsigned kSeed = 20261121;
const char* const kOrdinals[] = {"First", "Second", "Third", "Fourth", "Last"};
const char* const kDayChoices[] = {"Day", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"};
const char* const kWeekdayNames[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
const char* const kTypes[] = {"None",     "Class",   "School", "Home",       "Birthday", "Holiday",
                              "Personal", "Friends", "Family", "Recreation", "Work"};

// Events as the editor lets them through: a weekly rule has a ticked day, an end date is
// not before the first date, and an ordinal rule fits its own first date.
class EditorEvents {
public:
    explicit EditorEvents(unsigned seed) : rng_(seed) {}

    int uniform(int low, int high) { return std::uniform_int_distribution<int>(low, high)(rng_); }
    template <class T, std::size_t N>
    const T& pick(const T (&items)[N]) {
        return items[std::size_t(uniform(0, int(N) - 1))];
    }

    EventFields next() {
        EventFields f;
        const int kind = uniform(0, 99);
        f.recurrence = kind < 20 ? "None" : kind < 45 ? "Day" : kind < 75 ? "Month" : "Year";
        // Mostly recent dates, some centuries back, for walks that must skip far ahead.
        Date first = uniform(0, 9) == 0 ? uniform(dateFromYmd(1700, 1, 1), dateFromYmd(1900, 12, 31))
                                        : uniform(dateFromYmd(1995, 1, 1), dateFromYmd(2035, 12, 31));
        f.sameDate = "True";
        f.repeatNumber = pick(kOrdinals);
        f.repeatDay = pick(kDayChoices);
        if ((f.recurrence == "Month" || f.recurrence == "Year") && uniform(0, 9) < 6) {
            first = ordinalRule(first, f);
            f.sameDate = "False";
        }
        f.date = dateText(first);
        f.repeatDaily.clear();
        for (int i = 0; i < 7; ++i) f.repeatDaily += uniform(0, 2) == 0 ? 'T' : 'F';
        if (f.recurrence == "Day" && f.repeatDaily == "FFFFFFF") f.repeatDaily[std::size_t(uniform(0, 6))] = 'T';
        const int endChance = f.recurrence == "None" ? 10 : f.recurrence == "Year" ? 30 : 65;
        if (uniform(0, 99) < endChance) {
            f.ends = "True";
            f.endDate = dateText(first + uniform(0, uniform(0, 1) ? 60 : 2500));
        } else {
            // The column keeps whatever the editor held; it must not be read.
            f.endDate = dateText(first + uniform(-900, 900));
        }
        const int advance = uniform(-8, 30);
        f.reminder = advance <= 0 ? "None" : advance == 1 ? "1 Day" : std::to_string(advance) + " Days";
        f.type = pick(kTypes);
        return f;
    }

private:
    // Moves the first date within its month to a day that one of the ordinal rules fits,
    // and fills the two combos as the editor's fit test demands.
    Date ordinalRule(Date first, EventFields& f) {
        const Ymd ymd = ymdOf(first);
        const int lastDay = daysInMonth(ymd.year, ymd.month);
        const int choice = uniform(0, 9);
        if (choice < 2) {  // "First" .. "Fourth" "Day": days 1 to 4
            const int day = uniform(1, 4);
            f.repeatNumber = kOrdinals[day - 1];
            f.repeatDay = "Day";
            return dateFromYmd(ymd.year, ymd.month, day);
        }
        if (choice < 4) {  // "Last" "Day": the month's last day
            f.repeatNumber = "Last";
            f.repeatDay = "Day";
            return dateFromYmd(ymd.year, ymd.month, lastDay);
        }
        const int day = uniform(1, lastDay);
        const Date date = dateFromYmd(ymd.year, ymd.month, day);
        f.repeatDay = kWeekdayNames[weekdayOf(date) - 1];
        if (day <= 21) {
            f.repeatNumber = kOrdinals[(day - 1) / 7];
        } else if (day >= 29 || day + 7 > lastDay) {
            // The last such weekday of the month: "Last", or "Fourth" where that is the same.
            f.repeatNumber = (day <= 28 && uniform(0, 1)) ? "Fourth" : "Last";
        } else {
            // A later such weekday follows: "Fourth" names this one, and "Last" the later
            // one, with the first date an occurrence all the same.
            f.repeatNumber = uniform(0, 1) ? "Fourth" : "Last";
        }
        return date;
    }

    std::mt19937 rng_;
};

std::string describe(const RecordStore& store) {
    std::ostringstream out;
    for (int i = 1; i <= store.EventRecordNos.count(); ++i)
        out << "event " << i << ": " << store.EventDates(i) << " " << store.EventRecurrences(i) << " same "
            << store.EventSameDates(i) << " " << store.EventRepeatNumbers(i) << " " << store.EventRepeatDays(i) << " "
            << store.EventRepeatDailies(i) << " ends " << store.EventEnds(i) << " " << store.EventEndDates(i) << " "
            << store.EventReminders(i) << " " << store.EventTypes(i) << "\n";
    return out.str();
}

// Dates of [from, to] on which the single-date test hits row `index`. The rule is read
// once (EventOccursOn reads it anew for every date, which is what it is for).
std::vector<Date> hits(const RecordStore& store, int index, Date from, Date to) {
    std::vector<Date> dates;
    const EventRule rule = readEventRule(store, index);
    for (Date d = from; d <= to; ++d)
        if (occursOn(rule, calendarDay(d))) dates.push_back(d);
    if (!dates.empty()) {
        EXPECT_TRUE(EventOccursOn(store, dates.front(), Int16(index)));
    }
    return dates;
}

// Checks that the dates a walk listed for each event, in any order, are its hits from
// `from` to `to(event)`; returns how many there are.
int expectHits(const RecordStore& store, std::map<int, std::vector<Date>> listed, Date from,
               const std::function<Date(int)>& to) {
    int total = 0;
    for (int i = 1; i <= store.EventRecordNos.count(); ++i) {
        const std::vector<Date> expected = hits(store, i, from, to(i));
        std::sort(listed[i].begin(), listed[i].end());
        auto texts = [](const std::vector<Date>& dates) {
            std::vector<std::string> out;
            for (Date d : dates) out.push_back(dateText(d));
            return out;
        };
        EXPECT_EQ(texts(listed[i]), texts(expected)) << "event " << i;
        total += int(expected.size());
    }
    return total;
}

// The range walk from `start` to the end of `range`, and the reminder walk from `start` to
// each event's advance notice, list exactly the hits of the single-date test; returns how
// many each listed.
std::pair<int, int> expectWalksListTheHits(const RecordStore& store, Date start, const std::string& range) {
    const EventRows rows = ExpandEvents(store, start, range, "All");
    std::map<int, std::vector<Date>> found;
    for (int r = 1; r <= rows.ListEventRows.count(); ++r)
        found[rows.ListEventRows(r)].push_back(rows.ListEventDates(r));
    const Date end = EventRangeEnd(start, range);
    const int total = expectHits(store, found, start, [end](int) { return end; });
    EXPECT_EQ(rows.EventTotal, total);
    EXPECT_EQ(rows.EventClassCount + rows.EventOtherCount, total);

    ReminderRows reminders;
    GatherEventReminders(store, start, "All", reminders);
    found.clear();
    for (int r = 1; r <= reminders.ReminderRecords.count(); ++r) {
        EXPECT_EQ(reminders.ReminderDays(r), DaysBetween(start, reminders.ReminderDates(r)));
        found[reminders.ReminderRecords(r)].push_back(reminders.ReminderDates(r));
    }
    const int due =
        expectHits(store, found, start, [&](int i) { return start - ReminderOffset(store.EventReminders(i)); });
    EXPECT_EQ(reminders.EventReminderCount, due);
    return {total, due};
}

// A store of one to four events and a date near the first of them (or in the 2020s for
// an event centuries back).
struct Trial {
    RecordStore store;
    Date near = 0;
};

Trial drawTrial(EditorEvents& events) {
    Trial trial;
    const int count = events.uniform(1, 4);
    for (int i = 0; i < count; ++i) addEvent(trial.store, events.next());
    const Date first = dateFromText(trial.store.EventDates(1));
    trial.near = yearOf(first) < 1990 ? events.uniform(dateFromYmd(2020, 1, 1), dateFromYmd(2029, 12, 31))
                                      : first + events.uniform(-400, 1500);
    return trial;
}

TEST(RuleAgreement, TheWalksAndTheCalendarMarksFindExactlyTheHitsOfTheSingleDateTest) {
    EditorEvents events(kSeed);
    const char* const ranges[] = {"Week", "Month", "Year"};
    const char* const filters[] = {"All", "Classes", "Other Events"};
    long long expanded = 0, reminded = 0, markedCells = 0;
    for (int trialNo = 0; trialNo < 3000 && !testing::Test::HasFailure(); ++trialNo) {
        Trial trial = drawTrial(events);
        const RecordStore& store = trial.store;
        const Date start = trial.near;
        const std::string range = events.pick(ranges), filter = events.pick(filters);
        SCOPED_TRACE("trial " + std::to_string(trialNo) + ", " + range + " and " + filter + " from " + dateText(start) +
                     "\n" + describe(store));

        const auto [total, due] = expectWalksListTheHits(store, start, range);
        expanded += total;
        reminded += due;

        // The calendar marks of the 42 days from the date: the days with a hit that
        // passes the filter.
        std::array<bool, 42> marked{};
        for (int i = 1; i <= store.EventRecordNos.count(); ++i)
            if (filter == "All" || (filter == "Classes") == (store.EventTypes(i) == "Class"))
                for (Date d : hits(store, i, start, start + 41)) marked[std::size_t(d - start)] = true;
        EXPECT_EQ(MarkEventDays(store, start, filter).CellMarked, marked);
        markedCells += std::count(marked.begin(), marked.end(), true);
    }
    // The draw must reach real occurrences, or the property proves nothing.
    EXPECT_GT(expanded, 25000);
    EXPECT_GT(reminded, 2500);
    EXPECT_GT(markedCells, 5000);
}

// A "Last" weekday rule first on an earlier such weekday of its month: the first date and
// the month's last such weekday are both occurrences, in the range lists and the
// reminders as in the single-date test, day by day over ranges and notices around it.
TEST(RuleAgreement, LastWeekdayFirstOnAnEarlierSuchWeekdayIsListedEverywhere) {
    const struct {
        const char* name;
        EventFields event;
        const char* laterSameWeekday;  // the rule's own day in the first month
    } cases[] = {
        {"monthly, Monday the 22nd, a Monday the 29th follows",
         {.date = "2022/08/22", .recurrence = "Month", .sameDate = "False", .repeatNumber = "Last",
          .repeatDay = "Monday", .reminder = "7 Days"},
         "2022/08/29"},
        {"yearly, Friday the 23rd of January",
         {.date = "2026/01/23", .recurrence = "Year", .sameDate = "False", .repeatNumber = "Last",
          .repeatDay = "Friday", .reminder = "10 Days"},
         "2026/01/30"},
        {"monthly in a leap February, Thursday the 22nd",
         {.date = "2024/02/22", .recurrence = "Month", .sameDate = "False", .repeatNumber = "Last",
          .repeatDay = "Thursday", .reminder = "1 Day"},
         "2024/02/29"},
        {"ending on its first date",
         {.date = "2022/08/22", .recurrence = "Month", .sameDate = "False", .repeatNumber = "Last",
          .repeatDay = "Monday", .ends = "True", .endDate = "2022/08/22", .reminder = "7 Days"},
         nullptr},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        RecordStore store;
        addEvent(store, c.event);
        const Date first = dateFromText(c.event.date);

        Column<Date> firstWeek{first};
        if (c.laterSameWeekday) firstWeek.append(dateFromText(c.laterSameWeekday));
        EXPECT_EQ(ExpandEvents(store, first, "Week", "All").ListEventDates, firstWeek);

        for (Date start = first - 10; start <= first + 1; ++start)
            for (const char* range : {"Week", "Month", "Year"}) {
                SCOPED_TRACE(std::string(range) + " and reminders from " + dateText(start));
                expectWalksListTheHits(store, start, range);
            }
    }
}

}  // namespace
}  // namespace qh
