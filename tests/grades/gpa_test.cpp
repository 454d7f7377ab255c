#include "grades/gpa.h"

#include <gtest/gtest.h>

#include "list_view/list_fixture.h"

namespace qh {
namespace {

using namespace qh::testing;

TEST(GradePoints, TheTableIsExactAndEverythingElseIsZero) {
    EXPECT_FLOAT_EQ(GradePoints("A"), 4.0f);
    EXPECT_FLOAT_EQ(GradePoints("A-"), 3.7f);
    EXPECT_FLOAT_EQ(GradePoints("C+"), 2.3f);
    EXPECT_FLOAT_EQ(GradePoints("E+"), 0.3f);
    for (const char* other : {"E", "F", "a", "A+", " A", "Pass"}) EXPECT_EQ(GradePoints(other), 0.0f) << other;
}

TEST(GradeWeight, NumbersFromOneToAHundredCountAndAnythingElseIsFive) {
    EXPECT_EQ(GradeWeight("1"), 1.0f);
    EXPECT_EQ(GradeWeight("100"), 100.0f);
    EXPECT_EQ(GradeWeight(" 20 "), 20.0f);
    EXPECT_EQ(GradeWeight("2.5"), 2.5f);
    for (const char* other : {"0", "101", "abc", "", " ", "-5", "0.5", "12abc"})
        EXPECT_EQ(GradeWeight(other), 5.0f) << '"' << other << '"';
}

TEST(GradeLabels, TheClassTestIncludesTheThresholdAndTheTermTestDoesNot) {
    EXPECT_EQ(ClassGradeLabel(3.8f), " (A)  ");
    EXPECT_EQ(TermGradeLabel(3.8f), " (A-)  ");
    EXPECT_EQ(ClassGradeLabel(3.796f), " (A-)  ");
    EXPECT_EQ(ClassGradeLabel(2.75f), " (B-)  ");
    EXPECT_EQ(ClassGradeLabel(0.2f), " (E+)  ");
    EXPECT_EQ(TermGradeLabel(0.2f), " (E)  ");
    EXPECT_EQ(ClassGradeLabel(0.0f), " (E)  ");
    EXPECT_EQ(TermGradeLabel(4.0f), " (A)  ");
}

TEST(GradeFormat, HundredthsRoundHalfAwayFromZeroOnTheDecimalText) {
    EXPECT_EQ(FormatHundredths(3.125, 7), "3.13");
    EXPECT_EQ(FormatHundredths(double(3.796f), 7), "3.80");
    EXPECT_EQ(FormatHundredths(double(2.675f), 7), "2.68");  // 2.67499995 as a double
    EXPECT_EQ(FormatHundredths(0.0, 15), "0.00");
    EXPECT_EQ(FormatHundredths(4.0, 15), "4.00");
    EXPECT_EQ(FormatHundredths(0.004, 15), "0.00");
    EXPECT_EQ(FormatHundredths(0.005, 15), "0.01");
    EXPECT_EQ(FormatHundredths(9.999, 15), "10.00");
}

class GradeListTest : public ::testing::Test {
protected:
    GradeListTest() {
        s.CurrentTermID = 1;
        addClass(s, 1, "Introduction to Biology");
        addClass(s, 2, "Art");
        addClass(s, 3, "Math");
        addClass(s, 4, "Other term", "Black", "White", 2);
        addClass(s, 5, "DELETED RECORD");
    }
    RecordStore s;
};

TEST_F(GradeListTest, ClassesAverageTheirWeightedGradesAndTheTermTheClassAverages) {
    // Biology: A at 10, B at "abc" (5), E at 101 (5): (40 + 15 + 0) / 20 = 2.75.
    addAssignment(s, {.classLink = 1, .grade = "A", .weight = "10"});
    addAssignment(s, {.classLink = 1, .grade = "B", .weight = "abc"});
    addAssignment(s, {.classLink = 1, .done = true, .grade = "E", .weight = "101"});
    // Art has no grade: a single blank is none, a deleted assignment counts nothing.
    addAssignment(s, {.classLink = 2, .grade = " "});
    addAssignment(s, {.classLink = 2, .description = "DELETED RECORD", .grade = "A"});
    // Math: A- at weight 0, so 5.
    addAssignment(s, {.classLink = 3, .grade = "A-", .weight = "0"});
    // Grades of another term's class or of no class count nowhere.
    addAssignment(s, {.classLink = 4, .grade = "E"});
    addAssignment(s, {.classLink = 9, .grade = "E"});

    const GradeList list = ComputeGradeList(s);
    EXPECT_EQ(list.GPAClassNames, (TextColumn{"Introduction to Biology", "Art", "Math"}));
    EXPECT_FLOAT_EQ(list.GPAWeights(1), 20.0f);
    EXPECT_EQ(list.GPAWeights(2), 0.0f);
    // (2.75 + 3.7) / 2 = 3.225, shown 3.23: above 3.2, so B+.
    EXPECT_EQ(list.Entries, (std::vector<std::string>{"GPA", "Total 3.23 (B+)  ", "Introduction  2.75 (B-)  ", "Art ",
                                                      "Math 3.70 (A-)  "}));
}

TEST_F(GradeListTest, ATermWithoutGradesShowsTotalAlone) {
    addAssignment(s, {.classLink = 1, .grade = ""});
    const GradeList list = ComputeGradeList(s);
    EXPECT_EQ(list.GPATotalText, "");
    EXPECT_EQ(list.Entries, (std::vector<std::string>{"GPA", "Total ", "Introduction  ", "Art ", "Math "}));
}

TEST_F(GradeListTest, UnknownGradesCountZeroPointsAtTheirFullWeight) {
    addAssignment(s, {.classLink = 3, .grade = "A", .weight = "30"});
    addAssignment(s, {.classLink = 3, .grade = "Pass", .weight = "10"});  // 120 / 40
    const GradeList list = ComputeGradeList(s);
    EXPECT_EQ(list.GPATexts(3), "3.00 (B)  ");
    EXPECT_EQ(list.GPATotalText, "3.00 (B)  ");
}

TEST_F(GradeListTest, TheWindowsListReadsGpaWhenClosed) {
    ListWindow window(Mode::Homework);
    window.store = s;
    addAssignment(window.store, {.classLink = 2, .grade = "A"});
    window.window.UpdateGradeList();
    const Control& combo = window.window.c("ComboGPA");
    EXPECT_EQ(combo.listIndex, 0);
    EXPECT_EQ(combo.text, "GPA");
    ASSERT_EQ(combo.items.size(), 5u);
    EXPECT_EQ(combo.items[1], "Total 4.00 (A)  ");
    EXPECT_EQ(combo.items[3], "Art 4.00 (A)  ");
}

}  // namespace
}  // namespace qh
