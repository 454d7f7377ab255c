#include "platform/form.h"

#include <algorithm>
#include <utility>

#include "common/failure.h"
#include "platform/canvas.h"
#include "platform/control_ref.h"

namespace qh {

Form::Form(std::string name) : name_(std::move(name)) {}

bool Form::hasMenuBar() const {
    return std::any_of(order_.begin(), order_.end(), [this](const std::string& key) {
        const Control& control = *controls_.at(key);
        return control.kind == ControlKind::Menu && control.container.empty();
    });
}

void Form::setOuterSize(int widthTwips, int heightTwips) {
    width = widthTwips;
    height = heightTwips;
    scaleWidth = std::max(0, width - kFrameWidth);
    scaleHeight = std::max(0, height - kFrameHeight - (hasMenuBar() ? kMenuBarHeight : 0));
}

void Form::centreOver(const Form& owner, int areaLeft, int areaTop, int areaWidth, int areaHeight) {
    const auto inside = [](int position, int size, int start, int length) {
        return std::max(start, std::min(position, start + length - size));
    };
    left = inside(owner.left + (owner.width - width) / 2, width, areaLeft, areaWidth);
    top = inside(owner.top + (owner.height - height) / 2, height, areaTop, areaHeight);
}

Control& Form::add(ControlKind kind, const std::string& name, const std::string& container, int left, int top,
                   int width, int height, int index) {
    auto control = std::make_unique<Control>();
    control->name = name;
    control->index = index;
    control->kind = kind;
    control->container = container;
    control->left = left;
    control->top = top;
    control->width = width;
    control->height = height;
    control->z = nextZ_++;
    if (kind == ControlKind::Timer) control->enabled = false;
    const std::string key = control->key();
    if (controls_.count(key)) throw UntrappedFailure("Control already exists: " + key);
    Control& added = *control;
    controls_.emplace(key, std::move(control));
    order_.push_back(key);
    return added;
}

Control& Form::addDrawable(const std::string& name, const std::string& container, int left, int top, int width,
                           int height, int index) {
    if (!canvasFactory_) throw UntrappedFailure("No canvas factory for " + name);
    Control& control = add(ControlKind::PictureBox, name, container, left, top, width, height, index);
    control.drawable = true;
    control.canvas = canvasFactory_->create();
    control.canvas->resize(width, height);
    return control;
}

Control& Form::addLabel(const std::string& name, const std::string& container, int left, int top, int width,
                        int height, const std::string& caption, int index) {
    Control& control = add(ControlKind::Label, name, container, left, top, width, height, index);
    control.caption = caption;
    control.opaque = false;
    return control;
}

Control& Form::addMenu(const std::string& name, const std::string& parent, const std::string& caption) {
    Control& menu = add(ControlKind::Menu, name, parent, 0, 0, 0, 0);
    menu.caption = caption;
    return menu;
}

bool Form::has(const std::string& key) const { return controls_.count(key) != 0; }

Control& Form::find(const std::string& key) {
    auto it = controls_.find(key);
    if (it == controls_.end()) throw UntrappedFailure("No control " + key + " on " + name_);
    return *it->second;
}

Control& Form::c(const std::string& key) { return find(key); }
const Control& Form::c(const std::string& key) const { return const_cast<Form*>(this)->find(key); }

void Form::on(const std::string& key, FormEvent event, Handler handler) {
    find(key);  // a handler on a control the window doesn't have is a wiring fault
    handlers_[{key, event}] = std::move(handler);
}

bool Form::handles(const std::string& key, FormEvent event) const { return handlers_.count({key, event}) != 0; }

namespace {

std::string& actionText() {
    static std::string action;
    return action;
}

}  // namespace

const std::string& Form::actionInProgress() { return actionText(); }

void Form::fire(const std::string& key, FormEvent event, const EventArgs& args) {
    auto it = handlers_.find({key, event});
    if (it == handlers_.end()) return;
    // A copy: the handler may replace handlers while it runs.
    Handler handler = it->second;
    const Control* control = has(key) ? &c(key) : nullptr;
    const std::string& what = !control                       ? key
                              : !control->caption.empty()    ? control->caption
                              : !control->accessibleName.empty() ? control->accessibleName
                                                             : key;
    // Put back only when the handler returns: a failure leaves its own action named.
    std::string outer = std::exchange(actionText(), "\"" + what + "\" in \"" + (caption.empty() ? name_ : caption) + "\"");
    handler(args);
    actionText() = std::move(outer);
}

void Form::uncheckOtherRadios(const Control& control) {
    // Radio buttons of one container (frame, picture box or the window) are one choice.
    for (auto& [k, other] : controls_)
        if (other.get() != &control && other->kind == ControlKind::RadioButton && other->container == control.container)
            other->checked = false;
}

void Form::click(const std::string& key) {
    Control& control = find(key);
    if (!control.enabled || !control.visible) {
        if (control.kind != ControlKind::Menu || !control.enabled) return;
    }
    if (control.kind != ControlKind::Menu) Form_MouseDown(key);
    if (control.canTakeFocus()) focusTo(key);
    switch (control.kind) {
        case ControlKind::CheckBox: control.checked = !control.checked; break;
        case ControlKind::RadioButton:
            uncheckOtherRadios(control);
            control.checked = true;
            break;
        default: break;
    }
    fire(key, FormEvent::Click);
}

void Form::type(const std::string& key, const std::string& text) {
    Control& control = find(key);
    control.text = control.maxLength > 0 && int(text.size()) > control.maxLength
                       ? text.substr(0, std::size_t(control.maxLength))
                       : text;
    fire(key, FormEvent::Change);
}

void Form::select(const std::string& key, int listIndex) {
    Control& control = find(key);
    if (listIndex < -1 || listIndex >= int(control.items.size()))
        throw UntrappedFailure("Invalid property value");
    Form_MouseDown(key);
    if (control.canTakeFocus()) focusTo(key);
    control.listIndex = listIndex;
    control.text = control.selectedText();
    fire(key, FormEvent::Click);
}

void Form::select(const std::string& key, const std::string& entry) {
    const Control& control = find(key);
    auto it = std::find(control.items.begin(), control.items.end(), entry);
    if (it == control.items.end()) throw UntrappedFailure("No entry " + entry + " in " + key);
    select(key, int(it - control.items.begin()));
}

void Form::setChecked(const std::string& key, bool checked) {
    Control& control = find(key);
    if (control.checked == checked) return;
    if (checked && control.kind == ControlKind::RadioButton) uncheckOtherRadios(control);
    control.checked = checked;
    fire(key, FormEvent::Click);
}

void Form::scrollTo(const std::string& key, int value) {
    Control& control = find(key);
    value = std::clamp(value, control.minimum, std::max(control.minimum, control.maximum));
    if (control.value == value) return;
    control.value = value;
    fire(key, FormEvent::Change);
}

void Form::press(const std::string& key, const EventArgs& args) {
    Form_MouseDown(key);
    fire(key, FormEvent::MouseDown, args);
}
void Form::release(const std::string& key, const EventArgs& args) { fire(key, FormEvent::MouseUp, args); }

std::string Form::wheelTarget(const std::string& key) const {
    for (std::string at = key; has(at); at = c(at).container)
        if (handles(at, FormEvent::MouseWheel)) return at;
    return "";
}

void Form::wheel(const std::string& key, int notches) {
    const std::string target = wheelTarget(key);
    if (target.empty() || !c(target).enabled || !c(target).visible) return;
    EventArgs args;
    args.notches = notches;
    fire(target, FormEvent::MouseWheel, args);
}

void Form::tick(const std::string& timerKey) {
    if (find(timerKey).enabled) fire(timerKey, FormEvent::Timer);
}

void Form::pressKey(int keyCode, int character, int shift) {
    const std::string target = focusedControl;
    EventArgs args;
    args.shift = shift;
    args.keyCode = keyCode;
    if (!target.empty()) fire(target, FormEvent::KeyDown, args);
    if (character != 0 && !target.empty()) {
        args.keyCode = character;
        fire(target, FormEvent::KeyPress, args);
    }
    const bool multiLineFocused = has(target) && c(target).kind == ControlKind::TextBox && c(target).multiLine;
    // Enter presses the focused button (Enter or Space a focused link), else the window's
    // default one.
    const bool buttonFocused = has(target) && c(target).kind == ControlKind::CommandButton;
    const bool linkFocused = has(target) && c(target).kind == ControlKind::Label && c(target).focusable;
    // A box that takes the keys (a calendar, the date picker) has Enter and Escape as well.
    const bool keyBoxFocused = has(target) && c(target).kind == ControlKind::PictureBox && c(target).focusable &&
                               handles(target, FormEvent::KeyDown);
    if ((keyCode == kKeyReturn && buttonFocused) || ((keyCode == kKeyReturn || keyCode == ' ') && linkFocused))
        click(target);
    else if (keyCode == kKeyReturn && !defaultButton.empty() && !multiLineFocused && !keyBoxFocused)
        click(defaultButton);
    if (keyCode == kKeyEscape && !cancelButton.empty() && !keyBoxFocused) click(cancelButton);
    if (has(target) && c(target).kind == ControlKind::RadioButton && keyCode >= kKeyLeft && keyCode <= kKeyDown)
        stepRadioGroup(target, keyCode == kKeyRight || keyCode == kKeyDown);
    if (keyCode == kKeyTab) {
        // From a control that is no tab stop (a read-only box clicked into), Tab goes on
        // from its place on the window.
        const std::vector<std::string> order = tabOrder(focusedControl);
        if (order.empty()) return;
        auto at = std::find(order.begin(), order.end(), focusedControl);
        const bool back = (shift & 1) != 0;
        std::size_t next = 0;
        if (at != order.end()) {
            const std::size_t i = std::size_t(at - order.begin());
            next = back ? (i + order.size() - 1) % order.size() : (i + 1) % order.size();
        } else if (back) {
            next = order.size() - 1;
        }
        focusTo(order[next]);
    }
}

void Form::focusTo(const std::string& key) {
    if (key == focusedControl) return;
    if (!key.empty()) find(key);
    const std::string old = focusedControl;
    focusedControl = key;
    if (has(old)) fire(old, FormEvent::LostFocus);
    if (!key.empty() && focusedControl == key) fire(key, FormEvent::GotFocus);
}

void Form::SetFocus(const std::string& key) {
    const Control& control = find(key);
    if (!control.enabled || !control.visible)
        throw UntrappedFailure("Invalid procedure call: " + key + " can't take the focus");
    ++focusRequests_;
    focusTo(key);
}

bool Form::isInside(const std::string& key, const std::string& containerKey) const {
    std::string at = key;
    for (int depth = 0; depth < 64 && has(at); ++depth) {
        if (at == containerKey) return true;
        const Control& control = c(at);
        if (control.kind == ControlKind::Menu) return false;
        at = control.container;
    }
    return false;
}

std::string Form::labelOf(const std::string& key) const {
    // How far a label may stand from its field: a line's gap above, a short gap left.
    constexpr int kAboveGap = 300, kLeftGap = 600, kOverlapSlack = 60;
    const Control& field = c(key);
    std::string best;
    int bestGap = 1 << 30;
    for (const std::string& other : order_) {
        const Control& label = c(other);
        if (label.kind != ControlKind::Label || !label.visible || label.caption.empty() ||
            label.container != field.container)
            continue;
        const bool across = label.left < field.left + field.width && field.left < label.left + label.width;
        const bool inHeight = label.top < field.top + field.height && field.top < label.top + label.height;
        int gap = -1;
        if (across && label.top < field.top && field.top - (label.top + label.height) <= kAboveGap)
            gap = std::max(0, field.top - (label.top + label.height));
        else if (inHeight && label.left + label.width <= field.left + kOverlapSlack &&
                 field.left - (label.left + label.width) <= kLeftGap)
            gap = std::max(0, field.left - (label.left + label.width));
        if (gap >= 0 && gap < bestGap) {
            bestGap = gap;
            best = label.caption;
        }
    }
    return best;
}

void Form::showing() {
    visible = true;
    Form_Activate();
}

bool Form::requestClose(UnloadMode mode) {
    const bool agreed = Form_QueryUnload(mode);
    if (!agreed && mode != UnloadMode::ProgramEnd) return false;
    Form_Unload();
    visible = false;
    return true;
}

void Form::bindControls() {
    std::string missing;
    for (ControlBinding* ref : refs_) {
        try {
            ref->resolve(*this);
        } catch (const UntrappedFailure& failure) {
            missing += std::string(missing.empty() ? "" : "; ") + failure.what();
        }
    }
    if (!missing.empty()) throw UntrappedFailure(missing);
}

void Form::bringToFront(const std::string& key) { find(key).z = nextZ_++; }

void Form::sendToBack(const std::string& key) {
    int lowest = 0;
    for (const auto& [k, control] : controls_) lowest = std::min(lowest, control->z);
    find(key).z = lowest - 1;
}

void Form::move(const std::string& key, int left, int top, int width, int height) {
    Control& control = find(key);
    control.left = left;
    control.top = top;
    control.width = width;
    control.height = height;
    if (control.canvas) control.canvas->resize(width, height);
}

}  // namespace qh
