#include <gtest/gtest.h>

#include "player/PlayerHouse.h"

namespace {

using player_tests::PlayerHouse;
using roles::PlayerStatus;

TEST(NowPlaying, BeforeTheFirstSongNothingPlaysAndTheDeviceIsNotAsked) {
    PlayerHouse house;

    EXPECT_EQ(house.player.Playing().Status(), PlayerStatus::Stopped);
    EXPECT_TRUE(house.player.Playing().IsStopped());
    EXPECT_EQ(house.player.Playing().Song().length, 0);
    EXPECT_EQ(house.player.Playing().Song().path, "");
    EXPECT_TRUE(house.TakeCommands().empty());
}

TEST(NowPlaying, DescribesTheSong) {
    PlayerHouse house;
    const auto song = house.AddSong("Owls - Fly.mp3", 90000);
    house.player.PlaySong(song);
    house.device.Advance(10000);

    const roles::CurrentSong now = house.player.Playing().Song();

    EXPECT_EQ(now.artist, "Owls ");
    EXPECT_EQ(now.title, "Fly");
    EXPECT_EQ(now.path, song);
    EXPECT_DOUBLE_EQ(now.length, 90);
    EXPECT_FALSE(now.is_video);
    EXPECT_DOUBLE_EQ(house.player.Playing().Position(), 10.3) << "the device runs 3 percent fast";
    EXPECT_EQ(house.player.Playing().TrackCaption(), "Owls - Fly");
}

TEST(NowPlaying, FollowsTheDeviceFromPlayingToPausedToItsEnd) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.mp3", 30000));
    EXPECT_EQ(house.player.Playing().Status(), PlayerStatus::Playing);

    house.player.Pause();
    EXPECT_EQ(house.player.Playing().Status(), PlayerStatus::Paused);

    house.player.Play();
    house.device.Advance(31000);
    EXPECT_EQ(house.player.Playing().Status(), PlayerStatus::Stopped) << "the song is over, no tick came yet";
    EXPECT_FALSE(house.player.Playing().IsStopped());
}

TEST(NowPlaying, AStopIsNeverPlaying) {
    PlayerHouse house;
    house.player.PlaySong(house.AddSong("a.avi"));
    EXPECT_TRUE(house.player.Playing().Song().is_video);

    house.player.Stop();

    EXPECT_EQ(house.player.Playing().Status(), PlayerStatus::Stopped);
    EXPECT_TRUE(house.player.Playing().IsStopped());
}

TEST(NowPlaying, AGlanceChangesWithOrdersOpeningsAndJumps) {
    PlayerHouse house;
    const roles::PlayerGlance before = house.player.Playing().Glance();
    house.player.PlaySong(house.AddSong("a.mp3"));
    const roles::PlayerGlance playing = house.player.Playing().Glance();
    house.player.SeekTo(3);
    const roles::PlayerGlance jumped = house.player.Playing().Glance();

    EXPECT_GT(playing.orders, before.orders);
    EXPECT_EQ(playing.openings, before.openings + 1);
    EXPECT_EQ(jumped.openings, playing.openings);
    EXPECT_EQ(jumped.seeks, playing.seeks + 1);
    EXPECT_EQ(jumped, house.player.Playing().Glance()) << "a look changes nothing";
}

TEST(NowPlaying, TheVolumeIsNothingWhileTheSoundIsOff) {
    PlayerHouse house;
    house.player.SetVolume(0.25);
    EXPECT_DOUBLE_EQ(house.player.Playing().Glance().volume, 0.25);

    house.player.ToggleMute();
    EXPECT_EQ(house.player.Playing().Glance().volume, 0);

    house.player.ToggleMute();
    EXPECT_DOUBLE_EQ(house.player.Playing().Glance().volume, 0.25);
}

TEST(NowPlaying, AKnobBeyondItsBarIsFullVolumeOrNone) {
    PlayerHouse house;
    house.controls.levels.imgVol.SetLeft(2000);
    EXPECT_EQ(house.player.Playing().Glance().volume, 1);

    house.controls.levels.imgVol.SetLeft(-5);
    EXPECT_EQ(house.player.Playing().Glance().volume, 0);
}

TEST(NowPlaying, TheSpeedIsWhereTheMarkersCentreIs) {
    PlayerHouse house;
    EXPECT_EQ(house.player.Playing().Song().speed, 103);

    house.player.SetSpeed(50);

    EXPECT_EQ(house.player.Playing().Song().speed, 50);
}

TEST(NowPlaying, NextComesFromTheOrderTheCueListOrRepeat) {
    PlayerHouse house;
    EXPECT_FALSE(house.player.Playing().Glance().has_next);

    house.player.Cue().CueFile("C:\\m\\a.mp3", "a");
    EXPECT_TRUE(house.player.Playing().Glance().has_next);
    EXPECT_FALSE(house.player.Playing().Glance().has_previous);
}

TEST(NowPlaying, RepeatAloneIsANextSongOnceOneWasPlayed) {
    PlayerHouse house;
    house.menu.mnuRepeat.Click.Raise();
    EXPECT_FALSE(house.player.Playing().Glance().has_next);

    house.player.PlaySong(house.AddSong("a.mp3"));

    EXPECT_TRUE(house.player.Playing().Glance().has_next);
}

TEST(NowPlaying, TheOrderHasANextAndAPreviousSong) {
    PlayerHouse house;
    house.AddTrack("a", house.AddSong("a.mp3"));
    EXPECT_FALSE(house.player.Playing().Glance().has_selected_track);

    house.DoubleClickTrack(0);

    EXPECT_TRUE(house.player.Playing().Glance().has_selected_track);
    EXPECT_TRUE(house.player.Playing().Glance().has_next);
    EXPECT_TRUE(house.player.Playing().Glance().has_previous);
}

TEST(NowPlaying, TheSignOfAMissingFileIsSeen) {
    PlayerHouse house;
    EXPECT_FALSE(house.player.Playing().IsNoFileShown());

    house.player.PlaySong(PlayerHouse::Gone("a.mp3"));

    EXPECT_TRUE(house.player.Playing().IsNoFileShown());
}

}  // namespace
