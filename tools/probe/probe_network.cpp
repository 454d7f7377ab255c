// The real network for the probe: Qt Network on a core application's event loop, which
// runs while a script's "wait" lets the answers arrive.
#include "probe_network.h"

#include <QCoreApplication>

#include "platform/qt/network/qt_feed_fetcher.h"

namespace qh {
namespace {

struct QtProbeNetwork : ProbeNetwork {
    QtProbeNetwork(int& argc, char** argv) : application(argc, argv) {}
    FeedFetcher& feeds() override { return fetcher; }
    QCoreApplication application;
    // No renderer: an answer is handed to the planner the moment it arrives.
    QtFeedFetcher fetcher{[](const std::function<void()>& answer) { answer(); }};
};

}  // namespace

std::unique_ptr<ProbeNetwork> MakeProbeNetwork(int& argc, char** argv) {
    return std::make_unique<QtProbeNetwork>(argc, argv);
}

}  // namespace qh
