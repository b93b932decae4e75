// Tracks that are gone, of another kind, or not to be opened.
#include <gtest/gtest.h>

#include "player/PlayerHouse.h"

namespace {

using player_tests::PlayerHouse;

TEST(MissingTracks, SaysOnceThatEveryTrackOfAListOfTwoIsMissing) {
    PlayerHouse house;
    house.AddTrack("one", "C:\\m\\gone1.mp3");
    house.AddTrack("two", "C:\\m\\gone2.mp3");

    house.DoubleClickTrack(0);

    ASSERT_EQ(house.dialogs.Boxes.size(), 1U);
    EXPECT_EQ(house.dialogs.Boxes[0].text, "Every track in this playlist is missing!");
    EXPECT_EQ(house.dialogs.Boxes[0].buttons, ports::BoxButtons::Ok);
    EXPECT_TRUE(house.controls.transport.lblNoFile.Visible());
    EXPECT_FALSE(house.IsOpen("a"));
}

TEST(MissingTracks, MovesOnFromAMissingTrackAtOnce) {
    PlayerHouse house;
    house.AddTrack("gone", "C:\\m\\gone.mp3");
    house.AddTrack("here", house.AddSong("here.mp3"));

    house.DoubleClickTrack(0);

    EXPECT_EQ(house.NowPlaying(), "C:\\m\\here.mp3");
    EXPECT_EQ(house.state.MissingTrackCount, 0);
    EXPECT_FALSE(house.controls.transport.lblNoFile.Visible());
    EXPECT_TRUE(house.dialogs.Boxes.empty());
}

TEST(MissingTracks, EndsWithTheMissingBoxOnAnEmptyPlayOrder) {
    PlayerHouse house;

    house.player.Next();

    EXPECT_EQ(house.dialogs.Boxes.size(), 1U);
    EXPECT_TRUE(house.controls.transport.lblNoFile.Visible());
    EXPECT_FALSE(house.IsOpen("a"));
}

TEST(MissingTracks, AMissingFileOutsideAListOfOneCountsAsTheWholeList) {
    PlayerHouse house;
    const auto song = house.AddSong("a.mp3");
    house.AddTrack("a", song);
    house.DoubleClickTrack(0);

    house.player.PlaySong(PlayerHouse::Gone("other.mp3"));

    EXPECT_EQ(house.dialogs.Boxes.size(), 1U);
    EXPECT_EQ(house.PlayingOn("a"), song) << "what plays goes on";
    EXPECT_EQ(house.state.MissingTrackCount, 1);
}

TEST(MissingTracks, ACountBeyondTheListsLengthMovesOnToTheList) {
    PlayerHouse house;
    const auto song = house.AddSong("a.mp3");
    house.AddTrack("a", song);
    house.DoubleClickTrack(0);
    house.player.PlaySong(PlayerHouse::Gone("one.mp3"));
    house.dialogs.Boxes.clear();

    house.player.PlaySong(PlayerHouse::Gone("two.mp3"));

    EXPECT_TRUE(house.dialogs.Boxes.empty());
    EXPECT_EQ(house.PlayingOn("b"), song) << "the list began anew";
    EXPECT_EQ(house.state.MissingTrackCount, 0);
}

TEST(MissingTracks, ACountBeyondTheListsLengthStillEndsInTheBoxWhenAllAreMissing) {
    PlayerHouse house;
    house.AddTrack("one", PlayerHouse::Gone("1.mp3"));
    house.AddTrack("two", PlayerHouse::Gone("2.mp3"));
    house.DoubleClickTrack(0);
    house.Cue("three", PlayerHouse::Gone("3.mp3"));
    house.state.CueHeadIsPath = true;

    house.player.Next();

    EXPECT_EQ(house.dialogs.Boxes.size(), 2U);
    EXPECT_EQ(house.controls.queue.lstCuedSongs.ListCount(), 0);
    EXPECT_FALSE(house.IsOpen("a"));
}

TEST(MissingTracks, ACountBeyondTheListsLengthEndsAtTheFirstFileThatCannotBeOpened) {
    PlayerHouse house;
    house.AddTrack("broken", house.AddBrokenSong("broken.mp3"));
    house.DoubleClickTrack(0);
    house.state.MissingTrackCount = 7;

    house.RunFor(1000);

    EXPECT_EQ(house.dialogs.Boxes.size(), 1U) << "and not one a tick";
    EXPECT_TRUE(house.state.PlayerStopped);
}

TEST(MissingTracks, ADoubleClickCountsMissingTracksAnew) {
    PlayerHouse house;
    for (const char* name : {"1.mp3", "2.mp3", "3.mp3"})
        house.AddTrack(name, PlayerHouse::Gone(name));
    house.DoubleClickTrack(0);
    ASSERT_EQ(house.state.MissingTrackCount, 3);

    house.DoubleClickTrack(1);

    EXPECT_EQ(house.state.MissingTrackCount, 3);
    EXPECT_EQ(house.dialogs.Boxes.size(), 2U);
    EXPECT_EQ(house.controls.queue.lstNowPlaying.ListIndex(), 0) << "from the second row on, three tries";
}

TEST(MissingTracks, RepeatOfAFileThatIsGoneTriesItOnceForEachRow) {
    PlayerHouse house;
    const auto song = house.AddSong("a.mp3");
    house.AddTrack("a", song);
    house.AddTrack("b", house.AddSong("b.mp3"));
    house.DoubleClickTrack(0);
    house.menu.mnuRepeat.Click.Raise();
    house.files.Remove(song);

    house.player.Next();

    EXPECT_EQ(house.dialogs.Boxes.size(), 1U);
    EXPECT_EQ(house.state.MissingTrackCount, 2);
    EXPECT_EQ(house.controls.queue.lstNowPlaying.ListIndex(), 0) << "the order did not move";
}

TEST(MissingTracks, AListOfFilesThatEndTheirDecoderEndsInTheBox) {
    PlayerHouse house;
    for (const char* name : {"1.mp3", "2.mp3", "3.mp3"})
        house.AddTrack(name, house.AddSong(name));
    house.DoubleClickTrack(0);

    for (int starts = 0; starts < 10 && house.dialogs.Boxes.empty(); ++starts) {
        house.RunFor(200);
        house.device.SendString("close a");
        house.device.SendString("close b");
        house.RunFor(50);
    }

    ASSERT_EQ(house.dialogs.Boxes.size(), 1U);
    EXPECT_EQ(house.dialogs.Boxes[0].text, "Every track in this playlist is missing!");
    EXPECT_EQ(house.history.Rows.size(), 3U) << "each was tried once";
    EXPECT_TRUE(house.state.PlayerStopped);
    house.RunFor(1000);
    EXPECT_EQ(house.dialogs.Boxes.size(), 1U);
}

TEST(MissingTracks, ASongThatWasHeardBeforeItsDecoderEndedIsNotCounted) {
    PlayerHouse house;
    for (const char* name : {"1.mp3", "2.mp3"})
        house.AddTrack(name, house.AddSong(name));
    house.DoubleClickTrack(0);

    for (int starts = 0; starts < 5; ++starts) {
        house.RunFor(8'000);
        house.device.SendString("close a");
        house.device.SendString("close b");
        house.RunFor(50);
    }

    EXPECT_TRUE(house.dialogs.Boxes.empty());
    EXPECT_FALSE(house.state.PlayerStopped);
}

TEST(MissingTracks, GetsThroughAVeryLongListOfMissingTracks) {
    PlayerHouse house;
    for (int i = 0; i < 100'000; ++i)
        house.AddTrack("gone", PlayerHouse::Gone("gone.mp3"));

    house.DoubleClickTrack(0);

    EXPECT_EQ(house.dialogs.Boxes.size(), 1U);
    EXPECT_EQ(house.state.MissingTrackCount, 100'000);
    EXPECT_EQ(house.controls.queue.lstNowPlaying.ListIndex(), 99'999);
}

TEST(MissingTracks, PlaysTheOneTrackBehindAVeryLongRowOfMissingOnes) {
    PlayerHouse house;
    for (int i = 0; i < 99'999; ++i)
        house.AddTrack("gone", PlayerHouse::Gone("gone.mp3"));
    const auto song = house.AddSong("here.mp3");
    house.AddTrack("here", song);

    house.DoubleClickTrack(0);

    EXPECT_EQ(house.PlayingOn("a"), song);
    EXPECT_EQ(house.state.MissingTrackCount, 0);
    EXPECT_TRUE(house.dialogs.Boxes.empty());
}

TEST(MissingTracks, WalksAVeryLongRowOfMissingCues) {
    PlayerHouse house;
    house.AddTrack("here", house.AddSong("here.mp3"));
    house.AddTrack("gone", PlayerHouse::Gone("gone.mp3"));
    house.DoubleClickTrack(0);
    house.state.MissingTrackCount = 10;
    for (int i = 0; i < 2'000; ++i)
        house.Cue("gone", PlayerHouse::Gone("gone.mp3"));
    house.state.CueHeadIsPath = true;

    house.player.Next();

    EXPECT_EQ(house.controls.queue.lstCuedSongs.ListCount(), 0);
    EXPECT_EQ(house.NowPlaying(), "C:\\m\\here.mp3") << "round from the missing second row";
}

TEST(MissingTracks, TakesAFileOfAnotherKindAsMissing) {
    PlayerHouse house;
    const auto text = house.AddSong("notes.txt");

    house.player.PlaySong(text);

    EXPECT_TRUE(house.controls.transport.lblNoFile.Visible());
    EXPECT_TRUE(house.history.Rows.empty());
}

TEST(MissingTracks, LeavesTheDisplayWhenASongCannotBeOpened) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("good.mp3", 61000));
    const std::string broken = "C:\\m\\broken.mp3";
    house.files.AddFile(broken);

    house.player.PlaySong(broken);

    EXPECT_FALSE(house.IsOpen("b"));
    EXPECT_EQ(house.state.FramesPerSecond, -1);
    EXPECT_EQ(house.state.TotalTimeText, "1:01");
    EXPECT_DOUBLE_EQ(house.controls.transport.picSongProgress.ScaleWidth(), 61);
}

TEST(MissingTracks, MovesOnFromASongThatCannotBeOpened) {
    PlayerHouse house;
    house.AddTrack("broken", house.AddBrokenSong("broken.mp3"));
    house.AddTrack("good", house.AddSong("good.mp3"));
    house.DoubleClickTrack(0);
    const bool stood_there = house.NowPlaying() == "C:\\m\\broken.mp3";

    house.RunFor(50);

    EXPECT_TRUE(stood_there);
    EXPECT_EQ(house.PlayingOn("a"), "C:\\m\\good.mp3");
    EXPECT_EQ(house.state.MissingTrackCount, 0);
    EXPECT_FALSE(house.controls.transport.lblNoFile.Visible());
}

TEST(MissingTracks, WhatIsCuedHasItsTurnAfterASongThatCannotBeOpenedAlsoWithoutAnOrder) {
    PlayerHouse house;
    const auto broken = house.AddBrokenSong("broken.mp3");
    const auto good = house.AddSong("good.mp3");
    house.player.PlaySong(broken);
    house.Cue("good", good);
    house.state.CueHeadIsPath = true;

    house.RunFor(50);

    EXPECT_EQ(house.PlayingOn("a"), good);
    EXPECT_TRUE(house.dialogs.Boxes.empty());
    EXPECT_FALSE(house.state.PlayerStopped);
}

TEST(MissingTracks, ACueOfSongsThatCannotBeOpenedEndsInTheBox) {
    PlayerHouse house;
    for (const char* name : {"1.mp3", "2.mp3", "3.mp3"})
        house.Cue(name, house.AddBrokenSong(name));
    house.state.CueHeadIsPath = true;
    house.player.PlaySong(house.AddBrokenSong("0.mp3"));

    house.RunFor(1000);

    EXPECT_EQ(house.dialogs.Boxes.size(), 1U);
    EXPECT_EQ(house.controls.queue.lstCuedSongs.ListCount(), 0) << "each had its turn";
    EXPECT_TRUE(house.state.PlayerStopped);
}

TEST(MissingTracks, RepeatOfASongThatCannotBeOpenedEndsInTheBoxWhateverIsCued) {
    PlayerHouse house;
    house.AddTrack("broken", house.AddBrokenSong("broken.mp3"));
    house.Cue("good", house.AddSong("good.mp3"));
    house.state.CueHeadIsPath = true;
    house.menu.mnuRepeat.Click.Raise();
    house.DoubleClickTrack(0);

    house.RunFor(1000);

    EXPECT_EQ(house.dialogs.Boxes.size(), 1U);
    EXPECT_EQ(house.controls.queue.lstCuedSongs.ListCount(), 1) << "the cue waits";
    EXPECT_TRUE(house.state.PlayerStopped);
}

TEST(MissingTracks, MovesOnFromASongWhoseDecoderEnds) {
    PlayerHouse house;
    house.AddTrack("first", house.AddSong("first.mp3"));
    house.AddTrack("second", house.AddSong("second.mp3"));
    house.DoubleClickTrack(0);
    house.RunFor(2000);

    house.device.SendString("close a");
    house.RunFor(100);

    EXPECT_EQ(house.NowPlaying(), "C:\\m\\second.mp3");
    EXPECT_EQ(house.PlayingOn("a"), "C:\\m\\second.mp3");
    EXPECT_FALSE(house.controls.transport.lblNoFile.Visible());
    EXPECT_TRUE(house.dialogs.Boxes.empty());
}

TEST(MissingTracks, ADecoderThatEndsWithTheOutgoingSongOfACrossfadeDisturbsNothing) {
    PlayerHouse house;
    house.AddTrack("first", house.AddSong("first.mp3"));
    house.AddTrack("second", house.AddSong("second.mp3"));
    house.DoubleClickTrack(0);
    house.RunFor(2000);
    house.DoubleClickTrack(1);
    house.RunFor(500);

    house.device.SendString("close a");
    house.RunFor(1000);

    EXPECT_EQ(house.PlayingOn("b"), "C:\\m\\second.mp3");
    EXPECT_EQ(house.NowPlaying(), "C:\\m\\second.mp3");
}

TEST(MissingTracks, SaysOnceThatNoSongOfAListCanBeOpened) {
    PlayerHouse house;
    house.AddTrack("one", house.AddBrokenSong("one.mp3"));
    house.AddTrack("two", house.AddBrokenSong("two.mp3"));
    house.AddTrack("three", "C:\\m\\missing.mp3");
    house.DoubleClickTrack(0);

    house.RunFor(2000);

    ASSERT_EQ(house.dialogs.Boxes.size(), 1U);
    EXPECT_EQ(house.dialogs.Boxes[0].text, "Every track in this playlist is missing!");
    EXPECT_TRUE(house.state.PlayerStopped);
    EXPECT_TRUE(house.player.IsPlayShown()) << "nothing plays that could be paused";
    EXPECT_FALSE(house.controls.transport.imgPause.Visible());
    EXPECT_TRUE(house.controls.transport.lblNoFile.Visible());
}

TEST(MissingTracks, RepeatsASongThatCannotBeOpenedNoMoreThanTheListIsLong) {
    PlayerHouse house;
    house.AddTrack("broken", house.AddBrokenSong("broken.mp3"));
    house.AddTrack("good", house.AddSong("good.mp3"));
    house.controls.transport.imgRepeat.SetVisible(true);
    house.DoubleClickTrack(0);

    house.RunFor(1000);

    EXPECT_EQ(house.dialogs.Boxes.size(), 1U);
    EXPECT_TRUE(house.state.PlayerStopped);
}

TEST(MissingTracks, AListThatWentWhileItsSongPlayedIsToldOfOnceAtTheSongsEnd) {
    PlayerHouse house;
    const auto song = house.AddSong("a.mp3");
    house.AddTrack("a", song);
    house.AddTrack("b", house.AddSong("b.mp3"));
    house.DoubleClickTrack(0);
    for (const char* name : {"a.mp3", "b.mp3"})
        house.files.Remove("C:\\m\\" + std::string(name));

    house.RunFor(60'000);

    EXPECT_EQ(house.dialogs.Boxes.size(), 1U);
    EXPECT_TRUE(house.state.PlayerStopped);
}

TEST(MissingTracks, AListThatIsGoneLeavesTheSongThatPlaysAloneUntilItsEnd) {
    PlayerHouse house;
    const auto song = house.AddSong("a.mp3");
    house.AddTrack("a", song);
    house.DoubleClickTrack(0);
    house.lstTracks.Clear();
    house.lstMaybe.Clear();
    house.AddTrack("one", PlayerHouse::Gone("1.mp3"));
    house.AddTrack("two", PlayerHouse::Gone("2.mp3"));
    house.DoubleClickTrack(0);
    ASSERT_EQ(house.dialogs.Boxes.size(), 1U);

    house.RunFor(10'000);
    EXPECT_EQ(house.PlayingOn("a"), song);
    EXPECT_FALSE(house.state.PlayerStopped);
    house.RunFor(60'000);

    EXPECT_EQ(house.dialogs.Boxes.size(), 2U) << "one for the double click, one for the end of the song";
    EXPECT_TRUE(house.state.PlayerStopped);
}

TEST(MissingTracks, AFailureOfBeforeDoesNotPassOverTheSongThatIsBeingStarted) {
    PlayerHouse house;
    house.AddTrack("broken", house.AddBrokenSong("broken.mp3"));
    house.AddTrack("good", house.AddSong("good.mp3"));
    house.AddTrack("better", house.AddSong("better.mp3"));
    house.DoubleClickTrack(0);
    ASSERT_LT(house.state.FramesPerSecond, 0);
    house.desktop.Post([&house] { house.controls.transport.tmrPlay.Tick.Raise(); });

    house.DoubleClickTrack(1);

    EXPECT_EQ(house.NowPlaying(), "C:\\m\\good.mp3");
    EXPECT_EQ(house.history.Rows,
              (std::vector<std::string>{"Music:C:\\m\\broken.mp3", "Music:C:\\m\\good.mp3"}));
}

}  // namespace
