#pragma once
#include <string>
#include <vector>

namespace qh {

// One entry of a file dialog's filter: "HTML Files (*.html)" and "*.html".
struct FileFilter {
    std::string name;
    std::string pattern;
    bool operator==(const FileFilter&) const = default;
};

struct FileDialogRequest {
    bool open = false;            // true: the open dialog; false: the save dialog
    bool askBeforeReplace = false;
    std::string startPath;        // start file name, may be empty
    std::string startDirectory;   // empty: the data directory of the caller
    std::string title;
    std::vector<FileFilter> filters;
    std::string defaultExtension;  // without the dot
};

struct FileDialogAnswer {
    bool chosen = false;
    int errorCode = 0;  // the toolkit's failure code; 0 when none (chosen or cancelled)
    std::string fullPath;
    std::string fileTitle;
};

struct PrinterAnswer {
    bool chosen = false;
    int errorCode = 0;
    std::string printerName;
    int copies = 1;  // as chosen in the dialog, which offers 1 first
};

// The toolkit's file and print dialogs. The layer above (platform/common_dialog.h) turns their
// failures into the planner's message.
class Dialogs {
public:
    virtual ~Dialogs() = default;
    virtual FileDialogAnswer fileDialog(const FileDialogRequest& request) = 0;
    virtual PrinterAnswer printerDialog() = 0;
};

}  // namespace qh
