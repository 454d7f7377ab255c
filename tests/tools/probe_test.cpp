#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "probe_session.h"
#include "support/main_window_fixture.h"

namespace qh {
namespace {

// Runs a script on the fake platform's drive folder and returns what the probe printed.
std::string runProbe(FakePlatform& fake, const std::string& script) {
    std::ostringstream out;
    ProbeSession session(fake.drive, fake.host, out);
    std::istringstream in(script);
    EXPECT_TRUE(session.run(in));
    return out.str();
}

bool has(const std::string& output, const std::string& line) {
    return output.find(line) != std::string::npos;
}

TEST(Probe, PrintsTheTermTheMarkedDaysAndTheStatusOfARealDrive) {
    FakePlatform fake;
    const std::string data = fake.dataDirectory();
    fake.writeBytes(data + "/Terms.txt", termRecord(1, "Fall 2026", "2026/08/20", "2026/12/18"));
    fake.writeBytes(data + "/Classes.txt", classRecord(1, 1, "Algebra", "Black", "MistyRose"));
    fake.writeBytes(data + "/Assignments.txt", assignmentRecord(1, 1, "2026/11/24", "Problem set 7", false) +
                                                   assignmentRecord(2, 1, "2026/11/25", "Quiz review", true));
    const std::string output = runProbe(fake, "clock 2026-11-21 09:05\nprint\nlist Done\nprint\nexit\n");
    EXPECT_TRUE(has(output, "== Homework")) << output;
    EXPECT_TRUE(has(output, "Term: \"Fall 2026\" \"27 Days Left in Term\""));
    EXPECT_TRUE(has(output, "Status: \"Homework Mode\""));
    EXPECT_TRUE(has(output, "Clock: \"Saturday, November 21, 2026      09:05 AM\""));
    EXPECT_TRUE(has(output, "Calendar: November 2026"));
    // 24 November is marked in the blue tint of "All"; after "Done" only the 25th, green.
    EXPECT_TRUE(has(output, "24  000000/F0E8E2")) << output;
    EXPECT_TRUE(has(output, "25  000000/E2F7E1")) << output;
    EXPECT_TRUE(has(output, "21*[FFFFFF/000000")) << output;
    EXPECT_TRUE(has(output, "Closed"));
}

TEST(Probe, FollowsTheCalendarArrowsAndModes) {
    FakePlatform fake;
    const std::string output =
        runProbe(fake, "clock 2027-01-31 10:00\narrow month-up 1\nprint\nmode reminders\nprint\nmode tasks\nprint\n");
    EXPECT_TRUE(has(output, "Calendar: March 2027")) << output;
    EXPECT_TRUE(has(output, "28*"));  // 31 January, month on and held: 28 March
    EXPECT_TRUE(has(output, "== Reminders"));
    EXPECT_TRUE(has(output, "Calendar: January 2027"));
    EXPECT_TRUE(has(output, "ComboDateRange: \"All\" of [Day, All, With Date, Without Date]"));
}

TEST(Probe, RefusesALineItDoesNotUnderstand) {
    FakePlatform fake;
    std::ostringstream out;
    ProbeSession session(fake.drive, fake.host, out);
    EXPECT_FALSE(session.action("fly away"));
    EXPECT_FALSE(session.action("cell 42"));
    EXPECT_TRUE(session.action("cell 41"));
}

}  // namespace
}  // namespace qh
