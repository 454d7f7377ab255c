#include "platform/control_ref.h"

#include "common/failure.h"

namespace qh {

ControlBinding::ControlBinding(Form* form) { form->refs_.push_back(this); }

Control& ControlRef::get() const {
    if (!control_) throw UntrappedFailure("Control " + key_ + " used before the window bound its controls");
    return *control_;
}

void ControlArrayRef::resolve(Form& form) {
    controls_.clear();
    for (int i = 0; i < count_; ++i) controls_.push_back(&form.c(name_, i));
}

Control& ControlArrayRef::operator[](int index) const {
    if (index < 0 || index >= int(controls_.size()))
        throw UntrappedFailure("Control array index out of bounds: " + key(index));
    return *controls_[std::size_t(index)];
}

}  // namespace qh
