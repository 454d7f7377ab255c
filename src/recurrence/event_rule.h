#pragma once
// The repetition rule of one Event record, read once from its text columns so that a
// routine testing many dates (42 calendar cells, a year of steps) does not parse the
// same texts again for every date. Nothing is kept between calls: every routine reads
// the columns afresh.
//
// The texts are compared exactly, as the event editor writes them. A value the editor
// can't produce gets its own "Other" member so each routine can keep its own reading of
// it (the occurrence test takes an unknown recurrence as "Month", a walk lists nothing).
#include <array>
#include <optional>
#include <string_view>

#include "common/day_number.h"
#include "record_store/columns.h"

namespace qh {

enum class Recurrence { None, Day, Month, Year, Other };
// The `EventRecurrences` text of a kind: "None", "Day", "Month", "Year"; the reading
// gives Other for any other text, and Other writes as "None", which is what the event
// editor shows for it.
Recurrence recurrenceOf(std::string_view text);
const char* recurrenceText(Recurrence recurrence);
enum class Ordinal { First, Second, Third, Fourth, Last, Other };
enum class SameDate { True, False, Other };

struct EventRule {
    int index = 0;          // row of the Event columns, 1-based
    bool deleted = false;   // description "DELETED RECORD"; nothing below is read then
    bool isClass = false;   // type "Class"
    Date first = 0;         // first date
    Ymd firstYmd{};
    int firstWeekday = 1;   // 1 = Sunday
    Recurrence recurrence = Recurrence::None;
    SameDate sameDate = SameDate::True;
    Ordinal ordinal = Ordinal::Other;
    bool repeatDayIsDay = false;  // `EventRepeatDays` is "Day"
    int repeatWeekday = 7;        // weekday named in `EventRepeatDays`; any other name is 7
    // Letters of `EventRepeatDailies`, Monday first; 0 where the text runs short.
    std::array<char, 7> dailies{};
    bool ends = false;  // `EventEnds` is "True"

    // The end date. Read only when `ends` is set and a step needs it; a text that is no
    // date fails there, with "Type mismatch", as reading it would.
    Date endDate() const;
    std::optional<Date> readableEnd;  // the end date when `ends` is set and its text is a date

    // The letter of `EventRepeatDailies` for weekday number `weekday` (1 = Sunday): Monday
    // stands at position 1 up to Saturday at 6, and Sunday at 7.
    char dailyLetter(int weekday) const { return dailies[weekday == 1 ? 6 : weekday - 2]; }
};

// Reads row `index` of the Event columns. A deleted record reads nothing further; for the
// others a first date that is no date is the untrapped "Type mismatch".
EventRule readEventRule(const RecordStore& store, int index);

// The same for a live record whose first date the caller has already read, so that a
// routine can pass over an event by its first date before reading the rest of the rule.
EventRule readEventRule(const RecordStore& store, int index, Date first);

// The rule of an event record not (yet) in the columns, as its row would read; index 0.
EventRule readEventRule(const EventBuffer& record, Date first);

// The event filter of `ComboList` in Events mode: "All"; "Classes" and the type is "Class";
// "Other Events" and it is not. Any other text lets nothing pass.
bool eventFilterPasses(std::string_view filter, bool isClass);

}  // namespace qh
