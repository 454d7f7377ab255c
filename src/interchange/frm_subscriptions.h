#pragma once
// frmSubscriptions: the calendar feeds the student subscribed to, one line each (name,
// address, last refreshed, items, status), with Add, Edit, Remove and Refresh Now. The
// window keeps no feeds of its own: its owner fills the lines and acts on the buttons.
#include <functional>
#include <string>
#include <vector>

#include "platform/control_ref.h"
#include "platform/form.h"

namespace qh {

class FrmSubscriptions : public Form {
public:
    FrmSubscriptions();

    // Set by the owner; the index is the line chosen, -1 for none.
    std::function<void()> onAdd, onRefresh;
    std::function<void(int)> onEdit, onRemove;

    // Shows the lines, keeping the chosen one where it still exists.
    void showLines(const std::vector<std::string>& lines);
    int chosen() const;

    void Form_Activate() override;
    bool Form_QueryUnload(UnloadMode mode) override;

private:
    void enableButtons();

    ControlRef LabelSubscriptions{this, "LabelSubscriptions"};
    ControlRef ListSubscriptions{this, "ListSubscriptions"};
    ControlRef ButtonAdd{this, "ButtonAdd"};
    ControlRef ButtonEdit{this, "ButtonEdit"};
    ControlRef ButtonRemove{this, "ButtonRemove"};
    ControlRef ButtonRefresh{this, "ButtonRefresh"};
    ControlRef ButtonClose{this, "ButtonClose"};
};

}  // namespace qh
