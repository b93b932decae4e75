#include "library/AddMediaRoom.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "library/AddMediaDialog.h"
#include "library/AddMediaLayout.h"

namespace {

using testing_library::AddMediaDialog;
using testing_library::Rows;
using testing_library::RowsOf;
using SongRows = std::vector<fakes::SeededStores::Row>;

class AddMediaRoomTest : public testing::Test, protected AddMediaDialog {
protected:
    void SelectFile(int row) { Form.lstFiles.SetListIndex(row); }
    void ClickAdd() { Form.imgAddOver.Click.Raise(); }
    void ClickAddAll() { Form.imgAddAllOver.Click.Raise(); }
    std::string Add(std::string_view path, std::string_view artist, std::string_view title) {
        std::string rejected;
        Room.addfile(path, artist, title, rejected);
        return rejected;
    }
};

TEST_F(AddMediaRoomTest, LoadingBindsBothTablesOfTheMediaStore) {
    Form.frmAddMedia.LoadWindow();

    EXPECT_TRUE(Form.datAdd.Open("SELECT * from tblSong"));
    EXPECT_TRUE(Form.datFolder.Open("SELECT * from tblFolder"));
}

TEST_F(AddMediaRoomTest, LoadingStartsTheFoldersAtTheRootOfTheirDrive) {
    Files.AddDrive('D', "Stick");
    Files.AddFolder("D:\\Music\\Album");
    Form.Drive1.ReadDrives();
    Form.Drive1.SetDrive("D:");
    Form.Dir1.SetPath("D:\\Music\\Album");

    Form.frmAddMedia.Show();

    EXPECT_EQ(Form.Dir1.Path(), "D:\\");
}

TEST_F(AddMediaRoomTest, TheFolderListFollowsTheDrive) {
    Files.AddDrive('D', "Stick");
    Form.frmAddMedia.Show();

    Form.Drive1.SetDrive("D:");

    EXPECT_EQ(Form.Dir1.Path(), "D:\\");
}

TEST_F(AddMediaRoomTest, TheSearchBeginsAtTheFifthTick) {
    Files.AddFile("C:\\Music\\a.mp3");
    Form.frmAddMedia.Show();
    Form.Dir1.SetPath("C:\\Music");
    Form.cmdGetFiles.Click.Raise();

    Desktop.Advance(49);
    EXPECT_TRUE(Form.fraSearch.Visible());
    EXPECT_EQ(Form.lstFiles.ListCount(), 0);
    Desktop.Advance(1);

    EXPECT_EQ(RowsOf(Form.lstFiles), (Rows{"C:\\Music\\a.mp3"}));
    EXPECT_EQ(Form.lblTotalFiles.Caption(), "1");
    EXPECT_FALSE(Form.fraSearch.Visible());
    EXPECT_FALSE(Form.tmrSearch.Enabled());
}

TEST_F(AddMediaRoomTest, ANewSearchForgetsTheOldOne) {
    Files.AddFile("C:\\Music\\a.mp3");
    Search("C:\\Music");

    Form.cmdGetFiles.Click.Raise();

    EXPECT_EQ(Form.lstFiles.ListCount(), 0);
    EXPECT_EQ(Form.lblDirectory.Caption(), "");
    EXPECT_EQ(Form.lblTotalFiles.Caption(), "0");
}

TEST_F(AddMediaRoomTest, ASecondSearchWaitsForFiveTicksToo) {
    Files.AddFile("C:\\Music\\a.mp3");
    Search("C:\\Music");
    Form.cmdGetFiles.Click.Raise();

    Desktop.Advance(49);
    EXPECT_EQ(Form.lstFiles.ListCount(), 0);
    Desktop.Advance(1);

    EXPECT_EQ(Form.lstFiles.ListCount(), 1);
}

TEST_F(AddMediaRoomTest, AnEmptyResultSaysSo) {
    Files.AddFolder("C:\\Empty");

    Search("C:\\Empty");

    EXPECT_EQ(RowsOf(Form.lstFiles), (Rows{"None Found"}));
    EXPECT_EQ(Form.lblTotalFiles.Caption(), "0");
}

TEST_F(AddMediaRoomTest, ThePanelAndTheFolderShowWhileTheWalkRuns) {
    Files.AddFile("C:\\Music\\Album\\a.mp3");
    bool panel = false;
    std::string directory;
    Desktop.Post([&] {
        panel = Form.fraSearch.IsShown();
        directory = Form.lblDirectory.Caption();
    });

    Search("C:\\Music");

    EXPECT_TRUE(panel);
    EXPECT_EQ(directory, "C:\\Music\\Album");
}

TEST_F(AddMediaRoomTest, CancelEndsTheWalkAndKeepsWhatItFound) {
    Files.AddFile("C:\\Music\\A\\a.mp3");
    Files.AddFile("C:\\Music\\B\\b.mp3");
    Desktop.Post([this] { Form.cmdCancel.Click.Raise(); });

    Search("C:\\Music");

    EXPECT_EQ(RowsOf(Form.lstFiles), (Rows{"C:\\Music\\A\\a.mp3"}));
    EXPECT_FALSE(Form.fraSearch.Visible());
    EXPECT_TRUE(Form.frmAddMedia.Visible());
}

TEST_F(AddMediaRoomTest, CancelBeforeTheFifthTickLeavesNothingRunning) {
    Form.frmAddMedia.Show();
    Form.cmdGetFiles.Click.Raise();
    Desktop.Advance(20);

    Form.cmdCancel.Click.Raise();

    EXPECT_FALSE(Form.tmrSearch.Enabled());
    EXPECT_FALSE(Form.fraSearch.Visible());
    EXPECT_EQ(Form.lstFiles.ListCount(), 0);
}

TEST_F(AddMediaRoomTest, ClosingTheDialogEndsTheWalkAndANewSearchWorks) {
    Files.AddFile("C:\\Music\\A\\a.mp3");
    Files.AddFile("C:\\Music\\B\\b.mp3");
    Desktop.Post([this] { Form.frmAddMedia.UnloadWindow(); });
    Search("C:\\Music");
    EXPECT_EQ(Form.lstFiles.ListCount(), 1);
    EXPECT_FALSE(Form.fraSearch.Visible());

    Search("C:\\Music");

    EXPECT_EQ(Form.lstFiles.ListCount(), 2);
}

TEST_F(AddMediaRoomTest, TheEndOfTheProgramLeavesTheDialogAsItIs) {
    Files.AddFile("C:\\Music\\A\\a.mp3");
    Files.AddFile("C:\\Music\\B\\b.mp3");
    Desktop.Post([this] { Desktop.Ending = true; });

    Search("C:\\Music");

    EXPECT_EQ(Form.lstFiles.ListCount(), 1);
    EXPECT_TRUE(Form.fraSearch.Visible());
}

TEST_F(AddMediaRoomTest, NothingElseBeginsWhileAWalkRuns) {
    Files.AddFile("C:\\Music\\a.mp3");
    Files.AddFile("C:\\Music\\A\\b.mp3");
    Files.AddFile("C:\\Music\\B\\c.mp3");
    Desktop.Post([this] {
        Form.cmdGetFiles.Click.Raise();
        ClickAddAll();
        ClickAdd();
    });

    Search("C:\\Music");

    EXPECT_EQ(Form.lstFiles.ListCount(), 3);
    EXPECT_TRUE(Songs().empty());
    EXPECT_TRUE(Dialogs.Inputs.empty());
}

TEST_F(AddMediaRoomTest, AddAllStoresEveryFileInOrder) {
    Files.AddFile("C:\\Music\\AC-DC & friends - Back.in.black.mp3");
    Files.AddFile("C:\\Music\\clip.avi");
    Files.AddFile("C:\\Music\\track.mp3");
    Search("C:\\Music");

    ClickAddAll();

    EXPECT_EQ(Songs(), (SongRows{{"1", "Ac-dc + Friends", "Back In Black",
                                  "C:\\Music\\AC-DC & friends - Back.in.black.mp3", ""},
                                 {"2", "Unknown", "Clip [Video]", "C:\\Music\\clip.avi", ""},
                                 {"3", "Unknown", "Track", "C:\\Music\\track.mp3", ""}}));
    EXPECT_EQ(Main.Calls, (Rows{"show", "Command1"}));
    EXPECT_FALSE(Form.frmAddMedia.Visible());
    EXPECT_TRUE(Form.frmAddMedia.IsLoaded());
    EXPECT_TRUE(Dialogs.Boxes.empty());
}

TEST_F(AddMediaRoomTest, AddAllWithoutFilesDoesNothing) {
    Form.frmAddMedia.Show();

    ClickAddAll();

    EXPECT_TRUE(Main.Calls.empty());
    EXPECT_TRUE(Form.frmAddMedia.Visible());
}

TEST_F(AddMediaRoomTest, AddAllAfterAnEmptySearchDoesNothing) {
    Files.AddFolder("C:\\Empty");
    Search("C:\\Empty");

    ClickAddAll();

    EXPECT_TRUE(Main.Calls.empty());
    EXPECT_TRUE(Form.frmAddMedia.Visible());
    EXPECT_TRUE(Songs().empty());
}

TEST_F(AddMediaRoomTest, ARowThatIsNoMediaIsPassedOver) {
    Form.frmAddMedia.Show();
    Form.lstFiles.AddItem("C:\\Music\\notes.txt");
    Form.lstFiles.AddItem("C:\\Music\\song.mp3");

    ClickAddAll();

    EXPECT_EQ(Songs(), (SongRows{{"1", "Unknown", "Song", "C:\\Music\\song.mp3", ""}}));
}

TEST_F(AddMediaRoomTest, AFileAddedTwiceIsStoredTwice) {
    Files.AddFile("C:\\Music\\song.mp3");
    Search("C:\\Music");
    ClickAddAll();

    ClickAddAll();

    ASSERT_EQ(Songs().size(), 2U);
    EXPECT_EQ(Songs()[1][3], Songs()[0][3]);
}

TEST_F(AddMediaRoomTest, RefusedFilesAreNamedInOneBox) {
    const std::string long_title = "C:\\Music\\Lark - " + std::string(81, 'x') + ".mp3";
    const std::string long_artist = "C:\\Music\\" + std::string(81, 'y') + " - Post.mp3";
    Files.AddFile(long_title);
    Files.AddFile(long_artist);
    Files.AddFile("C:\\Music\\fine.mp3");
    Search("C:\\Music");

    ClickAddAll();

    ASSERT_EQ(Dialogs.Boxes.size(), 1U);
    EXPECT_EQ(Dialogs.Boxes[0].text, "The following files could not be added because of long filenames\r\n" +
                                         long_title + "\r\n" + long_artist + "\r\n");
    EXPECT_EQ(Dialogs.Boxes[0].icon, ports::BoxIcon::None);
    EXPECT_EQ(Songs(), (SongRows{{"1", "Unknown", "Fine", "C:\\Music\\fine.mp3", ""}}));
}

TEST_F(AddMediaRoomTest, RowsAreKeptWhileOthersAreStillAdded) {
    for (const std::string_view name : {"a", "b", "c"})
        Files.AddFile("C:\\Music\\" + std::string(name) + ".mp3");
    Search("C:\\Music");
    std::size_t kept = 0;
    Desktop.Post([&] { kept = Stores.Database.Rows(fakes::SeededStores::kMediaPath, "tblSong").size(); });

    ClickAddAll();

    EXPECT_EQ(kept, 1U);
    EXPECT_EQ(Songs().size(), 3U);
}

TEST_F(AddMediaRoomTest, CancelWhileAddingKeepsWhatIsAdded) {
    for (const std::string_view name : {"a", "b", "c"})
        Files.AddFile("C:\\Music\\" + std::string(name) + ".mp3");
    Search("C:\\Music");
    Desktop.Post([this] { Form.cmdCancel.Click.Raise(); });

    ClickAddAll();

    EXPECT_EQ(Songs().size(), 1U);
    EXPECT_EQ(Main.Calls, (Rows{"show", "Command1"}));
    EXPECT_FALSE(Form.fraSearch.Visible());
}

TEST_F(AddMediaRoomTest, ClosingTheDialogWhileAddingShowsTheSongsAddedButNoWindow) {
    Files.AddFile("C:\\Music\\a.mp3");
    Files.AddFile("C:\\Music\\b.mp3");
    Search("C:\\Music");
    Desktop.Post([this] { Form.frmAddMedia.UnloadWindow(); });

    ClickAddAll();

    EXPECT_EQ(Songs().size(), 1U);
    EXPECT_EQ(Main.Calls, (Rows{"Command1"}));
    EXPECT_FALSE(Form.frmAddMedia.IsLoaded());
}

TEST_F(AddMediaRoomTest, TheEndOfTheProgramEndsTheAdding) {
    Files.AddFile("C:\\Music\\a.mp3");
    Files.AddFile("C:\\Music\\b.mp3");
    Search("C:\\Music");
    Desktop.Post([this] { Desktop.Ending = true; });

    ClickAddAll();

    EXPECT_EQ(Songs().size(), 1U);
    EXPECT_TRUE(Main.Calls.empty());
}

TEST_F(AddMediaRoomTest, ASearchDoesNotDisturbARunningAdding) {
    Files.AddFile("C:\\Music\\a.mp3");
    Files.AddFile("C:\\Music\\b.mp3");
    Search("C:\\Music");
    Desktop.Post([this] {
        Form.cmdGetFiles.Click.Raise();
        Form.lstFiles.Clear();
    });

    ClickAddAll();

    EXPECT_EQ(Songs().size(), 2U);
    EXPECT_FALSE(Form.tmrSearch.Enabled());
}

TEST_F(AddMediaRoomTest, AddOneStoresTheSelectedFileOnly) {
    Files.AddFile("C:\\Music\\a.mp3");
    Files.AddFile("C:\\Music\\Lark - Post.mp3");
    Search("C:\\Music");
    SelectFile(1);

    ClickAdd();

    EXPECT_EQ(Songs(), (SongRows{{"1", "Lark", "Post", "C:\\Music\\Lark - Post.mp3", ""}}));
    EXPECT_EQ(Form.Label1.Caption(), "Lark");
    EXPECT_EQ(Form.Label2.Caption(), "Post");
    EXPECT_EQ(Main.Calls, (Rows{"show", "Command1"}));
    EXPECT_FALSE(Form.frmAddMedia.Visible());
    EXPECT_TRUE(Dialogs.Inputs.empty());
}

TEST_F(AddMediaRoomTest, WithoutASelectionThePathIsAskedFor) {
    Files.AddFile("C:\\Music\\song.mp3");
    Form.frmAddMedia.Show();
    Form.Dir1.SetPath("C:\\Music");
    Dialogs.Typed = {"C:\\Music\\song.mp3"};

    ClickAdd();

    ASSERT_EQ(Dialogs.Inputs.size(), 1U);
    EXPECT_EQ(Dialogs.Inputs[0].prompt, "What is the path of the song you would like to add?");
    EXPECT_EQ(Dialogs.Inputs[0].title, "Adding Media");
    EXPECT_EQ(Dialogs.Inputs[0].default_text, "C:\\");
    EXPECT_EQ(Songs(), (SongRows{{"1", "Unknown", "Song", "C:\\Music\\song.mp3", ""}}));
    EXPECT_EQ(Main.Calls, (Rows{"show", "Command1"}));
}

TEST_F(AddMediaRoomTest, ANativePathWillDo) {
    Files.AddFile("C:\\Music\\song.mp3");
    Form.frmAddMedia.Show();
    Dialogs.Typed = {"/Music/song.mp3"};

    ClickAdd();

    EXPECT_EQ(Songs(), (SongRows{{"1", "Unknown", "Song", "C:\\Music\\song.mp3", ""}}));
}

TEST_F(AddMediaRoomTest, WhatIsNoMediaFileIsIgnored) {
    Files.AddFile("C:\\Music\\notes.txt");
    Files.AddFolder("C:\\Music\\folder.mp3");
    Form.frmAddMedia.Show();

    for (const std::string_view typed :
         {"", "C:\\Music\\missing.mp3", "C:\\Music\\notes.txt", "C:\\Music\\folder.mp3"}) {
        Dialogs.Typed = {std::string(typed)};
        ClickAdd();

        EXPECT_TRUE(Songs().empty()) << typed;
        EXPECT_TRUE(Main.Calls.empty()) << typed;
        EXPECT_TRUE(Form.frmAddMedia.Visible()) << typed;
    }
}

TEST_F(AddMediaRoomTest, TheRowOfAnEmptyResultIsNothingToAdd) {
    Files.AddFolder("C:\\Empty");
    Search("C:\\Empty");
    SelectFile(0);

    ClickAdd();

    EXPECT_TRUE(Songs().empty());
    EXPECT_TRUE(Dialogs.Inputs.empty());
    EXPECT_TRUE(Form.frmAddMedia.Visible());
}

TEST_F(AddMediaRoomTest, KeysGoOnFromTheLastRow) {
    Stores.Seed("tblSong", {{"7", "a", "b", "C:\\c.mp3", ""}, {"3", "a", "b", "C:\\d.mp3", ""}});

    Add("C:\\Music\\song.mp3", "Lark", "Post");

    EXPECT_EQ(Songs().back()[0], "4");
    EXPECT_EQ(Form.lblEntryCount.Caption(), "4");
}

TEST_F(AddMediaRoomTest, AnEmptyTableBeginsAtOneEvenAfterARefusal) {
    Add("C:\\Music\\song.mp3", "Lark", std::string(81, 'x'));

    Add("C:\\Music\\song.mp3", "Lark", "Post");

    EXPECT_EQ(Songs(), (SongRows{{"1", "Lark", "Post", "C:\\Music\\song.mp3", ""}}));
}

TEST_F(AddMediaRoomTest, TheLimitsAreThoseOfTheTable) {
    const std::string path = "C:\\Music\\song.mp3";
    const auto path_of = [](std::size_t length) { return "C:\\" + std::string(length - 7, 'p') + ".mp3"; };

    EXPECT_EQ(Add(path, "Lark", std::string(80, 'x')), "");
    EXPECT_EQ(Add(path, std::string(80, 'x'), "Post"), "");
    EXPECT_EQ(Add(path_of(255), "Lark", "Post"), "");
    EXPECT_EQ(Add(path, "Lark", std::string(81, 'x')), path + "\r\n");
    EXPECT_EQ(Add(path, std::string(81, 'x'), "Post"), path + "\r\n");
    EXPECT_EQ(Add(path_of(256), "Lark", "Post"), path_of(256) + "\r\n");
    EXPECT_EQ(Songs().size(), 3U);
}

TEST_F(AddMediaRoomTest, LettersAreCountedNotBytes) {
    std::string title;
    for (int i = 0; i < 80; ++i)
        title += "\u00e9";

    EXPECT_EQ(Add("C:\\Music\\song.mp3", "Lark", title), "");
}

TEST_F(AddMediaRoomTest, TheMarkOfAVideoCountsToItsTitle) {
    EXPECT_EQ(Add("C:\\clip.avi", "Lark", std::string(72, 'x')), "");
    EXPECT_EQ(Add("C:\\clip.avi", "Lark", std::string(73, 'x')), "C:\\clip.avi\r\n");
}

TEST_F(AddMediaRoomTest, APathWithoutAScanExtensionIsLeftOutInSilence) {
    const std::string rejected = Add("C:\\Music\\movie.mp4", "Lark", "Post");

    EXPECT_EQ(rejected, "");
    EXPECT_TRUE(Songs().empty());
}

TEST_F(AddMediaRoomTest, BlanksAroundThePathAreCut) {
    Add("  C:\\Music\\song.mp3", "Lark", "Post");

    EXPECT_EQ(Songs()[0][3], "C:\\Music\\song.mp3");
}

TEST_F(AddMediaRoomTest, AFileCanBeAddedBeforeTheDialogWasEverShown) {
    Add("C:\\Music\\song.mp3", "Lark", "Post");

    EXPECT_EQ(Songs().size(), 1U);
    EXPECT_TRUE(Form.frmAddMedia.IsLoaded());
}

TEST_F(AddMediaRoomTest, BackShowsTheMainWindowAndKeepsTheDialogLoaded) {
    Form.frmAddMedia.Show();

    Form.imgBackOver.Click.Raise();

    EXPECT_EQ(Main.Calls, (Rows{"show"}));
    EXPECT_FALSE(Form.frmAddMedia.Visible());
    EXPECT_TRUE(Form.frmAddMedia.IsLoaded());
}

TEST_F(AddMediaRoomTest, BackEndsARunningWalk) {
    Files.AddFile("C:\\Music\\A\\a.mp3");
    Files.AddFile("C:\\Music\\B\\b.mp3");
    Desktop.Post([this] { Form.imgBackOver.Click.Raise(); });

    Search("C:\\Music");

    EXPECT_EQ(Form.lstFiles.ListCount(), 1);
    EXPECT_FALSE(Form.frmAddMedia.Visible());
}

TEST_F(AddMediaRoomTest, EscapeGoesBack) {
    Form.frmAddMedia.Show();

    Form.frmAddMedia.KeyDown.Raise(controls::kKeyEscape, 0);

    EXPECT_FALSE(Form.frmAddMedia.Visible());
    EXPECT_EQ(Main.Calls, (Rows{"show"}));
}

TEST_F(AddMediaRoomTest, APictureUnderThePointerIsBrightAndNoOther) {
    const std::array<std::pair<controls::Image*, controls::Image*>, 3> twins{
        {{&Form.imgAdd, &Form.imgAddOver},
         {&Form.imgAddAll, &Form.imgAddAllOver},
         {&Form.imgBack, &Form.imgBackOver}}};

    for (const auto& [plain, over] : twins) {
        plain->MouseMove.Raise(0, 0, 0, 0);

        for (const auto& [other_plain, other_over] : twins)
            EXPECT_EQ(other_over->Visible(), other_over == over);
    }
}

TEST_F(AddMediaRoomTest, EveryBackgroundDimsThePictures) {
    for (controls::Control* background : std::vector<controls::Control*>{
             &Form.frmAddMedia, &Form.imgBG, &Form.Drive1, &Form.Dir1, &Form.lstPattern, &Form.lstFiles,
             &Form.fraControls, &Form.fraSearch}) {
        Form.imgAddOver.SetVisible(true);
        Form.imgAddAllOver.SetVisible(true);
        Form.imgBackOver.SetVisible(true);

        background->MouseMove.Raise(0, 0, 0, 0);

        EXPECT_FALSE(Form.imgAddOver.Visible() || Form.imgAddAllOver.Visible() || Form.imgBackOver.Visible())
            << background->Name();
    }
}

TEST_F(AddMediaRoomTest, ALargerWindowGivesItsRoomToTheLists) {
    const double list_width = Form.lstFiles.Width();
    const double list_height = Form.lstFiles.Height();
    const double folder_height = Form.Dir1.Height();

    Form.frmAddMedia.SetContentSize(Form.frmAddMedia.ContentWidth() + 1500,
                                    Form.frmAddMedia.ContentHeight() + 750);

    EXPECT_EQ(Form.lstFiles.Width(), list_width + 1500);
    EXPECT_EQ(Form.lstFiles.Height(), list_height + 750);
    EXPECT_EQ(Form.Dir1.Height(), folder_height + 750);
    EXPECT_EQ(Form.imgBG.Width(), Form.frmAddMedia.ContentWidth());
    EXPECT_EQ(Form.imgBG.Height(), Form.frmAddMedia.ContentHeight());
    EXPECT_EQ(Form.fraControls.Right(), Form.lstFiles.Right());
    EXPECT_EQ(Form.lblFiles.Left(), Form.lstFiles.Left());
    EXPECT_EQ(Form.fraSearch.Left() + Form.fraSearch.Width() / 2,
              Form.lstFiles.Left() + Form.lstFiles.Width() / 2);
}

TEST_F(AddMediaRoomTest, TheWindowSpringsBackToItsLeastSize) {
    Form.frmAddMedia.Move(0, 0, 1500, 1500);

    EXPECT_EQ(Form.frmAddMedia.ContentWidth(), library::kLeastAddMediaWidth * controls::kTwipsPerPixel);
    EXPECT_EQ(Form.frmAddMedia.ContentHeight(), library::kLeastAddMediaHeight * controls::kTwipsPerPixel);
    EXPECT_EQ(Form.imgBG.Width(), Form.frmAddMedia.ContentWidth());
}

TEST_F(AddMediaRoomTest, AMinimisedWindowIsLeftAlone) {
    Form.frmAddMedia.SetState(controls::WindowState::Minimised);

    Form.frmAddMedia.Move(0, 0, 1500, 1500);

    EXPECT_EQ(Form.frmAddMedia.Width(), 1500);
}

TEST_F(AddMediaRoomTest, NothingOverlapsAtTheLeastSize) {
    Form.frmAddMedia.Move(0, 0, 0, 0);

    const std::vector<controls::Control*> column{&Form.lblDrive,   &Form.Drive1,     &Form.lblFolder,
                                                 &Form.Dir1,       &Form.lblPattern, &Form.lstPattern,
                                                 &Form.cmdGetFiles};
    for (std::size_t i = 1; i < column.size(); ++i)
        EXPECT_GE(column[i]->Top(), column[i - 1]->Bottom()) << column[i]->Name();
    EXPECT_GT(Form.Dir1.Height(), 3 * 24 * controls::kTwipsPerPixel);
    EXPECT_LE(Form.imgAddAll.Right(), Form.imgBack.Left());
    EXPECT_LE(Form.cmdGetFiles.Bottom(), Form.frmAddMedia.ContentHeight());
}

}  // namespace
