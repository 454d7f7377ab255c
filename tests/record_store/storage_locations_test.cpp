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
    Int16 S::*const flags[] = {&S::TermsChanged,         &S::ClassesChanged, &S::AssignmentsChanged, &S::NotesChanged,
                               &S::StudySessionsChanged, &S::TasksChanged,   &S::EventsChanged};
    const char* const names[] = {"Terms.txt",         "Classes.txt", "Assignments.txt", "Notes.txt",
                                 "StudySessions.txt", "Tasks.txt",   "Events.txt"};
    FakePlatform fake;
    RecordStore store;
    for (auto flag : flags) store.*flag = kTrue;
    ReportFileError(store, fake.messages, "", "writing");  // no file's
    for (int i = 0; i < 7; ++i) {
        ReportFileError(store, fake.messages, names[i], "writing");
        for (int j = 0; j < 7; ++j) EXPECT_EQ(store.*flags[j], j <= i ? kFalse : kTrue) << names[i] << " " << names[j];
    }
    const ShownMessage& box = fake.messages.shown.at(1);
    EXPECT_EQ(box.title, "Quillhollow - File Write Error");
    EXPECT_EQ(box.text,
              "Error writing the file: Terms.txt\r\n\r\nDo not continue working. Exit and restart Quillhollow. If "
              "the error continues, see the Help for more information.");
    EXPECT_EQ(box.icon, MessageIcon::Exclamation);
}

}  // namespace
}  // namespace qh
