// The one display refresh: by reason and by the ticked mode, a fixed series of steps.
#include <array>
#include <initializer_list>
#include <map>

#include "shell/main_window.h"

namespace qh {
namespace {

using S = RefreshStep;

// The steps of one reason in one mode, in order; at most six.
struct StepList {
    std::array<RefreshStep, 6> steps{};
    std::size_t count = 0;
    constexpr StepList() = default;
    constexpr StepList(std::initializer_list<RefreshStep> list) {
        for (RefreshStep step : list) steps[count++] = step;
    }
};

// Each reason's steps per mode, in the order Homework, Study Sessions, Tasks, Events,
// Reminders. The Reminders list is of the selected day, so it goes to today where the
// others return to the shown date, and it works out the study time after the list.
using ReasonSteps = std::array<StepList, kModeCount>;
constexpr std::array<ReasonSteps, kRefreshReasonCount> kRefreshSteps = [] {
    const StepList modeChangeLists{S::LayoutGrid, S::ReturnToShownDate, S::BuildCalendar, S::BuildList};
    const StepList modeChangeGrades{S::LayoutGrid,   S::ReturnToShownDate, S::BuildCalendar, S::BuildList,
                                    S::FillGradeList};
    const StepList view{S::ReturnToShownDate, S::BuildCalendar, S::LayoutGrid, S::BuildList};
    const StepList reminders{S::ReturnToShownDate, S::LayoutGrid, S::BuildList, S::BuildCalendar,
                             S::WorkOutStudyTime};
    const StepList calendar{S::BuildCalendar, S::LayoutGrid, S::BuildList};
    const StepList startDay{S::ReturnToShownDate, S::BuildCalendar};
    const StepList newRecordGrades{S::ReturnToShownDate, S::BuildCalendar, S::LayoutGrid, S::BuildList,
                                   S::FillGradeList};
    const StepList resize{S::LayoutGrid, S::BuildList};
    std::array<ReasonSteps, kRefreshReasonCount> table{};
    table[std::size_t(RefreshReason::ModeChange)] = {
        modeChangeGrades, modeChangeGrades, modeChangeLists, modeChangeLists,
        StepList{S::LayoutGrid, S::NewMonth, S::SelectToday, S::BuildList, S::BuildCalendar, S::WorkOutStudyTime}};
    table[std::size_t(RefreshReason::ViewChange)] = {view, view, view, view, reminders};
    table[std::size_t(RefreshReason::Calendar)] = {
        calendar, calendar, calendar, calendar,
        StepList{S::NewMonth, S::LayoutGrid, S::BuildList, S::BuildCalendar, S::WorkOutStudyTime}};
    table[std::size_t(RefreshReason::StartDayOfWeek)] = {startDay, startDay, startDay, startDay, startDay};
    table[std::size_t(RefreshReason::NewRecord)] = {newRecordGrades, newRecordGrades, view, view, reminders};
    // A new term changes only what the term's classes show.
    table[std::size_t(RefreshReason::NewTerm)] = {newRecordGrades, newRecordGrades, {}, {}, {}};
    table[std::size_t(RefreshReason::Resize)] = {resize, resize, resize, resize, resize};
    return table;
}();

}  // namespace

Mode MainWindow::CurrentMode() const { return state.CurrentMode; }

void MainWindow::Refresh(RefreshReason reason) {
    state.Refreshing = reason;
    RefreshDisplay();
}

void MainWindow::RefreshDisplay() {
    lastRefreshSteps_.clear();
    lastRefreshReason_ = state.Refreshing;
    const Mode mode = CurrentMode();
    if (mode != Mode::None) {
        const StepList& list = kRefreshSteps[std::size_t(state.Refreshing)][std::size_t(mode) - 1];
        for (std::size_t i = 0; i < list.count; ++i) {
            const RefreshStep step = list.steps[i];
            lastRefreshSteps_.push_back(step);
            switch (step) {
                case S::ReturnToShownDate:
                    state.ClickedDate = state.DisplayedDate;
                    state.DisplayedMonth = 13;
                    break;
                case S::NewMonth: state.DisplayedMonth = 13; break;
                case S::SelectToday: state.ClickedDate = platform.clock.today(); break;
                case S::BuildCalendar:
                    BuildCalendar();
                    // The calendar shows before a long list is built; no click gets in
                    // between, the refresh is one piece of work.
                    platform.windowing.paintPending();
                    break;
                case S::LayoutGrid: LayoutGrid(mode); break;
                case S::BuildList: BuildList(mode); break;
                case S::FillGradeList: UpdateGradeList(); break;
                case S::WorkOutStudyTime: UpdateStudyTimeToday(state.ClickedDate); break;
            }
        }
    }
    state.Refreshing = RefreshReason::None;
}

void MainWindow::TintViewPanel() {
    static const std::map<std::string, std::string MainWindowColors::*> tints{
        {"All", &MainWindowColors::TintBlue},       {"Done", &MainWindowColors::TintGreen},
        {"Not Done", &MainWindowColors::TintPink},  {"Classes", &MainWindowColors::TintTan},
        {"Other Events", &MainWindowColors::TintGreen}, {"Homework", &MainWindowColors::TintPink},
        {"Tasks", &MainWindowColors::TintTan},      {"Events", &MainWindowColors::TintGreen},
    };
    const auto tint = tints.find(ui.ComboList->text);
    if (tint != tints.end()) ui.PictureBoxViewMenus->backColor = colorFromText(state.Colors.*(tint->second));
}

}  // namespace qh
