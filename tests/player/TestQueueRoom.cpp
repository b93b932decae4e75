#include <gtest/gtest.h>

#include "player/PlayerHouse.h"

namespace {

using player_tests::PlayerHouse;

void Cue(PlayerHouse& house, std::string_view text, std::string_view entry) {
    house.controls.queue.lstCuedSongs.AddItem(text);
    house.controls.queue.lstCuedSongsPath.AddItem(entry);
}

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
    Cue(house, "one", "1");
    Cue(house, "two", "2");
    house.controls.queue.lstCuedSongs.SetListIndex(1);

    house.controls.queue.imgUnCueOver.Click.Raise();

    EXPECT_EQ(house.controls.queue.lstCuedSongs.List(0), "one");
    EXPECT_EQ(house.controls.queue.lstCuedSongsPath.ListCount(), 1);
    EXPECT_TRUE(house.state.CueHeadIsId);
    EXPECT_FALSE(house.state.CueHeadIsPath);
}

TEST(QueueRoom, UncuesTheHeadWithoutASelectedRow) {
    PlayerHouse house;
    Cue(house, "one", "1");
    Cue(house, "two", "C:\\m\\two.mp3");
    house.state.CueHeadIsId = true;

    house.menu.mnuRemoveCueList.Click.Raise();

    EXPECT_EQ(house.controls.queue.lstCuedSongs.List(0), "two");
    EXPECT_TRUE(house.state.CueHeadIsPath);
    EXPECT_TRUE(house.state.CueHeadIsId) << "left as it was";
}

TEST(QueueRoom, UncueingTheLastRowClearsBothFlags) {
    PlayerHouse house;
    Cue(house, "one", "1");
    house.state.CueHeadIsId = true;
    house.state.CueHeadIsPath = true;

    house.menu.mnuRemoveCueList.Click.Raise();

    EXPECT_FALSE(house.state.CueHeadIsId);
    EXPECT_FALSE(house.state.CueHeadIsPath);
}

TEST(QueueRoom, UncueTakesASevenCharacterHeadForAPath) {
    PlayerHouse house;
    Cue(house, "one", "1");
    Cue(house, "seven", "1234567");

    house.menu.mnuRemoveCueList.Click.Raise();

    EXPECT_TRUE(house.state.CueHeadIsPath);
}

TEST(QueueRoom, DoubleClickPlaysASmallNumberFromTheTable) {
    PlayerHouse house;
    const auto song = house.AddSong("seven.mp3", 30000, 7);
    Cue(house, "other", "3");
    Cue(house, "seven", "7");
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
    Cue(house, "eight", "8");
    house.controls.queue.lstCuedSongs.SetListIndex(0);

    house.controls.queue.lstCuedSongs.DblClick.Raise();

    EXPECT_TRUE(house.controls.transport.lblNoFile.Visible());
    EXPECT_FALSE(house.IsOpen("a"));
    EXPECT_FALSE(house.state.CueHeadIsId);
}

TEST(QueueRoom, DoubleClickOnAPathChangesNothing) {
    PlayerHouse house;
    Cue(house, "path", house.AddSong("path.mp3"));
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

}  // namespace
