// The player's walks over a million songs: each stands between a double click and its sound.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>

#include "BenchStore.h"
#include "base/Number.h"
#include "player/PlayOrder.h"
#include "player/SongLookup.h"
#include "store/Songs.h"

namespace {

namespace tblSong = store::tblSong;

constexpr int kSongs = 1'000'000;

std::string PathOfSong(int id) {
    return "C:\\home\\person\\Music\\Artist Number " + base::ToText(id / 50) + "\\An Album of Theirs\\" +
           base::ToText(id) + " - A Title of Usual Length.mp3";
}

struct Songs {
    Songs() {
        Store.Bind(datSong, store::kMediaStore);
        if (!datSong.Open(store::kAllSongs)) std::abort();
        store::RecordSet& rows = datSong.Recordset();
        for (int id = 1; id <= kSongs; ++id) {
            rows.AddNew();
            rows.Set(tblSong::SongID, base::ToText(id));
            rows.Set(tblSong::artist, "Artist Number " + base::ToText(id / 50));
            rows.Set(tblSong::title, "A Title of Usual Length " + base::ToText(id));
            rows.Set(tblSong::FilePath, PathOfSong(id));
            rows.Set(tblSong::PlayCount, "0");
            rows.Update();
        }
        Store.EndHandler();
    }

    bench::BenchStore Store{"player"};
    store::DataSource datSong{"datSong"};
    player::SongLookup Lookup{datSong};
};

Songs& TheSongs() {
    static Songs songs;
    return songs;
}

/// At a tenth of the table and at its end.
void Places(benchmark::internal::Benchmark* benchmark) {
    for (const int place : {kSongs / 10, kSongs})
        benchmark->Arg(place);
}

void GetSongInfo(benchmark::State& state) {
    Songs& songs = TheSongs();
    while (state.KeepRunning())
        benchmark::DoNotOptimize(songs.Lookup.PathOf(state.range(0)));
}
BENCHMARK(GetSongInfo)->Apply(Places)->Unit(benchmark::kMillisecond);

void AddPlayCount(benchmark::State& state) {
    Songs& songs = TheSongs();
    const std::string path = PathOfSong(static_cast<int>(state.range(0)));
    while (state.KeepRunning())
        songs.Lookup.AddPlayCount(path);
    songs.Store.EndHandler();
}
BENCHMARK(AddPlayCount)->Apply(Places)->Unit(benchmark::kMillisecond);

void SongPathFromId(benchmark::State& state) {
    Songs& songs = TheSongs();
    const std::string id = base::ToText(state.range(0));
    while (state.KeepRunning())
        benchmark::DoNotOptimize(store::SongPathFromId(songs.datSong, id));
}
BENCHMARK(SongPathFromId)->Apply(Places)->Unit(benchmark::kMillisecond);

struct NoChance final : ports::Chance {
    double Below1() override { return 0; }
};

/// What the first double click after a refill does with lstMaybe.
void CopyOfAMillionEntries(benchmark::State& state) {
    controls::ListBox lstMaybe("lstMaybe");
    for (int id = 1; id <= kSongs; ++id)
        lstMaybe.AddItem(base::ToText(id));
    player::PlayOrderControls controls;
    NoChance chance;
    player::PlayOrder order(controls, chance);
    while (state.KeepRunning())
        order.CopyFrom(lstMaybe);
}
BENCHMARK(CopyOfAMillionEntries)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
