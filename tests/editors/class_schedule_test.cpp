// The term window's pieces a script cannot see: the colour grid's geometry and key steps,
// and the editors' life beside the main window. What the windows show, ask and save is in
// the probe scripts term_schedule_saves, term_schedule_checks, term_window_class_panel and
// new_term_names_its_season.
#include <gtest/gtest.h>

#include "editors/editor_windows.h"
#include "editors/frm_course_schedule.h"
#include "support/main_window_fixture.h"

namespace qh {
namespace {

// The grid's hit function and its inverse agree on every colour, and miss outside; the
// keyboard's ring stays inside the grid.
TEST(ClassSchedule, ColorGridCellsRoundTripAndTheRingStaysInside) {
    for (int n = 1; n <= 140; ++n) {
        const auto [x, y] = ColorGridCellOrigin(n);
        EXPECT_EQ(ColorGridCellAt(x, y), n);
        EXPECT_EQ(ColorGridCellAt(x + 149, y + 149), n);
    }
    EXPECT_EQ(ColorGridCellOrigin(15), (std::pair<int, int>{0, 150}));
    EXPECT_EQ(ColorGridCellAt(14 * 150, 0), 0);
    EXPECT_EQ(ColorGridCellAt(0, 10 * 150), 0);
    EXPECT_EQ(ColorGridCellAt(-1, 0), 0);
    EXPECT_EQ(ColorGridKeyStep(1, kKeyLeft), 1);
    EXPECT_EQ(ColorGridKeyStep(14, kKeyRight), 15);
    EXPECT_EQ(ColorGridKeyStep(130, kKeyDown), 130);
    EXPECT_EQ(ColorGridKeyStep(5, kKeyUp), 5);
    EXPECT_EQ(ColorGridKeyStep(70, kKeyEnd), 140);
}

// The five editors are loaded hidden with the main window, in their order, and closed
// last first when it unloads, whatever they would answer their close box.
TEST(ClassSchedule, EditorsLiveFromTheLoadToTheUnload) {
    LoadedMainWindow schedule;
    schedule.load();
    std::string names;
    for (const Form* editor : schedule.window->editors->windows()) {
        names += editor->name() + (editor->visible ? "+ " : " ");
    }
    EXPECT_EQ(names, "frmAssignment frmSelectCourseSchedule frmCourseSchedule FrmTask frmEvent ");
    schedule.fake.windowing.log.clear();
    schedule.fake.windowing.close(*schedule.window, UnloadMode::Code);
    EXPECT_EQ(schedule.fake.windowing.log,
              (std::vector<std::string>{"close frmEvent", "close FrmTask", "close frmCourseSchedule",
                                        "close frmSelectCourseSchedule", "close frmAssignment", "close frmMain"}));
}

}  // namespace
}  // namespace qh
