#pragma once
// frmSubscription: the name and address of one calendar feed. OK reads the feed at once,
// so that a mistyped address is told here; the window stays open, saying what it does,
// until the feed's answer comes, and closes on a feed that could be read.
#include <functional>
#include <string>

#include "platform/control_ref.h"
#include "platform/form.h"

namespace qh {

class FrmSubscription : public Form {
public:
    FrmSubscription();

    // Set by the caller before each showing.
    std::string name, address;
    // Called on OK with the name and address typed; the owner starts the fetch and later
    // calls `read` or `notRead`.
    std::function<void(const std::string& name, const std::string& address)> onFetch;

    // The feed was read: the window closes, accepted.
    void read();
    // The feed could not be read: the window says why and waits for the student.
    void notRead(const std::string& why);
    bool fetching() const { return fetching_; }

    // Set when the feed was read; any other way the window hides leaves it clear.
    bool accepted = false;

    void Form_Activate() override;
    bool Form_QueryUnload(UnloadMode mode) override;

private:
    void ok();
    void cancel();

    ControlRef TextBoxName{this, "TextBoxName"};
    ControlRef TextBoxAddress{this, "TextBoxAddress"};
    ControlRef LabelStatus{this, "LabelStatus"};
    ControlRef ButtonOK{this, "ButtonOK"};
    ControlRef ButtonCancel{this, "ButtonCancel"};
    bool fetching_ = false;
};

}  // namespace qh
