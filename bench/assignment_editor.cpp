// The assignment editor on the maximal sample drive, with the real file layer (each
// record written is synced): opening an edit of an assignment with 99 study sessions, OK
// on such an edit with its writes and the refresh of the main window, and the save of a
// new assignment with a note and a session.
#include <benchmark/benchmark.h>

#include <memory>

#include "editors/editor_windows.h"
#include "editors/frm_assignment.h"
#include "sample_drive_on_disk.h"

namespace qh {
namespace {

struct Loaded : LoadedMaximalDrive {
    int row = 1;  // an assignment given 99 sessions
    Loaded() {
        // The drive spreads its sessions thinly; the last 99 session rows are linked to one
        // assignment in memory, which is all an edit reads of them.
        row = store.AssignmentIDs.count() / 2;
        for (int i = store.StudySessionLinkIDs.count(), n = 0; i >= 1 && n < 99; --i, ++n)
            store.StudySessionLinkIDs(i) = store.AssignmentIDs(row);
    }
    void user(std::function<void(FrmAssignment&)> act) {
        fake.windowing.modalUsers["frmAssignment"].push_back(
            [act](Form& form) { act(static_cast<FrmAssignment&>(form)); });
    }
};

Loaded& loaded() {
    static Loaded drive;
    return drive;
}

void BM_OpenEditWith99Sessions(benchmark::State& state) {
    Loaded& d = loaded();
    std::size_t lines = 0;
    for (auto _ : state) {
        d.user([&lines](FrmAssignment& w) {
            lines = w.ListBoxStudySessions->items.size();
            w.click("ButtonCancel");
        });
        d.window->EditAssignment(d.row);
    }
    if (lines != 99) state.SkipWithError("the edit did not show 99 sessions");
}
BENCHMARK(BM_OpenEditWith99Sessions)->Unit(benchmark::kMicrosecond);

void BM_OkOnEditWithRefresh(benchmark::State& state) {
    Loaded& d = loaded();
    for (auto _ : state) {
        d.user([](FrmAssignment& w) {
            w.setChecked("CheckBoxDone", true);
            w.type("TextBoxDescription", "Edited in the benchmark");
            w.click("ButtonOK");
        });
        d.window->EditAssignment(d.row);
    }
    if (d.store.AssignmentDescriptions(d.row) != "Edited in the benchmark") state.SkipWithError("the edit was not saved");
}
BENCHMARK(BM_OkOnEditWithRefresh)->Unit(benchmark::kMicrosecond);

void BM_NewAssignmentSave(benchmark::State& state) {
    Loaded& d = loaded();
    RecordStore& s = d.store;
    // The files and the lists are full to the planner's bound: the last record of each
    // file and the last assignment row make room, and each save appends there again.
    const Int16 assignment = Int16(s.NextAssignmentRecord - 1), note = Int16(s.NextNoteRecord - 1),
                session = Int16(s.NextStudySessionRecord - 1);
    const int rows = s.AssignmentIDs.count() - 1, notes = s.NoteLinkIDs.count(), sessions = s.StudySessionLinkIDs.count();
    for (auto _ : state) {
        state.PauseTiming();
        s.NextAssignmentRecord = assignment;
        s.NextNoteRecord = note;
        s.NextStudySessionRecord = session;
        for (TextColumn* column : {&s.AssignmentRecordNos, &s.AssignmentIDs, &s.AssignmentClassLinks,
                                   &s.AssignmentDates, &s.AssignmentTypes, &s.AssignmentDifficulties,
                                   &s.AssignmentEstTimes, &s.AssignmentDescriptions, &s.AssignmentDones,
                                   &s.AssignmentGrades, &s.AssignmentWeights, &s.AssignmentReminders})
            column->values().resize(std::size_t(rows));
        s.NoteRecordNos.values().resize(std::size_t(notes));
        s.NoteLinkIDs.values().resize(std::size_t(notes));
        for (TextColumn* column : {&s.StudySessionRecordNos, &s.StudySessionLinkIDs, &s.StudySessionLengths,
                                   &s.StudySessionDates})
            column->values().resize(std::size_t(sessions));
        d.user([](FrmAssignment& w) {
            w.select("ComboClassNameList", 0);
            w.type("TextBoxDescription", "New in the benchmark");
            w.type("TextBoxNotes", "A note\r\nof two lines");
            w.click("ButtonSessionAdd");
            w.select("ComboEstTime", "02 : 00");
            w.click("ButtonOK");
        });
        state.ResumeTiming();
        d.window->NewAssignment();
    }
    if (s.AssignmentIDs.count() != rows + 1 || !d.fake.messages.shown.empty())
        state.SkipWithError("the new assignment was not saved cleanly");
}
BENCHMARK(BM_NewAssignmentSave)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace qh
