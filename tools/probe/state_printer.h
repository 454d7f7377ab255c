#pragma once
// Prints what the main window shows, in a stable plain-text form, one fact a line.
#include <ostream>

#include "shell/main_window.h"
#include "support/fake_platform.h"

namespace qh {

void PrintWindowState(const MainWindow& window, std::ostream& out);
// Message boxes shown since `from`, one a line.
void PrintMessages(const std::vector<ShownMessage>& shown, std::size_t from, std::ostream& out);

}  // namespace qh
