#pragma once
// The addresses the planner opens in the browser. There is no product web site: the
// help book in the program's folder on the drive stands in for it, so that every address
// opens something useful without a network. Change them here and only here.
#include <string>

namespace qh {

class Environment;

// Pages of the help book, relative to its folder.
inline constexpr const char* kHelpIndexPage = "index.html";
inline constexpr const char* kProductSitePage = "support.html";     // support and updates
inline constexpr const char* kContactPage = "contactus.html";       // questions
inline constexpr const char* kHomeworkHelpPage = "homework/index.html";  // study tips
inline constexpr const char* kTutorialsPage = "tutorials.html";
// The three tutorials of the Help menu's Video Tutorials, in its order.
inline constexpr const char* kTutorialPages[] = {"tutorial_class_schedule.html", "tutorial_add_assignment.html",
                                                 "tutorial_finish_assignment.html"};

// The help book's folder: U3_DEVICE_EXEC_PATH/help.
std::string HelpBookFolder(const Environment& environment);
// A page of the help book as a file address ("file:///.../help/support.html"); `page` may
// carry an anchor ("calendar.html#arrows").
std::string HelpBookAddress(const Environment& environment, const std::string& page);

}  // namespace qh
