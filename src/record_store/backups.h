#pragma once
// The rolling copies of the record files, made when the program closes.
#include <string>
#include <vector>

#include "common/failure.h"
#include "platform/platform.h"
#include "record_store/columns.h"

namespace qh {

// For each record file whose change flag is true, in the fixed order Terms, Classes,
// Assignments, Notes, StudySessions, Tasks, Events, then the planner's own CalendarLinks: copy it from DataDirectory into
// BackupDirectory and shift the generations along, so "<Name>_backup1.txt" holds the
// state at this exit, "_backup2" the exit before and "_backup3" the one before that.
// The generations shift only after the fresh copy is written whole: a file whose copy
// fails keeps every generation it had. Those files are told once, in one message, after
// all the others have rotated. Any other failing step is passed over silently, and no
// failure stops the rotation of the other files. Files whose flag is false are not
// touched at all.
void RotateBackups(const RecordStore& store, Platform& platform);

// "No new backup of Terms.txt and Tasks.txt could be written (no space left on the
// drive). The older backups were kept."
std::string BackupFailedText(const std::vector<std::string>& fileNames, FileProblem why);

}  // namespace qh
