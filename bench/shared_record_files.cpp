// Sharing one record: writing its line and reading it back, each well under a
// millisecond of core work (the dialogs excluded). "Write" and "Read" are the line alone;
// "ReadFromFile" adds the file layer's head read of a real file, here a file of 8 MiB
// without a line end, which must cost no more than a file of one line; "WriteToFile" adds
// the temporary file, its sync and the rename, which is the drive's time more than ours.
#include <benchmark/benchmark.h>

#include "editors/shared_file_transfer.h"
#include "editors/shared_records.h"
#include "platform/posix_file_system.h"
#include "support/fake_platform.h"

namespace qh {
namespace {

void Kinds(benchmark::internal::Benchmark* b) {
    b->ArgName("kind")->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);
}

void Write(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(test::filledFile(SharedKind(state.range(0))));
}

void Read(benchmark::State& state) {
    const std::string bytes = test::filledFile(SharedKind(state.range(0)));
    for (auto _ : state)
        if (!test::readsAs(SharedKind(state.range(0)), bytes)) state.SkipWithError("refused");
}

void ReadFromFile(benchmark::State& state) {
    FakePlatform fake;
    PosixFileSystem files;
    const auto kind = SharedKind(state.range(0));
    const std::string path = fake.documents + "/large.txt";
    fake.writeBytes(path, test::filledFile(kind).substr(0, std::size_t(sharedKindTexts(kind).lineLength)) +
                              std::string(8 << 20, 'x'));
    for (auto _ : state) {
        const auto head = readSharedFileHead(files, path, kind);
        if (!head || test::readsAs(kind, *head)) state.SkipWithError("a file without a line end was read");
    }
}

void WriteToFile(benchmark::State& state) {
    FakePlatform fake;
    PosixFileSystem files;
    const std::string path = fake.documents + "/shared.txt";
    for (auto _ : state)
        if (writeSharedFile(files, path, test::filledFile(SharedKind(state.range(0)))))
            state.SkipWithError("not written");
}

BENCHMARK(Write)->Apply(Kinds);
BENCHMARK(Read)->Apply(Kinds);
BENCHMARK(ReadFromFile)->Apply(Kinds);
BENCHMARK(WriteToFile)->Apply(Kinds);

}  // namespace
}  // namespace qh
