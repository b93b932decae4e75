#include "library/TrackMatchRoom.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "base/Text.h"
#include "library/LibraryPane.h"

namespace {

using library_tests::LibraryPane;
using library_tests::Rows;
using library_tests::Song;

class TrackMatchRoomTest : public testing::Test, protected LibraryPane {
protected:
    int AddLine(const std::string& artist, const std::string& title) {
        Import.lstTracksToAdd.AddItem(artist + " - " + title);
        Import.lstartist.AddItem(artist);
        Import.lsttitle.AddItem(title);
        return Import.lstTracksToAdd.ListCount() - 1;
    }
    void Match(const std::string& artist, const std::string& title) {
        Room.SearchTrack(AddLine(artist, title));
    }
    /// The playlist that is being built, row by row, from a row on.
    Rows Added() {
        Rows rows;
        for (const auto& row : Stores.Rows("tblPlayList"))
            rows.push_back(row[1] + ": " + row[2] + ": " + row[3] + " - " + row[4]);
        return rows;
    }
    Rows Ids(std::size_t from = 0) {
        Rows ids;
        for (const auto& row : Stores.Rows("tblPlayList"))
            if (from > 0) {
                --from;
            } else {
                ids.push_back(row[2]);
            }
        return ids;
    }
    store::RecordSet& Table() {
        Sources.datSong.Open(store::kAllSongs);
        return Sources.datSong.Recordset();
    }

    library::TrackImportControls Import;
    controls::Label lblFoundNo{"lblFoundNo", "0"};
    controls::Label lblDuplicatesNoRemoved{"lblDuplicatesNoRemoved", "0"};
    controls::Label lblStatus{"lblStatus", "Imported"};
    library::TrackMatchRoom Room{
        Import, {lblFoundNo, lblDuplicatesNoRemoved, lblStatus}, Sources, PlayListsRoom, Desktop};
};

TEST_F(TrackMatchRoomTest, AMatchedSongIsAddedAndCounted) {
    SeedSongs({Song("1", "Lark", "Morning"), Song("2", "Moor", "Evening")});

    Match("moor", "EVENING!");
    Match("Lark", "Morning");

    EXPECT_EQ(Added(), (Rows{"Imported: 2: Moor - Evening", "Imported: 1: Lark - Morning"}));
    EXPECT_EQ(lblFoundNo.Caption(), "2");
    EXPECT_EQ(lblDuplicatesNoRemoved.Caption(), "0");
    EXPECT_EQ(Room.MissingText(), "");
}

TEST_F(TrackMatchRoomTest, ALineThatIsNotFoundIsTold) {
    SeedSongs({Song("1", "Lark", "Morning")});

    Match("Lark", "Evening");
    Match("Nobody", "Morning");

    EXPECT_TRUE(Ids().empty());
    EXPECT_EQ(lblDuplicatesNoRemoved.Caption(), "2");
    EXPECT_EQ(Room.MissingText(), "Lark - Evening\r\nNobody - Morning\r\n");
}

TEST_F(TrackMatchRoomTest, NothingIsFoundInALibraryWithoutSongs) {
    Match("Lark", "Morning");

    EXPECT_EQ(Room.MissingText(), "Lark - Morning\r\n");
}

TEST_F(TrackMatchRoomTest, AGuestOfTheLineMatchesTheRowWithoutTheWord) {
    SeedSongs({Song("1", "Foo Bar", "Song")});

    Match("Foo ft. Bar", "Song");

    EXPECT_EQ(Ids(), Rows{"1"});
}

TEST_F(TrackMatchRoomTest, ARowNameMayBeAPartOfTheLines) {
    SeedSongs({Song("1", "Moor", "Evening")});

    Match("Lark & Moor", "Evening Post");

    EXPECT_EQ(Ids(), Rows{"1"});
}

TEST_F(TrackMatchRoomTest, TheLinesNamesMayNotBeAPartOfTheRows) {
    SeedSongs({Song("1", "Lark & Moor", "Evening Post")});

    Match("Moor", "Evening");

    EXPECT_TRUE(Ids().empty());
}

TEST_F(TrackMatchRoomTest, TheLettersBeforeTheLinesNamesBelongToThem) {
    SeedSongs({Song("1", "Abba", "Cold")});

    Match("bba", "old");

    EXPECT_EQ(Ids(), Rows{"1"});
}

TEST_F(TrackMatchRoomTest, ARowWithoutNamesFitsEveryLine) {
    SeedSongs({Song("1", "Lark", "Morning"), Song("2", "-", "!")});

    Match("Anybody", "Anything");

    EXPECT_EQ(Ids(), Rows{"2"});
}

TEST_F(TrackMatchRoomTest, OfTwoSongsThatFitTheFirstIsTaken) {
    SeedSongs(
        {Song("7", "Lark", "Post"), Song("3", "Lark", "Morning Post"), Song("4", "Lark", "Morning Post")});

    Match("Lark", "Morning Post");

    EXPECT_EQ(Ids(), Rows{"7"});
}

TEST_F(TrackMatchRoomTest, SongsThatCameAndWentBetweenLinesCount) {
    SeedSongs({Song("1", "Lark", "Morning"), Song("2", "Lark", "Morning")});
    Match("Lark", "Morning");
    store::RecordSet& songs = Table();
    songs.Delete();
    Match("Lark", "Morning");
    songs.MoveFirst();
    songs.Edit();
    songs.Set(store::tblSong::title, "Noon");
    songs.Update();
    songs.AddNew();
    songs.Set(store::tblSong::SongID, "3");
    songs.Set(store::tblSong::artist, "Lark");
    songs.Set(store::tblSong::title, "Morning");
    songs.Update();

    Match("Lark", "Morning");
    Match("Lark", "Noon");

    EXPECT_EQ(Ids(), (Rows{"1", "2", "3", "2"}));
}

TEST_F(TrackMatchRoomTest, YieldsOnceALine) {
    SeedSongs({Song("1", "Lark", "Morning"), Song("2", "Moor", "Evening")});
    const int before = Desktop.Yields;

    Match("Lark", "Morning");
    Match("Nobody", "Morning");

    EXPECT_EQ(Desktop.Yields, before + 2);
}

TEST_F(TrackMatchRoomTest, ALineThatIsNotThereChangesNothing) {
    SeedSongs({Song("1", "", "")});

    Room.SearchTrack(0);
    Room.SearchTrack(-1);

    EXPECT_TRUE(Ids().empty());
    EXPECT_EQ(lblFoundNo.Caption(), "0");
    EXPECT_EQ(lblDuplicatesNoRemoved.Caption(), "0");
}

TEST_F(TrackMatchRoomTest, ANewFileBeginsWithoutMissingLines) {
    Match("Lark", "Morning");

    Room.BeginMatching();

    EXPECT_EQ(Room.MissingText(), "");
}

TEST_F(TrackMatchRoomTest, TheCorrectedNamesAreThoseOfTheLineAndTheLastRowOfTheWalk) {
    SeedSongs({Song("1", "Lark", "Morning"), Song("2", "Moor", "Evening")});

    Match("L-ark", "Mor.ning");
    EXPECT_EQ(Room.SearchArtist + ' ' + Room.RowArtist, "LARK LARK");
    EXPECT_EQ(Room.SearchTitle + ' ' + Room.RowTitle, "MORNING MORNING");

    Match("Nobody", "Nothing");

    EXPECT_EQ(Room.SearchArtist + ' ' + Room.RowArtist, "NOBODY MOOR");
    EXPECT_EQ(Room.SearchTitle + ' ' + Room.RowTitle, "NOTHING EVENING");
}

// Correcting as it is told, one step after another.
std::string PlainlyCorrected(std::string_view name) {
    std::string text = base::UCase(base::Replace(name, " ", ""));
    for (const char* sign : {"-", "?", "'", "+", "[", "]", "{", "}", "*", "_", "=", "&", "^", "%", "$",
                             "\u00a3", "!", "\"", "."})
        text = base::Replace(text, sign, "");
    for (const char* word : {"featuring", "feat"})
        text = base::Replace(text, base::UCase(word), "");
    for (const char* sign : {"&", "(", "'", ")", "!", ",", "#"})
        text = base::Replace(text, sign, "");
    text = base::Replace(text, base::UCase("ft"), "");
    return base::Replace(text, base::UCase(" vs "), " ");
}

class RandomTracks : public TrackMatchRoomTest, public testing::WithParamInterface<unsigned> {
protected:
    RandomTracks() : random_(GetParam()) {
        std::vector<std::vector<std::string>> songs;
        for (int i = 1; i <= 120; ++i)
            songs.push_back({std::to_string(i), RandomName(), RandomName(), "", ""});
        SeedSongs(songs);
    }

    std::size_t Below(std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_);
    }
    std::string RandomName() {
        static constexpr std::array<std::string_view, 30> kPieces = {
            "a",      "A",         "b", "B", "c", "ab", "fe", "at",     "ft",     "feat",
            "uring",  "featuring", " ", "-", "'", "\"", ".",  "\u00a3", "\u00e9", "\u00c9",
            "\u0131", "\u017f",    "(", ")", "#", ",",  "!",  " vs ",   "\u0436", "F"};
        std::string name;
        for (std::size_t i = Below(5); i > 0; --i)
            name += kPieces[Below(kPieces.size())];
        return name;
    }
    void ChangeTheTable() {
        store::RecordSet& songs = Table();
        if (Below(3) == 0 && songs.MoveTo(static_cast<store::Bookmark>(Below(120)))) songs.Delete();
        if (Below(4) == 0) {
            songs.AddNew();
            songs.Set(store::tblSong::SongID, "new" + std::to_string(songs.EndOfBookmarks()));
            songs.Set(store::tblSong::artist, RandomName());
            songs.Set(store::tblSong::title, RandomName());
            songs.Update();
        }
        if (Below(10) == 0 && songs.MoveTo(static_cast<store::Bookmark>(Below(120)))) {
            songs.Edit();
            songs.Set(store::tblSong::title, RandomName());
            songs.Update();
        }
    }
    std::optional<std::string> FoundByAPlainWalk(const std::string& artist, const std::string& title) {
        const std::string wanted_artist = PlainlyCorrected(artist);
        const std::string wanted_title = PlainlyCorrected(title);
        store::RecordSet& songs = Table();
        for (songs.MoveFirst(); !songs.Eof(); songs.MoveNext()) {
            const std::string row_artist = PlainlyCorrected(songs.Text(store::tblSong::artist));
            const std::string row_title = PlainlyCorrected(songs.Text(store::tblSong::title));
            if ((row_artist == wanted_artist || base::Contains("A" + wanted_artist, row_artist)) &&
                (row_title == wanted_title || base::Contains("C" + wanted_title, row_title))) {
                return std::string(songs.Text(store::tblSong::SongID));
            }
        }
        return std::nullopt;
    }

private:
    std::mt19937 random_;
};

TEST_P(RandomTracks, AreMatchedAsByAPlainWalk) {
    std::size_t found = 0;
    for (int line = 0; line < 150; ++line) {
        ChangeTheTable();
        const std::string artist = RandomName() + RandomName();
        const std::string title = RandomName() + RandomName();
        const std::optional<std::string> expected = FoundByAPlainWalk(artist, title);
        const std::size_t added_before = Ids().size();

        Match(artist, title);

        ASSERT_EQ(Ids(added_before), expected ? Rows{*expected} : Rows{})
            << "'" << artist << "' - '" << title << "'";
        if (expected) ++found;
    }

    EXPECT_GT(found, 10U);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomTracks, testing::Range(1U, 13U));

}  // namespace
