// The exports on the maximal sample drive: the largest list (every task, 32,766 rows, and
// the whole term's homework) written through its template to the closed file, under
// 300 ms; and each month sheet, under 30 ms. The pages go to real files through the
// program's file layer (renamed into place, not synced); the default handler is not
// started.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "common/flag_text.h"
#include "interchange/ical_export_items.h"
#include "platform/ical/ical_codec.h"
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

// File > Import iCalendar... of a school's 5,000 events (a third weekly with an end, a
// third monthly, a third once, most at a time of day) into the realistic drive: the file
// read, the preview shown and answered, every record written and the list refreshed,
// under 1 s of processor time. Each record is also synced as it is written, which on this
// kind of disk takes longer than all the rest; the benchmark's drive skips the syncs so
// that it measures the planner's own work. Each run imports the file under a new name, so
// that it adds its 5,000 records.
std::string schoolCalendar() {
    RecordStore store;
    for (int i = 0; i < 5000; ++i) {
        const std::string n = std::to_string(i + 1);
        store.EventRecordNos.append(n);
        store.EventIDs.append(n);
        store.EventDates.append(dateText(dateFromYmd(2026, 8, 20) + i % 120));
        store.EventDescriptions.append("School event " + n);
        store.EventTypes.append(i % 2 ? "School" : "Class");
        store.EventTimes.append(i % 4 ? "10:30 am" : "None");
        store.EventRecurrences.append(i % 3 == 0 ? "Day" : i % 3 == 1 ? "Month" : "None");
        store.EventSameDates.append(flagText(true));
        store.EventRepeatNumbers.append("First");
        store.EventRepeatDays.append("Day");
        store.EventRepeatDailies.append("TFTFTFF");
        store.EventEnds.append(flagText(i % 3 == 0));
        store.EventEndDates.append("2026/12/18");
        store.EventNotes.append("Room " + n);
        store.EventReminders.append("1 Day");
    }
    CalendarLinks links;
    IcalCodec codec(kFakeTimeZone);
    return codec.write(CalendarItemsOf(store, {.tasks = false, .assignments = false}, links, NewCalendarUid).items);
}

struct ImportDrive : SampleDriveOnDisk {
    PosixFileSystem unsynced{PosixFileSystem::Durability::Unsynced};
    Platform quick{fake.environment, fake.clock,    fake.locale,    fake.messages, unsynced,
                   fake.processes,   fake.dialogs,  fake.windowing, fake.canvases, fake.calendars};
    RecordStore store;
    std::unique_ptr<MainWindow> window;
    ImportDrive() : SampleDriveOnDisk(sample::DriveSize::Realistic) {
        window = std::make_unique<MainWindow>(store, quick);
        window->Form_Load();
    }
};

void BM_ImportICalendar(benchmark::State& state) {
    // A fresh drive for each repetition: on a drive that imported them once, the same items
    // are linked already and come in as unchanged.
    ImportDrive d;
    static const std::string calendar = schoolCalendar();
    int run = 0;
    for (auto _ : state) {
        state.PauseTiming();
        const std::string name = "school-" + std::to_string(++run) + ".ics";
        d.fake.writeBytes(d.fake.root + "/" + name, calendar);
        d.fake.dialogs.fileAnswers.push_back({true, 0, d.fake.root + "/" + name, name});
        d.fake.windowing.modalUsers["frmImportPreview"].push_back([](Form& form) { form.click("ButtonOK"); });
        state.ResumeTiming();
        d.window->click("MenuImportICalendar");
    }
    if (d.fake.messages.shown.empty() || d.fake.messages.shown.back().text.rfind("Imported: 5000 added", 0) != 0)
        state.SkipWithError("the import failed");
}
BENCHMARK(BM_ImportICalendar)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
}  // namespace qh
