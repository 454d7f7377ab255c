#pragma once
// An event's repetition as a calendar rule that gives exactly the planner's dates.
//
// The planner's rules and the calendar rules of phone calendars overlap but do not match:
// the 29th to 31st fall back to a shorter month's last day, and an event always falls on
// its first date even where its rule would not put it. So the rule is written in a form
// that picks the same days (the last of days 28..30 of each month, for the 30th) and a
// first date the rule does not give is listed apart, with the rule starting at its first
// date of its own.
#include <optional>
#include <string>
#include <vector>

#include "common/flag_text.h"
#include "platform/calendar_items.h"
#include "recurrence/event_rule.h"

namespace qh {

struct EventRepetition {
    Date start = 0;            // the first date the calendar rule starts from
    CalendarRule rule;         // frequency None: the event falls on its first date alone
    std::vector<Date> extraDates;  // the planner's first date where the rule does not give it
};

// The repetition of a live event's rule. A rule the event editor cannot write (an unknown
// recurrence, same-date or ordinal text, an end date that is no date) keeps the first date
// alone, as the event list shows it.
EventRepetition RepetitionOf(const EventRule& rule);

// Whether `date` is one the calendar rule's pattern names (frequency aside from its start
// and end): a ticked weekday, a listed day of the month, the n-th weekday.
bool RulePatternHolds(const CalendarRule& rule, Date date);

// The texts of an event record's rule, as the event editor writes them.
struct PlannerRule {
    Date first = 0;
    std::string recurrence = "None", sameDate = flagText(true), repeatNumber = "First", repeatDay = "Day",
                repeatDaily = "FFFFFFF", end = flagText(false);
    Date endDate = 0;
};

// Writes the rule's texts into an event record (Date and the rule's fields; the rest stays).
void PutRule(const PlannerRule& rule, EventBuffer& record);

// The rule of the event editor whose days are exactly the item's, found by writing each
// rule the editor could make from the item's first date and keeping the one that comes out
// as the item's repetition; nothing when none does.
std::optional<PlannerRule> PlannerRuleOf(const CalendarItem& item);

}  // namespace qh
