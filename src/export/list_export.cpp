#include "export/list_export.h"

#include <algorithm>

#include "common/flag_text.h"
#include "common/text.h"
#include "export/page_text.h"
#include "list_view/list_rows.h"
#include "list_view/time_text.h"

namespace qh {
namespace {

constexpr const char* kRowOpen = "<tr height=21 style='mso-height-source:userset;height:15.95pt'>";

const ListExportForm kHomework{"Homework List.html",
                               "Export Assignment List to HTML File",
                               "Homework List Template.html",
                               kRowOpen,
                               "  <td height=21 class=xl30 style='height:15.95pt'>INSERT</td>",
                               "  <td class=xl30>INSERT</td>",
                               "</tr>"};
const ListExportForm kStudy{"Study Time List.html",
                            "Export Study Sessions to HTML File",
                            "Study List Template.html",
                            kRowOpen,
                            "  <td height=21 class=xl28 style='height:15.95pt'>INSERT</td>",
                            "  <td class=xl28>INSERT</td>",
                            "</tr>"};
const ListExportForm kTasks{"Task List.html",
                            "Export Tasks to HTML File",
                            "Task List Template.html",
                            kRowOpen,
                            "  <td height=21 class=xl29 style='height:15.95pt;border-top:none'>INSERT</td>",
                            "  <td class=xl29>INSERT</td>",
                            "</tr>"};
const ListExportForm kReminders{"Reminder List.html",
                                "Export Reminder List to HTML File",
                                "Reminder List Template.html",
                                kRowOpen,
                                "  <td height=21 class=xl29 style='height:15.95pt'>INSERT</td>",
                                "  <td class=xl29>INSERT</td>",
                                "</tr>"};
// Event rows open and close one blank further in.
const ListExportForm kEvents{"Event List.html",
                             "Export Event List to HTML File",
                             "Event List Template.html",
                             " <tr height=21 style='mso-height-source:userset;height:15.95pt'>",
                             "  <td height=21 class=xl29 style='height:15.95pt;border-top:none'>INSERT</td>",
                             "  <td class=xl29>INSERT</td>",
                             " </tr>"};

const std::string kNone;

// A record field in the medium date form; a field that holds no date stands as it is.
std::string mediumDateOf(const Locale& locale, const std::string& field) {
    const auto date = parseDateText(field);
    return date ? locale.mediumDate(*date) : field;
}

std::string withoutBlanks(const std::string& text) {
    std::string out = text;
    out.erase(std::remove(out.begin(), out.end(), ' '), out.end());
    return out;
}

const char* doneWord(const std::string& flag) { return isTrueFlag(flag) ? "Yes" : ""; }

std::string unlessNone(const std::string& text) { return text == "None" ? std::string() : text; }

std::string eventTime(const Locale& locale, const std::string& field) {
    if (field == "None") return {};
    const auto seconds = ParseTimeOfDay(field);
    return seconds ? locale.mediumTime(*seconds) : field;
}

// A cell line split at its "INSERT", so that a row is written by appending.
struct CellLine {
    std::string_view before, after;
    explicit CellLine(std::string_view literal) {
        const std::size_t at = literal.find("INSERT");
        before = literal.substr(0, at);
        after = literal.substr(at + 6);
    }
};

}  // namespace

const ListExportForm* ListExportFormOf(Mode mode) {
    switch (mode) {
        case Mode::Homework: return &kHomework;
        case Mode::StudySessions: return &kStudy;
        case Mode::Tasks: return &kTasks;
        case Mode::Reminders: return &kReminders;
        case Mode::Events: return &kEvents;
        case Mode::None: break;
    }
    return nullptr;
}

std::string CreationNote(const Locale& locale, Date today) { return "Created on " + locale.longDate(today); }

ListCells ListExportCells(Mode mode, const RecordStore& s, const MainWindowState& v, const Locale& locale) {
    ListCells rows;
    switch (mode) {
        case Mode::Homework:
            rows.reserve(std::size_t(v.ListAssignmentRows.count()));
            for (int p = 1; p <= v.ListAssignmentRows.count(); ++p) {
                const int r = v.ListAssignmentRows(p);
                rows.push_back({v.ListClassNames.valueOr(p, kNone), trim(s.AssignmentTypes.valueOr(r, kNone)),
                                s.AssignmentDescriptions.valueOr(r, kNone), trim(v.ListTimes.valueOr(p, kNone)),
                                mediumDateOf(locale, s.AssignmentDates.valueOr(r, kNone)),
                                doneWord(s.AssignmentDones.valueOr(r, kNone))});
            }
            break;
        case Mode::StudySessions:
            rows.reserve(std::size_t(v.ListSessionRows.count()));
            for (int p = 1; p <= v.ListSessionRows.count(); ++p) {
                // A session whose assignment is gone leaves the assignment column short.
                const int r = v.ListAssignmentRows.valueOr(p, 0);
                const int length = v.ListSessionLengthRows.valueOr(p, 0);
                const int doneOn = v.ListSessionDateRows.valueOr(p, 0);
                rows.push_back({v.ListClassNames.valueOr(p, kNone), trim(s.AssignmentTypes.valueOr(r, kNone)),
                                s.AssignmentDescriptions.valueOr(r, kNone),
                                trim(withoutBlanks(s.StudySessionLengths.valueOr(length, kNone))),
                                mediumDateOf(locale, s.StudySessionDates.valueOr(doneOn, kNone)),
                                mediumDateOf(locale, s.AssignmentDates.valueOr(r, kNone))});
            }
            break;
        case Mode::Tasks:
            rows.reserve(std::size_t(v.ListTaskRows.count()));
            for (const int r : v.ListTaskRows) {
                const bool dated = isTrueFlag(s.TaskDateExists.valueOr(r, kNone));
                rows.push_back({s.TaskDescriptions.valueOr(r, kNone), trim(s.TaskTypes.valueOr(r, kNone)),
                                trim(s.TaskPriorities.valueOr(r, kNone)),
                                dated ? mediumDateOf(locale, s.TaskDates.valueOr(r, kNone)) : std::string(" "),
                                doneWord(s.TaskDones.valueOr(r, kNone))});
            }
            break;
        case Mode::Reminders:
            rows.reserve(std::size_t(v.ReminderRecords.count()));
            for (int p = 1; p <= v.ReminderRecords.count(); ++p) {
                const std::string& className = v.ReminderClasses.valueOr(p, kNone);
                rows.push_back({className.empty() ? v.ReminderKinds.valueOr(p, kNone) : className,
                                v.ReminderTypes.valueOr(p, kNone), v.ReminderDescriptions.valueOr(p, kNone),
                                DateWord(v.ReminderDays.valueOr(p, 0)), std::string()});
            }
            break;
        case Mode::Events:
            rows.reserve(std::size_t(v.ListEventRows.count()));
            for (int p = 1; p <= v.ListEventRows.count(); ++p) {
                const int r = v.ListEventRows(p);
                rows.push_back({s.EventDescriptions.valueOr(r, kNone), s.EventTypes.valueOr(r, kNone),
                                locale.mediumDate(v.ListEventDates(p)),
                                eventTime(locale, s.EventTimes.valueOr(r, kNone)),
                                unlessNone(s.EventRecurrences.valueOr(r, kNone))});
            }
            break;
        case Mode::None: break;
    }
    return rows;
}

std::string FillListTemplate(std::string_view templateText, const ListExportForm& form, const ListCells& rows,
                             std::string_view creationNote) {
    const CellLine first(form.firstCell), other(form.otherCell);
    std::string page;
    page.reserve(templateText.size() + rows.size() * 400);
    for (const std::string_view line : TemplateLines(templateText)) {
        if (line.find('~') != std::string_view::npos)
            page += ReplaceIgnoringCase(line, "~", creationNote);
        else
            page += line;
        page += kPageLineEnd;
        if (!ContainsIgnoringCase(line, "INSERT")) continue;
        for (const std::vector<std::string>& cells : rows) {
            page.append(form.rowOpen).append(kPageLineEnd);
            for (std::size_t i = 0; i < cells.size(); ++i) {
                const CellLine& cell = i == 0 ? first : other;
                page.append(cell.before).append(EscapeHtml(cells[i])).append(cell.after).append(kPageLineEnd);
            }
            page.append(form.rowClose).append(kPageLineEnd);
        }
    }
    return page;
}

}  // namespace qh
