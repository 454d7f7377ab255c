#include "interchange/feed_sync.h"

#include <set>

#include "common/flag_text.h"
#include "common/int16.h"
#include "record_store/record_files.h"
#include "record_store/record_tables.h"

namespace qh {
namespace {

int rowOfId(const TextColumn& ids, std::int32_t id) {
    for (int row = 1; row <= ids.count(); ++row)
        if (int16OrZero(ids(row)) == id) return row;
    return 0;
}

bool hasStudySessions(const RecordStore& s, const std::string& assignmentId) {
    for (int i = 1; i <= s.StudySessionLinkIDs.count(); ++i)
        if (s.StudySessionLinkIDs(i) == assignmentId) return true;
    return false;
}

// Deletes records as the editors' Delete buttons do: the record is written with the
// deleted mark and its row stays for this run, passed over by the lists.
class RecordRemover {
public:
    RecordRemover(RecordStore& store, RecordFiles& files) : s_(store), files_(files) {}

    void task(int row) {
        TaskBuffer r = kTaskTable.rowOf(s_, row);
        r.Description = kDeletedRecord;
        r.Done = flagText(true);
        s_.TaskRecord = r;
        kTaskTable.storeRow(s_, row, r);
        saves.note(files_.SaveTask(int16OrZero(r.RecordNo)));
    }

    void event(int row) {
        EventBuffer r = kEventTable.rowOf(s_, row);
        r.Description = kDeletedRecord;
        s_.EventRecord = r;
        kEventTable.storeRow(s_, row, r);
        saves.note(files_.SaveEvent(int16OrZero(r.RecordNo)));
    }

    void assignment(int row) {
        AssignmentBuffer r = kAssignmentTable.rowOf(s_, row);
        r.Description = kDeletedRecord;
        r.Done = flagText(false);
        // Its note goes with it, freed as the editor frees an emptied one.
        for (int note = 1; note <= s_.NoteLinkIDs.count(); ++note) {
            if (s_.NoteLinkIDs(note) != r.ID) continue;
            s_.NoteRowIndex = toInt16(note);
            const Int16 noteNumber = int16OrZero(s_.NoteRecordNos(note));
            s_.NoteRecord = {s_.NoteRecordNos(note), "0", ""};
            s_.NoteRecordNos.removeAt(note);
            s_.NoteLinkIDs.removeAt(note);
            saves.note(files_.SaveNote(noteNumber));
            break;
        }
        s_.AssignmentRecord = r;
        kAssignmentTable.storeRow(s_, row, r);
        saves.note(files_.SaveAssignment(int16OrZero(r.RecordNo)));
    }

    SaveRun saves;

private:

    RecordStore& s_;
    RecordFiles& files_;
};

}  // namespace

ImportChoices ChoicesOf(const Subscription& feed) {
    ImportChoices choices;
    choices.courses = feed.courses;
    choices.firstOccurrenceOnly = feed.firstOccurrenceOnly;
    return choices;
}

void KeepChoices(Subscription& feed, const ImportChoices& choices) {
    for (const auto& [course, choice] : choices.courses) feed.courses[course] = choice;
    feed.firstOccurrenceOnly = choices.firstOccurrenceOnly;
}

ImportPlan PlanFeed(std::vector<CalendarItem> items, const RecordStore& store, const CalendarLinks& links,
                    const Subscription& feed) {
    std::erase_if(items, [&](const CalendarItem& item) { return feed.hidden.count(item.uid) > 0; });
    return PlanImport(std::move(items), store, links, feed.source());
}

FeedSyncResult ApplyFeed(RecordStore& store, RecordFiles& files, const ImportPlan& plan, const Subscription& feed,
                         CalendarLinks& links, Date today) {
    FeedSyncResult result;
    result.import = ApplyImport(store, files, plan, ChoicesOf(feed), links, feed.source(), today);
    // A refused write leaves the feed half applied: the removals wait for a refresh that
    // can write, so nothing is deleted on the strength of an import that did not finish.
    result.writeFailed = result.import.writeFailed;
    if (result.writeFailed) return result;

    std::set<std::string> inFeed;
    for (const CalendarItem& item : plan.items) inFeed.insert(item.uid);
    RecordRemover remover(store, files);
    for (const CalendarLinks::Linked& linked : links.ofSource(feed.source())) {
        const CalendarLink* link = links.find(linked.kind, linked.id);
        if (!link || inFeed.count(link->uid) > 0) continue;
        switch (linked.kind) {
            case LinkedKind::Task: {
                const int row = rowOfId(store.TaskIDs, linked.id);
                if (row == 0 || store.TaskDescriptions(row) == kDeletedRecord) break;
                remover.task(row);
                ++result.deleted;
                break;
            }
            case LinkedKind::Event: {
                const int row = rowOfId(store.EventIDs, linked.id);
                if (row == 0 || store.EventDescriptions(row) == kDeletedRecord) break;
                remover.event(row);
                ++result.deleted;
                break;
            }
            case LinkedKind::Assignment: {
                const int row = rowOfId(store.AssignmentIDs, linked.id);
                // An assignment of another term is not loaded: its link waits for a
                // refresh while its term is the active one.
                if (row == 0) continue;
                if (store.AssignmentDescriptions(row) == kDeletedRecord) break;
                const bool worked = isTrueFlag(store.AssignmentDones(row)) || !store.AssignmentGrades(row).empty() ||
                                    hasStudySessions(store, store.AssignmentIDs(row));
                if (worked) {
                    ++result.kept;
                } else {
                    remover.assignment(row);
                    ++result.deleted;
                }
                break;
            }
        }
        if (remover.saves.refused) {
            result.writeFailed = true;
            return result;  // the link stays, so the next refresh deletes it again
        }
        links.remove(linked.kind, linked.id);
    }
    return result;
}

void ForgetFeed(CalendarLinks& links, const Subscription& feed) {
    for (const CalendarLinks::Linked& linked : links.ofSource(feed.source())) links.remove(linked.kind, linked.id);
}

}  // namespace qh
