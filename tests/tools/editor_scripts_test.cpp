// The task and event editors driven by probe scripts from an empty drive, as a new user
// works them: each record seen in its list and among the reminders on the right day,
// opened from its row and from a reminder, one deleted, one shared and read back; the
// files byte for byte. An event shared from one drive is read into a new event on another.
#include <gtest/gtest.h>

#include "support/record_fields.h"
#include "tools/probe_script.h"

namespace qh {
namespace {

using test::dataFile;
using test::expectLines;
using test::runScript;

TEST(EditorScripts, TasksWithAndWithoutADeadline) {
    FakePlatform fake;
    const std::string text = runScript(fake,
                                       std::string("clock 2026-11-22 09:00\nmode tasks\n"
                                       // A deadline picked and a reminder two days ahead.
                                       "click ButtonNewTask\nset TextBoxDescription Return library books\n"
                                       "pick TextboxTaskDate 2026-11-24\nchoose ComboRemindMe 2 Days\nclick ButtonOK\n"
                                       // No deadline: a reminder is refused until it is "None" again.
                                       "click MenuNewTask\nset TextBoxDescription Clean desk\n"
                                       "choose ComboRemindMe 1 Day\nclick ButtonOK\nchoose ComboRemindMe None\n"
                                       "choose ComboPriority High\nclick ButtonOK\nprint\n"
                                       // From its reminder, then from its row: delete the dated one.
                                       "mode reminders\nprint\nrow 1\nprint\nclose\n"
                                       "mode tasks\nrow 1\nclick ButtonDelete\nprint\n"
                                       // Shared with an unsaved change, which the cancel then drops,
                                       // and read into a new task.
                                       "row 1\nset TextBoxDescription Clean desk, top drawer\nfile ") +
                                           fake.documents + "/clean.txt\nclick ButtonShare\nanswer yes\nclose\n"
                                           "click ButtonNewTask\nfile " +
                                           fake.documents + "/clean.txt\nclick ButtonShare\nclick ButtonOK\nexit\n");
    expectLines(text, {"Message: \"Quillhollow\" \"Set a Deadline for this Task if you want a Reminder.\"\n",
                       "Row 1: | 1 |  Return library books {&HFFFFFF} |  {&HFFFFFF} |  {&HFFFFFF} | 24-Nov-26",
                       "Row 2: | 2 |  Clean desk {&HFFFFFF} |  {&HFFFFFF} | High {&HFFFFFF} |  {&HFFFFFF}",
                       "Row 1: | 1 | Task {&HFFFFFF} |   {&HFFFFFF} | None {&HFFFFFF} |  Return library books",
                       "Window FrmTask \"Quillhollow - Edit Task\"",
                       "  TextboxTaskDate \"Tuesday, November 24, 2026\"\n",
                       "Message: \"Quillhollow\" \"Are you sure you want to Delete this Task?\"\n",
                       "Rows: 1 from 1\nRow 1: | 1|1 {&HFFFFFF} |  Clean desk"});
    // The 24th is marked on the calendar while the dated task lives.
    EXPECT_NE(text.find("24  000000/F0E8E2"), std::string::npos) << text;
    EXPECT_EQ(dataFile(fake, "Tasks.txt"),
              taskRecord({.description = "DELETED RECORD", .dateExists = "True", .date = "2026/11/24", .done = "True",
                          .reminder = "2 Days"}) +
                  taskRecord({.recordNo = 2, .description = "Clean desk", .date = "2026/11/22", .priority = "High"}) +
                  taskRecord({.recordNo = 3, .description = "Clean desk, top drawer", .date = "2026/11/22",
                              .priority = "High"}));
}

const char* const kThreeEvents =
    "clock 2026-11-24 09:00\nmode events\n"
    // A weekly class on Monday and Wednesday, ending in December.
    "click ButtonNewEvent\nset TextBoxEvent Swim class\npick TextboxEventDate 2026-11-02\nclick LabelViewRecurring\n"
    "check RadioRepeatDaily on\ncheck CheckBoxWednesday on\npick TextboxEndDate 2026-12-16\n"
    "choose ComboType Class\nchoose ComboTime 7:00 am\nclick ButtonOK\n"
    // A monthly meeting on the last Friday.
    "click MenuNewEvent\nset TextBoxEvent Book group\npick TextboxEventDate 2026-11-27\nclick LabelViewRecurring\n"
    "check RadioRepeatMonthly on\ncheck RadioMonthlyUser on\nchoose ComboMonthlyNumber Last\n"
    "choose ComboRemindMe 3 Days\nclick ButtonOK\n"
    // A yearly birthday, which has no end.
    "click ButtonNewEvent\nset TextBoxEvent Ana's birthday\npick TextboxEventDate 2026-11-25\n"
    "choose ComboType Birthday\nclick LabelViewRecurring\ncheck RadioRepeatYearly on\n"
    "choose ComboRemindMe 2 Days\nclick ButtonOK\n";

const EventFields kSwim{.date = "2026/11/02", .description = "Swim class", .type = "Class", .time = "7:00 am",
                        .recurrence = "Day", .repeatDaily = "TFTFFFF", .end = "True", .endDate = "2026/12/16"};
const EventFields kBookGroup{.recordNo = 2, .date = "2026/11/27", .description = "Book group", .recurrence = "Month",
                             .sameDate = "False", .repeatNumber = "Last", .repeatDay = "Friday", .end = "True",
                             .endDate = "2027/05/27", .reminder = "3 Days"};
// The yearly panel proposed "Fourth" "Wednesday" for the 25th, and five years on.
const EventFields kBirthday{.recordNo = 3, .date = "2026/11/25", .description = "Ana's birthday", .type = "Birthday",
                            .recurrence = "Year", .repeatNumber = "Fourth", .repeatDay = "Wednesday",
                            .endDate = "2031/11/25", .reminder = "2 Days"};

TEST(EditorScripts, AWeeklyAMonthlyAndAYearlyEvent) {
    FakePlatform fake;
    const std::string text = runScript(fake, std::string(kThreeEvents) +
                                                 "print\nmode reminders\nprint\nrow 2\nprint\nclose\n"
                                                 "mode events\nrow 1\nprint\nclick ButtonDelete\nprint\nexit\n");
    expectLines(text, {// The list of the month from today, every occurrence a row.
                       "Row 1: | 1 |  Swim class {&HE0FFFF} | Class {&HE0FFFF} | 25-Nov-26",
                       "Row 2: | 2 |  Ana's birthday {&H00D7FF} | Birthday {&H00D7FF} | 25-Nov-26",
                       "Row 3: | 3 |  Book group {&HFFFFFF} |  {&HFFFFFF} | 27-Nov-26",
                       "Row 9: | 9 |  Swim class {&HE0FFFF} | Class {&HE0FFFF} | 16-Dec-26",
                       // Today's reminders: the birthday tomorrow, the meeting in three days.
                       "Row 1: | 1 | Event {&H00D7FF} |   {&H00D7FF} | Birthday {&H00D7FF} |  Ana's birthday",
                       "Row 2: | 2 | Event {&HFFFFFF} |   {&HFFFFFF} | None {&HFFFFFF} |  Book group",
                       // Opened from its reminder, with its rule.
                       "  RadioMonthlyUser \"\" checked\n", "  TextboxEventDate \"Friday, November 27, 2026\"\n",
                       // The swim class's row on the 25th opens the record of the 2nd.
                       "  TextboxEventDate \"Monday, November 2, 2026\"\n",
                       "Message: \"Quillhollow\" \"Are you sure you want to Delete this Event?\"\n",
                       "Rows: 2 from 1\n"});
    EXPECT_EQ(dataFile(fake, "Events.txt"),
              eventRecord([] {
                  // A weekly event stores the yearly controls as they stand: the birthday's.
                  EventFields gone = kSwim;
                  gone.description = "DELETED RECORD";
                  gone.repeatNumber = "Fourth";
                  gone.repeatDay = "Wednesday";
                  return gone;
              }()) + eventRecord(kBookGroup) +
                  eventRecord(kBirthday));
}

// Shared from an edit on one drive, read with New and Share on another: after OK the
// second drive holds the same record, the advance notice aside, which the file leaves out.
TEST(EditorScripts, AnEventSharedFromOneDriveIsReadIntoANewEventOnAnother) {
    FakePlatform first, second;
    const std::string file = first.documents + "/Book group.txt";
    runScript(first, std::string(kThreeEvents) + "row 3\nfile " + file + "\nclick ButtonShare\nprint\nclose\nexit\n");
    ASSERT_FALSE(first.bytesOf(file).empty());

    const std::string text = runScript(second, "clock 2026-11-24 09:00\nmode events\nclick ButtonNewEvent\nfile " +
                                                   file + "\nclick ButtonShare\nprint\nclick ButtonOK\nprint\nexit\n");
    // The open dialog suggests no file: the line names the folder it starts in.
    expectLines(text, {"Dialog open \"Open an Event File\" \"" + second.documents + "/Quillhollow\" \"",
                       "  ComboMonthlyNumber \"Last\" entries=5\n", "  RadioMonthlyUser \"\" checked\n",
                       "  TextboxEndDate \"Thursday, May 27, 2027\"\n",
                       "Row 1: | 1 |  Book group {&HFFFFFF} |  {&HFFFFFF} | 27-Nov-26"});
    EventFields shared = kBookGroup;
    shared.recordNo = 1;
    shared.reminder = "None";
    EXPECT_EQ(dataFile(second, "Events.txt"), eventRecord(shared));
}

}  // namespace
}  // namespace qh
