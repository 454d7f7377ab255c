#include <gtest/gtest.h>

#include "support/main_window_fixture.h"

namespace qh {
namespace {

// Naming the deleted term's tombstone (a preference can) selects no term and reads none
// of the work, not even the tombstone's own. The term chosen without a preference, the
// work read for each term and the days left are the probe script
// term_panel_active_term_and_days_left's.
TEST(TermPanel, NamingTheDeletedTermSelectsNoTermAndReadsNoWork) {
    LoadedMainWindow main;
    main.putDataFile("Terms.txt", termRecord(1, "Fall 2026", "2026/08/20", "2026/11/22") +
                                      termRecord(2, "DELETED RECORD", "2027/04/01", "2027/06/01"));
    main.putDataFile("Classes.txt", classRecord(1, 1, "Algebra") + classRecord(2, 2, "Gone"));
    main.putDataFile("Assignments.txt", assignmentRecord(1, 1, "2026/11/21", "Fall work", false) +
                                            assignmentRecord(2, 2, "2027/04/10", "Gone work", false));
    MainWindow& window = main.load();
    ASSERT_EQ(main.store.AssignmentRecordNos.count(), 1);
    window.SelectTerm("DELETED RECORD");
    EXPECT_EQ(window.ui.LabelTerm->caption, "No Term Selected");
    EXPECT_EQ(window.ui.LabelDaysLeft->caption, "");
    EXPECT_EQ(main.store.AssignmentRecordNos.count(), 0);
}

}  // namespace
}  // namespace qh
