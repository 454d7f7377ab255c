#include "export/export_page.h"

#include "common/failure.h"

namespace qh {
namespace {

void tell(Platform& platform, const std::string& text) {
    platform.messages.show(text, kExportErrorTitle, MessageButtons::OK, MessageIcon::Exclamation);
}

}  // namespace

std::string TemplatePath(const Platform& platform, const std::string& templateFile) {
    return joinPath(platform.environment.get("U3_DEVICE_EXEC_PATH"), templateFile);
}

bool WriteExportPage(Platform& platform, const std::string& templatePath, const std::string& pagePath,
                     const std::function<std::string(std::string_view templateText)>& makePage) {
    std::string templateText;
    try {
        templateText = platform.files.readAll(templatePath);
    } catch (const FileFailure&) {
        tell(platform, "The template \"" + templatePath + "\" could not be read.\n\nNo page was written.");
        return false;
    }
    try {
        platform.files.writeWholeUnsynced(pagePath, makePage(templateText));
    } catch (const FileFailure&) {
        tell(platform, "The page \"" + pagePath + "\" could not be written.\n\nCheck that its folder exists and "
                       "that the file is not open in another program.");
        return false;
    }
    return true;
}

}  // namespace qh
