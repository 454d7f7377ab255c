#pragma once
// Calendar feeds over Qt Network. Every fetch is asynchronous: its answer reaches the
// planner through `run`, which the program points at the renderer's forward so that it
// arrives as a gesture does. The system's certificate store decides which servers are
// trusted; a certificate that fails is never accepted.
#include <QNetworkAccessManager>
#include <QObject>
#include <functional>

#include "platform/feeds.h"

class QNetworkReply;

namespace qh {

class QtFeedFetcher : public QObject, public FeedFetcher {
    Q_OBJECT
public:
    using Runner = std::function<void(const std::function<void()>&)>;
    explicit QtFeedFetcher(Runner run);
    void fetch(const FeedRequest& request, Answered answered) override;
    // Runs the thread's event loop until no fetch is waiting, or for `ms` at most.
    void settle(int ms) override;

    static constexpr int kMostRedirects = 5;

private:
    void answer(const Answered& answered, FeedAnswer result);
    QNetworkAccessManager manager_;
    Runner run_;
    int waiting_ = 0;
};

}  // namespace qh
