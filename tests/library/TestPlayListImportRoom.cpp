#include "library/PlayListImportRoom.h"

#include <gtest/gtest.h>

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "fakes/FakeFiles.h"
#include "library/CleanUpRoom.h"
#include "library/LibraryPane.h"
#include "library/TaskRoom.h"
#include "library/TrackMatchRoom.h"

namespace {

using library_tests::LibraryPane;
using library_tests::PlayListRow;
using library_tests::Rows;
using library_tests::RowsOf;
using library_tests::Song;

/// The address row, of which an import empties the text.
struct FakeAddressRow final : roles::AddressRow {
    std::string Address() const override { return Text; }
    void SetAddress(std::string_view text) override {
        Text = text;
        ++Changes;
    }
    bool IsAddressVisible() const override { return true; }
    void ClearList() override {}
    void AddToList(std::string_view) override {}
    void SetTyped(std::string_view) override {}
    void ShowLocation(std::string_view) override {}
    roles::AddressMode Mode() const override { return roles::AddressMode::Web; }
    void FocusAddress() override {}
    void ClearStaleAddress() override {}

    std::string Text = "C:\\Road.mpl";
    int Changes = 0;
};

/// Boxes that run something while they show.
struct BusyDialogs final : ports::Dialogs {
    explicit BusyDialogs(fakes::FakeDialogs& shown) : shown_(shown) {}
    ports::BoxAnswer MsgBox(std::string_view text, ports::BoxButtons buttons, std::string_view title,
                            ports::BoxIcon icon) override {
        if (OnBox) OnBox();
        return shown_.MsgBox(text, buttons, title, icon);
    }
    std::string InputBox(std::string_view prompt, std::string_view title, std::string_view text) override {
        if (OnBox) OnBox();
        return shown_.InputBox(prompt, title, text);
    }
    std::vector<std::string> OpenFiles(std::string_view title, std::string_view kind,
                                       std::span<const std::string_view> endings) override {
        return shown_.OpenFiles(title, kind, endings);
    }
    std::function<void()> OnBox;

private:
    fakes::FakeDialogs& shown_;
};

constexpr const char* kPath = "C:\\Road.mpl";

class PlayListImportRoomTest : public testing::Test, protected LibraryPane {
protected:
    PlayListImportRoomTest() {
        Stores.Bind(datHistory, "tblHistory");
        SeedSongs({Song("1", "Lark", "Morning"), Song("2", "Moor", "Evening")});
    }

    void Import(std::string_view text, std::string_view path = kPath) {
        files.AddFile(path, text);
        Room.AddPlayList(path);
    }
    /// The playlists' rows as "name: song".
    Rows PlayListRows() {
        Rows rows;
        for (const auto& row : Stores.Rows("tblPlayList"))
            rows.push_back(row[1] + ": " + row[2]);
        return rows;
    }
    Rows BoxTexts() const {
        Rows texts;
        for (const auto& box : Dialogs.Boxes)
            texts.push_back(box.text);
        return texts;
    }
    /// Runs at every yield.
    void AtEachYield(const std::function<void()>& work) {
        Desktop.Post([this, work] {
            work();
            AtEachYield(work);
        });
    }

    fakes::FakeFiles files;
    store::DataSource datHistory{"datHistory"};
    library::TaskControls task;
    library::TrackImportControls Controls;
    controls::Label Label5{"Label5", "an artist"};
    FakeAddressRow Address;
    BusyDialogs Boxes{Dialogs};
    library::CleanUpMenu clean_up_menu;
    std::int32_t age = 0;
    library::TaskRoom Task{task, Desktop, Neighbours};
    library::CleanUpRoom CleaningRoom{task, clean_up_menu, {Sources.datSong, datHistory}, age, Task,
                                      Undo, ListsRoom,     {files, Dialogs, Desktop}};
    library::TrackMatchRoom Matcher{Controls,
                                    {task.lblFoundNo, task.lblDuplicatesNoRemoved, task.lblStatus},
                                    Sources,
                                    PlayListsRoom,
                                    Desktop};
    library::PlayListImportRoom Room{Controls, Label5,
                                     Sources,  {Task, Matcher, PlayListsRoom, ListsRoom},
                                     Address,  {files, Boxes, Desktop}};
};

TEST_F(PlayListImportRoomTest, AFileBecomesAPlaylistOfItsName) {
    Import("Lark - Morning\r\nmoor - EVENING\r\n\r\n");

    EXPECT_EQ(PlayListRows(), (Rows{"Road: ", "Road: 1", "Road: 2"}));
    EXPECT_EQ(Stores.Rows("tblPlayList")[0], PlayListRow("1", "Road"));
    EXPECT_EQ(BoxTexts(), Rows{"Playlist was added successfully."});
    EXPECT_EQ(Dialogs.Boxes[0].icon, ports::BoxIcon::None);
    EXPECT_EQ(Dialogs.Boxes[0].title, "");
    EXPECT_FALSE(task.fraTask.Visible());
    EXPECT_EQ(Address.Text, "");
    EXPECT_EQ(Label5.Caption(), "");
    EXPECT_TRUE(Neighbours.Calls.empty());
}

TEST_F(PlayListImportRoomTest, TheListsAreEmptyAndThePanelShowsBeforeItsTextsAre) {
    Controls.lstTracksToAdd.AddItem("old");
    Controls.lstartist.AddItem("old");
    Controls.lsttitle.AddItem("old");
    task.lblTask.SetCaption("old");
    task.lblFoundNo.SetCaption("7");
    bool looked = false;
    files.AddFile(kPath, "Lark - Morning");
    Desktop.Post([&] {
        looked = true;
        EXPECT_TRUE(task.fraTask.Visible());
        EXPECT_EQ(Controls.lstTracksToAdd.ListCount(), 0);
        EXPECT_EQ(Controls.lstartist.ListCount(), 0);
        EXPECT_EQ(Controls.lsttitle.ListCount(), 0);
        EXPECT_EQ(task.lblTask.Caption(), "old");
        EXPECT_EQ(task.lblFoundNo.Caption(), "7");
        // What was at the yield is too late to be seen by the first look at the file.
        files.AddFile(kPath, "Moor - Evening");
    });

    Room.AddPlayList(kPath);

    EXPECT_TRUE(looked);
    EXPECT_EQ(RowsOf(Controls.lstTracksToAdd), Rows{"Moor - Evening"});
}

TEST_F(PlayListImportRoomTest, ThePanelSaysWhatIsGoingOnUntilTheBoxIsAnswered) {
    int boxes = 0;
    Boxes.OnBox = [&] {
        ++boxes;
        EXPECT_TRUE(task.fraTask.Visible());
        EXPECT_EQ(Address.Text, kPath);
        EXPECT_EQ(task.lblTask.Caption(), "Adding play list in progress, please wait...");
        EXPECT_EQ(task.lblFound.Caption(), "Tracks found:");
        EXPECT_EQ(task.lblDuplicatesRemoved.Caption(), "Tracks missing:");
        EXPECT_EQ(task.lblFoundNo.Caption(), "1");
        EXPECT_EQ(task.lblDuplicatesNoRemoved.Caption(), "2");
        EXPECT_EQ(task.lblStatus.Caption(), "Road");
        EXPECT_EQ(task.pbTask.Value(), 100);
    };

    Import("Nobody - One\nLark - Morning\nTwo");

    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(
        BoxTexts(),
        Rows{"The following songs could not be added to the playlist:\r\nNobody - One\r\nUnknown - Two\r\n"});
    EXPECT_FALSE(task.fraTask.Visible());
    EXPECT_EQ(Address.Text, "");
}

TEST_F(PlayListImportRoomTest, LinesAreParsedRowByRow) {
    Import("Foo - Bar - Baz\r\nAlone\r\n  A  -  B  ");

    EXPECT_EQ(RowsOf(Controls.lstTracksToAdd), (Rows{"Foo - Bar - Baz", "Alone", "A  -  B"}));
    EXPECT_EQ(RowsOf(Controls.lstartist), (Rows{"Foo", "Unknown", "A"}));
    EXPECT_EQ(RowsOf(Controls.lsttitle), (Rows{"Bar - Baz", "Alone", "B"}));
}

TEST_F(PlayListImportRoomTest, AMissingFileAndAFolderChangeNothing) {
    files.AddFolder("C:\\Folder.mpl");

    for (const char* path : {"", "C:\\gone.mpl", "C:\\Folder.mpl", "http://one.example/a.mpl"})
        Room.AddPlayList(path);

    EXPECT_FALSE(task.fraTask.Visible());
    EXPECT_TRUE(PlayListRows().empty());
    EXPECT_TRUE(Dialogs.Boxes.empty());
    EXPECT_EQ(Address.Changes, 0);
    EXPECT_EQ(Desktop.Yields, 0);
}

TEST_F(PlayListImportRoomTest, AFileIsKnownByItsNativePathAndItsAddress) {
    Import("Lark - Morning", "C:\\home\\A b.mpl");

    Dialogs.Typed = {"Two"};
    Room.AddPlayList("/home/A b.mpl");
    Dialogs.Typed = {"Three"};
    Room.AddPlayList("file:///home/A%20b.mpl");

    EXPECT_EQ(PlayListRows(), (Rows{"A b: ", "A b: 1", "Two: ", "Two: 1", "Three: ", "Three: 1"}));
}

TEST_F(PlayListImportRoomTest, AFileOfBlankLinesCreatesNothingAndThePanelGoes) {
    for (const char* text : {"", " \r\n\r\n   \r\n"})
        Import(text);

    EXPECT_TRUE(PlayListRows().empty());
    EXPECT_TRUE(Dialogs.Boxes.empty());
    EXPECT_TRUE(Dialogs.Inputs.empty());
    EXPECT_FALSE(task.fraTask.Visible());
    EXPECT_EQ(Address.Changes, 0);
}

TEST_F(PlayListImportRoomTest, AFileThatGoesWhileThePanelComesUpIsIgnored) {
    files.AddFile(kPath, "Lark - Morning");
    Desktop.Post([this] { files.Remove(kPath); });

    Room.AddPlayList(kPath);

    EXPECT_TRUE(PlayListRows().empty());
    EXPECT_TRUE(Dialogs.Boxes.empty());
    EXPECT_FALSE(task.fraTask.Visible());
}

TEST_F(PlayListImportRoomTest, AFileThatMayNotBeReadIsTold) {
    files.AddFile("C:\\home\\Road.mpl", "Lark - Morning");
    files.MakeUnreadable("C:\\home\\Road.mpl");

    Room.AddPlayList("C:\\home\\Road.mpl");

    EXPECT_EQ(BoxTexts(), Rows{"The play list could not be read:\r\n/home/Road.mpl"});
    EXPECT_TRUE(PlayListRows().empty());
    EXPECT_FALSE(task.fraTask.Visible());
}

TEST_F(PlayListImportRoomTest, ASecondImportAsksForAnotherNameWithoutTheListsBeingRebuilt) {
    Import("Lark - Morning");
    Dialogs.Typed = {"Road", " Other "};

    Import("Lark - Morning");

    ASSERT_EQ(Dialogs.Inputs.size(), 2U);
    EXPECT_EQ(Dialogs.Inputs[0].prompt,
              "You already have a playlist with this name, please state a new name");
    EXPECT_EQ(Dialogs.Inputs[0].title, "Playlist Name");
    EXPECT_EQ(Dialogs.Inputs[0].default_text, "New_Playlist");
    EXPECT_EQ(Dialogs.Inputs[1].prompt, Dialogs.Inputs[0].prompt);
    EXPECT_EQ(Dialogs.Inputs[1].default_text, "New_Playlist");
    EXPECT_EQ(PlayListRows(), (Rows{"Road: ", "Road: 1", "Other: ", "Other: 1"}));
}

TEST_F(PlayListImportRoomTest, WhileTheNameIsTakenTheMarkerSaysSo) {
    Import("Lark - Morning");
    std::string marker;
    Boxes.OnBox = [&] {
        if (marker.empty()) marker = Label5.Caption();
    };
    Dialogs.Typed = {"Other"};

    Import("Lark - Morning");

    EXPECT_EQ(marker, "Larkmoor");
    EXPECT_EQ(Label5.Caption(), "");
}

TEST_F(PlayListImportRoomTest, AnEmptyOrBlankAnswerEndsItWithTheAddressKept) {
    Import("Lark - Morning");
    Address.Text = kPath;
    for (const char* answer : {"", "   "}) {
        Dialogs.Typed = {answer};

        Import("Lark - Morning");

        EXPECT_EQ(PlayListRows().size(), 2U);
        EXPECT_EQ(Dialogs.Boxes.size(), 1U);
        EXPECT_FALSE(task.fraTask.Visible());
        EXPECT_EQ(Address.Text, kPath);
    }
}

TEST_F(PlayListImportRoomTest, BuiltInNamesAreTakenAndCaseCounts) {
    Dialogs.Typed = {"Mine"};

    Import("Lark - Morning", "C:\\[Top 20].mpl");
    Import("Lark - Morning", "C:\\MINE.mpl");

    EXPECT_EQ(Dialogs.Inputs.size(), 1U);
    EXPECT_EQ(PlayListRows(), (Rows{"Mine: ", "Mine: 1", "MINE: ", "MINE: 1"}));
}

TEST_F(PlayListImportRoomTest, ANameOnlyTheTableKnowsIsTakenAsWell) {
    std::vector<std::vector<std::string>> rows;
    for (int i = 1; i <= 101; ++i)
        rows.push_back(PlayListRow(std::to_string(i), "List " + std::to_string(i)));
    Stores.Seed("tblPlayList", rows);

    Import("Lark - Morning", "C:\\List 101.mpl");

    EXPECT_EQ(Dialogs.Inputs.size(), 1U);
    EXPECT_EQ(PlayListRows().size(), 101U);
}

TEST_F(PlayListImportRoomTest, AFileWithoutANameAsksForOne) {
    Dialogs.Typed = {"Mine"};

    Import("Lark - Morning", "C:\\.mpl");

    EXPECT_EQ(PlayListRows(), (Rows{"Mine: ", "Mine: 1"}));
}

TEST_F(PlayListImportRoomTest, ASignThatAPathCannotHoldComesBackInTheName) {
    Import("Lark - Morning", "C:\\AC\uF02FDC \uF05C.mpl");

    EXPECT_EQ(PlayListRows(), (Rows{"AC/DC \\: ", "AC/DC \\: 1"}));
}

TEST_F(PlayListImportRoomTest, ASongThatIsThereTwiceIsTheFirstOne) {
    SeedSongs({Song("7", "Lark", "Morning")});

    Import("Lark - Morning\nLark - Morning");

    EXPECT_EQ(PlayListRows(), (Rows{"Road: ", "Road: 1", "Road: 1"}));
}

TEST_F(PlayListImportRoomTest, AThousandLinesAreAllAndEachOneYields) {
    std::string text;
    for (int i = 0; i < 1001; ++i)
        text += "Lark - Morning\r\n";
    const int yields = Desktop.Yields;

    Import(text);

    EXPECT_EQ(PlayListRows().size(), 1001U);
    EXPECT_EQ(task.lblFoundNo.Caption(), "1000");
    EXPECT_EQ(Controls.lstTracksToAdd.ListCount(), 1000);
    EXPECT_GE(Desktop.Yields - yields, 1001);
}

TEST_F(PlayListImportRoomTest, AnEndlessLineAndBytesOfAnyKindAreMissingSongs) {
    std::string bytes;
    bytes.assign(10'000'000, 'x');
    bytes += "\r\n";
    for (int i = 0; i < 512; ++i)
        bytes += static_cast<char>(i & 0xFF);

    Import(bytes);

    EXPECT_EQ(PlayListRows(), Rows{"Road: "});
    ASSERT_EQ(Dialogs.Boxes.size(), 1U);
    EXPECT_LT(Dialogs.Boxes[0].text.size(), 3000U);
    EXPECT_FALSE(task.fraTask.Visible());
}

TEST_F(PlayListImportRoomTest, TheEndOfTheProgramStopsItAtTheNextLine) {
    AtEachYield([this] {
        if (PlayListRows().size() == 2) Desktop.Ending = true;
    });

    Import("Lark - Morning\nMoor - Evening\nLark - Morning");

    EXPECT_EQ(PlayListRows(), (Rows{"Road: ", "Road: 1"}));
    EXPECT_TRUE(Dialogs.Boxes.empty());
    EXPECT_EQ(Address.Changes, 0);
}

TEST_F(PlayListImportRoomTest, AStopEndsItAtTheNextLineAndDropsWhatWaits) {
    files.AddFile("C:\\Second.mpl", "Moor - Evening");
    bool stopped = false;
    AtEachYield([&] {
        if (PlayListRows().size() != 2 || stopped) return;
        stopped = true;
        Room.AddPlayList("C:\\Second.mpl");
        Task.Stop();
        EXPECT_FALSE(task.fraTask.Visible());
    });

    Import("Lark - Morning\nMoor - Evening\nLark - Morning");

    EXPECT_TRUE(stopped);
    EXPECT_EQ(PlayListRows(), (Rows{"Road: ", "Road: 1"}));
    EXPECT_TRUE(Dialogs.Boxes.empty());
    EXPECT_FALSE(task.fraTask.Visible());
    EXPECT_EQ(Address.Changes, 0);

    Dialogs.Typed = {"Again"};
    Import("Lark - Morning");
    EXPECT_EQ(PlayListRows(), (Rows{"Road: ", "Road: 1", "Again: ", "Again: 1"}));
}

TEST_F(PlayListImportRoomTest, AStopEndsACleanUpAndItsPanel) {
    for (const auto& song : Stores.Rows("tblSong"))
        files.AddFile(song[3]);
    Dialogs.Answers = {ports::BoxAnswer::Yes};
    Desktop.Post([this] { Task.Stop(); });

    clean_up_menu.mnuCleanUp.Click.Raise();

    EXPECT_FALSE(task.fraTask.Visible());
    EXPECT_EQ(task.lstCleanup.ListCount(), 1);
}

TEST_F(PlayListImportRoomTest, TheEndOfTheProgramBeforeTheFileIsReadReadsNothing) {
    Desktop.Post([this] { Desktop.Ending = true; });

    Import("Lark - Morning");

    EXPECT_TRUE(PlayListRows().empty());
    EXPECT_EQ(Controls.lstTracksToAdd.ListCount(), 0);
}

TEST_F(PlayListImportRoomTest, ASecondFileWaitsForTheFirstAndRebuildsTheListsItself) {
    files.AddFile("C:\\Second.mpl", "Moor - Evening");
    bool asked = false;
    AtEachYield([&] {
        if (PlayListRows().size() != 2 || asked) return;
        asked = true;
        Room.AddPlayList("C:\\Second.mpl");
        EXPECT_EQ(PlayListRows().size(), 2U);
    });

    Import("Lark - Morning\nMoor - Evening\nLark - Morning");

    EXPECT_TRUE(asked);
    EXPECT_EQ(PlayListRows(), (Rows{"Road: ", "Road: 1", "Road: 2", "Road: 1", "Second: ", "Second: 2"}));
    EXPECT_EQ(Dialogs.Boxes.size(), 2U);
    ASSERT_FALSE(Neighbours.Calls.empty());
    EXPECT_EQ(Neighbours.Calls[0], "stage Media Library");
    EXPECT_EQ(RowsOf(Lists.lstPlayLists),
              (Rows{"  [All Media]", "  [Last 20]", "  [Top 20]", "Road", "Second"}));
}

TEST_F(PlayListImportRoomTest, ACleanUpDoesNotBeginWhileALineIsMatched) {
    files.AddFile(kPath, "Lark - Morning\nMoor - Evening");
    AtEachYield([this] { clean_up_menu.mnuCleanUp.Click.Raise(); });

    Room.AddPlayList(kPath);

    EXPECT_EQ(PlayListRows(), (Rows{"Road: ", "Road: 1", "Road: 2"}));
    EXPECT_EQ(BoxTexts(), Rows{"Playlist was added successfully."});
}

TEST_F(PlayListImportRoomTest, AFileThatComesInACleanUpIsReadAfterIt) {
    for (const auto& song : Stores.Rows("tblSong"))
        files.AddFile(song[3]);
    files.AddFile(kPath, "Lark - Morning");
    Dialogs.Answers = {ports::BoxAnswer::Yes};
    Desktop.Post([this] {
        Room.AddPlayList(kPath);
        EXPECT_EQ(task.lblStatus.Caption(), "Searching files");
    });

    clean_up_menu.mnuCleanUp.Click.Raise();

    EXPECT_EQ(PlayListRows(), (Rows{"Road: ", "Road: 1"}));
    EXPECT_EQ(Stores.Rows("tblSong").size(), 2U);
}

TEST_F(PlayListImportRoomTest, ThePanelStaysInFrontWhileItRunsAndNotAfterIt) {
    controls::Frame window("frmBrowser");
    controls::Frame pane("fraMusicTab");
    window.Add(task.fraTask, pane);
    int looks = 0;
    AtEachYield([&] {
        ++looks;
        pane.BringToFront();
        EXPECT_EQ(window.Children().back(), &task.fraTask);
    });

    Import("Lark - Morning");
    pane.BringToFront();

    EXPECT_GT(looks, 1);
    EXPECT_EQ(window.Children().back(), &pane);
}

TEST_F(PlayListImportRoomTest, TheMouseOverThePanelHidesTheBrightPictures) {
    task.imgTaskBG.MouseMove.Raise(0, 0, 1, 1);
    task.fraTaskCenter.MouseMove.Raise(0, 0, 1, 1);

    EXPECT_EQ(Neighbours.OversHidden, 2);
}

TEST_F(PlayListImportRoomTest, AListOfAnotherPlayerFindsSongsByTheirPathsFirst) {
    Import(
        "#EXTINF:1,Lark - Morning\n/Music/Moor - Evening.mp3\n"
        "#EXTINF:1,lark - morning\n/elsewhere/x.mp3\nMusic/Lark - Morning.mp3\nNo/One - Here.mp3",
        "C:\\Road.m3u");

    EXPECT_EQ(PlayListRows(), (Rows{"Road: ", "Road: 2", "Road: 1", "Road: 1"}));
    EXPECT_EQ(task.lblFoundNo.Caption(), "3");
    EXPECT_EQ(BoxTexts(), Rows{"The following songs could not be added to the playlist:\r\nOne - Here\r\n"});
}

TEST_F(PlayListImportRoomTest, ASongThatGoesOnTheWayIsLookedForByName) {
    Stores.Seed("tblSong", {Song("3", "Moor", "Evening")});
    bool deleted = false;
    AtEachYield([&] {
        if (deleted || PlayListRows().size() != 2) return;
        deleted = true;
        store::RecordSet& songs = (Sources.datSong.Open(store::kAllSongs), Sources.datSong.Recordset());
        songs.MoveToFirst(store::tblSong::SongID, "2");
        songs.Delete();
    });

    Import("Music/Lark - Morning.mp3\nMusic/Moor - Evening.mp3", "C:\\Road.m3u8");

    EXPECT_EQ(PlayListRows(), (Rows{"Road: ", "Road: 1", "Road: 3"}));
}

TEST_F(PlayListImportRoomTest, EveryKindOfForeignListTakesItsNameWithoutTheExtension) {
    Import("Music/Lark - Morning.mp3", "C:\\A.m3u");
    Import("Music/Lark - Morning.mp3", "C:\\B.M3U8");
    Import("File1=Music/Lark - Morning.mp3", "C:\\C.pls");
    Import("<track><location>Music/Lark%20-%20Morning.mp3</location></track>", "C:\\D.e.xspf");

    EXPECT_EQ(PlayListRows(), (Rows{"A: ", "A: 1", "B: ", "B: 1", "C: ", "C: 1", "D.e: ", "D.e: 1"}));
}

TEST_F(PlayListImportRoomTest, AForeignListWithoutSongsIsTold) {
    Import("[playlist]\nNumberOfEntries=0", "C:\\home\\A.pls");

    EXPECT_EQ(BoxTexts(), Rows{"No songs were found in the play list:\r\n/home/A.pls"});
    EXPECT_TRUE(PlayListRows().empty());
    EXPECT_FALSE(task.fraTask.Visible());
}

TEST_F(PlayListImportRoomTest, ALongForeignListIsMatchedWithALargeLibraryInOneGo) {
    constexpr int kSongs = 20'000;
    std::vector<std::vector<std::string>> songs;
    std::string by_path;
    std::string by_name;
    for (int i = 0; i < kSongs; ++i) {
        // Of one length, since a name that is a part of another one fits it.
        const std::string number = std::to_string(100'000 + i);
        songs.push_back(
            Song(std::to_string(i + 3), "Artist " + std::to_string(100 + i % 900), "Title " + number));
        by_path += songs.back()[3] + "\n";
        by_name += "#EXTINF:1,ARTIST " + std::to_string(100 + i % 900) + " - title-" + number + "\ngone\n";
    }
    SeedSongs(songs);

    Import(by_path + by_name + "none\n", "C:\\Long.m3u");

    EXPECT_EQ(task.lblFoundNo.Caption(), std::to_string(2 * kSongs));
    EXPECT_EQ(task.lblDuplicatesNoRemoved.Caption(), "1");
    EXPECT_EQ(PlayListRows().size(), 2U * kSongs + 1);
    EXPECT_EQ(PlayListRows().back(), "Long: " + std::to_string(kSongs + 2));
}

}  // namespace
