#pragma once
// Context help: what each help number of a control means. A number names a short text for
// the What's This bubble and the page of the help book (with an anchor where the page has
// several parts) that tells the whole story.
#include <string>
#include <vector>

namespace qh {

class Environment;

struct HelpTopic {
    int number;
    const char* page;     // relative to the help book's folder, may end in "#anchor"
    const char* summary;  // one or two plain sentences
};

// Every help number the windows give, ascending.
const std::vector<HelpTopic>& HelpTopics();
// The topic of a number, or null when none is known.
const HelpTopic* FindHelpTopic(int number);
// What the What's This bubble shows for a number: the summary and a link to its page, as
// simple rich text. A number without a topic says so and links the help book's index.
std::string WhatsThisText(int number, const Environment& environment);

}  // namespace qh
