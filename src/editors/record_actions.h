#pragma once
// The record actions: each prepares an editor window from the record store, shows it
// modal over the main window, reads the window's fields after it hides, changes the
// columns, writes the record through the record files and asks the main window for the
// refresh. Nothing else opens an editor.
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

    void NewAssignment();
    void EditAssignment(int row);
    void NewTask();
    void EditTask(int row);
    void NewEvent();
    void EditEvent(int row);
    // Term selection and the class schedule: frmSelectCourseSchedule, then
    // frmCourseSchedule, then the term and class columns and SaveTermsAndClasses.
    void EditClassSchedule();

private:
    RecordStore& store_;
    RecordFiles& files_;
    Platform& platform_;
    EditorHost& host_;
    EditorWindows& windows_;
};

}  // namespace qh
