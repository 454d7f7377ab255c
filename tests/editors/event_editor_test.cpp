// The event editor as a user drives it: the bytes of Events.txt after the saves the probe
// scripts leave out (the rule columns chosen by recurrence, edits writing back what they
// read), the recurrence panel's defaults as the radios and a new date set them, OK's
// refusals and the questions of cancel, close box and delete.
#include <gtest/gtest.h>

#include "calendar/month_cells.h"
#include "editors/editor_windows.h"
#include "editors/frm_event.h"
#include "editors/frm_task.h"
#include "editors/record_editor.h"
#include "support/record_fields.h"

namespace qh {
namespace {

// Picks `date` in date field `field` with the window's own picker, as a person does.
void pick(FrmEvent& w, const std::string& field, int year, int month, int day) {
    if (w.c("TimerCalendar").enabled) w.tick("TimerCalendar");
    w.click(field);
    DatePicker& picker = w.datePicker();
    ASSERT_TRUE(picker.visible());
    while ((year - picker.cells().year) * 12 + (month - picker.cells().month) != 0) {
        const char* arrow = year * 12 + month > picker.cells().year * 12 + picker.cells().month ? "LabelCalMonthUp"
                                                                                                 : "LabelCalMonthDown";
        w.press(arrow);
        w.release(arrow);
    }
    const int cell = CellForDate(picker.cells().firstCell, dateFromYmd(year, month, day));
    ASSERT_GE(cell, 0);
    w.click("LabelCalDate(" + std::to_string(cell) + ")");
}

struct Events : test::RecordEditor<FrmEvent> {
    explicit Events(const std::string& file = "")
        : RecordEditor("Events.txt", "frmEvent",
                       [](MainWindow& w, int row) { row == 0 ? w.NewEvent() : w.EditEvent(row); }, file) {}
    std::string longDate(int year, int month, int day) { return fake.locale.longDate(dateFromYmd(year, month, day)); }
};

const EventFields kBirthday{.recordNo = 1, .date = "2001/03/12", .description = "Ana's birthday", .type = "Birthday",
                            .recurrence = "Year", .sameDate = "True", .repeatNumber = "Second",
                            .repeatDay = "Monday", .endDate = "2031/03/12", .notes = "Cake\r\nCard",
                            .reminder = "7 Days"};
const EventFields kClub{.recordNo = 2, .date = "2026/10/30", .description = "Chess club", .type = "Friends",
                        .time = "4:30 pm", .recurrence = "Month", .sameDate = "False", .repeatNumber = "Last",
                        .repeatDay = "Friday", .end = "True", .endDate = "2027/06/25"};
const EventFields kGone{.recordNo = 3, .date = "2026/11/02", .description = "DELETED RECORD"};
// Monday and Wednesday from Monday 2 November to 16 December.
const EventFields kClass{.recordNo = 4, .date = "2026/11/02", .description = "Swim class", .type = "Class",
                         .time = "7:00 am", .recurrence = "Day", .repeatDaily = "TFTFFFF", .end = "True",
                         .endDate = "2026/12/16"};

std::string fourEvents() { return eventRecord(kBirthday) + eventRecord(kClub) + eventRecord(kGone) + eventRecord(kClass); }

TEST(EventEditor, EachKindOfSaveWritesTheRecordByteForByte) {
    test::expectEachSave<Events, FrmEvent>({
        // A one-off stores the yearly controls as they stand, and the end date the
        // yearly panel proposed, with no end.
        {"NewOneOffStoresTheYearlyControls", "", 0,
         [](FrmEvent& w) {
             w.type("TextBoxEvent", "Dentist");
             w.click("RadioRepeatYearly");
             w.click("RadioRepeatNone");
             w.select("ComboType", "Personal");
             w.click("ButtonOK");
         },
         eventRecord({.date = "2026/11/21", .description = "Dentist", .type = "Personal", .repeatNumber = "Third",
                      .repeatDay = "Saturday", .endDate = "2031/11/21"})},
        // Opened and saved without a change, each kind writes back what it read.
        {"EditsWithoutChangeRewriteTheSameRecords", fourEvents(), 1,
         [](FrmEvent& w) { w.click("ButtonOK"); }, fourEvents()},
        {"EditOfTheMonthlyRule", fourEvents(), 2, [](FrmEvent& w) { w.click("ButtonOK"); }, fourEvents()},
        {"EditOfTheWeeklyRule", fourEvents(), 3,
         [](FrmEvent& w) {
             w.click("CheckBoxFriday");
             w.click("ButtonOK");
         },
         eventRecord(kBirthday) + eventRecord(kClub) + eventRecord(kGone) +
             eventRecord(test::with(kClass, [](EventFields& e) { e.repeatDaily = "TFTFTFF"; }))},
        // The yearly event has no end: switching the end on takes the proposal shown.
        {"EditSwitchesTheProposedEndOn", fourEvents(), 1,
         [](FrmEvent& w) {
             w.click("CheckboxEndDate");
             w.click("ButtonOK");
         },
         eventRecord(test::with(kBirthday, [](EventFields& e) {
             e.end = "True";
             e.endDate = "2006/03/12";
         })) + eventRecord(kClub) + eventRecord(kGone) + eventRecord(kClass)},
    });
}

// The panel as the radios and the dates set it, and the two heights of the window.
TEST(EventEditor, ThePanelTakesTheDefaultsOfItsDate) {
    Events events;
    events.run(0, [&](FrmEvent& w) {
        EXPECT_EQ(w.height, FrmEvent::kSmallHeight);
        EXPECT_EQ(w.LabelViewRecurring->caption, "Show Recurring Events");
        w.click("LabelViewRecurring");
        EXPECT_EQ(w.height, FrmEvent::kLargeHeight);
        EXPECT_EQ(w.LabelViewRecurring->caption, "Hide Recurring Events");

        // The last day of a month: "Last" "Day", an end six months on.
        pick(w, "TextboxEventDate", 2026, 11, 30);
        w.click("RadioRepeatMonthly");
        EXPECT_TRUE(w.RadioMonthlyThisDate->checked);
        EXPECT_EQ(w.ComboMonthlyNumber->text, "Last");
        EXPECT_EQ(w.ComboMonthlyDay->text, "Day");
        EXPECT_EQ(w.LabelDate->caption, "Start Date");
        EXPECT_TRUE(w.CheckboxEndDate->checked);
        EXPECT_EQ(w.LabelEndDate->caption, "End Date");
        EXPECT_EQ(w.TextboxEndDate->text, events.longDate(2027, 5, 30));
        EXPECT_EQ(w.TextboxEndDate->foreColor, kBlack);
        EXPECT_GT(w.c("FrameMonthly").z, w.c("FrameNone").z);

        // A new date resets the rule to that date's defaults.
        pick(w, "TextboxEventDate", 2026, 11, 12);
        EXPECT_EQ(w.ComboMonthlyNumber->text, "Second");
        EXPECT_EQ(w.ComboMonthlyDay->text, "Thursday");

        // Yearly: the month named, no end, though the date five years on is shown.
        w.click("RadioRepeatYearly");
        EXPECT_EQ(w.LabelRepeatMonth->caption, "of Every November");
        EXPECT_EQ(w.ComboYearlyNumber->text, "Second");
        EXPECT_EQ(w.ComboYearlyDay->text, "Thursday");
        EXPECT_TRUE(w.RadioEndNone->checked);
        EXPECT_EQ(w.TextboxEndDate->text, events.longDate(2031, 11, 12));
        EXPECT_EQ(w.TextboxEndDate->foreColor, rgb(128, 128, 128));
        EXPECT_GT(w.c("FrameYearly").z, w.c("FrameMonthly").z);

        // Daily: the date's own weekday; boxes changed by hand follow the next date.
        w.click("RadioRepeatDaily");
        EXPECT_EQ(w.weekdayLetters(), "FFFTFFF");
        EXPECT_EQ(w.TextboxEndDate->text, events.longDate(2026, 11, 26));
        w.click("CheckBoxMonday");
        w.click("CheckBoxThursday");
        EXPECT_EQ(w.weekdayLetters(), "TFFFFFF");
        pick(w, "TextboxEventDate", 2026, 11, 22);
        EXPECT_EQ(w.weekdayLetters(), "FFFFFFT");

        w.click("RadioRepeatNone");
        EXPECT_EQ(w.LabelDate->caption, "Date");
        EXPECT_FALSE(w.CheckboxEndDate->checked);
        EXPECT_GT(w.c("FrameNone").z, w.c("FrameDaily").z);

        // The picker opens over the frame just brought to the front; a picked end date
        // counts at once.
        if (w.c("TimerCalendar").enabled) w.tick("TimerCalendar");
        w.click("picButtonEndDate");
        EXPECT_GT(w.c("picCalendar").z, w.c("FrameNone").z);
        w.click("TextBoxNotes");
        pick(w, "TextboxEndDate", 2026, 12, 5);
        EXPECT_TRUE(w.RadioEndOn->checked);
        EXPECT_EQ(w.StoreEndDate, dateFromYmd(2026, 12, 5));
        w.type("TextBoxEvent", "Fair");
        w.click("ButtonOK");
        EXPECT_EQ(w.height, FrmEvent::kSmallHeight);
    });
    // A recurring event opens large with its rule's panel in front; its missing end shows
    // the proposal. (The rule's values are read back whole by the unchanged edits of the
    // save table.)
    events.run(1, [&](FrmEvent& w) {
        EXPECT_EQ(w.height, FrmEvent::kSmallHeight);  // a one-off
        w.click("ButtonCancel");
    });
    Events stored(fourEvents());
    stored.run(1, [&](FrmEvent& w) {
        EXPECT_EQ(w.caption, "Quillhollow - Edit Event");
        EXPECT_EQ(w.height, FrmEvent::kLargeHeight);
        EXPECT_EQ(w.LabelRepeatMonth->caption, "of Every March");
        EXPECT_EQ(w.TextboxEndDate->text, stored.longDate(2006, 3, 12));
        EXPECT_FALSE(w.hasChanges());
        w.click("ButtonCancel");
    });
    stored.run(2, [&](FrmEvent& w) {
        EXPECT_GT(w.c("FrameMonthly").z, w.c("FrameYearly").z);
        w.click("ButtonCancel");
    });
    EXPECT_TRUE(stored.messageTexts().empty());
}

// OK's four checks, the first failing one alone; cancel, close box and delete with their
// questions.
TEST(EventEditor, ChecksAndQuestionsInTheirOrder) {
    test::expectEachQuestion<Events, FrmEvent>(fourEvents(), {
        {"NoNameWinsOverNoDays", 0, {},
         [](FrmEvent& w) {
             w.click("RadioRepeatDaily");
             w.click("CheckBoxSaturday");
             w.click("ButtonOK");
         },
         {"This Event has no name."}, true, EditorOutcome::Cancelled},
        {"EndBeforeTheDate", 0, {},
         [](FrmEvent& w) {
             w.type("TextBoxEvent", "Run");
             w.click("RadioRepeatMonthly");
             pick(w, "TextboxEndDate", 2026, 11, 20);
             w.click("ButtonOK");
         },
         {"The 'End on' Date occurs before the Event Date."}, true, EditorOutcome::Cancelled},
        // The 9th is a Monday of the second run: "First" "Monday" doesn't fit it.
        {"RuleThatMissesItsDate", 0, {},
         [](FrmEvent& w) {
             w.type("TextBoxEvent", "Run");
             pick(w, "TextboxEventDate", 2026, 11, 9);
             w.click("RadioRepeatYearly");
             w.click("RadioYearlyUser");
             w.select("ComboYearlyNumber", "First");
             w.click("ButtonOK");
         },
         {"This Event does not recur on the same days that it starts on."}, true,
         EditorOutcome::Cancelled},
        // A misfit in the yearly panel is not read for a monthly event.
        {"OnlyTheChosenPanelIsChecked", 0, {},
         [](FrmEvent& w) {
             w.type("TextBoxEvent", "Rent");
             w.click("RadioRepeatYearly");
             w.click("RadioYearlyUser");
             w.select("ComboYearlyNumber", "First");
             w.click("RadioRepeatMonthly");
             w.click("ButtonOK");
         },
         {}, false, EditorOutcome::Saved},
        {"CancelOfANewEventRefused", 0, {MessageAnswer::No},
         [](FrmEvent& w) {
             w.type("TextBoxEvent", "Run");
             w.click("ButtonCancel");
             EXPECT_EQ(w.TextBoxEvent->text, "Run");
             EXPECT_TRUE(w.hasChanges());
         },
         {"Cancel this Event?"}, true, EditorOutcome::Cancelled},
        {"CloseBoxOfAnEditAsksAndHides", 2, {MessageAnswer::Yes},
         [](FrmEvent& w) {
             w.select("ComboTime", "None");
             EXPECT_FALSE(w.requestClose(UnloadMode::CloseBox));
         },
         {"Cancel all changes to this Event?"}, false, EditorOutcome::Cancelled},
        {"DeleteRefused", 2, {MessageAnswer::No},
         [](FrmEvent& w) {
             w.click("ButtonDelete");
             EXPECT_EQ(w.TextBoxEvent->text, "Chess club");
         },
         {"Are you sure you want to Delete this Event?"}, true, EditorOutcome::Cancelled},
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
