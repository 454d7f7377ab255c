// The main window's study time panel: how much to study on a date, worked out in grades/,
// shown in the Minimum and Suggested boxes with the box that rules the day in pink.
#include "grades/study_time.h"
#include "list_view/list_rows.h"
#include "list_view/time_text.h"
#include "shell/main_window.h"

namespace qh {

void MainWindow::UpdateStudyTimeToday(Date date) {
    const StudyAdvice advice = AdviseStudy(GatherStudyLoad(store), date);
    const long long m = advice.minimum, s = advice.suggested;
    Control& minimum = *ui.TextBoxMinimum;
    Control& suggested = *ui.TextBoxSuggested;
    minimum.text = TimeForm(m);
    suggested.text = TimeForm(s >= m ? s : m);
    // The pink box is the one that rules the day.
    const bool suggestionRules = s > m;
    const bool nothing = s == 0 && m == 0;
    minimum.backColor = nothing || suggestionRules ? kWhite : kOpenWorkPink;
    suggested.backColor = !nothing && suggestionRules ? kOpenWorkPink : kWhite;
}

}  // namespace qh
