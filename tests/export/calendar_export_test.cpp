#include "export/calendar_export.h"

#include <gtest/gtest.h>


#include "export_fixture.h"
#include "recurrence/event_records.h"

namespace qh::testing {
namespace {

// A template whose k-th marker line names k and carries every class a line may have
// swapped, so that the page shows for each line its entry's text and the swaps made.
std::string markerTemplate() {
    std::string text = "<html>\n<body>\n";
    for (int k = 0; k < kCalendarMarkers; ++k)
        text += "<td class=\"xredbg xgreenbg xwhite1 xwhite2 xwhite3 xwhite4\">" + std::to_string(k) + ": ~</td>\n";
    return text + "<p>a marker line too many: ~</p>\n</body>\n</html>\n";
}

struct SheetCase {
    const char* name;
    Mode mode;
};

class CalendarExport : public ::testing::TestWithParam<SheetCase> {
protected:
    ListWindow view{GetParam().mode};
    std::string page = view.fake.root + "/sheet.html";

    void SetUp() override {
        AddFixedPlanner(view.store);
        view.store.DocumentDirectory = view.fake.documents;
        view.filters("All", "Day");
        view.window.ApplyStartDayOfWeek();
        view.window.BuildCalendar();
        const CalendarSheetForm& form = CalendarSheetFormOf(CalendarSheetOf(GetParam().mode));
        view.fake.writeBytes(view.fake.exec + "/" + form.templateFile, markerTemplate());
    }
};

TEST_P(CalendarExport, FillsTheMarkerLinesInTheSheetsOrderAndOpensThePage) {
    view.fake.dialogs.fileAnswers.push_back({true, 0, page, ""});
    view.window.click(view.window.ui.MenuExportCalendar.key());
    EXPECT_EQ(view.fake.processes.opened, std::vector<std::string>{page});
    EXPECT_EQ(DiffWithReference(std::string("calendar_") + GetParam().name + ".html", view.fake.bytesOf(page)), "");
}

INSTANTIATE_TEST_SUITE_P(Sheets, CalendarExport,
                         ::testing::Values(SheetCase{"homework", Mode::Homework}, SheetCase{"tasks", Mode::Tasks},
                                           SheetCase{"events", Mode::Events}),
                         [](const auto& info) { return std::string(info.param.name); });

// A month of five weeks still has 42 cells; those outside the month are grey in every
// slot and in the study line, never in the day number.
TEST(CalendarSheets, AFiveWeekMonthFillsFortyTwoCellsAndShadesTheOthers) {
    RecordStore store;
    CalendarFrame frame;
    const Date first = dateFromYmd(2026, 1, 26);  // February 2026 from Monday the 26th
    for (int c = 0; c < 42; ++c) frame.dates[std::size_t(c)] = first + c;
    for (const CalendarSheet sheet : {CalendarSheet::Homework, CalendarSheet::Events}) {
        const CalendarFill fill = FillCalendar(sheet, store, frame);
        const int perDay = sheet == CalendarSheet::Homework ? 5 : 6;
        const int slots = sheet == CalendarSheet::Homework ? 93 : 51;
        for (int c = 0; c < 42; ++c) {
            const bool outside = monthOf(first + c) != 2;
            SCOPED_TRACE(c);
            EXPECT_EQ(fill.texts[std::size_t(9 + c)], std::to_string(dayOf(first + c)));
            EXPECT_FALSE(fill.gray[std::size_t(9 + c)]);
            for (int j = 0; j < perDay; ++j) EXPECT_EQ(fill.gray[std::size_t(slots + perDay * c + j)], outside);
            if (sheet == CalendarSheet::Homework) {
                EXPECT_EQ(fill.gray[std::size_t(51 + c)], outside);
            }
        }
        EXPECT_EQ(fill.texts[9 + 41], "8");  // 8 March
    }
}

// A day with more entries than its lines shows the first ones and, as its last line, how
// many more it has; a day that just fits shows them all.
TEST(CalendarSheets, ADayWithMoreEntriesThanLinesEndsWithHowManyMore) {
    const struct {
        CalendarSheet sheet;
        int entries;
        const char* lastLine;  // empty: the last entry itself
    } cases[] = {{CalendarSheet::Homework, 4, ""},         {CalendarSheet::Homework, 5, "&nbsp;+2 more"},
                 {CalendarSheet::Homework, 7, "&nbsp;+4 more"}, {CalendarSheet::Tasks, 5, ""},
                 {CalendarSheet::Tasks, 6, "&nbsp;+2 more"},    {CalendarSheet::Events, 7, "&nbsp;+3 more"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(int(c.sheet)) + " with " + std::to_string(c.entries));
        RecordStore store;
        for (int i = 1; i <= c.entries; ++i) {
            const std::string name = "Entry " + std::to_string(i);
            if (c.sheet == CalendarSheet::Homework) addAssignment(store, {.date = "2026/11/26", .description = name});
            if (c.sheet == CalendarSheet::Tasks) addTask(store, {.description = name, .date = "2026/11/26"});
            if (c.sheet == CalendarSheet::Events) qh::test::addEvent(store, {.date = "2026/11/26", .description = name});
        }
        CalendarFrame frame;
        for (int d = 0; d < 42; ++d) frame.dates[std::size_t(d)] = dateFromYmd(2026, 11, 26) + d;
        const CalendarFill fill = FillCalendar(c.sheet, store, frame);
        const bool homework = c.sheet == CalendarSheet::Homework;
        const int first = homework ? 93 : 51, lines = homework ? 4 : 5;
        int links = 0;
        for (int j = 0; j < lines; ++j)
            if (fill.texts[std::size_t(first + j)].find("<a ") != std::string::npos) ++links;
        const std::string& last = fill.texts[std::size_t(first + lines - 1)];
        if (*c.lastLine) {
            EXPECT_EQ(last, c.lastLine);
            EXPECT_EQ(links, lines - 1);
        } else {
            EXPECT_NE(last.find("Entry " + std::to_string(c.entries)), std::string::npos) << last;
            EXPECT_EQ(links, c.entries);
        }
    }
}

TEST(CalendarSheets, DefaultNamesOfTaskAndEventSheetsHoldNoCharacterAFileNameCannot) {
    const std::string odd = "Mo*n|t\\h:<y>?/\"";
    EXPECT_EQ(CalendarDefaultName(CalendarSheet::Homework, "May"), "May Homework Calendar.html");
    EXPECT_EQ(CalendarDefaultName(CalendarSheet::Tasks, odd), "Mo n t h  y   ' Task Calendar.html");
    EXPECT_EQ(CalendarDefaultName(CalendarSheet::Events, odd), "Mo n t h  y   ' Event Calendar.html");
}

TEST(CalendarSheets, TimesShowTheLastDigitOfTheHours) {
    const std::pair<long long, const char*> cases[] = {{0, "0:00"}, {65, "1:05"}, {600, "0:00"}, {750, "2:30"},
                                                       {599, "9:59"}};
    for (const auto& [minutes, text] : cases) EXPECT_EQ(SheetTime(minutes), text) << minutes;
}

}  // namespace
}  // namespace qh::testing
