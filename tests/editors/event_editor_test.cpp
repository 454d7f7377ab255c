// What the event editor's window does that the probe scripts cannot show (its saves,
// panel defaults, checks and questions are event_editor_checks_and_saves's): which
// recurrence frame lies in front, and where the controls of both editor windows lie.
#include <gtest/gtest.h>

#include <functional>

#include "editors/editor_windows.h"
#include "editors/frm_event.h"
#include "editors/frm_task.h"
#include "support/main_window_fixture.h"
#include "support/record_fields.h"

namespace qh {
namespace {

// The main window on 21 November 2026 with `file` as its events.
struct Events : LoadedMainWindow {
    explicit Events(const std::string& file = "") {
        if (!file.empty()) putDataFile("Events.txt", file);
        fake.clock.set(2026, 11, 21);
        load();
    }
    // Opens the event of list row `row`, 0 for a new one, and drives the editor with `step`.
    void run(int row, const std::function<void(FrmEvent&)>& step) {
        drive<FrmEvent>("frmEvent", step);
        row == 0 ? window->NewEvent() : window->EditEvent(row);
    }
};

// The frame of the chosen rule lies on top of the others, since they share one place in
// the window: as a radio chooses it, as a stored monthly event opens, and the date
// picker over the frame just brought to the front.
TEST(EventEditor, TheChosenRulesFrameLiesInFront) {
    Events events(eventRecord({.date = "2026/10/30",
                               .description = "Chess club",
                               .recurrence = "Month",
                               .sameDate = "False",
                               .repeatNumber = "Last",
                               .repeatDay = "Friday"}));
    events.run(0, [](FrmEvent& w) {
        w.click("LabelViewRecurring");
        w.click("RadioRepeatMonthly");
        EXPECT_GT(w.c("FrameMonthly").z, w.c("FrameNone").z);
        w.click("RadioRepeatYearly");
        EXPECT_GT(w.c("FrameYearly").z, w.c("FrameMonthly").z);
        w.click("RadioRepeatDaily");
        w.click("RadioRepeatNone");
        EXPECT_GT(w.c("FrameNone").z, w.c("FrameDaily").z);
        if (w.c("TimerCalendar").enabled) w.tick("TimerCalendar");
        w.click("picButtonEndDate");
        EXPECT_GT(w.c("picCalendar").z, w.c("FrameNone").z);
        w.click("ButtonCancel");
    });
    events.run(1, [](FrmEvent& w) {
        EXPECT_GT(w.c("FrameMonthly").z, w.c("FrameYearly").z);
        w.click("ButtonCancel");
    });
}

// Every control of both windows lies inside its container, the window's client area at
// its large size for the event window, so that nothing is cut off or lost behind an edge
// (the picker's calendar excepted, which the calendar component lays out).
TEST(EventEditor, EveryControlLiesInsideItsContainer) {
    Events events;
    for (Form* form : {static_cast<Form*>(&events.window->editors->task()),
                       static_cast<Form*>(&events.window->editors->event())}) {
        if (form->name() == "frmEvent") form->setOuterSize(FrmEvent::kOuterWidth, FrmEvent::kLargeHeight);
        for (const std::string& key : form->order()) {
            const Control& control = form->c(key);
            // The picker's calendar is the calendar component's own layout.
            if (control.kind == ControlKind::Timer || (form->isInside(key, "picCalendar") && key != "picCalendar"))
                continue;
            SCOPED_TRACE(form->name() + "." + key);
            const int width = control.container.empty() ? form->scaleWidth : form->c(control.container).width;
            const int height = control.container.empty() ? form->scaleHeight : form->c(control.container).height;
            EXPECT_GE(control.left, 0);
            EXPECT_GE(control.top, 0);
            EXPECT_LE(control.left + control.width, width);
            EXPECT_LE(control.top + control.height, height);
        }
    }
}

}  // namespace
}  // namespace qh
