// The File menu's export and print commands of the main window.
#include "common/failure.h"
#include "export/calendar_export.h"
#include "export/export_page.h"
#include "export/list_export.h"
#include "platform/common_dialog.h"
#include "shell/desktop_open.h"
#include "shell/main_window.h"

namespace qh {
namespace {

// Asks where to save a page. Returns the chosen path, or empty on Cancel.
std::string askPagePath(MainWindow& window, const std::string& defaultName, const std::string& title) {
    std::int32_t flags = kAskBeforeReplace;
    std::string path = joinPath(window.store.DocumentDirectory, defaultName);
    std::string fileTitle;
    if (!CD_ShowOpen_Save(window.platform, flags, path, fileTitle, "", title, kExportFilter, "html", false))
        return {};
    return path;
}

}  // namespace

void MainWindow::bindFileMenu() {
    on(ui.MenuExportList.key(), FormEvent::Click, [this](const EventArgs&) { ExportList(); });
    on(ui.MenuExportCalendar.key(), FormEvent::Click, [this](const EventArgs&) { ExportCalendar(); });
    on(ui.MenuPrintScreen.key(), FormEvent::Click, [this](const EventArgs&) { PrintScreen(); });
    on(ui.MenuExportICalendar.key(), FormEvent::Click, [this](const EventArgs&) { ExportICalendar(); });
    on(ui.MenuImportICalendar.key(), FormEvent::Click, [this](const EventArgs&) { ImportICalendar(); });
}

void MainWindow::ExportList() {
    const Mode mode = CurrentMode();
    const ListExportForm* form = ListExportFormOf(mode);
    if (!form) return;
    const std::string path = askPagePath(*this, form->defaultName, form->dialogTitle);
    if (path.empty()) return;
    const bool written = WriteExportPage(platform, TemplatePath(platform, form->templateFile), path,
                                         [&](std::string_view templateText) {
                                             return FillListTemplate(
                                                 templateText, *form, ListExportCells(mode, store, state, platform.locale),
                                                 CreationNote(platform.locale, platform.clock.today()));
                                         });
    if (written) OpenWithDesktop(platform.processes, platform.messages, path);
}

void MainWindow::ExportCalendar() {
    const CalendarSheet sheet = CalendarSheetOf(CurrentMode());
    const CalendarSheetForm& form = CalendarSheetFormOf(sheet);
    const std::string monthName = platform.locale.monthName(monthOf(state.ClickedDate));
    const std::string path = askPagePath(*this, CalendarDefaultName(sheet, monthName), form.dialogTitle);
    if (path.empty()) return;

    CalendarFrame frame;
    frame.title = monthName + " " + std::to_string(yearOf(state.ClickedDate)) + form.titleEnding;
    frame.creationNote = CreationNote(platform.locale, platform.clock.today());
    for (int d = 0; d < 7; ++d) frame.dayNames[std::size_t(d)] = ui.calendar.LabelCalDay[d].caption;
    std::copy_n(state.CalendarDates.begin(), 42, frame.dates.begin());
    const bool written =
        WriteExportPage(platform, TemplatePath(platform, form.templateFile), path, [&](std::string_view templateText) {
            return FillCalendarTemplate(templateText, sheet, FillCalendar(sheet, store, frame));
        });
    if (written) OpenWithDesktop(platform.processes, platform.messages, path);
}

void MainWindow::PrintScreen() {
    std::string printer;
    int copies = 1;
    if (!CD_ShowPrinter(platform, printer, copies)) return;
    try {
        platform.windowing.printWindowImage(*this, printer, copies);
    } catch (const FileFailure& failure) {
        platform.messages.show(std::string("The window could not be printed.\n\n") + failure.what(), "Print Screen",
                               MessageButtons::OK, MessageIcon::Exclamation);
    }
}

}  // namespace qh
