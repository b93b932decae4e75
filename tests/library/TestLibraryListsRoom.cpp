#include "library/LibraryListsRoom.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "library/LibraryPane.h"

namespace {

using library::SearchField;
using library_tests::LibraryPane;
using library_tests::PlayListRow;
using library_tests::Rows;
using library_tests::RowsOf;
using library_tests::Song;

class LibraryListsRoomTest : public testing::Test, protected LibraryPane {
protected:
    void SeedThreeSongs() {
        SeedSongs({Song("1", "Lark And Moor", "Brindle"), Song("2", "Ac-dc", "Nightjar"),
                   Song("3", "Lark And Moor", "Largo")});
    }
    void SeedTwoPlayLists() {
        SeedPlayLists({PlayListRow("1", "Road"), PlayListRow("2", "Road", "3", "Lark And Moor", "Largo"),
                       PlayListRow("3", " Sunday "), PlayListRow("4", "Road", "2", "Ac-dc", "Nightjar"),
                       PlayListRow("5", "Sunday", "1", "Lark And Moor", "Brindle")});
    }
    void SelectPlayList(std::string_view row) { ASSERT_TRUE(Lists.lstPlayLists.SelectText(row)); }
};

TEST_F(LibraryListsRoomTest, PlayListsBeginWithTheBuiltInViewsAndNameEachOnce) {
    SeedTwoPlayLists();

    ListsRoom.DisplayPlayLists();

    EXPECT_EQ(RowsOf(Lists.lstPlayLists),
              (Rows{"  [All Media]", "  [Last 20]", "  [Top 20]", "Road", "Sunday"}));
    EXPECT_EQ(RowsOf(PlayLists.lstAddToPlaylist), (Rows{"Road", "Sunday"}));
}

TEST_F(LibraryListsRoomTest, ListingAgainDoesNotRepeatThePlayLists) {
    SeedTwoPlayLists();
    ListsRoom.DisplayPlayLists();

    ListsRoom.DisplayPlayLists();

    EXPECT_EQ(Lists.lstPlayLists.ListCount(), 5);
    EXPECT_EQ(PlayLists.lstAddToPlaylist.ListCount(), 2);
}

TEST_F(LibraryListsRoomTest, RowsWithoutANameAreNoPlayList) {
    SeedPlayLists({PlayListRow("1", ""), PlayListRow("2", "   ")});

    ListsRoom.DisplayPlayLists();

    EXPECT_EQ(PlayLists.lstAddToPlaylist.ListCount(), 0);
}

TEST_F(LibraryListsRoomTest, TheHundredAndFirstPlayListIsNotShown) {
    std::vector<std::vector<std::string>> rows;
    for (int i = 1; i <= 101; ++i)
        rows.push_back(PlayListRow(std::to_string(i), "List " + std::to_string(i)));
    rows.push_back(PlayListRow("102", "List 5", "1", "Ac-dc", "Nightjar"));
    SeedPlayLists(rows);

    ListsRoom.DisplayPlayLists();

    EXPECT_EQ(PlayLists.lstAddToPlaylist.ListCount(), 100);
    EXPECT_EQ(PlayLists.lstAddToPlaylist.List(99), "List 100");
    EXPECT_EQ(Lists.lstPlayLists.ListCount(), 103);
}

TEST_F(LibraryListsRoomTest, PlayListNamesDifferByCase) {
    SeedPlayLists({PlayListRow("1", "road"), PlayListRow("2", "Road")});

    ListsRoom.DisplayPlayLists();

    EXPECT_EQ(RowsOf(PlayLists.lstAddToPlaylist), (Rows{"road", "Road"}));
}

TEST_F(LibraryListsRoomTest, ArtistsAreSortedAndStandOnce) {
    SeedThreeSongs();

    ListsRoom.DisplayArtists("");

    EXPECT_EQ(RowsOf(Lists.lstArtists), (Rows{"  [All Artists]", "Ac-dc", "Lark And Moor"}));
}

TEST_F(LibraryListsRoomTest, ArtistsThatDifferOnlyByCaseStandBoth) {
    SeedSongs({Song("1", "owl", "A"), Song("2", "Owl", "B"), Song("3", "owl", "C")});

    ListsRoom.DisplayArtists("  [All Media]");

    EXPECT_EQ(RowsOf(Lists.lstArtists), (Rows{"  [All Artists]", "Owl", "owl"}));
}

TEST_F(LibraryListsRoomTest, ArtistsOfAPlayListComeFromItsRows) {
    SeedThreeSongs();
    SeedTwoPlayLists();

    ListsRoom.DisplayArtists("Sunday");

    EXPECT_EQ(RowsOf(Lists.lstArtists), (Rows{"  [All Artists]", "Lark And Moor"}));
}

TEST_F(LibraryListsRoomTest, AllTracksAreShownInTableOrderWithTheirIds) {
    SeedThreeSongs();

    ListsRoom.DisplayTracks("", "");

    EXPECT_EQ(RowsOf(Lists.lstTracks),
              (Rows{"Lark And Moor - Brindle", "Ac-dc - Nightjar", "Lark And Moor - Largo"}));
    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"1", "2", "3"}));
    EXPECT_TRUE(ListMaybeChanged);
    EXPECT_EQ(ListsRoom.DatabaseTrackID, 3);
}

TEST_F(LibraryListsRoomTest, TheSpecialRowsMeanEverything) {
    SeedThreeSongs();

    ListsRoom.DisplayTracks("  [All Media]", "  [All Artists]");

    EXPECT_EQ(Lists.lstTracks.ListCount(), 3);
}

TEST_F(LibraryListsRoomTest, TracksOfAnArtist) {
    SeedThreeSongs();

    ListsRoom.DisplayTracks("  [All Media]", "Lark And Moor");

    EXPECT_EQ(RowsOf(Lists.lstTracks), (Rows{"Lark And Moor - Brindle", "Lark And Moor - Largo"}));
    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"1", "3"}));
}

TEST_F(LibraryListsRoomTest, TracksOfAPlayListLeaveItsHeadRowOut) {
    SeedTwoPlayLists();

    ListsRoom.DisplayTracks("Road", "  [All Artists]");

    EXPECT_EQ(RowsOf(Lists.lstTracks), (Rows{"Lark And Moor - Largo", "Ac-dc - Nightjar"}));
    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"3", "2"}));
    EXPECT_EQ(ListsRoom.DatabasePlayListID, 5);
}

TEST_F(LibraryListsRoomTest, TracksOfAPlayListAndAnArtist) {
    SeedTwoPlayLists();

    ListsRoom.DisplayTracks("Road", "Ac-dc");

    EXPECT_EQ(RowsOf(Lists.lstTracks), (Rows{"Ac-dc - Nightjar"}));
    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"2"}));
}

TEST_F(LibraryListsRoomTest, ClickOnAnArtistShowsTheirTracksOfTheSelectedPlayList) {
    SeedThreeSongs();
    SeedTwoPlayLists();
    ListsRoom.DisplayPlayLists();
    SelectPlayList("Road");

    Lists.lstArtists.SelectText("Lark And Moor");

    EXPECT_EQ(RowsOf(Lists.lstTracks), (Rows{"Lark And Moor - Largo"}));
    EXPECT_EQ(RowsOf(Lists.lstArtists), (Rows{"  [All Artists]", "Ac-dc", "Lark And Moor"}));
}

TEST_F(LibraryListsRoomTest, ClickOnAllArtistsShowsThePlayListAgain) {
    SeedTwoPlayLists();
    ListsRoom.DisplayPlayLists();
    SelectPlayList("Road");
    Lists.lstArtists.SelectText("Lark And Moor");

    Lists.lstArtists.SetListIndex(0);

    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"3", "2"}));
}

TEST_F(LibraryListsRoomTest, ClickOnAllMediaReloadsArtistsAndTracks) {
    SeedThreeSongs();
    ListsRoom.DisplayPlayLists();

    SelectPlayList("  [All Media]");

    EXPECT_EQ(Lists.lstArtists.ListCount(), 3);
    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"1", "2", "3"}));
}

TEST_F(LibraryListsRoomTest, OpeningAPlayListYieldsAfterEachRow) {
    SeedTwoPlayLists();
    const int before = Desktop.Yields;

    ListsRoom.OpenPlayList("Road");

    EXPECT_EQ(Desktop.Yields - before, 5);
    EXPECT_EQ(RowsOf(Lists.lstTracks), (Rows{"Lark And Moor - Largo", "Ac-dc - Nightjar"}));
    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"3", "2"}));
    EXPECT_EQ(RowsOf(Lists.lstArtists), (Rows{"  [All Artists]", "Ac-dc", "Lark And Moor"}));
}

TEST_F(LibraryListsRoomTest, APlayListWithOnlyItsHeadRowShowsNoTracks) {
    SeedPlayLists({PlayListRow("1", "Empty")});
    ListsRoom.DisplayPlayLists();

    SelectPlayList("Empty");

    EXPECT_EQ(Lists.lstTracks.ListCount(), 0);
    EXPECT_EQ(RowsOf(Lists.lstArtists), (Rows{"  [All Artists]"}));
}

TEST_F(LibraryListsRoomTest, APlayListShowsItsOwnCopyOfASongThatLeftTheLibrary) {
    SeedPlayLists({PlayListRow("1", "Road", "77", "Gone", "Song")});

    ListsRoom.OpenPlayList("Road");

    EXPECT_EQ(RowsOf(Lists.lstTracks), (Rows{"Gone - Song"}));
    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"77"}));
}

TEST_F(LibraryListsRoomTest, AnotherViewChosenDuringAYieldTakesTheListsOver) {
    SeedThreeSongs();
    SeedTwoPlayLists();
    ListsRoom.DisplayPlayLists();
    Desktop.Post([this] { ListsRoom.OpenPlayList("Sunday"); });

    ListsRoom.OpenPlayList("Road");

    EXPECT_EQ(RowsOf(Lists.lstTracks), (Rows{"Lark And Moor - Brindle"}));
    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"1"}));
    EXPECT_EQ(RowsOf(Lists.lstArtists), (Rows{"  [All Artists]", "Lark And Moor"}));
}

TEST_F(LibraryListsRoomTest, ASongAddedDuringAYieldDoesNotDisturbTheWalk) {
    SeedThreeSongs();
    SeedTwoPlayLists();
    Desktop.Post([this] { PlayListsRoom.addsong("1", "Road"); });

    ListsRoom.OpenPlayList("Road");

    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"3", "2", "1"}));
}

TEST_F(LibraryListsRoomTest, TheEndOfTheProgramStopsTheWalk) {
    SeedTwoPlayLists();
    Desktop.Post([this] { Desktop.Ending = true; });

    ListsRoom.OpenPlayList("Sunday");

    EXPECT_EQ(Lists.lstTracks.ListCount(), 0);
    EXPECT_EQ(Lists.lstMaybe.ListCount(), 0);
}

TEST_F(LibraryListsRoomTest, ThePlayerHearsOfTheFillAtItsBeginningAndItsEnd) {
    SeedTwoPlayLists();
    bool told_at_the_beginning = false;
    Desktop.Post([&] { told_at_the_beginning = std::exchange(ListMaybeChanged, false); });

    ListsRoom.OpenPlayList("Road");

    EXPECT_TRUE(told_at_the_beginning);
    EXPECT_TRUE(ListMaybeChanged);
}

TEST_F(LibraryListsRoomTest, Last20AsksTheHistoryForTheSongs) {
    SeedThreeSongs();
    ListsRoom.Command1();
    Neighbours.Calls.clear();

    SelectPlayList("  [Last 20]");

    EXPECT_EQ(Neighbours.Calls, (Rows{"history Music"}));
    EXPECT_EQ(Lists.lstTracks.ListCount(), 0);
}

TEST_F(LibraryListsRoomTest, AnArtistOfTheLast20NarrowsThatView) {
    ListsRoom.DisplayPlayLists();
    Neighbours.OnHistory = [this] {
        ListsRoom.BeginView();
        ListsRoom.AddPlayedSong("9", "Owl", "One");
        ListsRoom.AddPlayedSong("8", "Ac-dc", "Two");
        ListsRoom.AddPlayedSong("7", "Owl - And Friends", "Three");
        ListsRoom.AddPlayedSong("9", "Owl", "One");
        ListsRoom.EndView();
    };
    SelectPlayList("  [Last 20]");

    Lists.lstArtists.SelectText("Owl");

    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"9", "9"}));
    EXPECT_EQ(RowsOf(Lists.lstTracks), (Rows{"Owl - One", "Owl - One"}));
    EXPECT_EQ(RowsOf(Lists.lstArtists), (Rows{"  [All Artists]", "Ac-dc", "Owl", "Owl - And Friends"}));
    EXPECT_EQ(Lists.lstArtists.Text(), "Owl");
}

TEST_F(LibraryListsRoomTest, AfterANarrowedViewTheNextOneIsWhole) {
    ListsRoom.DisplayPlayLists();
    Neighbours.OnHistory = [this] {
        ListsRoom.BeginView();
        ListsRoom.AddPlayedSong("9", "Owl", "One");
        ListsRoom.AddPlayedSong("8", "Ac-dc", "Two");
        ListsRoom.EndView();
    };
    SelectPlayList("  [Last 20]");
    Lists.lstArtists.SelectText("Owl");

    Lists.lstArtists.SetListIndex(0);

    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"9", "8"}));
    EXPECT_EQ(Lists.lstArtists.Text(), "  [All Artists]");
}

TEST_F(LibraryListsRoomTest, APlayedSongIsTrimmedInItsRowAndNotAmongTheArtists) {
    ListsRoom.BeginView();
    ListsRoom.AddPlayedSong("9", " Owl ", " One ");

    ListsRoom.EndView();

    EXPECT_EQ(RowsOf(Lists.lstTracks), Rows{"Owl - One"});
    EXPECT_EQ(RowsOf(Lists.lstMaybe), Rows{"9"});
    EXPECT_EQ(RowsOf(Lists.lstArtists), (Rows{"  [All Artists]", " Owl "}));
}

TEST_F(LibraryListsRoomTest, Top20ShowsTheMostPlayedFirst) {
    SeedSongs({Song("1", "A", "Once", "1"), Song("2", "B", "Never", "0"), Song("3", "C", "Often", "12"),
               Song("4", "D", "Unplayed"), Song("5", "E", "Twice", "2")});
    ListsRoom.DisplayPlayLists();

    SelectPlayList("  [Top 20]");

    EXPECT_EQ(RowsOf(Lists.lstTracks), (Rows{"C - Often", "E - Twice", "A - Once"}));
    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"3", "5", "1"}));
    EXPECT_EQ(RowsOf(Lists.lstArtists), (Rows{"  [All Artists]"}));
    EXPECT_EQ(RowsOf(Lists.lstTop20), (Rows{"00001         1", "00002         5", "00012         3"}));
    EXPECT_TRUE(ListsRoom.TopViewShown);
}

TEST_F(LibraryListsRoomTest, Top20HoldsTwentyRowsOfTwentyOnePlayed) {
    std::vector<std::vector<std::string>> songs;
    for (int i = 1; i <= 21; ++i)
        songs.push_back(Song(std::to_string(i), "A", "T", std::to_string(i)));
    SeedSongs(songs);
    ListsRoom.DisplayPlayLists();

    SelectPlayList("  [Top 20]");

    EXPECT_EQ(Lists.lstTracks.ListCount(), 20);
    EXPECT_EQ(Lists.lstMaybe.List(0), "21");
    EXPECT_EQ(Lists.lstMaybe.List(19), "2");
}

TEST_F(LibraryListsRoomTest, NineteenPlayedSongsGiveNineteenRows) {
    std::vector<std::vector<std::string>> songs;
    for (int i = 1; i <= 25; ++i)
        songs.push_back(Song(std::to_string(i), "A", "T", i <= 19 ? "4" : ""));
    SeedSongs(songs);
    ListsRoom.DisplayPlayLists();

    SelectPlayList("  [Top 20]");

    EXPECT_EQ(Lists.lstTracks.ListCount(), 19);
}

TEST_F(LibraryListsRoomTest, EqualCountsStandInReverseTextOrderOfTheirIds) {
    SeedSongs({Song("2", "A", "Two", "7"), Song("10", "B", "Ten", "7"), Song("9", "C", "Nine", "7")});
    ListsRoom.DisplayPlayLists();

    SelectPlayList("  [Top 20]");

    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"9", "2", "10"}));
}

TEST_F(LibraryListsRoomTest, AllArtistsInTheTop20ShowsItAgain) {
    SeedSongs({Song("1", "A", "Once", "1"), Song("3", "C", "Often", "12")});
    ListsRoom.DisplayPlayLists();
    SelectPlayList("  [Top 20]");

    Lists.lstArtists.SetListIndex(0);

    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"3", "1"}));
    EXPECT_TRUE(ListsRoom.TopViewShown);
}

TEST_F(LibraryListsRoomTest, AnyOtherViewEndsTheTopView) {
    SeedSongs({Song("1", "A", "Once", "1")});
    ListsRoom.DisplayPlayLists();
    SelectPlayList("  [Top 20]");

    SelectPlayList("  [All Media]");

    EXPECT_FALSE(ListsRoom.TopViewShown);
}

TEST_F(LibraryListsRoomTest, TheReloadRunsItsStepsInOrder) {
    SeedThreeSongs();
    SeedTwoPlayLists();
    lstOpenWith.AddItem("C:\\a.mp3");
    lstOpenWith.AddItem("C:\\b.mp3");

    ListsRoom.Command1();

    EXPECT_EQ(Neighbours.Calls,
              (Rows{"stage Media Library", "stage Favourites", "favourites", "stage Initial tracks",
                    "media C:\\a.mp3", "media C:\\b.mp3", "reloaded"}));
    EXPECT_EQ(Lists.lstPlayLists.ListCount(), 5);
    EXPECT_EQ(Lists.lstArtists.ListCount(), 3);
    EXPECT_EQ(Lists.lstTracks.ListCount(), 3);
    EXPECT_EQ(Lists.lstPlayLists.ListIndex(), -1);
}

TEST_F(LibraryListsRoomTest, TheListToBackUpHasTheRowsOfThePlaylists) {
    SeedPlayLists({PlayListRow("1", "Evening"), PlayListRow("2", " Road "), PlayListRow("3", "Evening")});
    lstEditPlayList.AddItem("old");

    ListsRoom.DisplayPlayLists();

    EXPECT_EQ(RowsOf(lstEditPlayList),
              (Rows{"  [All Media]", "  [Last 20]", "  [Top 20]", "Evening", "Road"}));
    EXPECT_EQ(RowsOf(lstEditPlayList), RowsOf(Lists.lstPlayLists));
}

TEST_F(LibraryListsRoomTest, AReloadWithoutDataSourcesShowsEmptyLists) {
    library::MediaSources unbound;
    controls::ListBox names{"names"};
    library::LibraryListControls other;
    library::LibraryListsRoom room{other,
                                   {names, lstEditPlayList, lstOpenWith},
                                   unbound,
                                   ListMaybeChanged,
                                   Desktop,
                                   Neighbours,
                                   {.start = Neighbours,
                                    .favourites = Neighbours,
                                    .history = Neighbours,
                                    .highlights = Neighbours,
                                    .keys = Neighbours}};

    room.Command1();

    EXPECT_EQ(other.lstPlayLists.ListCount(), 3);
    EXPECT_EQ(RowsOf(other.lstArtists), (Rows{"  [All Artists]"}));
    EXPECT_EQ(other.lstTracks.ListCount(), 0);
}

TEST_F(LibraryListsRoomTest, RefillShowsTheLibraryOnlyWhenNoTrackIsShown) {
    SeedThreeSongs();
    ListsRoom.DisplayTracks("", "Ac-dc");
    ListsRoom.RefillIfEmpty();
    EXPECT_EQ(Lists.lstTracks.ListCount(), 1);
    Lists.lstTracks.Clear();
    Lists.lstMaybe.Clear();

    ListsRoom.RefillIfEmpty();

    EXPECT_EQ(Lists.lstTracks.ListCount(), 3);
    EXPECT_EQ(Lists.lstArtists.ListCount(), 3);
}

TEST_F(LibraryListsRoomTest, ATrackFromOutsideStandsWithItsPath) {
    SeedThreeSongs();
    ListsRoom.DisplayTracks("", "");
    ListMaybeChanged = false;

    ListsRoom.AddOutsideTrack("Owl - Song", "C:\\Owl - Song.mp3");

    EXPECT_EQ(Lists.lstTracks.List(3), "Owl - Song");
    EXPECT_EQ(Lists.lstMaybe.List(3), "C:\\Owl - Song.mp3");
    EXPECT_TRUE(ListMaybeChanged);
}

TEST_F(LibraryListsRoomTest, ASelectedSongCanBeDraggedByItsId) {
    SeedThreeSongs();
    ListsRoom.DisplayTracks("", "");

    Lists.lstTracks.SetListIndex(1);

    EXPECT_EQ(Lists.lstTracks.DragText, "2");
}

TEST_F(LibraryListsRoomTest, ATrackFromOutsideCarriesNoDragText) {
    ListsRoom.AddOutsideTrack("Owl - Song", "C:\\Owl - Song.mp3");

    Lists.lstTracks.SetListIndex(0);

    EXPECT_EQ(Lists.lstTracks.DragText, "");
}

TEST_F(LibraryListsRoomTest, TheDeleteKeyOnArtistsOrTracksRemoves) {
    Lists.lstArtists.KeyDown.Raise(controls::kKeyDelete, 0);
    Lists.lstTracks.KeyDown.Raise(controls::kKeyDelete, 0);
    Lists.lstTracks.KeyDown.Raise(controls::kKeyEnter, 0);

    EXPECT_EQ(Neighbours.RemoveKeys, 2);
}

TEST_F(LibraryListsRoomTest, OtherKeysOnArtistsOrTracksArePassedOn) {
    Lists.lstArtists.KeyDown.Raise(179, 0);
    Lists.lstTracks.KeyDown.Raise(176, 4);

    EXPECT_EQ(Neighbours.Calls, (std::vector<std::string>{"key 179 0", "key 176 4"}));
}

TEST_F(LibraryListsRoomTest, AReloadOfARefusedStartReadsNothing) {
    SeedThreeSongs();
    lstOpenWith.AddItem("C:\\Music\\Owl - Song.mp3");
    Neighbours.Over = true;

    ListsRoom.Command1();

    EXPECT_EQ(Neighbours.Calls, (std::vector<std::string>{"stage Media Library"}));
    EXPECT_EQ(Lists.lstPlayLists.ListCount(), 0);
    EXPECT_EQ(Stores.Database.Opens, 0);
}

TEST_F(LibraryListsRoomTest, SongsWithoutAnArtistAreNoRowOfTheArtists) {
    SeedSongs({Song("1", "", "Alone"), Song("2", "Lark", "Morning"), Song("3", "", "Too")});

    ListsRoom.DisplayArtists({});

    EXPECT_EQ(RowsOf(Lists.lstArtists), (Rows{"  [All Artists]", "Lark"}));
}

TEST_F(LibraryListsRoomTest, TheMouseOverAListHidesTheBrightPictures) {
    for (controls::ListBox* list : {&Lists.lstPlayLists, &Lists.lstArtists, &Lists.lstTracks}) {
        list->MouseMove.Raise(0, 0, 1, 1);
    }

    EXPECT_EQ(Neighbours.OversHidden, 3);
}

TEST_F(LibraryListsRoomTest, TheNumberOfTracksInViewIsTold) {
    SeedThreeSongs();
    SeedTwoPlayLists();
    const auto told = [this](auto&& show) {
        show();
        return Lists.lblTrackCount.Caption();
    };

    EXPECT_EQ(told([this] { ListsRoom.Command1(); }), "3 tracks");
    EXPECT_EQ(told([this] { ListsRoom.OpenPlayList("Sunday"); }), "1 track");
    EXPECT_EQ(told([this] { ListsRoom.DisplayTracks("", "Lark And Moor"); }), "2 tracks");
    EXPECT_EQ(told([this] { SelectPlayList("  [Top 20]"); }), "0 tracks");
    EXPECT_EQ(told([this] { SelectPlayList("  [Last 20]"); }), "0 tracks");
    EXPECT_EQ(told([this] { ListsRoom.AddOutsideTrack("Owl - Song", "C:\\Owl.mp3"); }), "1 track");
    EXPECT_EQ(told([this] { SearchingRoom.RunLibrarySearch(SearchField::Title, "l"); }), "2 tracks");
}

TEST_F(LibraryListsRoomTest, TheNumberOfTracksIsGroupedByThousands) {
    std::vector<std::vector<std::string>> songs;
    for (int i = 1; i <= 1234; ++i)
        songs.push_back(Song(std::to_string(i), "A", "T"));
    SeedSongs(songs);

    ListsRoom.Command1();

    EXPECT_EQ(Lists.lblTrackCount.Caption(), "1,234 tracks");
}

TEST_F(LibraryListsRoomTest, ANarrowedViewTellsWhatIsLeftOfIt) {
    SeedSongs({Song("1", "A", "Once", "1"), Song("3", "C", "Often", "12")});
    ListsRoom.DisplayPlayLists();
    SelectPlayList("  [Top 20]");

    ListsRoom.DisplayTracks("[Top 20]", "C");

    EXPECT_EQ(Lists.lblTrackCount.Caption(), "1 track");
}

TEST_F(LibraryListsRoomTest, AnEmptyLibrarySaysSoInEveryView) {
    for (const auto& show : std::vector<std::function<void()>>{
             [this] { ListsRoom.Command1(); }, [this] { SelectPlayList("  [Top 20]"); },
             [this] { SearchingRoom.RunLibrarySearch(SearchField::Broad, "owl"); }}) {
        show();

        EXPECT_EQ(Lists.lstTracks.Hint(), "Your library is empty");
    }
}

TEST_F(LibraryListsRoomTest, AnEmptyViewOfAFilledLibrarySaysWhy) {
    SeedThreeSongs();
    SeedPlayLists({PlayListRow("1", "Empty")});
    ListsRoom.Command1();
    const std::vector<std::pair<std::function<void()>, std::string>> views{
        {[this] { SelectPlayList("  [Top 20]"); }, "No played tracks to show"},
        {[this] { SelectPlayList("Empty"); }, "No tracks here yet"},
        {[this] { SelectPlayList("  [Last 20]"); }, "No played tracks to show"},
        {[this] { SearchingRoom.RunLibrarySearch(SearchField::Broad, "owl"); },
         "No tracks match the search"}};
    for (const auto& [show, hint] : views) {
        show();

        EXPECT_EQ(Lists.lstTracks.Hint(), hint);
        EXPECT_EQ(Lists.lstTracks.ListCount(), 0);
    }
}

}  // namespace
