#include "shell/help_topics.h"

#include <algorithm>

#include "shell/web_addresses.h"

namespace qh {

const std::vector<HelpTopic>& HelpTopics() {
    static const std::vector<HelpTopic> topics{
        // The main window.
        {101, "assignment_editor.html", "New Assignment: adds homework due on the day selected in the calendar."},
        {102, "event_editor.html", "New Event: adds a class, a birthday or any other event on the selected day."},
        {103, "task_editor.html", "New Task: adds a to-do item, with or without a date."},
        {104, "select_term.html",
         "Select Term: choose the active term, make a new one, or edit the classes of a term."},
        {105, "list_view.html#range", "Range: which days the list shows, for example the selected Day or the whole Term."},
        {106, "gpa.html", "GPA: your grade point average for each class of the term and for the term as a whole."},
        {107, "list_view.html#list", "List: which records the list shows, for example only the ones still Not Done."},
        {108, "list_view.html#grid",
         "The list: click a row to open it, click a column name to sort by it, click again to reverse the order."},
        {109, "whats_this.html", "The question mark: click it, then click anything in the window to learn what it does."},
        {110, "calendar.html#day-arrows", "One day back. Hold the button down and the days keep going back."},
        {111, "calendar.html#day-arrows", "One day forward. Hold the button down and the days keep going forward."},
        {112, "calendar.html#month-arrows", "One month back in the calendar."},
        {113, "calendar.html#month-arrows", "One month forward in the calendar."},
        {115, "calendar.html#start-day", "The days of the week. Click one to start the week on that day."},
        {116, "term_panel.html#days-left", "How many days remain until the active term ends."},
        {117, "calendar.html#month-arrows", "The month the calendar shows."},
        {118, "term_panel.html", "The active term. Its classes are the ones you can give assignments to."},
        {119, "calendar.html#today", "Today: jumps the calendar back to today's date."},
        {120, "calendar.html#today", "Tomorrow: selects tomorrow's date."},
        {121, "main_window.html#title-bar", "The Title Bar: the selected date, or what the list shows."},
        {122, "calendar.html",
         "The calendar: click a day to select it. Coloured days have something due; today has a black box."},
        {123, "modes.html#events", "Events: shows your events and classes."},
        {124, "modes.html#homework", "Homework: shows your assignments, their due dates and study time."},
        {125, "modes.html#reminders", "Today's Reminders: everything that needs your attention today."},
        {126, "modes.html#study-sessions", "Study Sessions: shows how much time you studied and when."},
        {127, "modes.html#tasks", "Tasks: shows your to-do list."},
        {128, "reminders.html", "Today's reminders: the day's count of assignments, tasks and events."},
        {129, "stopwatch.html", "The study stopwatch: Start, stop and Reset it to time a study session."},
        {133, "main_window.html#status-bar", "The Status Bar: the current mode, the date and the time."},
        {134, "summary_boxes.html#reminders", "The number of assignments in today's reminders."},
        {135, "summary_boxes.html#events", "The number of class events in the list."},
        {136, "summary_boxes.html#reminders", "The number of events in today's reminders."},
        {137, "summary_boxes.html#homework", "The number of assignments in the list that are not done yet."},
        {138, "summary_boxes.html#tasks", "The number of tasks in the list that are not done yet."},
        {139, "study_time.html", "Minimum: the least you should study today to finish everything on time."},
        {140, "summary_boxes.html#events", "The number of events in the list that are not classes."},
        {141, "summary_boxes.html#study-sessions", "The number of study sessions in the list."},
        {142, "summary_boxes.html#study-sessions", "The total time of the study sessions in the list."},
        {143, "study_time.html", "Suggested: the study time that spreads your work evenly over the days left."},
        {144, "summary_boxes.html#reminders", "The number of tasks in today's reminders."},
        {145, "summary_boxes.html#homework", "The study time still needed for the assignments in the list."},
        {146, "summary_boxes.html#homework", "The number of assignments in the list."},
        {147, "summary_boxes.html#tasks", "The number of tasks in the list."},
        {148, "calendar.html#lock", "The padlock: in Today's Reminders the calendar stays on today."},
        {149, "homework/index.html", "Online Homework Help: study tips and where to find help with homework."},

        // The assignment window.
        {201, "assignment_editor.html#buttons", "Cancel: closes the window without saving your changes."},
        {202, "assignment_editor.html#buttons", "Delete: removes this assignment, after asking you."},
        {203, "assignment_editor.html#buttons", "OK: saves the assignment and closes the window."},
        {204, "study_sessions.html", "Add: records a study session of the chosen length on the chosen date."},
        {205, "study_sessions.html", "Delete: removes the study session selected in the list."},
        {206, "assignment_editor.html#share", "Share: saves the assignment as a file you can send to a classmate."},
        {207, "assignment_editor.html#done",
         "Done: tick it when the assignment is finished. It needs at least one study session first."},
        {208, "assignment_editor.html#class", "Class: the class of the active term this assignment belongs to."},
        {209, "assignment_editor.html#details", "Difficulty: how hard you expect the assignment to be."},
        {210, "assignment_editor.html#details", "Estimated Time: how long you think the assignment will take."},
        {211, "gpa.html", "Grade: the grade you got. It counts towards your GPA."},
        {212, "assignment_editor.html#reminder", "Advance Notice: how many days before the due date to remind you."},
        {213, "study_sessions.html", "Study Time: the length of the study session to add."},
        {214, "assignment_editor.html#details", "Type: assignment, test, quiz, reading, study, report or project."},
        {215, "gpa.html#weight", "Percent: how much this assignment weighs in the class grade."},
        {216, "assignment_editor.html#due-date", "Due Date: click the button beside it to pick a day."},
        {217, "study_sessions.html", "Study Date: the day of the study session to add."},
        {218, "whats_this.html", "The question mark: click it, then click anything in the window to learn what it does."},
        {230, "study_sessions.html", "The study sessions of this assignment, with their dates and lengths."},
        {231, "assignment_editor.html#details", "Description: what the assignment is, in a few words."},
        {232, "assignment_editor.html#details", "Notes: anything else you want to remember about it."},
        {233, "study_sessions.html#time-left", "Time Left: the estimated time minus the time you studied."},
        {234, "study_sessions.html#time-left", "Total Study Time: all the study sessions added together."},

        // The term selection window.
        {401, "select_term.html", "The terms you have made, the newest first."},
        {402, "select_term.html", "Choose the term in this list."},
        {403, "select_term.html#edit", "Edit: change the term's dates and its class schedule."},
        {404, "select_term.html#active", "Make Active: the planner shows this term's classes from now on."},
        {405, "select_term.html#new", "New Term: start a term with an empty class schedule."},
        {406, "select_term.html#new", "Start with this term's classes: the new term copies the classes."},
        {407, "select_term.html", "Cancel: closes the window and changes nothing."},

        // The task window.
        {601, "task_editor.html#buttons", "Cancel: closes the window without saving your changes."},
        {602, "task_editor.html#buttons", "Delete: removes this task, after asking you."},
        {603, "task_editor.html#buttons", "OK: saves the task and closes the window."},
        {606, "task_editor.html#done", "Done: tick it when the task is finished."},
        {607, "task_editor.html#details", "Priority: how important the task is."},
        {608, "task_editor.html#reminder", "Advance Notice: how many days before the date to remind you."},
        {610, "task_editor.html#date", "Date: the day the task is due. Click the button beside it to pick a day."},
        {611, "task_editor.html#details", "Type: what kind of task this is."},
        {612, "whats_this.html", "The question mark: click it, then click anything in the window to learn what it does."},
        {620, "task_editor.html#details", "Description: the task, in a few words."},
        {621, "task_editor.html#details", "Notes: anything else you want to remember about it."},
    };
    return topics;
}

const HelpTopic* FindHelpTopic(int number) {
    const auto& topics = HelpTopics();
    auto it = std::lower_bound(topics.begin(), topics.end(), number,
                               [](const HelpTopic& topic, int n) { return topic.number < n; });
    return it != topics.end() && it->number == number ? &*it : nullptr;
}

std::string WhatsThisText(int number, const Environment& environment) {
    const HelpTopic* topic = FindHelpTopic(number);
    if (!topic) {
        return "<p>This part of the window has no help of its own yet.</p><p><a href=\"" +
               HelpBookAddress(environment, kHelpIndexPage) + "\">Open the help book</a></p>";
    }
    return std::string("<p>") + topic->summary + "</p><p><a href=\"" + HelpBookAddress(environment, topic->page) +
           "\">Read more...</a></p>";
}

}  // namespace qh
