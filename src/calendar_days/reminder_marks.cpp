#include "calendar_days/reminder_marks.h"

namespace qh {

namespace {

bool reminderFilterPasses(std::string_view filter, const std::string& kind) {
    return filter == "All" || (filter == "Homework" && kind == "Homework") || (filter == "Tasks" && kind == "Task") ||
           (filter == "Events" && kind == "Event");
}

}  // namespace

DayMarks MarkReminderDays(const ReminderRows& rows, Date firstCell, std::string_view filter) {
    DayMarks marks;
    marks.ColorMarkedBack = filter == "Homework" ? kColorTintPink
                            : filter == "Tasks"  ? kColorTintTan
                            : filter == "Events" ? kColorTintGreen
                                                 : kColorTintBlue;
    for (int n = 1; n <= rows.ReminderRecords.count(); ++n) {
        const int d = rows.ReminderDates(n) - firstCell;
        if (d < 0 || d >= kCalendarCells) continue;
        if (reminderFilterPasses(filter, rows.ReminderKinds(n))) marks.CellMarked[std::size_t(d)] = true;
    }
    return marks;
}

}  // namespace qh
