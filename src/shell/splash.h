#pragma once
// frmSplash: one picture, shown while the main window loads. No logic, no timer.
#include "platform/form.h"
#include "platform/windowing.h"

namespace qh {

class FrmSplash : public Form {
public:
    // A picture without a frame, in the middle of the area windows may take.
    explicit FrmSplash(const Windowing::Area& area) : Form("frmSplash") {
        caption = "Quillhollow";
        fixedSize = true;
        titleBar = false;
        setOuterSize(6000, 3600);
        scaleWidth = width;
        scaleHeight = height;
        left = area.left + (area.width - width) / 2;
        top = area.top + (area.height - height) / 2;
        Control& picture = add(ControlKind::PictureBox, "picSplash", "", 0, 0, scaleWidth, scaleHeight);
        picture.picture = "Splash";
        picture.accessibleName = "Quillhollow is starting";
    }
};

}  // namespace qh
