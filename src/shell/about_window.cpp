#include "shell/about_window.h"

#include "platform/platform.h"
#include "shell/desktop_open.h"
#include "shell/web_addresses.h"

// The build passes the project's version (CMakeLists.txt, project()) to this file alone.
#if !defined(QH_VERSION_MAJOR) || !defined(QH_VERSION_MINOR) || !defined(QH_VERSION_PATCH)
#error "The build must define QH_VERSION_MAJOR, QH_VERSION_MINOR and QH_VERSION_PATCH"
#endif

namespace qh {

FrmAbout::FrmAbout(Platform& platform) : Form("frmAbout"), platform_(platform) {
    fixedSize = true;
    setOuterSize(6300, 4200);
    add(ControlKind::PictureBox, picIcon.key(), "", 240, 240, 720, 1760).picture = "TipFull";
    Control& title = add(ControlKind::Label, lblTitle.key(), "", 1200, 240, 4800, 420);
    title.fontName = "Verdana";
    title.fontSize = 12;
    title.bold = true;
    Control& version = add(ControlKind::Label, lblVersion.key(), "", 1200, 720, 4800, 285);
    version.fontName = "Verdana";
    Control& description = add(ControlKind::Label, lblDescription.key(), "", 1200, 1140, 4800, 1920);
    description.fontName = "Verdana";
    add(ControlKind::CommandButton, cmdOK.key(), "", 4680, 3180, 1320, 375).caption = "OK";
    for (Control* label : {&title, &version, &description}) label->opaque = false;

    // Enter and Escape both close the window, as its one button does.
    defaultButton = cancelButton = cmdOK.key();
    on(cmdOK.key(), FormEvent::Click, [this](const EventArgs&) { hide(); });
    on(lblDescription.key(), FormEvent::Click, [this](const EventArgs&) {
        OpenWithDesktop(platform_.processes, platform_.messages,
                        HelpBookAddress(platform_.environment, kProductSitePage));
    });
    bindControls();
}

std::string FrmAbout::VersionNumbers() {
    return std::to_string(QH_VERSION_MAJOR) + "." + std::to_string(QH_VERSION_MINOR) + "." +
           std::to_string(QH_VERSION_PATCH);
}

void FrmAbout::Form_Load() {
    caption = "About Quillhollow";
    lblTitle->caption = "Quillhollow for u3";
    lblVersion->caption = "Version " + VersionNumbers();
    // The double blank after "organizer" is the program's own text.
    lblDescription->caption =
        "Quillhollow is the essential homework management tool. It combines the best features of a student planner "
        "and homework organizer  into one, easy to use program.\n\nFor questions, orders and upgrades, visit the "
        "website at " +
        HelpBookAddress(platform_.environment, kProductSitePage);
}

bool FrmAbout::Form_QueryUnload(UnloadMode mode) {
    if (mode != UnloadMode::CloseBox) return true;
    hide();
    return false;
}

}  // namespace qh
