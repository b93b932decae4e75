#include "library/PlayListRoom.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "library/PlayListPane.h"

namespace {

using library_tests::PlayListPane;
using library_tests::PlayListRow;
using library_tests::Rows;
using library_tests::RowsOf;
using library_tests::Song;
using ports::BoxAnswer;

class PlayListRoomTest : public PlayListPane {};

TEST_F(PlayListRoomTest, AddSongOpensThePanelForTheSelectedTrack) {
    OpenPanelFor(1);

    EXPECT_TRUE(PlayLists.fraAddToPlaylist.Visible());
    EXPECT_EQ(PlayLists.txtSongToAdd.Text(), "Ac-dc - Nightjar");
    EXPECT_EQ(PlayLists.lblAddPlayListSongID.Caption(), "2");
    EXPECT_EQ(RowsOf(PlayLists.lstAddToPlaylist), (Rows{"Road", "Sunday"}));
    EXPECT_TRUE(Dialogs.Boxes.empty());
}

TEST_F(PlayListRoomTest, AddSongNeedsASelectedTrack) {
    PlayLists.imgAddSongOver.Click.Raise();

    EXPECT_FALSE(PlayLists.fraAddToPlaylist.Visible());
    EXPECT_EQ(PlayLists.lblAddPlayListSongID.Caption(), "");
}

TEST_F(PlayListRoomTest, ATrackFromOutsideIsRefused) {
    ListsRoom.AddOutsideTrack("Owl - Song", "C:\\Owl.mp3");

    OpenPanelFor(3);

    ASSERT_EQ(Dialogs.Boxes.size(), 1U);
    EXPECT_EQ(
        Dialogs.Boxes[0].text,
        "This track has been dragged from an outside source and so can't be added to a play list. Please use "
        "the search to find this track.");
    EXPECT_EQ(Dialogs.Boxes[0].title, "Can not add to play list");
    EXPECT_EQ(Dialogs.Boxes[0].icon, ports::BoxIcon::Information);
    EXPECT_EQ(Dialogs.Boxes[0].buttons, ports::BoxButtons::Ok);
    EXPECT_FALSE(PlayLists.fraAddToPlaylist.Visible());
}

TEST_F(PlayListRoomTest, OkAddsTheSongBehindTheLastRowAndHidesThePanel) {
    OpenPanelFor(1);
    PlayLists.lstAddToPlaylist.SelectText("Sunday");

    PlayLists.imgOkOver.Click.Raise();

    const auto rows = Stores.Rows("tblPlayList");
    ASSERT_EQ(rows.size(), 7U);
    EXPECT_EQ(rows.back(), PlayListRow("7", "Sunday", "2", "Ac-dc", "Nightjar"));
    EXPECT_FALSE(PlayLists.fraAddToPlaylist.Visible());
    EXPECT_EQ(PlayLists.lblEntryCount2.Caption(), "7");
}

TEST_F(PlayListRoomTest, OkNeedsAChosenPlayList) {
    OpenPanelFor(1);

    PlayLists.imgOkOver.Click.Raise();

    EXPECT_EQ(Stores.Rows("tblPlayList").size(), 6U);
    EXPECT_TRUE(PlayLists.fraAddToPlaylist.Visible());
}

TEST_F(PlayListRoomTest, OkNeedsASongToAdd) {
    OpenPanelFor(1);
    PlayLists.lstAddToPlaylist.SelectText("Sunday");
    PlayLists.txtSongToAdd.SetText("  ");

    PlayLists.imgOkOver.Click.Raise();

    EXPECT_EQ(Stores.Rows("tblPlayList").size(), 6U);
    EXPECT_TRUE(PlayLists.fraAddToPlaylist.Visible());
}

TEST_F(PlayListRoomTest, TheAddButtonOfThePanelDoesWhatOkDoes) {
    OpenPanelFor(0);
    PlayLists.lstAddToPlaylist.SelectText("Road");

    PlayLists.imgAddToPlaylist.Click.Raise();

    EXPECT_EQ(Stores.Rows("tblPlayList").back(), PlayListRow("7", "Road", "1", "Lark", "Brindle"));
}

TEST_F(PlayListRoomTest, CancelHidesThePanelAndAddsNothing) {
    OpenPanelFor(1);
    PlayLists.lstAddToPlaylist.SelectText("Sunday");

    PlayLists.imgCancelOver.Click.Raise();

    EXPECT_FALSE(PlayLists.fraAddToPlaylist.Visible());
    EXPECT_EQ(Stores.Rows("tblPlayList").size(), 6U);
}

TEST_F(PlayListRoomTest, EnterAndEscapeEndThePanel) {
    OpenPanelFor(1);
    PlayLists.lstAddToPlaylist.SelectText("Sunday");
    PlayLists.lstAddToPlaylist.KeyDown.Raise(controls::kKeyEnter, 0);
    OpenPanelFor(1);

    PlayLists.lstAddToPlaylist.KeyDown.Raise(controls::kKeyEscape, 0);

    EXPECT_EQ(Stores.Rows("tblPlayList").size(), 7U);
    EXPECT_FALSE(PlayLists.fraAddToPlaylist.Visible());
}

TEST_F(PlayListRoomTest, EnterAndEscapeWorkEverywhereInThePanel) {
    OpenPanelFor(1);
    PlayLists.lstAddToPlaylist.SelectText("Sunday");
    PlayLists.fraPlayListCenter.KeyDown.Raise(controls::kKeyEnter, 0);
    OpenPanelFor(1);

    PlayLists.fraPlayListCenter.KeyDown.Raise(controls::kKeyEscape, 0);

    EXPECT_EQ(Stores.Rows("tblPlayList").size(), 7U);
    EXPECT_FALSE(PlayLists.fraAddToPlaylist.Visible());
}

TEST_F(PlayListRoomTest, ADoubleClickOnAPlayListAddsTheSong) {
    OpenPanelFor(1);
    PlayLists.lstAddToPlaylist.SelectText("Sunday");

    PlayLists.lstAddToPlaylist.DblClick.Raise();

    EXPECT_EQ(Stores.Rows("tblPlayList").back(), PlayListRow("7", "Sunday", "2", "Ac-dc", "Nightjar"));
    EXPECT_FALSE(PlayLists.fraAddToPlaylist.Visible());
}

TEST_F(PlayListRoomTest, TheDeleteKeyInThePanelDeletesThePlayList) {
    OpenPanelFor(1);
    PlayLists.lstAddToPlaylist.SelectText("Sunday");
    Dialogs.Answers = {BoxAnswer::Yes};

    PlayLists.lstAddToPlaylist.KeyDown.Raise(controls::kKeyDelete, 0);

    ExpectQuestion("Are you sure you want to delete the playlist Sunday?", "Delete Playlist");
    EXPECT_EQ(RowsOf(PlayLists.lstAddToPlaylist), Rows{"Road"});
}

TEST_F(PlayListRoomTest, AnEntryOfEightCharactersIsAPathAndAShorterOneASong) {
    ListsRoom.AddOutsideTrack("Short path", "C:\\a.mp3");
    ListsRoom.AddSong("1234567", "Lark", "Long key");
    OpenPanelFor(4);
    EXPECT_TRUE(PlayLists.fraAddToPlaylist.Visible());
    PlayLists.imgCancelOver.Click.Raise();

    OpenPanelFor(3);

    EXPECT_EQ(Dialogs.Boxes.size(), 1U);
    EXPECT_FALSE(PlayLists.fraAddToPlaylist.Visible());
}

TEST_F(PlayListRoomTest, ASongThatLeftTheLibraryWhileThePanelStoodIsNotAdded) {
    OpenPanelFor(1);
    PlayLists.lstAddToPlaylist.SelectText("Sunday");
    Sources.datSong.Open(store::kAllSongs);
    Sources.datSong.Recordset().MoveNext();
    Sources.datSong.Recordset().Delete();

    PlayLists.imgOkOver.Click.Raise();

    EXPECT_EQ(Stores.Rows("tblPlayList").size(), 6U);
    EXPECT_FALSE(PlayLists.fraAddToPlaylist.Visible());
}

TEST_F(PlayListRoomTest, TheFirstSongOfAnEmptyTableOfPlayListsGetsTheKeyOne) {
    Sources.datPlayList.Open(store::kAllPlayListRows);
    store::RecordSet& rows = Sources.datPlayList.Recordset();
    for (rows.MoveFirst(); !rows.Eof(); rows.MoveNext())
        rows.Delete();

    PlayListsRoom.addsong("1", " Evening ");

    EXPECT_EQ(Stores.Rows("tblPlayList"),
              (std::vector<std::vector<std::string>>{PlayListRow("1", "Evening", "1", "Lark", "Brindle")}));
}

TEST_F(PlayListRoomTest, ASongMayStandInAPlayListManyTimes) {
    PlayListsRoom.addsong("1", "Sunday");
    PlayListsRoom.addsong("1", "Sunday");

    EXPECT_EQ(Stores.Rows("tblPlayList").size(), 8U);
}

TEST_F(PlayListRoomTest, ASongThatIsNotInTheLibraryIsNotAdded) {
    PlayListsRoom.addsong("99", "Sunday");
    PlayListsRoom.addsong("", "Sunday");

    EXPECT_EQ(Stores.Rows("tblPlayList").size(), 6U);
}

TEST_F(PlayListRoomTest, EditingTheSongLeavesThePlayListsCopy) {
    PlayListsRoom.addsong("1", "Sunday");
    Sources.datSong.Open(store::kAllSongs);
    Sources.datSong.Recordset().Edit();
    Sources.datSong.Recordset().Set(store::tblSong::artist, "Other");

    Sources.datSong.Recordset().Update();

    EXPECT_EQ(Stores.Rows("tblPlayList").back()[3], "Lark");
}

TEST_F(PlayListRoomTest, RemoveNeedsASelectedTrack) {
    PlayLists.imgRemoveSongOver.Click.Raise();

    EXPECT_TRUE(Dialogs.Boxes.empty());
}

TEST_F(PlayListRoomTest, RemovingFromAPlayListDeletesEveryRowOfTheSongThere) {
    Lists.lstPlayLists.SelectText("Road");
    Lists.lstTracks.SetListIndex(0);
    Dialogs.Answers = {BoxAnswer::Yes};

    PlayLists.imgRemoveSongOver.Click.Raise();

    ExpectQuestion("Are you sure you want to delete this song from the play list?",
                   "Delete song from Play list");
    const auto rows = Stores.Rows("tblPlayList");
    ASSERT_EQ(rows.size(), 4U);
    EXPECT_EQ(rows[0], PlayListRow("1", "Road"));
    EXPECT_EQ(rows[2], PlayListRow("4", "Sunday", "3", "Lark", "Largo"));
    EXPECT_EQ(rows[3], PlayListRow("6", "Road", "2", "Ac-dc", "Nightjar"));
    EXPECT_EQ(Neighbours.Calls.front(), "stage Media Library");
    EXPECT_EQ(Stores.Rows("tblSong").size(), 3U);
}

TEST_F(PlayListRoomTest, NoLeavesThePlayListAlone) {
    Lists.lstPlayLists.SelectText("Road");
    Lists.lstTracks.SetListIndex(0);
    Dialogs.Answers = {BoxAnswer::No};

    PlayLists.imgRemoveSongOver.Click.Raise();

    EXPECT_EQ(Stores.Rows("tblPlayList").size(), 6U);
    EXPECT_TRUE(Neighbours.Calls.empty());
}

TEST_F(PlayListRoomTest, TheLast20IsTakenForAPlayListThatHasNoRows) {
    Neighbours.OnHistory = [this] { ListsRoom.AddSong("3", "Lark", "Largo"); };
    Lists.lstPlayLists.SelectText("  [Last 20]");
    Lists.lstTracks.SetListIndex(0);
    Neighbours.Calls.clear();
    Dialogs.Answers = {BoxAnswer::Yes};

    PlayLists.imgRemoveSongOver.Click.Raise();

    ExpectQuestion("Are you sure you want to delete this song from the play list?",
                   "Delete song from Play list");
    EXPECT_EQ(Stores.Rows("tblPlayList").size(), 6U);
    EXPECT_EQ(Stores.Rows("tblSong").size(), 3U);
    EXPECT_EQ(Neighbours.Calls.front(), "stage Media Library");
}

TEST_F(PlayListRoomTest, OpeningThePanelTakesTheChoiceOfAPlayListAwaySoThatRemoveMeansTheLibrary) {
    Lists.lstPlayLists.SelectText("Road");
    OpenPanelFor(0);
    PlayLists.imgCancelOver.Click.Raise();

    PlayLists.imgRemoveSongOver.Click.Raise();

    ExpectQuestion("Are you sure you want to delete this file from the media library?",
                   "Delete from Media Library");
}

TEST_F(PlayListRoomTest, OfTwoSongsWithOneKeyTheFirstGoes) {
    Sources.datSong.Open(store::kAllSongs);
    store::RecordSet& rows = Sources.datSong.Recordset();
    rows.AddNew();
    rows.Set(store::tblSong::SongID, "1");
    rows.Set(store::tblSong::artist, "Second");
    rows.Update();
    Lists.lstTracks.SetListIndex(0);
    Dialogs.Answers = {BoxAnswer::Yes};

    PlayLists.imgRemoveSongOver.Click.Raise();

    ASSERT_EQ(Stores.Rows("tblSong").size(), 3U);
    EXPECT_EQ(Stores.Rows("tblSong").back()[1], "Second");
}

TEST_F(PlayListRoomTest, ARemovalThatCannotBeStoredIsToldAndKeptForLater) {
    using ports::DatabaseError;
    for (const DatabaseError error :
         {DatabaseError::DiskFull, DatabaseError::Locked, DatabaseError::ReadOnly}) {
        const std::size_t troubles = Stores.Trouble.Troubles.size();
        Stores.Database.FailApply(fakes::SeededStores::kMediaPath, error);
        Lists.lstTracks.SetListIndex(0);
        Dialogs.Answers = {BoxAnswer::Yes};

        PlayLists.imgRemoveSongOver.Click.Raise();
        Desktop.EndHandler();

        EXPECT_EQ(Stores.Trouble.Troubles.size(), troubles + 1);
        Stores.Database.FailApply(fakes::SeededStores::kMediaPath, DatabaseError::None);
        Desktop.EndHandler();
    }
    EXPECT_TRUE(Stores.Rows("tblSong").empty());
}

TEST_F(PlayListRoomTest, TheMenuRemovesAsTheButtonDoes) {
    Lists.lstPlayLists.SelectText("Road");
    Lists.lstTracks.SetListIndex(0);
    Dialogs.Answers = {BoxAnswer::Yes};

    menu.mnuRemoveSong.Click.Raise();

    EXPECT_EQ(Stores.Rows("tblPlayList").size(), 4U);
}

TEST_F(PlayListRoomTest, TheTop20ResetsThePlayCountInstead) {
    Lists.lstPlayLists.SelectText("  [Top 20]");
    Lists.lstTracks.SetListIndex(0);
    Dialogs.Answers = {BoxAnswer::Yes};

    PlayLists.imgRemoveSongOver.Click.Raise();

    ExpectQuestion("This is the top 20 playlist, would you like to reset this songs play count?",
                   "Reset Play Count");
    EXPECT_EQ(Stores.Rows("tblSong")[0], Song("1", "Lark", "Brindle", "0"));
    EXPECT_EQ(Stores.Rows("tblSong").size(), 3U);
}

TEST_F(PlayListRoomTest, NoKeepsThePlayCount) {
    Lists.lstPlayLists.SelectText("  [Top 20]");
    Lists.lstTracks.SetListIndex(0);
    Dialogs.Answers = {BoxAnswer::No};

    PlayLists.imgRemoveSongOver.Click.Raise();

    EXPECT_EQ(Stores.Rows("tblSong")[0][4], "4");
}

TEST_F(PlayListRoomTest, TheLibraryLosesTheFirstRowOfTheSongAndPlayListsKeepTheirs) {
    Lists.lstTracks.SetListIndex(2);
    Dialogs.Answers = {BoxAnswer::Yes};

    PlayLists.imgRemoveSongOver.Click.Raise();

    ExpectQuestion("Are you sure you want to delete this file from the media library?",
                   "Delete from Media Library");
    EXPECT_EQ(Stores.Rows("tblSong").size(), 2U);
    EXPECT_EQ(Stores.Rows("tblPlayList").size(), 6U);
    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"1", "2"}));
}

TEST_F(PlayListRoomTest, AllMediaDeletesFromTheLibraryWhateverTheArtist) {
    Lists.lstPlayLists.SelectText("  [All Media]");
    Lists.lstArtists.SelectText("Ac-dc");
    Lists.lstTracks.SetListIndex(0);
    Dialogs.Answers = {BoxAnswer::Yes};

    PlayLists.imgRemoveSongOver.Click.Raise();

    EXPECT_EQ(Stores.Rows("tblSong").size(), 2U);
    EXPECT_EQ(Stores.Rows("tblSong")[1][0], "3");
}

TEST_F(PlayListRoomTest, ATrackFromOutsideDeletesNoSong) {
    ListsRoom.AddOutsideTrack("Owl - Song", "C:\\Owl.mp3");
    Lists.lstTracks.SetListIndex(3);
    Dialogs.Answers = {BoxAnswer::Yes};

    PlayLists.imgRemoveSongOver.Click.Raise();

    EXPECT_EQ(Stores.Rows("tblSong").size(), 3U);
    EXPECT_EQ(Lists.lstTracks.ListCount(), 3);
}

TEST_F(PlayListRoomTest, DeletingTheLastSongLetsTheNextReuseItsKey) {
    PlayListsRoom.addsong("1", "Road");
    Lists.lstPlayLists.SelectText("Road");
    Lists.lstTracks.SetListIndex(3);
    Dialogs.Answers = {BoxAnswer::Yes};
    PlayLists.imgRemoveSongOver.Click.Raise();

    PlayListsRoom.addsong("2", "Sunday");

    EXPECT_EQ(Stores.Rows("tblPlayList").back(), PlayListRow("7", "Sunday", "2", "Ac-dc", "Nightjar"));
}

TEST_F(PlayListRoomTest, TheMouseOverAPlainPictureShowsItsBrightTwin) {
    const std::vector<std::pair<controls::Image*, controls::Image*>> twins = {
        {&PlayLists.imgAddSong, &PlayLists.imgAddSongOver},
        {&PlayLists.imgRemoveSong, &PlayLists.imgRemoveSongOver},
        {&PlayLists.imgOk, &PlayLists.imgOkOver},
        {&PlayLists.imgCancel, &PlayLists.imgCancelOver},
        {&PlayLists.imgDeletePlayList, &PlayLists.imgDeletePlayListOver}};
    for (const auto& [plain, over] : twins) {
        EXPECT_FALSE(over->Visible()) << over->Name();

        plain->MouseMove.Raise(0, 0, 1, 1);

        EXPECT_TRUE(over->Visible()) << over->Name();
    }
}

TEST_F(PlayListRoomTest, TheMouseOverThePanelHidesTheBrightPictures) {
    PlayLists.imgBG2.MouseMove.Raise(0, 0, 1, 1);
    PlayLists.fraPlayListCenter.MouseMove.Raise(0, 0, 1, 1);
    PlayLists.lstAddToPlaylist.MouseMove.Raise(0, 0, 1, 1);

    EXPECT_EQ(Neighbours.OversHidden, 3);
}

}  // namespace
