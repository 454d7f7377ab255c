// A drive that is full or has its lock switch on, as the system reports it. Where the test
// may mount (as root), the data folder is a small tmpfs or a read-only bind mount of
// itself; elsewhere the fake file layer is told to refuse writes for the same reason.
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <unistd.h>

#include <filesystem>

#include "record_store/backups.h"
#include "store_fixture.h"

namespace qh {
namespace {

// A mount over the data folder for as long as it lives, or nothing where mounting is
// not allowed.
class DataMount {
public:
    DataMount(const std::string& folder, const char* kind) : folder_(folder) {
        if (::geteuid() != 0) return;
        if (std::string(kind) == "full") {
            mounted_ = ::mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=16k") == 0;
        } else {
            mounted_ = ::mount(folder.c_str(), folder.c_str(), nullptr, MS_BIND, nullptr) == 0;
            if (mounted_ && ::mount(nullptr, folder.c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr) != 0) {
                ::umount(folder.c_str());
                mounted_ = false;
            }
        }
    }
    ~DataMount() {
        if (mounted_) ::umount2(folder_.c_str(), MNT_DETACH);
    }
    bool mounted() const { return mounted_; }

private:
    std::string folder_;
    bool mounted_ = false;
};

std::string tasks(int count) {
    std::string bytes;
    for (int n = 1; n <= count; ++n)
        bytes += buildRecord(kTasksLayout,
                             std::vector<std::string>{std::to_string(n), std::to_string(n), "Task " + std::to_string(n),
                                                      "True", "2026/11/2" + std::to_string(n % 10), "Home", "Low",
                                                      "False", "", "None"});
    return bytes;
}

TEST(RealDrive, AFullDriveRefusesWithItsReasonAndKeepsEveryRecordAndBackup) {
    StoreOnDrive d;
    // 16 KiB: the file of 12 tasks fits, and nothing more after the filler.
    DataMount mount(d.store.DataDirectory, "full");
    if (mount.mounted()) {
        std::filesystem::create_directory(d.store.BackupDirectory);
        d.writeFile("Tasks.txt", tasks(12));
        d.fake.writeBytes(d.store.BackupDirectory + "/Tasks_backup1.txt", "old");
        std::string filler(4096, 'f');
        for (int n = 0; std::filesystem::space(d.store.DataDirectory).available > 0 && n < 8; ++n)
            d.fake.writeBytes(d.store.DataDirectory + "/filler" + std::to_string(n), filler);
    } else {
        d.writeFile("Tasks.txt", tasks(12));
        d.fake.writeBytes(d.store.BackupDirectory + "/Tasks_backup1.txt", "old");
        d.fake.files.refuseWrites(FileProblem::NoSpace);
    }
    ASSERT_TRUE(d.files.LoadTasks());
    EXPECT_EQ(d.store.TaskRecordNos.count(), 12);
    d.store.TaskRecord = {"13", "13", "2026/11/30", "New", "True", "Home", "Low", "False", "", "None"};
    EXPECT_FALSE(d.files.SaveTask(0));
    ASSERT_EQ(d.fake.messages.shown.size(), 1u) << (mount.mounted() ? "tmpfs" : "fake");
    EXPECT_EQ(d.fake.messages.shown[0].title, "Quillhollow - File Write Error");
    EXPECT_EQ(d.fake.messages.shown[0].text, fileErrorText("Tasks.txt", "writing", FileProblem::NoSpace));
    // Nothing of the new task reached the file: it ends with the twelve it had.
    EXPECT_EQ(d.bytesOf("Tasks.txt").substr(0, 12 * 1000), tasks(12));

    d.fake.messages.shown.clear();
    d.store.TasksChanged = kTrue;
    RotateBackups(d.store, d.fake.platform);
    EXPECT_EQ(d.fake.bytesOf(d.store.BackupDirectory + "/Tasks_backup1.txt"), "old");
    ASSERT_EQ(d.fake.messages.shown.size(), 1u);
    EXPECT_EQ(d.fake.messages.shown[0].text, BackupFailedText({"Tasks.txt"}, FileProblem::NoSpace));
}

TEST(RealDrive, ALockedDriveLoadsEveryRecordAndWritesNothing) {
    StoreOnDrive prepared;
    prepared.writeFile("Tasks.txt", tasks(3) + "cut");  // damaged, yet nothing may be written
    DataMount mount(prepared.store.DataDirectory, "read-only");
    if (!mount.mounted()) prepared.fake.files.refuseWrites(FileProblem::ReadOnly);
    RecordStore store;
    ASSERT_TRUE(SetStorageLocations(store, prepared.fake.platform));
    EXPECT_TRUE(store.DriveReadOnly) << (mount.mounted() ? "bind mount" : "fake");
    RecordFiles files(store, prepared.fake.platform);
    ASSERT_TRUE(files.LoadTasks());
    EXPECT_EQ(store.TaskRecordNos.count(), 3);
    ASSERT_EQ(prepared.fake.messages.shown.size(), 1u);
    EXPECT_EQ(prepared.fake.messages.shown[0].text,
              "Tasks.txt is damaged: 3 of 4 records could be read. No copy of it could be kept (the drive is "
              "read-only), so it is left as it is and changes to it cannot be saved.");
    prepared.fake.messages.shown.clear();
    store.TaskRecord = {"4", "4", "2026/11/30", "New", "True", "Home", "Low", "False", "", "None"};
    EXPECT_FALSE(files.SaveTask(0));
    ASSERT_EQ(prepared.fake.messages.shown.size(), 1u);
    EXPECT_EQ(prepared.fake.messages.shown[0].text, kReadOnlyText);
    EXPECT_EQ(prepared.bytesOf("Tasks.txt"), tasks(3) + "cut");
    EXPECT_FALSE(std::filesystem::exists(prepared.path("Tasks.damaged-2026-11-21.txt")));
}

}  // namespace
}  // namespace qh
