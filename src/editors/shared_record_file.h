#pragma once
// One assignment, task or event passed from one student to another as a small text file:
// a single line of fixed-width fields in the Windows-1252 code page, ended by CR LF. The
// first field is the kind's marker ("ASSIGNMENT", "TASK", "EVENT"), and the line has the
// kind's fixed length (1580, 949, 955 bytes without the line end). Reminder, grade, done
// state, study sessions and record numbers stay out of the file.
//
// How an editor wires ButtonShare with these structs (shared_file_transfer.h holds the
// dialog and file halves):
//
// - EditMode::Edit: fill the kind's struct from the controls exactly as they stand on
//   screen, unsaved changes included (list selections as their texts, checks as bools, the
//   dates the form keeps: the assignment's due date, tempTaskDate, StoreEventDate and
//   StoreEndDate), and call ShareOut with DocumentDirectory, sharedFileBytes(struct) and
//   the name of sharedAssignmentFileName or sharedFileName. Nothing else changes: no
//   message after a write, the form, its change mark and the record store stay as they are.
//   This mode never reads.
// - Any other edit mode (a new record): call the kind's ShareIn. On nothing (cancel, or a
//   refused file, whose message ShareIn has shown) leave the form as it is. Otherwise put
//   every field into its control, each through the control's own handler (so the window
//   counts a change as for typing), in the order of the struct's fields. This mode never writes.
//   - Assignment: a class name the list doesn't hold is handed to ComboClassNameList as
//     text, as any other text set on the list. The due date shows as "Long Date" and
//     tempAssignmentDate becomes its "Short Date" text.
//   - Task: CheckBoxDeadline takes `deadline`; the date fills tempTaskDate and shows as
//     "Long Date" also when the box stays off.
//   - Event: name, StoreEventDate (shown as "Long Date"), type, time; then switch on the
//     recurrence radio, which runs ShowRecurrencePanel and so sets that panel's defaults
//     first; only then set the rule: for "Month" and "Year" that recurrence's ThisDate
//     radio (off: its User radio) and both pairs of combos, which the reader fills alike;
//     for "Day" the weekday boxes; for "None" nothing. Then RadioEndOn or RadioEndNone by
//     `endOn`, StoreEndDate and TextboxEndDate; when the end is off TextboxEndDate shows
//     ProposedEndDate (recurrence_panel_defaults.h) instead, CheckboxEndDate off, the
//     date grey. Last the notes.
//     Fields of the struct a recurrence doesn't use hold a new form's values (both
//     ThisDate radios on, weekday boxes off, empty combos) and are not to be set.
#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "common/day_number.h"

namespace qh {

class Locale;

enum class SharedKind { Assignment, Task, Event };

// The fixed texts of a kind: its line, its dialogs and its refusal.
struct SharedKindTexts {
    const char* marker;       // "ASSIGNMENT"
    int lineLength;           // 1580, without CR LF
    const char* saveTitle;    // "Save an Assignment File"
    const char* openTitle;    // "Open an Assignment File"
    const char* notThisKind;  // "This is not an Assignment file."
};
const SharedKindTexts& sharedKindTexts(SharedKind kind);

// The filter of both dialogs.
inline constexpr const char* kSharedFileFilter = "Text Files (*.txt)|*.txt|";

struct SharedAssignment {
    std::string className;      // ComboClassNameList
    std::string description;    // TextBoxDescription
    Date dueDate = 0;           // TextboxDateDue
    std::string type;           // ComboTypeList
    std::string difficulty;     // ComboDifficulty
    std::string estimatedTime;  // ComboEstTime
    std::string weight;         // ComboWeight
    std::string notes;          // TextBoxNotes, lines ended by CR LF
    bool operator==(const SharedAssignment&) const = default;
};

struct SharedTask {
    std::string description;  // TextBoxDescription
    bool deadline = false;    // CheckBoxDeadline
    Date date = 0;            // tempTaskDate; written only with a deadline, else today
    std::string type;         // ComboType
    std::string priority;     // ComboPriority
    std::string notes;        // TextBoxNotes
    bool operator==(const SharedTask&) const = default;
};

struct SharedEvent {
    std::string name;                 // TextBoxEvent
    Date firstDate = 0;               // StoreEventDate
    std::string type;                 // ComboType
    std::string time;                 // ComboTime
    std::string recurrence = "None";  // Recurrence: "None", "Day", "Month" or "Year"
    bool monthlyThisDate = true;      // RadioMonthlyThisDate (off: RadioMonthlyUser)
    std::string monthlyNumber;        // ComboMonthlyNumber
    std::string monthlyDay;           // ComboMonthlyDay
    bool yearlyThisDate = true;       // RadioYearlyThisDate (off: RadioYearlyUser)
    std::string yearlyNumber;         // ComboYearlyNumber
    std::string yearlyDay;            // ComboYearlyDay
    std::array<bool, 7> weekdays{};   // CheckBoxMonday .. CheckBoxSunday
    bool endOn = false;               // RadioEndOn (off: RadioEndNone)
    Date endDate = 0;                 // StoreEndDate
    std::string notes;                // TextBoxNotes
    bool operator==(const SharedEvent&) const = default;
};

// The bytes of a whole file: the line and CR LF. Texts are UTF-8 as the controls hold
// them; each field is cut at its width in code-page bytes and padded with blanks. The
// monthly rule controls are written for "Month", the yearly ones for any other recurrence.
std::string sharedFileBytes(const SharedAssignment& assignment);
std::string sharedFileBytes(const SharedTask& task, Date today);
std::string sharedFileBytes(const SharedEvent& event);

// The fields of a file's first line (up to its first CR), or nothing when it is not a
// file of the kind: a line of another length or with another marker, a NUL byte in it, a
// date field that is not a date, a deadline other than True or False, a recurrence other
// than the four, an event so late in 9999 that its proposed end date would leave the
// calendar. The whole line is checked before anything is returned, so a caller
// applies all of it or none.
std::optional<SharedAssignment> readSharedAssignment(std::string_view fileBytes);
std::optional<SharedTask> readSharedTask(std::string_view fileBytes);
std::optional<SharedEvent> readSharedEvent(std::string_view fileBytes);

// The names the save dialog offers: the trimmed description cut to 40 characters (for an
// assignment followed by ", " and the due date as "MMM d"), ".txt", and each of
// * | \ : < > ? / made a blank and the double quote a "'".
std::string sharedAssignmentFileName(std::string_view description, Date dueDate, const Locale& locale);
std::string sharedFileName(std::string_view name);

}  // namespace qh
