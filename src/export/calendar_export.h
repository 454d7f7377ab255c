#pragma once
// The month the calendar shows as a one-page HTML month sheet: homework, tasks or events.
//
// A sheet is made in two steps. First an array of 304 texts, each with a shade, is filled
// in a fixed order: the title, the creation note, the seven day names, the 42 day numbers
// and the day contents. Then the template is copied line by line, and its k-th line
// holding "~" takes the array entry CalendarOrder(k) in place of each "~". Beside the text,
// a few style classes of such a line are swapped: the red header of a day with nothing to
// flag turns black, a study line with no study turns white, and the slots of a day outside
// the month turn grey.
//
// Texts that come from records are escaped; the markup of the links is the sheet's own.
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "common/day_number.h"
#include "record_store/columns.h"
#include "list_view/main_window_state.h"

namespace qh {

enum class CalendarSheet { Homework, Tasks, Events };

// Tasks mode gives the task sheet, Events mode the event sheet, any other the homework
// sheet.
CalendarSheet CalendarSheetOf(Mode mode);

struct CalendarSheetForm {
    const char* nameEnding;   // after the month name: " Homework Calendar.html"
    const char* dialogTitle;
    const char* templateFile;
    const char* titleEnding;  // after the month and year: " Homework Calendar"
};
const CalendarSheetForm& CalendarSheetFormOf(CalendarSheet sheet);

// The suggested file name: the month name and the sheet's ending. On the task and event
// sheets the characters no file name may hold become blanks and a double quote "'".
std::string CalendarDefaultName(CalendarSheet sheet, std::string_view monthName);

inline constexpr int kCalendarEntries = 304;
inline constexpr int kCalendarMarkers = 303;
// The empty text of a slot: the browser keeps an empty cell's height with it.
inline constexpr std::string_view kBlankCell = "&nbsp;";

struct CalendarFill {
    std::array<std::string, kCalendarEntries> texts;
    std::array<bool, kCalendarEntries> gray{};  // the entry's slot lies outside the month
};

// What the sheet takes from the window beside the records.
struct CalendarFrame {
    std::string title;                     // month name, year and the sheet's title ending
    std::string creationNote;              // "Created on " and the long date
    std::array<std::string, 7> dayNames;   // the day headers in their shown order
    std::array<Date, 42> dates{};          // the 42 cells, row by row
};

CalendarFill FillCalendar(CalendarSheet sheet, const RecordStore& store, const CalendarFrame& frame);

// The array entry of each marker line of the sheet's template, 303 of them.
const std::vector<int>& CalendarOrder(CalendarSheet sheet);

// The page from the template. Marker lines past the 303rd are copied as they stand.
std::string FillCalendarTemplate(std::string_view templateText, CalendarSheet sheet, const CalendarFill& fill);

// A time of a sheet: the last digit of the hours, ":" and the minutes in two digits, so
// twelve hours thirty reads "2:30".
std::string SheetTime(long long minutes);

}  // namespace qh
