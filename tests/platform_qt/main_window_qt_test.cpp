// The main window as the real renderer shows it, driven as a user would: from the
// keyboard, through a screen reader's view of it, and in the look it takes on any desktop.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QProxyStyle>
#include <QStyle>
#include <QTest>
#include <QWheelEvent>

#include "editors/editor_windows.h"
#include "platform/fake/recording_canvas.h"
#include "platform/qt/control_widgets.h"
#include "platform/qt/form_view.h"
#include "platform/qt/pictures.h"
#include "platform/qt/qt_canvas.h"
#include "qt_test_support.h"
#include "list_view/list_fixture.h"
#include "support/main_window_fixture.h"

namespace qh {
namespace {

class MainWindowQt : public ::testing::Test {
protected:
    MainWindowQt() {
        testApplication();
        renderer.quitWhenLastWindowCloses = false;
        renderer.show(*window);
        frame = renderer.windowOf(*window);
        frame->activateWindow();
        QApplication::setActiveWindow(frame);
        (void)QTest::qWaitForWindowActive(frame);
    }
    QWidget* widget(const ControlRef& control) { return frame->widget(control.key()); }
    QWidget* widget(const ControlArrayRef& array, int index) { return frame->widget(array.key(index)); }
    void key(QWidget* target, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(target, key, modifiers);
    }

    LoadedMainWindow main;
    MainWindow* window = &main.load();  // the model needs no application
    const MainWindowControls& ui = window->ui;
    FormRenderer renderer;
    FormWindow* frame = nullptr;
};

// --- The keyboard ----------------------------------------------------------------------

TEST_F(MainWindowQt, TheCalendarTakesTheFocusAndMovesItsDayByTheKeys) {
    QWidget* calendar = widget(ui.calendar.picCalendar);
    calendar->setFocus();
    ASSERT_TRUE(calendar->hasFocus());
    const Date today = main.fake.clock.today();  // Saturday, November 21, 2026
    const struct {
        Qt::Key key;
        Date after;
    } steps[] = {{Qt::Key_Right, today + 1},        {Qt::Key_Down, today + 8},
                 {Qt::Key_Left, today + 7},         {Qt::Key_Up, today},
                 {Qt::Key_PageDown, today + 30},    {Qt::Key_PageUp, today},
                 {Qt::Key_PageUp, dateFromYmd(2026, 10, 21)}, {Qt::Key_Home, today}};
    for (const auto& step : steps) {
        key(calendar, step.key);
        EXPECT_EQ(window->state.ClickedDate, step.after) << QTest::toString(step.key);
    }
    // The keys stay with the calendar: no other control took the focus.
    EXPECT_TRUE(calendar->hasFocus());
    EXPECT_EQ(window->focusedControl, ui.calendar.picCalendar.key());
    // Its cells are named for a screen reader, today's as today.
    const int cell = CellForDate(FirstCellDate(2026, 11, window->state.StartDayOfWeek), today);
    EXPECT_EQ(widget(ui.calendar.LabelCalDate, cell)->accessibleName(), "Saturday, November 21, 2026, today, selected");
}

TEST_F(MainWindowQt, AWheelTurnOverADayCellStepsTheCalendarsMonth) {
    QWidget* cell = widget(ui.calendar.LabelCalDate, 30);
    const auto turn = [&](int eighths) {
        const QPointF at(5, 5);
        QWheelEvent event(at, cell->mapToGlobal(at), QPoint(), QPoint(0, eighths), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(cell, &event);
    };
    turn(120);  // a notch up: a month back
    EXPECT_EQ(window->state.ClickedDate, dateFromYmd(2026, 10, 21));
    turn(-60);  // half a notch of a touchpad does nothing yet, the other half steps
    EXPECT_EQ(window->state.ClickedDate, dateFromYmd(2026, 10, 21));
    turn(-60);
    EXPECT_EQ(window->state.ClickedDate, dateFromYmd(2026, 11, 21));
}

TEST_F(MainWindowQt, TheMenusHaveLettersAndTheUsualShortcutsChooseTheModes) {
    QStringList titles;
    for (QAction* action : frame->menuBar()->actions()) titles << action->text();
    EXPECT_EQ(titles.join("|").toStdString(), "&File|&Edit|&Options|&Help");
    QStringList file;
    for (QAction* action : frame->action("MenuFile")->menu()->actions())
        if (!action->isSeparator()) file << action->text() + "\t" + action->shortcut().toString();
    EXPECT_EQ(file.join("|").toStdString(),
              "&Today's Reminders\tCtrl+1|&Homework\tCtrl+2|&Study Sessions\tCtrl+3|T&asks\tCtrl+4|"
              "&Events\tCtrl+5|&Print Screen...\tCtrl+P|Export &for Printing\t|Export &iCalendar...\t|"
              "I&mport iCalendar...\t|E&xit\tCtrl+Q");

    const struct {
        Qt::Key key;
        Mode mode;
    } modes[] = {{Qt::Key_4, Mode::Tasks},
                 {Qt::Key_1, Mode::Reminders},
                 {Qt::Key_5, Mode::Events},
                 {Qt::Key_3, Mode::StudySessions},
                 {Qt::Key_2, Mode::Homework}};
    for (const auto& m : modes) {
        key(frame, m.key, Qt::ControlModifier);
        EXPECT_EQ(window->CurrentMode(), m.mode) << QTest::toString(m.key);
    }
    // Ctrl+N belongs to the one New entry the mode enables.
    EXPECT_EQ(frame->action(ui.MenuNewAssignment.key())->shortcut().toString(), "Ctrl+N");
    EXPECT_TRUE(frame->action(ui.MenuNewAssignment.key())->isEnabled());
    EXPECT_FALSE(frame->action(ui.MenuNewTask.key())->isEnabled());
}

TEST_F(MainWindowQt, TabVisitsEveryControlThatActsAndNoReadOnlyOrHiddenOne) {
    window->click(ui.MenuStudySessions.key());
    renderer.syncAll();
    std::vector<std::string> visited;
    widget(ui.calendar.picCalendar)->setFocus();
    for (int i = 0; i < 40; ++i) {
        QWidget* focused = QApplication::focusWidget();
        ASSERT_NE(focused, nullptr);
        const std::string name = focused->objectName().toStdString();
        if (!visited.empty() && name == visited.front()) break;
        visited.push_back(name);
        key(focused, Qt::Key_Tab);
    }
    for (const ControlRef* wanted :
         {&ui.calendar.picCalendar, &ui.picGrid, &ui.ButtonStart, &ui.ComboList, &ui.ComboDateRange, &ui.ComboGPA})
        EXPECT_NE(std::find(visited.begin(), visited.end(), wanted->key()), visited.end()) << wanted->key();
    for (const std::string& name : visited) {
        EXPECT_NE(name, ui.ButtonNewAssignment.key()) << "lies under the study panel";
        EXPECT_TRUE(name.rfind("TextBox", 0) != 0) << name << " is read only";
    }
}

// --- A screen reader's view ------------------------------------------------------------

bool needsName(QAccessible::Role role) {
    static constexpr QAccessible::Role named[] = {
        QAccessible::Button,       QAccessible::CheckBox,   QAccessible::RadioButton, QAccessible::ComboBox,
        QAccessible::EditableText, QAccessible::StaticText, QAccessible::Graphic,     QAccessible::List,
        QAccessible::ListItem,     QAccessible::ScrollBar,  QAccessible::MenuItem,    QAccessible::Table,
        QAccessible::Cell};
    return std::find(std::begin(named), std::end(named), role) != std::end(named);
}

// Every shown node that acts or informs, without a name: "path (role)".
void unnamedNodes(QAccessibleInterface* node, const QString& path, QStringList& found) {
    if (!node || node->state().invisible) return;
    const QString here = path + "/" + (node->object() ? node->object()->objectName() : QStringLiteral("?"));
    if (needsName(node->role()) && node->text(QAccessible::Name).trimmed().isEmpty())
        found << here + " (" + QString::number(int(node->role()), 16) + ")";
    for (int i = 0; i < node->childCount(); ++i) unnamedNodes(node->child(i), here, found);
}

TEST_F(MainWindowQt, EveryControlThatActsOrInformsHasAName) {
    // Each mode shows other panels; each editor the main window loaded shows its own.
    for (const ControlRef* mode :
         {&ui.MenuReminders, &ui.MenuHomework, &ui.MenuStudySessions, &ui.MenuTasks, &ui.MenuEvents}) {
        window->click(mode->key());
        renderer.syncAll();
        QStringList found;
        unnamedNodes(QAccessible::queryAccessibleInterface(frame), "", found);
        EXPECT_TRUE(found.isEmpty()) << mode->key() << ": " << found.join(", ").toStdString();
    }
    for (Form* editor : window->editors->windows()) {
        FormWindow& shown = renderer.windowFor(*editor);
        shown.sync();
        shown.show();
        QStringList found;
        unnamedNodes(QAccessible::queryAccessibleInterface(&shown), "", found);
        EXPECT_TRUE(found.isEmpty()) << editor->name() << ": " << found.join(", ").toStdString();
        shown.hide();
    }
}

TEST_F(MainWindowQt, PicturesAndCombosAreCalledByWhatTheyAreNotByWhatTheyShow) {
    const struct {
        std::string key;
        const char* name;
        QAccessible::Role role;
    } expected[] = {
        {ui.PictureBarTasks.key(), "Tasks", QAccessible::Button},
        {ui.PictureBarReminders.key(), "Today's Reminders", QAccessible::Button},
        {"picCalMonthUp", "Next month", QAccessible::Button},
        {ui.ComboList.key(), "List", QAccessible::ComboBox},
        {ui.ComboDateRange.key(), "Range", QAccessible::ComboBox},
        {ui.TextBoxTotalAssignments.key(), "Total Assignments", QAccessible::EditableText},
        {"LabelList", "List:", QAccessible::StaticText},
        {ui.calendar.picCalendar.key(), "Calendar", QAccessible::Grouping},
        {ui.picGrid.key(), "List", QAccessible::List},
    };
    for (const auto& e : expected) {
        QAccessibleInterface* node = QAccessible::queryAccessibleInterface(frame->widget(e.key));
        ASSERT_NE(node, nullptr) << e.key;
        EXPECT_EQ(node->text(QAccessible::Name).toStdString(), e.name) << e.key;
        EXPECT_EQ(node->role(), e.role) << e.key;
    }
    EXPECT_EQ(widget(ui.PictureBarTasks)->toolTip(), "Tasks");
}

TEST_F(MainWindowQt, AScreenReaderReadsTheGridRowByRowAndEnterOpensTheRowOfTheKeys) {
    for (const char* description : {"Buy paper", "Call home"})
        testing::addTask(main.store, {.description = description, .dated = false, .priority = "High"});
    key(frame, Qt::Key_4, Qt::ControlModifier);  // Tasks
    QAccessibleInterface* grid = QAccessible::queryAccessibleInterface(widget(ui.picGrid));
    ASSERT_NE(grid, nullptr);
    QStringList lines;
    for (int i = 0; i < grid->childCount(); ++i)
        if (QAccessibleInterface* child = grid->child(i); child && child->role() == QAccessible::ListItem) {
            lines << child->text(QAccessible::Name);
            EXPECT_EQ(grid->indexOfChild(child), i);
        }
    EXPECT_EQ(lines.join("|").toStdString(), "1, Buy paper, Personal, High, not checked|2, Call home, Personal, High, not checked");

    // Down twice stands on the second row; the frame shows round it while the grid has the keys.
    widget(ui.picGrid)->setFocus();
    key(widget(ui.picGrid), Qt::Key_Down);
    key(widget(ui.picGrid), Qt::Key_Down);
    EXPECT_EQ(window->state.KeyboardRow, 2);
    EXPECT_TRUE(widget(ui.picGrid)->hasFocus());
}

// --- What shows ------------------------------------------------------------------------

TEST_F(MainWindowQt, TheStopwatchShowsItsLongFormWhole) {
    window->click(ui.MenuStudySessions.key());
    window->click(ui.LabelTime.key());  // hours, minutes and seconds
    renderer.syncAll();
    auto* label = dynamic_cast<PaintedBox*>(widget(ui.LabelTime));
    ASSERT_NE(label, nullptr);
    ASSERT_EQ(label->control().caption, "00:00:00");
    const QFontMetricsF metrics(label->captionFont(), label);
    EXPECT_LE(metrics.horizontalAdvance(QStringLiteral("00:00:00")), label->width());
    // The short form keeps the control's own size.
    window->click(ui.LabelTime.key());
    renderer.syncAll();
    EXPECT_DOUBLE_EQ(label->captionFont().pointSizeF(), 14.0);
}

// The status bar lies wholly in the window, and its lines of text (a date's "y" and ","
// reach lowest) end above its frame's bottom edge, at any density of the screen. Its
// canvas is the real one here, so the picture is what a student sees.
TEST(MainWindowLook, TheStatusBarsTextStaysInsideItsFrame) {
    testApplication();
    LoadedMainWindow main;
    QtCanvasFactory canvases;
    Platform platform = withCanvases(main.fake, canvases);
    MainWindow window(main.store, platform);
    window.Form_Load();
    FormRenderer renderer;
    renderer.quitWhenLastWindowCloses = false;
    renderer.show(window);
    FormWindow& frame = *renderer.windowOf(window);

    QWidget* bar = frame.widget(window.ui.picStatusBar.key());
    EXPECT_LE(bar->geometry().bottom(), frame.client()->rect().bottom());
    const QImage image = bar->grab().toImage();
    const double ratio = image.devicePixelRatio();
    // The frame's bottom edge is the white line 3 pixels above the bar's own bottom.
    const int edge = int(std::lround((bar->height() - 3) * ratio));
    int lowestInk = -1;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qGray(image.pixel(x, y)) < 100) lowestInk = y;
    ASSERT_GE(lowestInk, 0) << "no text in the status bar";
    EXPECT_LT(lowestInk, edge) << "at " << ratio << "x the text runs " << lowestInk - edge + 1
                               << " pixels into the frame's edge";
}

TEST_F(MainWindowQt, TodaysCellHasABlackFrameAllRound) {
    const int cell = CellForDate(FirstCellDate(2026, 11, window->state.StartDayOfWeek), main.fake.clock.today());
    QWidget* calendar = widget(ui.calendar.picCalendar);
    // Looked at in the widget's own pixels, whatever the screen's density.
    const QImage image = calendar->grab().toImage().scaled(calendar->size());
    const QRect today = widget(ui.calendar.LabelCalDate, cell)->geometry();
    const QRect ring = today.adjusted(-1, -1, 1, 1);
    int black = 0, around = 0;
    for (int y = ring.top(); y <= ring.bottom(); ++y)
        for (int x = ring.left(); x <= ring.right(); ++x)
            if (!today.contains(x, y)) {
                ++around;
                black += image.pixelColor(x, y) == Qt::black;
            }
    EXPECT_EQ(black, around);
}

// The box the sort arrow takes in a header picture of a size, drawn at the screen's
// density: where the sorted picture differs from the plain one, in the header's pixels.
QRectF arrowIn(const QString& picture, QSize size, double ratio) {
    const QSize device(int(size.width() * ratio), int(size.height() * ratio));
    QImage plain(device, QImage::Format_ARGB32), sorted(device, QImage::Format_ARGB32);
    for (auto [image, name] : {std::pair{&plain, QStringLiteral("GridTitle")}, std::pair{&sorted, picture}}) {
        image->setDevicePixelRatio(ratio);
        image->fill(Qt::white);
        QPainter painter(image);
        drawPicture(painter, name, QRectF(QPointF(0, 0), QSizeF(size)));
    }
    QRect box;
    for (int y = 0; y < device.height(); ++y)
        for (int x = 0; x < device.width(); ++x)
            if (plain.pixel(x, y) != sorted.pixel(x, y)) box |= QRect(x, y, 1, 1);
    return QRectF(box.x() / ratio, box.y() / ratio, box.width() / ratio, box.height() / ratio);
}

TEST_F(MainWindowQt, TheSortArrowNeverCoversAHeaderTitle) {
    int narrowest = 1 << 30;
    for (const ControlRef* mode :
         {&ui.MenuHomework, &ui.MenuStudySessions, &ui.MenuTasks, &ui.MenuEvents, &ui.MenuReminders}) {
        window->click(mode->key());
        renderer.syncAll();
        for (int c = 1; c < 9; ++c) {
            QWidget* header = frame->widget("picColHeader(" + std::to_string(c) + ")");
            if (!header->isVisible()) continue;
            auto& canvas = dynamic_cast<RecordingCanvas&>(*window->c("picColHeader", c).canvas);
            std::string title;
            for (const CanvasCall& call : canvas.calls())
                if (call.kind == CanvasCall::Text) title = call.text;
            const CanvasFont& font = canvas.font();
            const QFontMetricsF metrics(qtFont(font.name, font.size, font.bold, font.italic, font.underline), header);
            const QRectF text =
                metrics.tightBoundingRect(QString::fromStdString(title)).translated(3, 3 + metrics.ascent());
            narrowest = std::min(narrowest, header->width());
            for (const QString& picture : {QStringLiteral("GridTitleUp"), QStringLiteral("GridTitleDown")}) {
                const QRectF arrow = arrowIn(picture, header->size(), header->devicePixelRatioF());
                EXPECT_FALSE(arrow.isEmpty()) << title;
                EXPECT_FALSE(arrow.intersects(text))
                    << mode->key() << " " << title << " in " << header->width() << " pixels";
            }
        }
    }
    EXPECT_EQ(narrowest, 45);  // the "Done" column of the homework list was measured
}

TEST(PlannerLook, OneStyleAndALightPaletteWhateverTheDesktopOffers) {
    Application& app = testApplication();
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(0x30, 0x30, 0x30));
    dark.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::Disabled, QPalette::Button, QColor(0x30, 0x30, 0x30));
    dark.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x40, 0x40, 0x40));
    app.setPalette(dark);
    applyPlannerLook(app);
    const QStyle* style = app.style();
    if (const auto* proxy = qobject_cast<const QProxyStyle*>(style)) style = proxy->baseStyle();
    EXPECT_EQ(style->name().toLower(), "fusion");
    const QPalette now = QApplication::palette();
    EXPECT_GT(now.color(QPalette::Window).lightness(), 200);
    EXPECT_EQ(now.color(QPalette::Base), QColor(Qt::white));
    EXPECT_EQ(now.color(QPalette::Text), QColor(Qt::black));
    // Every state is the planner's own: a disabled button is grey on the light face, and
    // no colour is left for a desktop's theme to fill in.
    EXPECT_GT(now.color(QPalette::Disabled, QPalette::Button).lightness(), 200);
    EXPECT_GT(now.color(QPalette::Disabled, QPalette::Button).lightness() -
                  now.color(QPalette::Disabled, QPalette::ButtonText).lightness(),
              80);
    for (int role = 0; role < QPalette::NColorRoles; ++role) {
        if (role == QPalette::NoRole) continue;
        EXPECT_TRUE(now.isBrushSet(QPalette::Disabled, static_cast<QPalette::ColorRole>(role))) << role;
    }
    // A drop-down list opens below its box, as many lines as the box allows.
    EXPECT_EQ(app.style()->styleHint(QStyle::SH_ComboBox_Popup), 0);
}

}  // namespace
}  // namespace qh
