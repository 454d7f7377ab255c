// The start-up load of a maximal drive (32,766 records in each of the seven record files)
// beside reading the same files' bytes into memory. The load should cost at most three
// times the read: "x_read" on the load's line is that ratio, measured in the same run.
// The read is the plainest there is, one buffer of the file's size filled by read(2), so
// the ratio is what the load adds to the bytes the disk cache hands over.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <ctime>
#include <filesystem>

#include "platform/posix_file_system.h"
#include "record_store/record_files.h"
#include "record_store/storage_locations.h"
#include "sample_drive.h"
#include "support/fake_platform.h"

namespace qh {
namespace {

const char* const kRecordFiles[] = {"Terms.txt", "Classes.txt", "Assignments.txt", "Notes.txt",
                                    "StudySessions.txt", "Tasks.txt", "Events.txt"};

// The maximal drive, made once for the whole run, on the real file layer.
struct MaximalDrive {
    FakePlatform fake;  // the temporary folder and the quiet stand-ins
    PosixFileSystem files;
    Platform platform{fake.environment, fake.clock,    fake.locale,    fake.messages, files,
                      fake.processes,   fake.dialogs,  fake.windowing, fake.canvases};
    std::size_t bytes = 0;

    MaximalDrive() {
        sample::MakeSampleDrive(fake.drive, sample::DriveSize::Maximal, fake.clock.today());
        for (const char* name : kRecordFiles) bytes += std::filesystem::file_size(fake.dataDirectory() + "/" + name);
    }
};

MaximalDrive& drive() {
    static MaximalDrive made;
    return made;
}

// What the program's load does with the record files: every term and class, the
// newest term's assignments, notes and sessions, every task and event.
std::size_t loadAll(MaximalDrive& d) {
    RecordStore store;
    RecordFiles files(store, d.platform);
    SetStorageLocations(store, d.platform);
    bool loaded = files.LoadTermsAndClasses();
    store.CurrentTermID = int16OrZero(store.TermIDs(store.TermIDs.count()));
    loaded = loaded && files.LoadAssignments() && files.LoadTasks() && files.LoadEvents();
    if (!loaded || !d.fake.messages.shown.empty()) throw std::runtime_error("the maximal drive did not load");
    return std::size_t(store.TermIDs.count() + store.ClassIDs.count() + store.AssignmentIDs.count() +
                       store.NoteRecordNos.count() + store.StudySessionRecordNos.count() + store.TaskIDs.count() +
                       store.EventIDs.count());
}

std::string fileBytes(const std::string& path) {
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    struct stat info {};
    if (fd < 0 || ::fstat(fd, &info) != 0) throw std::runtime_error("cannot open " + path);
    std::string bytes(std::size_t(info.st_size), '\0');
    std::size_t got = 0;
    while (got < bytes.size()) {
        const ssize_t n = ::read(fd, bytes.data() + got, bytes.size() - got);
        if (n <= 0) break;
        got += std::size_t(n);
    }
    ::close(fd);
    bytes.resize(got);
    return bytes;
}

std::size_t readAll(MaximalDrive& d) {
    std::size_t bytes = 0;
    for (const char* name : kRecordFiles) bytes += fileBytes(d.fake.dataDirectory() + "/" + name).size();
    return bytes;
}

double processSeconds() {
    timespec now{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

// The fastest of a few runs, in seconds of the processor's time: the machine may be
// shared, and time spent waiting for it is neither the load's nor the read's.
template <class Work>
double fastest(Work&& work, int runs) {
    double best = 1e9;
    for (int i = 0; i < runs; ++i) {
        const double started = processSeconds();
        benchmark::DoNotOptimize(work());
        best = std::min(best, processSeconds() - started);
    }
    return best;
}

void BM_ReadMaximalDriveBytes(benchmark::State& state) {
    MaximalDrive& d = drive();
    for (auto _ : state) benchmark::DoNotOptimize(readAll(d));
    state.SetBytesProcessed(std::int64_t(state.iterations()) * std::int64_t(d.bytes));
}
BENCHMARK(BM_ReadMaximalDriveBytes)->Unit(benchmark::kMillisecond);

void BM_LoadMaximalDrive(benchmark::State& state) {
    MaximalDrive& d = drive();
    std::size_t rows = 0;
    for (auto _ : state) benchmark::DoNotOptimize(rows = loadAll(d));
    state.SetBytesProcessed(std::int64_t(state.iterations()) * std::int64_t(d.bytes));
    state.counters["rows"] = double(rows);
    // Both measured again here, back to back, so the ratio compares like with like.
    const double load = fastest([&] { return loadAll(d); }, 3), read = fastest([&] { return readAll(d); }, 3);
    state.counters["load_ms"] = load * 1e3;
    state.counters["read_ms"] = read * 1e3;
    state.counters["x_read"] = load / read;
}
BENCHMARK(BM_LoadMaximalDrive)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qh
