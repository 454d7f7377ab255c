// A probe built without Qt has no network: every feed is out of reach.
#include "probe_network.h"

namespace qh {
namespace {

struct NoProbeNetwork : ProbeNetwork {
    FeedFetcher& feeds() override { return FeedFetcher::none(); }
};

}  // namespace

std::unique_ptr<ProbeNetwork> MakeProbeNetwork(int&, char**) { return std::make_unique<NoProbeNetwork>(); }

}  // namespace qh
