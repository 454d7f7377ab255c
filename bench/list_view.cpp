// The lists of the main window at two sizes, each expected to rebuild within a frame:
//   - the largest the record numbers allow: 32,767 assignments in the active term,
//     32,767 study sessions and 32,767 tasks (under 16 ms per refresh and per scroll step),
//   - a student's full term: 800 assignments, 3,000 study sessions, 300 tasks (under 2 ms).
// A refresh is what RefreshDisplay runs for the list (the grid's layout and the list
// builder: gather, summary, sort, paint); a scroll step is the scroll bar's change, which
// does the same from another top row. Painting goes to recording canvases, so the figures
// are the core's own work. Also measured: sorts by a text column, the grade list and the
// study advice, which run on the same refreshes.
#include <benchmark/benchmark.h>

#include <memory>
#include <random>
#include <string>

#include "common/text.h"
#include "grades/gpa.h"
#include "grades/study_time.h"
#include "list_view/list_fixture.h"
#include "list_view/list_rows.h"
#include "record_store/color_vocabulary.h"
#include "shell/main_window.h"
#include "support/fake_platform.h"

namespace qh {
namespace {

struct Size {
    int assignments, sessions, tasks;
};
constexpr Size kLargest{32767, 32767, 32767};
constexpr Size kTerm{800, 3000, 300};

const char* const kClassColors[] = {"MistyRose", "Lavender", "Honeydew", "LightYellow", "PaleGreen", "Gold"};
const char* const kTaskTypes[] = {"None", "School", "Class", "Home", "Personal", "Work", "Project", "Idea"};
const char* const kTypes[] = {"Homework", "Reading", "Essay", "Lab", "Project", "Test"};
const char* const kGrades[] = {"", "", "A", "A-", "B+", "B", "C", "E"};

void fill(RecordStore& s, const Size& size) {
    std::mt19937 rng(2026);
    auto uniform = [&](int low, int high) { return std::uniform_int_distribution<int>(low, high)(rng); };
    const Date start = dateFromYmd(2026, 8, 24);
    s.CurrentTermID = 1;
    s.CurrentTermName = "Fall 2026";
    for (int k = 1; k <= 12; ++k) testing::addClass(s, k, "Class number " + std::to_string(k), "Black", kClassColors[k % 6]);
    for (int i = 1; i <= size.assignments; ++i)
        testing::addAssignment(
            s, {.classLink = uniform(1, 12),
                .date = dateText(start + uniform(0, 120)),
                .description = "Assignment description number " + std::to_string(uniform(1, 99999)),
                .done = uniform(0, 2) != 0,
                .estimate = twoDigits(uniform(0, 5)) + " : " + twoDigits(uniform(0, 11) * 5),
                .grade = kGrades[uniform(0, 7)],
                .weight = std::to_string(uniform(0, 20)),
                .type = kTypes[uniform(0, 5)],
                .difficulty = uniform(0, 1) ? "Medium" : "Hard"});
    for (int n = 1; n <= size.sessions; ++n) {
        const int link = uniform(1, size.assignments);
        const std::string length = twoDigits(uniform(0, 2)) + " : " + twoDigits(uniform(0, 11) * 5);
        testing::addSession(s, link, length, dateText(start + uniform(0, 120)));
    }
    for (int t = 1; t <= size.tasks; ++t)
        testing::addTask(s, {.description = "Task to do number " + std::to_string(uniform(1, 99999)),
                             .dated = uniform(0, 3) != 0,
                             .date = dateText(start + uniform(0, 120)),
                             .type = kTaskTypes[uniform(0, 7)],
                             .priority = uniform(0, 1) ? "High" : "None",
                             .done = uniform(0, 1) != 0});
}

// A main window over a filled store, in one mode, laid out once.
struct Planner {
    explicit Planner(const Size& size) : window(store, fake.platform) {
        fill(store, size);
        window.colors->BuildColorValues();
        window.state.ClickedDate = window.state.DisplayedDate = dateFromYmd(2026, 10, 1);
    }
    void enter(Mode mode, const char* list, const char* range, int sortColumn) {
        window.state.CurrentMode = mode;
        window.c("ComboList").text = list;
        window.c("ComboDateRange").text = range;
        window.state.SortColumn = Int16(sortColumn);
        window.state.SortDirection = SortDirection::Ascending;
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
    Mode mode = Mode::Homework;
};

Planner& planner(const Size& size) {
    static std::unique_ptr<Planner> largest, term;
    std::unique_ptr<Planner>& p = size.assignments == kLargest.assignments ? largest : term;
    if (!p) p = std::make_unique<Planner>(size);
    return *p;
}

const Size& sizeOf(const benchmark::State& state) { return state.range(0) ? kLargest : kTerm; }

struct ListCase {
    Mode mode;
    const char* list;
    const char* range;
    int sortColumn;
};
// The default view of each list, and a sort by a text column.
constexpr ListCase kCases[] = {
    {Mode::Homework, "All", "Term", 7},      {Mode::Homework, "All", "Term", 3},
    {Mode::StudySessions, "All", "Term", 6}, {Mode::StudySessions, "All", "Term", 1},
    {Mode::Tasks, "All", "All", 5},          {Mode::Tasks, "All", "All", 1},
};

void Refresh(benchmark::State& state) {
    Planner& p = planner(sizeOf(state));
    const ListCase& c = kCases[state.range(1)];
    p.enter(c.mode, c.list, c.range, c.sortColumn);
    for (auto _ : state) p.refresh();
    state.counters["rows"] = p.window.state.RowCount;
}

// A sort by a text column the list was not sorted by before, as after a header click:
// every distinct text is compared through the platform.
void FirstTextSort(benchmark::State& state) {
    Planner& p = planner(sizeOf(state));
    const ListCase& c = kCases[state.range(1)];
    p.enter(c.mode, c.list, c.range, c.sortColumn);
    for (auto _ : state) {
        state.PauseTiming();
        p.window.state.ListSortRanks = TextRanks{};
        state.ResumeTiming();
        p.refresh();
    }
}

void ScrollStep(benchmark::State& state) {
    Planner& p = planner(sizeOf(state));
    const ListCase& c = kCases[state.range(1)];
    p.enter(c.mode, c.list, c.range, c.sortColumn);
    int value = 1;
    for (auto _ : state) {
        value = value % 50 + 1;
        p.window.scrollTo("VSGridScroll", value + 1);
    }
    state.counters["top"] = p.window.state.TopRow;
}

void GradeList(benchmark::State& state) {
    Planner& p = planner(sizeOf(state));
    for (auto _ : state) p.window.UpdateGradeList();
}

void StudyTimeToday(benchmark::State& state) {
    Planner& p = planner(sizeOf(state));
    for (auto _ : state) p.window.UpdateStudyTimeToday(p.window.state.ClickedDate);
}

void Cases(benchmark::internal::Benchmark* b) {
    b->ArgNames({"largest", "list"});
    for (int largest : {0, 1})
        for (int i = 0; i < int(std::size(kCases)); ++i) b->Args({largest, i});
    b->Unit(benchmark::kMillisecond);
}

BENCHMARK(Refresh)->Apply(Cases);
BENCHMARK(ScrollStep)->Apply(Cases);
BENCHMARK(FirstTextSort)
    ->ArgNames({"largest", "list"})
    ->Args({0, 1})
    ->Args({0, 3})
    ->Args({0, 5})
    ->Args({1, 1})
    ->Args({1, 3})
    ->Args({1, 5})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(GradeList)->ArgName("largest")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(StudyTimeToday)->ArgName("largest")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qh
