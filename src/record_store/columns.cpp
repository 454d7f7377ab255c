#include "record_store/columns.h"

namespace qh {

void RecordStore::clearTermBoundColumns() {
    for (TextColumn* column :
         {&AssignmentRecordNos, &AssignmentIDs, &AssignmentClassLinks, &AssignmentDates, &AssignmentTypes,
          &AssignmentDifficulties, &AssignmentEstTimes, &AssignmentDescriptions, &AssignmentDones,
          &AssignmentGrades, &AssignmentWeights, &AssignmentReminders, &StudySessionRecordNos,
          &StudySessionLinkIDs, &StudySessionLengths, &StudySessionDates, &NoteRecordNos, &NoteLinkIDs})
        column->clear();
}

}  // namespace qh
