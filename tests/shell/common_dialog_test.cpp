#include "shell/common_dialog.h"

#include <gtest/gtest.h>

#include "support/fake_platform.h"

namespace qh {
namespace {

const char* const kHtmlFilter = "HTML Files (*.html)|*.html|HTM Files (*.htm)|*.htm|All Files (*.*)|*.*";

TEST(CommonDialogFilter, SplitsNamesAndPatternsInPairs) {
    const std::vector<FileFilter> expected = {
        {"HTML Files (*.html)", "*.html"}, {"HTM Files (*.htm)", "*.htm"}, {"All Files (*.*)", "*.*"}};
    EXPECT_EQ(splitFileFilter(kHtmlFilter), expected);
    // The share commands end their filter with a bar.
    EXPECT_EQ(splitFileFilter("Text Files (*.txt)|*.txt|"),
              (std::vector<FileFilter>{{"Text Files (*.txt)", "*.txt"}}));
    EXPECT_EQ(splitFileFilter("Odd|"), (std::vector<FileFilter>{{"Odd", ""}}));
    EXPECT_TRUE(splitFileFilter("").empty());
}

TEST(CommonDialog, SaveHandsTheRequestToTheDialogAndReturnsTheChoice) {
    FakePlatform fake;
    fake.dialogs.fileAnswers.push_back({true, 0, "/drive/Documents/Homework.html", ""});
    std::int32_t flags = kAskBeforeReplace;
    std::string path = "Homework List.html", title;
    ASSERT_TRUE(CD_ShowOpen_Save(fake.platform, flags, path, title, "", "Export Assignment List to HTML File",
                                 kHtmlFilter, "html", false));
    EXPECT_EQ(path, "/drive/Documents/Homework.html");
    EXPECT_EQ(title, "Homework.html");
    EXPECT_EQ(flags, kAskBeforeReplace);

    ASSERT_EQ(fake.dialogs.fileRequests.size(), 1u);
    const FileDialogRequest& request = fake.dialogs.fileRequests[0];
    EXPECT_FALSE(request.open);
    EXPECT_TRUE(request.askBeforeReplace);
    EXPECT_EQ(request.startPath, "Homework List.html");
    EXPECT_EQ(request.title, "Export Assignment List to HTML File");
    EXPECT_EQ(request.defaultExtension, "html");
    EXPECT_EQ(request.filters.size(), 3u);
    EXPECT_TRUE(fake.messages.shown.empty());
}

TEST(CommonDialog, OpenWithoutReplaceFlagDoesNotAskBeforeReplacing) {
    FakePlatform fake;
    fake.dialogs.fileAnswers.push_back({true, 0, "/x/Task.txt", "Task.txt"});
    std::int32_t flags = 0;
    std::string path, title;
    ASSERT_TRUE(CD_ShowOpen_Save(fake.platform, flags, path, title, "", "Open", "Text Files (*.txt)|*.txt|",
                                 "txt", true));
    EXPECT_TRUE(fake.dialogs.fileRequests[0].open);
    EXPECT_FALSE(fake.dialogs.fileRequests[0].askBeforeReplace);
    EXPECT_EQ(title, "Task.txt");
}

TEST(CommonDialog, CancelGivesFalseZeroFlagsAndEmptyTextsWithoutAMessage) {
    FakePlatform fake;  // no answer scripted: the user cancels
    std::int32_t flags = kAskBeforeReplace;
    std::string path = "Tasks.html", title = "Tasks.html";
    EXPECT_FALSE(CD_ShowOpen_Save(fake.platform, flags, path, title, "", "Export", kHtmlFilter, "html", false));
    EXPECT_EQ(flags, 0);
    EXPECT_EQ(path, "");
    EXPECT_EQ(title, "");
    EXPECT_TRUE(fake.messages.shown.empty());

    std::string printer = "old";
    EXPECT_FALSE(CD_ShowPrinter(fake.platform, printer));
    EXPECT_EQ(printer, "");
    EXPECT_TRUE(fake.messages.shown.empty());
}

TEST(CommonDialog, AFailureIsReportedAndLooksLikeACancelToTheCaller) {
    FakePlatform fake;
    fake.dialogs.fileAnswers.push_back({false, 12290, "", ""});
    std::int32_t flags = kAskBeforeReplace;
    std::string path = "a.html", title = "a.html";
    EXPECT_FALSE(CD_ShowOpen_Save(fake.platform, flags, path, title, "", "Export", kHtmlFilter, "html", false));
    EXPECT_EQ(flags, 0);
    EXPECT_EQ(path, "");
    ASSERT_EQ(fake.messages.shown.size(), 1u);
    const ShownMessage& box = fake.messages.shown[0];
    EXPECT_EQ(box.title, "  Common Dialog Error");
    EXPECT_EQ(box.text,
              "COMDLG32.DLL encountered the following error while calling the 'DLG_GetOpenFileName' function:\n"
              "\n"
              "Error Number = 12290\n"
              "Error Description = A filename is invalid.");
    EXPECT_EQ(box.buttons, MessageButtons::OK);

    fake.dialogs.printerAnswers.push_back({false, 4104, ""});
    std::string printer;
    EXPECT_FALSE(CD_ShowPrinter(fake.platform, printer));
    ASSERT_EQ(fake.messages.shown.size(), 2u);
    EXPECT_NE(fake.messages.shown[1].text.find("'DLG_PrintDialog' function:"), std::string::npos);
    EXPECT_NE(fake.messages.shown[1].text.find("Error Description = A default printer does not exist."),
              std::string::npos);
}

TEST(CommonDialog, PrinterChoiceIsPassedBack) {
    FakePlatform fake;
    fake.dialogs.printerAnswers.push_back({true, 0, "Office Laser"});
    std::string printer;
    EXPECT_TRUE(CD_ShowPrinter(fake.platform, printer));
    EXPECT_EQ(printer, "Office Laser");
}

TEST(CommonDialogErrorText, ReadsTheCodeAsSixteenBitsAndKnowsOnlyTheTablesCodes) {
    EXPECT_EQ(commonDialogErrorText(0), "");
    EXPECT_EQ(commonDialogErrorText(65535), commonDialogErrorText(-1));
    EXPECT_EQ(commonDialogErrorText(-1).substr(0, 37), "The dialog box could not be created.\n");
    EXPECT_NE(commonDialogErrorText(12291), "Unknown Error");  // the last code of the table
    for (int code : {13, -2, 12292}) EXPECT_EQ(commonDialogErrorText(code), "Unknown Error") << code;
}

}  // namespace
}  // namespace qh
