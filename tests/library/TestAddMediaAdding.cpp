// Adding what the dialog found: all of it, one file, and what stops it on the way.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "base/DrivePath.h"
#include "library/AddMediaDialog.h"

namespace {

using library_tests::AddMediaDialog;
using library_tests::Rows;
using SongRows = std::vector<fakes::SeededStores::Row>;

class AddMediaAddingTest : public testing::Test, protected AddMediaDialog {
protected:
    void SelectFile(int row) { Form.lstFiles.SetListIndex(row); }
};

TEST_F(AddMediaAddingTest, AddAllStoresEveryFileInOrder) {
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

TEST_F(AddMediaAddingTest, AddAllWithoutFilesDoesNothing) {
    Form.frmAddMedia.Show();

    ClickAddAll();

    EXPECT_TRUE(Main.Calls.empty());
    EXPECT_TRUE(Form.frmAddMedia.Visible());
}

TEST_F(AddMediaAddingTest, AddAllAfterAnEmptySearchDoesNothing) {
    Files.AddFolder("C:\\Empty");
    Search("C:\\Empty");

    ClickAddAll();

    EXPECT_TRUE(Main.Calls.empty());
    EXPECT_TRUE(Form.frmAddMedia.Visible());
    EXPECT_TRUE(Songs().empty());
}

TEST_F(AddMediaAddingTest, ARowThatIsNoMediaIsPassedOver) {
    Form.frmAddMedia.Show();
    Form.lstFiles.AddItem("C:\\Music\\notes.txt");
    Form.lstFiles.AddItem("C:\\Music\\song.mp3");

    ClickAddAll();

    EXPECT_EQ(Songs(), (SongRows{{"1", "Unknown", "Song", "C:\\Music\\song.mp3", ""}}));
}

TEST_F(AddMediaAddingTest, AFileAddedTwiceIsStoredTwice) {
    Files.AddFile("C:\\Music\\song.mp3");
    Search("C:\\Music");
    ClickAddAll();

    ClickAddAll();

    ASSERT_EQ(Songs().size(), 2U);
    EXPECT_EQ(Songs()[1][3], Songs()[0][3]);
}

TEST_F(AddMediaAddingTest, RefusedFilesAreNamedInOneBox) {
    const std::string long_title = "C:\\Music\\Lark - " + std::string(81, 'x') + ".mp3";
    const std::string long_artist = "C:\\Music\\" + std::string(81, 'y') + " - Post.mp3";
    Files.AddFile(long_title);
    Files.AddFile(long_artist);
    Files.AddFile("C:\\Music\\fine.mp3");
    Search("C:\\Music");

    ClickAddAll();

    ASSERT_EQ(Dialogs.Boxes.size(), 1U);
    EXPECT_EQ(Dialogs.Boxes[0].text, "The following files could not be added because of long filenames\r\n" +
                                         Files.DisplayPath(long_title) + "\r\n" +
                                         Files.DisplayPath(long_artist) + "\r\n");
    EXPECT_EQ(Files.DisplayPath(long_title).front(), '/');
    EXPECT_EQ(Dialogs.Boxes[0].icon, ports::BoxIcon::None);
    EXPECT_EQ(Songs(), (SongRows{{"1", "Unknown", "Fine", "C:\\Music\\fine.mp3", ""}}));
}

TEST_F(AddMediaAddingTest, RowsAreKeptWhileOthersAreStillAdded) {
    for (const std::string_view name : {"a", "b", "c"})
        Files.AddFile("C:\\Music\\" + std::string(name) + ".mp3");
    Search("C:\\Music");
    std::size_t kept = 0;
    Desktop.Post([&] { kept = Stores.Database.Rows(fakes::SeededStores::kMediaPath, "tblSong").size(); });

    ClickAddAll();

    EXPECT_EQ(kept, 1U);
    EXPECT_EQ(Songs().size(), 3U);
}

TEST_F(AddMediaAddingTest, CancelWhileAddingKeepsWhatIsAdded) {
    for (const std::string_view name : {"a", "b", "c"})
        Files.AddFile("C:\\Music\\" + std::string(name) + ".mp3");
    Search("C:\\Music");
    Desktop.Post([this] { Form.cmdCancel.Click.Raise(); });

    ClickAddAll();

    EXPECT_EQ(Songs().size(), 1U);
    EXPECT_EQ(Main.Calls, (Rows{"show", "Command1"}));
    EXPECT_FALSE(Form.fraSearch.Visible());
}

TEST_F(AddMediaAddingTest, ClosingTheDialogWhileAddingShowsTheSongsAddedButNoWindow) {
    Files.AddFile("C:\\Music\\a.mp3");
    Files.AddFile("C:\\Music\\b.mp3");
    Search("C:\\Music");
    Desktop.Post([this] { Form.frmAddMedia.UnloadWindow(); });

    ClickAddAll();

    EXPECT_EQ(Songs().size(), 1U);
    EXPECT_EQ(Main.Calls, (Rows{"Command1"}));
    EXPECT_FALSE(Form.frmAddMedia.IsLoaded());
}

TEST_F(AddMediaAddingTest, ADialogThatWasClosedAndIsLoadedAgainUnseenShowsNoWindow) {
    Files.AddFile("C:\\Music\\a.mp3");
    Files.AddFile("C:\\Music\\b.mp3");
    Search("C:\\Music");
    Desktop.Post([this] {
        Form.frmAddMedia.UnloadWindow();
        Form.frmAddMedia.LoadWindow();
    });

    ClickAddAll();

    EXPECT_EQ(Main.Calls, (Rows{"Command1"}));
}

TEST_F(AddMediaAddingTest, TheEndOfTheProgramEndsTheAdding) {
    Files.AddFile("C:\\Music\\a.mp3");
    Files.AddFile("C:\\Music\\b.mp3");
    Search("C:\\Music");
    Desktop.Post([this] { Desktop.Ending = true; });

    ClickAddAll();

    EXPECT_EQ(Songs().size(), 1U);
    EXPECT_TRUE(Main.Calls.empty());
}

TEST_F(AddMediaAddingTest, ASearchDoesNotDisturbARunningAdding) {
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

TEST_F(AddMediaAddingTest, AddOneStoresTheSelectedFileOnly) {
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

TEST_F(AddMediaAddingTest, WithoutASelectionThePathIsAskedFor) {
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

TEST_F(AddMediaAddingTest, ANativePathWillDo) {
    Files.AddFile("C:\\Music\\song.mp3");
    Form.frmAddMedia.Show();
    Dialogs.Typed = {"/Music/song.mp3"};

    ClickAdd();

    EXPECT_EQ(Songs(), (SongRows{{"1", "Unknown", "Song", "C:\\Music\\song.mp3", ""}}));
}

TEST_F(AddMediaAddingTest, WhatIsNoMediaFileIsIgnored) {
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

TEST_F(AddMediaAddingTest, TheRowOfAnEmptyResultIsNothingToAdd) {
    Files.AddFolder("C:\\Empty");
    Search("C:\\Empty");
    SelectFile(0);

    ClickAdd();

    EXPECT_TRUE(Songs().empty());
    EXPECT_TRUE(Dialogs.Inputs.empty());
    EXPECT_TRUE(Form.frmAddMedia.Visible());
}

TEST_F(AddMediaAddingTest, TheBarAndTheCountMoveWhileFilesAreAdded) {
    for (int i = 0; i < 400; ++i)
        Files.AddFile("C:\\Music\\" + std::to_string(i) + ".mp3");
    Search("C:\\Music");
    std::vector<int> bar;
    Rows counts;
    std::function<void()> look = [&] {
        if (bar.empty() || Form.pbProgress.Value() != bar.back()) {
            bar.push_back(Form.pbProgress.Value());
            counts.push_back(Form.lblProgress.Caption());
        }
        EXPECT_TRUE(Form.pbProgress.IsShown());
        EXPECT_FALSE(Form.lblDirectory.Visible());
        if (Form.fraSearch.Visible()) Desktop.Post(look);
    };
    Desktop.Post(look);

    ClickAddAll();

    EXPECT_EQ(bar, (std::vector<int>{0, 25, 50, 75}));
    EXPECT_EQ(counts, (Rows{"0 of 400 files", "100 of 400 files", "200 of 400 files", "300 of 400 files"}));
}

TEST_F(AddMediaAddingTest, ARefusedPathStandsOnOneLineAndReadable) {
    const std::string path =
        "C:\\Music\\" + base::NameToText("Bj\xF6rk\nlive ") + std::string(80, 'x') + ".mp3";
    Files.AddFile(path);
    Search("C:\\Music");

    ClickAddAll();

    ASSERT_EQ(Dialogs.Boxes.size(), 1U);
    EXPECT_EQ(Dialogs.Boxes[0].text,
              "The following files could not be added because of long filenames\r\n/Music/Bj\u00f6rk live " +
                  std::string(80, 'x') + ".mp3\r\n");
}

TEST_F(AddMediaAddingTest, AFileHandedOverMeanwhileGetsAKeyOfItsOwn) {
    Files.AddFile("C:\\Music\\a.mp3");
    Files.AddFile("C:\\Music\\b.mp3");
    Search("C:\\Music");
    Desktop.Post([this] {
        std::string rejected;
        Room.addfile("C:\\Other\\c.mp3", "Lark", "Post", rejected);
    });

    ClickAddAll();

    EXPECT_EQ(Songs(), (SongRows{{"1", "Unknown", "A", "C:\\Music\\a.mp3", ""},
                                 {"2", "Lark", "Post", "C:\\Other\\c.mp3", ""},
                                 {"3", "Unknown", "B", "C:\\Music\\b.mp3", ""}}));
}

TEST_F(AddMediaAddingTest, AFileThatVanishedIsAddedAllTheSame) {
    Files.AddFile("C:\\Music\\a.mp3");
    Search("C:\\Music");
    Files.Remove("C:\\Music\\a.mp3");

    ClickAddAll();

    EXPECT_EQ(Songs().size(), 1U);
}

TEST_F(AddMediaAddingTest, AStoreInTroubleIsToldOnceAndGetsEveryRowWhenTheTroubleIsOver) {
    for (int i = 0; i < 50; ++i)
        Files.AddFile("C:\\Music\\" + std::to_string(i) + ".mp3");
    for (const ports::DatabaseError error :
         {ports::DatabaseError::DiskFull, ports::DatabaseError::Locked, ports::DatabaseError::ReadOnly}) {
        Stores.Trouble.Troubles.clear();
        const std::size_t before = Songs().size();
        Search("C:\\Music");
        Stores.Database.FailApply(fakes::SeededStores::kMediaPath, error);

        ClickAddAll();
        ASSERT_EQ(Stores.Trouble.Troubles.size(), 1U);
        EXPECT_EQ(Stores.Trouble.Troubles[0].error, error);
        EXPECT_EQ(Main.Calls.back(), "Command1");
        Stores.Database.FailApply(fakes::SeededStores::kMediaPath, ports::DatabaseError::None);

        EXPECT_EQ(Songs().size(), before + 50);
    }
}

TEST_F(AddMediaAddingTest, AStoreThatCannotBeOpenedIsToldAndTheDialogCloses) {
    Files.AddFile("C:\\Music\\a.mp3");
    Stores.Database.FailOpen(fakes::SeededStores::kMediaPath, ports::DatabaseError::Damaged);
    Search("C:\\Music");

    ClickAddAll();

    ASSERT_EQ(Stores.Trouble.Troubles.size(), 1U);
    EXPECT_FALSE(Form.fraSearch.Visible());
    EXPECT_FALSE(Form.frmAddMedia.Visible());
    EXPECT_EQ(Main.Calls, (Rows{"show", "Command1"}));
}

}  // namespace
