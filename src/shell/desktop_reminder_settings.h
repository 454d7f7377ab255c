#pragma once
// DesktopReminders.ini, a file of the planner's own beside Preferences.ini in the data
// directory: whether the day's reminders go to the desktop, and which notice was given
// last. It travels with the drive, so a start on another computer the same day stays
// quiet too. Preferences.ini keeps the lines every copy of the planner reads.
#include <string>
#include <string_view>

#include "common/day_number.h"
#include "platform/platform.h"
#include "record_store/columns.h"

namespace qh {

struct DesktopReminderSettings {
    bool enabled = true;
    Date lastDay = 0;        // the day of the last notice; 0 for none yet
    std::string lastItems;   // the fingerprint of its items
};

// "[Desktop Reminders]", then Enabled=True|False, LastDay=yyyy/MM/dd, LastItems=digits;
// lines end with CR LF.
std::string DesktopReminderSettingsText(const DesktopReminderSettings& settings);

// Reads what it knows and leaves the defaults for the rest: a line it does not know, a
// value it can't read or a file from a later version takes nothing away.
DesktopReminderSettings ReadDesktopReminderSettingsText(std::string_view text);

// The file in the data directory; a missing or unreadable file gives the defaults.
DesktopReminderSettings ReadDesktopReminderSettings(Platform& platform, const RecordStore& store);

// Replaces the file whole (a temporary file, synced, renamed). Shows nothing; false on
// any failure, since the choice is only a convenience and the planner goes on without it.
bool WriteDesktopReminderSettings(Platform& platform, const RecordStore& store,
                                  const DesktopReminderSettings& settings);

}  // namespace qh
