// A letter typed into the address row: suggestions out of so many addresses. The promise is below 5 ms for
// 32,000.
#include <benchmark/benchmark.h>

#include <string>

#include "places/AddressIndex.h"

namespace {

places::AddressIndex Filled(int addresses) {
    places::AddressIndex index;
    for (int i = 0; i < addresses / 100; ++i) {
        index.AddFavourite("Favourite " + std::to_string(i),
                           "https://favourite" + std::to_string(i) + ".example/");
    }
    for (int i = 0; i < addresses; ++i) {
        index.AddVisited("https://www.site" + std::to_string(i % 997) + ".example/articles/2026/page-" +
                         std::to_string(i) + ".html?from=front");
    }
    for (int i = 0; i < 200; ++i) {
        index.NoteVisit("https://www.site" + std::to_string(i) + ".example/articles/2026/page-" +
                        std::to_string(i) + ".html?from=front");
    }
    return index;
}

void Suggest(benchmark::State& state, const char* typed) {
    const places::AddressIndex index = Filled(static_cast<int>(state.range(0)));
    while (state.KeepRunning())
        benchmark::DoNotOptimize(index.Find(typed, 8));
}

void Fill(benchmark::State& state) {
    while (state.KeepRunning())
        benchmark::DoNotOptimize(Filled(static_cast<int>(state.range(0))));
}

BENCHMARK_CAPTURE(Suggest, one_letter, "s")->Arg(32'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Suggest, a_host, "site42")->Arg(32'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Suggest, words, "article page-31 front")->Arg(32'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Suggest, nothing, "owls at night")->Arg(32'000)->Unit(benchmark::kMillisecond);
BENCHMARK(Fill)->Arg(32'000)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
