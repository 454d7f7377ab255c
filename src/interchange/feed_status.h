#pragma once
// A subscription's state in words, for its window and the status bar: when it was last
// read, and, when the last try gave nothing, since when or why. Offline is normal, so the
// words are calm: "not reached since yesterday at 09:05 AM".
#include <string>

#include "interchange/subscriptions.h"

namespace qh {

class Locale;

// "today at 09:05 AM", "yesterday at ...", else "<long date> at ...".
std::string FeedWhenText(const Moment& when, const Moment& now, const Locale& locale);
// The subscription's last refresh, "never" before the first.
std::string FeedRefreshedText(const Subscription& feed, const Moment& now, const Locale& locale);
// "up to date", "not reached since ...", "not reached yet", "refused: <why>", "not read yet".
std::string FeedStatusText(const Subscription& feed, const Moment& now, const Locale& locale);

}  // namespace qh
