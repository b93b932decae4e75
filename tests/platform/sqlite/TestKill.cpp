// The program may be killed at any moment: what a finished handler wrote is there again, all of it.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "base/Number.h"
#include "fakes/FakeDesktop.h"
#include "fakes/SeededStores.h"
#include "platform/sqlite/SqliteBench.h"
#include "store/Key.h"

namespace {

using sqlite_tests::SqliteBench;
namespace tblSong = store::tblSong;

constexpr int kSongsPerHandler = 3;

// A handler: songs whose title is the handler's number, and the number of all finished ones in the first row.
void PlayHandler(store::RecordSet& songs, std::string& caption, int handler) {
    const std::string number = base::ToText(handler);
    for (int i = 0; i < kSongsPerHandler; ++i) {
        store::NextKey(songs, tblSong::SongID, caption);
        songs.Set(tblSong::title, number);
        songs.Set(tblSong::FilePath, std::string(60, 'p'));
        songs.Update();
    }
    songs.MoveFirst();
    songs.Edit();
    songs.Set(tblSong::artist, number);
    songs.Update();
}

/// Plays handlers for ever, telling the number of each finished one. Never returns.
[[noreturn]] void WriteUntilKilled(SqliteBench& bench, const std::string& path, int told) {
    fakes::FakeDesktop desktop;
    fakes::RecordingTrouble trouble;
    store::Stores stores(bench.Database(), desktop, trouble);
    store::DataSource source("datSong");
    source.SetDatabaseName(stores, path);
    if (!source.Open(store::kAllSongs)) ::_exit(1);
    store::RecordSet& songs = source.Recordset();
    std::string caption;
    int handler = songs.MoveFirst() ? static_cast<int>(base::Val(songs.Text(tblSong::artist))) : 0;
    while (trouble.Troubles.empty()) {
        PlayHandler(songs, caption, ++handler);
        desktop.EndHandler();
        if (::write(told, &handler, sizeof handler) != sizeof handler) ::_exit(2);
    }
    ::_exit(3);
}

/// Starts a writer, kills it after some finished handlers and a little more, and gives the last number it
/// told.
int KillAWriter(SqliteBench& bench, const std::string& path, std::mt19937& chance) {
    std::array<int, 2> pipe{};
    EXPECT_EQ(::pipe(pipe.data()), 0);
    const pid_t writer = ::fork();
    if (writer == 0) WriteUntilKilled(bench, path, pipe[1]);
    ::close(pipe[1]);
    int last = 0;
    int handler = 0;
    const int finished = static_cast<int>(chance() % 40) + 1;
    for (int i = 0; i < finished; ++i) {
        if (::read(pipe[0], &handler, sizeof handler) == sizeof handler) last = handler;
    }
    // Some way into the next handlers, not a pause for anything: the moment of the kill is what varies.
    for (volatile std::uint_fast32_t spin = chance() % 3'000'000; spin > 0;)
        spin = spin - 1;
    ::kill(writer, SIGKILL);
    int status = 0;
    ::waitpid(writer, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status)) << "the writer ended by itself with " << WEXITSTATUS(status);
    while (::read(pipe[0], &handler, sizeof handler) == sizeof handler)
        last = handler;
    ::close(pipe[0]);
    return last;
}

/// Every handler of the file is there with all its songs, none half, up to at least the last one that was
/// told.
void ExpectWholeHandlers(SqliteBench& bench, const std::string& path, int last_told) {
    const auto ask = [&](const char* sql) { return bench.AskElsewhere(path, sql).at(0); };
    const std::string handlers = ask("SELECT max(CAST(title AS INTEGER)) FROM tblSong");
    const std::string songs = base::ToText(static_cast<std::int64_t>(base::Val(handlers)) * kSongsPerHandler);
    EXPECT_GE(base::Val(handlers), last_told);
    EXPECT_EQ(ask("PRAGMA integrity_check"), "ok");
    EXPECT_EQ(ask("SELECT count(*) FROM tblSong"), songs);
    EXPECT_EQ(ask("SELECT count(DISTINCT SongID) FROM tblSong"), songs);
    EXPECT_EQ(ask("SELECT max(SongID) FROM tblSong"), songs);
    EXPECT_EQ(ask("SELECT artist FROM tblSong ORDER BY rowid LIMIT 1"), handlers);
    EXPECT_EQ(ask("SELECT count(*) FROM tblSong AS later JOIN tblSong AS earlier "
                  "ON later.rowid = earlier.rowid + 1 AND later.SongID <= earlier.SongID"),
              "0");
}

TEST(Kill, LosesNoFinishedHandlerAndKeepsNoHalfOne) {
    SqliteBench bench;
    const std::string path = SqliteBench::PathOf(store::kMediaStore);
    bench.MakeStore(path);
    std::mt19937 chance(20260309);

    for (int round = 0; round < 30 && !HasFailure(); ++round) {
        SCOPED_TRACE(round);
        const int last_told = KillAWriter(bench, path, chance);
        ExpectWholeHandlers(bench, path, last_told);
    }
}

}  // namespace
