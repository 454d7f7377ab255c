#include <gtest/gtest.h>

#include "store_fixture.h"
#include "support/main_window_fixture.h"

namespace qh {
namespace {

TEST(TermsAndClasses, MissingFilesLoadEmptyAndAreCreated) {
    StoreOnDrive d;
    ASSERT_TRUE(d.files.LoadTermsAndClasses());
    EXPECT_TRUE(d.store.TermIDs.empty());
    EXPECT_TRUE(d.store.ClassNames.empty());
    EXPECT_EQ(d.store.NextTermRecord, 1);
    EXPECT_EQ(d.store.NextClassRecord, 1);
    EXPECT_TRUE(d.fake.files.exists(d.path("Terms.txt")));
    EXPECT_EQ(d.bytesOf("Classes.txt"), "");
    EXPECT_TRUE(d.fake.messages.shown.empty());
}

TEST(TermsAndClasses, LoadKeepsTombstonesRepairsDatesAndIgnoresAPartRecord) {
    StoreOnDrive d;
    d.writeFile("Terms.txt", termRecord(1, "Fall 2026", "2026.08.31", "2026-12-18") +
                                 termRecord(2, "DELETED RECORD", "2027/01/05", "2027/05/14") + std::string(50, 'x'));
    d.writeFile("Classes.txt", classRecord(10, 1, "Biology") + classRecord(11, 2, "DELETED RECORD"));
    ASSERT_TRUE(d.files.LoadTermsAndClasses());
    const RecordStore& s = d.store;
    EXPECT_EQ(s.TermIDs, (TextColumn{"1", "2"}));
    EXPECT_EQ(s.TermNames, (TextColumn{"Fall 2026", "DELETED RECORD"}));
    EXPECT_EQ(s.TermStarts, (TextColumn{"2026/08/31", "2027/01/05"}));
    EXPECT_EQ(s.TermEnds, (TextColumn{"2026/12/18", "2027/05/14"}));
    EXPECT_EQ(s.NextTermRecord, 3);
    EXPECT_EQ(s.ClassIDs, (TextColumn{"10", "11"}));
    EXPECT_EQ(s.ClassTermLinks, (TextColumn{"1", "2"}));
    EXPECT_EQ(s.ClassNames, (TextColumn{"Biology", "DELETED RECORD"}));
    EXPECT_EQ(s.ClassNotes, (TextColumn{"", ""}));
    EXPECT_EQ(s.NextClassRecord, 3);

    // The next save drops the half record and writes the dates with slashes.
    ASSERT_TRUE(d.files.SaveTermsAndClasses());
    EXPECT_EQ(d.bytesOf("Terms.txt"), termRecord(1, "Fall 2026", "2026/08/31", "2026/12/18") +
                                          termRecord(2, "DELETED RECORD", "2027/01/05", "2027/05/14"));
}

TEST(TermsAndClasses, AReadErrorKeepsTheRowsReadSoFarAndLeavesTheClassesUnread) {
    StoreOnDrive d;
    d.writeFile("Terms.txt", termRecord(1, "A", "2026/01/01", "2026/02/01") +
                                 termRecord(2, "B", "2026/01/01", "2026/02/01") +
                                 termRecord(3, "C", "2026/01/01", "2026/02/01"));
    d.writeFile("Classes.txt", classRecord(10, 1, "Biology"));
    d.store.TermsChanged = kTrue;
    d.fake.files.failRead(3);
    EXPECT_FALSE(d.files.LoadTermsAndClasses());
    EXPECT_EQ(d.store.TermNames, (TextColumn{"A", "B"}));
    EXPECT_EQ(d.store.NextTermRecord, 3);
    EXPECT_TRUE(d.store.ClassIDs.empty());
    ASSERT_EQ(d.fake.messages.shown.size(), 1u);
    EXPECT_EQ(d.fake.messages.shown[0].text.substr(0, 33), "Error reading the file: Terms.txt");
    EXPECT_EQ(d.store.TermsChanged, kFalse);
}

TEST(TermsAndClasses, AFailedSaveLeavesTheOldFileWholeAndClearsOnlyItsFlag) {
    StoreOnDrive d;
    d.writeFile("Classes.txt", classRecord(10, 1, "Biology"));
    ASSERT_TRUE(d.files.LoadTermsAndClasses());
    d.store.ClassNames(1) = "Chemistry";
    d.fake.files.failPath("Classes.txt");
    EXPECT_FALSE(d.files.SaveTermsAndClasses());
    ASSERT_EQ(d.fake.messages.shown.size(), 1u);
    EXPECT_EQ(d.fake.messages.shown[0].text.substr(0, 35), "Error writing the file: Classes.txt");
    EXPECT_EQ(d.store.TermsChanged, kTrue);
    EXPECT_EQ(d.store.ClassesChanged, kFalse);
    EXPECT_EQ(d.bytesOf("Classes.txt"), classRecord(10, 1, "Biology"));
    EXPECT_EQ(d.store.ClassNames(1), "Chemistry");  // the columns stay complete

    // The next successful save repairs the file.
    d.fake.files.failPath("");
    ASSERT_TRUE(d.files.SaveTermsAndClasses());
    EXPECT_EQ(d.bytesOf("Classes.txt"), classRecord(10, 1, "Chemistry"));
}

TEST(TermsAndClasses, ATermDateThatIsNoDateFailsTheSaveOfTerms) {
    StoreOnDrive d;
    d.writeFile("Terms.txt", termRecord(1, "A", "2026/01/01", "2026/02/01"));
    ASSERT_TRUE(d.files.LoadTermsAndClasses());
    d.store.TermIDs.append("2");
    d.store.TermNames.append("B");
    d.store.TermStarts.append("soon");
    d.store.TermEnds.append("2026/03/01");
    EXPECT_FALSE(d.files.SaveTermsAndClasses());
    EXPECT_EQ(d.fake.messages.shown.at(0).text.substr(0, 33), "Error writing the file: Terms.txt");
    EXPECT_EQ(d.store.NextTermRecord, 2);  // stopped at the second record
    EXPECT_EQ(d.bytesOf("Terms.txt"), termRecord(1, "A", "2026/01/01", "2026/02/01"));
}

TEST(TermsAndClasses, ATermsFileGoneSinceTheLoadFailsWithAnEmptyName) {
    StoreOnDrive d;
    ASSERT_TRUE(d.files.LoadTermsAndClasses());
    d.store.TermsChanged = kTrue;
    d.fake.files.remove(d.path("Terms.txt"));
    EXPECT_FALSE(d.files.SaveTermsAndClasses());
    ASSERT_EQ(d.fake.messages.shown.size(), 1u);
    EXPECT_EQ(d.fake.messages.shown[0].text.substr(0, 26), "Error writing the file: \r\n");
    EXPECT_EQ(d.store.TermsChanged, kTrue);
}

TEST(TermsAndClasses, AFileOf32767RecordsOverflowsTheCounterAtItsEnd) {
    StoreOnDrive d;
    std::string bytes;
    const std::string one = termRecord(1, "T", "2026/01/01", "2026/02/01");
    for (int i = 0; i < 32767; ++i) bytes += one;
    d.writeFile("Terms.txt", bytes);
    EXPECT_FALSE(d.files.LoadTermsAndClasses());
    EXPECT_EQ(d.store.TermIDs.count(), 32767);
    EXPECT_EQ(d.store.NextTermRecord, 32767);
    EXPECT_EQ(d.fake.messages.shown.at(0).text.substr(0, 33), "Error reading the file: Terms.txt");
}

}  // namespace
}  // namespace qh
