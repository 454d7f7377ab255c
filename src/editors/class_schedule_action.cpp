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

bool RecordActions::EditClassSchedule() {
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
    if (select.outcome() == EditorOutcome::Cancelled) return true;
    using TermChoice = FrmSelectCourseSchedule::TermChoice;
    if (select.choice == TermChoice::MakeActive) {
        host_.selectTerm(select.ComboTermList->text);
        return true;
    }

    FrmCourseSchedule& schedule = windows_.courseSchedule();
    const Date today = platform_.clock.today();
    const auto selectedID = [&select] {
        const int line = select.ComboTermList->listIndex;
        if (line < 0 || line >= int(select.tempTermIDArray.size())) throw SubscriptOutOfRange();
        return select.tempTermIDArray[std::size_t(line)];
    };
    std::string termID;
    const bool newTerm = select.choice == TermChoice::NewSchedule;
    if (newTerm && !select.ComboTermList->items.empty() && select.CheckBoxBasedOnTerm->checked) {
        schedule.editMode = EditMode::NewBasedOn;
        termID = NextTermID(store_);
        NewTermBasedOn(store_, schedule, selectedID(), today);
    } else if (newTerm) {
        schedule.editMode = EditMode::New;
        termID = NextTermID(store_);
        LoadTermIntoSchedule(store_, schedule, termID, today);
    } else {
        schedule.editMode = EditMode::Edit;
        termID = selectedID();
        LoadTermIntoSchedule(store_, schedule, termID, today);
    }

    schedule.tempPreviousTermNamesArray.clear();
    for (int i = 1; i <= store_.TermIDs.count(); ++i) {
        if (store_.TermNames(i) == kDeletedRecord) continue;
        schedule.tempPreviousTermNamesArray.push_back(store_.TermNames(i));
        if (store_.TermIDs(i) == termID) schedule.ThisTermsPreviousName = store_.TermNames(i);
    }

    platform_.windowing.showModal(schedule, &host_.ownerWindow());
    if (schedule.outcome() == EditorOutcome::Cancelled) return true;

    const std::string wasActive = store_.CurrentTermName;
    bool written = true;
    if (schedule.editMode != EditMode::Edit) {
        StoreTermRows(store_, schedule, termID);
        written = files_.SaveTermsAndClasses();
        host_.selectTerm(schedule.TextBoxTermName->text);
    } else if (schedule.outcome() == EditorOutcome::Deleted) {
        DeleteTermRows(store_, termID);
        written = files_.SaveTermsAndClasses();
        if (wasActive == schedule.ThisTermsPreviousName) host_.selectTerm(store_.CurrentTermName);
    } else {
        RemoveTermRows(store_, termID);
        StoreTermRows(store_, schedule, termID);
        written = files_.SaveTermsAndClasses();
        if (wasActive == schedule.ThisTermsPreviousName) host_.selectTerm(schedule.TextBoxTermName->text);
    }
    return written;
}

}  // namespace qh
