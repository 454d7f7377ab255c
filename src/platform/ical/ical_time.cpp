#include "platform/ical/ical_time.h"

#include <array>
#include <string_view>
#include <utility>

namespace qh {
namespace {

// The Windows names of the zones students meet most, as Outlook and Exchange write them
// in a TZID without a VTIMEZONE of their own.
constexpr std::array<std::pair<std::string_view, const char*>, 24> kWindowsZones{{
    {"Pacific Standard Time", "America/Los_Angeles"},   {"Mountain Standard Time", "America/Denver"},
    {"US Mountain Standard Time", "America/Phoenix"},   {"Central Standard Time", "America/Chicago"},
    {"Eastern Standard Time", "America/New_York"},      {"Atlantic Standard Time", "America/Halifax"},
    {"Alaskan Standard Time", "America/Anchorage"},     {"Hawaiian Standard Time", "Pacific/Honolulu"},
    {"E. South America Standard Time", "America/Sao_Paulo"}, {"GMT Standard Time", "Europe/London"},
    {"W. Europe Standard Time", "Europe/Berlin"},       {"Romance Standard Time", "Europe/Paris"},
    {"Central Europe Standard Time", "Europe/Budapest"}, {"Central European Standard Time", "Europe/Warsaw"},
    {"FLE Standard Time", "Europe/Kiev"},               {"GTB Standard Time", "Europe/Bucharest"},
    {"Russian Standard Time", "Europe/Moscow"},         {"India Standard Time", "Asia/Kolkata"},
    {"China Standard Time", "Asia/Shanghai"},           {"Singapore Standard Time", "Asia/Singapore"},
    {"Tokyo Standard Time", "Asia/Tokyo"},              {"Korea Standard Time", "Asia/Seoul"},
    {"AUS Eastern Standard Time", "Australia/Sydney"},  {"New Zealand Standard Time", "Pacific/Auckland"},
}};

}  // namespace

icaltimezone* ZoneNamed(const std::string& name) {
    if (name.empty() || name == "UTC" || name == "Etc/UTC" || name == "GMT") return nullptr;
    if (icaltimezone* zone = icaltimezone_get_builtin_timezone(name.c_str())) return zone;
    for (const auto& [windows, iana] : kWindowsZones)
        if (windows == name) return icaltimezone_get_builtin_timezone(iana);
    return nullptr;
}

}  // namespace qh
