#include "interchange/frm_subscriptions.h"

#include <algorithm>

namespace qh {

FrmSubscriptions::FrmSubscriptions() : Form("frmSubscriptions") {
    fixedSize = true;
    setOuterSize(10800, 4560);
    caption = "Quillhollow - Calendar Subscriptions";
    add(ControlKind::Label, "LabelSubscriptions", "", 240, 180, 10200, 285).caption =
        "Calendar feeds the planner reads every 6 hours:";
    add(ControlKind::ListBox, "ListSubscriptions", "", 240, 540, 10200, 2700).accessibleName = "Subscriptions";
    // The four that act on the list from the left, Close alone on the right.
    const char* buttons[][2] = {
        {"ButtonAdd", "Add..."}, {"ButtonEdit", "Edit..."}, {"ButtonRemove", "Remove"}, {"ButtonRefresh", "Refresh Now"}};
    int left = 240;
    for (const auto& [key, text] : buttons) {
        add(ControlKind::CommandButton, key, "", left, 3480, 1380, 375).caption = text;
        left += 1380 + 120;
    }
    add(ControlKind::CommandButton, "ButtonClose", "", 10440 - 1260, 3480, 1260, 375).caption = "Close";
    c("LabelSubscriptions").backColor = kButtonFace;
    cancelButton = "ButtonClose";
    bindControls();

    on(ButtonAdd.key(), FormEvent::Click, [this](const EventArgs&) {
        if (onAdd) onAdd();
    });
    on(ButtonEdit.key(), FormEvent::Click, [this](const EventArgs&) {
        if (onEdit && chosen() >= 0) onEdit(chosen());
    });
    on(ButtonRemove.key(), FormEvent::Click, [this](const EventArgs&) {
        if (onRemove && chosen() >= 0) onRemove(chosen());
    });
    on(ButtonRefresh.key(), FormEvent::Click, [this](const EventArgs&) {
        if (onRefresh) onRefresh();
    });
    on(ButtonClose.key(), FormEvent::Click, [this](const EventArgs&) { hide(); });
    on(ListSubscriptions.key(), FormEvent::Click, [this](const EventArgs&) { enableButtons(); });
}

void FrmSubscriptions::showLines(const std::vector<std::string>& lines) {
    const int was = chosen();
    ListSubscriptions->clearItems();
    for (const std::string& line : lines) ListSubscriptions->addItem(line);
    ListSubscriptions->listIndex = lines.empty() ? -1 : std::min(std::max(was, 0), int(lines.size()) - 1);
    ListSubscriptions->text = lines.empty() ? std::string() : lines[std::size_t(ListSubscriptions->listIndex)];
    enableButtons();
}

int FrmSubscriptions::chosen() const {
    const int index = ListSubscriptions->listIndex;
    return index >= 0 && index < int(ListSubscriptions->items.size()) ? index : -1;
}

void FrmSubscriptions::enableButtons() {
    const bool any = chosen() >= 0;
    ButtonEdit->enabled = ButtonRemove->enabled = any;
    ButtonRefresh->enabled = !ListSubscriptions->items.empty();
}

void FrmSubscriptions::Form_Activate() {
    enableButtons();
    focusedControl = ListSubscriptions->items.empty() ? ButtonAdd.key() : ListSubscriptions.key();
}

bool FrmSubscriptions::Form_QueryUnload(UnloadMode mode) {
    if (mode != UnloadMode::CloseBox) return true;
    hide();
    return false;
}

}  // namespace qh
