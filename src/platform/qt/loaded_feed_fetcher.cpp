#include "platform/qt/loaded_feed_fetcher.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibrary>
#include <QTimer>

namespace qh {

LoadedFeedFetcher::LoadedFeedFetcher(FeedRunner run) : run_(std::move(run)) {}

// The module stays loaded to the end of the run (QLibrary never unloads on its own), so
// the fetcher's code is still there when it goes.
LoadedFeedFetcher::~LoadedFeedFetcher() = default;

FeedFetcher* LoadedFeedFetcher::loaded() {
    if (tried_) return fetcher_.get();
    tried_ = true;
    // Beside the program, wherever the drive is mounted; never from the computer's paths.
    const QString path = QCoreApplication::applicationDirPath() + '/' + kNetworkModuleFile;
    QLibrary module(path);
    const auto make = reinterpret_cast<MakeFeedFetcher>(module.resolve(kMakeFeedFetcherEntry));
    if (make)
        fetcher_.reset(make(run_));
    else if (!QFile::exists(path))
        // A drive copied by hand without it: the likely case, told in words.
        missing_ = std::string("the planner's network part (") + kNetworkModuleFile + ") is not beside the program";
    else
        missing_ = "the planner's network part could not be loaded (" + module.errorString().toStdString() + ")";
    return fetcher_.get();
}

void LoadedFeedFetcher::fetch(const FeedRequest& request, Answered answered) {
    if (FeedFetcher* fetcher = loaded()) return fetcher->fetch(request, std::move(answered));
    FeedAnswer refused;
    refused.outcome = FeedAnswer::Outcome::Refused;
    refused.why = missing_;
    // Answered later, as the interface promises, and handed over as every answer is.
    QTimer::singleShot(0, QCoreApplication::instance(), [run = run_, answered = std::move(answered), refused] {
        run([answered, refused] { answered(refused); });
    });
}

void LoadedFeedFetcher::settle(int ms) {
    if (fetcher_) fetcher_->settle(ms);
}

}  // namespace qh
