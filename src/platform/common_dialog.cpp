#include "platform/common_dialog.h"

#include <map>

#include "platform/message_box.h"

namespace qh {
namespace {

const std::map<int, std::string>& errorTexts() {
    static const std::map<int, std::string> texts = {
        {-1,
         "The dialog box could not be created.\n"
         "The common dialog box function\u2019s call to the DialogBox function failed. For example, this error "
         "occurs if the common dialog box call specifies an invalid window handle."},
        {1, "The lStructSize member of the initialization structure for the corresponding common dialog box is "
            "invalid."},
        {2, "The common dialog box function failed during initialization. This error often occurs when "
            "sufficient memory is not available."},
        {3, "The ENABLETEMPLATE flag was set in the Flags member of the initialization structure for the "
            "corresponding common dialog box, but a corresponding template was not provided."},
        {4, "The ENABLETEMPLATE flag was set in the Flags member of the initialization structure for the "
            "corresponding common dialog box, but a corresponding instance handle was not provide."},
        {5, "The common dialog box function failed to load a specified string."},
        {6, "The common dialog box function failed to find a specified resource."},
        {7, "The common dialog box function failed to load a specified resource."},
        {8, "The common dialog box function failed to lock a specified resource."},
        {9, "The common dialog box function was unable to allocate memory for internal structures."},
        {10, "The common dialog box function was unable to lock the memory associated with a handle."},
        {11, "The ENABLEHOOK flag was set in the Flags member of the initialization structure for the "
             "corresponding common dialog box, but a pointer to a corresponding hook procedure was not "
             "provided."},
        {12, "The RegisterWindowMessage function returned an error code when it was called by the common "
             "dialog box function."},
        {4097, "The DLG_PrintDialog function failed to load the required resources."},
        {4098, "The DLG_PrintDialog function failed to parse the strings in the [devices] section of the WIN.INI "
               "file."},
        {4099, "The PD_RETURNDEFAULT flag was specified in the Flags member of the PRINTDLG structure, but the "
               "hDevMode or hDevNames member was not NULL."},
        {4100, "The DLG_PrintDialog function failed to load the device driver for the specified printer."},
        {4101,
         "The printer driver failed to initialize a DEVMODE structure.\n"
         "This error code applies only to printer drivers written for Windows versions 3.0 and later."},
        {4102, "The DLG_PrintDialog function failed during initialization, and there is no more specific "
               "extended error code to describe the failure."},
        {4103, "No printer drivers were found."},
        {4104, "A default printer does not exist."},
        {4105, "The data in the DEVMODE and DEVNAMES structures describes two different printers."},
        {4106, "The DLG_PrintDialog function failed when it attempted to create an information context."},
        {4107, "The [devices] section of the WIN.INI file did not contain an entry for the requested printer."},
        {4108,
         "You called the DLG_PrintDialog function with the DN_DEFAULTPRN flag specified in the wDefault member "
         "of the DEVNAMES structure, but the printer described by the other structure members did not match "
         "the current default printer.\n\n"
         "This error occurs when the DEVNAMES structure is stored and the user changes the default printer by "
         "using the Control Panel."},
        {8193, "No fonts exist."},
        {8194, "The size specified in the nSizeMax member of the CHOOSEFONT structure is less than the size "
               "specified in the nSizeMin member."},
        {12289, "An attempt to subclass a list box failed because sufficient memory was not available."},
        {12290, "A filename is invalid."},
        {12291, "The buffer pointed to by the lpstrFile member of the OPENFILENAME structure is too small for the "
                "filename specified by the user."},
    };
    return texts;
}

// The name part of a path, after the last separator of either kind.
std::string titleOf(const std::string& path) {
    const std::size_t slash = path.find_last_of("/\\");
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

}  // namespace

std::vector<FileFilter> splitFileFilter(const std::string& filter) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    while (start < filter.size()) {
        const std::size_t bar = filter.find('|', start);
        if (bar == std::string::npos) {
            parts.push_back(filter.substr(start));
            break;
        }
        parts.push_back(filter.substr(start, bar - start));
        start = bar + 1;
    }
    std::vector<FileFilter> filters;
    for (std::size_t i = 0; i < parts.size(); i += 2)
        filters.push_back({parts[i], i + 1 < parts.size() ? parts[i + 1] : std::string()});
    return filters;
}

std::string commonDialogErrorText(int code) {
    if (code == 0) return {};
    if (code == 65535) code = -1;  // the 16-bit form of the same failure
    const auto& texts = errorTexts();
    auto it = texts.find(code);
    return it == texts.end() ? "Unknown Error" : it->second;
}

void DLG(Platform& platform, int code, const std::string& functionName) {
    if (code == 0) return;
    const std::string text = "COMDLG32.DLL encountered the following error while calling the '" + functionName +
                             "' function:\n\nError Number = " + std::to_string(code) +
                             "\nError Description = " + commonDialogErrorText(code);
    platform.messages.show(text, "  Common Dialog Error", MessageButtons::OK, MessageIcon::Exclamation);
}

bool CD_ShowOpen_Save(Platform& platform, std::int32_t& flags, std::string& fullPath, std::string& fileTitle,
                      const std::string& startDirectory, const std::string& dialogTitle,
                      const std::string& filter, const std::string& defaultExtension, bool open) {
    FileDialogRequest request;
    request.open = open;
    request.askBeforeReplace = (flags & kAskBeforeReplace) != 0;
    request.startPath = fullPath;
    request.startDirectory = startDirectory;
    request.title = dialogTitle;
    request.filters = splitFileFilter(filter);
    request.defaultExtension = defaultExtension;

    FileDialogAnswer answer;
    try {
        answer = platform.dialogs.fileDialog(request);
    } catch (const std::exception&) {
        // A dialog that could not be shown at all is the toolkit's "could not be created".
        answer = {};
        answer.errorCode = -1;
    }
    DLG(platform, answer.errorCode, "DLG_GetOpenFileName");
    if (!answer.chosen || answer.errorCode != 0 || answer.fullPath.empty()) {
        flags = 0;
        fullPath.clear();
        fileTitle.clear();
        return false;
    }
    fullPath = answer.fullPath;
    fileTitle = answer.fileTitle.empty() ? titleOf(answer.fullPath) : answer.fileTitle;
    return true;
}

bool CD_ShowPrinter(Platform& platform, std::string& printerName, int& copies) {
    PrinterAnswer answer;
    try {
        answer = platform.dialogs.printerDialog();
    } catch (const std::exception&) {
        answer = {};
        answer.errorCode = -1;
    }
    DLG(platform, answer.errorCode, "DLG_PrintDialog");
    if (!answer.chosen || answer.errorCode != 0) {
        printerName.clear();
        copies = 0;
        return false;
    }
    printerName = answer.printerName;
    copies = answer.copies;
    return true;
}

}  // namespace qh
