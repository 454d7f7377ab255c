#pragma once
// What the Qt tests share: the application object, made once, without a display
// (QT_QPA_PLATFORM=offscreen), and a fake platform that draws for real.
#include "platform/fake/fake_platform.h"
#include "platform/qt/application.h"

namespace qh {

// The application object, made at the first call.
Application& testApplication();

// The fake platform with real canvases in place of the recording ones, for windows whose
// pixels a test looks at.
Platform withCanvases(FakePlatform& fake, CanvasFactory& canvases);

}  // namespace qh
