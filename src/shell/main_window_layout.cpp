// The controls and menus of the main window at their load places (twips, client area).
#include "calendar/calendar_binder.h"
#include "common/text.h"
#include "shell/main_window.h"

namespace qh {
namespace {

Control& summaryBox(Form& form, const std::string& name, int top) {
    Control& box = form.add(ControlKind::TextBox, name, "", 3240, top, 1095, 315);
    box.locked = true;
    box.alignment = Alignment::Center;
    box.visible = false;
    box.fontName = "Verdana";
    box.bold = true;
    return box;
}

}  // namespace

void MainWindow::buildMenus() {
    addMenu("MenuFile", "", "File");
    addMenu("MenuReminders", "MenuFile", "Today's Reminders");
    addMenu("MenuHomework", "MenuFile", "Homework");
    addMenu("MenuStudySessions", "MenuFile", "Study Sessions");
    addMenu("MenuTasks", "MenuFile", "Tasks");
    addMenu("MenuEvents", "MenuFile", "Events");
    addMenu("MenuFileSep1", "MenuFile", "-");
    addMenu("MenuPrintScreen", "MenuFile", "Print Screen...");
    addMenu("MenuExport", "MenuFile", "Export for Printing");
    addMenu("MenuExportCalendar", "MenuExport", "Calendar...");
    addMenu("MenuExportList", "MenuExport", "Current List...");
    addMenu("MenuExportICalendar", "MenuFile", "Export iCalendar...");
    addMenu("MenuImportICalendar", "MenuFile", "Import iCalendar...");
    addMenu("MenuFileSep2", "MenuFile", "-");
    addMenu("MenuExit", "MenuFile", "Exit");

    addMenu("MenuEdit", "", "Edit");
    addMenu("MenuClassSchedule", "MenuEdit", "Class Schedule...");
    addMenu("MenuNewAssignment", "MenuEdit", "New Assignment...");
    addMenu("MenuEditSep1", "MenuEdit", "-");
    addMenu("MenuNewTask", "MenuEdit", "New Task...");
    addMenu("MenuNewEvent", "MenuEdit", "New Event...");

    addMenu("MenuOptions", "", "Options");
    addMenu("MenuStartDay", "MenuOptions", "Start Day of Week");
    addMenu("MenuStartSat", "MenuStartDay", "Saturday");
    addMenu("MenuStartSun", "MenuStartDay", "Sunday");
    addMenu("MenuStartMon", "MenuStartDay", "Monday");
    addMenu("MenuDesktopReminders", "MenuOptions", "Desktop Reminders");
    addMenu("MenuSubscriptions", "MenuOptions", "Calendar Subscriptions...");

    addMenu("MenuHelp", "", "Help");
    addMenu("MenuHelpDB", "MenuHelp", "Help");
    addMenu("MenuVideos", "MenuHelp", "Video Tutorials");
    addMenu("MenuVideo1", "MenuVideos", "1) Add a Class Schedule");
    addMenu("MenuVideo2", "MenuVideos", "2) Add an Assignment");
    addMenu("MenuVideo3", "MenuVideos", "3) Finish an Assignment");
    addMenu("MenuHomeworkHelp", "MenuHelp", "Online Homework Help");
    addMenu("MenuHelpSep1", "MenuHelp", "-");
    addMenu("MenuShowTips", "MenuHelp", "Show Tips at Startup...");
    addMenu("MenuAbout", "MenuHelp", "About Quillhollow...");

    // The usual keys; the menus show them beside the entries. Ctrl+N makes a record of the
    // mode: only the entry of the mode is enabled at any time.
    const std::pair<const char*, const char*> shortcuts[] = {
        {"MenuReminders", "Ctrl+1"},     {"MenuHomework", "Ctrl+2"},      {"MenuStudySessions", "Ctrl+3"},
        {"MenuTasks", "Ctrl+4"},         {"MenuEvents", "Ctrl+5"},        {"MenuPrintScreen", "Ctrl+P"},
        {"MenuExportList", "Ctrl+E"},    {"MenuExit", "Ctrl+Q"},          {"MenuNewAssignment", "Ctrl+N"},
        {"MenuNewTask", "Ctrl+N"},       {"MenuNewEvent", "Ctrl+N"},      {"MenuHelpDB", "F1"}};
    for (const auto& [menu, keys] : shortcuts) c(menu).shortcut = keys;
}

void MainWindow::buildControls() {
    // The mode bar and the buttons beside the title bar.
    const char* bars[] = {"PictureBarReminders", "PictureBarHomework", "PictureBarStudySessions", "PictureBarTasks",
                          "PictureBarEvents"};
    const char* tips[] = {" Today's Reminders ", "Homework", "Study Sessions", "Tasks", "Events"};
    for (int i = 0; i < 5; ++i) {
        Control& bar = add(ControlKind::PictureBox, bars[i], "", 120 + 600 * i, 15, 465, 345);
        bar.tag = tips[i];
        bar.backColor = kButtonFace;
        bar.toolTip = trim(tips[i]);
    }
    Control& web = add(ControlKind::PictureBox, "PictureBarWeb", "", 5580, 15, 465, 345);
    web.picture = "Web";
    web.toolTip = "Online Homework Help";
    Control& help = add(ControlKind::PictureBox, "picHelp", "", 6285, 30, 315, 240);
    help.picture = "Help";
    help.toolTip = "What's This? Click here, then on any part of the window";
    help.accessibleName = "What's This?";
    Control& top = add(ControlKind::PictureBox, "picTop", "", 240, 480, 6225, 330);
    top.backColor = 0x7F4F2F;
    Control& labelTop = addLabel("LabelTop", "picTop", 0, 45, 6225, 285, "");
    labelTop.foreColor = kWhite;
    labelTop.fontName = "Verdana";
    labelTop.fontSize = 9;
    labelTop.bold = true;
    labelTop.alignment = Alignment::Center;
    // The day arrows lie over the ends of the title bar.
    Control& dayDown = add(ControlKind::PictureBox, "picCalDayDown", "", 120, 480, 315, 330);
    dayDown.picture = "CalDayLeftUp";
    dayDown.toolTip = "Previous day";
    Control& dayUp = add(ControlKind::PictureBox, "picCalDayUp", "", 6300, 480, 315, 330);
    dayUp.picture = "CalDayRightUp";
    dayUp.toolTip = "Next day";
    top.accessibleName = "Selected date";

    // The month calendar.
    AddMonthCalendarControls(*this, "", 6760, 30, state.CalendarCellWidth, state.CalendarCellHeight);
    Control& lock = add(ControlKind::PictureBox, "picLock", "picCalendar", 2355, 2130, 240, 270);
    lock.picture = "Lock";
    lock.visible = false;
    lock.toolTip = "The date stays today in this mode";
    c("picCalendar").focusable = true;

    // The mode's button and panels at the left.
    const std::pair<const char*, const char*> buttons[] = {
        {"ButtonNewAssignment", "New Assignment"}, {"ButtonNewTask", "New Task"}, {"ButtonNewEvent", "New Event"}};
    for (const auto& [name, caption] : buttons) {
        Control& button = add(ControlKind::CommandButton, name, "", 120, 930, 1095, 1125);
        button.caption = caption;
        button.visible = false;
    }
    Control& sessions = add(ControlKind::PictureBox, "PictureBoxStudySessions", "", 120, 930, 1065, 1095);
    sessions.visible = false;
    sessions.backColor = kButtonFace;
    sessions.border = true;
    sessions.accessibleName = "Stopwatch";
    Control& time = addLabel("LabelTime", "PictureBoxStudySessions", 45, 90, 975, 330, "00:00");
    time.fontName = "Courier";
    time.fontSize = 14;
    time.bold = true;
    time.alignment = Alignment::Center;
    time.foreColor = rgb(160, 160, 160);
    add(ControlKind::CommandButton, "ButtonStart", "PictureBoxStudySessions", 90, 480, 885, 270).caption = "Start";
    add(ControlKind::CommandButton, "ButtonReset", "PictureBoxStudySessions", 90, 765, 885, 270).caption = "Reset";
    Control& reminders = add(ControlKind::PictureBox, "PictureBoxReminders", "", 120, 930, 1065, 1095);
    reminders.visible = false;
    reminders.picture = "RemindersPanel";
    reminders.backColor = kButtonFace;
    reminders.border = true;
    reminders.accessibleName = "Today's Reminders";

    // The summary labels and boxes; each mode places and shows its own.
    addLabel("LabelTotalAssignments", "", 1410, 990, 1830, 255, "Total Assignments:");
    addLabel("LabelFinishedAssignments", "", 1410, 1380, 1830, 255, "Unfinished Assignments:");
    addLabel("LabelTimeRemaining", "", 1410, 1770, 1830, 255, "Time Left:");
    for (const char* name : {"TextBoxTotalAssignments", "TextBoxFinishedAssignments", "TextBoxTimeRemaining",
                             "TextBoxStudySessions", "TextBoxStudyTime", "TextBoxTotalTasks", "TextBoxFinishedTasks",
                             "TextBoxClasses", "TextBoxOtherEvents", "TextBoxAssignments", "TextBoxTasks",
                             "TextBoxEvents"})
        summaryBox(*this, name, 930);

    // The term panel and the study time panel share a place.
    Control& term = add(ControlKind::PictureBox, "PictureBoxTerm", "", 4530, 930, 2055, 1605);
    term.backColor = kButtonFace;
    term.border = true;
    term.accessibleName = "Term";
    Control& termName = addLabel("LabelTerm", "PictureBoxTerm", 90, 60, 1875, 255, "");
    termName.bold = true;
    termName.fontName = "Verdana";
    addLabel("LabelDaysLeft", "PictureBoxTerm", 90, 330, 1875, 255, "");
    add(ControlKind::CommandButton, "ButtonSelectTerm", "PictureBoxTerm", 210, 600, 1305, 375).caption =
        "Select Term";
    add(ControlKind::ComboBox, "ComboGPA", "PictureBoxTerm", 120, 1140, 1815, 315).accessibleName = "GPA";
    Control& studyTime = add(ControlKind::PictureBox, "PictureBoxStudyTime", "", 4530, 930, 2055, 1605);
    studyTime.visible = false;
    studyTime.backColor = kButtonFace;
    studyTime.border = true;
    studyTime.accessibleName = "Study Time Today";
    addLabel("LabelStudyTimeToday", "PictureBoxStudyTime", 90, 90, 1875, 255, "Study Time Today").bold = true;
    addLabel("LabelMinimum", "PictureBoxStudyTime", 90, 555, 900, 255, "Minimum:");
    addLabel("LabelSuggested", "PictureBoxStudyTime", 90, 1005, 900, 255, "Suggested:");
    for (auto [name, top] : {std::pair{"TextBoxMinimum", 495}, std::pair{"TextBoxSuggested", 945}}) {
        Control& box = add(ControlKind::TextBox, name, "PictureBoxStudyTime", 1005, top, 930, 315);
        box.locked = true;
        box.alignment = Alignment::Center;
        box.fontName = "Verdana";
        box.bold = true;
        box.text = "00:00";
        box.accessibleName = std::string(name).substr(7);  // "Minimum", "Suggested"
    }

    // The two filter combos.
    Control& views = add(ControlKind::PictureBox, "PictureBoxViewMenus", "", 105, 2235, 4275, 405);
    views.visible = false;
    views.backColor = 0xF0E8E2;
    views.accessibleName = "List filters";
    addLabel("LabelList", "PictureBoxViewMenus", 60, 75, 495, 255, "List:");
    add(ControlKind::ComboBox, "ComboList", "PictureBoxViewMenus", 570, 15, 1335, 315).accessibleName = "List";
    addLabel("LabelDateRange", "PictureBoxViewMenus", 2040, 75, 615, 255, "Range:");
    add(ControlKind::ComboBox, "ComboDateRange", "PictureBoxViewMenus", 2670, 15, 1425, 315).accessibleName = "Range";

    // The list grid, its headers and scroll bar, and the status bar; the layouts of the
    // list view place them by the window's size.
    Control& grid = addDrawable("picGrid", "", 100, 2650, 9280, 3355);
    grid.focusable = true;
    grid.accessibleName = "List";
    for (int i = 0; i < 9; ++i) addDrawable("picColHeader", "picGrid", 0, 0, 600, 300, i);
    Control& scroll = add(ControlKind::ScrollBar, "VSGridScroll", "picGrid", 9025, 0, 255, 3355);
    scroll.minimum = 1;
    scroll.maximum = 1;
    scroll.value = 1;
    scroll.enabled = false;
    scroll.accessibleName = "Scroll the list";
    // The list has the keys; Tab from it goes on to the next control, not to its bar,
    // which would hand the focus straight back.
    scroll.tabStop = false;
    addDrawable("picStatusBar", "", 0, 6105, 9480, 300);

    Control& statusTimer = add(ControlKind::Timer, "TimerStatusBar", "", 0, 0, 0, 0);
    statusTimer.interval = 10000;
    statusTimer.enabled = true;
    add(ControlKind::Timer, "TimerTip", "", 0, 0, 0, 0).interval = 500;
    add(ControlKind::Timer, "TimerDesktopReminders", "", 0, 0, 0, 0).interval = 100;
    add(ControlKind::Timer, "TimerSubscriptions", "", 0, 0, 0, 0).interval = 100;
    add(ControlKind::Timer, "TimerSubscriptionAnswers", "", 0, 0, 0, 0).interval = 1000;
    add(ControlKind::Timer, "Timer1", "", 0, 0, 0, 0).interval = 1000;
    add(ControlKind::Timer, "TimerButton", "", 0, 0, 0, 0).interval = 150;
}

}  // namespace qh
