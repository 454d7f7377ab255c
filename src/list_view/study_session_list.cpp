// The study session list: one row per session of study time, with the columns of the
// assignment it was spent on.
#include <array>

#include "list_view/grid.h"
#include "list_view/list_host.h"
#include "list_view/list_rows.h"
#include "list_view/list_sort.h"
#include "list_view/record_index.h"

namespace qh {
namespace {

const std::string kNoText;

constexpr std::array<const char*, 8> kTitles{"#",          "Class", "Type",    "Description",
                                             "Difficulty", "Time",  "Done On", "Due"};

bool onDay(const std::string& field, Date date) {
    const auto day = parseDateText(field);
    return day && *day == date;
}

std::string withoutBlanks(const std::string& text) {
    std::string result;
    for (char c : text)
        if (c != ' ') result += c;
    return result;
}

}  // namespace

StudySessionRows GatherStudySessions(const RecordStore& store, Date date) {
    StudySessionRows rows;
    const RowsById assignments(store.AssignmentIDs);
    const RowsById classes(store.ClassIDs);
    Span total;
    const int n = store.StudySessionDates.count();
    for (Column<int>* column :
         {&rows.ListSessionRows, &rows.ListSessionLengthRows, &rows.ListSessionDateRows, &rows.ListAssignmentRows})
        column->reserve(n);
    for (TextColumn* column : {&rows.ListClassNames, &rows.ListForeColors, &rows.ListBackColors}) column->reserve(n);
    for (int s = 1; s <= n; ++s) {
        const bool inRange = date == kAllDatesSentinel || onDay(store.StudySessionDates(s), date);
        const Int16 link = IdNumber(store.StudySessionLinkIDs.valueOr(s, kNoText));
        // Only the link -1 takes a session out; deleted assignments are not looked at.
        if (!inRange || link == -1) continue;
        rows.ListSessionLengthRows.append(s);
        rows.ListSessionDateRows.append(s);
        const Span length = ReadSpan(store.StudySessionLengths.valueOr(s, kNoText));
        total.hours += length.hours;
        total.minutes += length.minutes;
        rows.ListSessionRows.append(s);
        assignments.forEach(link, [&](int n) {
            rows.ListAssignmentRows.append(n);
            classes.forEach(IdNumber(store.AssignmentClassLinks.valueOr(n, kNoText)), [&](int k) {
                rows.ListClassNames.append(store.ClassNames.valueOr(k, kNoText));
                rows.ListForeColors.append(store.ClassForeColors.valueOr(k, kNoText));
                rows.ListBackColors.append(store.ClassBackColors.valueOr(k, kNoText));
            });
        });
    }
    rows.StudyTimeTotal = TimeForm(total.totalMinutes());
    return rows;
}

void BuildStudySessionList(const ListHost& window) {
    const RecordStore& store = window.store;
    MainWindowState& state = window.state;
    StudySessionRows rows;
    std::string title;
    if (window.ui.ComboDateRange->text == "Day") {
        rows = GatherStudySessions(store, state.ClickedDate);
        title = "Study on " + window.locale.longDate(state.ClickedDate);
    } else {
        rows = GatherStudySessions(store, kAllDatesSentinel);
        title = "Study for " + store.CurrentTermName;
    }
    window.ui.LabelTop->caption = store.CurrentTermName.empty() ? std::string() : title;
    Control& sessions = *window.ui.TextBoxStudySessions;
    Control& time = *window.ui.TextBoxStudyTime;
    sessions.text = std::to_string(rows.ListSessionRows.count());
    time.text = rows.StudyTimeTotal;
    sessions.backColor = time.backColor = kWhite;

    SortStudySessionList(rows, store, state.SortColumn, state.SortDirection, window.locale, &state.ListSortRanks);
    state.ListSessionRows = std::move(rows.ListSessionRows);
    state.ListSessionLengthRows = std::move(rows.ListSessionLengthRows);
    state.ListSessionDateRows = std::move(rows.ListSessionDateRows);
    state.ListAssignmentRows = std::move(rows.ListAssignmentRows);
    state.ListClassNames = std::move(rows.ListClassNames);
    state.ListForeColors = std::move(rows.ListForeColors);
    state.ListBackColors = std::move(rows.ListBackColors);
    state.RowCount = toInt16(state.ListSessionRows.count());
    window.updateGridScroll();

    PaintList(window, kTitles, [&](int p) {
        // A session whose assignment is gone leaves this column short: its row shows no
        // assignment.
        const int r = state.ListAssignmentRows.valueOr(p, 0);
        const int length = state.ListSessionLengthRows.valueOr(p, 0);
        const int doneOn = state.ListSessionDateRows.valueOr(p, 0);
        GridRow row;
        row.fore = RowColor(window, state.ListForeColors.valueOr(p, kNoText), kBlack);
        row.back = RowColor(window, state.ListBackColors.valueOr(p, kNoText), kWhite);
        row.cells = {
            {CellKind::Clipped, state.ListClassNames.valueOr(p, kNoText)},
            {CellKind::Trimmed, store.AssignmentTypes.valueOr(r, kNoText)},
            {CellKind::Clipped, store.AssignmentDescriptions.valueOr(r, kNoText)},
            {CellKind::Trimmed, store.AssignmentDifficulties.valueOr(r, kNoText)},
            {CellKind::Trimmed, withoutBlanks(store.StudySessionLengths.valueOr(length, kNoText))},
            {CellKind::Plain, MediumDateOf(window, store.StudySessionDates.valueOr(doneOn, kNoText))},
            {CellKind::Plain, MediumDateOf(window, store.AssignmentDates.valueOr(r, kNoText))},
        };
        return row;
    });
}

}  // namespace qh
