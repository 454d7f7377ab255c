// The controls and menus of the main window at their load places (twips, client area).
#include "calendar/calendar_binder.h"
#include "common/text.h"
#include "list_view/grid.h"
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
    addMenu(ui.MenuReminders.key(), "MenuFile", "Today's Reminders");
    addMenu(ui.MenuHomework.key(), "MenuFile", "Homework");
    addMenu(ui.MenuStudySessions.key(), "MenuFile", "Study Sessions");
    addMenu(ui.MenuTasks.key(), "MenuFile", "Tasks");
    addMenu(ui.MenuEvents.key(), "MenuFile", "Events");
    addMenu("MenuFileSep1", "MenuFile", "-");
    addMenu(ui.MenuPrintScreen.key(), "MenuFile", "Print Screen...");
    addMenu("MenuExport", "MenuFile", "Export for Printing");
    addMenu(ui.MenuExportCalendar.key(), "MenuExport", "Calendar...");
    addMenu(ui.MenuExportList.key(), "MenuExport", "Current List...");
    addMenu(ui.MenuExportICalendar.key(), "MenuFile", "Export iCalendar...");
    addMenu(ui.MenuImportICalendar.key(), "MenuFile", "Import iCalendar...");
    addMenu("MenuFileSep2", "MenuFile", "-");
    addMenu(ui.MenuExit.key(), "MenuFile", "Exit");

    addMenu("MenuEdit", "", "Edit");
    addMenu(ui.MenuClassSchedule.key(), "MenuEdit", "Class Schedule...");
    addMenu(ui.MenuNewAssignment.key(), "MenuEdit", "New Assignment...");
    addMenu("MenuEditSep1", "MenuEdit", "-");
    addMenu(ui.MenuNewTask.key(), "MenuEdit", "New Task...");
    addMenu(ui.MenuNewEvent.key(), "MenuEdit", "New Event...");

    addMenu("MenuOptions", "", "Options");
    addMenu("MenuStartDay", "MenuOptions", "Start Day of Week");
    addMenu(ui.MenuStartSat.key(), "MenuStartDay", "Saturday");
    addMenu(ui.MenuStartSun.key(), "MenuStartDay", "Sunday");
    addMenu(ui.MenuStartMon.key(), "MenuStartDay", "Monday");
    addMenu(ui.MenuDesktopReminders.key(), "MenuOptions", "Desktop Reminders");
    addMenu(ui.MenuSubscriptions.key(), "MenuOptions", "Calendar Subscriptions...");

    addMenu("MenuHelp", "", "Help");
    addMenu(ui.MenuHelpDB.key(), "MenuHelp", "Help");
    addMenu("MenuVideos", "MenuHelp", "Video Tutorials");
    addMenu("MenuVideo1", "MenuVideos", "1) Add a Class Schedule");
    addMenu("MenuVideo2", "MenuVideos", "2) Add an Assignment");
    addMenu("MenuVideo3", "MenuVideos", "3) Finish an Assignment");
    addMenu(ui.MenuHomeworkHelp.key(), "MenuHelp", "Online Homework Help");
    addMenu("MenuHelpSep1", "MenuHelp", "-");
    addMenu(ui.MenuShowTips.key(), "MenuHelp", "Show Tips at Startup...");
    addMenu(ui.MenuAbout.key(), "MenuHelp", "About Quillhollow...");

    // The usual keys; the menus show them beside the entries. Ctrl+N makes a record of the
    // mode: only the entry of the mode is enabled at any time.
    const std::pair<const ControlRef*, const char*> shortcuts[] = {
        {&ui.MenuReminders, "Ctrl+1"},     {&ui.MenuHomework, "Ctrl+2"},      {&ui.MenuStudySessions, "Ctrl+3"},
        {&ui.MenuTasks, "Ctrl+4"},         {&ui.MenuEvents, "Ctrl+5"},        {&ui.MenuPrintScreen, "Ctrl+P"},
        {&ui.MenuExportList, "Ctrl+E"},    {&ui.MenuExit, "Ctrl+Q"},          {&ui.MenuNewAssignment, "Ctrl+N"},
        {&ui.MenuNewTask, "Ctrl+N"},       {&ui.MenuNewEvent, "Ctrl+N"},      {&ui.MenuHelpDB, "F1"}};
    for (const auto& [menu, keys] : shortcuts) c(menu->key()).shortcut = keys;
}

void MainWindow::buildControls() {
    // The mode bar and the buttons beside the title bar.
    const ControlRef* bars[] = {&ui.PictureBarReminders, &ui.PictureBarHomework, &ui.PictureBarStudySessions,
                                &ui.PictureBarTasks, &ui.PictureBarEvents};
    const char* tips[] = {" Today's Reminders ", "Homework", "Study Sessions", "Tasks", "Events"};
    for (int i = 0; i < 5; ++i) {
        Control& bar = add(ControlKind::PictureBox, bars[i]->key(), "", 120 + 600 * i, 15, 465, 345);
        bar.tag = tips[i];
        bar.backColor = kButtonFace;
        bar.toolTip = trim(tips[i]);
    }
    Control& web = add(ControlKind::PictureBox, ui.PictureBarWeb.key(), "", 5580, 15, 465, 345);
    web.picture = "Web";
    web.toolTip = "Online Homework Help";
    Control& help = add(ControlKind::PictureBox, ui.picHelp.key(), "", 6285, 30, 315, 240);
    help.picture = "Help";
    help.toolTip = "What's This? Click here, then on any part of the window";
    help.accessibleName = "What's This?";
    Control& top = add(ControlKind::PictureBox, "picTop", "", 240, 480, 6225, 330);
    top.backColor = 0x7F4F2F;
    Control& labelTop = addLabel(ui.LabelTop.key(), "picTop", 0, 45, 6225, 285, "");
    labelTop.foreColor = kWhite;
    labelTop.fontName = "Verdana";
    labelTop.fontSize = 9;
    labelTop.bold = true;
    labelTop.alignment = Alignment::Center;
    // The day arrows lie over the ends of the title bar.
    Control& dayDown = add(ControlKind::PictureBox, ui.picCalDayDown.key(), "", 120, 480, 315, 330);
    dayDown.picture = "CalDayLeftUp";
    dayDown.toolTip = "Previous day";
    Control& dayUp = add(ControlKind::PictureBox, ui.picCalDayUp.key(), "", 6300, 480, 315, 330);
    dayUp.picture = "CalDayRightUp";
    dayUp.toolTip = "Next day";
    top.accessibleName = "Selected date";

    // The month calendar.
    Control& calendar =
        AddMonthCalendarControls(ui.calendar, "", 6760, 30, state.CalendarCellWidth, state.CalendarCellHeight);
    Control& lock = add(ControlKind::PictureBox, ui.picLock.key(), ui.calendar.picCalendar.key(), 2355, 2130, 240, 270);
    lock.picture = "Lock";
    lock.visible = false;
    lock.toolTip = "The date stays today in this mode";
    calendar.focusable = true;

    // The mode's button and panels at the left.
    const std::pair<const ControlRef*, const char*> buttons[] = {{&ui.ButtonNewAssignment, "New Assignment"},
                                                                 {&ui.ButtonNewTask, "New Task"},
                                                                 {&ui.ButtonNewEvent, "New Event"}};
    for (const auto& [name, caption] : buttons) {
        Control& button = add(ControlKind::CommandButton, name->key(), "", 120, 930, 1095, 1125);
        button.caption = caption;
        button.visible = false;
    }
    Control& sessions = add(ControlKind::PictureBox, ui.PictureBoxStudySessions.key(), "", 120, 930, 1065, 1095);
    sessions.visible = false;
    sessions.backColor = kButtonFace;
    sessions.border = true;
    sessions.accessibleName = "Stopwatch";
    Control& time = addLabel(ui.LabelTime.key(), ui.PictureBoxStudySessions.key(), 45, 90, 975, 330, "00:00");
    time.fontName = "Courier";
    time.fontSize = 14;
    time.bold = true;
    time.alignment = Alignment::Center;
    time.foreColor = rgb(160, 160, 160);
    add(ControlKind::CommandButton, ui.ButtonStart.key(), ui.PictureBoxStudySessions.key(), 90, 480, 885, 270).caption = "Start";
    add(ControlKind::CommandButton, ui.ButtonReset.key(), ui.PictureBoxStudySessions.key(), 90, 765, 885, 270).caption = "Reset";
    Control& reminders = add(ControlKind::PictureBox, ui.PictureBoxReminders.key(), "", 120, 930, 1065, 1095);
    reminders.visible = false;
    reminders.picture = "RemindersPanel";
    reminders.backColor = kButtonFace;
    reminders.border = true;
    reminders.accessibleName = "Today's Reminders";

    // The summary labels and boxes; each mode places and shows its own.
    addLabel(ui.LabelTotalAssignments.key(), "", 1410, 990, 1830, 255, "Total Assignments:");
    addLabel(ui.LabelFinishedAssignments.key(), "", 1410, 1380, 1830, 255, "Unfinished Assignments:");
    addLabel(ui.LabelTimeRemaining.key(), "", 1410, 1770, 1830, 255, "Time Left:");
    for (const ControlRef* box : ui.summaryBoxes()) summaryBox(*this, box->key(), 930);

    // The term panel and the study time panel share a place.
    Control& term = add(ControlKind::PictureBox, ui.PictureBoxTerm.key(), "", 4530, 930, 2055, 1605);
    term.backColor = kButtonFace;
    term.border = true;
    term.accessibleName = "Term";
    Control& termName = addLabel(ui.LabelTerm.key(), ui.PictureBoxTerm.key(), 90, 60, 1875, 255, "");
    termName.bold = true;
    termName.fontName = "Verdana";
    addLabel(ui.LabelDaysLeft.key(), ui.PictureBoxTerm.key(), 90, 330, 1875, 255, "");
    add(ControlKind::CommandButton, ui.ButtonSelectTerm.key(), ui.PictureBoxTerm.key(), 210, 600, 1305, 375).caption =
        "Select Term";
    add(ControlKind::ComboBox, ui.ComboGPA.key(), ui.PictureBoxTerm.key(), 120, 1140, 1815, 315).accessibleName = "GPA";
    Control& studyTime = add(ControlKind::PictureBox, ui.PictureBoxStudyTime.key(), "", 4530, 930, 2055, 1605);
    studyTime.visible = false;
    studyTime.backColor = kButtonFace;
    studyTime.border = true;
    studyTime.accessibleName = "Study Time Today";
    addLabel("LabelStudyTimeToday", ui.PictureBoxStudyTime.key(), 90, 90, 1875, 255, "Study Time Today").bold = true;
    addLabel("LabelMinimum", ui.PictureBoxStudyTime.key(), 90, 555, 900, 255, "Minimum:");
    addLabel("LabelSuggested", ui.PictureBoxStudyTime.key(), 90, 1005, 900, 255, "Suggested:");
    for (auto [name, top] : {std::pair{&ui.TextBoxMinimum, 495}, std::pair{&ui.TextBoxSuggested, 945}}) {
        Control& box = add(ControlKind::TextBox, name->key(), ui.PictureBoxStudyTime.key(), 1005, top, 930, 315);
        box.locked = true;
        box.alignment = Alignment::Center;
        box.fontName = "Verdana";
        box.bold = true;
        box.text = "00:00";
        box.accessibleName = name->key().substr(7);  // "Minimum", "Suggested"
    }

    // The two filter combos.
    Control& views = add(ControlKind::PictureBox, ui.PictureBoxViewMenus.key(), "", 105, 2235, 4275, 405);
    views.visible = false;
    views.backColor = 0xF0E8E2;
    views.accessibleName = "List filters";
    addLabel("LabelList", ui.PictureBoxViewMenus.key(), 60, 75, 495, 255, "List:");
    add(ControlKind::ComboBox, ui.ComboList.key(), ui.PictureBoxViewMenus.key(), 570, 15, 1335, 315).accessibleName = "List";
    addLabel("LabelDateRange", ui.PictureBoxViewMenus.key(), 2040, 75, 615, 255, "Range:");
    add(ControlKind::ComboBox, ui.ComboDateRange.key(), ui.PictureBoxViewMenus.key(), 2670, 15, 1425, 315).accessibleName = "Range";

    // The list grid, its headers and scroll bar, and the status bar; the layouts of the
    // list view place them by the window's size.
    Control& grid = addDrawable(ui.picGrid.key(), "", 100, 2650, 9280, 3355);
    grid.focusable = true;
    grid.accessibleName = "List";
    for (int i = 0; i < kGridHeaderCount; ++i) addDrawable("picColHeader", ui.picGrid.key(), 0, 0, 600, 300, i);
    Control& scroll = add(ControlKind::ScrollBar, ui.VSGridScroll.key(), ui.picGrid.key(), 9025, 0, 255, 3355);
    scroll.minimum = 1;
    scroll.maximum = 1;
    scroll.value = 1;
    scroll.enabled = false;
    scroll.accessibleName = "Scroll the list";
    // The list has the keys; Tab from it goes on to the next control, not to its bar,
    // which would hand the focus straight back.
    scroll.tabStop = false;
    addDrawable(ui.picStatusBar.key(), "", 0, 6105, 9480, 300);

    Control& statusTimer = add(ControlKind::Timer, ui.TimerStatusBar.key(), "", 0, 0, 0, 0);
    statusTimer.interval = 10000;
    statusTimer.enabled = true;
    add(ControlKind::Timer, ui.TimerTip.key(), "", 0, 0, 0, 0).interval = 500;
    add(ControlKind::Timer, ui.TimerDesktopReminders.key(), "", 0, 0, 0, 0).interval = 100;
    add(ControlKind::Timer, ui.TimerSubscriptions.key(), "", 0, 0, 0, 0).interval = 100;
    add(ControlKind::Timer, ui.TimerSubscriptionAnswers.key(), "", 0, 0, 0, 0).interval = 1000;
    add(ControlKind::Timer, ui.Timer1.key(), "", 0, 0, 0, 0).interval = 1000;
    add(ControlKind::Timer, ui.TimerButton.key(), "", 0, 0, 0, 0).interval = 150;
}

}  // namespace qh
