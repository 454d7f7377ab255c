#pragma once
// frmTip: the Tip of the Day. The main window hands it the number of the next tip and the
// start-up choice, shows it modally, and reads both back after it hides. The window stays
// loaded between showings.
#include <string>

#include "common/int16.h"
#include "platform/control_ref.h"
#include "platform/form.h"

namespace qh {

class Environment;

class FrmTip : public Form {
public:
    // The environment gives the drive's folders for the addresses the window names.
    explicit FrmTip(const Environment& environment);

    // Public state the main window copies in before a showing and out after it.
    Int16 tempCurrentTip = 0;
    std::string tempShowTipsAtStartup = "Yes";
    // The highest tip number.
    Int16 TotalTips = 30;

    void Form_Load() override;
    // Every showing: the video line, the box ticked afresh, the focus on Close, the next tip.
    void Form_Activate() override;
    // The close box hides the window as Close does; it stays loaded.
    bool Form_QueryUnload(UnloadMode mode) override;

    // Puts tip tempCurrentTip into LabelTip and moves on, after the last one to the first.
    void ShowNextTip();

    // The text of tip `number`; a number outside 0 to 30 gives the note with the contact page.
    static std::string TipText(int number, const Environment& environment);

private:
    ControlRef ImageFull{this, "ImageFull"}, ImageLite{this, "ImageLite"}, picSheet{this, "picSheet"},
        LabelTitle{this, "LabelTitle"}, LabelTip{this, "LabelTip"}, LabelVideo{this, "LabelVideo"},
        CheckBoxShowTips{this, "CheckBoxShowTips"}, ButtonNextTip{this, "ButtonNextTip"},
        ButtonClose{this, "ButtonClose"};
    const Environment& environment_;
};

}  // namespace qh
