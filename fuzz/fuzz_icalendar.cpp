// An iCalendar file of any bytes: reading it never fails beyond a refusal with a reason,
// and importing all it holds (every course as tasks, repeats the planner cannot hold as
// their first occurrence) counts every item once and writes only records that a load reads
// back as written.
#include "interchange/event_repetition.h"
#include "interchange/ical_import.h"
#include "memory_drive.h"
#include "platform/ical/ical_codec.h"

using namespace qh;
using namespace qh::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static IcalCodec codec("America/New_York");
    const std::string text(reinterpret_cast<const char*>(data), size);
    CalendarRead read = codec.read(text);
    require(read.error.empty() || read.items.empty(), "a refused file yields no items");
    if (read.items.size() > 200) return 0;

    MemoryDrive drive;
    require(drive.loadAll(0), "the empty drive loads");
    CalendarLinks links;
    const ImportPlan plan = PlanImport(std::move(read.items), drive.store, links, "fuzz.ics");
    require(plan.lines.size() == plan.items.size(), "every item has its line");
    const ImportResult result =
        ApplyImport(drive.store, drive.records, plan, ImportChoices{}, links, "fuzz.ics", dateFromYmd(2026, 11, 25));
    require(result.added + result.updated + result.unchanged + result.skipped == int(plan.items.size()),
            "every item is counted once");
    require(drive.machine.shown.empty(), "no record write fails");

    // The records as written read back as the columns hold them.
    MemoryDrive again;
    again.files.files = drive.files.files;
    again.files.folders = drive.files.folders;
    require(again.loadAll(0), "the written drive loads");
    require(again.store.EventDescriptions == drive.store.EventDescriptions &&
                again.store.EventDates == drive.store.EventDates &&
                again.store.EventRepeatDailies == drive.store.EventRepeatDailies &&
                again.store.EventNotes == drive.store.EventNotes &&
                again.store.TaskDescriptions == drive.store.TaskDescriptions &&
                again.store.TaskNotes == drive.store.TaskNotes,
            "every imported record reads back as written");
    require(links.text().find('\0') == std::string::npos, "the links file holds text only");
    return 0;
}
