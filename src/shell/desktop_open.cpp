#include "shell/desktop_open.h"

#include "common/failure.h"

namespace qh {

void TellCannotOpen(MessageBoxes& messages, const std::string& pathOrAddress) {
    messages.show("Could not open \"" + pathOrAddress +
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
