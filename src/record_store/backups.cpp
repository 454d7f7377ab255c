#include "record_store/backups.h"

#include "common/failure.h"
#include "record_store/storage_locations.h"

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
    std::vector<std::string> notCopied;
    FileProblem why = FileProblem::Other;
    for (const BackedUpFile& file : kBackedUpFiles) {
        if (store.*file.changed == kFalse) continue;
        const std::string name = std::string(file.stem) + ".txt";
        const std::string plain = joinPath(backup, name);
        auto generation = [&](int n) {
            return joinPath(backup, std::string(file.stem) + "_backup" + std::to_string(n) + ".txt");
        };
        // The fresh copy is made whole under the plain name first (written to a temporary
        // file, synced, renamed); only once it stands are the generations shifted and it
        // rotated in, so a copy that fails (a full drive) costs no older generation.
        passOver([&] { files.remove(plain); });
        try {
            files.copy(joinPath(store.DataDirectory, name), plain);
        } catch (const FileFailure& failure) {
            notCopied.push_back(name);
            if (failure.problem != FileProblem::Other) why = failure.problem;
            continue;
        }
        passOver([&] { files.remove(generation(3)); });
        passOver([&] { files.rename(generation(2), generation(3)); });
        passOver([&] { files.rename(generation(1), generation(2)); });
        passOver([&] { files.rename(plain, generation(1)); });
    }
    if (!notCopied.empty())
        platform.messages.show(BackupFailedText(notCopied, why), kFileWriteErrorTitle, MessageButtons::OK,
                               MessageIcon::Exclamation);
}

std::string BackupFailedText(const std::vector<std::string>& fileNames, FileProblem why) {
    std::string names;
    for (std::size_t i = 0; i < fileNames.size(); ++i)
        names += (i == 0 ? "" : i + 1 == fileNames.size() ? " and " : ", ") + fileNames[i];
    const std::string reason = problemInWords(why);
    return "No new backup of " + names + " could be written" + (reason.empty() ? "" : " (" + reason + ")") +
           ". The older backups were kept.";
}

}  // namespace qh
