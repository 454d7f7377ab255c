#include "export/list_export.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "export/page_text.h"
#include "export_fixture.h"

namespace qh::testing {
namespace {

// One mode's list on the fixed planner, exported through the File menu with the test
// template in the program's folder. The dialog's title and suggested name for each list
// are the probe script export_lists_and_month_sheets.
struct ListCase {
    const char* name;
    Mode mode;
    const char* list;
    const char* range;
};

class ListExport : public ::testing::TestWithParam<ListCase> {
protected:
    ListWindow view{GetParam().mode};
    const ListExportForm& form = *ListExportFormOf(GetParam().mode);
    std::string pages = view.fake.root + "/pages";
    std::string page = pages + "/page.html";

    void SetUp() override {
        std::filesystem::create_directory(pages);
        AddFixedPlanner(view.store);
        view.store.DocumentDirectory = view.fake.documents;
        view.filters(GetParam().list, GetParam().range);
        view.build();
        view.fake.writeBytes(view.fake.exec + "/" + form.templateFile, ReferenceBytes("list_template.html"));
    }
    void exportTo(const std::string& path) {
        view.fake.dialogs.fileAnswers.push_back({true, 0, path, ""});
        view.window.click(view.window.ui.MenuExportList.key());
    }
};

TEST_P(ListExport, WritesTheRowsOfTheListAsShownAndOpensThePage) {
    exportTo(page);
    const FileDialogRequest& asked = view.fake.dialogs.fileRequests.at(0);
    EXPECT_EQ(asked.filters.size(), 3u);
    EXPECT_TRUE(asked.askBeforeReplace);
    EXPECT_EQ(view.fake.processes.opened, std::vector<std::string>{page});
    EXPECT_EQ(DiffWithReference(std::string("list_") + GetParam().name + ".html", view.fake.bytesOf(page)), "");
}

TEST_P(ListExport, CancelWritesNothingAndOpensNothing) {
    view.window.click(view.window.ui.MenuExportList.key());
    EXPECT_EQ(view.fake.dialogs.fileRequests.size(), 1u);
    EXPECT_TRUE(view.fake.processes.opened.empty());
    EXPECT_FALSE(std::filesystem::exists(page));
}

// A template that cannot be read and a page that cannot be written are told by name; no
// page, not even a part of one, is left, and nothing is opened.
TEST_P(ListExport, AFailedFileIsNamedAndLeavesNoPage) {
    const std::string templatePath = view.fake.exec + "/" + form.templateFile;
    std::filesystem::remove(templatePath);
    exportTo(page);
    const std::string missingFolder = pages + "/gone/page.html";
    view.fake.writeBytes(templatePath, ReferenceBytes("list_template.html"));
    exportTo(missingFolder);
    view.fake.files.tearWrite(1, 40);
    exportTo(page);

    const auto& shown = view.fake.messages.shown;
    ASSERT_EQ(shown.size(), 3u);
    EXPECT_NE(shown[0].text.find("\"" + templatePath + "\" could not be read"), std::string::npos) << shown[0].text;
    EXPECT_NE(shown[1].text.find("\"" + missingFolder + "\" could not be written"), std::string::npos);
    EXPECT_NE(shown[2].text.find("\"" + page + "\" could not be written"), std::string::npos);
    for (const ShownMessage& message : shown) EXPECT_EQ(message.title, "Export");
    EXPECT_TRUE(view.fake.processes.opened.empty());
    EXPECT_TRUE(std::filesystem::is_empty(pages));
}

// Without a browser the page is still there: the message names it, so it can be opened
// by hand.
TEST_P(ListExport, APageNoProgramOpensIsKeptAndNamed) {
    view.fake.processes.openFails = true;
    exportTo(page);
    ASSERT_EQ(view.fake.messages.shown.size(), 1u);
    EXPECT_TRUE(view.fake.messages.shown[0].text.starts_with("Could not open \"" + page + "\""));
    EXPECT_EQ(DiffWithReference(std::string("list_") + GetParam().name + ".html", view.fake.bytesOf(page)), "");
}

INSTANTIATE_TEST_SUITE_P(Modes, ListExport,
                         ::testing::Values(ListCase{"homework", Mode::Homework, "All", "Term"},
                                           ListCase{"study", Mode::StudySessions, "All", "Term"},
                                           ListCase{"tasks", Mode::Tasks, "All", "All"},
                                           ListCase{"events", Mode::Events, "All", "Month"},
                                           ListCase{"reminders", Mode::Reminders, "All", "Today"},
                                           ListCase{"empty", Mode::Homework, "All", "Day"}),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace qh::testing
