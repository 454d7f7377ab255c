#pragma once
// What the records of a sample drive say: terms, classes, homework, tasks and events a
// student would enter, as the editors would store them. Nothing here touches a file.
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "common/day_number.h"
#include "record_store/columns.h"

namespace qh::sample {

// The seeded source of every choice. mt19937 gives the same numbers on every standard
// library, and the choices are taken from it by plain remainders (the standard
// distributions may differ between libraries), so a seed makes the same drive anywhere.
class Dice {
public:
    explicit Dice(std::uint32_t seed) : engine_(seed) {}
    int below(int n) { return int(engine_() % std::uint32_t(n)); }  // 0 .. n-1
    int between(int low, int high) { return low + below(high - low + 1); }
    bool percent(int chance) { return below(100) < chance; }
    template <class T>
    const T& pick(const std::vector<T>& from) {
        return from[std::size_t(below(int(from.size())))];
    }

private:
    std::mt19937 engine_;
};

// The kinds of repetition the event editor makes.
enum class EventKind {
    Once,
    Weekly,
    MonthlySameDate,
    MonthlyDayNumber,  // "First" .. "Fourth" "Day": day 1 to 4; "Last" "Day": the last day
    MonthlyWeekday,    // "First" .. "Fourth" or "Last" of the first date's weekday
    YearlySameDate,
    YearlyDayNumber,
    YearlyWeekday,
};
inline constexpr int kEventKinds = 8;

struct TermPlan {
    std::string id, name;
    Date start = 0, end = 0;
};

struct ClassPlan {
    std::string id, termLink, name, foreColor, backColor, notes;
};

struct SessionPlan {
    std::string length;  // "00 : 45"
    Date date = 0;
};

struct AssignmentPlan {
    AssignmentBuffer record;            // RecordNo and ID are set when it is written
    std::string note;                   // empty: no note
    std::vector<SessionPlan> sessions;  // newest first, as the editor lists them
    bool deletedLater = false;          // deleted by the student after it was made
};

struct TaskPlan {
    TaskBuffer record;
    bool deletedLater = false;
};

struct EventPlan {
    EventBuffer record;
    EventKind kind = EventKind::Once;
    bool deletedLater = false;
};

struct DrivePlan {
    std::vector<TermPlan> terms;  // oldest first; the last is the active one
    std::vector<ClassPlan> classes;
    std::vector<AssignmentPlan> assignments;  // in the order they are entered
    std::vector<TaskPlan> tasks;
    std::vector<EventPlan> events;
};

// Two years of a student's records around `today`.
DrivePlan RealisticPlan(Date today, Dice& dice);
// Every file full: `records` of each kind.
DrivePlan MaximalPlan(Date today, Dice& dice, int records);

// Text forms the editors store.
std::string spanText(int minutes);       // "01 : 05", hours cut to two digits
std::string clockText(int minuteOfDay);  // "12:05 am", "3:30 pm"

}  // namespace qh::sample
