#include "record_store/storage_locations.h"

#include "common/failure.h"

namespace qh {

const char* const kDirectoryErrorTitle = "Quillhollow - Directory Error";
const char* const kFileErrorTitle = "Quillhollow - File Read Error";
const char* const kFileWriteErrorTitle = "Quillhollow - File Write Error";
const char* const kReadOnlyText = "Read-only: changes cannot be saved";
const char* const kDataDirectoryErrorText =
    "Error creating Quillhollow Data Directory\r\n\r\n"
    "Please restart Quillhollow. If the error continues, please contact Quillhollow Software.";
const char* const kDirectoryErrorText =
    "Error creating or changing the File Directory.\r\n\r\n"
    "Do not continue working. Exit and restart Quillhollow. If the error continues, see the Help for more "
    "information.";

namespace {

// Makes a directory that does not answer to a query of its attributes. A path that
// exists as a file is not noticed here; the check of the data directory after the makes
// catches what matters.
void makeIfMissing(FileSystem& files, const std::string& directory) {
    if (files.exists(directory)) return;
    try {
        files.makeDirectory(directory);
    } catch (const FileFailure&) {
        // Passed over: entering the data directory is the step that decides.
    }
}

}  // namespace

bool SetStorageLocations(RecordStore& store, Platform& platform) {
    const std::string documents = platform.environment.get("U3_DEVICE_DOCUMENT_PATH");
    store.HelpFile = joinPath(platform.environment.get("U3_DEVICE_EXEC_PATH"), "QuillhollowHelp.chm");

    store.DataDirectory = joinPath(documents, "Quillhollow");
    store.DocumentDirectory = store.DataDirectory;
    makeIfMissing(platform.files, store.DataDirectory);

    store.DataDirectory = joinPath(store.DataDirectory, "Data");
    makeIfMissing(platform.files, store.DataDirectory);

    store.BackupDirectory = joinPath(store.DataDirectory, "Backup");
    makeIfMissing(platform.files, store.BackupDirectory);

    try {
        EnterDirectory(platform, store.DataDirectory);
    } catch (const FileFailure&) {
        platform.messages.show(kDataDirectoryErrorText, kDirectoryErrorTitle, MessageButtons::OK,
                               MessageIcon::Exclamation);
        return false;
    }
    store.DriveReadOnly = !platform.files.isWritable(store.DataDirectory);
    return true;
}

void EnterDirectory(Platform& platform, const std::string& directory) {
    // There are no drive letters to select here; the drive is part of every path.
    if (!platform.files.exists(directory) || !platform.files.isDirectory(directory))
        throw FileFailure("Not a directory: " + directory);
}

std::string dataFilePath(const RecordStore& store, const std::string& fileName) {
    return joinPath(store.DataDirectory, fileName);
}

void ReportDirectoryError(MessageBoxes& messages) {
    messages.show(kDirectoryErrorText, kDirectoryErrorTitle, MessageButtons::OK, MessageIcon::Exclamation);
}

std::string fileErrorText(const std::string& FileName, const std::string& Action, FileProblem why) {
    const std::string reason = problemInWords(why);
    return "Error " + Action + " the file: " + FileName + (reason.empty() ? "" : " (" + reason + ")") +
           "\r\n\r\nDo not continue working. Exit and restart Quillhollow. If the error continues, see the Help "
           "for more information.";
}

void ReportFileError(RecordStore& store, MessageBoxes& messages, const std::string& FileName, const std::string& Action,
                     FileProblem why) {
    messages.show(fileErrorText(FileName, Action, why), Action == "writing" ? kFileWriteErrorTitle : kFileErrorTitle,
                  MessageButtons::OK, MessageIcon::Exclamation);
    // A file that met an error in this run is kept out of the backups at exit.
    if (FileName == "Terms.txt") store.TermsChanged = kFalse;
    if (FileName == "Classes.txt") store.ClassesChanged = kFalse;
    if (FileName == "Assignments.txt") store.AssignmentsChanged = kFalse;
    if (FileName == "Notes.txt") store.NotesChanged = kFalse;
    if (FileName == "StudySessions.txt") store.StudySessionsChanged = kFalse;
    if (FileName == "Tasks.txt") store.TasksChanged = kFalse;
    if (FileName == "Events.txt") store.EventsChanged = kFalse;
}

}  // namespace qh
