// File > Export iCalendar... driven from the probe as a student drives it: the window's
// choices, the save dialog, the file written and the links that keep each record's UID
// from one export to the next.
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>

#include "probe_script.h"
#include "record_store/record_tables.h"
#include "support/main_window_fixture.h"
#include "support/record_fields.h"

namespace qh {
namespace {

std::size_t countOf(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
    return count;
}

std::vector<std::string> uidsOf(const std::string& calendar) {
    std::vector<std::string> uids;
    const std::regex uid("\r\nUID:([^\r]+)");
    for (auto it = std::sregex_iterator(calendar.begin(), calendar.end(), uid); it != std::sregex_iterator(); ++it)
        uids.push_back((*it)[1]);
    return uids;
}

// The calendar file with its stamps taken out, which say only when it was written.
std::string withoutStamps(const std::string& calendar) {
    return std::regex_replace(calendar, std::regex("\r\nDTSTAMP:[0-9TZ]+"), "");
}

// A term with two classes; with `records`, also an assignment of each kind.
struct CalendarDrive {
    FakePlatform fake;
    explicit CalendarDrive(bool records = true) {
        const std::string data = fake.dataDirectory();
        fake.writeBytes(data + "/Terms.txt", termRecord(1, "Fall 2026", "2026/08/20", "2026/12/18"));
        fake.writeBytes(data + "/Classes.txt", classRecord(1, 1, "Algebra", "Black", "MistyRose") +
                                                   classRecord(2, 1, "Math 201", "Black", "LightBlue"));
        if (!records) return;
        fake.writeBytes(data + "/Assignments.txt",
                        assignmentRecord({.recordNo = 1, .date = "2026/11/24", .description = "Chapter 4 problems"}) +
                            assignmentRecord({.recordNo = 2,
                                              .date = "2026/11/25",
                                              .type = "Quiz",
                                              .description = "Quiz review",
                                              .done = "True",
                                              .reminder = "3 Days"}));
        const TaskBuffer task{"1", "1", "2026/11/23", "Return library books", "True", "Home", "High", "False", "",
                              "2 Days"};
        fake.writeBytes(data + "/Tasks.txt", buildRecord(kTasksLayout, kTaskTable.valuesOf(task)));
        const EventBuffer event{"1",     "1",       "2026/11/26", "Choir practice", "School", "4:15 pm", "Day",
                                "False", "First",   "Sunday",     "FFTFFFF",        "True",   "2026/12/17",
                                "",      "1 Day"};
        fake.writeBytes(data + "/Events.txt", buildRecord(kEventsLayout, kEventTable.valuesOf(event)));
    }
};

TEST(ProbeICalendar, ExportWritesTheChosenKindsAndKeepsEachRecordsUid) {
    CalendarDrive drive;
    const std::string file = drive.fake.root + "/planner.ics";
    const std::string first = test::runScript(drive.fake, "clock 2026-11-21 09:05\nstart\n"
                                                          "click MenuExportICalendar\nprint\n"
                                                          "check CheckBoxAssignments off\nprint\n"
                                                          "check CheckBoxAssignments on\n"
                                                          "check RadioAssignmentsAsEvents on\n"
                                                          "file " + file + "\nclick ButtonOK\n");
    test::expectLines(first, {"Window frmExportICalendar \"Quillhollow - Export iCalendar\"",
                              "  CheckBoxAssignments \"Assignments of the active term\" checked",
                              "  RadioAssignmentsAsTodos \"as to-dos\" checked",
                              "  RadioAssignmentsAsTodos \"as to-dos\" checked disabled",
                              "Dialog save \"Export iCalendar\" \"" + drive.fake.documents +
                                  "/Quillhollow/Quillhollow.ics\" \"iCalendar Files (*.ics)|*.ics|All Files (*.*)|*.*\"",
                              "Message: \"Export iCalendar\" \"Wrote 1 event, 1 task and 2 assignments to " + file +
                                  ".\""});
    const std::string calendar = drive.fake.bytesOf(file);
    // The event with its weekly rule from its first Wednesday, its Thursday start listed
    // apart, in the fake clock's zone; the task as a to-do; both assignments as all-day
    // events with their class.
    EXPECT_EQ(countOf(calendar, "BEGIN:VEVENT"), 3u) << calendar;
    EXPECT_EQ(countOf(calendar, "BEGIN:VTODO"), 1u) << calendar;
    test::expectLines(calendar, {"DTSTART;TZID=America/New_York:20261202T161500",
                                 "RRULE:FREQ=WEEKLY;UNTIL=20261218T045959Z;BYDAY=WE",
                                 "RDATE;TZID=America/New_York:20261126T161500", "TZID:America/New_York",
                                 "SUMMARY:Return library books", "PRIORITY:1", "CATEGORIES:Algebra",
                                 "COLOR:mistyrose", "SUMMARY:Quiz review", "DTSTART;VALUE=DATE:20261125",
                                 "DTEND;VALUE=DATE:20261126"});

    // A second export, with only the events, names them as the first did.
    const std::string again = drive.fake.root + "/again.ics";
    test::runScript(drive.fake, "clock 2026-11-21 09:05\nstart\nclick MenuExportICalendar\n"
                                "check CheckBoxTasks off\ncheck CheckBoxAssignments off\n"
                                "file " + again + "\nclick ButtonOK\n");
    const std::vector<std::string> uids = uidsOf(calendar);
    ASSERT_EQ(uids.size(), 4u);
    EXPECT_EQ(uidsOf(drive.fake.bytesOf(again)), std::vector<std::string>{uids[0]});
    EXPECT_NE(test::dataFile(drive.fake, "CalendarLinks.txt").find("Event\t1\t" + uids[0] + "\t\t\r\n"),
              std::string::npos);
}

TEST(ProbeICalendar, NothingIsWrittenWhenTheWindowOrTheDialogIsCancelled) {
    CalendarDrive drive;
    const std::string out = test::runScript(drive.fake, "start\nclick MenuExportICalendar\nclick ButtonCancel\n"
                                                        "click MenuExportICalendar\nfile cancel\nclick ButtonOK\n"
                                                        "click MenuExportICalendar\ncheck CheckBoxEvents off\n"
                                                        "check CheckBoxTasks off\ncheck CheckBoxAssignments off\n"
                                                        "print\nclose\n");
    EXPECT_EQ(countOf(out, "Dialog save"), 1u) << out;
    EXPECT_EQ(countOf(out, "Message:"), 0u) << out;
    test::expectLines(out, {"  ButtonOK \"OK\" disabled"});
    EXPECT_FALSE(std::filesystem::exists(drive.fake.dataDirectory() + "/CalendarLinks.txt"));
}

TEST(ProbeICalendar, ARoundTripThroughAnEmptyDriveGivesTheSameFile) {
    CalendarDrive full;
    const std::string exported = full.fake.root + "/first.ics";
    test::runScript(full.fake, "clock 2026-11-21 09:05\nstart\nclick MenuExportICalendar\nfile " + exported +
                                   "\nclick ButtonOK\n");
    CalendarDrive empty(false);
    const std::string copy = empty.fake.root + "/first.ics";
    empty.fake.writeBytes(copy, full.fake.bytesOf(exported));
    const std::string second = empty.fake.root + "/second.ics";
    const std::string out = test::runScript(
        empty.fake, "clock 2026-11-21 09:05\nstart\nfile " + copy + "\nclick MenuImportICalendar\nclick ButtonOK\n"
                    "click MenuExportICalendar\nfile " + second + "\nclick ButtonOK\n");
    test::expectLines(out, {"Imported: 4 added, 0 updated, 0 unchanged, 0 skipped."});
    EXPECT_EQ(withoutStamps(empty.fake.bytesOf(second)), withoutStamps(full.fake.bytesOf(exported)));
}

TEST(ProbeICalendar, AReadOnlyDriveRefusesAnImportBeforeAskingForAFile) {
    LoadedMainWindow planner;
    planner.load().store.DriveReadOnly = true;
    planner.window->click(planner.window->ui.MenuImportICalendar.key());
    EXPECT_EQ(planner.messageTexts(), std::vector<std::string>{"Read-only: changes cannot be saved"});
    EXPECT_TRUE(planner.fake.dialogs.fileRequests.empty());
}

}  // namespace
}  // namespace qh
