#pragma once
// Why the main window's display is refreshed; each reason runs its own series of steps
// per mode (shell/refresh.cpp). None means no refresh is under way, so the combos may
// start one.
#include <cstddef>

namespace qh {

enum class RefreshReason { None, ModeChange, ViewChange, Calendar, StartDayOfWeek, NewRecord, NewTerm, Resize };
inline constexpr std::size_t kRefreshReasonCount = std::size_t(RefreshReason::Resize) + 1;

// The steps a refresh is made of.
enum class RefreshStep {
    ReturnToShownDate,  // the selected date goes back to the shown one, and the month is new
    NewMonth,           // the month is built anew even if it is the one shown
    SelectToday,        // today becomes the selected date
    BuildCalendar,
    LayoutGrid,
    BuildList,
    FillGradeList,
    WorkOutStudyTime,  // the study time panel, for the selected date
};

}  // namespace qh
