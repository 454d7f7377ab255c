#include "editors/editor_windows.h"

#include "editors/frm_assignment.h"
#include "editors/frm_course_schedule.h"
#include "editors/frm_event.h"
#include "editors/frm_select_course_schedule.h"
#include "editors/frm_task.h"

namespace qh {

EditorWindows::EditorWindows(Platform& platform, EditorHost& host) : platform_(platform), host_(host) {}

EditorWindows::~EditorWindows() = default;

void EditorWindows::LoadAll() {
    assignment_ = std::make_unique<FrmAssignment>(platform_, host_);
    assignment_->Form_Load();
    selectCourseSchedule_ = std::make_unique<FrmSelectCourseSchedule>(platform_);
    selectCourseSchedule_->Form_Load();
    courseSchedule_ = std::make_unique<FrmCourseSchedule>(platform_, host_);
    courseSchedule_->Form_Load();
    task_ = std::make_unique<FrmTask>(platform_, host_);
    task_->Form_Load();
    event_ = std::make_unique<FrmEvent>(platform_, host_);
    event_->Form_Load();
    order_ = {assignment_.get(), selectCourseSchedule_.get(), courseSchedule_.get(), task_.get(), event_.get()};
}

void EditorWindows::CloseAll() {
    for (auto it = order_.rbegin(); it != order_.rend(); ++it) platform_.windowing.close(**it, UnloadMode::ProgramEnd);
}

}  // namespace qh
