#include "editors/frm_course_schedule.h"

namespace qh {

FrmCourseSchedule::FrmCourseSchedule(Platform&, EditorHost&) : Form("frmCourseSchedule") {}

}  // namespace qh
