#include "shell/feed_subscriptions.h"

#include "common/failure.h"
#include "common/int16.h"
#include "editors/editor_windows.h"
#include "interchange/calendar_links.h"
#include "interchange/feed_status.h"
#include "interchange/feed_sync.h"
#include "interchange/frm_import_preview.h"
#include "interchange/frm_subscription.h"
#include "interchange/frm_subscriptions.h"
#include "record_store/record_files.h"
#include "record_store/storage_locations.h"
#include "shell/main_window.h"

namespace qh {
namespace {

constexpr const char* kTitle = "Calendar Subscriptions";
constexpr std::size_t kMostItems = 32766;

LinkedKind linkedKindOf(SavedRecordKind kind) {
    switch (kind) {
        case SavedRecordKind::Assignment: return LinkedKind::Assignment;
        case SavedRecordKind::Task: return LinkedKind::Task;
        case SavedRecordKind::Event: return LinkedKind::Event;
    }
    return LinkedKind::Event;
}

std::string itemsText(int n) { return std::to_string(n) + (n == 1 ? " item" : " items"); }

// Why a feed's text gives no items, or "" when it does.
std::string unreadable(const CalendarRead& read) {
    if (!read.error.empty()) return "it is not a calendar";
    if (read.items.size() > kMostItems) return "it holds more items than the planner can";
    return {};
}

}  // namespace

FeedSubscriptions::FeedSubscriptions(MainWindow& window) : w_(window) {}
FeedSubscriptions::~FeedSubscriptions() { *alive_ = false; }

void FeedSubscriptions::load() {
    const std::string path = dataFilePath(w_.store, Subscriptions::kFileName);
    try {
        if (w_.platform.files.exists(path)) data_ = Subscriptions::parse(w_.platform.files.readAll(path));
    } catch (const FileFailure&) {
        // Unreadable subscriptions cost only the refreshes: the items read before stay.
        data_ = {};
    }
    w_.ui.TimerSubscriptions->enabled = !data_.feeds.empty();
}

void FeedSubscriptions::timerTick() {
    Control& timer = *w_.ui.TimerSubscriptions;
    timer.interval = kRefreshEveryMs;
    timer.enabled = !data_.feeds.empty();
    refreshAll();
}

FrmSubscriptions& FeedSubscriptions::listWindow() {
    if (!list_) {
        list_ = std::make_unique<FrmSubscriptions>();
        list_->onAdd = [this] { addOrEdit(-1); };
        list_->onEdit = [this](int index) { addOrEdit(index); };
        list_->onRemove = [this](int index) { remove(index); };
        list_->onRefresh = [this] { refreshAll(); };
    }
    return *list_;
}

void FeedSubscriptions::showWindow() {
    FrmSubscriptions& window = listWindow();
    showLines();
    w_.platform.windowing.showModal(window, &w_);
}

void FeedSubscriptions::showLines() {
    if (!list_) return;
    const Moment now = w_.platform.clock.now();
    std::vector<std::string> lines;
    for (const Subscription& feed : data_.feeds) {
        const std::string status =
            fetching_.count(feed.id) > 0 ? "refreshing" : FeedStatusText(feed, now, w_.platform.locale);
        lines.push_back(feed.name + "    " + feed.address + "    refreshed " +
                        FeedRefreshedText(feed, now, w_.platform.locale) + "    " + itemsText(feed.items) + "    " +
                        status);
    }
    list_->showLines(lines);
}

void FeedSubscriptions::startFetch(const std::string& address, FrmSubscription& form) {
    const int attempt = ++attempt_;
    read_.reset();
    FeedRequest request;
    request.address = address;
    request.timeoutMs = timeoutMs;
    w_.platform.feeds.fetch(request, [this, alive = alive_, attempt, &form](const FeedAnswer& answer) {
        if (!*alive || attempt != attempt_ || !form.fetching()) return;  // cancelled, or asked again since
        if (answer.outcome != FeedAnswer::Outcome::Fetched) {
            form.notRead(answer.why.empty() ? "the server could not be reached" : answer.why);
            return;
        }
        CalendarRead read = w_.platform.calendars.read(answer.body);
        if (const std::string why = unreadable(read); !why.empty()) {
            form.notRead(why);
            return;
        }
        if (read.items.empty()) {
            form.notRead("it holds no events or to-dos");
            return;
        }
        read_ = Read{std::move(read.items), answer.etag, answer.lastModified};
        form.read();
    });
}

void FeedSubscriptions::addOrEdit(int index) {
    if (w_.store.DriveReadOnly) {
        w_.platform.messages.show(kReadOnlyText, kTitle, MessageButtons::OK, MessageIcon::Exclamation);
        return;
    }
    const bool adding = index < 0;
    if (!adding && index >= int(data_.feeds.size())) return;
    if (!edit_) edit_ = std::make_unique<FrmSubscription>();
    FrmSubscription& form = *edit_;
    form.name = adding ? std::string() : data_.feeds[std::size_t(index)].name;
    form.address = adding ? std::string() : data_.feeds[std::size_t(index)].address;
    form.onFetch = [this, &form](const std::string&, const std::string& address) { startFetch(address, form); };
    w_.platform.windowing.showModal(form, list_.get());
    if (!form.accepted || !read_) return;
    Read read = std::move(*read_);
    read_.reset();

    // A new feed takes its number now, so that the preview knows its items; a cancelled
    // preview gives the number up unused.
    const int id = adding ? data_.add(form.name, form.address).id : data_.feeds[std::size_t(index)].id;
    CalendarLinks links = w_.readCalendarLinks();
    const ImportPlan plan = PlanFeed(std::move(read.items), w_.store, links, *data_.find(id));
    if (!preview_) preview_ = std::make_unique<FrmImportPreview>();
    preview_->plan = &plan;
    preview_->classes = ActiveTermClasses(w_.store);
    preview_->fileName = form.name;
    w_.platform.windowing.showModal(*preview_, list_.get());
    const ImportChoices choices = preview_->choices();
    preview_->plan = nullptr;
    Subscription* feed = data_.find(id);
    if (!feed) return;
    if (!preview_->accepted) {
        if (adding) data_.remove(id);
        return;
    }
    feed->name = form.name;
    feed->address = form.address;
    feed->etag = read.etag;
    feed->lastModified = read.lastModified;
    feed->lastRefreshed = feed->lastAttempt = w_.platform.clock.now();
    feed->items = int(plan.items.size());
    feed->problem.clear();
    feed->unreachable = false;
    KeepChoices(*feed, choices);
    ApplyFeed(w_.store, *w_.files, plan, *feed, links, w_.platform.clock.today());
    w_.storeCalendarLinks(links, kTitle);
    save();
    w_.ui.TimerSubscriptions->enabled = true;
    if (w_.ui.TimerSubscriptions->interval < kRefreshEveryMs) w_.ui.TimerSubscriptions->interval = kRefreshEveryMs;
    w_.Refresh(RefreshReason::NewRecord);
    showLines();
}

void FeedSubscriptions::remove(int index) {
    if (index < 0 || index >= int(data_.feeds.size())) return;
    const Subscription feed = data_.feeds[std::size_t(index)];
    if (w_.platform.messages.show("Stop reading \"" + feed.name +
                                      "\"? The items it brought stay in the planner as your own.",
                                  kTitle, MessageButtons::YesNo, MessageIcon::Question) != MessageAnswer::Yes)
        return;
    CalendarLinks links = w_.readCalendarLinks();
    ForgetFeed(links, feed);
    w_.storeCalendarLinks(links, kTitle);
    data_.remove(feed.id);
    fetching_.erase(feed.id);
    save();
    showLines();
}

void FeedSubscriptions::refreshAll() {
    // Nothing read could be kept on a drive that is not written.
    if (w_.store.DriveReadOnly) return;
    const Moment now = w_.platform.clock.now();
    for (Subscription& feed : data_.feeds) {
        if (fetching_.count(feed.id) > 0) continue;
        fetching_.insert(feed.id);
        feed.lastAttempt = now;
        FeedRequest request;
        request.address = feed.address;
        request.etag = feed.etag;
        request.lastModified = feed.lastModified;
        request.timeoutMs = timeoutMs;
        w_.platform.feeds.fetch(request, [this, alive = alive_, id = feed.id](const FeedAnswer& answer) {
            if (*alive) answered(id, answer);
        });
    }
    showLines();
}

bool FeedSubscriptions::editorOpen() const {
    for (const Form* window : w_.editors->windows())
        if (window->visible) return true;
    return false;
}

void FeedSubscriptions::answered(int id, const FeedAnswer& answer) {
    fetching_.erase(id);
    // An editor holds a row of the records the answer may change: it waits for the editor.
    if (editorOpen()) {
        waiting_.emplace_back(id, answer);
        w_.ui.TimerSubscriptionAnswers->enabled = true;
        return;
    }
    apply(id, answer);
}

void FeedSubscriptions::applyWaitingAnswers() {
    if (editorOpen()) return;
    w_.ui.TimerSubscriptionAnswers->enabled = false;
    std::vector<std::pair<int, FeedAnswer>> due;
    due.swap(waiting_);
    for (const auto& [id, answer] : due) apply(id, answer);
}

void FeedSubscriptions::apply(int id, const FeedAnswer& answer) {
    Subscription* feed = data_.find(id);
    if (!feed) return;  // removed while its answer was on its way
    bool recordsChanged = false;
    switch (answer.outcome) {
        case FeedAnswer::Outcome::Fetched: {
            CalendarRead read = w_.platform.calendars.read(answer.body);
            if (const std::string why = unreadable(read); !why.empty()) {
                feed->problem = why;
                feed->unreachable = false;
                break;
            }
            CalendarLinks links = w_.readCalendarLinks();
            const ImportPlan plan = PlanFeed(std::move(read.items), w_.store, links, *feed);
            const FeedSyncResult result = ApplyFeed(w_.store, *w_.files, plan, *feed, links, w_.platform.clock.today());
            w_.storeCalendarLinks(links, kTitle);
            recordsChanged = result.import.added + result.import.updated + result.deleted > 0;
            if (result.writeFailed) {
                // Half applied: without its tags the next refresh asks for the whole feed again.
                feed->problem = "its items could not be written to the drive";
                feed->unreachable = false;
                break;
            }
            feed->etag = answer.etag;
            feed->lastModified = answer.lastModified;
            feed->items = int(plan.items.size());
            feed->lastRefreshed = w_.platform.clock.now();
            feed->problem.clear();
            feed->unreachable = false;
            break;
        }
        case FeedAnswer::Outcome::Unchanged:
            feed->lastRefreshed = w_.platform.clock.now();
            feed->problem.clear();
            feed->unreachable = false;
            break;
        case FeedAnswer::Outcome::Unreachable:
        case FeedAnswer::Outcome::Refused:
            feed->problem = answer.why.empty() ? "the server could not be reached" : answer.why;
            feed->unreachable = answer.outcome == FeedAnswer::Outcome::Unreachable;
            break;
    }
    save();
    if (recordsChanged) w_.Refresh(RefreshReason::NewRecord);
    tellStatus(*feed);
    showLines();
}

void FeedSubscriptions::tellStatus(const Subscription& feed) {
    std::string line;
    if (!feed.problem.empty())
        line = feed.name + ": " + FeedStatusText(feed, w_.platform.clock.now(), w_.platform.locale);
    else if (w_.state.StatusBarText == statusLine_ && !statusLine_.empty())
        line = feed.name + ": up to date";
    else
        return;
    statusLine_ = line;
    w_.state.StatusBarText = line;
    w_.PaintStatusBar();
}

std::string FeedSubscriptions::feedOf(SavedRecordKind kind, const std::string& id) {
    // No subscriptions, no feed to name: the links file is not even read.
    if (data_.feeds.empty()) return {};
    const CalendarLinks links = w_.readCalendarLinks();
    const CalendarLink* link = links.find(linkedKindOf(kind), int16OrZero(id));
    const Subscription* feed = link ? data_.bySource(link->source) : nullptr;
    return feed ? feed->name : std::string();
}

void FeedSubscriptions::recordDeleted(SavedRecordKind kind, const std::string& id) {
    if (data_.feeds.empty() || w_.store.DriveReadOnly) return;
    const CalendarLinks links = w_.readCalendarLinks();
    const CalendarLink* link = links.find(linkedKindOf(kind), int16OrZero(id));
    const Subscription* from = link ? data_.bySource(link->source) : nullptr;
    Subscription* feed = from ? data_.find(from->id) : nullptr;
    if (!feed) return;
    if (w_.platform.messages.show("This item came from the calendar \"" + feed->name +
                                      "\". Leave it out of the calendar's later refreshes?\n\n"
                                      "If you answer No, it comes back when the calendar changes it or the "
                                      "planner starts again.",
                                  kTitle, MessageButtons::YesNo, MessageIcon::Question) != MessageAnswer::Yes)
        return;
    feed->hidden.insert(link->uid);
    save();
}

void FeedSubscriptions::save() {
    if (w_.store.DriveReadOnly) return;
    try {
        w_.platform.files.writeWholePrivate(dataFilePath(w_.store, Subscriptions::kFileName), data_.text());
    } catch (const FileFailure&) {
        // Said calmly, as a feed out of reach is: the subscriptions of this run go on.
        statusLine_ = std::string("The subscriptions could not be kept in ") + Subscriptions::kFileName;
        w_.state.StatusBarText = statusLine_;
        w_.PaintStatusBar();
    }
}

}  // namespace qh
