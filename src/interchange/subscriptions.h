#pragma once
// Data/Subscriptions.txt: the calendar feeds the student subscribed to, kept beside the
// record files and unknown to copies that do not read it. A feed's address often holds a
// private token, so the file is readable by its owner only and the address goes nowhere
// else: the feed's items are linked in CalendarLinks.txt by the subscription's number.
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "common/day_number.h"

namespace qh {

struct Subscription {
    int id = 0;  // never reused: it names the feed's items in CalendarLinks.txt
    std::string name, address;
    // The version of the feed last read, as the server named it.
    std::string etag, lastModified;
    std::optional<Moment> lastRefreshed;  // the last time the feed was read (or was unchanged)
    std::optional<Moment> lastAttempt;    // the last time it was asked for
    int items = 0;                        // the items of the feed last read
    std::string problem;  // why the last attempt gave no feed; empty after one that did
    bool unreachable = false;  // the problem is that no answer came (offline is normal)
    // The student's choices in the preview: per course a class ID, "tasks" or "skip"; and
    // repetitions the planner cannot hold as their first occurrence or not at all.
    std::map<std::string, std::string> courses;
    bool firstOccurrenceOnly = true;
    // Items the student deleted and chose to hide from later refreshes.
    std::set<std::string> hidden;

    // What CalendarLinks.txt says the feed's items came from.
    std::string source() const { return "subscription " + std::to_string(id); }
};

class Subscriptions {
public:
    inline static constexpr const char* kFileName = "Subscriptions.txt";

    // Reads the file's text; a line that cannot be read is passed over.
    static Subscriptions parse(std::string_view text);
    std::string text() const;

    std::vector<Subscription> feeds;

    Subscription* find(int id);
    const Subscription* bySource(const std::string& source) const;
    // A new subscription with the next free number, added last.
    Subscription& add(std::string name, std::string address);
    void remove(int id);

private:
    int lastId_ = 0;
};

}  // namespace qh
