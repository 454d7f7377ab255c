#include "shell/desktop_reminder_settings.h"

#include "common/failure.h"
#include "common/flag_text.h"
#include "common/text.h"
#include "record_store/storage_locations.h"

namespace qh {
namespace {

const char* const kFileName = "DesktopReminders.ini";

}  // namespace

std::string DesktopReminderSettingsText(const DesktopReminderSettings& settings) {
    std::string text = "[Desktop Reminders]\r\n";
    text += std::string("Enabled=") + flagText(settings.enabled) + "\r\n";
    if (settings.lastDay != 0) {
        text += "LastDay=" + dateText(settings.lastDay) + "\r\n";
        text += "LastItems=" + settings.lastItems + "\r\n";
    }
    return text;
}

DesktopReminderSettings ReadDesktopReminderSettingsText(std::string_view text) {
    DesktopReminderSettings settings;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos) continue;
        const std::string key = trim(line.substr(0, equals)), value = trim(line.substr(equals + 1));
        if (key == "Enabled") {
            if (isTrueFlag(value) || isFalseFlag(value)) settings.enabled = isTrueFlag(value);
        } else if (key == "LastDay") {
            if (const auto day = parseDateText(value)) settings.lastDay = *day;
        } else if (key == "LastItems") {
            settings.lastItems = value;
        }
    }
    return settings;
}

DesktopReminderSettings ReadDesktopReminderSettings(Platform& platform, const RecordStore& store) {
    try {
        return ReadDesktopReminderSettingsText(platform.files.readAll(dataFilePath(store, kFileName)));
    } catch (const FileFailure&) {
        return {};
    }
}

bool WriteDesktopReminderSettings(Platform& platform, const RecordStore& store,
                                  const DesktopReminderSettings& settings) {
    try {
        EnterDirectory(platform, store.DataDirectory);
        platform.files.writeWhole(dataFilePath(store, kFileName), DesktopReminderSettingsText(settings));
        return true;
    } catch (const FileFailure&) {
        return false;
    }
}

}  // namespace qh
