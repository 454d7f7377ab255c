#include <gtest/gtest.h>

#include "support/main_window_fixture.h"
#include "support/record_fields.h"
#include "tools/probe_script.h"

namespace qh {
namespace {

using test::dataFile;
using test::expectLines;
using test::runScript;

// Scripts run on a drive with one term, one class and two assignments, one of them done;
// each must print the lines given.
TEST(Probe, RunsAScriptOnARealDriveAndPrintsWhatTheWindowShows) {
    const struct {
        const char* script;
        std::vector<std::string> lines;
    } cases[] = {
        {"clock 2026-11-21 09:05\nprint\nlist Done\nprint\nexit\n",
         {"== Homework", "Term: \"Fall 2026\" \"27 Days Left in Term\"", "Status: \"Homework Mode\"",
          "Clock: \"Saturday, November 21, 2026      09:05 AM\"", "Calendar: November 2026",
          // 24 November is marked in the blue tint of "All"; after "Done" only the 25th, green.
          "24  000000/F0E8E2", "25  000000/E2F7E1", "21*[FFFFFF/000000", "Closed"}},
        {"clock 2027-01-31 10:00\narrow month-up 1\nprint\nmode reminders\nprint\nmode tasks\nprint\n",
         {"Calendar: March 2027", "28*",  // 31 January, month on and held: 28 March
          "== Reminders", "Calendar: January 2027",
          "ComboDateRange: \"All\" of [Day, All, With Date, Without Date]"}},
        // The keyboard and the wheel: a day on, a month on, a wheel notch back, Home.
        {"clock 2026-11-21 09:05\nkey picCalendar Right\nkey picCalendar PageDown\nprint\n"
         "wheel LabelCalDate(20) 1\nprint\nkey picCalendar Home\nprint\n",
         {"Calendar: December 2026", "22*", "Calendar: November 2026", "22*", "21*"}},
    };
    for (const auto& c : cases) {
        FakePlatform fake;
        const std::string data = fake.dataDirectory();
        fake.writeBytes(data + "/Terms.txt", termRecord(1, "Fall 2026", "2026/08/20", "2026/12/18"));
        fake.writeBytes(data + "/Classes.txt", classRecord(1, 1, "Algebra", "Black", "MistyRose"));
        fake.writeBytes(data + "/Assignments.txt", assignmentRecord(1, 1, "2026/11/24", "Problem set 7", false) +
                                                       assignmentRecord(2, 1, "2026/11/25", "Quiz review", true));
        expectLines(runScript(fake, c.script), c.lines);
    }
}

TEST(Probe, RefusesALineItDoesNotUnderstand) {
    FakePlatform fake;
    std::ostringstream out;
    ProbeSession session(fake.drive, fake.host, out);
    EXPECT_FALSE(session.action("fly away"));
    EXPECT_FALSE(session.action("cell 42"));
    EXPECT_FALSE(session.action("key picCalendar Sideways"));
    EXPECT_FALSE(session.action("key LabelMonth Right"));  // a label takes no keys
    EXPECT_FALSE(session.action("wheel picGrid"));
    EXPECT_TRUE(session.action("cell 41"));
}

// A modal window takes the script's lines while it is open; `print` lists it after the
// main window, one control a line, and the caller goes on when it hides.
TEST(Probe, DrivesAModalWindowFromTheScriptAndPrintsItsControls) {
    FakePlatform fake;
    const std::string data = fake.dataDirectory();
    fake.writeBytes(data + "/Terms.txt", termRecord(1, "Fall 2026", "2026/08/20", "2026/12/18") +
                                             termRecord(2, "Say \"Hi\"", "2027/01/10", "2027/03/20"));
    std::ostringstream out;
    ProbeSession session(fake.drive, fake.host, out);
    std::istringstream in(
        "click ButtonSelectTerm\nprint\nchoose ComboTermList #1\nclick ButtonActive\nprint\n"
        "click MenuClassSchedule\nclose\nprint\nclick ButtonSelectTerm\nclick NoSuchButton\n");
    EXPECT_FALSE(session.run(in));
    EXPECT_EQ(session.failedLineNumber(), 10);
    const std::string text = out.str();
    const std::string window =
        "Window frmSelectCourseSchedule \"Quillhollow - Select a Term\" 4770 x 3300\n"
        "  ButtonActive \"Make This Term Active\"\n"
        "  ButtonCancel \"Cancel\"\n"
        "  ButtonEdit \"Edit This Term's Class Schedule\"\n"
        "  ButtonNew \"New Term\"\n"
        "  CheckBoxBasedOnTerm \"Start with This Term's Classes\"\n"
        "  ComboTermList \"Say \"\"Hi\"\"\" entries=2\n"
        "  Label1 \"Term Name\"\n";
    EXPECT_NE(text.find(window), std::string::npos) << text;
    // Made active: the term panel shows it; the close box left the second showing alone.
    EXPECT_NE(text.find("Term: \"Fall 2026\""), std::string::npos) << text;
    EXPECT_EQ(text.find("Window", text.find("Window") + 1), std::string::npos) << text;
}

// `click` is a person's click: press, release and click. The month arrows act on the
// press, the main window's and the pop-up picker's alike, so `click` steps them a month.
TEST(Probe, ClickPressesAndReleasesTheControlsThatActOnThePress) {
    FakePlatform fake;
    const std::string text = runScript(
        fake, "clock 2026-11-21 09:00\nclick picCalMonthUp\nprint\n"
              "click ButtonSelectTerm\nclick ButtonNew\npick TextboxTermStart 2027-01-11\nclick TextboxTermStart\n"
              "click LabelCalMonthUp\nprint\nclick LabelCalMonthDown\nclick LabelCalMonthDown\nclick LabelCalDate(12)\n"
              "print\n");
    expectLines(text, {"Calendar: December 2026", "  LabelMonth \"February 2027\"",
                       "  TextboxTermStart \"Friday, December 11, 2026\""});
}

// `wait` lets the main window's timers run: the Tip of the Day comes half a second after
// the start on a drive whose preferences show tips, and not on one where they were turned
// off from the tip itself.
TEST(Probe, WaitLetsTheTipOfTheDayComeAtTheStart) {
    FakePlatform fake;
    const std::string first =
        runScript(fake, "start\nprint\nwait 1\nprint\ncheck CheckBoxShowTips off\nclick ButtonClose\nexit\n");
    const std::size_t tip = first.find("Window frmTip \"Quillhollow Tip of the Day\"");
    ASSERT_NE(tip, std::string::npos) << first;
    EXPECT_GT(tip, first.find("== Homework", first.find("== Homework") + 1)) << "shown before the wait";
    expectLines(first, {"  LabelTip \"Create a new Term and Class Schedule before adding assignments.\""});
    const std::string second = runScript(fake, "start\nwait 12\nprint\nexit\n");
    EXPECT_EQ(second.find("frmTip"), std::string::npos) << second;
    EXPECT_NE(dataFile(fake, "Preferences.ini").find("ShowTipsAtStartup=No"), std::string::npos);
}

// A new user on an empty drive makes a term with three classes from the probe: dates
// picked with the pop-up calendar, colours from the grid; after a restart it is still the
// active term, and the files hold exactly its records.
TEST(Probe, MakesATermWithClassesEndToEnd) {
    FakePlatform fake;
    const char* script =
        "clock 2026-11-21 09:00\n"
        "click ButtonSelectTerm\nclick ButtonNew\nprint\n"
        "pick TextboxTermStart 2027-01-11\npick TextboxTermEnd 2027-03-26\n"
        "click ButtonAddClass\nset TextBoxClassName Algebra\npress picColorGrid 675 225\nclick ButtonOKClass\n"
        "click ButtonAddClass\nset TextBoxClassName Biology\ncheck OptionForeColor on\npress picColorGrid 1875 225\n"
        "check OptionBackColor on\npress picColorGrid 75 1275\nclick ButtonOKClass\n"
        "click ButtonAddClass\nset TextBoxClassName  algebra \nclick ButtonOKClass\n"
        "set TextBoxClassName History\nclick ButtonOKClass\nclick ButtonOK\nprint\nexit\n";
    expectLines(runScript(fake, script),
                {"  TextBoxTermName \"Winter 2026\"\n", "  TextboxTermEnd \"Saturday, January 30, 2027\"\n",
                 "Message: \"Quillhollow\" \"There is already a class with this name.\"\n",
                 "Term: \"Winter 2026\" \"125 Days Left in Term\"\n",
                 "ComboGPA: \"GPA\" of [GPA, Total , Algebra , Biology , History ]\n"});
    EXPECT_EQ(dataFile(fake, "Terms.txt"), termRecord(1, "Winter 2026", "2027/01/11", "2027/03/26"));
    EXPECT_EQ(dataFile(fake, "Classes.txt"),
              classRecord(1, 1, "Algebra", "Black", "MistyRose") + classRecord(2, 1, "Biology", "SeaShell", "MediumBlue") +
                  classRecord(3, 1, "History", "Black", "White"));

    expectLines(runScript(fake, "clock 2026-11-22 09:00\nprint\n"),
                {"Term: \"Winter 2026\" \"124 Days Left in Term\""});
}

// From an empty drive: a term with two classes, a day clicked, a new quiz with a note and
// three study sessions marked Done with a grade. The files hold exactly its records; the
// list, the calendar marks, the GPA and the session list follow. After a restart the row
// opens with the same values, and a delete takes it away.
TEST(Probe, MakesAnAssignmentWithStudySessionsEndToEnd) {
    FakePlatform fake;
    const char* script =
        "clock 2026-11-21 09:00\n"
        "click ButtonSelectTerm\nclick ButtonNew\n"
        "click ButtonAddClass\nset TextBoxClassName Algebra\nclick ButtonOKClass\n"
        "click ButtonAddClass\nset TextBoxClassName Biology\nclick ButtonOKClass\nclick ButtonOK\n"
        "cell 30\nclick ButtonNewAssignment\n"
        "choose ComboClassNameList Biology\nchoose ComboTypeList Quiz\nchoose ComboEstTime 02 : 30\n"
        "set TextBoxDescription Cells and tissues\nset TextBoxNotes Chapter 3\\nBring the lab book\n"
        "click LabelViewSessions\n"
        "choose ComboSessionLength 00 : 45\npick TextboxSessionDate 2026-11-19\nclick ButtonSessionAdd\n"
        "choose ComboSessionLength 01 : 00\npick TextboxSessionDate 2026-11-20\nclick ButtonSessionAdd\n"
        "choose ComboSessionLength 00 : 20\npick TextboxSessionDate 2026-11-21\nclick ButtonSessionAdd\n"
        "check CheckBoxDone on\nchoose ComboGrade A-\nclick ButtonOK\nprint\nmode sessions\nprint\nexit\n";
    expectLines(runScript(fake, script),
                {"TextBoxTotalAssignments: \"1\"",
                 "ComboGPA: \"GPA\" of [GPA, Total 3.70 (A-)  , Algebra , Biology 3.70 (A-)  ]",
                 "Row 1: | 1 |  Biology {&HFFFFFF} | Quiz {&HFFFFFF} |  Cells and tissues {&HFFFFFF} | Average {&HFFFFFF} | "
                 "00:00 {&HFFFFFF} | 24-Nov-26 {&HFFFFFF} |  {&HFFFFFF} <Checked> | A- {&HFFFFFF}",
                 "24* FFFFFF/A88A76",  // the due day marked in the class's colour
                 "TextBoxStudySessions: \"3\"", "TextBoxStudyTime: \"02:05\"", "19  000000/F0E8E2"});
    const AssignmentFields quiz{.classLink = 2, .date = "2026/11/24", .type = "Quiz", .estTime = "02 : 30",
                                .description = "Cells and tissues", .done = "True", .grade = "A-"};
    EXPECT_EQ(dataFile(fake, "Assignments.txt"), assignmentRecord(quiz));
    EXPECT_EQ(dataFile(fake, "Notes.txt"), noteRecord(1, 1, "Chapter 3\r\nBring the lab book"));
    EXPECT_EQ(dataFile(fake, "StudySessions.txt"), sessionRecord(1, "1", "00 : 20", "2026/11/21") +
                                                       sessionRecord(2, "1", "01 : 00", "2026/11/20") +
                                                       sessionRecord(3, "1", "00 : 45", "2026/11/19"));

    expectLines(runScript(fake, "clock 2026-11-22 09:00\nrow 1\nprint\nclick ButtonCancel\n"
                                "row 1\nanswer yes\nanswer yes\nclick ButtonDelete\nprint\n"),
                {"Window frmAssignment \"Quillhollow - Edit Assignment\" 6360 x 7425",
                 "  ComboGrade \"A-\" entries=14", "  LabelStudySessions \"Study Sessions: 03\"",
                 "  TextBoxTimeLeft \"00 : 25\" fore=Black back=Honeydew", "  ComboClassNameList \"Biology\"",
                 "Rows: 0 from 1"});
    EXPECT_EQ(dataFile(fake, "Notes.txt"), noteRecord(1, 0, ""));  // the note let go with its assignment
}

}  // namespace
}  // namespace qh
