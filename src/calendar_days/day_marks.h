#pragma once
// Which of the 42 calendar cells hold something that passes the mode's list filter, and
// the tint they take. Term start and end dates mark nothing.
#include <array>
#include <string>

#include "common/day_number.h"
#include "record_store/columns.h"
#include "calendar/month_cells.h"

namespace qh {

struct DayMarks {
    std::array<bool, 42> marked{};
    std::string markedBack;  // colour text of the marked cells
};

// Homework: live assignments, filtered by "All", "Done" or "Not Done"; any other filter
// text takes the pink tint of "Not Done" and marks nothing.
DayMarks MarkHomeworkDays(const RecordStore& store, Date firstCell, const std::string& listChoice,
                          const MainWindowColors& colors);
// Study sessions: every loaded session not deleted (link -1); the filter plays no part.
DayMarks MarkStudySessionDays(const RecordStore& store, Date firstCell, const MainWindowColors& colors);
// Tasks: dated, live tasks, filtered as homework.
DayMarks MarkTaskDays(const RecordStore& store, Date firstCell, const std::string& listChoice,
                      const MainWindowColors& colors);
// Reminders: the reminder rows of the last gathering, by kind.
DayMarks MarkReminderDays(const Column<Date>& reminderDates, const TextColumn& reminderKinds, Date firstCell,
                          const std::string& listChoice, const MainWindowColors& colors);

}  // namespace qh
