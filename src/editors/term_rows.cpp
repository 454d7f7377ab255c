#include "editors/term_rows.h"

#include <algorithm>
#include <array>

#include "common/int16.h"
#include "common/text.h"
#include "editors/frm_course_schedule.h"
#include "record_store/record_tables.h"

namespace qh {
namespace {

int highestOf(const TextColumn& ids) {
    int highest = 0;
    for (int i = 1; i <= ids.count(); ++i) highest = std::max(highest, int(int16OrZero(ids(i))));
    return highest;
}

// The window's class lists and the field of a class each holds.
struct ClassList {
    std::vector<std::string> FrmCourseSchedule::*list;
    std::string ClassBuffer::*field;
};
constexpr std::array<ClassList, 6> kClassLists{{
    {&FrmCourseSchedule::tempClassIDArray, &ClassBuffer::ID},
    {&FrmCourseSchedule::tempClassTermLinkArray, &ClassBuffer::TermLink},
    {&FrmCourseSchedule::tempClassNameArray, &ClassBuffer::Name},
    {&FrmCourseSchedule::tempClassForeColorArray, &ClassBuffer::ForeColor},
    {&FrmCourseSchedule::tempClassBackColorArray, &ClassBuffer::BackColor},
    {&FrmCourseSchedule::tempClassNotesArray, &ClassBuffer::Notes},
}};

void startSchedule(FrmCourseSchedule& window, Date today) {
    for (const ClassList& c : kClassLists) (window.*c.list).clear();
    window.tempTermName.clear();
    window.setTermStart(today);
    window.setTermEnd(today);
}

// The class of row `row` as the window's last class, under `id`: its own, or a new one
// for a term based on another.
void appendClass(FrmCourseSchedule& window, const RecordStore& store, int row, const std::string& id) {
    ClassBuffer values = kClassTable.rowOf(store, row);
    values.ID = id;
    for (const ClassList& c : kClassLists) (window.*c.list).push_back(std::move(values.*c.field));
}

}  // namespace

std::string NextTermID(const RecordStore& store) { return std::to_string(highestOf(store.TermIDs) + 1); }

void RemoveTermRows(RecordStore& store, const std::string& termID) {
    for (int i = store.TermIDs.count(); i >= 1; --i) {
        if (store.TermIDs(i) != termID) continue;
        for (TextColumn* column : kTermTable.columns(store)) column->removeAt(i);
    }
    for (int i = store.ClassTermLinks.count(); i >= 1; --i) {
        if (store.ClassTermLinks(i) != termID) continue;
        for (TextColumn* column : kClassTable.columns(store)) column->removeAt(i);
    }
}

void DeleteTermRows(RecordStore& store, const std::string& termID) {
    for (int i = 1; i <= store.TermIDs.count(); ++i)
        if (store.TermIDs(i) == termID) store.TermNames(i) = kDeletedRecord;
    for (int i = 1; i <= store.ClassTermLinks.count(); ++i)
        if (store.ClassTermLinks(i) == termID) store.ClassNames(i) = kDeletedRecord;
}

void StoreTermRows(RecordStore& store, const FrmCourseSchedule& window, const std::string& termID) {
    kTermTable.appendRow(store, {termID, trimRight(window.tempTermName), dateText(window.tempTermStartDate),
                                 dateText(window.tempTermEndDate)});
    // The class lists may be longer than the link list: an added class has no link yet,
    // so every class takes the term's.
    for (std::size_t row = 0; row < window.tempClassIDArray.size(); ++row) {
        ClassBuffer values;
        for (const ClassList& c : kClassLists)
            values.*c.field = c.field == &ClassBuffer::TermLink ? termID : trimRight((window.*c.list).at(row));
        kClassTable.appendRow(store, values);
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
