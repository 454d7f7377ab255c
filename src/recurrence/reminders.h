#pragma once
// What is to be reminded of on a date: undone tasks and homework from their reminder date
// on (and after their own date, until done), and event occurrences from the date up to
// the date plus their advance notice, never past an end date. Nothing about a reminder is
// stored; everything is gathered anew from the record columns.
//
// `date` is the clicked date, not the clock. `filter` is the text of `ComboList` in
// Reminders mode ("All", "Homework", "Tasks", "Events"); every gatherer counts before the
// filter and appends a row only when the filter lets its kind through.
#include <string_view>

#include "common/column.h"
#include "common/day_number.h"
#include "common/int16.h"
#include "record_store/columns.h"

namespace qh {

// The row columns of the reminder list, appended in step, which a sort moves together.
struct ReminderColumns {
    Column<Int16> ReminderRecords;         // row in the columns of its kind
    TextColumn ReminderKinds;              // "Homework", "Task" or "Event"
    TextColumn ReminderClasses;            // class name; empty for a task or an event
    TextColumn ReminderTypes;              // type text of the record
    TextColumn ReminderDescriptions;
    Column<int> ReminderDays;              // DaysBetween(date, record's date): 0 today, < 0 past
    Column<Date> ReminderDates;            // the record's date, for an event the occurrence
    TextColumn ReminderForeColors, ReminderBackColors;  // colour names
};

// The columns and the three counters (16-bit: passing 32767 is the "Overflow").
struct ReminderRows : ReminderColumns {
    Int16 HomeworkReminderCount = 0, TaskReminderCount = 0, EventReminderCount = 0;
};

// The advance notice of a reminder text, in days, as a negative offset: "1 Day" gives -1,
// "30 Days" -30. Only the first two characters count; what isn't a number there ("None",
// empty) gives 0, so the record shows on its own date only.
Int16 ReminderOffset(std::string_view reminderText);

// Tasks, then homework, then events, in that order: the order of the rows before the
// list sorts them. The caller shows the three counters in `TextBoxAssignments`,
// `TextBoxTasks` (pink "&HE5E5FF" when not 0, else white) and `TextBoxEvents` (white).
ReminderRows GatherReminders(const RecordStore& store, Date date, std::string_view filter);

// Dated, undone, live tasks whose reminder date is not after `date`; colours by task type.
void GatherTaskReminders(const RecordStore& store, Date date, std::string_view filter, ReminderRows& rows);

// Undone, live assignments of the active term whose reminder date is not after `date`.
// Class name and colours come from every class whose ID equals the class link as a
// number; the class links are kept valid by the rest of the planner, and a link that
// matches no class leaves those three columns one short.
void GatherHomeworkReminders(const RecordStore& store, Date date, std::string_view filter, ReminderRows& rows);

// Every occurrence from `date` to `date` minus the offset (inclusive), and not after the
// end date of a repetition that has one; colours by event type.
void GatherEventReminders(const RecordStore& store, Date date, std::string_view filter, ReminderRows& rows);

// Counts and files one occurrence of the Event at row `index`.
void AddEventReminder(ReminderRows& rows, const RecordStore& store, Int16 index, Date date, Date occurrence,
                      std::string_view filter);

}  // namespace qh
