#pragma once
// The iCalendar format, through libical: the one place of the planner that calls it.
#include <string>

#include "platform/calendar_items.h"

namespace qh {

class IcalCodec : public CalendarCodec {
public:
    // `zoneName` is the IANA name of the zone local times are written in; empty takes the
    // computer's own (TZ, else /etc/localtime), and a zone libical does not know, UTC.
    explicit IcalCodec(std::string zoneName = {});
    [[nodiscard]] std::string write(const std::vector<CalendarItem>& items) override;
    // Defined in ical_reader.cpp.
    [[nodiscard]] CalendarRead read(const std::string& text) override;

    const std::string& zoneName() const { return zoneName_; }

private:
    std::string zoneName_;
};

// The computer's time zone as an IANA name ("Europe/Berlin"), "UTC" when it cannot be told.
std::string ComputerZoneName();

}  // namespace qh
