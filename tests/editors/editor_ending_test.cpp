// How every editor window ends a showing, as the record actions read it: OK saves, Delete
// deletes, and every other way the window can hide (Cancel, the close box, the program's
// end, a hide by no button of its own) is a cancel that writes nothing. One table over
// all five windows, each opened on an existing record with a change made first.
#include <gtest/gtest.h>

#include "editors/editor_form.h"
#include "editors/editor_windows.h"
#include "editors/frm_task.h"
#include "editors/record_actions.h"
#include "support/main_window_fixture.h"
#include "support/record_fields.h"

namespace qh {
namespace {

using Ending = std::function<void(EditorForm&)>;

// One term with one class, and one assignment, task and event in it.
struct Drive : LoadedMainWindow {
    Drive() {
        putDataFile("Terms.txt", termRecord(1, "Fall 2026", "2026/08/20", "2026/12/18"));
        putDataFile("Classes.txt", classRecord(1, 1, "Algebra"));
        putDataFile("Assignments.txt", assignmentRecord({.date = "2026/11/24", .description = "Chapter 5 test"}));
        putDataFile("Tasks.txt", taskRecord({.description = "Laundry", .date = "2026/11/20"}));
        putDataFile("Events.txt", eventRecord({.date = "2026/11/25", .description = "Chess club"}));
        putDataFile("Preferences.ini", "[Options]\r\nActiveTerm=Fall 2026\r\n");
        fake.clock.set(2026, 11, 21);
        load();
    }
    std::string files() {
        std::string all;
        for (const char* name : {"Terms.txt", "Classes.txt", "Assignments.txt", "Tasks.txt", "Events.txt"})
            all += dataFile(name) + "|";
        return all;
    }
    EditorForm& editor(const std::string& name) {
        for (Form* form : window->editors->windows())
            if (form->name() == name) return dynamic_cast<EditorForm&>(*form);
        throw std::logic_error("no editor " + name);
    }
    // Whether the schedule window was shown after the term selection.
    bool scheduleShown() const {
        for (const std::string& line : fake.windowing.log)
            if (line == "modal frmCourseSchedule") return true;
        return false;
    }
};

struct Editor {
    const char* window;
    const char* okButton;
    // The text box a change is typed into first; none for the term selection, which
    // changes nothing and whose OK leads on to the schedule window.
    const char* changedBox;
    std::function<void(Drive&)> open;  // opens the window on its record
};

const Editor kEditors[] = {
    {"frmAssignment", "ButtonOK", "TextBoxDescription", [](Drive& d) { d.window->EditAssignment(1); }},
    {"FrmTask", "ButtonOK", "TextBoxDescription", [](Drive& d) { d.window->EditTask(1); }},
    {"frmEvent", "ButtonOK", "TextBoxEvent", [](Drive& d) { d.window->EditEvent(1); }},
    {"frmCourseSchedule", "ButtonOK", "TextBoxTermName",
     [](Drive& d) {
         d.drive<Form>("frmSelectCourseSchedule", [](Form& select) {
             select.select("ComboTermList", "Fall 2026");
             select.click("ButtonEdit");
         });
         d.window->EditClassSchedule();
     }},
    {"frmSelectCourseSchedule", "ButtonEdit", nullptr, [](Drive& d) { d.window->EditClassSchedule(); }},
};

TEST(EditorEnding, OnlyOkAndDeleteLetAShowingCountWhateverElseHidesTheWindow) {
    const struct {
        const char* name;
        Ending end;  // none: the editor's own OK button
        EditorOutcome outcome;
    } endings[] = {
        {"OK", nullptr, EditorOutcome::Saved},
        {"Delete", [](EditorForm& w) { w.click("ButtonDelete"); }, EditorOutcome::Deleted},
        {"Cancel", [](EditorForm& w) { w.click("ButtonCancel"); }, EditorOutcome::Cancelled},
        {"CloseBox", [](EditorForm& w) { EXPECT_FALSE(w.requestClose(UnloadMode::CloseBox)); },
         EditorOutcome::Cancelled},
        {"ProgramEnd", [](EditorForm& w) { EXPECT_TRUE(w.requestClose(UnloadMode::ProgramEnd)); },
         EditorOutcome::Cancelled},
        {"HiddenByNoButton", [](EditorForm& w) { w.hide(); }, EditorOutcome::Cancelled},
        {"LeftOpen", [](EditorForm&) {}, EditorOutcome::Cancelled},
    };
    for (const Editor& editor : kEditors) {
        const bool selection = editor.changedBox == nullptr;
        for (const auto& ending : endings) {
            if (ending.outcome == EditorOutcome::Deleted && selection) continue;  // it has no Delete
            SCOPED_TRACE(std::string(editor.window) + " " + ending.name);
            Drive drive;
            // What a showing that counts leaves behind: changed files, or the schedule shown.
            const auto effect = [&] { return drive.files() + (drive.scheduleShown() && selection ? "schedule" : ""); };
            const std::string before = effect();
            drive.drive<EditorForm>(editor.window, [&](EditorForm& w) {
                if (selection)
                    w.select("ComboTermList", "Fall 2026");
                else
                    w.type(editor.changedBox, "Changed");
                if (ending.end)
                    ending.end(w);
                else
                    w.click(editor.okButton);
            });
            editor.open(drive);
            EXPECT_EQ(drive.editor(editor.window).outcome(), ending.outcome);
            EXPECT_EQ(effect() != before, ending.outcome != EditorOutcome::Cancelled);
        }
    }
}

// A save whose write fails has told the user; the action passes the failure up.
TEST(EditorEnding, AFailedWriteOfASavedRecordIsPassedUp) {
    Drive drive;
    drive.drive<FrmTask>("FrmTask", [](FrmTask& w) { w.click("ButtonOK"); });
    EXPECT_TRUE(drive.window->actions->EditTask(1));
    drive.fake.files.failWrite(1);
    drive.drive<FrmTask>("FrmTask", [](FrmTask& w) { w.click("ButtonOK"); });
    EXPECT_FALSE(drive.window->actions->EditTask(1));
    EXPECT_EQ(drive.messageTexts().size(), 1u);
}

}  // namespace
}  // namespace qh
