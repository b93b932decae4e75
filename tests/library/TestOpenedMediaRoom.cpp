#include "library/OpenedMediaRoom.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "library/LibraryPane.h"

namespace {

using testing_library::Rows;
using testing_library::Song;

struct RecordingSongStore final : library::SongStore {
    void addfile(std::string_view path, std::string_view artist, std::string_view title,
                 std::string& /*rejected*/) override {
        Added.push_back(std::string(path).append(" | ").append(artist).append(" | ").append(title));
    }

    Rows Added;
};

class OpenedMediaRoomTest : public testing::Test {
protected:
    OpenedMediaRoomTest() { Stores.Bind(Sources.datSong, "tblSong"); }

    fakes::FakeDesktop Desktop;
    fakes::SeededStores Stores{Desktop};
    fakes::FakeDialogs Dialogs;
    RecordingSongStore Songs;
    library::MediaSources Sources;
    library::OpenedMediaControls Controls;
    library::OpenedMediaMenu Menu;
    controls::CommandButton cmdAddToLibrary{"cmdAddToLibrary"};
    controls::Form frmAddMedia{"frmAddMedia", "Add Media"};
    library::OpenedMediaRoom Room{Controls, Menu, cmdAddToLibrary, frmAddMedia, Songs, Sources, Dialogs};
};

TEST_F(OpenedMediaRoomTest, AnOpenedFileIsAddedUnderTheNamesOfItsFileName) {
    Room.AddMediaFromCommand("C:\\Music\\Lark - Evening - Post.mp3");

    EXPECT_EQ(Songs.Added, (Rows{"C:\\Music\\Lark - Evening - Post.mp3 | Lark | Evening - Post"}));
    EXPECT_EQ(Controls.Label5.Caption(), "Lark");
    EXPECT_EQ(Controls.Label6.Caption(), "Evening - Post");
}

TEST_F(OpenedMediaRoomTest, ANameWithoutAnArtistIsUnknown) {
    Room.AddMediaFromCommand("C:\\Music\\track.mp3");

    EXPECT_EQ(Songs.Added, (Rows{"C:\\Music\\track.mp3 | Unknown | track"}));
}

TEST_F(OpenedMediaRoomTest, AFileOfTheLibraryIsNotAddedAgainButPlayedOnceMore) {
    Stores.Seed("tblSong", {Song("1", "Lark", "Post", "4")});

    Room.AddMediaFromCommand("C:\\Music\\Lark - Post.mp3");

    EXPECT_TRUE(Songs.Added.empty());
    EXPECT_EQ(Stores.Rows("tblSong")[0][4], "5");
}

TEST_F(OpenedMediaRoomTest, TheTestCountsAPlayOfTheFirstRowWithThatPathOnly) {
    Stores.Seed("tblSong",
                {Song("1", "Other", "Song"), Song("2", "Lark", "Post"), Song("3", "Lark", "Post")});

    const bool found = Room.AlreadyInLibrary("C:\\Music\\Lark - Post.mp3");

    EXPECT_TRUE(found);
    EXPECT_EQ(Stores.Rows("tblSong")[0][4], "");
    EXPECT_EQ(Stores.Rows("tblSong")[1][4], "1");
    EXPECT_EQ(Stores.Rows("tblSong")[2][4], "");
}

TEST_F(OpenedMediaRoomTest, APathInOtherLettersIsAnotherFile) {
    Stores.Seed("tblSong", {Song("1", "Lark", "Post")});

    EXPECT_FALSE(Room.AlreadyInLibrary("C:\\Music\\lark - post.mp3"));
    EXPECT_EQ(Stores.Rows("tblSong")[0][4], "");
}

TEST_F(OpenedMediaRoomTest, NothingStandsInAnEmptyLibrary) {
    EXPECT_FALSE(Room.AlreadyInLibrary("C:\\Music\\Lark - Post.mp3"));
}

TEST_F(OpenedMediaRoomTest, AnEmptyLibraryAsksForMedia) {
    Dialogs.Answers = {ports::BoxAnswer::Yes};

    Room.OfferToAddMedia();

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

    Room.OfferToAddMedia();

    EXPECT_FALSE(frmAddMedia.IsLoaded());
    EXPECT_FALSE(frmAddMedia.Visible());
}

TEST_F(OpenedMediaRoomTest, ALibraryWithASongAsksNothing) {
    Stores.Seed("tblSong", {Song("1", "Lark", "Post")});

    Room.OfferToAddMedia();

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
