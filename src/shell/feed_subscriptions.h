#pragma once
// Options > Calendar Subscriptions...: the feeds the student subscribed to, read after
// the main window shows, every 6 hours while the planner runs and on Refresh Now. The
// network answers later, between gestures; each answer is applied in one step (the
// records written as the editors write them), then the display is refreshed once. A feed
// that cannot be reached keeps its items and is told calmly, in the window and the status
// bar, never in a message box.
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "editors/editor_host.h"
#include "interchange/subscriptions.h"
#include "platform/calendar_items.h"
#include "platform/feeds.h"

namespace qh {

class MainWindow;
class FrmSubscriptions;
class FrmSubscription;
class FrmImportPreview;

class FeedSubscriptions {
public:
    static constexpr int kRefreshEveryMs = 6 * 60 * 60 * 1000;
    explicit FeedSubscriptions(MainWindow& window);
    ~FeedSubscriptions();

    // At the main window's load: the subscriptions kept, and the first refresh set to
    // come once the window has been painted.
    void load();
    void showWindow();
    // TimerSubscriptions: the first tick after the window shows, then every 6 hours.
    void timerTick();
    // TimerSubscriptionAnswers: answers that came while an editor was open.
    void applyWaitingAnswers();
    void refreshAll();
    // A record deleted in its editor: when it came from a feed, the student is asked
    // whether the feed's later refreshes should leave it out.
    void recordDeleted(SavedRecordKind kind, const std::string& id);
    // The name of the feed a record came from; empty for the student's own.
    std::string feedOf(SavedRecordKind kind, const std::string& id);

    const Subscriptions& subscriptions() const { return data_; }
    // The longest a fetch may take; tests shorten it.
    int timeoutMs = 20000;

private:
    struct Read {
        std::vector<CalendarItem> items;
        std::string etag, lastModified;
    };
    FrmSubscriptions& listWindow();
    void addOrEdit(int index);
    void remove(int index);
    void startFetch(const std::string& address, FrmSubscription& form);
    void answered(int id, const FeedAnswer& answer);
    void apply(int id, const FeedAnswer& answer);
    bool editorOpen() const;
    void save();
    void showLines();
    void tellStatus(const Subscription& feed);

    MainWindow& w_;
    Subscriptions data_;
    std::unique_ptr<FrmSubscriptions> list_;
    std::unique_ptr<FrmSubscription> edit_;
    std::unique_ptr<FrmImportPreview> preview_;
    std::set<int> fetching_;
    std::vector<std::pair<int, FeedAnswer>> waiting_;
    std::optional<Read> read_;  // the feed the subscription window read
    int attempt_ = 0;           // the subscription window's latest fetch
    std::string statusLine_;    // what this put in the status bar last
    // Cleared when the window goes: an answer that arrives after it is passed over.
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

}  // namespace qh
