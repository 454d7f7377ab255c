#include "shell/preferences.h"

#include <gtest/gtest.h>

#include <tuple>

#include "record_store/storage_locations.h"
#include "support/fake_platform.h"

namespace qh {
namespace {

// Where the main window's load puts the window before the file is read.
const WindowPlacement kCentred{0, 3000, 2000, 9600, 7200};
const PreferenceValues kBefore{"Old term", "Saturday", "No", 7};

std::string describe(const WindowPlacement& w, const PreferenceValues& v) {
    return std::to_string(w.state) + " " + std::to_string(w.left) + "," + std::to_string(w.top) + " " +
           std::to_string(w.width) + "x" + std::to_string(w.height) + " | " + v.ActiveTerm + " | " +
           v.StartDayOfWeek + " " + v.ShowTipsAtStartup + " " + std::to_string(v.CurrentTip);
}

// Each text is read over the centred window and kBefore, on a 1280 x 1024 screen unless
// given. The exact text the writer gives is checked where the main window closes.
TEST(Preferences, TheReaderTakesWhatFitsAndSkipsALineThatDoesNotRead) {
    const struct {
        const char* name;
        std::string text;
        WindowPlacement window;
        PreferenceValues values;
        int screenWidth = 1280, screenHeight = 1024;
    } cases[] = {
        {"read back", PreferencesText({0, 1500, 600, 9600, 7200}, {"Fall 2026", "Monday", "No", 12}),
         {0, 1500, 600, 9600, 7200}, {"Fall 2026", "Monday", "No", 12}},
        // A window not in the normal state writes no geometry.
        {"maximised over the centred place", PreferencesText({2, 1500, 600, 9600, 7210}, {"T", "Sunday", "Yes", 1}),
         {2, 3000, 2000, 9600, 7200}, {"T", "Sunday", "Yes", 1}},
        {"unknown words fall back", "StartDayofWeek=Tuesday\r\nShowTipsAtStartup=maybe\r\n", kCentred,
         {"Old term", "Monday", "Yes", 7}},
        {"keys match by their exact beginning",
         "startdayofweek=Monday\r\nStartDayOfWeek=Saturday\r\nShowTipsAtStartup=No", kCentred,
         {"Old term", "Sunday", "No", 7}},
        {"geometry only inside the screen, the later line wins",
         "FormMainLocationX=0\r\nFormMainLocationY=-5\r\nFormMainSizeX=1280\r\nFormMainSizeY=700\r\n"
         "FormMainSizeY=701\r\nFormMainState=1\r\n",
         {0, 3000, 2000, 9600, 701 * 15}, {"Old term", "Sunday", "Yes", 7}},
        {"rounded half to even", "FormMainLocationX=10.5\nFormMainLocationY=11.5\r", {0, 150, 180, 9600, 7200},
         {"Old term", "Sunday", "Yes", 7}},
        // 2185 pixels are 32775 twips, past 16 bits: on a wide screen that line is skipped
        // and the lines after it are still read.
        {"twips past 16 bits skip the line",
         "FormMainLocationX=10\r\nFormMainSizeX=2185\r\nFormMainSizeY=50\r\n[Options]\r\nActiveTerm=Fall\r\n"
         "StartDayofWeek=Monday\r\n",
         {0, 150, 2000, 9600, 750}, {"Fall", "Monday", "Yes", 7}, 2560, 1440},
        {"too wide for the screen is only passed over", "FormMainSizeX=2185\r\nStartDayofWeek=Monday\r\n", kCentred,
         {"Old term", "Monday", "Yes", 7}, 1920, 1080},
        {"no number is skipped", "CurrentTip=3\r\nCurrentTip=three\r\nShowTipsAtStartup=No\r\n", kCentred,
         {"Old term", "Sunday", "No", 3}},
        {"past 16 bits is skipped", "CurrentTip=40000\r\nShowTipsAtStartup=No\r\n", kCentred,
         {"Old term", "Sunday", "No", 7}},
    };
    for (const auto& c : cases) {
        WindowPlacement window = kCentred;
        PreferenceValues values = kBefore;
        ReadPreferencesText(c.text, c.screenWidth, c.screenHeight, window, values);
        EXPECT_EQ(describe(window, values), describe(c.window, c.values)) << c.name;
    }
}

// With no file the start day and the tips take their defaults; a file that cannot be
// written shows no message. The file written in the code page at the exit and read back
// at the next start is the probe script preferences_kept_across_a_restart's.
TEST(Preferences, AMissingFileGivesTheDefaultsAndAnUnwritableOneNoMessage) {
    FakePlatform fake;
    RecordStore store;
    ASSERT_TRUE(SetStorageLocations(store, fake.platform));
    WindowPlacement window = kCentred;
    PreferenceValues values = kBefore;
    ReadPreferences(fake.platform, store, 1280, 1024, window, values);
    EXPECT_EQ(describe(window, values), describe(kCentred, {"Old term", "Sunday", "Yes", 7}));

    fake.files.failPath("Preferences.ini");
    EXPECT_FALSE(WritePreferences(fake.platform, store, kCentred, {"x", "Sunday", "Yes", 1}));
    EXPECT_TRUE(fake.messages.shown.empty());
}

TEST(WindowPlacementClamp, ASavedWindowComesBackWhollyInsideTheAvailableArea) {
    // A 1600 x 1200 screen whose task bar takes the lowest 40 pixels, in twips; the same
    // screen at double scale offers half of each; a second screen stands to the right.
    const Windowing::Area screen{0, 0, 24000, 17400}, doubled{0, 0, 12000, 8700}, second{24000, 0, 19200, 16200};
    const struct {
        const char* name;
        WindowPlacement saved;
        Windowing::Area area;
        WindowPlacement restored;
    } cases[] = {
        {"inside stays", {0, 3000, 2000, 9600, 7215}, screen, {0, 3000, 2000, 9600, 7215}},
        {"off the left edge", {0, -5000, 2000, 9600, 7215}, screen, {0, 0, 2000, 9600, 7215}},
        {"off the right edge", {0, 20000, 2000, 9600, 7215}, screen, {0, 14400, 2000, 9600, 7215}},
        {"off the top edge", {0, 3000, -900, 9600, 7215}, screen, {0, 3000, 0, 9600, 7215}},
        {"under the task bar", {0, 3000, 15000, 9600, 7215}, screen, {0, 3000, 10185, 9600, 7215}},
        {"saved at 1x, shown at 2x", {0, 13500, 6000, 9600, 7215}, doubled, {0, 2400, 1485, 9600, 7215}},
        {"larger than the area at 2x", {0, 0, 0, 15000, 12000}, doubled, {0, 0, 0, 12000, 8700}},
        {"on a screen that is gone", {0, 30000, 2000, 9600, 7215}, screen, {0, 14400, 2000, 9600, 7215}},
        {"on the second screen", {0, 30000, 2000, 9600, 7215}, second, {0, 30000, 2000, 9600, 7215}},
        {"maximised keeps its values", {2, -5000, -5000, 0, 0}, screen, {2, -5000, -5000, 0, 0}},
    };
    for (const auto& c : cases) {
        const WindowPlacement got = ClampToArea(c.saved, c.area);
        EXPECT_EQ(std::tie(got.state, got.left, got.top, got.width, got.height),
                  std::tie(c.restored.state, c.restored.left, c.restored.top, c.restored.width, c.restored.height))
            << c.name;
    }
}

}  // namespace
}  // namespace qh
