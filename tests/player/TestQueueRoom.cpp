#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "player/PlayerHouse.h"

namespace {

using player_tests::PlayerHouse;

TEST(QueueRoom, CuesTheSelectedTrack) {
    PlayerHouse house;
    house.AddTrack("one", "1");
    house.AddTrack("two", "C:\\m\\two.mp3");
    house.lstTracks.SetListIndex(1);

    house.controls.queue.imgCueSongOver.Click.Raise();

    EXPECT_EQ(house.controls.queue.lstCuedSongs.List(0), "two");
    EXPECT_EQ(house.controls.queue.lstCuedSongsPath.List(0), "C:\\m\\two.mp3");
    EXPECT_EQ(house.lstMaybe.ListIndex(), 1);
    EXPECT_TRUE(house.state.CueHeadIsId);
    EXPECT_EQ(house.address.Focused, 1);
}

TEST(QueueRoom, CuesNothingWithoutASelectedTrack) {
    PlayerHouse house;
    house.AddTrack("one", "1");

    house.menu.mnuCueSong.Click.Raise();

    EXPECT_EQ(house.controls.queue.lstCuedSongs.ListCount(), 0);
    EXPECT_FALSE(house.state.CueHeadIsId);
}

TEST(QueueRoom, UncuesTheSelectedRow) {
    PlayerHouse house;
    house.Cue("one", "1");
    house.Cue("two", "2");
    house.controls.queue.lstCuedSongs.SetListIndex(1);

    house.controls.queue.imgUnCueOver.Click.Raise();

    EXPECT_EQ(house.controls.queue.lstCuedSongs.List(0), "one");
    EXPECT_EQ(house.controls.queue.lstCuedSongsPath.ListCount(), 1);
    EXPECT_TRUE(house.state.CueHeadIsId);
    EXPECT_FALSE(house.state.CueHeadIsPath);
}

TEST(QueueRoom, UncuesTheHeadWithoutASelectedRow) {
    PlayerHouse house;
    house.Cue("one", "1");
    house.Cue("two", "C:\\m\\two.mp3");
    house.state.CueHeadIsId = true;

    house.menu.mnuRemoveCueList.Click.Raise();

    EXPECT_EQ(house.controls.queue.lstCuedSongs.List(0), "two");
    EXPECT_TRUE(house.state.CueHeadIsPath);
    EXPECT_TRUE(house.state.CueHeadIsId) << "left as it was";
}

TEST(QueueRoom, UncueingTheLastRowClearsBothFlags) {
    PlayerHouse house;
    house.Cue("one", "1");
    house.state.CueHeadIsId = true;
    house.state.CueHeadIsPath = true;

    house.menu.mnuRemoveCueList.Click.Raise();

    EXPECT_FALSE(house.state.CueHeadIsId);
    EXPECT_FALSE(house.state.CueHeadIsPath);
}

TEST(QueueRoom, UncueTakesASevenCharacterHeadForAPath) {
    PlayerHouse house;
    house.Cue("one", "1");
    house.Cue("seven", "1234567");

    house.menu.mnuRemoveCueList.Click.Raise();

    EXPECT_TRUE(house.state.CueHeadIsPath);
}

TEST(QueueRoom, DoubleClickPlaysASmallNumberFromTheTable) {
    PlayerHouse house;
    const auto song = house.AddSong("seven.mp3", 30000, 7);
    house.Cue("other", "3");
    house.Cue("seven", "7");
    house.controls.queue.lstCuedSongs.SetListIndex(1);

    house.controls.queue.lstCuedSongs.DblClick.Raise();

    EXPECT_EQ(house.PlayingOn("a"), song);
    EXPECT_EQ(house.controls.queue.lstCuedSongs.ListCount(), 1);
    EXPECT_EQ(house.controls.queue.lstCuedSongsPath.List(0), "3");
    EXPECT_TRUE(house.state.CueHeadIsId);
}

TEST(QueueRoom, DoubleClickTakesANumberFromEightOnForAFileName) {
    PlayerHouse house;
    house.AddSong("eight.mp3", 30000, 8);
    house.Cue("eight", "8");
    house.controls.queue.lstCuedSongs.SetListIndex(0);

    house.controls.queue.lstCuedSongs.DblClick.Raise();

    EXPECT_TRUE(house.controls.transport.lblNoFile.Visible());
    EXPECT_FALSE(house.IsOpen("a"));
    EXPECT_FALSE(house.state.CueHeadIsId);
}

TEST(QueueRoom, DoubleClickOnANumberFromEightOnPlaysItWhenItIsTheHead) {
    PlayerHouse house;
    const auto song = house.AddSong("twelve.mp3", 30000, 12);
    house.AddTrack("twelve", "12");
    house.AddTrack("other", house.AddSong("other.mp3"));
    house.DoubleClickTrack(1);
    house.lstTracks.SetListIndex(0);
    house.menu.mnuCueSong.Click.Raise();
    house.controls.queue.lstCuedSongs.SetListIndex(0);

    house.controls.queue.lstCuedSongs.DblClick.Raise();

    EXPECT_EQ(house.NowPlaying(), song) << "no file has that name, so the head of the list is next";
    EXPECT_EQ(house.controls.queue.lstCuedSongs.ListCount(), 0);
    EXPECT_EQ(house.controls.queue.lstCuedSongsPath.ListCount(), 0);
    EXPECT_FALSE(house.state.CueHeadIsId);
}

TEST(QueueRoom, DoubleClickOnALaterNumberFromEightOnPlaysTheHeadAndBothGo) {
    PlayerHouse house;
    const auto head = house.AddSong("head.mp3", 30000, 3);
    house.AddSong("twelve.mp3", 30000, 12);
    house.AddTrack("playing", house.AddSong("playing.mp3"));
    house.AddTrack("another", house.AddSong("another.mp3"));
    house.DoubleClickTrack(0);
    house.Cue("head", "3");
    house.Cue("between", "4");
    house.Cue("twelve", "12");
    house.state.CueHeadIsId = true;
    house.controls.queue.lstCuedSongs.SetListIndex(2);

    house.controls.queue.lstCuedSongs.DblClick.Raise();

    EXPECT_EQ(house.NowPlaying(), head);
    ASSERT_EQ(house.controls.queue.lstCuedSongs.ListCount(), 1);
    EXPECT_EQ(house.controls.queue.lstCuedSongs.List(0), "between");
    EXPECT_EQ(house.controls.queue.lstCuedSongsPath.List(0), "4");
    EXPECT_TRUE(house.state.CueHeadIsId);
}

TEST(QueueRoom, TheDoubleClickedRowStaysUntilItsSongWasStarted) {
    PlayerHouse house;
    house.AddSong("seven.mp3", 30000, 7);
    house.Cue("seven", "7");
    house.controls.queue.lstCuedSongs.SetListIndex(0);
    int rows_meanwhile = 0;
    house.desktop.Post([&] { rows_meanwhile = house.controls.queue.lstCuedSongs.ListCount(); });

    house.controls.queue.lstCuedSongs.DblClick.Raise();

    EXPECT_EQ(rows_meanwhile, 1);
    EXPECT_EQ(house.controls.queue.lstCuedSongs.ListCount(), 0);
}

TEST(QueueRoom, DoubleClickTakesTheValueAndNotTheLength) {
    struct Case {
        const char* entry;
        bool by_number;
    };
    for (const Case& one : {Case{"0000007", true}, Case{"-3", true}, Case{"7.4", true}, Case{"8", false},
                            Case{"0000008", false}, Case{"1234567", false}}) {
        PlayerHouse house;
        house.Cue("row", one.entry);
        house.controls.queue.lstCuedSongs.SetListIndex(0);

        house.controls.queue.lstCuedSongs.DblClick.Raise();

        // No song has these numbers: by its number nothing is played, as a file it is missing.
        EXPECT_EQ(house.controls.transport.lblNoFile.Visible(), !one.by_number) << one.entry;
        EXPECT_EQ(house.controls.queue.lstCuedSongs.ListCount(), 0) << one.entry;
    }
}

TEST(QueueRoom, DoubleClickOnNoRowChangesNothing) {
    PlayerHouse house;
    house.Cue("seven", "7");

    house.controls.queue.lstCuedSongs.DblClick.Raise();

    EXPECT_EQ(house.controls.queue.lstCuedSongs.ListCount(), 1);
}

TEST(QueueRoom, UncueOnAnEmptyListOnlyGivesTheFocusBack) {
    PlayerHouse house;

    house.menu.mnuRemoveCueList.Click.Raise();

    EXPECT_EQ(house.address.Focused, 1);
    EXPECT_FALSE(house.state.CueHeadIsId);
}

TEST(QueueRoom, UncueLooksAtTheNewHeadsLength) {
    struct Case {
        const char* head;
        bool id_before;
        bool path;
        bool id;
    };
    for (const Case& one : {Case{"123456", false, false, true}, Case{"1234567", false, true, false},
                            Case{"1234567", true, true, true}, Case{"C:\\m\\a.mp3", false, true, false}}) {
        PlayerHouse house;
        house.Cue("goes", "1");
        house.Cue("head", one.head);
        house.state.CueHeadIsId = one.id_before;

        house.controls.queue.imgUnCueOver.Click.Raise();

        EXPECT_EQ(house.state.CueHeadIsPath, one.path) << one.head;
        EXPECT_EQ(house.state.CueHeadIsId, one.id) << one.head;
    }
}

TEST(QueueRoom, TheFirstCuedNumberIsNoPathWhateverWentBefore) {
    PlayerHouse house;
    house.AddTrack("one", "1");
    house.lstTracks.SetListIndex(0);
    house.state.CueHeadIsPath = true;

    house.menu.mnuCueSong.Click.Raise();

    EXPECT_FALSE(house.state.CueHeadIsPath);
    EXPECT_TRUE(house.state.CueHeadIsId);
}

TEST(QueueRoom, ACuedNumberBehindAPathLeavesThePathFirst) {
    PlayerHouse house;
    house.Cue("path", house.AddSong("path.mp3"));
    house.state.CueHeadIsPath = true;
    house.AddTrack("one", "1");
    house.lstTracks.SetListIndex(0);

    house.menu.mnuCueSong.Click.Raise();

    EXPECT_TRUE(house.state.CueHeadIsPath);
    EXPECT_TRUE(house.state.CueHeadIsId);
}

TEST(QueueRoom, DoubleClickOnAPathChangesNothing) {
    PlayerHouse house;
    house.Cue("path", house.AddSong("path.mp3"));
    house.controls.queue.lstCuedSongs.SetListIndex(0);

    house.controls.queue.lstCuedSongs.DblClick.Raise();

    EXPECT_EQ(house.controls.queue.lstCuedSongs.ListCount(), 1);
    EXPECT_FALSE(house.IsOpen("a"));
    EXPECT_EQ(house.controls.queue.lstCuedSongsPath.ListIndex(), 0);
}

TEST(QueueRoom, TheMouseShowsAndHidesTheHighlights) {
    PlayerHouse house;

    PlayerHouse::MoveTo(house.controls.queue.imgCueSong, 0);
    PlayerHouse::MoveTo(house.controls.queue.imgUnCue, 0);
    PlayerHouse::MoveTo(house.controls.queue.lstCuedSongs, 0);

    EXPECT_TRUE(house.controls.queue.imgCueSongOver.Visible());
    EXPECT_TRUE(house.controls.queue.imgUnCueOver.Visible());
    EXPECT_EQ(house.window.TakeCalls(), std::vector<std::string>{"no mouse overs"});
}

/// Files dropped on the cue list.
void DropOnCues(PlayerHouse& house, std::vector<std::string> files) {
    controls::DropData data;
    data.Files = std::move(files);
    house.controls.queue.lstCuedSongs.OLEDragDrop.Raise(data, 0, 0);
}

TEST(QueueRoom, EachAcceptedExtensionIsCuedWhenItIsDropped) {
    for (const std::string extension :
         {"mpg", "mpeg", "mp3", "mid", "wav", "wma", "wmv", "avi", "midi", "peg", "MP3", "Midi", "jpeg"}) {
        PlayerHouse house;

        DropOnCues(house, {"C:\\Out\\A song." + extension});

        ASSERT_EQ(house.controls.queue.lstCuedSongs.ListCount(), 1) << extension;
        EXPECT_EQ(house.controls.queue.lstCuedSongs.List(0), "A song");
        EXPECT_EQ(house.controls.queue.lstCuedSongsPath.List(0), "C:\\Out\\A song." + extension);
        EXPECT_TRUE(house.state.CueHeadIsPath);
    }
}

TEST(QueueRoom, OtherFilesAreNotCued) {
    PlayerHouse house;

    for (const std::string extension : {"mp4", "m4a", "mov", "vob", "mpl", "m3u", "gif", "jpg", "htm", "txt"})
        DropOnCues(house, {"C:\\A song." + extension});
    DropOnCues(house, {"C:\\mp3", "C:\\a.mp3\\song", "C:\\song."});
    controls::DropData text;
    text.HasText = true;
    text.Text = "1";
    house.controls.queue.lstCuedSongs.OLEDragDrop.Raise(text, 0, 0);

    EXPECT_EQ(house.controls.queue.lstCuedSongs.ListCount(), 0);
    EXPECT_FALSE(house.state.CueHeadIsPath);
    EXPECT_FALSE(house.state.CueHeadIsId);
}

TEST(QueueRoom, ADroppedFileOfTheLibraryIsCuedByItsNumber) {
    PlayerHouse house;
    const std::string path = "C:\\m\\file name.mp3";
    house.stores.Seed("tblSong", {{"7", "Lark", "Morning", path, "0"}});

    DropOnCues(house, {path, "C:\\Out\\Some song.mp3"});

    auto& queue = house.controls.queue;
    EXPECT_EQ(queue.lstCuedSongs.List(0), "Lark - Morning");
    EXPECT_EQ(queue.lstCuedSongsPath.List(0), "7");
    EXPECT_EQ(queue.lstCuedSongs.List(1), "Some song");
    EXPECT_EQ(queue.lstCuedSongsPath.List(1), "C:\\Out\\Some song.mp3");
    EXPECT_TRUE(house.state.CueHeadIsId);
    EXPECT_FALSE(house.state.CueHeadIsPath);
}

TEST(QueueRoom, AnEntryIsTakenOutByItsPath) {
    PlayerHouse house;
    house.Cue("before", "3");
    house.player.Cue().CueFile("C:\\m\\one.mp3", "one");
    house.player.Cue().CueFile("C:\\m\\two.mp3", "two");
    house.player.Cue().CueFile("C:\\m\\one.mp3", "one again");

    house.player.Cue().RemovePath("C:\\m\\one.mp3");
    house.player.Cue().RemovePath("C:\\m\\other.mp3");

    const auto& queue = house.controls.queue;
    ASSERT_EQ(queue.lstCuedSongs.ListCount(), 3);
    EXPECT_EQ(queue.lstCuedSongs.List(1), "two");
    EXPECT_EQ(queue.lstCuedSongs.List(2), "one again");
    EXPECT_EQ(queue.lstCuedSongsPath.ListCount(), 3);
    EXPECT_FALSE(house.state.CueHeadIsPath);
    EXPECT_TRUE(house.state.CueHeadIsId);
}

TEST(QueueRoom, TakingThePathAtTheHeadOutLooksAtTheNewHead) {
    PlayerHouse house;
    house.player.Cue().CueFile("C:\\m\\one.mp3", "one");
    house.Cue("after", "3");

    house.player.Cue().RemovePath("C:\\m\\one.mp3");
    EXPECT_FALSE(house.state.CueHeadIsPath);
    EXPECT_TRUE(house.state.CueHeadIsId);

    house.player.Cue().CueFile("C:\\m\\one.mp3", "one");
    house.player.Cue().RemovePath("3");
    EXPECT_TRUE(house.state.CueHeadIsPath);
}

}  // namespace
