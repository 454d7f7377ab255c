#include "editors/editor_checks.h"

#include <gtest/gtest.h>

namespace qh {
namespace {

constexpr const char* kPass = "";  // the row passes: no message
const std::string kStudiedLonger =
    "You have studied longer than the Estimated Time.\r\n"
    "Increase the Estimated Time so the Time Left is more than zero.";

std::string messageOf(const std::optional<EditorRefusal>& refusal) { return refusal ? refusal->message : kPass; }
std::string focusOf(const std::optional<EditorRefusal>& refusal) { return refusal ? refusal->focus : "-"; }

TEST(TaskOkRefusal, TheNameFirstThenAReminderWithoutDeadline) {
    const struct {
        const char* name;
        TaskOkFields fields;
        std::string message;
    } rows[] = {
        {"named, no reminder, no deadline", {"Buy paper", "None", false}, kPass},
        {"named, reminder, deadline", {"Buy paper", "3 Days", true}, kPass},
        {"named, reminder, no deadline", {"Buy paper", "1 Day", false},
         "Set a Deadline for this Task if you want a Reminder."},
        {"no name, no reminder", {"", "None", true}, "This task has no name."},
        {"no name wins over a reminder without deadline", {"", "30 Days", false}, "This task has no name."},
        {"a blank is a name", {" ", "None", false}, kPass},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const auto refusal = TaskOkRefusal(row.fields);
        EXPECT_EQ(messageOf(refusal), row.message);
        if (refusal) {
            EXPECT_EQ(refusal->focus, "");
        }
    }
}

TEST(AssignmentOkRefusal, ClassThenEstimateThenDescriptionWithTheTypesWord) {
    const struct {
        const char* name;
        AssignmentOkFields fields;
        std::string message;
        const char* focus;  // "-" when the row passes
    } rows[] = {
        {"all filled", {"Quiz", true, false, false, "Chapter 3"}, kPass, "-"},
        {"no class", {"Quiz", false, false, false, "Chapter 3"}, "Select a Class for this Quiz.", ""},
        {"no class wins over everything", {"Report", false, false, true, ""}, "Select a Class for this Report.", ""},
        {"estimate used up, not done", {"Quiz", true, false, true, "Chapter 3"}, kStudiedLonger, "ComboEstTime"},
        {"estimate used up wins over no description", {"Test", true, false, true, ""}, kStudiedLonger,
         "ComboEstTime"},
        {"estimate used up but done", {"Quiz", true, true, true, "Chapter 3"}, kPass, "-"},
        {"no description", {"Project", true, false, false, ""}, "Add a Description to this Project.",
         "TextBoxDescription"},
        {"done, estimate used up, no description", {"Reading", true, true, true, ""},
         "Add a Description to this Reading.", "TextBoxDescription"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const auto refusal = AssignmentOkRefusal(row.fields);
        EXPECT_EQ(messageOf(refusal), row.message);
        EXPECT_EQ(focusOf(refusal), row.focus);
    }
}

TEST(StudySessionRefusals, DoneLocksTheListAndNinetyNineIsTheLimit) {
    const std::string uncheck = "Uncheck 'Done' to Add or Delete Study Sessions.";
    const std::string limit = "99 Study Sessions is the limit for one assignment.";
    const std::string addFirst = "Add a Study Session before checking 'Done'.";
    const struct {
        const char* name;
        std::optional<EditorRefusal> refusal;
        std::string message;
    } rows[] = {
        {"add to an empty list", AddStudySessionRefusal(false, 0), kPass},
        {"add the 99th", AddStudySessionRefusal(false, 98), kPass},
        {"add a 100th", AddStudySessionRefusal(false, 99), limit},
        {"add while done", AddStudySessionRefusal(true, 3), uncheck},
        {"add while done to a full list", AddStudySessionRefusal(true, 99), uncheck},
        {"delete", DeleteStudySessionRefusal(false), kPass},
        {"delete while done", DeleteStudySessionRefusal(true), uncheck},
        {"tick done with no session", DoneCheckRefusal(true, 0), addFirst},
        {"tick done with a session", DoneCheckRefusal(true, 1), kPass},
        {"clear done with no session", DoneCheckRefusal(false, 0), kPass},
    };
    for (const auto& row : rows) EXPECT_EQ(messageOf(row.refusal), row.message) << row.name;
}

TEST(EventOkRefusal, AllFourTestsTheFirstFailingOneReported) {
    const std::string noName = "This Event has no name.";
    const std::string noDays = "This Event is set to recur Daily, but no days have been selected.";
    const std::string endBefore = "The 'End on' Date occurs before the Event Date.";
    const std::string noFit = "This Event does not recur on the same days that it starts on.";
    const Date mon8 = dateFromYmd(2027, 3, 8), thu4 = dateFromYmd(2027, 3, 4);
    const struct {
        const char* name;
        // name, recurrence, a weekday ticked, end on, event date, end date, user rule, number, day
        EventOkFields fields;
        std::string message;
    } rows[] = {
        {"a fitting monthly rule", {"Club", Recurrence::Month, false, true, mon8, mon8 + 90, true, "Second", "Monday"}, kPass},
        {"no name", {"", Recurrence::Month, false, true, mon8, mon8 + 90, true, "Second", "Monday"}, noName},
        {"daily without a day", {"Club", Recurrence::Day, false, true, mon8, mon8 + 90, true, "Second", "Monday"}, noDays},
        {"daily with a day", {"Club", Recurrence::Day, true, true, mon8, mon8 + 90, true, "Second", "Monday"}, kPass},
        {"no name wins over no day", {"", Recurrence::Day, false, true, mon8, mon8 + 90, true, "Second", "Monday"}, noName},
        {"end before the date", {"Club", Recurrence::Month, false, true, mon8, mon8 - 1, true, "Second", "Monday"}, endBefore},
        {"end on the date", {"Club", Recurrence::Month, false, true, mon8, mon8, true, "Second", "Monday"}, kPass},
        {"end before but off", {"Club", Recurrence::Month, false, false, mon8, mon8 - 400, true, "Second", "Monday"}, kPass},
        {"First Monday on the 8th", {"Club", Recurrence::Month, false, true, mon8, mon8, true, "First", "Monday"}, noFit},
        {"yearly First Monday on the 8th", {"Club", Recurrence::Year, false, true, mon8, mon8, true, "First", "Monday"}, noFit},
        {"same date radio: no fit test", {"Club", Recurrence::Month, false, true, mon8, mon8, false, "First", "Monday"}, kPass},
        {"weekly reads no rule combos", {"Club", Recurrence::Day, true, true, mon8, mon8, true, "First", "Monday"}, kPass},
        {"none reads no rule combos", {"Club", Recurrence::None, false, false, mon8, mon8, true, "First", "Monday"}, kPass},
        {"Fourth Day on the 4th", {"Club", Recurrence::Month, false, true, thu4, thu4, true, "Fourth", "Day"}, kPass},
        {"end wins over the fit", {"Club", Recurrence::Month, false, true, mon8, mon8 - 1, true, "Last", "Monday"}, endBefore},
        {"all wrong reports the name", {"", Recurrence::Day, false, true, mon8, mon8 - 1, true, "Last", "Monday"}, noName},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(messageOf(EventOkRefusal(row.fields)), row.message);
    }
}

}  // namespace
}  // namespace qh
