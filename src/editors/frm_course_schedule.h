#pragma once
// frmCourseSchedule: one term with its whole class schedule.
#include "platform/control_ref.h"
#include "platform/platform.h"

namespace qh {

class EditorHost;

class FrmCourseSchedule : public Form {
public:
    FrmCourseSchedule(Platform& platform, EditorHost& host);
};

}  // namespace qh
