#include "editors/study_session_math.h"

#include <gtest/gtest.h>

#include "support/fake_platform.h"

namespace qh {
namespace {

TextColumn repeated(const char* length, int times) {
    TextColumn lengths;
    for (int i = 0; i < times; ++i) lengths.append(length);
    return lengths;
}

// Everything the sessions show, for an estimate and a list of lengths. Over the estimate
// the time left keeps the odd forms its two-character cut leaves.
TEST(RecalculateSessions, CountTotalTimeLeftAndFlag) {
    const struct {
        const char* name;
        const char* estimate;
        TextColumn lengths;
        const char* caption;
        const char* total;
        const char* left;
        bool flag;
    } rows[] = {
        {"no sessions", "00 : 30", {}, "Study Sessions: 00", "00 : 00", "00 : 30", false},
        {"one minute left", "01 : 00", {"00 : 55", "00 : 04"}, "Study Sessions: 02", "00 : 59", "00 : 01", false},
        {"exactly used up", "00 : 30", {"00 : 30"}, "Study Sessions: 01", "00 : 30", "00 : 00", true},
        {"minutes carry into hours", "02 : 00", {"00 : 45", "00 : 45"}, "Study Sessions: 02", "01 : 30", "00 : 30",
         false},
        {"five minutes over", "00 : 25", {"00 : 30"}, "Study Sessions: 01", "00 : 30", "00 : -5", true},
        {"thirty minutes over loses its minus", "00 : 30", {"01 : 00"}, "Study Sessions: 01", "01 : 00", "00 : 30",
         true},
        {"ninety minutes over", "00 : 30", {"02 : 00"}, "Study Sessions: 01", "02 : 00", "-1 : 30", true},
        {"two hours five over", "00 : 55", {"03 : 00"}, "Study Sessions: 01", "03 : 00", "-2 : -5", true},
        {"ten hours over keeps neither minus", "00 : 05", {"10 : 05"}, "Study Sessions: 01", "10 : 05", "10 : 00",
         true},
        {"the largest estimate", "50 : 00", {"09 : 55"}, "Study Sessions: 01", "09 : 55", "40 : 05", false},
        {"99 hours 10 minutes is shown as it is", "50 : 00", repeated("09 : 55", 10), "Study Sessions: 10", "99 : 10",
         "49 : 10", true},
        {"above 99 hours the hours hold at 99", "50 : 00", repeated("09 : 55", 11), "Study Sessions: 11", "99 : 05",
         "59 : -5", true},
        {"99 sessions", "50 : 00", repeated("00 : 05", 99), "Study Sessions: 99", "08 : 15", "41 : 45", false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const StudySessionSummary summary = RecalculateSessions(row.lengths, row.estimate, false);
        EXPECT_EQ(summary.caption, row.caption);
        EXPECT_EQ(summary.totalTime, row.total);
        EXPECT_EQ(summary.timeLeft, row.left);
        EXPECT_EQ(summary.estimateUsedUp, row.flag);
        EXPECT_EQ(summary.timeLeftBack, "MistyRose");
        EXPECT_EQ(RecalculateSessions(row.lengths, row.estimate, true).timeLeftBack, "Honeydew");
    }
}

TEST(StudySessionLine, LengthFourBlanksAndTheDateInTheHostsWords) {
    const FakeLocale locale;
    const struct {
        const char* length;
        const char* date;
        const char* line;
    } rows[] = {
        {"00 : 30", "2026/11/20", "00 : 30    Friday, Nov 20, 2026"},
        {"01 : 05", "2026/01/05", "01 : 05    Monday, Jan 5, 2026"},
        {"10 : 00", "2024/02/29", "10 : 00    Thursday, Feb 29, 2024"},
        {"00 : 05", "0999/12/31", "00 : 05    Tuesday, Dec 31, 0999"},
    };
    for (const auto& row : rows) EXPECT_EQ(StudySessionLine(row.length, row.date, locale), row.line) << row.date;
    EXPECT_THROW(StudySessionLine("00 : 30", "Nov 20", locale), UntrappedFailure);
}

}  // namespace
}  // namespace qh
