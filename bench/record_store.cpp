// The start-up load of the record files of a realistic drive and of a maximal one
// (32,766 records in each of the seven files) beside reading the same files' bytes into
// memory. The load should cost at most three times the read: "x_read" on the load's line
// is that ratio, measured in the same run. The read is the plainest there is, one buffer of the file's size filled by read(2), so
// the ratio is what the load adds to the bytes the disk cache hands over.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "platform/posix_file_system.h"
#include "record_store/record_files.h"
#include "record_store/storage_locations.h"
#include "sample_drive.h"
#include "support/fake_platform.h"

namespace qh {
namespace {

const char* const kRecordFiles[] = {"Terms.txt",         "Classes.txt", "Assignments.txt", "Notes.txt",
                                    "StudySessions.txt", "Tasks.txt",   "Events.txt"};

// A sample drive, made once for the whole run, on the real file layer.
struct SampleDrive {
    FakePlatform fake;  // the temporary folder and the quiet stand-ins
    PosixFileSystem files;
    Platform platform{fake.environment, fake.clock,   fake.locale,    fake.messages, files,
                      fake.processes,   fake.dialogs, fake.windowing, fake.canvases, fake.calendars};
    std::size_t bytes = 0;

    explicit SampleDrive(sample::DriveSize size) {
        sample::MakeSampleDrive(fake.drive, size, fake.clock.today());
        for (const char* name : kRecordFiles) bytes += std::filesystem::file_size(fake.dataDirectory() + "/" + name);
    }
};

// Argument 0: the realistic drive, 1: the maximal one.
SampleDrive& drive(const benchmark::State& state) {
    static SampleDrive realistic(sample::DriveSize::Realistic);
    static SampleDrive maximal(sample::DriveSize::Maximal);
    return state.range(0) == 0 ? realistic : maximal;
}

double processSeconds() {
    timespec now{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

// What the program's load does with the record files: every term and class, the
// newest term's assignments, notes and sessions, every task and event. Returns the
// processor seconds it took; the rows are let go of afterwards, outside the time, as the
// bytes of the read are.
double loadSeconds(SampleDrive& d, std::size_t& rows) {
    RecordStore store;
    RecordFiles files(store, d.platform);
    const double started = processSeconds();
    bool loaded = SetStorageLocations(store, d.platform) && files.LoadTermsAndClasses();
    store.CurrentTermID = int16OrZero(store.TermIDs(store.TermIDs.count()));
    loaded = loaded && files.LoadAssignments() && files.LoadTasks() && files.LoadEvents();
    const double seconds = processSeconds() - started;
    if (!loaded || !d.fake.messages.shown.empty()) throw std::runtime_error("the sample drive did not load");
    rows = std::size_t(store.TermIDs.count() + store.ClassIDs.count() + store.AssignmentIDs.count() +
                       store.NoteRecordNos.count() + store.StudySessionRecordNos.count() + store.TaskIDs.count() +
                       store.EventIDs.count());
    return seconds;
}

// The same files' bytes, each read whole by read(2) into a buffer of its size (not
// filled beforehand: the read is the first to touch it).
double readSeconds(SampleDrive& d, std::size_t& bytes) {
    std::vector<std::unique_ptr<char[]>> files;
    bytes = 0;
    const double started = processSeconds();
    for (const char* name : kRecordFiles) {
        const std::string path = d.fake.dataDirectory() + "/" + name;
        const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
        struct stat info {};
        if (fd < 0 || ::fstat(fd, &info) != 0) throw std::runtime_error("cannot open " + path);
        const std::size_t size = std::size_t(info.st_size);
        char* const file = files.emplace_back(new char[size]).get();
        std::size_t got = 0;
        while (got < size) {
            const ssize_t n = ::read(fd, file + got, size - got);
            if (n <= 0) break;
            got += std::size_t(n);
        }
        ::close(fd);
        bytes += got;
    }
    return processSeconds() - started;
}

// Processor time rather than the clock on the wall: the machine may be shared, and time
// spent waiting for it is neither the load's nor the read's. The fastest of a few runs.
template <class Measure>
double fastest(Measure&& measure, int runs) {
    double best = 1e9;
    std::size_t amount = 0;
    for (int i = 0; i < runs; ++i) best = std::min(best, measure(amount));
    return best;
}

void BM_ReadDriveBytes(benchmark::State& state) {
    SampleDrive& d = drive(state);
    std::size_t bytes = 0;
    for (auto _ : state) state.SetIterationTime(readSeconds(d, bytes));
    state.SetBytesProcessed(std::int64_t(state.iterations()) * std::int64_t(bytes));
}
BENCHMARK(BM_ReadDriveBytes)->Arg(0)->Arg(1)->UseManualTime()->Unit(benchmark::kMillisecond);

void BM_LoadDrive(benchmark::State& state) {
    SampleDrive& d = drive(state);
    std::size_t rows = 0;
    for (auto _ : state) state.SetIterationTime(loadSeconds(d, rows));
    state.SetBytesProcessed(std::int64_t(state.iterations()) * std::int64_t(d.bytes));
    state.counters["rows"] = double(rows);
    // Both measured again here, back to back, so the ratio compares like with like.
    const double load = fastest([&](std::size_t& n) { return loadSeconds(d, n); }, 5);
    const double read = fastest([&](std::size_t& n) { return readSeconds(d, n); }, 5);
    state.counters["load_ms"] = load * 1e3;
    state.counters["read_ms"] = read * 1e3;
    state.counters["x_read"] = load / read;
}
BENCHMARK(BM_LoadDrive)->Arg(0)->Arg(1)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qh
