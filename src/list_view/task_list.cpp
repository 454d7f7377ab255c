// The task list: to-do records, coloured by their type, filtered by date and by done.
#include <array>

#include "common/flag_text.h"
#include "list_view/grid.h"
#include "list_view/list_host.h"
#include "list_view/list_rows.h"
#include "list_view/list_sort.h"
#include "recurrence/type_colors.h"

namespace qh {
namespace {

const std::string kNoText;

constexpr std::array<const char*, 6> kTitles{"#", "Name", "Type", "Priority", "Date", "Done"};

bool inDateRange(const RecordStore& store, int i, Date date, std::string_view dateRange) {
    const bool dated = isTrueFlag(store.TaskDateExists.valueOr(i, kNoText));
    if (dateRange == "Day") {
        const auto day = parseDateText(store.TaskDates.valueOr(i, kNoText));
        return dated && day && *day == date;
    }
    if (dateRange == "All") return true;
    if (dateRange == "With Date") return dated;
    if (dateRange == "Without Date") return !dated;
    return false;
}

std::string unlessNone(const std::string& value) { return value == "None" ? std::string() : value; }

}  // namespace

TaskRows GatherTasks(const RecordStore& store, Date date, std::string_view dateRange, std::string_view listChoice) {
    TaskRows rows;
    const int n = store.TaskRecordNos.count();
    rows.ListTaskRows.reserve(n);
    rows.ListTaskForeColors.reserve(n);
    rows.ListTaskBackColors.reserve(n);
    for (int i = 1; i <= n; ++i) {
        if (store.TaskDescriptions.valueOr(i, kNoText) == kDeletedRecord) continue;
        if (!inDateRange(store, i, date, dateRange)) continue;
        const bool done = isTrueFlag(store.TaskDones.valueOr(i, kNoText));
        rows.TaskTotal = toInt16(rows.TaskTotal + 1);
        if (done) rows.TaskDone = toInt16(rows.TaskDone + 1);
        const bool kept = listChoice == "All" || (listChoice == "Done" && done) || (listChoice == "Not Done" && !done);
        if (!kept) continue;
        rows.ListTaskRows.append(i);
        rows.ListTaskForeColors.append(kTypeRowForeColor);
        rows.ListTaskBackColors.append(TaskTypeBackColor(store.TaskTypes.valueOr(i, kNoText)));
    }
    rows.TaskUnfinished = toInt16(rows.TaskTotal - rows.TaskDone);
    return rows;
}

void BuildTaskList(const ListHost& window) {
    const RecordStore& store = window.store;
    MainWindowState& state = window.state;
    const std::string& range = window.ui.ComboDateRange->text;
    const std::string& list = window.ui.ComboList->text;
    TaskRows rows;
    // Tasks belong to no term: the title never depends on one.
    if (range == "Day") {
        rows = GatherTasks(store, state.ClickedDate, range, list);
        window.ui.LabelTop->caption = "Tasks for " + window.locale.longDate(state.ClickedDate);
    } else {
        rows = GatherTasks(store, kAllDatesSentinel, range, list);
        window.ui.LabelTop->caption = range == "All"         ? "All Tasks"
                                            : range == "With Date" ? "All Tasks with Dates"
                                                                   : "All Tasks without Dates";
    }
    Control& total = *window.ui.TextBoxTotalTasks;
    Control& unfinished = *window.ui.TextBoxFinishedTasks;
    total.text = std::to_string(rows.TaskTotal);
    unfinished.text = std::to_string(rows.TaskUnfinished);
    total.backColor = kWhite;
    if (rows.TaskTotal == 0 && rows.TaskUnfinished == 0)
        unfinished.backColor = kWhite;
    else if (rows.TaskDone < rows.TaskTotal)
        unfinished.backColor = kOpenWorkPink;
    else
        unfinished.backColor = kAllDoneGreen;

    SortTaskList(rows, store, state.SortColumn, state.SortDirection, window.locale, &state.ListSortRanks);
    state.ListTaskRows = std::move(rows.ListTaskRows);
    state.ListTaskForeColors = std::move(rows.ListTaskForeColors);
    state.ListTaskBackColors = std::move(rows.ListTaskBackColors);
    state.RowCount = toInt16(state.ListTaskRows.count());
    window.updateGridScroll();

    PaintList(window, kTitles, [&](int p) {
        const int r = state.ListTaskRows(p);
        const bool dated = isTrueFlag(store.TaskDateExists.valueOr(r, kNoText));
        GridRow row;
        row.fore = RowColor(window, state.ListTaskForeColors.valueOr(p, kNoText), kBlack);
        row.back = RowColor(window, state.ListTaskBackColors.valueOr(p, kNoText), kWhite);
        row.cells = {
            {CellKind::Clipped, store.TaskDescriptions.valueOr(r, kNoText)},
            {CellKind::Trimmed, unlessNone(store.TaskTypes.valueOr(r, kNoText))},
            {CellKind::Trimmed, unlessNone(store.TaskPriorities.valueOr(r, kNoText))},
            {CellKind::Plain, dated ? MediumDateOf(window, store.TaskDates.valueOr(r, kNoText)) : std::string()},
            {CellKind::Check, "", isTrueFlag(store.TaskDones.valueOr(r, kNoText))},
        };
        return row;
    });
}

}  // namespace qh
