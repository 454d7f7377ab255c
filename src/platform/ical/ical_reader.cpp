// Reading an iCalendar file into calendar items in the computer's local time. What the
// planner cannot hold is not guessed at: a repetition beyond the planner's forms leaves
// the item's rule empty and says why, for the student to choose in the preview.
#include <libical/ical.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

#include "platform/ical/ical_codec.h"
#include "platform/ical/ical_time.h"

namespace qh {
namespace {

struct ComponentDeleter {
    void operator()(icalcomponent* component) const { icalcomponent_free(component); }
};

// The furthest the planner's calendar reaches, and how many repeats a COUNT is walked
// through before the rule is taken as endless there.
constexpr int kLastPlannerYear = 3100;
constexpr int kMostCountedRepeats = 40000;

Date dateOf(const icaltimetype& time) { return dateFromYmd(time.year, time.month, time.day); }

bool plausible(const icaltimetype& time) {
    return !icaltime_is_null_time(time) && time.year >= 1600 && time.year <= kLastPlannerYear && time.month >= 1 &&
           time.month <= 12 && time.day >= 1 && time.day <= daysInMonth(time.year, time.month);
}

// The line each VEVENT and VTODO begins on, in the order of the file.
std::vector<int> itemLines(const std::string& text) {
    std::vector<int> lines;
    int line = 1;
    for (std::size_t at = 0; at < text.size();) {
        std::size_t end = text.find('\n', at);
        if (end == std::string::npos) end = text.size();
        std::string_view content(text.data() + at, end - at);
        if (!content.empty() && content.back() == '\r') content.remove_suffix(1);
        if (content == "BEGIN:VEVENT" || content == "BEGIN:VTODO") lines.push_back(line);
        at = end + 1;
        ++line;
    }
    return lines;
}

class ItemReader {
public:
    ItemReader(icalcomponent* calendar, icaltimezone* local) : calendar_(calendar), local_(local) {}

    CalendarItem read(icalcomponent* component) {
        CalendarItem item;
        const bool event = icalcomponent_isa(component) == ICAL_VEVENT_COMPONENT;
        item.kind = event ? CalendarItemKind::Event : CalendarItemKind::Todo;
        item.uid = text(icalcomponent_get_uid(component));
        item.summary = text(icalcomponent_get_summary(component));
        item.description = text(icalcomponent_get_description(component));
        for (icalproperty* p = icalcomponent_get_first_property(component, ICAL_CATEGORIES_PROPERTY); p;
             p = icalcomponent_get_next_property(component, ICAL_CATEGORIES_PROPERTY))
            splitInto(text(icalproperty_get_categories(p)), item.categories);
        if (icalproperty* color = icalcomponent_get_first_property(component, ICAL_COLOR_PROPERTY))
            item.color = text(icalproperty_get_color(color));

        icalproperty* startProperty = icalcomponent_get_first_property(
            component, event ? ICAL_DTSTART_PROPERTY : ICAL_DUE_PROPERTY);
        if (!startProperty && !event) startProperty = icalcomponent_get_first_property(component, ICAL_DTSTART_PROPERTY);
        icaltimetype source{};
        int dayShift = 0;
        if (startProperty) {
            source = zoned(startProperty);
            if (plausible(source)) {
                const icaltimetype local = toLocal(source);
                item.start = dateOf(local);
                if (!local.is_date) item.startMinutes = local.hour * 60 + local.minute;
                dayShift = item.start - dateOf(source);
            }
        }
        if (event) {
            if (icalproperty* end = icalcomponent_get_first_property(component, ICAL_DTEND_PROPERTY))
                item.instant = icaltime_compare(zoned(end), source) == 0;
        }
        const icalproperty_status status = icalcomponent_get_status(component);
        item.done = status == ICAL_STATUS_COMPLETED ||
                    icalcomponent_get_first_property(component, ICAL_COMPLETED_PROPERTY) != nullptr;
        if (icalproperty* priority = icalcomponent_get_first_property(component, ICAL_PRIORITY_PROPERTY))
            item.priority = std::clamp(icalproperty_get_priority(priority), 0, 9);
        readAlarm(component, item);
        if (item.start != 0) readRepetition(component, source, dayShift, item);
        return item;
    }

private:
    static std::string text(const char* value) { return value ? value : ""; }

    static void splitInto(const std::string& list, std::vector<std::string>& out) {
        std::size_t at = 0;
        while (at <= list.size()) {
            std::size_t comma = list.find(',', at);
            if (comma == std::string::npos) comma = list.size();
            std::string name = list.substr(at, comma - at);
            name.erase(0, name.find_first_not_of(' '));
            name.erase(name.find_last_not_of(' ') + 1);
            if (!name.empty()) out.push_back(name);
            at = comma + 1;
        }
    }

    // A date or time with its zone: the file's own VTIMEZONE of the TZID, else the zone
    // of that name (IANA or Windows), else the time as it stands, taken as local.
    icaltimetype zoned(icalproperty* property) const {
        icaltimetype time = icalvalue_get_datetime(icalproperty_get_value(property));
        if (time.is_date || icaltime_is_utc(time)) return time;
        icalparameter* tzid = icalproperty_get_first_parameter(property, ICAL_TZID_PARAMETER);
        if (!tzid) return time;
        const char* name = icalparameter_get_tzid(tzid);
        icaltimezone* zone = name ? icalcomponent_get_timezone(calendar_, name) : nullptr;
        if (!zone && name) zone = ZoneNamed(name);
        if (!zone && name && std::string(name) == "UTC") zone = icaltimezone_get_utc_timezone();
        return zone ? icaltime_set_timezone(&time, zone) : time;
    }

    icaltimetype toLocal(const icaltimetype& time) const {
        if (time.is_date || !time.zone) return time;
        return icaltime_convert_to_zone(time, local_ ? local_ : icaltimezone_get_utc_timezone());
    }

    static void readAlarm(icalcomponent* component, CalendarItem& item) {
        for (icalcomponent* alarm = icalcomponent_get_first_component(component, ICAL_VALARM_COMPONENT); alarm;
             alarm = icalcomponent_get_next_component(component, ICAL_VALARM_COMPONENT)) {
            icalproperty* property = icalcomponent_get_first_property(alarm, ICAL_TRIGGER_PROPERTY);
            if (!property) continue;
            const icaltriggertype trigger = icalproperty_get_trigger(property);
            if (!icaltime_is_null_time(trigger.time)) continue;
            const int seconds = icaldurationtype_as_int(trigger.duration);
            // The planner's notice counts whole days before the date.
            if (seconds < 0 && -seconds % 86400 == 0) {
                item.alarmDaysBefore = -seconds / 86400;
                return;
            }
        }
    }

    void readRepetition(icalcomponent* component, const icaltimetype& source, int dayShift, CalendarItem& item) {
        const int rules = icalcomponent_count_properties(component, ICAL_RRULE_PROPERTY);
        for (icalproperty* p = icalcomponent_get_first_property(component, ICAL_RDATE_PROPERTY); p;
             p = icalcomponent_get_next_property(component, ICAL_RDATE_PROPERTY)) {
            const icaldatetimeperiodtype date = icalproperty_get_rdate(p);
            icaltimetype time = date.time;
            if (!icaltime_is_null_time(time) && !time.is_date && !icaltime_is_utc(time)) {
                if (icalparameter* tzid = icalproperty_get_first_parameter(p, ICAL_TZID_PARAMETER))
                    if (icaltimezone* zone = icalcomponent_get_timezone(calendar_, icalparameter_get_tzid(tzid)))
                        time = icaltime_set_timezone(&time, zone);
            }
            if (plausible(time)) item.extraDates.push_back(dateOf(toLocal(time)));
            else item.ruleProblem = "repeats on a date given by a period";
        }
        if (icalcomponent_get_first_property(component, ICAL_EXDATE_PROPERTY) ||
            icalcomponent_get_first_property(component, ICAL_EXRULE_PROPERTY)) {
            item.ruleProblem = "has dates taken out of its repeats";
            return;
        }
        if (rules == 0) return;
        if (rules > 1) {
            item.ruleProblem = "has several repeat rules";
            return;
        }
        const icalrecurrencetype rule =
            icalproperty_get_rrule(icalcomponent_get_first_property(component, ICAL_RRULE_PROPERTY));
        item.ruleProblem = ruleInto(rule, source, dayShift, item);
        if (!item.ruleProblem.empty()) item.rule = {};
    }

    // The rule in the planner's terms, or why it cannot be.
    std::string ruleInto(const icalrecurrencetype& rule, const icaltimetype& source, int dayShift,
                         CalendarItem& item) const {
        CalendarRule& out = item.rule;
        switch (rule.freq) {
            case ICAL_DAILY_RECURRENCE:
            case ICAL_WEEKLY_RECURRENCE: out.frequency = RepeatFrequency::Weekly; break;
            case ICAL_MONTHLY_RECURRENCE: out.frequency = RepeatFrequency::Monthly; break;
            case ICAL_YEARLY_RECURRENCE: out.frequency = RepeatFrequency::Yearly; break;
            default: return "repeats more often than daily";
        }
        if (rule.interval > 1) {
            const char* unit = rule.freq == ICAL_DAILY_RECURRENCE    ? " days"
                               : rule.freq == ICAL_WEEKLY_RECURRENCE ? " weeks"
                               : rule.freq == ICAL_MONTHLY_RECURRENCE ? " months"
                                                                      : " years";
            return "repeats only every " + std::to_string(rule.interval) + unit;
        }
        if (rule.by_second[0] != ICAL_RECURRENCE_ARRAY_MAX || rule.by_minute[0] != ICAL_RECURRENCE_ARRAY_MAX ||
            rule.by_hour[0] != ICAL_RECURRENCE_ARRAY_MAX)
            return "repeats at several times of a day";
        if (rule.by_week_no[0] != ICAL_RECURRENCE_ARRAY_MAX) return "repeats by week number";
        if (rule.by_year_day[0] != ICAL_RECURRENCE_ARRAY_MAX) return "repeats by day of the year";
        for (int i = 0; i < ICAL_BY_MONTH_SIZE && rule.by_month[i] != ICAL_RECURRENCE_ARRAY_MAX; ++i) {
            if (i > 0 || out.frequency != RepeatFrequency::Yearly) return "repeats in chosen months";
            out.month = rule.by_month[i];
        }
        for (int i = 0; i < ICAL_BY_DAY_SIZE && rule.by_day[i] != ICAL_RECURRENCE_ARRAY_MAX; ++i) {
            const int weekday = int(icalrecurrencetype_day_day_of_week(rule.by_day[i]));
            const int position = icalrecurrencetype_day_position(rule.by_day[i]);
            const int shifted = (weekday - 1 + dayShift + 7) % 7 + 1;
            if (position == 0) {
                if (out.frequency != RepeatFrequency::Weekly && rule.freq != ICAL_DAILY_RECURRENCE)
                    return "repeats on every such weekday of a month";
                out.weekdays.push_back(shifted);
            } else {
                if (out.ordinal != 0 || out.frequency == RepeatFrequency::Weekly)
                    return "repeats on several weekdays of a month";
                if (dayShift != 0) return "repeats on a weekday that falls on another day here";
                out.ordinal = position;
                out.ordinalWeekday = weekday;
            }
        }
        for (int i = 0; i < ICAL_BY_MONTHDAY_SIZE && rule.by_month_day[i] != ICAL_RECURRENCE_ARRAY_MAX; ++i) {
            if (out.frequency == RepeatFrequency::Weekly) return "repeats on days of a month";
            if (dayShift != 0) return "repeats on a day that falls on another day here";
            out.monthDays.push_back(rule.by_month_day[i]);
        }
        for (int i = 0; i < ICAL_BY_SETPOS_SIZE && rule.by_set_pos[i] != ICAL_RECURRENCE_ARRAY_MAX; ++i) {
            if (i > 0) return "repeats on several chosen days of a set";
            out.setPosition = rule.by_set_pos[i];
        }
        if (rule.freq == ICAL_DAILY_RECURRENCE && out.weekdays.empty())
            for (int weekday = 1; weekday <= 7; ++weekday) out.weekdays.push_back(weekday);
        if (!icaltime_is_null_time(rule.until)) {
            icaltimetype until = rule.until;
            if (!until.is_date && icaltime_is_utc(until)) until = toLocal(until);
            if (plausible(until)) out.until = dateOf(until);
        } else if (rule.count > 0) {
            return countedEnd(rule, source, item);
        }
        return {};
    }

    // The last date a COUNT reaches, walked with libical; a count that runs past what the
    // planner's calendar shows leaves the rule endless, and one too long to walk is named.
    std::string countedEnd(const icalrecurrencetype& rule, const icaltimetype& source, CalendarItem& item) const {
        std::unique_ptr<icalrecur_iterator, void (*)(icalrecur_iterator*)> walk(icalrecur_iterator_new(rule, source),
                                                                                icalrecur_iterator_free);
        if (!walk) return "repeats by a rule that cannot be followed";
        icaltimetype last = icaltime_null_time();
        for (int n = 0; n < std::min(rule.count, kMostCountedRepeats); ++n) {
            const icaltimetype next = icalrecur_iterator_next(walk.get());
            // A counted rule ends only at its count: a walk that stops short has met
            // libical's own last year, far beyond any student's calendar.
            if (icaltime_is_null_time(next)) return n == 0 ? "repeats by a rule that cannot be followed" : "";
            if (next.year > kLastPlannerYear) return {};
            last = next;
        }
        if (rule.count > kMostCountedRepeats) return "repeats too many times to count";
        if (plausible(last)) item.rule.until = dateOf(toLocal(last));
        return {};
    }

    icalcomponent* calendar_;
    icaltimezone* local_;
};

}  // namespace

CalendarRead IcalCodec::read(const std::string& text) {
    CalendarRead out;
    if (text.find('\0') != std::string::npos) {
        out.error = "It is not a text file.";
        return out;
    }
    if (text.rfind("BEGIN:VCALENDAR", 0) != 0 && text.find("\nBEGIN:VCALENDAR") == std::string::npos) {
        out.error = "It is not an iCalendar file.";
        return out;
    }
    if (text.find("END:VCALENDAR") == std::string::npos) {
        out.error = "The file is cut short.";
        return out;
    }
    std::unique_ptr<icalcomponent, ComponentDeleter> root(icalparser_parse_string(text.c_str()));
    icalcomponent* calendar = root.get();
    if (calendar && icalcomponent_isa(calendar) != ICAL_VCALENDAR_COMPONENT)
        calendar = icalcomponent_get_first_component(calendar, ICAL_VCALENDAR_COMPONENT);
    if (!calendar) {
        out.error = "It is not an iCalendar file.";
        return out;
    }
    const std::vector<int> lines = itemLines(text);
    ItemReader reader(calendar, ZoneNamed(zoneName_));
    std::size_t index = 0;
    for (icalcomponent* c = icalcomponent_get_first_component(calendar, ICAL_ANY_COMPONENT); c;
         c = icalcomponent_get_next_component(calendar, ICAL_ANY_COMPONENT)) {
        const icalcomponent_kind kind = icalcomponent_isa(c);
        if (kind != ICAL_VEVENT_COMPONENT && kind != ICAL_VTODO_COMPONENT) continue;
        CalendarItem item = reader.read(c);
        item.line = index < lines.size() ? lines[index] : 0;
        ++index;
        out.items.push_back(std::move(item));
    }
    return out;
}

}  // namespace qh
