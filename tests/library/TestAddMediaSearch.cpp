// The search of the add dialog: drive and folder, the five ticks, the walk and its end.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "library/AddMediaDialog.h"

namespace {

using library_tests::AddMediaDialog;
using library_tests::Rows;
using library_tests::RowsOf;

class AddMediaSearchTest : public testing::Test, protected AddMediaDialog {};

TEST_F(AddMediaSearchTest, LoadingBindsBothTablesOfTheMediaStore) {
    Form.frmAddMedia.LoadWindow();

    EXPECT_TRUE(Form.datAdd.Open("SELECT * from tblSong"));
    EXPECT_TRUE(Form.datFolder.Open("SELECT * from tblFolder"));
}

TEST_F(AddMediaSearchTest, LoadingStartsTheFoldersAtTheRootOfTheirDrive) {
    Files.AddDrive('D', "Stick");
    Files.AddFolder("D:\\Music\\Album");
    Form.Drive1.ReadDrives();
    Form.Drive1.SetDrive("D:");
    Form.Dir1.SetPath("D:\\Music\\Album");

    Form.frmAddMedia.Show();

    EXPECT_EQ(Form.Dir1.Path(), "D:\\");
}

TEST_F(AddMediaSearchTest, TheFolderListFollowsTheDrive) {
    Files.AddDrive('D', "Stick");
    Form.frmAddMedia.Show();

    Form.Drive1.SetDrive("D:");

    EXPECT_EQ(Form.Dir1.Path(), "D:\\");
}

TEST_F(AddMediaSearchTest, TheSearchBeginsAtTheFifthTick) {
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

TEST_F(AddMediaSearchTest, ANewSearchForgetsTheOldOne) {
    Files.AddFile("C:\\Music\\a.mp3");
    Search("C:\\Music");

    Form.cmdGetFiles.Click.Raise();

    EXPECT_EQ(Form.lstFiles.ListCount(), 0);
    EXPECT_EQ(Form.lblDirectory.Caption(), "");
    EXPECT_EQ(Form.lblTotalFiles.Caption(), "0");
}

TEST_F(AddMediaSearchTest, ASecondSearchWaitsForFiveTicksToo) {
    Files.AddFile("C:\\Music\\a.mp3");
    Search("C:\\Music");
    Form.cmdGetFiles.Click.Raise();

    Desktop.Advance(49);
    EXPECT_EQ(Form.lstFiles.ListCount(), 0);
    Desktop.Advance(1);

    EXPECT_EQ(Form.lstFiles.ListCount(), 1);
}

TEST_F(AddMediaSearchTest, AFolderThatHangsIsNamedAndCanBeCancelled) {
    Files.AddDrive('D', "Share");
    Files.AddFile("D:\\Music\\a.mp3");
    Files.AddFile("D:\\b.mp3");
    Files.SilenceWhenListed("D:\\Music");
    std::string shown;
    controls::EventClaims claims;
    claims.Claim(Form.lblDirectory.Change, [&] {
        if (Form.lblDirectory.Caption() != "/media/Share/Music does not answer") return;
        shown = Form.lblDirectory.Caption();
        Desktop.Post([this] { Form.cmdCancel.Click.Raise(); });
    });

    Search("D:\\");

    EXPECT_EQ(shown, "/media/Share/Music does not answer");
    EXPECT_FALSE(Form.fraSearch.Visible());
    EXPECT_EQ(RowsOf(Form.lstFiles), (Rows{"D:\\b.mp3"}));
    EXPECT_EQ(Form.lblNotice.Caption(), "The search was stopped. There may be more files.");
}

TEST_F(AddMediaSearchTest, AFolderThatHangsIsPassedOverInTheEnd) {
    Files.AddDrive('D', "Share");
    Files.AddFile("D:\\Music\\a.mp3");
    Files.AddFile("D:\\More\\b.mp3");
    Files.SilenceWhenListed("D:\\More");

    Search("D:\\");

    EXPECT_EQ(RowsOf(Form.lstFiles), (Rows{"D:\\Music\\a.mp3"}));
    EXPECT_EQ(Form.lblNotice.Caption(), "1 folder could not be read.");
}

TEST_F(AddMediaSearchTest, ASearchOfAFolderThatDoesNotAnswerSaysSo) {
    Files.AddDrive('D', "Share");
    Files.AddFile("D:\\Music\\a.mp3");
    Form.frmAddMedia.Show();
    Form.Dir1.SetPath("D:\\Music");
    Files.Silence("D:\\");

    Form.cmdGetFiles.Click.Raise();
    Desktop.Advance(kFiveTicks);

    EXPECT_EQ(RowsOf(Form.lstFiles), (Rows{"None Found"}));
    EXPECT_EQ(Form.lblNotice.Caption(), "The folder does not answer. Try again later.");
}

TEST_F(AddMediaSearchTest, ADriveOrFolderThatDoesNotAnswerIsTold) {
    Files.AddDrive('D', "Share");
    Files.AddFile("C:\\Music\\a.mp3");
    Form.frmAddMedia.Show();
    Files.Silence("D:\\");
    Form.Drive1.SetDrive("D:");
    EXPECT_EQ(Form.lblNotice.Caption(), "The drive D: does not answer.");

    Files.Silence("C:\\Music");
    Form.Dir1.SetListIndex(Form.Dir1.ListCount() - 1);
    Form.Dir1.DblClick.Raise();
    EXPECT_EQ(Form.lblNotice.Caption(), "The folder does not answer. Try again later.");

    Files.Silence("");
    Files.Remove("C:\\Music");
    Form.Dir1.DblClick.Raise();
    EXPECT_EQ(Form.lblNotice.Caption(), "The folder is not there any more.");
}

TEST_F(AddMediaSearchTest, AnEmptyResultSaysSo) {
    Files.AddFolder("C:\\Empty");

    Search("C:\\Empty");

    EXPECT_EQ(RowsOf(Form.lstFiles), (Rows{"None Found"}));
    EXPECT_EQ(Form.lblTotalFiles.Caption(), "0");
}

TEST_F(AddMediaSearchTest, ThePanelAndTheFolderShowWhileTheWalkRuns) {
    Files.AddFile("C:\\Music\\Album\\a.mp3");
    bool panel = false;
    std::string directory;
    Desktop.Post([&] {
        panel = Form.fraSearch.IsShown();
        directory = Form.lblDirectory.Caption();
    });

    Search("C:\\Music");

    EXPECT_TRUE(panel);
    EXPECT_EQ(directory, "/Music/Album");
}

TEST_F(AddMediaSearchTest, CancelEndsTheWalkAndKeepsWhatItFound) {
    Files.AddFile("C:\\Music\\A\\a.mp3");
    Files.AddFile("C:\\Music\\B\\b.mp3");
    Desktop.Post([this] { Form.cmdCancel.Click.Raise(); });

    Search("C:\\Music");

    EXPECT_EQ(RowsOf(Form.lstFiles), (Rows{"C:\\Music\\A\\a.mp3"}));
    EXPECT_FALSE(Form.fraSearch.Visible());
    EXPECT_TRUE(Form.frmAddMedia.Visible());
}

TEST_F(AddMediaSearchTest, CancelBeforeTheFifthTickLeavesNothingRunning) {
    Form.frmAddMedia.Show();
    Form.cmdGetFiles.Click.Raise();
    Desktop.Advance(20);

    Form.cmdCancel.Click.Raise();

    EXPECT_FALSE(Form.tmrSearch.Enabled());
    EXPECT_FALSE(Form.fraSearch.Visible());
    EXPECT_EQ(Form.lstFiles.ListCount(), 0);
}

TEST_F(AddMediaSearchTest, ClosingTheDialogEndsTheWalkAndANewSearchWorks) {
    Files.AddFile("C:\\Music\\A\\a.mp3");
    Files.AddFile("C:\\Music\\B\\b.mp3");
    Desktop.Post([this] { Form.frmAddMedia.UnloadWindow(); });
    Search("C:\\Music");
    EXPECT_EQ(Form.lstFiles.ListCount(), 1);
    EXPECT_FALSE(Form.fraSearch.Visible());

    Search("C:\\Music");

    EXPECT_EQ(Form.lstFiles.ListCount(), 2);
}

TEST_F(AddMediaSearchTest, TheEndOfTheProgramLeavesTheDialogAsItIs) {
    Files.AddFile("C:\\Music\\A\\a.mp3");
    Files.AddFile("C:\\Music\\B\\b.mp3");
    Desktop.Post([this] { Desktop.Ending = true; });

    Search("C:\\Music");

    EXPECT_EQ(Form.lstFiles.ListCount(), 1);
    EXPECT_TRUE(Form.fraSearch.Visible());
}

TEST_F(AddMediaSearchTest, NothingElseBeginsWhileAWalkRuns) {
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

TEST_F(AddMediaSearchTest, AVolumeThatCameMeanwhileIsListedWhenTheDialogIsShownAgain) {
    Form.frmAddMedia.Show();
    Form.frmAddMedia.Hide();
    Files.AddDrive('D', "Stick");

    Form.frmAddMedia.Show();

    EXPECT_EQ(RowsOf(Form.Drive1), (Rows{"C:", "D: [Stick]"}));
    EXPECT_EQ(Form.Drive1.Drive(), "C:");
}

TEST_F(AddMediaSearchTest, ADriveThatIsGoneIsToldAndTheFoldersStayWhereTheyAre) {
    Files.AddDrive('D', "Stick");
    Files.AddFolder("C:\\Music");
    Form.frmAddMedia.Show();
    Form.Dir1.SetPath("C:\\Music");
    Files.RemoveDrive('D');

    Form.Drive1.SetDrive("D:");

    EXPECT_EQ(RowsOf(Form.Drive1), (Rows{"C:"}));
    EXPECT_EQ(Form.Drive1.Drive(), Form.Dir1.Path().substr(0, 2));
    EXPECT_EQ(Form.lblNotice.Caption(), "The drive D: can not be read.");
}

TEST_F(AddMediaSearchTest, TheDriveOfTheFoldersMayGoWhileItIsChosen) {
    Files.AddDrive('D', "Stick");
    Files.AddFile("D:\\a.mp3");
    Form.frmAddMedia.Show();
    Form.Drive1.SetDrive("D:");
    Files.RemoveDrive('D');

    Form.cmdGetFiles.Click.Raise();
    Desktop.Advance(kFiveTicks);

    EXPECT_EQ(RowsOf(Form.lstFiles), (Rows{"None Found"}));
    EXPECT_EQ(Form.lblNotice.Caption(), "The folder is not there any more.");
}

TEST_F(AddMediaSearchTest, AFolderThatVanishesDuringItsSearchIsTold) {
    Files.AddFile("C:\\Music\\A\\a.mp3");
    Files.AddFile("C:\\Music\\B\\b.mp3");
    Desktop.Post([this] { Files.Remove("C:\\Music"); });

    Search("C:\\Music");

    EXPECT_EQ(RowsOf(Form.lstFiles), (Rows{"C:\\Music\\A\\a.mp3"}));
    EXPECT_EQ(Form.lblNotice.Caption(), "The folder is not there any more.");
    EXPECT_FALSE(Form.fraSearch.Visible());
}

TEST_F(AddMediaSearchTest, FoldersThatCouldNotBeReadAreCounted) {
    for (const std::string_view folder : {"C:\\Music\\A", "C:\\Music\\B"}) {
        Files.AddFile(std::string(folder) + "\\a.mp3");
        Files.MakeUnreadable(folder);
    }
    Files.AddFile("C:\\Music\\c.mp3");

    Search("C:\\Music");
    EXPECT_EQ(Form.lblNotice.Caption(), "2 folders could not be read.");
    Search("C:\\Music\\A");
    EXPECT_EQ(Form.lblNotice.Caption(), "1 folder could not be read.");
    Files.Remove("C:\\Music\\A");
    Files.Remove("C:\\Music\\B");
    Search("C:\\Music");

    EXPECT_EQ(Form.lblNotice.Caption(), "");
}

TEST_F(AddMediaSearchTest, AStoppedSearchSaysThatThereMayBeMore) {
    Files.AddFile("C:\\Music\\A\\a.mp3");
    Files.AddFile("C:\\Music\\B\\b.mp3");
    Desktop.Post([this] { Form.cmdCancel.Click.Raise(); });
    Search("C:\\Music");
    EXPECT_EQ(Form.lblNotice.Caption(), "The search was stopped. There may be more files.");

    Form.cmdGetFiles.Click.Raise();

    EXPECT_EQ(Form.lblNotice.Caption(), "");
}

TEST_F(AddMediaSearchTest, CancelStopsInTheMiddleOfALongFolder) {
    for (int i = 0; i < 2000; ++i)
        Files.AddFile("C:\\Music\\" + std::to_string(i) + ".mp3");
    std::function<void()> cancel_at_the_first_rows = [&] {
        if (Form.lstFiles.ListCount() > 0) {
            Form.cmdCancel.Click.Raise();
        } else {
            Desktop.Post(cancel_at_the_first_rows);
        }
    };
    Desktop.Post(cancel_at_the_first_rows);
    SubFolders = false;

    Search("C:\\Music");

    EXPECT_GT(Form.lstFiles.ListCount(), 0);
    EXPECT_LT(Form.lstFiles.ListCount(), 1000);
    EXPECT_FALSE(Form.fraSearch.Visible());
    EXPECT_TRUE(Dialogs.Boxes.empty());
}

TEST_F(AddMediaSearchTest, AnotherFolderMayBeOpenedWhileOneIsSearched) {
    Files.AddFile("C:\\Music\\A\\a.mp3");
    Files.AddFile("C:\\Music\\B\\b.mp3");
    Files.AddFolder("C:\\Other");
    Desktop.Post([this] { Form.Dir1.SetPath("C:\\Other"); });

    Search("C:\\Music");

    EXPECT_EQ(Form.lstFiles.ListCount(), 2);
    EXPECT_EQ(Form.lblNotice.Caption(), "");
}

TEST_F(AddMediaSearchTest, TheBarIsForAddingOnly) {
    Files.AddFile("C:\\Music\\A\\a.mp3");
    bool bar = true;
    bool cancel = false;
    Desktop.Post([&] {
        bar = Form.pbProgress.Visible();
        cancel = Form.cmdCancel.IsShown();
    });

    Search("C:\\Music");

    EXPECT_FALSE(bar);
    EXPECT_TRUE(cancel);
}

}  // namespace
