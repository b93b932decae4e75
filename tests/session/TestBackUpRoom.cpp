#include <set>

#include "base/DrivePath.h"
#include "base/Text.h"
#include "session/PreferencesPane.h"

namespace {

using ports::FileResult;
using session_tests::Row;
using session_tests::Texts;

constexpr const char* kNothingChosen =
    "Please make sure you have selected a back up folder path and a play list to back up.";
constexpr const char* kNoSlashes = "Directories should be seperated by a backslash '\\'";
constexpr const char* kNoDrive = "Application must be stored on a hard drive e.g. 'C:\\' not a server";
constexpr const char* kKept = "\r\nEarlier back ups are still as they were.";
constexpr const char* kFolder = "C:\\app\\BackUp\\";

class BackUpRoom : public session_tests::PreferencesTest {
protected:
    BackUpRoom() {
        SeedSong(1, "Sun", "Rise");
        SeedSong(2, "Moon", "Set");
        SeedSong(3, "Björk", "Hæ – ½");
        SeedSong(4, "あ", "Tone");
        SeedPlayList("Evening", {2, 1, 2});
        SeedPlayList("Other", {1});
        HavePlayLists({"Evening", "Other"});
        SetSetting(6, "20260228");
    }
    void BackUpChosen() { pane.cmdBackUpAll.Click.Raise(); }
    void BackUpAll() { pane.cmdBackUp.Click.Raise(); }
    std::string FileOf(std::string_view name) { return files.TextOf(std::string(kFolder).append(name)); }
    bool HasFile(std::string_view name) { return files.FileExists(std::string(kFolder).append(name)); }
    std::string Track() {
        return pane.txtEditArtist.Text() + "|" + pane.txtEditTitle.Text() + "|" +
               pane.lblEditTrackNumber.Caption();
    }
};

TEST_F(BackUpRoom, TheTextsOfThePaneAreThese) {
    EXPECT_EQ(
        pane.Label4.Caption(),
        "This lets you backup all your play lists to a folder. If you ever want to re-make the play list "
        "you can just open the play list mpl file with Brindlepost and the play list wil be created.");
    EXPECT_EQ(pane.cmdBackUpAll.Caption(), "Back up");
    EXPECT_EQ(pane.cmdBackUp.Caption(), "Back Up All");
    for (const controls::Control* hidden :
         std::initializer_list<const controls::Control*>{&pane.lstEditID, &pane.txtSave, &pane.Dir1})
        EXPECT_FALSE(hidden->Visible()) << hidden->Name();
}

TEST_F(BackUpRoom, ThePaneOpensWithListsFolderAndAge) {
    OpenBackUp();

    EXPECT_EQ(near.Log.back(), "DisplayPlayLists");
    EXPECT_EQ(pane.txtBackFolder.Text(), "C:\\app\\BackUp\\");
    EXPECT_EQ(pane.lblLastBackup.Caption(), "81 days ago.");
    EXPECT_EQ(pane.lstEditPlayList.ListIndex(), -1);
}

TEST_F(BackUpRoom, AnAgeWithoutItsRowStaysEmpty) {
    store::DataSource source("datSeed");
    stores.Bind(source, "tblHistory");
    source.Open(store::kAllHistory);
    store::MoveToSetting(source.Recordset(), store::SettingsRow::LastBackUp);
    source.Recordset().Delete();

    OpenBackUp();

    EXPECT_EQ(pane.lblLastBackup.Caption(), "");
}

TEST_F(BackUpRoom, AChosenListShowsItsTracksAndTheFirstOfThem) {
    OpenBackUp();
    pane.txtRename.SetText("x");

    Choose("Evening");

    EXPECT_EQ(RowsOf(pane.lstEditPlayListTracks), (Texts{"Set", "Rise", "Set"}));
    EXPECT_EQ(RowsOf(pane.lstEditID), (Texts{"2", "1", "2"}));
    EXPECT_EQ(pane.lstEditPlayListTracks.ListIndex(), 0);
    EXPECT_EQ(Track(), "Moon|Set|2");
    EXPECT_EQ(pane.txtRename.Text(), "");
}

TEST_F(BackUpRoom, AChosenTrackShowsItsSong) {
    OpenBackUp();
    Choose("Evening");

    pane.lstEditPlayListTracks.SetListIndex(1);

    EXPECT_EQ(Track(), "Sun|Rise|1");
}

TEST_F(BackUpRoom, AnotherListTakesThePlaceOfTheOneBefore) {
    SeedPlayList("Empty", {});
    HavePlayLists({"Evening", "Other", "Empty"});
    OpenBackUp();
    Choose("Evening");

    Choose("Other");
    EXPECT_EQ(RowsOf(pane.lstEditPlayListTracks), Texts{"Rise"});

    Choose("Empty");
    EXPECT_EQ(pane.lstEditPlayListTracks.ListCount(), 0);
    EXPECT_EQ(Track(), "||");
}

TEST_F(BackUpRoom, BlanksAroundAStoredNameDoNotCount) {
    SeedPlayList(" Evening ", {1});
    OpenBackUp();

    Choose("Evening");

    EXPECT_EQ(RowsOf(pane.lstEditPlayListTracks), (Texts{"Set", "Rise", "Set", "Rise"}));
}

TEST_F(BackUpRoom, AllMediaShowsTheSongsWithATitleByTheirArtists) {
    SeedSong(5, "Apple", "");
    OpenBackUp();

    Choose("  [All Media]");

    EXPECT_EQ(RowsOf(pane.lstEditID), (Texts{"3", "2", "1", "4"}));
    pane.lstEditPlayListTracks.SetListIndex(2);
    EXPECT_EQ(Track(), "Sun|Rise|1");
}

TEST_F(BackUpRoom, SongsThatLeftTheLibraryDropOut) {
    SeedPlayList("Gaps", {99, 1, 98, 2, 97});
    HavePlayLists({"Gaps"});
    OpenBackUp();
    Choose("Gaps");
    EXPECT_EQ(RowsOf(pane.lstEditPlayListTracks), (Texts{"Rise", "Set"}));

    BackUpChosen();

    EXPECT_EQ(FileOf("Gaps.mpl"), "Sun - Rise\r\nMoon - Set\r\n\r\n");
}

TEST_F(BackUpRoom, ASongThatLeavesWhileItsListIsShownLeavesNoTraceOfAnother) {
    OpenBackUp();
    Choose("Evening");
    store::DataSource source("datSeed");
    stores.Bind(source, "tblSong");
    source.Open(store::kAllSongs);
    source.Recordset().MoveFirst();
    source.Recordset().Delete();

    pane.lstEditPlayListTracks.SetListIndex(1);

    EXPECT_EQ(Track(), "||");

    BackUpChosen();

    EXPECT_EQ(FileOf("Evening.mpl"), "Moon - Set\r\nMoon - Set\r\n\r\n");
}

TEST_F(BackUpRoom, AListIsWrittenLineByLineWithAnEmptyLineAtTheEnd) {
    OpenBackUp();
    Choose("Evening");

    BackUpChosen();

    EXPECT_EQ(FileOf("Evening.mpl"), "Moon - Set\r\nSun - Rise\r\nMoon - Set\r\n\r\n");
    EXPECT_FALSE(HasFile("Other.mpl"));
    EXPECT_TRUE(boxes.Boxes.empty());
}

TEST_F(BackUpRoom, AListOfNoSongsIsAFileOfOneEmptyLine) {
    SeedPlayList("Empty", {});
    HavePlayLists({"Empty"});
    OpenBackUp();
    Choose("Empty");

    BackUpChosen();

    EXPECT_EQ(FileOf("Empty.mpl"), "\r\n");
}

TEST_F(BackUpRoom, TheFileIsOfTheCodePageAndOfMarkedUtf8WhereThatDoesNotFit) {
    SeedPlayList("West", {3});
    SeedPlayList("East", {3, 4});
    HavePlayLists({"West", "East"});
    OpenBackUp();

    BackUpAll();

    EXPECT_EQ(FileOf("West.mpl"), "Bj\xF6rk - H\xE6 \x96 \xBD\r\n\r\n");
    EXPECT_EQ(FileOf("East.mpl"),
              "\xEF\xBB\xBF"
              "Björk - Hæ – ½\r\nあ - Tone\r\n\r\n");
}

TEST_F(BackUpRoom, ALineBreakInANameDoesNotBreakTheLine) {
    SeedSong(5, "Line\nbreak", "a\r\nb");
    SeedPlayList("Odd", {5});
    HavePlayLists({"Odd"});
    OpenBackUp();
    Choose("Odd");

    BackUpChosen();

    EXPECT_EQ(FileOf("Odd.mpl"), "Line break - a  b\r\n\r\n");
}

TEST_F(BackUpRoom, ABuiltInViewWritesNothing) {
    for (const char* view : {"  [All Media]", "  [Last 20]", "  [Top 20]"}) {
        OpenBackUp();
        Choose(view);

        BackUpChosen();

        EXPECT_TRUE(files.ListFolder(kFolder)->Files.empty()) << view;
        EXPECT_TRUE(boxes.Boxes.empty()) << view;
    }
}

TEST_F(BackUpRoom, WithoutAFolderOrAListNothingIsWritten) {
    OpenBackUp();

    BackUpChosen();
    EXPECT_EQ(BoxTexts(), Texts{kNothingChosen});

    Choose("Evening");
    pane.txtBackFolder.SetText("");
    BackUpChosen();
    EXPECT_EQ(BoxTexts(), (Texts{kNothingChosen, kNothingChosen}));
    EXPECT_FALSE(files.IsFolder(kFolder));
}

TEST_F(BackUpRoom, AFolderWithoutABackslashAtItsEndIsTheSame) {
    OpenBackUp();
    Choose("Other");
    pane.txtBackFolder.SetText("C:\\lists\\mine");

    BackUpChosen();

    EXPECT_EQ(pane.txtBackFolder.Text(), "C:\\lists\\mine\\");
    EXPECT_EQ(files.TextOf("C:\\lists\\mine\\Other.mpl"), "Sun - Rise\r\n\r\n");
}

TEST_F(BackUpRoom, ANativePathIsTaken) {
    OpenBackUp();
    Choose("Other");
    pane.txtBackFolder.SetText("/home/ann/lists");

    BackUpChosen();

    EXPECT_EQ(pane.txtBackFolder.Text(), "C:\\home\\ann\\lists\\");
    EXPECT_EQ(files.TextOf("C:\\home\\ann\\lists\\Other.mpl"), "Sun - Rise\r\n\r\n");
    EXPECT_TRUE(boxes.Boxes.empty());
}

TEST_F(BackUpRoom, AnyOtherSlashIsRefused) {
    for (const char* text : {"C:/lists", "C:\\lists/mine", "lists/mine", "C:\\lists\\mine/"}) {
        OpenBackUp();
        Choose("Other");
        pane.txtBackFolder.SetText(text);
        boxes.Boxes.clear();

        BackUpChosen();

        EXPECT_EQ(BoxTexts(), Texts{kNoSlashes}) << text;
        EXPECT_EQ(pane.txtBackFolder.Text(), text);
    }
    EXPECT_FALSE(files.IsFolder("C:\\lists"));
}

TEST_F(BackUpRoom, AFolderBelowNoDriveIsRefused) {
    for (const char* text : {"\\\\server\\share", "lists", "\\lists", "C:lists", "1:\\lists", "::\\x", "C"}) {
        OpenBackUp();
        Choose("Other");
        pane.txtBackFolder.SetText(text);
        boxes.Boxes.clear();

        BackUpChosen();

        EXPECT_EQ(BoxTexts(), Texts{kNoDrive}) << text;
    }
}

TEST_F(BackUpRoom, TheFolderIsMadePartByPart) {
    files.AddFolder("C:\\lists");
    OpenBackUp();
    Choose("Other");
    pane.txtBackFolder.SetText("c:\\lists\\a\\\\b\\.\\c\\..\\d");

    BackUpChosen();

    EXPECT_EQ(files.TextOf("C:\\lists\\a\\b\\d\\Other.mpl"), "Sun - Rise\r\n\r\n");
    EXPECT_TRUE(boxes.Boxes.empty());
}

TEST_F(BackUpRoom, TheRootOfADriveIsAFolder) {
    OpenBackUp();
    Choose("Other");
    pane.txtBackFolder.SetText("C:");

    BackUpChosen();

    EXPECT_EQ(files.TextOf("C:\\Other.mpl"), "Sun - Rise\r\n\r\n");
}

TEST_F(BackUpRoom, AFileInTheFoldersPlaceIsTold) {
    files.AddFile("C:\\app\\BackUp", "kept");
    OpenBackUp();
    Choose("Other");

    BackUpChosen();

    EXPECT_EQ(BoxTexts(),
              Texts{"The back up folder \"/app/BackUp\" can not be made: a file stands in its place."});
    EXPECT_EQ(files.TextOf("C:\\app\\BackUp"), "kept");
}

TEST_F(BackUpRoom, ADriveThatIsGoneIsTold) {
    files.AddDrive('D', "stick");
    OpenBackUp();
    Choose("Other");
    pane.txtBackFolder.SetText("D:\\lists");
    files.RemoveDrive('D');

    BackUpChosen();

    EXPECT_EQ(BoxTexts(),
              Texts{"The back up folder \"D:\\\" can not be made: the drive or the folder is not there."});
}

TEST_F(BackUpRoom, AFolderThatMayNotBeMadeIsToldOnceForAllLists) {
    files.FailChangesWith(FileResult::Refused);
    OpenBackUp();

    BackUpAll();

    EXPECT_EQ(BoxTexts(),
              Texts{"The back up folder \"/app/BackUp\" can not be made: the folder is read-only, or "
                    "is not yours."});
    EXPECT_EQ(Setting(6), "20260228");
}

TEST_F(BackUpRoom, AFailedWriteIsToldAndKeepsTheOldFile) {
    const struct {
        FileResult result;
        const char* reason;
    } cases[] = {{FileResult::DiskFull, "the disk is full"},
                 {FileResult::Refused, "the folder is read-only, or is not yours"},
                 {FileResult::Missing, "the drive or the folder is not there"},
                 {FileResult::Failed, "the disk or the system reported an error"}};
    files.AddFile("C:\\app\\BackUp\\Other.mpl", "old");
    for (const auto& one : cases) {
        OpenBackUp();
        Choose("Other");
        files.FailChangesWith(one.result);
        boxes.Boxes.clear();

        BackUpChosen();

        EXPECT_EQ(BoxTexts(), Texts{std::string("Not backed up to \"/app/BackUp\":\r\nOther: ") + one.reason +
                                    "." + kKept});
        EXPECT_EQ(FileOf("Other.mpl"), "old");
    }
}

TEST_F(BackUpRoom, AnOldFileIsReplaced) {
    files.AddFile("C:\\app\\BackUp\\Other.mpl", "old and longer than what is written next");
    OpenBackUp();
    Choose("Other");

    BackUpChosen();

    EXPECT_EQ(FileOf("Other.mpl"), "Sun - Rise\r\n\r\n");
}

TEST_F(BackUpRoom, NamesWithSeparatorsStayInTheFolderAndComeBack) {
    Texts names = {"AC/DC", "a\\b", "..", "../up", "C:\\x", "/"};
    for (const std::string& name : names)
        SeedPlayList(name, {1});
    names.insert(names.end(), {"Evening", "Other"});
    HavePlayLists(names);
    OpenBackUp();

    BackUpAll();

    EXPECT_TRUE(boxes.Boxes.empty());
    Texts read;
    const auto listing = files.ListFolder(kFolder);
    for (const std::string& file : listing->Files)
        read.push_back(base::WithSeparators(file.substr(0, file.size() - 4)));
    EXPECT_EQ(std::set<std::string>(read.begin(), read.end()),
              std::set<std::string>(names.begin(), names.end()));
}

TEST_F(BackUpRoom, AllListsAreWrittenAndTheDateIsRenewed) {
    OpenBackUp();

    BackUpAll();

    EXPECT_EQ(files.ListFolder(kFolder)->Files, (Texts{"Evening.mpl", "Other.mpl"}));
    EXPECT_EQ(Setting(6), "20260309");
    EXPECT_EQ(options.LastPlayListBackUp, 20260309);
    EXPECT_EQ(pane.lblLastBackup.Caption(), "0 days ago.");
    EXPECT_TRUE(boxes.Boxes.empty());
}

TEST_F(BackUpRoom, TheDateIsStoredAsASetting) {
    OpenBackUp();

    BackUpAll();

    EXPECT_EQ(stores.Rows("tblHistory")[5], (Row{"6", "Settings", "20260309"}));
}

TEST_F(BackUpRoom, ABackUpOfOneListDoesNotRenewTheDate) {
    OpenBackUp();
    Choose("Evening");

    BackUpChosen();

    EXPECT_EQ(Setting(6), "20260228");
    EXPECT_EQ(pane.lblLastBackup.Caption(), "81 days ago.");
}

TEST_F(BackUpRoom, ListsThatFailAreToldInOneBoxAndTheOthersAreWritten) {
    Texts names{"Evening", "Other", "Good"};
    SeedPlayList("Good", {1});
    for (int i = 1; i <= 12; ++i) {
        names.push_back("Bad " + base::ToText(i));
        SeedPlayList(names.back(), {1});
        files.AddFolder("C:\\app\\BackUp\\" + names.back() + ".mpl");
    }
    HavePlayLists(names);
    OpenBackUp();

    BackUpAll();

    ASSERT_EQ(boxes.Boxes.size(), 1U);
    const std::string& text = boxes.Boxes[0].text;
    EXPECT_TRUE(base::StartsWith(text, "Not backed up to \"/app/BackUp\":\r\nBad 1: the disk or the system"));
    EXPECT_TRUE(base::Contains(text, "\r\nBad 10: "));
    EXPECT_FALSE(base::Contains(text, "Bad 11"));
    EXPECT_TRUE(base::EndsWith(text, std::string("\r\nand 2 more.") + kKept));
    EXPECT_EQ(FileOf("Good.mpl"), "Sun - Rise\r\n\r\n");
    EXPECT_EQ(Setting(6), "20260228");
    EXPECT_EQ(pane.lblLastBackup.Caption(), "81 days ago.");
}

TEST_F(BackUpRoom, AListThatIsNotShownIsNotMissedInSilence) {
    SeedPlayList(" Hidden", {1, 2});
    OpenBackUp();

    BackUpAll();

    EXPECT_EQ(BoxTexts(),
              Texts{std::string("Not backed up to \"/app/BackUp\":\r\nHidden: there are more play lists "
                                "than are shown.") +
                    kKept});
    EXPECT_TRUE(HasFile("Evening.mpl"));
    EXPECT_EQ(Setting(6), "20260228");
}

TEST_F(BackUpRoom, AListThatIsTooLongToBeOpenedAgainIsToldAndWrittenWhole) {
    SeedPlayList("Full", std::vector<int>(1000, 1));
    SeedPlayList("Over", std::vector<int>(1001, 1));
    HavePlayLists({"Evening", "Other", "Full", "Over"});
    OpenBackUp();

    BackUpAll();

    EXPECT_EQ(BoxTexts(),
              Texts{"Backed up whole, but only the first 1000 tracks of a play list file can be opened "
                    "again:\r\nOver"});
    EXPECT_EQ(FileOf("Over.mpl").size(), 1001 * std::string_view("Sun - Rise\r\n").size() + 2);
    EXPECT_EQ(Setting(6), "20260309");
}

}  // namespace
