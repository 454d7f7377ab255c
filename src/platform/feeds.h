#pragma once
// Calendar feeds fetched over the network: a school's or learning system's .ics address
// read again and again. A fetch never waits: it starts and returns at once, and its one
// answer comes later through the handler, on the planner's own thread between gestures.
#include <cstddef>
#include <functional>
#include <string>

namespace qh {

struct FeedRequest {
    std::string address;  // https://, http:// or webcal:// (read as https://)
    // What the last answer said of its version: the server answers "unchanged" when it
    // still has it.
    std::string etag, lastModified;
    int timeoutMs = 20000;
    std::size_t largest = 20 * 1024 * 1024;
};

struct FeedAnswer {
    enum class Outcome {
        Fetched,      // `body` holds the feed
        Unchanged,    // the version asked with is still the server's
        Unreachable,  // no answer: offline, no such host, refused, timed out
        Refused,      // an answer the planner will not take; `why` says what
    };
    Outcome outcome = Outcome::Unreachable;
    std::string body;
    std::string etag, lastModified;
    // A few words for the student on why there is no feed ("the server's certificate is
    // not trusted"); never the address, which may hold a private token.
    std::string why;
};

class FeedFetcher {
public:
    using Answered = std::function<void(const FeedAnswer&)>;
    virtual ~FeedFetcher() = default;
    // Starts one fetch; `answered` is called exactly once, never from inside this call.
    virtual void fetch(const FeedRequest& request, Answered answered) = 0;
    // For a driver without an event loop of its own (the scripted probe): lets the
    // answers on their way arrive, returning when none is left or after `ms`.
    virtual void settle(int ms) { static_cast<void>(ms); }

    // No network at all: every fetch is answered Unreachable at the next settle. The
    // platform of a tool that never fetches uses it.
    static FeedFetcher& none();
};

// The address a fetch goes to: webcal:// is the same feed over https://.
std::string FeedTransportAddress(const std::string& address);

}  // namespace qh
