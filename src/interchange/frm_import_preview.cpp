#include "interchange/frm_import_preview.h"

#include <algorithm>

#include "common/int16.h"
#include "common/text.h"

namespace qh {
namespace {

constexpr const char* kAsTasksEntry = "as tasks";
constexpr const char* kSkipEntry = "skip";
constexpr const char* kFirstOnlyEntry = "the first occurrence only";
constexpr const char* kSkipRepeatsEntry = "skip them";

std::string assignmentsEntry(const std::string& className) { return "as assignments of " + className; }

bool sameName(const std::string& a, const std::string& b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return std::tolower(static_cast<unsigned char>(x)) == std::tolower(static_cast<unsigned char>(y));
           });
}

std::string quoted(const std::string& text) { return "\"" + text + "\""; }

}  // namespace

std::vector<ClassChoice> ActiveTermClasses(const RecordStore& store) {
    std::vector<ClassChoice> classes;
    for (int c = 1; c <= store.ClassIDs.count(); ++c)
        if (int16OrZero(store.ClassTermLinks(c)) == store.CurrentTermID && store.CurrentTermID != 0 &&
            store.ClassNames(c) != kDeletedRecord)
            classes.push_back({store.ClassIDs(c), store.ClassNames(c)});
    return classes;
}

FrmImportPreview::FrmImportPreview() : Form("frmImportPreview") {
    fixedSize = true;
    setOuterSize(7320, 7080);
    caption = "Quillhollow - Import iCalendar";
    add(ControlKind::Label, "LabelSummary", "", 240, 180, 6720, 300);
    add(ControlKind::ListBox, "ListImport", "", 240, 540, 6720, 2340).accessibleName = "What the file holds";
    add(ControlKind::Label, "LabelCourses", "", 240, 3000, 6720, 285).caption =
        "To-dos and deadlines of each course or category:";
    for (int i = 0; i < kCourseRows; ++i) {
        const int top = 3360 + 360 * i;
        add(ControlKind::Label, "LabelCourse", "", 240, top + 30, 3120, 285, i);
        add(ControlKind::ComboBox, "ComboCourse", "", 3480, top, 3480, 315, i);
    }
    add(ControlKind::Label, "LabelRepeats", "", 240, 5610, 3120, 285).caption = "Repeats the planner cannot hold:";
    add(ControlKind::ComboBox, "ComboRepeats", "", 3480, 5580, 3480, 315);
    add(ControlKind::CommandButton, "ButtonOK", "", 4320, 6120, 1260, 375).caption = "OK";
    add(ControlKind::CommandButton, "ButtonCancel", "", 5700, 6120, 1260, 375).caption = "Cancel";
    defaultButton = "ButtonOK";
    cancelButton = "ButtonCancel";
    // Labels on the window's own face, as in the editors.
    for (const std::string& key : order())
        if (c(key).kind == ControlKind::Label) c(key).backColor = kButtonFace;
    bindControls();
    ComboRepeats->addItem(kFirstOnlyEntry);
    ComboRepeats->addItem(kSkipRepeatsEntry);

    on(ButtonOK.key(), FormEvent::Click, [this](const EventArgs&) {
        accepted = true;
        hide();
    });
    on(ButtonCancel.key(), FormEvent::Click, [this](const EventArgs&) { hide(); });
}

void FrmImportPreview::Form_Activate() {
    accepted = false;
    LabelSummary->caption = plan ? fileName + " holds " + ImportCountsText(*plan) + "." : std::string();
    fillList();
    fillCourses();
    ComboRepeats->listIndex = 0;
    ComboRepeats->text = kFirstOnlyEntry;
    const bool repeats = plan && plan->repeatProblems > 0;
    ComboRepeats->enabled = repeats;
    LabelRepeats->enabled = repeats;
    focusedControl = ButtonOK.key();
}

bool FrmImportPreview::Form_QueryUnload(UnloadMode mode) {
    if (mode != UnloadMode::CloseBox) return true;
    hide();
    return false;
}

void FrmImportPreview::fillList() {
    ListImport->clearItems();
    if (!plan) return;
    int again = 0, unchanged = 0;
    for (const ImportLine& line : plan->lines) {
        again += line.linkedRow != 0 ? 1 : 0;
        unchanged += line.unchanged ? 1 : 0;
    }
    if (again > 0)
        ListImport->addItem(std::to_string(again) + " imported before: " + std::to_string(again - unchanged) +
                            " changed since, " + std::to_string(unchanged) + " unchanged");
    for (const std::string& course : plan->courses) {
        const auto items = std::count_if(plan->lines.begin(), plan->lines.end(),
                                         [&](const ImportLine& line) { return line.byCourse && line.course == course; });
        ListImport->addItem("Course " + quoted(course) + ": " + std::to_string(items) +
                            (items == 1 ? " item" : " items"));
    }
    for (const ImportLine& line : plan->lines) {
        const CalendarItem& item = plan->items[line.item];
        const std::string where = "Line " + std::to_string(item.line) + ": " + quoted(item.summary) + " ";
        if (!line.problem.empty()) ListImport->addItem(where + line.problem);
        for (const std::string& change : line.changes) ListImport->addItem(where + change);
    }
}

void FrmImportPreview::fillCourses() {
    const std::size_t courses = plan ? plan->courses.size() : 0;
    for (int i = 0; i < kCourseRows; ++i) {
        Control& label = LabelCourse[i];
        Control& combo = ComboCourse[i];
        const bool used = std::size_t(i) < courses;
        label.visible = combo.visible = used;
        combo.clearItems();
        if (!used) continue;
        const std::string& course = plan->courses[std::size_t(i)];
        label.caption = course;
        combo.accessibleName = course;
        int chosen = -1;
        for (const ClassChoice& choice : classes) {
            combo.addItem(assignmentsEntry(choice.name));
            if (chosen < 0 && sameName(choice.name, course)) chosen = int(combo.items.size()) - 1;
        }
        combo.addItem(kAsTasksEntry);
        combo.addItem(kSkipEntry);
        if (chosen < 0) chosen = int(classes.size());
        combo.listIndex = chosen;
        combo.text = combo.items[std::size_t(chosen)];
    }
}

ImportChoices FrmImportPreview::choices() const {
    ImportChoices out;
    out.firstOccurrenceOnly = ComboRepeats->listIndex != 1;
    if (!plan) return out;
    for (std::size_t i = 0; i < plan->courses.size(); ++i) {
        std::string choice = kAsTasks;
        if (i < std::size_t(kCourseRows)) {
            const int index = ComboCourse[int(i)].listIndex;
            if (index >= 0 && index < int(classes.size()))
                choice = classes[std::size_t(index)].id;
            else if (index == int(classes.size()) + 1)
                choice = kSkip;
        }
        out.courses[plan->courses[i]] = choice;
    }
    return out;
}

}  // namespace qh
