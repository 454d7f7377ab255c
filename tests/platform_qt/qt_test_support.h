#pragma once
// The application object of the Qt tests, made once, without a display
// (QT_QPA_PLATFORM=offscreen).
#include "platform/qt/application.h"

namespace qh {

Application& testApplication();

}  // namespace qh
