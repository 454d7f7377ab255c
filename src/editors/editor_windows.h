#pragma once
// The five editor windows of a run. They are built and loaded, hidden, at one step of the
// main window's load, in a fixed order, live for the whole run and are closed at its end;
// between uses they are hidden, never destroyed.
#include <memory>
#include <vector>

#include "platform/form.h"
#include "platform/platform.h"

namespace qh {

class EditorHost;
class FrmAssignment;
class FrmSelectCourseSchedule;
class FrmCourseSchedule;
class FrmTask;
class FrmEvent;

class EditorWindows {
public:
    EditorWindows(Platform& platform, EditorHost& host);
    ~EditorWindows();

    // Builds the windows and runs their Form_Load, in the order frmAssignment,
    // frmSelectCourseSchedule, frmCourseSchedule, FrmTask, frmEvent.
    void LoadAll();
    // Closes them for the program's end, the last loaded first.
    void CloseAll();
    bool loaded() const { return !order_.empty(); }
    // The windows in their load order; empty before LoadAll.
    const std::vector<Form*>& windows() const { return order_; }

    FrmAssignment& assignment() { return *assignment_; }
    FrmSelectCourseSchedule& selectCourseSchedule() { return *selectCourseSchedule_; }
    FrmCourseSchedule& courseSchedule() { return *courseSchedule_; }
    FrmTask& task() { return *task_; }
    FrmEvent& event() { return *event_; }

private:
    Platform& platform_;
    EditorHost& host_;
    std::unique_ptr<FrmAssignment> assignment_;
    std::unique_ptr<FrmSelectCourseSchedule> selectCourseSchedule_;
    std::unique_ptr<FrmCourseSchedule> courseSchedule_;
    std::unique_ptr<FrmTask> task_;
    std::unique_ptr<FrmEvent> event_;
    std::vector<Form*> order_;
};

}  // namespace qh
