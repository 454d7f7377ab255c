#pragma once
// The rolling copies of the record files, made when the program closes.
#include "platform/platform.h"
#include "record_store/columns.h"

namespace qh {

// For each record file whose change flag is true, in the fixed order Terms, Classes,
// Assignments, Notes, StudySessions, Tasks, Events, then the planner's own CalendarLinks: copy it from DataDirectory into
// BackupDirectory and shift the generations along, so "<Name>_backup1.txt" holds the
// state at this exit, "_backup2" the exit before and "_backup3" the one before that.
// Every step that fails is passed over and the next one runs; nothing is shown, and no
// failure stops the rotation of the other files. Files whose flag is false are not
// touched at all.
void RotateBackups(const RecordStore& store, Platform& platform);

}  // namespace qh
