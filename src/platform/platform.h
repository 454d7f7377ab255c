#pragma once
// Everything the planner's logic needs from the machine, passed by reference. The program
// wires the Qt and POSIX implementations (platform/qt); tests wire FakePlatform.
#include "platform/calendar_items.h"
#include "platform/canvas.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/environment.h"
#include "platform/feeds.h"
#include "platform/file_system.h"
#include "platform/locale.h"
#include "platform/message_box.h"
#include "platform/notifications.h"
#include "platform/processes.h"
#include "platform/windowing.h"

namespace qh {

struct Platform {
    Environment& environment;
    Clock& clock;
    Locale& locale;
    MessageBoxes& messages;
    FileSystem& files;
    Processes& processes;
    Dialogs& dialogs;
    Windowing& windowing;
    CanvasFactory& canvases;
    CalendarCodec& calendars;
    // Last, with a default, so that a tool that shows no notices need not name it.
    Notifications& notifications = Notifications::none();
    FeedFetcher& feeds = FeedFetcher::none();
};

}  // namespace qh
