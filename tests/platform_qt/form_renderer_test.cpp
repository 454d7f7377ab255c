#include "platform/qt/form_view.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWhatsThis>

#include "common/failure.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_platform.h"
#include "qt_test_support.h"

namespace qh {
namespace {

// A window with one control of each kind the planner's windows use. Its handlers write
// what they saw of the model into `log`.
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
        add(ControlKind::Label, "LabelStatus", "", 150, 600, 3000, 300).caption = "Ready";
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
        on("CheckBoxDone", FormEvent::Click,
           [this](const EventArgs&) { log += c("CheckBoxDone").checked ? "done on;" : "done off;"; });
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
    bool Form_QueryUnload(UnloadMode) override {
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

TEST_F(FormRendererTest, ControlsAppearAsNamedWidgetsPlacedAndStackedByTheModel) {
    window.add(ControlKind::Label, "LabelOver", "", 150, 150, 600, 300).caption = "over";
    renderer.show(window);
    FormWindow& frame = shown();
    EXPECT_TRUE(frame.isVisible());
    EXPECT_EQ(frame.windowTitle(), "Sample");
    EXPECT_EQ(frame.client()->size(), QSize(400, 280));

    // Each widget is named by its control's key and lies in its container; a control
    // array element is named by its key and index.
    const struct {
        const char* key;
        QWidget* container;
        QRect place;
    } places[] = {{"ButtonOK", frame.client(), {10, 10, 80, 25}},
                  {"RadioWeekly", widget("FrameRepeat"), {10, 50, 133, 20}},
                  {"LabelCalDate(3)", widget("picGrid"), {20, 10, 30, 16}}};
    for (const auto& p : places) {
        QWidget* placed = frame.findChild<QWidget*>(p.key);
        ASSERT_NE(placed, nullptr) << p.key;
        EXPECT_EQ(placed->parentWidget(), p.container) << p.key;
        EXPECT_EQ(placed->geometry(), p.place) << p.key;
    }
    EXPECT_EQ(widget<QPushButton>("ButtonOK")->text(), "OK");
    EXPECT_EQ(widget<QGroupBox>("FrameRepeat")->title(), "Repeat");
    // A frame covers what lies behind it in its own colour, so that of frames stacked in
    // one place only the front one shows.
    EXPECT_TRUE(widget("FrameRepeat")->autoFillBackground());
    EXPECT_EQ(widget("FrameRepeat")->palette().color(QPalette::Window), QColor(255, 255, 255));
    EXPECT_TRUE(widget<QRadioButton>("RadioDaily")->isChecked());
    EXPECT_FALSE(widget<QComboBox>("ComboList")->isEditable());
    EXPECT_EQ(widget<QComboBox>("ComboList")->currentText(), "All");
    EXPECT_EQ(widget<QLineEdit>("TextBoxName")->maxLength(), 8);
    // A disabled box's text fades into its background, whatever colours the model gave it.
    const QPalette names = widget("TextBoxName")->palette();
    EXPECT_NE(names.color(QPalette::Disabled, QPalette::Text), names.color(QPalette::Active, QPalette::Text));
    EXPECT_EQ(widget<QListWidget>("ListBoxSessions")->count(), 2);
    EXPECT_EQ(widget<QScrollBar>("VSGridScroll")->pageStep(), 3);
    EXPECT_FALSE(widget("LabelHidden")->isVisible());

    // Later controls lie above earlier ones until the model restacks them.
    auto stackOf = [&](const char* key) { return frame.client()->children().indexOf(widget(key)); };
    EXPECT_GT(stackOf("LabelOver"), stackOf("ButtonOK"));
    renderer.forward([&] {
        window.bringToFront("ButtonOK");
        window.add(ControlKind::Label, "LabelCalDate", "picGrid", 900, 150, 450, 240, 4).caption = "22";
    });
    EXPECT_LT(stackOf("LabelOver"), stackOf("ButtonOK"));
    // A control added while the window shows appears too.
    ASSERT_NE(widget("LabelCalDate(4)"), nullptr);
    EXPECT_EQ(widget("LabelCalDate(4)")->parentWidget(), widget("picGrid"));
}

// The user's gestures reach the handlers with the model already updated; what the model
// changes reaches the widgets without being taken for a gesture.
TEST_F(FormRendererTest, GesturesGoThroughTheModelAndItsChangesComeBack) {
    renderer.show(window);
    auto* name = widget<QLineEdit>("TextBoxName");
    QTest::keyClicks(name, "Algebra");
    EXPECT_NE(window.log.find("text Algebra;"), std::string::npos);
    window.log.clear();
    renderer.forward([&] { window.c("TextBoxName").text = "Biology"; });
    EXPECT_EQ(name->text(), "Biology");

    auto* combo = widget<QComboBox>("ComboList");
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(window.c("ComboList").listIndex, 1);
    renderer.forward([&] {
        window.c("ComboList").items = {"Term", "Month", "Week", "Today"};
        window.c("ComboList").listIndex = 3;
    });
    EXPECT_EQ(combo->count(), 4);
    EXPECT_EQ(combo->currentText(), "Today");

    QTest::mouseClick(widget("CheckBoxDone"), Qt::LeftButton);
    // A radio button clears the others of its frame.
    QTest::mouseClick(widget("RadioWeekly"), Qt::LeftButton);
    EXPECT_TRUE(window.c("RadioWeekly").checked);
    EXPECT_FALSE(window.c("RadioDaily").checked);
    EXPECT_FALSE(widget<QRadioButton>("RadioDaily")->isChecked());

    // A page step changes at once; a thumb drag scrolls as it goes and changes at the release.
    auto* bar = widget<QScrollBar>("VSGridScroll");
    bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
    renderer.forward([&] { window.c("VSGridScroll").value = 7; });
    EXPECT_EQ(bar->value(), 7);
    bar->setSliderDown(true);
    bar->setValue(5);
    bar->setValue(4);
    bar->setSliderDown(false);
    EXPECT_EQ(window.log, "list Done;done on;weekly;change 3;scroll 5;scroll 4;change 4;");

    window.log.clear();
    QWidget* status = widget("LabelStatus");
    const QImage ready = status->grab().toImage();
    QTest::mouseClick(widget("ButtonOK"), Qt::LeftButton);
    EXPECT_EQ(window.log, "ok;");
    EXPECT_FALSE(widget("ButtonBoom")->isEnabled());
    EXPECT_FALSE(shown().isVisible());  // the model hid its window
    renderer.show(window);
    EXPECT_TRUE(widget("LabelHidden")->isVisible());
    EXPECT_EQ(status, widget("LabelStatus"));    // the same widget, changed in place
    EXPECT_NE(status->grab().toImage(), ready);  // now showing "Saved"
}

TEST_F(FormRendererTest, MenusCarryCaptionsTicksSeparatorsAndStateAcrossARebuild) {
    renderer.show(window);
    renderer.forward([&] { window.addMenu("MenuHelp", "", "&Help"); });  // the menus are built again
    FormWindow& frame = shown();
    const QList<QAction*> top = frame.menuBar()->actions();
    ASSERT_EQ(top.size(), 3);
    EXPECT_EQ(top[0]->text(), "&File");
    ASSERT_NE(top[0]->menu(), nullptr);
    ASSERT_EQ(top[0]->menu()->actions().size(), 2);
    EXPECT_TRUE(top[0]->menu()->actions()[1]->isSeparator());
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

TEST_F(FormRendererTest, ATimerTicksOnlyWhileEnabled) {
    renderer.show(window);
    QTimer* timer = shown().timer("Timer1");
    ASSERT_NE(timer, nullptr);
    EXPECT_FALSE(timer->isActive());  // timers start switched off
    renderer.forward([&] { window.c("Timer1").enabled = true; });
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 10);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.ticks >= 3; }));
    EXPECT_FALSE(timer->isActive());  // the third tick switched it off
}

TEST_F(FormRendererTest, MouseOnAPictureBoxComesInTwipsAndItsCanvasShows) {
    renderer.show(window);
    QWidget* grid = widget("picGrid");
    QTest::mousePress(grid, Qt::LeftButton, {}, QPoint(10, 4));
    EXPECT_EQ(window.log, "down 150,60;");
    // The handler painted the canvas green; the box shows it at once.
    EXPECT_EQ(grid->grab().toImage().pixelColor(50, 50), QColor(0, 128, 0));
    QTest::mouseRelease(grid, Qt::LeftButton, {}, QPoint(10, 4));
    QTest::mouseClick(widget("LabelCalDate(3)"), Qt::LeftButton);
    EXPECT_EQ(window.log, "down 150,60;up;click grid;date 3;");
}

TEST_F(FormRendererTest, AUserResizeUpdatesTheModelWithinItsLimits) {
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

    // A fixed size window can be neither resized nor maximised.
    SampleWindow fixed(canvases);
    fixed.fixedSize = true;
    renderer.show(fixed);
    EXPECT_EQ(renderer.windowOf(fixed)->maximumSize(), renderer.windowOf(fixed)->minimumSize());
    EXPECT_FALSE(renderer.windowOf(fixed)->windowFlags() & Qt::WindowMaximizeButtonHint);
}

TEST_F(FormRendererTest, AFailureInAClickHandlerReachesTheFailureReport) {
    renderer.show(window);
    std::vector<std::string> reports;
    app.setFailureReport([&](const std::string& action) { reports.push_back(Application::reportText(action)); });
    // The click comes through the event loop, as a user's does.
    QMetaObject::invokeMethod(widget<QPushButton>("ButtonBoom"), &QPushButton::click, Qt::QueuedConnection);
    QCoreApplication::processEvents();
    ASSERT_EQ(reports.size(), 1u);
    // The box names what the student did, never the failure's own words.
    EXPECT_EQ(reports[0],
              "Quillhollow has stopped while answering \"Boom\" in \"Sample\". Every change saved before this "
              "is on the drive; start Quillhollow again to go on.");
    EXPECT_EQ(Form::actionInProgress(), "\"Boom\" in \"Sample\"");
    app.setFailureReport(nullptr);
}

TEST_F(FormRendererTest, TheCloseBoxAsksTheModelAndTheLastWindowClosedEndsTheProgram) {
    renderer.quitWhenLastWindowCloses = true;
    renderer.show(window);
    SampleWindow other(canvases);
    other.allowClose = true;
    renderer.show(other);
    shown().close();  // the model refuses
    EXPECT_TRUE(shown().isVisible());
    EXPECT_TRUE(window.visible);
    window.allowClose = true;
    // Closing a window while another is still up ends nothing: the second close comes
    // after the first has had its chance to end the loop.
    bool stillRunning = false;
    QObject scope;  // the calls go with the test
    QTimer::singleShot(0, &scope, [&] {
        shown().close();
        QTimer::singleShot(0, &scope, [&] {
            stillRunning = true;
            renderer.windowOf(other)->close();
        });
    });
    // Only a safety net: the last close ends the loop long before.
    QTimer::singleShot(5000, &scope, [&] { QCoreApplication::exit(1); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_TRUE(stillRunning);
    EXPECT_EQ(window.log, "query;query;unload;");
    EXPECT_FALSE(window.visible);
    EXPECT_EQ(renderer.windowOf(window), nullptr);
    EXPECT_EQ(renderer.windowOf(other), nullptr);
}

TEST_F(FormRendererTest, WhatsThisAsksForTheControlsHelpTextAndHandsOnItsLink) {
    window.c("ButtonOK").helpContextId = 203;
    renderer.show(window);
    std::vector<int> asked;
    std::vector<std::string> opened;
    renderer.helpText = [&](int number) {
        asked.push_back(number);
        return std::string("<p>OK saves.</p><a href=\"file:///help/ok.html\">More</a>");
    };
    renderer.openHelpLink = [&](const std::string& address) { opened.push_back(address); };
    QWidget* ok = widget("ButtonOK");
    EXPECT_FALSE(ok->whatsThis().isEmpty());
    QHelpEvent help(QEvent::WhatsThis, QPoint(2, 2), ok->mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(ok, &help);
    QWhatsThis::hideText();
    // A control without a number has no help to show.
    QHelpEvent none(QEvent::WhatsThis, QPoint(2, 2), QPoint(2, 2));
    QApplication::sendEvent(widget("ButtonBoom"), &none);
    EXPECT_EQ(asked, std::vector<int>{203});
    // The bubble's link, clicked, reaches the control it was shown for.
    QWhatsThisClickedEvent clicked(QStringLiteral("file:///help/ok.html"));
    EXPECT_TRUE(QApplication::sendEvent(ok, &clicked));
    EXPECT_EQ(opened, std::vector<std::string>{"file:///help/ok.html"});
}

// The page objects of a PDF file as Qt writes it (its dictionaries are not compressed).
int pdfPageCount(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return -1;
    const QByteArray bytes = file.readAll();
    if (!bytes.startsWith("%PDF")) return -1;
    int pages = 0;
    static const QRegularExpression page(QStringLiteral("/Type\\s*/Page[^s]"));
    for (auto match = page.globalMatch(QString::fromLatin1(bytes)); match.hasNext(); match.next()) ++pages;
    return pages;
}

TEST_F(FormRendererTest, AWindowsImageGoesToTheChosenPrinterOnePagePerCopy) {
    QTemporaryDir folder;
    PrinterChoice choice;
    QtWindowing windowing(renderer, choice);
    EXPECT_THROW(windowing.printWindowImage(window, "", 1), FileFailure);  // not on the screen
    renderer.show(window);
    for (const int copies : {1, 3}) {
        const QString pdf = QDir(folder.path()).filePath(QStringLiteral("screen%1.pdf").arg(copies));
        choice.printer = std::make_unique<QPrinter>();
        choice.printer->setOutputFormat(QPrinter::PdfFormat);
        choice.printer->setOutputFileName(pdf);
        windowing.printWindowImage(window, "", copies);
        EXPECT_EQ(pdfPageCount(pdf), copies);
        // The job itself asks for one copy: the copies are the pages.
        EXPECT_EQ(choice.printer->copyCount(), 1);
    }
}

}  // namespace
}  // namespace qh
