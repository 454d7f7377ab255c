#pragma once
// Text helpers of the exported HTML pages: escaping record texts, the case-blind marker
// search and replacement, and the template's lines.
#include <string>
#include <string_view>
#include <vector>

namespace qh {

// A record text made safe to stand in an HTML cell or attribute: "&" first (so nothing
// made here is escaped twice), then "<", ">" and the double quote.
std::string EscapeHtml(std::string_view text);

// Whether `text` holds `marker`, ASCII letters compared without regard to case.
bool ContainsIgnoringCase(std::string_view text, std::string_view marker);

// Every occurrence of `marker` (case-blind) in `text` replaced by `with`; the replacement
// is not searched again.
std::string ReplaceIgnoringCase(std::string_view text, std::string_view marker, std::string_view with);

// The lines of a template file: split at LF, a CR before it dropped. A last line without a
// line end counts; an empty file has no lines.
std::vector<std::string_view> TemplateLines(std::string_view text);

// The line end of every line an export writes.
inline constexpr std::string_view kPageLineEnd = "\r\n";

}  // namespace qh

namespace qh {

// The first `count` characters of a UTF-8 text (whole sequences; all of it when shorter).
std::string_view FirstCharacters(std::string_view text, std::size_t count);

}  // namespace qh
