#include "calendar_days/day_marks.h"

#include "common/flag_text.h"

namespace qh {
namespace {

// Marks the cell of a date when it lies within the 42 cells.
void markDate(DayMarks& marks, Date firstCell, Date date) {
    const long long d = static_cast<long long>(date) - firstCell;
    if (d >= 0 && d < 42) marks.marked[std::size_t(d)] = true;
}

// The tint of a done/not-done filter; any text but "All" and "Done" takes the pink of
// "Not Done", which is also the filter it then applies.
std::string doneFilterTint(const std::string& listChoice, const MainWindowColors& colors) {
    if (listChoice == "All") return colors.TintBlue;
    if (listChoice == "Done") return colors.TintGreen;
    return colors.TintPink;
}

bool passesDoneFilter(const std::string& listChoice, const std::string& done) {
    if (listChoice == "All") return true;
    if (listChoice == "Done") return isTrueFlag(done);
    if (listChoice == "Not Done") return isFalseFlag(done);
    return false;
}

// The date of a record field; a field that holds no date marks nothing.
std::optional<Date> fieldDate(const std::string& text) { return parseDateText(text); }

}  // namespace

DayMarks MarkHomeworkDays(const RecordStore& store, Date firstCell, const std::string& listChoice,
                          const MainWindowColors& colors) {
    DayMarks marks;
    marks.markedBack = doneFilterTint(listChoice, colors);
    for (int n = 1; n <= store.AssignmentRecordNos.count(); ++n) {
        const auto date = fieldDate(store.AssignmentDates.valueOr(n, {}));
        if (!date || store.AssignmentDescriptions.valueOr(n, {}) == kDeletedRecord) continue;
        if (passesDoneFilter(listChoice, store.AssignmentDones.valueOr(n, {}))) markDate(marks, firstCell, *date);
    }
    return marks;
}

DayMarks MarkStudySessionDays(const RecordStore& store, Date firstCell, const MainWindowColors& colors) {
    DayMarks marks;
    marks.markedBack = colors.TintBlue;
    for (int n = 1; n <= store.StudySessionRecordNos.count(); ++n) {
        const auto date = fieldDate(store.StudySessionDates.valueOr(n, {}));
        if (!date || int16OrZero(store.StudySessionLinkIDs.valueOr(n, {})) == -1) continue;
        markDate(marks, firstCell, *date);
    }
    return marks;
}

DayMarks MarkTaskDays(const RecordStore& store, Date firstCell, const std::string& listChoice,
                      const MainWindowColors& colors) {
    DayMarks marks;
    marks.markedBack = doneFilterTint(listChoice, colors);
    for (int n = 1; n <= store.TaskRecordNos.count(); ++n) {
        if (!isTrueFlag(store.TaskDateExists.valueOr(n, {}))) continue;
        if (store.TaskDescriptions.valueOr(n, {}) == kDeletedRecord) continue;
        const auto date = fieldDate(store.TaskDates.valueOr(n, {}));
        if (!date) continue;
        if (passesDoneFilter(listChoice, store.TaskDones.valueOr(n, {}))) markDate(marks, firstCell, *date);
    }
    return marks;
}

DayMarks MarkReminderDays(const Column<Date>& reminderDates, const TextColumn& reminderKinds, Date firstCell,
                          const std::string& listChoice, const MainWindowColors& colors) {
    DayMarks marks;
    std::string kind;
    if (listChoice == "Homework") {
        marks.markedBack = colors.TintPink;
        kind = "Homework";
    } else if (listChoice == "Tasks") {
        marks.markedBack = colors.TintTan;
        kind = "Task";
    } else if (listChoice == "Events") {
        marks.markedBack = colors.TintGreen;
        kind = "Event";
    } else {
        marks.markedBack = colors.TintBlue;
    }
    for (int n = 1; n <= reminderDates.count(); ++n) {
        if (listChoice != "All" && reminderKinds.valueOr(n, {}) != kind) continue;
        markDate(marks, firstCell, reminderDates(n));
    }
    return marks;
}

}  // namespace qh
