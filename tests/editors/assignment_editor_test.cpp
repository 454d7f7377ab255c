// The assignment editor as a user drives it from the main window: the bytes each kind of
// save leaves in the three files, the note and session updates, the OK checks in their
// order, cancel and the close box, and the rows of the lists that open it.
#include <gtest/gtest.h>

#include "editors/editor_windows.h"
#include "editors/frm_assignment.h"
#include "editors/shared_record_file.h"
#include "record_store/record_files.h"
#include "support/main_window_fixture.h"
#include "support/record_fields.h"

namespace qh {
namespace {

// The record builders under short names, so that the tables keep to a line a record.
std::string (&record)(const AssignmentFields&) = assignmentRecord;
constexpr auto& note = noteRecord;
constexpr auto& session = sessionRecord;
using Assignment = AssignmentFields;

const Assignment kTest{1, 1, "2026/11/24", "Test", "Hard", "02 : 00", "Chapter 5 test", "False", "B+", "20", "3 Days"};
const Assignment kReading{2, 2, "2026/11/25", "Reading", "Easy", "00 : 30", "Read pages", "False", "F", "abc", "1 Day"};
const std::string kNote = note(1, 1, "Bring a calculator");
const std::string kSessions = session(1, "1", "00 : 30", "2026/11/18") + session(2, "1", "01 : 00", "2026/11/19") +
                              session(3, "1", "00 : 15", "2026/11/20");

using Use = std::function<void(FrmAssignment&)>;

// A term with Algebra and Biology; the Algebra test has a note and three sessions, the
// Biology reading neither.
struct Editor : LoadedMainWindow {
    explicit Editor(bool records = true) {
        putDataFile("Terms.txt", termRecord(1, "Fall 2026", "2026/08/20", "2026/12/18"));
        putDataFile("Classes.txt", classRecord(1, 1, "Algebra") + classRecord(2, 1, "Biology"));
        if (records) {
            putDataFile("Assignments.txt", record(kTest) + record(kReading));
            putDataFile("Notes.txt", kNote);
            putDataFile("StudySessions.txt", kSessions);
        }
        putDataFile("Preferences.ini", "[Options]\r\nActiveTerm=Fall 2026\r\n");
        fake.clock.set(2026, 11, 21);
        load();
        loadLogLength = fake.files.log.size();
    }
    std::size_t loadLogLength = 0;
    // Opens the assignment of list row `row` (0: a new one, from the button) for `user`.
    void run(int row, const Use& user) {
        drive<FrmAssignment>("frmAssignment", user);
        if (row == 0)
            window->click(window->ui.ButtonNewAssignment.key());
        else
            window->EditAssignment(row);
    }
    // The records written since the load, "Notes.txt record 2"; any other write too.
    std::vector<std::string> recordWrites() {
        std::vector<std::string> writes;
        const std::string prefix = "write " + fake.dataDirectory() + "/";
        for (std::size_t i = loadLogLength; i < fake.files.log.size(); ++i)
            if (fake.files.log[i].starts_with("write"))
                writes.push_back(fake.files.log[i].starts_with(prefix) ? fake.files.log[i].substr(prefix.size())
                                                                       : fake.files.log[i]);
        return writes;
    }
};

void addSession(FrmAssignment& w, const std::string& length) {
    w.select("ComboSessionLength", length);
    w.click("ButtonSessionAdd");
}

// Every kind of save leaves exactly these bytes in the three files.
TEST(AssignmentEditor, EachKindOfSaveWritesTheRecordsByteForByte) {
    const Assignment reread{2, 2, "2026/11/25", "Reading", "Easy", "00 : 30", "Read pages", "False", " ", "5", "1 Day"};
    const struct {
        const char* name;
        bool records;
        int editRow;  // 0: a new assignment
        std::vector<MessageAnswer> answers;
        Use user;
        std::string assignments, notes, sessions;
        std::vector<std::string> writes;  // one record each, in order
    } cases[] = {
        {"NewWithNoteAndSessions", false, 0, {},
         [](FrmAssignment& w) {
             w.select("ComboClassNameList", "Biology");
             w.select("ComboTypeList", "Quiz");
             w.select("ComboEstTime", "02 : 00");
             w.type("TextBoxDescription", "Cells");
             w.type("TextBoxNotes", "Line one\r\nLine two");
             addSession(w, "01 : 00");
             addSession(w, "00 : 45");
             w.click("ButtonOK");
         },
         record({1, 2, "2026/11/21", "Quiz", "Average", "02 : 00", "Cells", "False", " ", "5", "1 Day"}),
         note(1, 1, "Line one\r\nLine two"),
         // The newest session is written first.
         session(1, "1", "00 : 45", "2026/11/21") + session(2, "1", "01 : 00", "2026/11/21"),
         {"Notes.txt record 1", "StudySessions.txt record 1", "StudySessions.txt record 2", "Assignments.txt record 1"}},
        {"NewBare", false, 0, {},
         [](FrmAssignment& w) {
             w.select("ComboClassNameList", "Algebra");
             // Cut at the field's width in code-page bytes; the euro sign is one byte there,
             // the cup the code page lacks a question mark.
             w.type("TextBoxDescription", std::string(47, 'x') + "\u00e9\u20ac\u2615 and more");
             w.click("ButtonOK");
         },
         record({1, 1, "2026/11/21", "Assignment", "Average", "00 : 30", std::string(47, 'x') + "\xE9\x80?", "False",
                 " ", "5", "1 Day"}),
         "", "", {"Assignments.txt record 1"}},
        // A changed note is rewritten in place; the grade and weight the list lacks save
        // as the window showed them.
        {"EditChangesTheNote", true, 1, {},
         [](FrmAssignment& w) {
             w.type("TextBoxDescription", "Chapter 6 test");
             w.type("TextBoxNotes", "Bring two pencils");
             w.click("ButtonOK");
         },
         record({1, 1, "2026/11/24", "Test", "Hard", "02 : 00", "Chapter 6 test", "False", "B+", "20", "3 Days"}) +
             record(kReading),
         note(1, 1, "Bring two pencils"), kSessions, {"Notes.txt record 1", "Assignments.txt record 1"}},
        {"EditEmptiesTheNote", true, 1, {},
         [](FrmAssignment& w) {
             w.type("TextBoxNotes", "");
             w.click("ButtonOK");
         },
         record(kTest) + record(kReading), note(1, 0, ""), kSessions, {"Notes.txt record 1", "Assignments.txt record 1"}},
        {"EditAddsANote", true, 2, {},
         [](FrmAssignment& w) {
             w.type("TextBoxNotes", "Pages 10 to 20");
             w.click("ButtonOK");
         },
         record(kTest) + record(reread), kNote + note(2, 2, "Pages 10 to 20"), kSessions,
         {"Notes.txt record 2", "Assignments.txt record 2"}},
        {"EditWithoutNoteWritesNone", true, 2, {}, [](FrmAssignment& w) { w.click("ButtonOK"); },
         record(kTest) + record(reread), kNote, kSessions, {"Assignments.txt record 2"}},
        // The middle session deleted, one added: the deleted one is marked in place, the
        // added one appended.
        {"EditDeletesAndAddsSessions", true, 1, {},
         [](FrmAssignment& w) {
             w.select("ListBoxStudySessions", 1);
             w.click("ButtonSessionDelete");
             addSession(w, "00 : 20");
             w.click("ButtonOK");
         },
         record(kTest) + record(kReading), kNote,
         session(1, "1", "00 : 30", "2026/11/18") + session(2, "-1", "", "2026/11/19") +
             session(3, "1", "00 : 15", "2026/11/20") + session(4, "1", "00 : 20", "2026/11/21"),
         {"Notes.txt record 1", "StudySessions.txt record 2", "StudySessions.txt record 4", "Assignments.txt record 1"}},
        {"DeleteWithNoteAndSessions", true, 1, {MessageAnswer::Yes, MessageAnswer::Yes},
         [](FrmAssignment& w) { w.click("ButtonDelete"); },
         record({1, 1, "2026/11/24", "Test", "Hard", "02 : 00", "DELETED RECORD", "False", "B+", "20", "3 Days"}) +
             record(kReading),
         note(1, 0, ""),
         session(1, "-1", "", "2026/11/18") + session(2, "-1", "", "2026/11/19") + session(3, "-1", "", "2026/11/20"),
         // The edit columns hold the newest first and are walked from the last.
         {"Notes.txt record 1", "StudySessions.txt record 1", "StudySessions.txt record 2", "StudySessions.txt record 3",
          "Assignments.txt record 1"}},
        {"DeleteWithoutSessionsAsksOnce", true, 2, {MessageAnswer::Yes},
         [](FrmAssignment& w) { w.click("ButtonDelete"); },
         record(kTest) +
             record({2, 2, "2026/11/25", "Reading", "Easy", "00 : 30", "DELETED RECORD", "False", " ", "5", "1 Day"}),
         kNote, kSessions, {"Assignments.txt record 2"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Editor editor(c.records);
        editor.fake.messages.answers.assign(c.answers.begin(), c.answers.end());
        editor.run(c.editRow, c.user);
        EXPECT_EQ(editor.dataFile("Assignments.txt"), c.assignments);
        EXPECT_EQ(editor.dataFile("Notes.txt"), c.notes);
        EXPECT_EQ(editor.dataFile("StudySessions.txt"), c.sessions);
        EXPECT_EQ(editor.recordWrites(), c.writes);
        // The columns hold what a fresh load of the files gives.
        RecordStore reloaded = editor.store;
        reloaded.clearTermBoundColumns();
        RecordFiles(reloaded, editor.fake.platform).LoadAssignments();
        // A deleted assignment keeps its row until the next load.
        std::vector<std::string> live, liveGrades;
        for (int i = 1; i <= editor.store.AssignmentDescriptions.count(); ++i)
            if (editor.store.AssignmentDescriptions(i) != "DELETED RECORD") {
                live.push_back(editor.store.AssignmentDescriptions(i));
                liveGrades.push_back(editor.store.AssignmentGrades(i));
            }
        EXPECT_EQ(reloaded.AssignmentDescriptions.values(), live);
        EXPECT_EQ(reloaded.AssignmentGrades.values(), liveGrades);
        EXPECT_EQ(reloaded.NoteLinkIDs, editor.store.NoteLinkIDs);
        EXPECT_EQ(reloaded.StudySessionRecordNos, editor.store.StudySessionRecordNos);
        EXPECT_EQ(reloaded.StudySessionLengths, editor.store.StudySessionLengths);
        EXPECT_EQ(reloaded.NextStudySessionRecord, editor.store.NextStudySessionRecord);
    }
}

// What an edit shows of the stored record that no save reads back: the due date and the
// sums in words, the term over the classes, the sessions newest first; the class looked
// up by its ID. (What a save reads back is held by the save table, the caption, grade
// and session count by the probe's end-to-end test.) The second showing starts afresh.
TEST(AssignmentEditor, AnEditShowsTheRecordWithItsCorrections) {
    Editor editor;
    editor.store.AssignmentClassLinks(2) = "9";  // a class the list lacks
    std::map<std::string, std::string> shown;
    const auto look = [&shown](FrmAssignment& w) {
        for (const char* key : {"ComboClassNameList", "ComboGrade", "ComboWeight", "TextBoxNotes", "TextboxDateDue",
                                "TextBoxTotalTime", "TextBoxTimeLeft"})
            shown[key] = w.c(key).text;
        shown["LabelClass"] = w.LabelClass->caption;
        shown["first session"] = w.ListBoxStudySessions->items.empty() ? "" : w.ListBoxStudySessions->items[0];
        w.click("ButtonCancel");
    };
    editor.run(1, look);
    EXPECT_EQ(shown["TextboxDateDue"], "Tuesday, November 24, 2026");
    EXPECT_EQ(shown["TextBoxTotalTime"], "01 : 45");
    EXPECT_EQ(shown["LabelClass"], "Classes Fall 2026");
    EXPECT_EQ(shown["first session"], "00 : 15    Friday, Nov 20, 2026");

    editor.run(2, look);
    EXPECT_EQ(shown["ComboClassNameList"], "");
    EXPECT_EQ(shown["ComboGrade"], " ");
    EXPECT_EQ(shown["ComboWeight"], "5");
    EXPECT_EQ(shown["TextBoxNotes"], "");
    EXPECT_EQ(shown["TextBoxTimeLeft"], "00 : 30");
    EXPECT_TRUE(editor.recordWrites().empty());  // cancelled without a change: nothing asked, nothing written
    EXPECT_TRUE(editor.messageTexts().empty());
}

// OK's refusals, each leaving the window open with the focus where it says (their order is
// the checks' own table); cancel, the close box and delete with their questions. No row
// writes anything or asks for a refresh.
TEST(AssignmentEditor, ChecksAndQuestionsInTheirOrder) {
    const struct {
        const char* name;
        bool edit;
        std::vector<MessageAnswer> answers;
        Use user;
        std::vector<std::string> messages;
        bool stayedOpen;
        std::string focus;  // after a refused OK
    } cases[] = {
        {"NoClassUsesTheTypesWord", false, {},
         [](FrmAssignment& w) {
             w.select("ComboTypeList", "Quiz");
             w.click("ButtonOK");
         },
         {"Select a Class for this Quiz."}, true, "ButtonOK"},
        {"EstimateUsedUp", false, {},
         [](FrmAssignment& w) {
             w.select("ComboClassNameList", 0);
             addSession(w, "00 : 30");
             w.click("ButtonOK");
         },
         {"You have studied longer than the Estimated Time.\r\nIncrease the Estimated Time so the Time Left is more "
          "than zero."},
         true, "ComboEstTime"},
        {"NoDescriptionOnceDone", false, {},
         [](FrmAssignment& w) {
             w.select("ComboClassNameList", 0);
             addSession(w, "00 : 30");
             w.click("CheckBoxDone");
             w.click("ButtonOK");
         },
         {"Add a Description to this Assignment."}, true, "TextBoxDescription"},
        {"NoChange", true, {}, [](FrmAssignment& w) { w.click("ButtonCancel"); }, {}, false, ""},
        {"NewChangedYes", false, {MessageAnswer::Yes},
         [](FrmAssignment& w) {
             w.select("ComboTypeList", "Project");
             w.click("ButtonCancel");
         },
         {"Cancel this Project?"}, false, ""},
        {"EditChangedNo", true, {MessageAnswer::No},
         [](FrmAssignment& w) {
             w.type("TextBoxDescription", "Other");
             EXPECT_FALSE(w.requestClose(UnloadMode::CloseBox));
         },
         {"Cancel all changes to this Test?"}, true, ""},
        {"DeleteAnsweredNo", true, {MessageAnswer::Yes, MessageAnswer::No},
         [](FrmAssignment& w) { w.click("ButtonDelete"); },
         {"Are you sure you want to Delete this Test?",
          "Are you really sure? Your Study Sessions for this Test will also be deleted."},
         true, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Editor editor;
        editor.fake.messages.answers.assign(c.answers.begin(), c.answers.end());
        editor.window->state.Refreshing = RefreshReason::Resize;  // no refresh puts it back to None
        bool stayedOpen = false;
        std::string focus;
        editor.run(c.edit ? 1 : 0, [&](FrmAssignment& w) {
            w.SetFocus("ButtonOK");
            c.user(w);
            stayedOpen = w.visible;
            focus = w.focusedControl;
            if (w.visible) w.hide();  // a hidden window saves nothing
        });
        EXPECT_EQ(editor.messageTexts(), c.messages);
        EXPECT_EQ(stayedOpen, c.stayedOpen);
        if (!c.focus.empty()) {
            EXPECT_EQ(focus, c.focus);
        }
        EXPECT_TRUE(editor.recordWrites().empty());
        EXPECT_EQ(editor.window->state.Refreshing, RefreshReason::Resize);
        EXPECT_EQ(editor.store.AssignmentDescriptions.count(), 2);
    }
}

// The session buttons and the Done box, on a new assignment.
TEST(AssignmentEditor, SessionRulesRefuseAndAddedSessionsThatGoLeaveNoTrace) {
    Editor editor(false);
    std::vector<std::string> states;
    editor.run(0, [&](FrmAssignment& w) {
        const auto state = [&] {
            states.push_back(w.LabelStudySessions->caption + " " + w.TextBoxTotalTime->text + " " +
                             w.TextBoxTimeLeft->text + (w.estimateUsedUp ? " used" : ""));
        };
        w.click("CheckBoxDone");  // refused: no session yet
        EXPECT_FALSE(w.CheckBoxDone->checked);
        w.select("ComboEstTime", "01 : 00");
        addSession(w, "00 : 45");
        addSession(w, "00 : 20");
        state();
        w.select("ListBoxStudySessions", 0);
        w.click("ButtonSessionDelete");
        state();
        EXPECT_FALSE(w.ButtonSessionDelete->enabled);
        EXPECT_EQ(w.focusedControl, "ButtonSessionAdd");
        w.click("CheckBoxDone");
        addSession(w, "00 : 10");  // refused while Done
        w.select("ListBoxStudySessions", 0);
        w.click("ButtonSessionDelete");  // refused while Done
        state();
        w.click("CheckBoxDone");
        w.select("ListBoxStudySessions", 0);
        w.click("ButtonSessionDelete");
        state();
        // 99 at most, and a delete makes room again.
        for (int i = 0; i < 100; ++i) addSession(w, "01 : 10");
        state();
        w.select("ListBoxStudySessions", 98);
        w.click("ButtonSessionDelete");
        addSession(w, "00 : 05");
        state();
        for (int i = 0; i < 99; ++i) {
            w.select("ListBoxStudySessions", 0);
            w.click("ButtonSessionDelete");
        }
        state();
        w.click("ButtonCancel");
    });
    EXPECT_EQ(states, (std::vector<std::string>{
                          "Study Sessions: 02 01 : 05 00 : -5 used", "Study Sessions: 01 00 : 45 00 : 15",
                          "Study Sessions: 01 00 : 45 00 : 15", "Study Sessions: 00 00 : 00 01 : 00",
                          // 99 sessions of 70 minutes: 115 hours 30, shown held at 99; 114
                          // hours 30 over the estimate, which the two-character cut shows so.
                          "Study Sessions: 99 99 : 30 14 : 30 used", "Study Sessions: 99 99 : 25 13 : 25 used",
                          "Study Sessions: 00 00 : 00 01 : 00"}));
    const std::vector<std::string> expected{
        "Add a Study Session before checking 'Done'.", "Are you sure you want to Delete this Study Session?",
        "Uncheck 'Done' to Add or Delete Study Sessions.", "Uncheck 'Done' to Add or Delete Study Sessions.",
        "Are you sure you want to Delete this Study Session?", "99 Study Sessions is the limit for one assignment."};
    const std::vector<std::string> shown = editor.messageTexts();
    ASSERT_GE(shown.size(), expected.size());
    EXPECT_EQ(std::vector<std::string>(shown.begin(), shown.begin() + long(expected.size())), expected);
    EXPECT_EQ(std::count(shown.begin(), shown.end(), "99 Study Sessions is the limit for one assignment."), 1);
    EXPECT_EQ(editor.store.NextStudySessionRecord, 1);
    EXPECT_EQ(editor.dataFile("StudySessions.txt"), "");
}

// Rows of the lists open their records: on a scrolled list the row shown; a session row
// its assignment; below the rows a new assignment in Homework and nothing in Study
// Sessions.
TEST(AssignmentEditor, ListRowsOpenTheRecordTheyShow) {
    Editor editor(false);
    std::string assignments;
    for (int i = 1; i <= 20; ++i)
        assignments += record({i, 1, "2026/12/01", "Assignment", "Easy", "01 : 00", "Item " + std::to_string(i),
                               "False", " ", "5", "1 Day"});
    editor.putDataFile("Assignments.txt", assignments);
    editor.putDataFile("StudySessions.txt", session(1, "7", "00 : 30", "2026/11/20"));
    editor.load();
    editor.loadLogLength = editor.fake.files.log.size();
    MainWindow& window = *editor.window;
    std::vector<std::string> opened;
    const auto expectOpen = [&] {
        editor.drive<FrmAssignment>("frmAssignment", [&](FrmAssignment& w) {
            opened.push_back((w.editMode == EditMode::New ? "New " : "Edit ") + w.TextBoxDescription->text);
            w.click("ButtonCancel");
        });
    };
    window.scrollTo(window.ui.VSGridScroll.key(), 5);
    ASSERT_EQ(window.state.TopRow, 5);
    const std::string shownSecond =
        editor.store.AssignmentDescriptions(int(window.state.ListAssignmentRows(window.state.TopRow - 1 + 2)));
    expectOpen();
    window.GridRowClicked(2);
    expectOpen();
    window.GridRowClicked(window.state.ListAssignmentRows.count() + 1);
    window.click(window.ui.MenuStudySessions.key());
    expectOpen();
    window.GridRowClicked(1);
    window.GridRowClicked(2);  // below the one session: nothing opens
    EXPECT_EQ(opened, (std::vector<std::string>{"Edit " + shownSecond, "New ", "Edit Item 7"}));
    EXPECT_TRUE(editor.recordWrites().empty());
}

// Share writes the record as it stands on screen from an edit, touching nothing else, and
// reads it into the empty form of a new assignment, which OK then saves.
TEST(AssignmentEditor, ShareWritesFromAnEditAndReadsIntoANewOne) {
    Editor editor;
    const std::string path = editor.fake.documents + "/Chapter 6 test, Nov 24.txt";
    editor.fake.dialogs.fileAnswers.push_back({true, 0, path, "Chapter 6 test, Nov 24.txt"});
    // A share out is no change of the record: Cancel after it asks nothing.
    editor.fake.dialogs.fileAnswers.push_front({true, 0, path + ".first", "first.txt"});
    editor.run(1, [&](FrmAssignment& w) {
        w.click("ButtonShare");
        w.click("ButtonCancel");
    });
    EXPECT_TRUE(editor.messageTexts().empty());
    editor.fake.messages.answers.push_back(MessageAnswer::Yes);
    editor.run(1, [&](FrmAssignment& w) {
        w.type("TextBoxDescription", "Chapter 6 test");  // not saved
        w.click("ButtonShare");
        w.click("ButtonCancel");
    });
    ASSERT_EQ(editor.fake.dialogs.fileRequests.size(), 2u);
    EXPECT_EQ(editor.fake.dialogs.fileRequests[1].title, "Save an Assignment File");
    EXPECT_EQ(editor.messageTexts(), std::vector<std::string>{"Cancel all changes to this Test?"});
    EXPECT_EQ(editor.dataFile("Assignments.txt"), record(kTest) + record(kReading));
    const SharedAssignment onScreen{"Algebra", "Chapter 6 test", dateFromYmd(2026, 11, 24), "Test", "Hard", "02 : 00",
                                    "20", "Bring a calculator"};
    EXPECT_EQ(editor.fake.bytesOf(path), sharedFileBytes(onScreen));

    editor.fake.dialogs.fileAnswers.push_back({true, 0, path, "Chapter 6 test, Nov 24.txt"});
    editor.run(0, [](FrmAssignment& w) {
        w.click("ButtonShare");
        w.click("ButtonOK");
    });
    EXPECT_EQ(editor.dataFile("Assignments.txt"),
              record(kTest) + record(kReading) +
                  record({3, 1, "2026/11/24", "Test", "Hard", "02 : 00", "Chapter 6 test", "False", " ", "20", "1 Day"}));
    EXPECT_EQ(editor.dataFile("Notes.txt"), kNote + note(2, 3, "Bring a calculator"));
}

// A new assignment needs a term with classes: each question leads to the schedule on Yes
// and never to the editor.
TEST(AssignmentEditor, NewAssignmentAsksForATermAndClassesFirst) {
    const struct {
        const char* name;
        std::string terms, classes;
        MessageAnswer answer;
        std::string question, schedule;
    } cases[] = {
        {"NoTermNo", "", "", MessageAnswer::No, "There is no Term selected. Do you want to set the active Term?", ""},
        {"NoTermYes", "", "", MessageAnswer::Yes, "There is no Term selected. Do you want to set the active Term?",
         "modal frmSelectCourseSchedule"},
        {"NoClassesNo", termRecord(1, "Fall 2026", "2026/08/20", "2026/12/18"), classRecord(1, 2, "Elsewhere"),
         MessageAnswer::No, "This Term has no classes. Do you want to edit the Class Schedule?", ""},
        {"NoClassesYes", termRecord(1, "Fall 2026", "2026/08/20", "2026/12/18"), classRecord(1, 2, "Elsewhere"),
         MessageAnswer::Yes, "This Term has no classes. Do you want to edit the Class Schedule?",
         "modal frmSelectCourseSchedule"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Editor editor(false);
        editor.putDataFile("Terms.txt", c.terms);
        editor.putDataFile("Classes.txt", c.classes);
        editor.store = RecordStore{};
        editor.load();
        editor.fake.messages.answers = {c.answer};
        editor.fake.windowing.log.clear();
        editor.fake.windowing.modalUsers["frmSelectCourseSchedule"].push_back(
            [](Form& form) { form.click("ButtonCancel"); });
        editor.window->click(editor.window->ui.MenuNewAssignment.key());
        EXPECT_EQ(editor.messageTexts(), std::vector<std::string>{c.question});
        std::string modals;
        for (const std::string& line : editor.fake.windowing.log)
            if (line.starts_with("modal")) modals += line;
        EXPECT_EQ(modals, c.schedule);
    }
}

}  // namespace
}  // namespace qh
