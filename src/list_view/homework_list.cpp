// The homework list: the assignments of the active term that pass the two filters, with
// their class's colours and the time left on each.
#include <algorithm>
#include <array>

#include "common/flag_text.h"
#include "list_view/grid.h"
#include "list_view/list_host.h"
#include "list_view/list_rows.h"
#include "list_view/list_sort.h"
#include "list_view/record_index.h"

namespace qh {
namespace {

const std::string kNoText;

// The titles in column order: "#", "Class", "Type", "Description", "Difficulty", "Time",
// "Due", "Done", "Grade".
constexpr std::array<const char*, 9> kTitles{"#",    "Class", "Type", "Description", "Difficulty",
                                             "Time", "Due",   "Done", "Grade"};

bool onDay(const std::string& field, Date date) {
    const auto day = parseDateText(field);
    return day && *day == date;
}

void appendClasses(const RowsById& classes, const RecordStore& store, Int16 classLink, TextColumn& names,
                   TextColumn& fores, TextColumn& backs) {
    classes.forEach(classLink, [&](int k) {
        names.append(store.ClassNames.valueOr(k, kNoText));
        fores.append(store.ClassForeColors.valueOr(k, kNoText));
        backs.append(store.ClassBackColors.valueOr(k, kNoText));
    });
}

void showSummary(const ListHost& window, const HomeworkRows& rows) {
    Control& total = *window.ui.TextBoxTotalAssignments;
    Control& unfinished = *window.ui.TextBoxFinishedAssignments;
    Control& left = *window.ui.TextBoxTimeRemaining;
    total.text = std::to_string(rows.HomeworkTotal);
    unfinished.text = std::to_string(rows.HomeworkUnfinished);
    left.text = rows.HomeworkTimeLeft;
    total.backColor = kWhite;
    if (rows.HomeworkTotal == 0 && rows.HomeworkUnfinished == 0)
        unfinished.backColor = left.backColor = kWhite;
    else if (rows.HomeworkAllDone)
        unfinished.backColor = left.backColor = kAllDoneGreen;
    else
        unfinished.backColor = left.backColor = kOpenWorkPink;
}

}  // namespace

HomeworkRows GatherHomework(const RecordStore& store, Date date, std::string_view listChoice) {
    HomeworkRows rows;
    const RowsById classes(store.ClassIDs);
    const StudyTimeByLink studied(store);
    Span estimated, spent;
    const int n = store.AssignmentRecordNos.count();
    rows.ListAssignmentRows.reserve(n);
    rows.ListTimes.reserve(n);
    rows.ListClassNames.reserve(n);
    rows.ListForeColors.reserve(n);
    rows.ListBackColors.reserve(n);
    for (int i = 1; i <= n; ++i) {
        const bool inRange = date == kAllDatesSentinel || onDay(store.AssignmentDates.valueOr(i, kNoText), date);
        if (!inRange || store.AssignmentDescriptions.valueOr(i, kNoText) == kDeletedRecord) continue;
        rows.ListAssignmentRows.append(i);
        rows.HomeworkTotal = toInt16(rows.HomeworkTotal + 1);
        if (isTrueFlag(store.AssignmentDones.valueOr(i, kNoText))) {
            if (listChoice == "Not Done") {
                rows.ListAssignmentRows.removeAt(rows.ListAssignmentRows.count());
                continue;
            }
            rows.ListTimes.append("00:00");
        } else {
            rows.HomeworkAllDone = false;
            rows.HomeworkUnfinished = toInt16(rows.HomeworkUnfinished + 1);
            const Span sessions = studied.of(IdNumber(store.AssignmentIDs.valueOr(i, kNoText)));
            const Span estimate = ReadSpan(store.AssignmentEstTimes.valueOr(i, kNoText));
            spent.hours += sessions.hours;
            spent.minutes += sessions.minutes;
            estimated.hours += estimate.hours;
            estimated.minutes += estimate.minutes;
            // The totals above stand whether or not the row stays.
            if (listChoice == "Done") {
                rows.ListAssignmentRows.removeAt(rows.ListAssignmentRows.count());
                continue;
            }
            rows.ListTimes.append(TimeForm(std::max(0LL, estimate.totalMinutes() - sessions.totalMinutes())));
        }
        appendClasses(classes, store, IdNumber(store.AssignmentClassLinks.valueOr(i, kNoText)), rows.ListClassNames,
                      rows.ListForeColors, rows.ListBackColors);
    }
    rows.HomeworkTimeEstimated = TimeForm(estimated.totalMinutes());
    // All study time is subtracted before the clamp: an over-studied assignment lowers the
    // time left of the others.
    rows.HomeworkTimeLeft = TimeForm(std::max(0LL, estimated.totalMinutes() - spent.totalMinutes()));
    return rows;
}

void BuildHomeworkList(const ListHost& window) {
    const RecordStore& store = window.store;
    MainWindowState& state = window.state;
    const std::string& list = window.ui.ComboList->text;
    HomeworkRows rows;
    std::string title;
    if (window.ui.ComboDateRange->text == "Day") {
        rows = GatherHomework(store, state.ClickedDate, list);
        title = "Homework for " + window.locale.longDate(state.ClickedDate);
    } else {
        rows = GatherHomework(store, kAllDatesSentinel, list);
        title = "Homework for " + store.CurrentTermName;
    }
    // Only the active term's assignments are in memory: without a term there is nothing
    // to name.
    window.ui.LabelTop->caption = store.CurrentTermName.empty() ? std::string() : title;
    showSummary(window, rows);

    SortHomeworkList(rows, store, state.SortColumn, state.SortDirection, window.locale, &state.ListSortRanks);
    state.ListAssignmentRows = std::move(rows.ListAssignmentRows);
    state.ListTimes = std::move(rows.ListTimes);
    state.ListClassNames = std::move(rows.ListClassNames);
    state.ListForeColors = std::move(rows.ListForeColors);
    state.ListBackColors = std::move(rows.ListBackColors);
    state.RowCount = toInt16(state.ListAssignmentRows.count());
    window.updateGridScroll();

    PaintList(window, kTitles, [&](int p) {
        const int r = state.ListAssignmentRows(p);
        GridRow row;
        row.fore = RowColor(window, state.ListForeColors.valueOr(p, kNoText), kBlack);
        row.back = RowColor(window, state.ListBackColors.valueOr(p, kNoText), kWhite);
        row.cells = {
            {CellKind::Clipped, state.ListClassNames.valueOr(p, kNoText)},
            {CellKind::Trimmed, store.AssignmentTypes.valueOr(r, kNoText)},
            {CellKind::Clipped, store.AssignmentDescriptions.valueOr(r, kNoText)},
            {CellKind::Trimmed, store.AssignmentDifficulties.valueOr(r, kNoText)},
            {CellKind::Trimmed, state.ListTimes.valueOr(p, kNoText)},
            {CellKind::Plain, MediumDateOf(window, store.AssignmentDates.valueOr(r, kNoText))},
            {CellKind::Check, "", isTrueFlag(store.AssignmentDones.valueOr(r, kNoText))},
            {CellKind::Trimmed, store.AssignmentGrades.valueOr(r, kNoText)},
        };
        return row;
    });
}

}  // namespace qh
