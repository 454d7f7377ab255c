#pragma once
// The occurrences of all events in a range of dates, for the event list when it shows a
// week, a month or a year from the clicked date.
//
// The range is walked rule by rule, not day by day: each recurring event steps through
// its own candidates (one per month or per year, or one per ticked weekday and week) and
// files those inside the range. The rows come out grouped by record, in record order, and
// unsorted; a weekly event's rows come weekday by weekday, not in date order.
//
// Cost: one step per month or year of the range and per ticked weekday and week; a first
// date far back costs nothing more, as the walk starts at the first step that can reach
// the range.
#include <string_view>

#include "common/column.h"
#include "common/day_number.h"
#include "common/int16.h"
#include "record_store/columns.h"

namespace qh {

// The row columns of the event list, which a sort moves together.
struct EventColumns {
    Column<Int16> ListEventRows;  // row of the Event columns of each occurrence
    Column<Date> ListEventDates;   // date of the occurrence
    TextColumn ListEventForeColors, ListEventBackColors;  // colour names
};

// The columns and the counters. The counters count every occurrence found, before the
// `ComboList` filter, so they tell what the range holds whatever the list shows. They are
// 16-bit: passing 32767 is the "Overflow".
struct EventRows : EventColumns {
    Int16 EventClassCount = 0, EventOtherCount = 0, EventTotal = 0;
};

// The last date of the range from `start` for the text of `ComboDateRange`, inclusive:
// "Week" is start plus 7 days (eight dates), "Month" the same day number a month on
// (clamped to a shorter month), anything else ("Year") one day short of a year on.
Date EventRangeEnd(Date start, std::string_view dateRange);

// All occurrences from `start` to EventRangeEnd(start, dateRange), both inclusive, with
// `filter` the text of `ComboList` ("All", "Classes", "Other Events"). Each row gets
// "Black" text and its type's background. The caller shows EventClassCount and
// EventOtherCount in `TextBoxClasses` and `TextBoxOtherEvents`, both on white.
EventRows ExpandEvents(const RecordStore& store, Date start, std::string_view dateRange, std::string_view filter);

// Counts one occurrence of the Event at row `index` on `date` and files it (row and date
// only) when `filter` lets its type pass. The colours are added for all rows at the end,
// by ColorEventRows.
void AddEventOccurrence(EventRows& rows, const RecordStore& store, Int16 index, Date date, std::string_view filter);

// Fills the two colour columns for the rows filed so far, from each row's event type.
void ColorEventRows(EventRows& rows, const RecordStore& store);

}  // namespace qh
