#include "shell/desktop_reminder_notice.h"

#include <cstdint>
#include <cstdio>
#include <vector>

#include "list_view/list_rows.h"
#include "list_view/list_sort.h"
#include "recurrence/reminders.h"

namespace qh {
namespace {

// The Date column of the reminder list, rising: the list's own sort.
constexpr int kDateColumn = 6;
const std::string kNoText;

std::string counted(int count, const char* one, const char* many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

// "Tomorrow: Problem set 7 (Algebra)": the list's When word, the description, the class
// of homework.
std::string itemLine(const ReminderRows& rows, int i) {
    std::string what = rows.ReminderDescriptions.valueOr(i, kNoText);
    if (what.empty()) what = rows.ReminderKinds.valueOr(i, kNoText);
    const std::string& className = rows.ReminderClasses.valueOr(i, kNoText);
    if (!className.empty()) what += " (" + className + ")";
    return DateWord(rows.ReminderDays.valueOr(i, 0)) + ": " + what;
}

// FNV-1a, 64 bits: enough to tell one day's set of items from another.
std::string fingerprintOf(const std::string& text) {
    std::uint64_t hash = 14695981039346656037ull;
    for (unsigned char ch : text) hash = (hash ^ ch) * 1099511628211ull;
    char digits[17];
    std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(hash));
    return digits;
}

}  // namespace

std::string ReminderCountSentence(int assignments, int tasks, int events) {
    std::vector<std::string> parts;
    if (assignments > 0) parts.push_back(counted(assignments, "assignment", "assignments"));
    if (tasks > 0) parts.push_back(counted(tasks, "task", "tasks"));
    if (events > 0) parts.push_back(counted(events, "event", "events"));
    if (parts.empty()) return {};
    std::string sentence = parts[0];
    for (std::size_t i = 1; i < parts.size(); ++i) sentence += (i + 1 == parts.size() ? " and " : ", ") + parts[i];
    const bool one = assignments + tasks + events == 1;
    return sentence + (one ? " needs you soon" : " need you soon");
}

ReminderNotice DesktopReminderNotice(const RecordStore& store, Date day, const Locale& locale,
                                     std::size_t shownItems) {
    ReminderRows rows = GatherReminders(store, day, "All");
    SortReminderList(rows, kDateColumn, SortDirection::Ascending, locale);
    ReminderNotice notice;
    notice.title = "Today's Reminders";
    const int count = rows.ReminderRecords.count();
    notice.itemCount = count;
    if (count == 0) return notice;
    notice.text = ReminderCountSentence(rows.HomeworkReminderCount, rows.TaskReminderCount, rows.EventReminderCount);
    std::string items;
    for (int i = 1; i <= count; ++i) {
        if (std::size_t(i) <= shownItems) {
            // Two appends rather than "\n" + line: the latter trips a false alarm of the
            // optimiser's overlap check in a release build.
            notice.text += '\n';
            notice.text += itemLine(rows, i);
        }
        items += rows.ReminderKinds.valueOr(i, kNoText) + " " + dateText(rows.ReminderDates.valueOr(i, 0)) + " " +
                 rows.ReminderDescriptions.valueOr(i, kNoText) + "\n";
    }
    notice.fingerprint = fingerprintOf(items);
    if (std::size_t(count) > shownItems) notice.text += "\nand " + std::to_string(count - int(shownItems)) + " more";
    return notice;
}

}  // namespace qh
