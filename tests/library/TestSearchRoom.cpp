#include "library/SearchRoom.h"

#include <gtest/gtest.h>

#include <string>

#include "library/LibraryPane.h"

namespace {

using library::SearchField;
using library_tests::LibraryPane;
using library_tests::Rows;
using library_tests::RowsOf;
using library_tests::Song;

class SearchRoomTest : public testing::Test, protected LibraryPane {
protected:
    SearchRoomTest() {
        SeedSongs({Song("1", "Ac-dc", "Back In Black"),
                   Song("2", "Lark And Moor", "Evening Post"),
                   {"3", "Unknown", "Rock", "C:\\Music\\Rock + Roll.mp3", ""},
                   {"4", "Ac-dc", "\u00c9toile", "C:\\Music\\\u00c9toile.mp3", ""}});
        SearchingRoom.CheckField(SearchField::Broad);
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
    EXPECT_FALSE(ListMaybeChanged);

    Desktop.Advance(10);

    EXPECT_TRUE(ListMaybeChanged);
    EXPECT_FALSE(Search.tmrSearch.Enabled());
}

TEST_F(SearchRoomTest, BlanksAndHyphensCountOnNeitherSide) {
    SearchingRoom.RunLibrarySearch(SearchField::Artist, " ac dc");

    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"1", "4"}));
}

TEST_F(SearchRoomTest, TheArtistFieldLooksAtArtistsOnly) {
    SearchingRoom.RunLibrarySearch(SearchField::Artist, "black");

    EXPECT_EQ(Lists.lstTracks.ListCount(), 0);
}

TEST_F(SearchRoomTest, TheTitleFieldLooksAtTitlesOnly) {
    SearchingRoom.RunLibrarySearch(SearchField::Title, "EVENING POST");
    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"2"}));

    SearchingRoom.RunLibrarySearch(SearchField::Title, "lark");

    EXPECT_EQ(Lists.lstMaybe.ListCount(), 0);
}

TEST_F(SearchRoomTest, ABroadSearchRunsAcrossArtistAndTitle) {
    SearchingRoom.RunLibrarySearch(SearchField::Broad, "moor even");

    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"2"}));
}

TEST_F(SearchRoomTest, AFilenameSearchForgetsSigns) {
    SearchingRoom.RunLibrarySearch(SearchField::Filename, "rock & roll");

    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"3"}));
}

TEST_F(SearchRoomTest, OtherFieldsKeepTheirSigns) {
    SearchingRoom.RunLibrarySearch(SearchField::Title, "rock &");

    EXPECT_EQ(Lists.lstMaybe.ListCount(), 0);
}

TEST_F(SearchRoomTest, CaseIsForgottenBeyondAscii) {
    SearchingRoom.RunLibrarySearch(SearchField::Title, "\u00e9TOI");

    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"4"}));
}

TEST_F(SearchRoomTest, AnEmptyTextShowsEverySong) {
    SearchingRoom.RunLibrarySearch(SearchField::Broad, "");

    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"1", "2", "3", "4"}));
    EXPECT_EQ(RowsOf(Lists.lstArtists), (Rows{"  [All Artists]", "Ac-dc", "Lark And Moor", "Unknown"}));
}

TEST_F(SearchRoomTest, TheResultListsItsArtistsOnce) {
    SearchingRoom.RunLibrarySearch(SearchField::Artist, "acdc");

    EXPECT_EQ(RowsOf(Lists.lstArtists), (Rows{"  [All Artists]", "Ac-dc"}));
    EXPECT_EQ(Lists.lstTracks.ListIndex(), -1);
}

TEST_F(SearchRoomTest, ATextOfNothingButSignsThatDoNotCountShowsEverySong) {
    SearchingRoom.RunLibrarySearch(SearchField::Filename, " -'&+()*!");
    EXPECT_EQ(Lists.lstMaybe.ListCount(), 4);

    SearchingRoom.RunLibrarySearch(SearchField::Artist, " - ");

    EXPECT_EQ(Lists.lstMaybe.ListCount(), 4);
}

TEST_F(SearchRoomTest, ASongThatLeftTheLibraryIsNotFoundAgain) {
    SearchingRoom.RunLibrarySearch(SearchField::Artist, "acdc");
    Sources.datSong.Open(store::kAllSongs);
    Sources.datSong.Recordset().Delete();

    SearchingRoom.RunLibrarySearch(SearchField::Artist, "acdc");

    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"4"}));
}

TEST_F(SearchRoomTest, AKeyDuringTheSecondPauseRestartsTheCount) {
    Search.txtSearch.SetText("moor");
    Desktop.Advance(190);
    Search.txtSearch.SetText("moo");
    Desktop.Advance(199);
    EXPECT_FALSE(ListMaybeChanged);

    Desktop.Advance(1);

    EXPECT_TRUE(ListMaybeChanged);
    EXPECT_FALSE(Search.tmrSearch.Enabled());
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
        ASSERT_TRUE(SearchingRoom.CheckedField());
        EXPECT_EQ(library::RuleOf(*SearchingRoom.CheckedField()).text, field);
        EXPECT_EQ(Search.txtSearch.Hint(), std::string("Search tracks \u2014 ").append(field));
    }
}

TEST_F(SearchRoomTest, TheCheckedFieldIsSearched) {
    menu.mnuSearchFilename.Click.Raise();
    Search.txtSearch.SetText("roll");

    Desktop.Advance(200);

    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"3"}));
}

TEST_F(SearchRoomTest, WithNoFieldCheckedTheFileNameIsSearchedAsItWouldBeStored) {
    SearchingRoom.UnCheckSongSearch();
    Search.txtSearch.SetText("nothing");
    Search.txtSearch.SetText("roll");

    Desktop.Advance(200);

    EXPECT_FALSE(SearchingRoom.CheckedField());
    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"3"}));
    EXPECT_EQ(Search.txtSearch.Hint(), "Search tracks \u2014 Filename");
}

TEST_F(SearchRoomTest, TheHintFollowsAFieldThatIsCheckedWithoutAClick) {
    menu.mnuSearchBroad.SetChecked(false);

    menu.mnuSearchTitle.SetChecked(true);

    EXPECT_EQ(Search.txtSearch.Hint(), "Search tracks \u2014 Title");
}

TEST_F(SearchRoomTest, TheMouseOverTheSearchPanelHidesTheBrightPictures) {
    Search.fraSearch.MouseMove.Raise(0, 0, 1, 1);

    EXPECT_EQ(Neighbours.OversHidden, 1);
}

}  // namespace
