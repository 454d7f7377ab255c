#include "sample_content.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

#include "common/flag_text.h"
#include "common/text.h"
#include "record_store/color_vocabulary.h"

namespace qh::sample {
namespace {

using Texts = std::vector<std::string>;

const char* const kWeekdayNames[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
const char* const kOrdinals[] = {"First", "Second", "Third", "Fourth", "Last"};

// Six classes a term, oldest term first; a term past the fourth takes them again.
const Texts kClassNames = {
    "Algebra I",   "Biology",               "English 9",           "World Geography", "Spanish I",   "Art Studio",
    "Geometry",    "Chemistry",             "English 10",          "World History",   "Spanish II",  "Music Theory",
    "Algebra II",  "Physics",               "American Literature", "US History",      "Spanish III", "Computer Science",
    "Precalculus", "Environmental Science", "British Literature",  "Economics",       "Psychology",  "Photography",
};
// Text and background colour names of the class schedule's grid, one pair a class.
const std::pair<const char*, const char*> kClassColors[] = {
    {"Black", "MistyRose"},    {"Black", "Honeydew"},  {"Black", "LightCyan"},     {"Black", "Lavender"},
    {"Black", "LemonChiffon"}, {"Black", "PeachPuff"}, {"Navy", "AliceBlue"},      {"DarkGreen", "MintCream"},
    {"Maroon", "Linen"},       {"Black", "Thistle"},   {"Black", "PaleTurquoise"}, {"White", "SteelBlue"},
    {"Black", "Wheat"},        {"White", "CadetBlue"}, {"Black", "LightPink"},     {"Black", "PaleGreen"},
    {"White", "SlateBlue"},    {"Black", "Khaki"},     {"Black", "LightSkyBlue"},  {"White", "Sienna"},
    {"Black", "Gainsboro"},    {"White", "DarkCyan"},  {"Black", "NavajoWhite"},   {"White", "Indigo"},
};
const Texts kTeachers = {"Ms. Okafor", "Mr. Alvarez",  "Mrs. Lindqvist", "Dr. Chen",    "Mr. Haddad",
                         "Ms. Moreau", "Mr. Kowalski", "Mrs. Tanaka",    "Ms. Brennan", "Mr. Osei"};

struct TypeShape {
    const char* type;
    int weight;                  // how often a student enters one
    int minMinutes, maxMinutes;  // estimated time
    const char* gradeWeight;     // percent of the class grade
    Texts descriptions;          // '#' takes a number
};
const TypeShape kAssignmentTypes[] = {
    {"Assignment", 35, 30, 90, "5",
     {"Problem set #", "Worksheet #", "Exercises for section #", "Lab write-up #", "Homework #",
      "Practice problems, chapter #", "Vocabulary list #"}},
    {"Reading", 15, 20, 60, "5", {"Read chapter #", "Read pages 1#0-1#9", "Reading guide #", "Article #"}},
    {"Quiz", 15, 30, 60, "10", {"Quiz on chapter #", "Vocabulary quiz #", "Map quiz #", "Unit # quiz"}},
    {"Test", 10, 60, 240, "20", {"Unit # test", "Chapter # test", "Midterm exam", "Final exam"}},
    {"Study", 10, 30, 120, "5", {"Study for unit # test", "Review notes, chapter #", "Flash cards, set #"}},
    {"Report", 8, 120, 360, "15", {"Lab report #", "Book report #", "Research paper, draft #", "Essay #"}},
    {"Project", 7, 180, 600, "25",
     {"Group project #", "Poster project #", "Science fair, step #", "Portfolio piece #"}},
};
const Texts kNoteSentences = {
    "Bring the calculator and a ruler.",
    "Covers everything since the last test.",
    "Show all work; partial credit counts.",
    "Ask about the extra credit question.",
    "Typed, double spaced, 12 point.",
    "Turn it in on the class website before midnight.",
    "Work with Priya and Marcus.",
    "Use at least three sources, one of them a book.",
    "The answer key is on the back shelf.",
    "Open notes, no phones.",
    "Check the rubric first!",
    "Started it at the library; finish the last two parts.",
    "Mr. Alvarez said the review sheet is very close to the test.",
    "Résumé of the chapter in my own words.",
};
const Texts kGrades = {"A", "A", "A-", "A-", "B+", "B+", "B", "B", "B", "B-", "C+", "C", "C-", "D+"};

const Texts kTaskDescriptions = {
    "Return library books",
    "Buy graph paper",
    "Email teacher about the retake",
    "Sign up for the SAT",
    "Clean out locker",
    "Renew bus pass",
    "Practice piano",
    "Call Grandma",
    "Finish college essay draft",
    "Pick up yearbook",
    "Pay lab fee",
    "Update résumé",
    "Fix bike tire",
    "Buy batteries for calculator",
    "Plan study group",
    "Print permission slip",
    "Get shots for the trip",
    "Ask for a recommendation letter",
    "Organize binder",
    "Back up laptop",
    "Buy a birthday present",
    "Volunteer hours form",
    "Replace earbuds",
    "Schedule driving lesson",
    "Write thank-you notes",
    "Sell old textbooks",
    "Find a summer job",
    "Clean room",
    "Laundry",
    "Apply for scholarship",
};
const Texts kTaskTypes = {"None",   "Class",      "School", "Home",    "Personal", "Friends",
                          "Family", "Recreation", "Work",   "Project", "Idea"};
const Texts kPriorities = {"None", "Low", "Medium", "High"};
const Texts kTaskNotes = {"",
                          "",
                          "Before Friday.",
                          "Ask Mom for the money.",
                          "The form is in the front office.",
                          "Needs the student ID number.",
                          "Online, takes about 20 minutes.",
                          "Keep the receipt.\r\nAsk about the discount."};

struct Happening {
    const char* description;
    const char* type;
};
const Happening kOnceEvents[] = {
    {"Dentist appointment", "Personal"},
    {"Field trip to the science museum", "School"},
    {"Band concert", "School"},
    {"Job interview at the café", "Work"},
    {"Movie night", "Friends"},
    {"College fair", "School"},
    {"Basketball game", "Recreation"},
    {"Parent-teacher conference", "School"},
    {"Driving test", "Personal"},
    {"Sleepover at Jess's", "Friends"},
    {"Family reunion", "Family"},
    {"Eye exam", "Personal"},
    {"Club bake sale", "School"},
    {"Concert downtown", "Recreation"},
    {"Dinner with the cousins", "Family"},
    {"Picture day", "School"},
    {"Open house", "School"},
    {"Hiking trip", "Recreation"},
    {"Extra shift", "Work"},
    {"Plumber coming", "Home"},
    {"Lunch with Sam", "None"},
    {"Orientation", "School"},
};
const Happening kWeeklyEvents[] = {
    {"Soccer practice", "Recreation"},
    {"Piano lesson", "Personal"},
    {"Shift at the bookstore", "Work"},
    {"Youth group", "Personal"},
    {"Swim team", "Recreation"},
    {"Tutoring", "School"},
    {"Chess club", "School"},
    {"Babysitting", "Work"},
    {"Trash night", "Home"},
    {"Call Dad", "Family"},
};
const Happening kMonthlyEvents[] = {
    {"Phone bill due", "Personal"},        {"Haircut", "Personal"},           {"Allowance", "Family"},
    {"Check savings account", "Personal"}, {"Renew library books", "School"}, {"Magazine arrives", "Home"},
    {"Robotics club meeting", "School"},   {"Book club", "Friends"},          {"Student council", "School"},
    {"Orchestra rehearsal", "Recreation"},
};
const Texts kBirthdays = {"Mom's birthday",       "Dad's birthday",       "Grandma's birthday", "Jordan's birthday",
                          "Aunt Rosa's birthday", "Priya's birthday",     "Marcus's birthday",  "Sam's birthday",
                          "Jess's birthday",      "Uncle Lee's birthday", "Our anniversary"};
const Texts kEventNotes = {"",
                           "",
                           "",
                           "Bring the blue folder.",
                           "Meet at the front door.",
                           "Costs $12, bring cash.",
                           "Carpool with the Nguyens.\r\nBack by 9."};

// Holidays that fall on a rule of their own: (month, day) for the day-number kinds,
// (month, weekday 1..7, ordinal 0..4) for the weekday kind.
struct DayNumberHoliday {
    const char* name;
    int month, ordinal;  // ordinal 0..3: day 1..4; 4: the month's last day
};
const DayNumberHoliday kDayNumberHolidays[] = {
    {"New Year's Day", 1, 0},   {"Groundhog Day", 2, 1},   {"World Wildlife Day", 3, 2},
    {"Independence Day", 7, 3}, {"New Year's Eve", 12, 4},
};
struct WeekdayHoliday {
    const char* name;
    int month, weekday, ordinal;
};
const WeekdayHoliday kWeekdayHolidays[] = {
    {"Martin Luther King Jr. Day", 1, 2, 2},
    {"Mother's Day", 5, 1, 1},
    {"Labor Day", 9, 2, 0},
    {"Thanksgiving", 11, 5, 3},
    {"Memorial Day", 5, 2, 4},
};
struct SameDateHoliday {
    const char* name;
    int month, day;
};
const SameDateHoliday kSameDateHolidays[] = {
    {"Valentine's Day", 2, 14}, {"Earth Day", 4, 22}, {"Halloween", 10, 31}, {"Christmas Day", 12, 25}};

std::string withNumber(const std::string& pattern, int number) {
    std::string out;
    for (char c : pattern) {
        if (c == '#')
            out += std::to_string(number);
        else
            out += c;
    }
    return out;
}

std::string sentences(Dice& dice, const Texts& from, int low, int high) {
    std::string text;
    const int n = dice.between(low, high);
    for (int i = 0; i < n; ++i) {
        if (i) text += dice.percent(25) ? "\r\n" : " ";
        text += dice.pick(from);
    }
    return text;
}

int roundTo5(int minutes) { return (minutes + 4) / 5 * 5; }

// A date the student picks near `around`, `low` to `high` days away.
Date near(Dice& dice, Date around, int low, int high) { return around + dice.between(low, high); }

// The number and day the event editor proposes for a first date: the ordinal of its
// week in the month and its weekday, or "Last" "Day" on the month's last day.
std::pair<std::string, std::string> proposedRule(Date date) {
    const Ymd ymd = ymdOf(date);
    if (ymd.day == daysInMonth(ymd.year, ymd.month)) return {"Last", "Day"};
    const int week = std::min((ymd.day - 1) / 7, 4);
    return {kOrdinals[week], kWeekdayNames[weekdayOf(date) - 1]};
}

// The `ordinal` (0..3 first to fourth, 4 last) `weekday` (1 Sunday .. 7 Saturday) of a month.
Date nthWeekday(int year, int month, int weekday, int ordinal) {
    if (ordinal == 4) {
        Date last = dateFromYmd(year, month, daysInMonth(year, month));
        while (weekdayOf(last) != weekday) --last;
        return last;
    }
    Date first = dateFromYmd(year, month, 1);
    while (weekdayOf(first) != weekday) ++first;
    return first + 7 * ordinal;
}

// The day `ordinal` (0..3: day 1..4, 4: last day) of a month.
Date nthDay(int year, int month, int ordinal) {
    return dateFromYmd(year, month, ordinal == 4 ? daysInMonth(year, month) : ordinal + 1);
}

// Seven letters "T"/"F", Monday first, for weekdays numbered 1 Sunday .. 7 Saturday.
std::string weekdayLetters(const std::vector<int>& weekdays) {
    std::string letters = "FFFFFFF";
    for (int weekday : weekdays) letters[std::size_t((weekday + 5) % 7)] = 'T';
    return letters;
}

// A month `monthsAgo` months before today's, as (year, month).
std::pair<int, int> monthBefore(Date today, int monthsAgo) {
    const Date shifted = addMonths(dateFromYmd(yearOf(today), monthOf(today), 1), -monthsAgo);
    return {yearOf(shifted), monthOf(shifted)};
}

// Terms of the academic year: spring, summer, fall.
std::vector<TermPlan> academicTerms(int firstYear, int lastYear) {
    std::vector<TermPlan> terms;
    for (int year = firstYear; year <= lastYear; ++year) {
        terms.push_back({"", "Spring " + std::to_string(year), dateFromYmd(year, 1, 12), dateFromYmd(year, 5, 8)});
        terms.push_back({"", "Summer " + std::to_string(year), dateFromYmd(year, 5, 26), dateFromYmd(year, 8, 7)});
        terms.push_back({"", "Fall " + std::to_string(year), dateFromYmd(year, 8, 24), dateFromYmd(year, 12, 18)});
    }
    return terms;
}

// `count` terms, the last the one that began most recently on or before today.
std::vector<TermPlan> recentTerms(Date today, int count) {
    const std::vector<TermPlan> calendar = academicTerms(yearOf(today) - (count / 3 + 2), yearOf(today));
    int current = 0;
    for (int i = 0; i < int(calendar.size()); ++i)
        if (calendar[std::size_t(i)].start <= today) current = i;
    std::vector<TermPlan> terms(calendar.begin() + (current - count + 1), calendar.begin() + current + 1);
    for (int i = 0; i < count; ++i) terms[std::size_t(i)].id = std::to_string(i + 1);
    return terms;
}

ClassPlan makeClass(Dice& dice, int id, const std::string& termId, int nameIndex) {
    const auto& [fore, back] = kClassColors[nameIndex % 24];
    const ColorVocabulary& colors = standardColors();
    if (!colors.ColorValues.contains(fore) || !colors.ColorValues.contains(back))
        throw std::logic_error("a sample class colour is not in the vocabulary");
    std::string notes = "Room " + std::to_string(dice.between(101, 340)) + ", " + dice.pick(kTeachers) + ".";
    if (dice.percent(50))
        notes += " Office hours " + std::string(dice.percent(50) ? "Tuesday" : "Thursday") + " after school.";
    return {
        std::to_string(id), termId, kClassNames[std::size_t(nameIndex % int(kClassNames.size()))], fore, back, notes};
}

const TypeShape& pickType(Dice& dice) {
    int roll = dice.below(100);
    for (const TypeShape& shape : kAssignmentTypes) {
        if (roll < shape.weight) return shape;
        roll -= shape.weight;
    }
    return kAssignmentTypes[0];
}

// One assignment of a class, due on `due`, without its sessions.
AssignmentPlan makeAssignment(Dice& dice, Date today, const std::string& classId, Date due) {
    const TypeShape& shape = pickType(dice);
    AssignmentPlan plan;
    AssignmentBuffer& a = plan.record;
    a.ClassLink = classId;
    a.DateValue = due;
    a.Type = shape.type;
    a.Difficulty = dice.percent(30) ? "Easy" : dice.percent(70) ? "Average" : "Hard";
    a.EstTime = spanText(roundTo5(dice.between(shape.minMinutes, shape.maxMinutes)));
    a.Description = withNumber(dice.pick(shape.descriptions), dice.between(1, 12));
    // Old work is nearly all done; the last two weeks leave a few behind.
    const bool done = due < today - 14 ? dice.percent(99)
                      : due < today    ? dice.percent(85)
                      : due == today   ? dice.percent(40)
                                       : dice.percent(10);
    a.Done = flagText(done);
    const bool graded =
        done && (a.Type != "Assignment" && a.Type != "Reading" && a.Type != "Study" ? true : dice.percent(30));
    a.Grade = graded ? dice.pick(kGrades) : " ";
    a.Weight = shape.gradeWeight;
    a.Reminder = a.Type == "Test" || a.Type == "Report" ? std::to_string(dice.between(2, 5)) + " Days"
                 : a.Type == "Project"                  ? "7 Days"
                                                        : "1 Day";
    plan.note = sentences(dice, kNoteSentences, 1, 4);
    return plan;
}

// Spreads `count` study sessions over the assignments that had days to be studied for
// before today, the bigger kinds of work drawing more; each session lies in the two
// weeks before the due date and not after today. Then makes sure an assignment that is
// not done was not studied past its estimate, as the editor insists.
void addSessions(Dice& dice, Date today, std::vector<AssignmentPlan>& assignments, int count) {
    std::vector<std::size_t> draws;
    for (std::size_t i = 0; i < assignments.size(); ++i) {
        const AssignmentBuffer& a = assignments[i].record;
        if (a.DateValue - 14 > today) continue;
        const int weight = a.Type == "Test" || a.Type == "Project"   ? 3
                           : a.Type == "Report" || a.Type == "Study" ? 2
                                                                     : 1;
        draws.insert(draws.end(), std::size_t(weight), i);
    }
    if (draws.empty()) throw std::logic_error("no assignment can take a study session");
    for (int n = 0; n < count;) {
        AssignmentPlan& plan = assignments[draws[std::size_t(dice.below(int(draws.size())))]];
        if (plan.sessions.size() >= 99) continue;  // the editor's limit for one assignment
        const Date due = plan.record.DateValue;
        plan.sessions.push_back(
            {spanText(roundTo5(dice.between(15, 120))), dice.between(due - 14, std::min(due, today))});
        ++n;
    }
    for (AssignmentPlan& plan : assignments) {
        std::stable_sort(plan.sessions.begin(), plan.sessions.end(),
                         [](const SessionPlan& a, const SessionPlan& b) { return a.date > b.date; });
        int studied = 0;
        for (const SessionPlan& s : plan.sessions)
            studied += std::stoi(s.length.substr(0, 2)) * 60 + std::stoi(s.length.substr(5, 2));
        AssignmentBuffer& a = plan.record;
        const int estimate = std::stoi(a.EstTime.substr(0, 2)) * 60 + std::stoi(a.EstTime.substr(5, 2));
        if (isFalseFlag(a.Done) && studied >= estimate)
            a.EstTime = spanText(std::min(3000, roundTo5(studied + dice.between(15, 60))));
    }
}

TaskPlan makeTask(Dice& dice, Date today) {
    TaskPlan plan;
    TaskBuffer& t = plan.record;
    const bool dated = dice.percent(75);
    const Date date = dated ? near(dice, today, -90, 45) : near(dice, today, -90, 0);
    t.Description = dice.pick(kTaskDescriptions);
    t.DateExists = flagText(dated);
    t.Date = dateText(date);
    t.Type = dice.pick(kTaskTypes);
    t.Priority = dice.pick(kPriorities);
    const bool done = !dated              ? dice.percent(50)
                      : date < today - 14 ? dice.percent(97)
                      : date < today      ? dice.percent(75)
                                          : dice.percent(10);
    t.Done = flagText(done);
    t.Notes = dice.pick(kTaskNotes);
    // The editor gives a reminder only to a task with a date.
    t.Reminder = dated && !done && date >= today && dice.percent(50)
                     ? (dice.percent(50) ? "1 Day" : std::to_string(dice.between(2, 3)) + " Days")
                     : "None";
    return plan;
}

// The fields every event has, for a first date; the rule fields as the editor leaves
// them for an event that does not repeat.
EventPlan baseEvent(Dice& dice, EventKind kind, Date first, const std::string& description, const std::string& type) {
    EventPlan plan;
    plan.kind = kind;
    EventBuffer& e = plan.record;
    e.Date = dateText(first);
    e.Description = description;
    e.Type = type;
    e.Time = dice.percent(70) ? clockText(dice.between(7 * 4, 21 * 4) * 15) : "None";
    e.Recurrence = "None";
    e.SameDate = flagText(true);
    const auto [number, day] = proposedRule(first);
    e.RepeatNumber = number;
    e.RepeatDay = day;
    e.RepeatDaily = "FFFFFFF";
    e.End = flagText(false);
    e.EndDate = e.Date;
    e.Notes = dice.pick(kEventNotes);
    e.Reminder =
        dice.percent(40) ? (dice.percent(50) ? "1 Day" : std::to_string(dice.between(2, 7)) + " Days") : "None";
    return plan;
}

void repeatMonthly(EventPlan& plan, Dice& dice, Date first) {
    plan.record.Recurrence = "Month";
    const bool ends = dice.percent(80);  // the editor proposes an end six months on
    plan.record.End = flagText(ends);
    plan.record.EndDate = dateText(addMonths(first, ends && dice.percent(30) ? 12 : 6));
}

void repeatYearly(EventPlan& plan, Date first) {
    EventBuffer& e = plan.record;
    e.Recurrence = "Year";
    e.Time = "None";
    e.End = flagText(false);  // the editor proposes no end for a yearly event
    e.EndDate = dateText(addYears(first, 5));
}

// One event of `kind`; `ordinal` (0..4) picks the rule of the day-number and weekday
// kinds, `classes` the active term's classes and `term` the active term for the
// meetings of a class.
EventPlan makeEvent(Dice& dice, Date today, EventKind kind, int ordinal, const std::vector<ClassPlan>& classes,
                    const TermPlan& term) {
    const int lastYear = yearOf(today) - 1;
    switch (kind) {
        case EventKind::Once: {
            const Happening& h = kOnceEvents[dice.below(int(std::size(kOnceEvents)))];
            return baseEvent(dice, kind, near(dice, today, -45, 60), h.description, h.type);
        }
        case EventKind::Weekly: {
            std::vector<int> weekdays;
            EventPlan plan;
            if (dice.percent(30) && !classes.empty()) {
                // A class meeting: Monday, Wednesday and Friday or Tuesday and Thursday, all term.
                const bool mwf = dice.percent(50);
                weekdays = mwf ? std::vector<int>{2, 4, 6} : std::vector<int>{3, 5};
                Date first = term.start;
                while (std::find(weekdays.begin(), weekdays.end(), weekdayOf(first)) == weekdays.end()) ++first;
                plan = baseEvent(dice, kind, first, dice.pick(classes).name, "Class");
                plan.record.End = flagText(true);
                plan.record.EndDate = dateText(std::max(term.end, first));
                plan.record.Reminder = "None";
            } else {
                const Happening& h = kWeeklyEvents[dice.below(int(std::size(kWeeklyEvents)))];
                const Date first = near(dice, today, -60, 7);
                weekdays = {weekdayOf(first)};  // the editor ticks the first date's weekday
                if (dice.percent(40)) weekdays.push_back(dice.between(1, 7));
                plan = baseEvent(dice, kind, first, h.description, h.type);
                const bool ends = dice.percent(75);
                plan.record.End = flagText(ends);
                plan.record.EndDate = dateText(first + (ends ? 7 * dice.between(2, 16) : 14));
            }
            plan.record.Recurrence = "Day";
            plan.record.RepeatDaily = weekdayLetters(weekdays);
            return plan;
        }
        case EventKind::MonthlySameDate: {
            const Happening& h = kMonthlyEvents[dice.below(6)];
            const Date first = near(dice, today, -120, 20);
            EventPlan plan = baseEvent(dice, kind, first, h.description, h.type);
            repeatMonthly(plan, dice, first);
            return plan;
        }
        case EventKind::MonthlyDayNumber:
        case EventKind::MonthlyWeekday: {
            const auto [year, month] = monthBefore(today, dice.between(0, 3));
            const bool byWeekday = kind == EventKind::MonthlyWeekday;
            const Date first =
                byWeekday ? nthWeekday(year, month, dice.between(1, 7), ordinal) : nthDay(year, month, ordinal);
            const Happening& h = kMonthlyEvents[dice.between(byWeekday ? 6 : 0, byWeekday ? 9 : 5)];
            EventPlan plan = baseEvent(dice, kind, first, h.description, h.type);
            plan.record.SameDate = flagText(false);
            plan.record.RepeatNumber = kOrdinals[ordinal];
            plan.record.RepeatDay = byWeekday ? kWeekdayNames[weekdayOf(first) - 1] : "Day";
            repeatMonthly(plan, dice, first);
            return plan;
        }
        case EventKind::YearlySameDate: {
            EventPlan plan;
            if (dice.percent(70)) {
                const Date first = dateFromYmd(lastYear - dice.below(3), dice.between(1, 12), dice.between(1, 28));
                plan = baseEvent(dice, kind, first, dice.pick(kBirthdays), "Birthday");
                plan.record.Reminder = "7 Days";
            } else {
                const SameDateHoliday& h = kSameDateHolidays[dice.below(int(std::size(kSameDateHolidays)))];
                plan = baseEvent(dice, kind, dateFromYmd(lastYear, h.month, h.day), h.name, "Holiday");
            }
            repeatYearly(plan, dateFromText(plan.record.Date));
            return plan;
        }
        case EventKind::YearlyDayNumber: {
            const DayNumberHoliday& h = kDayNumberHolidays[ordinal];
            const Date first = nthDay(lastYear, h.month, h.ordinal);
            EventPlan plan = baseEvent(dice, kind, first, h.name, "Holiday");
            plan.record.SameDate = flagText(false);
            plan.record.RepeatNumber = kOrdinals[h.ordinal];
            plan.record.RepeatDay = "Day";
            repeatYearly(plan, first);
            return plan;
        }
        case EventKind::YearlyWeekday: {
            const WeekdayHoliday& h = kWeekdayHolidays[ordinal];
            const Date first = nthWeekday(lastYear, h.month, h.weekday, h.ordinal);
            EventPlan plan = baseEvent(dice, kind, first, h.name, "Holiday");
            plan.record.SameDate = flagText(false);
            plan.record.RepeatNumber = kOrdinals[h.ordinal];
            plan.record.RepeatDay = kWeekdayNames[h.weekday - 1];
            repeatYearly(plan, first);
            return plan;
        }
    }
    throw std::logic_error("unknown event kind");
}

// The mixture of a student's 150 events: mostly single dates and weekly ones, and every
// rule of the monthly and yearly kinds at least once.
std::vector<std::pair<EventKind, int>> eventMixture() {
    std::vector<std::pair<EventKind, int>> mix;
    auto add = [&](EventKind kind, int count) {
        for (int i = 0; i < count; ++i) mix.emplace_back(kind, i % 5);
    };
    add(EventKind::Once, 70);
    add(EventKind::Weekly, 30);
    add(EventKind::MonthlySameDate, 10);
    add(EventKind::MonthlyDayNumber, 5);
    add(EventKind::MonthlyWeekday, 10);
    add(EventKind::YearlySameDate, 15);
    add(EventKind::YearlyDayNumber, 5);
    add(EventKind::YearlyWeekday, 5);
    return mix;
}

template <class T>
void shuffle(Dice& dice, std::vector<T>& items) {
    for (std::size_t i = items.size(); i > 1; --i) std::swap(items[i - 1], items[std::size_t(dice.below(int(i)))]);
}

std::vector<EventPlan> makeEvents(Dice& dice, Date today, int count, const std::vector<ClassPlan>& classes,
                                  const TermPlan& term) {
    std::vector<std::pair<EventKind, int>> mix = eventMixture();
    shuffle(dice, mix);
    std::vector<EventPlan> events;
    events.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i) {
        const auto& [kind, ordinal] = mix[std::size_t(i) % mix.size()];
        events.push_back(makeEvent(dice, today, kind, ordinal, classes, term));
    }
    return events;
}

std::vector<ClassPlan> classesOf(const std::vector<ClassPlan>& classes, const std::string& termId) {
    std::vector<ClassPlan> out;
    for (const ClassPlan& c : classes)
        if (c.termLink == termId) out.push_back(c);
    return out;
}

// `count` assignments of `classes`, due from `first` to `last`, in date order.
void addAssignments(Dice& dice, Date today, const std::vector<ClassPlan>& classes, Date first, Date last, int count,
                    std::vector<AssignmentPlan>& into) {
    std::vector<Date> dates;
    for (int i = 0; i < count; ++i) dates.push_back(dice.between(first, last));
    std::sort(dates.begin(), dates.end());
    for (Date due : dates) into.push_back(makeAssignment(dice, today, dice.pick(classes).id, due));
}

// Homework of the active term runs from its start to four weeks ahead of today.
Date lastDueDate(const TermPlan& term, Date today) { return std::max(today + 28, term.start + 30); }

}  // namespace

std::string spanText(int minutes) { return twoDigits(minutes / 60) + " : " + twoDigits(minutes % 60); }

std::string clockText(int minuteOfDay) {
    const int hour = minuteOfDay / 60, minute = minuteOfDay % 60;
    const int shown = hour == 0 ? 12 : hour > 12 ? hour - 12 : hour;
    return std::to_string(shown) + ":" + twoDigits(minute) + (hour < 12 ? " am" : " pm");
}

DrivePlan RealisticPlan(Date today, Dice& dice) {
    DrivePlan plan;
    plan.terms = recentTerms(today, 4);
    for (const TermPlan& term : plan.terms) {
        for (int i = 0; i < 6; ++i) {
            const int index = int(plan.classes.size());
            plan.classes.push_back(makeClass(dice, index + 1, term.id, index));
        }
    }

    for (const TermPlan& term : plan.terms) {
        const bool active = &term == &plan.terms.back();
        addAssignments(dice, today, classesOf(plan.classes, term.id), term.start,
                       active ? lastDueDate(term, today) : term.end, 200, plan.assignments);
    }
    addSessions(dice, today, plan.assignments, 3000);
    // A few are deleted again, as students do: one in forty.
    for (std::size_t i = 17; i < plan.assignments.size(); i += 40) plan.assignments[i].deletedLater = true;

    for (int i = 0; i < 300; ++i) plan.tasks.push_back(makeTask(dice, today));
    for (std::size_t i = 7; i < plan.tasks.size(); i += 25) plan.tasks[i].deletedLater = true;

    plan.events = makeEvents(dice, today, 150, classesOf(plan.classes, plan.terms.back().id), plan.terms.back());
    int onceSeen = 0;
    for (EventPlan& event : plan.events)
        if (event.kind == EventKind::Once && ++onceSeen % 14 == 0) event.deletedLater = true;
    return plan;
}

DrivePlan MaximalPlan(Date today, Dice& dice, int records) {
    DrivePlan plan;
    // Older terms, one a day back in time, then the active one.
    const TermPlan active = recentTerms(today, 1).back();
    for (int i = 1; i < records; ++i) {
        const Date start = active.start - 130 - (records - i);
        char name[32];
        std::snprintf(name, sizeof name, "Archived term %05d", i);
        plan.terms.push_back({std::to_string(i), name, start, start + 120});
    }
    plan.terms.push_back({std::to_string(records), active.name, active.start, active.end});

    // The active term's 24 classes come last; the others go round the older terms.
    const int older = records - 24;
    for (int i = 1; i <= records; ++i) {
        const std::string term = i <= older ? std::to_string((i - 1) % (records - 1) + 1) : std::to_string(records);
        plan.classes.push_back(makeClass(dice, i, term, i - 1));
    }
    const std::vector<ClassPlan> activeClasses = classesOf(plan.classes, std::to_string(records));
    addAssignments(dice, today, activeClasses, active.start, lastDueDate(active, today), records, plan.assignments);
    addSessions(dice, today, plan.assignments, records);
    for (int i = 0; i < records; ++i) plan.tasks.push_back(makeTask(dice, today));
    // A full event file whose every range still fits the 16-bit counters of the event
    // list: one event in a hundred repeats, the others happen once, spread over thirty
    // years, so a year's view holds a few thousand occurrences.
    plan.events = makeEvents(dice, today, records / 100, activeClasses, plan.terms.back());
    while (int(plan.events.size()) < records) {
        EventPlan once = makeEvent(dice, today, EventKind::Once, 0, activeClasses, plan.terms.back());
        const Date first = today - 15 * 365 + dice.between(0, 30 * 365);
        once.record.Date = once.record.EndDate = dateText(first);
        const auto [number, day] = proposedRule(first);
        once.record.RepeatNumber = number;
        once.record.RepeatDay = day;
        plan.events.push_back(once);
    }
    shuffle(dice, plan.events);
    return plan;
}

}  // namespace qh::sample
