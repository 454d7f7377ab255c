#pragma once
// Writing an exported page: the template read from the program's folder, the page made
// from it and written whole. A page is never left half-written: the file layer writes a
// temporary file beside the target and renames it over. It does not wait for the disk: a
// page is not a record of the planner and the next export makes it again. A template that cannot be read or
// a target that cannot be written is told in a message naming the file; the planner goes
// on.
#include <functional>
#include <string>
#include <string_view>

#include "platform/platform.h"

namespace qh {

// The caption of the export failure messages.
inline constexpr const char* kExportErrorTitle = "Export";

// The full path of a template beside the program (the folder in U3_DEVICE_EXEC_PATH).
std::string TemplatePath(const Platform& platform, const std::string& templateFile);

// Reads `templatePath`, makes the page with `makePage` and writes it to `pagePath`.
// Returns false, after the message, when either file failed.
bool WriteExportPage(Platform& platform, const std::string& templatePath, const std::string& pagePath,
                     const std::function<std::string(std::string_view templateText)>& makePage);

}  // namespace qh
