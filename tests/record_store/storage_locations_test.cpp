#include "record_store/storage_locations.h"

#include <gtest/gtest.h>

#include <algorithm>

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

TEST(StorageLocations, FirstRunOnAnEmptyDriveMakesTheThreeFoldersInOrder) {
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
    EXPECT_TRUE(fake.messages.shown.empty());

    // A second start finds them all and makes nothing.
    fake.files.log.clear();
    ASSERT_TRUE(SetStorageLocations(store, fake.platform));
    EXPECT_TRUE(directoriesMade(fake.files).empty());
}

TEST(StorageLocations, AMissingDataDirectoryEndsTheRunAfterItsMessage) {
    FakePlatform fake;
    // A file where the program's folder should be: the make fails unnoticed, the check
    // of the data directory does not.
    fake.writeBytes(fake.documents + "/Quillhollow", "not a folder");
    RecordStore store;
    EXPECT_FALSE(SetStorageLocations(store, fake.platform));
    ASSERT_EQ(fake.messages.shown.size(), 1u);
    const ShownMessage& box = fake.messages.shown[0];
    EXPECT_EQ(box.title, "Quillhollow - Directory Error");
    EXPECT_EQ(box.text,
              "Error creating Quillhollow Data Directory\r\n\r\nPlease restart Quillhollow. If the error "
              "continues, please contact Quillhollow Software.");
    EXPECT_EQ(box.icon, MessageIcon::Exclamation);
    EXPECT_EQ(box.buttons, MessageButtons::OK);
}

TEST(StorageLocations, AFileRoutineWithoutItsDirectoryShowsTheDirectoryMessageOnly) {
    FakePlatform fake;
    RecordStore store;
    ASSERT_TRUE(SetStorageLocations(store, fake.platform));
    store.DataDirectory = fake.documents + "/gone";
    store.TasksChanged = kTrue;
    RecordFiles files(store, fake.platform);
    EXPECT_FALSE(files.SaveTask(0));
    ASSERT_EQ(fake.messages.shown.size(), 1u);
    EXPECT_EQ(fake.messages.shown[0].title, "Quillhollow - Directory Error");
    EXPECT_EQ(fake.messages.shown[0].text,
              "Error creating or changing the File Directory.\r\n\r\nDo not continue working. Exit and restart "
              "Quillhollow. If the error continues, see the Help for more information.");
    EXPECT_EQ(store.NextTaskRecord, 1);
    EXPECT_EQ(store.TasksChanged, kTrue);  // only a file error clears the flag
}

TEST(StorageLocations, AFileErrorClearsTheFlagOfTheFileItNames) {
    FakePlatform fake;
    RecordStore store;
    Int16 RecordStore::*const flags[] = {&RecordStore::TermsChanged,         &RecordStore::ClassesChanged,
                                         &RecordStore::AssignmentsChanged,   &RecordStore::NotesChanged,
                                         &RecordStore::StudySessionsChanged, &RecordStore::TasksChanged,
                                         &RecordStore::EventsChanged};
    const char* const names[] = {"Terms.txt",         "Classes.txt", "Assignments.txt", "Notes.txt",
                                 "StudySessions.txt", "Tasks.txt",   "Events.txt"};
    for (int i = 0; i < 7; ++i) {
        for (auto flag : flags) store.*flag = kTrue;
        ReportFileError(store, fake.messages, names[i], "writing");
        for (int j = 0; j < 7; ++j) EXPECT_EQ(store.*flags[j], i == j ? kFalse : kTrue) << names[i];
    }
    for (auto flag : flags) store.*flag = kTrue;
    ReportFileError(store, fake.messages, "", "writing");
    for (auto flag : flags) EXPECT_EQ(store.*flag, kTrue);

    const ShownMessage& box = fake.messages.shown.front();
    EXPECT_EQ(box.title, "Quillhollow - File Read Error");
    EXPECT_EQ(box.text,
              "Error writing the file: Terms.txt\r\n\r\nDo not continue working. Exit and restart Quillhollow. If "
              "the error continues, see the Help for more information.");
    EXPECT_EQ(box.icon, MessageIcon::Exclamation);
}

}  // namespace
}  // namespace qh
