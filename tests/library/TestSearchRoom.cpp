#include "library/SearchRoom.h"

#include <gtest/gtest.h>

#include <string>

#include "library/LibraryPane.h"

namespace {

using testing_library::LibraryPane;
using testing_library::Rows;
using testing_library::RowsOf;
using testing_library::Song;

class SearchRoomTest : public testing::Test, protected LibraryPane {
protected:
    SearchRoomTest() {
        SeedSongs({Song("1", "Ac-dc", "Back In Black"),
                   Song("2", "Lark And Moor", "Evening Post"),
                   {"3", "Unknown", "Rock", "C:\\Music\\Rock + Roll.mp3", ""},
                   {"4", "Ac-dc", "\u00c9toile", "C:\\Music\\\u00c9toile.mp3", ""}});
        SearchingRoom.SetSearchField("Broad");
    }
};

TEST_F(SearchRoomTest, ASearchRunsTwentyTicksAfterTheLastKey) {
    Search.txtSearch.SetText("moor");
    Desktop.Advance(190);
    EXPECT_EQ(Lists.lstTracks.ListCount(), 0);

    Desktop.Advance(10);

    EXPECT_EQ(RowsOf(Lists.lstTracks), (Rows{"Lark And Moor - Evening Post"}));
    EXPECT_FALSE(Search.tmrSearch.Enabled());
}

TEST_F(SearchRoomTest, TwoKeys150MillisecondsApartRunOneSearch) {
    Search.txtSearch.SetText("m");
    Desktop.Advance(150);
    Search.txtSearch.SetText("mo");
    Desktop.Advance(190);
    EXPECT_EQ(Neighbours.Refills, 0);

    Desktop.Advance(10);

    EXPECT_EQ(Neighbours.Refills, 1);
}

TEST_F(SearchRoomTest, BlanksAndHyphensCountOnNeitherSide) {
    SearchingRoom.RunLibrarySearch("Artist", " ac dc");

    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"1", "4"}));
}

TEST_F(SearchRoomTest, TheArtistFieldLooksAtArtistsOnly) {
    SearchingRoom.RunLibrarySearch("Artist", "black");

    EXPECT_EQ(Lists.lstTracks.ListCount(), 0);
}

TEST_F(SearchRoomTest, TheTitleFieldLooksAtTitlesOnly) {
    SearchingRoom.RunLibrarySearch("Title", "EVENING POST");
    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"2"}));

    SearchingRoom.RunLibrarySearch("Title", "lark");

    EXPECT_EQ(Lists.lstMaybe.ListCount(), 0);
}

TEST_F(SearchRoomTest, ABroadSearchRunsAcrossArtistAndTitle) {
    SearchingRoom.RunLibrarySearch("Broad", "moor even");

    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"2"}));
}

TEST_F(SearchRoomTest, AFilenameSearchForgetsSigns) {
    SearchingRoom.RunLibrarySearch("Filename", "rock & roll");

    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"3"}));
}

TEST_F(SearchRoomTest, OtherFieldsKeepTheirSigns) {
    SearchingRoom.RunLibrarySearch("Title", "rock &");

    EXPECT_EQ(Lists.lstMaybe.ListCount(), 0);
}

TEST_F(SearchRoomTest, CaseIsForgottenBeyondAscii) {
    SearchingRoom.RunLibrarySearch("Title", "\u00e9TOI");

    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"4"}));
}

TEST_F(SearchRoomTest, AnEmptyTextShowsEverySong) {
    SearchingRoom.RunLibrarySearch("Broad", "");

    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"1", "2", "3", "4"}));
    EXPECT_EQ(RowsOf(Lists.lstArtists), (Rows{"  [All Artists]", "Ac-dc", "Lark And Moor", "Unknown"}));
}

TEST_F(SearchRoomTest, TheResultListsItsArtistsOnce) {
    SearchingRoom.RunLibrarySearch("Artist", "acdc");

    EXPECT_EQ(RowsOf(Lists.lstArtists), (Rows{"  [All Artists]", "Ac-dc"}));
    EXPECT_EQ(Lists.lstTracks.ListIndex(), -1);
}

TEST_F(SearchRoomTest, AnUnknownFieldChangesNothing) {
    ListsRoom.DisplayTracks("", "");

    SearchingRoom.RunLibrarySearch("Album", "moor");

    EXPECT_EQ(Lists.lstTracks.ListCount(), 4);
}

TEST_F(SearchRoomTest, ATextOfNothingButSignsThatDoNotCountShowsEverySong) {
    SearchingRoom.RunLibrarySearch("Filename", " -'&+()*!");
    EXPECT_EQ(Lists.lstMaybe.ListCount(), 4);

    SearchingRoom.RunLibrarySearch("Artist", " - ");

    EXPECT_EQ(Lists.lstMaybe.ListCount(), 4);
}

TEST_F(SearchRoomTest, ASongThatLeftTheLibraryIsNotFoundAgain) {
    SearchingRoom.RunLibrarySearch("Artist", "acdc");
    Sources.datSong.Open(store::kAllSongs);
    Sources.datSong.Recordset().Delete();

    SearchingRoom.RunLibrarySearch("Artist", "acdc");

    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"4"}));
}

TEST_F(SearchRoomTest, AKeyDuringTheSecondPauseRestartsTheCount) {
    Search.txtSearch.SetText("moor");
    Desktop.Advance(190);
    Search.txtSearch.SetText("moo");
    Desktop.Advance(199);
    EXPECT_EQ(Neighbours.Refills, 0);

    Desktop.Advance(1);

    EXPECT_EQ(Neighbours.Refills, 1);
}

TEST_F(SearchRoomTest, EachMenuEntryChecksItselfAlone) {
    const std::vector<std::pair<controls::Menu*, std::string_view>> entries = {
        {&menu.mnuSearchArtist, "Artist"},
        {&menu.mnuSearchTitle, "Title"},
        {&menu.mnuSearchFilename, "Filename"},
        {&menu.mnuSearchBroad, "Broad"}};
    for (const auto& [chosen, field] : entries) {
        chosen->Click.Raise();

        for (const auto& entry : entries)
            EXPECT_EQ(entry.first->Checked(), entry.first == chosen) << field;
        EXPECT_EQ(SearchingRoom.SearchField(), field);
        EXPECT_EQ(Search.txtSearch.Hint(), std::string("Search tracks \u2014 ").append(field));
    }
}

TEST_F(SearchRoomTest, TheCheckedFieldIsSearched) {
    menu.mnuSearchFilename.Click.Raise();
    Search.txtSearch.SetText("roll");

    Desktop.Advance(200);

    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"3"}));
}

TEST_F(SearchRoomTest, AnUnknownStoredFieldChecksNoneAndSearchesBroadly) {
    SearchingRoom.SetSearchField("");
    Search.txtSearch.SetText("nothing");
    Search.txtSearch.SetText("moor eve");

    Desktop.Advance(200);

    EXPECT_EQ(SearchingRoom.SearchField(), "");
    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"2"}));
}

TEST_F(SearchRoomTest, TheMouseOverTheSearchPanelHidesTheBrightPictures) {
    Search.fraSearch.MouseMove.Raise(0, 0, 1, 1);

    EXPECT_EQ(Neighbours.OversHidden, 1);
}

}  // namespace
