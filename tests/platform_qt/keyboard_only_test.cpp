// The planner from the keyboard alone, under the real renderer: a new assignment made,
// saved, found in the list, opened, done after a study session and saved again, with key
// presses only; the focus is on a control the student can see after every key.
#include <gtest/gtest.h>

#include <QApplication>
#include <QPointer>
#include <QTest>

#include "editors/editor_windows.h"
#include "editors/frm_assignment.h"
#include "editors/frm_course_schedule.h"
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

TEST(KeyboardOnly, AnAssignmentIsMadeFoundOpenedDoneAndSavedWithKeysAlone) {
    RenderedPlanner run;
    std::vector<std::string> opened;
    run.onScreen("frmAssignment", [&](FormWindow&) {
        opened.push_back(focusName());
        EXPECT_EQ(unseenFocus(), "");
        ASSERT_EQ(focusName(), "ComboClassNameList");
        press(Qt::Key_Down);  // Algebra
        tabTo("TextBoxDescription");
        typeText("Worksheet");
        press(Qt::Key_Return);  // OK, the default button
    });
    QWidget* start = QApplication::focusWidget();
    ASSERT_NE(start, nullptr);
    QTest::keyClick(start, Qt::Key_N, Qt::ControlModifier);
    ASSERT_EQ(run.window->editors->assignment().visible, false);

    run.onScreen("frmAssignment", [&](FormWindow&) {
        opened.push_back(focusName());
        // The study sessions lie below a small window's edge until the link shows them.
        const FrmAssignment& editor = run.window->editors->assignment();
        if (editor.LabelViewSessions->caption == "Show Study Sessions") {
            tabTo("LabelViewSessions");
            press(Qt::Key_Space);
        }
        EXPECT_EQ(editor.LabelViewSessions->caption, "Hide Study Sessions");
        tabTo("ButtonSessionAdd");
        press(Qt::Key_Space);
        tabTo("CheckBoxDone");
        press(Qt::Key_Space);
        press(Qt::Key_Return);
    });
    tabTo("picGrid");
    press(Qt::Key_Down);
    press(Qt::Key_Return);

    EXPECT_EQ(opened, (std::vector<std::string>{"ComboClassNameList", "ComboClassNameList"}));
    const std::string assignments = run.dataFile("Assignments.txt");
    EXPECT_NE(assignments.find("Worksheet"), std::string::npos) << assignments;
    EXPECT_NE(assignments.find("True"), std::string::npos) << assignments;
    EXPECT_EQ(run.messageTexts(), std::vector<std::string>{});
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
    run.window->click("ButtonSelectTerm");
    // 21 November and 70 days: 30 January 2027; a day, a week and a month on.
    EXPECT_EQ(seen, (std::vector<std::string>{"picCalendar", "ButtonTermEnd window open",
                                              "Sunday, March 7, 2027"}));
    EXPECT_FALSE(schedule.visible);
}

}  // namespace
}  // namespace qh
