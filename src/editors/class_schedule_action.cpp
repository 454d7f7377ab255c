// The schedule procedure: which term and what to do with it, then the class schedule of
// that term, then the term and class columns and their files.
#include "common/text.h"
#include "editors/editor_host.h"
#include "editors/editor_windows.h"
#include "editors/frm_select_course_schedule.h"
#include "editors/record_actions.h"

namespace qh {

void RecordActions::EditClassSchedule() {
    FrmSelectCourseSchedule& select = windows_.selectCourseSchedule();
    select.ComboTermList->clearItems();
    select.CheckBoxBasedOnTerm->checked = false;
    select.tempTermIDArray.clear();

    if (store_.TermIDs.count() > 0) {
        // The newest term stands first.
        for (int i = store_.TermIDs.count(); i >= 1; --i) {
            if (store_.TermNames(i) == kDeletedRecord) continue;
            select.ComboTermList->addItem(store_.TermNames(i));
            select.tempTermIDArray.push_back(store_.TermIDs(i));
        }
        select.ButtonEdit->enabled = select.ButtonActive->enabled = true;
        if (!store_.CurrentTermName.empty()) {
            const auto& items = select.ComboTermList->items;
            for (std::size_t i = 0; i < items.size(); ++i)
                if (items[i] == store_.CurrentTermName) {
                    select.ComboTermList->listIndex = int(i);
                    select.ComboTermList->text = items[i];
                }
        }
    }
    if (select.ComboTermList->items.empty()) select.ButtonEdit->enabled = select.ButtonActive->enabled = false;

    platform_.windowing.showModal(select, &host_.ownerWindow());
    if (select.Cancelled) return;
    if (select.MakeActive) {
        host_.selectTerm(select.ComboTermList->text);
        return;
    }
}

}  // namespace qh
