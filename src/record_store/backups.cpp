#include "record_store/backups.h"

#include "common/failure.h"

namespace qh {
namespace {

struct BackedUpFile {
    const char* stem;
    Int16 RecordStore::*changed;
};

constexpr BackedUpFile kBackedUpFiles[] = {
    {"Terms", &RecordStore::TermsChanged},
    {"Classes", &RecordStore::ClassesChanged},
    {"Assignments", &RecordStore::AssignmentsChanged},
    {"Notes", &RecordStore::NotesChanged},
    {"StudySessions", &RecordStore::StudySessionsChanged},
    {"Tasks", &RecordStore::TasksChanged},
    {"Events", &RecordStore::EventsChanged},
    {"CalendarLinks", &RecordStore::CalendarLinksChanged},
};

// A failing step of the rotation is passed over and the next one runs: a missing older
// generation is the normal case of the first runs.
template <class Step>
void passOver(Step&& step) {
    try {
        step();
    } catch (const FileFailure&) {
    }
}

}  // namespace

void RotateBackups(const RecordStore& store, Platform& platform) {
    FileSystem& files = platform.files;
    const std::string& backup = store.BackupDirectory;
    for (const BackedUpFile& file : kBackedUpFiles) {
        if (store.*file.changed == kFalse) continue;
        const std::string name = std::string(file.stem) + ".txt";
        const std::string plain = joinPath(backup, name);
        auto generation = [&](int n) {
            return joinPath(backup, std::string(file.stem) + "_backup" + std::to_string(n) + ".txt");
        };
        // The fresh copy is made under the plain name first and then rotated in, so
        // generation 1 is this exit's state and the plain name is left absent.
        passOver([&] { files.remove(plain); });
        passOver([&] { files.copy(joinPath(store.DataDirectory, name), plain); });
        passOver([&] { files.remove(generation(3)); });
        passOver([&] { files.rename(generation(2), generation(3)); });
        passOver([&] { files.rename(generation(1), generation(2)); });
        passOver([&] { files.rename(plain, generation(1)); });
    }
}

}  // namespace qh
