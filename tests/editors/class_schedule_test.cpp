// The term and class schedule as a user drives it: the schedule procedure with both windows
// scripted, the rules of the class panel and of OK, and the bytes of the two files after
// each kind of save.
#include <gtest/gtest.h>

#include "editors/editor_windows.h"
#include "editors/frm_course_schedule.h"
#include "editors/frm_select_course_schedule.h"
#include "editors/record_editor.h"
#include "record_store/color_vocabulary.h"
#include "support/main_window_fixture.h"

namespace qh {
namespace {

using Step = std::function<void(FrmCourseSchedule&)>;

struct Schedule : LoadedMainWindow {
    Schedule() {
        putDataFile("Terms.txt", termRecord(1, "Fall 2026", "2026/08/20", "2026/12/18") +
                                     termRecord(2, "Summer 2026", "2026/05/01", "2026/07/30"));
        putDataFile("Classes.txt", classRecord(1, 1, "Algebra", "Black", "MistyRose") +
                                       classRecord(2, 2, "Chemistry", "White", "Navy") +
                                       classRecord(3, 1, "Biology", "Black", "White"));
        putDataFile("Preferences.ini", "[Options]\r\nActiveTerm=Fall 2026\r\n");
        fake.clock.set(2026, 11, 21);
        load();
    }
    // Runs the schedule: the selection window answered by `choose`, then the schedule
    // window by `edit`.
    void run(const std::function<void(FrmSelectCourseSchedule&)>& choose, const Step& edit) {
        drive<FrmSelectCourseSchedule>("frmSelectCourseSchedule", choose);
        drive<FrmCourseSchedule>("frmCourseSchedule", edit);
        window->click(window->ui.ButtonSelectTerm.key());
    }
};

void pickTerm(FrmSelectCourseSchedule& select, const std::string& name, const char* button, bool basedOn = false) {
    select.select("ComboTermList", name);
    if (basedOn) select.click("CheckBoxBasedOnTerm");
    select.click(button);
}

// Each kind of save leaves exactly these bytes in the two files.
TEST(ClassSchedule, EachKindOfSaveWritesTheFilesByteForByte) {
    const std::string fall = termRecord(1, "Fall 2026", "2026/08/20", "2026/12/18");
    const std::string summer = termRecord(2, "Summer 2026", "2026/05/01", "2026/07/30");
    const std::string algebra = classRecord(1, 1, "Algebra", "Black", "MistyRose");
    const std::string chemistry = classRecord(2, 2, "Chemistry", "White", "Navy");
    const std::string biology = classRecord(3, 1, "Biology", "Black", "White");
    const struct {
        const char* name;
        std::function<void(FrmSelectCourseSchedule&)> choose;
        Step edit;
        std::string terms, classes, activeTerm;
    } cases[] = {
        {"NewTermWithAClass", [](auto& s) { s.click("ButtonNew"); },
         [](FrmCourseSchedule& w) {
             w.click("ButtonAddClass");
             w.type("TextBoxClassName", "Poetry ");
             EventArgs mistyRose;  // colour 19: row 2, column 5
             mistyRose.x = 4 * 150 + 10;
             mistyRose.y = 150 + 10;
             w.press("picColorGrid", mistyRose);
             w.click("ButtonOKClass");
             w.click("ButtonOK");
         },
         fall + summer + termRecord(3, "Winter 2026", "2026/11/21", "2027/01/30"),
         algebra + chemistry + biology + classRecord(4, 3, "Poetry", "Black", "MistyRose"), "Winter 2026"},
        // Based on Fall: its live classes under new IDs, the term named as the source.
        {"NewBasedOn", [](auto& s) { pickTerm(s, "Fall 2026", "ButtonNew", true); },
         [](FrmCourseSchedule& w) {
             w.type("TextBoxTermName", "Spring 2027");
             w.click("ButtonOK");
         },
         fall + summer + termRecord(3, "Spring 2027", "2026/11/21", "2027/01/30"),
         algebra + chemistry + biology + classRecord(4, 3, "Algebra", "Black", "MistyRose") +
             classRecord(5, 3, "Biology", "Black", "White"),
         "Spring 2027"},
        // An edit moves the term's rows to the end; the active term follows its new name.
        {"EditMovesRowsToTheEnd", [](auto& s) { pickTerm(s, "Fall 2026", "ButtonEdit"); },
         [](FrmCourseSchedule& w) {
             w.type("TextBoxTermName", "Fall Term");
             w.click("ButtonOK");
         },
         summer + termRecord(1, "Fall Term", "2026/08/20", "2026/12/18"), chemistry + algebra + biology, "Fall Term"},
        // Two questions, then tombstones in place; the active term falls back.
        {"DeleteLeavesTombstones", [](auto& s) { pickTerm(s, "Fall 2026", "ButtonEdit"); },
         [](FrmCourseSchedule& w) { w.click("ButtonDelete"); },
         termRecord(1, "DELETED RECORD", "2026/08/20", "2026/12/18") + summer,
         classRecord(1, 1, "DELETED RECORD", "Black", "MistyRose") + chemistry +
             classRecord(3, 1, "DELETED RECORD", "Black", "White"),
         "Summer 2026"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Schedule schedule;
        schedule.run(c.choose, c.edit);
        EXPECT_EQ(schedule.dataFile("Terms.txt"), c.terms);
        EXPECT_EQ(schedule.dataFile("Classes.txt"), c.classes);
        EXPECT_EQ(schedule.store.CurrentTermName, c.activeTerm);
    }
}

// The checks of the class panel and of OK, in their order, with what each leaves behind.
TEST(ClassSchedule, ChecksRefuseWhatTheyMustAndAskBeforeARename) {
    const struct {
        const char* name;
        std::vector<MessageAnswer> answers;
        Step edit;
        std::vector<std::string> messages;
        std::string classList;  // the lines of ComboBoxClassList at the end
        EditorOutcome outcome;  // only a save may change the files
    } cases[] = {
        {"DuplicateByCaseAndBlanks", {},
         [](FrmCourseSchedule& w) {
             w.click("ButtonAddClass");
             w.type("TextBoxClassName", "  bIOLOGY ");
             w.click("ButtonOKClass");
             EXPECT_EQ(w.TextBoxClassName->text, "");  // back to the original name: none
             w.click("ButtonCancelClass");
             w.click("ButtonCancel");
         },
         {"There is already a class with this name."}, "Algebra|Biology", EditorOutcome::Cancelled},
        {"RenameRefused", {MessageAnswer::No},
         [](FrmCourseSchedule& w) {
             w.click("ButtonEditClass");
             w.type("TextBoxClassName", "Algebra II");
             w.click("ButtonOKClass");
             EXPECT_EQ(w.TextBoxClassName->text, "Algebra");
             w.click("ButtonCancelClass");
             w.click("ButtonCancel");
         },
         {"You have changed the name of this class. If you have created assignments for 'Algebra', they will now be "
          "for 'Algebra II'.\r\nClick 'Yes' to rename this class."},
         "Algebra|Biology", EditorOutcome::Cancelled},
        {"RenameAcceptedThenCancelAsked", {MessageAnswer::Yes, MessageAnswer::No, MessageAnswer::Yes},
         [](FrmCourseSchedule& w) {
             w.click("ButtonEditClass");
             w.type("TextBoxClassName", "Algebra II");
             w.click("ButtonOKClass");
             w.click("ButtonCancel");  // No: stays
             EXPECT_TRUE(w.visible);
             w.click("ButtonCancel");
         },
         {"You have changed the name of this class. If you have created assignments for 'Algebra', they will now be "
          "for 'Algebra II'.\r\nClick 'Yes' to rename this class.",
          "Cancel changes to this Term's Class Schedule?", "Cancel changes to this Term's Class Schedule?"},
         "Algebra II|Biology", EditorOutcome::Cancelled},
        {"OneDayTermEmptyNameAndTakenName", {},
         [](FrmCourseSchedule& w) {
             w.setTermEnd(w.tempTermStartDate);
             w.click("ButtonOK");
             w.setTermEnd(w.tempTermStartDate + 1);
             w.type("TextBoxTermName", "  ");
             w.click("ButtonOK");
             w.type("TextBoxTermName", "Summer 2026");
             w.click("ButtonOK");
             w.type("TextBoxTermName", "Fall 2026");  // its own name passes in an edit
             w.click("ButtonOK");
             EXPECT_FALSE(w.visible);
         },
         {"The Term End Date must be later then the Term Start Date.", "Enter a name for the Term.",
          "There is already a Term with this name."},
         "Algebra|Biology", EditorOutcome::Saved},
        // Delete of a class in an edit asks twice; the delete sets no change flag, so Cancel
        // asks nothing and drops it.
        {"ClassDeleteAsksTwice", {MessageAnswer::Yes, MessageAnswer::Yes},
         [](FrmCourseSchedule& w) {
             w.click("ButtonEditClass");
             w.click("ButtonDeleteClass");
             EXPECT_EQ(w.tempClassNameArray[0], "DELETED RECORD");
             w.click("ButtonCancel");
         },
         {"Delete this class?", "Are you sure you want to Delete 'Algebra'? If you have assignments for 'Algebra', "
                                "they will also be Deleted."},
         "Biology", EditorOutcome::Cancelled},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Schedule schedule;
        const std::string before = schedule.dataFile("Classes.txt");
        schedule.fake.messages.answers.assign(c.answers.begin(), c.answers.end());
        std::string lines;
        std::optional<EditorOutcome> outcome;
        schedule.run([](auto& s) { pickTerm(s, "Fall 2026", "ButtonEdit"); },
                     [&](FrmCourseSchedule& w) {
                         c.edit(w);
                         for (const std::string& item : w.ComboBoxClassList->items) lines += (lines.empty() ? "" : "|") + item;
                         outcome = w.outcome();
                     });
        EXPECT_EQ(schedule.messageTexts(), c.messages);
        EXPECT_EQ(lines, c.classList);
        EXPECT_EQ(outcome, c.outcome);
        if (c.outcome != EditorOutcome::Saved) {
            EXPECT_EQ(schedule.dataFile("Classes.txt"), before);
        }
    }
}

// A new term's name comes from the month it starts in, and it ends 70 days on.
TEST(ClassSchedule, ProposesTheSeasonByMonthAndSeventyDays) {
    const char* seasons[] = {"Winter", "Spring", "Spring", "Spring", "Summer", "Summer",
                             "Summer", "Fall",   "Fall",   "Fall",   "Winter", "Winter"};
    Schedule schedule;
    FrmCourseSchedule& window = schedule.window->editors->courseSchedule();
    for (int month = 1; month <= 12; ++month) {
        schedule.fake.clock.set(2027, month, 31 - (month == 2 ? 3 : 1));
        window.editMode = EditMode::New;
        window.Form_Activate();
        const Date today = schedule.fake.clock.today();
        EXPECT_EQ(window.TextBoxTermName->text, std::string(seasons[month - 1]) + " 2027") << month;
        EXPECT_EQ(window.tempTermEndDate, today + 70);
        EXPECT_EQ(window.tempTermStart, schedule.fake.locale.shortDate(today));
        EXPECT_EQ(window.TextboxTermEnd->text, schedule.fake.locale.longDate(today + 70));
    }
    // The first run: nothing to edit or make active.
    LoadedMainWindow empty;
    empty.load();
    empty.fake.windowing.modalUsers["frmSelectCourseSchedule"].push_back([](Form& form) {
        EXPECT_FALSE(form.c("ButtonEdit").enabled);
        EXPECT_FALSE(form.c("ButtonActive").enabled);
        form.click("ButtonCancel");
    });
    empty.window->click(empty.window->ui.MenuClassSchedule.key());
    EXPECT_EQ(empty.fake.windowing.log.back(), "modal frmSelectCourseSchedule");
}

// The window lives on between terms, yet each showing starts with its own classes: a new
// term's class panel is empty after a class of another term was opened, and one based on
// a term lists that term's classes with the panel empty too.
TEST(ClassSchedule, EachShowingStartsWithItsOwnClassPanel) {
    Schedule schedule;
    const auto panelOf = [](FrmCourseSchedule& w) {
        return w.TextBoxClassName->text + "|" + w.TextBoxClassNotes->text + "|" +
               (w.TextBoxClassName->enabled ? "open" : "shut");
    };
    std::vector<std::string> panels, classes;
    const auto look = [&](FrmCourseSchedule& w) {
        panels.push_back(panelOf(w));
        classes.push_back(w.ComboBoxClassList->text + "/" + std::to_string(w.ComboBoxClassList->items.size()));
    };
    schedule.run([](auto& s) { pickTerm(s, "Fall 2026", "ButtonEdit"); },
                 [&](FrmCourseSchedule& w) {
                     w.click("ButtonEditClass");
                     w.type("TextBoxClassNotes", "Chapter 4");
                     look(w);
                     w.click("ButtonCancelClass");
                     w.click("ButtonCancel");
                 });
    schedule.run([](auto& s) { s.click("ButtonNew"); }, [&](FrmCourseSchedule& w) {
        look(w);
        w.hide();
    });
    schedule.run([](auto& s) { pickTerm(s, "Summer 2026", "ButtonNew", true); }, [&](FrmCourseSchedule& w) {
        look(w);
        w.hide();
    });
    EXPECT_EQ(panels, (std::vector<std::string>{"Algebra|Chapter 4|open", "||shut", "||shut"}));
    EXPECT_EQ(classes, (std::vector<std::string>{"Algebra/2", "/0", "Chemistry/1"}));
}

// The class panel from the keyboard: the arrows move the grid's ring from the colour the
// choice holds, Enter chooses, and Enter in the class name is the panel's OK, after which
// Enter and Escape belong to the window's own OK and Cancel again.
TEST(ClassSchedule, TheClassPanelAndItsColourGridTakeTheKeys) {
    Schedule schedule;
    std::vector<std::string> seen;
    schedule.run([](auto& s) { s.click("ButtonNew"); }, [&](FrmCourseSchedule& w) {
        w.click("ButtonAddClass");
        seen.push_back(w.defaultButton + " " + w.cancelButton);
        w.type("TextBoxClassName", "Poetry");
        w.focusTo("picColorGrid");
        const int white = w.KeyboardColorCell;
        for (int key : {kKeyRight, kKeyDown, kKeyReturn}) w.pressKey(key);
        seen.push_back(std::to_string(w.KeyboardColorCell - white) + " " + w.BackColorName);
        w.focusTo("TextBoxClassName");
        w.pressKey(kKeyReturn);
        seen.push_back(w.ComboBoxClassList->text + " " + w.defaultButton + " " + w.cancelButton);
        w.hide();
    });
    const ColorVocabulary& colors = standardColors();
    int white = 0;
    for (int n = 1; n <= colors.ColorNames.count(); ++n)
        if (colors.ColorNames(n) == "White") white = n;
    ASSERT_GT(white, 0);
    EXPECT_EQ(seen, (std::vector<std::string>{"ButtonOKClass ButtonCancelClass",
                                              "15 " + colors.ColorNames(white + 15),
                                              "Poetry ButtonOK ButtonCancel"}));
    // The ring stays inside the grid.
    EXPECT_EQ(ColorGridKeyStep(1, kKeyLeft), 1);
    EXPECT_EQ(ColorGridKeyStep(14, kKeyRight), 15);
    EXPECT_EQ(ColorGridKeyStep(130, kKeyDown), 130);
    EXPECT_EQ(ColorGridKeyStep(5, kKeyUp), 5);
    EXPECT_EQ(ColorGridKeyStep(70, kKeyEnd), 140);
}

// The grid's hit function and its inverse agree on every colour, and miss outside.
TEST(ClassSchedule, ColorGridCellsRoundTrip) {
    for (int n = 1; n <= 140; ++n) {
        const auto [x, y] = ColorGridCellOrigin(n);
        EXPECT_EQ(ColorGridCellAt(x, y), n);
        EXPECT_EQ(ColorGridCellAt(x + 149, y + 149), n);
    }
    EXPECT_EQ(ColorGridCellOrigin(15), (std::pair<int, int>{0, 150}));
    EXPECT_EQ(ColorGridCellAt(14 * 150, 0), 0);
    EXPECT_EQ(ColorGridCellAt(0, 10 * 150), 0);
    EXPECT_EQ(ColorGridCellAt(-1, 0), 0);
}

// The five editors are loaded hidden with the main window, in their order, and closed
// last first when it unloads, whatever they would answer their close box.
TEST(ClassSchedule, EditorsLiveFromTheLoadToTheUnload) {
    Schedule schedule;
    std::string names;
    for (const Form* editor : schedule.window->editors->windows()) {
        names += editor->name() + (editor->visible ? "+ " : " ");
    }
    EXPECT_EQ(names, "frmAssignment frmSelectCourseSchedule frmCourseSchedule FrmTask frmEvent ");
    schedule.fake.windowing.log.clear();
    schedule.fake.windowing.close(*schedule.window, UnloadMode::Code);
    EXPECT_EQ(schedule.fake.windowing.log,
              (std::vector<std::string>{"close frmEvent", "close FrmTask", "close frmCourseSchedule",
                                        "close frmSelectCourseSchedule", "close frmAssignment", "close frmMain"}));
}

}  // namespace
}  // namespace qh
