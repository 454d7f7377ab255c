#pragma once
// Calendar feeds answered from the script (`feed ADDRESS ...`), as a server would answer
// them; every other address goes to the fetcher the probe was given, so the probe still
// reads real feeds over the network.
#include <map>
#include <utility>
#include <vector>

#include "platform/feeds.h"

namespace qh {

class ScriptedFeeds : public FeedFetcher {
public:
    explicit ScriptedFeeds(FeedFetcher& others) : others_(others) {}
    // A scripted answer waits for the next settle, as one from the network does. A read
    // that asks with the answer's own tag is answered Unchanged, as a server answers it.
    void fetch(const FeedRequest& request, Answered answered) override {
        const auto scripted = answers.find(request.address);
        if (scripted == answers.end()) return others_.fetch(request, std::move(answered));
        FeedAnswer answer = scripted->second;
        if (answer.outcome == FeedAnswer::Outcome::Fetched && !answer.etag.empty() && answer.etag == request.etag) {
            answer = {};
            answer.outcome = FeedAnswer::Outcome::Unchanged;
        }
        waiting_.emplace_back(std::move(answer), std::move(answered));
    }
    void settle(int ms) override {
        while (!waiting_.empty()) {
            std::vector<std::pair<FeedAnswer, Answered>> due;
            due.swap(waiting_);
            for (const auto& [answer, answered] : due) answered(answer);
        }
        others_.settle(ms);
    }

    std::map<std::string, FeedAnswer> answers;  // by the address as the planner asks for it

private:
    FeedFetcher& others_;
    std::vector<std::pair<FeedAnswer, Answered>> waiting_;
};

}  // namespace qh
