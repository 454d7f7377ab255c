// The dialog and file halves of sharing: what the dialogs are asked, what reaches the
// drive, and the files that give the kind's message.
#include "editors/shared_file_transfer.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "editors/shared_records.h"
#include "support/fake_platform.h"

namespace qh {
namespace {

using test::filledEvent;
using test::filledTask;

struct Sharing : testing::Test {
    FakePlatform fake;
    std::string folder = fake.documents;

    void choose(const std::string& path) {
        FileDialogAnswer answer;
        answer.chosen = true;
        answer.fullPath = path;
        fake.dialogs.fileAnswers.push_back(answer);
    }
    std::vector<std::string> messages() const {
        std::vector<std::string> texts;
        for (const auto& m : fake.messages.shown) texts.push_back(m.title + ": " + m.text);
        return texts;
    }
};

TEST_F(Sharing, WritingAsksTheSaveDialogAndPutsTheFileWithoutAMessage) {
    const std::string path = folder + "/Chess club.txt";
    choose(path);
    const std::string bytes = sharedFileBytes(filledEvent());
    ASSERT_TRUE(ShareOut(fake.platform, folder, SharedKind::Event, "Chess club.txt", bytes));

    ASSERT_EQ(fake.dialogs.fileRequests.size(), 1u);
    const FileDialogRequest& request = fake.dialogs.fileRequests[0];
    EXPECT_FALSE(request.open);
    EXPECT_TRUE(request.askBeforeReplace);
    EXPECT_EQ(request.startPath, path);
    EXPECT_EQ(request.title, "Save an Event File");
    EXPECT_EQ(request.filters, (std::vector<FileFilter>{{"Text Files (*.txt)", "*.txt"}}));
    EXPECT_EQ(fake.bytesOf(path), bytes);
    EXPECT_TRUE(messages().empty());
}

TEST_F(Sharing, ACancelledSaveWritesNothing) {
    EXPECT_FALSE(ShareOut(fake.platform, folder, SharedKind::Task, "a.txt", "bytes"));
    EXPECT_TRUE(std::filesystem::is_empty(folder));
    EXPECT_TRUE(messages().empty());
}

TEST_F(Sharing, AFailedWriteNamesTheFileAndLeavesNothingBehind) {
    // A folder in the way of the file: the temporary file is written, the rename fails.
    const std::string path = folder + "/taken.txt";
    std::filesystem::create_directory(path);
    choose(path);
    EXPECT_FALSE(ShareOut(fake.platform, folder, SharedKind::Task, "taken.txt", "bytes"));
    EXPECT_EQ(messages(), std::vector<std::string>{"Quillhollow: The file " + path + " could not be written."});
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 1);

    // No folder for the file at all.
    const std::string nowhere = folder + "/missing/task.txt";
    ASSERT_TRUE(writeSharedFile(fake.files, nowhere, "bytes"));
    EXPECT_FALSE(std::filesystem::exists(folder + "/missing"));
}

TEST_F(Sharing, ReadingAsksTheOpenDialogAndGivesTheRecord) {
    const std::string path = folder + "/task.txt";
    fake.writeBytes(path, sharedFileBytes(filledTask(), test::kSharedToday));
    choose(path);
    const auto task = ShareInTask(fake.platform, folder);
    ASSERT_TRUE(task);
    EXPECT_EQ(task->description, filledTask().description);
    const FileDialogRequest& request = fake.dialogs.fileRequests.at(0);
    EXPECT_TRUE(request.open);
    EXPECT_EQ(request.startDirectory, folder);
    EXPECT_EQ(request.title, "Open a Task File");
    EXPECT_TRUE(messages().empty());

    EXPECT_FALSE(ShareInTask(fake.platform, folder));  // cancelled: no message either
    EXPECT_TRUE(messages().empty());
}

// Files that are no file of the kind, each giving the kind's message.
TEST_F(Sharing, UnreadableAndDamagedFilesGiveTheKindsMessage) {
    const std::string event = sharedFileBytes(filledEvent());
    const std::string huge = folder + "/huge.txt";
    fake.writeBytes(huge, std::string(8 << 20, 'E'));  // megabytes without a line end
    fake.writeBytes(folder + "/empty.txt", "");
    fake.writeBytes(folder + "/short.txt", event.substr(0, 954) + "\r\n");
    fake.writeBytes(folder + "/failing.txt", event);
    fake.files.failPath("failing.txt");
    for (const std::string& path : {huge, folder + "/empty.txt", folder + "/short.txt", folder + "/failing.txt",
                                    folder + "/missing.txt", folder, std::string("/dev/zero")}) {
        SCOPED_TRACE(path);
        fake.messages.shown.clear();
        choose(path);
        EXPECT_FALSE(ShareInEvent(fake.platform, folder));
        EXPECT_EQ(messages(), std::vector<std::string>{"Quillhollow: This is not an Event file."});
        EXPECT_EQ(fake.messages.shown.at(0).icon, MessageIcon::Information);
    }
    // The reader was handed no more than a line and its end.
    EXPECT_EQ(readSharedFileHead(fake.files, huge, SharedKind::Event)->size(), 957u);
}

TEST_F(Sharing, EachKindRefusesTheOthersFiles) {
    const std::string path = folder + "/event.txt";
    fake.writeBytes(path, sharedFileBytes(filledEvent()));
    choose(path);
    EXPECT_FALSE(ShareInAssignment(fake.platform, folder));
    choose(path);
    EXPECT_FALSE(ShareInTask(fake.platform, folder));
    EXPECT_EQ(messages(), (std::vector<std::string>{"Quillhollow: This is not an Assignment file.",
                                                    "Quillhollow: This is not a Task file."}));
}

}  // namespace
}  // namespace qh
