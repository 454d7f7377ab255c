// The event list and the reminder list with 32,767 events, the most the record numbers
// allow, each expected to refresh within a frame (under 16 ms). A refresh is what
// RefreshDisplay runs for the list: the grid's layout and the list builder (gather,
// summary, sort, paint); a scroll step is the scroll bar's change, which does the same
// from another top row. Both reuse the ranks of the texts of the last sort; a first sort
// by a text column has none and compares them all. Painting goes to recording canvases,
// so the figures are the core's own work. The descriptions share a long beginning, the
// costly case for a text comparison.
//
// The events are a planner of many years: one-off events over 46 years, birthdays that
// recur yearly, classes on one or two weekdays for a few weeks, monthly meetings without
// end. The event counters are 16-bit, so the mix keeps a year's occurrences (about
// 19,000) under 32,768. Beside them stand 1,000 tasks and 800 assignments with reminders.
#include <benchmark/benchmark.h>

#include <memory>
#include <random>
#include <string>

#include "common/flag_text.h"
#include "list_view/list_fixture.h"
#include "list_view/list_rows.h"
#include "record_store/color_vocabulary.h"
#include "recurrence/event_records.h"
#include "shell/main_window.h"
#include "support/fake_platform.h"

namespace qh {
namespace {

constexpr int kEvents = 32767;
const char* const kEventTypes[] = {"None", "School", "Home", "Holiday", "Personal",
                                   "Friends", "Family", "Recreation", "Work"};
const char* const kTimes[] = {"None", "8:00 AM", "9:05 PM", "12:30 PM", "None", "7:15 PM"};

void fill(RecordStore& s) {
    std::mt19937 rng(32767);
    auto uniform = [&](int low, int high) { return std::uniform_int_distribution<int>(low, high)(rng); };
    auto dateIn = [&](int fromYear, int toYear) {
        return uniform(dateFromYmd(fromYear, 1, 1), dateFromYmd(toYear, 12, 31));
    };
    auto reminder = [&] { return uniform(0, 2) == 0 ? std::string("None") : std::to_string(uniform(2, 30)) + " Days"; };
    for (int i = 0; i < kEvents; ++i) {
        test::EventFields f;
        f.type = kEventTypes[uniform(0, 8)];
        f.reminder = reminder();
        f.description = "Event description number " + std::to_string(uniform(1, 99999));
        Date first;
        if (i < 27000) {  // one-off
            first = dateIn(2000, 2045);
        } else if (i < 31000) {  // birthdays
            f.recurrence = "Year";
            f.type = "Birthday";
            first = dateIn(1950, 2026);
        } else if (i < 32000) {  // classes of a term
            f.recurrence = "Day";
            f.type = "Class";
            first = dateIn(2026, 2027);
            f.repeatDaily = "FFFFFFF";
            for (int d = uniform(1, 2); d > 0; --d) f.repeatDaily[std::size_t(uniform(0, 4))] = 'T';
            f.ends = flagText(true);
            f.endDate = dateText(first + uniform(14, 84));
        } else {  // monthly, on the same date, open-ended
            f.recurrence = "Month";
            first = dateIn(1990, 2026);
        }
        f.date = dateText(first);
        const int row = test::addEvent(s, f);
        s.EventTimes(row) = kTimes[uniform(0, 5)];
    }
    for (int k = 1; k <= 12; ++k) testing::addClass(s, k, "Class " + std::to_string(k), "Black", "Gold");
    for (int i = 0; i < 1000; ++i)
        testing::addTask(s, {.date = dateText(dateIn(2026, 2027)), .done = uniform(0, 1) == 1, .reminder = reminder()});
    for (int i = 0; i < 800; ++i)
        testing::addAssignment(s, {.classLink = uniform(1, 12),
                                   .date = dateText(dateIn(2026, 2026)),
                                   .done = uniform(0, 1) == 1,
                                   .reminder = std::to_string(uniform(1, 30)) + " Days"});
}

// A main window over the filled store, laid out once per view.
struct Planner {
    Planner() : window(store, fake.platform) {
        fill(store);
        window.colors->BuildColorValues();
        window.state.ClickedDate = window.state.DisplayedDate = dateFromYmd(2026, 10, 1);
    }
    void enter(Mode mode, const char* list, const char* range, int sortColumn) {
        window.state.CurrentMode = mode;
        window.c("ComboList").text = list;
        window.c("ComboDateRange").text = range;
        window.state.SortColumn = Int16(sortColumn);
        window.state.SortDirection = SortDirection::Ascending;
        window.c("VSGridScroll").value = 1;
        this->mode = mode;
        refresh();
    }
    void refresh() {
        window.LayoutGrid(mode);
        window.BuildList(mode);
    }
    FakePlatform fake;
    RecordStore store;
    MainWindow window;
    Mode mode = Mode::Events;
};

Planner& planner() {
    static std::unique_ptr<Planner> p = std::make_unique<Planner>();
    return *p;
}

struct View {
    Mode mode;
    const char* list;
    const char* range;
    int sortColumn;
};
// Each range of the event list by date (the mode's default sort), the year by name, and
// the reminders by "When" (their default) and by description.
constexpr View kViews[] = {
    {Mode::Events, "All", "Day", 3},        {Mode::Events, "All", "Week", 3},
    {Mode::Events, "All", "Month", 3},      {Mode::Events, "All", "Year", 3},
    {Mode::Events, "All", "Year", 1},       {Mode::Reminders, "All", "Today", 5},
    {Mode::Reminders, "All", "Today", 4},
};

void Refresh(benchmark::State& state) {
    Planner& p = planner();
    const View& v = kViews[state.range(0)];
    p.enter(v.mode, v.list, v.range, v.sortColumn);
    for (auto _ : state) p.refresh();
    state.counters["rows"] = p.window.state.RowCount;
}

// A refresh with no ranks kept from an earlier sort, as after a click on another header:
// every text of the sort column is compared anew.
void FirstSort(benchmark::State& state) {
    Planner& p = planner();
    const View& v = kViews[state.range(0)];
    p.enter(v.mode, v.list, v.range, v.sortColumn);
    for (auto _ : state) {
        p.window.state.ListSortRanks = {};
        p.refresh();
    }
    state.counters["rows"] = p.window.state.RowCount;
}

void ScrollStep(benchmark::State& state) {
    Planner& p = planner();
    const View& v = kViews[state.range(0)];
    p.enter(v.mode, v.list, v.range, v.sortColumn);
    int value = 1;
    for (auto _ : state) {
        value = value % 50 + 1;
        p.window.scrollTo("VSGridScroll", value + 1);
    }
    state.counters["top"] = p.window.state.TopRow;
}

void Views(benchmark::internal::Benchmark* b) {
    b->ArgName("view");
    for (int i = 0; i < int(std::size(kViews)); ++i) b->Arg(i);
    b->Unit(benchmark::kMillisecond);
}

BENCHMARK(Refresh)->Apply(Views);
BENCHMARK(ScrollStep)->Apply(Views);
// The views sorted by a text column: the year by name, the reminders by description.
BENCHMARK(FirstSort)->ArgName("view")->Arg(4)->Arg(6)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qh
