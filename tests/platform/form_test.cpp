#include "platform/form.h"

#include <gtest/gtest.h>

#include "common/failure.h"
#include "support/fake_platform.h"

namespace qh {
namespace {

// A small window with one of each kind of control a planner window uses.
class SampleWindow : public Form {
public:
    explicit SampleWindow(CanvasFactory& canvases) : Form("frmSample") {
        setCanvasFactory(&canvases);
        add(ControlKind::CommandButton, "ButtonOK", "", 100, 100, 1000, 300).caption = "OK";
        add(ControlKind::TextBox, "TextBoxName", "", 100, 500, 2000, 300).maxLength = 5;
        add(ControlKind::ComboBox, "ComboList", "", 100, 900, 2000, 300).items = {"All", "Done", "Not Done"};
        add(ControlKind::CheckBox, "CheckBoxDone", "", 100, 1300, 2000, 300);
        add(ControlKind::RadioButton, "RadioA", "", 100, 1700, 2000, 300, 0);
        add(ControlKind::RadioButton, "RadioA", "", 100, 2000, 2000, 300, 1).checked = true;
        add(ControlKind::Timer, "Timer1", "", 0, 0, 0, 0).interval = 1000;
        addDrawable("picGrid", "", 0, 2000, 3000, 1500);
        on("ButtonOK", FormEvent::Click, [this](const EventArgs&) {
            log += "ok;";
            hide();
        });
        on("TextBoxName", FormEvent::Change,
           [this](const EventArgs&) { log += "typed " + c("TextBoxName").text + ";"; });
        on("ComboList", FormEvent::Click, [this](const EventArgs&) { log += "list " + c("ComboList").text + ";"; });
        on("CheckBoxDone", FormEvent::Click, [this](const EventArgs&) {
            log += std::string("done ") + (c("CheckBoxDone").checked ? "on" : "off") + ";";
        });
        on("RadioA(0)", FormEvent::Click, [this](const EventArgs&) { log += "radio;"; });
        on("Timer1", FormEvent::Timer, [this](const EventArgs&) { log += "tick;"; });
    }
    std::string log;
};

TEST(FormKit, DrivesControlsByNameAsAUserWouldAndIgnoresClicksOnDisabledOrHiddenOnes) {
    FakePlatform fake;
    SampleWindow window(fake.canvases);
    window.type("TextBoxName", "Algebra");
    window.select("ComboList", "Not Done");
    window.click("CheckBoxDone");
    window.click("CheckBoxDone");
    window.click("RadioA(0)");
    window.tick("Timer1");  // off: nothing
    window.c("Timer1").enabled = true;
    window.tick("Timer1");
    window.c("ButtonOK").enabled = false;
    window.click("ButtonOK");
    window.c("ButtonOK").enabled = true;
    window.c("ButtonOK").visible = false;
    window.click("ButtonOK");
    EXPECT_EQ(window.log, "typed Algeb;list Not Done;done on;done off;radio;tick;");
    EXPECT_EQ(window.c("ComboList").listIndex, 2);
    EXPECT_TRUE(window.c("RadioA", 0).checked);
    EXPECT_FALSE(window.c("RadioA", 1).checked);
    EXPECT_THROW(window.c("NoSuchControl"), UntrappedFailure);
}

TEST(FormKit, PictureBoxCanvasesFollowTheirSizeAndZOrderMovesWithinTheWindow) {
    FakePlatform fake;
    SampleWindow window(fake.canvases);
    ASSERT_TRUE(window.c("picGrid").canvas);
    EXPECT_EQ(window.c("picGrid").canvas->scaleWidth(), 3000);
    window.move("picGrid", 0, 0, 4500, 600);
    EXPECT_EQ(window.c("picGrid").canvas->scaleWidth(), 4500);
    EXPECT_EQ(window.c("picGrid").canvas->scaleHeight(), 600);
    window.bringToFront("ButtonOK");
    EXPECT_GT(window.c("ButtonOK").z, window.c("picGrid").z);
    window.sendToBack("ButtonOK");
    EXPECT_LT(window.c("ButtonOK").z, window.c("TextBoxName").z);
}

TEST(FormKit, AFieldIsNamedByTheLabelAboveOrLeftOfIt) {
    Form form("frmFields");
    const auto label = [&](const char* name, int left, int top, int width, const char* caption) {
        Control& l = form.add(ControlKind::Label, name, "", left, top, width, 255);
        l.caption = caption;
        return &l;
    };
    label("LabelName", 240, 180, 3000, "Term Name");
    form.add(ControlKind::TextBox, "TextName", "", 240, 420, 3000, 315);
    label("LabelList", 60, 1075, 495, "List:");
    form.add(ControlKind::ComboBox, "ComboList", "", 570, 1015, 1335, 315);
    label("LabelFar", 240, 2000, 1000, "Too far above");
    form.add(ControlKind::TextBox, "TextLone", "", 240, 2700, 1000, 315);
    Control* hidden = label("LabelHidden", 240, 3300, 1000, "Hidden");
    hidden->visible = false;
    form.add(ControlKind::TextBox, "TextUnderHidden", "", 240, 3600, 1000, 315);
    // Both a label above and one left: the nearer one names the field.
    label("LabelAbove", 4000, 3400, 1000, "Above");
    label("LabelLeft", 2900, 3700, 1000, "Left");
    form.add(ControlKind::TextBox, "TextBoth", "", 4000, 3700, 1000, 315);

    EXPECT_EQ(form.labelOf("TextName"), "Term Name");
    EXPECT_EQ(form.labelOf("ComboList"), "List:");
    EXPECT_EQ(form.labelOf("TextLone"), "");
    EXPECT_EQ(form.labelOf("TextUnderHidden"), "");
    EXPECT_EQ(form.labelOf("TextBoth"), "Above");
}

// A dialog opens over the middle of its owner, but never off the usable screen: a main
// window pushed to an edge or a dialog larger than the screen still shows its top left.
TEST(FormKit, ADialogOpensCentredOverItsOwnerAndInsideTheScreen) {
    const struct {
        const char* name;
        int ownerLeft, ownerTop, dialogWidth, dialogHeight, left, top;
    } cases[] = {
        {"centred", 3000, 1500, 4000, 3000, 5800, 3600},
        {"owner at the right edge", 14000, 1500, 4000, 3000, 15000, 3600},
        {"owner above the top", 3000, -4000, 4000, 3000, 5800, 300},
        {"dialog larger than the screen", 3000, 1500, 30000, 20000, 0, 300},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        Form owner("frmMain"), dialog("frmDialog");
        owner.left = c.ownerLeft;
        owner.top = c.ownerTop;
        owner.setOuterSize(9600, 7200);
        dialog.setOuterSize(c.dialogWidth, c.dialogHeight);
        dialog.centreOver(owner, 0, 300, 19000, 12000);
        EXPECT_EQ(dialog.left, c.left);
        EXPECT_EQ(dialog.top, c.top);
    }
}

}  // namespace
}  // namespace qh
