// The exports on the maximal sample drive: the largest list (every task, 32,766 rows, and
// the whole term's homework) written through its template to the closed file, under
// 300 ms; and each month sheet, under 30 ms. The pages go to real files through the
// program's file layer (renamed into place, not synced); the default handler is not
// started.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "sample_drive_on_disk.h"

namespace qh {
namespace {

struct MaximalDrive : LoadedMaximalDrive {
    // Shows a mode with the widest filters.
    void show(const char* menu, const char* range) {
        window->click(menu);
        window->select("ComboList", "All");
        window->select("ComboDateRange", range);
    }
    void exportOnce(const char* menu) {
        fake.dialogs.fileAnswers.push_back({true, 0, fake.root + "/page.html", ""});
        window->click(menu);
    }
};

MaximalDrive& drive() {
    static MaximalDrive maximal;
    return maximal;
}

void BM_ExportList(benchmark::State& state) {
    MaximalDrive& d = drive();
    const bool tasks = state.range(0) == 0;
    d.show(tasks ? "MenuTasks" : "MenuHomework", tasks ? "All" : "Term");
    state.counters["rows"] = d.window->state.RowCount;
    for (auto _ : state) d.exportOnce("MenuExportList");
    if (!d.fake.messages.shown.empty()) state.SkipWithError("the export failed");
}
BENCHMARK(BM_ExportList)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void BM_ExportMonthSheet(benchmark::State& state) {
    MaximalDrive& d = drive();
    const char* menus[] = {"MenuHomework", "MenuTasks", "MenuEvents"};
    d.show(menus[state.range(0)], "Day");
    for (auto _ : state) d.exportOnce("MenuExportCalendar");
    if (!d.fake.messages.shown.empty()) state.SkipWithError("the export failed");
}
BENCHMARK(BM_ExportMonthSheet)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

// File > Export iCalendar... of every event, task and assignment of the maximal drive
// (32,766 events, most of them repeating) to a closed file, under 1 s, the window answered
// at once.
void BM_ExportICalendar(benchmark::State& state) {
    MaximalDrive& d = drive();
    for (auto _ : state) {
        d.fake.windowing.modalUsers["frmExportICalendar"].push_back([](Form& form) { form.click("ButtonOK"); });
        d.fake.dialogs.fileAnswers.push_back({true, 0, d.fake.root + "/planner.ics", ""});
        d.window->click("MenuExportICalendar");
    }
    state.counters["bytes"] = double(std::filesystem::file_size(d.fake.root + "/planner.ics"));
    if (d.fake.messages.shown.empty() || d.fake.messages.shown.back().text.rfind("Wrote ", 0) != 0)
        state.SkipWithError("the export failed");
}
BENCHMARK(BM_ExportICalendar)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qh
