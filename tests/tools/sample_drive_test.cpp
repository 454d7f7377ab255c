#include "sample_drive.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <sstream>
#include <tuple>

#include "editors/event_rule_fit.h"
#include "export/calendar_export.h"
#include "export/list_export.h"
#include "probe_session.h"
#include "record_store/color_vocabulary.h"
#include "sample_content.h"
#include "support/fake_platform.h"
#include "tools/probe_script.h"

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

// A realistic drive, and the planner started on it as the probe starts it.
struct StartedDrive {
    FakePlatform fake;  // for its fresh drive and host folders
    sample::DriveSummary made = sample::MakeSampleDrive(fake.drive, DriveSize::Realistic, kToday);
    std::ostringstream shown;
    ProbeSession session{fake.drive, fake.host, shown};

    StartedDrive() {
        std::istringstream script("clock 2026-11-21 09:05\nprint\n");
        EXPECT_TRUE(session.run(script));
    }
    const RecordStore& store() { return session.window()->store; }
};

TEST(SampleDrive, TheProgramFindsWhatTheSummarySays) {
    StartedDrive d;
    const RecordStore& s = d.store();
    const sample::RecordCounts& r = d.made.records;
    EXPECT_EQ(d.shown.str().find("Message: "), std::string::npos) << d.shown.str();
    EXPECT_EQ(r, (sample::RecordCounts{4, 24, 800, 800, 3000, 300, 150}));
    // Every record is counted by the loads, deleted ones too.
    EXPECT_EQ(std::tuple(s.NextTermRecord, s.NextClassRecord, s.NextAssignmentRecord, s.NextNoteRecord,
                         s.NextStudySessionRecord, s.NextTaskRecord, s.NextEventRecord),
              std::tuple(r.terms + 1, r.classes + 1, r.assignments + 1, r.notes + 1, r.studySessions + 1,
                         r.tasks + 1, r.events + 1));
    // It opens on the newest term, which holds today, with that term's own homework.
    EXPECT_NE(d.shown.str().find("Term: \"Fall 2026\" \"27 Days Left in Term\""), std::string::npos);
    EXPECT_NE(d.shown.str().find("Rows: " + std::to_string(d.made.activeTermAssignments) + " from 1"),
              std::string::npos);
    EXPECT_EQ(s.CurrentTermID, r.terms);
    EXPECT_EQ(s.CurrentTermName, d.made.activeTerm);
    EXPECT_EQ(s.AssignmentIDs.count(), d.made.activeTermAssignments);
    EXPECT_GT(d.made.activeTermAssignments, 180);
    EXPECT_EQ(s.StudySessionRecordNos.count(), d.made.activeTermSessions);
    EXPECT_GT(d.made.activeTermSessions, 300);
    // A few records were deleted again, as the editors delete them.
    EXPECT_EQ(std::tuple(s.NoteRecordNos.count(), s.TaskIDs.count(), s.EventIDs.count()),
              std::tuple(d.made.liveNotes, d.made.liveTasks, d.made.liveEvents));
    EXPECT_LT(d.made.liveNotes, r.notes);
    EXPECT_LT(d.made.liveTasks, r.tasks);
    EXPECT_LT(d.made.liveEvents, r.events);
    // The export templates lie beside the program, where the exports read them.
    std::vector<std::string> templates;
    for (const Mode mode : {Mode::Homework, Mode::StudySessions, Mode::Tasks, Mode::Reminders, Mode::Events})
        templates.push_back(ListExportFormOf(mode)->templateFile);
    for (const CalendarSheet sheet : {CalendarSheet::Homework, CalendarSheet::Tasks})
        templates.push_back(CalendarSheetFormOf(sheet).templateFile);
    for (const std::string& name : templates)
        EXPECT_TRUE(std::filesystem::is_regular_file(d.fake.drive + "/exec/" + name)) << name;
}

TEST(SampleDrive, HomeworkAndEventsLieAroundTodayInRulesTheEditorsAccept) {
    StartedDrive d;
    const RecordStore& s = d.store();

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
            EXPECT_TRUE(RuleFitsStartDate(s.EventRepeatNumbers(i), s.EventRepeatDays(i), first))
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

// The same seed makes the same bytes, another seed others; a folder that holds planner
// data is refused and left as it was.
TEST(SampleDrive, TheSameSeedMakesTheSameBytesAndAFullFolderIsRefused) {
    FakePlatform first, again, other;
    sample::MakeSampleDrive(first.drive, DriveSize::Realistic, kToday);
    sample::MakeSampleDrive(again.drive, DriveSize::Realistic, kToday);
    sample::MakeSampleDrive(other.drive, DriveSize::Realistic, kToday, 7);
    const auto& bytes = test::dataFile;
    for (const char* name : kFiles) EXPECT_EQ(bytes(first, name), bytes(again, name)) << name;
    EXPECT_NE(bytes(first, "Assignments.txt"), bytes(other, "Assignments.txt"));
    EXPECT_NE(bytes(first, "Events.txt"), bytes(other, "Events.txt"));

    EXPECT_THROW(sample::MakeSampleDrive(first.drive, DriveSize::Realistic, kToday, 99), std::runtime_error);
    EXPECT_EQ(bytes(first, "Tasks.txt"), bytes(again, "Tasks.txt"));
}

}  // namespace
}  // namespace qh
