#include "grades/study_time.h"

#include <gtest/gtest.h>

#include "list_view/list_fixture.h"

namespace qh {
namespace {

using namespace qh::testing;

const Date kToday = dateFromYmd(2026, 11, 21);

TEST(StudyAdvice, MinimumAndSuggestionOfNamedLoads) {
    const struct {
        std::vector<StudyLoad> loads;
        long long minimum, suggested;
    } cases[] = {
        {{}, 0, 0},
        {{{90, kToday + 3}}, 0, 30},
        {{{90, kToday}}, 90, 90},
        {{{60, kToday + 1}, {60, kToday + 2}}, 60, 60},
        {{{60, kToday - 3}, {240, kToday + 4}}, 60, 75},   // overdue work counts in every span
        {{{100, kToday + 3}}, 0, 33},                      // rounded down
        {{{300, kToday + 10}, {100, kToday + 2}}, 0, 50},  // in any order: the nearer span rules
    };
    for (const auto& c : cases) {
        const StudyAdvice advice = AdviseStudy(c.loads, kToday);
        EXPECT_EQ(advice.minimum, c.minimum) << c.loads.size() << " loads, suggested " << c.suggested;
        EXPECT_EQ(advice.suggested, c.suggested) << c.loads.size() << " loads, minimum " << c.minimum;
    }
}

TEST(StudyLoad, UnfinishedLiveWorkLessItsStudyTimeNeverBelowZero) {
    RecordStore s;
    addAssignment(s, {.date = "2026/11/22", .estimate = "02 : 00"});
    addAssignment(s, {.date = "2026/11/23", .done = true});
    addAssignment(s, {.date = "2026/11/24", .description = "DELETED RECORD"});
    addAssignment(s, {.date = "2026/11/25", .estimate = "00 : 30"});
    addSession(s, 1, "00 : 45");
    addSession(s, 4, "01 : 00");  // more than its estimate
    const std::vector<StudyLoad> loads = GatherStudyLoad(s);
    ASSERT_EQ(loads.size(), 2u);
    EXPECT_EQ(loads[0].minutes, 75);
    EXPECT_EQ(loads[0].due, kToday + 1);
    EXPECT_EQ(loads[1].minutes, 0);
}

TEST(StudyTimeBoxes, ThePinkBoxRulesTheDay) {
    const struct {
        std::vector<AssignmentFields> work;
        const char* boxes;  // minimum, then suggestion, each with its colour
    } cases[] = {
        {{}, "00:00 white, 00:00 white"},
        {{{.date = "2026/11/24", .estimate = "01 : 30"}}, "00:00 white, 00:30 pink"},
        {{{.date = "2026/11/21", .estimate = "01 : 30"}}, "01:30 pink, 01:30 white"},
        {{{.date = "2026/11/22", .estimate = "00 : 10"}, {.date = "2026/11/23", .estimate = "03 : 00"}},
         "00:10 white, 01:35 pink"},
    };
    for (const auto& c : cases) {
        ListWindow list(Mode::Reminders);
        for (const AssignmentFields& f : c.work) addAssignment(list.store, f);
        const MainWindowControls& ui = list.window.ui;
        ui.TextBoxMinimum->backColor = ui.TextBoxSuggested->backColor = 0x123456;
        list.window.UpdateStudyTimeToday(kToday);
        const auto box = [](const ControlRef& box) {
            const Color back = box->backColor;
            return box->text + (back == kOpenWorkPink ? " pink" : back == kWhite ? " white" : " ?");
        };
        EXPECT_EQ(box(ui.TextBoxMinimum) + ", " + box(ui.TextBoxSuggested), c.boxes);
    }
}

}  // namespace
}  // namespace qh
