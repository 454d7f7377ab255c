#include "grades/study_time.h"

#include <gtest/gtest.h>

#include <random>

#include "list_view/list_fixture.h"

namespace qh {
namespace {

using namespace qh::testing;

const Date kToday = dateFromYmd(2026, 11, 21);

// The spans one day at a time, up to the last due date.
StudyAdvice dayByDay(const std::vector<StudyLoad>& loads, Date date) {
    StudyAdvice advice;
    for (const StudyLoad& load : loads)
        if (load.due <= date + 1) advice.minimum += load.minutes;
    for (long long k = 1;; ++k) {
        long long w = 0;
        bool later = false;
        for (const StudyLoad& load : loads) {
            if (load.due <= date + k) w += load.minutes;
            if (load.due > date + k) later = true;
        }
        advice.suggested = std::max(advice.suggested, w / k);
        if (!later) break;
    }
    return advice;
}

struct AdviceCase {
    const char* name;
    std::vector<StudyLoad> loads;
    long long minimum, suggested;
};

class StudyAdviceExamples : public ::testing::TestWithParam<AdviceCase> {};

TEST_P(StudyAdviceExamples, MinimumAndSuggestion) {
    const AdviceCase& c = GetParam();
    const StudyAdvice advice = AdviseStudy(c.loads, kToday);
    EXPECT_EQ(advice.minimum, c.minimum);
    EXPECT_EQ(advice.suggested, c.suggested);
}

INSTANTIATE_TEST_SUITE_P(
    Examples, StudyAdviceExamples,
    ::testing::Values(AdviceCase{"NothingOpen", {}, 0, 0},
                      AdviceCase{"NinetyDueInThreeDays", {{90, kToday + 3}}, 0, 30},
                      AdviceCase{"NinetyDueToday", {{90, kToday}}, 90, 90},
                      AdviceCase{"SixtyTomorrowSixtyInTwoDays", {{60, kToday + 1}, {60, kToday + 2}}, 60, 60},
                      AdviceCase{"OverdueCountsInEverySpan", {{60, kToday - 3}, {240, kToday + 4}}, 60, 75},
                      AdviceCase{"RoundedDown", {{100, kToday + 3}}, 0, 33}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(StudyAdvice, EveryEndOfASpanGivesWhatADayByDayWalkGives) {
    std::mt19937 engine(11);
    auto number = [&](int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine); };
    for (int round = 0; round < 300; ++round) {
        std::vector<StudyLoad> loads;
        const int n = number(0, 12);
        for (int i = 0; i < n; ++i) loads.push_back({number(0, 400), kToday + number(-5, 40)});
        const StudyAdvice fast = AdviseStudy(loads, kToday), slow = dayByDay(loads, kToday);
        EXPECT_EQ(fast.minimum, slow.minimum) << round;
        EXPECT_EQ(fast.suggested, slow.suggested) << round;
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

struct BoxCase {
    const char* name;
    std::vector<AssignmentFields> work;
    const char *minimum, *suggested;
    bool minimumPink, suggestedPink;
};

class StudyTimeBoxes : public ::testing::TestWithParam<BoxCase> {};

TEST_P(StudyTimeBoxes, ThePinkBoxRulesTheDay) {
    ListWindow list(Mode::Reminders);
    for (const AssignmentFields& f : GetParam().work) addAssignment(list.store, f);
    list.window.UpdateStudyTimeToday(kToday);
    EXPECT_EQ(list.text("TextBoxMinimum"), GetParam().minimum);
    EXPECT_EQ(list.text("TextBoxSuggested"), GetParam().suggested);
    EXPECT_EQ(list.back("TextBoxMinimum"), GetParam().minimumPink ? kOpenWorkPink : kWhite);
    EXPECT_EQ(list.back("TextBoxSuggested"), GetParam().suggestedPink ? kOpenWorkPink : kWhite);
}

INSTANTIATE_TEST_SUITE_P(
    Colours, StudyTimeBoxes,
    ::testing::Values(
        BoxCase{"NothingOpen", {}, "00:00", "00:00", false, false},
        BoxCase{"OnlyLaterWork", {{.date = "2026/11/24", .estimate = "01 : 30"}}, "00:00", "00:30", false, true},
        BoxCase{"EqualAndNotZero", {{.date = "2026/11/21", .estimate = "01 : 30"}}, "01:30", "01:30", true, false},
        BoxCase{"SuggestionBelowMinimumShowsTheMinimum",
                {{.date = "2026/11/22", .estimate = "02 : 00"}, {.date = "2026/11/27", .estimate = "00 : 30"}},
                "02:00",
                "02:00",
                true,
                false},
        BoxCase{"SuggestionAboveMinimum",
                {{.date = "2026/11/22", .estimate = "00 : 10"}, {.date = "2026/11/23", .estimate = "03 : 00"}},
                "00:10",
                "01:35",
                false,
                true}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace qh
