#include "recurrence/event_rule.h"

#include "common/failure.h"
#include "common/flag_text.h"

namespace qh {

Date EventRule::endDate() const {
    if (!readableEnd) throw TypeMismatch();
    return *readableEnd;
}

Recurrence recurrenceOf(std::string_view text) {
    if (text == "None") return Recurrence::None;
    if (text == "Day") return Recurrence::Day;
    if (text == "Month") return Recurrence::Month;
    if (text == "Year") return Recurrence::Year;
    return Recurrence::Other;
}

const char* recurrenceText(Recurrence recurrence) {
    switch (recurrence) {
        case Recurrence::Day:
            return "Day";
        case Recurrence::Month:
            return "Month";
        case Recurrence::Year:
            return "Year";
        case Recurrence::None:
        case Recurrence::Other:
            break;
    }
    return "None";
}

namespace {

Ordinal ordinalOf(std::string_view text) {
    if (text == "First") return Ordinal::First;
    if (text == "Second") return Ordinal::Second;
    if (text == "Third") return Ordinal::Third;
    if (text == "Fourth") return Ordinal::Fourth;
    if (text == "Last") return Ordinal::Last;
    return Ordinal::Other;
}

SameDate sameDateOf(std::string_view text) {
    if (isTrueFlag(text)) return SameDate::True;
    if (isFalseFlag(text)) return SameDate::False;
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

namespace {

EventRule ruleOfTexts(Date first, std::string_view type, std::string_view recurrence, std::string_view sameDate,
                      std::string_view number, std::string_view repeatDay, std::string_view dailies,
                      std::string_view ends, std::string_view endDate) {
    EventRule rule;
    rule.isClass = type == "Class";
    rule.first = first;
    rule.firstYmd = ymdOf(rule.first);
    rule.firstWeekday = weekdayOf(rule.first);
    rule.recurrence = recurrenceOf(recurrence);
    rule.sameDate = sameDateOf(sameDate);
    rule.ordinal = ordinalOf(number);
    rule.repeatDayIsDay = repeatDay == "Day";
    rule.repeatWeekday = weekdayNamed(repeatDay);
    for (std::size_t i = 0; i < 7 && i < dailies.size(); ++i) rule.dailies[i] = dailies[i];
    rule.ends = isTrueFlag(ends);
    if (rule.ends) rule.readableEnd = parseDateText(endDate);
    return rule;
}

}  // namespace

EventRule readEventRule(const RecordStore& store, int index, Date first) {
    EventRule rule = ruleOfTexts(first, store.EventTypes(index), store.EventRecurrences(index),
                                 store.EventSameDates(index), store.EventRepeatNumbers(index),
                                 store.EventRepeatDays(index), store.EventRepeatDailies(index),
                                 store.EventEnds(index), store.EventEndDates(index));
    rule.index = index;
    return rule;
}

EventRule readEventRule(const EventBuffer& record, Date first) {
    return ruleOfTexts(first, record.Type, record.Recurrence, record.SameDate, record.RepeatNumber, record.RepeatDay,
                       record.RepeatDaily, record.End, record.EndDate);
}

bool eventFilterPasses(std::string_view filter, bool isClass) {
    return filter == "All" || (filter == "Classes" && isClass) || (filter == "Other Events" && !isClass);
}

}  // namespace qh
