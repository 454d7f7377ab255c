#include "shell/preferences.h"

#include <gtest/gtest.h>

#include "record_store/storage_locations.h"
#include "support/fake_platform.h"

namespace qh {
namespace {

// Where the main window's load puts the window before the file is read.
const WindowPlacement kCentred{0, 3000, 2000, 9600, 7200};

struct Read {
    WindowPlacement window = kCentred;
    PreferenceValues values{"Old term", "Saturday", "No", 7};
};

Read readText(const std::string& text, int screenWidth = 1280, int screenHeight = 1024) {
    Read r;
    ReadPreferencesText(text, screenWidth, screenHeight, r.window, r.values);
    return r;
}

void expectWindow(const WindowPlacement& actual, const WindowPlacement& expected) {
    EXPECT_EQ(actual.state, expected.state);
    EXPECT_EQ(actual.left, expected.left);
    EXPECT_EQ(actual.top, expected.top);
    EXPECT_EQ(actual.width, expected.width);
    EXPECT_EQ(actual.height, expected.height);
}

TEST(Preferences, TheWriterGivesTheLinesInOrderWithPixelValues) {
    const PreferenceValues values{"Fall 2026", "Monday", "No", 12};
    EXPECT_EQ(PreferencesText({0, 1500, 640, 9600, 7210}, values),
              "[Window Position]\r\nFormMainState=0\r\nFormMainLocationX=100\r\nFormMainLocationY=42.66667\r\n"
              "FormMainSizeX=640\r\nFormMainSizeY=480.6667\r\n\r\n[Options]\r\nActiveTerm=Fall 2026\r\n"
              "StartDayofWeek=Monday\r\nShowTipsAtStartup=No\r\nCurrentTip=12\r\n");
    EXPECT_EQ(PreferencesText({2, 1500, 640, 9600, 7210}, values),
              "[Window Position]\r\nFormMainState=2\r\nFormMainLocationX=0\r\nFormMainLocationY=0\r\n"
              "FormMainSizeX=0\r\nFormMainSizeY=0\r\n\r\n[Options]\r\nActiveTerm=Fall 2026\r\n"
              "StartDayofWeek=Monday\r\nShowTipsAtStartup=No\r\nCurrentTip=12\r\n");
}

TEST(Preferences, WhatWasWrittenReadsBack) {
    const PreferenceValues values{"Fall 2026", "Monday", "No", 12};
    const Read r = readText(PreferencesText({0, 1500, 600, 9600, 7200}, values));
    expectWindow(r.window, {0, 1500, 600, 9600, 7200});
    EXPECT_EQ(r.values.ActiveTerm, "Fall 2026");
    EXPECT_EQ(r.values.StartDayOfWeek, "Monday");
    EXPECT_EQ(r.values.ShowTipsAtStartup, "No");
    EXPECT_EQ(r.values.CurrentTip, 12);
}

TEST(Preferences, AMaximisedWindowComesBackMaximisedOverTheCentredPlace) {
    const Read r = readText(PreferencesText({2, 0, 0, 0, 0}, {"T", "Sunday", "Yes", 1}));
    expectWindow(r.window, {2, 3000, 2000, 9600, 7200});
}

TEST(Preferences, UnknownWordsFallBackAndCaseMatters) {
    Read r = readText("StartDayofWeek=Tuesday\r\nShowTipsAtStartup=maybe\r\n");
    EXPECT_EQ(r.values.StartDayOfWeek, "Monday");
    EXPECT_EQ(r.values.ShowTipsAtStartup, "Yes");
    // Keys are matched by their exact beginning: another spelling is no key.
    r = readText("startdayofweek=Monday\r\nStartDayOfWeek=Saturday\r\nShowTipsAtStartup=No");
    EXPECT_EQ(r.values.StartDayOfWeek, "Sunday");
    EXPECT_EQ(r.values.ShowTipsAtStartup, "No");
    EXPECT_EQ(r.values.ActiveTerm, "Old term");  // untouched without its line
    EXPECT_EQ(r.values.CurrentTip, 7);
}

TEST(Preferences, GeometryCountsOnlyInsideTheScreenAndTheLaterLineWins) {
    Read r = readText(
        "FormMainLocationX=0\r\nFormMainLocationY=-5\r\nFormMainSizeX=1280\r\nFormMainSizeY=700\r\n"
        "FormMainSizeY=701\r\nFormMainState=1\r\n");
    expectWindow(r.window, {0, 3000, 2000, 9600, 701 * 15});
    r = readText("FormMainLocationX=10.5\r\nFormMainLocationY=11.5\r\n");  // rounded half to even
    EXPECT_EQ(r.window.left, 150);
    EXPECT_EQ(r.window.top, 180);
}

TEST(Preferences, AFailureStopsTheReaderWithWhatWasReadStanding) {
    // 2185 pixels are 32775 twips, past 16 bits: on a wide screen the reader stops there.
    Read r = readText(
        "FormMainLocationX=10\r\nFormMainSizeX=2185\r\nFormMainSizeY=50\r\n[Options]\r\nActiveTerm=Fall\r\n"
        "StartDayofWeek=Monday\r\n",
        2560, 1440);
    expectWindow(r.window, {0, 150, 2000, 9600, 7200});
    EXPECT_EQ(r.values.ActiveTerm, "Old term");
    EXPECT_EQ(r.values.StartDayOfWeek, "Sunday");
    // On a narrower screen the same width is simply not applied.
    r = readText("FormMainSizeX=2185\r\nStartDayofWeek=Monday\r\n", 1920, 1080);
    EXPECT_EQ(r.window.width, 9600);
    EXPECT_EQ(r.values.StartDayOfWeek, "Monday");
    // A value that is no number stops it too.
    r = readText("CurrentTip=3\r\nCurrentTip=three\r\nShowTipsAtStartup=No\r\n");
    EXPECT_EQ(r.values.CurrentTip, 3);
    EXPECT_EQ(r.values.ShowTipsAtStartup, "Yes");
    r = readText("CurrentTip=40000\r\nShowTipsAtStartup=No\r\n");
    EXPECT_EQ(r.values.CurrentTip, 7);
    EXPECT_EQ(r.values.ShowTipsAtStartup, "Yes");
}

TEST(Preferences, TheFileOnTheDriveIsInTheCodePageAndOptional) {
    FakePlatform fake;
    RecordStore store;
    ASSERT_TRUE(SetStorageLocations(store, fake.platform));
    Read r;
    ReadPreferences(fake.platform, store, 1280, 1024, r.window, r.values);
    expectWindow(r.window, kCentred);
    EXPECT_EQ(r.values.StartDayOfWeek, "Sunday");
    EXPECT_EQ(r.values.ShowTipsAtStartup, "Yes");
    EXPECT_EQ(r.values.ActiveTerm, "Old term");

    ASSERT_TRUE(WritePreferences(fake.platform, store, kCentred, {"\xC3\x89t\xC3\xA9 2026", "Saturday", "No", 3}));
    const std::string bytes = fake.bytesOf(fake.dataDirectory() + "/Preferences.ini");
    EXPECT_NE(bytes.find("ActiveTerm=\xC9t\xE9 2026\r\n"), std::string::npos);
    Read back;
    ReadPreferences(fake.platform, store, 1280, 1024, back.window, back.values);
    EXPECT_EQ(back.values.ActiveTerm, "\xC3\x89t\xC3\xA9 2026");
    EXPECT_EQ(back.values.StartDayOfWeek, "Saturday");

    fake.files.failPath("Preferences.ini");
    EXPECT_FALSE(WritePreferences(fake.platform, store, kCentred, {"x", "Sunday", "Yes", 1}));
    EXPECT_TRUE(fake.messages.shown.empty());
}

}  // namespace
}  // namespace qh
