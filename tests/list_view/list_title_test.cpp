// The title over each list: the day, the range's last date or the term, and blank where
// a list of the term has no term.
#include <gtest/gtest.h>

#include "list_view/list_fixture.h"

namespace qh {
namespace {

using testing::ListWindow;

TEST(ListTitle, NamesTheDayTheRangeOrTheTermOfEachList) {
    const struct {
        Mode mode;
        const char* range;
        bool term;
        const char* title;
    } titles[] = {
        {Mode::Homework, "Day", true, "Homework for Saturday, November 21, 2026"},
        {Mode::Homework, "Term", true, "Homework for Fall 2026"},
        {Mode::Homework, "Day", false, ""},
        {Mode::Homework, "Term", false, ""},
        {Mode::StudySessions, "Day", true, "Study on Saturday, November 21, 2026"},
        {Mode::StudySessions, "Term", true, "Study for Fall 2026"},
        {Mode::StudySessions, "Day", false, ""},
        {Mode::Tasks, "All", false, "All Tasks"},
        {Mode::Tasks, "With Date", false, "All Tasks with Dates"},
        {Mode::Tasks, "Without Date", false, "All Tasks without Dates"},
        {Mode::Tasks, "Day", false, "Tasks for Saturday, November 21, 2026"},
        {Mode::Events, "Day", false, "Events for Saturday, November 21, 2026"},
        {Mode::Events, "Week", false, "Events until Saturday, November 28, 2026"},  // eight dates
        {Mode::Events, "Month", false, "Events until Monday, December 21, 2026"},
        {Mode::Events, "Year", false, "Events until Saturday, November 20, 2027"},  // a day short of a year
        {Mode::Reminders, "Today", false, "Reminders for Saturday, November 21, 2026"},
    };
    for (const auto& t : titles) {
        ListWindow list(t.mode);
        if (t.term) list.store.CurrentTermName = "Fall 2026";
        list.filters("All", t.range);
        list.build();
        EXPECT_EQ(list.window.c("LabelTop").caption, t.title) << int(t.mode) << " " << t.range << " " << t.term;
    }
}

}  // namespace
}  // namespace qh
