#include <gtest/gtest.h>

#include "support/main_window_fixture.h"
#include "support/record_fields.h"
#include "tools/probe_script.h"

namespace qh {
namespace {

using test::dataFile;
using test::runScript;

int notificationLines(const std::string& output) {
    int lines = 0;
    for (std::size_t at = output.find("Notification "); at != std::string::npos;
         at = output.find("Notification ", at + 1))
        ++lines;
    return lines;
}

// Runs on one drive: an assignment due on the 24th with a day's notice, so the 23rd has
// one item and the 21st none.
TEST(ProbeNotification, PrintsTheNoticeWhenSentOncePerDayAndNotWhenSwitchedOff) {
    FakePlatform fake;
    const std::string data = fake.dataDirectory();
    fake.writeBytes(data + "/Terms.txt", termRecord(1, "Fall 2026", "2026/08/20", "2026/12/18"));
    fake.writeBytes(data + "/Classes.txt", classRecord(1, 1, "Algebra"));
    fake.writeBytes(data + "/Assignments.txt",
                    assignmentRecord(AssignmentFields{.recordNo = 1, .date = "2026/11/24",
                                                      .description = "Problem set 7", .reminder = "1 Day"}));
    const std::string dueTomorrow =
        "Notification \"Today's Reminders\" \"1 assignment needs you soon\\nTomorrow: Problem set 7 (Algebra)\"\n";
    const std::string dueToday =
        "Notification \"Today's Reminders\" \"1 assignment needs you soon\\nToday: Problem set 7 (Algebra)\"\n";
    const struct {
        const char* what;
        const char* script;
        int notices;
        std::string notice;
    } runs[] = {
        {"nothing due", "clock 2026-11-21 09:00\nstart\nexit\n", 0, ""},
        {"due: told once the window is up", "clock 2026-11-23 09:00\nstart\nexit\n", 1, dueTomorrow},
        {"a second start the same day", "clock 2026-11-23 15:00\nstart\nexit\n", 0, ""},
        // Midnight passes while it runs: the status bar's next tick tells the new day. The
        // Tip of the Day, which comes half a second after the start, is closed first.
        {"the day changes",
         "clock 2026-11-23 23:59\nstart\nwait 1\nclick ButtonClose\nclock 2026-11-24 00:00\nwait 10\nexit\n", 1,
         dueToday},
        // The 25th: the assignment is a day overdue.
        {"switched off", "clock 2026-11-25 08:00\nclick MenuDesktopReminders\nexit\n", 1, "Yesterday"},
        {"off across a restart",
         "clock 2026-11-24 09:00\nstart\nwait 1\nclick ButtonClose\nclock 2026-11-25 09:00\nwait 10\nexit\n", 0, ""},
    };
    for (const auto& run : runs) {
        SCOPED_TRACE(run.what);
        const std::string output = runScript(fake, run.script);
        EXPECT_EQ(notificationLines(output), run.notices) << output;
        EXPECT_NE(output.find(run.notice), std::string::npos) << output;
    }
    EXPECT_NE(dataFile(fake, "DesktopReminders.ini").find("Enabled=False"), std::string::npos);
}

}  // namespace
}  // namespace qh
