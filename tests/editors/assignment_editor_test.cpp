// What the assignment editor does that the probe scripts cannot show (their saves, checks,
// questions, session rules, list rows and share are in tests/tools/scripts/assignment_*):
// an assignment whose class left the list, and the main window left alone by a window
// closed without a save.
#include <gtest/gtest.h>

#include "editors/editor_windows.h"
#include "editors/frm_assignment.h"
#include "support/main_window_fixture.h"
#include "support/record_fields.h"

namespace qh {
namespace {

using Use = std::function<void(FrmAssignment&)>;

// A term with Algebra and Biology; the Algebra test has a note and a session, the Biology
// reading neither.
struct Editor : LoadedMainWindow {
    Editor() {
        putDataFile("Terms.txt", termRecord(1, "Fall 2026", "2026/08/20", "2026/12/18"));
        putDataFile("Classes.txt", classRecord(1, 1, "Algebra") + classRecord(2, 1, "Biology"));
        putDataFile("Assignments.txt",
                    assignmentRecord({1, 1, "2026/11/24", "Test", "Hard", "02 : 00", "Chapter 5 test"}) +
                        assignmentRecord({2, 2, "2026/11/25", "Reading", "Easy", "00 : 30", "Read pages"}));
        putDataFile("Notes.txt", noteRecord(1, 1, "Bring a calculator"));
        putDataFile("StudySessions.txt", sessionRecord(1, "1", "00 : 30", "2026/11/18"));
        putDataFile("Preferences.ini", "[Options]\r\nActiveTerm=Fall 2026\r\n");
        fake.clock.set(2026, 11, 21);
        load();
    }
    // Opens the assignment of list row `row` (0: a new one, from the button) for `user`.
    void run(int row, const Use& user) {
        drive<FrmAssignment>("frmAssignment", user);
        if (row == 0)
            window->click(window->ui.ButtonNewAssignment.key());
        else
            window->EditAssignment(row);
    }
};

// A class that left the list since the assignment was made (here by a link the list
// lacks): the edit shows no class rather than a wrong one. A drive's list never shows
// such a row, so no script reaches it.
TEST(AssignmentEditor, AnEditOfAnAssignmentWhoseClassLeftTheListShowsNoClass) {
    Editor editor;
    editor.store.AssignmentClassLinks(2) = "9";
    std::string shown = "not opened";
    editor.run(2, [&shown](FrmAssignment& w) {
        shown = w.ComboClassNameList->text;
        w.click("ButtonCancel");
    });
    EXPECT_EQ(shown, "");
    EXPECT_TRUE(editor.messageTexts().empty());
}

// A window that closes without a save (a cancelled new one, a close box answered No, a
// delete answered No) asks for no refresh of the main window and adds no row to its
// columns, which nothing on screen shows at once.
TEST(AssignmentEditor, AWindowClosedWithoutASaveLeavesTheMainWindowAlone) {
    const struct {
        const char* name;
        bool edit;
        std::vector<MessageAnswer> answers;
        Use user;
    } cases[] = {
        {"NewCancelled",
         false,
         {MessageAnswer::Yes},
         [](FrmAssignment& w) {
             w.select("ComboTypeList", "Project");
             w.click("ButtonCancel");
         }},
        {"CloseBoxAnsweredNo",
         true,
         {MessageAnswer::No},
         [](FrmAssignment& w) {
             w.type("TextBoxDescription", "Other");
             EXPECT_FALSE(w.requestClose(UnloadMode::CloseBox));
         }},
        {"DeleteAnsweredNo",
         true,
         {MessageAnswer::Yes, MessageAnswer::No},
         [](FrmAssignment& w) { w.click("ButtonDelete"); }},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Editor editor;
        editor.fake.messages.answers.assign(c.answers.begin(), c.answers.end());
        editor.window->state.Refreshing = RefreshReason::Resize;  // no refresh puts it back to None
        editor.run(c.edit ? 1 : 0, [&](FrmAssignment& w) {
            c.user(w);
            if (w.visible) w.hide();  // a hidden window saves nothing
        });
        EXPECT_EQ(editor.window->state.Refreshing, RefreshReason::Resize);
        EXPECT_EQ(editor.store.AssignmentDescriptions.count(), 2);
    }
}

}  // namespace
}  // namespace qh
