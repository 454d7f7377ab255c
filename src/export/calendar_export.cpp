#include "export/calendar_export.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "common/flag_text.h"
#include "common/text.h"
#include "export/page_text.h"
#include "list_view/list_rows.h"
#include "list_view/record_index.h"
#include "list_view/time_text.h"
#include "recurrence/event_rule.h"
#include "recurrence/occurrence.h"

namespace qh {
namespace {

const std::string kNone;  // a missing field reads as empty
constexpr int kTitle = 0, kNote = 1, kDayNames = 2, kDayNumbers = 9, kContents = 51;
// Homework: the study lines of the 42 cells, then five slots per cell.
constexpr int kHomeworkSlots = 93, kHomeworkSlotsPerDay = 5, kHomeworkLines = 4;
// Tasks and events: six slots per cell, the last the day's header.
constexpr int kDaySlots = 6, kDayLines = 5;

const CalendarSheetForm kForms[] = {
    {" Homework Calendar.html", "Export Assignments to HTML Calendar File", "Homework Calendar Template.html",
     " Homework Calendar"},
    {" Task Calendar.html", "Export Tasks to HTML Calendar File", "Tasks-Events Calendar Template.html",
     " Task Calendar"},
    {" Event Calendar.html", "Export Events to HTML Calendar File", "Tasks-Events Calendar Template.html",
     " Event Calendar"},
};

std::string link(const std::string& title, std::string_view shown) {
    return "<a title=\"" + title + "\" href=\"#top\">" + EscapeHtml(shown) + "</a>";
}

std::optional<Date> dateOf(const std::string& field) { return parseDateText(field); }

// The slots of one day: its entries in the order added, in at most `lines` slots. A day
// with more entries than slots shows the first ones and, as its last line, how many more
// it has ("+3 more"), so that no entry leaves the sheet without a trace.
class DayLines {
public:
    DayLines(CalendarFill& fill, int first, int lines) : fill_(fill), first_(first), lines_(lines) {}
    void add(std::string text) { entries_.push_back(std::move(text)); }
    // Writes the day's slots, blank below its last entry.
    void write() {
        const std::size_t lines = std::size_t(lines_);
        const bool overflow = entries_.size() > lines;
        const std::size_t shown = overflow ? lines - 1 : entries_.size();
        for (std::size_t j = 0; j < lines; ++j) {
            std::string& slot = fill_.texts[std::size_t(first_) + j];
            if (j < shown)
                slot = std::move(entries_[j]);
            else if (j == shown && overflow)
                slot = "&nbsp;+" + std::to_string(entries_.size() - shown) + " more";
            else
                slot = std::string(kBlankCell);
        }
    }

private:
    CalendarFill& fill_;
    int first_, lines_;
    std::vector<std::string> entries_;
};

void fillHomeworkDays(CalendarFill& fill, const RecordStore& s, const CalendarFrame& frame) {
    const StudyTimeByLink studied(s);
    const RowsById classes(s.ClassIDs);
    const int assignments = s.AssignmentRecordNos.count();
    std::vector<std::optional<Date>> due(std::size_t(assignments) + 1);
    for (int i = 1; i <= assignments; ++i) due[std::size_t(i)] = dateOf(s.AssignmentDates.valueOr(i, kNone));
    std::vector<std::pair<Date, long long>> study;  // date and minutes of every counted session
    for (int i = 1; i <= s.StudySessionRecordNos.count(); ++i) {
        if (IdNumber(s.StudySessionLinkIDs.valueOr(i, kNone)) == -1) continue;
        if (const auto date = dateOf(s.StudySessionDates.valueOr(i, kNone)))
            study.emplace_back(*date, ReadSpan(s.StudySessionLengths.valueOr(i, kNone)).totalMinutes());
    }
    auto className = [&](int i) {
        std::string name;
        bool found = false;
        classes.forEach(IdNumber(s.AssignmentClassLinks.valueOr(i, kNone)), [&](int row) {
            if (!found) name = s.ClassNames.valueOr(row, kNone);
            found = true;
        });
        return name;
    };
    auto linkOf = [&](int i, const std::string& tail) {
        return link(EscapeHtml(s.AssignmentTypes(i)) + ": " + EscapeHtml(s.AssignmentDescriptions(i)) + tail,
                    FirstCharacters(className(i), 14));
    };

    for (int c = 0; c < 42; ++c) {
        const Date day = frame.dates[std::size_t(c)];
        long long studiedToday = 0;
        for (const auto& [date, minutes] : study)
            if (date == day) studiedToday += minutes;
        fill.texts[std::size_t(kContents + c)] =
            studiedToday > 0 ? "&nbsp;" + SheetTime(studiedToday) + " Study Time" : std::string(kBlankCell);

        const int first = kHomeworkSlots + kHomeworkSlotsPerDay * c;
        DayLines lines(fill, first, kHomeworkLines);
        long long estimated = 0, spent = 0;
        for (const bool done : {false, true}) {
            for (int i = 1; i <= assignments; ++i) {
                if (due[std::size_t(i)] != day || s.AssignmentDescriptions(i) == kDeletedRecord) continue;
                if (isTrueFlag(s.AssignmentDones.valueOr(i, kNone)) != done) continue;
                if (done) {
                    lines.add("&nbsp;<font color=\"Silver\">0:00</font>&nbsp;" + linkOf(i, " (Done)"));
                    continue;
                }
                // Every open assignment counts toward the day, also those past the four lines.
                const long long sessions = studied.of(IdNumber(s.AssignmentIDs.valueOr(i, kNone))).totalMinutes();
                const long long estimate = ReadSpan(s.AssignmentEstTimes.valueOr(i, kNone)).totalMinutes();
                estimated += estimate;
                spent += sessions;
                lines.add("&nbsp;" + SheetTime(std::max(0LL, estimate - sessions)) + "&nbsp;" +
                          linkOf(i, " (" + EscapeHtml(s.AssignmentDifficulties.valueOr(i, kNone)) + ")"));
            }
        }
        lines.write();
        const long long left = std::max(0LL, estimated - spent);
        fill.texts[std::size_t(first + kHomeworkLines)] =
            left > 0 ? "&nbsp;" + SheetTime(left) + "&nbsp;Time Left" : std::string(kBlankCell);
    }
}

void fillTaskDays(CalendarFill& fill, const RecordStore& s, const CalendarFrame& frame) {
    const int tasks = s.TaskRecordNos.count();
    std::vector<std::optional<Date>> dated(std::size_t(tasks) + 1);
    for (int i = 1; i <= tasks; ++i)
        if (isTrueFlag(s.TaskDateExists.valueOr(i, kNone)) && s.TaskDescriptions.valueOr(i, kNone) != kDeletedRecord)
            dated[std::size_t(i)] = dateOf(s.TaskDates.valueOr(i, kNone));
    for (int c = 0; c < 42; ++c) {
        const Date day = frame.dates[std::size_t(c)];
        const int first = kContents + kDaySlots * c;
        DayLines lines(fill, first, kDayLines);
        bool open = false;
        for (const bool done : {false, true}) {
            for (int i = 1; i <= tasks; ++i) {
                if (dated[std::size_t(i)] != day || isTrueFlag(s.TaskDones.valueOr(i, kNone)) != done) continue;
                open = open || !done;
                const std::string& priority = s.TaskPriorities.valueOr(i, kNone);
                const std::string& description = s.TaskDescriptions(i);
                const std::string title = (priority == "None" ? std::string() : EscapeHtml(priority) + " Priority: ") +
                                          EscapeHtml(description) + (done ? " - Done" : " - Not Done");
                lines.add(std::string(done ? "&nbsp;X:&nbsp;" : "&nbsp;0:&nbsp;") +
                          link(title, FirstCharacters(description, 18)));
            }
        }
        lines.write();
        fill.texts[std::size_t(first + kDayLines)] = open ? "&nbsp;&nbsp;" : std::string(kBlankCell);
    }
}

void fillEventDays(CalendarFill& fill, const RecordStore& s, const CalendarFrame& frame) {
    struct Live {
        int row;
        EventRule rule;
    };
    std::vector<Live> events;  // the last record first
    for (int i = s.EventRecordNos.count(); i >= 1; --i)
        if (s.EventDescriptions.valueOr(i, kNone) != kDeletedRecord) events.push_back({i, readEventRule(s, i)});
    for (int c = 0; c < 42; ++c) {
        const CalendarDay day = calendarDay(frame.dates[std::size_t(c)]);
        const int first = kContents + kDaySlots * c;
        DayLines lines(fill, first, kDayLines);
        for (const Live& event : events) {
            if (!occursOn(event.rule, day)) continue;
            const std::string& time = s.EventTimes.valueOr(event.row, kNone);
            const std::string& description = s.EventDescriptions(event.row);
            const std::string title = (time == "None" ? std::string() : EscapeHtml(time) + " - ") + EscapeHtml(description);
            lines.add("&nbsp;" + link(title, FirstCharacters(description, 20)));
        }
        lines.write();
        fill.texts[std::size_t(first + kDayLines)].clear();
    }
}

std::vector<int> orderOf(CalendarSheet sheet) {
    std::vector<int> order;
    order.reserve(kCalendarMarkers);
    for (int e = 0; e < kDayNumbers; ++e) order.push_back(e);
    const bool homework = sheet == CalendarSheet::Homework;
    const int lines = homework ? kHomeworkLines : kDayLines;
    auto slot = [&](int c, int j) {
        return homework ? kHomeworkSlots + kHomeworkSlotsPerDay * c + j : kContents + kDaySlots * c + j;
    };
    for (int w = 0; w < 6; ++w) {
        for (int d = 0; d < 7; ++d) {
            order.push_back(slot(7 * w + d, lines));
            order.push_back(kDayNumbers + 7 * w + d);
        }
        for (int j = 0; j < lines; ++j)
            for (int d = 0; d < 7; ++d) order.push_back(slot(7 * w + d, j));
        if (homework)
            for (int d = 0; d < 7; ++d) order.push_back(kContents + 7 * w + d);
    }
    return order;
}

}  // namespace

CalendarSheet CalendarSheetOf(Mode mode) {
    if (mode == Mode::Tasks) return CalendarSheet::Tasks;
    if (mode == Mode::Events) return CalendarSheet::Events;
    return CalendarSheet::Homework;
}

const CalendarSheetForm& CalendarSheetFormOf(CalendarSheet sheet) { return kForms[int(sheet)]; }

std::string CalendarDefaultName(CalendarSheet sheet, std::string_view monthName) {
    std::string name = std::string(monthName) + CalendarSheetFormOf(sheet).nameEnding;
    if (sheet == CalendarSheet::Homework) return name;
    for (char& ch : name) {
        if (std::string_view("*|\\:<>?/").find(ch) != std::string_view::npos) ch = ' ';
        if (ch == '"') ch = '\'';
    }
    return name;
}

std::string SheetTime(long long minutes) {
    return std::to_string((minutes / 60) % 10) + ":" + twoDigits(minutes % 60);
}

CalendarFill FillCalendar(CalendarSheet sheet, const RecordStore& store, const CalendarFrame& frame) {
    CalendarFill fill;
    fill.texts[kTitle] = frame.title;
    fill.texts[kNote] = frame.creationNote;
    for (int d = 0; d < 7; ++d) fill.texts[std::size_t(kDayNames + d)] = frame.dayNames[std::size_t(d)];
    for (int c = 0; c < 42; ++c) fill.texts[std::size_t(kDayNumbers + c)] = std::to_string(dayOf(frame.dates[std::size_t(c)]));

    switch (sheet) {
        case CalendarSheet::Homework: fillHomeworkDays(fill, store, frame); break;
        case CalendarSheet::Tasks: fillTaskDays(fill, store, frame); break;
        case CalendarSheet::Events: fillEventDays(fill, store, frame); break;
    }

    // Cell 20 always lies in the month shown.
    const int month = monthOf(frame.dates[20]);
    for (int c = 0; c < 42; ++c) {
        if (monthOf(frame.dates[std::size_t(c)]) == month) continue;
        if (sheet == CalendarSheet::Homework) {
            fill.gray[std::size_t(kContents + c)] = true;
            for (int j = 0; j < kHomeworkSlotsPerDay; ++j)
                fill.gray[std::size_t(kHomeworkSlots + kHomeworkSlotsPerDay * c + j)] = true;
        } else {
            for (int j = 0; j < kDaySlots; ++j) fill.gray[std::size_t(kContents + kDaySlots * c + j)] = true;
        }
    }
    return fill;
}

const std::vector<int>& CalendarOrder(CalendarSheet sheet) {
    static const std::vector<int> homework = orderOf(CalendarSheet::Homework);
    static const std::vector<int> days = orderOf(CalendarSheet::Tasks);
    return sheet == CalendarSheet::Homework ? homework : days;
}

std::string FillCalendarTemplate(std::string_view templateText, CalendarSheet sheet, const CalendarFill& fill) {
    const std::vector<int>& order = CalendarOrder(sheet);
    const bool homework = sheet == CalendarSheet::Homework;
    std::string page;
    page.reserve(templateText.size() * 2);
    std::size_t k = 0;
    for (const std::string_view templateLine : TemplateLines(templateText)) {
        if (templateLine.find('~') == std::string_view::npos || k >= order.size()) {
            page.append(templateLine).append(kPageLineEnd);
            continue;
        }
        const std::size_t e = std::size_t(order[k++]);
        const std::string& text = fill.texts[e];
        const bool blank = text == kBlankCell;
        // The classes are swapped on the template's line, before the text goes in, so that
        // a record text never takes part in a swap.
        std::string line(templateLine);
        if (ContainsIgnoringCase(line, "xredbg") && (blank || sheet == CalendarSheet::Events))
            line = ReplaceIgnoringCase(line, "xredbg", "xblackbg");
        if (homework && blank && ContainsIgnoringCase(line, "xgreenbg"))
            line = ReplaceIgnoringCase(line, "xgreenbg", "xwhitebg");
        if (fill.gray[e]) {
            for (char n = '1'; n <= (homework ? '4' : '3'); ++n)
                line = ReplaceIgnoringCase(line, std::string("xwhite") + n, std::string("xgray") + n);
        }
        page.append(ReplaceIgnoringCase(line, "~", text)).append(kPageLineEnd);
    }
    return page;
}

}  // namespace qh
