#include "platform/qt/form_view.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "common/failure.h"
#include "platform/qt/qt_canvas.h"
#include "qt_test_support.h"

namespace qh {
namespace {

// A window with one control of each kind the planner's windows use.
class SampleWindow : public Form {
public:
    explicit SampleWindow(CanvasFactory& canvases) : Form("frmSample") {
        setCanvasFactory(&canvases);
        caption = "Sample";
        addMenu("MenuFile", "", "&File");
        addMenu("MenuSave", "MenuFile", "&Save");
        addMenu("MenuSep", "MenuFile", "-");
        addMenu("MenuView", "", "&View");
        addMenu("MenuHomework", "MenuView", "Homework").checked = true;
        addMenu("MenuTasks", "MenuView", "Tasks");
        addMenu("MenuSecret", "MenuView", "Secret").visible = false;
        setOuterSize(6120, 5010);  // client 6000 x 4200 twips: 400 x 280 pixels

        add(ControlKind::CommandButton, "ButtonOK", "", 150, 150, 1200, 375).caption = "OK";
        add(ControlKind::CommandButton, "ButtonBoom", "", 1500, 150, 1200, 375).caption = "Boom";
        Control& label = add(ControlKind::Label, "LabelStatus", "", 150, 600, 3000, 300);
        label.caption = "Ready";
        label.backColor = 0xE5E5FF;
        add(ControlKind::Frame, "FrameRepeat", "", 3300, 150, 2550, 1500).caption = "Repeat";
        add(ControlKind::RadioButton, "RadioDaily", "FrameRepeat", 150, 300, 2000, 300).caption = "Daily";
        add(ControlKind::RadioButton, "RadioWeekly", "FrameRepeat", 150, 750, 2000, 300).caption = "Weekly";
        c("RadioDaily").checked = true;
        add(ControlKind::TextBox, "TextBoxName", "", 150, 1050, 3000, 315).maxLength = 8;
        Control& combo = add(ControlKind::ComboBox, "ComboList", "", 150, 1500, 2000, 315);
        combo.items = {"All", "Done", "Not Done"};
        combo.listIndex = 0;
        add(ControlKind::CheckBox, "CheckBoxDone", "", 150, 1950, 2000, 300).caption = "Done";
        add(ControlKind::ListBox, "ListBoxSessions", "", 3300, 1800, 2550, 900).items = {"Mon", "Tue"};
        Control& scroll = add(ControlKind::ScrollBar, "VSGridScroll", "", 5600, 2850, 255, 1200);
        scroll.maximum = 10;
        scroll.largeChange = 3;
        add(ControlKind::Timer, "Timer1", "", 0, 0, 0, 0).interval = 10;
        addDrawable("picGrid", "", 150, 2850, 3000, 1200);
        add(ControlKind::Label, "LabelCalDate", "picGrid", 300, 150, 450, 240, 3).caption = "21";
        add(ControlKind::Label, "LabelHidden", "", 150, 4000, 300, 150).visible = false;

        on("ButtonOK", FormEvent::Click, [this](const EventArgs&) {
            log += "ok;";
            c("LabelStatus").caption = "Saved";
            c("ButtonBoom").enabled = false;
            c("LabelHidden").visible = true;
            hide();
        });
        on("ButtonBoom", FormEvent::Click,
           [](const EventArgs&) { throw UntrappedFailure("Subscript out of range"); });
        on("TextBoxName", FormEvent::Change, [this](const EventArgs&) { log += "text " + c("TextBoxName").text + ";"; });
        on("ComboList", FormEvent::Click, [this](const EventArgs&) { log += "list " + c("ComboList").text + ";"; });
        on("CheckBoxDone", FormEvent::Click, [this](const EventArgs&) {
            log += std::string("done ") + (c("CheckBoxDone").checked ? "on" : "off") + ";";
        });
        on("RadioWeekly", FormEvent::Click, [this](const EventArgs&) { log += "weekly;"; });
        on("MenuTasks", FormEvent::Click, [this](const EventArgs&) {
            log += "tasks;";
            c("MenuHomework").checked = false;
            c("MenuTasks").checked = true;
            c("MenuSave").enabled = false;
        });
        on("Timer1", FormEvent::Timer, [this](const EventArgs&) {
            if (++ticks == 3) c("Timer1").enabled = false;
        });
        on("picGrid", FormEvent::MouseDown, [this](const EventArgs& a) {
            log += "down " + std::to_string(a.x) + "," + std::to_string(a.y) + ";";
            c("picGrid").canvas->clear(rgb(0, 128, 0));
        });
        on("picGrid", FormEvent::MouseUp, [this](const EventArgs&) { log += "up;"; });
        on("picGrid", FormEvent::Click, [this](const EventArgs&) { log += "click grid;"; });
        on("LabelCalDate(3)", FormEvent::Click, [this](const EventArgs&) { log += "date 3;"; });
        on("VSGridScroll", FormEvent::Scroll,
           [this](const EventArgs&) { log += "scroll " + std::to_string(c("VSGridScroll").value) + ";"; });
        on("VSGridScroll", FormEvent::Change,
           [this](const EventArgs&) { log += "change " + std::to_string(c("VSGridScroll").value) + ";"; });
    }
    bool Form_QueryUnload() override {
        log += "query;";
        return allowClose;
    }
    void Form_Unload() override { log += "unload;"; }
    void Form_Resize() override { log += "resize " + std::to_string(scaleWidth) + ";"; }

    std::string log;
    bool allowClose = false;
    int ticks = 0;
};

class FormRendererTest : public testing::Test {
protected:
    FormRendererTest() : app(testApplication()), window(canvases) { renderer.quitWhenLastWindowCloses = false; }

    template <typename T = QWidget>
    T* widget(const std::string& key) {
        FormWindow* shown = renderer.windowOf(window);
        return shown ? qobject_cast<T*>(shown->widget(key)) : nullptr;
    }
    FormWindow& shown() { return *renderer.windowOf(window); }

    Application& app;
    QtCanvasFactory canvases;
    FormRenderer renderer;
    SampleWindow window;
};

TEST_F(FormRendererTest, ControlsAppearAsNamedWidgetsPlacedByTheirTwips) {
    renderer.show(window);
    FormWindow& frame = shown();
    EXPECT_TRUE(frame.isVisible());
    EXPECT_EQ(frame.windowTitle(), "Sample");
    EXPECT_EQ(frame.client()->size(), QSize(400, 280));

    auto* ok = frame.findChild<QPushButton*>("ButtonOK");
    ASSERT_NE(ok, nullptr);
    EXPECT_EQ(ok->text(), "OK");
    EXPECT_EQ(ok->geometry(), QRect(10, 10, 80, 25));
    EXPECT_EQ(ok->parentWidget(), frame.client());

    auto* weekly = widget<QRadioButton>("RadioWeekly");
    ASSERT_NE(weekly, nullptr);
    EXPECT_EQ(weekly->parentWidget(), widget<QGroupBox>("FrameRepeat"));
    EXPECT_EQ(weekly->geometry(), QRect(10, 50, 133, 20));
    EXPECT_EQ(widget<QGroupBox>("FrameRepeat")->title(), "Repeat");
    EXPECT_TRUE(widget<QRadioButton>("RadioDaily")->isChecked());

    // A control array element is named by its key and lies in its picture box.
    QWidget* date = widget("LabelCalDate(3)");
    ASSERT_NE(date, nullptr);
    EXPECT_EQ(date->objectName(), "LabelCalDate(3)");
    EXPECT_EQ(date->parentWidget(), widget("picGrid"));
    EXPECT_EQ(date->geometry(), QRect(20, 10, 30, 16));

    auto* combo = widget<QComboBox>("ComboList");
    ASSERT_NE(combo, nullptr);
    EXPECT_FALSE(combo->isEditable());
    EXPECT_EQ(combo->count(), 3);
    EXPECT_EQ(combo->currentText(), "All");
    EXPECT_EQ(widget<QListWidget>("ListBoxSessions")->count(), 2);
    EXPECT_EQ(widget<QLineEdit>("TextBoxName")->maxLength(), 8);
    EXPECT_EQ(widget<QScrollBar>("VSGridScroll")->maximum(), 10);
    EXPECT_EQ(widget<QScrollBar>("VSGridScroll")->pageStep(), 3);
    EXPECT_FALSE(widget("LabelHidden")->isVisible());
    EXPECT_TRUE(widget("LabelStatus")->isVisible());
}

TEST_F(FormRendererTest, LaterControlsLieAboveEarlierOnesAndBringToFrontRestacks) {
    window.add(ControlKind::Label, "LabelOver", "", 150, 150, 600, 300).caption = "over";
    renderer.show(window);
    QObjectList stack = shown().client()->children();
    EXPECT_GT(stack.indexOf(widget("LabelOver")), stack.indexOf(widget("ButtonOK")));
    renderer.forward([&] { window.bringToFront("ButtonOK"); });
    stack = shown().client()->children();
    EXPECT_LT(stack.indexOf(widget("LabelOver")), stack.indexOf(widget("ButtonOK")));
}

TEST_F(FormRendererTest, AClickReachesTheHandlerAndWhatItChangesReachesTheWidgets) {
    renderer.show(window);
    QWidget* status = widget("LabelStatus");
    const QImage ready = status->grab().toImage();
    QTest::mouseClick(widget("ButtonOK"), Qt::LeftButton);
    EXPECT_EQ(window.log, "ok;");
    EXPECT_FALSE(widget("ButtonBoom")->isEnabled());
    EXPECT_FALSE(shown().isVisible());  // the model hid its window
    renderer.show(window);
    EXPECT_TRUE(widget("LabelHidden")->isVisible());
    EXPECT_EQ(status, widget("LabelStatus"));  // the same widget, changed in place
    EXPECT_NE(status->grab().toImage(), ready);  // now showing "Saved"
}

TEST_F(FormRendererTest, TypingSelectingAndTickingGoThroughTheModel) {
    renderer.show(window);
    auto* name = widget<QLineEdit>("TextBoxName");
    QTest::keyClicks(name, "Algebra");
    EXPECT_EQ(window.c("TextBoxName").text, "Algebra");
    EXPECT_NE(window.log.find("text Algebra;"), std::string::npos);

    // A change the model makes lands in the box without being taken for typing.
    window.log.clear();
    renderer.forward([&] { window.c("TextBoxName").text = "Biology"; });
    EXPECT_EQ(name->text(), "Biology");
    EXPECT_EQ(window.log, "");

    auto* combo = widget<QComboBox>("ComboList");
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(window.c("ComboList").listIndex, 1);
    EXPECT_EQ(window.log, "list Done;");

    QTest::mouseClick(widget("CheckBoxDone"), Qt::LeftButton);
    EXPECT_TRUE(window.c("CheckBoxDone").checked);
    EXPECT_NE(window.log.find("done on;"), std::string::npos);

    // New entries from the model replace the old ones, with the model's choice.
    renderer.forward([&] {
        window.c("ComboList").items = {"Term", "Month", "Week", "Today"};
        window.c("ComboList").listIndex = 3;
    });
    EXPECT_EQ(combo->count(), 4);
    EXPECT_EQ(combo->currentText(), "Today");
}

TEST_F(FormRendererTest, ARadioButtonClearsTheOthersOfItsFrame) {
    renderer.show(window);
    QTest::mouseClick(widget("RadioWeekly"), Qt::LeftButton);
    EXPECT_TRUE(window.c("RadioWeekly").checked);
    EXPECT_FALSE(window.c("RadioDaily").checked);
    EXPECT_TRUE(widget<QRadioButton>("RadioWeekly")->isChecked());
    EXPECT_FALSE(widget<QRadioButton>("RadioDaily")->isChecked());
    EXPECT_EQ(window.log, "weekly;");
}

TEST_F(FormRendererTest, MenusCarryCaptionsTicksSeparatorsAndState) {
    renderer.show(window);
    FormWindow& frame = shown();
    ASSERT_TRUE(frame.menuBar()->isVisible());
    const QList<QAction*> top = frame.menuBar()->actions();
    ASSERT_EQ(top.size(), 2);
    EXPECT_EQ(top[0]->text(), "&File");
    QMenu* file = top[0]->menu();
    ASSERT_NE(file, nullptr);
    ASSERT_EQ(file->actions().size(), 2);
    EXPECT_TRUE(file->actions()[1]->isSeparator());
    // The menu bar takes its room above the client area, which keeps its size.
    EXPECT_EQ(frame.client()->y(), frame.menuBar()->height());
    EXPECT_EQ(frame.client()->height(), 280);

    QAction* homework = frame.action("MenuHomework");
    QAction* tasks = frame.action("MenuTasks");
    EXPECT_TRUE(homework->isChecked());
    EXPECT_FALSE(tasks->isChecked());
    EXPECT_FALSE(frame.action("MenuSecret")->isVisible());

    tasks->trigger();
    EXPECT_EQ(window.log, "tasks;");
    EXPECT_FALSE(homework->isChecked());
    EXPECT_TRUE(tasks->isChecked());
    EXPECT_FALSE(frame.action("MenuSave")->isEnabled());
}

TEST_F(FormRendererTest, ATimerTicksWhileEnabled) {
    renderer.show(window);
    QTimer* timer = shown().timer("Timer1");
    ASSERT_NE(timer, nullptr);
    EXPECT_FALSE(timer->isActive());  // timers start switched off
    renderer.forward([&] { window.c("Timer1").enabled = true; });
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 10);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.ticks >= 3; }, 2000));
    // The third tick switched it off.
    EXPECT_FALSE(timer->isActive());
    QTest::qWait(50);
    EXPECT_EQ(window.ticks, 3);
}

TEST_F(FormRendererTest, ModalShowLastsUntilTheModelHidesTheWindow) {
    bool wasVisible = false;
    QTimer::singleShot(0, [&] {
        wasVisible = renderer.windowOf(window) && renderer.windowOf(window)->isVisible();
        QTest::mouseClick(widget("ButtonOK"), Qt::LeftButton);
    });
    renderer.showModal(window, nullptr);
    EXPECT_TRUE(wasVisible);
    EXPECT_EQ(window.log, "ok;");
    EXPECT_FALSE(window.visible);
    EXPECT_FALSE(shown().isVisible());
    EXPECT_FALSE(shown().isModal());
}

TEST_F(FormRendererTest, TheCloseBoxAsksTheModelWhichMayRefuse) {
    renderer.show(window);
    shown().close();
    EXPECT_EQ(window.log, "query;");
    EXPECT_TRUE(shown().isVisible());
    EXPECT_TRUE(window.visible);

    window.allowClose = true;
    shown().close();
    EXPECT_EQ(window.log, "query;query;unload;");
    EXPECT_FALSE(window.visible);
    EXPECT_EQ(renderer.windowOf(window), nullptr);
}

TEST_F(FormRendererTest, MouseOnAPictureBoxComesInTwipsAndItsCanvasShows) {
    renderer.show(window);
    QWidget* grid = widget("picGrid");
    ASSERT_NE(grid, nullptr);
    QTest::mousePress(grid, Qt::LeftButton, {}, QPoint(10, 4));
    EXPECT_EQ(window.log, "down 150,60;");
    // The handler painted the canvas green; the box shows it at once.
    const QImage seen = grid->grab().toImage();
    EXPECT_EQ(seen.pixelColor(50, 50), QColor(0, 128, 0));
    QTest::mouseRelease(grid, Qt::LeftButton, {}, QPoint(10, 4));
    EXPECT_EQ(window.log, "down 150,60;up;click grid;");

    QTest::mouseClick(widget("LabelCalDate(3)"), Qt::LeftButton);
    EXPECT_NE(window.log.find("date 3;"), std::string::npos);
}

TEST_F(FormRendererTest, ScrollBarStepsReachTheModel) {
    renderer.show(window);
    auto* bar = widget<QScrollBar>("VSGridScroll");
    bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(window.c("VSGridScroll").value, 3);
    EXPECT_EQ(window.log, "change 3;");
    renderer.forward([&] { window.c("VSGridScroll").value = 7; });
    EXPECT_EQ(bar->value(), 7);
    EXPECT_EQ(window.log, "change 3;");

    // Dragging the thumb scrolls as it goes and changes once at the release.
    window.log.clear();
    bar->setSliderDown(true);
    bar->setValue(5);
    bar->setValue(4);
    bar->setSliderDown(false);
    EXPECT_EQ(window.log, "scroll 5;scroll 4;change 4;");
    EXPECT_EQ(window.c("VSGridScroll").value, 4);
}

TEST_F(FormRendererTest, AUserResizeUpdatesTheModelAndTheMinimumHolds) {
    window.minWidth = 4620;   // client 4500 twips = 300 pixels
    window.minHeight = 3810;  // client 3000 twips = 200 pixels (below the menu bar)
    renderer.show(window);
    FormWindow& frame = shown();
    EXPECT_EQ(frame.minimumWidth(), 300);
    EXPECT_EQ(frame.minimumHeight(), 200 + frame.menuBar()->height());

    frame.resize(500, 300 + frame.menuBar()->height());
    EXPECT_EQ(window.scaleWidth, 7500);
    EXPECT_EQ(window.scaleHeight, 4500);
    EXPECT_EQ(window.width, 7500 + Form::kFrameWidth);
    EXPECT_EQ(window.height, 4500 + Form::kFrameHeight + Form::kMenuBarHeight);
    EXPECT_EQ(window.log, "resize 7500;");
}

TEST_F(FormRendererTest, AFixedSizeWindowKeepsItsSize) {
    window.fixedSize = true;
    renderer.show(window);
    FormWindow& frame = shown();
    EXPECT_EQ(frame.minimumSize(), frame.maximumSize());
    EXPECT_EQ(frame.client()->size(), QSize(400, 280));
    EXPECT_FALSE(frame.windowFlags() & Qt::WindowMaximizeButtonHint);
    EXPECT_TRUE(frame.isVisible());
}

TEST_F(FormRendererTest, AFailureInAClickHandlerReachesTheFailureReport) {
    renderer.show(window);
    std::vector<std::string> reports;
    app.setFailureReport([&](const std::string& what) { reports.push_back(Application::reportText(what)); });
    // The click comes through the event loop, as a user's does.
    QMetaObject::invokeMethod(widget<QPushButton>("ButtonBoom"), &QPushButton::click, Qt::QueuedConnection);
    QCoreApplication::processEvents();
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_EQ(reports[0], "Quillhollow has stopped: Subscript out of range");
    app.setFailureReport(nullptr);
}

}  // namespace
}  // namespace qh

#include <QFile>
#include <QHelpEvent>
#include <QPrinter>
#include <QTemporaryDir>

#include "platform/qt/qt_platform.h"

namespace qh {
namespace {

TEST_F(FormRendererTest, WhatsThisAsksForTheControlsHelpNumber) {
    window.c("ButtonOK").helpContextId = 203;
    renderer.show(window);
    std::vector<int> asked;
    renderer.showHelp = [&](int number) { asked.push_back(number); };
    QWidget* ok = widget("ButtonOK");
    EXPECT_FALSE(ok->whatsThis().isEmpty());
    QHelpEvent help(QEvent::WhatsThis, QPoint(2, 2), ok->mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(ok, &help);
    // A control without a number has no help to show.
    QHelpEvent none(QEvent::WhatsThis, QPoint(2, 2), QPoint(2, 2));
    QApplication::sendEvent(widget("ButtonBoom"), &none);
    EXPECT_EQ(asked, std::vector<int>{203});
}

TEST_F(FormRendererTest, AWindowsImageGoesToTheChosenPrinter) {
    QTemporaryDir folder;
    const QString pdf = QDir(folder.path()).filePath("screen.pdf");
    PrinterChoice choice;
    choice.printer = std::make_unique<QPrinter>();
    choice.printer->setOutputFormat(QPrinter::PdfFormat);
    choice.printer->setOutputFileName(pdf);
    QtWindowing windowing(renderer, choice);
    EXPECT_THROW(windowing.printWindowImage(window, ""), FileFailure);  // not on the screen
    renderer.show(window);
    windowing.printWindowImage(window, "");
    QFile printed(pdf);
    ASSERT_TRUE(printed.open(QIODevice::ReadOnly));
    EXPECT_TRUE(printed.read(4) == "%PDF");
    EXPECT_GT(printed.size(), 1000);
}

TEST_F(FormRendererTest, ControlsAddedAfterTheWindowShowsAppearToo) {
    renderer.show(window);
    renderer.forward([&] {
        window.add(ControlKind::Label, "LabelCalDate", "picGrid", 900, 150, 450, 240, 4).caption = "22";
        window.addMenu("MenuHelp", "", "&Help");
    });
    QWidget* added = widget("LabelCalDate(4)");
    ASSERT_NE(added, nullptr);
    EXPECT_EQ(added->parentWidget(), widget("picGrid"));
    EXPECT_EQ(shown().menuBar()->actions().size(), 3);
    // Rebuilding the menus kept their state and their handlers.
    ASSERT_NE(shown().action("MenuTasks"), nullptr);
    shown().action("MenuTasks")->trigger();
    EXPECT_EQ(window.log, "tasks;");
    EXPECT_TRUE(shown().action("MenuTasks")->isChecked());
}

TEST_F(FormRendererTest, TheProgramEndsWhenItsLastWindowCloses) {
    renderer.quitWhenLastWindowCloses = true;
    window.allowClose = true;
    renderer.show(window);
    // Closing a window while another is still up ends nothing.
    SampleWindow other(canvases);
    renderer.show(other);
    bool stillRunning = false;
    QObject scope;  // the timers go with the test
    QTimer::singleShot(0, &scope, [&] { shown().close(); });
    QTimer::singleShot(100, &scope, [&] {
        stillRunning = true;
        other.allowClose = true;
        renderer.windowOf(other)->close();
    });
    // Only a safety net: the last close ends the loop long before.
    QTimer::singleShot(5000, &scope, [&] { QCoreApplication::exit(1); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_TRUE(stillRunning);
    EXPECT_EQ(renderer.windowOf(window), nullptr);
    EXPECT_EQ(renderer.windowOf(other), nullptr);
}

}  // namespace
}  // namespace qh
