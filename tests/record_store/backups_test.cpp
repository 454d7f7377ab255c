#include "record_store/backups.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "store_fixture.h"

namespace qh {
namespace {

struct BackupDrive : StoreOnDrive {
    std::string backup(const std::string& name) const { return fake.bytesOf(store.BackupDirectory + "/" + name); }
    bool inBackup(const std::string& name) const { return std::filesystem::exists(store.BackupDirectory + "/" + name); }
    // One run of the planner that leaves Tasks.txt holding `content` and flags it.
    void exitAfterChangingTasks(const std::string& content) {
        writeFile("Tasks.txt", content);
        store.TasksChanged = kTrue;
        RotateBackups(store, fake.platform);
        store.TasksChanged = kFalse;
    }
};

TEST(Backups, FourExitsKeepThreeGenerationsNewestFirst) {
    BackupDrive d;
    d.exitAfterChangingTasks("run 1");
    EXPECT_EQ(d.backup("Tasks_backup1.txt"), "run 1");
    EXPECT_FALSE(d.inBackup("Tasks_backup2.txt"));
    EXPECT_FALSE(d.inBackup("Tasks.txt"));

    d.exitAfterChangingTasks("run 2");
    d.exitAfterChangingTasks("run 3");
    d.exitAfterChangingTasks("run 4");
    EXPECT_EQ(d.backup("Tasks_backup1.txt"), "run 4");
    EXPECT_EQ(d.backup("Tasks_backup2.txt"), "run 3");
    EXPECT_EQ(d.backup("Tasks_backup3.txt"), "run 2");
    EXPECT_FALSE(d.inBackup("Tasks.txt"));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(d.store.BackupDirectory),
                            std::filesystem::directory_iterator()),
              3);
}

TEST(Backups, ARunThatChangesNothingDoesNotTouchTheBackupFolder) {
    BackupDrive d;
    d.writeFile("Terms.txt", "terms");
    d.fake.files.log.clear();
    RotateBackups(d.store, d.fake.platform);
    EXPECT_TRUE(d.fake.files.log.empty());
    EXPECT_TRUE(std::filesystem::is_empty(d.store.BackupDirectory));
}

TEST(Backups, AFileThatMetAWriteErrorIsNotRotatedUntilALaterSaveSucceeds) {
    BackupDrive d;
    d.store.NoteRecord = {"1", "1", "first"};
    d.fake.files.failWrite(1);
    EXPECT_FALSE(d.files.SaveNote(0));
    RotateBackups(d.store, d.fake.platform);
    EXPECT_FALSE(d.inBackup("Notes_backup1.txt"));

    ASSERT_TRUE(d.files.SaveNote(0));
    RotateBackups(d.store, d.fake.platform);
    EXPECT_TRUE(d.inBackup("Notes_backup1.txt"));
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
