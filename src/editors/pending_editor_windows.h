#pragma once
// The editor windows whose own work has not landed yet: each is an empty window with its
// name and title, so that the load builds all five in their order. Each moves to its own
// file pair when its work lands; nothing here is finished work.
#include "platform/form.h"
#include "platform/platform.h"

namespace qh {

class EditorHost;

class FrmAssignment : public Form {
public:
    FrmAssignment(Platform&, EditorHost&) : Form("frmAssignment") { caption = "Quillhollow - New Assignment"; }
};

}  // namespace qh
