#include <gtest/gtest.h>

#include "support/main_window_fixture.h"

namespace qh {
namespace {

class TermPanel : public ::testing::Test {
protected:
    LoadedMainWindow main;
    MainWindow& load() {
        main.putDataFile("Terms.txt", termRecord(1, "Fall 2026", "2026/08/20", "2026/11/22") +
                                          termRecord(2, "Winter", "2027/01/05", "2027/03/20") +
                                          termRecord(3, "DELETED RECORD", "2027/04/01", "2027/06/01"));
        main.putDataFile("Classes.txt", classRecord(1, 1, "Algebra") + classRecord(2, 2, "Biology") +
                                            classRecord(3, 3, "Gone"));
        main.putDataFile("Assignments.txt", assignmentRecord(1, 1, "2026/11/21", "Fall work", false) +
                                                assignmentRecord(2, 2, "2027/01/10", "Winter work", false) +
                                                assignmentRecord(3, 3, "2027/04/10", "Gone work", false));
        return main.load();
    }
};

TEST_F(TermPanel, WithoutAPreferenceTheNewestLiveTermOpensAndSelectingATermReadsItsWork) {
    MainWindow& window = load();
    EXPECT_EQ(main.store.CurrentTermName, "Winter");
    EXPECT_EQ(main.store.CurrentTermID, 2);
    EXPECT_EQ(window.ui.LabelTerm->caption, "Winter");
    EXPECT_EQ(window.ui.LabelDaysLeft->caption, "119 Days Left in Term");
    ASSERT_EQ(main.store.AssignmentDescriptions.count(), 1);
    EXPECT_EQ(main.store.AssignmentDescriptions(1), "Winter work");

    window.SelectTerm("Fall 2026");
    ASSERT_EQ(main.store.AssignmentDescriptions.count(), 1);
    EXPECT_EQ(main.store.AssignmentDescriptions(1), "Fall work");
    EXPECT_EQ(window.lastRefreshReason(), RefreshReason::NewTerm);

    // Naming the tombstone selects it and reads nothing.
    window.SelectTerm("DELETED RECORD");
    EXPECT_EQ(window.ui.LabelTerm->caption, "No Term Selected");
    EXPECT_EQ(window.ui.LabelDaysLeft->caption, "");
    EXPECT_EQ(main.store.AssignmentRecordNos.count(), 0);
}

TEST_F(TermPanel, CountsTheDaysLeftAroundTheTermsEnd) {
    MainWindow& window = load();
    const struct {
        Ymd today;
        const char* shown;
    } cases[] = {{{2026, 11, 20}, "2 Days Left in Term"},
                 {{2026, 11, 21}, "1 Day Left in Term"},
                 {{2026, 11, 22}, "0 Days Left in Term"},
                 {{2027, 2, 1}, "0 Days Left in Term"}};
    for (const auto& c : cases) {
        main.fake.clock.set(c.today.year, c.today.month, c.today.day);
        window.SelectTerm("Fall 2026");
        EXPECT_EQ(window.ui.LabelDaysLeft->caption, c.shown);
    }
}

}  // namespace
}  // namespace qh
