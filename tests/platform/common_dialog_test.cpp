#include "platform/common_dialog.h"

#include <gtest/gtest.h>

#include <tuple>

#include "support/fake_platform.h"

namespace qh {
namespace {

TEST(CommonDialog, SplitsTheFilterIntoNamesAndPatterns) {
    EXPECT_EQ(splitFileFilter("HTML Files (*.html)|*.html|All Files (*.*)|*.*"),
              (std::vector<FileFilter>{{"HTML Files (*.html)", "*.html"}, {"All Files (*.*)", "*.*"}}));
    // The share commands end their filter with a bar; a name may lack its pattern.
    EXPECT_EQ(splitFileFilter("Text Files (*.txt)|*.txt|"), (std::vector<FileFilter>{{"Text Files (*.txt)", "*.txt"}}));
    EXPECT_EQ(splitFileFilter("Odd|"), (std::vector<FileFilter>{{"Odd", ""}}));
    EXPECT_TRUE(splitFileFilter("").empty());
}

// A save asking before it replaces, whose title comes from the path; an open given a title.
// The printer's choice is followed to the print by the print screen test.
TEST(CommonDialog, PassesTheRequestOnAndReturnsTheChoice) {
    for (const bool open : {false, true}) {
        FakePlatform fake;
        const FileDialogAnswer answer{true, 0, "/drive/Documents/Homework.html", open ? "Named.html" : ""};
        fake.dialogs.fileAnswers.push_back(answer);
        std::int32_t flags = open ? 0 : kAskBeforeReplace;
        std::string path = "Homework List.html", title;
        ASSERT_TRUE(CD_ShowOpen_Save(fake.platform, flags, path, title, "", "Export", "A|*.a|B|*.b", "html", open));
        EXPECT_EQ(std::tie(path, title, flags),
                  std::make_tuple(answer.fullPath, open ? "Named.html" : "Homework.html", open ? 0 : kAskBeforeReplace));
        const FileDialogRequest& r = fake.dialogs.fileRequests.at(0);
        EXPECT_EQ(std::tie(r.open, r.askBeforeReplace, r.startPath, r.title, r.defaultExtension),
                  std::make_tuple(open, !open, "Homework List.html", "Export", "html"));
        EXPECT_EQ(r.filters.size(), 2u);
        EXPECT_TRUE(fake.messages.shown.empty());
    }
}

// A cancel and a toolkit failure look the same to the caller; only the failure is reported.
TEST(CommonDialog, CancelAndFailureClearTheResultsAndOnlyAFailureIsReported) {
    for (const bool failing : {false, true}) {
        FakePlatform fake;
        if (failing) {
            fake.dialogs.fileAnswers.push_back({false, 12290, "", ""});
            fake.dialogs.printerAnswers.push_back({false, 4104, ""});
        }
        std::int32_t flags = kAskBeforeReplace;
        std::string path = "a.html", title = "a.html", printer = "old";
        int copies = 1;
        EXPECT_FALSE(CD_ShowOpen_Save(fake.platform, flags, path, title, "", "Export", "A|*.a", "html", false));
        EXPECT_FALSE(CD_ShowPrinter(fake.platform, printer, copies));
        EXPECT_EQ(std::tie(flags, path, title, printer, copies), std::make_tuple(0, "", "", "", 0));
        ASSERT_EQ(fake.messages.shown.size(), failing ? 2u : 0u);
        if (!failing) continue;
        EXPECT_EQ(fake.messages.shown[0].title, "  Common Dialog Error");
        EXPECT_EQ(fake.messages.shown[0].text,
                  "COMDLG32.DLL encountered the following error while calling the 'DLG_GetOpenFileName' function:\n"
                  "\nError Number = 12290\nError Description = A filename is invalid.");
        EXPECT_NE(fake.messages.shown[1].text.find("'DLG_PrintDialog' function:"), std::string::npos);
        EXPECT_NE(fake.messages.shown[1].text.find("A default printer does not exist."), std::string::npos);
    }
}

TEST(CommonDialog, ErrorTextsReadTheCodeAsSixteenBitsAndKnowOnlyTheTablesCodes) {
    EXPECT_EQ(commonDialogErrorText(0), "");
    EXPECT_EQ(commonDialogErrorText(65535), commonDialogErrorText(-1));
    EXPECT_EQ(commonDialogErrorText(-1).substr(0, 37), "The dialog box could not be created.\n");
    EXPECT_NE(commonDialogErrorText(12291), "Unknown Error");  // the last code of the table
    for (int code : {13, -2, 12292}) EXPECT_EQ(commonDialogErrorText(code), "Unknown Error") << code;
}

}  // namespace
}  // namespace qh
