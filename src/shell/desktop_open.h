#pragma once
// Opening a file or an address with the student's own program for it (the browser for a
// page). Nothing the planner does depends on it: when the desktop has no program that can
// open it, the student reads what could not be opened, and the planner goes on.
#include <string>

#include "platform/message_box.h"
#include "platform/processes.h"

namespace qh {

// Tells that `pathOrAddress` could not be opened.
void TellCannotOpen(MessageBoxes& messages, const std::string& pathOrAddress);

// Opens `pathOrAddress` with the default handler; returns false after telling when it
// could not.
bool OpenWithDesktop(Processes& processes, MessageBoxes& messages, const std::string& pathOrAddress);

}  // namespace qh
