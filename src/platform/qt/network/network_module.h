#pragma once
// The program's network part is a module of its own, quillhollow-network.so beside the
// program, loaded the first time a calendar feed is fetched. A planner without
// subscriptions then never loads Qt Network and the libraries it brings (Kerberos, the
// proxy resolver), which would cost every start a few milliseconds. This header is what
// the program and the module agree on.
#include <functional>

#include "platform/feeds.h"

namespace qh {

// Hands a feed's answer to the planner so that it arrives as a gesture does.
using FeedRunner = std::function<void(const std::function<void()>&)>;

inline constexpr const char* kNetworkModuleFile = "quillhollow-network.so";
inline constexpr const char* kMakeFeedFetcherEntry = "quillhollow_make_feed_fetcher";
// The module's one entry: a fetcher over Qt Network, owned by the caller.
using MakeFeedFetcher = FeedFetcher* (*)(const FeedRunner& run);

}  // namespace qh
