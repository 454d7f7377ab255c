// What the loads take from the record files, where the saves of one record write, and
// what a failure leaves behind.
#include <gtest/gtest.h>

#include <functional>

#include "record_store/damage_messages.h"
#include "store_fixture.h"

namespace qh {
namespace {

using Row = std::vector<std::string>;

// Records 1, 2, ... of the values `base`, value `at` taking each text in turn.
std::string records(const RecordLayout& layout, Row base, std::size_t at, const Row& texts) {
    std::string bytes;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        base[0] = std::to_string(i + 1);
        base[at] = texts[i];
        bytes += rawRecord(layout, base);
    }
    return bytes;
}
const Row kTerm{"", "", "2026.08.31", "2026-12-18"};
const Row kNote{"", "", ""};
const Row kSession{"", "", "00 : 45", "2026-11-20"};
std::string klass(const std::string& id, const std::string& termLink, const std::string& name) {
    return rawRecord(kClassesLayout, {id, termLink, name, "Black", "White", ""});
}
std::string assignment(int n, int classLink, const std::string& description) {
    const std::string no = std::to_string(n);
    return rawRecord(kAssignmentsLayout, {no, no, std::to_string(classLink), "2026.11.30", "Homework", "Easy",
                                          "00 : 30", description, "False", " ", "100", "None"});
}

// Every record file, whole and undamaged. Term 1 has the live
// class 10 and the deleted class 11; class 20 belongs to term 2; term 3 lists class 10
// twice (a hand-edited file), once as "010".
struct FullDrive : StoreOnDrive {
    FullDrive() {
        writeFile("Terms.txt", records(kTermsLayout, kTerm, 1, {"Fall 2026", "DELETED RECORD", "Spring"}));
        writeFile("Classes.txt", klass("10", "1", "Biology") + klass("11", "1", "DELETED RECORD") +
                                     klass("20", "2", "History") + klass("010", "3", "Bio") + klass("10", "3", "Bio"));
        writeFile("Assignments.txt", assignment(1, 10, "Lab report") + assignment(2, 11, "Orphan") +
                                         assignment(3, 20, "Essay") + assignment(4, 10, "DELETED RECORD") +
                                         assignment(5, 10, "Quiz"));
        writeFile("Notes.txt", records(kNotesLayout, kNote, 1, {"1", "0", "3", "-1"}));
        writeFile("StudySessions.txt",
                  records(kStudySessionsLayout, kSession, 1, {"1", "-1", "0", "3", "2", "5"}));
        writeFile("Tasks.txt",
                  records(kTasksLayout, {"", "9", "", "True", "2026.12.01", "Errand", "Low", "False", "", ""}, 2,
                          {"Buy stamps", "DELETED RECORD", "Call home"}));
        writeFile("Events.txt", records(kEventsLayout,
                                        {"", "9", "2026-12-24", "", "Social", "All Day", "Year", "True", "First", "Day",
                                         "FFFFFFF", "False", "never-ever", "", "None"},
                                        3, {"Holiday party", "DELETED RECORD", "Recital"}));
    }
};

TEST(Loads, TermsClassesTasksAndEvents) {
    FullDrive d;
    ASSERT_TRUE(d.files.LoadTermsAndClasses() && d.files.LoadTasks() && d.files.LoadEvents());
    const RecordStore& s = d.store;
    // Terms and classes keep their tombstones.
    EXPECT_EQ(s.TermNames, (TextColumn{"Fall 2026", "DELETED RECORD", "Spring"}));
    EXPECT_EQ(s.TermStarts(1), "2026/08/31");
    EXPECT_EQ(s.TermEnds(3), "2026/12/18");
    EXPECT_EQ(s.ClassIDs, (TextColumn{"10", "11", "20", "010", "10"}));
    EXPECT_EQ(s.ClassNames(2), "DELETED RECORD");
    // Tasks and events leave theirs out; date fields are repaired but otherwise kept.
    EXPECT_EQ(s.TaskRecordNos, (TextColumn{"1", "3"}));
    EXPECT_EQ(s.TaskDates, (TextColumn{"2026/12/01", "2026/12/01"}));
    EXPECT_EQ(s.EventRecordNos, (TextColumn{"1", "3"}));
    EXPECT_EQ(s.EventDates(2), "2026/12/24");
    EXPECT_EQ(s.EventEndDates(2), "never/ever");
    // The counters stand past the last whole record.
    EXPECT_EQ(s.NextTermRecord, 4);
    EXPECT_EQ(s.NextClassRecord, 6);
    EXPECT_EQ(s.NextTaskRecord, 4);
    EXPECT_EQ(s.NextEventRecord, 4);
    EXPECT_TRUE(d.fake.messages.shown.empty());

    StoreOnDrive empty;  // missing files load empty and are created
    ASSERT_TRUE(empty.files.LoadTermsAndClasses());
    EXPECT_TRUE(empty.store.TermIDs.empty() && empty.store.ClassIDs.empty());
    EXPECT_TRUE(empty.fake.files.exists(empty.path("Terms.txt")) && empty.fake.files.exists(empty.path("Classes.txt")));
}

TEST(Loads, AssignmentsOfTheActiveTermsLiveClassesAndTheirSessions) {
    const struct {
        Int16 term;
        TextColumn assignments, sessions;
    } terms[] = {{0, {}, {}},
                 {1, {"1", "5"}, {"1", "6"}},
                 {2, {"3"}, {"4"}},
                 // Links compare as numbers; a record is taken once per matching row.
                 {3, {"1", "1", "5", "5"}, {"1", "1", "6", "6"}}};
    for (const auto& t : terms) {
        FullDrive d;
        ASSERT_TRUE(d.files.LoadTermsAndClasses());
        d.store.CurrentTermID = t.term;
        ASSERT_TRUE(d.files.LoadAssignments());
        const RecordStore& s = d.store;
        EXPECT_EQ(s.AssignmentRecordNos, t.assignments) << "term " << t.term;
        EXPECT_EQ(s.StudySessionRecordNos, t.sessions) << "term " << t.term;
        // Notes of every term but no free ones; counters past the end of every file.
        EXPECT_EQ(s.NoteRecordNos, (TextColumn{"1", "3"}));
        EXPECT_EQ(s.NextAssignmentRecord, 6);
        EXPECT_EQ(s.NextNoteRecord, 5);
        EXPECT_EQ(s.NextStudySessionRecord, 7);
    }
}

TEST(Loads, AReadErrorEndsTheRoutineAndClearsTheFilesFlag) {
    using S = RecordStore;
    const struct {
        const char* file;
        int failingRead;
        bool (RecordFiles::*load)();
        Int16 S::*flag;
        TextColumn S::*unread;  // of the failing file or a later one the routine no longer reaches
    } cases[] = {
        {"Terms.txt", 1, &RecordFiles::LoadTermsAndClasses, &S::TermsChanged, &S::ClassIDs},
        {"Notes.txt", 2, &RecordFiles::LoadAssignments, &S::NotesChanged, &S::StudySessionRecordNos},
        {"Events.txt", 1, &RecordFiles::LoadEvents, &S::EventsChanged, &S::EventIDs},
    };
    for (const auto& c : cases) {
        FullDrive d;
        d.store.*c.flag = kTrue;
        d.fake.files.failRead(c.failingRead);
        EXPECT_FALSE((d.files.*c.load)()) << c.file;
        EXPECT_TRUE((d.store.*c.unread).empty()) << c.file;
        EXPECT_EQ(d.store.*c.flag, kFalse) << c.file;
        ASSERT_EQ(d.fake.messages.shown.size(), 1u) << c.file;
        EXPECT_EQ(d.fake.messages.shown[0].text, fileErrorText(c.file, "reading"));
    }
}

TEST(Saves, AnOverwritePutsTheCounterBackUnlessItFailsSoTheNextAppendLandsThere) {
    StoreOnDrive d;
    d.writeFile("Notes.txt", records(kNotesLayout, kNote, 1, Row(13, "5")));
    ASSERT_TRUE(d.files.LoadAssignments());
    RecordStore& s = d.store;
    s.NoteRecord = {"12", "0", ""};
    ASSERT_TRUE(d.files.SaveNote(12));
    EXPECT_EQ(s.NextNoteRecord, 14);
    s.NoteRecord = {"14", "20", "new"};
    ASSERT_TRUE(d.files.SaveNote(0));
    EXPECT_EQ(s.NextNoteRecord, 15);
    const std::string bytes = d.bytesOf("Notes.txt");
    ASSERT_EQ(bytes.size(), 14u * 1500u);
    EXPECT_EQ(bytes.substr(11 * 1500, 1500), rawRecord(kNotesLayout, {"12", "0", ""}));
    EXPECT_EQ(bytes.substr(13 * 1500, 1500), rawRecord(kNotesLayout, {"14", "20", "new"}));

    d.fake.files.failWrite(1);
    EXPECT_FALSE(d.files.SaveNote(3));
    EXPECT_EQ(d.fake.messages.shown.at(0).text, fileErrorText("Notes.txt", "writing"));
    EXPECT_EQ(s.NotesChanged, kFalse);
    EXPECT_EQ(s.NextNoteRecord, 3);
    ASSERT_TRUE(d.files.SaveNote(0));
    EXPECT_EQ(s.NextNoteRecord, 4);
    EXPECT_EQ(s.NotesChanged, kTrue);  // a later save sets the flag again
    EXPECT_EQ(d.bytesOf("Notes.txt").substr(2 * 1500, 1500), rawRecord(kNotesLayout, {"14", "20", "new"}));

    ASSERT_TRUE(d.files.ReadNote(14));
    EXPECT_EQ(s.NoteRecord.Text, "new");
    ASSERT_TRUE(d.files.ReadNote(30));  // past the end
    EXPECT_EQ(s.NoteRecord.RecordNo, "");
}

TEST(Saves, AFullFileRefusesANewRecordBeforeWritingAnything) {
    StoreOnDrive d;
    d.writeFile("Assignments.txt", assignment(1, 10, "Kept"));
    d.store.NextAssignmentRecord = 32767;
    d.store.AssignmentRecord = {"", "2", "10", dateFromText("2026/11/30"), "Quiz", "Easy", "00 : 30",
                                "New", "False", "", "5", "None"};
    EXPECT_FALSE(d.files.SaveAssignment(0));
    EXPECT_EQ(d.store.NextAssignmentRecord, 32767);
    ASSERT_EQ(d.fake.messages.shown.size(), 1u);
    EXPECT_EQ(d.fake.messages.shown[0].text, "Assignments.txt is full: 32,766 assignments.");
    EXPECT_EQ(d.fake.messages.shown[0].title, "Quillhollow - File Write Error");
    EXPECT_EQ(d.bytesOf("Assignments.txt"), assignment(1, 10, "Kept"));
    // A change to a record that is there still goes through.
    EXPECT_TRUE(d.files.SaveAssignment(1));
    EXPECT_EQ(FullFileText("Tasks.txt"), "Tasks.txt is full: 32,766 tasks.");
    EXPECT_EQ(FullFileText("StudySessions.txt"), "StudySessions.txt is full: 32,766 study sessions.");
}

TEST(Saves, AFailedSaveOfTermsAndClassesLeavesTheOldFilesAndClearsTheFlagOfTheOneItNames) {
    const struct {
        const char* what;
        std::function<void(StoreOnDrive&)> fault;
        const char* named;
        Int16 termsChanged, classesChanged;
    } cases[] = {
        {"Classes.txt failing", [](StoreOnDrive& d) { d.fake.files.failPath("Classes.txt"); }, "Classes.txt", kTrue,
         kFalse},
        {"a term date that is no date", [](StoreOnDrive& d) { d.store.TermStarts(2) = "soon"; }, "Terms.txt", kFalse,
         kTrue},
        // Gone since the load: the message names no file and clears no flag.
        {"Terms.txt gone", [](StoreOnDrive& d) { d.fake.files.remove(d.path("Terms.txt")); }, "", kTrue, kTrue},
    };
    for (const auto& c : cases) {
        FullDrive d;
        ASSERT_TRUE(d.files.LoadTermsAndClasses());
        const std::string terms = d.bytesOf("Terms.txt"), classes = d.bytesOf("Classes.txt");
        d.store.ClassNames(1) = "Chemistry";
        d.store.TermsChanged = d.store.ClassesChanged = kTrue;
        c.fault(d);
        EXPECT_FALSE(d.files.SaveTermsAndClasses()) << c.what;
        EXPECT_EQ(d.fake.messages.shown.at(0).text, fileErrorText(c.named, "writing")) << c.what;
        EXPECT_EQ(d.store.TermsChanged, c.termsChanged) << c.what;
        EXPECT_EQ(d.store.ClassesChanged, c.classesChanged) << c.what;
        EXPECT_EQ(d.bytesOf("Classes.txt"), classes) << c.what;
        if (std::string(c.named) == "Terms.txt") {
            EXPECT_EQ(d.bytesOf("Terms.txt"), terms) << c.what;
        }
    }
}

}  // namespace
}  // namespace qh
