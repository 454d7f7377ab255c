// What the student sees is what the planner holds: the real widgets of every window are
// driven through their handlers' refusals and corrections, and after each gesture every
// control's widget shows exactly the state of its model.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QKeySequence>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>

#include "platform/qt/form_view.h"
#include "platform/qt/qt_text.h"
#include "rendered_planner.h"

namespace qh {
namespace {

std::string shown(bool value) { return value ? "true" : "false"; }

// Each user-changeable property of each control of the window on which widget and model
// differ, as "window control property: widget ..., model ...".
std::vector<std::string> disagreements(FormWindow& frame) {
    Form& form = frame.form();
    std::vector<std::string> found;
    const auto differ = [&](const std::string& key, const char* property, const std::string& widget,
                            const std::string& model) {
        if (widget != model)
            found.push_back(form.name() + " " + key + " " + property + ": widget " + widget + ", model " + model);
    };
    for (const std::string& key : form.order()) {
        QWidget* widget = frame.widget(key);
        if (!widget) continue;
        const Control& control = form.c(key);
        if (auto* edit = qobject_cast<QLineEdit*>(widget)) {
            differ(key, "text", str(edit->text()), control.text);
        } else if (auto* text = qobject_cast<QPlainTextEdit*>(widget)) {
            differ(key, "text", str(text->toPlainText()), str(forDisplay(control.text)));
        } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
            differ(key, "index", std::to_string(combo->currentIndex()), std::to_string(control.listIndex));
            differ(key, "lines", std::to_string(combo->count()), std::to_string(control.items.size()));
        } else if (auto* list = qobject_cast<QListWidget*>(widget)) {
            differ(key, "index", std::to_string(list->currentRow()), std::to_string(control.listIndex));
            std::string marked;
            for (QListWidgetItem* item : list->selectedItems()) marked += std::to_string(list->row(item)) + " ";
            differ(key, "selection", marked, control.listIndex < 0 ? "" : std::to_string(control.listIndex) + " ");
        } else if (auto* button = qobject_cast<QAbstractButton*>(widget); button && button->isCheckable()) {
            differ(key, "checked", shown(button->isChecked()), shown(control.checked));
        } else if (auto* bar = qobject_cast<QScrollBar*>(widget)) {
            differ(key, "value", std::to_string(bar->value()), std::to_string(control.value));
        }
    }
    return found;
}

std::string joined(const std::vector<std::string>& lines) {
    std::string all;
    for (const std::string& line : lines) all += line + "\n";
    return all;
}

// Fails, naming window, control and property, wherever a widget of the planner's windows
// differs from its model after `step`.
void expectAgreement(RenderedPlanner& run, const std::string& step) {
    for (Form* form : run.forms())
        if (FormWindow* frame = run.renderer.windowOf(*form)) {
            const std::vector<std::string> wrong = disagreements(*frame);
            EXPECT_TRUE(wrong.empty()) << "after " << step << ":\n" << joined(wrong);
        }
}

// Every gesture that changes a widget's own state, made on each visible, enabled control
// of the window while it shows: ticks (twice), lines of each list by key and by click, a
// page of each scroll bar, letters typed and the text removed again. `after` hears each.
void driveEveryControl(FormWindow& frame, const std::function<void(const std::string&)>& after) {
    Form& form = frame.form();
    const std::vector<std::string> keys = form.order();
    for (const std::string& key : keys) {
        QWidget* widget = frame.widget(key);
        const auto usable = [&] { return form.visible && widget->isVisible() && widget->isEnabled(); };
        if (!widget || !usable()) continue;
        const auto step = [&](const std::string& gesture) { after(form.name() + " " + key + " " + gesture); };
        if (auto* button = qobject_cast<QAbstractButton*>(widget); button && button->isCheckable()) {
            for (int click = 1; click <= 2 && usable(); ++click) {
                QTest::mouseClick(button, Qt::LeftButton);
                step("click " + std::to_string(click));
            }
        } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
            for (Qt::Key key : {Qt::Key_End, Qt::Key_Home, Qt::Key_Down}) {
                if (!usable()) break;
                combo->setFocus();
                QTest::keyClick(combo, key);
                step(QKeySequence(key).toString().toStdString());
            }
        } else if (auto* list = qobject_cast<QListWidget*>(widget)) {
            for (int row = 0; row < std::min(list->count(), 3) && usable(); ++row) {
                QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(row)).center());
                step("row " + std::to_string(row));
            }
        } else if (auto* bar = qobject_cast<QScrollBar*>(widget)) {
            bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
            step("page down");
        } else if (auto* edit = qobject_cast<QLineEdit*>(widget); edit && !edit->isReadOnly()) {
            edit->setFocus();
            QTest::keyClicks(edit, "9z");
            step("typed");
            if (!usable()) continue;
            edit->selectAll();
            QTest::keyClick(edit, Qt::Key_Backspace);
            step("emptied");
        } else if (auto* text = qobject_cast<QPlainTextEdit*>(widget); text && !text->isReadOnly()) {
            text->setFocus();
            QTest::keyClicks(text, "n");
            step("typed");
        }
    }
}

// Every window, every control: the refusals and corrections of the handlers (a tick
// taken back, such as Done ticked on an assignment without a study session, a line put
// back, a text cut or refused) leave widget and model alike, from the window's opening on.
TEST(WidgetModelAgreement, EveryGestureOnEveryWindowLeavesWidgetAndModelAlike) {
    RenderedPlanner run;
    const auto drive = [&](FormWindow& frame) {
        expectAgreement(run, frame.form().name() + " shown");
        driveEveryControl(frame, [&](const std::string& step) { expectAgreement(run, step); });
        frame.form().hide();
    };
    const struct {
        const char* name;
        std::function<void()> open;
    } windows[] = {
        {"frmAssignment", [&] { run.window->click(run.window->ui.ButtonNewAssignment.key()); }},
        {"FrmTask", [&] { run.window->NewTask(); }},
        {"frmEvent", [&] { run.window->NewEvent(); }},
        {"frmSelectCourseSchedule", [&] { run.window->click(run.window->ui.ButtonSelectTerm.key()); }},
    };
    int driven = 0;
    for (const auto& window : windows) {
        run.onScreen(window.name, [&](FormWindow& frame) {
            ++driven;
            drive(frame);
        });
        window.open();
    }
    // The term window behind the selection's New, and the main window itself.
    run.fake.windowing.modalUsers["frmSelectCourseSchedule"].push_back([](Form& form) { form.click("ButtonEdit"); });
    run.onScreen("frmCourseSchedule", [&](FormWindow& frame) {
        ++driven;
        frame.form().click("ButtonEditClass");
        run.renderer.syncAll();
        drive(frame);
    });
    run.window->click(run.window->ui.ButtonSelectTerm.key());
    driveEveryControl(*run.renderer.windowOf(*run.window), [&](const std::string& step) { expectAgreement(run, step); });
    EXPECT_EQ(driven, 5);
}

}  // namespace
}  // namespace qh
