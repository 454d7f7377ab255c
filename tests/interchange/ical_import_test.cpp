// Calendar files as Google Calendar, Outlook and Apple Calendar write them: what each
// brings in, the repeats the planner holds and the files refused are the probe script
// calendar_files_from_other_programs; deadlines by course are the probe script
// icalendar_import_once_then_updates. Kept here: the reason the preview gives for a
// repeat of every other week, which no script prints.
#include "interchange/ical_import.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "platform/fake/fake_platform.h"
#include "platform/ical/ical_codec.h"

namespace qh {
namespace {

TEST(ICalendarImport, ARepeatOfEveryOtherWeekIsNamedWithItsStep) {
    std::ifstream in(std::string(QH_SOURCE_DIR) + "/tests/interchange/calendars/google_timetable.ics",
                     std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    CalendarRead read = IcalCodec(kFakeTimeZone).read(text.str());
    ASSERT_EQ(read.error, "");
    RecordStore store;
    const ImportPlan plan = PlanImport(std::move(read.items), store, {}, "google_timetable.ics");
    ASSERT_EQ(plan.repeatProblems, 1);
    int named = 0;
    for (const ImportLine& line : plan.lines) {
        if (plan.items[line.item].summary != "Robotics club") continue;
        EXPECT_EQ(line.problem, "repeats only every 2 weeks");
        ++named;
    }
    EXPECT_EQ(named, 1);
}

}  // namespace
}  // namespace qh
