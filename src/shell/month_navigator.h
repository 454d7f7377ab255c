#pragma once
// The main window's month calendar is the shared month-calendar component with marks and
// day arrows; its arithmetic lives there.
#include "calendar/month_cells.h"
