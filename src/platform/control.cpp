#include "platform/control.h"

#include "common/failure.h"

namespace qh {

void Control::addItem(const std::string& item, int at) {
    if (at < -1 || at > int(items.size())) throw UntrappedFailure("Invalid argument: line " + std::to_string(at));
    if (at == -1) at = int(items.size());
    items.insert(items.begin() + at, item);
    if (listIndex >= at) ++listIndex;
}

void Control::removeItem(int at) {
    if (at < 0 || at >= int(items.size())) throw UntrappedFailure("Invalid argument: line " + std::to_string(at));
    items.erase(items.begin() + at);
    if (listIndex == at) {
        listIndex = -1;
        if (kind == ControlKind::ComboBox) text.clear();
    } else if (listIndex > at) {
        --listIndex;
    }
}

void Control::clearItems() {
    items.clear();
    listIndex = -1;
    if (kind == ControlKind::ComboBox) text.clear();
}

bool Control::canTakeFocus() const {
    switch (kind) {
        case ControlKind::TextBox:
        case ControlKind::ComboBox:
        case ControlKind::ListBox:
        case ControlKind::CheckBox:
        case ControlKind::RadioButton:
        case ControlKind::CommandButton:
        case ControlKind::ScrollBar: return true;
        case ControlKind::PictureBox:
        case ControlKind::Label: return focusable;
        default: return false;
    }
}

}  // namespace qh
