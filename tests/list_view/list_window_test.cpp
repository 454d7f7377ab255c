// Each list in the window: the rows it paints in their colours, the records a click on them
// opens, the title over the list and the summary boxes beside it; scrolling. The calendar's
// tint for each list is in the probe script calendar_tint_of_each_list.
#include <gtest/gtest.h>

#include <functional>

#include "list_view/list_fixture.h"
#include "recurrence/event_records.h"
#include "support/main_window_fixture.h"

namespace qh {
namespace {

using namespace qh::testing;
using test::addEvent;

// On Saturday, November 21, 2026 (the fake clock's today), in record order: three tasks to
// be reminded of (tomorrow, two days ago, yesterday) and two that are not (undated, done);
// homework due today and in five days; an event in three days and one that is past.
void addReminders(ListWindow& l) {
    RecordStore& s = l.store;
    addClass(s, 1, "Biology", "Navy", "MistyRose");
    addClass(s, 2, "Art", "Black", "Lavender");
    addTask(s, {.description = "Return books", .date = "2026/11/22", .type = "Work", .reminder = "1 Day"});
    addTask(s, {.description = "Pay fee", .date = "2026/11/19", .type = "None"});
    addTask(s, {.description = "Call home", .date = "2026/11/20", .type = "Home"});
    addTask(s, {.description = "Undated", .dated = false});
    addTask(s, {.description = "Done already", .done = true});
    addAssignment(s, {.classLink = 1, .description = "Cell diagram", .reminder = "1 Day"});
    addAssignment(s, {.classLink = 2, .date = "2026/11/26", .description = "Sketch", .reminder = "7 Days"});
    addEvent(s, {.date = "2026/11/24", .type = "Birthday", .reminder = "5 Days", .description = "Ana"});
    addEvent(s, {.date = "2026/11/20", .reminder = "3 Days", .description = "Gone"});
}

void addEventsAroundTheDay(ListWindow& l) {
    addEvent(l.store, {.date = "2026/11/07",
                       .recurrence = "Day",
                       .repeatDaily = "FFFFFTF",
                       .type = "Class",
                       .description = "Lab"});  // Saturdays
    addEvent(l.store, {.date = "2026/11/21", .type = "Birthday", .description = "Ana"});
    addEvent(l.store, {.date = "2026/11/22", .type = "Work"});
    addEvent(l.store, {.date = "2026/11/21", .type = "Work", .description = "DELETED RECORD"});
    addEvent(l.store, {.date = "2025/11/21", .recurrence = "Year", .description = "Fair"});
}

// The summary boxes of each mode.
using Ui = MainWindowControls;
const std::vector<ControlRef Ui::*> kBoxes[] = {
    {&Ui::TextBoxTotalAssignments, &Ui::TextBoxFinishedAssignments, &Ui::TextBoxTimeRemaining},
    {&Ui::TextBoxStudySessions, &Ui::TextBoxStudyTime},
    {&Ui::TextBoxTotalTasks, &Ui::TextBoxFinishedTasks},
    {&Ui::TextBoxClasses, &Ui::TextBoxOtherEvents},
    {&Ui::TextBoxAssignments, &Ui::TextBoxTasks, &Ui::TextBoxEvents}};

// The summary boxes as "text colour, ...".
std::string boxes(ListWindow& list) {
    std::string shown;
    for (const auto ref : kBoxes[int(list.mode) - 1]) {
        const Control& box = *(list.window.ui.*ref);
        const Color back = box.backColor;
        shown += (shown.empty() ? "" : ", ") + box.text + " " +
                 (back == kWhite ? "white" : back == kOpenWorkPink ? "pink" : back == kAllDoneGreen ? "green" : "?");
    }
    return shown;
}

// The rows of the list as the fixture shows them, each with the record row it opens.
std::vector<std::string> rows(ListWindow& list) {
    const MainWindowState& s = list.window.state;
    const std::vector<int> records = list.mode == Mode::Tasks       ? asInts(s.ListTaskRows)
                                     : list.mode == Mode::Events    ? asInts(s.ListEventRows)
                                     : list.mode == Mode::Reminders ? asInts(s.ReminderRecords)
                                                                    : asInts(s.ListAssignmentRows);
    std::vector<std::string> shown;
    for (int v = 1; v <= std::min(s.RowCount, s.RowsVisible); ++v) {
        EXPECT_EQ(list.cellFore(v, 0), kBlack) << "the number of row " << v;
        shown.push_back(list.row(v) + " #" + std::to_string(v <= int(records.size()) ? records[v - 1] : 0));
    }
    return shown;
}

// Clicks visible row k (press and release on it) and answers what its number cell showed
// afterwards: the painted number, then the marked and the plain one around the editor.
std::string clickRow(ListWindow& list, int k) {
    const int y = 300 + (k - 1) * 330 + 100;
    list.window.press(list.window.ui.picGrid.key(), {1, 0, 500, y});
    list.window.release(list.window.ui.picGrid.key(), {1, 0, 500, y});
    return list.cell(k, 0);
}

TEST(Lists, EachListPaintsNamesAndSumsItsRowsAndAClickOpensTheirRecords) {
    const struct {
        const char* name;
        Mode mode;
        const char *list, *range;
        std::function<void(ListWindow&)> setup;
        std::vector<std::string> rows;  // cells, colours and record of each row, as rows() gives them
        const char* summary;            // the title over the list | the boxes beside it
    } cases[] = {
        {"Homework", Mode::Homework, "All", "Term",
         [](ListWindow& l) {
             addClass(l.store, 1, "Introduction to Chemistry", "Navy", "MistyRose");
             addAssignment(l.store, {.description = "Lab report", .done = true, .grade = " B+ "});
             addAssignment(l.store, {.date = "2026/11/23", .description = "Read chapter 4", .estimate = "01 : 30"});
             addSession(l.store, 2, "00 : 20");
         },
         // Unfinished first; 0.35 of the width left holds 14 characters of the class.
         {"1| Introduction |Homework| Read chapter 4|Medium|01:10|23-Nov-26|Unchecked| Navy/MistyRose #2",
          "2| Introduction |Homework| Lab report|Medium|00:00|21-Nov-26|Checked|B+ Navy/MistyRose #1"},
         "Homework for Fall 2026 | 2 white, 1 pink, 01:10 pink"},
        // The class entries move up by one where a class is missing; sorted, each row keeps
        // what it showed.
        {"HomeworkOfAMissingClass", Mode::Homework, "All", "Day",
         [](ListWindow& l) {
             addClass(l.store, 1, "Art", "Black", "Gold");
             addAssignment(l.store, {.classLink = 7, .description = "Orphan", .done = true});
             addAssignment(l.store, {.description = "Second"});
         },
         {"1| |Homework| Second|Medium|01:00|21-Nov-26|Unchecked| Black/White #2",
          "2| Art|Homework| Orphan|Medium|00:00|21-Nov-26|Checked| Black/Gold #1"},
         "Homework for Saturday, November 21, 2026 | 2 white, 1 pink, 01:00 pink"},
        // Without a term there is no homework to name.
        {"NoHomework", Mode::Homework, "All", "Term", [](ListWindow& l) { l.store.CurrentTermName.clear(); }, {},
         " | 0 white, 0 white, 00:00 white"},
        {"HomeworkAllDone", Mode::Homework, "Not Done", "Term", [](ListWindow& l) { addAssignment(l.store, {.done = true}); },
         {}, "Homework for Fall 2026 | 1 white, 0 green, 00:00 green"},
        // Sorted by "Done On"; the session of a missing assignment shows none and opens none.
        {"StudySessions", Mode::StudySessions, "All", "Term",
         [](ListWindow& l) {
             addClass(l.store, 1, "Biology", "Black", "Lavender");
             addAssignment(l.store, {.date = "2026/11/25", .description = "Essay"});
             addSession(l.store, 1, "01 : 30", "2026/11/20");
             addSession(l.store, 1, "00 : 15", "2026/11/18");
             addSession(l.store, 9, "00 : 20", "2026/11/19");
         },
         {"1| Biology|Homework| Essay|Medium|00:15|18-Nov-26|25-Nov-26 Black/Lavender #1",
          "2| || ||00:20|19-Nov-26| Black/White #0",
          "3| Biology|Homework| Essay|Medium|01:30|20-Nov-26|25-Nov-26 Black/Lavender #1"},
         "Study for Fall 2026 | 3 white, 02:05 white"},
        // Sorted by "Done"; "None" and a missing date leave their cells empty.
        {"Tasks", Mode::Tasks, "All", "All",
         [](ListWindow& l) {
             addTask(l.store, {.description = "Finished", .type = "Work", .priority = "High", .done = true});
             addTask(l.store, {.description = "Someday", .dated = false, .type = "None", .priority = "None"});
         },
         {"1| Someday||||Unchecked Black/White #2", "2| Finished|Work|High|21-Nov-26|Checked Black/PaleTurquoise #1"},
         "All Tasks | 2 white, 1 pink"},
        {"NoTasks", Mode::Tasks, "All", "With Date", [](ListWindow&) {}, {}, "All Tasks with Dates | 0 white, 0 white"},
        {"TasksAllDone", Mode::Tasks, "Not Done", "Day", [](ListWindow& l) { addTask(l.store, {.done = true}); }, {},
         "Tasks for Saturday, November 21, 2026 | 1 white, 0 green"},
        {"EventsOfTheDay", Mode::Events, "All", "Day", addEventsAroundTheDay,
         {"1| Lab|Class|21-Nov-26||Day Black/LightYellow #1", "2| Ana|Birthday|21-Nov-26|| Black/Gold #2",
          "3| Fair||21-Nov-26||Year Black/White #5"},
         "Events for Saturday, November 21, 2026 | 1 white, 2 white"},
        // One row per occurrence; the boxes count both kinds whatever the filter shows.
        {"ClassesOfTheWeek", Mode::Events, "Classes", "Week", addEventsAroundTheDay,
         {"1| Lab|Class|21-Nov-26||Day Black/LightYellow #1", "2| Lab|Class|28-Nov-26||Day Black/LightYellow #1"},
         "Events until Saturday, November 28, 2026 | 2 white, 3 white"},
        // A yearly event shows the date of its occurrence; a time that reads as none shows
        // as it stands.
        {"EventsOfTheYear", Mode::Events, "All", "Year",
         [](ListWindow& l) {
             RecordStore& s = l.store;
             s.EventTimes(addEvent(s, {.date = "2001/11/23", .recurrence = "Year", .type = "Birthday",
                                       .description = "Grandma"})) = "9:05 PM";
             s.EventTimes(addEvent(s, {.date = "2026/11/21", .description = "Dentist"})) = "None";
             s.EventTimes(addEvent(s, {.date = "2026/11/22", .type = "Work", .description = "Shift"})) = "7:30";
             s.EventTimes(addEvent(s, {.date = "2026/11/23", .description = "Lunch"})) = "after lunch";
         },
         {"1| Dentist||21-Nov-26|| Black/White #2", "2| Shift|Work|22-Nov-26|07:30 AM| Black/PaleTurquoise #3",
          "3| Grandma|Birthday|23-Nov-26|09:05 PM|Year Black/Gold #1", "4| Lunch||23-Nov-26|after lunch| Black/White #4"},
         "Events until Saturday, November 20, 2027 | 0 white, 4 white"},
        // Soonest first; homework in its class's colours, the others a blank class on the
        // colour of their type. An event is never open work.
        {"Reminders", Mode::Reminders, "All", "Today", addReminders,
         {"1|Task| |None| Pay fee|2 Days Ago|19-Nov-26 Black/White #2",
          "2|Task| |Home| Call home|Yesterday|20-Nov-26 Black/MistyRose #3",
          "3|Homework| Biology|Homework| Cell diagram|Today|21-Nov-26 Navy/MistyRose #1",
          "4|Task| |Work| Return books|Tomorrow|22-Nov-26 Black/PaleTurquoise #1",
          "5|Event| |Birthday| Ana|3 Days|24-Nov-26 Black/Gold #1",
          "6|Homework| Art|Homework| Sketch|5 Days|26-Nov-26 Black/Lavender #2"},
         "Reminders for Saturday, November 21, 2026 | 2 pink, 3 pink, 1 white"},
        {"NothingToRemind", Mode::Reminders, "All", "Today",
         [](ListWindow& l) {
             addReminders(l);
             l.window.state.ClickedDate = dateFromYmd(2026, 11, 1);
         },
         {}, "Reminders for Sunday, November 1, 2026 | 0 white, 0 white, 0 white"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        ListWindow list(c.mode);
        list.filters(c.list, c.range);
        list.store.CurrentTermName = "Fall 2026";
        c.setup(list);
        for (const auto box : kBoxes[int(c.mode) - 1]) (list.window.ui.*box)->backColor = 0x123456;
        list.build();
        EXPECT_EQ(rows(list), c.rows);
        EXPECT_EQ(list.window.ui.LabelTop->caption + " | " + boxes(list), c.summary);
        // A click on a row opens its record, marking the row's number meanwhile; a row
        // without a record and the line below the rows mark nothing.
        for (int v = 1; v <= int(c.rows.size()) + 1; ++v) {
            const std::string n = v <= int(c.rows.size()) ? std::to_string(v) : "";
            const bool opens = !n.empty() && !c.rows[std::size_t(v - 1)].ends_with(" #0");
            EXPECT_EQ(clickRow(list, v), opens ? n + "|" + n + "|" + n : n) << "a click on row " << v;
        }
    }
}

TEST(Lists, AScrollStepGathersAnewAndAClickMarksTheListPositionOfItsRow) {
    ListWindow list(Mode::Homework);
    list.filters("All", "Term");
    for (int i = 1; i <= 20; ++i) addAssignment(list.store, {.description = "Item " + std::to_string(i)});
    list.build();
    list.store.AssignmentDescriptions(6) = "Changed";
    list.window.scrollTo(list.window.ui.VSGridScroll.key(), 5);
    EXPECT_EQ(list.cell(2, 3), " Changed");
    EXPECT_EQ(list.cell(9, 3), " Item 13");
    EXPECT_EQ(list.cell(10, 3), "");  // no row is painted below the last whole one
    // Painted with the row, then white on black while the editor is open, then plain.
    EXPECT_EQ(clickRow(list, 2), "6|6|6");
    std::string boxes;
    for (const CanvasCall& call : list.grid().calls())
        if (call.kind == CanvasCall::FilledBox && call.x1 == 15) boxes += call.color == kBlack ? "black " : "white ";
    EXPECT_EQ(boxes, "black white ");
    EXPECT_EQ(list.cellFore(2, 0), kBlack);

    list.window.click("picColHeader(3)");  // a sort returns to the top
    EXPECT_EQ(list.window.ui.VSGridScroll->value, 1);
    EXPECT_EQ(list.cell(1, 0), "1");
    EXPECT_EQ(list.cell(1, 3), " Changed");
}

}  // namespace
}  // namespace qh
