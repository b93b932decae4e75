// The stores at the size of a very large library: a million songs.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/Number.h"
#include "platform/sqlite/MakeStore.h"
#include "platform/sqlite/SqliteDatabase.h"
#include "ports/EventLoop.h"
#include "store/DataSource.h"
#include "store/Key.h"
#include "store/Layouts.h"
#include "store/Stores.h"

namespace {

namespace fs = std::filesystem;
namespace tblSong = store::tblSong;

constexpr int kManySongs = 1'000'000;
constexpr std::string_view kPath = "C:\\bench\\dbMedia.mdb";

class HandlerEnds final : public ports::EventLoop {
public:
    void Yield() override { End(); }
    void AtHandlerEnd(std::function<void()> work) override { work_.push_back(std::move(work)); }
    bool IsEnding() const override { return false; }
    void End() {
        for (const auto& work : work_)
            work();
    }

private:
    std::vector<std::function<void()>> work_;
};

class EndInTrouble final : public store::StoreTrouble {
    void OnStoreTrouble(std::string_view, ports::DatabaseError, std::string_view) override { std::abort(); }
};

/// A media store in a folder of its own, opened by a program of its own.
class Library {
public:
    explicit Library(int songs) : folder_(fs::temp_directory_path() / "brindlepost-bench") {
        fs::remove_all(folder_);
        fs::create_directories(folder_);
        const auto made = sqlite::MakeStore(File(), store::kStoreLayouts[0], {});
        if (!made.Ok()) std::abort();
        Start();
        AddSongs(songs);
        EndHandler();
    }
    ~Library() {
        stores_.reset();
        fs::remove_all(folder_);
    }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    void Start() {
        stores_.reset();
        stores_ = std::make_unique<store::Stores>(database_, loop_, trouble_);
        source_.SetDatabaseName(*stores_, kPath);
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
    void EndHandler() { loop_.End(); }
    store::DataSource& Source() { return source_; }
    store::RecordSet& Songs() { return source_.Recordset(); }

private:
    std::string File() const { return (folder_ / "dbMedia.mdb").string(); }

    fs::path folder_;
    sqlite::SqliteDatabase database_{[this](std::string_view) { return File(); }};
    HandlerEnds loop_;
    EndInTrouble trouble_;
    std::unique_ptr<store::Stores> stores_;
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
