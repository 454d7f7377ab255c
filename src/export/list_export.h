#pragma once
// The list of the main window as an HTML page: the template of the mode copied line by
// line, the creation note put in place of each "~", and after every line holding
// "INSERT" one table row per list row.
//
// The rows are those the list builders keep in the view state, in the order they are
// shown: nothing is gathered again. Cell texts are kept raw here and escaped as they go
// into the page, so a description such as "Read <Hamlet> & take notes" reads the same in
// the browser as in the planner.
#include <string>
#include <string_view>
#include <vector>

#include "platform/locale.h"
#include "record_store/columns.h"
#include "list_view/main_window_state.h"

namespace qh {

// The filter of every export's save dialog.
inline constexpr const char* kExportFilter =
    "HTML Files (*.html)|*.html|HTM Files (*.htm)|*.htm|All Files (*.*)|*.*";

// What a mode's export writes: its names, and the lines of one table row. Each cell line
// holds "INSERT" where the cell's text goes.
struct ListExportForm {
    const char* defaultName;
    const char* dialogTitle;
    const char* templateFile;
    const char* rowOpen;
    const char* firstCell;
    const char* otherCell;
    const char* rowClose;
};

// The form of a list mode; Mode::None has none (nullptr).
const ListExportForm* ListExportFormOf(Mode mode);

using ListCells = std::vector<std::vector<std::string>>;

// The cells of every row of the list now shown in `mode`, in list order.
ListCells ListExportCells(Mode mode, const RecordStore& store, const MainWindowState& state, const Locale& locale);

// The page: the template's lines, each "~" replaced by `creationNote`, each line holding
// "INSERT" (any case) followed by all rows. Every line ends in CR LF.
std::string FillListTemplate(std::string_view templateText, const ListExportForm& form, const ListCells& rows,
                             std::string_view creationNote);

// "Created on " and the date in the long form.
std::string CreationNote(const Locale& locale, Date today);

}  // namespace qh
