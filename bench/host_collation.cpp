// The host's collation on a list of the largest size: 32,767 distinct descriptions, as a
// header click sorts them the first time (keys for every text, then the byte sort), and
// the keys alone. Runs on the program's own locale for en_US and de_DE, with texts of
// plain ASCII (one byte per character from a table) and with one accented text among
// them (ICU's keys for all).
#include <benchmark/benchmark.h>

#include <QLocale>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "list_view/list_sort.h"
#include "platform/qt/qt_platform.h"

namespace qh {
namespace {

std::vector<std::string> descriptions(const benchmark::State& state) {
    std::mt19937 rng(2026);
    std::vector<std::string> made;
    for (int i = 0; i < 32767; ++i)
        made.push_back("Assignment description number " +
                       std::to_string(std::uniform_int_distribution<int>(1, 99999)(rng)));
    if (state.range(1)) made.back() = "Résumé";
    return made;
}

QLocale localeOf(const benchmark::State& state) {
    return state.range(0) ? QLocale(QLocale::German, QLocale::Germany)
                          : QLocale(QLocale::English, QLocale::UnitedStates);
}

void SortKeysOnly(benchmark::State& state) {
    const QtLocale locale(localeOf(state));
    const std::vector<std::string> texts = descriptions(state);
    const std::vector<std::string_view> views(texts.begin(), texts.end());
    std::string keys;
    std::vector<std::size_t> ends;
    for (auto _ : state) {
        keys.clear();
        ends.clear();
        locale.appendSortKeys(views, keys, ends);
        benchmark::DoNotOptimize(keys.data());
    }
}

void FirstSortOfDistinctTexts(benchmark::State& state) {
    const QtLocale locale(localeOf(state));
    const std::vector<std::string> texts = descriptions(state);
    SortKeys keys;
    keys.rule = SortRule::Text;
    for (const std::string& text : texts) keys.texts.push_back(&text);
    for (auto _ : state) {
        TextRanks ranks;
        benchmark::DoNotOptimize(SortedOrder(keys, SortDirection::Ascending, locale, &ranks).data());
    }
}

void Cases(benchmark::internal::Benchmark* b) {
    b->ArgNames({"german", "accented"})->Args({0, 0})->Args({1, 0})->Args({0, 1})->Args({1, 1});
    b->Unit(benchmark::kMillisecond);
}

BENCHMARK(SortKeysOnly)->Apply(Cases);
BENCHMARK(FirstSortOfDistinctTexts)->Apply(Cases);

}  // namespace
}  // namespace qh
