// The schedule procedure: which term and what to do with it, then the class schedule of
// that term, then the term and class columns and their files.
#include "common/failure.h"
#include "common/text.h"
#include "editors/editor_host.h"
#include "editors/editor_windows.h"
#include "editors/frm_course_schedule.h"
#include "editors/frm_select_course_schedule.h"
#include "editors/record_actions.h"
#include "editors/term_rows.h"
#include "record_store/record_files.h"

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

    FrmCourseSchedule& schedule = windows_.courseSchedule();
    const Date today = platform_.clock.today();
    const auto selectedID = [&select] {
        const int line = select.ComboTermList->listIndex;
        if (line < 0 || line >= int(select.tempTermIDArray.size())) throw UntrappedFailure("Subscript out of range");
        return select.tempTermIDArray[std::size_t(line)];
    };
    std::string termID;
    if (select.NewCourse && !select.ComboTermList->items.empty() && select.CheckBoxBasedOnTerm->checked) {
        schedule.EditMode = "NewBasedOn";
        termID = NextTermID(store_);
        NewTermBasedOn(store_, schedule, termID, selectedID(), today);
    } else if (select.NewCourse) {
        schedule.EditMode = "New";
        termID = NextTermID(store_);
        LoadTermIntoSchedule(store_, schedule, termID, today);
    } else {
        schedule.EditMode = "Edit";
        termID = selectedID();
        LoadTermIntoSchedule(store_, schedule, termID, today);
    }

    for (auto* list : {&schedule.tempPreviousTermIDsArray, &schedule.tempPreviousTermNamesArray,
                       &schedule.tempPreviousTermStartArray, &schedule.tempPreviousTermEndArray})
        list->clear();
    for (int i = 1; i <= store_.TermIDs.count(); ++i) {
        if (store_.TermNames(i) == kDeletedRecord) continue;
        schedule.tempPreviousTermIDsArray.push_back(store_.TermIDs(i));
        schedule.tempPreviousTermNamesArray.push_back(store_.TermNames(i));
        schedule.tempPreviousTermStartArray.push_back(store_.TermStarts(i));
        schedule.tempPreviousTermEndArray.push_back(store_.TermEnds(i));
        if (store_.TermIDs(i) == termID) {
            schedule.ThisTermsPreviousID = store_.TermIDs(i);
            schedule.ThisTermsPreviousName = store_.TermNames(i);
        }
    }

    platform_.windowing.showModal(schedule, &host_.ownerWindow());
    if (schedule.CancelledFlag) return;

    const std::string wasActive = store_.CurrentTermName;
    // A failed save has already named its file to the user; the columns keep the change,
    // so the next save writes it.
    const auto save = [this] { static_cast<void>(files_.SaveTermsAndClasses()); };
    if (schedule.EditMode == "New" || schedule.EditMode == "NewBasedOn") {
        StoreTermRows(store_, schedule, termID);
        save();
        host_.selectTerm(schedule.TextBoxTermName->text);
    } else if (schedule.DeleteFlag) {
        DeleteTermRows(store_, termID);
        save();
        if (wasActive == schedule.ThisTermsPreviousName) host_.selectTerm(store_.CurrentTermName);
    } else {
        RemoveTermRows(store_, termID);
        StoreTermRows(store_, schedule, termID);
        save();
        if (wasActive == schedule.ThisTermsPreviousName) host_.selectTerm(schedule.TextBoxTermName->text);
    }
}

}  // namespace qh
