#include "record_store/storage_locations.h"

#include <gtest/gtest.h>

#include "record_store/record_files.h"
#include "support/fake_platform.h"

namespace qh {
namespace {

std::vector<std::string> directoriesMade(const FakeFileSystem& files) {
    std::vector<std::string> made;
    for (const std::string& line : files.log)
        if (line.size() > 6 && line.substr(line.size() - 6) == " mkdir")
            made.push_back(line.substr(6, line.size() - 12));
    return made;
}

TEST(StorageLocations, FirstRunOnAnEmptyDriveMakesTheThreeFoldersInOrderAndLaterRunsNone) {
    FakePlatform fake;
    RecordStore store;
    ASSERT_TRUE(SetStorageLocations(store, fake.platform));
    const std::string program = fake.documents + "/Quillhollow";
    EXPECT_EQ(directoriesMade(fake.files),
              (std::vector<std::string>{program, program + "/Data", program + "/Data/Backup"}));
    EXPECT_EQ(store.DocumentDirectory, program);
    EXPECT_EQ(store.DataDirectory, program + "/Data");
    EXPECT_EQ(store.BackupDirectory, program + "/Data/Backup");
    EXPECT_EQ(store.HelpFile, fake.exec + "/QuillhollowHelp.chm");

    fake.files.log.clear();
    ASSERT_TRUE(SetStorageLocations(store, fake.platform));
    EXPECT_TRUE(directoriesMade(fake.files).empty());
    EXPECT_TRUE(fake.messages.shown.empty());
}

TEST(StorageLocations, AMissingDirectoryShowsItsMessage) {
    FakePlatform fake;
    // A file where the program's folder should be: the make fails unnoticed, the check
    // of the data directory does not, and the run ends.
    fake.writeBytes(fake.documents + "/Quillhollow", "not a folder");
    RecordStore store;
    EXPECT_FALSE(SetStorageLocations(store, fake.platform));
    // A file routine whose directory has gone shows the directory message only.
    store.TasksChanged = kTrue;
    EXPECT_FALSE(RecordFiles(store, fake.platform).SaveTask(0));
    EXPECT_EQ(store.NextTaskRecord, 1);
    EXPECT_EQ(store.TasksChanged, kTrue);

    ASSERT_EQ(fake.messages.shown.size(), 2u);
    EXPECT_EQ(fake.messages.shown[0].title, "Quillhollow - Directory Error");
    EXPECT_EQ(fake.messages.shown[0].text,
              "Error creating Quillhollow Data Directory\r\n\r\nPlease restart Quillhollow. If the error "
              "continues, please contact Quillhollow Software.");
    EXPECT_EQ(fake.messages.shown[1].title, "Quillhollow - Directory Error");
    EXPECT_EQ(fake.messages.shown[1].text,
              "Error creating or changing the File Directory.\r\n\r\nDo not continue working. Exit and restart "
              "Quillhollow. If the error continues, see the Help for more information.");
    for (const ShownMessage& box : fake.messages.shown) {
        EXPECT_EQ(box.icon, MessageIcon::Exclamation);
        EXPECT_EQ(box.buttons, MessageButtons::OK);
    }
}

TEST(StorageLocations, AFileErrorClearsTheFlagOfTheFileItNamesOnly) {
    using S = RecordStore;
    const std::pair<const char*, Int16 S::*> files[] = {{"Terms.txt", &S::TermsChanged},
                                                        {"Classes.txt", &S::ClassesChanged},
                                                        {"Assignments.txt", &S::AssignmentsChanged},
                                                        {"Notes.txt", &S::NotesChanged},
                                                        {"StudySessions.txt", &S::StudySessionsChanged},
                                                        {"Tasks.txt", &S::TasksChanged},
                                                        {"Events.txt", &S::EventsChanged},
                                                        {"", nullptr}};
    FakePlatform fake;
    RecordStore store;
    for (const auto& [name, flag] : files) {
        for (const auto& [other, otherFlag] : files)
            if (otherFlag) store.*otherFlag = kTrue;
        ReportFileError(store, fake.messages, name, "writing");
        for (const auto& [other, otherFlag] : files)
            if (otherFlag) {
                EXPECT_EQ(store.*otherFlag, otherFlag == flag ? kFalse : kTrue) << name << " " << other;
            }
    }
    const ShownMessage& box = fake.messages.shown.front();
    EXPECT_EQ(box.title, "Quillhollow - File Read Error");
    EXPECT_EQ(box.text,
              "Error writing the file: Terms.txt\r\n\r\nDo not continue working. Exit and restart Quillhollow. If "
              "the error continues, see the Help for more information.");
    EXPECT_EQ(box.icon, MessageIcon::Exclamation);
}

}  // namespace
}  // namespace qh
