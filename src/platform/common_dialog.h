#pragma once
// The file and print dialogs as the planner's export, share and print commands call them.
// Failures of the toolkit never reach the caller: they are shown in the "Common Dialog
// Error" message and the caller sees False, exactly as after a cancel.
#include <cstdint>
#include <string>
#include <vector>

#include "platform/dialogs.h"
#include "platform/platform.h"

namespace qh {

// Flag of CD_ShowOpen_Save: ask before replacing an existing file (saves pass it).
inline constexpr std::int32_t kAskBeforeReplace = 2;

// Shows the open dialog (`open` true) or the save dialog.
//   flags           in: options (kAskBeforeReplace); out: 0 on cancel or failure.
//   fullPath        in: the start file name; out: the chosen path.
//   fileTitle       out: the chosen file's name without its directory.
//   startDirectory  empty: the current directory.
//   filter          "Name|pattern|Name|pattern", a trailing "|" allowed.
//   defaultExtension given to a name typed without one (no dot: "html").
// Returns true when a file was chosen. On cancel or failure: false, flags 0 and the three
// texts empty.
bool CD_ShowOpen_Save(Platform& platform, std::int32_t& flags, std::string& fullPath, std::string& fileTitle,
                      const std::string& startDirectory, const std::string& dialogTitle,
                      const std::string& filter, const std::string& defaultExtension, bool open);

// Shows the print dialog with one copy preset. Returns true, the printer's name and the
// copies chosen when a printer was chosen; false, an empty name and 0 copies on cancel or
// failure.
bool CD_ShowPrinter(Platform& platform, std::string& printerName, int& copies);

// "HTML Files (*.html)|*.html|All Files (*.*)|*.*" as its entries. A trailing "|" ends the
// list; a name without a pattern after it gets an empty pattern.
std::vector<FileFilter> splitFileFilter(const std::string& filter);

// The description of a toolkit failure code ("Unknown Error" for codes not in the table).
// Code 0 is no failure and has no text.
std::string commonDialogErrorText(int code);

// The error check after each dialog: code 0 (cancel or success) shows nothing; any other
// shows the "  Common Dialog Error" message naming `functionName`.
void DLG(Platform& platform, int code, const std::string& functionName);

}  // namespace qh
