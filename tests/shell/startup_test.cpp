#include <gtest/gtest.h>

#include <filesystem>

#include "platform/fake/recording_canvas.h"
#include "record_store/record_files.h"
#include "record_store/storage_locations.h"
#include "shell/main_window.h"
#include "shell/planner_run.h"
#include "support/main_window_fixture.h"

namespace qh {
namespace {

namespace fs = std::filesystem;

// A second copy, and a start not made from the drive, end with their message before
// anything is written.
TEST(EntryRoutine, RefusesASecondCopyAndAStartWithoutTheDriveTouchingNothing) {
    const struct {
        const char* message;
        void (*setUp)(FakePlatform&);
    } cases[] = {
        {"Quillhollow is already running.", [](FakePlatform& fake) { fake.processes.otherInstance = true; }},
        {"Launch Quillhollow from your u3 Smart Drive.",
         [](FakePlatform& fake) { fake.environment.values.erase("U3_HOST_EXEC_PATH"); }},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.message);
        FakePlatform fake;
        c.setUp(fake);
        PlannerRun run(fake.platform);
        EXPECT_FALSE(run.start());
        ASSERT_EQ(fake.messages.shown.size(), 1u);
        EXPECT_EQ(fake.messages.shown[0].text, c.message);
        EXPECT_EQ(fake.messages.shown[0].title, "Quillhollow");
        EXPECT_EQ(fake.messages.shown[0].buttons, MessageButtons::OK);
        EXPECT_TRUE(fs::is_empty(fake.documents));
        EXPECT_TRUE(fs::is_empty(fake.host));
        EXPECT_TRUE(fake.files.log.empty());
        EXPECT_TRUE(fake.windowing.log.empty());
    }
}

TEST(EntryRoutine, ShowsTheSplashWhileTheMainWindowLoads) {
    FakePlatform fake;
    PlannerRun run(fake.platform);
    ASSERT_TRUE(run.start());
    EXPECT_EQ(fake.windowing.log, (std::vector<std::string>{"show frmSplash", "close frmSplash", "show frmMain"}));
    EXPECT_TRUE(run.mainWindow()->visible);
}

TEST(MainWindowLoad, AFirstRunOnAnEmptyDriveMakesTheFoldersReadsTheFilesAndOpens) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    const std::string base = main.fake.documents + "/Quillhollow";
    std::vector<std::string> made, opened;
    for (const std::string& line : main.fake.files.log) {
        if (line.find(" mkdir") != std::string::npos) made.push_back(line);
        if (line.ends_with(" create") && line.find(".PID") == std::string::npos)
            opened.push_back(fs::path(line.substr(6, line.size() - 13)).filename().string());
    }
    EXPECT_EQ(made, (std::vector<std::string>{"write " + base + " mkdir", "write " + base + "/Data mkdir",
                                              "write " + base + "/Data/Backup mkdir"}));
    // All seven made once, and empty: with no term there is no second read of the term's three.
    const std::vector<std::string> files{"Terms.txt",         "Classes.txt", "Assignments.txt", "Notes.txt",
                                         "StudySessions.txt", "Tasks.txt",   "Events.txt"};
    EXPECT_EQ(opened, files);
    for (const std::string& name : files) EXPECT_EQ(fs::file_size(base + "/Data/" + name), 0u) << name;
    EXPECT_EQ(std::distance(fs::directory_iterator(base + "/Data"), {}), 8);  // and Backup: nothing else
    EXPECT_TRUE(fs::exists(main.fake.host + "/4242.PID"));
    EXPECT_EQ(window.ui.LabelTerm->caption, "No Term Selected");
    EXPECT_EQ(window.ui.LabelDaysLeft->caption, "");
    EXPECT_EQ(window.CurrentMode(), Mode::Homework);
    EXPECT_TRUE(window.ui.TimerTip->enabled);
    EXPECT_TRUE(main.fake.messages.shown.empty());
}

TEST(MainWindowLoad, AReadOnlyDriveLoadsEveryRecordSaysSoAndWritesNothing) {
    LoadedMainWindow main;
    main.putDataFile("Terms.txt", termRecord(1, "Fall 2026", "2026/08/31", "2026/12/18"));
    main.putDataFile("Classes.txt", classRecord(10, 1, "Biology"));
    main.putDataFile("Assignments.txt", assignmentRecord(1, 10, "2026/11/30", "Lab report", false));
    main.fake.writeBytes(main.fake.dataDirectory() + "/Preferences.ini", "[Options]\r\nActiveTerm=Fall 2026\r\n");
    main.fake.files.refuseWrites(FileProblem::ReadOnly, main.fake.documents);
    MainWindow& window = main.load();
    EXPECT_TRUE(main.fake.messages.shown.empty());
    EXPECT_EQ(main.store.AssignmentDescriptions, (TextColumn{"Lab report"}));
    EXPECT_EQ(window.caption, std::string("Quillhollow Homework System - ") + kReadOnlyText);
    EXPECT_TRUE(window.ui.picStatusBar->accessibleName.starts_with(kReadOnlyText));
    // With a long status behind it, the bar's line ends in "..." before the date instead of
    // running under it; a screen reader still hears all of it.
    const std::string status = "School: refused: " + std::string(150, 'x') + " the end";
    window.state.StatusBarText = status;
    window.PaintStatusBar();
    std::vector<CanvasCall> lines;
    for (const CanvasCall& call : static_cast<const RecordingCanvas&>(*window.ui.picStatusBar->canvas).calls())
        if (call.kind == CanvasCall::Text) lines.push_back(call);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_TRUE(lines[0].text.starts_with(std::string(kReadOnlyText) + "      School: refused: xxx")) << lines[0].text;
    EXPECT_TRUE(lines[0].text.ends_with("x...")) << lines[0].text;
    EXPECT_LE(lines[0].x2, lines[1].x1 - 300);  // a gap before the date
    EXPECT_GT(lines[0].x2, lines[1].x1 - 500);  // and not much more
    EXPECT_TRUE(window.ui.picStatusBar->accessibleName.ends_with(status + ", " + lines[1].text));

    // A save is refused with the same words before anything is written.
    main.store.AssignmentsChanged = kTrue;  // as a save earlier in the run would leave it
    EXPECT_FALSE(window.files->SaveAssignment(1));
    ASSERT_EQ(main.messageTexts(), (std::vector<std::string>{kReadOnlyText}));
    main.fake.files.log.clear();
    main.fake.windowing.close(window, UnloadMode::CloseBox);
    EXPECT_FALSE(fs::exists(main.fake.host + "/4242.PID"));
    for (const std::string& line : main.fake.files.log)
        EXPECT_EQ(line.find(main.fake.documents), std::string::npos) << line;
    EXPECT_EQ(main.fake.bytesOf(main.fake.dataDirectory() + "/Preferences.ini"),
              "[Options]\r\nActiveTerm=Fall 2026\r\n");
}

// Closing deletes the process file and writes the preferences, which the next run
// reads; a failure on the way is silent and the window still closes.
TEST(MainWindowUnload, DeletesTheProcessFileAndWritesThePreferencesSilently) {
    for (bool failing : {false, true}) {
        SCOPED_TRACE(failing);
        LoadedMainWindow main;
        MainWindow& window = main.load();
        window.click(window.ui.MenuStartSat.key());
        window.click(window.ui.MenuEvents.key());
        if (failing) main.fake.files.failPath("Preferences.ini");
        main.fake.windowing.close(window, UnloadMode::CloseBox);
        EXPECT_FALSE(window.visible);
        EXPECT_FALSE(fs::exists(main.fake.host + "/4242.PID"));
        EXPECT_TRUE(main.fake.messages.shown.empty());
        if (failing) continue;
        EXPECT_EQ(main.fake.bytesOf(main.fake.dataDirectory() + "/Preferences.ini"),
                  // Centred on a 1280 x 1024 screen at its load size, written in pixels.
                  "[Window Position]\r\nFormMainState=0\r\nFormMainLocationX=320\r\nFormMainLocationY=271.4667"
                  "\r\nFormMainSizeX=640\r\nFormMainSizeY=481\r\n\r\n[Options]\r\nActiveTerm=\r\n"
                  "StartDayofWeek=Saturday\r\nShowTipsAtStartup=Yes\r\nCurrentTip=0\r\n");
        // Nothing changed, so nothing was rotated.
        EXPECT_TRUE(fs::is_empty(main.fake.dataDirectory() + "/Backup"));

        // The next run starts in Homework mode with the saved start day.
        RecordStore again;
        MainWindow second(again, main.fake.platform);
        second.Form_Load();
        EXPECT_EQ(second.CurrentMode(), Mode::Homework);
        EXPECT_TRUE(second.ui.MenuStartSat->checked);
        EXPECT_EQ(second.ui.ComboDateRange->text, "Term");
    }
}

}  // namespace
}  // namespace qh
