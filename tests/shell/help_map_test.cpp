// The help book against the windows: every control with a help number has a topic, every
// topic a page of the book, and every link of the book a target.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <regex>
#include <set>
#include <sstream>

#include "editors/editor_windows.h"
#include "shell/about_window.h"
#include "shell/help_topics.h"
#include "shell/main_window.h"
#include "shell/tip_window.h"
#include "support/main_window_fixture.h"

namespace qh {
namespace {

namespace fs = std::filesystem;

const fs::path kBook = fs::path(QH_SOURCE_DIR) / "help";

std::string readText(const fs::path& path) {
    std::ifstream in(path);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

// "" when `target` (a page of the book relative to `from`, maybe with "#anchor") is there,
// otherwise what is missing.
std::string missing(const fs::path& from, const std::string& target) {
    const auto hash = target.find('#');
    const fs::path page = (from / target.substr(0, hash)).lexically_normal();
    if (!fs::is_regular_file(page)) return "no page " + page.string();
    if (hash == std::string::npos) return "";
    const std::string anchor = target.substr(hash + 1);
    if (readText(page).find("id=\"" + anchor + "\"") == std::string::npos)
        return "no anchor " + anchor + " in " + page.string();
    return "";
}

// Every window of a run, as the planner makes them: the main window, the tip, the editors
// the main window loads and About. A window the run gains is visited with them, so its
// help numbers are checked as well.
void visitEveryWindow(LoadedMainWindow& planner, const std::function<void(Form&)>& visit) {
    MainWindow& window = planner.load();
    visit(window);
    visit(window.tipWindow());
    for (Form* editor : window.editors->windows()) visit(*editor);
    planner.fake.windowing.modalUsers["frmAbout"].push_back([&visit](Form& about) {
        visit(about);
        about.hide();
    });
    window.ShowAbout(window);
}

TEST(HelpMap, EveryControlWithAHelpNumberLeadsToAPageOfTheBook) {
    std::set<int> given;
    std::set<std::string> visited;
    LoadedMainWindow planner;
    const FakePlatform& fake = planner.fake;
    visitEveryWindow(planner, [&](Form& form) {
        visited.insert(form.name());
        for (const std::string& key : form.order()) {
            const int number = form.c(key).helpContextId;
            if (number == 0) continue;
            SCOPED_TRACE(form.name() + "." + key + " " + std::to_string(number));
            given.insert(number);
            const HelpTopic* topic = FindHelpTopic(number);
            ASSERT_NE(topic, nullptr);  // its page is the topic test's
            // The bubble tells the topic and links its page in the drive's book.
            const std::string bubble = WhatsThisText(number, fake.environment);
            EXPECT_NE(bubble.find(topic->summary), std::string::npos);
            EXPECT_NE(bubble.find("href=\"file://" + fake.exec + "/help/" + topic->page + "\""), std::string::npos);
        }
    });
    for (const char* name : {"frmMain", "frmTip", "frmAbout", "frmSelectCourseSchedule", "frmCourseSchedule",
                             "frmAssignment", "FrmTask", "frmEvent"})
        EXPECT_TRUE(visited.contains(name)) << name;
    // The main window gives 45 numbers, the assignment editor 23 and the term selection 401
    // to 407; a window that lost its numbers shows here.
    EXPECT_GE(given.size(), 45u + 23u + 7u);
    for (int number = 401; number <= 407; ++number) EXPECT_TRUE(given.contains(number)) << number;
    for (int number : {601, 602, 603, 606, 607, 608, 610, 611, 612, 620, 621}) EXPECT_TRUE(given.contains(number)) << number;
}

TEST(HelpMap, EveryTopicHasItsPageAndTheTopicsAreInOrder) {
    int previous = 0;
    for (const HelpTopic& topic : HelpTopics()) {
        SCOPED_TRACE(topic.number);
        EXPECT_GT(topic.number, previous);  // the lookup searches by halves
        previous = topic.number;
        EXPECT_EQ(missing(kBook, topic.page), "");
        EXPECT_EQ(FindHelpTopic(topic.number), &topic);
        EXPECT_FALSE(std::string(topic.summary).empty());
    }
    EXPECT_EQ(FindHelpTopic(114), nullptr);
    EXPECT_EQ(FindHelpTopic(0), nullptr);
}

// Links between the pages, pictures and scripts of the book all have their target, and
// every picture is shown by a page. (The search index is checked against the pages by
// scripts/help_index --check.)
TEST(HelpMap, TheBooksLinksAllHaveTargetsAndEveryPictureIsShown) {
    const std::regex link(R"((?:href|src)="([^"]+)\")");
    int pages = 0;
    std::set<fs::path> linked;
    for (const auto& entry : fs::recursive_directory_iterator(kBook)) {
        if (entry.path().extension() != ".html") continue;
        ++pages;
        const std::string relative = entry.path().lexically_relative(kBook).generic_string();
        SCOPED_TRACE(relative);
        const std::string text = readText(entry.path());
        for (std::sregex_iterator it(text.begin(), text.end(), link), end; it != end; ++it) {
            const std::string target = (*it)[1];
            if (target.find("://") != std::string::npos || target.starts_with("mailto:")) continue;
            linked.insert((entry.path().parent_path() / target).lexically_normal());
            if (target.starts_with("#")) {
                EXPECT_EQ(missing(entry.path().parent_path(), entry.path().filename().string() + target), "");
            } else {
                EXPECT_EQ(missing(entry.path().parent_path(), target), "");
            }
        }
    }
    EXPECT_GE(pages, 20);
    for (const auto& picture : fs::directory_iterator(kBook / "images"))
        EXPECT_EQ(linked.count(picture.path().lexically_normal()), 1u) << picture.path() << " is shown by no page";
}

// The words of a page as a reader sees them: without tags, spaces run together.
std::string pageWords(const fs::path& page) {
    std::string text = std::regex_replace(readText(page), std::regex("<[^>]*>"), " ");
    text = std::regex_replace(text, std::regex("&amp;"), "&");
    return std::regex_replace(text, std::regex(R"(\s+)"), " ");
}

// Whether `control` is shown with its window: itself and every container visible, and not
// a part of the date picker, whose calendar its own section explains.
bool shownCaption(const Form& form, const Control& control) {
    for (const Control* at = &control;; at = &form.c(at->container)) {
        if (!at->visible && at != &control) return false;
        if (at->name == "picCalendar") return false;
        if (at->container.empty()) return true;
    }
}

// Each record window's page names every caption the window shows, as it shows it (a
// colon or the spaces around it aside), so a new control or a renamed one must be
// explained to be done.
TEST(HelpMap, EachRecordWindowsPageNamesEveryCaptionOfTheWindow) {
    const std::map<std::string, std::vector<const char*>> pagesOf = {
        {"frmSelectCourseSchedule", {"select_term.html"}},
        {"frmCourseSchedule", {"class_schedule.html"}},
        {"frmAssignment", {"assignment_editor.html", "study_sessions.html"}},
        {"FrmTask", {"task_editor.html"}},
        {"frmEvent", {"event_editor.html"}},
    };
    LoadedMainWindow planner;
    MainWindow& window = planner.load();
    std::set<std::string> seen;
    for (Form* editor : window.editors->windows()) {
        const auto pages = pagesOf.find(editor->name());
        ASSERT_NE(pages, pagesOf.end()) << editor->name() << " has no page named here";
        seen.insert(editor->name());
        std::string words;
        for (const char* page : pages->second) words += pageWords(kBook / page);
        int captions = 0;
        for (const std::string& key : editor->order()) {
            const Control& control = editor->c(key);
            std::string caption = std::regex_replace(control.caption, std::regex(R"(^\s+|:?\s*$)"), "");
            if (caption.empty() || control.kind == ControlKind::Menu || !shownCaption(*editor, control)) continue;
            ++captions;
            EXPECT_NE(words.find(caption), std::string::npos) << editor->name() << "." << key << " \"" << caption << "\"";
        }
        EXPECT_GE(captions, 6) << editor->name();
    }
    EXPECT_EQ(seen.size(), pagesOf.size());
}

}  // namespace
}  // namespace qh
