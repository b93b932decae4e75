#include "library/MediaWalk.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "base/DrivePath.h"
#include "library/AddMediaDialog.h"

namespace {

using library_tests::Rows;
using library_tests::RowsOf;

class MediaWalkTest : public testing::Test {
protected:
    MediaWalkTest() {
        for (const std::string_view pattern : {"ALL FORMATS", "AUDIO FORMATS", "VIDEO FORMATS"})
            lstPattern.AddItem(pattern);
    }

    /// A folder of the tree "C:\1\2\3...", that deep.
    static std::string FolderAtLevel(int level) {
        std::string folder = "C:";
        for (int i = 1; i <= level; ++i)
            folder += "\\" + std::to_string(i);
        return folder;
    }

    fakes::FakeFiles Files;
    fakes::FakeDialogs Dialogs;
    fakes::FakeDesktop Desktop;
    bool SubFolders = true;
    controls::ListBox lstPattern{"lstPattern"};
    controls::ListBox lstFiles{"lstFiles"};
    controls::Label lblTotalFiles{"lblTotalFiles", "0"};
    controls::Label lblDirectory{"lblDirectory"};
    library::MediaWalk Walk{
        {lstPattern, lstFiles, lblTotalFiles, lblDirectory}, SubFolders, Files, Dialogs, Desktop};
};

TEST_F(MediaWalkTest, FifteenLevelsAreSearchedAndTheSixteenthIsNot) {
    for (int level = 1; level <= 16; ++level)
        Files.AddFile(FolderAtLevel(level) + "\\song.mp3");

    Walk.Search("C:\\1");

    ASSERT_EQ(lstFiles.ListCount(), 15);
    EXPECT_EQ(lstFiles.List(14), FolderAtLevel(15) + "\\song.mp3");
    EXPECT_EQ(lblDirectory.Caption(), Files.DisplayPath(FolderAtLevel(15)));
}

TEST_F(MediaWalkTest, EveryBranchIsSearchedBeforeTheNextOne) {
    Files.AddFile("C:\\Music\\a.mp3");
    Files.AddFile("C:\\Music\\First\\b.mp3");
    Files.AddFile("C:\\Music\\First\\Deep\\c.mp3");
    Files.AddFile("C:\\Music\\Second\\d.mp3");

    Walk.Search("C:\\Music");

    EXPECT_EQ(RowsOf(lstFiles), (Rows{"C:\\Music\\a.mp3", "C:\\Music\\First\\b.mp3",
                                      "C:\\Music\\First\\Deep\\c.mp3", "C:\\Music\\Second\\d.mp3"}));
}

TEST_F(MediaWalkTest, AFolderWithNothingInItIsNotShown) {
    Files.AddFile("C:\\Music\\Album\\a.mp3");
    Files.AddFolder("C:\\Music\\Empty");

    Walk.Search("C:\\Music");

    EXPECT_EQ(lblDirectory.Caption(), "/Music/Album");
}

TEST_F(MediaWalkTest, AnEmptyStartFolderIsNotShown) {
    Files.AddFolder("C:\\Empty");

    Walk.Search("C:\\Empty");

    EXPECT_EQ(lblDirectory.Caption(), "");
    EXPECT_EQ(lstFiles.ListCount(), 0);
}

TEST_F(MediaWalkTest, AFolderThatHoldsOnlyFoldersIsShown) {
    Files.AddFolder("C:\\Music\\Empty");

    Walk.Search("C:\\Music");

    EXPECT_EQ(lblDirectory.Caption(), "/Music");
}

TEST_F(MediaWalkTest, ThePreferenceSearchesSubFoldersWithoutAQuestion) {
    Files.AddFile("C:\\Music\\Album\\a.mp3");

    Walk.Search("C:\\Music");

    EXPECT_TRUE(Dialogs.Boxes.empty());
    EXPECT_EQ(lstFiles.ListCount(), 1);
}

TEST_F(MediaWalkTest, WithoutThePreferenceThePersonIsAskedOnce) {
    SubFolders = false;
    Files.AddFile("C:\\Music\\One\\Two\\a.mp3");
    Dialogs.Answers = {ports::BoxAnswer::Yes};

    Walk.Search("C:\\Music");

    ASSERT_EQ(Dialogs.Boxes.size(), 1U);
    EXPECT_EQ(Dialogs.Boxes[0].text,
              "Sub folders are not currently being search because of you preferences.\r\n"
              "Would you like to search sub folders?");
    EXPECT_EQ(Dialogs.Boxes[0].title, "Search sub folders?");
    EXPECT_EQ(Dialogs.Boxes[0].buttons, ports::BoxButtons::YesNo);
    EXPECT_EQ(RowsOf(lstFiles), (Rows{"C:\\Music\\One\\Two\\a.mp3"}));
}

TEST_F(MediaWalkTest, NoKeepsToTheStartFolder) {
    SubFolders = false;
    Files.AddFile("C:\\Music\\a.mp3");
    Files.AddFile("C:\\Music\\Album\\b.mp3");
    Dialogs.Answers = {ports::BoxAnswer::No};

    Walk.Search("C:\\Music");

    EXPECT_EQ(RowsOf(lstFiles), (Rows{"C:\\Music\\a.mp3"}));
}

TEST_F(MediaWalkTest, ThePatternSaysWhichKindsAreCollected) {
    const Rows audio{"a.mp3", "b.WMA", "c.wav", "d.mid"};
    const Rows video{"e.mpg", "f.jpeg", "g.wmv", "h.AVI"};
    Rows all = audio;
    all.insert(all.end(), video.begin(), video.end());
    for (const std::string& name : all)
        Files.AddFile("C:\\Music\\" + name);
    for (const std::string_view other : {"i.mp4", "j.vob", "k.txt", "l.mpl", "m"})
        Files.AddFile("C:\\Music\\" + std::string(other));
    const std::vector<std::pair<int, Rows>> cases{{-1, all}, {0, all}, {1, audio}, {2, video}};

    for (const auto& [row, names] : cases) {
        lstPattern.SetListIndex(row);
        lstFiles.Clear();
        Walk.Search("C:\\Music");

        Rows paths;
        for (const std::string& name : names)
            paths.push_back("C:\\Music\\" + name);
        EXPECT_EQ(RowsOf(lstFiles), paths) << "pattern row " << row;
    }
}

TEST_F(MediaWalkTest, TheCountGrowsByOneForEachFile) {
    Files.AddFile("C:\\Music\\a.mp3");
    Files.AddFile("C:\\Music\\b.mp3");
    Rows counts;
    controls::EventClaims claims;
    claims.Claim(lblTotalFiles.Change, [&] { counts.emplace_back(lblTotalFiles.Caption()); });

    Walk.Search("C:\\Music");

    EXPECT_EQ(counts, (Rows{"1", "2"}));
}

TEST_F(MediaWalkTest, AnUnreadableFolderYieldsNothingAndTheWalkGoesOn) {
    Files.AddFile("C:\\Music\\Locked\\a.mp3");
    Files.AddFile("C:\\Music\\Open\\b.mp3");
    Files.MakeUnreadable("C:\\Music\\Locked");

    Walk.Search("C:\\Music");

    EXPECT_EQ(RowsOf(lstFiles), (Rows{"C:\\Music\\Open\\b.mp3"}));
}

TEST_F(MediaWalkTest, AMissingStartFolderYieldsNothing) {
    Walk.Search("C:\\Nowhere");

    EXPECT_EQ(lstFiles.ListCount(), 0);
}

TEST_F(MediaWalkTest, TheDesktopLivesAfterEachSubFolder) {
    for (const std::string_view folder : {"A", "B", "B\\C"})
        Files.AddFile("C:\\Music\\" + std::string(folder) + "\\a.mp3");

    Walk.Search("C:\\Music");

    EXPECT_EQ(Desktop.Yields, 3);
}

TEST_F(MediaWalkTest, ACancelEndsAllItsLevels) {
    for (const std::string_view folder : {"A\\B", "A\\C", "D"})
        Files.AddFile("C:\\Music\\" + std::string(folder) + "\\a.mp3");
    Desktop.Post([this] { Walk.Cancel(); });

    Walk.Search("C:\\Music");

    EXPECT_EQ(RowsOf(lstFiles), (Rows{"C:\\Music\\A\\B\\a.mp3"}));
    EXPECT_EQ(Desktop.Yields, 1);
}

TEST_F(MediaWalkTest, ACancelledWalkMayBeFollowedByAnother) {
    Files.AddFile("C:\\Music\\A\\a.mp3");
    Walk.Cancel();

    Walk.Search("C:\\Music");

    EXPECT_EQ(lstFiles.ListCount(), 1);
}

TEST_F(MediaWalkTest, TheEndOfTheProgramEndsTheWalk) {
    Files.AddFile("C:\\Music\\A\\a.mp3");
    Files.AddFile("C:\\Music\\B\\b.mp3");
    Desktop.Post([this] { Desktop.Ending = true; });

    Walk.Search("C:\\Music");

    EXPECT_EQ(RowsOf(lstFiles), (Rows{"C:\\Music\\A\\a.mp3"}));
}

TEST_F(MediaWalkTest, ALongFolderYieldsOnTheWay) {
    for (int i = 0; i < 2000; ++i)
        Files.AddFile("C:\\Music\\" + std::to_string(i) + ".mp3");

    Walk.Search("C:\\Music");

    EXPECT_EQ(lstFiles.ListCount(), 2000);
    EXPECT_EQ(lblTotalFiles.Caption(), "2000");
    EXPECT_GE(Desktop.Yields, 2000 / 512 + 2000 / 256);
}

TEST_F(MediaWalkTest, ACancelInALongStartFolderAsksNothing) {
    SubFolders = false;
    for (int i = 0; i < 2000; ++i)
        Files.AddFile("C:\\Music\\" + std::to_string(i) + ".mp3");
    Desktop.Post([this] { Walk.Cancel(); });

    Walk.Search("C:\\Music");

    EXPECT_TRUE(Dialogs.Boxes.empty());
    EXPECT_TRUE(Walk.WasCancelled());
    EXPECT_EQ(Walk.UnreadableFolders(), 0);
}

TEST_F(MediaWalkTest, TheQuestionComesEvenWhenThereIsNoSubFolder) {
    SubFolders = false;
    Files.AddFile("C:\\Music\\a.mp3");
    Dialogs.Answers = {ports::BoxAnswer::Yes};

    Walk.Search("C:\\Music");

    EXPECT_EQ(Dialogs.Boxes.size(), 1U);
    EXPECT_EQ(lstFiles.ListCount(), 1);
}

TEST_F(MediaWalkTest, LinksToAFolderGiveItsFilesOnce) {
    Files.AddFile("C:\\Music\\Album\\a.mp3");
    Files.AddFile("C:\\Elsewhere\\b.mp3");
    Files.AddLink("C:\\Music\\Best of", "C:\\Music\\Album");
    Files.AddLink("C:\\Music\\More", "C:\\Elsewhere");
    Files.AddLink("C:\\Music\\Still more", "C:\\Elsewhere");

    Walk.Search("C:\\Music");

    EXPECT_EQ(RowsOf(lstFiles), (Rows{"C:\\Music\\Album\\a.mp3", "C:\\Music\\More\\b.mp3"}));
}

TEST_F(MediaWalkTest, AWebOfLinksHasAnEnd) {
    constexpr int kFolders = 9;
    const auto folder = [](int number) { return "C:\\Music\\" + std::to_string(number); };
    for (int from = 0; from < kFolders; ++from) {
        Files.AddFile(folder(from) + "\\song.mp3");
        for (int to = 0; to < kFolders; ++to)
            Files.AddLink(folder(from) + "\\to " + std::to_string(to), folder(to));
    }

    Walk.Search("C:\\Music");

    EXPECT_EQ(lstFiles.ListCount(), kFolders);
    EXPECT_LT(Desktop.Yields, kFolders * kFolders * library::MediaWalk::kLevels);
}

TEST_F(MediaWalkTest, AFolderThatALinkShowedFarFromTheStartIsSearchedWholeFromNearer) {
    Files.AddFile(FolderAtLevel(14) + "\\deep.mp3");
    Files.AddFile("C:\\1\\Near\\Below\\Bottom\\song.mp3");
    Files.AddFile("C:\\1\\Near\\near.mp3");
    Files.AddLink(FolderAtLevel(14) + "\\link", "C:\\Far");
    Files.AddLink("C:\\1\\Near\\link", "C:\\Far");
    Files.AddFile("C:\\Far\\Below\\far.mp3");
    Files.AddFile("C:\\Far\\first.mp3");

    Walk.Search("C:\\1");

    EXPECT_EQ(RowsOf(lstFiles),
              (Rows{FolderAtLevel(14) + "\\deep.mp3", "C:\\1\\Near\\near.mp3",
                    "C:\\1\\Near\\Below\\Bottom\\song.mp3", FolderAtLevel(14) + "\\link\\first.mp3",
                    "C:\\1\\Near\\link\\Below\\far.mp3"}));
}

TEST_F(MediaWalkTest, ARealFolderWinsOverALinkThatIsMetBeforeIt) {
    Files.AddFile("C:\\srv\\Music\\song.mp3");
    Files.AddFile("C:\\srv\\Music\\Album\\track.mp3");
    Files.AddLink("C:\\proc\\7\\cwd", "C:\\srv\\Music");
    Files.AddLink("C:\\home\\a\\Music", "C:\\srv\\Music\\Album");

    Walk.Search("C:\\");

    EXPECT_EQ(RowsOf(lstFiles), (Rows{"C:\\srv\\Music\\song.mp3", "C:\\srv\\Music\\Album\\track.mp3"}));
}

TEST_F(MediaWalkTest, OddNamesAreFoundWhateverTheirBytesAre) {
    for (const std::string_view name : {"line\nbreak.mp3", "\"quoted\".mp3", "it's.mp3", "back\\slash.mp3",
                                        "Bj\xF6rk.mp3", "tab\t.wma", " .mid", "\xEF\x80\x8A.wav"}) {
        Files.AddFile("C:\\Music\\" + base::NameToText(name));
    }

    Walk.Search("C:\\Music");

    EXPECT_EQ(lstFiles.ListCount(), 8);
    for (const std::string& path : RowsOf(lstFiles))
        EXPECT_TRUE(Files.FileExists(path)) << path;
}

}  // namespace
