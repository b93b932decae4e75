#include "library/OpenedMediaRoom.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "library/AddMediaDialog.h"

namespace {

using library_tests::AddMediaDialog;
using library_tests::Song;
using SongRow = fakes::SeededStores::Row;

class OpenedMediaRoomTest : public testing::Test, protected AddMediaDialog {
protected:
    OpenedMediaRoomTest() { Stores.Bind(Sources.datSong, "tblSong"); }

    library::MediaSources Sources;
    library::OpenedMediaControls Controls;
    library::OpenedMediaMenu Menu;
    controls::CommandButton cmdAddToLibrary{"cmdAddToLibrary"};
    controls::Form& frmAddMedia = Form.frmAddMedia;
    library::OpenedMediaRoom Opened{Controls, Menu, cmdAddToLibrary, Room, Sources, Dialogs};
};

TEST_F(OpenedMediaRoomTest, AnOpenedFileIsAddedUnderTheNamesOfItsFileName) {
    Opened.AddMediaFromCommand("C:\\Music\\Lark - Evening - Post.mp3");

    ASSERT_EQ(Songs().size(), 1U);
    EXPECT_EQ(Songs()[0],
              (SongRow{"1", "Lark", "Evening - Post", "C:\\Music\\Lark - Evening - Post.mp3", ""}));
    EXPECT_EQ(Controls.Label5.Caption(), "Lark");
    EXPECT_EQ(Controls.Label6.Caption(), "Evening - Post");
}

TEST_F(OpenedMediaRoomTest, ANameWithoutAnArtistIsUnknown) {
    Opened.AddMediaFromCommand("C:\\Music\\track.mp3");

    ASSERT_EQ(Songs().size(), 1U);
    EXPECT_EQ(Songs()[0], (SongRow{"1", "Unknown", "Track", "C:\\Music\\track.mp3", ""}));
    EXPECT_EQ(Controls.Label6.Caption(), "track");
}

TEST_F(OpenedMediaRoomTest, AFileOfTheLibraryIsNotAddedAgainButPlayedOnceMore) {
    Stores.Seed("tblSong", {Song("1", "Lark", "Post", "4")});

    Opened.AddMediaFromCommand("C:\\Music\\Lark - Post.mp3");

    EXPECT_EQ(Songs().size(), 1U);
    EXPECT_EQ(Stores.Rows("tblSong")[0][4], "5");
}

TEST_F(OpenedMediaRoomTest, AReloadAddsWhatIsMissingAndCountsNoPlay) {
    Stores.Seed("tblSong", {Song("1", "Lark", "Post", "4")});

    Opened.AddIfMissing("C:\\Music\\Lark - Post.mp3");
    Opened.AddIfMissing("C:\\Music\\Lark - Rest.mp3");

    ASSERT_EQ(Songs().size(), 2U);
    EXPECT_EQ(Stores.Rows("tblSong")[0][4], "4");
    EXPECT_EQ(Songs()[1], (SongRow{"2", "Lark", "Rest", "C:\\Music\\Lark - Rest.mp3", ""}));
}

TEST_F(OpenedMediaRoomTest, TheTestCountsAPlayOfTheFirstRowWithThatPathOnly) {
    Stores.Seed("tblSong",
                {Song("1", "Other", "Song"), Song("2", "Lark", "Post"), Song("3", "Lark", "Post")});

    const bool found = Opened.AlreadyInLibrary("C:\\Music\\Lark - Post.mp3");

    EXPECT_TRUE(found);
    EXPECT_EQ(Stores.Rows("tblSong")[0][4], "");
    EXPECT_EQ(Stores.Rows("tblSong")[1][4], "1");
    EXPECT_EQ(Stores.Rows("tblSong")[2][4], "");
}

TEST_F(OpenedMediaRoomTest, APathInOtherLettersIsAnotherFile) {
    Stores.Seed("tblSong", {Song("1", "Lark", "Post")});

    EXPECT_FALSE(Opened.AlreadyInLibrary("C:\\Music\\lark - post.mp3"));
    EXPECT_EQ(Stores.Rows("tblSong")[0][4], "");
}

TEST_F(OpenedMediaRoomTest, NothingStandsInAnEmptyLibrary) {
    EXPECT_FALSE(Opened.AlreadyInLibrary("C:\\Music\\Lark - Post.mp3"));
}

TEST_F(OpenedMediaRoomTest, AFileThatTheLibraryDoesNotTakeIsIgnored) {
    Opened.AddMediaFromCommand("C:\\Music\\notes.txt");

    EXPECT_TRUE(Songs().empty());
    EXPECT_TRUE(Dialogs.Boxes.empty());
}

TEST_F(OpenedMediaRoomTest, AnEmptyLibraryAsksForMedia) {
    Dialogs.Answers = {ports::BoxAnswer::Yes};

    Opened.OfferToAddMedia();

    ASSERT_EQ(Dialogs.Boxes.size(), 1U);
    EXPECT_EQ(Dialogs.Boxes[0].text,
              "You currently have no media files in your library, would you like to add media now?");
    EXPECT_EQ(Dialogs.Boxes[0].title, "Add Media");
    EXPECT_EQ(Dialogs.Boxes[0].buttons, ports::BoxButtons::YesNo);
    EXPECT_TRUE(frmAddMedia.Visible());
}

TEST_F(OpenedMediaRoomTest, NoLeavesTheDialogAway) {
    frmAddMedia.Hide();
    Dialogs.Answers = {ports::BoxAnswer::No};

    Opened.OfferToAddMedia();

    EXPECT_FALSE(frmAddMedia.IsLoaded());
    EXPECT_FALSE(frmAddMedia.Visible());
}

TEST_F(OpenedMediaRoomTest, ALibraryWithASongAsksNothing) {
    Stores.Seed("tblSong", {Song("1", "Lark", "Post")});

    Opened.OfferToAddMedia();

    EXPECT_TRUE(Dialogs.Boxes.empty());
}

TEST_F(OpenedMediaRoomTest, TheMenuEntryOpensTheDialog) {
    Menu.mnuAddToLibrary.Click.Raise();

    EXPECT_TRUE(frmAddMedia.IsLoaded());
    EXPECT_TRUE(frmAddMedia.Visible());
}

TEST_F(OpenedMediaRoomTest, TheButtonOfThePaneOpensTheDialog) {
    cmdAddToLibrary.Click.Raise();

    EXPECT_TRUE(frmAddMedia.IsLoaded());
    EXPECT_TRUE(frmAddMedia.Visible());
}

}  // namespace
