#pragma once
// The time-zone look-ups the iCalendar writer and reader share.
#include <libical/ical.h>

#include <string>

namespace qh {

// libical's zone of an IANA name, or of a Windows zone name as Outlook writes them;
// nullptr for UTC and for a name neither knows.
icaltimezone* ZoneNamed(const std::string& name);

}  // namespace qh
