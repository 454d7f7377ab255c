#include "export/list_export.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "list_view/list_fixture.h"

namespace qh::testing {
namespace {

// What the probe cannot show of the File menu's list page: the dialog's question before
// a file is replaced, a template gone from the program's folder, a page torn as it is
// written, and a page no program opens. Every page, its dialog and a folder that is not
// there are the probe scripts list_pages_and_month_sheets_hold_the_records_as_listed and
// export_lists_and_month_sheets.
class ListExport : public ::testing::Test {
protected:
    ListWindow view{Mode::Homework};
    std::string pages = view.fake.root + "/pages";
    std::string page = pages + "/page.html";
    std::string templatePath = view.fake.exec + "/" + ListExportFormOf(Mode::Homework)->templateFile;

    void SetUp() override {
        std::filesystem::create_directory(pages);
        addClass(view.store, 1, "Biology");
        addAssignment(view.store, {.description = "Read <Hamlet>"});
        view.store.DocumentDirectory = view.fake.documents;
        view.filters("All", "Day");
        view.build();
        view.fake.writeBytes(templatePath, "<p>~</p>\n<!-- INSERT -->\n");
    }
    void exportTo(const std::string& path) {
        view.fake.dialogs.fileAnswers.push_back({true, 0, path, ""});
        view.window.click(view.window.ui.MenuExportList.key());
    }
};

// A template that cannot be read and a page that cannot be written are told by name; no
// page, not even a part of one, is left, and nothing is opened.
TEST_F(ListExport, AFailedFileIsNamedAndLeavesNoPage) {
    const std::string templateText = view.fake.bytesOf(templatePath);
    std::filesystem::remove(templatePath);
    exportTo(page);
    view.fake.writeBytes(templatePath, templateText);
    view.fake.files.tearWrite(1, 40);
    exportTo(page);

    EXPECT_TRUE(view.fake.dialogs.fileRequests.at(0).askBeforeReplace);
    const auto& shown = view.fake.messages.shown;
    ASSERT_EQ(shown.size(), 2u);
    EXPECT_NE(shown[0].text.find("\"" + templatePath + "\" could not be read"), std::string::npos) << shown[0].text;
    EXPECT_NE(shown[1].text.find("\"" + page + "\" could not be written"), std::string::npos);
    for (const ShownMessage& message : shown) EXPECT_EQ(message.title, "Export");
    EXPECT_TRUE(view.fake.processes.opened.empty());
    EXPECT_TRUE(std::filesystem::is_empty(pages));
}

// Without a browser the page is still there: the message names it, so it can be opened
// by hand.
TEST_F(ListExport, APageNoProgramOpensIsKeptAndNamed) {
    view.fake.processes.openFails = true;
    exportTo(page);
    ASSERT_EQ(view.fake.messages.shown.size(), 1u);
    EXPECT_TRUE(view.fake.messages.shown[0].text.starts_with("Could not open \"" + page + "\""));
    EXPECT_NE(view.fake.bytesOf(page).find("<td class=xl30>Read &lt;Hamlet&gt;</td>"), std::string::npos);
}

}  // namespace
}  // namespace qh::testing
