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
        TaskBuffer r{s_.TaskRecordNos(row), s_.TaskIDs(row),         s_.TaskDates(row),
                     kDeletedRecord,        s_.TaskDateExists(row),  s_.TaskTypes(row),
                     s_.TaskPriorities(row), flagText(true),         s_.TaskNotes(row),
                     s_.TaskReminders(row)};
        s_.TaskRecord = r;
        kTaskTable.storeRow(s_, row, r);
        static_cast<void>(files_.SaveTask(int16OrZero(r.RecordNo)));
    }

    void event(int row) {
        EventBuffer r{s_.EventRecordNos(row),  s_.EventIDs(row),         s_.EventDates(row),
                      kDeletedRecord,          s_.EventTypes(row),       s_.EventTimes(row),
                      s_.EventRecurrences(row), s_.EventSameDates(row),  s_.EventRepeatNumbers(row),
                      s_.EventRepeatDays(row), s_.EventRepeatDailies(row), s_.EventEnds(row),
                      s_.EventEndDates(row),   s_.EventNotes(row),       s_.EventReminders(row)};
        s_.EventRecord = r;
        kEventTable.storeRow(s_, row, r);
        static_cast<void>(files_.SaveEvent(int16OrZero(r.RecordNo)));
    }

    void assignment(int row) {
        AssignmentBuffer r;
        r.RecordNo = s_.AssignmentRecordNos(row);
        r.ID = s_.AssignmentIDs(row);
        r.ClassLink = s_.AssignmentClassLinks(row);
        r.DateValue = parseDateText(s_.AssignmentDates(row)).value_or(0);
        r.Type = s_.AssignmentTypes(row);
        r.Difficulty = s_.AssignmentDifficulties(row);
        r.EstTime = s_.AssignmentEstTimes(row);
        r.Description = kDeletedRecord;
        r.Done = flagText(false);
        r.Grade = s_.AssignmentGrades(row);
        r.Weight = s_.AssignmentWeights(row);
        r.Reminder = s_.AssignmentReminders(row);
        // Its note goes with it, freed as the editor frees an emptied one.
        for (int note = 1; note <= s_.NoteLinkIDs.count(); ++note) {
            if (s_.NoteLinkIDs(note) != r.ID) continue;
            s_.NoteRowIndex = toInt16(note);
            const Int16 noteNumber = int16OrZero(s_.NoteRecordNos(note));
            s_.NoteRecord = {s_.NoteRecordNos(note), "0", ""};
            s_.NoteRecordNos.removeAt(note);
            s_.NoteLinkIDs.removeAt(note);
            static_cast<void>(files_.SaveNote(noteNumber));
            break;
        }
        s_.AssignmentRecord = r;
        kAssignmentTable.storeRow(s_, row, r);
        static_cast<void>(files_.SaveAssignment(int16OrZero(r.RecordNo)));
    }

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
        links.remove(linked.kind, linked.id);
    }
    return result;
}

void ForgetFeed(CalendarLinks& links, const Subscription& feed) {
    for (const CalendarLinks::Linked& linked : links.ofSource(feed.source())) links.remove(linked.kind, linked.id);
}

}  // namespace qh
