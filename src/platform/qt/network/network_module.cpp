// The entry the program looks up after loading its network module.
#include "platform/qt/network/network_module.h"

#include <type_traits>

#include "platform/qt/network/qt_feed_fetcher.h"

extern "C" Q_DECL_EXPORT qh::FeedFetcher* quillhollow_make_feed_fetcher(const qh::FeedRunner& run) {
    return new qh::QtFeedFetcher(run);
}

static_assert(std::is_same_v<decltype(&quillhollow_make_feed_fetcher), qh::MakeFeedFetcher>);
