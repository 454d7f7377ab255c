#pragma once
// What the list builders and the grid routines see of the main window: its controls, its
// view state, the record store, the locale, the colour vocabulary and the two window
// routines they call back. The main window hands one out for each call, so the list view
// stays below the shell that owns the window.
#include <functional>

#include "list_view/main_window_controls.h"
#include "list_view/main_window_state.h"
#include "platform/form.h"
#include "platform/locale.h"

namespace qh {

struct RecordStore;
struct ColorVocabulary;

struct ListHost {
    Form& form;  // the window's client size and the grid's header cells
    const MainWindowControls& ui;
    MainWindowState& state;
    const RecordStore& store;
    const Locale& locale;
    const ColorVocabulary& colors;
    // Sets the grid's scroll bar to the list's length; the builders call it before painting.
    std::function<void()> updateGridScroll;
    // Repaints the status bar under the grid, after a layout moved it.
    std::function<void()> paintStatusBar;
};

}  // namespace qh
