#pragma once
// What a desktop notice of the day's reminders says. The items are those of Today's
// Reminders for the day, gathered by the same rules (advance notice, done, recurring
// events) and sorted by date as that list sorts its Date column.
#include <cstddef>
#include <string>

#include "common/day_number.h"
#include "platform/locale.h"
#include "record_store/columns.h"

namespace qh {

struct ReminderNotice {
    std::string title;  // "Today's Reminders"
    // The sentence of the sums, then the first items by date, one a line, then how many
    // more there are.
    std::string text;
    int itemCount = 0;
    // Sixteen hex digits drawn from every item (its kind, date and description): the same
    // items give the same digits, so a notice already given is told from a new one.
    std::string fingerprint;
    bool empty() const { return itemCount == 0; }
};

// "3 assignments, 1 task and 2 events need you soon"; a kind without any is left out and
// a single item "needs" you. Empty when all three are 0.
std::string ReminderCountSentence(int assignments, int tasks, int events);

// The notice of what is to be reminded of on `day`, naming at most `shownItems` items.
ReminderNotice DesktopReminderNotice(const RecordStore& store, Date day, const Locale& locale,
                                     std::size_t shownItems = 5);

}  // namespace qh
