#include "platform/ical/ical_codec.h"

#include <libical/ical.h>

#include "platform/ical/ical_time.h"

#include <climits>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <system_error>
#include <filesystem>

namespace qh {
namespace {

constexpr const char* kProductId = "-//Quillhollow//Quillhollow Planner//EN";

struct ComponentDeleter {
    void operator()(icalcomponent* component) const { icalcomponent_free(component); }
};
using Component = std::unique_ptr<icalcomponent, ComponentDeleter>;

icaltimetype dayOf(Date date) {
    const Ymd ymd = ymdOf(date);
    icaltimetype time = icaltime_null_date();
    time.year = ymd.year;
    time.month = ymd.month;
    time.day = ymd.day;
    return time;
}

// A local date and time of the zone (UTC where there is none).
icaltimetype localTime(Date date, int minutes, icaltimezone* zone) {
    icaltimetype time = icaltime_null_time();
    const Ymd ymd = ymdOf(date);
    time.year = ymd.year;
    time.month = ymd.month;
    time.day = ymd.day;
    time.hour = minutes / 60;
    time.minute = minutes % 60;
    return icaltime_set_timezone(&time, zone ? zone : icaltimezone_get_utc_timezone());
}

// Sets the TZID parameter of a date-time property that carries a zone of its own; libical
// names the zone by its location, as the file's VTIMEZONE does.
icalproperty* withZone(icalproperty* property, const icaltimetype& time, icaltimezone* zone) {
    if (zone && !time.is_date) icalproperty_add_parameter(property, icalparameter_new_tzid(icaltimezone_get_location(zone)));
    return property;
}

icaltimetype timeOf(const CalendarItem& item, Date date, icaltimezone* zone) {
    return item.startMinutes ? localTime(date, *item.startMinutes, zone) : dayOf(date);
}

std::string weekdayCode(int weekday) {
    static constexpr const char* kCodes[] = {"SU", "MO", "TU", "WE", "TH", "FR", "SA"};
    return kCodes[(weekday - 1) % 7];
}

std::string numberList(const std::vector<int>& numbers) {
    std::string out;
    for (int n : numbers) {
        if (!out.empty()) out += ',';
        out += std::to_string(n);
    }
    return out;
}

// The RRULE text of a rule. An end on a dated item is a date; on a timed one it is the
// last moment of the end day in UTC, as a rule with a zoned start requires.
std::string ruleText(const CalendarItem& item, icaltimezone* zone) {
    const CalendarRule& rule = item.rule;
    std::string text;
    switch (rule.frequency) {
        case RepeatFrequency::None: return {};
        case RepeatFrequency::Weekly: {
            text = "FREQ=WEEKLY;BYDAY=";
            for (std::size_t i = 0; i < rule.weekdays.size(); ++i) {
                if (i > 0) text += ',';
                text += weekdayCode(rule.weekdays[i]);
            }
            break;
        }
        case RepeatFrequency::Monthly: text = "FREQ=MONTHLY"; break;
        case RepeatFrequency::Yearly:
            text = "FREQ=YEARLY;BYMONTH=";
            text += std::to_string(rule.month);
            break;
    }
    // Appended piece by piece: a literal put before a fresh string trips a false alarm of
    // the optimiser's overlap check in a release build.
    if (rule.ordinal != 0) {
        text += ";BYDAY=";
        text += std::to_string(rule.ordinal);
        text += weekdayCode(rule.ordinalWeekday);
    }
    if (!rule.monthDays.empty()) {
        text += ";BYMONTHDAY=";
        text += numberList(rule.monthDays);
    }
    if (rule.setPosition != 0) {
        text += ";BYSETPOS=";
        text += std::to_string(rule.setPosition);
    }
    if (rule.until) {
        icaltimetype until;
        if (item.startMinutes) {
            until = localTime(*rule.until, 23 * 60 + 59, zone);
            until.second = 59;
            until = icaltime_convert_to_zone(until, icaltimezone_get_utc_timezone());
        } else {
            until = dayOf(*rule.until);
        }
        text += ";UNTIL=";
        text += icaltime_as_ical_string(until);
    }
    return text;
}

void addAlarm(icalcomponent* component, const CalendarItem& item) {
    if (!item.alarmDaysBefore) return;
    icalcomponent* alarm = icalcomponent_new_valarm();
    icalcomponent_add_property(alarm, icalproperty_new_action(ICAL_ACTION_DISPLAY));
    icalcomponent_add_property(alarm, icalproperty_new_description(item.summary.c_str()));
    icaltriggertype trigger{};
    trigger.time = icaltime_null_time();
    trigger.duration = icaldurationtype_null_duration();
    trigger.duration.is_neg = *item.alarmDaysBefore > 0 ? 1 : 0;
    trigger.duration.days = static_cast<unsigned int>(std::abs(*item.alarmDaysBefore));
    icalproperty* property = icalproperty_new_trigger(trigger);
    // A to-do's notice counts back from its due day.
    if (item.kind == CalendarItemKind::Todo)
        icalproperty_add_parameter(property, icalparameter_new_related(ICAL_RELATED_END));
    icalcomponent_add_property(alarm, property);
    icalcomponent_add_component(component, alarm);
}

icalcomponent* componentOf(const CalendarItem& item, icaltimezone* zone, const icaltimetype& stamp) {
    const bool event = item.kind == CalendarItemKind::Event;
    icalcomponent* component = event ? icalcomponent_new_vevent() : icalcomponent_new_vtodo();
    icalcomponent_add_property(component, icalproperty_new_uid(item.uid.c_str()));
    icalcomponent_add_property(component, icalproperty_new_dtstamp(stamp));
    icalcomponent_add_property(component, icalproperty_new_summary(item.summary.c_str()));
    if (!item.description.empty())
        icalcomponent_add_property(component, icalproperty_new_description(item.description.c_str()));
    for (const std::string& category : item.categories)
        icalcomponent_add_property(component, icalproperty_new_categories(category.c_str()));
    if (!item.color.empty()) {
        // Colour names are CSS names; the format wants them in small letters.
        std::string color = item.color;
        for (char& c : color) c = char(std::tolower(static_cast<unsigned char>(c)));
        icalcomponent_add_property(component, icalproperty_new_color(color.c_str()));
    }
    if (event) {
        const icaltimetype start = timeOf(item, item.start, zone);
        icalcomponent_add_property(component, withZone(icalproperty_new_dtstart(start), start, zone));
        // An all-day event ends, exclusively, at the start of the next day.
        if (!item.startMinutes)
            icalcomponent_add_property(component, icalproperty_new_dtend(dayOf(item.start + 1)));
        const std::string rule = ruleText(item, zone);
        if (!rule.empty())
            icalcomponent_add_property(component,
                                       icalproperty_new_rrule(icalrecurrencetype_from_string(rule.c_str())));
        for (Date extra : item.extraDates) {
            icaldatetimeperiodtype date{};
            date.time = timeOf(item, extra, zone);
            date.period = icalperiodtype_null_period();
            icalproperty* property = icalproperty_new_rdate(date);
            if (!item.startMinutes) icalproperty_add_parameter(property, icalparameter_new_value(ICAL_VALUE_DATE));
            icalcomponent_add_property(component, withZone(property, date.time, zone));
        }
    } else {
        if (item.start != 0) {
            const icaltimetype due = timeOf(item, item.start, zone);
            icalcomponent_add_property(component, withZone(icalproperty_new_due(due), due, zone));
        }
        icalcomponent_add_property(component,
                                   icalproperty_new_status(item.done ? ICAL_STATUS_COMPLETED : ICAL_STATUS_NEEDSACTION));
        if (item.done) icalcomponent_add_property(component, icalproperty_new_percentcomplete(100));
        if (item.priority != 0) icalcomponent_add_property(component, icalproperty_new_priority(item.priority));
    }
    addAlarm(component, item);
    return component;
}

std::string textOf(icalcomponent* component) {
    char* text = icalcomponent_as_ical_string_r(component);
    std::string out = text ? text : "";
    icalmemory_free_buffer(text);
    return out;
}

bool usesLocalTime(const std::vector<CalendarItem>& items) {
    for (const CalendarItem& item : items)
        if (item.startMinutes) return true;
    return false;
}

}  // namespace

std::string ComputerZoneName() {
    if (const char* tz = std::getenv("TZ"); tz && *tz) {
        std::string name = tz[0] == ':' ? tz + 1 : tz;
        const std::string::size_type zoneinfo = name.find("zoneinfo/");
        if (zoneinfo != std::string::npos) name = name.substr(zoneinfo + 9);
        return name;
    }
    std::error_code error;
    const std::filesystem::path target = std::filesystem::canonical("/etc/localtime", error);
    if (!error) {
        const std::string path = target.string();
        const std::string::size_type zoneinfo = path.find("zoneinfo/");
        if (zoneinfo != std::string::npos) return path.substr(zoneinfo + 9);
    }
    std::ifstream timezone("/etc/timezone");
    std::string name;
    if (timezone && std::getline(timezone, name) && !name.empty()) return name;
    return "UTC";
}

IcalCodec::IcalCodec(std::string zoneName) : zoneName_(zoneName.empty() ? ComputerZoneName() : std::move(zoneName)) {
    if (!ZoneNamed(zoneName_)) zoneName_ = "UTC";
}

std::string IcalCodec::write(const std::vector<CalendarItem>& items) {
    icaltimezone* zone = ZoneNamed(zoneName_);
    Component calendar(icalcomponent_new_vcalendar());
    icalcomponent_add_property(calendar.get(), icalproperty_new_version("2.0"));
    icalcomponent_add_property(calendar.get(), icalproperty_new_prodid(kProductId));
    icalcomponent_add_property(calendar.get(), icalproperty_new_calscale("GREGORIAN"));
    if (zone && usesLocalTime(items)) {
        // The zone's definition travels with the file, named as the times name it.
        icalcomponent* definition = icalcomponent_new_clone(icaltimezone_get_component(zone));
        icalproperty* tzid = icalcomponent_get_first_property(definition, ICAL_TZID_PROPERTY);
        if (tzid) icalproperty_set_tzid(tzid, icaltimezone_get_location(zone));
        icalcomponent_add_component(calendar.get(), definition);
    }
    const icaltimetype stamp = icaltime_current_time_with_zone(icaltimezone_get_utc_timezone());
    // Each item is written and freed on its own, inside the calendar's own lines: a tree of
    // tens of thousands of items built whole first costs more to free than to write.
    std::string out = textOf(calendar.get());
    const std::string end = "END:VCALENDAR\r\n";
    if (out.size() >= end.size() && out.compare(out.size() - end.size(), end.size(), end) == 0)
        out.resize(out.size() - end.size());
    for (const CalendarItem& item : items) {
        Component component(componentOf(item, zone, stamp));
        out += textOf(component.get());
    }
    return out + end;
}

}  // namespace qh
