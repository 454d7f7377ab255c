// File > Export iCalendar... and Import iCalendar...: the planner's events, tasks and
// assignments as one file that phone and web calendars read, and such files read back.
#include "common/failure.h"
#include "interchange/calendar_links.h"
#include "interchange/frm_export_icalendar.h"
#include "interchange/frm_import_preview.h"
#include "interchange/ical_import.h"
#include "interchange/ical_export_items.h"
#include "platform/common_dialog.h"
#include "record_store/record_files.h"
#include "record_store/storage_locations.h"
#include "shell/main_window.h"

namespace qh {
namespace {

constexpr const char* kICalendarFilter = "iCalendar Files (*.ics)|*.ics|All Files (*.*)|*.*";
constexpr const char* kExportTitle = "Export iCalendar";
constexpr const char* kImportTitle = "Import iCalendar";
// Larger files are refused before they are read: no school calendar comes near it.
constexpr std::size_t kLargestCalendar = 20 * 1024 * 1024;
constexpr std::size_t kMostItems = 32766;

// "12 events, 3 tasks and 1 assignment": the kinds written, in words.
std::string countsText(const ICalendarItems& items, const ICalendarChoice& choice) {
    std::vector<std::string> parts;
    const auto add = [&](bool chosen, int count, const char* one, const char* many) {
        if (chosen) parts.push_back(std::to_string(count) + " " + (count == 1 ? one : many));
    };
    add(choice.events, items.events, "event", "events");
    add(choice.tasks, items.tasks, "task", "tasks");
    add(choice.assignments, items.assignments, "assignment", "assignments");
    std::string text;
    for (std::size_t i = 0; i < parts.size(); ++i)
        text += (i == 0 ? "" : i + 1 == parts.size() ? " and " : ", ") + parts[i];
    return text;
}

std::string resultText(const ImportResult& result) {
    return "Imported: " + std::to_string(result.added) + " added, " + std::to_string(result.updated) + " updated, " +
           std::to_string(result.unchanged) + " unchanged, " + std::to_string(result.skipped) + " skipped." +
           (result.full ? " A record file is full: the items it could not take were skipped." : "") +
           (result.writeFailed ? " The drive refused a write, so the import stopped there." : "");
}

}  // namespace

void MainWindow::storeCalendarLinks(const CalendarLinks& links, const std::string& title) {
    // A read-only drive keeps no new names: the next export names the items afresh.
    if (!links.changed() || store.DriveReadOnly) return;
    try {
        platform.files.writeWhole(dataFilePath(store, CalendarLinks::kFileName), links.text());
        store.CalendarLinksChanged = kTrue;
    } catch (const FileFailure& failure) {
        platform.messages.show("The planner could not keep the items' names in " +
                                   std::string(CalendarLinks::kFileName) +
                                   ", so the next calendar file may show them twice.\n\n" + failure.what(),
                               title, MessageButtons::OK, MessageIcon::Exclamation);
    }
}

CalendarLinks MainWindow::readCalendarLinks() {
    const std::string path = dataFilePath(store, CalendarLinks::kFileName);
    try {
        if (platform.files.exists(path)) return CalendarLinks::parse(platform.files.readAll(path));
    } catch (const FileFailure&) {
        // Unreadable links only cost the items their old UIDs: a calendar that read an
        // earlier file then shows them twice, which is no reason to refuse the export.
    }
    return {};
}

void MainWindow::ExportICalendar() {
    if (!icalendarExport_) icalendarExport_ = std::make_unique<FrmExportICalendar>();
    platform.windowing.showModal(*icalendarExport_, this);
    if (!icalendarExport_->accepted) return;
    const ICalendarChoice choice = icalendarExport_->choice();

    std::int32_t flags = kAskBeforeReplace;
    std::string path = joinPath(store.DocumentDirectory, "Quillhollow.ics");
    std::string fileTitle;
    if (!CD_ShowOpen_Save(platform, flags, path, fileTitle, "", kExportTitle, kICalendarFilter, "ics", false)) return;

    CalendarLinks links = readCalendarLinks();
    const ICalendarItems items = CalendarItemsOf(store, choice, links, NewCalendarUid);
    try {
        // Like an exported page, the file is made again by the next export: it replaces the
        // old one in one rename but is not waited for on the disk.
        platform.files.writeWholeUnsynced(path, platform.calendars.write(items.items));
    } catch (const FileFailure& failure) {
        platform.messages.show("The calendar could not be written to " + path + ".\n\n" + failure.what(),
                               kExportTitle, MessageButtons::OK, MessageIcon::Exclamation);
        return;
    }
    storeCalendarLinks(links, kExportTitle);
    platform.messages.show("Wrote " + countsText(items, choice) + " to " + path + ".", kExportTitle,
                           MessageButtons::OK, MessageIcon::Information);
}

void MainWindow::ImportICalendar() {
    if (store.DriveReadOnly) {
        platform.messages.show(kReadOnlyText, kImportTitle, MessageButtons::OK, MessageIcon::Exclamation);
        return;
    }
    std::int32_t flags = 0;
    std::string path, fileTitle;
    if (!CD_ShowOpen_Save(platform, flags, path, fileTitle, store.DocumentDirectory, kImportTitle, kICalendarFilter,
                          "ics", true))
        return;
    const auto refuse = [&](const std::string& why) {
        platform.messages.show(fileTitle + " cannot be imported. " + why, kImportTitle, MessageButtons::OK,
                               MessageIcon::Exclamation);
    };
    std::string text;
    try {
        text = platform.files.readHead(path, kLargestCalendar + 1);
    } catch (const FileFailure& failure) {
        refuse(std::string("It could not be read.\n\n") + failure.what());
        return;
    }
    if (text.size() > kLargestCalendar) return refuse("It is larger than 20 MB.");
    CalendarRead read = platform.calendars.read(text);
    if (!read.error.empty()) return refuse(read.error);
    if (read.items.empty()) return refuse("It holds no events or to-dos.");
    if (read.items.size() > kMostItems)
        return refuse("It holds " + std::to_string(read.items.size()) + " items, more than the planner's " +
                      std::to_string(kMostItems) + " of a kind.");

    CalendarLinks links = readCalendarLinks();
    const ImportPlan plan = PlanImport(std::move(read.items), store, links, fileTitle);
    if (!icalendarImport_) icalendarImport_ = std::make_unique<FrmImportPreview>();
    FrmImportPreview& preview = *icalendarImport_;
    preview.plan = &plan;
    preview.classes = ActiveTermClasses(store);
    preview.fileName = fileTitle;
    platform.windowing.showModal(preview, this);
    const ImportChoices choices = preview.choices();
    preview.plan = nullptr;
    if (!preview.accepted) return;

    const ImportResult result = ApplyImport(store, *files, plan, choices, links, fileTitle, platform.clock.today());
    storeCalendarLinks(links, kImportTitle);
    Refresh(RefreshReason::NewRecord);
    platform.messages.show(resultText(result), kImportTitle, MessageButtons::OK, MessageIcon::Information);
}

}  // namespace qh
