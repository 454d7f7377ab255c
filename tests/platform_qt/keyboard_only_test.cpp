// The planner from the keyboard alone, under the real renderer: a new assignment made,
// saved, found in the list, opened, done after a study session and saved again, and the
// same for a task and an event, and a term with two coloured classes, with key presses
// only; the focus is on a control the student can see after every key.
#include <gtest/gtest.h>

#include <sstream>

#include <QApplication>
#include <QKeySequence>
#include <QPointer>
#include <QTest>

#include "editors/editor_windows.h"
#include "editors/frm_course_schedule.h"
#include "record_store/color_vocabulary.h"
#include "rendered_planner.h"

namespace qh {
namespace {

// What is wrong with where the focus is: nothing, or why no one can see it.
std::string unseenFocus() {
    QWidget* focus = QApplication::focusWidget();
    if (!focus) return "no widget has the focus";
    const std::string name = focus->window()->objectName().toStdString() + " " + focus->objectName().toStdString();
    if (!focus->isVisible()) return name + " is hidden";
    const QRect onWindow(focus->mapTo(focus->window(), QPoint(0, 0)), focus->size());
    if (!focus->window()->rect().contains(onWindow.center())) return name + " lies beyond the window's edge";
    return {};
}

std::string focusName() {
    QWidget* focus = QApplication::focusWidget();
    return focus ? focus->objectName().toStdString() : std::string();
}

// A key on the focused widget, then what the event loop does with it; fails when the
// focus lands where no one sees it, in the window or, when the key closed that, its owner.
void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* focus = QApplication::focusWidget();
    ASSERT_NE(focus, nullptr);
    QPointer<QWidget> window = focus->window();
    QTest::keyClick(focus, key, modifiers);
    QApplication::processEvents();
    if (!window || !window->isVisible()) return;  // the owner takes the focus back
    const std::string wrong = unseenFocus();
    EXPECT_TRUE(wrong.empty()) << "after " << QTest::toString(key) << ": " << wrong;
}

void typeText(const char* text) {
    QWidget* focus = QApplication::focusWidget();
    ASSERT_NE(focus, nullptr);
    QTest::keyClicks(focus, text);
}

// Tab until the control `key` has the focus; fails after a round without it.
void tabTo(const std::string& key) {
    for (int presses = 0; presses < 60 && focusName() != key; ++presses) press(Qt::Key_Tab);
    ASSERT_EQ(focusName(), key);
}

// A keyboard-only script, step by step: ">Name" Tabs to the control, "=Name" expects the
// focus on it, "'text" types the text, anything else is a key ("Ctrl+4", "Return").
void play(const std::vector<std::string>& script) {
    for (const std::string& step : script) {
        SCOPED_TRACE(step);
        const std::string rest = step.substr(1);
        if (step[0] == '>') {
            tabTo(rest);
        } else if (step[0] == '=') {
            EXPECT_EQ(focusName(), rest);
        } else if (step[0] == '\'') {
            typeText(rest.c_str());
        } else {
            const QKeyCombination key = QKeySequence::fromString(QString::fromStdString(step))[0];
            ASSERT_NE(key.key(), Qt::Key_unknown) << step;
            press(key.key(), key.keyboardModifiers());
        }
        if (::testing::Test::HasFatalFailure()) return;
    }
}

int colourNumber(const std::string& name) {
    const ColorVocabulary& colors = standardColors();
    for (int n = 1; n <= colors.ColorNames.count(); ++n)
        if (colors.ColorNames(n) == name) return n;
    return 0;
}

// The line of a record file that holds `text`; empty when none does.
std::string lineWith(const std::string& file, const std::string& text) {
    std::istringstream lines(file);
    for (std::string line; std::getline(lines, line);)
        if (line.find(text) != std::string::npos) return line;
    return {};
}

// A record made and changed with the keyboard alone: the main window's keys, each window
// that opens on the way with its own keys (in the order they show, each opening with the
// focus where the student sees it), and what the record file then holds on the line of
// the record.
TEST(KeyboardOnly, AnAssignmentATaskAnEventAndATermWithTwoClassesAreMadeWithKeysAlone) {
    const int white = colourNumber("White"), black = colourNumber("Black");
    const auto named = [](int n) { return standardColors().ColorNames(n); };
    const struct {
        const char* what;
        std::vector<std::pair<std::string, std::vector<std::string>>> windows;
        std::vector<std::string> main;
        const char* file;
        std::string record;
        std::vector<std::string> holds;
    } flows[] = {
        // Editing opens the large window: the study sessions are within Tab's reach.
        {"an assignment made, found, opened and done after a study session",
         {{"frmAssignment", {"=ComboClassNameList", "Down", ">TextBoxDescription", "'Worksheet", "Return"}},
          {"frmAssignment", {"=ComboClassNameList", ">ButtonSessionAdd", "Space", ">CheckBoxDone", "Space", "Return"}}},
         {"Ctrl+N", ">picGrid", "Down", "Return"},
         "Assignments.txt", "Worksheet", {"True"}},
        {"a task made, found, opened and done",
         {{"FrmTask", {"=TextBoxDescription", "'Read chapter 6", "Return"}},
          {"FrmTask", {"=TextBoxDescription", ">CheckBoxDone", "Space", "Return"}}},
         {"Ctrl+4", "Ctrl+N", "=picGrid", "Home", "Return"},
         "Tasks.txt", "Read chapter 6", {"True"}},
        {"an event made, found, opened and made weekly by the arrows",
         {{"frmEvent", {"=TextBoxEvent", "'Band practice", "Return"}},
          {"frmEvent", {"=TextBoxEvent", ">LabelViewRecurring", "Space", ">RadioRepeatNone", "Down", "=RadioRepeatDaily",
                        ">CheckBoxMonday", "Space", "Return"}}},
         {"Ctrl+5", "Ctrl+N", "=picGrid", "Home", "Return"},
         "Events.txt", "Band practice", {"Day", "TFFFFFF"}},
        {"a term with two classes and their colours",
         {{"frmSelectCourseSchedule", {">ButtonNew", "Space"}},
          {"frmCourseSchedule",
           {">ButtonAddClass", "Space", "=TextBoxClassName", "'Chemistry", ">picColorGrid", "Right", "Down", "Return",
            ">OptionBackColor", "Down", "=OptionForeColor", "Shift+Tab", "=picColorGrid", "Left", "Space",
            ">TextBoxClassName", "Return", ">ButtonAddClass", "Space", "'Biology", ">picColorGrid", "Right", "Return",
            ">TextBoxClassName", "Return", "=ButtonOK", "Return"}}},
         {">ButtonSelectTerm", "Space"},
         "Classes.txt", "Chemistry", {named(white + 15), named(black - 1)}},
    };
    for (const auto& flow : flows) {
        SCOPED_TRACE(flow.what);
        RenderedPlanner run;
        std::vector<std::string> shown;
        for (const auto& [name, keys] : flow.windows)
            run.onScreen(name, [&shown, name = name, keys = keys](FormWindow&) {
                shown.push_back(name);
                EXPECT_EQ(unseenFocus(), "");
                play(keys);
            });
        play(flow.main);
        EXPECT_EQ(shown.size(), flow.windows.size());
        const std::string record = lineWith(run.dataFile(flow.file), flow.record);
        ASSERT_FALSE(record.empty()) << run.dataFile(flow.file);
        for (const std::string& text : flow.holds)
            EXPECT_NE(record.find(text), std::string::npos) << text << " in " << record;
        EXPECT_EQ(run.messageTexts(), std::vector<std::string>{});
    }
}

// The date picker from the keyboard: the small button opens it, the arrows, Page Down and
// Home move its day, Escape closes it alone and Enter picks, each giving the focus back
// to the field's button; Escape then cancels the window.
TEST(KeyboardOnly, TheDatePickerTakesItsKeysAndEscapeClosesOnlyIt) {
    RenderedPlanner run;
    std::vector<std::string> seen;
    FrmCourseSchedule& schedule = run.window->editors->courseSchedule();
    run.fake.windowing.modalUsers["frmSelectCourseSchedule"].push_back([](Form& form) { form.click("ButtonNew"); });
    run.onScreen("frmCourseSchedule", [&](FormWindow&) {
        tabTo("ButtonTermEnd");
        press(Qt::Key_Space);
        seen.push_back(focusName());
        press(Qt::Key_Escape);
        seen.push_back(focusName() + (schedule.visible ? " window open" : " window closed"));
        press(Qt::Key_Space);
        for (Qt::Key key : {Qt::Key_Right, Qt::Key_Down, Qt::Key_PageDown}) press(key);
        press(Qt::Key_Return);
        seen.push_back(schedule.TextboxTermEnd->text);
        press(Qt::Key_Escape);
    });
    run.window->click(run.window->ui.ButtonSelectTerm.key());
    // 21 November and 70 days: 30 January 2027; a day, a week and a month on.
    EXPECT_EQ(seen, (std::vector<std::string>{"picCalendar", "ButtonTermEnd window open",
                                              "Sunday, March 7, 2027"}));
    EXPECT_FALSE(schedule.visible);
}

}  // namespace
}  // namespace qh
