// The stores at the size of a very large library: a million songs.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <memory>
#include <string>

#include "BenchStore.h"
#include "base/Number.h"
#include "store/DataSource.h"
#include "store/Key.h"

namespace {

namespace tblSong = store::tblSong;

constexpr int kManySongs = 1'000'000;

/// A media store, opened by a program of its own.
class Library {
public:
    explicit Library(int songs) {
        Start();
        AddSongs(songs);
        EndHandler();
    }

    void Start() {
        store_.Start();
        store_.Bind(source_, store::kMediaStore);
        if (!source_.Open(store::kAllSongs)) std::abort();
    }
    void AddSongs(int songs) {
        for (int i = 0; i < songs; ++i) {
            store::NextKey(Songs(), tblSong::SongID, caption_);
            Songs().Set(tblSong::artist, "Artist Number " + base::ToText(i % 5000));
            Songs().Set(tblSong::title, "A Title of Usual Length " + caption_);
            Songs().Set(tblSong::FilePath, "C:\\home\\person\\Music\\Artist Number\\An Album of Theirs\\" +
                                               caption_ + " - A Title of Usual Length.mp3");
            Songs().Update();
        }
    }
    void EndHandler() { store_.EndHandler(); }
    store::DataSource& Source() { return source_; }
    store::RecordSet& Songs() { return source_.Recordset(); }

private:
    bench::BenchStore store_{"stores"};
    store::DataSource source_{"datSong"};
    std::string caption_;
};

Library& MillionSongs() {
    static Library library(kManySongs);
    return library;
}

void WalkAMillionSongs(benchmark::State& state) {
    store::RecordSet& songs = MillionSongs().Songs();
    while (state.KeepRunning()) {
        std::size_t characters = 0;
        for (songs.MoveFirst(); !songs.Eof(); songs.MoveNext())
            characters += songs.Text(tblSong::FilePath).size();
        benchmark::DoNotOptimize(characters);
    }
}
BENCHMARK(WalkAMillionSongs)->Unit(benchmark::kMillisecond);

void SortAMillionSongsByArtist(benchmark::State& state) {
    store::DataSource& source = MillionSongs().Source();
    while (state.KeepRunning())
        source.Open(store::kSongsByArtist);
    source.Open(store::kAllSongs);
}
BENCHMARK(SortAMillionSongsByArtist)->Unit(benchmark::kMillisecond);

void LoadAMillionSongs(benchmark::State& state) {
    Library& library = MillionSongs();
    while (state.KeepRunning())
        library.Start();
}
BENCHMARK(LoadAMillionSongs)->Unit(benchmark::kMillisecond);

void CommitOneSong(benchmark::State& state) {
    Library& library = MillionSongs();
    int plays = 0;
    while (state.KeepRunning()) {
        library.Songs().MoveFirst();
        library.Songs().Edit();
        library.Songs().Set(tblSong::PlayCount, base::ToText(++plays));
        library.Songs().Update();
        library.EndHandler();
    }
}
BENCHMARK(CommitOneSong)->Unit(benchmark::kMicrosecond);

void AddAHundredThousandSongs(benchmark::State& state) {
    while (state.KeepRunning()) {
        state.PauseTiming();
        auto library = std::make_unique<Library>(0);
        state.ResumeTiming();
        library->AddSongs(100'000);
        library->EndHandler();
        state.PauseTiming();
        library.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(AddAHundredThousandSongs)->Unit(benchmark::kMillisecond);

void DeleteAMillionSongs(benchmark::State& state) {
    while (state.KeepRunning()) {
        state.PauseTiming();
        auto library = std::make_unique<Library>(kManySongs);
        state.ResumeTiming();
        store::RecordSet& songs = library->Songs();
        for (songs.MoveFirst(); !songs.Eof(); songs.MoveNext())
            songs.Delete();
        library->EndHandler();
        state.PauseTiming();
        library.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(DeleteAMillionSongs)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
