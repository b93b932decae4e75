#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <optional>
#include <random>

#include "fakes/FakeFiles.h"
#include "library/CleanUpRoom.h"
#include "library/LibraryPane.h"
#include "library/UndoRoom.h"

namespace {

using library_tests::LibraryPane;
using library_tests::PlayListRow;
using library_tests::Rows;
using library_tests::RowsOf;
using library_tests::Song;
using Table = std::vector<std::vector<std::string>>;
using ports::BoxAnswer;

/// One run of the library with its undo.
struct OneRun : LibraryPane {
    OneRun() {
        Stores.Bind(datHistory, "tblHistory");
        OnUndoKeyRuns();
    }
    void OnUndoKeyRuns() {
        Neighbours.OnUndo = [this] { Undoing.Undo(); };
    }
    void PressUndo(controls::Control& list) {
        list.KeyDown.Raise('Z', controls::kControlMask);
        Desktop.EndHandler();
    }
    void PressUndo() { PressUndo(Lists.lstTracks); }
    void Remove(std::string_view playlist, int track) {
        Dialogs.Answers = {BoxAnswer::Yes};
        Lists.lstPlayLists.SelectText(playlist);
        Lists.lstTracks.SetListIndex(track);
        PlayListsRoom.RemoveSelectedSong();
        Desktop.EndHandler();
    }
    void DeletePlayList(std::string_view name) {
        Dialogs.Answers = {BoxAnswer::Yes};
        PlayLists.lstAddToPlaylist.SelectText(name);
        PlayLists.imgDeletePlayListOver.Click.Raise();
        Desktop.EndHandler();
    }
    void CleanUp() {
        Dialogs.Answers = {BoxAnswer::Yes};
        clean_up_menu.mnuCleanUp.Click.Raise();
        Desktop.EndHandler();
    }
    Table Songs() { return Stores.Rows("tblSong"); }
    Table ListRows() { return Stores.Rows("tblPlayList"); }

    fakes::FakeFiles files;
    store::DataSource datHistory{"datHistory"};
    library::TaskControls task;
    library::CleanUpMenu clean_up_menu;
    std::int32_t age = 0;
    library::TaskRoom Task{task, Desktop, Neighbours};
    library::CleanUpRoom Cleaning{task, clean_up_menu, {Sources.datSong, datHistory}, age, Task,
                                  Undo, ListsRoom,     {files, Dialogs, Desktop}};
    library::UndoRoom Undoing{PlayLists, Sources, Undo, Task, ListsRoom, Stores.Stores};
};

/// The next run of the program over the same files.
std::unique_ptr<OneRun> NextRun(OneRun& before) {
    before.Stores.Stores.CommitAll();
    auto next = std::make_unique<OneRun>();
    next->Stores.Database = before.Stores.Database;
    next->Kept = before.Kept;
    next->ListsRoom.Command1();
    return next;
}

const Table kSongs = {Song("1", "Lark", "Brindle", "4"), Song("2", "Ac-dc", "Night%jar\nx"),
                      Song("3", "Lark", "Largo"), Song("4", "Owl", "Fly")};
const Table kLists = {PlayListRow("1", "Road"),
                      PlayListRow("2", "Road", "3", "Lark", "Largo"),
                      PlayListRow("3", "Sunday"),
                      PlayListRow("4", "Sunday", "3", "Lark", "Largo"),
                      PlayListRow("5", "Road", "3", "Lark", "Largo"),
                      PlayListRow("6", "Road", "2", "Ac-dc", "Nightjar")};

class UndoTest : public testing::Test {
protected:
    UndoTest() { Begin(kSongs, kLists, {}); }

    void Begin(const Table& songs, const Table& lists, fakes::FakeKeptTexts kept) {
        run = std::make_unique<OneRun>();
        run->Kept = std::move(kept);
        run->SeedSongs(songs);
        run->SeedPlayLists(lists);
        run->ListsRoom.Command1();
    }
    void Restart() { run = NextRun(*run); }

    std::unique_ptr<OneRun> run;
};

TEST_F(UndoTest, ATrackComesBackIntoItsPlayListAsOftenAsItWasThere) {
    run->Lists.lstPlayLists.SelectText("Road");
    run->Remove("Road", 0);
    EXPECT_EQ(run->ListRows().size(), 4U);

    run->PressUndo();

    EXPECT_EQ(run->ListRows(), kLists);
    EXPECT_EQ(run->Lists.lblTrackCount.Caption(), "2 put back");
    EXPECT_EQ(run->Dialogs.Boxes.size(), 1U);
}

TEST_F(UndoTest, ASongComesBackWholeAndWhereItWas) {
    run->Remove("  [All Media]", 1);
    EXPECT_EQ(run->Songs().size(), 3U);

    run->PressUndo(run->Lists.lstPlayLists);

    EXPECT_EQ(run->Songs(), kSongs);
    EXPECT_EQ(RowsOf(run->Lists.lstMaybe), (Rows{"1", "2", "3", "4"}));
}

TEST_F(UndoTest, ADeletedPlayListComesBackWithItsHead) {
    run->DeletePlayList("Road");
    EXPECT_EQ(run->ListRows().size(), 2U);

    run->PressUndo(run->Lists.lstArtists);

    EXPECT_EQ(run->ListRows(), kLists);
    EXPECT_EQ(RowsOf(run->PlayLists.lstAddToPlaylist), (Rows{"Road", "Sunday"}));
}

TEST_F(UndoTest, WhatACleanUpRemovedComesBackInOneStep) {
    run->files.AddFile(kSongs[2][3]);
    run->CleanUp();
    EXPECT_EQ(run->Songs(), Table{kSongs[2]});

    run->PressUndo();

    EXPECT_EQ(run->Songs(), kSongs);
    EXPECT_EQ(run->Lists.lblTrackCount.Caption(), "3 put back");
}

TEST_F(UndoTest, ARemovalDuringACleanUpLeavesThatOneStep) {
    run->files.AddFile(kSongs[2][3]);
    run->Desktop.Post([this] { run->DeletePlayList("Sunday"); });
    run->CleanUp();
    ASSERT_EQ(run->ListRows().size(), 4U);
    EXPECT_EQ(run->Songs(), Table{kSongs[2]});

    run->PressUndo();
    EXPECT_EQ(run->ListRows(), kLists);
    EXPECT_EQ(run->Songs(), Table{kSongs[2]}) << "what the clean-up dropped is a step of its own";
    run->PressUndo();

    EXPECT_EQ(run->Songs(), kSongs);
    EXPECT_EQ(run->Lists.lblTrackCount.Caption(), "3 put back");
}

TEST_F(UndoTest, OtherKeysAreNoUndo) {
    run->Remove("  [All Media]", 1);
    run->Lists.lstTracks.KeyDown.Raise('Z', 0);
    run->Lists.lstTracks.KeyDown.Raise('Z', controls::kControlMask | controls::kShiftMask);
    run->Lists.lstTracks.KeyDown.Raise('Y', controls::kControlMask);
    run->Lists.lstPlayLists.KeyDown.Raise(controls::kKeyDelete, 0);

    EXPECT_EQ(run->Songs().size(), 3U);
    EXPECT_EQ(run->Neighbours.RemoveKeys, 0);
}

TEST_F(UndoTest, WithNothingRemovedNothingHappens) {
    run->PressUndo();
    EXPECT_EQ(run->Songs(), kSongs);
    EXPECT_EQ(run->Lists.lblTrackCount.Caption(), "4 tracks");
}

TEST_F(UndoTest, ARemovalThatWasDeclinedIsNoStep) {
    run->Remove("  [All Media]", 1);
    run->Dialogs.Answers = {BoxAnswer::No};
    run->Lists.lstTracks.SetListIndex(0);
    run->PlayListsRoom.RemoveSelectedSong();

    run->PressUndo();

    EXPECT_EQ(run->Songs(), kSongs);
}

TEST_F(UndoTest, StepsAreUndoneOverARestart) {
    run->Remove("  [All Media]", 3);
    run->Remove("  [All Media]", 0);
    run->DeletePlayList("Sunday");
    Restart();
    run->PressUndo();
    EXPECT_EQ(run->ListRows(), kLists);
    Restart();

    run->PressUndo();
    run->PressUndo();

    EXPECT_EQ(run->Songs(), kSongs);
    EXPECT_TRUE(run->Kept.Texts.empty());
}

TEST_F(UndoTest, AKillBeforeTheRowWasRemovedOrAfterItCameBackBringsItOnce) {
    run->Remove("Road", 0);
    const fakes::FakeKeptTexts written = run->Kept;
    Begin(kSongs, kLists, written);

    run->PressUndo();

    EXPECT_EQ(run->ListRows(), kLists);
    EXPECT_EQ(run->Lists.lblTrackCount.Caption(), "0 put back");
}

TEST_F(UndoTest, AStepThatAKillCutShortBringsWhatItHas) {
    run->files.AddFile(kSongs[2][3]);
    run->CleanUp();
    const std::string whole = run->Kept.Texts.begin()->second;
    constexpr std::array kGone{0, 1, 3};
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        fakes::FakeKeptTexts cut = run->Kept;
        cut.Texts.begin()->second.resize(length);
        const auto step = library::UndoLog(cut).LastStep();
        if (!step) continue;
        EXPECT_LE(step->songs.size(), 3U);
        for (std::size_t i = 0; i < step->songs.size(); ++i)
            EXPECT_EQ(step->songs[i].values, kSongs[kGone[i]]) << length;
    }
}

TEST_F(UndoTest, ADamagedStepIsSetAsideAndTheOneBeforeUndone) {
    run->Remove("  [All Media]", 0);
    run->Kept.Texts["undo-000000000009"] = "nonsense";

    run->PressUndo();

    EXPECT_EQ(run->Songs(), kSongs);
    EXPECT_EQ(run->Kept.Aside.size(), 1U);
}

TEST_F(UndoTest, ASongThatWasAddedAgainMeanwhileComesBackNoSecondTime) {
    run->Remove("  [All Media]", 1);
    Table songs = run->Songs();
    songs.push_back(kSongs[1]);
    songs.back()[0] = "5";
    Begin(songs, kLists, run->Kept);

    run->PressUndo();

    EXPECT_EQ(run->Songs(), songs);
}

TEST_F(UndoTest, OneOfTwoRowsOfAFileComesBackBesideTheOther) {
    Table songs = kSongs;
    songs.push_back(kSongs[1]);
    songs.back()[0] = "5";
    Begin(songs, kLists, {});
    run->Remove("  [All Media]", 1);
    EXPECT_EQ(run->Songs().size(), 4U);

    run->PressUndo();
    EXPECT_EQ(run->Songs(), songs);
    Restart();
    run->PressUndo();
    EXPECT_EQ(run->Songs(), songs);
}

TEST_F(UndoTest, ATakenKeyStaysWithItsRow) {
    run->Remove("  [All Media]", 3);
    Table songs = run->Songs();
    songs.push_back(Song("4", "New", "Song"));
    Begin(songs, kLists, run->Kept);

    run->PressUndo();

    Table expected = songs;
    expected.push_back(kSongs[3]);
    expected.back()[0] = "5";
    EXPECT_EQ(run->Songs(), expected);
}

TEST_F(UndoTest, OnlyTwentyStepsAreKept) {
    Table songs;
    for (int i = 1; i <= 30; ++i)
        songs.push_back(Song(std::to_string(i), "Artist", "Title " + std::to_string(i)));
    Begin(songs, {}, {});
    for (int i = 0; i < 25; ++i)
        run->Remove("  [All Media]", 0);
    EXPECT_EQ(run->Kept.Texts.size(), 20U);

    for (int i = 0; i < 30; ++i)
        run->PressUndo();

    EXPECT_EQ(run->Songs(), Table(songs.begin() + 5, songs.end()));
}

TEST_F(UndoTest, WhileATaskRunsNothingIsPutBack) {
    run->Remove("  [All Media]", 0);
    run->Task.Run([this] { run->PressUndo(); });
    EXPECT_EQ(run->Songs().size(), 3U);

    run->PressUndo();
    EXPECT_EQ(run->Songs(), kSongs);
}

TEST_F(UndoTest, ASearchFindsWhatCameBack) {
    run->Search.txtSearch.SetText("nightjar");
    run->Desktop.Advance(3000);
    run->Lists.lstTracks.SetListIndex(0);
    run->Search.txtSearch.SetText("");
    run->Desktop.Advance(3000);
    run->ListsRoom.Command1();
    run->Remove("  [All Media]", 3);
    run->Search.txtSearch.SetText("owl");
    run->Desktop.Advance(3000);
    EXPECT_EQ(RowsOf(run->Lists.lstTracks), Rows{});

    run->PressUndo();
    run->Search.txtSearch.SetText("");
    run->Search.txtSearch.SetText("owl");
    run->Desktop.Advance(3000);

    EXPECT_EQ(RowsOf(run->Lists.lstTracks), Rows{"Owl - Fly"});
}

/// Twenty removals of any kind, with restarts between, undone one by one: after each undo the tables are as
/// they were before the removal.
TEST(UndoProperty, EveryStepIsUndoneExactlyAndOnce) {
    for (unsigned seed = 1; seed <= 40; ++seed) {
        std::mt19937 random(seed);
        const auto below = [&random](std::size_t end) { return static_cast<int>(random() % end); };
        Table songs;
        Table lists;
        for (int i = 1; i <= 40; ++i)
            songs.push_back(Song(std::to_string(i), "A" + std::to_string(i % 5), "T" + std::to_string(i)));
        for (int i = 1; i <= 60; ++i) {
            const std::string id = i % 10 == 0 ? "" : std::to_string(1 + below(40));
            lists.push_back(PlayListRow(std::to_string(i), "L" + std::to_string(i % 4), id, "A", "T" + id));
        }
        auto run = std::make_unique<OneRun>();
        run->SeedSongs(songs);
        run->SeedPlayLists(lists);
        run->ListsRoom.Command1();
        std::vector<std::pair<Table, Table>> before;
        for (int step = 0; step < 20; ++step) {
            const std::size_t kept = run->Kept.Texts.size();
            const Table songs_now = run->Songs();
            const Table lists_now = run->ListRows();
            const int kind = below(10);
            if (kind == 0) {
                for (const auto& song : run->Songs())
                    if (below(4) > 0) run->files.AddFile(song[3]);
                run->CleanUp();
            } else if (kind == 1) {
                run->DeletePlayList("L" + std::to_string(below(4)));
            } else if (kind < 6) {
                run->Remove("  [All Media]",
                            below(static_cast<std::size_t>(run->Lists.lstTracks.ListCount()) + 1));
            } else {
                run->Lists.lstPlayLists.SelectText("L" + std::to_string(below(4)));
                run->Remove(run->ListsRoom.SelectedPlayList(), 0);
            }
            if (run->Kept.Texts.size() > kept) before.emplace_back(songs_now, lists_now);
            if (below(3) == 0) run = NextRun(*run);
        }
        ASSERT_FALSE(before.empty());
        for (; !before.empty(); before.pop_back()) {
            run->PressUndo();
            ASSERT_EQ(run->Songs(), before.back().first) << seed << " with " << before.size();
            ASSERT_EQ(run->ListRows(), before.back().second) << seed << " with " << before.size();
            if (below(3) == 0) run = NextRun(*run);
        }
        run->PressUndo();
        EXPECT_EQ(run->Songs(), songs);
    }
}

}  // namespace
