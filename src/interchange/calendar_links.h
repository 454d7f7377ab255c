#pragma once
// Data/CalendarLinks.txt: what the planner remembers of its records as calendar items,
// beside the record files and unknown to copies that do not read it. One line a record:
// its kind, its ID, the item's UID, where it came from (empty for the planner's own) and
// a hash of the item as last read there. A record keeps its UID from one export to the
// next, so a phone that read the first file updates the same items from the second.
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace qh {

enum class LinkedKind { Assignment, Task, Event };

struct CalendarLink {
    std::string uid, source, hash;
    bool operator==(const CalendarLink&) const = default;
};

class CalendarLinks {
public:
    inline static constexpr const char* kFileName = "CalendarLinks.txt";

    // Reads the file's text; a line that cannot be read is passed over, never a stop.
    static CalendarLinks parse(std::string_view text);
    std::string text() const;

    const CalendarLink* find(LinkedKind kind, std::int32_t id) const;
    // The record's UID, made with `makeUid` and kept when it has none yet.
    const std::string& uidOf(LinkedKind kind, std::int32_t id, const std::function<std::string()>& makeUid);

    // The record each UID was imported into or exported from.
    struct Linked {
        LinkedKind kind;
        std::int32_t id;
    };
    std::map<std::string, Linked> byUid() const;
    void set(LinkedKind kind, std::int32_t id, CalendarLink link);
    // The records imported from one source, and forgetting where a record came from.
    std::vector<Linked> ofSource(const std::string& source) const;
    void remove(LinkedKind kind, std::int32_t id);

    bool changed() const { return changed_; }
    std::size_t size() const { return links_.size(); }

private:
    std::map<std::tuple<LinkedKind, std::int32_t>, CalendarLink> links_;
    bool changed_ = false;
};

// A new UID, unique across drives: random hexadecimal digits and the planner's name.
std::string NewCalendarUid();

}  // namespace qh
