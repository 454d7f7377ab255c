#pragma once
// frmSplash: one picture, shown while the main window loads. No logic, no timer.
#include "platform/form.h"

namespace qh {

class FrmSplash : public Form {
public:
    FrmSplash() : Form("frmSplash") {
        caption = "Quillhollow";
        fixedSize = true;
        setOuterSize(6000, 3600);
        add(ControlKind::PictureBox, "picSplash", "", 0, 0, scaleWidth, scaleHeight).picture = "Splash";
    }
};

}  // namespace qh
