#include <gtest/gtest.h>

#include "common/day_number.h"
#include "store_fixture.h"

namespace qh {
namespace {

std::string assignmentRecord(int recordNo, int classLink, const std::string& description) {
    const std::string n = std::to_string(recordNo);
    return field(n, 5) + field(n, 5) + field(std::to_string(classLink), 5) + field("2026.11.30", 15) +
           field("Homework", 10) + field("Easy", 10) + field("00 : 30", 7) + field(description, 50) +
           field("False", 5) + field(" ", 5) + field("100", 3) + field("None", 20) + nuls(20);
}

std::string noteRecord(int recordNo, const std::string& link, const std::string& text) {
    return field(std::to_string(recordNo), 5) + field(link, 5) + nuls(40) + field(text, 1450);
}

std::string sessionRecord(int recordNo, const std::string& link, const std::string& length,
                          const std::string& date = "2026-11-20") {
    return field(std::to_string(recordNo), 5) + field(link, 5) + field(length, 10) + field(date, 15) + nuls(20);
}

// Term 1 has the live class 10 and the deleted class 11; class 20 belongs to term 2.
void putClasses(RecordStore& s) {
    s.ClassIDs = {"10", "11", "20"};
    s.ClassTermLinks = {"1", "1", "2"};
    s.ClassNames = {"Biology", "DELETED RECORD", "History"};
}

struct AssignmentDrive : StoreOnDrive {
    AssignmentDrive() {
        putClasses(store);
        writeFile("Assignments.txt", assignmentRecord(1, 10, "Lab report") + assignmentRecord(2, 11, "Orphan") +
                                         assignmentRecord(3, 20, "Essay") + assignmentRecord(4, 10, "DELETED RECORD") +
                                         assignmentRecord(5, 10, "Quiz"));
        writeFile("Notes.txt", noteRecord(1, "1", "bring goggles") + noteRecord(2, "0", "") +
                                   noteRecord(3, "3", "five pages") + noteRecord(4, "-1", ""));
        writeFile("StudySessions.txt", sessionRecord(1, "1", "00 : 45") + sessionRecord(2, "-1", "") +
                                           sessionRecord(3, "0", "01 : 00") + sessionRecord(4, "3", "02 : 00") +
                                           sessionRecord(5, "2", "00 : 10") + sessionRecord(6, "5", "00 : 20") +
                                           std::string(30, ' '));
    }
};

TEST(Assignments, LoadTakesLiveAssignmentsOfLiveClassesOfTheActiveTermAndTheirSessions) {
    AssignmentDrive d;
    d.store.CurrentTermID = 1;
    ASSERT_TRUE(d.files.LoadAssignments());
    const RecordStore& s = d.store;
    EXPECT_EQ(s.AssignmentRecordNos, (TextColumn{"1", "5"}));
    EXPECT_EQ(s.AssignmentDescriptions, (TextColumn{"Lab report", "Quiz"}));
    EXPECT_EQ(s.AssignmentDates, (TextColumn{"2026/11/30", "2026/11/30"}));
    EXPECT_EQ(s.AssignmentGrades, (TextColumn{"", ""}));
    EXPECT_EQ(s.AssignmentReminders, (TextColumn{"None", "None"}));
    // Notes of every term, but no free ones.
    EXPECT_EQ(s.NoteRecordNos, (TextColumn{"1", "3"}));
    EXPECT_EQ(s.NoteLinkIDs, (TextColumn{"1", "3"}));
    // Sessions only of loaded assignments; "-1" and "0" never.
    EXPECT_EQ(s.StudySessionRecordNos, (TextColumn{"1", "6"}));
    EXPECT_EQ(s.StudySessionLengths, (TextColumn{"00 : 45", "00 : 20"}));
    EXPECT_EQ(s.StudySessionDates, (TextColumn{"2026/11/20", "2026/11/20"}));
    EXPECT_EQ(s.NextAssignmentRecord, 6);
    EXPECT_EQ(s.NextNoteRecord, 5);
    EXPECT_EQ(s.NextStudySessionRecord, 7);  // the trailing part record is not counted

    // Another term gives its own rows.
    d.store.clearTermBoundColumns();
    d.store.CurrentTermID = 2;
    ASSERT_TRUE(d.files.LoadAssignments());
    EXPECT_EQ(s.AssignmentDescriptions, (TextColumn{"Essay"}));
    EXPECT_EQ(s.StudySessionRecordNos, (TextColumn{"4"}));
}

TEST(Assignments, WithNoActiveTermOnlyNotesAreListedAndTheCountersStillReachTheEnd) {
    AssignmentDrive d;
    ASSERT_TRUE(d.files.LoadAssignments());
    EXPECT_TRUE(d.store.AssignmentIDs.empty());
    EXPECT_TRUE(d.store.StudySessionLinkIDs.empty());
    EXPECT_EQ(d.store.NoteRecordNos.count(), 2);
    EXPECT_EQ(d.store.NextAssignmentRecord, 6);
    EXPECT_EQ(d.store.NextNoteRecord, 5);
    EXPECT_EQ(d.store.NextStudySessionRecord, 7);
}

TEST(Assignments, ARecordIsTakenOncePerMatchingClassRowAsTheScanWould) {
    AssignmentDrive d;
    // Class 10 stands twice in the columns (a hand-edited file); links compare as numbers.
    d.store.ClassIDs.append("010");
    d.store.ClassTermLinks.append("1");
    d.store.ClassNames.append("Biology again");
    d.store.CurrentTermID = 1;
    ASSERT_TRUE(d.files.LoadAssignments());
    EXPECT_EQ(d.store.AssignmentRecordNos, (TextColumn{"1", "1", "5", "5"}));
    // A session is taken once per row of its assignment.
    EXPECT_EQ(d.store.StudySessionRecordNos, (TextColumn{"1", "1", "6", "6"}));
}

TEST(Assignments, AReadErrorInNotesLeavesTheSessionsUnread) {
    AssignmentDrive d;
    d.store.CurrentTermID = 1;
    d.store.NotesChanged = kTrue;
    d.fake.files.failRead(5 + 1 + 3);  // five assignments, the read past their end, three notes
    EXPECT_FALSE(d.files.LoadAssignments());
    EXPECT_EQ(d.store.AssignmentIDs.count(), 2);
    EXPECT_EQ(d.store.NoteRecordNos, (TextColumn{"1"}));
    EXPECT_EQ(d.store.NextNoteRecord, 3);
    EXPECT_TRUE(d.store.StudySessionRecordNos.empty());
    ASSERT_EQ(d.fake.messages.shown.size(), 1u);
    EXPECT_EQ(d.fake.messages.shown[0].text.substr(0, 33), "Error reading the file: Notes.txt");
    EXPECT_EQ(d.store.NotesChanged, kFalse);
}

TEST(Assignments, AnAppendAfterAnOverwriteLandsAtTheEnd) {
    StoreOnDrive d;
    std::string notes;
    for (int i = 1; i <= 13; ++i) notes += noteRecord(i, std::to_string(i), "note " + std::to_string(i));
    d.writeFile("Notes.txt", notes);
    ASSERT_TRUE(d.files.LoadAssignments());
    ASSERT_EQ(d.store.NextNoteRecord, 14);

    d.store.NoteRecord = {"12", "0", ""};  // a delete
    ASSERT_TRUE(d.files.SaveNote(12));
    EXPECT_EQ(d.store.NextNoteRecord, 14);
    d.store.NoteRecord = {"14", "20", "new"};
    ASSERT_TRUE(d.files.SaveNote(0));
    EXPECT_EQ(d.store.NextNoteRecord, 15);

    const std::string bytes = d.bytesOf("Notes.txt");
    ASSERT_EQ(bytes.size(), 14u * 1500u);
    EXPECT_EQ(bytes.substr(11 * 1500, 1500), noteRecord(12, "0", ""));
    EXPECT_EQ(bytes.substr(13 * 1500, 1500), noteRecord(14, "20", "new"));
    EXPECT_EQ(d.store.NotesChanged, kTrue);

    ASSERT_TRUE(d.files.ReadNote(14));
    EXPECT_EQ(d.store.NoteRecord.RecordNo, "14");
    EXPECT_EQ(d.store.NoteRecord.LinkID, "20");
    EXPECT_EQ(d.store.NoteRecord.Text, "new");
    ASSERT_TRUE(d.files.ReadNote(30));  // past the end
    EXPECT_EQ(d.store.NoteRecord.Text, "");
}

TEST(Assignments, AFailedOverwriteLeavesTheCounterOnItSoTheNextAppendLandsThere) {
    StoreOnDrive d;
    d.writeFile("StudySessions.txt",
                sessionRecord(1, "1", "00 : 45") + sessionRecord(2, "1", "00 : 15") + sessionRecord(3, "1", "00 : 30"));
    ASSERT_TRUE(d.files.LoadAssignments());
    RecordStore& s = d.store;
    s.EditStudySessionRecordNos = {"2"};
    s.EditStudySessionLinkIDs = {"-1"};
    s.EditStudySessionLengths = {""};
    s.EditStudySessionDates = {"2026/11/20"};
    s.StudySessionsChanged = kTrue;
    d.fake.files.failWrite(1);
    EXPECT_FALSE(d.files.SaveStudySession(2, 1));
    ASSERT_EQ(d.fake.messages.shown.size(), 1u);
    EXPECT_EQ(d.fake.messages.shown[0].text.substr(0, 41), "Error writing the file: StudySessions.txt");
    EXPECT_EQ(s.StudySessionsChanged, kFalse);
    EXPECT_EQ(s.NextStudySessionRecord, 2);

    s.EditStudySessionRecordNos(1) = "4";
    s.EditStudySessionLinkIDs(1) = "1";
    s.EditStudySessionLengths(1) = "00 : 05";
    ASSERT_TRUE(d.files.SaveStudySession(0, 1));
    EXPECT_EQ(s.NextStudySessionRecord, 3);
    EXPECT_EQ(s.StudySessionsChanged, kTrue);  // a later save sets the flag again
    EXPECT_EQ(d.bytesOf("StudySessions.txt").substr(55, 55), sessionRecord(4, "1", "00 : 05", "2026/11/20"));
    EXPECT_EQ(d.fake.messages.shown.size(), 1u);
}

TEST(Assignments, RecordNumbersCannotPass32767) {
    StoreOnDrive d;
    RecordStore& s = d.store;
    s.NextAssignmentRecord = 32767;
    s.AssignmentRecord = {"32767",    "32767", "10",      dateFromYmd(2026, 11, 30),
                          "Homework", "Easy",  "00 : 30", "Last one",
                          "False",    " ",     "100",     "None"};
    EXPECT_FALSE(d.files.SaveAssignment(0));
    EXPECT_EQ(s.NextAssignmentRecord, 32767);
    EXPECT_EQ(s.AssignmentsChanged, kFalse);
    EXPECT_EQ(d.fake.messages.shown.at(0).text.substr(0, 39), "Error writing the file: Assignments.txt");
}

}  // namespace
}  // namespace qh
