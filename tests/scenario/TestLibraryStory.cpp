#include <gtest/gtest.h>

#include "scenario/Program.h"

namespace {

using scenario::Computer;
using scenario::Program;
using Texts = std::vector<std::string>;

class LibraryStory : public testing::Test {
protected:
    LibraryStory() { computer.AddUser("Ann", "rose"); }

    Texts Tracks(Program& program) { return Program::RowsOf(program.Browser().library.lists.lstTracks); }

    void AddNineSongs() {
        for (int i = 0; i < 9; ++i)
            computer.AddSong("C:\\Music\\" + std::to_string(i) + ".mp3");
    }
    /// From the login to the files found, in the dialog that an empty library offers.
    void SearchMusic(Program& program) {
        program.dialogs.Answers = {ports::BoxAnswer::Yes};
        program.StartAndLogIn("Ann", "rose");
        auto& dialog = program.windows.add_media;
        ASSERT_TRUE(dialog.Dir1.SetPath("C:\\Music"));
        program.Click(dialog.cmdGetFiles);
        program.Wait(500);
    }

    Computer computer;
};

TEST_F(LibraryStory, AnEmptyLibraryOffersToAddMedia) {
    Program program(computer);

    program.StartAndLogIn("Ann", "rose");

    ASSERT_EQ(program.dialogs.Boxes.size(), 1U);
    EXPECT_EQ(program.dialogs.Boxes[0].text,
              "You currently have no media files in your library, would you like to add media now?");
    EXPECT_EQ(program.dialogs.Boxes[0].title, "Add Media");
    EXPECT_FALSE(program.windows.add_media.frmAddMedia.Visible());
}

TEST_F(LibraryStory, AFilledLibraryIsListedAndOffersNothing) {
    computer.AddToLibrary(1, "Sun", "Rise");
    computer.AddToLibrary(2, "Moon", "Fall");
    Program program(computer);

    program.StartAndLogIn("Ann", "rose");

    EXPECT_TRUE(program.BoxTexts().empty());
    EXPECT_EQ(Tracks(program), (Texts{"Sun - Rise", "Moon - Fall"}));
    EXPECT_EQ(Program::RowsOf(program.Browser().library.lists.lstArtists),
              (Texts{"  [All Artists]", "Moon", "Sun"}));
}

TEST_F(LibraryStory, MediaIsFoundInAFolderAndBelowItAndAdded) {
    computer.AddSong("C:\\Music\\Sun - Rise.mp3");
    computer.AddSong("C:\\Music\\Deep\\Moon - Fall.mp3");
    computer.files.AddFile("C:\\Music\\notes.txt");
    Program program(computer);
    program.dialogs.Answers = {ports::BoxAnswer::Yes};
    program.StartAndLogIn("Ann", "rose");
    auto& dialog = program.windows.add_media;
    ASSERT_TRUE(dialog.frmAddMedia.Visible());

    ASSERT_TRUE(dialog.Dir1.SetPath("C:\\Music"));
    program.Click(dialog.cmdGetFiles);
    program.Wait(500);
    EXPECT_EQ(dialog.lblTotalFiles.Caption(), "2");
    program.Click(dialog.imgAddAllOver);

    EXPECT_FALSE(dialog.frmAddMedia.Visible());
    EXPECT_TRUE(program.Browser().Visible());
    EXPECT_EQ(Tracks(program), (Texts{"Sun - Rise", "Moon - Fall"}));
    const auto songs = computer.database.Rows(scenario::kMediaPath, "tblSong");
    ASSERT_EQ(songs.size(), 2U);
    EXPECT_EQ(songs[0][3], "C:\\Music\\Sun - Rise.mp3");
    EXPECT_EQ(songs[1][3], "C:\\Music\\Deep\\Moon - Fall.mp3");
}

TEST_F(LibraryStory, LoggingOutEndsAnAddingAndKeepsWhatIsAdded) {
    AddNineSongs();
    Program program(computer);
    SearchMusic(program);
    auto& dialog = program.windows.add_media;
    program.desktop.Post([&program] { program.Browser().menus.mnuLogout.Click.Raise(); });

    program.Click(dialog.imgAddAllOver);

    EXPECT_EQ(computer.database.Rows(scenario::kMediaPath, "tblSong").size(), 1U);
    EXPECT_TRUE(program.windows.login.frmLogin.Visible());
    EXPECT_FALSE(program.Browser().Visible());
    EXPECT_FALSE(dialog.frmAddMedia.Visible());
}

TEST_F(LibraryStory, TheProgramEndsInTheMiddleOfAnAddingAndKeepsWhatIsAdded) {
    AddNineSongs();
    Program program(computer);
    SearchMusic(program);
    auto& dialog = program.windows.add_media;
    program.desktop.Post([&program] { program.Browser().menus.mnuExit.Click.Raise(); });

    program.Click(dialog.imgAddAllOver);

    EXPECT_EQ(computer.database.Rows(scenario::kMediaPath, "tblSong").size(), 1U);
    EXPECT_TRUE(program.ended);
    EXPECT_FALSE(program.Browser().Visible());
    EXPECT_FALSE(dialog.frmAddMedia.IsLoaded());
}

TEST_F(LibraryStory, TheButtonBesideTheSearchBoxOpensTheDialogAgain) {
    computer.AddToLibrary(1, "Sun", "Rise");
    Program program(computer);
    program.StartAndLogIn("Ann", "rose");

    program.Click(program.Browser().library.search.cmdAddToLibrary);
    EXPECT_TRUE(program.windows.add_media.frmAddMedia.Visible());
    program.Click(program.windows.add_media.imgBackOver);

    EXPECT_FALSE(program.windows.add_media.frmAddMedia.Visible());
    EXPECT_TRUE(program.Browser().Visible());
}

TEST_F(LibraryStory, TheSearchBoxNarrowsTheTracks) {
    computer.AddToLibrary(1, "Sun", "Rise");
    computer.AddToLibrary(2, "Moon", "Fall");
    Program program(computer);
    program.StartAndLogIn("Ann", "rose");

    program.Browser().library.search.txtSearch.SetText("moo");
    program.Wait(1000);

    EXPECT_EQ(Tracks(program), (Texts{"Moon - Fall"}));
}

TEST_F(LibraryStory, ASearchIsGoneForTheNextUser) {
    computer.AddToLibrary(1, "Sun", "Rise");
    computer.AddToLibrary(2, "Moon", "Fall");
    computer.AddUser("Bob", "thorn");
    Program program(computer);
    program.StartAndLogIn("Ann", "rose");
    program.Browser().library.search.txtSearch.SetText("moo");
    program.Wait(1000);

    program.Click(program.Browser().menus.mnuLogout);
    EXPECT_EQ(program.Browser().library.search.txtSearch.Text(), "");
    program.LogIn("Bob", "thorn");
    program.Wait(12'000);

    EXPECT_EQ(Tracks(program), (Texts{"Sun - Rise", "Moon - Fall"}));
}

TEST_F(LibraryStory, AnArtistNarrowsTheTracksAndJustTracksHidesTheLists) {
    computer.AddToLibrary(1, "Sun", "Rise");
    computer.AddToLibrary(2, "Moon", "Fall");
    Program program(computer);
    program.StartAndLogIn("Ann", "rose");
    auto& lists = program.Browser().library.lists;

    lists.lstArtists.SelectText("Sun");
    EXPECT_EQ(Tracks(program), (Texts{"Sun - Rise"}));
    const double height = lists.lstTracks.Height();
    program.Click(program.Browser().menus.mnuMusicJustTracks);

    EXPECT_FALSE(lists.lstArtists.Visible());
    EXPECT_GT(lists.lstTracks.Height(), height);
}

TEST_F(LibraryStory, ASongGoesIntoANewPlaylistAndOutAgain) {
    computer.AddToLibrary(1, "Sun", "Rise");
    Program program(computer);
    program.StartAndLogIn("Ann", "rose");
    auto& lists = program.Browser().library.lists;
    auto& panel = program.Browser().library.playlists;
    lists.lstTracks.SetListIndex(0);

    program.dialogs.Typed = {"Evening"};
    program.Click(program.Browser().menus.mnuNewPlayList);
    lists.lstTracks.SetListIndex(0);
    program.Click(panel.imgAddSongOver);
    ASSERT_TRUE(panel.fraAddToPlaylist.Visible());
    EXPECT_EQ(program.Browser().Children().back(), &panel.fraAddToPlaylist);
    panel.lstAddToPlaylist.SelectText("Evening");
    program.Click(panel.imgOkOver);

    const auto rows = computer.database.Rows(scenario::kMediaPath, "tblPlayList");
    ASSERT_FALSE(rows.empty());
    EXPECT_EQ(rows.back()[1], "Evening");
    EXPECT_EQ(rows.back()[2], "1");
}

TEST_F(LibraryStory, ACleanUpTellsTheAgeOfTheLastOneTakesMissingSongsOutAndStoresTheDay) {
    computer.AddToLibrary(1, "Sun", "Rise");
    const std::string gone = computer.AddToLibrary(2, "Moon", "Fall");
    computer.AddToLibrary(3, "Sun", "Rise");
    computer.files.Remove(gone);
    Program program(computer);
    program.StartAndLogIn("Ann", "rose");
    program.dialogs.Boxes.clear();
    program.dialogs.Answers = {ports::BoxAnswer::Yes};

    program.Click(program.Browser().menus.mnuCleanUp);

    ASSERT_EQ(program.dialogs.Boxes.size(), 1U);
    EXPECT_NE(program.dialogs.Boxes[0].text.find("Your last duplicate clean up was: 0 days ago."),
              std::string::npos);
    const auto& task = program.Browser().library.task;
    EXPECT_EQ(task.lblFoundNo.Caption(), "1");
    EXPECT_EQ(task.lblDuplicatesNoRemoved.Caption(), "1");
    EXPECT_FALSE(task.fraTask.Visible());
    EXPECT_EQ(Tracks(program), (Texts{"Sun - Rise", "Sun - Rise"}));
    EXPECT_EQ(computer.database.Rows(scenario::kMediaPath, "tblSong").size(), 2U);
    const auto history = computer.database.Rows(scenario::kHistoryPath, "tblHistory");
    EXPECT_EQ(history[4], (std::vector<std::string>{"5", "Settings", "20260309"}));
}

TEST_F(LibraryStory, TheWindowClosedInTheMiddleOfACleanUpEndsTheProgram) {
    for (int i = 1; i <= 9; ++i)
        computer.files.Remove(computer.AddToLibrary(i, "Sun", "Song " + std::to_string(i)));
    Program program(computer);
    program.StartAndLogIn("Ann", "rose");
    program.dialogs.Answers = {ports::BoxAnswer::Yes};
    program.desktop.Post([&program] {
        program.Browser().UnloadWindow();
        program.desktop.Ending = program.ended;
    });

    program.Click(program.Browser().menus.mnuCleanUp);

    EXPECT_TRUE(program.ended);
    EXPECT_EQ(computer.database.Rows(scenario::kMediaPath, "tblSong").size(), 8U);
}

TEST_F(LibraryStory, TheDeleteKeyTakesASongOutAndTheCountFollows) {
    computer.AddToLibrary(1, "Sun", "Rise");
    computer.AddToLibrary(2, "Moon", "Fall");
    Program program(computer);
    program.StartAndLogIn("Ann", "rose");
    auto& lists = program.Browser().library.lists;
    EXPECT_EQ(lists.lblTrackCount.Caption(), "2 tracks");
    lists.lstTracks.SetListIndex(0);
    program.dialogs.Answers = {ports::BoxAnswer::Yes};

    lists.lstTracks.KeyDown.Raise(controls::kKeyDelete, 0);

    EXPECT_EQ(lists.lblTrackCount.Caption(), "1 track");
    EXPECT_EQ(Tracks(program), Texts{"Moon - Fall"});
}

}  // namespace
