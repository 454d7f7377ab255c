#pragma once
// A subscribed calendar feed read again: its items planned as an import from the feed
// (the student's choices kept in the subscription, hidden items left out) and written in
// one pass, new items added, changed ones updated, and the records of items gone from the
// feed deleted as the editors delete them. An assignment the student has worked on (ticked
// Done, graded, or logged study sessions for) is never deleted: it stays as the student's
// own, no longer tied to the feed.
#include <string>
#include <vector>

#include "interchange/calendar_links.h"
#include "interchange/ical_import.h"
#include "interchange/subscriptions.h"

namespace qh {

class RecordFiles;
struct RecordStore;

// The student's choices of a subscription as the import takes them.
ImportChoices ChoicesOf(const Subscription& feed);
// Keeps the choices made in the preview for the refreshes to come.
void KeepChoices(Subscription& feed, const ImportChoices& choices);

// The plan of a feed's items: those the student hid are left out.
ImportPlan PlanFeed(std::vector<CalendarItem> items, const RecordStore& store, const CalendarLinks& links,
                    const Subscription& feed);

struct FeedSyncResult {
    ImportResult import;
    int deleted = 0;  // records of items gone from the feed
    int kept = 0;     // assignments gone from the feed that the student had worked on
    // A write was refused (the import's or a deletion's): the sync stopped there and the
    // feed must be fetched whole again.
    bool writeFailed = false;
};

FeedSyncResult ApplyFeed(RecordStore& store, RecordFiles& files, const ImportPlan& plan, const Subscription& feed,
                         CalendarLinks& links, Date today);

// Drops a subscription's ties to its records: they stay, as the student's own.
void ForgetFeed(CalendarLinks& links, const Subscription& feed);

}  // namespace qh
