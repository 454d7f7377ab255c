// Recurring events at the largest size the record numbers allow: 32,767 events of mixed
// rules, as a student's planner might hold them after many years (one-off events,
// birthdays, classes on set weekdays for a term, monthly meetings). Each routine runs on
// every refresh and is expected under 16 ms:
//   - MarkEventDays for the six weeks of a month,
//   - ExpandEvents over a "Year" range,
//   - GatherReminders with those events, plus tasks and homework.
// The event counters are 16-bit, so the mix keeps a year's occurrences under 32,768.
#include <benchmark/benchmark.h>

#include <random>
#include <string>

#include "common/flag_text.h"
#include "list_view/list_fixture.h"
#include "recurrence/event_records.h"
#include "recurrence/expansion.h"
#include "recurrence/occurrence.h"
#include "recurrence/reminders.h"

namespace qh {
namespace {

constexpr int kEvents = 32767;
const char* const kOrdinals[] = {"First", "Second", "Third", "Fourth", "Last"};
const char* const kWeekdayNames[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
const char* const kTypes[] = {"None", "Class", "School", "Home", "Birthday", "Holiday",
                              "Personal", "Friends", "Family", "Recreation", "Work"};

RecordStore& plannerStore() {
    static RecordStore store = [] {
        RecordStore s;
        std::mt19937 rng(32767);
        auto uniform = [&](int low, int high) { return std::uniform_int_distribution<int>(low, high)(rng); };
        auto dateIn = [&](int fromYear, int toYear) {
            return uniform(dateFromYmd(fromYear, 1, 1), dateFromYmd(toYear, 12, 31));
        };
        for (int i = 0; i < kEvents; ++i) {
            test::EventFields f;
            f.type = kTypes[uniform(0, 10)];
            f.reminder = uniform(0, 2) == 0 ? "None" : std::to_string(uniform(2, 30)) + " Days";
            const int kind = uniform(0, 99);
            Date first;
            if (kind < 45) {  // one-off
                first = dateIn(2000, 2045);
            } else if (kind < 70) {  // yearly, mostly birthdays, no end
                f.recurrence = "Year";
                first = dateIn(1950, 2045);
                f.type = "Birthday";
            } else if (kind < 88) {  // classes on one to three weekdays for a term
                f.recurrence = "Day";
                f.type = "Class";
                first = dateIn(2000, 2045);
                f.repeatDaily = "FFFFFFF";
                for (int d = uniform(1, 3); d > 0; --d) f.repeatDaily[std::size_t(uniform(0, 4))] = 'T';
                f.ends = flagText(true);
                f.endDate = dateText(first + uniform(14, 120));
            } else {  // monthly: same date or an ordinal weekday, six months or open-ended
                f.recurrence = "Month";
                first = dateIn(1990, 2045);
                if (uniform(0, 1)) {
                    const Ymd ymd = ymdOf(first);
                    first = dateFromYmd(ymd.year, ymd.month, uniform(1, 21));
                    f.sameDate = flagText(false);
                    f.repeatNumber = kOrdinals[(ymdOf(first).day - 1) / 7];
                    f.repeatDay = kWeekdayNames[weekdayOf(first) - 1];
                }
                if (uniform(0, 3) != 0) {
                    f.ends = flagText(true);
                    f.endDate = dateText(addMonths(first, 6));
                }
            }
            f.date = dateText(first);
            test::addEvent(s, f);
        }
        for (int i = 0; i < 20; ++i) testing::addClass(s, i + 1, "Class " + std::to_string(i + 1));
        for (int i = 0; i < 5000; ++i)
            testing::addTask(s, {.date = dateText(dateIn(2024, 2028)),
                                 .done = uniform(0, 3) != 0,
                                 .reminder = std::to_string(uniform(1, 30)) + " Days"});
        for (int i = 0; i < 1000; ++i)
            testing::addAssignment(s, {.classLink = uniform(1, 20),
                                       .date = dateText(dateIn(2026, 2026)),
                                       .done = uniform(0, 1) == 0,
                                       .reminder = std::to_string(uniform(1, 30)) + " Days"});
        return s;
    }();
    return store;
}

const Date kMay2026FirstCell = dateFromYmd(2026, 4, 26);
const Date kClickedDate = dateFromYmd(2026, 5, 14);

void BM_MarkEventDaysForAMonth(benchmark::State& state) {
    const RecordStore& store = plannerStore();
    int marked = 0;
    for (auto _ : state) {
        const EventDayMarks marks = MarkEventDays(store, kMay2026FirstCell, "Classes");
        benchmark::DoNotOptimize(marks.CellMarked.data());
        marked = 0;
        for (bool m : marks.CellMarked) marked += m ? 1 : 0;
    }
    state.counters["cells_marked"] = marked;
}
BENCHMARK(BM_MarkEventDaysForAMonth)->Unit(benchmark::kMillisecond);

void BM_ExpandEventsOverAYear(benchmark::State& state) {
    const RecordStore& store = plannerStore();
    int total = 0, listed = 0;
    for (auto _ : state) {
        const EventRows rows = ExpandEvents(store, kClickedDate, "Year", "All");
        benchmark::DoNotOptimize(rows.ListEventDates.values().data());
        total = rows.EventTotal;
        listed = rows.ListEventRows.count();
    }
    state.counters["occurrences"] = total;
    state.counters["rows"] = listed;
}
BENCHMARK(BM_ExpandEventsOverAYear)->Unit(benchmark::kMillisecond);

void BM_GatherReminders(benchmark::State& state) {
    const RecordStore& store = plannerStore();
    int rowsFound = 0, events = 0;
    for (auto _ : state) {
        const ReminderRows rows = GatherReminders(store, kClickedDate, "All");
        benchmark::DoNotOptimize(rows.ReminderDates.values().data());
        rowsFound = rows.ReminderRecords.count();
        events = rows.EventReminderCount;
    }
    state.counters["rows"] = rowsFound;
    state.counters["event_rows"] = events;
}
BENCHMARK(BM_GatherReminders)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qh
