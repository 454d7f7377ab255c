#include "platform/file_system.h"

namespace qh {

std::string joinPath(const std::string& folder, const std::string& name) {
    if (folder.empty()) return "/" + name;
    if (folder.back() == '/') return folder + name;
    return folder + "/" + name;
}

}  // namespace qh
