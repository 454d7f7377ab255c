// The task and event editors' core work on the maximal sample drive: opening either
// editor on a record (the procedure's hand-over, the window's showing with every control
// it sets, and a cancel without a change) under 16 ms, and OK on an edit of a recurring
// event (its record written, and the "NewRecord" refresh of the Events mode over a Year
// range) under 50 ms.
#include <benchmark/benchmark.h>

#include <memory>

#include "editors/editor_windows.h"
#include "editors/frm_event.h"
#include "editors/frm_task.h"
#include "sample_drive_on_disk.h"

namespace qh {
namespace {

struct Loaded : LoadedMaximalDrive {
    // Runs `open` with the window named `name` answered by a click on `button`.
    template <typename Open>
    void answer(const char* name, const char* button, Open open) {
        fake.windowing.modalUsers[name].push_back([button](Form& form) { form.click(button); });
        open();
        fake.windowing.log.clear();
    }
};

Loaded& loaded() {
    static Loaded drive;
    return drive;
}

void BM_OpenTaskEditor(benchmark::State& state) {
    Loaded& d = loaded();
    const int rows = d.store.TaskRecordNos.count();
    int row = 0;
    for (auto _ : state) {
        row = row % rows + 1;
        d.answer("FrmTask", "ButtonCancel", [&] { d.window->EditTask(row); });
        benchmark::DoNotOptimize(d.window->editors->task().TextBoxDescription->text.size());
    }
}
BENCHMARK(BM_OpenTaskEditor)->Unit(benchmark::kMicrosecond);

void BM_OpenEventEditor(benchmark::State& state) {
    Loaded& d = loaded();
    const int rows = d.store.EventRecordNos.count();
    int row = 0;
    for (auto _ : state) {
        row = row % rows + 1;
        d.answer("frmEvent", "ButtonCancel", [&] { d.window->EditEvent(row); });
        benchmark::DoNotOptimize(d.window->editors->event().TextBoxEvent->text.size());
    }
}
BENCHMARK(BM_OpenEventEditor)->Unit(benchmark::kMicrosecond);

void BM_OkOnRecurringEventEdit(benchmark::State& state) {
    Loaded& d = loaded();
    d.window->click("MenuEvents");
    d.window->select("ComboDateRange", "Year");
    int row = 1;
    while (row < d.store.EventRecurrences.count() &&
           (d.store.EventRecurrences(row) == "None" || d.store.EventDescriptions(row) == "DELETED RECORD"))
        ++row;
    for (auto _ : state) {
        d.answer("frmEvent", "ButtonOK", [&] { d.window->EditEvent(row); });
        benchmark::DoNotOptimize(d.window->state.ListEventRows.count());
    }
    state.counters["list_rows"] = double(d.window->state.ListEventRows.count());
}
BENCHMARK(BM_OkOnRecurringEventEdit)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qh
