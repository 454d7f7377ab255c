// The reminder list: homework, tasks and event occurrences to be reminded of on the
// selected date, in one list with a column naming the kind. The gathering decides what
// belongs here (recurrence/reminders.h); this file shows it.
#include <array>
#include <cstdlib>

#include "list_view/grid.h"
#include "list_view/list_host.h"
#include "list_view/list_rows.h"
#include "list_view/list_sort.h"

namespace qh {
namespace {

const std::string kNoText;

constexpr std::array<const char*, 7> kTitles{"#", "For", "Class", "Type", "Description", "When", "Date"};

void showSummary(const ListHost& window, const ReminderRows& rows) {
    Control& assignments = *window.ui.TextBoxAssignments;
    Control& tasks = *window.ui.TextBoxTasks;
    Control& events = *window.ui.TextBoxEvents;
    assignments.text = std::to_string(rows.HomeworkReminderCount);
    tasks.text = std::to_string(rows.TaskReminderCount);
    events.text = std::to_string(rows.EventReminderCount);
    // Homework and tasks wait to be done; an event only comes and goes, so its box never
    // turns pink.
    assignments.backColor = rows.HomeworkReminderCount != 0 ? kOpenWorkPink : kWhite;
    tasks.backColor = rows.TaskReminderCount != 0 ? kOpenWorkPink : kWhite;
    events.backColor = kWhite;
}

// Keeps the rows in the window's view state, where the calendar marks of this mode and
// the record actions read them.
void keepRows(MainWindowState& state, ReminderRows& rows) {
    state.ReminderRecords.clear();
    state.ReminderRecords.reserve(rows.ReminderRecords.count());
    for (Int16 r : rows.ReminderRecords) state.ReminderRecords.append(r);
    // The days are 16-bit as everywhere in the list: a record some ninety years away from
    // the selected date is the planner's overflow.
    state.ReminderDays.clear();
    state.ReminderDays.reserve(rows.ReminderDays.count());
    for (int days : rows.ReminderDays) state.ReminderDays.append(toInt16(days));
    state.ReminderKinds = std::move(rows.ReminderKinds);
    state.ReminderClasses = std::move(rows.ReminderClasses);
    state.ReminderTypes = std::move(rows.ReminderTypes);
    state.ReminderDescriptions = std::move(rows.ReminderDescriptions);
    state.ReminderDates = std::move(rows.ReminderDates);
    state.ReminderForeColors = std::move(rows.ReminderForeColors);
    state.ReminderBackColors = std::move(rows.ReminderBackColors);
}

}  // namespace

std::string DateWord(int days) {
    if (days > 1) return std::to_string(days) + " Days";
    if (days == 1) return "Tomorrow";
    if (days == 0) return "Today";
    if (days == -1) return "Yesterday";
    return std::to_string(std::abs(days)) + " Days Ago";
}

void BuildReminderList(const ListHost& window) {
    MainWindowState& state = window.state;
    const Locale& locale = window.locale;
    // The filter is applied while gathering, after counting: the boxes count every kind.
    ReminderRows rows = GatherReminders(window.store, state.ClickedDate, window.ui.ComboList->text);
    window.ui.LabelTop->caption = "Reminders for " + locale.longDate(state.ClickedDate);
    showSummary(window, rows);

    SortReminderList(rows, state.SortColumn, state.SortDirection, locale, &state.ListSortRanks);
    keepRows(state, rows);
    state.RowCount = toInt16(state.ReminderRecords.count());
    window.updateGridScroll();

    PaintList(window, kTitles, [&](int p) {
        GridRow row;
        row.fore = RowColor(window, state.ReminderForeColors.valueOr(p, kNoText), kBlack);
        row.back = RowColor(window, state.ReminderBackColors.valueOr(p, kNoText), kWhite);
        row.cells = {
            {CellKind::Plain, state.ReminderKinds.valueOr(p, kNoText)},
            {CellKind::Clipped, state.ReminderClasses.valueOr(p, kNoText)},
            {CellKind::Plain, state.ReminderTypes.valueOr(p, kNoText)},
            {CellKind::Clipped, state.ReminderDescriptions.valueOr(p, kNoText)},
            {CellKind::Plain, DateWord(state.ReminderDays.valueOr(p, 0))},
            {CellKind::Plain, locale.mediumDate(state.ReminderDates(p))},
        };
        return row;
    });
}

}  // namespace qh
