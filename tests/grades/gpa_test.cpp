#include "grades/gpa.h"

#include <gtest/gtest.h>

#include <tuple>

#include "list_view/list_fixture.h"

namespace qh {
namespace {

using namespace qh::testing;

TEST(GradeRules, PointsWeightsLettersAndHundredths) {
    const std::pair<const char*, float> points[] = {{"A", 4.0f}, {"A-", 3.7f}, {"C+", 2.3f}, {"E+", 0.3f},
                                                    {"E", 0},    {"a", 0},     {"A+", 0},    {" A", 0}};
    for (const auto& [grade, p] : points) EXPECT_FLOAT_EQ(GradePoints(grade), p) << grade;
    // Numbers from 1 to 100 count; anything else weighs 5.
    const std::pair<const char*, float> weights[] = {{"1", 1},   {"100", 100}, {" 20 ", 20}, {"2.5", 2.5f},
                                                     {"0", 5},   {"101", 5},   {"abc", 5},   {"", 5},
                                                     {"-5", 5},  {"0.5", 5},   {"12abc", 5}};
    for (const auto& [weight, w] : weights) EXPECT_EQ(GradeWeight(weight), w) << '"' << weight << '"';
    // The class test includes the threshold, the term test does not.
    const std::tuple<float, const char*, const char*> labels[] = {
        {4.0f, " (A)  ", " (A)  "},      {3.8f, " (A)  ", " (A-)  "}, {3.796f, " (A-)  ", " (A-)  "},
        {2.75f, " (B-)  ", " (B-)  "}, {0.2f, " (E+)  ", " (E)  "}, {0.0f, " (E)  ", " (E)  "}};
    for (const auto& [average, classLabel, termLabel] : labels) {
        EXPECT_EQ(ClassGradeLabel(average), classLabel) << average;
        EXPECT_EQ(TermGradeLabel(average), termLabel) << average;
    }
    // Half away from zero on the decimal text of 7 or 15 significant digits.
    const std::tuple<double, int, const char*> hundredths[] = {
        {3.125, 7, "3.13"},  {double(3.796f), 7, "3.80"}, {double(2.675f), 7, "2.68"},  // 2.67499995 as a double
        {0.0, 15, "0.00"},   {0.004, 15, "0.00"},         {0.005, 15, "0.01"},
        {9.999, 15, "10.00"}};
    for (const auto& [value, digits, text] : hundredths) EXPECT_EQ(FormatHundredths(value, digits), text) << value;
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
    // (2.75 + 3.7) / 2 = 3.225, shown 3.23: above 3.2, so B+.
    EXPECT_EQ(list.Entries, (std::vector<std::string>{"GPA", "Total 3.23 (B+)  ", "Introduction  2.75 (B-)  ", "Art ",
                                                      "Math 3.70 (A-)  "}));
}

TEST_F(GradeListTest, TheWindowsListReadsGpaWhenClosedAndATermWithoutGradesShowsTotalAlone) {
    ListWindow window(Mode::Homework);
    window.store = s;
    const Control& combo = *window.window.ui.ComboGPA;
    addAssignment(window.store, {.classLink = 1, .grade = ""});
    window.window.UpdateGradeList();
    EXPECT_EQ(combo.items, (std::vector<std::string>{"GPA", "Total ", "Introduction  ", "Art ", "Math "}));

    addAssignment(window.store, {.classLink = 2, .grade = "A"});
    window.window.UpdateGradeList();
    EXPECT_EQ(combo.listIndex, 0);
    EXPECT_EQ(combo.text, "GPA");
    EXPECT_EQ(combo.items,
              (std::vector<std::string>{"GPA", "Total 4.00 (A)  ", "Introduction  ", "Art 4.00 (A)  ", "Math "}));
}

}  // namespace
}  // namespace qh
