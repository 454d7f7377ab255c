#pragma once
// Preferences.ini: the main window's state and geometry, the term that was current, the
// first day of the week and the tips' state. Written whole at every exit, read once at
// load. Lines end with CR LF; the file is in the Windows-1252 code page.
#include <string>
#include <string_view>

#include "common/int16.h"
#include "platform/platform.h"
#include "record_store/columns.h"

namespace qh {

// The main window's placement; positions and sizes in twips.
struct WindowPlacement {
    int state = 0;  // 0 normal, 1 minimised, 2 maximised
    int left = 0, top = 0, width = 0, height = 0;
};

struct PreferenceValues {
    std::string ActiveTerm;         // CurrentTermName when written; kept for SelectTerm when read
    std::string StartDayOfWeek;     // "Sunday", "Monday" or "Saturday"
    std::string ShowTipsAtStartup;  // "Yes" or "No"
    Int16 CurrentTip = 0;
};

// A placement brought onto the area a window may take: no larger than the area, and moved
// so that all of it lies inside (a position saved at another scale or on a screen that is
// gone would put the window out of reach). Maximised and minimised windows keep theirs.
WindowPlacement ClampToArea(WindowPlacement window, const Windowing::Area& area);

// The whole file. A window that is not in the normal state writes its geometry as four
// zeros; a normal one writes each value in pixels (twips / 15) as a single-precision
// number's shortest text: "640", "42.66667".
std::string PreferencesText(const WindowPlacement& window, const PreferenceValues& values);

// Reads the file's text. First sets StartDayOfWeek "Sunday" and ShowTipsAtStartup "Yes";
// then takes each line whose beginning is one of the nine keys (case sensitive; a later
// line wins), applying the window values one by one onto `window`, which holds the
// centred load position on entry. A geometry value v counts only when 1 <= v < the
// screen's pixels in that direction, and becomes v * 15 as a 16-bit number. A line that
// fails (a number that does not convert, v * 15 past 32767, which happens from v = 2185
// on) is skipped silently and the lines after it are still read, so one bad value
// doesn't put back the defaults of every setting after it.
void ReadPreferencesText(std::string_view text, int screenWidthPx, int screenHeightPx, WindowPlacement& window,
                         PreferenceValues& values);

// Reads DataDirectory/Preferences.ini with ReadPreferencesText; a file that cannot be
// read leaves the defaults "Sunday" and "Yes" and all else untouched, silently.
void ReadPreferences(Platform& platform, const RecordStore& store, int screenWidthPx, int screenHeightPx,
                     WindowPlacement& window, PreferenceValues& values);

// Enters the data directory and replaces Preferences.ini atomically. Shows nothing;
// returns false on any failure, for the unload handler to pass over.
bool WritePreferences(Platform& platform, const RecordStore& store, const WindowPlacement& window,
                      const PreferenceValues& values);

}  // namespace qh
