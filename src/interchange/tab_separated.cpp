#include "interchange/tab_separated.h"

namespace qh {
namespace {

std::vector<std::string_view> fields(std::string_view line) {
    std::vector<std::string_view> out;
    for (std::size_t at = 0;;) {
        const std::size_t tab = line.find('\t', at);
        out.push_back(line.substr(at, tab - at));
        if (tab == std::string_view::npos) return out;
        at = tab + 1;
    }
}

}  // namespace

std::vector<std::vector<std::string_view>> TabSeparatedLines(std::string_view text, std::string_view header) {
    std::vector<std::vector<std::string_view>> lines;
    std::size_t at = 0;
    while (at < text.size()) {
        std::size_t end = text.find('\n', at);
        if (end == std::string_view::npos) end = text.size();
        std::string_view line = text.substr(at, end - at);
        at = end + 1;
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        if (line.empty() || line == header) continue;
        lines.push_back(fields(line));
    }
    return lines;
}

}  // namespace qh
