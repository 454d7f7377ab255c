#pragma once
// frmAbout: names the program, its version and where to ask. Shown modally; OK hides it.
#include <string>

#include "platform/control_ref.h"
#include "platform/form.h"

namespace qh {

struct Platform;

class FrmAbout : public Form {
public:
    explicit FrmAbout(Platform& platform);
    void Form_Load() override;
    bool Form_QueryUnload(UnloadMode mode) override;

    // "major.minor.revision" of the program, as the build names it.
    static std::string VersionNumbers();

private:
    ControlRef picIcon{this, "picIcon"}, lblTitle{this, "lblTitle"}, lblVersion{this, "lblVersion"},
        lblDescription{this, "lblDescription"}, cmdOK{this, "cmdOK"};
    Platform& platform_;
};

}  // namespace qh
