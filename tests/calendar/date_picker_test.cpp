#include "calendar/date_picker.h"

#include <gtest/gtest.h>

#include "platform/fake/fake_platform.h"

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

// Where the pop-up opens and the arrow's picture, which the probe does not print. What it
// shows and picks, its day headers and its bounds are the probe script
// date_picker_of_an_editor.
TEST(DatePicker, OpensAtItsOwnFieldAndItsArrowRisesAgainOnRelease) {
    FakePlatform fake;
    fake.clock.set(2026, 11, 25);
    TwoDates window(fake.platform);
    fake.windowing.show(window);
    DatePicker& picker = *window.picker;
    window.later();
    window.click("TextboxTo");
    ASSERT_TRUE(picker.visible());
    EXPECT_EQ(window.c("picCalendar").left, 3720);
    window.press("LabelCalMonthUp");
    EXPECT_EQ(window.c("picCalMonthUp").picture, "CalMonthRightDown");
    window.release("LabelCalMonthUp");
    EXPECT_EQ(window.c("picCalMonthUp").picture, "CalMonthRightUp");
    window.click("ButtonOK");
    window.later();
    window.click("TextboxFrom");
    ASSERT_TRUE(picker.visible());
    EXPECT_EQ(window.c("picCalendar").left, 240);
}

}  // namespace
}  // namespace qh
