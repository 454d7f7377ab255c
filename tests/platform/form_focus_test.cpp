// Where the keyboard may go: Tab visits only what the student can see and use, and the
// arrows choose inside a group of radio buttons while Tab leaves the group.
#include <gtest/gtest.h>

#include <functional>

#include "platform/form.h"

namespace qh {
namespace {

// A window of 6000 x 4000 twips: a box, a frame of three radio buttons, two panels
// stacked in one place (the later in front), a button in a frame lying partly beyond the
// frame's edge, and a button below the window's edge.
class PanelsWindow : public Form {
public:
    PanelsWindow() : Form("frmPanels") {
        scaleWidth = 6000;
        scaleHeight = 4000;
        add(ControlKind::TextBox, "TextBoxName", "", 100, 100, 2000, 300);
        add(ControlKind::Frame, "FrameRepeat", "", 100, 600, 2000, 1300);
        for (int i = 0; i < 3; ++i)
            add(ControlKind::RadioButton, std::string("Radio") + "ABC"[i], "FrameRepeat", 100, 200 + 350 * i, 1500, 300);
        add(ControlKind::Frame, "FrameBack", "", 2500, 600, 2000, 1300);
        add(ControlKind::CommandButton, "ButtonBack", "FrameBack", 100, 200, 1000, 375);
        add(ControlKind::Frame, "FrameFront", "", 2500, 600, 2000, 1300);
        add(ControlKind::CommandButton, "ButtonFront", "FrameFront", 100, 200, 1000, 375);
        add(ControlKind::Frame, "FrameShort", "", 100, 2200, 3000, 500);
        add(ControlKind::CommandButton, "ButtonSeen", "FrameShort", 100, 50, 1000, 375);
        add(ControlKind::CommandButton, "ButtonCut", "FrameShort", 1200, 350, 1000, 375);
        add(ControlKind::CommandButton, "ButtonOK", "", 100, 3400, 1000, 375);
        add(ControlKind::CommandButton, "ButtonBelow", "", 100, 4100, 1000, 375);
    }
};

TEST(FormFocus, TabVisitsOnlyWhatTheStudentCanSeeAndUse) {
    const struct {
        const char* what;
        std::function<void(Form&)> change;
        std::vector<std::string> order;
    } cases[] = {
        {"as built: the back panel, the cut and the low button are out of reach", [](Form&) {},
         {"TextBoxName", "RadioA", "ButtonFront", "ButtonSeen", "ButtonOK"}},
        {"the back panel brought to the front", [](Form& f) { f.bringToFront("FrameBack"); },
         {"TextBoxName", "RadioA", "ButtonBack", "ButtonSeen", "ButtonOK"}},
        {"the front panel hidden", [](Form& f) { f.c("FrameFront").visible = false; },
         {"TextBoxName", "RadioA", "ButtonBack", "ButtonSeen", "ButtonOK"}},
        {"a disabled frame and button", [](Form& f) { f.c("FrameRepeat").enabled = f.c("ButtonOK").enabled = false; },
         {"TextBoxName", "ButtonFront", "ButtonSeen"}},
        {"a hidden box", [](Form& f) { f.c("TextBoxName").visible = false; },
         {"RadioA", "ButtonFront", "ButtonSeen", "ButtonOK"}},
        {"a taller window and frame", [](Form& f) { f.scaleHeight = 5000; f.c("FrameShort").height = 900; },
         {"TextBoxName", "RadioA", "ButtonFront", "ButtonSeen", "ButtonCut", "ButtonOK", "ButtonBelow"}},
        {"the second radio button set", [](Form& f) { f.setChecked("RadioB", true); },
         {"TextBoxName", "ButtonFront", "RadioB", "ButtonSeen", "ButtonOK"}},
        {"the first radio button hidden", [](Form& f) { f.c("RadioA").visible = false; },
         {"TextBoxName", "ButtonFront", "RadioB", "ButtonSeen", "ButtonOK"}},
    };
    for (const auto& c : cases) {
        PanelsWindow window;
        c.change(window);
        EXPECT_EQ(window.tabOrder(), c.order) << c.what;
        // Every place stays in the renderer's chain whatever can be reached now.
        EXPECT_EQ(window.tabPlaces().size(), 10u) << c.what;
    }
    // Tab from a control out of reach (the focus left on it) goes on from its place.
    PanelsWindow window;
    window.focusTo("ButtonCut");
    window.pressKey(kKeyTab);
    EXPECT_EQ(window.focusedControl, "ButtonOK");
    // A handler that disables the focused control: the focus goes on as Tab would, and
    // stays where it is while it is within reach.
    window.visible = true;
    window.c("ButtonOK").enabled = false;
    window.keepFocusInReach();
    EXPECT_EQ(window.focusedControl, "TextBoxName");
    window.keepFocusInReach();
    EXPECT_EQ(window.focusedControl, "TextBoxName");
}

TEST(FormFocus, ArrowsChooseInsideARadioGroupAndTabLeavesIt) {
    PanelsWindow window;
    std::string clicks;
    for (const char* key : {"RadioA", "RadioB", "RadioC"})
        window.on(key, FormEvent::Click, [&clicks, key](const EventArgs&) { clicks += std::string(key) + ";"; });
    window.click("RadioA");
    const struct {
        int key;
        const char* focused;
    } steps[] = {{kKeyDown, "RadioB"}, {kKeyRight, "RadioC"}, {kKeyDown, "RadioA"},
                 {kKeyUp, "RadioC"},   {kKeyLeft, "RadioB"}};
    for (const auto& step : steps) {
        window.pressKey(step.key);
        EXPECT_EQ(window.focusedControl, step.focused) << step.key;
        for (const char* key : {"RadioA", "RadioB", "RadioC"})
            EXPECT_EQ(window.c(key).checked, window.focusedControl == key) << key << " after " << step.key;
    }
    EXPECT_EQ(clicks, "RadioA;RadioB;RadioC;RadioA;RadioC;RadioB;");
    // A radio button out of reach is passed over.
    window.c("RadioC").enabled = false;
    window.pressKey(kKeyDown);
    EXPECT_EQ(window.focusedControl, "RadioA");
    // Tab leaves the group, both ways.
    window.pressKey(kKeyTab);
    EXPECT_EQ(window.focusedControl, "ButtonFront");
    window.pressKey(kKeyTab, 0, 1);
    window.pressKey(kKeyTab, 0, 1);
    EXPECT_EQ(window.focusedControl, "TextBoxName");
}

}  // namespace
}  // namespace qh
