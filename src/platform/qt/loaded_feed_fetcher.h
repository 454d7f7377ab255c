#pragma once
// The program's calendar feeds: the network module is loaded at the first fetch, and the
// fetches go to the fetcher it makes. A module that cannot be loaded refuses every fetch
// with the reason, so the student sees why no subscription is read.
#include <memory>
#include <string>

#include "platform/feeds.h"
#include "platform/qt/network/network_module.h"

namespace qh {

class LoadedFeedFetcher : public FeedFetcher {
public:
    explicit LoadedFeedFetcher(FeedRunner run);
    ~LoadedFeedFetcher() override;
    void fetch(const FeedRequest& request, Answered answered) override;
    void settle(int ms) override;

private:
    FeedFetcher* loaded();
    FeedRunner run_;
    std::unique_ptr<FeedFetcher> fetcher_;
    bool tried_ = false;
    std::string missing_;  // why the module could not be loaded
};

}  // namespace qh
