// Whole files on the real file layer, synced (records) or not (pages made again on
// demand): either way the name holds the old file or the new one, never a part, and no
// temporary file is left beside it.
#include <gtest/gtest.h>

#include <filesystem>

#include "common/failure.h"
#include "platform/posix_file_system.h"
#include "support/fake_platform.h"

namespace qh {
namespace {

namespace fs = std::filesystem;

using WholeWrite = void (PosixFileSystem::*)(const std::string&, const std::string&);

TEST(WholeFileWrite, ReplacesWholeOrLeavesTheOldFileAndNoTemporary) {
    const struct {
        const char* name;
        WholeWrite write;
    } ways[] = {{"synced", &PosixFileSystem::writeWhole}, {"unsynced", &PosixFileSystem::writeWholeUnsynced}};
    for (const auto& way : ways) {
        SCOPED_TRACE(way.name);
        FakePlatform fake;
        PosixFileSystem files;
        const std::string folder = fake.root + "/pages";
        fs::create_directory(folder);
        const std::string page = folder + "/Homework List.html";

        (files.*way.write)(page, "old page");
        (files.*way.write)(page, std::string("new\0page\r\n", 10));
        EXPECT_EQ(fake.bytesOf(page), std::string("new\0page\r\n", 10));

        // A folder in the way of the rename: the write fails and takes its temporary file.
        const std::string blocked = folder + "/taken";
        fs::create_directory(blocked);
        fs::create_directory(blocked + "/inside");
        EXPECT_THROW((files.*way.write)(blocked, "page"), FileFailure);
        EXPECT_TRUE(fs::is_directory(blocked + "/inside"));
        // A folder that is not there: nothing is made at all.
        EXPECT_THROW((files.*way.write)(folder + "/gone/page.html", "page"), FileFailure);

        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        EXPECT_EQ(names, (std::vector<std::string>{"Homework List.html", "taken"}));
    }
}

}  // namespace
}  // namespace qh
