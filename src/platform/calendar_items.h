#pragma once
// A calendar item as phone calendars and school timetables exchange it, in the planner's
// own terms: a day number and a time of day, never a time zone. The planner maps its
// records to and from these; the iCalendar adapter (platform/ical) turns them into text
// and back, so nothing else in the planner knows the file format.
#include <optional>
#include <string>
#include <vector>

#include "common/day_number.h"

namespace qh {

enum class CalendarItemKind { Event, Todo };

enum class RepeatFrequency { None, Weekly, Monthly, Yearly };

// A repetition in the few forms the planner's rules need. Weekdays are 1 = Sunday to
// 7 = Saturday, as everywhere in the planner.
struct CalendarRule {
    RepeatFrequency frequency = RepeatFrequency::None;
    std::vector<int> weekdays;    // weekly: the ticked days
    int ordinal = 0;              // monthly or yearly: 1..4, or -1 for the last; 0 for none
    int ordinalWeekday = 0;       // the weekday the ordinal counts, 0 when it counts days
    std::vector<int> monthDays;   // days of the month, -1 the last
    int setPosition = 0;          // of the month days found, only this one (-1 the last); 0 all
    int month = 0;                // yearly: the month, 1..12
    std::optional<Date> until;    // the last day the repetition may fall on, inclusive

    bool operator==(const CalendarRule&) const = default;
};

struct CalendarItem {
    CalendarItemKind kind = CalendarItemKind::Event;
    std::string uid;
    std::string summary;
    std::string description;
    std::vector<std::string> categories;
    std::string color;  // a colour name of the planner's vocabulary, empty for none

    // An event's first day, a to-do's due day; with a time of day in the computer's zone,
    // or without one: an all-day item.
    Date start = 0;
    std::optional<int> startMinutes;

    bool done = false;
    int priority = 0;  // 0 none, 1 highest .. 9 lowest
    CalendarRule rule;
    std::vector<Date> extraDates;           // occurrences the rule does not give
    std::optional<int> alarmDaysBefore;     // advance notice, in whole days

    // What a file read says beyond the planner's own terms: the line the item begins on,
    // an end equal to its start (how learning systems write a deadline), and why its
    // repetition cannot be held in the rule above (which is then empty).
    int line = 0;
    bool instant = false;
    std::string ruleProblem;

    bool operator==(const CalendarItem&) const = default;
};

// The items of a file as read, or why it could not be read at all.
struct CalendarRead {
    std::vector<CalendarItem> items;
    std::string error;  // empty when the file was read
};

// Turns items into iCalendar text and back. Local times are written in the computer's
// time zone, with its definition in the file, and read into it from whatever zone the file
// names.
class CalendarCodec {
public:
    virtual ~CalendarCodec() = default;
    [[nodiscard]] virtual std::string write(const std::vector<CalendarItem>& items) = 0;
    [[nodiscard]] virtual CalendarRead read(const std::string& text) = 0;
};

}  // namespace qh
