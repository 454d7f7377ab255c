#pragma once
// The controls of the main window that its routines, the list builders and the probe
// reach, each name spelled here once. The window binds them when it is built, so a name
// it lacks fails its construction, which every test of the window runs.
#include <array>

#include "calendar/month_calendar_controls.h"
#include "platform/control_ref.h"

namespace qh {

struct MainWindowControls {
    explicit MainWindowControls(Form* window) : form(window) {}
    Form* form;  // first: the references below register with it

    // The menus.
    ControlRef MenuHomework{form, "MenuHomework"}, MenuStudySessions{form, "MenuStudySessions"},
        MenuTasks{form, "MenuTasks"}, MenuEvents{form, "MenuEvents"}, MenuReminders{form, "MenuReminders"};
    ControlRef MenuPrintScreen{form, "MenuPrintScreen"}, MenuExportCalendar{form, "MenuExportCalendar"},
        MenuExportList{form, "MenuExportList"}, MenuExportICalendar{form, "MenuExportICalendar"},
        MenuImportICalendar{form, "MenuImportICalendar"}, MenuExit{form, "MenuExit"};
    ControlRef MenuClassSchedule{form, "MenuClassSchedule"}, MenuNewAssignment{form, "MenuNewAssignment"},
        MenuNewTask{form, "MenuNewTask"}, MenuNewEvent{form, "MenuNewEvent"};
    ControlRef MenuStartSat{form, "MenuStartSat"}, MenuStartSun{form, "MenuStartSun"},
        MenuStartMon{form, "MenuStartMon"}, MenuDesktopReminders{form, "MenuDesktopReminders"},
        MenuSubscriptions{form, "MenuSubscriptions"};
    ControlRef MenuHelpDB{form, "MenuHelpDB"}, MenuHomeworkHelp{form, "MenuHomeworkHelp"},
        MenuShowTips{form, "MenuShowTips"}, MenuAbout{form, "MenuAbout"};

    // The mode bar and the panels beside the calendar.
    ControlRef PictureBarHomework{form, "PictureBarHomework"},
        PictureBarStudySessions{form, "PictureBarStudySessions"}, PictureBarTasks{form, "PictureBarTasks"},
        PictureBarEvents{form, "PictureBarEvents"}, PictureBarReminders{form, "PictureBarReminders"},
        PictureBarWeb{form, "PictureBarWeb"}, picHelp{form, "picHelp"};
    ControlRef picCalDayDown{form, "picCalDayDown"}, picCalDayUp{form, "picCalDayUp"};
    ControlRef LabelTop{form, "LabelTop"}, PictureBoxViewMenus{form, "PictureBoxViewMenus"},
        ComboList{form, "ComboList"}, ComboDateRange{form, "ComboDateRange"};
    ControlRef ButtonNewAssignment{form, "ButtonNewAssignment"}, ButtonNewTask{form, "ButtonNewTask"},
        ButtonNewEvent{form, "ButtonNewEvent"};
    ControlRef PictureBoxTerm{form, "PictureBoxTerm"}, LabelTerm{form, "LabelTerm"},
        LabelDaysLeft{form, "LabelDaysLeft"}, ButtonSelectTerm{form, "ButtonSelectTerm"}, ComboGPA{form, "ComboGPA"};
    ControlRef PictureBoxStudySessions{form, "PictureBoxStudySessions"}, LabelTime{form, "LabelTime"},
        ButtonStart{form, "ButtonStart"}, ButtonReset{form, "ButtonReset"};
    ControlRef PictureBoxReminders{form, "PictureBoxReminders"}, picLock{form, "picLock"};
    ControlRef PictureBoxStudyTime{form, "PictureBoxStudyTime"}, TextBoxMinimum{form, "TextBoxMinimum"},
        TextBoxSuggested{form, "TextBoxSuggested"};

    // The summary figures of the five modes and their three labels.
    ControlRef LabelTotalAssignments{form, "LabelTotalAssignments"},
        LabelFinishedAssignments{form, "LabelFinishedAssignments"}, LabelTimeRemaining{form, "LabelTimeRemaining"};
    ControlRef TextBoxTotalAssignments{form, "TextBoxTotalAssignments"},
        TextBoxFinishedAssignments{form, "TextBoxFinishedAssignments"},
        TextBoxTimeRemaining{form, "TextBoxTimeRemaining"}, TextBoxStudySessions{form, "TextBoxStudySessions"},
        TextBoxStudyTime{form, "TextBoxStudyTime"}, TextBoxTotalTasks{form, "TextBoxTotalTasks"},
        TextBoxFinishedTasks{form, "TextBoxFinishedTasks"}, TextBoxClasses{form, "TextBoxClasses"},
        TextBoxOtherEvents{form, "TextBoxOtherEvents"}, TextBoxAssignments{form, "TextBoxAssignments"},
        TextBoxTasks{form, "TextBoxTasks"}, TextBoxEvents{form, "TextBoxEvents"};
    std::array<const ControlRef*, 12> summaryBoxes() const {
        return {&TextBoxTotalAssignments, &TextBoxFinishedAssignments, &TextBoxTimeRemaining, &TextBoxStudySessions,
                &TextBoxStudyTime,        &TextBoxTotalTasks,          &TextBoxFinishedTasks, &TextBoxClasses,
                &TextBoxOtherEvents,      &TextBoxAssignments,         &TextBoxTasks,         &TextBoxEvents};
    }

    // The month calendar, as the editors' date pickers have it.
    MonthCalendarControls calendar{form};

    // The list and the status bar under it.
    ControlRef picGrid{form, "picGrid"}, VSGridScroll{form, "VSGridScroll"}, picStatusBar{form, "picStatusBar"};

    // The timers: the stopwatch, the calendar arrows' repeat, the tip at start, the status
    // bar, the desktop reminders, the feeds' refreshes and the answers waiting for them.
    ControlRef Timer1{form, "Timer1"}, TimerButton{form, "TimerButton"}, TimerTip{form, "TimerTip"},
        TimerStatusBar{form, "TimerStatusBar"}, TimerDesktopReminders{form, "TimerDesktopReminders"},
        TimerSubscriptions{form, "TimerSubscriptions"}, TimerSubscriptionAnswers{form, "TimerSubscriptionAnswers"};
};

}  // namespace qh
