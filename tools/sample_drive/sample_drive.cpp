#include "sample_drive.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "common/flag_text.h"
#include "platform/fake/fake_platform.h"
#include "record_store/record_files.h"
#include "record_store/storage_locations.h"
#include "sample_content.h"
#include "shell/preferences.h"
#include "unsynced_file_system.h"

namespace qh::sample {
namespace {

namespace fs = std::filesystem;

const char* const kPlannerFiles[] = {"Terms.txt",         "Classes.txt", "Assignments.txt", "Notes.txt",
                                     "StudySessions.txt", "Tasks.txt",   "Events.txt",      "Preferences.ini"};

// A platform with nobody at the screen: the real file layer (without a sync per record)
// and quiet stand-ins for the rest. A message box means a save failed.
struct QuietPlatform {
    FakeEnvironment environment;
    FakeClock clock;
    FakeLocale locale;
    FakeMessageBoxes messages;
    UnsyncedFileSystem files;
    FakeProcesses processes;
    FakeDialogs dialogs;
    FakeWindowing windowing;
    RecordingCanvasFactory canvases;
    IcalCodec calendars{kFakeTimeZone};
    Platform platform{environment, clock, locale, messages, files, processes, dialogs, windowing, canvases, calendars};
};

// Writes a plan the way the editors' callers write what a student enters: the record
// buffers filled, then the store's own save routines.
class DriveWriter {
public:
    DriveWriter(QuietPlatform& quiet, RecordStore& store) : quiet_(quiet), s_(store), files_(store, quiet.platform) {}

    void start() {
        check(SetStorageLocations(s_, quiet_.platform), "setting the storage locations");
        // As the program does at start; the loads also make the files that are missing.
        check(files_.LoadTermsAndClasses() && files_.LoadAssignments() && files_.LoadTasks() && files_.LoadEvents(),
              "reading the empty files");
    }

    void termsAndClasses(const DrivePlan& plan) {
        for (const TermPlan& t : plan.terms) {
            s_.TermIDs.append(t.id);
            s_.TermNames.append(t.name);
            s_.TermStarts.append(dateText(t.start));
            s_.TermEnds.append(dateText(t.end));
        }
        for (const ClassPlan& c : plan.classes) {
            s_.ClassIDs.append(c.id);
            s_.ClassTermLinks.append(c.termLink);
            s_.ClassNames.append(c.name);
            s_.ClassForeColors.append(c.foreColor);
            s_.ClassBackColors.append(c.backColor);
            s_.ClassNotes.append(c.notes);
        }
        check(files_.SaveTermsAndClasses(), "saving the terms and classes");
    }

    // A new assignment: the note, the sessions, then the assignment itself, all linked by
    // the record number the assignment is about to take.
    void newAssignment(const AssignmentPlan& plan) {
        Written written;
        const std::string id = std::to_string(s_.NextAssignmentRecord);
        written.record = s_.NextAssignmentRecord;
        if (!plan.note.empty()) {
            written.note = s_.NextNoteRecord;
            s_.NoteRecord = {std::to_string(s_.NextNoteRecord), id, plan.note};
            check(files_.SaveNote(0), "saving a note");
        }
        clearEditSessions();
        for (const SessionPlan& session : plan.sessions) {
            written.sessions.push_back(s_.NextStudySessionRecord);
            s_.EditStudySessionRecordNos.append(std::to_string(s_.NextStudySessionRecord));
            s_.EditStudySessionLinkIDs.append(id);
            s_.EditStudySessionLengths.append(session.length);
            s_.EditStudySessionDates.append(dateText(session.date));
            check(files_.SaveStudySession(0, s_.EditStudySessionRecordNos.count()), "saving a study session");
        }
        s_.AssignmentRecord = plan.record;
        s_.AssignmentRecord.RecordNo = s_.AssignmentRecord.ID = id;
        check(files_.SaveAssignment(0), "saving an assignment");
        assignments_.push_back(written);
    }

    // Deletes the n-th assignment made (0-based) as the editor does: the note freed, the
    // sessions deleted, the record kept with the tombstone description.
    void deleteAssignment(std::size_t n, const AssignmentPlan& plan) {
        const Written& written = assignments_.at(n);
        if (written.note) {
            s_.NoteRecord = {std::to_string(written.note), "0", ""};
            check(files_.SaveNote(written.note), "freeing a note");
        }
        clearEditSessions();
        for (std::size_t i = 0; i < written.sessions.size(); ++i) {
            s_.EditStudySessionRecordNos.append(std::to_string(written.sessions[i]));
            s_.EditStudySessionLinkIDs.append("-1");
            s_.EditStudySessionLengths.append("");
            s_.EditStudySessionDates.append(dateText(plan.sessions[i].date));
            check(files_.SaveStudySession(written.sessions[i], int(i) + 1), "deleting a study session");
        }
        s_.AssignmentRecord = plan.record;
        s_.AssignmentRecord.RecordNo = s_.AssignmentRecord.ID = std::to_string(written.record);
        s_.AssignmentRecord.Description = kDeletedRecord;
        s_.AssignmentRecord.Done = flagText(false);
        check(files_.SaveAssignment(written.record), "deleting an assignment");
    }

    Int16 newTask(const TaskPlan& plan) {
        const Int16 number = s_.NextTaskRecord;
        s_.TaskRecord = plan.record;
        s_.TaskRecord.RecordNo = s_.TaskRecord.ID = std::to_string(number);
        check(files_.SaveTask(0), "saving a task");
        return number;
    }

    void deleteTask(Int16 number, const TaskPlan& plan) {
        s_.TaskRecord = plan.record;
        s_.TaskRecord.RecordNo = s_.TaskRecord.ID = std::to_string(number);
        s_.TaskRecord.Description = kDeletedRecord;
        s_.TaskRecord.Done = flagText(true);
        check(files_.SaveTask(number), "deleting a task");
    }

    Int16 newEvent(const EventPlan& plan) {
        const Int16 number = s_.NextEventRecord;
        s_.EventRecord = plan.record;
        s_.EventRecord.RecordNo = s_.EventRecord.ID = std::to_string(number);
        check(files_.SaveEvent(0), "saving an event");
        return number;
    }

    void deleteEvent(Int16 number, const EventPlan& plan) {
        s_.EventRecord = plan.record;
        s_.EventRecord.RecordNo = s_.EventRecord.ID = std::to_string(number);
        s_.EventRecord.Description = kDeletedRecord;
        check(files_.SaveEvent(number), "deleting an event");
    }

    void preferences(const std::string& activeTerm) {
        // A window at its load size, centred; the tip of the day left for the student to
        // switch on, so the drive opens straight on its homework.
        const PreferenceValues values{activeTerm, "Sunday", "No", 1};
        check(WritePreferences(quiet_.platform, s_, WindowPlacement{}, values), "writing Preferences.ini");
    }

private:
    struct Written {
        Int16 record = 0, note = 0;
        std::vector<Int16> sessions;
    };

    void clearEditSessions() {
        s_.EditStudySessionRecordNos.clear();
        s_.EditStudySessionLinkIDs.clear();
        s_.EditStudySessionLengths.clear();
        s_.EditStudySessionDates.clear();
    }

    void check(bool ran, const char* what) {
        if (ran && quiet_.messages.shown.empty()) return;
        std::string text = std::string("sample drive: failed ") + what;
        for (const ShownMessage& shown : quiet_.messages.shown) text += "\n  " + shown.title + ": " + shown.text;
        throw std::runtime_error(text);
    }

    QuietPlatform& quiet_;
    RecordStore& s_;
    RecordFiles files_;
    std::vector<Written> assignments_;
};

void prepareFolders(const std::string& drive) {
    const fs::path data = fs::path(drive) / "Documents" / "Quillhollow" / "Data";
    for (const char* name : kPlannerFiles)
        if (fs::exists(data / name))
            throw std::runtime_error("sample drive: " + drive + " already holds planner data (" +
                                     (data / name).string() + "); choose an empty folder");
    const fs::path exec = fs::path(drive) / "exec";
    fs::create_directories(exec);
    fs::create_directories(fs::path(drive) / "Documents");
    // The help book and the export templates go with the program, where ./run puts them too.
    const fs::path source(QH_SOURCE_DIR);
    const auto copyTree = [](const fs::path& from, const fs::path& to) {
        if (fs::is_directory(from)) fs::copy(from, to, fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    };
    copyTree(source / "help", exec / "help");
    copyTree(source / "templates", exec);
}

DriveSummary summarize(const DrivePlan& plan, const RecordStore& store) {
    DriveSummary summary;
    summary.records = {store.NextTermRecord - 1, store.NextClassRecord - 1,        store.NextAssignmentRecord - 1,
                       store.NextNoteRecord - 1, store.NextStudySessionRecord - 1, store.NextTaskRecord - 1,
                       store.NextEventRecord - 1};
    const TermPlan& active = plan.terms.back();
    summary.activeTerm = active.name;
    std::vector<std::string> activeClasses;
    for (const ClassPlan& c : plan.classes)
        if (c.termLink == active.id) activeClasses.push_back(c.id);
    summary.activeTermClasses = int(activeClasses.size());
    for (const AssignmentPlan& a : plan.assignments) {
        if (a.deletedLater) continue;
        if (!a.note.empty()) ++summary.liveNotes;
        if (std::find(activeClasses.begin(), activeClasses.end(), a.record.ClassLink) == activeClasses.end()) continue;
        ++summary.activeTermAssignments;
        summary.activeTermSessions += int(a.sessions.size());
    }
    for (const TaskPlan& t : plan.tasks) summary.liveTasks += t.deletedLater ? 0 : 1;
    for (const EventPlan& e : plan.events) {
        if (e.deletedLater) continue;
        ++summary.liveEvents;
        ++summary.eventsOfKind[int(e.kind)];
    }
    return summary;
}

}  // namespace

DriveSummary MakeSampleDrive(const std::string& drive, DriveSize size, Date today, std::uint32_t seed) {
    prepareFolders(drive);
    Dice dice(seed);
    const DrivePlan plan =
        size == DriveSize::Realistic ? RealisticPlan(today, dice) : MaximalPlan(today, dice, kMaximalRecords);

    QuietPlatform quiet;
    const std::string root = fs::absolute(drive).lexically_normal().string();
    quiet.environment.values = {{"U3_DEVICE_PATH", root},
                                {"U3_DEVICE_EXEC_PATH", root + "/exec"},
                                {"U3_DEVICE_DOCUMENT_PATH", root + "/Documents"}};
    quiet.clock.moment = {today, 12 * 3600};
    RecordStore store;
    DriveWriter writer(quiet, store);
    writer.start();
    writer.termsAndClasses(plan);

    for (const AssignmentPlan& a : plan.assignments) writer.newAssignment(a);
    for (std::size_t i = 0; i < plan.assignments.size(); ++i)
        if (plan.assignments[i].deletedLater) writer.deleteAssignment(i, plan.assignments[i]);

    std::vector<Int16> numbers;
    for (const TaskPlan& t : plan.tasks) numbers.push_back(writer.newTask(t));
    for (std::size_t i = 0; i < plan.tasks.size(); ++i)
        if (plan.tasks[i].deletedLater) writer.deleteTask(numbers[i], plan.tasks[i]);

    numbers.clear();
    for (const EventPlan& e : plan.events) numbers.push_back(writer.newEvent(e));
    for (std::size_t i = 0; i < plan.events.size(); ++i)
        if (plan.events[i].deletedLater) writer.deleteEvent(numbers[i], plan.events[i]);

    writer.preferences(plan.terms.back().name);
    quiet.files.syncWritten();
    return summarize(plan, store);
}

}  // namespace qh::sample
