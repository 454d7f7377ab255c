#include "shell/web_addresses.h"

#include <cctype>
#include <cstring>

#include "platform/environment.h"
#include "platform/file_system.h"

namespace qh {

std::string HelpBookFolder(const Environment& environment) {
    return joinPath(environment.get("U3_DEVICE_EXEC_PATH"), "help");
}

std::string HelpBookAddress(const Environment& environment, const std::string& page) {
    // A drive folder may hold blanks and other characters an address must escape.
    std::string address = "file://";
    const std::string folder = HelpBookFolder(environment);
    if (folder.empty() || folder[0] != '/') address += '/';
    static const char* hex = "0123456789ABCDEF";
    for (unsigned char ch : folder) {
        if (std::isalnum(ch) || std::strchr("/-._~", ch)) {
            address += char(ch);
        } else {
            address += '%';
            address += hex[ch >> 4];
            address += hex[ch & 15];
        }
    }
    return address + "/" + page;
}

}  // namespace qh
