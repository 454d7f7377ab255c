#include "interchange/subscriptions.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

#include "interchange/tab_separated.h"

namespace qh {
namespace {

constexpr std::string_view kHeader = "Quillhollow subscriptions 1";

// A value is one field of one line: whatever would break the line becomes a space.
std::string plain(std::string text) {
    for (char& c : text)
        if (c == '\t' || c == '\r' || c == '\n') c = ' ';
    return text;
}

std::optional<int> number(std::string_view text) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

std::string momentText(const std::optional<Moment>& moment) {
    if (!moment) return {};
    char time[40];
    std::snprintf(time, sizeof time, " %02d:%02d:%02d", moment->seconds / 3600, moment->seconds / 60 % 60,
                  moment->seconds % 60);
    return dateText(moment->date) + time;
}

std::optional<Moment> momentOf(std::string_view text) {
    const std::size_t space = text.find(' ');
    if (space == std::string_view::npos) return std::nullopt;
    const std::optional<Date> date = parseDateText(text.substr(0, space));
    int h = 0, m = 0, s = 0;
    const std::string time(text.substr(space + 1));
    if (!date || std::sscanf(time.c_str(), "%d:%d:%d", &h, &m, &s) != 3 || h < 0 || h > 23 || m < 0 || m > 59 ||
        s < 0 || s > 59)
        return std::nullopt;
    return Moment{*date, h * 3600 + m * 60 + s};
}

}  // namespace

Subscriptions Subscriptions::parse(std::string_view text) {
    Subscriptions out;
    for (const std::vector<std::string_view>& f : TabSeparatedLines(text, kHeader)) {
        const std::optional<int> id = f.size() > 1 ? number(f[1]) : std::nullopt;
        if (!id || *id <= 0) continue;
        if (f[0] == "Next" && f.size() == 2) {
            out.lastId_ = std::max(out.lastId_, *id - 1);
        } else if (f[0] == "Feed" && f.size() == 12 && !out.find(*id)) {
            Subscription feed;
            feed.id = *id;
            feed.name = f[2];
            feed.address = f[3];
            feed.etag = f[4];
            feed.lastModified = f[5];
            feed.lastRefreshed = momentOf(f[6]);
            feed.lastAttempt = momentOf(f[7]);
            feed.items = number(f[8]).value_or(0);
            feed.firstOccurrenceOnly = f[9] != "skip";
            feed.unreachable = f[10] == "unreachable";
            feed.problem = f[11];
            out.feeds.push_back(std::move(feed));
            out.lastId_ = std::max(out.lastId_, *id);
        } else if (Subscription* feed = out.find(*id); feed && f[0] == "Course" && f.size() == 4) {
            feed->courses[std::string(f[2])] = f[3];
        } else if (feed && f[0] == "Hidden" && f.size() == 3 && !f[2].empty()) {
            feed->hidden.insert(std::string(f[2]));
        }
    }
    return out;
}

std::string Subscriptions::text() const {
    // The next number is kept apart: a removed feed's number is never given again.
    std::string out = std::string(kHeader) + "\r\nNext\t" + std::to_string(lastId_ + 1) + "\r\n";
    for (const Subscription& feed : feeds) {
        const std::string id = std::to_string(feed.id);
        out += "Feed\t" + id + '\t' + plain(feed.name) + '\t' + plain(feed.address) + '\t' + plain(feed.etag) + '\t' +
               plain(feed.lastModified) + '\t' + momentText(feed.lastRefreshed) + '\t' +
               momentText(feed.lastAttempt) + '\t' + std::to_string(feed.items) + '\t' +
               (feed.firstOccurrenceOnly ? "first" : "skip") + '\t' + (feed.unreachable ? "unreachable" : "") +
               '\t' + plain(feed.problem) + "\r\n";
        for (const auto& [course, choice] : feed.courses)
            out += "Course\t" + id + '\t' + plain(course) + '\t' + plain(choice) + "\r\n";
        for (const std::string& uid : feed.hidden) out += "Hidden\t" + id + '\t' + plain(uid) + "\r\n";
    }
    return out;
}

Subscription* Subscriptions::find(int id) {
    const auto it = std::find_if(feeds.begin(), feeds.end(), [id](const Subscription& s) { return s.id == id; });
    return it == feeds.end() ? nullptr : &*it;
}

const Subscription* Subscriptions::bySource(const std::string& source) const {
    for (const Subscription& feed : feeds)
        if (feed.source() == source) return &feed;
    return nullptr;
}

Subscription& Subscriptions::add(std::string name, std::string address) {
    Subscription feed;
    feed.id = ++lastId_;
    feed.name = std::move(name);
    feed.address = std::move(address);
    feeds.push_back(std::move(feed));
    return feeds.back();
}

void Subscriptions::remove(int id) {
    std::erase_if(feeds, [id](const Subscription& s) { return s.id == id; });
}

}  // namespace qh
