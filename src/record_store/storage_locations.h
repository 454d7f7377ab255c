#pragma once
// Where the planner's files lie on the drive, and the two failure reports every file
// routine of the record store shares.
//
// DataDirectory is U3_DEVICE_DOCUMENT_PATH + "/Quillhollow/Data", BackupDirectory its
// "Backup" folder, DocumentDirectory U3_DEVICE_DOCUMENT_PATH + "/Quillhollow". The process's
// current directory is never changed: "entering" a directory means checking that it is
// there, and bare file names are then resolved against it (dataFilePath).
#include <string>

#include "common/failure.h"
#include "platform/platform.h"
#include "record_store/columns.h"

namespace qh {

// Sets the help file and the three directories, makes the missing ones (each one level,
// a failing make passed over), then enters the data directory. When that last step
// fails it shows "Error creating Quillhollow Data Directory" and returns false: the
// caller then ends the run at once without saving anything. Sets DriveReadOnly when the
// data directory may not be written.
[[nodiscard]] bool SetStorageLocations(RecordStore& store, Platform& platform);

// Checks that `directory` exists as a directory; throws FileFailure when it does not.
// This is the directory step every file routine begins with.
void EnterDirectory(Platform& platform, const std::string& directory);

// A bare file name of the data directory as a full path.
std::string dataFilePath(const RecordStore& store, const std::string& fileName);

// "Quillhollow - Directory Error": the directory step of a file routine failed. The run
// goes on.
void ReportDirectoryError(MessageBoxes& messages);

// "Quillhollow - File Read Error" ("Quillhollow - File Write Error" when Action is
// "writing"): "Error <Action> the file: <FileName>", with the reason in words when the
// system gave one ("... Tasks.txt (no space left on the drive)"). Clears the change flag of the file named FileName
// (none for a name that is not one of the seven record files, such as ""), so a file that met an error in this run is
// not rotated into the backups at exit. Undoes nothing else.
void ReportFileError(RecordStore& store, MessageBoxes& messages, const std::string& FileName, const std::string& Action,
                     FileProblem why = FileProblem::Other);

// The message texts, for callers and tests that compare them.
extern const char* const kDirectoryErrorTitle;     // "Quillhollow - Directory Error"
extern const char* const kFileErrorTitle;          // "Quillhollow - File Read Error"
extern const char* const kFileWriteErrorTitle;     // "Quillhollow - File Write Error"
extern const char* const kDataDirectoryErrorText;  // shown by SetStorageLocations
extern const char* const kDirectoryErrorText;      // shown by ReportDirectoryError
extern const char* const kReadOnlyText;            // "Read-only: changes cannot be saved"
std::string fileErrorText(const std::string& FileName, const std::string& Action, FileProblem why = FileProblem::Other);

}  // namespace qh
