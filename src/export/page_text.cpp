#include "export/page_text.h"

#include <cstddef>

namespace qh {
namespace {

char lower(char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; }

std::size_t findIgnoringCase(std::string_view text, std::string_view marker, std::size_t from) {
    if (marker.empty() || text.size() < marker.size()) return std::string_view::npos;
    for (std::size_t i = from; i + marker.size() <= text.size(); ++i) {
        std::size_t k = 0;
        while (k < marker.size() && lower(text[i + k]) == lower(marker[k])) ++k;
        if (k == marker.size()) return i;
    }
    return std::string_view::npos;
}

}  // namespace

std::string EscapeHtml(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (char c : text) {
        switch (c) {
            case '&': out += "&amp;"; break;
            case '<': out += "&lt;"; break;
            case '>': out += "&gt;"; break;
            case '"': out += "&quot;"; break;
            default: out += c;
        }
    }
    return out;
}

bool ContainsIgnoringCase(std::string_view text, std::string_view marker) {
    return findIgnoringCase(text, marker, 0) != std::string_view::npos;
}

std::string ReplaceIgnoringCase(std::string_view text, std::string_view marker, std::string_view with) {
    std::string out;
    std::size_t from = 0;
    for (std::size_t at = findIgnoringCase(text, marker, 0); at != std::string_view::npos;
         at = findIgnoringCase(text, marker, from)) {
        out.append(text.substr(from, at - from));
        out.append(with);
        from = at + marker.size();
    }
    out.append(text.substr(from));
    return out;
}

std::vector<std::string_view> TemplateLines(std::string_view text) {
    std::vector<std::string_view> lines;
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        const std::size_t next = end == std::string_view::npos ? text.size() : end + 1;
        if (end == std::string_view::npos) end = text.size();
        std::string_view line = text.substr(start, end - start);
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        lines.push_back(line);
        start = next;
    }
    return lines;
}

}  // namespace qh

namespace qh {

std::string_view FirstCharacters(std::string_view text, std::size_t count) {
    std::size_t end = 0;
    for (std::size_t seen = 0; end < text.size() && seen < count; ++seen) {
        ++end;
        // Continuation bytes belong to the character begun before them.
        while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) ++end;
    }
    return text.substr(0, end);
}

}  // namespace qh
