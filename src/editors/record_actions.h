#pragma once
// The record actions: each prepares an editor window from the record store, shows it
// modal over the main window and, after it hides, acts on its outcome: Cancelled changes
// nothing; Saved and Deleted read the window's fields into the columns (a delete leaves
// the tombstone in them), write the record through the record files and ask the main
// window for the refresh. Nothing else opens an editor.
//
// Each returns false when a write failed. The record files have told the user which file;
// the columns keep the change, so the file's next save writes it.
#include "common/day_number.h"
#include "platform/platform.h"
#include "record_store/columns.h"

namespace qh {

class EditorHost;
class EditorWindows;
class RecordFiles;

class RecordActions {
public:
    RecordActions(RecordStore& store, RecordFiles& files, Platform& platform, EditorHost& host,
                  EditorWindows& windows);

    bool NewAssignment();
    bool EditAssignment(int row);
    bool NewTask();
    bool EditTask(int row);
    bool NewEvent();
    bool EditEvent(int row);
    // Term selection and the class schedule: frmSelectCourseSchedule, then
    // frmCourseSchedule, then the term and class columns and SaveTermsAndClasses.
    bool EditClassSchedule();

private:
    RecordStore& store_;
    RecordFiles& files_;
    Platform& platform_;
    EditorHost& host_;
    EditorWindows& windows_;
};

}  // namespace qh
