#include <gtest/gtest.h>

#include <filesystem>

#include "shell/main_window.h"
#include "shell/module1.h"
#include "support/main_window_fixture.h"

namespace qh {
namespace {

namespace fs = std::filesystem;

TEST(EntryRoutine, ASecondCopyShowsItsMessageAndTouchesNothing) {
    FakePlatform fake;
    fake.processes.otherInstance = true;
    Module1 module(fake.platform);
    EXPECT_FALSE(module.Main());
    ASSERT_EQ(fake.messages.shown.size(), 1u);
    EXPECT_EQ(fake.messages.shown[0].text, "Quillhollow is already running.");
    EXPECT_EQ(fake.messages.shown[0].title, "Quillhollow");
    EXPECT_EQ(fake.messages.shown[0].buttons, MessageButtons::OK);
    EXPECT_TRUE(fs::is_empty(fake.documents));
    EXPECT_TRUE(fs::is_empty(fake.host));
}

TEST(EntryRoutine, WithoutTheDrivePlatformItEndsWritingNothing) {
    FakePlatform fake;
    fake.environment.values.erase("U3_HOST_EXEC_PATH");
    Module1 module(fake.platform);
    EXPECT_FALSE(module.Main());
    ASSERT_EQ(fake.messages.shown.size(), 1u);
    EXPECT_EQ(fake.messages.shown[0].text, "Launch Quillhollow from your u3 Smart Drive.");
    EXPECT_TRUE(fs::is_empty(fake.documents));
    EXPECT_TRUE(fs::is_empty(fake.host));
    EXPECT_TRUE(fake.files.log.empty());
}

TEST(EntryRoutine, ShowsTheSplashWhileTheMainWindowLoads) {
    FakePlatform fake;
    Module1 module(fake.platform);
    ASSERT_TRUE(module.Main());
    EXPECT_EQ(fake.windowing.log, (std::vector<std::string>{"show frmSplash", "close frmSplash", "show frmMain"}));
    EXPECT_TRUE(module.mainWindow()->visible);
}

TEST(MainWindowLoad, AFirstRunOnAnEmptyDriveMakesTheFoldersInOrderAndOpens) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    const std::string base = main.fake.documents + "/Quillhollow";
    std::vector<std::string> made;
    for (const std::string& line : main.fake.files.log)
        if (line.find(" mkdir") != std::string::npos) made.push_back(line);
    EXPECT_EQ(made, (std::vector<std::string>{"write " + base + " mkdir", "write " + base + "/Data mkdir",
                                              "write " + base + "/Data/Backup mkdir"}));
    // Nothing but the empty record files and the process file was written.
    std::vector<std::string> data;
    for (const auto& entry : fs::directory_iterator(base + "/Data"))
        if (entry.is_regular_file()) {
            data.push_back(entry.path().filename().string());
            EXPECT_EQ(entry.file_size(), 0u) << entry.path();
        }
    std::sort(data.begin(), data.end());
    EXPECT_EQ(data, (std::vector<std::string>{"Assignments.txt", "Classes.txt", "Events.txt", "Notes.txt",
                                              "StudySessions.txt", "Tasks.txt", "Terms.txt"}));
    EXPECT_TRUE(fs::exists(main.fake.host + "/4242.PID"));
    EXPECT_EQ(window.caption, "Quillhollow Homework System");
    EXPECT_EQ(window.c("LabelTerm").caption, "No Term Selected");
    EXPECT_EQ(window.c("LabelDaysLeft").caption, "");
    EXPECT_EQ(window.CurrentMode(), Mode::Homework);
    EXPECT_TRUE(window.c("TimerTip").enabled);
    EXPECT_TRUE(main.fake.messages.shown.empty());
}

TEST(MainWindowLoad, ReadsTheRecordFilesInOrder) {
    LoadedMainWindow main;
    main.load();
    std::vector<std::string> opened;
    for (const std::string& line : main.fake.files.log)
        if (line.rfind("open ", 0) == 0) opened.push_back(fs::path(line.substr(5)).filename().string());
    // The load reads all seven; selecting the term at the end reads the term's three again
    // only when there is a term.
    EXPECT_EQ(opened, (std::vector<std::string>{"Terms.txt", "Classes.txt", "Assignments.txt", "Notes.txt",
                                                "StudySessions.txt", "Tasks.txt", "Events.txt"}));
}

TEST(MainWindowLoad, IsCentredAtItsLoadSizeWithoutPreferences) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    EXPECT_EQ(window.width, 9600);
    EXPECT_EQ(window.height, 7215);
    EXPECT_EQ(window.left, (1280 * 15 - 9600) / 2);
    EXPECT_EQ(window.top, (1024 * 15 - 7215) / 2);
    EXPECT_EQ(window.state.MinWindowWidth, 640);
    EXPECT_EQ(window.state.MinWindowHeight, 481);
    // No file: the week starts on Sunday and the tips are wanted.
    EXPECT_EQ(window.state.StartDayOfWeek, "Sunday");
    EXPECT_EQ(window.state.ShowTipsAtStartup, "Yes");
    EXPECT_TRUE(window.c("MenuStartSun").checked);
}

TEST(MainWindowUnload, DeletesTheProcessFileAndWritesThePreferences) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    main.fake.windowing.close(window);
    EXPECT_FALSE(fs::exists(main.fake.host + "/4242.PID"));
    const std::string preferences = main.fake.bytesOf(main.fake.dataDirectory() + "/Preferences.ini");
    EXPECT_EQ(preferences,
              // Centred on a 1280 x 1024 screen: 4800 and 4072 twips, written in pixels.
              "[Window Position]\r\nFormMainState=0\r\nFormMainLocationX=320\r\nFormMainLocationY=271.4667"
                  "\r\nFormMainSizeX=640\r\nFormMainSizeY=481\r\n\r\n[Options]\r\nActiveTerm=\r\n"
                  "StartDayofWeek=Sunday\r\nShowTipsAtStartup=Yes\r\nCurrentTip=0\r\n");
    // Nothing changed, so nothing was rotated.
    EXPECT_TRUE(fs::is_empty(main.fake.dataDirectory() + "/Backup"));
}

TEST(MainWindowUnload, AFailureWhileClosingIsSilentAndTheWindowStillCloses) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    main.fake.files.failPath("Preferences.ini");
    main.fake.windowing.close(window);
    EXPECT_FALSE(window.visible);
    EXPECT_TRUE(main.fake.messages.shown.empty());
    EXPECT_FALSE(fs::exists(main.fake.host + "/4242.PID"));
}

TEST(MainWindowLoad, TheNextRunStartsInHomeworkModeWithTheSavedStartDay) {
    LoadedMainWindow main;
    MainWindow& first = main.load();
    first.click("MenuStartSat");
    first.click("MenuEvents");
    main.fake.windowing.close(first);
    RecordStore again;
    MainWindow second(again, main.fake.platform);
    second.Form_Load();
    EXPECT_EQ(second.CurrentMode(), Mode::Homework);
    EXPECT_EQ(second.state.StartDayOfWeek, "Saturday");
    EXPECT_EQ(second.c("ComboList").text, "All");
    EXPECT_EQ(second.c("ComboDateRange").text, "Term");
}

}  // namespace
}  // namespace qh
