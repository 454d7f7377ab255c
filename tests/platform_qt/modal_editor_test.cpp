// An editor window shown modal by the real renderer: a press on its date field opens the
// picker where the field's table puts it, a click on a day writes the field and closes the
// picker, and OK or the close box ends the modal showing.
#include <gtest/gtest.h>

#include <QCloseEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "editors/editor_host.h"
#include "editors/frm_assignment.h"
#include "editors/frm_course_schedule.h"
#include "platform/qt/form_view.h"
#include "platform/qt/qt_canvas.h"
#include "qt_test_support.h"

namespace qh {
namespace {

class Host : public EditorHost {
public:
    Form& ownerWindow() override { return owner; }
    Date clickedDate() const override { return dateFromYmd(2026, 11, 21); }
    std::string startDayOfWeek() const override { return "Sunday"; }
    void refresh(RefreshReason) override {}
    void selectTerm(const std::string&) override {}
    void highlightRow(int, bool) override {}
    Form owner{"frmMain"};
};

// An editor of the planner on the fake platform, drawn for real and shown modal by the
// renderer, with the student's gestures made once it is up.
class ModalEditor : public ::testing::Test {
protected:
    ModalEditor() {
        testApplication();
        renderer.quitWhenLastWindowCloses = false;
    }
    // Shows `window` new and modal until the gestures of `user` end the showing, which
    // leaves the window hidden and no longer modal.
    void showModal(Form& window, const std::function<void(FormWindow&)>& user) {
        QObject scope;
        QTimer::singleShot(0, &scope, [&] { user(*renderer.windowOf(window)); });
        QTimer::singleShot(5000, &scope, [&] { window.hide(); });  // a safety net, never reached
        renderer.showModal(window, nullptr);
        EXPECT_FALSE(window.visible);
        EXPECT_FALSE(renderer.windowOf(window)->isVisible());
        EXPECT_FALSE(renderer.windowOf(window)->isModal());
    }

    FakePlatform fake;
    QtCanvasFactory canvases;
    Platform platform = withCanvases(fake, canvases);
    Host host;
    FormRenderer renderer;
};

TEST_F(ModalEditor, PicksADateWithTheMouseAndClosesWithOK) {
    FrmCourseSchedule window(platform, host);
    window.Form_Load();
    window.editMode = EditMode::New;
    bool pickerShown = false;
    QPoint pickerAt;
    showModal(window, [&](FormWindow& shown) {
        QTest::mouseClick(shown.widget("TextboxTermEnd"), Qt::LeftButton);
        QWidget* calendar = shown.widget("picCalendar");
        pickerShown = calendar->isVisible();
        pickerAt = calendar->pos();
        // The end opens on 30 January 2027; 10 February: the month arrow once, then the cell.
        QTest::mousePress(shown.widget("LabelCalMonthUp"), Qt::LeftButton);
        QTest::mouseRelease(shown.widget("LabelCalMonthUp"), Qt::LeftButton);
        const int cell = CellForDate(window.datePicker().cells().firstCell, dateFromYmd(2027, 2, 10));
        ASSERT_GE(cell, 0);
        QTest::mouseClick(shown.widget("LabelCalDate(" + std::to_string(cell) + ")"), Qt::LeftButton);
        QTest::mouseClick(shown.widget("ButtonOK"), Qt::LeftButton);
    });
    EXPECT_TRUE(pickerShown);
    EXPECT_EQ(pickerAt, QPoint(3720 / 15, 1275 / 15));
    EXPECT_EQ(window.tempTermEndDate, dateFromYmd(2027, 2, 10));
    EXPECT_EQ(window.TextboxTermEnd->text, "Wednesday, February 10, 2027");
    EXPECT_EQ(window.outcome(), EditorOutcome::Saved);
    EXPECT_FALSE(window.c("picCalendar").visible);
}

// The assignment editor under the renderer: the label's click makes the real window large,
// a session added shows its line, a click on that line enables its Delete, and the close
// box, refused by the window, cancels through its question.
TEST_F(ModalEditor, AssignmentEditorGrowsAddsASessionAndCancelsByTheCloseBox) {
    FrmAssignment window(platform, host);
    window.Form_Load();
    window.editMode = EditMode::New;
    window.FormSmall = true;
    window.tempClassNameArray = {"Algebra"};
    window.tempAssignmentClassLinkArray = {"1"};
    int smallHeight = 0, largeHeight = 0;
    bool deleteEnabled = false;
    std::string line;
    showModal(window, [&](FormWindow& shown) {
        smallHeight = shown.client()->height();
        QTest::mouseClick(shown.widget("LabelViewSessions"), Qt::LeftButton);
        largeHeight = shown.client()->height();
        QTest::mouseClick(shown.widget("ButtonSessionAdd"), Qt::LeftButton);
        auto* list = qobject_cast<QListWidget*>(shown.widget("ListBoxStudySessions"));
        if (list && list->count() == 1) {
            line = list->item(0)->text().toStdString();
            QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
        }
        deleteEnabled = shown.widget("ButtonSessionDelete")->isEnabled();
        QCloseEvent close;
        QApplication::sendEvent(&shown, &close);
    });
    EXPECT_EQ(smallHeight, (kAssignmentSmallHeight - Form::kFrameHeight) / 15);
    EXPECT_EQ(largeHeight, (kAssignmentLargeHeight - Form::kFrameHeight) / 15);
    EXPECT_EQ(line, "00 : 30    Saturday, Nov 21, 2026");
    EXPECT_TRUE(deleteEnabled);
    ASSERT_EQ(fake.messages.shown.size(), 1u);
    EXPECT_EQ(fake.messages.shown[0].text, "Cancel this Assignment?");
    EXPECT_EQ(window.outcome(), EditorOutcome::Cancelled);
}

}  // namespace
}  // namespace qh
