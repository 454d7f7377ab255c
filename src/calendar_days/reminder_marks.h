#pragma once
// The calendar marks in Reminders mode: the days of the reminder rows that the last
// gathering left (the record's date, or an event's occurrence), for the kind the filter
// names. The tint is blue for "All" and for any unknown text, pink for "Homework", tan
// for "Tasks" and green for "Events"; an unknown text marks nothing.
#include <string_view>

#include "common/day_number.h"
#include "recurrence/day_marks.h"
#include "recurrence/reminders.h"

namespace qh {

// `firstCell` is the date of cell 0; `filter` is the text of `ComboList`.
DayMarks MarkReminderDays(const ReminderRows& rows, Date firstCell, std::string_view filter);

}  // namespace qh
