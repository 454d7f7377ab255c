// The assignment procedures: the editor filled from the columns of the active term, shown
// modal, and its result written back to the columns and, record by record, to the files:
// the note, the study sessions, then the assignment itself.
#include <array>

#include "common/flag_text.h"
#include "editors/editor_host.h"
#include "editors/editor_windows.h"
#include "editors/feed_origin.h"
#include "editors/frm_assignment.h"
#include "editors/record_actions.h"
#include "record_store/record_files.h"
#include "record_store/record_tables.h"

namespace qh {
namespace {

std::string storedNote(const FrmAssignment& w) { return storedText(kNoteTable.width("Text"), w.TextBoxNotes->text); }

struct CurrentClassList {
    std::vector<std::string> names, ids;
};

// The live classes of the active term in the order of the class columns.
CurrentClassList BuildCurrentClassList(const RecordStore& s) {
    CurrentClassList list;
    for (int t = 1; t <= s.TermNames.count(); ++t) {
        if (s.TermNames(t) != s.CurrentTermName) continue;
        const Int16 termID = int16OrZero(s.TermIDs(t));
        for (int i = 1; i <= s.ClassIDs.count(); ++i) {
            if (int16OrZero(s.ClassTermLinks(i)) != termID || s.ClassNames(i) == kDeletedRecord) continue;
            list.names.push_back(s.ClassNames(i));
            list.ids.push_back(s.ClassIDs(i));
        }
    }
    return list;
}

void handClassList(FrmAssignment& window, const CurrentClassList& list, const RecordStore& s) {
    window.tempClassNameArray = list.names;
    window.tempAssignmentClassLinkArray = list.ids;
    window.CurrentTermName = s.CurrentTermName;
    window.DocumentDirectory = s.DocumentDirectory;
}

// The row of the note columns linked to assignment row `row`, 0 for none.
int noteRowOf(const RecordStore& s, int row) {
    const Int16 id = int16OrZero(s.AssignmentIDs(row));
    for (int i = 1; i <= s.NoteLinkIDs.count(); ++i)
        if (int16OrZero(s.NoteLinkIDs(i)) == id) return i;
    return 0;
}

// The assignment record as the window left it, each text as its field of the file holds
// it. Without a class chosen (only a delete leaves the window so) the assignment keeps
// `classLink`.
AssignmentBuffer recordOf(const FrmAssignment& w, const std::string& recordNo, const std::string& id,
                          const std::string& classLink) {
    const int line = w.ComboClassNameList->listIndex;
    const bool chosen = line >= 0 && line < int(w.tempAssignmentClassLinkArray.size());
    AssignmentBuffer record;
    record.RecordNo = recordNo;
    record.ID = id;
    record.ClassLink = chosen ? w.tempAssignmentClassLinkArray[std::size_t(line)] : classLink;
    record.DateValue = w.DueDate;
    record.Type = w.ComboTypeList->text;
    record.Difficulty = w.ComboDifficulty->text;
    record.EstTime = w.ComboEstTime->text;
    record.Description = w.TextBoxDescription->text;
    record.Done = flagText(w.CheckBoxDone->checked);
    record.Grade = w.ComboGrade->text;
    record.Weight = w.ComboWeight->text;
    record.Reminder = w.ComboRemindMe->text;
    return kAssignmentTable.asStored(std::move(record));
}

// A study session's columns, of the term and of the edit, in file order as the tables
// give them, and the window's lists in that same order.
std::vector<TextColumn*> sessionColumns(RecordStore& s) { return kStudySessionTable.columns(s); }
std::vector<TextColumn*> editSessionColumns(RecordStore& s) { return kEditStudySessionTable.columns(s); }
std::array<TextColumn*, 4> windowSessionLists(FrmAssignment& w) {
    return {&w.tempStudySessionRecordNoArray, &w.tempStudySessionLinkIDArray, &w.tempStudySessionLengthArray,
            &w.tempStudySessionDateArray};
}

// The sessions of assignment row `row`, the newest (the last in the columns) first, into
// the window and the edit columns.
void HandOverStudySessions(RecordStore& s, FrmAssignment& w, int row) {
    for (TextColumn* column : editSessionColumns(s)) column->clear();
    for (TextColumn* list : windowSessionLists(w)) list->clear();
    const Int16 id = int16OrZero(s.AssignmentIDs(row));
    const auto columns = sessionColumns(s);
    const auto edits = editSessionColumns(s);
    const auto lists = windowSessionLists(w);
    for (int i = s.StudySessionRecordNos.count(); i >= 1; --i) {
        if (int16OrZero(s.StudySessionLinkIDs(i)) != id) continue;
        for (std::size_t f = 0; f < 4; ++f) {
            edits[f]->append((*columns[f])(i));
            lists[f]->append((*columns[f])(i));
        }
    }
}

// Appends the window's sessions left after the existing ones were taken out, row 1 first,
// as new records linked to `assignmentID`. False when a write failed.
bool SaveAddedSessions(RecordStore& s, RecordFiles& files, FrmAssignment& w, const std::string& assignmentID) {
    const auto columns = sessionColumns(s);
    const auto edits = editSessionColumns(s);
    for (TextColumn* column : edits) column->clear();
    bool written = true;
    for (int i = 1; i <= w.tempStudySessionRecordNoArray.count(); ++i) {
        const std::array<std::string, 4> values{std::to_string(s.NextStudySessionRecord), assignmentID,
                                                w.tempStudySessionLengthArray(i), w.tempStudySessionDateArray(i)};
        for (std::size_t f = 0; f < 4; ++f) {
            columns[f]->append(values[f]);
            edits[f]->append(values[f]);
        }
        written &= files.SaveStudySession(0, i);
    }
    return written;
}

// After an edit: the sessions the user deleted are written as deleted and leave the
// columns; then the added ones are appended. False when a write failed.
bool UpdateStudySessions(RecordStore& s, RecordFiles& files, FrmAssignment& w, int row) {
    const auto kept = [&w](const std::string& recordNo) {
        for (const std::string& listed : w.tempStudySessionRecordNoArray)
            if (listed == recordNo) return true;
        return false;
    };
    bool written = true;
    for (int r = s.EditStudySessionRecordNos.count(); r >= 1; --r) {
        const std::string recordNo = s.EditStudySessionRecordNos(r);
        if (kept(recordNo)) continue;
        s.EditStudySessionLinkIDs(r) = "-1";
        s.EditStudySessionLengths(r).clear();
        written &= files.SaveStudySession(int16OrZero(recordNo), r);
        for (int i = s.StudySessionRecordNos.count(); i >= 1; --i) {
            if (s.StudySessionRecordNos(i) != recordNo) continue;
            for (TextColumn* column : sessionColumns(s)) column->removeAt(i);
            break;
        }
        for (TextColumn* column : editSessionColumns(s)) column->removeAt(r);
    }
    for (int i = w.tempStudySessionRecordNoArray.count(); i >= 1; --i)
        if (int16OrZero(w.tempStudySessionRecordNoArray(i)) > 0)
            for (TextColumn* list : windowSessionLists(w)) list->removeAt(i);
    written &= SaveAddedSessions(s, files, w, s.AssignmentIDs(row));
    return written;
}

}  // namespace

bool RecordActions::NewAssignment() {
    // The editor windows exist once the main window has loaded them.
    if (!windows_.loaded()) return true;
    RecordStore& s = store_;
    const auto ask = [this](const char* question) {
        return platform_.messages.show(question, "Quillhollow", MessageButtons::YesNo, MessageIcon::Information) ==
               MessageAnswer::Yes;
    };
    if (s.CurrentTermName.empty()) {
        return !ask("There is no Term selected. Do you want to set the active Term?") || EditClassSchedule();
    }
    FrmAssignment& window = windows_.assignment();
    window.FormSmall = true;
    window.editMode = EditMode::New;
    const CurrentClassList classes = BuildCurrentClassList(s);
    if (classes.names.empty())
        return !ask("This Term has no classes. Do you want to edit the Class Schedule?") || EditClassSchedule();
    handClassList(window, classes, s);
    platform_.windowing.showModal(window, &host_.ownerWindow());
    if (window.outcome() == EditorOutcome::Cancelled) return true;

    const std::string id = std::to_string(s.NextAssignmentRecord);
    s.AssignmentRecord = recordOf(window, id, id, "");
    kAssignmentTable.appendRow(s, s.AssignmentRecord);

    const std::string notes = storedNote(window);
    if (!notes.empty()) {
        s.NoteRecordNos.append(std::to_string(s.NextNoteRecord));
        s.NoteLinkIDs.append(id);
    }
    s.NoteRecord = {std::to_string(s.NextNoteRecord), id, notes};
    bool written = true;
    if (!notes.empty()) written &= files_.SaveNote(0);
    if (!window.tempStudySessionRecordNoArray.empty()) written &= SaveAddedSessions(s, files_, window, id);
    written &= files_.SaveAssignment(0);
    host_.refresh(RefreshReason::NewRecord);
    host_.showSavedRow(SavedRecordKind::Assignment, s.AssignmentRecordNos.count());
    return written;
}

bool RecordActions::EditAssignment(int row) {
    if (!windows_.loaded()) return true;
    RecordStore& s = store_;
    FrmAssignment& window = windows_.assignment();
    window.FormSmall = false;
    window.editMode = EditMode::Edit;
    const CurrentClassList classes = BuildCurrentClassList(s);
    handClassList(window, classes, s);
    window.tempAssignmentClassName.clear();
    const Int16 classID = int16OrZero(s.AssignmentClassLinks(row));
    for (std::size_t i = 0; i < classes.ids.size(); ++i)
        if (int16OrZero(classes.ids[i]) == classID) window.tempAssignmentClassName = classes.names[i];

    window.tempAssignment = kAssignmentTable.rowOf(s, row);
    // The note's text stays on disk until an edit opens it.
    const int noteRow = noteRowOf(s, row);
    window.tempAssignmentNotes.clear();
    if (noteRow > 0) {
        s.NoteRowIndex = toInt16(noteRow);
        if (files_.ReadNote(int16OrZero(s.NoteRecordNos(noteRow)))) window.tempAssignmentNotes = s.NoteRecord.Text;
    }
    HandOverStudySessions(s, window, row);

    ShowFeedOrigin(window, host_.feedOf(SavedRecordKind::Assignment, s.AssignmentIDs(row)));
    platform_.windowing.showModal(window, &host_.ownerWindow());
    ShowFeedOrigin(window, "");
    if (window.outcome() == EditorOutcome::Cancelled) return true;

    s.AssignmentRecord =
        recordOf(window, s.AssignmentRecordNos(row), s.AssignmentIDs(row), s.AssignmentClassLinks(row));
    kAssignmentTable.storeRow(s, row, s.AssignmentRecord);

    // The note: made, rewritten (changed or not), freed, or none at all.
    const std::string notes = storedNote(window);
    const int note = noteRowOf(s, row);
    bool written = true;
    if (!notes.empty() && note == 0) {
        s.NoteRecordNos.append(std::to_string(s.NextNoteRecord));
        s.NoteLinkIDs.append(s.AssignmentIDs(row));
        s.NoteRecord = {std::to_string(s.NextNoteRecord), s.AssignmentIDs(row), notes};
        written &= files_.SaveNote(0);
    } else if (note > 0) {
        s.NoteRowIndex = toInt16(note);
        const Int16 noteNumber = int16OrZero(s.NoteRecordNos(note));
        s.NoteRecord = {s.NoteRecordNos(note), notes.empty() ? "0" : s.AssignmentIDs(row), notes};
        if (notes.empty()) {
            s.NoteRecordNos.removeAt(note);
            s.NoteLinkIDs.removeAt(note);
        }
        written &= files_.SaveNote(noteNumber);
    }

    written &= UpdateStudySessions(s, files_, window, row);
    written &= files_.SaveAssignment(int16OrZero(s.AssignmentRecordNos(row)));
    host_.refresh(RefreshReason::NewRecord);
    host_.showSavedRow(SavedRecordKind::Assignment, row);
    if (window.outcome() == EditorOutcome::Deleted) host_.recordDeleted(SavedRecordKind::Assignment, s.AssignmentIDs(row));
    return written;
}

}  // namespace qh
