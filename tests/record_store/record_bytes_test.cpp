// The bytes each save puts on the drive, spelt out field by field from the record tables,
// and the code page they are in.
#include <gtest/gtest.h>

#include "common/day_number.h"
#include "record_store/codepage.h"
#include "store_fixture.h"
#include "support/record_fields.h"

namespace qh {
namespace {

std::string nuls(std::size_t width) { return std::string(width, '\0'); }
std::string spaces(std::size_t width) { return std::string(width, ' '); }

TEST(RecordBytes, TermsAndClassesAreRewrittenWholeWithSpacesInTheReservedFields) {
    StoreOnDrive d;
    ASSERT_TRUE(d.files.LoadTermsAndClasses());
    RecordStore& s = d.store;
    s.TermIDs = {"1", "2"};
    s.TermNames = {"Fall 2026", "Spring \xC3\xA9t\xC3\xA9"};
    s.TermStarts = {"2026/08/31", "2027.1.5"};  // any date form: written afresh
    s.TermEnds = {"2026-12-18", "2027/05/14"};
    s.ClassIDs = {"7"};
    s.ClassTermLinks = {"1"};
    s.ClassNames = {"Biology"};
    s.ClassForeColors = {"Black"};
    s.ClassBackColors = {"MistyRose"};
    s.ClassNotes = {std::string(600, 'n')};
    ASSERT_TRUE(d.files.SaveTermsAndClasses());

    const std::string terms = padField("1", 5) + padField("Fall 2026", 35) + padField("2026/08/31", 15) +
                              padField("2026/12/18", 15) + spaces(15) + spaces(15) + padField("2", 5) +
                              padField("Spring \xE9t\xE9", 35) + padField("2027/01/05", 15) +
                              padField("2027/05/14", 15) + spaces(15) + spaces(15);
    EXPECT_EQ(d.bytesOf("Terms.txt"), terms);
    const std::string classes = padField("7", 5) + padField("1", 5) + padField("Biology", 25) + padField("Black", 20) +
                                padField("MistyRose", 20) + std::string(500, 'n') + spaces(20) + spaces(20);
    EXPECT_EQ(d.bytesOf("Classes.txt"), classes);
    EXPECT_EQ(s.NextTermRecord, 3);
    EXPECT_EQ(s.NextClassRecord, 2);
    EXPECT_EQ(s.TermsChanged, kTrue);
    EXPECT_EQ(s.ClassesChanged, kTrue);
}

TEST(RecordBytes, AssignmentNoteAndSessionRecordsHoldNulsInTheReservedFields) {
    StoreOnDrive d;
    RecordStore& s = d.store;
    s.AssignmentRecord = {"1",        "1",    "7",       dateFromYmd(2026, 11, 30),
                          "Homework", "Hard", "01 : 30", "Read chapter 4",
                          "False",    " ",    "100",     "1 Day Before"};
    ASSERT_TRUE(d.files.SaveAssignment(0));
    EXPECT_EQ(d.bytesOf("Assignments.txt"),
              padField("1", 5) + padField("1", 5) + padField("7", 5) + padField("2026/11/30", 15) +
                  padField("Homework", 10) + padField("Hard", 10) + padField("01 : 30", 7) +
                  padField("Read chapter 4", 50) + padField("False", 5) + padField(" ", 5) + padField("100", 3) +
                  padField("1 Day Before", 20) + nuls(20));

    s.NoteRecord = {"1", "1", std::string(1500, 'x')};
    ASSERT_TRUE(d.files.SaveNote(0));
    EXPECT_EQ(d.bytesOf("Notes.txt"),
              padField("1", 5) + padField("1", 5) + nuls(20) + nuls(20) + std::string(1450, 'x'));

    s.EditStudySessionRecordNos = {"9", "1"};
    s.EditStudySessionLinkIDs = {"9", "1"};
    s.EditStudySessionLengths = {"9", "00 : 45"};
    s.EditStudySessionDates = {"2026/01/01", "2026-11-21"};
    ASSERT_TRUE(d.files.SaveStudySession(0, 2));
    EXPECT_EQ(d.bytesOf("StudySessions.txt"), padField("1", 5) + padField("1", 5) + padField("00 : 45", 10) +
                                                  padField("2026/11/21", 15) + nuls(10) + nuls(10));
    EXPECT_EQ(s.NextAssignmentRecord, 2);
    EXPECT_EQ(s.NextNoteRecord, 2);
    EXPECT_EQ(s.NextStudySessionRecord, 2);
}

TEST(RecordBytes, TaskAndEventRecordsKeepTheirNotesInTheRecord) {
    StoreOnDrive d;
    RecordStore& s = d.store;
    s.TaskRecord = {"1",      "1",    "2026/12/01", "Buy a calculator",    "True",
                    "Errand", "High", "False",      std::string(900, 'a'), "On Date"};
    ASSERT_TRUE(d.files.SaveTask(0));
    EXPECT_EQ(d.bytesOf("Tasks.txt"), padField("1", 5) + padField("1", 5) + padField("Buy a calculator", 60) +
                                          padField("True", 5) + padField("2026/12/01", 15) + padField("Errand", 10) +
                                          padField("High", 10) + padField("False", 5) + std::string(845, 'a') +
                                          padField("On Date", 20) + nuls(20));

    s.EventRecord = {"1",    "1",     "2026.12.24", "Holiday party", "Social", "7:00 PM",   "Year",
                     "True", "First", "Day",        "TFFFFFT",       "False",  "2027-1-31", std::string(800, 'e'),
                     "None"};
    ASSERT_TRUE(d.files.SaveEvent(0));
    EXPECT_EQ(d.bytesOf("Events.txt"),
              padField("1", 5) + padField("1", 5) + padField("2026/12/24", 15) + padField("Holiday party", 60) +
                  padField("Social", 10) + padField("7:00 PM", 10) + padField("Year", 5) + padField("True", 5) +
                  padField("First", 10) + padField("Day", 10) + padField("TFFFFFT", 10) + padField("False", 5) +
                  padField("2027/01/31", 15) + std::string(795, 'e') + padField("None", 20) + nuls(20));
    EXPECT_EQ(s.TasksChanged, kTrue);
    EXPECT_EQ(s.EventsChanged, kTrue);
}

TEST(CodePage, CharactersTakeOneByteEachAndThoseTheCodePageLacksBecomeQuestionMarks) {
    const struct {
        const char *utf8, *bytes;
    } cases[] = {
        {"caf\xC3\xA9 M\xC3\xBCller", "caf\xE9 M\xFCller"},
        {"\xE2\x82\xAC \xE2\x80\x9Cq\xE2\x80\x9D \xC5\xB8 \xE2\x84\xA2", "\x80 \x93q\x94 \x9F \x99"},
        {"\xE4\xB8\xAD!", "?!"},      // a CJK character
        {"\xF0\x9F\x98\x80x", "?x"},  // outside the basic plane
        {"a\xC3", "a?"},              // cut-off sequence
        {"\x80\xC0\xAF", "???"},      // stray and overlong bytes
        {"\xED\xA0\x80", "???"},      // a surrogate
    };
    for (const auto& c : cases) EXPECT_EQ(toCodePage(c.utf8), c.bytes) << c.utf8;
    EXPECT_EQ(fromCodePage(cases[0].bytes), cases[0].utf8);
    EXPECT_EQ(fromCodePage(cases[1].bytes), cases[1].utf8);
}

TEST(CodePage, EveryByteSurvivesALoadAndASaveAndFieldsCountBytesOfTheFile) {
    std::string all;
    for (int b = 0; b < 256; ++b) all += char(b);
    EXPECT_EQ(toCodePage(fromCodePage(all)), all);
    EXPECT_EQ(fieldBytes("\xC3\xA9\xC3\xA9\xC3\xA9", 2), "\xE9\xE9");  // three characters, six UTF-8 bytes
    EXPECT_EQ(fieldBytes("ab", 5), "ab   ");
}

}  // namespace
}  // namespace qh
