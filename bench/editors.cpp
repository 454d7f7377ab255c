// The editors' core work on the maximal sample drive: showing the class schedule of the
// active term (filling it from the columns, its Form_Activate and the controls it sets)
// under 16 ms, and opening its pop-up date picker under 5 ms.
#include <benchmark/benchmark.h>

#include <memory>

#include "editors/editor_windows.h"
#include "editors/frm_course_schedule.h"
#include "editors/term_rows.h"
#include "sample_drive_on_disk.h"

namespace qh {
namespace {

using Loaded = LoadedMaximalDrive;

Loaded& loaded() {
    static Loaded drive;
    return drive;
}

void BM_ShowClassSchedule(benchmark::State& state) {
    Loaded& d = loaded();
    FrmCourseSchedule& schedule = d.window->editors->courseSchedule();
    const std::string termID = std::to_string(d.store.CurrentTermID);
    for (auto _ : state) {
        schedule.editMode = EditMode::Edit;
        LoadTermIntoSchedule(d.store, schedule, termID, d.fake.clock.today());
        schedule.showing();
        benchmark::DoNotOptimize(schedule.ComboBoxClassList->items.size());
        schedule.hide();
    }
}
BENCHMARK(BM_ShowClassSchedule)->Unit(benchmark::kMicrosecond);

void BM_OpenPicker(benchmark::State& state) {
    Loaded& d = loaded();
    FrmCourseSchedule& schedule = d.window->editors->courseSchedule();
    schedule.editMode = EditMode::New;
    schedule.showing();
    for (auto _ : state) {
        schedule.tick("TimerCalendar");
        schedule.click("TextboxTermStart");
        benchmark::DoNotOptimize(schedule.c("picCalendar").visible);
        schedule.datePicker().CloseCalendar();
    }
}
BENCHMARK(BM_OpenPicker)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace qh
