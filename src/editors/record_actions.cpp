#include "editors/record_actions.h"

#include "editors/editor_host.h"
#include "editors/editor_windows.h"

namespace qh {

RecordActions::RecordActions(RecordStore& store, RecordFiles& files, Platform& platform, EditorHost& host,
                             EditorWindows& windows)
    : store_(store), files_(files), platform_(platform), host_(host), windows_(windows) {}

// The task and event editors are their own pieces of work; until they land these actions
// open nothing.
void RecordActions::NewTask() {}
void RecordActions::EditTask(int) {}
void RecordActions::NewEvent() {}
void RecordActions::EditEvent(int) {}

}  // namespace qh
