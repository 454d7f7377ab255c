#pragma once
#include "common/day_number.h"

namespace qh {

// Today and now, in local time. Logic never reads the machine's clock any other way.
class Clock {
public:
    virtual ~Clock() = default;
    virtual Moment now() const = 0;
    Date today() const { return now().date; }
};

}  // namespace qh
