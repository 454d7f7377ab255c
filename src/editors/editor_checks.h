#pragma once
// The checks the editor windows make before they let a record go, and the refusals of the
// study-session buttons, as pure functions over plain copies of the controls they read.
// Each returns the refusal to show (the message box has the title "Quillhollow", the
// information icon and an OK button, and the window stays open), or nothing when the
// action may go on.
#include <optional>
#include <string>
#include <string_view>

#include "common/day_number.h"
#include "recurrence/event_rule.h"

namespace qh {

// A refusal: the message text, and the control that takes the focus after the message
// (empty where focus stays where it was).
struct EditorRefusal {
    std::string message;
    std::string focus;
    bool operator==(const EditorRefusal&) const = default;
};

// What the task editor's OK reads.
struct TaskOkFields {
    std::string description;  // TextBoxDescription
    std::string reminder;     // ComboRemindMe
    bool deadline = false;    // CheckBoxDeadline
};

// The task editor's OK, two checks in this order, the first failing one reported:
//   1. an empty description: "This task has no name.";
//   2. an advance notice other than "None" without a deadline: "Set a Deadline for this
//      Task if you want a Reminder.".
// So an unnamed task with a reminder and no deadline reports only the missing name.
std::optional<EditorRefusal> TaskOkRefusal(const TaskOkFields& fields);

// What the assignment editor's OK reads. `type` is the text of `ComboTypeList` ("Quiz"),
// the word the messages use.
struct AssignmentOkFields {
    std::string type;
    bool classChosen = false;         // ComboClassNameList has a selection
    bool done = false;                // CheckBoxDone
    bool estimateUsedUp = false;      // time left below one minute
    std::string description;          // TextBoxDescription
};

// The assignment editor's OK, three checks in this order, the first failing one reported:
//   1. no class chosen: "Select a Class for this Quiz." (with the type's word);
//   2. not done while the estimate is used up: "You have studied longer than the
//      Estimated Time.", CR LF, "Increase the Estimated Time so the Time Left is more than
//      zero.", focus to `ComboEstTime`; once Done is set the same times pass;
//   3. an empty description: "Add a Description to this Quiz.", focus to
//      `TextBoxDescription`.
std::optional<EditorRefusal> AssignmentOkRefusal(const AssignmentOkFields& fields);

// `ButtonSessionAdd`: while Done is set, "Uncheck 'Done' to Add or Delete Study
// Sessions."; else with kMaxStudySessions sessions already listed, "99 Study Sessions is
// the limit for one assignment.".
std::optional<EditorRefusal> AddStudySessionRefusal(bool done, int sessionCount);

// `ButtonSessionDelete`: while Done is set, the same "Uncheck 'Done' ..." message. (With
// Done clear it asks its Yes/No question, which is the window's.)
std::optional<EditorRefusal> DeleteStudySessionRefusal(bool done);

// `CheckBoxDone` just clicked into `nowSet`: set on an empty session list it is refused
// with "Add a Study Session before checking 'Done'." and the box clears itself.
std::optional<EditorRefusal> DoneCheckRefusal(bool nowSet, int sessionCount);

// What the event editor's OK reads. `userRule` is the "User" radio of the panel that
// `recurrence` names (`RadioMonthlyUser` for Month, `RadioYearlyUser` for Year), and
// `repeatNumber` and `repeatDay` that panel's two combos.
struct EventOkFields {
    std::string name;              // TextBoxEvent
    Recurrence recurrence = Recurrence::None;
    bool anyWeekdayTicked = false; // one of CheckBoxMonday .. CheckBoxSunday is on
    bool endOn = false;            // RadioEndOn
    Date eventDate = 0;            // StoreEventDate
    Date endDate = 0;              // StoreEndDate (read only when endOn)
    bool userRule = false;
    std::string repeatNumber;
    std::string repeatDay;
};

// The event editor's OK: all four tests are made, and the first failing one in this
// order is reported:
//   1. an empty name: "This Event has no name.";
//   2. Day with no weekday ticked: "This Event is set to recur Daily, but no days have
//      been selected.";
//   3. an end date on, before the event date: "The 'End on' Date occurs before the Event
//      Date." (the same day passes);
//   4. a Month or Year rule with its "User" radio on that RuleFitsStartDate refuses:
//      "This Event does not recur on the same days that it starts on.".
std::optional<EditorRefusal> EventOkRefusal(const EventOkFields& fields);

}  // namespace qh
