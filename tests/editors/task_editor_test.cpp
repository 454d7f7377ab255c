// The task editor as a user drives it: the bytes of Tasks.txt after the saves the probe
// script leaves out, OK's refusal, the questions of cancel, the close box and delete, and
// what each showing puts on screen.
#include <gtest/gtest.h>

#include "editors/frm_task.h"
#include "editors/record_editor.h"
#include "support/record_fields.h"

namespace qh {
namespace {

struct Tasks : test::RecordEditor<FrmTask> {
    explicit Tasks(const std::string& file = "")
        : RecordEditor("Tasks.txt", "FrmTask", [](MainWindow& w, int row) { row == 0 ? w.NewTask() : w.EditTask(row); },
                       file) {}
};

// The Tasks.txt of the edit cases: three records, the second a tombstone.
const TaskFields kLaundry{.recordNo = 1, .description = "Laundry", .date = "2026/11/20", .type = "Home"};
const TaskFields kTombstone{.recordNo = 2, .description = "DELETED RECORD", .date = "2026/11/01", .done = "True"};
const TaskFields kEssay{.recordNo = 3, .description = "Essay outline", .dateExists = "True", .date = "2026/12/02",
                       .type = "School", .priority = "High", .notes = "Three sources\r\nOne quote", .reminder = "3 Days"};

std::string threeTasks() { return taskRecord(kLaundry) + taskRecord(kTombstone) + taskRecord(kEssay); }

TEST(TaskEditor, EachKindOfSaveWritesTheRecordByteForByte) {
    test::expectEachSave<Tasks, FrmTask>({
        // A date picked and the deadline switched off again: today's date is stored.
        {"NewWithoutDeadlineStoresToday", "", 0,
         [](FrmTask& w) {
             w.type("TextBoxDescription", "Call grandma");
             w.click("TextboxTaskDate");
             w.click("LabelTomorrow");
             w.click("CheckBoxDeadline");
             w.click("CheckBoxDone");
             w.click("ButtonOK");
         },
         taskRecord({.description = "Call grandma", .date = "2026/11/21", .done = "True"})},
        // Appended after the tombstone: record 4, whatever the row count.
        {"NewAfterATombstone", threeTasks(), 0,
         [](FrmTask& w) {
             w.type("TextBoxDescription", "Buy stamps");
             w.click("ButtonOK");
         },
         threeTasks() + taskRecord({.recordNo = 4, .description = "Buy stamps", .date = "2026/11/21"})},
        // Row 2 is record 3: overwritten in place, the reminder and the notes kept.
        {"EditOverwritesInPlace", threeTasks(), 2,
         [](FrmTask& w) {
             w.type("TextBoxDescription", "Essay draft");
             w.click("CheckBoxDone");
             w.click("ButtonOK");
         },
         taskRecord(kLaundry) + taskRecord(kTombstone) + taskRecord(test::with(kEssay, [](TaskFields& t) {
             t.description = "Essay draft";
             t.done = "True";
         }))},
        // An undated task's edit stores the day of the edit, not its old date.
        {"EditOfAnUndatedTask", threeTasks(), 1,
         [](FrmTask& w) {
             w.select("ComboPriority", "Low");
             w.click("ButtonOK");
         },
         taskRecord(test::with(kLaundry, [](TaskFields& t) {
             t.priority = "Low";
             t.date = "2026/11/21";
         })) + taskRecord(kTombstone) + taskRecord(kEssay)},
    });
}

// OK's refusal read from the window's controls; cancel, close box and delete with their
// questions. No row writes anything.
TEST(TaskEditor, ChecksAndQuestionsInTheirOrder) {
    test::expectEachQuestion<Tasks, FrmTask>(threeTasks(), {
        {"NoNameWinsOverReminderWithoutDeadline", 0, {},
         [](FrmTask& w) {
             w.select("ComboRemindMe", "5 Days");
             w.click("ButtonOK");
         },
         {"This task has no name."}, true, EditorOutcome::Cancelled},
        {"CancelWithoutChangeAsksNothing", 2, {}, [](FrmTask& w) { w.click("ButtonCancel"); }, {}, false,
         EditorOutcome::Cancelled},
        {"CancelOfANewTaskRefused", 0, {MessageAnswer::No},
         [](FrmTask& w) {
             w.type("TextBoxDescription", "Pay rent");
             w.click("ButtonCancel");
             EXPECT_EQ(w.TextBoxDescription->text, "Pay rent");
             EXPECT_TRUE(w.hasChanges());
         },
         {"Cancel this Task?"}, true, EditorOutcome::Cancelled},
        {"CloseBoxOfAnEditAsksAndHides", 2, {MessageAnswer::Yes},
         [](FrmTask& w) {
             w.click("CheckBoxDone");
             EXPECT_FALSE(w.requestClose(UnloadMode::CloseBox));
         },
         {"Cancel all changes to this Task?"}, false, EditorOutcome::Cancelled},
        {"DeleteRefused", 2, {MessageAnswer::No},
         [](FrmTask& w) {
             w.click("ButtonDelete");
             EXPECT_EQ(w.TextBoxDescription->text, "Essay outline");
         },
         {"Are you sure you want to Delete this Task?"}, true, EditorOutcome::Cancelled},
    });
}

// What each showing puts on screen, also after another showing left its controls behind.
TEST(TaskEditor, EachShowingStartsFromItsRecordOrFromNothing) {
    Tasks tasks(threeTasks() + taskRecord({.recordNo = 4, .description = "Odd reminder", .dateExists = "True",
                                           .date = "2026/11/30", .done = "True", .reminder = "45 Days"}));
    tasks.run(2, [](FrmTask& w) {
        EXPECT_EQ(w.caption, "Quillhollow - Edit Task");
        EXPECT_EQ(w.TextboxTaskDate->text, "Wednesday, December 2, 2026");
        EXPECT_EQ(w.LabelDeadline->caption, "Date");
        EXPECT_EQ(w.TextboxTaskDate->foreColor, kBlack);
        EXPECT_EQ(w.ComboRemindMe->text, "3 Days");
        EXPECT_TRUE(w.ButtonDelete->visible);
        EXPECT_EQ(w.focusedControl, "TextBoxDescription");
        EXPECT_FALSE(w.hasChanges());
        w.click("ButtonCancel");
    });
    // A reminder the list doesn't hold shows the first entry; Done shows green.
    tasks.run(3, [](FrmTask& w) {
        EXPECT_EQ(w.ComboRemindMe->text, "None");
        EXPECT_TRUE(w.CheckBoxDone->checked);
        EXPECT_EQ(w.CheckBoxDone->backColor, w.LabelDoneBG->backColor);
        EXPECT_EQ(w.CheckBoxDone->backColor, 0x008000);  // "Green"
        EXPECT_FALSE(w.hasChanges());
        w.click("ButtonCancel");
    });
    tasks.run(0, [](FrmTask& w) {
        EXPECT_EQ(w.caption, "Quillhollow - New Task");
        EXPECT_EQ(w.TextBoxDescription->text, "");
        EXPECT_NE(w.CheckBoxDone->backColor, 0x008000);
        EXPECT_FALSE(w.CheckBoxDeadline->checked);
        EXPECT_EQ(w.LabelDeadline->caption, "No Date Set");
        EXPECT_EQ(w.TextboxTaskDate->text, "Saturday, November 21, 2026");
        EXPECT_EQ(w.TextboxTaskDate->foreColor, rgb(128, 128, 128));
        EXPECT_EQ(w.ComboType->text, "None");
        EXPECT_FALSE(w.ButtonDelete->visible);
        EXPECT_FALSE(w.hasChanges());
        w.click("ButtonCancel");
    });
    EXPECT_TRUE(tasks.messageTexts().empty());
}

// After OK the list stands on the saved task: a new one far down a long list is scrolled
// into sight and framed for the keyboard, an edited one high up too; the list has the
// focus, so Enter opens the row again.
TEST(TaskEditor, TheListScrollsToAndFramesTheSavedTask) {
    std::string file;
    for (int n = 1; n <= 40; ++n)
        file += taskRecord({.recordNo = n, .description = "Chore " + std::to_string(100 + n), .date = "2026/11/20"});
    Tasks tasks(file);
    MainWindow& window = *tasks.window;
    window.click(window.ui.MenuTasks.key());
    window.select(window.ui.ComboDateRange.key(), "All");
    const auto framed = [&] {
        const int p = window.state.TopRow - 1 + window.state.KeyboardRow;
        return window.state.KeyboardRow > 0 && window.state.ListTaskRows.has(p) ? window.state.ListTaskRows(p) : 0;
    };
    ASSERT_GT(window.state.RowCount, window.state.RowsVisible);
    tasks.run(0, [](FrmTask& w) {
        w.type("TextBoxDescription", "Zebra chore");
        w.click("ButtonOK");
    });
    EXPECT_EQ(framed(), 41);
    EXPECT_GT(window.state.TopRow, 1);
    EXPECT_EQ(window.focusedControl, window.ui.picGrid.key());
    tasks.run(3, [](FrmTask& w) { w.click("ButtonOK"); });
    EXPECT_EQ(framed(), 3);
    EXPECT_EQ(window.ui.VSGridScroll->value, window.state.TopRow);
}

}  // namespace
}  // namespace qh
