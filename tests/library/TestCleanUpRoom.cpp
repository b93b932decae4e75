#include "library/CleanUpRoom.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "fakes/FakeFiles.h"
#include "library/LibraryPane.h"

namespace {

using library_tests::LibraryPane;
using library_tests::PlayListRow;
using library_tests::Rows;
using library_tests::RowsOf;
using ports::BoxAnswer;

class CleanUpRoomTest : public testing::Test, protected LibraryPane {
protected:
    CleanUpRoomTest() {
        Stores.Bind(datHistory, "tblHistory");
        Dialogs.Answers = {BoxAnswer::Yes};
        claims.Claim(task.lblStatus.Change, [this] {
            phases.emplace_back(task.lblStatus.Caption());
            if (on_phase) on_phase();
        });
    }

    /// A library of these paths, keys from 1 on.
    void SeedPaths(const Rows& paths) {
        std::vector<std::vector<std::string>> songs;
        for (const std::string& path : paths)
            songs.push_back({std::to_string(songs.size() + 1), "Artist", "Title", path, ""});
        SeedSongs(songs);
    }
    void OnDisk(const Rows& paths) {
        for (const std::string& path : paths)
            files.AddFile(path);
    }
    Rows KeysLeft() {
        Rows keys;
        for (const auto& row : Stores.Rows("tblSong"))
            keys.push_back(row[0]);
        return keys;
    }
    std::vector<std::string> DateRow() { return Stores.Rows("tblHistory")[4]; }
    void Run() { menu.mnuCleanUp.Click.Raise(); }
    Rows Counters() { return {task.lblFoundNo.Caption(), task.lblDuplicatesNoRemoved.Caption()}; }

    fakes::FakeFiles files;
    store::DataSource datHistory{"datHistory"};
    library::TaskControls task;
    library::CleanUpMenu menu;
    std::int32_t age = 0;
    Rows phases;  // what the status told, in order
    std::function<void()> on_phase;
    controls::EventClaims claims;
    library::TaskRoom task_room{task, Desktop, Neighbours};
    library::CleanUpRoom room{task, menu,      {Sources.datSong, datHistory}, age, task_room,
                              Undo, ListsRoom, {files, Dialogs, Desktop}};
};

TEST_F(CleanUpRoomTest, ItAsksFirstAndTellsTheAgeOfTheLastRun) {
    age = 8870;
    Dialogs.Answers = {BoxAnswer::No};

    Run();

    ASSERT_EQ(Dialogs.Boxes.size(), 1U);
    EXPECT_EQ(Dialogs.Boxes[0].text,
              "This may take a long time depending on how many media files are in your library, are you sure "
              "you want to continue?\r\nYour last duplicate clean up was: 8870 days ago.");
    EXPECT_EQ(Dialogs.Boxes[0].title, "Clean-up Duplicates");
    EXPECT_EQ(Dialogs.Boxes[0].buttons, ports::BoxButtons::YesNo);
    EXPECT_EQ(Dialogs.Boxes[0].icon, ports::BoxIcon::None);
}

TEST_F(CleanUpRoomTest, NoChangesNothingButThePanelsTexts) {
    SeedPaths({"C:\\gone.mp3"});
    Dialogs.Answers = {BoxAnswer::No};
    const auto date = DateRow();
    task.lblFoundNo.SetCaption("7");
    task.lstCleanup.AddItem("old");

    Run();

    EXPECT_FALSE(task.fraTask.Visible());
    EXPECT_EQ(KeysLeft(), Rows{"1"});
    EXPECT_EQ(DateRow(), date);
    EXPECT_EQ(task.lblTask.Caption(), "Cleanup in progress, please wait...");
    EXPECT_EQ(task.lblFound.Caption(), "Duplicates found:");
    EXPECT_EQ(task.lblDuplicatesRemoved.Caption(), "Duplicates removed:");
    EXPECT_EQ(Counters(), (Rows{"0", "0"}));
    EXPECT_EQ(RowsOf(task.lstCleanup), Rows{"old"});
    EXPECT_TRUE(phases.empty());
}

TEST_F(CleanUpRoomTest, ACleanLibraryChangesOnlyTheDateRow) {
    SeedPaths({"C:\\b.mp3", "C:\\a.mp3"});
    OnDisk({"C:\\a.mp3", "C:\\b.mp3"});
    const auto history = Stores.Rows("tblHistory");

    Run();

    auto expected = history;
    expected[4] = {"5", "Settings", "20260309"};
    EXPECT_EQ(Stores.Rows("tblHistory"), expected);
    EXPECT_EQ(KeysLeft(), (Rows{"1", "2"}));
    EXPECT_EQ(Counters(), (Rows{"0", "0"}));
    EXPECT_EQ(RowsOf(task.lstCleanup), (Rows{"C:\\a.mp3", "C:\\b.mp3"}));
    EXPECT_EQ(phases, (Rows{"Searching files", "Finding duplicates"}));
    EXPECT_FALSE(task.fraTask.Visible());
    EXPECT_TRUE(Neighbours.Calls.empty());
}

TEST_F(CleanUpRoomTest, SongsOfAPlaceThatDoesNotAnswerStayAndAreTold) {
    files.AddDrive('D', "Share");
    SeedPaths({"C:\\a.mp3", "D:\\b.mp3", "C:\\gone.mp3", "D:\\c.mp3"});
    OnDisk({"C:\\a.mp3", "D:\\b.mp3", "D:\\c.mp3"});
    files.Silence("D:\\");

    Run();

    EXPECT_EQ(KeysLeft(), (Rows{"1", "2", "4"}));
    EXPECT_EQ(Counters(), (Rows{"0", "1"}));
    ASSERT_EQ(Dialogs.Boxes.size(), 2U);
    EXPECT_EQ(Dialogs.Boxes[1].text,
              "2 songs stay: their place does not answer, so nobody knows whether the files are there.");
    EXPECT_EQ(Dialogs.Boxes[1].title, "Clean-up Duplicates");
    EXPECT_FALSE(task.fraTask.Visible());
}

TEST_F(CleanUpRoomTest, TheDateIsEightDigits) {
    Desktop.Date = {987, 6, 5};

    Run();

    EXPECT_EQ(DateRow(), (std::vector<std::string>{"5", "Settings", "09870605"}));
}

TEST_F(CleanUpRoomTest, TheAgeStaysTheOneTheSessionFoundAlsoForASecondRun) {
    age = 12;
    Dialogs.Answers = {BoxAnswer::Yes, BoxAnswer::No};
    Run();

    Run();

    ASSERT_EQ(Dialogs.Boxes.size(), 2U);
    EXPECT_EQ(Dialogs.Boxes[1].text, Dialogs.Boxes[0].text);
}

TEST_F(CleanUpRoomTest, SongsWhoseFileIsGoneLoseTheirRowAndAreCountedAsRemoved) {
    SeedPaths({"C:\\gone.mp3", "C:\\a.mp3", "C:\\gone too.mp3", "C:\\Folder"});
    OnDisk({"C:\\a.mp3"});
    files.AddFolder("C:\\Folder");

    Run();

    EXPECT_EQ(KeysLeft(), Rows{"2"});
    EXPECT_EQ(Counters(), (Rows{"0", "3"}));
}

TEST_F(CleanUpRoomTest, PlayListsKeepTheirRowsOfASongThatGoes) {
    SeedPaths({"C:\\gone.mp3"});
    SeedPlayLists({PlayListRow("1", "Road"), PlayListRow("2", "Road", "1", "Artist", "Title")});

    Run();

    EXPECT_TRUE(KeysLeft().empty());
    EXPECT_EQ(Stores.Rows("tblPlayList").size(), 2U);
}

TEST_F(CleanUpRoomTest, ARowWithoutAPathStays) {
    SeedPaths({"", "C:\\a.mp3"});
    OnDisk({"C:\\a.mp3"});

    Run();

    EXPECT_EQ(KeysLeft(), (Rows{"1", "2"}));
    EXPECT_EQ(RowsOf(task.lstCleanup), Rows{"C:\\a.mp3"});
}

TEST_F(CleanUpRoomTest, WithoutAnyFileItEndsAfterTheSearchAndReloadsNothing) {
    SeedPaths({"C:\\gone.mp3"});
    ListsRoom.Command1();
    Neighbours.Calls.clear();

    Run();

    EXPECT_EQ(phases, Rows{"Searching files"});
    EXPECT_FALSE(task.fraTask.Visible());
    EXPECT_TRUE(Neighbours.Calls.empty());
    EXPECT_EQ(Lists.lstTracks.ListCount(), 1);
}

TEST_F(CleanUpRoomTest, AnEmptyLibraryEndsAtOnceWithTheDateStored) {
    Run();

    EXPECT_FALSE(task.fraTask.Visible());
    EXPECT_EQ(DateRow()[2], "20260309");
}

TEST_F(CleanUpRoomTest, PathsStoredTwiceAreToldAndKept) {
    SeedPaths({"C:\\b.mp3", "C:\\a.mp3", "C:\\b.mp3", "C:\\c.mp3", "C:\\b.mp3"});
    OnDisk({"C:\\a.mp3", "C:\\b.mp3", "C:\\c.mp3"});

    Run();

    EXPECT_EQ(KeysLeft(), (Rows{"1", "2", "3", "4", "5"}));
    EXPECT_EQ(RowsOf(task.lstcleanupremove), (Rows{"C:\\b.mp3", "C:\\b.mp3"}));
    EXPECT_EQ(Counters(), (Rows{"2", "0"}));
    EXPECT_EQ(task.lstcleanupremove.ListIndex(), 0);
}

TEST_F(CleanUpRoomTest, WithDuplicatesTheLibraryIsReloadedAndThePanelGoes) {
    SeedPaths({"C:\\a.mp3", "C:\\gone.mp3", "C:\\a.mp3"});
    OnDisk({"C:\\a.mp3"});
    ListsRoom.Command1();
    Neighbours.Calls.clear();

    Run();

    EXPECT_EQ(phases, (Rows{"Searching files", "Finding duplicates", "Removing duplicates"}));
    EXPECT_EQ(Neighbours.Calls.front(), "stage Media Library");
    EXPECT_EQ(RowsOf(Lists.lstMaybe), (Rows{"1", "3"}));
    EXPECT_EQ(Sources.datSong.Recordset().RecordCount(), 2U);
    EXPECT_FALSE(task.fraTask.Visible());
}

TEST_F(CleanUpRoomTest, TheRefreshIsToldOnlyWhenNothingIsLeftToRemove) {
    SeedPaths({"C:\\a.mp3", "C:\\a.mp3"});
    OnDisk({"C:\\a.mp3"});
    on_phase = [this] {
        if (phases.back() == "Removing duplicates") task.lstcleanupremove.Clear();
    };

    Run();

    EXPECT_EQ(phases,
              (Rows{"Searching files", "Finding duplicates", "Removing duplicates", "Refreshing Library"}));
    EXPECT_EQ(Neighbours.Calls.front(), "stage Media Library");
    EXPECT_FALSE(task.fraTask.Visible());
}

TEST_F(CleanUpRoomTest, PathsThatDifferInCaseAloneAreNoDuplicates) {
    SeedPaths({"C:\\a.mp3", "C:\\A.mp3", "C:\\a.mp3", "C:\\A.mp3"});
    OnDisk({"C:\\a.mp3", "C:\\A.mp3"});

    Run();

    EXPECT_EQ(RowsOf(task.lstcleanupremove), (Rows{"C:\\A.mp3", "C:\\a.mp3"}));
    EXPECT_EQ(task.lblFoundNo.Caption(), "2");
}

TEST_F(CleanUpRoomTest, ASecondRunBeginsWithEmptyListsAndCounters) {
    SeedPaths({"C:\\a.mp3", "C:\\a.mp3", "C:\\gone.mp3"});
    OnDisk({"C:\\a.mp3"});
    Dialogs.Answers = {BoxAnswer::Yes, BoxAnswer::Yes};
    Run();

    Run();

    EXPECT_EQ(Counters(), (Rows{"1", "0"}));
    EXPECT_EQ(RowsOf(task.lstCleanup), (Rows{"C:\\a.mp3", "C:\\a.mp3"}));
    EXPECT_EQ(RowsOf(task.lstcleanupremove), Rows{"C:\\a.mp3"});
}

TEST_F(CleanUpRoomTest, ItYieldsAtEachSongAndAtEachComparison) {
    SeedPaths({"C:\\a.mp3", "C:\\b.mp3", "C:\\gone.mp3", "C:\\c.mp3"});
    OnDisk({"C:\\a.mp3", "C:\\b.mp3", "C:\\c.mp3"});
    const int before = Desktop.Yields;

    Run();

    EXPECT_EQ(Desktop.Yields - before, 4 + 2);
}

TEST_F(CleanUpRoomTest, ThePanelStandsInFrontAndItsBarMovesWhileItRuns) {
    SeedPaths({"C:\\a.mp3", "C:\\b.mp3", "C:\\c.mp3", "C:\\d.mp3"});
    OnDisk({"C:\\a.mp3", "C:\\b.mp3", "C:\\c.mp3", "C:\\d.mp3"});
    std::vector<int> bar;
    bool shown = true;
    const std::function<void()> look = [&] {
        bar.push_back(task.pbTask.Value());
        shown = shown && task.fraTask.Visible();
        Desktop.Post(look);
    };
    Desktop.Post(look);

    Run();

    EXPECT_EQ(bar, (std::vector<int>{25, 50, 75, 100, 25, 50, 75}));
    EXPECT_TRUE(shown);
}

TEST_F(CleanUpRoomTest, TheEndOfTheProgramStopsTheSearchWithWhatWasRemovedSoFar) {
    SeedPaths({"C:\\gone.mp3", "C:\\gone too.mp3", "C:\\a.mp3", "C:\\a.mp3"});
    OnDisk({"C:\\a.mp3"});
    Desktop.Post([this] { Desktop.Ending = true; });

    Run();

    EXPECT_EQ(KeysLeft(), (Rows{"2", "3", "4"}));
    EXPECT_EQ(phases, Rows{"Searching files"});
    EXPECT_TRUE(Neighbours.Calls.empty());
    EXPECT_EQ(DateRow()[2], "20260309");
}

TEST_F(CleanUpRoomTest, TheEndOfTheProgramStopsTheComparison) {
    SeedPaths({"C:\\a.mp3", "C:\\a.mp3", "C:\\a.mp3"});
    OnDisk({"C:\\a.mp3"});
    on_phase = [this] { Desktop.Ending = phases.back() == "Finding duplicates"; };

    Run();

    EXPECT_EQ(task.lblFoundNo.Caption(), "1");
    EXPECT_TRUE(Neighbours.Calls.empty());
}

TEST_F(CleanUpRoomTest, TheCommandIsNotRunTwiceAtATime) {
    SeedPaths({"C:\\a.mp3", "C:\\b.mp3"});
    OnDisk({"C:\\a.mp3", "C:\\b.mp3"});
    Dialogs.Answers = {BoxAnswer::Yes, BoxAnswer::Yes};
    Desktop.Post([this] { Run(); });

    Run();

    EXPECT_EQ(Dialogs.Boxes.size(), 1U);
    EXPECT_EQ(task.lstCleanup.ListCount(), 2);
}

TEST_F(CleanUpRoomTest, WhatHappensDuringAYieldDoesNotDisturbTheWalk) {
    SeedPaths({"C:\\a.mp3", "C:\\gone.mp3", "C:\\b.mp3"});
    OnDisk({"C:\\a.mp3", "C:\\b.mp3", "C:\\c.mp3"});
    Desktop.Post([this] {
        ListsRoom.Command1();
        Sources.datSong.Open(store::kAllSongs);
        store::RecordSet& rows = Sources.datSong.Recordset();
        rows.MoveLast();
        rows.Delete();
        rows.AddNew();
        rows.Set(store::tblSong::SongID, "9");
        rows.Set(store::tblSong::FilePath, "C:\\c.mp3");
        rows.Update();
    });

    Run();

    EXPECT_EQ(KeysLeft(), (Rows{"1", "9"}));
    EXPECT_EQ(RowsOf(task.lstCleanup), (Rows{"C:\\a.mp3", "C:\\c.mp3"}));
}

TEST_F(CleanUpRoomTest, AHistoryThatCannotBeReadEndsItWithThePanelAsItWasLeft) {
    SeedPaths({"C:\\gone.mp3"});
    Stores.Database.FailOpen(fakes::SeededStores::kHistoryPath, ports::DatabaseError::Damaged);

    Run();

    EXPECT_TRUE(task.fraTask.Visible());
    EXPECT_EQ(KeysLeft(), Rows{"1"});
    EXPECT_TRUE(phases.empty());
    EXPECT_EQ(Stores.Trouble.Troubles.size(), 1U);
}

TEST_F(CleanUpRoomTest, ALibraryThatCannotBeReadEndsItWithThePanelAsItWasLeft) {
    SeedPaths({"C:\\gone.mp3"});
    Stores.Database.FailOpen(fakes::SeededStores::kMediaPath, ports::DatabaseError::Locked);

    Run();

    EXPECT_TRUE(task.fraTask.Visible());
    EXPECT_EQ(DateRow()[2], "20260309");
    EXPECT_EQ(Stores.Trouble.Troubles.size(), 1U);
}

TEST_F(CleanUpRoomTest, AFullDiskIsToldOnceAndTheRowsGoWhenThereIsRoomAgain) {
    SeedPaths({"C:\\gone.mp3", "C:\\gone too.mp3", "C:\\a.mp3"});
    OnDisk({"C:\\a.mp3"});
    Stores.Database.FailApply(fakes::SeededStores::kMediaPath, ports::DatabaseError::DiskFull);

    Run();

    EXPECT_FALSE(task.fraTask.Visible());
    EXPECT_EQ(Stores.Trouble.Troubles.size(), 1U);
    EXPECT_EQ(Stores.Database.Rows(fakes::SeededStores::kMediaPath, "tblSong").size(), 3U);
    Stores.Database.FailApply(fakes::SeededStores::kMediaPath, ports::DatabaseError::None);
    EXPECT_EQ(KeysLeft(), Rows{"3"});
}

}  // namespace
