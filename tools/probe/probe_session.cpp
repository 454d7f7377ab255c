#include "probe_session.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <vector>

#include <sstream>

#include "calendar/date_picker.h"
#include "state_printer.h"

namespace qh {
namespace {

const ControlRef* menuOfMode(const MainWindowControls& ui, const std::string& mode) {
    if (mode == "homework") return &ui.MenuHomework;
    if (mode == "sessions") return &ui.MenuStudySessions;
    if (mode == "tasks") return &ui.MenuTasks;
    if (mode == "events") return &ui.MenuEvents;
    if (mode == "reminders") return &ui.MenuReminders;
    return nullptr;
}

const ControlRef* arrowControl(const MainWindowControls& ui, const std::string& arrow) {
    if (arrow == "month-up") return &ui.calendar.picCalMonthUp;
    if (arrow == "month-down") return &ui.calendar.picCalMonthDown;
    if (arrow == "day-up") return &ui.picCalDayUp;
    if (arrow == "day-down") return &ui.picCalDayDown;
    return nullptr;
}

std::string restOf(std::istringstream& words) {
    std::string rest;
    std::getline(words >> std::ws, rest);
    return rest;
}

// A text typed into a box: "\n" stands for one line break, which a box holds as CR LF.
std::string typedText(const std::string& text) {
    std::string typed;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 1 < text.size() && text[i + 1] == 'n') {
            typed += "\r\n";
            ++i;
        } else {
            typed += text[i];
        }
    }
    return typed;
}

// A person's click: on a control that acts on the mouse press or release (the calendars'
// month arrows, the grid) the press and the release at its middle come first, as on the
// screen, then the click.
void clickAsAPerson(Form& form, const std::string& key) {
    const Control& control = form.c(key);
    const bool takesThePress = form.handles(key, FormEvent::MouseDown) || form.handles(key, FormEvent::MouseUp);
    if (takesThePress && control.enabled && control.visible) {
        EventArgs middle;
        middle.x = control.width / 2;
        middle.y = control.height / 2;
        form.press(key, middle);
        form.release(key, middle);
    }
    form.click(key);
}

// Thrown through the windows' code when the script ends or fails while a modal window is
// open: nothing of the planner catches it, so the run stops where it stands.
struct ScriptStop {
    bool failed;
};

std::string fileName(const std::string& path) { return path.substr(path.find_last_of('/') + 1); }

// A record file whose writes are noted as they happen.
class NotedRecordFile : public RecordFile {
public:
    NotedRecordFile(std::unique_ptr<RecordFile> real, std::string name, std::vector<std::string>& writes)
        : real_(std::move(real)), name_(std::move(name)), writes_(writes) {}
    bool read(std::int32_t n, std::string& bytes) override { return real_->read(n, bytes); }
    void write(std::int32_t n, const std::string& bytes) override {
        writes_.push_back("write " + name_ + " record " + std::to_string(n));
        real_->write(n, bytes);
    }
    std::int32_t recordCount() override { return real_->recordCount(); }

private:
    std::unique_ptr<RecordFile> real_;
    std::string name_;
    std::vector<std::string>& writes_;
};

}  // namespace

std::unique_ptr<RecordFile> WriteNotingFileSystem::openRecords(const std::string& path, int recordLength) {
    return std::make_unique<NotedRecordFile>(PosixFileSystem::openRecords(path, recordLength), fileName(path), writes);
}

void WriteNotingFileSystem::writeWhole(const std::string& path, const std::string& bytes) {
    writes.push_back("write " + fileName(path) + " whole");
    PosixFileSystem::writeWhole(path, bytes);
}

void WriteNotingFileSystem::writeWholeUnsynced(const std::string& path, const std::string& bytes) {
    writes.push_back("write " + fileName(path) + " whole");
    PosixFileSystem::writeWholeUnsynced(path, bytes);
}

void WriteNotingFileSystem::writeWholePrivate(const std::string& path, const std::string& bytes) {
    writes.push_back("write " + fileName(path) + " whole");
    PosixFileSystem::writeWholePrivate(path, bytes);
}

ProbeSession::ProbeSession(const std::string& drive, const std::string& host, std::ostream& out, FeedFetcher& feeds)
    : out_(out), feeds_(feeds), platform_{environment_, clock_,     locale_,   messages_,  files_,         processes_,
                                          dialogs_,     windowing_, canvases_, calendars_, notifications_, feeds_} {
    environment_.values = {{"U3_DEVICE_PATH", drive},
                           {"U3_DEVICE_EXEC_PATH", drive + "/exec"},
                           {"U3_DEVICE_DOCUMENT_PATH", drive + "/Documents"},
                           {"U3_HOST_EXEC_PATH", host}};
    const OutsideActionSink print = [this](const std::string& line) { out_ << line << "\n"; };
    messages_.onOutsideAction = dialogs_.onOutsideAction = processes_.onOutsideAction = windowing_.onOutsideAction =
        notifications_.onOutsideAction = print;
    windowing_.modalLoop = [this](Form& form) { runInsideModal(form); };
}

ProbeSession::~ProbeSession() = default;

void ProbeSession::start() {
    window_ = std::make_unique<MainWindow>(store_, platform_);
    window_->Form_Load();
    windowing_.show(*window_);
    // The probe's window is painted at once: what waits for the first paint runs now.
    for (const ControlRef* timer : {&window_->ui.TimerDesktopReminders, &window_->ui.TimerSubscriptions})
        if ((*timer)->enabled) window_->tick(timer->key());
}

Form& ProbeSession::frontWindow() {
    if (!windowing_.modalStack.empty()) return *windowing_.modalStack.back();
    if (!started()) start();
    return *window_;
}

bool ProbeSession::nextLine(std::string& line) {
    while (script_ && std::getline(*script_, line)) {
        ++lineNumber_;
        if (!line.empty() && line[0] != '#') return true;
    }
    return false;
}

void ProbeSession::runInsideModal(Form& form) {
    std::string line;
    while (form.visible) {
        if (!nextLine(line)) throw ScriptStop{false};
        if (!action(line)) {
            failedNumber_ = lineNumber_;
            failedLine_ = line;
            throw ScriptStop{true};
        }
    }
}

bool ProbeSession::run(std::istream& script) {
    script_ = &script;
    lineNumber_ = 0;
    std::string line;
    try {
        while (nextLine(line)) {
            if (!action(line)) {
                failedNumber_ = lineNumber_;
                failedLine_ = line;
                return false;
            }
        }
    } catch (const ScriptStop& stop) {
        return !stop.failed;
    }
    return true;
}

bool ProbeSession::action(const std::string& line) {
    std::istringstream words(line);
    std::string verb;
    words >> verb;
    if (verb == "clock") {
        std::string date, time = "09:00";
        words >> date >> time;
        int y = 0, m = 0, d = 0, hh = 0, mm = 0;
        if (std::sscanf(date.c_str(), "%d-%d-%d", &y, &m, &d) != 3 || std::sscanf(time.c_str(), "%d:%d", &hh, &mm) != 2)
            return false;
        clock_.set(y, m, d, hh, mm);
        return true;
    }
    if (verb == "answer") {
        const std::string answer = restOf(words);
        messages_.answers.push_back(answer == "yes" ? MessageAnswer::Yes
                                    : answer == "no" ? MessageAnswer::No
                                    : answer == "cancel" ? MessageAnswer::Cancel
                                                         : MessageAnswer::OK);
        return true;
    }
    if (verb == "file") {
        FileDialogAnswer answer;
        const std::string path = restOf(words);
        if (path != "cancel") {
            answer.chosen = true;
            answer.fullPath = path;
            answer.fileTitle = path.substr(path.find_last_of('/') + 1);
        }
        dialogs_.fileAnswers.push_back(answer);
        return true;
    }
    if (verb == "printer") {
        const std::string answer = restOf(words);
        PrinterAnswer printer;
        if (answer != "cancel") {
            printer.chosen = true;
            printer.printerName = "Probe Printer";
            printer.copies = std::atoi(answer.c_str());
            if (printer.copies < 1) return false;
        }
        dialogs_.printerAnswers.push_back(printer);
        return true;
    }
    if (verb == "feed") {
        // The answer to the later reads of a calendar feed's address.
        std::string address, what;
        words >> address >> what;
        FeedAnswer answer;
        if (what == "unchanged") {
            answer.outcome = FeedAnswer::Outcome::Unchanged;
        } else if (what == "unreachable" || what == "refused") {
            if (what == "refused") answer.outcome = FeedAnswer::Outcome::Refused;
            answer.why = restOf(words);
        } else {
            if (what.empty() || !files_.exists(what)) return false;
            answer.outcome = FeedAnswer::Outcome::Fetched;
            answer.body = files_.readAll(what);
            words >> answer.etag;
        }
        feeds_.answers[address] = answer;
        return true;
    }
    if (verb == "start") {
        if (!started()) start();
        return true;
    }
    if (!started()) start();
    MainWindow& w = *window_;
    if (verb == "print") {
        PrintWindowState(w, out_);
        for (const Form* modal : windowing_.modalStack) PrintFormControls(*modal, out_);
        return true;
    }
    if (verb == "cells") {
        // Read only, so it may look at the list while a record's editor is open over it.
        int k = 0;
        words >> k;
        if (k < 1 || k > 100) return false;
        PrintGridRowCells(w, k, out_);
        return true;
    }
    if (verb == "focus") {
        out_ << "Focus: " << frontWindow().name() << " " << frontWindow().focusedControl << "\n";
        return true;
    }
    if (verb == "show") {
        // The front window's print cut down to the controls named.
        Form& form = frontWindow();
        std::vector<std::string> names;
        for (std::string name; words >> name;) {
            if (!form.has(name)) return false;
            names.push_back(name);
        }
        PrintWindowHeader(form, out_);
        for (const std::string& name : names) PrintControlLine(form.c(name), out_);
        return true;
    }
    if (verb == "items") {
        Form& form = frontWindow();
        const std::string name = restOf(words);
        if (!form.has(name) ||
            (form.c(name).kind != ControlKind::ComboBox && form.c(name).kind != ControlKind::ListBox))
            return false;
        out_ << "Items " << name << "\n";
        for (const std::string& item : form.c(name).items) out_ << "  " << quotedText(item) << "\n";
        return true;
    }
    if (verb == "writes") {
        for (const std::string& write : files_.writes) out_ << write << "\n";
        if (files_.writes.empty()) out_ << "No writes\n";
        files_.writes.clear();
        return true;
    }
    if (verb == "wait" && !windowing_.modalStack.empty()) {
        // Over a window the main window's timers wait; the network's answers arrive.
        long long seconds = 0;
        words >> seconds;
        platform_.feeds.settle(int(std::min<long long>(seconds, 600) * 1000));
        return true;
    }
    if (windowAction(verb, words)) return true;
    if (!windowing_.modalStack.empty()) return false;  // the main window's verbs wait for it

    if (verb == "mode") {
        const ControlRef* menu = menuOfMode(w.ui, restOf(words));
        if (!menu) return false;
        w.click(menu->key());
    } else if (verb == "list") {
        w.select(w.ui.ComboList.key(), restOf(words));
    } else if (verb == "range") {
        w.select(w.ui.ComboDateRange.key(), restOf(words));
    } else if (verb == "cell") {
        int index = -1;
        words >> index;
        if (index < 0 || index > 41) return false;
        w.click(w.ui.calendar.LabelCalDate.key(index));
    } else if (verb == "today") {
        w.click(w.ui.calendar.LabelToday.key());
    } else if (verb == "tomorrow") {
        w.click(w.ui.calendar.LabelTomorrow.key());
    } else if (verb == "arrow") {
        std::string which;
        int repeats = 0;
        words >> which >> repeats;
        const ControlRef* control = arrowControl(w.ui, which);
        if (!control) return false;
        w.press(control->key());
        for (int i = 0; i < repeats; ++i) w.tick(w.ui.TimerButton.key());
        w.release(control->key());
    } else if (verb == "day-header") {
        int index = -1;
        words >> index;
        if (index < 0 || index > 6) return false;
        w.click(w.ui.calendar.LabelCalDay.key(index));
    } else if (verb == "start-day") {
        const std::string day = restOf(words);
        const ControlRef& menu = day == "Monday"     ? w.ui.MenuStartMon
                                 : day == "Saturday" ? w.ui.MenuStartSat
                                                     : w.ui.MenuStartSun;
        w.click(menu.key());
    } else if (verb == "grid-header") {
        int index = -1;
        words >> index;
        if (index < 0 || index > 8) return false;
        w.click("picColHeader(" + std::to_string(index) + ")");
    } else if (verb == "scroll") {
        int value = 1;
        words >> value;
        w.scrollTo(w.ui.VSGridScroll.key(), value);
    } else if (verb == "row") {
        int k = 0;
        words >> k;
        EventArgs at;
        at.x = 600;
        at.y = (w.state.HeaderHeight + (k - 1) * w.state.RowPitch + w.state.RowPitch / 2) * 15;
        w.press(w.ui.picGrid.key(), at);
        w.release(w.ui.picGrid.key(), at);
    } else if (verb == "stopwatch") {
        const std::string what = restOf(words);
        w.click((what == "start" ? w.ui.ButtonStart : what == "reset" ? w.ui.ButtonReset : w.ui.LabelTime).key());
    } else if (verb == "wait") {
        long long seconds = 0;
        words >> seconds;
        // Every running timer whose period has passed fires, the shortest first: the tip
        // of the day half a second after the start, the stopwatch each second, the status
        // bar each ten. Once at the end is as good as on the way: the stopwatch and the
        // status bar read the clock, and the tip timer fires once.
        clock_.advanceSeconds(seconds);
        std::vector<std::pair<int, std::string>> due;
        for (const std::string& key : w.order()) {
            const Control& timer = w.c(key);
            if (timer.kind == ControlKind::Timer && timer.enabled && timer.interval > 0 &&
                timer.interval <= seconds * 1000)
                due.emplace_back(timer.interval, key);
        }
        std::sort(due.begin(), due.end());
        for (const auto& [interval, key] : due) w.tick(key);
        // The answers of the fetches under way arrive, for as long as the wait lasts at
        // most; a wait with nothing under way costs no time.
        platform_.feeds.settle(int(std::min<long long>(seconds, 600) * 1000));
    } else if (verb == "resize") {
        int width = 0, height = 0;
        words >> width >> height;
        w.setOuterSize(width, height);
        w.Form_Resize();
    } else if (verb == "exit") {
        windowing_.close(w, UnloadMode::Code);
        out_ << "Closed\n";
    } else {
        return false;
    }
    return true;
}

bool ProbeSession::pickDate(Form& form, const std::string& field, const std::string& text) {
    auto* owner = dynamic_cast<HasDatePicker*>(&form);
    const std::optional<Date> date = parseDateText(text.size() == 10 ? text.substr(0, 4) + "/" + text.substr(5, 2) +
                                                                            "/" + text.substr(8, 2)
                                                                      : std::string());
    if (!owner || !date || !form.has(field)) return false;
    DatePicker& picker = owner->datePicker();
    form.click(field);
    if (!picker.visible()) return false;
    const Ymd target = ymdOf(*date);
    // The month arrows, one press and release a month, as a person steps there.
    for (int guard = 0; guard < 24000; ++guard) {
        const int months = (target.year - picker.cells().year) * 12 + (target.month - picker.cells().month);
        if (months == 0) break;
        const std::string arrow = months > 0 ? "LabelCalMonthUp" : "LabelCalMonthDown";
        form.press(arrow);
        form.release(arrow);
    }
    const int cell = CellForDate(picker.cells().firstCell, *date);
    if (cell < 0) return false;
    form.click("LabelCalDate(" + std::to_string(cell) + ")");
    return true;
}

bool ProbeSession::windowAction(const std::string& verb, std::istringstream& words) {
    Form& form = frontWindow();
    // A person's next action comes later than the window's short timers (the picker's
    // 100 ms guard): those that run have fired by then.
    for (const std::string& key : form.order()) {
        const Control& control = form.c(key);
        if (control.kind == ControlKind::Timer && control.enabled && control.interval > 0 && control.interval <= 100)
            form.tick(key);
    }
    if (verb == "click") {
        const std::string name = restOf(words);
        if (!form.has(name)) return false;
        clickAsAPerson(form, name);
    } else if (verb == "set") {
        std::string name;
        words >> name;
        if (!form.has(name) || form.c(name).kind != ControlKind::TextBox) return false;
        std::string text;
        std::getline(words, text);
        if (!text.empty() && text[0] == ' ') text.erase(0, 1);
        if (form.c(name).canTakeFocus() && form.c(name).enabled && form.c(name).visible) form.focusTo(name);
        form.type(name, typedText(text));
    } else if (verb == "choose") {
        std::string name;
        words >> name;
        const std::string entry = restOf(words);
        if (!form.has(name)) return false;
        const Control& list = form.c(name);
        if (list.kind != ControlKind::ComboBox && list.kind != ControlKind::ListBox) return false;
        int index = -1;
        if (entry.size() > 1 && entry[0] == '#') {
            index = std::atoi(entry.c_str() + 1);
        } else {
            for (std::size_t i = 0; i < list.items.size(); ++i)
                if (list.items[i] == entry) index = int(i);
        }
        if (index < 0 || index >= int(list.items.size()) || !list.enabled || !list.visible) return false;
        form.select(name, index);
    } else if (verb == "check") {
        std::string name, state;
        words >> name >> state;
        if (!form.has(name) || (state != "on" && state != "off")) return false;
        if (form.c(name).checked != (state == "on")) form.click(name);
    } else if (verb == "pick") {
        std::string name, date;
        words >> name >> date;
        return pickDate(form, name, date);
    } else if (verb == "press") {
        std::string name;
        EventArgs at;
        words >> name >> at.x >> at.y;
        if (!form.has(name) || !words) return false;
        form.press(name, at);
        form.release(name, at);
    } else if (verb == "key") {
        // The keyboard: focus on NAME, then a key by its name or a letter.
        std::string name, keyName;
        words >> name >> keyName;
        static const std::map<std::string, int> named{
            {"Enter", kKeyReturn}, {"Escape", kKeyEscape}, {"Tab", kKeyTab},       {"Left", kKeyLeft},
            {"Right", kKeyRight},  {"Up", kKeyUp},         {"Down", kKeyDown},     {"PageUp", kKeyPageUp},
            {"PageDown", kKeyPageDown}, {"Home", kKeyHome}, {"End", kKeyEnd}};
        int code = 0, character = 0;
        if (auto it = named.find(keyName); it != named.end()) {
            code = it->second;
        } else if (keyName.size() == 1 && std::isalnum(static_cast<unsigned char>(keyName[0]))) {
            character = keyName[0];
            code = std::toupper(character);
        }
        if (!form.has(name) || code == 0) return false;
        const Control& target = form.c(name);
        if (!target.canTakeFocus() || !target.enabled || !target.visible) return false;
        form.focusTo(name);
        form.pressKey(code, character);
    } else if (verb == "wheel") {
        // Turns the mouse wheel over NAME: N notches, positive up.
        std::string name;
        int notches = 0;
        words >> name >> notches;
        if (!form.has(name) || !words) return false;
        form.wheel(name, notches);
    } else if (verb == "close") {
        if (&form == window_.get()) {
            windowing_.close(form, UnloadMode::CloseBox);
            out_ << "Closed\n";
        } else {
            windowing_.close(form, UnloadMode::CloseBox);
        }
    } else {
        return false;
    }
    return true;
}

}  // namespace qh
