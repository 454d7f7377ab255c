#pragma once
// Prints what the main window shows, in a stable plain-text form, one fact a line.
#include <ostream>

#include "shell/main_window.h"
#include "platform/fake/fake_platform.h"

namespace qh {

void PrintWindowState(const MainWindow& window, std::ostream& out);
// Visible row V of the list as painted now: each cell's last text in quotes with its
// colour's name, and "on" the colour of the cell's fill, "|" between cells; "framed" at the
// end when the keyboard's frame stands on the row.
void PrintGridRowCells(const MainWindow& window, int v, std::ostream& out);
// A window other than the main one: a header line `Window NAME "caption" WIDTH x HEIGHT`,
// then one line a control (timers and menus aside), sorted by name and index: the key, its
// text or caption in quotes, then those of `checked`, `disabled`, `hidden`, `entries=N`
// that apply and, unless it is black on white or on the window's face colour, `fore=` and `back=` with the
// colour's name in the vocabulary, else #RRGGBB.
void PrintFormControls(const Form& window, std::ostream& out);
// The first line of PrintFormControls: the window's name, caption and size.
void PrintWindowHeader(const Form& window, std::ostream& out);
// One control's line of PrintFormControls.
void PrintControlLine(const Control& control, std::ostream& out);

}  // namespace qh
