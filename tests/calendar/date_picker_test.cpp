#include "calendar/date_picker.h"

#include <gtest/gtest.h>

#include "platform/fake/fake_platform.h"
#include "support/calendar_bounds.h"

namespace qh {
namespace {

// A window with two date fields, as the editors have them.
class TwoDates : public Form, public DatePickerOwner {
public:
    explicit TwoDates(Platform& platform) : Form("frmTwoDates") {
        add(ControlKind::TextBox, "TextboxFrom", "", 240, 600, 2400, 315).locked = true;
        add(ControlKind::TextBox, "TextboxTo", "", 3720, 600, 2400, 315).locked = true;
        add(ControlKind::CommandButton, "ButtonOK", "", 240, 4000, 1000, 375);
        picker.emplace(*this, platform, *this, [this] { return startDay; }, DateField{"TextboxFrom", "", 240, 1275},
                       DateField{"TextboxTo", "", 3720, 1275});
        bindControls();
    }
    void Form_Activate() override { picker->reset(); }
    void Form_MouseDown(const std::string& key) override { picker->windowPressed(key); }
    Date pickerFieldDate(bool first) override { return first ? from : to; }
    void pickerWroteDate(bool first, Date date) override {
        (first ? from : to) = date;
        ++changes;
    }
    // Lets the 100 ms guard run out, as the time between two clicks of a person does.
    void later() { tick("TimerCalendar"); }

    std::optional<DatePicker> picker;
    std::string startDay = "Monday";
    Date from = dateFromYmd(2026, 11, 21), to = dateFromYmd(2027, 1, 31);
    int changes = 0;
};

TEST(DatePicker, OpensAtItsFieldPicksClosesAndCannotReopenFromTheSameClick) {
    FakePlatform fake;
    fake.clock.set(2026, 11, 25);
    TwoDates window(fake.platform);
    fake.windowing.show(window);
    DatePicker& picker = *window.picker;
    window.later();

    window.click("TextboxTo");
    ASSERT_TRUE(picker.visible());
    EXPECT_EQ(window.c("picCalendar").left, 3720);
    EXPECT_EQ(window.focusedControl, "picCalendar");
    EXPECT_EQ(window.c("LabelMonth").caption, "January 2027");
    // Pressing the field again: the press closes it, the click does not reopen it.
    window.click("TextboxTo");
    EXPECT_FALSE(picker.visible());
    window.click("TextboxTo");
    EXPECT_FALSE(picker.visible());
    window.later();
    window.click("TextboxTo");
    EXPECT_TRUE(picker.visible());
    // The month arrow steps from the date shown; a grey cell of the next month picks it.
    window.press("LabelCalMonthUp");
    window.tick("TimerButton");
    window.release("LabelCalMonthUp");
    EXPECT_EQ(window.c("LabelMonth").caption, "March 2027");
    EXPECT_EQ(window.c("picCalMonthUp").picture, "CalMonthRightUp");
    const int april2 = CellForDate(picker.cells().firstCell, dateFromYmd(2027, 4, 2));
    window.click("LabelCalDate(" + std::to_string(april2) + ")");
    EXPECT_EQ(window.to, dateFromYmd(2027, 4, 2));
    EXPECT_EQ(window.c("TextboxTo").text, "Friday, April 2, 2027");
    EXPECT_FALSE(picker.visible());

    // The first field opens at its own place; Today and Tomorrow pick 42 and 45; a press
    // elsewhere and the focus leaving close it without a pick.
    const struct {
        const char* action;
        Date from;
    } cases[] = {{"LabelToday", dateFromYmd(2026, 11, 25)},
                 {"LabelTomorrow", dateFromYmd(2026, 11, 26)},
                 {"ButtonOK", dateFromYmd(2026, 11, 26)},
                 {"focus", dateFromYmd(2026, 11, 26)}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.action);
        window.later();
        window.click("TextboxFrom");
        ASSERT_TRUE(picker.visible());
        EXPECT_EQ(window.c("picCalendar").left, 240);
        if (std::string(c.action) == "focus")
            window.focusTo("TextboxTo");
        else
            window.click(c.action);
        EXPECT_FALSE(picker.visible());
        EXPECT_EQ(window.from, c.from);
    }
    EXPECT_EQ(window.changes, 3);
}

TEST(DatePicker, HeadersFollowTheStartDayAtEachShowing) {
    FakePlatform fake;
    TwoDates window(fake.platform);
    std::string headers;
    for (const char* day : {"Monday", "Sunday", "Saturday"}) {
        window.startDay = day;
        fake.windowing.show(window);
        for (int i = 0; i < 7; ++i) headers += window.c("LabelCalDay", i).caption;
        headers += " ";
    }
    EXPECT_EQ(headers, "MTWTFSS SMTWTFS SSMTWTF ");
}

// The picker's arrows beyond 1600 or 3100 show the month asked for, caption and grid
// alike; the date picked from there is the bound.
TEST(DatePicker, AStepBeyondTheBoundsShowsTheMonthAskedForWithTheDateAtTheBound) {
    FakePlatform fake;
    fake.clock.set(2026, 11, 25);
    TwoDates window(fake.platform);
    for (const test::CalendarBoundCase& c : test::kCalendarBoundCases) {
        SCOPED_TRACE(std::string(c.startDay) + " " + c.caption);
        window.startDay = c.startDay;
        fake.windowing.show(window);
        window.later();
        window.from = dateFromYmd(c.from.year, c.from.month, c.from.day);
        window.click("TextboxFrom");
        const char* arrow = c.forward ? "LabelCalMonthUp" : "LabelCalMonthDown";
        window.press(arrow);
        window.tick("TimerButton");
        window.release(arrow);
        test::expectCalendarBeyondBound(window, c);
        window.click("LabelCalDate(" + std::to_string(c.selected) + ")");
        EXPECT_EQ(ymdOf(window.from), c.held);
        window.hide();
    }
}

}  // namespace
}  // namespace qh
