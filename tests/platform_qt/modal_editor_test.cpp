// An editor window shown modal by the real renderer: a press on its date field opens the
// picker where the field's table puts it, a click on a day writes the field and closes the
// picker, and OK ends the modal showing.
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
#include "platform/fake/fake_platform.h"
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

TEST(ModalEditor, PicksADateWithTheMouseAndClosesWithOK) {
    testApplication();
    FakePlatform fake;
    QtCanvasFactory canvases;
    Platform platform{fake.environment, fake.clock, fake.locale, fake.messages, fake.files,
                      fake.processes,   fake.dialogs, fake.windowing, canvases, fake.calendars};
    Host host;
    FrmCourseSchedule window(platform, host);
    window.Form_Load();
    window.editMode = EditMode::New;
    FormRenderer renderer;
    renderer.quitWhenLastWindowCloses = false;

    bool pickerShown = false;
    QPoint pickerAt;
    QObject scope;
    QTimer::singleShot(0, &scope, [&] {
        FormWindow& shown = *renderer.windowOf(window);
        QWidget* field = shown.widget("TextboxTermEnd");
        QTest::mouseClick(field, Qt::LeftButton);
        QWidget* calendar = shown.widget("picCalendar");
        pickerShown = calendar->isVisible();
        pickerAt = calendar->pos();
        // The end opens on 30 January 2027; 10 February: the month arrow once, then the cell.
        QTest::mousePress(shown.widget("LabelCalMonthUp"), Qt::LeftButton);
        QTest::mouseRelease(shown.widget("LabelCalMonthUp"), Qt::LeftButton);
        const int cell = CellForDate(window.datePicker().cells().firstCell, dateFromYmd(2027, 2, 10));
        if (cell < 0) {
            window.hide();
            return;
        }
        QTest::mouseClick(shown.widget("LabelCalDate(" + std::to_string(cell) + ")"), Qt::LeftButton);
        QTest::mouseClick(shown.widget("ButtonOK"), Qt::LeftButton);
    });
    QTimer::singleShot(5000, &scope, [&] { window.hide(); });  // a safety net, never reached
    renderer.showModal(window, nullptr);

    EXPECT_TRUE(pickerShown);
    EXPECT_EQ(pickerAt, QPoint(3720 / 15, 1275 / 15));
    EXPECT_EQ(window.tempTermEndDate, dateFromYmd(2027, 2, 10));
    EXPECT_EQ(window.TextboxTermEnd->text, "Wednesday, February 10, 2027");
    EXPECT_EQ(window.outcome(), EditorOutcome::Saved);
    EXPECT_FALSE(window.visible);
    EXPECT_FALSE(window.c("picCalendar").visible);
}

// The assignment editor under the renderer: the label's click makes the real window large,
// a session added shows its line, a click on that line enables its Delete, and the close
// box, refused by the window, cancels through its question.
TEST(ModalEditor, AssignmentEditorGrowsAddsASessionAndCancelsByTheCloseBox) {
    testApplication();
    FakePlatform fake;
    QtCanvasFactory canvases;
    Platform platform{fake.environment, fake.clock, fake.locale, fake.messages, fake.files,
                      fake.processes,   fake.dialogs, fake.windowing, canvases, fake.calendars};
    Host host;
    FrmAssignment window(platform, host);
    window.Form_Load();
    window.editMode = EditMode::New;
    window.FormSmall = true;
    window.tempClassNameArray = {"Algebra"};
    window.tempAssignmentClassLinkArray = {"1"};
    FormRenderer renderer;
    renderer.quitWhenLastWindowCloses = false;

    int smallHeight = 0, largeHeight = 0;
    bool deleteEnabled = false;
    std::string line;
    QObject scope;
    QTimer::singleShot(0, &scope, [&] {
        FormWindow& shown = *renderer.windowOf(window);
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
    QTimer::singleShot(5000, &scope, [&] { window.hide(); });  // a safety net, never reached
    renderer.showModal(window, nullptr);

    EXPECT_EQ(smallHeight, (kAssignmentSmallHeight - Form::kFrameHeight) / 15);
    EXPECT_EQ(largeHeight, (kAssignmentLargeHeight - Form::kFrameHeight) / 15);
    EXPECT_EQ(line, "00 : 30    Saturday, Nov 21, 2026");
    EXPECT_TRUE(deleteEnabled);
    ASSERT_EQ(fake.messages.shown.size(), 1u);
    EXPECT_EQ(fake.messages.shown[0].text, "Cancel this Assignment?");
    EXPECT_EQ(window.outcome(), EditorOutcome::Cancelled);
    EXPECT_FALSE(window.visible);
}

}  // namespace
}  // namespace qh
