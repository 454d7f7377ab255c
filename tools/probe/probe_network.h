#pragma once
// The probe's network: what fetches its calendar feeds, made once at its start.
#include <memory>

#include "platform/feeds.h"

namespace qh {

struct ProbeNetwork {
    virtual ~ProbeNetwork() = default;
    virtual FeedFetcher& feeds() = 0;
};

std::unique_ptr<ProbeNetwork> MakeProbeNetwork(int& argc, char** argv);

}  // namespace qh
