#include "record_store/backups.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "store_fixture.h"

namespace qh {
namespace {

struct BackupDrive : StoreOnDrive {
    std::string backup(const std::string& name) const { return fake.bytesOf(store.BackupDirectory + "/" + name); }
    bool inBackup(const std::string& name) const { return std::filesystem::exists(store.BackupDirectory + "/" + name); }
};

TEST(Backups, EachExitAfterAChangeShiftsThreeGenerationsAlongAndOtherExitsTouchNothing) {
    BackupDrive d;
    for (int run = 1; run <= 4; ++run) {
        d.writeFile("Tasks.txt", "run " + std::to_string(run));
        d.store.TasksChanged = kTrue;
        RotateBackups(d.store, d.fake.platform);
    }
    EXPECT_EQ(d.backup("Tasks_backup1.txt"), "run 4");
    EXPECT_EQ(d.backup("Tasks_backup2.txt"), "run 3");
    EXPECT_EQ(d.backup("Tasks_backup3.txt"), "run 2");
    // Nothing else: the fresh copy under the plain name has been rotated in.
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(d.store.BackupDirectory),
                            std::filesystem::directory_iterator()),
              3);

    d.store.TasksChanged = kFalse;
    d.fake.files.log.clear();
    RotateBackups(d.store, d.fake.platform);
    EXPECT_TRUE(d.fake.files.log.empty());
}

TEST(Backups, AFailingFileDoesNotStopTheOthers) {
    BackupDrive d;
    d.writeFile("Terms.txt", "terms");
    d.writeFile("Events.txt", "events");
    d.store.TermsChanged = kTrue;
    d.store.ClassesChanged = kTrue;  // Classes.txt is missing: every step of it fails
    d.store.EventsChanged = kTrue;
    d.fake.files.failPath("Terms.txt");
    RotateBackups(d.store, d.fake.platform);
    EXPECT_FALSE(d.inBackup("Terms_backup1.txt"));
    EXPECT_FALSE(d.inBackup("Classes_backup1.txt"));
    EXPECT_EQ(d.backup("Events_backup1.txt"), "events");
    EXPECT_TRUE(d.fake.messages.shown.empty());
}

}  // namespace
}  // namespace qh
