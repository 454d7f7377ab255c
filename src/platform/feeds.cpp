#include "platform/feeds.h"

#include <cctype>
#include <vector>

namespace qh {
namespace {

class NoFeeds : public FeedFetcher {
public:
    void fetch(const FeedRequest&, Answered answered) override { waiting_.push_back(std::move(answered)); }
    void settle(int) override {
        std::vector<Answered> due;
        due.swap(waiting_);
        FeedAnswer answer;
        answer.why = "no network";
        for (const Answered& answered : due) answered(answer);
    }

private:
    std::vector<Answered> waiting_;
};

bool startsWithNoCase(const std::string& text, const std::string& prefix) {
    if (text.size() < prefix.size()) return false;
    for (std::size_t i = 0; i < prefix.size(); ++i)
        if (std::tolower(static_cast<unsigned char>(text[i])) != prefix[i]) return false;
    return true;
}

}  // namespace

FeedFetcher& FeedFetcher::none() {
    static NoFeeds none;
    return none;
}

std::string FeedTransportAddress(const std::string& address) {
    if (startsWithNoCase(address, "webcal://")) return "https://" + address.substr(9);
    if (startsWithNoCase(address, "webcals://")) return "https://" + address.substr(10);
    return address;
}

}  // namespace qh
