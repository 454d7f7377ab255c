// The event list: occurrences, not records. A recurring event that falls three times in
// the range shown has three rows, each with its own date; a click on any of them opens
// the one record.
#include <array>

#include "list_view/grid.h"
#include "list_view/list_host.h"
#include "list_view/list_rows.h"
#include "list_view/list_sort.h"
#include "list_view/time_text.h"
#include "recurrence/occurrence.h"

namespace qh {
namespace {

const std::string kNoText;

constexpr std::array<const char*, 6> kTitles{"#", "Name", "Type", "Date", "Time", "Recurrence"};

// Type, time and recurrence hold the word "None" when the editor left them unset; the
// list shows such a cell empty.
std::string unlessNone(const std::string& value) { return value == "None" ? std::string() : value; }

// The time of an event in the "Medium Time" format; a text that reads as no time of day
// is shown as it stands.
std::string mediumTimeOf(const ListHost& window, const std::string& field) {
    if (field == "None") return {};
    const auto seconds = ParseTimeOfDay(field);
    return seconds ? window.locale.mediumTime(*seconds) : field;
}

void showSummary(const ListHost& window, const EventRows& rows) {
    Control& classes = *window.ui.TextBoxClasses;
    Control& others = *window.ui.TextBoxOtherEvents;
    classes.text = std::to_string(rows.EventClassCount);
    others.text = std::to_string(rows.EventOtherCount);
    // Events are neither open nor done: the boxes only count.
    classes.backColor = others.backColor = kWhite;
}

}  // namespace

EventRows GatherEvents(const RecordStore& store, Date date, std::string_view filter) {
    EventRows rows;
    const CalendarDay day = calendarDay(date);
    const int n = store.EventRecordNos.count();
    for (int i = 1; i <= n; ++i) {
        // A deleted record reads as no rule and is never a hit.
        if (!occursOn(readEventRule(store, i), day)) continue;
        AddEventOccurrence(rows, store, toInt16(i), date, filter);
    }
    ColorEventRows(rows, store);
    return rows;
}

void BuildEventList(const ListHost& window) {
    const RecordStore& store = window.store;
    MainWindowState& state = window.state;
    const std::string& list = window.ui.ComboList->text;
    const std::string& range = window.ui.ComboDateRange->text;
    const Locale& locale = window.locale;
    EventRows rows;
    if (range == "Day") {
        rows = GatherEvents(store, state.ClickedDate, list);
        window.ui.LabelTop->caption = "Events for " + locale.longDate(state.ClickedDate);
    } else {
        rows = ExpandEvents(store, state.ClickedDate, range, list);
        // The title names the last date the range holds.
        window.ui.LabelTop->caption = "Events until " + locale.longDate(EventRangeEnd(state.ClickedDate, range));
    }
    showSummary(window, rows);

    SortEventList(rows, store, state.SortColumn, state.SortDirection, locale, &state.ListSortRanks);
    state.ListEventRows.clear();
    state.ListEventRows.reserve(rows.ListEventRows.count());
    for (Int16 r : rows.ListEventRows) state.ListEventRows.append(r);
    state.ListEventDates = std::move(rows.ListEventDates);
    state.ListEventForeColors = std::move(rows.ListEventForeColors);
    state.ListEventBackColors = std::move(rows.ListEventBackColors);
    state.RowCount = toInt16(state.ListEventRows.count());
    window.updateGridScroll();

    PaintList(window, kTitles, [&](int p) {
        const int r = state.ListEventRows(p);
        GridRow row;
        row.fore = RowColor(window, state.ListEventForeColors.valueOr(p, kNoText), kBlack);
        row.back = RowColor(window, state.ListEventBackColors.valueOr(p, kNoText), kWhite);
        row.cells = {
            {CellKind::Clipped, store.EventDescriptions.valueOr(r, kNoText)},
            {CellKind::Trimmed, unlessNone(store.EventTypes.valueOr(r, kNoText))},
            {CellKind::Plain, locale.mediumDate(state.ListEventDates(p))},
            {CellKind::Plain, mediumTimeOf(window, store.EventTimes.valueOr(r, kNoText))},
            {CellKind::Plain, unlessNone(store.EventRecurrences.valueOr(r, kNoText))},
        };
        return row;
    });
}

}  // namespace qh
