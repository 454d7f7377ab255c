#pragma once
// frmAbout: names the program, its version and where to ask. Shown modally; OK hides it.
#include <string>

#include "platform/form.h"

namespace qh {

class Environment;
class Processes;

class FrmAbout : public Form {
public:
    FrmAbout(const Environment& environment, Processes& processes);
    void Form_Load() override;
    bool Form_QueryUnload(UnloadMode mode) override;

    // "major.minor.revision" of the program, as the build names it.
    static std::string VersionNumbers();

private:
    const Environment& environment_;
    Processes& processes_;
};

}  // namespace qh
