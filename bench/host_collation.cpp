// The host's collation on a list of the largest size: 32,767 distinct descriptions, as a
// header click sorts them the first time (keys for every text, then the byte sort), and
// the keys alone. Runs on the program's own locale, ICU underneath, for en_US and de_DE.
#include <benchmark/benchmark.h>

#include <QLocale>
#include <random>
#include <string>
#include <vector>

#include "list_view/list_sort.h"
#include "platform/qt/qt_platform.h"

namespace qh {
namespace {

const std::vector<std::string>& descriptions() {
    static const std::vector<std::string> texts = [] {
        std::mt19937 rng(2026);
        std::vector<std::string> made;
        for (int i = 0; i < 32767; ++i)
            made.push_back("Assignment description number " +
                           std::to_string(std::uniform_int_distribution<int>(1, 99999)(rng)));
        return made;
    }();
    return texts;
}

QLocale localeOf(const benchmark::State& state) {
    return state.range(0) ? QLocale(QLocale::German, QLocale::Germany)
                          : QLocale(QLocale::English, QLocale::UnitedStates);
}

void SortKeysOnly(benchmark::State& state) {
    const QtLocale locale(localeOf(state));
    std::string keys;
    for (auto _ : state) {
        keys.clear();
        for (const std::string& text : descriptions()) locale.appendSortKey(text, keys);
        benchmark::DoNotOptimize(keys.data());
    }
}

void FirstSortOfDistinctTexts(benchmark::State& state) {
    const QtLocale locale(localeOf(state));
    SortKeys keys;
    keys.rule = SortRule::Text;
    for (const std::string& text : descriptions()) keys.texts.push_back(&text);
    for (auto _ : state) {
        TextRanks ranks;
        benchmark::DoNotOptimize(SortedOrder(keys, 1, locale, &ranks).data());
    }
}

BENCHMARK(SortKeysOnly)->ArgName("german")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(FirstSortOfDistinctTexts)->ArgName("german")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qh
