#include "interchange/frm_subscription.h"

#include "common/text.h"

namespace qh {

FrmSubscription::FrmSubscription() : Form("frmSubscription") {
    fixedSize = true;
    setOuterSize(7320, 3000);
    caption = "Quillhollow - Calendar Subscription";
    add(ControlKind::Label, "LabelName", "", 240, 210, 1200, 285).caption = "Name:";
    add(ControlKind::TextBox, "TextBoxName", "", 1560, 180, 5400, 315);
    add(ControlKind::Label, "LabelAddress", "", 240, 690, 1200, 285).caption = "Address:";
    add(ControlKind::TextBox, "TextBoxAddress", "", 1560, 660, 5400, 315).toolTip =
        "The feed's https:// or webcal:// address, as the school's calendar gives it";
    add(ControlKind::Label, "LabelStatus", "", 240, 1200, 6720, 570);
    add(ControlKind::CommandButton, "ButtonOK", "", 4320, 1980, 1260, 375).caption = "OK";
    add(ControlKind::CommandButton, "ButtonCancel", "", 5700, 1980, 1260, 375).caption = "Cancel";
    for (const std::string& key : order())
        if (c(key).kind == ControlKind::Label) c(key).backColor = kButtonFace;
    defaultButton = "ButtonOK";
    cancelButton = "ButtonCancel";
    bindControls();
    on(ButtonOK.key(), FormEvent::Click, [this](const EventArgs&) { ok(); });
    on(ButtonCancel.key(), FormEvent::Click, [this](const EventArgs&) { cancel(); });
}

void FrmSubscription::Form_Activate() {
    accepted = fetching_ = false;
    TextBoxName->text = name;
    TextBoxAddress->text = address;
    LabelStatus->caption.clear();
    ButtonOK->enabled = TextBoxName->enabled = TextBoxAddress->enabled = true;
    focusedControl = name.empty() ? TextBoxName.key() : TextBoxAddress.key();
}

void FrmSubscription::ok() {
    name = trimRight(TextBoxName->text);
    address = trimRight(TextBoxAddress->text);
    while (!address.empty() && address.front() == ' ') address.erase(0, 1);
    if (name.empty() || address.empty()) {
        LabelStatus->caption = name.empty() ? "Give the calendar a name." : "Type or paste the calendar's address.";
        SetFocus(name.empty() ? TextBoxName.key() : TextBoxAddress.key());
        return;
    }
    fetching_ = true;
    ButtonOK->enabled = TextBoxName->enabled = TextBoxAddress->enabled = false;
    LabelStatus->caption = "Reading the calendar...";
    if (onFetch) onFetch(name, address);
}

void FrmSubscription::read() {
    if (!fetching_) return;
    fetching_ = false;
    accepted = true;
    hide();
}

void FrmSubscription::notRead(const std::string& why) {
    if (!fetching_) return;
    fetching_ = false;
    ButtonOK->enabled = TextBoxName->enabled = TextBoxAddress->enabled = true;
    LabelStatus->caption = "The calendar could not be read: " + why + ".";
    SetFocus(TextBoxAddress.key());
}

void FrmSubscription::cancel() {
    // An answer still on its way is then passed over.
    fetching_ = false;
    hide();
}

bool FrmSubscription::Form_QueryUnload(UnloadMode mode) {
    if (mode != UnloadMode::CloseBox) return true;
    cancel();
    return false;
}

}  // namespace qh
