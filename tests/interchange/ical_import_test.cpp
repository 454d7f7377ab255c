// Calendar files as Google Calendar, Outlook and Apple Calendar write them, read and
// planned for import: times come into the computer's zone from the file's own VTIMEZONE, a
// Windows zone name or UTC; repeats the planner holds become its rules, the others are
// named. Deadlines by course are the probe script icalendar_import_once_then_updates.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "interchange/event_repetition.h"
#include "interchange/ical_import.h"
#include "platform/fake/fake_platform.h"
#include "platform/ical/ical_codec.h"

namespace qh {
namespace {

CalendarRead readFixture(const std::string& name) {
    std::ifstream in(std::string(QH_SOURCE_DIR) + "/tests/interchange/calendars/" + name, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    IcalCodec codec(kFakeTimeZone);
    return codec.read(text.str());
}

const ImportLine& lineOf(const ImportPlan& plan, const std::string& summary) {
    for (const ImportLine& line : plan.lines)
        if (plan.items[line.item].summary == summary) return line;
    throw std::runtime_error("no item " + summary);
}

TEST(ICalendarImport, AGoogleTimetableComesInAsWeeklyEventsAndNamesWhatCannotRepeat) {
    CalendarRead read = readFixture("google_timetable.ics");
    ASSERT_EQ(read.error, "");
    RecordStore store;
    const ImportPlan plan = PlanImport(std::move(read.items), store, {}, "google_timetable.ics");
    EXPECT_EQ(ImportCountsText(plan), "4 events, 0 to-dos and 0 deadlines");

    const CalendarItem& algebra = plan.items[lineOf(plan, "Algebra II").item];
    EXPECT_EQ(algebra.start, dateFromYmd(2026, 8, 31));
    EXPECT_EQ(algebra.startMinutes, 8 * 60 + 15);
    EXPECT_EQ(algebra.description, "Room 204, Mr. Alvarez");
    const std::optional<PlannerRule> weekly = PlannerRuleOf(algebra);
    ASSERT_TRUE(weekly);
    EXPECT_EQ(weekly->recurrence, "Day");
    EXPECT_EQ(weekly->repeatDaily, "TFTFTFF");
    EXPECT_EQ(weekly->end, "True");
    EXPECT_EQ(weekly->endDate, dateFromYmd(2026, 12, 18));

    EXPECT_EQ(lineOf(plan, "Robotics club").problem, "repeats only every 2 weeks");
    EXPECT_EQ(lineOf(plan, "Parents' evening").problem, "");
    EXPECT_EQ(PlannerRuleOf(plan.items[lineOf(plan, "Parents' evening").item])->repeatNumber, "First");
    EXPECT_EQ(plan.items[lineOf(plan, "Thanksgiving break").item].startMinutes, std::nullopt);
    EXPECT_EQ(plan.repeatProblems, 1);
    EXPECT_EQ(lineOf(plan, "Algebra II").item, 0u);
    EXPECT_EQ(plan.items[0].line, 26);
}

TEST(ICalendarImport, WindowsZoneNamesAndUtcComeIntoTheComputersZone) {
    CalendarRead read = readFixture("outlook_windows_zones.ics");
    ASSERT_EQ(read.error, "");
    ASSERT_EQ(read.items.size(), 2u);
    // 10:00 in Berlin is 4:00 in New York; 9:00 in Los Angeles is noon.
    EXPECT_EQ(read.items[0].startMinutes, 4 * 60);
    EXPECT_EQ(read.items[1].startMinutes, 12 * 60);
    // A notice of 15 minutes has no whole day: the planner's events go without.
    EXPECT_EQ(read.items[0].alarmDaysBefore, std::nullopt);
    EXPECT_EQ(PlannerRuleOf(read.items[0])->repeatDaily, "FFFTFFF");
}

TEST(ICalendarImport, AppleRemindersAreTasksAndAMonthlyThirtyFirstIsNotGuessed) {
    CalendarRead read = readFixture("apple_reminders.ics");
    ASSERT_EQ(read.error, "");
    RecordStore store;
    const ImportPlan plan = PlanImport(std::move(read.items), store, {}, "apple.ics");
    EXPECT_EQ(ImportCountsText(plan), "2 events, 2 to-dos and 0 deadlines");
    const CalendarItem& calculator = plan.items[lineOf(plan, "Buy a graphing calculator").item];
    EXPECT_EQ(calculator.priority, 1);
    EXPECT_EQ(calculator.alarmDaysBefore, 2);
    EXPECT_TRUE(plan.items[lineOf(plan, "Return library books").item].done);
    EXPECT_EQ(PlannerRuleOf(plan.items[lineOf(plan, "Mum's birthday").item])->recurrence, "Year");
    // Plain monthly from the 31st skips the shorter months; the planner would move it to
    // their last day, so it is offered as its first occurrence only.
    EXPECT_EQ(lineOf(plan, "Rent").problem, "repeats in a way the planner's events cannot");
}

TEST(ICalendarImport, BadFilesAreRefusedWithAReason) {
    IcalCodec codec(kFakeTimeZone);
    const struct {
        std::string text, error;
    } cases[] = {
        {"Hello, this is a note.\r\n", "It is not an iCalendar file."},
        {"BEGIN:VCALENDAR\r\nVERSION:2.0\r\nBEGIN:VEVENT\r\nUID:x\r\nDTSTART:2026", "The file is cut short."},
        {std::string("BEGIN:VCALENDAR\r\n\0\x01\x02 END:VCALENDAR", 32), "It is not a text file."},
        {"", "It is not an iCalendar file."},
    };
    for (const auto& c : cases) EXPECT_EQ(codec.read(c.text).error, c.error) << c.text;
}

TEST(ICalendarImport, ForeignRulesAreHeldOnlyWhereThePlannerGivesTheSameDays) {
    IcalCodec codec(kFakeTimeZone);
    const struct {
        const char* rule;
        const char* start;
        bool held;
    } cases[] = {
        {"FREQ=DAILY", "20261123", true},
        {"FREQ=WEEKLY", "20261123", true},
        {"FREQ=MONTHLY;BYMONTHDAY=-1", "20261130", true},
        {"FREQ=MONTHLY;BYDAY=-1FR", "20261127", true},
        {"FREQ=MONTHLY;BYDAY=2TU", "20261110", true},
        {"FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=-1", "20270228", true},
        {"FREQ=MONTHLY;BYMONTHDAY=15;COUNT=3", "20261115", true},
        {"FREQ=MONTHLY;COUNT=1000000000", "20261115", true},
        {"FREQ=HOURLY", "20261123", false},
        {"FREQ=YEARLY;BYWEEKNO=20", "20261123", false},
        {"FREQ=MONTHLY;BYDAY=MO,TU;BYSETPOS=2", "20261103", false},
        {"FREQ=MONTHLY;BYMONTHDAY=1,15", "20261101", false},
        {"FREQ=MONTHLY;BYDAY=MO", "20261102", false},
        {"FREQ=YEARLY;BYMONTH=1,7", "20270101", false},
    };
    for (const auto& c : cases) {
        const std::string text = std::string("BEGIN:VCALENDAR\r\nVERSION:2.0\r\nBEGIN:VEVENT\r\nUID:r\r\n") +
                                 "DTSTART;VALUE=DATE:" + c.start + "\r\nRRULE:" + c.rule +
                                 "\r\nSUMMARY:x\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n";
        CalendarRead read = codec.read(text);
        ASSERT_EQ(read.items.size(), 1u) << c.rule;
        const CalendarItem& item = read.items.front();
        EXPECT_EQ(item.ruleProblem.empty() && PlannerRuleOf(item).has_value(), c.held) << c.rule;
    }
}

}  // namespace
}  // namespace qh
