#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "scenario/Program.h"

namespace {

using scenario::Computer;
using scenario::Program;
using Texts = std::vector<std::string>;

constexpr const char* kAdded = "Playlist was added successfully.";

/// A library of two songs, and play lists that name them.
class PlayListStory : public testing::Test {
protected:
    PlayListStory() {
        computer.AddUser("Ann", "rose");
        computer.AddToLibrary(1, "Sun", "Rise");
        computer.AddToLibrary(2, "Moon", "Fall");
        computer.files.AddFile("C:\\home\\ann\\Road.mpl", "moon - FALL\r\nSun - Rise\r\n\r\n");
        computer.files.AddFile("C:\\home\\ann\\Sea.m3u",
                               "#EXTM3U\n#EXTINF:9,Nobody - Here\n../../Music/Sun - Rise.mp3\n");
        program.StartAndLogIn("Ann", "rose");
    }

    window::BrowserForm& Browser() { return program.Browser(); }
    library::LibraryListControls& Lists() { return Browser().library.lists; }
    /// The names below the built-in views.
    Texts PlayLists() {
        const Texts rows = Program::RowsOf(Lists().lstPlayLists);
        return {rows.begin() + 3, rows.end()};
    }
    Texts TracksOf(std::string_view playlist) {
        EXPECT_TRUE(Lists().lstPlayLists.SelectText(playlist));
        return Program::RowsOf(Lists().lstTracks);
    }
    void Drop(controls::Control& target, const Texts& files, int row = -1) {
        controls::DropData data;
        data.Files = files;
        data.Row = row;
        target.OLEDragDrop.Raise(data, 0, 0);
        program.desktop.EndHandler();
    }
    int RowsRemembered(std::string_view text) {
        const auto rows = computer.database.Rows(scenario::kHistoryPath, "tblHistory");
        return static_cast<int>(
            std::count_if(rows.begin(), rows.end(), [text](const auto& row) { return row[2] == text; }));
    }

    Computer computer;
    Program program{computer};
};

TEST_F(PlayListStory, ATypedFileBecomesAPlaylist) {
    program.GoTo("/home/ann/Road.mpl");

    EXPECT_EQ(program.BoxTexts(), Texts{kAdded});
    EXPECT_EQ(PlayLists(), Texts{"Road"});
    EXPECT_EQ(TracksOf("Road"), (Texts{"Moon - Fall", "Sun - Rise"}));
    EXPECT_EQ(Browser().web.address.cmbAddress.Text(), "");
    EXPECT_EQ(Browser().web.address.txtAddress.Text(), "");
    EXPECT_FALSE(Browser().library.task.fraTask.Visible());
}

// Once a file is taken in, the address row is empty, and what it would remember with it.
TEST_F(PlayListStory, OnlyAFileThatWasNotTakenInIsRememberedByTheAddressRow) {
    program.GoTo("/home/ann/Road.mpl");
    EXPECT_EQ(RowsRemembered("C:\\home\\ann\\Road.mpl"), 0);

    // The name is taken, and no other is given.
    program.GoTo("/home/ann/Road.mpl");

    EXPECT_EQ(RowsRemembered("C:\\home\\ann\\Road.mpl"), 1);
}

TEST_F(PlayListStory, TheSecondTimeItAsksForANameAndTheListsGoOn) {
    program.GoTo("/home/ann/Road.mpl");
    program.dialogs.Typed = {"Road", "Lane"};

    program.GoTo("/home/ann/Road.mpl");
    program.GoTo("/home/ann/Road.mpl");

    EXPECT_EQ(PlayLists(), (Texts{"Road", "Lane"}));
    EXPECT_EQ(program.dialogs.Inputs.size(), 3U);
    EXPECT_EQ(program.BoxTexts(), (Texts{kAdded, kAdded}));
}

TEST_F(PlayListStory, AListOfAnotherPlayerComesInByThePathsOfItsSongs) {
    program.GoTo("/home/ann/Sea.m3u");

    EXPECT_EQ(program.BoxTexts(), Texts{kAdded});
    EXPECT_EQ(TracksOf("Sea"), Texts{"Sun - Rise"});
}

TEST_F(PlayListStory, AFileThatIsNavigatedToIsReadOnce) {
    computer.AddPage("file:///home/ann/Road.mpl", "Road.mpl");
    computer.AddPage("file:///home/ann/Sea.m3u", "Sea.m3u");
    computer.AddPage("http://one.example/", "One");
    program.GoTo("one.example");
    program.LetPagesArrive();

    Browser().web.tabs.Browser(1).Navigate("file:///home/ann/Road.mpl");
    program.LetPagesArrive();
    Browser().web.tabs.Browser(1).Navigate("file:///home/ann/Sea.m3u");
    program.LetPagesArrive();

    EXPECT_EQ(program.BoxTexts(), (Texts{kAdded, kAdded}));
    EXPECT_EQ(PlayLists(), (Texts{"Road", "Sea"}));
}

TEST_F(PlayListStory, ATitleOnAPlayListsAddressReadsWhatTheAddressRowHolds) {
    computer.AddPage("http://one.example/", "One");
    computer.AddPage("http://one.example/list.mpl", "List");
    program.GoTo("one.example");
    program.LetPagesArrive();
    Browser().web.tabs.Browser(1).Navigate("http://one.example/list.mpl");
    program.LetPagesArrive();
    ASSERT_TRUE(program.BoxTexts().empty());
    Browser().web.address.cmbAddress.SetText("C:\\home\\ann\\Road.mpl");

    program.PageOf(1)->ChangeTitle("Another title");

    EXPECT_EQ(program.BoxTexts(), Texts{kAdded});
    EXPECT_EQ(PlayLists(), Texts{"Road"});
    EXPECT_EQ(Browser().web.address.cmbAddress.Text(), "");
}

TEST_F(PlayListStory, AFileDroppedOnThePlaylistsOrTheAddressIsReadAndShown) {
    Drop(Lists().lstPlayLists, {"C:\\home\\ann\\Road.mpl"});
    EXPECT_EQ(PlayLists(), Texts{"Road"});
    Drop(Browser().web.address.txtAddress, {"C:\\home\\ann\\Sea.m3u"});
    EXPECT_EQ(PlayLists(), (Texts{"Road", "Sea"}));

    program.dialogs.Typed = {"Lane", "Bay"};
    Drop(Browser().web.address.txtAddress, {"C:\\home\\ann\\Road.mpl"});
    Drop(Browser().web.address.cmbAddress, {"C:\\home\\ann\\Sea.m3u"});

    EXPECT_EQ(PlayLists(), (Texts{"Road", "Sea", "Lane", "Bay"}));
}

TEST_F(PlayListStory, TheMissingSongsAreNamed) {
    computer.files.AddFile("C:\\Odd.mpl", "Sun - Rise\nNobody - Here\nAlone");

    program.GoTo("C:\\Odd.mpl");

    EXPECT_EQ(program.BoxTexts(), Texts{"The following songs could not be added to the playlist:\r\nNobody - "
                                        "Here\r\nUnknown - Alone\r\n"});
    EXPECT_EQ(TracksOf("Odd"), Texts{"Sun - Rise"});
}

TEST_F(PlayListStory, ThePanelStaysInFrontOfTheMusicTabWhileAFileIsRead) {
    int looks = 0;
    program.desktop.Post([&] {
        Browser().web.tabs.imgMusicTab.MouseUp.Raise(controls::kLeftButton, 0, 1, 1);
        Browser().web.tabs.imgMusicTab.Click.Raise();
        ++looks;
        const auto& order = Browser().Children();
        const auto place = [&order](const controls::Control& control) {
            return std::find(order.begin(), order.end(), &control) - order.begin();
        };
        EXPECT_TRUE(Browser().library.task.fraTask.Visible());
        EXPECT_GT(place(Browser().library.task.fraTask), place(Browser().chrome.fraMusicTab));
    });

    program.GoTo("/home/ann/Road.mpl");

    EXPECT_EQ(looks, 1);
    EXPECT_EQ(PlayLists(), Texts{"Road"});
}

TEST_F(PlayListStory, TheProgramEndsInTheMiddleOfAFile) {
    program.desktop.Post([this] { Browser().menus.mnuExit.Click.Raise(); });

    program.GoTo("/home/ann/Road.mpl");

    EXPECT_TRUE(program.ended);
    EXPECT_TRUE(program.BoxTexts().empty());
}

TEST_F(PlayListStory, ALogOutEndsTheReadingOfAFileAndClosesThePanelOfASong) {
    Lists().lstTracks.SetListIndex(0);
    program.Click(Browser().library.playlists.imgAddSongOver);
    program.desktop.Post([this] { Browser().menus.mnuLogout.Click.Raise(); });

    program.GoTo("/home/ann/Road.mpl");

    EXPECT_TRUE(program.windows.login.frmLogin.Visible());
    EXPECT_TRUE(program.BoxTexts().empty());
    EXPECT_FALSE(Browser().library.task.fraTask.Visible());
    EXPECT_FALSE(Browser().library.playlists.fraAddToPlaylist.Visible());
}

TEST_F(PlayListStory, ATrackIsDraggedToAPlaylist) {
    program.GoTo("/home/ann/Road.mpl");
    Lists().lstPlayLists.SelectText("  [All Media]");
    Lists().lstTracks.SetListIndex(0);
    controls::DropData data;
    data.HasText = true;
    data.Text = Lists().lstTracks.DragText;
    data.Row = 3;

    Lists().lstPlayLists.OLEDragDrop.Raise(data, 0, 0);

    EXPECT_EQ(TracksOf("Road"), (Texts{"Moon - Fall", "Sun - Rise", "Sun - Rise"}));
}

TEST_F(PlayListStory, EveryTargetTakesItsFiles) {
    const std::string song = "C:\\Out\\Some song.mp3";
    const std::string picture = "C:\\Out\\Picture.png";
    computer.AddSong(song);
    computer.files.AddFile(picture);
    auto& queue = Browser().player.queue;
    auto& transport = Browser().player.transport;

    Drop(Lists().lstTracks, {song, picture});
    EXPECT_EQ(Program::RowsOf(Lists().lstMaybe), (Texts{"1", "2", song}));
    EXPECT_EQ(Program::RowsOf(Lists().lstTracks), (Texts{"Sun - Rise", "Moon - Fall", "Some song"}));

    Drop(queue.lstCuedSongs, {"C:\\Music\\Moon - Fall.mp3", song, picture});
    EXPECT_EQ(Program::RowsOf(queue.lstCuedSongs), (Texts{"Moon - Fall", "Some song"}));
    EXPECT_EQ(Program::RowsOf(queue.lstCuedSongsPath), (Texts{"2", song}));

    Drop(transport.lblTrack, {song});
    EXPECT_EQ(transport.lblFileNowPlaying.Caption(), song);
    Drop(transport.picTrackTitle, {"C:\\Music\\Sun - Rise.mp3"});
    EXPECT_EQ(transport.lblFileNowPlaying.Caption(), "C:\\Music\\Sun - Rise.mp3");

    Drop(Browser().web.address.cmbAddress, {picture});
    Drop(Browser().web.address.txtAddress, {picture});
    EXPECT_EQ(Browser().web.tabs.Browser.Count(), 3);

    for (controls::ListBox* list : {&Browser().favourites.lstFavs, &Browser().favourites.lstFavsAlt}) {
        program.windows.add.frmAdd.Hide();
        Drop(*list, {song});
        EXPECT_FALSE(program.windows.add.frmAdd.Visible());
        Drop(*list, {picture});
        EXPECT_TRUE(program.windows.add.frmAdd.Visible());
    }
}

TEST_F(PlayListStory, WhatWasPlayedIsInLast20AndGoesWithTheHistory) {
    Lists().lstTracks.SetListIndex(1);
    program.DoubleClick(Lists().lstTracks);
    EXPECT_EQ(TracksOf("  [Last 20]"), Texts{"Moon - Fall"});
    program.dialogs.Answers = {ports::BoxAnswer::Yes};

    program.Click(Browser().menus.mnuHistory);

    EXPECT_TRUE(TracksOf("  [Last 20]").empty());
}

TEST(PlayListStoryAtStart, FilesOfBothKindsComeInAsArguments) {
    Computer computer;
    computer.AddUser("Ann", "rose");
    computer.AddToLibrary(1, "Sun", "Rise");
    computer.files.AddFile("C:\\Road.mpl", "Sun - Rise");
    computer.files.AddFile("C:\\Sea.m3u", "Music/Sun - Rise.mp3");
    for (const char* command : {"\"C:\\Road.mpl\"", "\"C:\\Sea.m3u\""}) {
        Program program(computer, command);

        program.StartAndLogIn("Ann", "rose");
        program.Wait(2'000);

        EXPECT_EQ(program.BoxTexts(), Texts{kAdded}) << command;
        program.Click(program.Browser().menus.mnuExit);
    }
    EXPECT_EQ(computer.database.Rows(scenario::kMediaPath, "tblPlayList").size(), 4U);
}

TEST(PlayListStoryAtStart, TheSearchHintNamesTheSavedField) {
    Computer computer;
    computer.AddUser("Ann", "rose");
    computer.AddToLibrary(1, "Sun", "Rise");
    {
        Program program(computer);
        program.StartAndLogIn("Ann", "rose");
        EXPECT_EQ(program.Browser().library.search.txtSearch.Hint(), "Search tracks \u2014 Broad");
        program.Click(program.Browser().menus.mnuSearchTitle);
        program.Click(program.Browser().menus.mnuExit);
    }

    Program again(computer);
    again.StartAndLogIn("Ann", "rose");

    EXPECT_EQ(again.Browser().library.search.txtSearch.Hint(), "Search tracks \u2014 Title");
}

}  // namespace
