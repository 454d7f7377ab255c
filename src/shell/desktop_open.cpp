#include "shell/desktop_open.h"

#include <string_view>

#include "common/failure.h"

namespace qh {

void TellCannotOpen(MessageBoxes& messages, const std::string& pathOrAddress) {
    // A page of the drive is named by its path, which a file manager finds.
    constexpr std::string_view kFileScheme = "file://";
    const std::string shown =
        pathOrAddress.starts_with(kFileScheme) ? pathOrAddress.substr(kFileScheme.size()) : pathOrAddress;
    messages.show("Could not open \"" + shown +
                      "\".\n\nNo program on this computer would open it. Set a default web browser, or open "
                      "the file from your file manager.",
                  "Quillhollow", MessageButtons::OK, MessageIcon::Exclamation);
}

bool OpenWithDesktop(Processes& processes, MessageBoxes& messages, const std::string& pathOrAddress) {
    try {
        processes.openWithDefaultHandler(pathOrAddress);
        return true;
    } catch (const FileFailure&) {
        TellCannotOpen(messages, pathOrAddress);
        return false;
    }
}

}  // namespace qh
