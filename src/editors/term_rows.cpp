#include "editors/term_rows.h"

#include <algorithm>
#include <array>

#include "common/int16.h"
#include "common/text.h"
#include "editors/frm_course_schedule.h"
#include "record_store/record_bindings.h"

namespace qh {
namespace {

int highestOf(const TextColumn& ids) {
    int highest = 0;
    for (int i = 1; i <= ids.count(); ++i) highest = std::max(highest, int(int16OrZero(ids(i))));
    return highest;
}

// The window's class lists in the file order of a class's fields, as the class binding
// gives their columns.
std::array<std::vector<std::string>*, 6> classListsOf(FrmCourseSchedule& window) {
    return {&window.tempClassIDArray,        &window.tempClassTermLinkArray,  &window.tempClassNameArray,
            &window.tempClassForeColorArray, &window.tempClassBackColorArray, &window.tempClassNotesArray};
}

void startSchedule(FrmCourseSchedule& window, Date today) {
    for (auto* list : classListsOf(window)) list->clear();
    window.tempTermName.clear();
    window.setTermStart(today);
    window.setTermEnd(today);
}

// The class of row `row` as the window's last class, under `id`: its own, or a new one
// for a term based on another.
void appendClass(FrmCourseSchedule& window, const RecordStore& store, int row, const std::string& id) {
    std::vector<std::string> values = kClassBinding.valuesOfRow(store, row);
    values[kClassBinding.position("ID")] = id;
    const auto lists = classListsOf(window);
    for (std::size_t f = 0; f < lists.size(); ++f) lists[f]->push_back(std::move(values[f]));
}

}  // namespace

std::string NextTermID(const RecordStore& store) { return std::to_string(highestOf(store.TermIDs) + 1); }

void RemoveTermRows(RecordStore& store, const std::string& termID) {
    for (int i = store.TermIDs.count(); i >= 1; --i) {
        if (store.TermIDs(i) != termID) continue;
        for (TextColumn* column : kTermBinding.columns(store)) column->removeAt(i);
    }
    for (int i = store.ClassTermLinks.count(); i >= 1; --i) {
        if (store.ClassTermLinks(i) != termID) continue;
        for (TextColumn* column : kClassBinding.columns(store)) column->removeAt(i);
    }
}

void DeleteTermRows(RecordStore& store, const std::string& termID) {
    for (int i = 1; i <= store.TermIDs.count(); ++i)
        if (store.TermIDs(i) == termID) store.TermNames(i) = kDeletedRecord;
    for (int i = 1; i <= store.ClassTermLinks.count(); ++i)
        if (store.ClassTermLinks(i) == termID) store.ClassNames(i) = kDeletedRecord;
}

void StoreTermRows(RecordStore& store, const FrmCourseSchedule& window, const std::string& termID) {
    store.TermIDs.append(termID);
    store.TermNames.append(trimRight(window.tempTermName));
    store.TermStarts.append(dateText(window.tempTermStartDate));
    store.TermEnds.append(dateText(window.tempTermEndDate));
    // The class lists may be longer than the link list: an added class has no link yet.
    for (std::size_t row = 0; row < window.tempClassIDArray.size(); ++row) {
        store.ClassIDs.append(trimRight(window.tempClassIDArray[row]));
        store.ClassTermLinks.append(termID);
        store.ClassNames.append(trimRight(window.tempClassNameArray.at(row)));
        store.ClassForeColors.append(trimRight(window.tempClassForeColorArray.at(row)));
        store.ClassBackColors.append(trimRight(window.tempClassBackColorArray.at(row)));
        store.ClassNotes.append(trimRight(window.tempClassNotesArray.at(row)));
    }
}

void LoadTermIntoSchedule(const RecordStore& store, FrmCourseSchedule& window, const std::string& termID, Date today) {
    startSchedule(window, today);
    for (int i = 1; i <= store.TermIDs.count(); ++i) {
        if (store.TermIDs(i) != termID) continue;
        window.tempTermName = store.TermNames(i);
        window.setTermStart(dateFromText(store.TermStarts(i)));
        window.setTermEnd(dateFromText(store.TermEnds(i)));
    }
    window.NextClassID = Int16(highestOf(store.ClassIDs) + 1);
    for (int i = 1; i <= store.ClassIDs.count(); ++i)
        if (store.ClassTermLinks(i) == termID) appendClass(window, store, i, store.ClassIDs(i));
}

void NewTermBasedOn(const RecordStore& store, FrmCourseSchedule& window, const std::string& sourceID, Date today) {
    startSchedule(window, today);
    for (int i = 1; i <= store.TermIDs.count(); ++i)
        if (store.TermIDs(i) == sourceID) window.tempTermName = store.TermNames(i);
    window.setTermStart(today);
    window.setTermEnd(today + 70);
    window.NextClassID = Int16(highestOf(store.ClassIDs) + 1);
    for (int i = 1; i <= store.ClassIDs.count(); ++i) {
        if (store.ClassTermLinks(i) != sourceID || store.ClassNames(i) == kDeletedRecord) continue;
        appendClass(window, store, i, std::to_string(window.NextClassID));
        window.NextClassID = Int16(window.NextClassID + 1);
    }
}

}  // namespace qh
