#pragma once
// The main window's month calendar is the shared month-calendar component with marks and
// day arrows; its arithmetic lives there.
#include "calendar/month_cells.h"

#include <string>

#include "list_view/main_window_state.h"

namespace qh {

// What a marked calendar day holds in a mode, as a screen reader says it after the date.
std::string DayMarkName(Mode mode);

}  // namespace qh
