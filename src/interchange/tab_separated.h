#pragma once
// The planner's own small text files beside the records (calendar links, subscriptions):
// a header line, then one tab-separated line per entry, with either kind of line end.
#include <string_view>
#include <vector>

namespace qh {

// The fields of each line of `text`, leaving out blank lines and the header.
std::vector<std::vector<std::string_view>> TabSeparatedLines(std::string_view text, std::string_view header);

}  // namespace qh
