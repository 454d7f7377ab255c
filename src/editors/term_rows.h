#pragma once
// The changes the class schedule makes to the term and class columns, and the filling of
// the schedule window from them. Term IDs and class IDs are texts in the columns, as in
// the files; the window's class lists are kept in parallel, tombstones included.
#include <string>

#include "common/day_number.h"
#include "record_store/columns.h"

namespace qh {

class FrmCourseSchedule;

// Removes the term's row from the four term columns and every class row linked to it
// from the six class columns, from the last row to the first.
void RemoveTermRows(RecordStore& store, const std::string& termID);
// Tombstones the term's rows and its classes' names; every row keeps its place.
void DeleteTermRows(RecordStore& store, const std::string& termID);
// Appends the window's term (name and dates, trailing blanks removed) and every row of its
// class lists, linked to `termID`, at the end of the columns.
void StoreTermRows(RecordStore& store, const FrmCourseSchedule& window, const std::string& termID);
// Fills the window with the term of that ID (a term without rows: empty name, today as
// both dates) and all its classes, tombstones too; NextClassID past every class ID.
void LoadTermIntoSchedule(const RecordStore& store, FrmCourseSchedule& window, const std::string& termID, Date today);
// Fills the window with a new term named as `sourceID`, from today for 70 days, with
// copies of the source's live classes under new IDs (so no assignment comes along).
void NewTermBasedOn(const RecordStore& store, FrmCourseSchedule& window, const std::string& sourceID, Date today);
// The highest term ID plus 1 (1 when there is none).
std::string NextTermID(const RecordStore& store);

}  // namespace qh
