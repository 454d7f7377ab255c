#include "sample_drive.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <sstream>

#include "probe_session.h"
#include "record_store/color_vocabulary.h"
#include "record_store/record_files.h"
#include "record_store/storage_locations.h"
#include "sample_content.h"
#include "shell/preferences.h"
#include "support/fake_platform.h"

namespace qh {
namespace {

using sample::DriveSize;
using sample::EventKind;

const Date kToday = dateFromYmd(2026, 11, 21);
const char* const kFiles[] = {"Terms.txt",         "Classes.txt", "Assignments.txt", "Notes.txt",
                              "StudySessions.txt", "Tasks.txt",   "Events.txt",      "Preferences.ini"};

// The kind of repetition an event's stored rule is, read back from its fields.
EventKind kindOf(const RecordStore& s, int i) {
    const std::string& recurrence = s.EventRecurrences(i);
    if (recurrence == "None") return EventKind::Once;
    if (recurrence == "Day") return EventKind::Weekly;
    const bool yearly = recurrence == "Year";
    if (s.EventSameDates(i) == "True") return yearly ? EventKind::YearlySameDate : EventKind::MonthlySameDate;
    if (s.EventRepeatDays(i) == "Day") return yearly ? EventKind::YearlyDayNumber : EventKind::MonthlyDayNumber;
    return yearly ? EventKind::YearlyWeekday : EventKind::MonthlyWeekday;
}

// The event editor's own test of a monthly or yearly rule against its first date: the
// ordinal must name the week of the month the date lies in, or its day number.
bool ruleFitsItsDate(const std::string& number, const std::string& day, Date first) {
    static const char* const kDays[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
    const Ymd ymd = ymdOf(first);
    const int last = daysInMonth(ymd.year, ymd.month);
    if (day == "Day") {
        if (number == "Last") return ymd.day == last;
        const int wanted = number == "First"    ? 1
                           : number == "Second" ? 2
                           : number == "Third"  ? 3
                           : number == "Fourth" ? 4
                                                : 0;
        return ymd.day == wanted;
    }
    if (day != kDays[weekdayOf(first) - 1]) return false;
    if (ymd.day <= 7) return number == "First";
    if (ymd.day <= 14) return number == "Second";
    if (ymd.day <= 21) return number == "Third";
    if (ymd.day <= 28) return number == "Fourth" || number == "Last";
    return number == "Last";
}

struct LoadedDrive {
    FakePlatform fake;
    RecordStore store;
    RecordFiles files{store, fake.platform};
    sample::DriveSummary made;

    explicit LoadedDrive(std::uint32_t seed = sample::kDefaultSeed) {
        made = sample::MakeSampleDrive(fake.drive, DriveSize::Realistic, kToday, seed);
        EXPECT_TRUE(SetStorageLocations(store, fake.platform));
        EXPECT_TRUE(files.LoadTermsAndClasses());
        // The term the preferences name, as the program makes it current at start.
        WindowPlacement window;
        PreferenceValues preferences;
        ReadPreferences(fake.platform, store, 1280, 1024, window, preferences);
        for (int i = 1; i <= store.TermNames.count(); ++i)
            if (store.TermNames(i) == preferences.ActiveTerm) store.CurrentTermID = int16OrZero(store.TermIDs(i));
        EXPECT_TRUE(files.LoadAssignments());
        EXPECT_TRUE(files.LoadTasks());
        EXPECT_TRUE(files.LoadEvents());
    }
    std::string bytesOf(const std::string& name) const { return fake.bytesOf(fake.dataDirectory() + "/" + name); }
};

TEST(SampleDrive, TheRealisticDriveLoadsBackWithItsCounts) {
    LoadedDrive d;
    const RecordStore& s = d.store;
    EXPECT_TRUE(d.fake.messages.shown.empty());
    EXPECT_EQ(d.made.records, (sample::RecordCounts{4, 24, 800, 800, 3000, 300, 150}));

    // Every record is counted by the loads, deleted ones too.
    EXPECT_EQ(s.NextTermRecord, 5);
    EXPECT_EQ(s.NextClassRecord, 25);
    EXPECT_EQ(s.NextAssignmentRecord, 801);
    EXPECT_EQ(s.NextNoteRecord, 801);
    EXPECT_EQ(s.NextStudySessionRecord, 3001);
    EXPECT_EQ(s.NextTaskRecord, 301);
    EXPECT_EQ(s.NextEventRecord, 151);

    // The newest term is the active one, holds today, and brings its own homework.
    EXPECT_EQ(s.CurrentTermID, 4);
    EXPECT_EQ(d.made.activeTerm, "Fall 2026");
    EXPECT_LE(dateFromText(s.TermStarts(4)), kToday);
    EXPECT_GE(dateFromText(s.TermEnds(4)), kToday);
    EXPECT_EQ(d.made.activeTermClasses, 6);
    EXPECT_EQ(s.AssignmentIDs.count(), d.made.activeTermAssignments);
    EXPECT_GT(d.made.activeTermAssignments, 180);
    EXPECT_EQ(s.StudySessionRecordNos.count(), d.made.activeTermSessions);
    EXPECT_GT(d.made.activeTermSessions, 300);

    // One assignment in forty was deleted again: its note freed, its record kept.
    EXPECT_EQ(d.made.liveNotes, 780);
    EXPECT_EQ(s.NoteRecordNos.count(), 780);
    EXPECT_EQ(d.made.liveTasks, 288);
    EXPECT_EQ(s.TaskIDs.count(), 288);
    EXPECT_EQ(d.made.liveEvents, 145);
    EXPECT_EQ(s.EventIDs.count(), 145);
}

TEST(SampleDrive, HomeworkAndEventsLieAroundTodayInRulesTheEditorsAccept) {
    LoadedDrive d;
    const RecordStore& s = d.store;

    int past = 0, ahead = 0;
    for (const std::string& date : s.AssignmentDates) (dateFromText(date) < kToday ? past : ahead) += 1;
    EXPECT_GT(past, 50);
    EXPECT_GT(ahead, 20);
    for (int i = 1; i <= s.ClassIDs.count(); ++i) {
        EXPECT_TRUE(standardColors().ColorValues.contains(s.ClassForeColors(i))) << s.ClassForeColors(i);
        EXPECT_TRUE(standardColors().ColorValues.contains(s.ClassBackColors(i))) << s.ClassBackColors(i);
    }

    int kinds[sample::kEventKinds] = {};
    std::set<std::string> monthlyOrdinals, yearlyOrdinals;
    for (int i = 1; i <= s.EventIDs.count(); ++i) {
        const EventKind kind = kindOf(s, i);
        ++kinds[int(kind)];
        const Date first = dateFromText(s.EventDates(i));
        const std::string& letters = s.EventRepeatDailies(i);
        ASSERT_EQ(letters.size(), 7u);
        if (kind == EventKind::Weekly) {
            EXPECT_NE(letters.find('T'), std::string::npos) << "a weekly event with no day, row " << i;
        } else if (s.EventSameDates(i) == "False" && kind != EventKind::Once) {
            EXPECT_TRUE(ruleFitsItsDate(s.EventRepeatNumbers(i), s.EventRepeatDays(i), first))
                << s.EventDescriptions(i) << " " << s.EventDates(i) << " " << s.EventRepeatNumbers(i) << " "
                << s.EventRepeatDays(i);
            (s.EventRecurrences(i) == "Month" ? monthlyOrdinals : yearlyOrdinals).insert(s.EventRepeatNumbers(i));
        }
        if (s.EventEnds(i) == "True") {
            EXPECT_GE(dateFromText(s.EventEndDates(i)), first) << "row " << i;
        }
    }
    for (int kind = 0; kind < sample::kEventKinds; ++kind) {
        EXPECT_GT(kinds[kind], 0) << "no event of kind " << kind;
        EXPECT_EQ(kinds[kind], d.made.eventsOfKind[kind]) << "kind " << kind;
    }
    const std::set<std::string> all = {"First", "Second", "Third", "Fourth", "Last"};
    EXPECT_EQ(monthlyOrdinals, all);
    EXPECT_EQ(yearlyOrdinals, all);
}

TEST(SampleDrive, TheSameSeedMakesTheSameBytesAndAnotherSeedOthers) {
    LoadedDrive first, again, other(7);
    for (const char* name : kFiles) EXPECT_EQ(first.bytesOf(name), again.bytesOf(name)) << name;
    EXPECT_NE(first.bytesOf("Assignments.txt"), other.bytesOf("Assignments.txt"));
    EXPECT_NE(first.bytesOf("Events.txt"), other.bytesOf("Events.txt"));
}

TEST(SampleDrive, RefusesAFolderThatHoldsPlannerData) {
    FakePlatform fake;
    sample::MakeSampleDrive(fake.drive, DriveSize::Realistic, kToday);
    const std::string before = fake.bytesOf(fake.dataDirectory() + "/Tasks.txt");
    EXPECT_THROW(sample::MakeSampleDrive(fake.drive, DriveSize::Realistic, kToday, 99), std::runtime_error);
    EXPECT_EQ(fake.bytesOf(fake.dataDirectory() + "/Tasks.txt"), before);
}

TEST(SampleDrive, TheProgramOpensOnTheNewestTermsHomework) {
    FakePlatform fake;
    const sample::DriveSummary made = sample::MakeSampleDrive(fake.drive, DriveSize::Realistic, kToday);
    std::ostringstream out;
    {
        ProbeSession session(fake.drive, fake.host, out);
        std::istringstream script("clock 2026-11-21 09:05\nprint\nexit\n");
        ASSERT_TRUE(session.run(script));
    }
    const std::string shown = out.str();
    EXPECT_NE(shown.find("Term: \"Fall 2026\" \"27 Days Left in Term\""), std::string::npos) << shown;
    EXPECT_NE(shown.find("Rows: " + std::to_string(made.activeTermAssignments) + " from 1"), std::string::npos)
        << shown;
    EXPECT_EQ(shown.find("Message: "), std::string::npos) << shown;
}

}  // namespace
}  // namespace qh
