#pragma once
// The view state of the main window: what the calendar shows, the sort and scroll of the
// list, the remembered filter choices and the row columns of the list now shown. Plain
// data; the main window's routines read and write it. It lies here, below the shell,
// because the list builders keep their rows in it and the exports read them.
#include <array>
#include <string>

#include "calendar/month_cells.h"
#include "common/column.h"
#include "common/day_number.h"
#include "common/int16.h"
#include "list_view/refresh_reason.h"
#include "list_view/sort_direction.h"
#include "list_view/text_ranks.h"

namespace qh {

enum class Mode { None, Homework, StudySessions, Tasks, Events, Reminders };
inline constexpr std::size_t kModeCount = 5;  // the modes but None

// Remembered ComboList and ComboDateRange texts of one mode, for the length of a run.
struct ViewChoice {
    std::string List;
    std::string Range;
};

struct MainWindowState {
    Date ClickedDate = 0;
    Date DisplayedDate = 0;
    int DisplayedMonth = 13;
    std::string StartDayOfWeek = "Monday";
    // The mode ticked in the menu; None until the first mode routine ran.
    Mode CurrentMode = Mode::None;
    RefreshReason Refreshing = RefreshReason::None;
    bool SuppressComboEvents = false;
    Int16 SortColumn = 7;
    qh::SortDirection SortDirection = SortDirection::Ascending;
    Int16 RowPitch = 22;
    Int16 TopRow = 1;
    Int16 GridMargin = 100;
    Int16 PressedRow = 0;
    Int16 HeaderHeight = 0;
    Int16 GridBottom = 0;
    Int16 RowsVisible = 0;
    Int16 RowCount = 0;
    // The visible row the keyboard stands on in the grid (framed while the grid has the
    // focus); 0 before the first arrow key.
    Int16 KeyboardRow = 0;
    Int16 CalendarCellWidth = 300;
    Int16 CalendarCellHeight = 225;
    Int16 ButtonRepeatInterval = 300;
    std::int32_t ProcessID = 0;
    bool FirstModeSetup = false;
    std::string StatusBarText;
    std::string ShowTipsAtStartup = "Yes";
    Int16 CurrentTip = 0;

    MainWindowColors Colors;
    ViewChoice SavedHomework, SavedStudySessions, SavedTasks, SavedEvents, SavedReminders;

    // The month calendar, rebuilt by BuildCalendar.
    std::array<std::string, 42> CellCaptions{};
    std::array<std::string, 42> CellForeColors{};
    std::array<std::string, 42> CellBackColors{};
    std::array<bool, 42> CellBold{};
    std::array<bool, 42> CellIsToday{};
    std::array<bool, 42> CellMarked{};
    std::array<Date, 50> CalendarDates{};
    bool CalButtonUp = false, CalButtonForward = false, CalButtonMonth = false;

    // The stopwatch: the moment of the last start and the seconds counted.
    Moment StopwatchStart;
    double StopwatchRun = 0, StopwatchTotal = 0;
    long long StopwatchHours = 0, StopwatchMinutes = 0, StopwatchSeconds = 0;
    bool StopwatchShowSeconds = false;

    // Row columns of the list now shown; the first of each set maps a list position to a
    // row of the record store.
    Column<int> ListAssignmentRows;
    TextColumn ListClassNames, ListForeColors, ListBackColors, ListTimes;
    Column<int> ListSessionRows, ListSessionLengthRows, ListSessionDateRows;
    Column<int> ListTaskRows;
    TextColumn ListTaskForeColors, ListTaskBackColors;
    Column<int> ListEventRows;
    Column<Date> ListEventDates;
    TextColumn ListEventForeColors, ListEventBackColors;
    Column<int> ReminderRecords;
    TextColumn ReminderKinds, ReminderForeColors, ReminderBackColors, ReminderClasses, ReminderTypes,
        ReminderDescriptions;
    Column<Int16> ReminderDays;
    Column<Date> ReminderDates;
    // The order of the texts the list was last sorted by, so that a scroll step need not
    // compare them again.
    TextRanks ListSortRanks;
};

}  // namespace qh
