#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <regex>
#include <sstream>

#include "shell/about_window.h"
#include "shell/main_window.h"
#include "shell/tip_window.h"
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

// The pages each entry opens, and the About window, are the help_menu_opens_the_help_book
// probe script. The host folder's marks, a desktop that cannot open them and the version
// the build was made with are told here.
TEST(HelpMenu, HelpLeavesThePidFileOfTheProcessItStarted) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    ASSERT_EQ(pidFiles(main.fake.host), std::vector<std::string>{"4242.PID"});  // the planner's own
    window.click(window.ui.MenuHelpDB.key());
    ASSERT_EQ(main.fake.processes.started.size(), 1u);
    EXPECT_EQ(pidFiles(main.fake.host), (std::vector<std::string>{"4242.PID", "5001.PID"}));
    EXPECT_TRUE(fs::is_empty(main.fake.host + "/5001.PID"));
    // A host folder that takes no mark leaves the page open and the planner running.
    main.fake.files.failPath(".PID");
    window.click(window.ui.MenuHelpDB.key());
    EXPECT_EQ(main.fake.processes.started.size(), 2u);
    EXPECT_TRUE(main.fake.messages.shown.empty());
}

// Help, the web entries, the tutorials (the menu's and the tip's line) and About's link lead
// to pages the book holds; when the desktop can't follow, the student reads what could not be opened,
// nothing is left behind for a process that never started, and the planner goes on.
TEST(HelpMenu, WhatTheDesktopCannotOpenIsToldByNameAndThePlannerGoesOn) {
    const struct {
        const char* name;
        std::function<void(MainWindow&, FakePlatform&)> act;
        const char* target;  // under the drive's program folder
    } cases[] = {
        {"help book", [](MainWindow& w, FakePlatform&) { w.click(w.ui.MenuHelpDB.key()); }, "/help/index.html"},
        {"homework help", [](MainWindow& w, FakePlatform&) { w.click(w.ui.MenuHomeworkHelp.key()); },
         "/help/homework/index.html"},
        {"globe", [](MainWindow& w, FakePlatform&) { w.click(w.ui.PictureBarWeb.key()); }, "/help/homework/index.html"},
        {"tip's tutorials", [](MainWindow& w, FakePlatform&) { w.tipWindow().click("LabelVideo"); },
         "/help/tutorials.html"},
        {"video tutorial 1", [](MainWindow& w, FakePlatform&) { w.click("MenuVideo1"); },
         "/help/tutorial_class_schedule.html"},
        {"video tutorial 2", [](MainWindow& w, FakePlatform&) { w.click("MenuVideo2"); },
         "/help/tutorial_add_assignment.html"},
        {"video tutorial 3", [](MainWindow& w, FakePlatform&) { w.click("MenuVideo3"); },
         "/help/tutorial_finish_assignment.html"},
        {"About's link",
         [](MainWindow& w, FakePlatform& fake) {
             fake.windowing.modalUsers["frmAbout"].push_back([](Form& about) {
                 about.click("lblDescription");
                 about.click("cmdOK");
             });
             w.click(w.ui.MenuAbout.key());
         },
         "/help/support.html"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        LoadedMainWindow main;
        MainWindow& window = main.load();
        main.fake.processes.startFails = main.fake.processes.openFails = true;
        EXPECT_NO_THROW(c.act(window, main.fake));
        ASSERT_EQ(main.fake.messages.shown.size(), 1u);
        const ShownMessage& shown = main.fake.messages.shown[0];
        EXPECT_TRUE(shown.text.starts_with("Could not open \"" + main.fake.exec + c.target + "\"")) << shown.text;
        EXPECT_EQ(shown.title, "Quillhollow");
        EXPECT_EQ(shown.icon, MessageIcon::Exclamation);
        EXPECT_EQ(pidFiles(main.fake.host), std::vector<std::string>{"4242.PID"});
        EXPECT_TRUE(fs::exists(std::string(QH_SOURCE_DIR) + c.target));  // the book holds the page
    }
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

// The script's About shows the version of today's build; this follows CMakeLists.txt.
TEST(HelpMenu, AboutNamesTheVersionTheBuildWasMadeWith) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    std::string version;
    main.fake.windowing.modalUsers["frmAbout"].push_back([&version](Form& about) {
        version = about.c("lblVersion").caption;
        about.click("cmdOK");
    });
    window.click(window.ui.MenuAbout.key());
    EXPECT_EQ(version, "Version " + projectVersion());
}

}  // namespace
}  // namespace qh
