#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "library/LibraryPane.h"

namespace {

using library_tests::LibraryPane;
using library_tests::PlayListRow;
using library_tests::Rows;
using library_tests::RowsOf;
using library_tests::Song;

/// A large library while the program starts; what others do when it gives them a turn.
class LibraryAtTheStart : public LibraryPane, public testing::Test {
protected:
    static constexpr int kSongs = 20'000;

    LibraryAtTheStart() {
        std::vector<std::vector<std::string>> songs;
        for (int i = 1; i <= kSongs; ++i)
            songs.push_back(Song(std::to_string(i), "Artist " + std::to_string(i / 50), "Title"));
        SeedSongs(songs);
        SeedPlayLists({PlayListRow("1", "Sunday"), PlayListRow("2", "Sunday", "7", "Owl", "Hoot")});
        Neighbours.Loading = true;
    }

    /// At each turn, until it returns false.
    void AtEachTurn(std::function<bool()> work) {
        Desktop.Post([this, work = std::move(work)] {
            if (work()) AtEachTurn(work);
        });
    }
};

TEST_F(LibraryAtTheStart, OthersHaveTheirTurnWhileATableIsReadAndWhileEachListIsFilled) {
    std::set<std::size_t> read;
    std::set<int> artists;
    std::set<int> tracks;
    AtEachTurn([&] {
        read.insert(Stores.Database.RowsRead);
        artists.insert(Lists.lstMusicTest.ListCount());
        tracks.insert(Lists.lstTracks.ListCount());
        return true;
    });

    ListsRoom.Command1();

    EXPECT_GE(read.size(), 5U);
    EXPECT_GE(artists.size(), 8U);
    EXPECT_GE(tracks.size(), 8U);
    EXPECT_EQ(Lists.lstTracks.ListCount(), kSongs);
    EXPECT_EQ(Lists.lstMaybe.ListCount(), kSongs);
    EXPECT_EQ(Lists.lstArtists.ListCount(), 1 + kSongs / 50 + 1);
    EXPECT_EQ(Lists.lblTrackCount.Caption(), "20,000 tracks");
}

TEST_F(LibraryAtTheStart, OnceItIsOverAReloadGivesNoTurns) {
    Neighbours.Loading = false;

    ListsRoom.Command1();

    EXPECT_EQ(Desktop.Yields, 0);
    EXPECT_EQ(Lists.lstTracks.ListCount(), kSongs);
}

TEST_F(LibraryAtTheStart, APlayListThatIsOpenedMeanwhileKeepsTheLists) {
    for (const bool among_the_tracks : {false, true}) {
        Desktop.EndHandler();
        AtEachTurn([&, opened = false]() mutable {
            const bool is_time = among_the_tracks ? Lists.lstTracks.ListCount() > 0 && !opened
                                                  : Lists.lstMusicTest.ListCount() > 0 && !opened;
            if (!is_time) return !opened;
            opened = true;
            ListsRoom.OpenPlayList("Sunday");
            return false;
        });
        Neighbours.Calls.clear();

        ListsRoom.Command1();

        EXPECT_EQ(RowsOf(Lists.lstTracks), (Rows{"Owl - Hoot"})) << among_the_tracks;
        EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"7"}));
        EXPECT_EQ(RowsOf(Lists.lstArtists), (Rows{"  [All Artists]", "Owl"}));
        EXPECT_EQ(Neighbours.Calls.back(), "reloaded");
    }
}

TEST_F(LibraryAtTheStart, WhatThePlayerCopiedMeanwhileIsOutOfDateInTheEnd) {
    AtEachTurn([&] {
        ListMaybeChanged = false;
        return true;
    });

    ListsRoom.Command1();

    EXPECT_TRUE(ListMaybeChanged);
}

TEST_F(LibraryAtTheStart, WhoNeedsTheSongsMeanwhileGetsThemAll) {
    std::size_t there = 0;
    Desktop.Post([&] { there = Stores.OpenTable("tblSong")->Recordset().RecordCount(); });

    ListsRoom.Command1();

    EXPECT_EQ(there, static_cast<std::size_t>(kSongs));
    EXPECT_EQ(Lists.lstTracks.ListCount(), kSongs);
}

TEST_F(LibraryAtTheStart, AnEndMeanwhileIsTheEndOfTheReload) {
    const auto calls_of_a_reload_that_ends = [this](int turns) {
        Neighbours.Calls.clear();
        Neighbours.Over = false;
        Desktop.EndHandler();
        AtEachTurn([this, turns]() mutable { return !(Neighbours.Over = --turns == 0); });
        ListsRoom.Command1();
        return Neighbours.Calls;
    };
    const std::vector<std::string> begun{"stage Media Library"};

    EXPECT_EQ(calls_of_a_reload_that_ends(1), begun) << "while the songs are read";
    const std::size_t read = Stores.Database.RowsRead;
    EXPECT_LT(read, static_cast<std::size_t>(kSongs));
    EXPECT_EQ(calls_of_a_reload_that_ends(7), begun) << "while the artists are listed";
    EXPECT_EQ(calls_of_a_reload_that_ends(12), begun) << "while the tracks are listed";
    EXPECT_LT(Lists.lstTracks.ListCount(), kSongs);
}

}  // namespace
