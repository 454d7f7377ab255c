// The kit's lifecycle as the editors use it: activation, closing by source, focus and
// keys, radio groups, list lines and wiring that fails when the window is built.
#include <gtest/gtest.h>

#include "common/failure.h"
#include "platform/control_ref.h"
#include "platform/fake/fake_platform.h"

namespace qh {
namespace {

// An editor-like window: a text box, a read-only date box, a multi-line notes box, two
// radio groups (one in a frame, one on the window), a list and OK/Cancel.
class EditorLike : public Form {
public:
    EditorLike() : Form("frmEditorLike") {
        add(ControlKind::TextBox, "TextBoxName", "", 100, 100, 2000, 300);
        add(ControlKind::TextBox, "TextBoxDate", "", 100, 500, 2000, 300).locked = true;
        add(ControlKind::TextBox, "TextBoxNotes", "", 2200, 100, 2000, 900).multiLine = true;
        add(ControlKind::Frame, "FrameRepeat", "", 100, 1000, 3000, 900);
        add(ControlKind::RadioButton, "RadioDaily", "FrameRepeat", 100, 200, 1000, 300);
        add(ControlKind::RadioButton, "RadioWeekly", "FrameRepeat", 100, 500, 1000, 300);
        add(ControlKind::RadioButton, "OptionFore", "", 3300, 1000, 1000, 300);
        add(ControlKind::RadioButton, "OptionBack", "", 3300, 1300, 1000, 300);
        add(ControlKind::ListBox, "ListSessions", "", 100, 2000, 3000, 900);
        add(ControlKind::CommandButton, "ButtonOK", "", 100, 3000, 1000, 375);
        add(ControlKind::CommandButton, "ButtonCancel", "", 1200, 3000, 1000, 375);
        bindControls();
        defaultButton = "ButtonOK";
        cancelButton = ButtonCancel.key();
        for (const char* key : {"TextBoxName", "TextBoxNotes", "RadioDaily", "RadioWeekly", "OptionFore", "OptionBack",
                                "ListSessions", "ButtonOK", "ButtonCancel", "TextBoxDate"}) {
            const std::string name = key;
            on(name, FormEvent::Click, [this, name](const EventArgs&) { log += "click " + name + ";"; });
            on(name, FormEvent::GotFocus, [this, name](const EventArgs&) { log += "in " + name + ";"; });
            on(name, FormEvent::LostFocus, [this, name](const EventArgs&) { log += "out " + name + ";"; });
        }
        on("TextBoxName", FormEvent::KeyPress,
           [this](const EventArgs& args) { log += "key " + std::string(1, char(args.keyCode)) + ";"; });
    }
    void Form_Activate() override { log += "activate;"; }
    bool Form_QueryUnload(UnloadMode mode) override {
        log += "query " + std::to_string(int(mode)) + ";";
        if (mode == UnloadMode::CloseBox) hide();  // an editor's own cancel
        return false;
    }
    void Form_Unload() override { log += "unload;"; }
    void Form_MouseDown(const std::string& key) override { log += "press " + key + ";"; }

    ControlRef ButtonCancel{this, "ButtonCancel"};
    ControlArrayRef None{this, "LabelNone", 0};
    std::string log;
};

TEST(FormLifecycle, ActivatesAtEveryShowingAndClosesByItsSource) {
    FakePlatform fake;
    EditorLike window;
    fake.windowing.show(window);
    window.hide();
    fake.windowing.modalUsers["frmEditorLike"].push_back([](Form& form) { form.click("ButtonCancel"); });
    fake.windowing.showModal(window, nullptr);
    fake.windowing.showModal(window, nullptr);  // no user scripted: closed at once
    EXPECT_EQ(window.log,
              "activate;activate;press ButtonCancel;in ButtonCancel;click ButtonCancel;activate;");

    // The close box and code ask and may be refused; the program's end always closes.
    window.log.clear();
    window.visible = true;
    fake.windowing.close(window, UnloadMode::CloseBox);
    EXPECT_FALSE(window.visible);  // hidden by the model, not unloaded
    window.visible = true;
    fake.windowing.close(window, UnloadMode::Code);
    EXPECT_TRUE(window.visible);
    fake.windowing.close(window, UnloadMode::ProgramEnd);
    EXPECT_FALSE(window.visible);
    EXPECT_EQ(window.log, "query 0;query 1;query 2;unload;");
}

TEST(FormLifecycle, RadioButtonsAreOneChoicePerContainerHoweverTheyAreSet) {
    EditorLike window;
    window.click("RadioDaily");             // a click
    window.setChecked("RadioWeekly", true);  // code
    window.setChecked("OptionBack", true);   // another container: the frame's choice stays
    window.setChecked("OptionFore", true);
    window.setChecked("OptionFore", true);   // no change, no Click
    EXPECT_FALSE(window.c("RadioDaily").checked);
    EXPECT_TRUE(window.c("RadioWeekly").checked);
    EXPECT_TRUE(window.c("OptionFore").checked);
    EXPECT_FALSE(window.c("OptionBack").checked);
    EXPECT_EQ(window.log,
              "press RadioDaily;in RadioDaily;click RadioDaily;click RadioWeekly;click OptionBack;click OptionFore;");
}

TEST(FormLifecycle, FocusMovesWithClicksAndSetFocusAndKeysReachTheDefaultAndCancelButtons) {
    EditorLike window;
    window.SetFocus("TextBoxName");
    window.pressKey('A', 'a');
    window.click("TextBoxDate");     // a click on a text box is its Click, with the focus
    window.pressKey(kKeyTab);        // from the read-only box, on by its place
    window.pressKey(kKeyTab, 0, 1);  // back: read-only boxes are no tab stops
    window.pressKey(kKeyReturn);     // Enter in a multi-line box is a line, not OK
    window.pressKey(kKeyEscape);
    window.SetFocus("TextBoxName");
    window.pressKey(kKeyReturn);
    EXPECT_EQ(window.log,
              "in TextBoxName;key a;press TextBoxDate;out TextBoxName;in TextBoxDate;click TextBoxDate;"
              "out TextBoxDate;in OptionFore;out OptionFore;in TextBoxNotes;"
              "press ButtonCancel;out TextBoxNotes;in ButtonCancel;click ButtonCancel;"
              "out ButtonCancel;in TextBoxName;press ButtonOK;out TextBoxName;in ButtonOK;click ButtonOK;");
    EXPECT_EQ(window.focusRequests(), 2u);
    // A focused button is the one Enter presses, not the default one.
    window.log.clear();
    window.SetFocus("ButtonCancel");
    window.pressKey(kKeyReturn);
    EXPECT_EQ(window.log, "out ButtonOK;in ButtonCancel;press ButtonCancel;click ButtonCancel;");
    // By place: top first, then left; frames add their own place. Tab stops at one radio
    // button of each group.
    EXPECT_EQ(window.tabPlaces(), (std::vector<std::string>{"TextBoxName", "TextBoxNotes", "OptionFore", "RadioDaily",
                                                            "OptionBack", "RadioWeekly", "ListSessions", "ButtonOK",
                                                            "ButtonCancel"}));
    EXPECT_EQ(window.tabOrder(), (std::vector<std::string>{"TextBoxName", "TextBoxNotes", "OptionFore", "RadioDaily",
                                                           "ListSessions", "ButtonOK", "ButtonCancel"}));
    window.c("ButtonOK").enabled = false;
    EXPECT_THROW(window.SetFocus("ButtonOK"), UntrappedFailure);
    EXPECT_TRUE(window.isInside("RadioDaily", "FrameRepeat"));
    EXPECT_FALSE(window.isInside("OptionFore", "FrameRepeat"));
}

TEST(FormLifecycle, ListLinesGoInAtAnIndexAndTheSelectionStaysOnItsLine) {
    EditorLike window;
    Control& list = window.c("ListSessions");
    list.addItem("Tuesday");
    list.addItem("Wednesday");
    window.select("ListSessions", 1);
    list.addItem("Monday", 0);  // the session list puts the newest line on top
    EXPECT_EQ(list.items, (std::vector<std::string>{"Monday", "Tuesday", "Wednesday"}));
    EXPECT_EQ(list.selectedText(), "Wednesday");
    list.removeItem(0);
    EXPECT_EQ(list.selectedText(), "Wednesday");
    list.removeItem(1);
    EXPECT_EQ(list.listIndex, -1);
    EXPECT_THROW(list.removeItem(1), UntrappedFailure);
    EXPECT_THROW(list.addItem("Friday", 3), UntrappedFailure);
}

// Wiring faults show when the window is built, every one of them at once.
TEST(FormLifecycle, AMisspeltControlFailsWhenTheWindowIsBuilt) {
    class Misspelt : public Form {
    public:
        explicit Misspelt(bool handlerFault) : Form("frmMisspelt") {
            add(ControlKind::CommandButton, "ButtonOK", "", 0, 0, 100, 100);
            if (handlerFault) on("ButtonOk", FormEvent::Click, [](const EventArgs&) {});
            bindControls();
        }
        ControlRef ok{this, "ButtonOK"};
        ControlRef cancel{this, "ButtonCancle"};
        ControlArrayRef cells{this, "LabelCalDate", 2};
    };
    for (bool handlerFault : {true, false}) {
        try {
            Misspelt window(handlerFault);
            ADD_FAILURE() << "built";
        } catch (const UntrappedFailure& failure) {
            const std::string what = failure.what();
            EXPECT_NE(what.find(handlerFault ? "ButtonOk" : "ButtonCancle"), std::string::npos) << what;
            if (!handlerFault) {
                EXPECT_NE(what.find("LabelCalDate(0)"), std::string::npos) << what;
            }
        }
    }
}

}  // namespace
}  // namespace qh
