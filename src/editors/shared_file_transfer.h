#pragma once
// The two halves of ButtonShare around the shared record line (shared_record_file.h):
// the dialogs, the file, and the messages. Neither half touches the record store or the
// form; the editor puts a read record into its controls itself.
#include <optional>
#include <string>

#include "editors/shared_record_file.h"
#include "platform/platform.h"

namespace qh {

// Reads the head of a shared file: at most one line of the kind's length and its line
// end, so a large file is never loaded. Nothing when the file cannot be read (missing,
// no permission, a folder or a device).
std::optional<std::string> readSharedFileHead(FileSystem& files, const std::string& path, SharedKind kind);

// Writes a whole shared file through a temporary file renamed over the target. Returns
// the message naming the file when that fails, which leaves no partial file behind, and
// nothing when the file is written.
std::optional<std::string> writeSharedFile(FileSystem& files, const std::string& path, const std::string& bytes);

// The writing half: the save dialog in `documentDirectory` offering `defaultName`, then
// the file. No message follows a write; a failed write shows its message. Returns true
// when the file was written, false on cancel or failure.
bool ShareOut(Platform& platform, const std::string& documentDirectory, SharedKind kind, const std::string& defaultName,
              const std::string& fileBytes);

// The reading half: the open dialog in `documentDirectory`, then the file's first line.
// Nothing on cancel, and nothing after showing the kind's "This is not ... file." when the
// file is not one of the kind or cannot be read.
std::optional<SharedAssignment> ShareInAssignment(Platform& platform, const std::string& documentDirectory);
std::optional<SharedTask> ShareInTask(Platform& platform, const std::string& documentDirectory);
std::optional<SharedEvent> ShareInEvent(Platform& platform, const std::string& documentDirectory);

}  // namespace qh
