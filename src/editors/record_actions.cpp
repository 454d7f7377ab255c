#include "editors/record_actions.h"

#include "editors/editor_host.h"
#include "editors/editor_windows.h"

namespace qh {

RecordActions::RecordActions(RecordStore& store, RecordFiles& files, Platform& platform, EditorHost& host,
                             EditorWindows& windows)
    : store_(store), files_(files), platform_(platform), host_(host), windows_(windows) {}

// The assignment editor is its own piece of work; until it lands these actions open
// nothing.
void RecordActions::NewAssignment() {}
void RecordActions::EditAssignment(int) {}

}  // namespace qh
