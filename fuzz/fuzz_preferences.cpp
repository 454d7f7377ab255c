// Preferences.ini of any bytes, read on a screen of any size: the options always end up
// as one of the values the program knows, a window value is taken only inside the screen
// and within 16 bits, and the options the program writes back read as they were.
#include "memory_drive.h"
#include "record_store/storage_locations.h"
#include "shell/preferences.h"

using namespace qh;
using namespace qh::fuzz;

namespace {

// A window value after the read: the centred load value, or a stored one taken.
bool windowValueHolds(int value, int loaded, int screenPixels) {
    return value == loaded || (value % 15 == 0 && value >= 15 && value / 15 < screenPixels && value <= 32767);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 4) return 0;
    const int screenWidth = 1 + (data[0] | data[1] << 8) % 4096, screenHeight = 1 + (data[2] | data[3] << 8) % 4096;
    MemoryDrive drive;
    drive.put("Preferences.ini", std::string(reinterpret_cast<const char*>(data) + 4, size - 4));

    const WindowPlacement loaded{0, 3000, 2000, 9000, 7000};
    WindowPlacement window = loaded;
    PreferenceValues values{"(none)", "(unread)", "(unread)", 7};
    ReadPreferences(drive.platform, drive.store, screenWidth, screenHeight, window, values);
    require(drive.machine.shown.empty(), "the preferences are read silently");
    require(
        values.StartDayOfWeek == "Sunday" || values.StartDayOfWeek == "Monday" || values.StartDayOfWeek == "Saturday",
        "the week starts on Sunday, Monday or Saturday");
    require(values.ShowTipsAtStartup == "Yes" || values.ShowTipsAtStartup == "No", "tips are shown or not");
    require(window.state == 0 || window.state == 2, "the window is normal or maximised");
    require(windowValueHolds(window.left, loaded.left, screenWidth) &&
                windowValueHolds(window.width, loaded.width, screenWidth) &&
                windowValueHolds(window.top, loaded.top, screenHeight) &&
                windowValueHolds(window.height, loaded.height, screenHeight),
            "a window value is taken only inside the screen");

    // Written at exit and read at the next start, the options come back. A term name
    // holding a line break can't be written as one line, so it is left out.
    if (values.ActiveTerm.find_first_of("\r\n") != std::string::npos) return 0;
    WindowPlacement next = loaded;
    PreferenceValues back;
    require(WritePreferences(drive.platform, drive.store, window, values), "the preferences are written");
    ReadPreferences(drive.platform, drive.store, 1, 1, next, back);
    require(back.ActiveTerm == values.ActiveTerm && back.StartDayOfWeek == values.StartDayOfWeek &&
                back.ShowTipsAtStartup == values.ShowTipsAtStartup && back.CurrentTip == values.CurrentTip,
            "the options written read back the same");
    return 0;
}
