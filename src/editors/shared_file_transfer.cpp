#include "editors/shared_file_transfer.h"

#include "common/failure.h"
#include "platform/common_dialog.h"

namespace qh {
namespace {

// A line longer than the kind's shows in the two bytes past it: the reader then finds no
// line end where one must be.
constexpr std::size_t kLineEndBytes = 2;

std::optional<std::string> chooseFile(Platform& platform, const std::string& documentDirectory, SharedKind kind,
                                      bool open, const std::string& defaultName) {
    std::int32_t flags = open ? 0 : kAskBeforeReplace;
    std::string fullPath = open ? std::string() : joinPath(documentDirectory, defaultName);
    std::string fileTitle;
    const SharedKindTexts& texts = sharedKindTexts(kind);
    if (!CD_ShowOpen_Save(platform, flags, fullPath, fileTitle, documentDirectory,
                          open ? texts.openTitle : texts.saveTitle, kSharedFileFilter, "txt", open))
        return std::nullopt;
    return fullPath;
}

template <class Record>
std::optional<Record> shareIn(Platform& platform, const std::string& documentDirectory, SharedKind kind,
                              std::optional<Record> (*read)(std::string_view)) {
    const auto path = chooseFile(platform, documentDirectory, kind, true, "");
    if (!path) return std::nullopt;
    const auto head = readSharedFileHead(platform.files, *path, kind);
    std::optional<Record> record = head ? read(*head) : std::nullopt;
    if (!record)
        platform.messages.show(sharedKindTexts(kind).notThisKind, "Quillhollow", MessageButtons::OK,
                               MessageIcon::Information);
    return record;
}

}  // namespace

std::optional<std::string> readSharedFileHead(FileSystem& files, const std::string& path, SharedKind kind) {
    try {
        return files.readHead(path, std::size_t(sharedKindTexts(kind).lineLength) + kLineEndBytes);
    } catch (const FileFailure&) {
        return std::nullopt;
    }
}

std::optional<std::string> writeSharedFile(FileSystem& files, const std::string& path, const std::string& bytes) {
    try {
        files.writeWhole(path, bytes);
        return std::nullopt;
    } catch (const FileFailure&) {
        return "The file " + path + " could not be written.";
    }
}

bool ShareOut(Platform& platform, const std::string& documentDirectory, SharedKind kind, const std::string& defaultName,
              const std::string& fileBytes) {
    const auto path = chooseFile(platform, documentDirectory, kind, false, defaultName);
    if (!path) return false;
    if (const auto failure = writeSharedFile(platform.files, *path, fileBytes)) {
        platform.messages.show(*failure, "Quillhollow", MessageButtons::OK, MessageIcon::Exclamation);
        return false;
    }
    return true;
}

std::optional<SharedAssignment> ShareInAssignment(Platform& platform, const std::string& documentDirectory) {
    return shareIn(platform, documentDirectory, SharedKind::Assignment, &readSharedAssignment);
}

std::optional<SharedTask> ShareInTask(Platform& platform, const std::string& documentDirectory) {
    return shareIn(platform, documentDirectory, SharedKind::Task, &readSharedTask);
}

std::optional<SharedEvent> ShareInEvent(Platform& platform, const std::string& documentDirectory) {
    return shareIn(platform, documentDirectory, SharedKind::Event, &readSharedEvent);
}

}  // namespace qh
