#include "editors/record_actions.h"

#include "editors/editor_host.h"
#include "editors/editor_windows.h"

namespace qh {

RecordActions::RecordActions(RecordStore& store, RecordFiles& files, Platform& platform, EditorHost& host,
                             EditorWindows& windows)
    : store_(store), files_(files), platform_(platform), host_(host), windows_(windows) {}

}  // namespace qh
