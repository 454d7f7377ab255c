#include "editors/editor_checks.h"

#include <array>

#include "editors/event_rule_fit.h"
#include "editors/study_session_math.h"

namespace qh {

namespace {

EditorRefusal refuse(std::string message, std::string focus = {}) { return {std::move(message), std::move(focus)}; }

constexpr const char* kUncheckDone = "Uncheck 'Done' to Add or Delete Study Sessions.";

}  // namespace

std::optional<EditorRefusal> TaskOkRefusal(const TaskOkFields& fields) {
    if (fields.description.empty()) return refuse("This task has no name.");
    if (fields.reminder != "None" && !fields.deadline)
        return refuse("Set a Deadline for this Task if you want a Reminder.");
    return std::nullopt;
}

std::optional<EditorRefusal> AssignmentOkRefusal(const AssignmentOkFields& fields) {
    if (!fields.classChosen) return refuse("Select a Class for this " + fields.type + ".");
    if (!fields.done && fields.estimateUsedUp)
        return refuse(
            "You have studied longer than the Estimated Time.\r\n"
            "Increase the Estimated Time so the Time Left is more than zero.",
            "ComboEstTime");
    if (fields.description.empty()) return refuse("Add a Description to this " + fields.type + ".", "TextBoxDescription");
    return std::nullopt;
}

std::optional<EditorRefusal> AddStudySessionRefusal(bool done, int sessionCount) {
    if (done) return refuse(kUncheckDone);
    if (sessionCount >= kMaxStudySessions) return refuse("99 Study Sessions is the limit for one assignment.");
    return std::nullopt;
}

std::optional<EditorRefusal> DeleteStudySessionRefusal(bool done) {
    if (done) return refuse(kUncheckDone);
    return std::nullopt;
}

std::optional<EditorRefusal> DoneCheckRefusal(bool nowSet, int sessionCount) {
    if (nowSet && sessionCount == 0) return refuse("Add a Study Session before checking 'Done'.");
    return std::nullopt;
}

std::optional<EditorRefusal> EventOkRefusal(const EventOkFields& fields) {
    // Every test is made before the first failing one is reported.
    const bool ordinalRule =
        fields.userRule && (fields.recurrence == Recurrence::Month || fields.recurrence == Recurrence::Year);
    const std::array<bool, 4> failed = {
        fields.name.empty(),
        fields.recurrence == Recurrence::Day && !fields.anyWeekdayTicked,
        fields.endOn && fields.endDate < fields.eventDate,
        ordinalRule && !RuleFitsStartDate(fields.repeatNumber, fields.repeatDay, fields.eventDate),
    };
    static constexpr std::array<const char*, 4> kMessages = {
        "This Event has no name.",
        "This Event is set to recur Daily, but no days have been selected.",
        "The 'End on' Date occurs before the Event Date.",
        "This Event does not recur on the same days that it starts on.",
    };
    for (std::size_t i = 0; i < failed.size(); ++i)
        if (failed[i]) return refuse(kMessages[i]);
    return std::nullopt;
}

}  // namespace qh
