// A full month sheet from the template installed beside the program prints on one
// landscape page. The templates' markers, row place and styles are in every page of the
// probe script export_lists_and_month_sheets.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <regex>

#include "export/calendar_export.h"
#include "list_view/list_fixture.h"
#include "support/reference_files.h"

namespace qh::testing {
namespace {

namespace fs = std::filesystem;
const auto& run = test::CommandOutput;

std::string shipped(const std::string& name) {
    return test::ReadBytes(std::string(QH_SOURCE_DIR) + "/templates/" + name);
}

// A month in which every day is as full as a sheet allows, with long texts.
RecordStore fullMonth() {
    RecordStore s;
    addClass(s, 1, "Advanced Placement Chemistry");
    for (int day = 1; day <= 30; ++day) {
        const std::string date = "2026/11/" + std::string(day < 10 ? "0" : "") + std::to_string(day);
        for (int i = 0; i < 6; ++i) {
            addAssignment(s, {.date = date, .description = "A long description that will not fit the cell",
                              .done = i == 4, .estimate = "02 : 15"});
            addTask(s, {.description = "A long task description that will not fit", .date = date, .done = i == 5});
        }
        addSession(s, day * 6, "00 : 45", date);
    }
    return s;
}

TEST(ShippedTemplates, AFullMonthSheetPrintsOnOneLandscapePage) {
    if (run("command -v chromium").empty() || run("command -v pdfinfo").empty())
        GTEST_SKIP() << "chromium and pdfinfo are needed to print a sheet";
    const RecordStore store = fullMonth();
    CalendarFrame frame;
    frame.title = "November 2026 Homework Calendar";
    frame.creationNote = "Created on Saturday, November 21, 2026";
    const char* days[] = {"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"};
    for (int d = 0; d < 7; ++d) frame.dayNames[std::size_t(d)] = days[d];
    for (int c = 0; c < 42; ++c) frame.dates[std::size_t(c)] = dateFromYmd(2026, 10, 26) + c;

    const fs::path folder = fs::temp_directory_path() / ("quillhollow-sheet-" + std::to_string(::getpid()));
    fs::create_directories(folder);
    for (const CalendarSheet sheet : {CalendarSheet::Homework, CalendarSheet::Tasks}) {
        const std::string name = sheet == CalendarSheet::Homework ? "homework" : "tasks";
        const fs::path html = folder / (name + ".html"), pdf = folder / (name + ".pdf");
        std::ofstream(html, std::ios::binary)
            << FillCalendarTemplate(shipped(CalendarSheetFormOf(sheet).templateFile), sheet,
                                    FillCalendar(sheet, store, frame));
        run("chromium --headless --no-sandbox --disable-gpu --no-pdf-header-footer --print-to-pdf='" + pdf.string() +
            "' 'file://" + html.string() + "' 2>/dev/null");
        const std::string info = run("pdfinfo '" + pdf.string() + "'");
        std::smatch pages;
        ASSERT_TRUE(std::regex_search(info, pages, std::regex("Pages:\\s+(\\d+)"))) << name << ": " << info;
        EXPECT_EQ(pages[1], "1") << name;
    }
    fs::remove_all(folder);
}

}  // namespace
}  // namespace qh::testing
