#include "recurrence/event_rule.h"

#include "common/failure.h"

namespace qh {

Date EventRule::endDate() const {
    if (!readableEnd) throw UntrappedFailure("Type mismatch");
    return *readableEnd;
}

namespace {

Recurrence recurrenceOf(std::string_view text) {
    if (text == "None") return Recurrence::None;
    if (text == "Day") return Recurrence::Day;
    if (text == "Month") return Recurrence::Month;
    if (text == "Year") return Recurrence::Year;
    return Recurrence::Other;
}

Ordinal ordinalOf(std::string_view text) {
    if (text == "First") return Ordinal::First;
    if (text == "Second") return Ordinal::Second;
    if (text == "Third") return Ordinal::Third;
    if (text == "Fourth") return Ordinal::Fourth;
    if (text == "Last") return Ordinal::Last;
    return Ordinal::Other;
}

SameDate sameDateOf(std::string_view text) {
    if (text == "True") return SameDate::True;
    if (text == "False") return SameDate::False;
    return SameDate::Other;
}

int weekdayNamed(std::string_view name) {
    if (name == "Sunday") return 1;
    if (name == "Monday") return 2;
    if (name == "Tuesday") return 3;
    if (name == "Wednesday") return 4;
    if (name == "Thursday") return 5;
    if (name == "Friday") return 6;
    return 7;
}

}  // namespace

EventRule readEventRule(const RecordStore& store, int index) {
    if (store.EventDescriptions(index) == kDeletedRecord) {
        EventRule rule;
        rule.index = index;
        rule.deleted = true;
        return rule;
    }
    return readEventRule(store, index, dateFromText(store.EventDates(index)));
}

EventRule readEventRule(const RecordStore& store, int index, Date first) {
    EventRule rule;
    rule.index = index;
    rule.isClass = store.EventTypes(index) == "Class";
    rule.first = first;
    rule.firstYmd = ymdOf(rule.first);
    rule.firstWeekday = weekdayOf(rule.first);
    rule.recurrence = recurrenceOf(store.EventRecurrences(index));
    rule.sameDate = sameDateOf(store.EventSameDates(index));
    rule.ordinal = ordinalOf(store.EventRepeatNumbers(index));
    const std::string& repeatDay = store.EventRepeatDays(index);
    rule.repeatDayIsDay = repeatDay == "Day";
    rule.repeatWeekday = weekdayNamed(repeatDay);
    const std::string& dailies = store.EventRepeatDailies(index);
    for (std::size_t i = 0; i < 7 && i < dailies.size(); ++i) rule.dailies[i] = dailies[i];
    rule.ends = store.EventEnds(index) == "True";
    if (rule.ends) rule.readableEnd = parseDateText(store.EventEndDates(index));
    return rule;
}

bool eventFilterPasses(std::string_view filter, bool isClass) {
    return filter == "All" || (filter == "Classes" && isClass) || (filter == "Other Events" && !isClass);
}

}  // namespace qh
