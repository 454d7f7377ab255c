// Where the keyboard may go in a window: the order Tab follows, which controls the student
// can reach, and the arrows inside a group of radio buttons.
#include <algorithm>

#include "platform/form.h"

namespace qh {
namespace {

bool isTabStop(const Control& control) {
    return control.canTakeFocus() && control.tabStop && !(control.kind == ControlKind::TextBox && control.locked);
}

bool contains(const Control& box, int x, int y) {
    return x >= box.left && x < box.left + box.width && y >= box.top && y < box.top + box.height;
}

// Boxes that hide what lies under them; a label lets its container show through.
bool covers(const Control& control) {
    return control.visible && (control.kind == ControlKind::Frame || control.kind == ControlKind::PictureBox);
}

}  // namespace

std::vector<std::string> Form::byPlace(const std::function<bool(const std::string&, const Control&)>& keep) const {
    struct Stop {
        int top, left;
        std::string key;
    };
    std::vector<Stop> stops;
    for (const std::string& key : order_) {
        const Control& control = c(key);
        if (!keep(key, control)) continue;
        int top = control.top, left = control.left;
        for (std::string at = control.container; has(at); at = c(at).container) {
            top += c(at).top;
            left += c(at).left;
        }
        stops.push_back({top, left, key});
    }
    std::stable_sort(stops.begin(), stops.end(), [](const Stop& a, const Stop& b) {
        return a.top != b.top ? a.top < b.top : a.left < b.left;
    });
    std::vector<std::string> keys;
    for (Stop& stop : stops) keys.push_back(std::move(stop.key));
    return keys;
}

std::vector<std::string> Form::tabPlaces() const {
    return byPlace([](const std::string&, const Control& control) { return isTabStop(control); });
}

std::vector<std::string> Form::tabOrder(const std::string& alsoKey) const {
    return byPlace([&](const std::string& key, const Control& control) {
        if (key == alsoKey) return true;
        if (!isTabStop(control) || !withinReach(key)) return false;
        return control.kind != ControlKind::RadioButton || leadsRadioGroup(key);
    });
}

bool Form::withinReach(const std::string& key) const {
    if (!has(key)) return false;
    const Control& control = c(key);
    // The control's middle, carried out through each container to the window.
    int x = control.left + control.width / 2, y = control.top + control.height / 2;
    for (const Control* at = &control;;) {
        if (!at->visible || !at->enabled || at->kind == ControlKind::Menu) return false;
        for (const std::string& other : order_) {
            const Control& sibling = c(other);
            if (&sibling != at && sibling.container == at->container && sibling.z > at->z && covers(sibling) &&
                contains(sibling, x, y))
                return false;
        }
        if (!has(at->container)) break;
        const Control& container = c(at->container);
        if (x < 0 || y < 0 || x >= container.width || y >= container.height) return false;
        x += container.left;
        y += container.top;
        at = &container;
    }
    // Sizes not yet given (a window never laid out) bound nothing.
    return !(scaleWidth > 0 && (x < 0 || x >= scaleWidth)) && !(scaleHeight > 0 && (y < 0 || y >= scaleHeight));
}

std::vector<std::string> Form::radioGroupOf(const std::string& key) const {
    const std::string& container = c(key).container;
    return byPlace([&](const std::string& other, const Control& control) {
        return control.kind == ControlKind::RadioButton && control.container == container &&
               (other == key || withinReach(other));
    });
}

bool Form::leadsRadioGroup(const std::string& key) const {
    if (!has(key) || c(key).kind != ControlKind::RadioButton) return false;
    const std::vector<std::string> group = radioGroupOf(key);
    const auto set = std::find_if(group.begin(), group.end(), [this](const std::string& k) { return c(k).checked; });
    return set != group.end() ? *set == key : group.front() == key;
}

void Form::keepFocusInReach() {
    if (!visible || !has(focusedControl) || withinReach(focusedControl)) return;
    const std::vector<std::string> order = tabOrder(focusedControl);
    const auto at = std::find(order.begin(), order.end(), focusedControl);
    if (order.size() < 2 || at == order.end()) return;
    focusTo(order[(std::size_t(at - order.begin()) + 1) % order.size()]);
}

void Form::stepRadioGroup(const std::string& key, bool forward) {
    const std::vector<std::string> group = radioGroupOf(key);
    const auto at = std::find(group.begin(), group.end(), key);
    if (group.size() < 2 || at == group.end()) return;
    const std::size_t i = std::size_t(at - group.begin());
    click(group[forward ? (i + 1) % group.size() : (i + group.size() - 1) % group.size()]);
}

}  // namespace qh
