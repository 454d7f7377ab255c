#include "interchange/calendar_links.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <random>
#include <vector>

#include "interchange/tab_separated.h"

namespace qh {
namespace {

constexpr std::string_view kHeader = "Quillhollow calendar links 1";

constexpr std::array<std::pair<LinkedKind, std::string_view>, 3> kKindNames{
    {{LinkedKind::Assignment, "Assignment"}, {LinkedKind::Task, "Task"}, {LinkedKind::Event, "Event"}}};

std::string_view nameOf(LinkedKind kind) {
    for (const auto& [k, name] : kKindNames)
        if (k == kind) return name;
    return {};
}

// A UID, source or hash is one line of text without tabs; anything else would break the
// file's own lines.
bool plain(std::string_view text) { return text.find_first_of("\t\r\n") == std::string_view::npos; }

}  // namespace

CalendarLinks CalendarLinks::parse(std::string_view text) {
    CalendarLinks links;
    for (const std::vector<std::string_view>& parts : TabSeparatedLines(text, kHeader)) {
        if (parts.size() != 5 || parts[2].empty()) continue;
        const auto kind = std::find_if(kKindNames.begin(), kKindNames.end(),
                                       [&](const auto& entry) { return entry.second == parts[0]; });
        std::int32_t id = 0;
        const auto [end_, error] = std::from_chars(parts[1].data(), parts[1].data() + parts[1].size(), id);
        if (kind == kKindNames.end() || error != std::errc() || end_ != parts[1].data() + parts[1].size()) continue;
        links.links_[{kind->first, id}] =
            CalendarLink{std::string(parts[2]), std::string(parts[3]), std::string(parts[4])};
    }
    return links;
}

std::string CalendarLinks::text() const {
    std::string out = std::string(kHeader) + "\r\n";
    for (const auto& [key, link] : links_) {
        out += nameOf(std::get<0>(key));
        out += '\t' + std::to_string(std::get<1>(key)) + '\t' + link.uid + '\t' + link.source + '\t' + link.hash +
               "\r\n";
    }
    return out;
}

const CalendarLink* CalendarLinks::find(LinkedKind kind, std::int32_t id) const {
    const auto it = links_.find({kind, id});
    return it == links_.end() ? nullptr : &it->second;
}

const std::string& CalendarLinks::uidOf(LinkedKind kind, std::int32_t id,
                                        const std::function<std::string()>& makeUid) {
    CalendarLink& link = links_[{kind, id}];
    if (link.uid.empty() || !plain(link.uid)) {
        link.uid = makeUid();
        changed_ = true;
    }
    return link.uid;
}

std::map<std::string, CalendarLinks::Linked> CalendarLinks::byUid() const {
    std::map<std::string, Linked> out;
    for (const auto& [key, link] : links_) out.emplace(link.uid, Linked{std::get<0>(key), std::get<1>(key)});
    return out;
}

void CalendarLinks::set(LinkedKind kind, std::int32_t id, CalendarLink link) {
    // A UID that would break the file's lines is not kept: the item is then imported anew
    // each time, which is better than a file that reads wrong.
    if (link.uid.empty() || !plain(link.uid) || !plain(link.hash)) return;
    for (char& c : link.source)
        if (c == '\t' || c == '\r' || c == '\n') c = ' ';
    CalendarLink& kept = links_[{kind, id}];
    if (kept == link) return;
    kept = std::move(link);
    changed_ = true;
}

std::vector<CalendarLinks::Linked> CalendarLinks::ofSource(const std::string& source) const {
    std::vector<Linked> out;
    for (const auto& [key, link] : links_)
        if (link.source == source) out.push_back(Linked{std::get<0>(key), std::get<1>(key)});
    return out;
}

void CalendarLinks::remove(LinkedKind kind, std::int32_t id) {
    if (links_.erase({kind, id}) > 0) changed_ = true;
}

std::string NewCalendarUid() {
    static std::mt19937_64 generator{std::random_device{}()};
    static constexpr char kDigits[] = "0123456789abcdef";
    std::string uid;
    for (int part = 0; part < 2; ++part) {
        std::uint64_t bits = generator();
        for (int i = 0; i < 16; ++i, bits >>= 4) uid += kDigits[bits & 15];
    }
    return uid + "@quillhollow";
}

}  // namespace qh
