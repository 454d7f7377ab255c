#pragma once
// Typed references to a window's controls, held as members of the window class and looked
// up once, when the window is built (Form::bindControls). A misspelt name then fails in
// the constructor, which every test of the window runs, and never silently at a click.
//
//     class frmExample : public Form {
//         ControlRef ButtonOK{this, "ButtonOK"};
//         ControlArrayRef LabelCalDate{this, "LabelCalDate", 42};
//         frmExample() : Form("frmExample") { /* add controls */ bindControls(); }
//     };
#include <string>
#include <vector>

#include "platform/form.h"

namespace qh {

class ControlBinding {
public:
    ControlBinding(Form* form);
    virtual ~ControlBinding() = default;
    ControlBinding(const ControlBinding&) = delete;
    ControlBinding& operator=(const ControlBinding&) = delete;
    virtual void resolve(Form& form) = 0;
};

class ControlRef : public ControlBinding {
public:
    ControlRef(Form* form, std::string key) : ControlBinding(form), key_(std::move(key)) {}
    void resolve(Form& form) override { control_ = &form.c(key_); }
    Control* operator->() const { return &get(); }
    Control& operator*() const { return get(); }
    const std::string& key() const { return key_; }

private:
    Control& get() const;
    std::string key_;
    Control* control_ = nullptr;
};

class ControlArrayRef : public ControlBinding {
public:
    ControlArrayRef(Form* form, std::string name, int count)
        : ControlBinding(form), name_(std::move(name)), count_(count) {}
    void resolve(Form& form) override;
    Control& operator[](int index) const;
    int size() const { return count_; }
    const std::string& name() const { return name_; }
    std::string key(int index) const { return name_ + "(" + std::to_string(index) + ")"; }

private:
    std::string name_;
    int count_;
    std::vector<Control*> controls_;
};

}  // namespace qh
