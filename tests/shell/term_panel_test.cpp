#include <gtest/gtest.h>

#include "support/main_window_fixture.h"

namespace qh {
namespace {

class TermPanel : public ::testing::Test {
protected:
    LoadedMainWindow main;
    void putTerms() {
        main.putDataFile("Terms.txt", termRecord(1, "Fall 2026", "2026/08/20", "2026/11/22") +
                                          termRecord(2, "Winter", "2027/01/05", "2027/03/20") +
                                          termRecord(3, "DELETED RECORD", "2027/04/01", "2027/06/01"));
    }
};

TEST_F(TermPanel, WithoutAPreferenceTheNewestLiveTermOpens) {
    putTerms();
    MainWindow& window = main.load();
    EXPECT_EQ(main.store.CurrentTermName, "Winter");
    EXPECT_EQ(main.store.CurrentTermID, 2);
    EXPECT_EQ(window.c("LabelTerm").caption, "Winter");
    EXPECT_EQ(window.c("LabelDaysLeft").caption, "119 Days Left in Term");
}

TEST_F(TermPanel, CountsTheDaysLeftAroundTheTermsEnd) {
    putTerms();
    MainWindow& window = main.load();
    window.SelectTerm("Fall 2026");
    EXPECT_EQ(window.c("LabelDaysLeft").caption, "1 Day Left in Term");
    main.fake.clock.set(2026, 11, 22);
    window.SelectTerm("Fall 2026");
    EXPECT_EQ(window.c("LabelDaysLeft").caption, "0 Days Left in Term");
    main.fake.clock.set(2027, 2, 1);
    window.SelectTerm("Fall 2026");
    EXPECT_EQ(window.c("LabelDaysLeft").caption, "0 Days Left in Term");
    main.fake.clock.set(2026, 11, 20);
    window.SelectTerm("Fall 2026");
    EXPECT_EQ(window.c("LabelDaysLeft").caption, "2 Days Left in Term");
}

TEST_F(TermPanel, NamingTheTombstoneSelectsItAndReadsNothing) {
    putTerms();
    main.putDataFile("Classes.txt", classRecord(1, 3, "Gone"));
    MainWindow& window = main.load();
    window.SelectTerm("DELETED RECORD");
    EXPECT_EQ(window.c("LabelTerm").caption, "No Term Selected");
    EXPECT_EQ(window.c("LabelDaysLeft").caption, "");
    EXPECT_EQ(main.store.AssignmentRecordNos.count(), 0);
}

TEST_F(TermPanel, SelectingATermReadsItsAssignmentsAndRefreshes) {
    putTerms();
    main.putDataFile("Classes.txt", classRecord(1, 1, "Algebra") + classRecord(2, 2, "Biology"));
    main.putDataFile("Assignments.txt", assignmentRecord(1, 1, "2026/11/21", "Fall work", false) +
                                            assignmentRecord(2, 2, "2027/01/10", "Winter work", false));
    MainWindow& window = main.load();
    ASSERT_EQ(main.store.AssignmentDescriptions.count(), 1);
    EXPECT_EQ(main.store.AssignmentDescriptions(1), "Winter work");
    window.SelectTerm("Fall 2026");
    ASSERT_EQ(main.store.AssignmentDescriptions.count(), 1);
    EXPECT_EQ(main.store.AssignmentDescriptions(1), "Fall work");
    EXPECT_EQ(window.lastRefreshSteps(), "RCPLG");
}

TEST(StatusBar, ShowsTheModeAndTheDateAndTimeInASunkenFrame) {
    LoadedMainWindow main;
    MainWindow& window = main.load();
    const auto& canvas = static_cast<const RecordingCanvas&>(*window.c("picStatusBar").canvas);
    const auto texts = canvas.texts();
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_EQ(texts[0], "Homework Mode");
    EXPECT_EQ(texts[1], "Saturday, November 21, 2026      09:05 PM");
    // The right text ends 150 twips from the right edge.
    const CanvasCall& right = canvas.calls().back();
    EXPECT_EQ(right.x2, canvas.scaleWidth() - 150);
    int shadowLines = 0, lightLines = 0;
    for (const CanvasCall& call : canvas.calls()) {
        if (call.kind != CanvasCall::Line) continue;
        if (call.color == rgb(160, 160, 160)) ++shadowLines;
        if (call.color == kWhite) ++lightLines;
    }
    EXPECT_EQ(shadowLines, 2);
    EXPECT_EQ(lightLines, 2);
    main.fake.clock.advanceSeconds(60);
    window.tick("TimerStatusBar");
    EXPECT_EQ(canvas.texts()[1], "Saturday, November 21, 2026      09:06 PM");
}

}  // namespace
}  // namespace qh
