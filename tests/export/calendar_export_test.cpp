#include "export/calendar_export.h"

#include <gtest/gtest.h>

namespace qh {
namespace {

// The month's name comes from the computer's language, which may hold any character; the
// probe's is English. The sheets themselves are the probe scripts
// list_pages_and_month_sheets_hold_the_records_as_listed and
// month_sheet_crowded_days_and_shaded_weeks.
TEST(CalendarSheets, DefaultNamesOfTaskAndEventSheetsHoldNoCharacterAFileNameCannot) {
    const std::string odd = "Mo*n|t\\h:<y>?/\"";
    EXPECT_EQ(CalendarDefaultName(CalendarSheet::Homework, "May"), "May Homework Calendar.html");
    EXPECT_EQ(CalendarDefaultName(CalendarSheet::Tasks, odd), "Mo n t h  y   ' Task Calendar.html");
    EXPECT_EQ(CalendarDefaultName(CalendarSheet::Events, odd), "Mo n t h  y   ' Event Calendar.html");
}

}  // namespace
}  // namespace qh
