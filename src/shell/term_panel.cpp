// The term panel (which term is active and how many days are left of it) and the status bar.
#include <algorithm>

#include "record_store/record_files.h"
#include "record_store/storage_locations.h"
#include "shell/main_window.h"

namespace qh {

void MainWindow::SelectTerm(std::string termName) {
    store.CurrentTermName.clear();
    store.CurrentTermID = 0;
    store.CurrentTermStart = store.CurrentTermEnd = dateFromYmd(2000, 1, 1);
    store.clearTermBoundColumns();

    auto takeRow = [this](int i) {
        store.CurrentTermID = int16OrZero(store.TermIDs(i));
        store.CurrentTermName = store.TermNames(i);
        store.CurrentTermStart = dateFromText(store.TermStarts(i));
        store.CurrentTermEnd = dateFromText(store.TermEnds(i));
    };
    // No break at a match: of two terms of one name the later wins.
    for (int i = 1; i <= store.TermNames.count(); ++i)
        if (store.TermNames(i) == termName) takeRow(i);
    if (store.CurrentTermName.empty()) {
        for (int i = store.TermNames.count(); i >= 1; --i) {
            if (store.TermNames(i) != kDeletedRecord) {
                takeRow(i);
                break;
            }
        }
    }

    const bool noTerm = store.CurrentTermName.empty() || store.CurrentTermName == kDeletedRecord;
    if (!noTerm) files->LoadAssignments();
    if (noTerm) {
        ui.LabelTerm->caption = "No Term Selected";
        ui.LabelDaysLeft->caption.clear();
    } else {
        ui.LabelTerm->caption = store.CurrentTermName;
        const long long left = static_cast<long long>(store.CurrentTermEnd) - platform.clock.today();
        ui.LabelDaysLeft->caption = left == 1  ? "1 Day Left in Term"
                                     : left > 1 ? std::to_string(left) + " Days Left in Term"
                                                : "0 Days Left in Term";
    }
    Refresh(RefreshReason::NewTerm);
}

void MainWindow::PaintStatusBar() {
    Canvas& bar = *ui.picStatusBar->canvas;
    bar.clear(kButtonFace);
    const int w = bar.scaleWidth(), h = bar.scaleHeight();
    const Color shadow = rgb(160, 160, 160);
    const int l = 45, t = 45, r = w - 45, b = h - 45;
    bar.line(l, t, r, t, shadow);
    bar.line(l, t, l, b, shadow);
    bar.line(l, b, r, b, kWhite);
    bar.line(r, t, r, b + 15, kWhite);
    bar.setForeColor(kBlack);
    CanvasFont font;
    font.name = "MS Sans Serif";
    font.size = 8;
    bar.setFont(font);
    const std::string text =
        store.DriveReadOnly ? std::string(kReadOnlyText) + "      " + state.StatusBarText : state.StatusBarText;
    // The line sits in the middle of the frame, so its descenders stay inside it whatever
    // height the desktop's font gives the line.
    const int top = t + std::max(15, (b - t - bar.textHeight()) / 2);
    const Moment now = platform.clock.now();
    const std::string right = platform.locale.longDate(now.date) + "      " + platform.locale.mediumTime(now.seconds);
    const int textLeft = 150, dateLeft = w - bar.textWidth(right) - 150, gap = 300;
    // A status longer than its room ends in "..." instead of running under the date; the
    // bar's accessible name keeps the whole of it.
    bar.printText(textLeft, top, FitToWidth(bar, text, dateLeft - gap - textLeft, "..."));
    bar.printText(dateLeft, top, right);
    ui.picStatusBar->accessibleName = text + ", " + right;
}

}  // namespace qh
