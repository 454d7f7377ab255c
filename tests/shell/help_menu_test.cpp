#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

#include "shell/about_window.h"
#include "shell/main_window.h"
#include "support/main_window_fixture.h"

namespace qh {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> pidFiles(const std::string& folder) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

TEST(HelpMenu, HelpOpensTheBooksIndexAndLeavesThePidFileOfTheProcessItStarted) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    ASSERT_EQ(pidFiles(main.fake.host), std::vector<std::string>{"4242.PID"});  // the planner's own
    window.click("MenuHelpDB");
    ASSERT_EQ(main.fake.processes.started.size(), 1u);
    EXPECT_EQ(main.fake.processes.started[0], "xdg-open \"" + main.fake.exec + "/help/index.html\"");
    EXPECT_EQ(pidFiles(main.fake.host), (std::vector<std::string>{"4242.PID", "5001.PID"}));
    EXPECT_TRUE(fs::is_empty(main.fake.host + "/5001.PID"));
    // No handler of its own: a browser that can't start is a failure of the run.
    main.fake.processes.startFails = true;
    EXPECT_THROW(window.click("MenuHelpDB"), FileFailure);
}

TEST(HelpMenu, AVideoPlaysFromTheHostFolderOrTheStudentHearsItIsMissing) {
    const struct {
        const char* menu;
        const char* file;
    } videos[] = {{"MenuVideo1", "ClassSchedule.wmv"}, {"MenuVideo2", "AddAssignment.wmv"},
                  {"MenuVideo3", "FinishAssignment.wmv"}};
    for (const auto& video : videos) {
        SCOPED_TRACE(video.menu);
        LoadedMainWindow main;
        MainWindow& window = main.load();
        const std::string path = main.fake.host + "/" + video.file;
        // Missing file: nothing starts. Present but the player fails: the same message.
        window.click(video.menu);
        EXPECT_TRUE(main.fake.processes.started.empty());
        main.fake.writeBytes(path, "video");
        main.fake.processes.startFails = true;
        window.click(video.menu);
        ASSERT_EQ(main.fake.messages.shown.size(), 2u);
        for (const ShownMessage& shown : main.fake.messages.shown) {
            EXPECT_EQ(shown.text, "Sorry, could not find the video file.");
            EXPECT_EQ(shown.title, "File Error");
            EXPECT_EQ(shown.icon, MessageIcon::Exclamation);
            EXPECT_EQ(shown.buttons, MessageButtons::OK);
        }
        // Both there: it plays, and its process leaves its .PID file.
        main.fake.processes.startFails = false;
        window.click(video.menu);
        EXPECT_EQ(main.fake.messages.shown.size(), 2u);
        EXPECT_EQ(main.fake.processes.started.back(), "xdg-open \"" + path + "\"");
        const std::string pid = std::to_string(5000 + main.fake.processes.started.size()) + ".PID";
        EXPECT_TRUE(fs::exists(main.fake.host + "/" + pid));
    }
}

TEST(HelpMenu, TheWebEntriesOpenTheHomeworkHelpPageOfTheHelpBook) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    window.click("MenuHomeworkHelp");
    window.click("PictureBarWeb");
    const std::string address = "file://" + main.fake.exec + "/help/homework/index.html";
    EXPECT_EQ(main.fake.processes.opened, (std::vector<std::string>{address, address}));
    EXPECT_TRUE(fs::exists(std::string(QH_SOURCE_DIR) + "/help/homework/index.html"));
    EXPECT_TRUE(main.fake.processes.started.empty());
}

// The version the build was configured with, read from the project's own CMakeLists.txt.
std::string projectVersion() {
    std::ifstream in(std::string(QH_SOURCE_DIR) + "/CMakeLists.txt");
    std::stringstream text;
    text << in.rdbuf();
    std::smatch match;
    const std::string all = text.str();
    if (!std::regex_search(all, match, std::regex(R"(project\(\s*Quillhollow\s+VERSION\s+(\d+\.\d+\.\d+))")))
        return "no version in CMakeLists.txt";
    return match[1];
}

TEST(HelpMenu, AboutNamesTheProgramAndTheVersionTheBuildWasMadeWith) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    std::vector<std::string> seen;
    main.fake.windowing.modalUsers["frmAbout"].push_back([&seen](Form& about) {
        seen = {about.caption, about.c("lblTitle").caption, about.c("lblVersion").caption,
                about.c("lblDescription").caption};
        about.click("lblDescription");
        about.click("cmdOK");
        seen.push_back(about.visible ? "still shown" : "hidden");
    });
    window.click("MenuAbout");
    const std::string site = "file://" + main.fake.exec + "/help/support.html";
    EXPECT_EQ(seen, (std::vector<std::string>{
                        "About Quillhollow", "Quillhollow for u3", "Version " + projectVersion(),
                        "Quillhollow is the essential homework management tool. It combines the best features of a "
                        "student planner and homework organizer  into one, easy to use program.\n\nFor questions, "
                        "orders and upgrades, visit the website at " + site,
                        "hidden"}));
    EXPECT_EQ(main.fake.processes.opened, std::vector<std::string>{site});
    EXPECT_EQ(main.fake.windowing.log.back(), "modal frmAbout");
}

}  // namespace
}  // namespace qh
