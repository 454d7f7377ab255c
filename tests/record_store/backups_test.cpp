#include "record_store/backups.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

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

TEST(Backups, AFailedCopyKeepsEveryGenerationIsToldOnceAndDoesNotStopTheOthers) {
    const struct {
        const char* drive;
        std::function<void(BackupDrive&)> fault;
        std::string text;
    } cases[] = {
        {"a failing Terms.txt", [](BackupDrive& d) { d.fake.files.failPath("Terms.txt"); },
         "No new backup of Terms.txt and Classes.txt could be written. The older backups were kept."},
    };
    for (const auto& c : cases) {
        BackupDrive d;
        d.writeFile("Terms.txt", "terms");
        d.writeFile("Events.txt", "events");
        for (int n = 1; n <= 3; ++n) {
            d.fake.writeBytes(d.store.BackupDirectory + "/Terms_backup" + std::to_string(n) + ".txt",
                              "old " + std::to_string(n));
        }
        d.store.TermsChanged = kTrue;
        d.store.ClassesChanged = kTrue;  // Classes.txt is missing: its copy fails
        d.store.EventsChanged = kTrue;
        c.fault(d);
        RotateBackups(d.store, d.fake.platform);
        for (int n = 1; n <= 3; ++n)
            EXPECT_EQ(d.backup("Terms_backup" + std::to_string(n) + ".txt"), "old " + std::to_string(n)) << c.drive;
        EXPECT_FALSE(d.inBackup("Classes_backup1.txt")) << c.drive;
        EXPECT_EQ(d.backup("Events_backup1.txt"), "events") << c.drive;
        ASSERT_EQ(d.fake.messages.shown.size(), 1u) << c.drive;
        EXPECT_EQ(d.fake.messages.shown[0].text, c.text) << c.drive;
        EXPECT_EQ(d.fake.messages.shown[0].title, "Quillhollow - File Write Error") << c.drive;
    }
}

TEST(Backups, ANoSpaceFailureSaysSoAndKeepsTheGenerations) {
    BackupDrive d;
    d.writeFile("Tasks.txt", "run 1");
    d.store.TasksChanged = kTrue;
    RotateBackups(d.store, d.fake.platform);
    d.writeFile("Tasks.txt", "run 2");
    d.fake.files.refuseWrites(FileProblem::NoSpace);
    RotateBackups(d.store, d.fake.platform);
    EXPECT_EQ(d.backup("Tasks_backup1.txt"), "run 1");
    ASSERT_EQ(d.fake.messages.shown.size(), 1u);
    EXPECT_EQ(d.fake.messages.shown[0].text, BackupFailedText({"Tasks.txt"}, FileProblem::NoSpace));
    EXPECT_EQ(BackupFailedText({"A.txt", "B.txt", "C.txt"}, FileProblem::NoSpace),
              "No new backup of A.txt, B.txt and C.txt could be written (no space left on the drive). The older "
              "backups were kept.");
}

}  // namespace
}  // namespace qh
