#pragma once
// The planner's records as calendar items, for File > Export iCalendar: events with their
// repetition, tasks and the active term's assignments as to-dos (or assignments as
// all-day events, for calendars that show no to-dos). Deleted records are left out.
#include <optional>
#include <string_view>
#include <vector>

#include "interchange/calendar_links.h"
#include "platform/calendar_items.h"
#include "record_store/columns.h"

namespace qh {

struct ICalendarChoice {
    bool events = true, tasks = true, assignments = true;
    bool assignmentsAsEvents = false;
};

struct ICalendarItems {
    std::vector<CalendarItem> items;
    int events = 0, tasks = 0, assignments = 0;
};

// Every chosen record as an item, in record order, events first, then tasks, then
// assignments. Each takes its UID from `links`, which keeps a new one for a record met
// for the first time.
ICalendarItems CalendarItemsOf(const RecordStore& store, const ICalendarChoice& choice, CalendarLinks& links,
                               const std::function<std::string()>& makeUid);

// Calendar priority of a task's priority: "High" 1, "Medium" 5, "Low" 9, anything else 0.
int CalendarPriorityOf(std::string_view priority);

}  // namespace qh
