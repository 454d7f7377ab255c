#include "interchange/feed_status.h"

#include "platform/locale.h"

namespace qh {

std::string FeedWhenText(const Moment& when, const Moment& now, const Locale& locale) {
    const std::string time = " at " + locale.mediumTime(when.seconds);
    if (when.date == now.date) return "today" + time;
    if (when.date + 1 == now.date) return "yesterday" + time;
    return locale.longDate(when.date) + time;
}

std::string FeedRefreshedText(const Subscription& feed, const Moment& now, const Locale& locale) {
    return feed.lastRefreshed ? FeedWhenText(*feed.lastRefreshed, now, locale) : "never";
}

std::string FeedStatusText(const Subscription& feed, const Moment& now, const Locale& locale) {
    if (!feed.lastAttempt) return "not read yet";
    if (feed.problem.empty()) return "up to date";
    if (!feed.unreachable) return "refused: " + feed.problem;
    if (!feed.lastRefreshed) return "not reached yet";
    return "not reached since " + FeedWhenText(*feed.lastRefreshed, now, locale);
}

}  // namespace qh
