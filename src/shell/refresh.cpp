// The one display refresh: by reason and by the ticked mode, a fixed series of steps.
#include <map>

#include "shell/main_window.h"

namespace qh {
namespace {

// The steps of each reason per mode, in the order Homework, Study Sessions, Tasks,
// Events, Reminders. R returns to the shown date, M forces the month to be new, Y selects
// today, C builds the calendar, P lays out the grid, L builds the list, G refills the
// grade list, T works out the study time for the selected date.
const std::map<std::string, std::array<const char*, 5>>& refreshTable() {
    static const std::map<std::string, std::array<const char*, 5>> table{
        {"Mode Change", {"PRCLG", "PRCLG", "PRCL", "PRCL", "PMYLCT"}},
        {"ViewChange", {"RCPL", "RCPL", "RCPL", "RCPL", "RPLCT"}},
        {"Calendar", {"CPL", "CPL", "CPL", "CPL", "MPLCT"}},
        {"StartDayofWeek", {"RC", "RC", "RC", "RC", "RC"}},
        {"NewRecord", {"RCPLG", "RCPLG", "RCPL", "RCPL", "RPLCT"}},
        {"NewTerm", {"RCPLG", "RCPLG", "", "", ""}},
        {"Resize", {"PL", "PL", "PL", "PL", "PL"}},
    };
    return table;
}

}  // namespace

Mode MainWindow::CurrentMode() const {
    if (c("MenuHomework").checked) return Mode::Homework;
    if (c("MenuStudySessions").checked) return Mode::StudySessions;
    if (c("MenuTasks").checked) return Mode::Tasks;
    if (c("MenuEvents").checked) return Mode::Events;
    if (c("MenuReminders").checked) return Mode::Reminders;
    return Mode::None;
}

void MainWindow::Refresh(const std::string& reason) {
    state.RefreshReason = reason;
    RefreshDisplay();
}

void MainWindow::RefreshDisplay() {
    lastRefreshSteps_.clear();
    const Mode mode = CurrentMode();
    const auto& table = refreshTable();
    const auto row = table.find(state.RefreshReason);
    if (mode != Mode::None && row != table.end()) {
        const std::string steps = row->second[std::size_t(int(mode) - 1)];
        for (char step : steps) {
            lastRefreshSteps_ += step;
            switch (step) {
                case 'R':
                    state.ClickedDate = state.DisplayedDate;
                    state.DisplayedMonth = 13;
                    break;
                case 'M': state.DisplayedMonth = 13; break;
                case 'Y': state.ClickedDate = platform.clock.today(); break;
                case 'C':
                    BuildCalendar();
                    // The calendar shows before a long list is built; no click gets in
                    // between, the refresh is one piece of work.
                    platform.windowing.paintPending();
                    break;
                case 'P': LayoutGrid(mode); break;
                case 'L': BuildList(mode); break;
                case 'G': UpdateGradeList(); break;
                case 'T': UpdateStudyTimeToday(state.ClickedDate); break;
                default: break;
            }
        }
    }
    state.RefreshReason = "None";
}

void MainWindow::TintViewPanel() {
    static const std::map<std::string, std::string MainWindowColors::*> tints{
        {"All", &MainWindowColors::TintBlue},       {"Done", &MainWindowColors::TintGreen},
        {"Not Done", &MainWindowColors::TintPink},  {"Classes", &MainWindowColors::TintTan},
        {"Other Events", &MainWindowColors::TintGreen}, {"Homework", &MainWindowColors::TintPink},
        {"Tasks", &MainWindowColors::TintTan},      {"Events", &MainWindowColors::TintGreen},
    };
    const auto tint = tints.find(c("ComboList").text);
    if (tint != tints.end()) c("PictureBoxViewMenus").backColor = colorFromText(state.Colors.*(tint->second));
}

}  // namespace qh
