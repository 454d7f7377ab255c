#pragma once
// The editor windows whose own work has not landed yet: each is an empty window with its
// name and title, so that the load builds all five in their order. Each moves to its own
// file pair when its work lands; nothing here is finished work.
#include "platform/form.h"
#include "platform/platform.h"

namespace qh {

class EditorHost;

class FrmTask : public Form {
public:
    FrmTask(Platform&, EditorHost&) : Form("FrmTask") { caption = "Quillhollow - New Task"; }
};

class FrmEvent : public Form {
public:
    FrmEvent(Platform&, EditorHost&) : Form("frmEvent") { caption = "Quillhollow - New Event"; }
};

}  // namespace qh
